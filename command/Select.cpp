#include "BuiltInEngine.h"
#include "Colours.h"
#include "CommonOptions.h"
#include "Complaint.h"
#include "FileJobs.h"
#include "Loading.h"
#include "NamespaceHint.h"
#include "Namespaces.h"
#include "RowFormat.h"
#include "VerbOptions.h"

#include <axmElement.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace
{
char const description[] = "Write what an XPath expression selects from documents, a line for each node.";

char const footer[] =
  R"(Examples:
  axm select books.xml //book/title
  axm select books.xml //book --attribute id
  axm select books.xml "//book[@id='b1']" --xml
  axm select feed.xml //a:entry/a:title --ns a=http://www.w3.org/2005/Atom
  axm select *.xml "//item[not(@id)]" --with-filename --line-number
  axm select *.xml //item --format count -H

The expression, the last of the arguments, is XPath 1.0, seen from the root element. Of one
that is no path, as in count(//book), the value is written. Prefixes in it are those of --ns
and those that the root element binds; a name without a prefix is one in no namespace.
White space between elements is not part of the document as it is loaded.

text (the default) writes the text of each node, xml the node as XML, count how many nodes
there are in each file. csv (RFC 4180) and jsonl write rows: the file and the line, where
these are asked for, and the text; jsonl the name of the node, too.

The exit code is 1 if a document cannot be read or nothing is selected in any, 2 for wrong
usage, such as an expression that is none.)";

struct Request
{
  std::vector<std::string> files;
  std::string xpath;
  std::vector<std::string> spaces;
  Namespaces namespaces;
  std::string format = "text";
  std::string attribute;
  std::string colour = "auto";
  bool as_text = false;
  bool as_xml = false;
  bool with_filename = false;
  bool with_line = false;
  unsigned jobs = 1;

  bool has_rows() const { return format == "csv" || format == "jsonl"; }
};

std::string utf8(apString const& text)
{
  return std::string(text.to_utf8().view());
}

// Writes what was found in one file.
class Found
{
public:
  Found(Request const& asked, std::string const& file, JobOutput& target)
    : request(asked),
      name(shown_name(file)),
      output(target),
      colours(asked.colour)
  {
  }

  void write_value(std::string const& value) { write(value, nullptr, 0); }

  // Whether there was something to write.
  bool write_node(axmNode const& node, int line);

  void write_count(std::size_t count) { write(std::to_string(count), nullptr, 0); }

private:
  void write(std::string const& text, axmNode const* node, int line);
  void write_line(std::string const& text, int line);
  void write_row(std::string const& text, axmNode const* node, int line);

  Request const& request;
  std::string const name;
  JobOutput& output;
  Colours const colours;
};

bool Found::write_node(axmNode const& node, int line)
{
  apString text;
  if (request.attribute.empty())
    text = request.format == "xml" ? node.get_xml() : node.get_text();
  else if (!node.get_attribute(apString(request.attribute.c_str()), text))
    return false;
  write(utf8(text), &node, line);
  return true;
}

void Found::write(std::string const& text, axmNode const* node, int line)
{
  if (request.has_rows())
    write_row(text, node, line);
  else
    write_line(text, line);
}

void Found::write_line(std::string const& text, int line)
{
  std::string all;
  if (request.with_filename)
    all += colours.in(Colours::magenta, name) + colours.in(Colours::cyan, ":");
  if (line > 0)
    all += colours.in(Colours::green, std::to_string(line)) + colours.in(Colours::cyan, ":");
  output.write(all + text + "\n");
}

void Found::write_row(std::string const& text, axmNode const* node, int line)
{
  std::string const number = std::to_string(line);
  std::string node_name;
  std::vector<std::string> columns;
  std::vector<Value> values;
  auto const add = [&](char const* column, std::string const& value)
  {
    columns.emplace_back(column);
    values.emplace_back(value);
  };
  if (request.with_filename)
    add("file", name);
  if (request.with_line)
    add("line", number);
  if (request.format == "jsonl" && node != nullptr)
  {
    node_name = utf8(node->getNodeName());
    add("name", node_name);
  }
  add("value", text);
  std::string row;
  RowFormat::of(request.format)->append_row(row, columns, values);
  output.write(row);
}

// The code for a file in which nothing is selected, about which the others may have to say something.
int const nothing_found = -1;

// Why nothing is selected in the first file. Files may be worked on in several threads.
class Reason
{
public:
  void set(std::string const& text)
  {
    std::lock_guard<std::mutex> const lock(mutex);
    reason = text;
  }

  std::string const& text() const { return reason; }

private:
  std::mutex mutex;
  std::string reason;
};

bool write_nodes(XPathAnswer const& answer, std::vector<int> const& lines, Found& found)
{
  bool is_written = false;
  for (std::size_t i = 0; i < answer.nodes.size(); ++i)
    is_written = found.write_node(*answer.nodes[i], lines.empty() ? 0 : lines[i]) || is_written;
  return is_written;
}

int write_value(std::string const& value, Request const& request, Found& found)
{
  if (request.format == "xml" || request.format == "count" || !request.attribute.empty())
    return complain(request.xpath, "gives a value and no nodes", exit_usage);
  found.write_value(value);
  return exit_good;
}

std::shared_ptr<axmDocument> load(
  std::string const& file, Request const& request, axmDocumentFactory const& factory, apByteArray& bytes)
{
  axmLoadOptions const options(axmValidateNone);
  if (!request.with_line)
    return load_or_complain(factory, file, options);
  return read_or_complain(file, bytes) ? load_or_complain(factory, file, bytes, options) : nullptr;
}

int select_in(std::string const& file, Request const& request, Reason& reason, JobOutput& output)
{
  std::shared_ptr<axmDocumentFactory> const factory = built_in_engine();
  apByteArray bytes;
  std::shared_ptr<axmDocument> const document = load(file, request, *factory, bytes);
  if (document == nullptr)
    return exit_bad_input;
  std::shared_ptr<axmElement> const root = document->getDocumentElement();
  XPathAnswer const answer = built_in_answer(*root, request.xpath, request.namespaces);
  if (!answer.fault.empty())
    return complain(request.xpath, answer.fault, exit_usage);

  Found found(request, file, output);
  if (answer.value)
    return write_value(*answer.value, request, found);
  if (request.format == "count")
    found.write_count(answer.nodes.size());
  else
  {
    std::vector<int> const lines =
      request.with_line ? built_in_lines(*document, bytes, answer.nodes) : std::vector<int>();
    if (write_nodes(answer, lines, found))
      return exit_good;
  }
  if (!answer.nodes.empty() && request.format == "count")
    return exit_good;
  if (file == request.files.front())
    reason.set(answer.nodes.empty() ? "selects nothing" + NamespaceHint::of(*root, request.xpath)
                                    : "no selected node has the attribute " + request.attribute);
  return nothing_found;
}

// Whatever cannot be read is a failure; otherwise one file with something in it is enough.
int result_of(std::vector<int> const& codes, Request const& request, Reason const& reason)
{
  int const worst = FileJobs::worst(codes);
  bool const is_found = std::find(codes.begin(), codes.end(), exit_good) != codes.end();
  if (worst > exit_good || is_found)
    return worst;
  return complain(request.xpath, reason.text(), exit_bad_input);
}

int select(Request const& request)
{
  if (engine_or_complain() == nullptr)
    return exit_bad_input;
  OutputFile output{std::string()};
  Reason reason;
  auto const work = [&](std::string const& file, JobOutput& job) { return select_in(file, request, reason, job); };
  std::vector<int> const codes = FileJobs(request.jobs).run(request.files, output, work);
  int const result = result_of(codes, request, reason);
  return output.finish() ? result : complain("standard output", output.fault(), exit_bad_input);
}

// The last of the arguments is the expression: with the files before it, patterns of the shell can name them.
std::string take_expression(Request& request)
{
  if (request.files.size() < 2)
    return "XPATH is required";
  request.xpath = request.files.back();
  request.files.pop_back();
  request.namespaces = namespaces_of(request.spaces);
  if (request.as_xml)
    request.format = "xml";
  return std::string();
}
}

