#include "Loading.h"

#include "BuiltInEngine.h"
#include "SourceLine.h"

#include <algorithm>
#include <iostream>

std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, axmLoadOptions const& options)
{
  axmParseError error;
  std::shared_ptr<axmDocument> document = factory.loadDocument(apPath(file.c_str()), options, error);
  if (document != nullptr)
    return document;

  std::string const where = error.url().empty() ? file : error.url().to_utf8().c_str();
  std::cerr << where;
  if (error.line_number() > 0)
    std::cerr << ':' << error.line_number() << ':' << std::max(error.column_number(), 1);
  std::cerr << ": " << shown(error.message().to_utf8().c_str()) << '\n';
  if (error.line_number() > 0)
    std::cerr << shown_place(apPath(where.c_str()), error.line_number(), error.column_number());
  return nullptr;
}

std::shared_ptr<axmDocumentFactory> engine_or_complain()
{
  std::shared_ptr<axmDocumentFactory> factory = built_in_engine();
  if (factory == nullptr)
    std::cerr << "axm: this program was built without an engine\n";
  return factory;
}
