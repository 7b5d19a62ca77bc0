#include "axsStaticNodeList.h"

#include "axsDomDocument.h"
#include "axsHandle.h"

#include <utility>

std::shared_ptr<axmNodeList> axsStaticNodeList::make(axsNode& context, std::vector<axsXPathNode> found)
{
  return axsHandle::make_object<axmNodeList, axsStaticNodeList>(axsDomDocument::of(context), context, std::move(found));
}

axsStaticNodeList::axsStaticNodeList(axsNode& context, std::vector<axsXPathNode> found) noexcept
  : nodes(std::move(found)),
    is_shared(context.tree().is_shared()),
    root(nodes.empty() || is_shared ? nullptr : &context.root())
{
  if (root == nullptr)
    return;
  root->acquire();
  axsDomDocument::of(*root).add(*this);
}

axsStaticNodeList::~axsStaticNodeList()
{
  if (is_shared)
    return;
  if (last != nullptr)
    last->release();
  if (root != nullptr)
  {
    axsDomDocument::of(*root).remove(*this);
    root->release();
    return;
  }
  for (axsXPathNode const node : nodes)
    node.node()->release();
}

std::shared_ptr<axmElement> axsStaticNodeList::at(int index)
{
  if (index < 0 || index >= length())
    return nullptr;
  axsNode& node = *nodes[static_cast<std::size_t>(index)].node();
  if (is_shared)
    return axsHandle::of_item(node);
  node.acquire();
  if (last != nullptr)
    last->release();
  last = &node;
  return axsHandle::of_item(node);
}

int axsStaticNodeList::length() const
{
  return static_cast<int>(nodes.size());
}

void axsStaticNodeList::hold_each() noexcept
{
  for (axsXPathNode const node : nodes)
    node.node()->acquire();
  axsDomDocument::of(*root).remove(*this);
  std::exchange(root, nullptr)->release();
}
