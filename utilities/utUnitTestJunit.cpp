#include <utUnitTestJunit.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{
bool is_continuation(char byte)
{
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

struct Sequence
{
  std::size_t length;
  unsigned lead_bits;
  unsigned smallest;
};

Sequence sequence_of(unsigned lead)
{
  if (lead < 0x80U)
    return {1, lead, 0};
  if (lead >= 0xC2U && lead < 0xE0U)
    return {2, lead & 0x1FU, 0x80U};
  if (lead >= 0xE0U && lead < 0xF0U)
    return {3, lead & 0x0FU, 0x800U};
  if (lead >= 0xF0U && lead < 0xF5U)
    return {4, lead & 0x07U, 0x10000U};
  return {0, 0, 0};
}

// XML 1.0, 2.2, [2] Char.
bool is_xml_character(unsigned code)
{
  if (code < 0x20U)
    return code == '\t' || code == '\n' || code == '\r';
  return code <= 0xD7FFU || (code >= 0xE000U && code <= 0xFFFDU) || (code >= 0x10000U && code <= 0x10FFFFU);
}

// How many bytes at the start of `text` are one character of XML in UTF-8; 0 if they are none.
std::size_t character_length(std::string_view text)
{
  Sequence const sequence = sequence_of(static_cast<unsigned char>(text[0]));
  if (sequence.length == 0 || sequence.length > text.size())
    return 0;
  unsigned code = sequence.lead_bits;
  for (std::size_t index = 1; index < sequence.length; ++index)
  {
    if (!is_continuation(text[index]))
      return 0;
    code = code << 6U | (static_cast<unsigned char>(text[index]) & 0x3FU);
  }
  return code >= sequence.smallest && is_xml_character(code) ? sequence.length : 0;
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
