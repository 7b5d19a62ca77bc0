#include "axsSaveFault.h"

#include "axsElement.h"
#include "axsName.h"

namespace
{
std::string quoted(std::string_view text)
{
  return '"' + std::string(text) + '"';
}

std::string subject(axsNode const& node)
{
  switch (node.kind())
  {
  case axsKind::document:
  case axsKind::doctype:
    return "the document";
  case axsKind::element:
    return "the element " + quoted(node.node_name());
  case axsKind::attribute:
    return "the attribute " + quoted(node.node_name());
  case axsKind::text:
    return "a text";
  case axsKind::cdata_section:
    return "a CDATA section";
  case axsKind::comment:
    return "a comment";
  case axsKind::processing_instruction:
    return "the processing instruction " + quoted(node.node_name());
  }
  return {};
}
}

std::string axsSaveFault::text() const
{
  if (words == nullptr)
    return {};
  std::string text = subject(*node);
  axsNode const* const parent = node->parent();
  if (parent != nullptr && parent->is_element())
    text += " in " + quoted(parent->node_name());
  return text + ' ' + words;
}
