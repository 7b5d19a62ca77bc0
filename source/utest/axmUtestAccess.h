#pragma once

#include <apByteArray.h>
#include <apString.h>
#include <axmDocument.h>
#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axmNode.h>
#include <axmNodeList.h>

#include <memory>

// How the check classes ask an engine that may be wrong: what is missing answers as a node or list that no check expects,
// so that the check fails and the suite goes on. Not installed.
namespace axmUtestAccess
{
using Node = std::shared_ptr<axmNode>;

// The answers of a node that is there; "(no node)" of one that is not.
apString name_of(Node const& node);
apString value_of(Node const& node);
apString text_of(Node const& node);

// The parent of a node that is there.
Node parent_of(Node const& node);

// Whether a node is there and has no parent.
bool is_detached(Node const& node);

// Whether both are there and denote one node.
bool same(Node const& left, Node const& right);

// The length of a list that is there, -1 of one that is not.
int length_of(std::shared_ptr<axmNodeList> const& list);

// The number of children, -1 where there is no node or no list.
int number_of_children(Node const& node);

// The item at `index`, empty where the list does not reach it.
std::shared_ptr<axmElement> item_of(std::shared_ptr<axmNodeList> const& list, int index);

// The child at `index`, empty where there is none.
std::shared_ptr<axmElement> child_of(Node const& node, int index);

// A new element of a document that is there.
std::shared_ptr<axmElement> created(std::shared_ptr<axmDocument> const& document, apString const& name);

// An attribute that is in no element: no document makes one, so it is set on an element and taken out again.
Node detached_attribute(std::shared_ptr<axmDocument> const& document, apString const& name, apString const& value);

// The operations of a parent that is there on nodes that are; `before` may be missing. What the engine returned.
Node append(Node const& parent, Node const& child);
Node insert(Node const& parent, Node const& child, Node const& before);
Node replace(Node const& parent, Node const& child, Node const& old_child);
Node remove(Node const& parent, Node const& child);

// The document that the UTF-8 `text` holds, loaded without validation.
std::shared_ptr<axmDocument> load(axmDocumentFactory const& factory, char const* text);

// The bytes of `text` without its terminating zero.
apByteArray bytes_of(char const* text);
}
