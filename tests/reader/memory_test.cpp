// Every allocation of a walk fails once: nothing leaks, and the reader can be used or destroyed.

#include "../FailingMemory.h"
#include "MemoryFile.h"

#include <axmException.h>
#include <axmPositionXcoPageArrPrgcoPrg.h>
#include <axmSimpleXmlFactory.h>

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>

namespace
{
int const levels = 40; // more than the cursors have room for without allocating

char const value[] = "a value that is long enough to be allocated";
char const more_text[] = "more text, and that is long too";

std::string const& document()
{
  static std::string const text = []
  {
    std::string made = "<?xml version='1.0' encoding='a-name-of-an-encoding-that-is-long'?>\n<r>";
    for (int i = 0; i < levels; ++i)
      made += "<level>";
    made += std::string("<a k='") + value + "'>text <!--c-->in <!--c-->pieces</a>";
    for (int i = 0; i < levels; ++i)
      made += "</level>";
    return made + "<b>" + more_text + "</b></r>\n";
  }();
  return text;
}

// Does all that a reader can do; false when memory ran out. What it used is gone afterwards.
bool walk(apITarnFilecoPrf const& file)
{
  try
  {
    auto const reader = axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, file);
    bool good = reader->read_file() && reader->down_to(ut_lit("r"));
    for (int i = 0; i < levels; ++i)
      good = good && reader->down_to(ut_lit("level"));
    good = good && reader->down_to(ut_lit("a"));
    good = good && reader->attribute(ut_lit("k"), utString()) == ut_lit(value);
    good = good && reader->text_node() == ut_lit("text in pieces");
    for (int i = 0; i < levels + 1; ++i)
      reader->up();
    good = good && reader->down_to(ut_lit("b")) && reader->text_node() == ut_lit(more_text);
    reader->up();
    reader->up();
    return good && !reader->has_error_occurred();
  }
  catch (std::bad_alloc const&)
  {
    return false;
  }
}
}

TEST(memory, a_walk_that_runs_out_of_memory_leaks_nothing)
{
  apITarnFilecoPrf const file(new MemoryFile(document()));
  bool good = false;
  int const refused = with_every_failure([&] { good = walk(file); },
    [&](bool failed, long held)
    {
      EXPECT_EQ(good, !failed);
      EXPECT_EQ(held, 0);
    });
  EXPECT_GT(refused, 20);
}

TEST(memory, a_reader_goes_on_after_it_ran_out_of_memory)
{
  apITarnFilecoPrf const file(new MemoryFile(document()));
  bool finished = false;
  auto const again_until_it_works = [&](auto call)
  {
    for (int i = 0; i < 10; ++i)
      try
      {
        return call();
      }
      catch (std::bad_alloc const&)
      {
      }
    return false;
  };
  for (long allowed = 0; !finished; ++allowed)
  {
    auto const reader = axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, file);
    int first_failures = 0;
    bool good = false;
    int depth = 0;
    {
      FailingMemory const memory(allowed);
      auto const down_to = [&](char const* name) { return reader->down_to(ut_lit(name)) && ++depth > 0; };
      try
      {
        good = reader->read_file() && down_to("r") && down_to("b") && reader->text_node() == ut_lit(more_text);
      }
      catch (std::bad_alloc const&)
      {
        ++first_failures;
      }
    }
    finished = first_failures == 0;
    EXPECT_EQ(good, finished);
    EXPECT_FALSE(reader->has_error_occurred());
    for (; depth > 0; --depth)
      reader->up();
    EXPECT_TRUE(again_until_it_works([&] { return reader->read_file(); }));
    EXPECT_TRUE(again_until_it_works([&] { return reader->down_to(ut_lit("r")); }));
    EXPECT_TRUE(again_until_it_works([&] { return reader->down_to(ut_lit("b")); }));
    EXPECT_STREQ(reader->text_node().c_str(), more_text);
  }
}

TEST(memory, recording_an_error_without_memory_leaves_the_reader_as_it_was)
{
  apITarnFilecoPrf const file(new MemoryFile("<?xml version='1.0'?>\n<r><a></b></r>\n"));
  auto const reader = axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, file);
  ASSERT_TRUE(reader->read_file());
  utString const r = ut_lit("r");
  utString const c = ut_lit("c");
  ASSERT_TRUE(reader->down_to(r));
  bool threw = false;
  {
    FailingMemory const memory(0);
    try
    {
      reader->down_to(c);
    }
    catch (std::bad_alloc const&)
    {
      threw = true;
    }
  }
  EXPECT_TRUE(threw);
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_FALSE(reader->down_to(c));
  EXPECT_TRUE(reader->has_error_occurred());
}

TEST(memory, a_cursor_that_runs_out_of_memory_leaks_nothing)
{
  std::string text(document());
  bool good = false;
  utString const level = ut_lit("level");
  utString const r = ut_lit("r");
  std::size_t const root = text.find("<r>");
  int const refused = with_every_failure(
    [&]
    {
      good = false;
      try
      {
        axmPositionX cursor(&text[root]);
        cursor.object_setup();
        axmPositionXcoPageArrPrgcoPrg const child(cursor.go_to_sub_tag(utPtrReleaseToCaller, level));
        cursor.skip_object(); // deeper than the levels that need no memory
        good = child.get() != nullptr;
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    [&](bool failed, long held)
    {
      EXPECT_EQ(good, !failed);
      EXPECT_EQ(held, 0);
    });
  EXPECT_GE(refused, 2);
}

TEST(memory, a_walk_allocates_once_for_each_value_that_is_not_empty)
{
  int const records = 3000;
  std::string text = "<?xml version='1.0'?>\n<r>";
  for (int i = 0; i < records; ++i)
    text += "<a k='value' e=''><b>text</b><c></c></a>";
  apITarnFilecoPrf const file(new MemoryFile(text + "</r>\n"));
  auto const reader = axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, file);
  utString const r = ut_lit("r");
  utString const a = ut_lit("a");
  utString const b = ut_lit("b");
  utString const c = ut_lit("c");
  utString const k = ut_lit("k");
  utString const e = ut_lit("e");
  utString const none = ut_lit("none");

  // Two values of a record are not empty. What comes on top are the file, the cursors and the pages of the index.
  int const constant = 30;
  int seen = 0;
  bool failed = false;
  {
    FailingMemory const memory(2 * records + constant);
    if (reader->read_file() && reader->down_to(r))
      for (; reader->down_to(a); reader->up())
      {
        seen += reader->attribute(k, none).length() == 5 && reader->attribute(e, none).length() == 0;
        seen += reader->down_to(b) && reader->text_node().length() == 4;
        reader->up();
        seen += reader->down_to(c) && reader->text_node().length() == 0;
        reader->up();
      }
    failed = memory.has_failed();
  }
  EXPECT_EQ(seen, 3 * records);
  EXPECT_FALSE(failed);
}
