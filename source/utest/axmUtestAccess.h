#pragma once

#include "axmDocument.h"
#include "axmDocumentFactory.h"
#include "axmElement.h"
#include "axmNamedNodeMap.h"
#include "axmNode.h"
#include "axmNodeList.h"

#include <apByteArray.h>
#include <apString.h>

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

apString xml_of(Node const& node);

// The neighbours of a node that is there.
Node parent_of(Node const& node);
Node first_of(Node const& node);
Node last_of(Node const& node);
Node next_of(Node const& node);
Node previous_of(Node const& node);

std::shared_ptr<axmNodeList> children_of(Node const& node);

// What there is one after the other, a blank between two: the names of the items of a list, and of the children as they
// are found from the first one on and from the last one back. Ends after a number of steps that no check comes near, for
// a wrong tree may have no end.
apString names_in(std::shared_ptr<axmNodeList> const& list);
apString names_of_children(Node const& node);
apString names_forward(Node const& node);
apString names_backward(Node const& node);

// Whether a node is there and has no parent.
bool is_detached(Node const& node);

// Whether both are there and denote one node.
bool same(Node const& left, Node const& right);

// The length of a list that is there, -1 of one that is not.
int length_of(std::shared_ptr<axmNodeList> const& list);

// The same for a loop over its items, which ends after a number of steps that no check comes near, whatever a list says.
int loop_length_of(std::shared_ptr<axmNodeList> const& list);

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

// Of a node that is there.
void set_text(Node const& node, apString const& text);

// The document that the UTF-8 `text` holds, loaded without validation, and its root element.
std::shared_ptr<axmDocument> load(axmDocumentFactory const& factory, char const* text);
std::shared_ptr<axmElement> load_root(axmDocumentFactory const& factory, char const* text);

// The root element of a document that is there.
std::shared_ptr<axmElement> root_of(std::shared_ptr<axmDocument> const& document);

// The answers of an element that is there.
apString attribute_of(std::shared_ptr<axmElement> const& element, apString const& name);
std::shared_ptr<axmNamedNodeMap> map_of(std::shared_ptr<axmElement> const& element);

// The bytes of `text` without its terminating zero.
apByteArray bytes_of(char const* text);
}
