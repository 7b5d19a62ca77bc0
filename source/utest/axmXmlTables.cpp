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

Load load_of(axmDocumentFactory const& factory, char const* text, bool from_file)
{
  Load load;
  if (!from_file)
  {
    load.document = factory.loadDocument(bytes_of(text), axmLoadOptions(), load.error);
    return load;
  }
  apPath const path = axmUtestUtils::uniquify_filename(APSTRING("./xml_table"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, text);
  load.document = factory.loadDocument(path, axmLoadOptions(), load.error);
  return load;
}

void tell(utUnitTest& tester, char const* what, char const* text, bool from_file)
{
  tester.printf(
    "%s%s: %s", what, from_file ? ", from a file" : "", axmModelText::quoted(apString(text).view()).c_str());
}
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

bool axmXmlTables::is_taken(utUnitTest& tester, axmDocumentFactory const& factory, Taken const& taken)
{
  for (bool const from_file : {false, true})
  {
    Load const load = load_of(factory, taken.text, from_file);
    if (load.document == nullptr || !load.error.invalid())
    {
      tell(tester, "not loaded", taken.text, from_file);
      return false;
    }
    std::string const shape = shape_of(load.document);
    if (shape == taken.shape)
      continue;
    tell(tester, "not loaded as what it is", taken.text, from_file);
    tester.printf("Expected \"%s\"\nActual   \"%s\"", taken.shape, shape.c_str());
    return false;
  }
  return true;
}

bool axmXmlTables::is_refused(utUnitTest& tester, axmDocumentFactory const& factory, char const* text)
{
  for (bool const from_file : {false, true})
  {
    Load const load = load_of(factory, text, from_file);
    if (load.document == nullptr && !load.error.invalid())
      continue;
    tell(tester, "loaded, but is no document", text, from_file);
    return false;
  }
  return true;
}
