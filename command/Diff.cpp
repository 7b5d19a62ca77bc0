#include "Colours.h"
#include "CommonOptions.h"
#include "Complaint.h"
#include "InputStream.h"
#include "Loading.h"
#include "OutputFile.h"
#include "SourceLine.h"
#include "VerbOptions.h"

#include <axsComparison.h>

#include <algorithm>
#include <memory>
#include <string>

namespace
{
char const description[] = "Show in which elements, attributes and texts two documents differ.";

char const footer[] =
  R"(Examples:
  axm diff old.xml new.xml
  axm diff --ignore-space --ignore-comments old.xml new.xml
  git show HEAD:pom.xml | axm diff - pom.xml --line-number

A line for each difference, with its path: - is only in the first document, + only in the
second, ! has another value. The order of attributes, prefixes of namespaces, CDATA sections
and references and the encoding do not count. What has moved among its siblings is removed
and added. Long values are cut to what is around the difference; --full shows them whole.

--ignore-layout still counts white space beside a text. Neither option leaves any out where
xml:space="preserve" holds.

The exit code is 0 if the documents say the same, 1 if not, 2 if one of them cannot be read
or for wrong usage, as the command diff has it.)";

struct Request
{
  std::string first;
  std::string second;
  std::string colour = "auto";
  bool with_line = false;
  bool brief = false;
  bool full = false;
  axsCompareOptions compare;
};

// As of the command diff: what cannot be compared is no difference.
int const exit_trouble = exit_usage;

std::size_t const longest = 100;

bool is_continuation(char c)
{
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The part of a text that is shown from about `from` on.
std::string excerpt(std::string const& text, std::size_t from)
{
  std::size_t begin = from;
  while (begin > 0 && begin < text.size() && is_continuation(text[begin]))
    --begin;
  std::size_t end = std::min(text.size(), begin + longest);
  while (end < text.size() && is_continuation(text[end]))
    ++end;
  return (begin > 0 ? "..." : "") + text.substr(begin, end - begin) + (end < text.size() ? "..." : "");
}

class Report
{
public:
  Report(Request const& asked, OutputFile& target) : request(asked), output(target), colours(asked.colour) {}

  // False when no more is wanted.
  bool take(axsDifference const& difference);

private:
  std::string value(std::string const& text, std::size_t from) const
  {
    return shown(request.full ? text : excerpt(text, from));
  }

  std::string change(axsDifference const& difference) const;

  Request const& request;
  OutputFile& output;
  Colours const colours;
};

std::string lines_of(axsDifference const& difference)
{
  std::string const before = difference.line_before == 0 ? "" : std::to_string(difference.line_before);
  std::string const after = difference.line_after == 0 ? "" : std::to_string(difference.line_after);
  return before + "," + after + ": ";
}

std::string Report::change(axsDifference const& difference) const
{
  std::string const& before = difference.before;
  std::string const& after = difference.after;
  auto const differs = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
  auto const same = static_cast<std::size_t>(differs - before.begin());
  std::size_t const context = 20;
  std::size_t const from = std::max(before.size(), after.size()) <= longest || same < context ? 0 : same - context;
  return colours.in(Colours::red, value(before, from)) + " -> " + colours.in(Colours::green, value(after, from));
}

bool Report::take(axsDifference const& difference)
{
  if (request.brief)
    return false;
  std::string line = request.with_line ? lines_of(difference) : std::string();
  switch (difference.kind)
  {
  case axsDifference::Kind::removed:
    line = colours.in(Colours::red, "- " + line + shown(difference.path) + ": " + value(difference.before, 0));
    break;
  case axsDifference::Kind::added:
    line = colours.in(Colours::green, "+ " + line + shown(difference.path) + ": " + value(difference.after, 0));
    break;
  case axsDifference::Kind::changed:
    line = "! " + line + shown(difference.path) + ": " + change(difference);
    break;
  }
  output.write(line + "\n");
  return output.good();
}

template <class Read, class ReadFile>
bool read_or_complain(std::string const& file, Read read, ReadFile read_file)
{
  axmParseError error;
  InputStream input(file);
  if (input.is_plain_file())
  {
    bool const is_read = read_file(apPath(file.c_str()), error);
    if (!is_read)
      complain_about(error, file);
    return is_read;
  }
  bool const is_read = read(input, error);
  if (!is_read)
    complain_in_one_line(error, shown_name(file), {});
  return is_read;
}

int diff(Request const& request)
{
  if (request.first == "-" && request.second == "-")
    return complain("diff", "standard input can be one of the documents only", exit_usage);
  axsComparison comparison(request.compare);
  bool const are_read =
    read_or_complain(
      request.first, [&](auto& input, auto& error) { return comparison.read_first(input, error); },
      [&](apPath const& path, auto& error) { return comparison.read_first(path, error); }) &&
    read_or_complain(
      request.second, [&](auto& input, auto& error) { return comparison.read_second(input, error); },
      [&](apPath const& path, auto& error) { return comparison.read_second(path, error); });
  if (!are_read)
    return exit_trouble;
  OutputFile output{std::string()};
  Report report(request, output);
  bool const is_same = comparison.run([&](axsDifference const& difference) { return report.take(difference); });
  if (request.brief && !is_same)
    output.write("the documents " + shown(request.first) + " and " + shown(request.second) + " differ\n");
  if (!output.finish())
    return complain("standard output", output.fault(), static_cast<ExitCode>(exit_trouble));
  return is_same ? exit_good : exit_bad_input;
}
}

void add_diff(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "diff", description, footer);
  auto const request = std::make_shared<Request>();
  verb.add("FIRST", request->first, "The one document; - is standard input").value_name("FILE").required();
  verb.add("SECOND", request->second, "The other one").value_name("FILE").required();
  verb.add_flag("--ignore-layout", request->compare.ignores_layout, "Do not count white space between elements");
  verb.add_flag("-w,--ignore-space", request->compare.ignores_space,
    "Do not count white space between elements and around texts, nor how much of it is within them");
  verb.add_flag("--ignore-comments", request->compare.ignores_comments, "Do not count comments");
  verb.add_flag("-q,--brief", request->brief, "Say only whether they differ");
  verb.add_flag("-n,--line-number", request->with_line, "Write the lines in both documents");
  verb.add_flag("--full", request->full, "Write long values whole");
  CommonOptions::add_colour(verb, request->colour);
  verb.run([request, &exit_code] { exit_code = diff(*request); });
}
