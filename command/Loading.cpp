#include "Loading.h"

#include "BuiltInEngine.h"
#include "SourceLine.h"

#include "Messages.h"

#include <algorithm>
#include <ostream>

namespace
{
std::string place_of(axmParseError const& error, std::string const& file)
{
  return error.url().empty() ? file : std::string(error.url().to_utf8().view());
}
}

std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, axmLoadOptions const& options)
{
  InputBytes const input = built_in_bytes(file, false);
  if (input.is_read)
    return load_or_complain(factory, file, input.bytes, options);
  if (!input.fault.empty())
  {
    complain_in_one_line(axmParseError(apString(input.fault.c_str())), shown_name(file), {});
    return nullptr;
  }
  axmParseError error;
  std::shared_ptr<axmDocument> document = factory.loadDocument(apPath(file.c_str()), options, error);
  if (document == nullptr)
    complain_about(error, file);
  return document;
}

std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, apByteArray const& bytes, axmLoadOptions const& options)
{
  axmParseError error;
  std::shared_ptr<axmDocument> document = factory.loadDocument(bytes, options, error);
  if (document == nullptr)
    complain_in_one_line(error, shown_name(file), {});
  return document;
}

bool read_or_complain(std::string const& file, apByteArray& bytes)
{
  InputBytes input = built_in_bytes(file, true);
  bytes = std::move(input.bytes);
  if (!input.is_read)
    complain_in_one_line(axmParseError(apString(input.fault.empty() ? "the file cannot be read" : input.fault.c_str())),
      shown_name(file), {});
  return input.is_read;
}

std::string shown_name(std::string const& file)
{
  return file == "-" ? "standard input" : file;
}

void complain_about(axmParseError const& error, std::string const& file, std::string const& more)
{
  complain_in_one_line(error, file, more);
  if (error.line_number() > 0)
    messages() << shown_place(apPath(place_of(error, file).c_str()), error.line_number(), error.column_number());
}

void complain_in_one_line(axmParseError const& error, std::string const& file, std::string const& more)
{
  messages() << shown(place_of(error, file));
  if (error.line_number() > 0)
    messages() << ':' << error.line_number() << ':' << std::max(error.column_number(), 1);
  messages() << ": " << shown(error.message().to_utf8().c_str()) << more << '\n';
}

std::shared_ptr<axmDocumentFactory> engine_or_complain()
{
  std::shared_ptr<axmDocumentFactory> factory = built_in_engine();
  if (factory == nullptr)
    messages() << "axm: this program was built without an engine\n";
  return factory;
}
