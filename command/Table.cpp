#include "CommonOptions.h"
#include "Complaint.h"
#include "Namespaces.h"
#include "SimpleTable.h"
#include "TableOutput.h"
#include "TableRequest.h"
#include "Verb.h"
#include "VerbOptions.h"

#if defined(AXM_HAS_ENGINE)
#  include "ExactTable.h"
#endif

#include <memory>

namespace
{
char const description[] =
  "Write one row for each record of a document, from its attributes and the text of its children.";

char const footer[] =
  R"(PATH leads from the root to the record, as in osm/node; * stands for any name. Columns:
  @name     an attribute of the record
  name      the text of a child of that name
  a/b a/@b  the same, further down
  .         the text of the record itself

Names are compared as they are written; --ns p=URI lets p:name mean that name in that
namespace, whatever prefix or default the document has for it. FILE may be - for standard
input, and compressed (.gz, .xz, .zst).

Examples:
  axm table map.osm osm/node @id @lat @lon
  axm table books.xml catalog/book @id title author/name --format jsonl --output books.jsonl
  axm table map.osm.xz osm/node @id tag/@k tag/@v --repeat rows --header

csv is RFC 4180 with CR LF; tsv writes TAB, LF, CR and backslash in a value as \t, \n, \r
and \\; jsonl has null where the record has no such value.

--reader simple takes the streaming reader of the library instead, which is faster and keeps
none of XML's rules that cost time: names match by their beginning, entities such as &amp;
stay as they are written, an element that closes itself (<a/>) is read as if what follows it
were its content, and there must be an XML declaration and no DOCTYPE. Take it for large
files whose form you know.

The exit code is 1 when a document cannot be read to its end: the rows up to there are
written, and the message says where it stopped and how many rows there are. Where there is
no such record, a message says so, and the exit code is 0.)";

std::string const join = "join=";

std::string is_repeat(std::string const& repeat)
{
  bool const is_known = repeat == "first" || repeat == "rows" || repeat.compare(0, join.size(), join) == 0;
  return is_known ? std::string() : repeat + " is not first, join=SEP or rows";
}

bool is_exact(std::string const& reader)
{
  return reader == "exact";
}

std::string complaint_of(TableRequest const& request, std::string const& reader)
{
#if defined(AXM_HAS_ENGINE)
  if (is_exact(reader))
    return ExactTable::complaint(request);
#else
  if (is_exact(reader))
    return "this program was built without an engine; only --reader simple is there";
#endif
  if (!request.index.empty())
    return "--index and --part go with --reader exact only";
  if (request.repeat != "first" || !request.namespaces.empty())
    return "--repeat and --ns go with --reader exact only";
  return SimpleTable::complaint(request);
}

// Writes the rows of one document; what went wrong, with its place, was said then.
bool write_rows(std::string const& file, TableRequest const& request, std::string const& reader, TableOutput& output)
{
#if defined(AXM_HAS_ENGINE)
  if (is_exact(reader))
    return ExactTable::write(file, request, output);
#endif
  std::string const wrong = SimpleTable::write(file, request, output);
  if (!wrong.empty())
    complain(file, wrong, exit_bad_input);
  return wrong.empty();
}

int table(TableRequest const& request, std::string const& reader)
{
  std::string const complaint = complaint_of(request, reader);
  if (!complaint.empty())
    return complain("table", complaint, exit_usage);

  TableOutput output(request);
  int result = exit_good;
  for (std::string const& file : request.files)
    if (!output.good() || !write_rows(file, request, reader, output))
      result = exit_bad_input;
  // What stood in the output stays there when nothing came in its place.
  if (result == exit_bad_input && output.rows() == 0 && output.good())
    return result;
  if (!output.finish())
    return complain(request.output.empty() ? "standard output" : request.output, output.fault(), exit_bad_input);
  // A part may well have none; of whole documents it is more often a name that is written wrong.
  if (result == exit_good && output.rows() == 0 && request.part < 0)
    return complain(request.files.size() == 1 ? request.files.front() : "table",
      "there is no record '" + request.path + "'", exit_good);
  return result;
}
}

void add_table(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "table", description, footer);
  auto const request = std::make_shared<TableRequest>();
  auto const first_file = std::make_shared<std::string>();
  auto const spaces = std::make_shared<std::vector<std::string>>();
  auto const reader = std::make_shared<std::string>("exact");
  verb.add("FILE", *first_file, "The document; - is standard input, and .gz, .xz and .zst are decompressed")
    .value_name("FILE")
    .required();
  verb.add("PATH", request->path, "The names from the root to the record, as in osm/node").required();
  verb.add("COLUMN", request->columns, "What to write of each record").required();
  verb.add("--more", request->files, "Further documents, whose rows follow in the same table").value_name("FILE");
  verb.add("--format", request->format, "csv (the default), tsv or jsonl").one_of({"csv", "tsv", "jsonl"});
  CommonOptions::add_output(verb, request->output);
  verb.add_flag("--header", request->header, "Write the columns' names first (csv, tsv)");
  verb
    .add("--repeat", request->repeat,
      "What becomes of a column that a record has several values of: first (the default) takes the first, join=SEP all "
      "with SEP between them, rows makes a row of each")
    .value_name("HOW")
    .checked_by(is_repeat);
  verb.add("--missing", request->missing, "What stands where a record has no such value");
  CommonOptions::add_namespaces(verb, *spaces);
  verb.add("--index", request->index, "The index that axm split wrote: take the rows of one part of FILE only")
    .value_name("FILE");
  verb.add("--part", request->part, "Which part, counted from 0").value_name("K").not_negative();
  verb.add("--reader", *reader, "exact (the default) or simple").one_of({"exact", "simple"});
  verb.run(
    [=, &exit_code]
    {
      request->files.insert(request->files.begin(), *first_file);
      request->namespaces = namespaces_of(*spaces);
      exit_code = table(*request, *reader);
    });
}
