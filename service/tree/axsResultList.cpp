#include "axsResultList.h"

#include "axsDocument.h"

#include <utility>

axsResultList::axsResultList(axsNode& context, std::vector<axsXPathNode> found) noexcept
  : nodes(std::move(found)),
    root(nodes.empty() ? nullptr : &context.root())
{
  if (root == nullptr)
    return;
  root->acquire();
  axsResultList*& chain = root->document().result_lists;
  next_list = chain;
  if (chain != nullptr)
    chain->previous_list = this;
  chain = this;
}

axsResultList::~axsResultList()
{
  if (root != nullptr)
  {
    leave_chain();
    root->release();
    return;
  }
  for (axsXPathNode const node : nodes)
    node.node()->release();
}

std::shared_ptr<axmElement> axsResultList::at(int index)
{
  if (index < 0 || index >= length())
    return nullptr;
  return nodes[static_cast<std::size_t>(index)].node()->item_handle();
}

int axsResultList::length() const
{
  return static_cast<int>(nodes.size());
}

void axsResultList::leave_chain() noexcept
{
  if (next_list != nullptr)
    next_list->previous_list = previous_list;
  (previous_list == nullptr ? root->document().result_lists : previous_list->next_list) = next_list;
}

void axsResultList::nodes_leaving() noexcept
{
  for (axsXPathNode const node : nodes)
    node.node()->acquire();
  leave_chain();
  std::exchange(root, nullptr)->release();
}
