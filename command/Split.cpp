#include "CommonOptions.h"
#include "Complaint.h"
#include "Loading.h"
#include "Namespaces.h"
#include "OutputFile.h"
#include "SplitIndex.h"
#include "Verb.h"
#include "VerbOptions.h"

#include <axsRecordReader.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
char const description[] = "Find where a document can be cut, so that its records can be read in parts.";

char const footer[] =
  R"(The document is read once, and an index of its parts is written (JSON). Then

  axm table FILE PATH COLUMN... --index INDEX --part K

reads one part alone, from the first, 0, to the last: in another process, or on another
machine that has the document. The rows of all parts after one another are the rows of the
whole. There are fewer parts than asked for where there are few records. The document must
be a file in UTF-8 that is not compressed, and stay as it is.

Examples:
  axm split map.osm osm/node --parts 8 --output map.json
  axm table map.osm osm/node @id @lat --index map.json --part 0)";

struct Request
{
  std::string file;
  std::string path;
  std::size_t count = 2;
  std::vector<std::string> spaces;
  std::string output;
};

int split(Request const& request)
{
  SplitIndex index{request.file, request.path, namespaces_of(request.spaces), {}};
  axsRecordReader::Request pattern;
  pattern.path = index.path;
  pattern.namespaces = index.namespaces;
  if (std::string const complaint = axsRecordReader::complaint(pattern); !complaint.empty())
    return complain("split", complaint, exit_usage);

  axmParseError error;
  if (!axsRecordSplitter::split(apPath(request.file.c_str()), index.path, index.namespaces, request.count,
        axmLoadOptions(), error, index.parts))
  {
    complain_about(error, request.file);
    return exit_bad_input;
  }
  std::string const text = index.to_json();
  if (text.empty())
    return complain("split", "the names of the file, the records and the namespaces must be UTF-8", exit_usage);
  OutputFile output(request.output);
  output.write(text);
  if (!output.finish())
    return complain(request.output.empty() ? "standard output" : request.output, output.fault(), exit_bad_input);
  return exit_good;
}
}

void add_split(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "split", description, footer);
  auto const request = std::make_shared<Request>();
  verb.add("FILE", request->file, "The document").value_name("FILE").required();
  verb.add("PATH", request->path, "The names from the root to the record, as in osm/node").required();
  verb.add("--parts", request->count, "How many parts (2 without it)").value_name("N").in_range(1, 1000000);
  CommonOptions::add_namespaces(verb, request->spaces);
  verb.add("--output", request->output, "The index, written whole or not at all; standard output without it")
    .value_name("FILE");
  verb.run([request, &exit_code] { exit_code = split(*request); });
}
