#include "axmXmlTables.h"

#include "axmUtestFile.h"
#include "model/axmModelText.h"

#include "axmCharacterData.h"
#include "axmCommentNode.h"
#include "axmProcessingInstruction.h"
#include "axmTextNode.h"
#include "axmUtestUtils.h"
#include <utUnitTest.h>

#include <algorithm>
#include <utility>
#include <vector>

using namespace axmUtestAccess;

namespace
{
constexpr int max_nodes = 100000;

std::string narrow(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return std::string(utf8.c_str(), static_cast<std::size_t>(utf8.length()));
}

std::string start_of(axmElement& element)
{
  std::vector<std::pair<std::string, std::string>> attributes;
  auto const map = element.getAttributes();
  int const length = map != nullptr ? std::min(map->getLength(), max_nodes) : 0;
  for (int index = 0; index < length; ++index)
  {
    Node const attribute = map->item(index);
    std::string const name = narrow(name_of(attribute));
    if (name != "xmlns" && name.substr(0, 6) != "xmlns:")
      attributes.emplace_back(name, narrow(value_of(attribute)));
  }
  std::sort(attributes.begin(), attributes.end());
  std::string start = "<" + narrow(element.getNodeName());
  for (auto const& [name, value] : attributes)
    start += " " + name + "='" + value + "'";
  return start + ">";
}

bool is_element(Node const& node)
{
  return std::dynamic_pointer_cast<axmElement>(node) != nullptr &&
         std::dynamic_pointer_cast<axmCharacterData>(node) == nullptr &&
         std::dynamic_pointer_cast<axmProcessingInstruction>(node) == nullptr;
}

bool has_content(Node const& node)
{
  return is_element(node) || std::dynamic_pointer_cast<axmDocument>(node) != nullptr;
}

// What stands where a node begins.
std::string beginning_of(Node const& node)
{
  if (is_element(node))
    return start_of(dynamic_cast<axmElement&>(*node));
  if (std::dynamic_pointer_cast<axmTextNode>(node) != nullptr)
    return narrow(node->getNodeValue());
  if (std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr)
    return "<!--" + narrow(node->getNodeValue()) + "-->";
  if (std::dynamic_pointer_cast<axmProcessingInstruction>(node) != nullptr)
    return "<?" + narrow(node->getNodeName()) + " " + narrow(node->getNodeValue()) + "?>";
  return {};
}

std::string end_of(Node const& node)
{
  return is_element(node) ? "</" + narrow(node->getNodeName()) + ">" : std::string();
}

struct Load
{
  std::shared_ptr<axmDocument> document;
  axmParseError error;
};

std::string in_place_of(std::string text, std::string const& wanted, std::string const& replacement)
{
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string::npos; at += replacement.size())
    text.replace(at, wanted.size(), replacement);
  return text;
}

std::string with_other_quotes(std::string const& text)
{
  bool const has_literals = text.find("PUBLIC") != std::string::npos;
  bool const has_both = text.find('"') != std::string::npos;
  return has_literals || has_both ? text : in_place_of(text, "'", "\"");
}

std::string with_one_quote(std::string const& text)
{
  return in_place_of(text, "\"", "'");
}

std::string with_long_line_ends(std::string const& text)
{
  return text.find('\r') != std::string::npos ? text : in_place_of(text, "\n", "\r\n");
}

void add_unit(std::string& bytes, unsigned unit, bool high_first)
{
  char const high = static_cast<char>(unit >> 8U & 0xFFU);
  char const low = static_cast<char>(unit & 0xFFU);
  bytes += high_first ? high : low;
  bytes += high_first ? low : high;
}

// What a root r holds as the text of an entity, which the root holds in its place.
std::string in_entity(std::string const& text)
{
  static std::string const end_of_type = "]>";
  static std::string const begin = "<r>";
  static std::string const end = "</r>";
  bool const has_type = text.compare(0, 13, "<!DOCTYPE r [") == 0;
  std::size_t const at = has_type ? text.find(end_of_type + begin) : 0;
  std::size_t const root = has_type && at != std::string::npos ? at + end_of_type.size() : 0;
  std::size_t const from = root + begin.size();
  if (at == std::string::npos || text.compare(root, begin.size(), begin) != 0 || text.size() <= from + end.size() ||
      text.compare(text.size() - end.size(), end.size(), end) != 0)
    return text;
  std::string content = text.substr(from, text.size() - end.size() - from);
  // References to entities are left as they are there (XML 1.0, 4.4.7), those to characters are not.
  for (auto const& [part, reference] : {std::pair("&#", "&#38;#"), std::pair("%", "&#37;")})
    content = in_place_of(content, part, reference);
  bool const has_quotes = content.find('"') != std::string::npos;
  if (has_quotes)
    content = in_place_of(content, "'", "&#39;");
  std::string const quote = has_quotes ? "'" : "\"";
  return (has_type ? text.substr(0, at) : "<!DOCTYPE r [") + "<!ENTITY whole " + quote + content + quote + ">]>" +
         begin + "&whole;" + end;
}

