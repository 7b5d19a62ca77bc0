#pragma once

#include "axsArena.h"
#include "axsHandlePool.h"
#include "axsNameTable.h"
#include "axsNodeOf.h"
#include "axsXPathCache.h"

#include <axmDocument.h>

#include <cstdint>
#include <memory>
#include <string_view>

class axsAttribute;
class axsChildList;
class axsCommentNode;
class axsDoctype;
class axsElement;
class axsProcessingInstruction;
class axsResultList;
class axsTextNode;

/// A document of the tree: owner of all its nodes, their names and texts.
///
/// It lives as long as one of its nodes is busy; see axsNode. Nodes are made detached; one that is not handed out and
/// enters no tree stays until the document goes.
class axsDocument final : public axsNodeOf<axmDocument, axsParent>
{
public:
  /// A document without children. Throws std::bad_alloc when memory runs out.
  static std::shared_ptr<axmDocument> make(apString const& uri);

  std::shared_ptr<axmElement> createElement(apString const& name) override;
  std::shared_ptr<axmTextNode> createTextNode(apString const& data) override;
  std::shared_ptr<axmCommentNode> createComment(apString const& data) override;
  std::shared_ptr<axmElement> getDocumentElement() override;
  apString getDocumentURI() const override;
  void reserved_document_5() override;
  std::shared_ptr<axmNodeList> getElementsByTagName(apString const& name) override;
  void reserved_document_7() override;

  axsElement* root_element() const noexcept;

  // Makers of detached nodes; all throw std::bad_alloc when memory runs out. Texts are UTF-8.
  axsElement* make_element(axsName const& name);
  axsAttribute* make_attribute(axsName const& name, std::string_view value);
  axsTextNode* make_text(std::string_view data, bool cdata);
  axsCommentNode* make_comment(std::string_view data);
  axsProcessingInstruction* make_processing_instruction(std::string_view target, std::string_view data);
  axsDoctype* make_doctype(std::string_view declaration);

  axsNameTable& names() noexcept { return name_table; }
  axsNameTable const& names() const noexcept { return name_table; }
  axsArena& arena() noexcept { return memory; }
  axsHandlePool& handle_pool() noexcept { return *handles; }
  axsXPathCache& xpath_cache() noexcept { return expressions; }

  /// Gives the memory of one node back.
  void free_node(axsNode& node) noexcept;

  /// To be called before a node, an attribute too, is taken out of its tree.
  void nodes_leaving() noexcept
  {
    if (result_lists != nullptr)
      result_lists_hold_nodes();
  }

  /// Whether it was read as XML 1.1, which can hold more characters than 1.0.
  bool is_xml_1_1 = false;

  /// Counts the changes to which attributes there are, anywhere in the document.
  std::uint64_t attribute_changes = 0;

private:
  friend class axsNode;
  friend class axsTree;
  friend class axsChildList;
  friend class axsResultList;

  struct PoolAbandoner
  {
    void operator()(axsHandlePool* pool) const noexcept { pool->abandon(); }
  };

  explicit axsDocument(apString const& uri);
  ~axsDocument() override = default;

  template <class Leaf, class... Arguments>
  Leaf* make_leaf(std::string_view text, Arguments&&... arguments);

  void result_lists_hold_nodes() noexcept;
  axsChildList*& lists_of(axsNode const& parent) noexcept;
  void child_linked(axsParent& parent, axsNode const& child) noexcept;
  void child_unlinking(axsParent& parent, axsNode const& child) noexcept;

  static constexpr std::size_t list_buckets = 16;

  apString address;
  std::unique_ptr<axsHandlePool, PoolAbandoner> handles;
  axsArena memory;
  axsNameTable name_table;
  axsXPathCache expressions;
  // The child lists that are out, in chains by the address of their parent.
  axsChildList* lists[list_buckets] = {};
  // The result lists that hold the root of their nodes only.
  axsResultList* result_lists = nullptr;
};

inline void axsNode::root_acquired() noexcept
{
  // The document is no child of anything.
  if (!is_document())
    ++axsArena::document_of(this).busy;
}
