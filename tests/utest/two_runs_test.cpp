// Two runs of the suite at once in one folder.

#include "SuiteFolder.h"
#include "SuiteRun.h"

#include <apPath.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

namespace
{
std::string contents_of(std::string const& name)
{
  std::string text;
  std::FILE* const stream = apPath(name.c_str()).file_open(apPath::read_mode());
  if (stream == nullptr)
    return "there is no output";
  for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream))
    text += static_cast<char>(c);
  std::fclose(stream);
  return text;
}

// The groups with failed checks but for the one whose file bears the same name in every run.
std::string failures_of_a_run(std::string const& folder, std::string const& output)
{
  std::string command = std::string("\"") + AXM_RUN_SUITE_IN + "\" \"" + folder + "\" > \"" + output + "\"";
#if defined(_WIN32)
  command = "\"" + command + "\"";
#endif
  // The exit code tells of the group that is left out here, too.
  if (std::system(command.c_str()) == -1)
    return "the program cannot be run";
  std::string text = contents_of(output);
  for (std::size_t start = 0; start < text.size();)
  {
    std::size_t const end = text.find('\n', start) + 1;
    if (text.compare(start, 33, "axmDocumentFactoryUtest::test_save", 0, 33) == 0)
      text.erase(start, end - start);
    else
      start = end;
  }
  return text;
}
}

TEST(conformance_suite, two_runs_in_one_folder_do_not_disturb_each_other)
{
  SuiteFolder const folder("axm two runs test");
  std::filesystem::path const work = folder.path / "work";
  for (int round = 0; round < 2; ++round)
  {
    std::string one;
    std::string other;
    std::thread first([&] { one = failures_of_a_run(work.u8string(), (folder.path / "one.txt").u8string()); });
    std::thread second([&] { other = failures_of_a_run(work.u8string(), (folder.path / "other.txt").u8string()); });
    first.join();
    second.join();
    EXPECT_EQ(one, "");
    EXPECT_EQ(other, "");
  }
  EXPECT_TRUE(std::filesystem::is_empty(work));
}