std::string as_it_is(std::string const& text)
{
  return text;
}

// How a document is given, which makes no difference to what it is.
struct Way
{
  char const* name;
  std::string (*bytes)(std::string const& text);
  bool from_file;
  axmValidateMode mode;
};

Way const ways[] = {
  {"", as_it_is, false, axmValidateNone},
  {", from a file", as_it_is, true, axmValidateNone},
  {", with the other quotes", with_other_quotes, false, axmValidateNone},
  {", with line ends of two characters", with_long_line_ends, false, axmValidateNone},
  {", in UTF-16, the low byte first", [](std::string const& text) { return axmXmlTables::in_utf16(text, false); },
    false, axmValidateNone},
  {", in UTF-16, the high byte first", [](std::string const& text) { return axmXmlTables::in_utf16(text, true); },
    false, axmValidateNone},
  {", in an entity", in_entity, false, axmValidateNone},
  {", validated without any schema", as_it_is, false, axmValidateWithSchemas},
};

Load load_of(axmDocumentFactory const& factory, char const* text, Way const& way)
{
  Load load;
  if (!way.from_file)
  {
    std::string const bytes = way.bytes(text);
    load.document = factory.loadDocument(apByteArray(bytes.data(), bytes.size()), axmLoadOptions(way.mode), load.error);
    return load;
  }
  apPath const path = axmUtestUtils::uniquify_filename(APSTRING("./xml_table"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, text);
  load.document = factory.loadDocument(path, axmLoadOptions(way.mode), load.error);
  return load;
}

void tell(utUnitTest& tester, char const* what, char const* text, Way const& way)
{
  tester.printf("%s%s: %s", what, way.name, axmModelText::quoted(apString(text).view()).c_str());
}
}

std::string axmXmlTables::in_utf16(std::string const& text, bool high_first)
{
  apString const wide(text.c_str());
  if (text.find("encoding") != std::string::npos || narrow(wide) != text)
    return text;
  std::string bytes;
  bool const has_mark = !wide.empty() && wide.view().front() == L'\uFEFF';
  for (wchar_t const character : (has_mark ? L"" : L"\uFEFF") + std::wstring(wide.view()))
  {
    auto const code = static_cast<unsigned>(character);
    if (code > 0xFFFF)
      add_unit(bytes, 0xD800U + ((code - 0x10000U) >> 10U), high_first);
    add_unit(bytes, code > 0xFFFF ? 0xDC00U + (code & 0x3FFU) : code, high_first);
  }
  return bytes;
}

std::string axmXmlTables::shape_of(Node const& top)
{
  std::string shape;
  std::vector<Node> open;
  Node next = top;
  for (int count = 0; count < max_nodes && (next != nullptr || !open.empty()); ++count)
  {
    if (next == nullptr)
    {
      shape += end_of(open.back());
      next = open.size() > 1 ? open.back()->getNextSibling() : nullptr;
      open.pop_back();
      continue;
    }
    shape += beginning_of(next);
    open.push_back(next);
    next = has_content(next) ? next->getFirstChild() : nullptr;
  }
  return shape;
}

namespace
{
// Whether the document is the same once it was saved to memory and loaded again.
bool is_saved(axmDocumentFactory& factory, std::shared_ptr<axmDocument> const& document, std::string const& shape)
{
  apByteArray output;
  axmParseError error;
  return factory.saveDocument(document, output) &&
         axmXmlTables::shape_of(factory.loadDocument(output, axmLoadOptions(), error)) == shape;
}
}

bool axmXmlTables::is_taken(utUnitTest& tester, axmDocumentFactory& factory, Taken const& taken)
{
  for (Way const& way : ways)
  {
    Load const load = load_of(factory, taken.text, way);
    if (load.document == nullptr || !load.error.invalid())
    {
      tell(tester, "not loaded", taken.text, way);
      return false;
    }
    std::string const shape = shape_of(load.document);
    // Quotes that are part of a text have become others, too.
    bool const is_right =
      way.bytes == with_other_quotes ? with_one_quote(shape) == with_one_quote(taken.shape) : shape == taken.shape;
    if (is_right && is_saved(factory, load.document, shape))
      continue;
    if (is_right)
      tell(tester, "not saved as what it is", taken.text, way);
    else
      tell(tester, "not loaded as what it is", taken.text, way);
    tester.printf("Expected \"%s\"\nActual   \"%s\"", taken.shape, shape.c_str());
    return false;
  }
  return true;
}

bool axmXmlTables::is_refused(utUnitTest& tester, axmDocumentFactory const& factory, char const* text)
{
  for (Way const& way : ways)
  {
    Load const load = load_of(factory, text, way);
    if (load.document == nullptr && !load.error.invalid())
      continue;
    tell(tester, "loaded, but is no document", text, way);
    return false;
  }
  return true;
}
