#include "utUnitTestJunit.h"

#include "utUtf8.h"
#include "utXmlCharacter.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{
// How many bytes at the start of `text` are one character of XML; 0 if they are none.
std::size_t character_length(std::string_view text)
{
  utCodePoint const found = utUtf8::decode(text.data(), text.data() + text.size());
  return found.is_valid() && utXmlCharacter::is_character(found.code) ? found.length : 0;
}

char const* escaped(char c)
{
  switch (c)
  {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return "&gt;";
  case '"':
    return "&quot;";
  case '\n':
    return "&#10;";
  case '\r':
    return "&#13;";
  case '\t':
    return "&#9;";
  default:
    return nullptr;
  }
}

// As the value of an attribute, which may stand between tags too.
std::string as_xml(std::string_view text)
{
  std::string result;
  while (!text.empty())
  {
    std::size_t const length = character_length(text);
    char const* const escape = escaped(text[0]);
    if (length == 0)
      result += "\xEF\xBF\xBD";
    else if (escape != nullptr)
      result += escape;
    else
      result += text.substr(0, length);
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

struct Suite
{
  std::string name;
  std::string cases;
  long tests;
  long failures;
};

std::string attribute(char const* name, std::string_view value)
{
  return std::string(" ") + name + "=\"" + as_xml(value) + '"';
}
}

struct utUnitTestJunit::Suites
{
  Suite& of(std::string_view name)
  {
    for (Suite& suite : all)
      if (suite.name == name)
        return suite;
    all.push_back({std::string(name), "", 0, 0});
    return all.back();
  }

  std::vector<Suite> all;
  // Diagnostic text that waits for its check.
  std::string printed;
};

utUnitTestJunit::utUnitTestJunit(std::FILE* given) : out(given), suites(std::make_unique<Suites>()) {}

utUnitTestJunit::~utUnitTestJunit() = default;

void utUnitTestJunit::reported(utUnitTestReport const& report)
{
  std::string const printed = std::exchange(suites->printed, std::string());
  std::string_view const function = report.function;
  std::size_t const separator = function.find("::");
  std::string_view const group = separator == std::string_view::npos ? function : function.substr(separator + 2);
  Suite& suite = suites->of(function.substr(0, separator));
  ++suite.tests;
  suite.cases += "    <testcase" + attribute("classname", function) +
                 attribute("name", std::string(group) + ": " + report.description);
  if (report.passed)
  {
    suite.cases += "/>\n";
    return;
  }
  ++suite.failures;
  std::string const place = std::string(report.file) + ':' + std::to_string(report.line) + '\n';
  suite.cases +=
    ">\n      <failure" + attribute("message", report.expression) + '>' + as_xml(place + printed) + "</failure>\n";
  suite.cases += "    </testcase>\n";
}

void utUnitTestJunit::printed(char const* text)
{
  if (!suites->printed.empty() && suites->printed.back() != '\n')
    suites->printed += '\n';
  suites->printed += text;
}

void utUnitTestJunit::finished()
{
  std::fputs("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites>\n", out);
  for (Suite const& suite : suites->all)
    std::fprintf(out, "  <testsuite%s tests=\"%ld\" failures=\"%ld\" errors=\"0\">\n%s  </testsuite>\n",
      attribute("name", suite.name).c_str(), suite.tests, suite.failures, suite.cases.c_str());
  std::fputs("</testsuites>\n", out);
  std::fflush(out);
}
