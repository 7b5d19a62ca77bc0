#pragma once

#include "axsChained.h"

#include <axmNodeList.h>

class axsNode;
class axsParent;

/// The children of one node, live. Holds the node; its document tells it of every change, so that it keeps its place and
/// its length: walking n children by index costs n steps, in whatever direction and whatever is changed meanwhile
/// elsewhere.
class axsChildList final : public axmNodeList, public axsChained<axsChildList>
{
public:
  explicit axsChildList(axsNode& node) noexcept;
  ~axsChildList() override;

  /// The child with that index, null beyond the ends. Costs the steps to it from the last one handed out, the first or the
  /// last child, whichever is nearest. Throws std::bad_alloc when memory runs out.
  std::shared_ptr<axmElement> at(int index) override;

  /// Costs a step for each child once, and nothing afterwards.
  int length() const override;

  /// The node, which may be one that has no children.
  axsNode& node() const noexcept { return *listed; }

  // A child of the node has come, or is about to go.
  void child_linked(axsNode const& child) noexcept;
  void child_unlinking(axsNode const& child) noexcept;

private:
  axsNode* listed;

  // The number of children, -1 while it is not known.
  mutable int count = -1;
  // The child handed out last and its index; null while that is not known.
  axsNode* place = nullptr;
  int place_index = 0;
};
