// A load and a save in which each call to the system fails once, is cut short once, and is the last one once; in which the
// file changes at each of them; on a full disk; and ended at any moment. What is at the target afterwards is the old
// document or the new one, whole, with nothing beside it, and a failure is told.

#include "FaultSubject.h"
#include "FaultyRun.h"
#include "FullDisk.h"

#include <unistd.h>

#include <map>

namespace
{
namespace fs = std::filesystem;

class Faults : public FaultTest
{
protected:
  FaultyRun run(std::string const& fault) const
  {
    return run_with_fault(GetParam().command(path("a.xml")), fault, GetParam().locale, path("a.xml"));
  }

  // Calls `check` with what comes of each call of that name that has the fault, from the first to the last one. Their number.
  template <class Prepare, class Check>
  int for_each_call(std::string const& call, std::string const& fault, Prepare prepare, Check check) const
  {
    for (int number = 1;; ++number)
    {
      prepare();
      std::string const all = call + " " + std::to_string(number) + " " + fault;
      SCOPED_TRACE(all);
      FaultyRun const done = run(all);
      if (!done.was_met)
      {
        EXPECT_EQ(done.exit_code, 0) << done.messages;
        EXPECT_TRUE(at("a.xml") == new_document);
        return number - 1;
      }
      check(done);
      if (number == 1000)
        ADD_FAILURE() << "there is no end of calls";
      if (HasFailure())
        return number;
    }
  }
};

char const* const calls[] = {"open", "fopen", "fdopen", "close", "read", "fread", "write", "fwrite", "fflush", "fsync",
  "stat", "fstat", "access", "readlink", "fseeko", "ftello", "fchown", "fchmod", "linkat", "rename", "unlink",
  "ftruncate", "tmpfile", "fclose"};

void expect_told(FaultyRun const& run)
{
  EXPECT_TRUE(run.exit_code == 0 || run.exit_code == 1) << run.exit_code;
  EXPECT_EQ(run.exit_code == 0, run.messages.empty()) << run.messages;
}

std::string const more = "<!-- more -->\n";
}

TEST_P(Faults, a_save_that_fails_leaves_the_old_document_or_the_new_one)
{
  std::map<std::string, int> met;
  for (char const* const call : calls)
    for (char const* const fault : {"EIO", "short"})
      met[call] += for_each_call(
        call, fault, [&] { put("a.xml", old_document); },
        [&](FaultyRun const& run)
        {
          expect_told(run);
          EXPECT_EQ(entries(), std::vector<std::string>{"a.xml"});
          EXPECT_TRUE(at("a.xml") == new_document || (run.exit_code == 1 && at("a.xml") == old_document));
        });
  for (char const* const call : {"open", "fopen", "fread", "fwrite", "fflush", "fsync", "fchmod", "linkat", "rename"})
    EXPECT_GT(met[call], 0) << call;
}

// A file with two names is written in place.
TEST_P(Faults, a_save_in_place_that_fails_leaves_the_old_document_or_the_new_one)
{
  for (char const* const call : calls)
    for (char const* const fault : {"ENOSPC", "short"})
      for_each_call(
        call, fault,
        [&]
        {
          put("a.xml", old_document);
          if (!fs::exists(folder / "b.xml"))
            fs::create_hard_link(folder / "a.xml", folder / "b.xml");
        },
        [&](FaultyRun const& run)
        {
          expect_told(run);
          EXPECT_EQ(entries(), (std::vector<std::string>{"a.xml", "b.xml"}));
          EXPECT_TRUE(at("a.xml") == new_document || (run.exit_code == 1 && at("a.xml") == old_document));
          EXPECT_TRUE(at("a.xml") == at("b.xml"));
        });
}

// What somebody else does to a file that is read may be seen or not, but never in parts.
TEST_P(Faults, a_file_that_shrinks_or_grows_while_it_is_read_is_as_it_is_or_changed_as_a_whole)
{
  std::string const shrunk = old_document.substr(0, old_document.size() / 2);
  std::map<std::string, int> told;
  for (char const* const fault : {"shrink", "grow"})
    for_each_call(
      "any", fault, [&] { put("a.xml", old_document); },
      [&](FaultyRun const& run)
      {
        expect_told(run);
        EXPECT_EQ(entries(), std::vector<std::string>{"a.xml"});
        std::string const found = at("a.xml");
        if (run.exit_code == 1)
        {
          ++told[fault];
          EXPECT_TRUE(found == shrunk || found == old_document + more);
        }
        else
          EXPECT_TRUE(found == new_document || found == new_document + more ||
                      found == new_document.substr(0, new_document.size() / 2));
      });
  EXPECT_GT(told["shrink"], 0);
}

// With room for a little of the new document, and with as much as it takes beside the old one, but not in its place.
TEST_P(Faults, a_full_disk_leaves_the_old_document_and_is_told)
{
  std::size_t const page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  ASSERT_EQ(old_document.size() % page, 0u);
  for (bool const is_in_place : {false, true})
  {
    auto const prepare = [&]
    {
      put("a.xml", old_document);
      if (is_in_place)
        fs::create_hard_link(folder / "a.xml", folder / "b.xml");
    };
    auto const save = [&]() -> std::string
    {
      FaultyRun const done = run("none 0 none");
      bool const is_kept = at("a.xml") == old_document;
      fs::remove(folder / "filler");
      std::string state = std::to_string(done.exit_code) + (done.messages.empty() ? " untold" : " told") +
                          (is_kept ? " kept:" : " lost:");
      for (std::string const& name : entries())
        state += " " + name;
      return state;
    };
    std::string const state =
      on_full_disk(path("."), is_in_place ? old_document.size() + page : 3 * page, prepare, save);
    EXPECT_EQ(state, is_in_place ? "1 told kept: a.xml b.xml" : "1 told kept: a.xml");
    for (std::string const& name : entries())
      fs::remove(folder / name);
  }
}

TEST_P(Faults, a_signal_leaves_the_old_document_or_the_new_one_and_nothing_else)
{
  for_each_call(
    "any", "terminate", [&] { put("a.xml", old_document); },
    [&](FaultyRun const& run)
    {
      EXPECT_EQ(run.exit_code, -1);
      EXPECT_EQ(entries(), std::vector<std::string>{"a.xml"});
      EXPECT_TRUE(at("a.xml") == old_document || at("a.xml") == new_document);
    });
}

TEST_P(Faults, a_kill_leaves_the_old_document_or_the_new_one)
{
  for_each_call(
    "any", "kill", [&] { put("a.xml", old_document); },
    [&](FaultyRun const& run)
    {
      EXPECT_EQ(run.exit_code, -1);
      EXPECT_TRUE(at("a.xml") == old_document || at("a.xml") == new_document);
      // Between its name and its place, the new file is whole and may stay.
      for (std::string const& name : entries())
        if (name != "a.xml")
        {
          EXPECT_EQ(at(name), new_document) << name;
          fs::remove(folder / name);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(all, Faults, testing::ValuesIn(fault_subjects()), name_of_subject);
