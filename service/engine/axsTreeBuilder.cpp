#include "axsTreeBuilder.h"

#include "axsAttribute.h"
#include "axsCommentNode.h"
#include "axsDoctype.h"
#include "axsDocument.h"
#include "axsElement.h"
#include "axsProcessingInstruction.h"
#include "axsTextNode.h"

#include <algorithm>

namespace
{
bool is_space(char c)
{
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool is_dropped(std::string_view text)
{
  return text != " " && std::all_of(text.begin(), text.end(), is_space);
}
}

axsTreeBuilder::axsTreeBuilder(axsDocument& document) noexcept : built(document), open(&document) {}

void axsTreeBuilder::version(std::string_view number)
{
  built.is_xml_1_1 = number == "1.1";
}

axsName const& axsTreeBuilder::name(std::string_view text)
{
  return built.names().intern(text);
}

void axsTreeBuilder::start_element(axsName const& name)
{
  axsElement* const element = built.make_element(name);
  axsTree::append(*open, *element);
  open = element;
  last_attribute = nullptr;
}

void axsTreeBuilder::attribute(axsName const& name, std::string_view value)
{
  axsAttribute* const made = built.make_attribute(name, value);
  static_cast<axsElement*>(open)->append_attribute(*made, last_attribute);
  last_attribute = made;
}

void axsTreeBuilder::end_element()
{
  open = static_cast<axsParent*>(open->parent());
}

void axsTreeBuilder::text(std::string_view text)
{
  append_text(text, false);
}

void axsTreeBuilder::cdata(std::string_view section)
{
  append_text(section, true);
}

void axsTreeBuilder::comment(std::string_view data)
{
  axsTree::append(*open, *built.make_comment(data));
}

void axsTreeBuilder::processing_instruction(std::string_view target, std::string_view data)
{
  axsTree::append(*open, *built.make_processing_instruction(target, data));
}

void axsTreeBuilder::doctype(std::string_view declaration)
{
  axsTree::append(*open, *built.make_doctype(declaration));
}

void axsTreeBuilder::append_text(std::string_view text, bool cdata)
{
  if (!is_dropped(text) && !open->is_document())
    axsTree::append(*open, *built.make_text(text, cdata));
}
