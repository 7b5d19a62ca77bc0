#pragma once

#include "axsHold.h"

#include <axmNodeList.h>

class axsChildPositions;
class axsNode;

/// The children of one node, live. Holds the node.
class axsChildList final : public axmNodeList
{
public:
  /// Throws std::bad_alloc when memory runs out.
  explicit axsChildList(axsNode& node);
  ~axsChildList() override;

  // Costs: see axsChildPositions.
  std::shared_ptr<axmElement> at(int index) override;
  int length() const override;

private:
  axsNode* child_at(int index);

  axsNode& listed;
  axsHold const hold;
  // Null for a node that cannot have children.
  axsChildPositions* positions = nullptr;
};
