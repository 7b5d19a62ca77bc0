#include "Columns.h"
#include "Complaint.h"
#include "OutputFile.h"
#include "Progress.h"
#include "RowFormat.h"

#include <axmSimpleXmlFactory.h>

#include <CLI/CLI.hpp>

#include <cstdio>
#include <memory>
#include <sstream>

namespace
{
char const description[] =
  "Write one row for each record of a document, from its attributes and the text of its children.";

char const footer[] =
  R"(Columns:
  @name     an attribute of the record
  name      the text of its first child of that name
  a/b a/@b  the same, further down
  .         the text of the record itself

Examples:
  axm table map.osm osm/node @id @lat @lon
  axm table books.xml catalog/book @id title author/name --format jsonl --output books.jsonl

Values are written as they stand in the document: entities such as &amp; stay. Names match
by their beginning, and an element that closes itself (<a/>) is read as if what follows it
were its content: give attributes of such elements only. csv is RFC 4180 with CR LF; tsv
writes TAB, LF, CR and backslash in a value as \t, \n, \r and \\; jsonl has null where the
record has no such value.

The exit code is 1 when the document cannot be read to its end: the rows up to there are
written, and the message says how many.)";

struct Request
{
  std::string file;
  std::string path;
  std::vector<std::string> columns;
  std::string format = "csv";
  std::string output;
  bool header = false;
};

std::unique_ptr<RowFormat> make_format(std::string const& name)
{
  if (name == "tsv")
    return std::make_unique<TsvFormat>();
  if (name == "jsonl")
    return std::make_unique<JsonLinesFormat>();
  return std::make_unique<CsvFormat>();
}

// What the reader has to say, in one line.
std::string errors_of(axmAbstractXmlReader const& reader)
{
  std::ostringstream out;
  reader.dump_error(out);
  std::string text = out.str();
  while (!text.empty() && text.back() == '\n')
    text.pop_back();
  // For most characters that a document must have, the reader's own text is empty.
  return text.empty() ? "a character that must be there is missing" : text;
}

// By a look at the beginning, where it stands if there is one.
bool has_document_type(std::string const& file)
{
  std::FILE* const stream = apPath(file.c_str()).file_open(apPath::read_mode());
  if (stream == nullptr)
    return false;
  std::string head(64 * 1024, '\0');
  head.resize(std::fread(head.data(), 1, head.size(), stream));
  std::fclose(stream);
  return head.find("<!DOCTYPE") != std::string::npos;
}

std::string why_not_read(axmAbstractXmlReader& reader)
{
  if (reader.has_error_occurred())
    return "no XML declaration with a version stands at the very beginning, byte-order mark included (" +
           errors_of(reader) + ")";
  if (reader.encoding().case_compare(ut_lit("utf-16")) == 0)
    return "is in UTF-16, which this reader does not read";
  return "cannot be read";
}

// The walk over the records of one document.
class Rows
{
public:
  Rows(axmAbstractXmlReader& walked, Request const& request, OutputFile& written)
    : reader(walked),
      names(request.columns),
      columns(request.columns),
      format(make_format(request.format)),
      output(written)
  {
    for (std::string const& name : split_path(request.path))
      path.emplace_back(name.c_str());
    if (request.header)
      output.write(format->header(names));
  }

  long long write()
  {
    // The outermost element is entered once: left, it would be found again.
    if (reader.down_to(path.front()))
      visit(1);
    return count;
  }

private:
  // In an element `depth` names down the path; the depth is that of the path, not that of the document.
  void visit(std::size_t depth)
  {
    if (depth == path.size())
      return write_record();
    for (; reader.down_to(path[depth]) && output.good(); reader.up())
      visit(depth + 1);
  }

  void write_record()
  {
    std::vector<Value> const values = columns.read(reader);
    if (reader.has_error_occurred())
      return;
    output.write(format->row(names, values));
    progress.show(++count);
  }

  axmAbstractXmlReader& reader;
  std::vector<utString> path;
  std::vector<std::string> const& names;
  Columns const columns;
  std::unique_ptr<RowFormat> const format;
  OutputFile& output;
  Progress progress;
  long long count = 0;
};

int table(Request const& request)
{
  if (split_path(request.path).empty())
    return complain("PATH", "'" + request.path + "' has an empty name in it", exit_usage);
  std::string const complaint = Columns::complaint(request.columns);
  if (!complaint.empty())
    return complain("COLUMN", complaint, exit_usage);

  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(request.file.c_str()));
  if (!reader->read_file())
    return complain(request.file, why_not_read(*reader), exit_bad_input);

  OutputFile output(request.output);
  long long const rows = output.good() ? Rows(*reader, request, output).write() : 0;
  if (!output.finish())
    return complain(request.output.empty() ? "standard output" : request.output, "cannot be written", exit_bad_input);
  if (reader->has_error_occurred())
  {
    std::string message = errors_of(*reader) + "; rows read before that: " + std::to_string(rows);
    if (rows == 0 && has_document_type(request.file))
      message += "; the streaming reader cannot pass a DOCTYPE, but 'axm select' can";
    return complain(request.file, message, exit_bad_input);
  }
  return exit_good;
}
}

void add_table(CLI::App& app, int& exit_code)
{
  CLI::App* const verb = app.add_subcommand("table", description);
  auto const request = std::make_shared<Request>();
  verb->add_option("FILE", request->file, "The document")->required();
  verb->add_option("PATH", request->path, "The names from the root to the record, as in osm/node")->required();
  verb->add_option("COLUMN", request->columns, "What to write of each record")->required();
  verb->add_option("--format", request->format, "csv (the default), tsv or jsonl")
    ->check(CLI::IsMember({"csv", "tsv", "jsonl"}));
  verb->add_option("--output", request->output, "The file to write, whole or not at all; standard output without it");
  verb->add_flag("--header", request->header, "Write the columns' names first (csv, tsv)");
  verb->footer(footer);
  verb->callback([request, &exit_code] { exit_code = table(*request); });
}
