// The command's verbs that read documents and write to standard output or to a file, while the system fails them one call
// at a time: what is written is what is written without a fault, or the exit code and a message say that it is not.

#include "FaultSubject.h"
#include "FaultyRun.h"

#include <unistd.h>

#include <functional>

namespace
{
std::string const record = "<book id='1'><title>one</title><price>1.5</price></book>";

struct VerbRun
{
  char const* name;
  std::function<std::vector<std::string>(std::string const& file)> arguments;
};

VerbRun const verbs[] = {
  {"check",
    [](auto const& file) {
      return std::vector<std::string>{"check", file};
    }},
  {"select",
    [](auto const& file) {
      return std::vector<std::string>{"select", file, "//title"};
    }},
  {"table",
    [](auto const& file) {
      return std::vector<std::string>{"table", file, "books/book", "@id", "price"};
    }},
  {"simple_table",
    [](auto const& file) {
      return std::vector<std::string>{"table", file, "books/book", "@id", "price", "--reader", "simple"};
    }},
  {"format",
    [](auto const& file) {
      return std::vector<std::string>{"format", file};
    }},
  {"canon",
    [](auto const& file) {
      return std::vector<std::string>{"canon", file};
    }},
  {"convert",
    [](auto const& file) {
      return std::vector<std::string>{"convert", file};
    }},
  {"outline",
    [](auto const& file) {
      return std::vector<std::string>{"outline", file};
    }},
  {"split",
    [](auto const& file) {
      return std::vector<std::string>{"split", file, "books/book", "--parts", "2"};
    }},
};

class ReadingVerbs : public FaultTest
{
protected:
  FaultyRun run(VerbRun const& verb, std::string const& fault, std::string const& file) const
  {
    std::vector<std::string> arguments = verb.arguments(file);
    arguments.insert(arguments.begin(), AXM_PROGRAM);
    return run_with_fault(arguments, fault, GetParam().locale, file);
  }
};
}

TEST_P(ReadingVerbs, write_what_there_is_or_say_that_they_do_not)
{
  std::string text = "<?xml version=\"1.0\"?>\n<books>";
  for (int i = 0; i < 2000; ++i)
    text += record + "\n";
  put("a.xml", text + "</books>\n");
  for (VerbRun const& verb : verbs)
  {
    FaultyRun const whole = run(verb, "none 0 none", path("a.xml"));
    ASSERT_EQ(whole.exit_code, 0) << verb.name << whole.messages;
    ASSERT_TRUE(whole.messages.empty()) << verb.name << whole.messages;
    for (char const* const call : {"open", "fopen", "read", "fread", "write", "fwrite", "fflush", "fclose"})
      for (char const* const fault : {"EIO", "short"})
        for (int number = 1; number < 30; ++number)
        {
          std::string const all = std::string(call) + " " + std::to_string(number) + " " + fault;
          SCOPED_TRACE(std::string(verb.name) + ": " + all);
          FaultyRun const done = run(verb, all, path("a.xml"));
          if (!done.was_met)
            break;
          EXPECT_TRUE(done.exit_code == 0 ? done.output == whole.output && done.messages.empty()
                                          : done.exit_code == 1 && !done.messages.empty())
            << done.exit_code << ' ' << done.messages;
        }
    if (HasFailure())
      return;
  }
}

TEST_P(ReadingVerbs, tell_of_a_file_that_is_cut_off_while_they_read_it)
{
  std::string text = "<?xml version=\"1.0\"?>\n<books>";
  for (int i = 0; i < 20000; ++i)
    text += record + "\n";
  text += "</books>\n";
  for (VerbRun const& verb : verbs)
  {
    put("a.xml", text);
    FaultyRun const whole = run(verb, "none 0 none", path("a.xml"));
    int told = 0;
    for (int number = 1; number < 100; ++number)
    {
      put("a.xml", text);
      FaultyRun const done = run(verb, "any " + std::to_string(number) + " shrink", path("a.xml"));
      if (!done.was_met)
        break;
      SCOPED_TRACE(std::string(verb.name) + ": " + std::to_string(number));
      told += done.exit_code == 1 ? 1 : 0;
      EXPECT_TRUE(done.exit_code == 0 ? done.output == whole.output : done.exit_code == 1 && !done.messages.empty())
        << done.exit_code << ' ' << done.messages;
    }
    EXPECT_GT(told, 0) << verb.name;
  }
}

INSTANTIATE_TEST_SUITE_P(all, ReadingVerbs,
  testing::Values(FaultSubject{"Command", "C"}, FaultSubject{"Command", "de_DE.UTF-8"}), name_of_subject);
