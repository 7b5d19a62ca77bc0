// A load and a save in which each call to the system fails once, is cut short once, and is the last one once: what is at
// the target afterwards is the old document or the new one, whole, with nothing beside it, and a failure is told.

#include "FaultyRun.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace
{
namespace fs = std::filesystem;

// Larger than what streams keep back.
std::string document(std::string const& attribute)
{
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a" + attribute + ">" + std::string(100000, 'x') + "</a>\n";
}

std::string const old_document = document("");
std::string const new_document = document(" b=\"1.5\"");

class Faults : public testing::TestWithParam<char const*>
{
protected:
  Faults() : folder("faults_" + std::to_string(getpid())) { fs::create_directory(folder); }
  ~Faults() override { fs::remove_all(folder); }

  void put(std::string const& name, std::string const& text) const
  {
    std::ofstream(folder / name, std::ios::binary) << text;
  }

  std::string at(std::string const& name) const
  {
    std::ifstream stream(folder / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  }

  std::vector<std::string> entries() const
  {
    std::vector<std::string> names;
    for (auto const& entry : fs::directory_iterator(folder))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  FaultyRun set(std::string const& fault) const
  {
    return run_with_fault({"set", (folder / "a.xml").string(), "/a", "b=1.5"}, fault, GetParam());
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
      FaultyRun const run = set(all);
      if (!run.was_met)
      {
        EXPECT_EQ(run.exit_code, 0) << run.messages;
        EXPECT_EQ(at("a.xml"), new_document);
        return number - 1;
      }
      check(run);
      if (number == 1000)
        ADD_FAILURE() << "there is no end of calls";
      if (HasFailure())
        return number;
    }
  }

  fs::path const folder;
};

char const* const calls[] = {"open", "fopen", "fdopen", "read", "fread", "write", "fwrite", "fflush", "fsync", "fstat",
  "fchown", "fchmod", "linkat", "rename", "unlink", "ftruncate", "tmpfile", "fclose"};

void expect_told(FaultyRun const& run)
{
  EXPECT_TRUE(run.exit_code == 0 || run.exit_code == 1) << run.exit_code;
  EXPECT_EQ(run.exit_code == 0, run.messages.empty()) << run.messages;
}
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
          EXPECT_EQ(at("a.xml"), at("b.xml"));
        });
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

INSTANTIATE_TEST_SUITE_P(locales, Faults, testing::Values("C", "de_DE.UTF-8"),
  [](testing::TestParamInfo<char const*> const& locale) { return std::string(locale.param).substr(0, 1); });
