#include "Complaint.h"
#include "EditVerb.h"
#include "VerbOptions.h"

#include <apString.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
char const description[] = "Set attributes or values of what an XPath expression selects, and nothing else.";

char const footer[] =
  R"(Examples:
  axm set books.xml "//book[@id='b1']" price=9.50 currency=EUR
  axm set books.xml //book checked=true --output checked.xml
  axm set *.xml /project/version --value 1.5
  axm set pom.xml //m:version --ns m=http://maven.apache.org/POM/4.0.0 --value 2.0
  curl -s https://example.org/feed | axm set - //@lang --value en

NAME=VALUE sets attributes of elements, --value the values of attributes and the text of
elements with nothing else in them. Every other byte of the document stays as it is. A new
attribute stands after the others, with the quotes and white space of the last one.

Each document is saved whole or not at all: in the place of FILE, compressed as it was, or to
--output; what comes from standard input goes to standard output. What would not be
well-formed is not saved. The expression is XPath 1.0, seen from the root element, over the
document with all its white space.

The exit code is 1 if a document cannot be read or saved, or nothing is selected in any, 2
for wrong usage.)";

// An expression has more before the sign than what may be taken for a name.
bool is_setting(std::string const& argument)
{
  std::size_t const sign = argument.find('=');
  return sign != std::string::npos && sign > 0 && argument.find_first_of("/[]()@*|'\" \t\n<>!+,$") >= sign;
}

axsAttributeSetting setting_of(std::string const& argument)
{
  std::size_t const sign = argument.find('=');
  return {argument.substr(0, sign), argument.substr(sign + 1)};
}

bool is_utf8(std::string const& text)
{
  return apString(text.c_str()).to_utf8() == utString(text.c_str());
}

struct Request
{
  EditVerb common;
  std::string value;
};

int set(Request& request, bool has_value)
{
  std::vector<axsAttributeSetting> settings;
  EditVerb& common = request.common;
  while (!has_value && !common.arguments.empty() && is_setting(common.arguments.back()))
  {
    if (!is_utf8(common.arguments.back()))
      return complain(common.arguments.back(), "is not UTF-8", exit_usage);
    settings.insert(settings.begin(), setting_of(common.arguments.back()));
    common.arguments.pop_back();
  }
  std::string const xpath = common.take_last();
  if (xpath.empty())
    return complain("set", "XPATH is required", exit_usage);
  if (settings.empty() && !has_value)
    return complain("set", "NAME=VALUE or --value is required", exit_usage);
  if (!is_utf8(request.value))
    return complain(request.value, "is not UTF-8", exit_usage);
  return common.run(xpath, [&](axsEditor& editor)
    { return has_value ? editor.set_value(xpath, request.value) : editor.set_attributes(xpath, settings); });
}
}

void add_set(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "set", description, footer);
  auto const request = std::make_shared<Request>();
  request->common.add_to(verb, {{"XPATH", "What to set"}, {"NAME=VALUE", "The attributes to set; any number of them"}});
  VerbOption const value = verb.add("--value", request->value, "The value to set").value_name("TEXT");
  verb.run([request, value, &exit_code] { exit_code = set(*request, value.is_given()); });
}
