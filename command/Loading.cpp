#include "Loading.h"

#include "BuiltInEngine.h"
#include "SourceLine.h"

#include <algorithm>
#include <iostream>

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
  axmParseError error;
  std::shared_ptr<axmDocument> document = factory.loadDocument(apPath(file.c_str()), options, error);
  if (document != nullptr)
    return document;

  complain_about(error, file);
  return nullptr;
}

void complain_about(axmParseError const& error, std::string const& file, std::string const& more)
{
  complain_in_one_line(error, file, more);
  if (error.line_number() > 0)
    std::cerr << shown_place(apPath(place_of(error, file).c_str()), error.line_number(), error.column_number());
}

void complain_in_one_line(axmParseError const& error, std::string const& file, std::string const& more)
{
  std::cerr << shown(place_of(error, file));
  if (error.line_number() > 0)
    std::cerr << ':' << error.line_number() << ':' << std::max(error.column_number(), 1);
  std::cerr << ": " << shown(error.message().to_utf8().c_str()) << more << '\n';
}

std::shared_ptr<axmDocumentFactory> engine_or_complain()
{
  std::shared_ptr<axmDocumentFactory> factory = built_in_engine();
  if (factory == nullptr)
    std::cerr << "axm: this program was built without an engine\n";
  return factory;
}
