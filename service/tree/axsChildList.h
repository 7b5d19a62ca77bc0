#pragma once

#include <axmNodeList.h>

class axsNode;
class axsParent;

/// The children of one node, live. Holds the node; its document tells it of every change, so that it keeps its place and
/// its length: walking n children by index costs n steps, in whatever direction and whatever is changed meanwhile
/// elsewhere.
class axsChildList final : public axmNodeList
{
public:
  explicit axsChildList(axsNode& node) noexcept;
  ~axsChildList() override;

  std::shared_ptr<axmElement> at(int index) override;
  int length() const override;

private:
  friend class axsDocument;

  void child_linked(axsNode const& child) noexcept;
  void child_unlinking(axsNode const& child) noexcept;

  axsNode* parent;
  axsChildList* previous_list = nullptr;
  axsChildList* next_list = nullptr;

  // The number of children, -1 while it is not known.
  mutable int count = -1;
  // The child handed out last and its index; null while that is not known.
  axsNode* place = nullptr;
  int place_index = 0;
};
