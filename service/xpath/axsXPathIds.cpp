#include "axsXPathIds.h"

#include "axsTree.h"
#include "axsXPathText.h"

axsXPathIds::axsXPathIds(axsNode& top)
  : declared(top.tree().doctype() == nullptr ? nullptr : &top.tree().id_attributes()),
    xml_id(top.tree().names().find("xml:id"))
{
  for (axsNode* node = &top; node != nullptr; node = node->next_in_tree(top))
    if (node->is_element())
      add(static_cast<axsElement&>(*node));
}

axsNode* axsXPathIds::find(std::string_view id) const
{
  auto const found = elements.find(id);
  return found == elements.end() ? nullptr : found->second;
}

void axsXPathIds::add(axsElement& element)
{
  axsIdAttributes::Names const* const ids = declared == nullptr ? nullptr : declared->of(element.element_name());
  for (axsAttribute* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
  {
    axsName const& name = at->full_name();
    if (&name == xml_id || (ids != nullptr && ids->count(&name) != 0))
      elements.emplace(axsXPathText::trim(at->text()), &element);
  }
}
