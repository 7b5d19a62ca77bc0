#include "CommonOptions.h"
#include "Complaint.h"
#include "Loading.h"
#include "MemoryStream.h"
#include "OutputFile.h"
#include "VerbOptions.h"
#include "XmlFromJson.h"

#include <axsJsonText.h>

#include <memory>
#include <string>
#include <string_view>

namespace
{
char const description[] = "Convert a document to JSON, and such JSON back.";

char const footer[] =
  R"(Examples:
  axm convert books.xml
  axm convert books.xml --indent 0 | jq -r .catalog.book[].title
  axm convert books.json --output books.xml
  axm convert books.json | axm format -

The document is an object with the root element as its one member. An element without
attributes and content is null, one with a text alone that text; any other one is an object
  "@name"     for each attribute, declarations of namespaces included, and then
  "#text"     for a text that is alone, or
  "name"      for each child or, of several with one name, an array of them; or
  "#content"  where the order would be lost or there is other content beside elements: an
              array of texts and objects with one member, which are elements, "#comment" or
              "#instruction". So is a document with more than its root element, where there
              may be a "#doctype", too.

All values are texts. White space between elements where no other text is beside them is
left out. JSON is converted only if no part of it is lost: the XML that is written gives the
same JSON again. So what a document says survives the way there and back; CDATA sections,
references and the XML declaration do not.

What the input is shows in its first character, or --to says what it becomes.

The exit code is 1 if the input cannot be read or converted, 2 for wrong usage.)";

struct Request
{
  std::string file;
  std::string to;
  std::string output;
  unsigned indent = 2;
};

bool is_json(apByteArray const& bytes)
{
  std::string_view const text(bytes.data(), bytes.size());
  std::size_t const first = text.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && text[first] == '{';
}

int finish(OutputFile& output, Request const& request)
{
  if (output.finish())
    return exit_good;
  return complain(request.output.empty() ? "standard output" : request.output, output.fault(), exit_bad_input);
}

int to_json(Request const& request, apByteArray const& bytes)
{
  OutputFile output(request.output);
  auto const write = [&](std::string_view piece)
  {
    output.write(piece);
    return output.good();
  };
  axmParseError error;
  MemoryStream input({bytes.data(), bytes.size()});
  if (axsJsonText::convert(input, request.indent, error, write))
    return finish(output, request);
  complain_in_one_line(error, shown_name(request.file), {});
  return exit_bad_input;
}

int to_xml(Request const& request, apByteArray const& bytes)
{
  std::string xml;
  std::string const wrong = XmlFromJson::convert({bytes.data(), bytes.size()}, xml);
  if (!wrong.empty())
    return complain(shown_name(request.file), wrong, exit_bad_input);
  OutputFile output(request.output);
  output.write(xml);
  return finish(output, request);
}

int convert(Request const& request)
{
  apByteArray bytes;
  if (!read_or_complain(request.file, bytes))
    return exit_bad_input;
  bool const is_to_xml = request.to.empty() ? is_json(bytes) : request.to == "xml";
  return is_to_xml ? to_xml(request, bytes) : to_json(request, bytes);
}
}

void add_convert(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "convert", description, footer);
  auto const request = std::make_shared<Request>();
  verb.add("FILE", request->file, "The document, or the JSON; - is standard input").value_name("FILE").required();
  verb.add("--to", request->to, "What it becomes: json or xml").one_of({"json", "xml"});
  verb.add("--indent", request->indent, "How many blanks a level of JSON is indented by (2 without it); 0 for one line")
    .value_name("N")
    .in_range(0, 100);
  CommonOptions::add_output(verb, request->output);
  verb.run([request, &exit_code] { exit_code = convert(*request); });
}
