#pragma once

#include <axsXPathNode.h>

#include <axmNodeList.h>

#include <vector>

class axsNode;

/// The nodes that a search found, as they were then. Holds all of them: in their tree, by its root, which takes a moment
/// however many they are; and once nodes leave the tree, one by one. Their document tells it when that comes.
class axsResultList final : public axmNodeList
{
public:
  /// `found` are nodes of the tree that `context` is in.
  axsResultList(axsNode& context, std::vector<axsXPathNode> found) noexcept;
  ~axsResultList() override;

  std::shared_ptr<axmElement> at(int index) override;
  int length() const override;

private:
  friend class axsDocument;

  void leave_chain() noexcept;
  void nodes_leaving() noexcept;

  std::vector<axsXPathNode> nodes;
  // Held for all of them; null while each is held by itself.
  axsNode* root;
  // The other lists of the document that hold their root.
  axsResultList* previous_list = nullptr;
  axsResultList* next_list = nullptr;
};
