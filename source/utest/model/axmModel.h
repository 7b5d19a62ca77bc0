#pragma once

#include <string>
#include <vector>

// The kinds of node, as the interfaces tell them apart.
enum class axmModelKind
{
  document,
  element,
  attribute,
  text,
  comment,
  instruction
};

// A node is known by its number, the index among all nodes that were made.
struct axmModelNode
{
  axmModelKind kind;
  // Of an element or attribute its name, of an instruction its target.
  std::wstring name;
  // Of an attribute its value, of a text or comment its data, of an instruction its content.
  std::wstring value;
  // The document that created it; unknown for what another document took over, which no contract describes.
  int document;
  // Of a child the node that holds it, of an attribute its element.
  int holder;
  std::vector<int> children;
  std::vector<int> attributes;
};

// What the contract says of an edit.
enum class axmModelVerdict
{
  // It is to be done.
  done,
  // It is to be refused: an empty result, and nothing changes.
  refused,
  // Both are in order.
  free
};

// The contract of documents in its second, executable form: all documents of a run in one plain table, for reading and
// comparing, not for speed. See axmNode, axmElement, axmDocument, axmNamedNodeMap and axmDocumentFactory for the rules.
//
// Operations ask for no more than valid numbers of nodes, `none` where a contract allows an empty pointer; edits whose
// verdict is `refused` are not to be called. Not installed.
class axmModel
{
public:
  static constexpr int none = -1;
  static constexpr int unknown = -2;

  axmModelNode const& node(int number) const { return nodes[static_cast<std::size_t>(number)]; }
  int size() const { return static_cast<int>(nodes.size()); }

  // A document with a root element; `none` when the name is no name.
  int create_document(std::wstring const& root_name);
  // A document without anything.
  int create_bare_document();
  int create_element(int document, std::wstring const& name);
  int create_text(int document, std::wstring const& data);
  int create_comment(int document, std::wstring const& data);
  int create_instruction(int document, std::wstring const& target, std::wstring const& content);

  // The verdict on putting `child` under `parent` before `before` (`none`: at the end), or in the place of `old`.
  axmModelVerdict may_insert(int parent, int child, int before) const;
  axmModelVerdict may_replace(int parent, int child, int old) const;
  bool may_remove(int parent, int child) const;

  void insert(int parent, int child, int before);
  void replace(int parent, int child, int old);
  void remove(int child);
  // Makes and returns the text child of an element, `none` for other kinds, whose value changes.
  int set_text(int number, std::wstring const& text);

  // The attribute made or changed.
  int set_attribute(int element, std::wstring const& name, std::wstring const& value);
  int find_attribute(int element, std::wstring const& name) const;
  void remove_attribute(int attribute);
  axmModelVerdict may_set_named_item(int element, int given) const;
  // The attribute that was replaced, `none` if there was none.
  int set_named_item(int element, int attribute);

  bool is_parent(int number) const;
  int parent(int number) const;
  int index(int child) const;
  int next(int number) const;
  int previous(int number) const;
  int root(int document) const;
  bool is_below(int number, int top) const;
  // The node itself and all below it, attributes left out, in document order.
  std::vector<int> subtree(int top) const;
  std::vector<int> elements_by_name(int document, std::wstring const& name) const;
  std::wstring text(int number) const;
  std::wstring node_name(int number) const;

  // Whether the save of a document, or the XML of an element, must succeed, must be refused, or may do either.
  axmModelVerdict may_save(int top) const;
  // The document that comes of saving the document or element `top` and loading it again.
  int reload(int top);

private:
  int make(axmModelKind kind, int document, std::wstring const& name, std::wstring const& value);
  axmModelNode& at(int number) { return nodes[static_cast<std::size_t>(number)]; }
  axmModelVerdict may_stand(int parent, int child, int replaced) const;
  bool is_child(int number, int of_parent) const;
  axmModelVerdict may_write(int number, int top) const;
  bool may_write_markup(axmModelNode const& written) const;
  bool is_in_namespace(int number, int top) const;
  void copy_children(int from, int to, int document);
  int add_copy(int number, int to, int document);
  void add_text(int to, int document, std::wstring const& text);
  void detach(int number);
  void disown(int top);

  std::vector<axmModelNode> nodes;
};
