#include "utUnitTestConsole.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

struct utUnitTestConsole::Held
{
  std::string text;
};

utUnitTestConsole::utUnitTestConsole(std::FILE* given) : out(given), held(std::make_unique<Held>()) {}

utUnitTestConsole::~utUnitTestConsole() = default;

void utUnitTestConsole::reported(utUnitTestReport const& report)
{
  counter.reported(report);
  if (report.passed)
    write_held("");
  else
    write_failure(report);
  std::fflush(out);
}

void utUnitTestConsole::printed(char const* text)
{
  if (!held->text.empty() && held->text.back() != '\n')
    held->text += '\n';
  held->text += text;
}

void utUnitTestConsole::finished()
{
  write_held("");
  for (int index = 0; index < counter.size(); ++index)
  {
    char const* const name = counter.name(index);
    utUnitTestCounter::Count const count = counter.of(name);
    bool const is_group = std::strstr(name, "::") != nullptr;
    if (!is_group)
      std::fprintf(out, "%s: %ld passed, %ld failed\n", name, count.passed, count.failed);
    else if (count.failed > 0)
      std::fprintf(out, "  %s: %ld failed\n", name, count.failed);
  }
  std::fprintf(out, "%ld passed, %ld failed\n", counter.total().passed, counter.total().failed);
  std::fflush(out);
}

void utUnitTestConsole::write_failure(utUnitTestReport const& report)
{
  std::fprintf(out, "FAILED %s: %s\n  %s\n  at %s:%d\n", report.function, report.description, report.expression,
    report.file, report.line);
  write_held("  ");
}

void utUnitTestConsole::write_held(char const* indent)
{
  std::string const text = std::move(held->text);
  held->text.clear();
  for (std::size_t start = 0; start < text.size();)
  {
    std::size_t const end = std::min(text.find('\n', start), text.size());
    std::fprintf(out, "%s%s\n", indent, text.substr(start, end - start).c_str());
    start = end + 1;
  }
}