void add_select(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "select", description, footer);
  auto const request = std::make_shared<Request>();
  CommonOptions::add_files(verb, request->files);
  verb.add_filled_by_verb("XPATH", "What to select");
  VerbOption const format =
    verb.add("--format", request->format, "How to write it: text (the default), xml, csv, jsonl or count")
      .one_of({"text", "xml", "csv", "jsonl", "count"});
  VerbOption const text = verb.add_flag("--text", request->as_text, "The same as --format text");
  VerbOption const xml = verb.add_flag("--xml", request->as_xml, "The same as --format xml");
  VerbOption const attribute =
    verb.add("--attribute", request->attribute, "Write the attribute NAME of each node that has it").value_name("NAME");
  text.excludes(xml).excludes(attribute).excludes(format);
  xml.excludes(attribute).excludes(format);
  CommonOptions::add_namespaces(verb, request->spaces);
  verb.add_flag("-H,--with-filename", request->with_filename, "Write the name of the file before each line");
  verb.add_flag("-n,--line-number", request->with_line, "Write the line in which each node begins");
  CommonOptions::add_colour(verb, request->colour);
  CommonOptions::add_jobs(verb, request->jobs);
  verb.run(
    [request, &exit_code]
    {
      std::string const wrong = take_expression(*request);
      exit_code = wrong.empty() ? select(*request) : complain("select", wrong, exit_usage);
    });
}
