#include "Contender.h"

#include <libxml/parser.h>
#include <libxml/xmlreader.h>
#include <libxml/xmlschemas.h>

namespace
{
int const flags = XML_PARSE_HUGE | XML_PARSE_NONET;

class Schema
{
public:
  explicit Schema(std::string const& file)
  {
    xmlSchemaParserCtxt* const context = xmlSchemaNewParserCtxt(file.c_str());
    schema = xmlSchemaParse(context);
    xmlSchemaFreeParserCtxt(context);
  }
  Schema(Schema const&) = delete;
  Schema& operator=(Schema const&) = delete;
  ~Schema() { xmlSchemaFree(schema); }

  xmlSchema* schema;
};

class Tree final : public Contender
{
public:
  explicit Tree(std::string const& file) : schema(file) {}

  bool run(std::string const& document) override
  {
    xmlDoc* const tree = xmlReadFile(document.c_str(), nullptr, flags);
    xmlSchemaValidCtxt* const context = xmlSchemaNewValidCtxt(schema.schema);
    bool const is_valid = tree != nullptr && xmlSchemaValidateDoc(context, tree) == 0;
    xmlSchemaFreeValidCtxt(context);
    xmlFreeDoc(tree);
    return is_valid;
  }

private:
  Schema schema;
};

class Stream final : public Contender
{
public:
  explicit Stream(std::string const& file) : schema(file) {}

  bool run(std::string const& document) override
  {
    xmlTextReader* const reader = xmlReaderForFile(document.c_str(), nullptr, flags);
    xmlTextReaderSetSchema(reader, schema.schema);
    int state = 1;
    while (state == 1)
      state = xmlTextReaderRead(reader);
    bool const is_valid = state == 0 && xmlTextReaderIsValid(reader) == 1;
    xmlFreeTextReader(reader);
    return is_valid;
  }

private:
  Schema schema;
};
}

std::unique_ptr<Contender> make_libxml2_tree(std::string const& schema)
{
  return std::make_unique<Tree>(schema);
}

std::unique_ptr<Contender> make_libxml2_stream(std::string const& schema)
{
  return std::make_unique<Stream>(schema);
}

bool compile_with_libxml2(std::string const& schema)
{
  return Schema(schema).schema != nullptr;
}
