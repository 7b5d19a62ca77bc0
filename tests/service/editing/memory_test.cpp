// Edits of documents as they are written when memory runs out.

#include "../../FailingMemory.h"

#include <axsEditor.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>

namespace
{
std::string const long_text(200, 'x');

std::string const document =
  "<?xml version='1.0'?>\n<!DOCTYPE r [<!ENTITY e 'entity'><!ATTLIST b d CDATA 'default'>]>\n"
  "<r xmlns:p='urn:a-namespace-that-is-not-short'>\n  <a p:b='1' long='" +
  long_text + "'/>\n  <b>&e;" + long_text + "</b>\n  <p:c><!--c--></p:c>\n</r>\n";

using Kind = axsEditFault::Kind;

struct Edit
{
  char const* name;
  std::function<std::size_t(axsEditor&)> make;
};

std::string const fragment = "<n a='" + long_text + "'>text &amp; <p:m/></n>";

// Some are made, the others are refused.
Edit const edits[] = {
  {"set",
    [](axsEditor& editor) {
      return editor.set_attributes("//a", {{"long", "<" + long_text + ">"}, {"new", "1"}});
    }},
  {"set the value", [](axsEditor& editor) { return editor.set_value("//a/@long", long_text + "&"); }},
  {"remove", [](axsEditor& editor) { return editor.remove("//b | //a/@long"); }},
  {"rename", [](axsEditor& editor) { return editor.rename("//b | //p:c", "p:another-name-that-is-not-short"); }},
  {"insert", [](axsEditor& editor) { return editor.insert("/r/*", axsEditPlace::after, fragment); }},
  {"move", [](axsEditor& editor) { return editor.move("//b", axsEditPlace::into, "//p:c"); }},
  {"a wrong expression", [](axsEditor& editor) { return editor.remove("//["); }},
  {"a wrong fragment", [](axsEditor& editor) { return editor.insert("//a", axsEditPlace::into, "<q:a/>"); }},
  {"a wrong name", [](axsEditor& editor) { return editor.rename("//a", "q:a"); }},
  {"what comes out of an entity", [](axsEditor& editor) { return editor.set_value("//b/@d/..", "x"); }},
};

// What comes of an edit.
struct Outcome
{
  std::size_t count = 0;
  Kind fault = Kind::none;
  bool is_out_of_memory = false;
  bool is_unchanged = false;
  bool is_edited = false;
};

Outcome outcome_of(Edit const& edit, std::string const& edited)
{
  axsEditor editor(document, apPath());
  Outcome outcome;
  try
  {
    editor.set_prefixes({{"p", "urn:a-namespace-that-is-not-short"}});
    outcome.count = edit.make(editor);
    outcome.fault = editor.fault().kind;
  }
  catch (std::bad_alloc const&)
  {
    outcome.is_out_of_memory = true;
  }
  outcome.is_unchanged = editor.bytes() == document;
  outcome.is_edited = editor.bytes() == edited;
  return outcome;
}

std::string edited_by(Edit const& edit)
{
  axsEditor editor(document, apPath());
  editor.set_prefixes({{"p", "urn:a-namespace-that-is-not-short"}});
  edit.make(editor);
  return editor.bytes();
}

// Some allocations may fail without harm: that of an exception, which the library has a reserve for, and the one for sorting.
void expect_clean_failures(Failures failures)
{
  for (Edit const& edit : edits)
  {
    SCOPED_TRACE(edit.name);
    std::string const edited = edited_by(edit);
    Outcome const whole = outcome_of(edit, edited);
    Outcome outcome;
    int times = 0;
    with_every_failure(
      [&]
      {
        try
        {
          outcome = outcome_of(edit, edited);
        }
        catch (std::bad_alloc const&)
        {
          // The editor could not be made.
          outcome = {0, Kind::none, true, true, false};
        }
      },
      [&](bool failed, long held)
      {
        EXPECT_EQ(held, 0);
        EXPECT_TRUE(failed || !outcome.is_out_of_memory);
        if (outcome.is_out_of_memory)
        {
          ++times;
          EXPECT_TRUE(outcome.is_unchanged);
          return;
        }
        EXPECT_EQ(outcome.count, whole.count);
        EXPECT_EQ(outcome.fault, whole.fault);
        EXPECT_TRUE(outcome.is_edited);
      },
      failures);
    EXPECT_GT(times, 50);
  }
}
}

TEST(axsEditorMemory, an_edit_for_which_memory_runs_out_changes_and_keeps_nothing)
{
  expect_clean_failures(Failures::lasting);
}

TEST(axsEditorMemory, an_edit_of_which_one_allocation_fails_changes_and_keeps_nothing)
{
  expect_clean_failures(Failures::single);
}
