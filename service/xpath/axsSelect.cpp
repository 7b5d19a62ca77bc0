#include "axsTree.h"

#include "axsDocument.h"
#include "axsResultList.h"
#include "axsXPathQuery.h"

namespace
{
std::string_view view_of(utString const& text) noexcept
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}
}

std::shared_ptr<axmNodeList> axsTree::select_nodes(axsNode& context, apString const& xpath)
{
  axsXPathError error;
  utString const expression = xpath.to_utf8();
  return std::allocate_shared<axsResultList>(axsHandleAllocator<axsResultList>(context.document().handle_pool()),
    context, axsXPathQuery::select(context, view_of(expression), error));
}

std::shared_ptr<axmNode> axsTree::select_single_node(axsNode& context, apString const& xpath)
{
  axsXPathError error;
  utString const expression = xpath.to_utf8();
  return handle(axsXPathQuery::select_first(context, view_of(expression), error));
}
