#pragma once

#include "axsHold.h"

#include <axmNodeList.h>

#include <mutex>

class axsChildPositions;
class axsDomDocument;
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
  axsChildList(axsNode& node, axsDomDocument& owner);

  template <class Work>
  auto while_locked(Work work) const;

  axsDomDocument& document;
  // Null where the document is not shared.
  std::mutex* const lock;
  axsHold const hold;
  // Null for a node that cannot have children.
  axsChildPositions* positions = nullptr;
};
