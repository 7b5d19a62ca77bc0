#include "CommonOptions.h"
#include "Complaint.h"
#include "FileJobs.h"
#include "InputStream.h"
#include "Loading.h"
#include "MemoryStream.h"
#include "VerbOptions.h"

#include <axsComparison.h>
#include <axsFormatter.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace
{
char const description[] = "Lay documents out anew: indentation, long tags, white space between elements.";

char const footer[] =
  R"(Examples:
  axm format books.xml
  axm format --in-place --indent 4 *.xml
  axm format --check --jobs 0 *.xml
  curl -s https://example.org/feed | axm format - --attributes-per-line 1

What a document says stays as it is. An element with text in it, and what
xml:space="preserve" is said of, keeps every blank; comments, CDATA sections, references,
quotes and the document type stay as they are written; lines end as they did. Of empty
lines between elements one stays. What is laid out already does not change. Documents in
other encodings become UTF-8, and say so.

--in-place compares what a document says before and after, and replaces it in one step.
Without --in-place, --check or --output, the one document goes to standard output.

The exit code is 0 if all is well, 1 if a document cannot be read or written or, with
--check, is not laid out in this way: then its name is written. It is 2 for wrong usage.)";

struct Request
{
  std::vector<std::string> files;
  std::string output;
  bool in_place = false;
  bool check = false;
  unsigned jobs = 1;
  axsFormatOptions layout;
};

// What would replace the document of that name.
bool format_or_complain(std::string const& file, Request const& request, apByteArray const& bytes, std::string& text)
{
  axmParseError error;
  auto const write = [&](std::string_view piece)
  {
    text += piece;
    return true;
  };
  bool const is_good = axsFormatter::format(bytes, request.layout, error, write);
  if (!is_good)
    complain_in_one_line(error, shown_name(file), {});
  return is_good;
}

// Nothing takes the place of a document that does not say the same.
bool says_the_same(apByteArray const& bytes, std::string const& text)
{
  axsCompareOptions options;
  options.ignores_layout = true;
  axsComparison comparison(options);
  axmParseError error;
  MemoryStream before({bytes.data(), bytes.size()});
  MemoryStream after(text);
  return comparison.read_first(before, error) && comparison.read_second(after, error) &&
         comparison.run([](axsDifference const&) { return false; });
}

int replace(std::string const& file, apByteArray const& bytes, std::string const& text)
{
  if (!says_the_same(bytes, text))
    return complain(file, "is left as it is: laid out, it would not say the same", exit_bad_input);
  OutputFile target(file);
  target.write(text);
  return target.finish() ? exit_good : complain(file, target.fault(), exit_bad_input);
}

int format_one(std::string const& file, Request const& request, JobOutput& output)
{
  if (request.in_place && !InputStream(file).is_plain_file())
    return complain(shown_name(file), "is no plain file, which --in-place needs", exit_bad_input);
  apByteArray bytes;
  std::string text;
  if (!read_or_complain(file, bytes) || !format_or_complain(file, request, bytes, text))
    return exit_bad_input;
  bool const is_changed = text != std::string_view(bytes.data(), bytes.size());
  if (request.in_place)
    return is_changed ? replace(file, bytes, text) : exit_good;
  if (!request.check)
    output.write(text);
  else if (is_changed)
    output.write(shown_name(file) + "\n");
  return request.check && is_changed ? exit_bad_input : exit_good;
}

std::string complaint_of(Request const& request)
{
  int const targets = (request.in_place ? 1 : 0) + (request.check ? 1 : 0) + (request.output.empty() ? 0 : 1);
  if (targets > 1)
    return "--in-place, --check and --output exclude each other";
  if (request.files.size() > 1 && !request.in_place && !request.check)
    return "several documents need --in-place or --check";
  return std::string();
}

int format(Request const& request)
{
  std::string const wrong = complaint_of(request);
  if (!wrong.empty())
    return complain("format", wrong, exit_usage);
  OutputFile output(request.output);
  auto const work = [&](std::string const& file, JobOutput& job) { return format_one(file, request, job); };
  int const result = FileJobs::worst(FileJobs(request.jobs).run(request.files, output, work));
  // What stood in the output stays there where the document is a bad one.
  if (result != exit_good && !request.output.empty())
    return result;
  std::string const name = request.output.empty() ? "standard output" : request.output;
  return output.finish() ? result : complain(name, output.fault(), exit_bad_input);
}
}

void add_format(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "format", description, footer);
  auto const request = std::make_shared<Request>();
  CommonOptions::add_files(verb, request->files);
  VerbOption const indent =
    verb.add("--indent", request->layout.indent, "How many blanks a level is indented by (2 without it)")
      .value_name("N")
      .in_range(0, 100);
  verb.add_flag("--tabs", request->layout.has_tabs, "Indent by tabs, --indent of them (1 without it)");
  verb
    .add("--width", request->layout.width,
      "How long a start tag may be before its attributes take several lines (100 without it); 0 for no bound")
    .value_name("N")
    .in_range(0, 1000000);
  verb
    .add("--attributes-per-line", request->layout.attributes_per_line,
      "How many attributes stand on a line; as many as there is room for without it")
    .value_name("N")
    .in_range(1, 1000000);
  verb.add_flag("-i,--in-place", request->in_place, "Write each document to its file");
  verb.add_flag("--check", request->check, "Write nothing but the names of files that would change");
  CommonOptions::add_output(verb, request->output);
  CommonOptions::add_jobs(verb, request->jobs);
  verb.run(
    [indent, request, &exit_code]
    {
      if (request->layout.has_tabs && !indent.is_given())
        request->layout.indent = 1;
      exit_code = format(*request);
    });
}
