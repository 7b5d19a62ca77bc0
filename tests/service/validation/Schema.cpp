#include "Schema.h"

#include <atomic>

namespace
{
std::string new_name()
{
  static std::atomic<int> number{0};
  return "validation_" + std::to_string(++number) + ".xsd";
}
}

Schema::Schema(std::string const& content, std::string const& attributes)
  : file(new_name(), "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' elementFormDefault='qualified' " +
                       attributes + ">" + content + "</xs:schema>"),
    checking(options(file.path()))
{
}

axmLoadOptions Schema::options(apPath const& path)
{
  axmLoadOptions made(axmValidateWithSchemas);
  made.set_no_namespace_schema(path);
  return made;
}

std::string Schema::fault() const
{
  std::string all;
  for (axmParseError const& error : checking.schema_errors())
    all += narrow(error.message()) + "\n";
  return all;
}

std::string Schema::wrong(std::string const& document, std::size_t max_errors) const
{
  std::string all;
  for (axmParseError const& error : checking.check(bytes(document), max_errors).errors)
    all += std::to_string(error.line_number()) + ": " + narrow(error.message()) + "\n";
  return all;
}
