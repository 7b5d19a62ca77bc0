#include "GuardedRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <map>
#include <unistd.h>
#include <vector>

namespace
{
std::map<std::size_t, GuardedEnd> run(
  std::size_t count, GuardedLimits const& limits, std::function<std::string(std::size_t)> const& task)
{
  std::map<std::size_t, GuardedEnd> ends;
  run_guarded(count, task, limits,
    [&ends](std::size_t number, GuardedEnd const& end)
    { EXPECT_TRUE(ends.emplace(number, end).second) << number << " ended twice"; });
  return ends;
}

GuardedLimits limits_of(int processes, int seconds)
{
  GuardedLimits limits;
  limits.processes = processes;
  limits.seconds = seconds;
  return limits;
}
}

TEST(GuardedRun, every_task_answers_for_itself)
{
  auto const ends = run(1000, limits_of(3, 60), [](std::size_t number) { return "task " + std::to_string(number); });
  ASSERT_EQ(ends.size(), 1000U);
  for (auto const& [number, end] : ends)
  {
    EXPECT_EQ(end.how, GuardedEnd::How::answered);
    EXPECT_EQ(end.text, "task " + std::to_string(number));
    EXPECT_GT(end.peak_bytes, 0U);
  }
}

TEST(GuardedRun, no_tasks_take_no_time)
{
  EXPECT_TRUE(run(0, limits_of(2, 60), [](std::size_t) { return std::string(); }).empty());
}

TEST(GuardedRun, long_answers_arrive_whole)
{
  std::string const answer(5000000, 'a');
  auto const ends = run(2, limits_of(1, 60), [&answer](std::size_t) { return answer; });
  ASSERT_EQ(ends.size(), 2U);
  EXPECT_EQ(ends.at(1).text, answer);
}

TEST(GuardedRun, a_crash_is_that_of_its_task_alone)
{
  auto const ends = run(20, limits_of(2, 60),
    [](std::size_t number)
    {
      if (number == 3 || number == 19)
        raise(SIGKILL);
      if (number == 7)
        _exit(5);
      return std::string();
    });
  ASSERT_EQ(ends.size(), 20U);
  for (auto const& [number, end] : ends)
  {
    bool const crashes = number == 3 || number == 7 || number == 19;
    EXPECT_EQ(end.how, crashes ? GuardedEnd::How::crashed : GuardedEnd::How::answered) << number;
  }
  EXPECT_EQ(ends.at(3).text, "signal 9");
  EXPECT_EQ(ends.at(7).text, "exit code 5");
}

TEST(GuardedRun, a_task_that_never_ends_is_killed)
{
  auto const ends = run(6, limits_of(2, 3),
    [](std::size_t number)
    {
      while (number == 2)
        pause();
      return std::string();
    });
  ASSERT_EQ(ends.size(), 6U);
  for (auto const& [number, end] : ends)
    EXPECT_EQ(end.how, number == 2 ? GuardedEnd::How::overran : GuardedEnd::How::answered) << number;
}

// The address sanitizer takes whole terabytes of address space, so that there is nothing to bound there.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(GuardedRun, memory_ends_where_the_limit_is)
{
  GuardedLimits limits = limits_of(1, 60);
  limits.bytes = std::size_t(1) << 30;
  auto const ends = run(2, limits,
    [](std::size_t number)
    {
      // Volatile, for a compiler may leave out an allocation of which nothing else is seen, and count it as made.
      void* volatile const memory = std::malloc(number == 0 ? std::size_t(1) << 20 : std::size_t(1) << 31);
      std::string const answer = memory != nullptr ? "enough" : "none";
      std::free(memory);
      return answer;
    });
  EXPECT_EQ(ends.at(0).text, "enough");
  EXPECT_EQ(ends.at(1).text, "none");
}
#endif
