#include "axsTreeBuilder.h"

#include "axsDomAttribute.h"
#include "axsDomComment.h"
#include "axsDomDoctype.h"
#include "axsDomDocument.h"
#include "axsDomElement.h"
#include "axsDomInstruction.h"
#include "axsDomText.h"
#include "axsStartTag.h"

#include <apBits.h>
#include <utXmlCharacter.h>

#include <algorithm>
#include <cstdint>

namespace
{
// Whether all of `text` is its last character. Most white space is a line end and one character again and again.
bool is_repetition(std::string_view text)
{
  if (text.empty())
    return true;
  std::size_t const word_size = sizeof(std::uint64_t);
  if (text.size() < word_size)
    return std::all_of(text.begin(), text.end(), [last = text.back()](char c) { return c == last; });
  std::uint64_t const word = 0x0101010101010101u * static_cast<unsigned char>(text.back());
  char const* const last_word = text.data() + text.size() - word_size;
  for (char const* at = text.data(); at < last_word; at += word_size)
    if (apBits::load(at) != word)
      return false;
  return apBits::load(last_word) == word;
}

// Most texts that are more than white space begin or end with something else.
bool is_space_only(std::string_view text)
{
  using utXmlCharacter::is_space;
  if (text.empty())
    return true;
  if (!is_space(text.front()) || !is_space(text.back()))
    return false;
  return is_repetition(text.substr(1)) || std::all_of(text.begin(), text.end(), [](char c) { return is_space(c); });
}

bool is_dropped(std::string_view text)
{
  return is_space_only(text) && text != " ";
}
}

axsTreeBuilder::axsTreeBuilder(axsDomDocument& document) noexcept : axsTreeBuilder(document, document) {}

axsTreeBuilder::axsTreeBuilder(axsDomDocument& document, axsParent& parent) noexcept
  : built(document),
    tree(document),
    open(&parent)
{
}

void axsTreeBuilder::declaration(std::string_view version, std::string_view, std::string_view standalone)
{
  built.set_xml_1_1(version == "1.1");
  built.set_standalone(standalone);
}

axsName const& axsTreeBuilder::name(std::string_view text)
{
  axsName const& name = built.names().intern(text);
  if (text == "xml:space")
    space_name = &name;
  return name;
}

void axsTreeBuilder::start_element(axsStartTag const& tag)
{
  auto* const element = tree.make_element<axsDomElement>(*tag.name);
  open->append_new(*element);
  open = element;
  axsAttribute* last = nullptr;
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    auto* const made = tree.make_leaf<axsDomAttribute>(attribute.value, *attribute.name);
    element->append_unseen_attribute(*made, last);
    last = made;
    if (attribute.name == space_name)
      spaces.push_back({element, attribute.value == "preserve"});
  }
}

void axsTreeBuilder::end_element()
{
  if (!spaces.empty() && spaces.back().element == open)
    spaces.pop_back();
  open = static_cast<axsParent*>(open->parent());
}

void axsTreeBuilder::text(std::string_view text, bool is_cdata)
{
  bool const is_preserved = keeps_spaces || (!spaces.empty() && spaces.back().is_preserved);
  if ((is_preserved || !is_dropped(text)) && !open->is_document())
    open->append_new(*tree.make_leaf<axsDomText>(text, is_cdata ? axsKind::cdata_section : axsKind::text));
}

void axsTreeBuilder::comment(std::string_view data)
{
  open->append_new(*built.make_comment(data));
}

void axsTreeBuilder::processing_instruction(std::string_view target, std::string_view data)
{
  open->append_new(*built.make_processing_instruction(target, data));
}

void axsTreeBuilder::doctype(std::shared_ptr<axsDtd const> const& type)
{
  open->append_new(*built.make_doctype(type->text));
  for (axsDtd::Element const& element : type->elements)
    for (axsDtd::Attribute const& attribute : element.attributes)
      declare(name(element.name), attribute);
}

void axsTreeBuilder::declare(axsName const& element, axsDtd::Attribute const& attribute)
{
  bool const has_default = attribute.kind == axsDtd::Default::value || attribute.kind == axsDtd::Default::fixed;
  bool const has_tokens = attribute.type != axsAttributeType::cdata;
  if (!has_default && !has_tokens)
    return;
  axsName const& declared = name(attribute.name);
  if (attribute.type == axsAttributeType::id)
    built.id_attributes().declare(element, declared);
  if (has_tokens)
    built.declared_attributes().declare_tokens(element, declared);
  if (has_default)
    built.declared_attributes().declare_default(element, declared, attribute.value);
}
