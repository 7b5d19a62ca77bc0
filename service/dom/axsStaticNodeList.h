#pragma once

#include "axsChained.h"
#include "axsXPathNode.h"

#include <axmNodeList.h>

#include <memory>
#include <vector>

class axsNode;

/// The nodes that a search found, as they were then. Holds all of them: in their tree, by its root, which takes a moment
/// however many they are; and once nodes leave the tree, one by one. Their document tells it when that comes.
class axsStaticNodeList final : public axmNodeList, public axsChained<axsStaticNodeList>
{
public:
  /// A list of nodes of the tree that `context` is in. Throws std::bad_alloc when memory runs out.
  static std::shared_ptr<axmNodeList> make(axsNode& context, std::vector<axsXPathNode> found);

  axsStaticNodeList(axsNode& context, std::vector<axsXPathNode> found) noexcept;
  ~axsStaticNodeList() override;

  /// Costs a step for each level between the node and the nearest one that is held, as the last one that was asked for is:
  /// walking along the list costs a step for each node.
  std::shared_ptr<axmElement> at(int index) override;
  int length() const override;

  /// Holds each node by itself from now on, and leaves the document's chain.
  void hold_each() noexcept;

private:
  std::vector<axsXPathNode> nodes;
  // A shared document holds its nodes.
  bool const is_shared;
  // Held for all of them; null while each is held by itself.
  axsNode* root;
  // The node that was asked for last, held, so that the way up from the next one is short.
  axsNode* last = nullptr;
};
