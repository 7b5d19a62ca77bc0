#include "KnownExceptions.h"

#include <apProcessControl.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace
{
KnownExceptions read(std::string const& text)
{
  std::string const file = "known_exceptions_" + std::to_string(apProcessControl::getpid()) + ".tsv";
  std::ofstream(file, std::ios::binary) << text;
  KnownExceptions exceptions;
  try
  {
    exceptions = read_known_exceptions(file);
  }
  catch (...)
  {
    std::remove(file.c_str());
    throw;
  }
  std::remove(file.c_str());
  return exceptions;
}
}

TEST(KnownExceptions, each_test_has_its_reason)
{
  KnownExceptions const expected{{"a-1", "why not"}, {"a-2", "why not"}, {"b", "since\r inside"}};
  EXPECT_EQ(
    read("# comment\n\nreason\tx\twhy not\r\nreason\ty\tsince\r inside\ntest\ta-1\tx\ntest\ta-2\tx\ntest\tb\ty"),
    expected);
  EXPECT_TRUE(read("").empty());
}

TEST(KnownExceptions, lists_that_are_not_whole_are_refused)
{
  EXPECT_THROW(read_known_exceptions("no_such_list.tsv"), std::runtime_error);
  EXPECT_THROW(read("test\ta\tx\n"), std::runtime_error);
  EXPECT_THROW(read("reason\tx\twhy\n"), std::runtime_error);
  EXPECT_THROW(read("reason\tx\twhy\nreason\tx\twhy\ntest\ta\tx\n"), std::runtime_error);
  EXPECT_THROW(read("reason\tx\twhy\ntest\ta\tx\ntest\ta\tx\n"), std::runtime_error);
  EXPECT_THROW(read("reason\tx\twhy\ntest\ta\n"), std::runtime_error);
  EXPECT_THROW(read("reason\tx\twhy\tmore\ntest\ta\tx\n"), std::runtime_error);
  EXPECT_THROW(read("reason\tx\twhy\nexample\ta\tx\n"), std::runtime_error);
}
