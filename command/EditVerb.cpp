#include "EditVerb.h"

#include "BuiltInEngine.h"
#include "CommonOptions.h"
#include "Complaint.h"
#include "Compression.h"
#include "FileJobs.h"
#include "Loading.h"
#include "NamespaceHint.h"
#include "Namespaces.h"

#include <axmElement.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>

namespace
{
// The code for a document in which nothing is selected, which is none of its own if others have something.
int const nothing_found = -1;

struct PlaceOption
{
  char const* name;
  char const* description;
};

// In the order of axsEditPlace.
PlaceOption const place_options[] = {
  {"--before", "Before each node that it selects"},
  {"--after", "After each node that it selects"},
  {"--into", "Into each element that it selects, as the last child"},
  {"--into-first", "Into each element that it selects, as the first child"},
};

bool is_regular_file(std::string const& file)
{
  std::error_code ignored;
  return std::filesystem::is_regular_file(std::filesystem::u8path(file), ignored);
}

Compression compression_of_file(std::string const& file)
{
  char head[8];
  std::FILE* const stream = apPath(file.c_str()).file_open(apPath::read_mode());
  if (stream == nullptr)
    return Compression::none;
  std::size_t const size = std::fread(head, 1, sizeof head, stream);
  std::fclose(stream);
  return compression_of({head, size});
}

int write_to(std::string const& file, Compression compression, std::string const& bytes)
{
  std::string compressed;
  if (compression != Compression::none)
    if (std::string const wrong = compress(compression, bytes, compressed); !wrong.empty())
      return complain(file, wrong, exit_bad_input);
  OutputFile output(file);
  output.write(compression == Compression::none ? bytes : compressed);
  return output.finish() ? exit_good : complain(file == "-" ? "standard output" : file, output.fault(), exit_bad_input);
}

std::string place_in_fragment(axmParseError const& error)
{
  if (error.line_number() < 0)
    return std::string();
  return " (line " + std::to_string(error.line_number()) + ", column " + std::to_string(error.column_number()) + ")";
}

std::string hint(std::string const& bytes, std::string const& xpath)
{
  axmParseError error;
  apByteArray const data(bytes.data(), bytes.size());
  auto const document = built_in_engine()->loadDocument(data, axmLoadOptions(axmValidateNone), error);
  return document == nullptr ? std::string() : NamespaceHint::of(*document->getDocumentElement(), xpath);
}

// What is not would be written as something else.
bool is_utf8(std::string const& text)
{
  return apString(text.c_str()).to_utf8() == utString(text.c_str());
}
}

void EditVerb::add_to(VerbOptions& verb, std::vector<std::pair<std::string, std::string>> const& after_files)
{
  CommonOptions::add_files(verb, arguments);
  for (auto const& [name, description] : after_files)
    verb.add_filled_by_verb(name, description);
  CommonOptions::add_namespaces(verb, spaces);
  verb.add_flag("-i,--in-place", in_place, "Write each document to its file, which is what is done without --output");
  verb
    .add("--output", output_name,
      "The file to write instead, whole or not at all; - for standard output. Compressed if its name ends so")
    .value_name("FILE")
    .checked_by(OutputFile::wrong_name);
  CommonOptions::add_jobs(verb, jobs);
}

void EditVerb::add_targets(VerbOptions& verb)
{
  std::vector<VerbOption> added;
  for (std::size_t i = 0; i < std::size(place_options); ++i)
  {
    VerbOption const option =
      verb.add(place_options[i].name, targets[i], place_options[i].description).value_name("XPATH");
    for (VerbOption const& other : added)
      option.excludes(other);
    added.push_back(option);
  }
}

EditVerb::Target EditVerb::target() const
{
  for (std::size_t i = 0; i < std::size(targets); ++i)
    if (!targets[i].empty())
      return {static_cast<axsEditPlace>(i), targets[i]};
  return {};
}

std::string EditVerb::take_last()
{
  if (arguments.size() < 2)
    return std::string();
  std::string last = std::move(arguments.back());
  arguments.pop_back();
  return last;
}

std::string EditVerb::complaint() const
{
  bool const has_input = std::find(arguments.begin(), arguments.end(), "-") != arguments.end();
  if (in_place && (has_input || !output_name.empty()))
    return "--in-place goes neither with --output nor with standard input";
  if (arguments.size() > 1 && !output_name.empty())
    return "several documents have no place in one output";
  return std::string();
}

int EditVerb::run(std::string const& about, Edit const& edit)
{
  if (std::string const wrong = complaint(); !wrong.empty())
    return complain(about, wrong, exit_usage);
  if (!is_utf8(about))
    return complain(about, "is not UTF-8", exit_usage);
  subject = about;
  prefixes = namespaces_of(spaces);
  OutputFile output{std::string()};
  auto const work = [&](std::string const& file, JobOutput& job) { return edit_one(file, edit, job); };
  std::vector<int> const codes = FileJobs(jobs).run(arguments, output, work);
  int const worst = FileJobs::worst(codes);
  if (!output.finish())
    return complain("standard output", output.fault(), exit_bad_input);
  bool const is_found = std::find(codes.begin(), codes.end(), exit_good) != codes.end();
  if (worst > exit_good || is_found)
    return worst;
  return exit_bad_input;
}

int EditVerb::edit_one(std::string const& file, Edit const& edit, JobOutput& output)
{
  if (is_in_place(file) && !is_regular_file(file) && std::filesystem::exists(std::filesystem::u8path(file)))
    return complain(file, "is no plain file: give --output", exit_bad_input);
  apByteArray bytes;
  if (!read_or_complain(file, bytes))
    return exit_bad_input;
  axsEditor editor(std::string(bytes.data(), bytes.size()), file == "-" ? apPath() : apPath(file.c_str()));
  editor.set_prefixes(prefixes);
  if (edit(editor) == 0)
    return tell(file, editor);

  std::string const& edited = editor.bytes();
  if (is_in_place(file))
  {
    bool const is_changed = edited != std::string_view(bytes.data(), bytes.size());
    return is_changed ? write_to(file, compression_of_file(file), edited) : exit_good;
  }
  if (!output_name.empty() && output_name != "-")
    return write_to(output_name, compression_of_name(output_name), edited);
  output.write(edited);
  return exit_good;
}

int EditVerb::tell(std::string const& file, axsEditor const& editor)
{
  axsEditFault const& fault = editor.fault();
  std::string const& about = fault.about.empty() ? subject : fault.about;
  std::string const message(fault.error.message().to_utf8().view());
  bool const is_shown = file != "-" && compression_of_file(file) == Compression::none;
  switch (fault.kind)
  {
  case axsEditFault::Kind::request:
    return complain(about, message + place_in_fragment(fault.error), exit_usage);
  case axsEditFault::Kind::nothing:
    if (!has_told.exchange(true) && arguments.size() == 1)
      complain(about, message + hint(editor.bytes(), about), exit_bad_input);
    return nothing_found;
  default:
    break;
  }
  if (fault.kind == axsEditFault::Kind::edit && fault.error.line_number() < 0)
    return complain(arguments.size() > 1 ? file + ": " + about : about, message, exit_bad_input);
  if (is_shown)
    complain_about(fault.error, shown_name(file));
  else
    complain_in_one_line(fault.error, shown_name(file), {});
  return exit_bad_input;
}
