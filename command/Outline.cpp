#include "CommonOptions.h"
#include "Complaint.h"
#include "FileJobs.h"
#include "InputStream.h"
#include "Loading.h"
#include "OutputFile.h"
#include "RowFormat.h"
#include "SourceLine.h"
#include "VerbOptions.h"

#include <axsOutline.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <vector>

namespace
{
char const description[] = "Show which elements documents have in which, how many, with which attributes.";

char const footer[] =
  R"(Examples:
  axm outline books.xml
  axm outline *.xml --depth 3 --jobs 0
  axm outline map.osm.xz --format csv --output paths.csv

A line for each path from the root, as axm table takes it: how deep it lies, how many
elements there are, the path, the attributes, each with its number where not all elements
have it, and "text" where there is text in them. Several documents make one outline. Names
are as they are written. csv (RFC 4180) and jsonl have the same in columns, one of which has
the number of elements with text.

A document is read in one pass. Memory grows with the number of different paths, of which
up to --paths are told apart, in each document as in all; a message says how many elements
that leaves out.

The exit code is 1 if a document cannot be read to its end, 2 for wrong usage.)";

struct Request
{
  std::vector<std::string> files;
  std::string output;
  std::string format = "text";
  std::size_t depth = 100;
  std::size_t paths = 10000;
  unsigned jobs = 1;
};

std::string attributes_of(axsOutlinePath const& path)
{
  std::string text;
  for (axsOutlinePath::Attribute const& attribute : path.attributes)
  {
    text += (text.empty() ? "@" : " @") + attribute.name;
    if (attribute.count != path.count)
      text += "(" + std::to_string(attribute.count) + ")";
  }
  return text;
}

std::string padded(std::string const& text, std::size_t width, bool is_number)
{
  std::string const blanks(width - std::min(width, text.size()), ' ');
  return is_number ? blanks + text : text + blanks;
}

void write_table(std::vector<axsOutlinePath> const& paths, OutputFile& output)
{
  std::size_t count_width = 5;
  std::size_t path_width = 4;
  std::size_t const widest = 60;
  for (axsOutlinePath const& path : paths)
  {
    count_width = std::max(count_width, std::to_string(path.count).size());
    path_width = std::max(path_width, std::min(path.path.size(), widest));
  }
  output.write("depth  " + padded("count", count_width, true) + "  " + padded("path", path_width, false) + "  has\n");
  for (axsOutlinePath const& path : paths)
  {
    std::string const text = path.texts == 0 ? "" : path.attributes.empty() ? "text" : " text";
    std::string line = padded(std::to_string(path.depth), 5, true) + "  " +
                       padded(std::to_string(path.count), count_width, true) + "  " +
                       padded(shown(path.path), path_width, false) + "  " + shown(attributes_of(path)) + text;
    line.erase(line.find_last_not_of(' ') + 1);
    output.write(line + "\n");
  }
}

void write_rows(std::vector<axsOutlinePath> const& paths, std::string const& format, OutputFile& output)
{
  std::vector<std::string> const columns = {"depth", "count", "path", "attributes", "texts"};
  std::unique_ptr<RowFormat> const rows = RowFormat::of(format);
  std::string text;
  rows->append_header(text, columns);
  for (axsOutlinePath const& path : paths)
  {
    std::string const depth = std::to_string(path.depth);
    std::string const count = std::to_string(path.count);
    std::string const attributes = attributes_of(path);
    std::string const texts = std::to_string(path.texts);
    rows->append_row(text, columns, {depth, count, path.path, attributes, texts});
  }
  output.write(text);
}

// One outline of several documents, which are read at the same time, and added in their order all the same.
class WholeOutline
{
public:
  explicit WholeOutline(Request const& given)
    : request(given),
      whole(given.paths, given.depth),
      read(given.files.size())
  {
  }

  /// To be called for each of the files that were given. Whether it could be read to its end.
  bool add(std::string const& file, JobOutput& output)
  {
    auto one = std::make_unique<axsOutline>(request.paths, request.depth);
    bool is_read = false;
    try
    {
      is_read = read_or_complain(*one, file, output);
    }
    catch (std::bad_alloc const&)
    {
      // What came up to there counts, as with any other error.
      complain(shown_name(file), "memory ran out", exit_bad_input);
    }
    std::unique_lock<std::mutex> const lock(mutex);
    // The files are those of the request itself.
    read[static_cast<std::size_t>(&file - request.files.data())] = std::move(one);
    for (; next < read.size() && read[next] != nullptr; ++next)
    {
      whole.add(*read[next]);
      read[next].reset();
    }
    return is_read;
  }

  axsOutline const& outline() const { return whole; }

private:
  static bool read_or_complain(axsOutline& outline, std::string const& file, JobOutput& output)
  {
    axmParseError error;
    InputStream input(file);
    bool const is_plain = input.is_plain_file();
    auto const progress = [&](std::uint64_t bytes) { output.show_bytes(bytes); };
    bool const is_read =
      is_plain ? outline.read(apPath(file.c_str()), error, progress) : outline.read(input, error, progress);
    if (!is_read && is_plain)
      complain_about(error, file);
    else if (!is_read)
      complain_in_one_line(error, shown_name(file), {});
    return is_read;
  }

  Request const& request;
  std::mutex mutex;
  axsOutline whole;
  // Those that wait for one before them.
  std::vector<std::unique_ptr<axsOutline>> read;
  std::size_t next = 0;
};

int show_outline(Request const& request)
{
  WholeOutline sum(request);
  OutputFile output(request.output);
  auto const work = [&](std::string const& file, JobOutput& job)
  { return sum.add(file, job) ? exit_good : exit_bad_input; };
  int const result = FileJobs::worst(FileJobs(request.jobs).run(request.files, output, work));
  axsOutline const& outline = sum.outline();
  std::vector<axsOutlinePath> const paths = outline.paths();
  if (paths.empty())
    return result;
  if (request.format == "text")
    write_table(paths, output);
  else
    write_rows(paths, request.format, output);
  if (outline.left_out() > 0)
    std::cerr << "axm: elements left out, for which --depth or --paths is too small: " << outline.left_out() << '\n';
  if (output.finish())
    return result;
  return complain(request.output.empty() ? "standard output" : request.output, output.fault(), exit_bad_input);
}
}

void add_outline(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "outline", description, footer);
  auto const request = std::make_shared<Request>();
  CommonOptions::add_files(verb, request->files);
  verb.add("--depth", request->depth, "How many names a path may have (100 without it)")
    .value_name("N")
    .in_range(1, 1000);
  verb.add("--paths", request->paths, "How many paths are told apart (10000 without it)")
    .value_name("N")
    .in_range(1, 10000000);
  verb.add("--format", request->format, "text (the default), csv or jsonl").one_of({"text", "csv", "jsonl"});
  CommonOptions::add_output(verb, request->output);
  CommonOptions::add_jobs(verb, request->jobs);
  verb.run([request, &exit_code] { exit_code = show_outline(*request); });
}
