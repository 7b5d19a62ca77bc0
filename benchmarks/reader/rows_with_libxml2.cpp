#include "RowContender.h"
#include "RowMatch.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlreader.h>

#include <cstring>

namespace
{
using Wanted = RowTask::Wanted;

char const* chars(xmlChar const* text)
{
  return text == nullptr ? "" : reinterpret_cast<char const*>(text);
}

void start_element(xmlTextReaderPtr reader, RowMatch& match)
{
  bool const is_empty = xmlTextReaderIsEmptyElement(reader) == 1;
  if (Wanted const* const element = match.start(chars(xmlTextReaderConstName(reader))))
    while (xmlTextReaderMoveToNextAttribute(reader) == 1)
      match.attribute(*element, chars(xmlTextReaderConstName(reader)), chars(xmlTextReaderConstValue(reader)));
  if (is_empty)
    match.end();
}

bool is_text(int type)
{
  return type == XML_READER_TYPE_TEXT || type == XML_READER_TYPE_CDATA ||
         type == XML_READER_TYPE_SIGNIFICANT_WHITESPACE || type == XML_READER_TYPE_WHITESPACE;
}
}

bool rows_with_libxml2_reader(RowTask const& task, RowDigest& digest)
{
  xmlTextReaderPtr const reader = xmlReaderForFile(task.file.c_str(), nullptr, XML_PARSE_NOENT | XML_PARSE_HUGE);
  if (reader == nullptr)
    return false;
  RowMatch match(task, digest);
  int state = xmlTextReaderRead(reader);
  for (; state == 1; state = xmlTextReaderRead(reader))
  {
    int const type = xmlTextReaderNodeType(reader);
    if (type == XML_READER_TYPE_ELEMENT)
      start_element(reader, match);
    else if (type == XML_READER_TYPE_END_ELEMENT)
      match.end();
    else if (is_text(type))
    {
      char const* const text = chars(xmlTextReaderConstValue(reader));
      match.characters(text, std::strlen(text));
    }
  }
  xmlFreeTextReader(reader);
  return state == 0;
}

namespace
{
std::string name_of(xmlNs const* space, xmlChar const* name)
{
  return space == nullptr || space->prefix == nullptr ? chars(name)
                                                      : std::string(chars(space->prefix)) + ':' + chars(name);
}

class Tree
{
public:
  Tree(RowTask const& given, RowDigest& found) : task(given), digest(found), values(given.columns.size()) {}

  void visit(xmlNode* node, std::size_t level)
  {
    for (; node != nullptr; node = node->next)
    {
      if (node->type != XML_ELEMENT_NODE || name_of(node->ns, node->name) != task.path[level])
        continue;
      if (level + 1 < task.path.size())
        visit(node->children, level + 1);
      else
        visit_record(node);
    }
  }

private:
  void visit_record(xmlNode* node)
  {
    values.assign(values.size(), std::nullopt);
    take(node, task.record);
    digest.begin_row();
    for (std::size_t i = 0; i < values.size(); ++i)
      digest.add(i, values[i]);
  }

  void take(xmlNode* node, Wanted const& element)
  {
    for (xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next)
      for (Wanted::Attribute const& wanted : element.attributes)
        if (!values[wanted.column] && name_of(attribute->ns, attribute->name) == wanted.name)
          values[wanted.column] = value_of(attribute);
    for (std::size_t const column : element.texts)
      if (!values[column])
        values[column] = text_of(node);
    for (xmlNode* child = node->children; child != nullptr; child = child->next)
      if (child->type == XML_ELEMENT_NODE)
        for (Wanted const& wanted : element.children)
          if (name_of(child->ns, child->name) == wanted.name)
            take(child, wanted);
  }

  static std::string value_of(xmlAttr* attribute)
  {
    xmlChar* const value = xmlNodeListGetString(attribute->doc, attribute->children, 1);
    std::string const text = chars(value);
    xmlFree(value);
    return text;
  }

  static std::string text_of(xmlNode* node)
  {
    std::string text;
    for (xmlNode* child = node->children; child != nullptr; child = child->next)
      if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE)
        text += chars(child->content);
    return text;
  }

  RowTask const& task;
  RowDigest& digest;
  std::vector<std::optional<std::string>> values;
};
}

bool rows_expected(RowTask const& task, RowDigest& digest)
{
  xmlDoc* const document = xmlReadFile(task.file.c_str(), nullptr, XML_PARSE_NOENT | XML_PARSE_HUGE);
  if (document == nullptr)
    return false;
  Tree(task, digest).visit(xmlDocGetRootElement(document), 0);
  xmlFreeDoc(document);
  return true;
}
