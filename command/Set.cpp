#include "Loading.h"
#include "Verb.h"

#include <axmElement.h>
#include <axmNodeList.h>

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace
{
char const description[] = "Set attributes of the elements that an XPath expression selects, and save the document.";

char const footer[] =
  R"(Examples:
  axm set books.xml "//book[@id='b1']" price=9.50 currency=EUR
  axm set books.xml //book checked=true --output checked.xml

The document is saved in UTF-8, without the white space between its elements, whole or not
at all: in the place of FILE, or to --output.

The exit code is 1 if the document cannot be read or saved, or nothing is selected, 2 for
wrong usage.)";

struct Request
{
  std::string file;
  std::string xpath;
  std::vector<std::string> settings;
  std::string output;
};

std::string wrong_setting(std::string const& setting)
{
  std::size_t const sign = setting.find('=');
  return sign == 0 || sign == std::string::npos ? setting + " is not of the form NAME=VALUE" : std::string();
}

int complain(std::string const& about, std::string const& message)
{
  std::cerr << "axm: " << about << ": " << message << '\n';
  return exit_bad_input;
}

// The first name that the element does not take; empty if it takes all.
std::string apply(axmElement& element, std::vector<std::string> const& settings)
{
  for (std::string const& setting : settings)
  {
    std::size_t const sign = setting.find('=');
    std::string const name = setting.substr(0, sign);
    apString const wide_name(name.c_str());
    element.setAttribute(wide_name, apString(setting.substr(sign + 1).c_str()));
    if (!element.hasAttribute(wide_name))
      return name;
  }
  return std::string();
}

int set(Request const& request)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine_or_complain();
  if (factory == nullptr)
    return exit_bad_input;
  std::shared_ptr<axmDocument> const document =
    load_or_complain(*factory, request.file, axmLoadOptions(axmValidateNone));
  if (document == nullptr)
    return exit_bad_input;

  auto const found = document->getDocumentElement()->selectNodes(apString(request.xpath.c_str()));
  if (found->isEmpty())
    return complain(request.xpath, "selects nothing");
  while (std::shared_ptr<axmElement> const element = found->next_node())
  {
    std::string const refused = apply(*element, request.settings);
    if (!refused.empty())
      return complain(request.xpath, "a selected node takes no attribute " + refused);
  }

  std::string const& output = request.output.empty() ? request.file : request.output;
  return factory->saveDocument(document, apPath(output.c_str())) ? exit_good : complain(output, "cannot be saved");
}
}

void add_set(CLI::App& app, int& exit_code)
{
  CLI::App* const verb = app.add_subcommand("set", description);
  auto const request = std::make_shared<Request>();
  verb->add_option("FILE", request->file, "The document")->required();
  verb->add_option("XPATH", request->xpath, "The elements")->required();
  verb->add_option("NAME=VALUE", request->settings, "The attributes to set")->required()->check(wrong_setting);
  verb->add_option("--output", request->output, "The file to save to; FILE without it");
  verb->footer(footer);
  verb->callback([request, &exit_code] { exit_code = set(*request); });
}
