#include "xml2Factory.h"

#include "xml2Node.h"

#include <libxml/parser.h>

#include <cstdio>

namespace
{
xmlParserInput* no_external_entity(char const*, char const*, xmlParserCtxt*)
{
  return nullptr;
}

std::shared_ptr<axmDocument> wrapped(xmlDoc* document)
{
  auto const tree = std::make_shared<xml2Tree>(document);
  return std::make_shared<xml2Document>(tree, tree->top());
}

axmParseError error_at(apString const& message, apString const& url)
{
  axmParseError error(message);
  error.set_url(url);
  return error;
}

axmParseError parser_error(xmlParserCtxt& context, apString const& url)
{
  xmlError const* const last = xmlCtxtGetLastError(&context);
  if (last == nullptr)
    return error_at(APSTRING("not a document"), url);
  axmParseError error = error_at(apString(last->message), url);
  error.set_line_number(last->line);
  error.set_column_number(last->int2);
  return error;
}

bool wants_schema(axmLoadOptions const& options)
{
  return options.validate_mode() == axmValidateWithSchemas &&
         (options.num_external_schemas() > 0 || !options.no_namespace_schema().empty());
}

std::shared_ptr<axmDocument> parsed(
  apByteArray const& data, apString const& url, axmLoadOptions const& options, axmParseError& error)
{
  if (wants_schema(options))
  {
    error = error_at(APSTRING("this engine does not validate"), url);
    return nullptr;
  }
  xmlParserCtxt* const context = xmlNewParserCtxt();
  xmlDoc* document =
    xmlCtxtReadMemory(context, data.data(), static_cast<int>(data.size()), url.to_utf8().c_str(), nullptr,
      XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
  if (document == nullptr)
    error = parser_error(*context, url);
  xmlFreeParserCtxt(context);
  if (document == nullptr)
    return nullptr;
  auto const tree = std::make_shared<xml2Tree>(document);
  tree->drop_white_space();
  return std::make_shared<xml2Document>(tree, tree->top());
}

bool read(apPath const& path, apByteArray& data)
{
  std::FILE* const file = path.file_open(apPath::read_mode());
  if (file == nullptr)
    return false;
  char part[4096];
  for (std::size_t size = 0; (size = std::fread(part, 1, sizeof part, file)) > 0;)
    data.append(part, size);
  std::fclose(file);
  return true;
}
}

xml2Factory::xml2Factory()
{
  xmlInitParser();
  xmlSetExternalEntityLoader(no_external_entity);
}

xml2Factory::~xml2Factory() = default;

std::shared_ptr<axmDocument> xml2Factory::createDocument(apString const& root_name) const
{
  auto const document = wrapped(xmlNewDoc(reinterpret_cast<xmlChar const*>("1.0")));
  auto const root = document->createElement(root_name);
  if (root == nullptr)
    return nullptr;
  document->appendChild(root);
  return document;
}

std::shared_ptr<axmDocument> xml2Factory::loadDocument(
  apPath const& path, axmLoadOptions const& options, axmParseError& error) const
{
  apByteArray data;
  if (read(path, data))
    return parsed(data, path.path(), options, error);
  error = error_at(APSTRING("the file cannot be read"), path.path());
  return nullptr;
}

std::shared_ptr<axmDocument> xml2Factory::loadDocument(
  apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const
{
  return parsed(data, apString(), options, error);
}

bool xml2Factory::saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output)
{
  xml2Handle const* const handle = xml2Handle::of(document.get());
  if (handle == nullptr)
    return false;
  if (!handle->tree->can_be_written())
    return false;
  utString const text = handle->xml().to_utf8();
  output = apByteArray(text.c_str(), static_cast<std::size_t>(text.length()));
  return true;
}

bool xml2Factory::saveDocument(std::shared_ptr<axmDocument> document, apPath const& path)
{
  apByteArray output;
  std::FILE* const file = saveDocument(document, output) ? path.file_open(apPath::write_mode()) : nullptr;
  if (file == nullptr)
    return false;
  bool const written = std::fwrite(output.data(), 1, output.size(), file) == output.size();
  return std::fclose(file) == 0 && written;
}
