#pragma once

// What a document makes is passed on as nodes, for which the compiler has to know the classes.
#include "axmCommentNode.h"
#include "axmElement.h"
#include "axmNamedNodeMap.h"
#include "axmNode.h"
#include "axmNodeList.h"
#include "axmTextNode.h"

/// A document: the root of its tree and the maker of its nodes (DOM Core, interface Document).
/// Interface; see axmNode for ownership, threads and order of operations. New nodes belong to this document, are in no
/// tree yet, and enter it through appendChild(), insertBefore() or replaceChild() of another node.
class AXM_API axmDocument : public virtual axmNode
{
public:
  axmDocument();
  ~axmDocument() override;

  /// A new element. An empty pointer when `name` is not a name (XML 1.0, 2.3, [5] Name).
  virtual std::shared_ptr<axmElement> createElement(apString const& name) = 0;

  /// A new text, whatever `data` holds. An engine may refuse, with an empty pointer, what is not Unicode (a surrogate
  /// without its other half).
  virtual std::shared_ptr<axmTextNode> createTextNode(apString const& data) = 0;

  /// A new comment, whatever `data` holds, as for a text.
  virtual std::shared_ptr<axmCommentNode> createComment(apString const& data) = 0;

  /// The root element; empty for a document without one. Costs a step for each comment and instruction before it.
  virtual std::shared_ptr<axmElement> getDocumentElement() = 0;

  /// The text that identifies the document: where it was loaded from, or as the engine names it.
  virtual apString getDocumentURI() const = 0;

  /// Reserved: keeps its place in the order; never called.
  virtual void reserved_document_5() = 0;

  /// Every element of the document with the name `name`, the root included, in document order. Never an empty pointer; an
  /// empty list for a name that is none. Costs a walk over the document.
  /// Whether the list follows later changes is the engine's business.
  virtual std::shared_ptr<axmNodeList> getElementsByTagName(apString const& name) = 0;

  /// Reserved: keeps its place in the order; never called.
  virtual void reserved_document_7() = 0;

protected:
  /// See axmInPlace.
  explicit axmDocument(axmInPlace) noexcept {}
};
