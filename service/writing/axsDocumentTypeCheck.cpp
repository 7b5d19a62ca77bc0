#include "axsDocumentTypeCheck.h"

#include "axsSaveFault.h"
#include "axsTokens.h"
#include "axsTree.h"

namespace
{
bool holds_element(axsElement const& element, axsDeclaredAttributes::Element const& declared, axsSaveFault& fault)
{
  std::size_t defaults = 0;
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
  {
    auto const found = declared.kinds.find(&at->full_name());
    if (found == declared.kinds.end())
      continue;
    defaults += found->second.has_default ? 1 : 0;
    if (found->second.has_tokens && !axsTokens::is_collapsed(at->text()))
      return fault.note(*at, "consists of tokens by its declaration, and its value has spaces that a reader takes out");
  }
  return defaults == declared.defaults.size() ||
         fault.note(element, "lacks an attribute that a reader adds, for the document type declares a default of it");
}
}

bool axsDocumentTypeCheck::holds(axsTree const& document, axsSaveFault& fault)
{
  axsDeclaredAttributes const& declared = document.declared_attributes();
  if (declared.empty() || document.doctype() == nullptr)
    return true;
  for (axsNode const* node = document.first_child(); node != nullptr; node = node->next_in_tree(document))
  {
    if (!node->is_element())
      continue;
    auto const& element = static_cast<axsElement const&>(*node);
    axsDeclaredAttributes::Element const* const found = declared.of(element.element_name());
    if (found != nullptr && !holds_element(element, *found, fault))
      return false;
  }
  return true;
}
