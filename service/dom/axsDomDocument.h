#pragma once

#include "axsChildPositionTable.h"
#include "axsDomNode.h"
#include "axsHandlePool.h"
#include "axsSharedState.h"
#include "axsTree.h"
#include "axsXPathCache.h"

#include <axmDocument.h>

#include <memory>
#include <mutex>
#include <string_view>

class axsDomAttribute;
class axsDomComment;
class axsDomDoctype;
class axsDomElement;
class axsDomInstruction;
class axsDomText;
class axsStaticNodeList;

/// A document: the tree, and what its handles and lists need. Lives as long as one of its nodes is held; see axsNode.
class axsDomDocument final : public axsDomNode<axmDocument, axsTree>
{
public:
  /// A document without children. Throws std::bad_alloc when memory runs out.
  static std::shared_ptr<axmDocument> make(apString const& uri);

  /// The document that the node belongs to.
  static axsDomDocument& of(axsNode const& node) noexcept { return static_cast<axsDomDocument&>(node.tree()); }

  std::shared_ptr<axmElement> createElement(apString const& name) override;
  std::shared_ptr<axmTextNode> createTextNode(apString const& data) override;
  std::shared_ptr<axmCommentNode> createComment(apString const& data) override;
  std::shared_ptr<axmElement> getDocumentElement() override;
  apString getDocumentURI() const override;
  void reserved_document_5() override;
  std::shared_ptr<axmNodeList> getElementsByTagName(apString const& name) override;
  void reserved_document_7() override;

  // Makers of detached nodes; all throw std::bad_alloc when memory runs out. Texts are UTF-8.
  axsDomElement* make_element(axsName const& name);
  axsDomAttribute* make_attribute(axsName const& name, std::string_view value);
  axsDomText* make_text(std::string_view data, bool is_cdata);
  axsDomComment* make_comment(std::string_view data);
  axsDomInstruction* make_processing_instruction(std::string_view target, std::string_view data);
  axsDomDoctype* make_doctype(std::string_view declaration);

  axsHandlePool& handle_pool() noexcept { return *handles; }
  axsChildPositionTable& child_positions() noexcept { return state == nullptr ? positions : state->positions; }
  axsXPathCache& xpath_cache() noexcept { return expressions; }

  /// The name of texts other than CDATA sections, made once (DOM Core, nodeName).
  apString const& name_of_texts() const noexcept { return text_name; }

  /// Where the document is shared, the lock that goes with what its threads change together; null otherwise.
  std::mutex* shared_lock() noexcept { return state == nullptr ? nullptr : &state->lock; }

  /// Whether a single pointer is all that is held of the document.
  bool is_held_by_one() noexcept
  {
    positions.forget_unused();
    return is_held_once() && handles->count_used() == 1;
  }

  /// Of one that is held by one: a pointer for the time when it is shared. It is to take the place of that one, and
  /// begin_sharing() to follow. Throws std::bad_alloc when memory runs out.
  std::shared_ptr<axsDomDocument> prepare_sharing();
  void begin_sharing() noexcept;

  /// Of a shared document: what holds it.
  std::shared_ptr<axsDomDocument> owner() const noexcept { return self.lock(); }

  // Lists that hold the root of their nodes only are told before nodes leave the tree, while they are added.
  void add(axsStaticNodeList& list) noexcept;
  void remove(axsStaticNodeList& list) noexcept;

private:
  void add_defaults(axsElement& element);

  explicit axsDomDocument(apString const& uri);
  ~axsDomDocument() = default;

  void destroy() noexcept override { delete this; }
  void nodes_leaving() noexcept override;
  void child_linked(axsParent& parent, axsNode& child) noexcept override { positions.child_linked(parent, child); }
  void child_unlinking(axsParent& parent, axsNode& child) noexcept override
  {
    positions.child_unlinking(parent, child);
  }
  void parent_freeing(axsParent& parent) noexcept override { positions.forget(parent); }

  apString const address;
  apString const text_name = APSTRING("#text");
  std::unique_ptr<axsHandlePool, axsHandlePool::Abandoner> handles;
  axsXPathCache expressions;
  axsChildPositionTable positions;
  axsStaticNodeList* static_lists = nullptr;
  // Null and empty while it is not shared.
  std::unique_ptr<axsSharedState> state;
  std::weak_ptr<axsDomDocument> self;
};
