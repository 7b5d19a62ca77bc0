#include "BuiltInEngine.h"
#include "Complaint.h"
#include "Loading.h"
#include "OutputFile.h"

#include <axmElement.h>
#include <axmNodeList.h>

#include <CLI/CLI.hpp>

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
  if (sign == 0 || sign == std::string::npos)
    return setting + " is not of the form NAME=VALUE";
  // What is not would be saved as something else.
  bool const is_utf8 = apString(setting.c_str()).to_utf8() == utString(setting.c_str());
  return is_utf8 ? std::string() : setting + " is not UTF-8";
}

// The first name that the element does not take; empty if it takes all.
std::string apply(axmElement& element, std::vector<std::string> const& settings)
{
  for (std::string const& setting : settings)
  {
    std::size_t const sign = setting.find('=');
    std::string name = setting.substr(0, sign);
    apString const wide_name(name.c_str());
    element.setAttribute(wide_name, apString(setting.substr(sign + 1).c_str()));
    if (!element.hasAttribute(wide_name))
      return name;
  }
  return std::string();
}

// For an expression that selects no nodes.
int complain_of_nothing(axmElement& root, std::string const& xpath)
{
  XPathAnswer const answer = built_in_answer(root, xpath);
  if (!answer.fault.empty())
    return complain(xpath, answer.fault, exit_usage);
  if (answer.value)
    return complain(xpath, "gives a value and no nodes", exit_usage);
  return complain(xpath, "selects nothing", exit_bad_input);
}

bool write_to_standard_output(apByteArray const& bytes)
{
  OutputFile output{std::string()};
  output.write({bytes.data(), bytes.size()});
  return output.finish();
}

int save(axmDocumentFactory& factory, std::shared_ptr<axmDocument> const& document, std::string const& output)
{
  bool const is_file = output != "-";
  if (is_file && factory.saveDocument(document, apPath(output.c_str())))
    return exit_good;
  // Whether it is the document or the file shows where no file is needed.
  apByteArray bytes;
  bool const can_be_saved = factory.saveDocument(document, bytes);
  if (!is_file && can_be_saved && write_to_standard_output(bytes))
    return exit_good;
  return complain(is_file ? output : "standard output",
    can_be_saved ? "cannot be written" : "not saved: " + built_in_obstacle(*document), exit_bad_input);
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

  std::shared_ptr<axmElement> const root = document->getDocumentElement();
  std::shared_ptr<axmNodeList> const found = root->selectNodes(apString(request.xpath.c_str()));
  if (found->isEmpty())
    return complain_of_nothing(*root, request.xpath);
  while (std::shared_ptr<axmElement> const element = found->next_node())
  {
    std::string const refused = apply(*element, request.settings);
    if (!refused.empty())
      return complain(request.xpath, "a selected node takes no attribute " + refused, exit_bad_input);
  }
  return save(*factory, document, request.output.empty() ? request.file : request.output);
}
}

void add_set(CLI::App& app, int& exit_code)
{
  CLI::App* const verb = app.add_subcommand("set", description);
  auto const request = std::make_shared<Request>();
  verb->add_option("FILE", request->file, "The document")->required();
  verb->add_option("XPATH", request->xpath, "The elements")->required();
  verb->add_option("NAME=VALUE", request->settings, "The attributes to set")->required()->check(wrong_setting);
  verb->add_option("--output", request->output, "The file to save to, - for standard output; FILE without it")
    ->check(OutputFile::wrong_name);
  verb->footer(footer);
  verb->callback([request, &exit_code] { exit_code = set(*request); });
}
