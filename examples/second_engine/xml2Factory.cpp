#include "xml2Factory.h"

#include "xml2Entities.h"
#include "xml2Node.h"
#include "xml2Schemas.h"

#include <libxml/parser.h>
#include <libxml/xmlsave.h>

#include <cstdio>
#include <cstring>
#include <string_view>
#include <utility>

namespace
{
// Whether the document under way may read files that it names, and whether it named one that is not there.
thread_local bool may_read = false;
thread_local bool missed_one = false;
xmlExternalEntityLoader default_loader = nullptr;

xmlParserInput* load_entity(char const* url, char const* id, xmlParserCtxt* context)
{
  xmlParserInput* const input = may_read ? default_loader(url, id, context) : nullptr;
  missed_one = missed_one || (may_read && input == nullptr);
  return input;
}

// What the library says beside what it reports.
void silent(void*, char const*, ...) {}

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

// In UTF-8, which has none, the library would take a zero byte for the end.
bool holds_zero(apByteArray const& data)
{
  bool const is_wide = data.size() > 1 && (data.data()[0] == '\xFF' || data.data()[0] == '\xFE' ||
                                            data.data()[0] == '\0' || data.data()[1] == '\0');
  return !is_wide && data.size() > 0 && std::memchr(data.data(), 0, data.size()) != nullptr;
}

// The library counts lines by line feeds alone, and a return ends one by itself.
bool has_lone_return(apByteArray const& data)
{
  std::string_view const text(data.data(), data.size());
  for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1))
    if (text.substr(at, 2) != "\r\n")
      return true;
  return false;
}

void forget_place(axmParseError& error)
{
  error.set_line_number(-1);
  error.set_column_number(-1);
}

// The library gives the document all the same. That a namespace has a name which is no URI breaks no rule.
bool breaks_namespaces(xmlParserCtxt& context)
{
  xmlError const* const last = xmlCtxtGetLastError(&context);
  return context.nsWellFormed == 0 && (last == nullptr || last->code != XML_WAR_NS_URI);
}

xmlDoc* tree_of(apByteArray const& data, apString const& url, int options, axmParseError& error)
{
  xmlParserCtxt* const context = xmlNewParserCtxt();
  xmlDoc* document = xmlCtxtReadMemory(context, data.data(), static_cast<int>(data.size()), url.to_utf8().c_str(),
    nullptr, XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | options);
  if (document == nullptr || breaks_namespaces(*context))
  {
    error = parser_error(*context, url);
    xmlFreeDoc(std::exchange(document, nullptr));
  }
  xmlFreeParserCtxt(context);
  return document;
}

// Once with the references as they are, to count them, and once with what they stand for.
xmlDoc* resolved(apByteArray const& data, apString const& url, axmLoadOptions const& options, axmParseError& error)
{
  if (holds_zero(data))
  {
    error = error_at(APSTRING("a zero byte is no character"), url);
    return nullptr;
  }
  int const outside = options.disable_entity_resolution() ? 0 : XML_PARSE_DTDLOAD;
  may_read = outside != 0;
  missed_one = false;
  xmlDoc* document = tree_of(data, url, outside, error);
  apString fault = document != nullptr ? xml2_entity_fault(document, options) : apString();
  bool const is_counted = document != nullptr && fault.empty();
  xmlFreeDoc(document);
  document = is_counted ? tree_of(data, url, outside | XML_PARSE_NOENT | XML_PARSE_DTDATTR, error) : nullptr;
  if (document != nullptr && missed_one)
    fault = APSTRING("a file that the document names cannot be read");
  may_read = false;
  if (fault.empty())
    return document;
  xmlFreeDoc(document);
  error = error_at(fault, url);
  return nullptr;
}

std::shared_ptr<axmDocument> parsed(
  apByteArray const& data, apString const& url, axmLoadOptions const& options, axmParseError& error)
{
  xmlDoc* const document = resolved(data, url, options, error);
  if (document == nullptr)
    return nullptr;
  auto const tree = std::make_shared<xml2Tree>(document);
  may_read = true;
  bool const is_valid = xml2_is_valid(document, url, options, error);
  may_read = false;
  if (!is_valid)
    return nullptr;
  tree->drop_white_space();
  return std::make_shared<xml2Document>(tree, tree->top());
}

std::shared_ptr<axmDocument> loaded(
  apByteArray const& data, apString const& url, axmLoadOptions const& options, axmParseError& error)
{
  auto const document = parsed(data, url, options, error);
  if (document == nullptr && has_lone_return(data))
    forget_place(error);
  return document;
}

// The document with both tags of every element, so that an empty text makes no difference.
apString written_out(xmlDoc* document)
{
  xmlBuffer* const buffer = xmlBufferCreate();
  xmlSaveCtxt* const context = xmlSaveToBuffer(buffer, "UTF-8", XML_SAVE_NO_EMPTY);
  xmlSaveDoc(context, document);
  xmlSaveClose(context);
  apString const text = xml2_text(xmlBufferContent(buffer));
  xmlBufferFree(buffer);
  return text;
}

// Whether what was saved is, once it is read, the document again.
bool comes_back(apByteArray const& saved, xmlDoc* document)
{
  axmParseError ignored;
  xmlDoc* const copy = tree_of(saved, apString(), XML_PARSE_NOENT | XML_PARSE_DTDATTR, ignored);
  bool const is_same = copy != nullptr && written_out(copy) == written_out(document);
  xmlFreeDoc(copy);
  return is_same;
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
  if (default_loader == nullptr)
    default_loader = xmlGetExternalEntityLoader();
  xmlSetExternalEntityLoader(load_entity);
  xmlSetGenericErrorFunc(nullptr, silent);
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
    return loaded(data, path.path(), options, error);
  error = error_at(APSTRING("the file cannot be read"), path.path());
  return nullptr;
}

std::shared_ptr<axmDocument> xml2Factory::loadDocument(
  apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const
{
  return loaded(data, apString(), options, error);
}

bool xml2Factory::saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output)
{
  xml2Handle const* const handle = xml2Handle::of(document.get());
  if (handle == nullptr)
    return false;
  if (!handle->tree->can_be_written(handle->node))
    return false;
  utString const text = handle->xml().to_utf8();
  apByteArray const saved(text.c_str(), static_cast<std::size_t>(text.length()));
  if (!comes_back(saved, handle->tree->document()))
    return false;
  output = saved;
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
