#include "xml2Schemas.h"

#include <libxml/xmlschemas.h>

#include <string>
#include <string_view>

namespace
{
// A file as a URI: its bytes, but for plain ones, as %XX.
std::string uri_of(apPath const& path)
{
  char const digits[] = "0123456789ABCDEF";
  std::string uri;
  std::string const text = path.path().c_str();
  for (char const character : text)
  {
    auto const byte = static_cast<unsigned char>(character);
    bool const is_plain = (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') ||
                          (byte >= 'A' && byte <= 'Z') || byte == '/' || byte == '.' || byte == '_' || byte == '-';
    if (is_plain)
      uri += character;
    else
      uri += {'%', digits[byte >> 4U], digits[byte & 0xFU]};
  }
  return uri;
}

std::string escaped(apString const& text)
{
  apString result = text;
  result.replace_all(APSTRING("&"), APSTRING("&amp;"));
  result.replace_all(APSTRING("<"), APSTRING("&lt;"));
  result.replace_all(APSTRING("\""), APSTRING("&quot;"));
  return result.to_utf8().c_str();
}

// One schema that takes in all others.
std::string schema_of_all(axmLoadOptions const& options)
{
  std::string schema = "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">";
  for (int index = 0; index < options.num_external_schemas(); ++index)
    schema += "<xs:import namespace=\"" + escaped(options.external_namespace(index)) + "\" schemaLocation=\"" +
              uri_of(options.external_schema(index)) + "\"/>";
  if (!options.no_namespace_schema().empty())
    schema += "<xs:include schemaLocation=\"" + uri_of(options.no_namespace_schema()) + "\"/>";
  return schema + "</xs:schema>";
}

bool are_all_there(axmLoadOptions const& options)
{
  for (int index = 0; index < options.num_external_schemas(); ++index)
    if (!options.external_schema(index).exists())
      return false;
  return options.no_namespace_schema().empty() || options.no_namespace_schema().exists();
}

// Whether any of the schemas is for the namespace of the root.
bool concern(axmLoadOptions const& options, xmlDoc* document)
{
  xmlNode const* const root = xmlDocGetRootElement(document);
  if (root->ns == nullptr)
    return !options.no_namespace_schema().empty();
  apString const name_space(reinterpret_cast<char const*>(root->ns->href));
  for (int index = 0; index < options.num_external_schemas(); ++index)
    if (options.external_namespace(index) == name_space)
      return true;
  return false;
}

// The first of several errors is kept.
void note(void* data, xmlError* given)
{
  auto& error = *static_cast<axmParseError*>(data);
  if (given->level < XML_ERR_ERROR || !error.invalid())
    return;
  error = axmParseError(apString(given->message));
  if (given->line > 0)
    error.set_line_number(given->line);
}

// The same of a schema. The text that takes in all of them has no lines that anybody knows.
void note_of_schema(void* data, xmlError* given)
{
  auto& error = *static_cast<axmParseError*>(data);
  bool const is_first = error.invalid();
  note(data, given);
  if (is_first && (given->file == nullptr || std::string_view(given->file) == "in_memory_buffer"))
    error.set_line_number(-1);
}

bool is_valid_under(xmlDoc* document, xmlSchema* schema, axmParseError& error)
{
  xmlSchemaValidCtxt* const context = xmlSchemaNewValidCtxt(schema);
  xmlSchemaSetValidStructuredErrors(context, note, &error);
  bool const is_valid = xmlSchemaValidateDoc(context, document) == 0;
  xmlSchemaFreeValidCtxt(context);
  return is_valid;
}
}

bool xml2_is_valid(xmlDoc* document, apString const& url, axmLoadOptions const& options, axmParseError& error)
{
  bool const has_none = options.num_external_schemas() == 0 && options.no_namespace_schema().empty();
  if (options.validate_mode() != axmValidateWithSchemas || has_none)
    return true;
  axmParseError found;
  bool is_valid = false;
  bool is_usable = false;
  if (are_all_there(options))
  {
    std::string const text = schema_of_all(options);
    xmlSchemaParserCtxt* const context = xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size()));
    xmlSchemaSetParserStructuredErrors(context, note_of_schema, &found);
    xmlSchema* const schema = xmlSchemaParse(context);
    xmlSchemaFreeParserCtxt(context);
    is_usable = schema != nullptr && found.invalid();
    is_valid = is_usable && (!concern(options, document) || is_valid_under(document, schema, found));
    xmlSchemaFree(schema);
  }
  // A schema that cannot be used has a name that the library does not tell as it was given.
  if (is_usable)
    found.set_url(url);
  if (!is_valid)
    error = found.invalid() ? axmParseError(APSTRING("a schema cannot be used")) : found;
  return is_valid;
}
