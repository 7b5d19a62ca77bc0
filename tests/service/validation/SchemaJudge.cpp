#include "SchemaJudge.h"

#include <libxml/parser.h>
#include <libxml/xmlIO.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlschemas.h>

namespace
{
void note(void* said, xmlError* error)
{
  if (error != nullptr && error->message != nullptr)
    *static_cast<std::string*>(said) += error->message;
}

void say_nothing(void*, char const*, ...) {}
}

struct SchemaJudge::Schema
{
  explicit Schema(xmlSchema* made) : schema(made) {}
  Schema(Schema const&) = delete;
  Schema& operator=(Schema const&) = delete;
  ~Schema() { xmlSchemaFree(schema); }

  xmlSchema* schema;
};

SchemaJudge::SchemaJudge(std::string const& text)
{
  parse(xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size())));
}

SchemaJudge::SchemaJudge(std::filesystem::path const& file)
{
  parse(xmlSchemaNewParserCtxt(file.string().c_str()));
}

void SchemaJudge::parse(xmlSchemaParserCtxt* parser)
{
  xmlSetGenericErrorFunc(nullptr, say_nothing);
  xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
  xmlSchemaSetParserStructuredErrors(parser, note, &said);
  schema = std::make_unique<Schema>(xmlSchemaParse(parser));
  xmlSchemaFreeParserCtxt(parser);
}

SchemaJudge::~SchemaJudge() = default;

bool SchemaJudge::takes_schema() const
{
  return schema->schema != nullptr;
}

bool SchemaJudge::takes(std::string const& text)
{
  said.clear();
  xmlDoc* const document = xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
  if (document == nullptr)
  {
    said = "not well-formed";
    return false;
  }
  xmlSchemaValidCtxt* const validation = xmlSchemaNewValidCtxt(schema->schema);
  xmlSchemaSetValidStructuredErrors(validation, note, &said);
  bool const is_valid = xmlSchemaValidateDoc(validation, document) == 0;
  xmlSchemaFreeValidCtxt(validation);
  xmlFreeDoc(document);
  return is_valid;
}
