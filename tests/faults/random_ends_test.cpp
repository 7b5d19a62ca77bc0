// Saves that a signal ends at moments that chance chooses. AXM_KILLS says how many.

#include "FaultSubject.h"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <thread>

namespace
{
namespace fs = std::filesystem;

class RandomEnds : public FaultTest
{
protected:
  // Ends, at a moment within its next saves, a program that saves the two documents in turn. Whether the signal ended it.
  bool end_with(int signal)
  {
    int ends[2];
    if (pipe(ends) != 0)
      return false;
    pid_t const child = fork();
    if (child == 0)
    {
      dup2(ends[1], STDOUT_FILENO);
      setenv("LC_ALL", GetParam().locale, 1);
      execl(AXM_LOAD_AND_SAVE, AXM_LOAD_AND_SAVE, path("a.xml").c_str(), "1000000", nullptr);
      _exit(127);
    }
    close(ends[1]);
    char saved = 0;
    bool const has_begun = read(ends[0], &saved, 1) == 1;
    close(ends[0]);
    std::this_thread::sleep_for(std::chrono::microseconds(dice() % 5000));
    kill(child, signal);
    int status = 0;
    waitpid(child, &status, 0);
    return has_begun && WIFSIGNALED(status) && WTERMSIG(status) == signal;
  }

  static int rounds()
  {
    char const* const wanted = std::getenv("AXM_KILLS");
    return wanted == nullptr ? 60 : std::atoi(wanted);
  }

  bool is_whole(std::string const& text) const { return text == old_document || text == new_document; }

private:
  std::mt19937 dice{20240229};
};
}

TEST_P(RandomEnds, a_kill_leaves_a_whole_document)
{
  put("a.xml", old_document);
  for (int i = 0; i < rounds(); ++i)
  {
    ASSERT_TRUE(end_with(SIGKILL)) << i;
    ASSERT_TRUE(is_whole(at("a.xml"))) << i;
    // Between its name and its place, the new file is whole and may stay.
    for (std::string const& name : entries())
      if (name != "a.xml")
      {
        ASSERT_TRUE(is_whole(at(name))) << i;
        fs::remove(folder / name);
      }
  }
}

TEST_P(RandomEnds, a_signal_leaves_a_whole_document_and_nothing_else)
{
  put("a.xml", old_document);
  for (int i = 0; i < rounds(); ++i)
  {
    ASSERT_TRUE(end_with(i % 2 == 0 ? SIGTERM : SIGINT)) << i;
    ASSERT_TRUE(is_whole(at("a.xml"))) << i;
    ASSERT_EQ(entries(), std::vector<std::string>{"a.xml"}) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(all, RandomEnds,
  testing::Values(FaultSubject{"Library", "C"}, FaultSubject{"Library", "de_DE.UTF-8"}), name_of_subject);
