#include "CommonOptions.h"
#include "Complaint.h"
#include "InputStream.h"
#include "Loading.h"
#include "MemoryStream.h"
#include "OutputFile.h"
#include "VerbOptions.h"

#include <axsCanonicalForm.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace
{
char const description[] = "Write the canonical form of a document.";

char const footer[] =
  R"(Examples:
  axm canon books.xml
  axm canon books.xml --comments | sha256sum
  axm canon message.xml --exclusive --inclusive-prefix xsi

Documents that differ only in how they are written have the same canonical form: UTF-8, no
declaration, no document type, every entity and default in its place, attributes in order.
It is that of Canonical XML 1.0 and 1.1, which are the same for whole documents or, with
--exclusive, of Exclusive XML Canonicalization 1.0.

The exit code is 1 if the document cannot be read or has no canonical form, 2 for wrong
usage.)";

struct Request
{
  std::string file;
  std::string output;
  std::vector<std::string> prefixes;
  axsCanonicalOptions form;
};

int canon(Request const& request)
{
  apByteArray bytes;
  if (!read_or_complain(request.file, bytes))
    return exit_bad_input;
  MemoryStream input({bytes.data(), bytes.size()});
  OutputFile output(request.output);
  axmParseError error;
  auto const write = [&](std::string_view piece)
  {
    output.write(piece);
    return output.good();
  };
  if (!axsCanonicalForm::write(input, request.form, error, write))
  {
    complain_in_one_line(error, shown_name(request.file), {});
    return exit_bad_input;
  }
  std::string const name = request.output.empty() ? "standard output" : request.output;
  return output.finish() ? exit_good : complain(name, output.fault(), exit_bad_input);
}
}

void add_canon(CLI::App& app, int& exit_code)
{
  VerbOptions verb(app, "canon", description, footer);
  auto const request = std::make_shared<Request>();
  verb.add("FILE", request->file, "The document; - is standard input, and .gz, .xz and .zst are decompressed")
    .value_name("FILE")
    .required();
  VerbOption const exclusive =
    verb.add_flag("--exclusive", request->form.is_exclusive, "Keep only the declarations of prefixes that a tag uses");
  verb
    .add("--inclusive-prefix", request->prefixes,
      "With --exclusive, a prefix whose declarations stay; #default for the default namespace; may be given again")
    .value_name("P")
    .needs(exclusive)
    .one_at_a_time();
  verb.add_flag("--comments", request->form.has_comments, "Keep comments");
  CommonOptions::add_output(verb, request->output);
  verb.run(
    [request, &exit_code]
    {
      request->form.inclusive_prefixes = {request->prefixes.begin(), request->prefixes.end()};
      exit_code = canon(*request);
    });
}
