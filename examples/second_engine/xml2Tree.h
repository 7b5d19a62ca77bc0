#pragma once

#include <apString.h>

#include <libxml/tree.h>

#include <memory>
#include <unordered_set>

// A document of libxml2 with those of its nodes that are in no tree, which libxml2 would leave to whoever took them out.
class xml2Tree
{
public:
  explicit xml2Tree(xmlDoc* document);
  xml2Tree(xml2Tree const&) = delete;
  xml2Tree& operator=(xml2Tree const&) = delete;
  ~xml2Tree();

  xmlDoc* document() const { return doc; }
  xmlNode* top() const { return reinterpret_cast<xmlNode*>(doc); }

  // Takes care of a node that is in no tree.
  void keep(xmlNode* loose);

  void detach(xmlNode* node);

  // Makes `node` a child of `parent`, before `next` or, if that is null, at the end.
  void link(xmlNode* parent, xmlNode* node, xmlNode* next);

  void link_attribute(xmlNode* element, xmlNode* attribute);

  // Text that is white space only is dropped, except where it is exactly one space.
  void drop_white_space();

  // Whether a node, written, can be read again: a document has a root, and no text holds what XML cannot.
  bool can_be_written(xmlNode* top) const;

  // The next node in document order under `top`, null after the last one.
  static xmlNode* next_in_document(xmlNode* node, xmlNode* top);

private:
  xmlDoc* doc;
  std::unordered_set<xmlNode*> loose_nodes;
};

// Texts of libxml2 are UTF-8; `owned` ones are freed.
apString xml2_text(xmlChar const* utf8);
apString xml2_owned_text(xmlChar* utf8);

// The name with its prefix.
apString xml2_name(xmlNode const& node);

// Calls `use` with the text as libxml2 takes it.
template <class Use>
auto xml2_with(apString const& text, Use use)
{
  utString const utf8 = text.to_utf8();
  return use(reinterpret_cast<xmlChar const*>(utf8.c_str()));
}

// XML 1.0, 2.3, [5] Name.
bool xml2_is_name(apString const& text);
