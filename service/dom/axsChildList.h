#pragma once

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
  axsNode& listed;
  // Null for a node that cannot have children.
  axsChildPositions* positions = nullptr;
};
