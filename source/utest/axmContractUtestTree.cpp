#include "axmContractUtest.h"

#include "axmCommentNode.h"
#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"
#include "axmXmlTables.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Document = std::shared_ptr<axmDocument>;
using Element = std::shared_ptr<axmElement>;

char const file[] = "source/utest/axmContractUtestTree";

char const five_children[] = "<root><a/><b/><c><d/></c><e/><f/></root>";

// A wrong argument may be called out as an assertion; how often is the engine's business.
class AssertionsAllowed
{
public:
  AssertionsAllowed() { utUnitTest::get_tester()->expect_assert_min(0); }
  AssertionsAllowed(AssertionsAllowed const&) = delete;
  AssertionsAllowed& operator=(AssertionsAllowed const&) = delete;
  ~AssertionsAllowed() { utUnitTest::get_tester()->check_assert(); }
};

Node text_node(Document const& document, apString const& data)
{
  return document != nullptr ? document->createTextNode(data) : nullptr;
}

Node comment(Document const& document, apString const& data)
{
  return document != nullptr ? document->createComment(data) : nullptr;
}

Document owner_of(Node const& node)
{
  return node != nullptr ? node->getOwnerDocument() : nullptr;
}

bool is_alone(Node const& node)
{
  return is_detached(node) && next_of(node) == nullptr && previous_of(node) == nullptr;
}

// What the XML of an element brings back when it is loaded as a document.
Element reloaded(Factory const& factory, Node const& node)
{
  return load_root(*factory, xml_of(node).to_utf8().c_str());
}
}

void axmContractUtest::test_parents(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_parents");
  auto const document = load(*factory, "<root><a>text</a><!--comment--></root>");
  auto const root = root_of(document);
  Node const a = first_of(root);
  group.check(document != nullptr && document->getParentNode() == nullptr, "!document->getParentNode().get()", __LINE__,
    "a document has no parent");
  group.check(
    same(parent_of(root), document), "*root->getParentNode() == *document", __LINE__, "the document holds the root");
  group.check(same(parent_of(a), root), "*a->getParentNode() == *root", __LINE__, "parent of an element");
  group.check(
    same(parent_of(first_of(a)), a), "*a->getFirstChild()->getParentNode() == *a", __LINE__, "parent of a text");
  group.check(same(parent_of(last_of(root)), root), "*root->getLastChild()->getParentNode() == *root", __LINE__,
    "parent of a comment");
  group.check(is_detached(created(document, APSTRING("x"))), "!element->getParentNode().get()", __LINE__,
    "a new element has no parent");
  group.check(is_detached(text_node(document, APSTRING("x"))), "!text->getParentNode().get()", __LINE__,
    "a new text has no parent");
  group.check(is_detached(comment(document, APSTRING("x"))), "!comment->getParentNode().get()", __LINE__,
    "a new comment has no parent");
}

void axmContractUtest::test_children(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_children");
  auto const root = load_root(*factory, five_children);
  group.check(names_of_children(root), APSTRING("a b c e f"), "names(root->getChildNodes())", __LINE__,
    "children stand in document order and are direct ones");
  group.check(
    same(first_of(root), child_of(root, 0)), "*root->getFirstChild() == *children->at(0)", __LINE__, "first child");
  group.check(
    same(last_of(root), child_of(root, 4)), "*root->getLastChild() == *children->at(4)", __LINE__, "last child");
  group.check(root != nullptr && root->hasChildNodes(), "root->hasChildNodes()", __LINE__, "an element with children");
  auto const with_text = load_root(*factory, "<root>text</root>");
  group.check(with_text != nullptr && with_text->hasChildNodes(), "with_text->hasChildNodes()", __LINE__,
    "a text is a child too");

  Node const a = first_of(root);
  group.check(number_of_children(a), 0, "a->getChildNodes()->length() == 0", __LINE__,
    "an element without children has an empty list");
  group.check(a != nullptr && !a->hasChildNodes(), "!a->hasChildNodes()", __LINE__, "an element without children");
  group.check(first_of(a) == nullptr, "!a->getFirstChild().get()", __LINE__, "no first child");
  group.check(last_of(a) == nullptr, "!a->getLastChild().get()", __LINE__, "no last child");

  Node const c = child_of(root, 2);
  group.check(number_of_children(c), 1, "c->getChildNodes()->length() == 1", __LINE__, "an element with one child");
  group.check(
    same(first_of(c), last_of(c)), "*c->getFirstChild() == *c->getLastChild()", __LINE__, "the only child is both");
}

void axmContractUtest::test_siblings(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_siblings");
  auto const root = load_root(*factory, five_children);
  group.check(names_forward(root), APSTRING("a b c e f"), "names from getFirstChild() by getNextSibling()", __LINE__,
    "next siblings to the end");
  group.check(names_backward(root), APSTRING("f e c b a"), "names from getLastChild() by getPreviousSibling()",
    __LINE__, "previous siblings to the start");
  Node const c = child_of(root, 2);
  group.check(same(previous_of(next_of(c)), c), "*c->getNextSibling()->getPreviousSibling() == *c", __LINE__,
    "there and back again");
  Node const d = first_of(c);
  group.check(d != nullptr && d->getNextSibling() == nullptr, "!d->getNextSibling().get()", __LINE__,
    "the last child has no next sibling, whatever follows its parent");
  group.check(d != nullptr && d->getPreviousSibling() == nullptr, "!d->getPreviousSibling().get()", __LINE__,
    "the first child has no previous sibling, whatever precedes its parent");

  Node const mixed = load_root(*factory, "<root>one<a/>two<!--three--></root>");
  Node const text = first_of(mixed);
  group.check(
    value_of(text), APSTRING("one"), "text->getNodeValue() == APSTRING(\"one\")", __LINE__, "a text is a child");
  group.check(
    name_of(next_of(text)), APSTRING("a"), "text->getNextSibling()->getNodeName()", __LINE__, "the sibling of a text");
  group.check(value_of(next_of(next_of(text))), APSTRING("two"), "a->getNextSibling()->getNodeValue()", __LINE__,
    "the text after an element");
  group.check(value_of(next_of(next_of(next_of(text)))), APSTRING("three"), "two->getNextSibling()->getNodeValue()",
    __LINE__, "the comment after a text");
  Node const remark = last_of(mixed);
  group.check(value_of(previous_of(remark)), APSTRING("two"), "remark->getPreviousSibling()->getNodeValue()", __LINE__,
    "the text before a comment");
  group.check(name_of(previous_of(previous_of(remark))), APSTRING("a"), "two->getPreviousSibling()->getNodeName()",
    __LINE__, "the element before a text");
}

void axmContractUtest::test_owner_document(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_owner_document");
  auto const document = load(*factory, "<root><a>text</a></root>");
  auto const root = root_of(document);
  Node const a = first_of(root);
  group.check(same(owner_of(root), document), "*root->getOwnerDocument() == *document", __LINE__, "owner of the root");
  group.check(same(owner_of(a), document), "*a->getOwnerDocument() == *document", __LINE__, "owner of an element");
  group.check(
    same(owner_of(first_of(a)), document), "*text->getOwnerDocument() == *document", __LINE__, "owner of a text");
  group.check(same(owner_of(created(document, APSTRING("x"))), document), "*x->getOwnerDocument() == *document",
    __LINE__, "owner of a new element");
  group.check(same(owner_of(text_node(document, APSTRING("x"))), document), "*text->getOwnerDocument() == *document",
    __LINE__, "owner of a new text");
  group.check(same(owner_of(comment(document, APSTRING("x"))), document), "*comment->getOwnerDocument() == *document",
    __LINE__, "owner of a new comment");
  remove(root, a);
  group.check(
    same(owner_of(a), document), "*a->getOwnerDocument() == *document", __LINE__, "owner of a removed element");

  auto const other = load(*factory, "<root><a>text</a></root>");
  group.check(other != nullptr && !same(owner_of(root), other), "!(*root->getOwnerDocument() == *other)", __LINE__,
    "another document is another owner");
  auto const owner = owner_of(a);
  group.check(owner != nullptr && document != nullptr && owner->getDocumentURI() == document->getDocumentURI(),
    "a->getOwnerDocument()->getDocumentURI() == document->getDocumentURI()", __LINE__,
    "one text identifies a document");
  apString const before = document != nullptr ? document->getDocumentURI() : apString();
  append(document, comment(document, APSTRING("x")));
  bool const is_kept = document != nullptr && document->getDocumentURI() == before;
  remove(document, root);
  group.check(is_kept && document->getDocumentURI() == before, "document->getDocumentURI() == before", __LINE__,
    "whatever it holds");
}

void axmContractUtest::test_append_child(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_append_child");
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  Node const a = created(document, APSTRING("a"));
  group.check(same(append(root, a), a), "*root->appendChild(a) == *a", __LINE__, "the result is the new child");
  group.check(same(first_of(root), a) && same(last_of(root), a),
    "*root->getFirstChild() == *a && *root->getLastChild() == *a", __LINE__, "the only child");
  group.check(same(parent_of(a), root), "*a->getParentNode() == *root", __LINE__, "the parent of the new child");

  Node const text = text_node(document, APSTRING("text"));
  group.check(same(append(root, text), text), "*root->appendChild(text) == *text", __LINE__, "a text is appended");
  group.check(same(last_of(root), text), "*root->getLastChild() == *text", __LINE__, "the last child is the new one");
  group.check(same(parent_of(text), root), "*text->getParentNode() == *root", __LINE__, "the parent of the text");
  Node const remark = comment(document, APSTRING("remark"));
  group.check(
    same(append(root, remark), remark), "*root->appendChild(remark) == *remark", __LINE__, "a comment is appended");
  group.check(
    same(last_of(root), remark), "*root->getLastChild() == *remark", __LINE__, "the last child is the comment");
  group.check(number_of_children(root), 3, "root->getChildNodes()->length() == 3", __LINE__, "each append adds one");
  group.check(same(first_of(root), a), "*root->getFirstChild() == *a", __LINE__, "the first child stays");

  Node const more = text_node(document, APSTRING("more"));
  append(a, text_node(document, APSTRING("some")));
  append(a, more);
  group.check(number_of_children(a), 2, "a->getChildNodes()->length() == 2", __LINE__,
    "a text beside a text is a child of its own");
  group.check(same(last_of(a), more), "*a->getLastChild() == *more", __LINE__, "and is the node that was appended");
}

void axmContractUtest::test_insert_before(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_insert_before");
  auto const document = load(*factory, five_children);
  auto const root = root_of(document);
  Node const x = created(document, APSTRING("x"));
  Node const c = child_of(root, 2);
  group.check(same(insert(root, x, c), x), "*root->insertBefore(x, c) == *x", __LINE__, "the result is the new child");
  group.check(names_of_children(root), APSTRING("a b x c e f"), "names(root->getChildNodes())", __LINE__,
    "the new child stands immediately before the reference");
  group.check(names_forward(root), APSTRING("a b x c e f"), "names forward", __LINE__, "links forward");
  group.check(names_backward(root), APSTRING("f e c x b a"), "names backward", __LINE__, "links backward");
  group.check(same(parent_of(x), root), "*x->getParentNode() == *root", __LINE__, "the parent of the new child");

  Node const y = created(document, APSTRING("y"));
  group.check(same(insert(root, y, nullptr), y), "*root->insertBefore(y, nullptr) == *y", __LINE__,
    "the result without a reference");
  group.check(names_of_children(root), APSTRING("a b x c e f y"), "names(root->getChildNodes())", __LINE__,
    "without a reference it is appended");

  Node const z = created(document, APSTRING("z"));
  Node const d = first_of(c);
  group.check(z != nullptr && insert(root, z, d) == nullptr, "!root->insertBefore(z, d).get()", __LINE__,
    "a grandchild is no reference");
  group.check(names_of_children(root), APSTRING("a b x c e f y"), "names(root->getChildNodes())", __LINE__,
    "a refused insertion changes nothing");
  group.check(names_of_children(c), APSTRING("d"), "names(c->getChildNodes())", __LINE__,
    "a refused insertion changes nothing further down");
  group.check(is_alone(z), "z has no parent and no siblings", __LINE__, "what was refused stays detached");
}

void axmContractUtest::test_replace_child(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_replace_child");
  auto const document = load(*factory, five_children);
  auto const root = root_of(document);
  Node const c = child_of(root, 2);
  Node const x = created(document, APSTRING("x"));
  group.check(same(replace(root, x, c), c), "*root->replaceChild(x, c) == *c", __LINE__, "the result is the old child");
  group.check(names_of_children(root), APSTRING("a b x e f"), "names(root->getChildNodes())", __LINE__,
    "the new child stands in the place of the old one");
  group.check(names_backward(root), APSTRING("f e x b a"), "names backward", __LINE__, "links backward");
  group.check(same(parent_of(x), root), "*x->getParentNode() == *root", __LINE__, "the parent of the new child");
  group.check(is_alone(c), "c has no parent and no siblings", __LINE__, "the old child is out");
  group.check(
    names_of_children(c), APSTRING("d"), "names(c->getChildNodes())", __LINE__, "the old child keeps its children");

  Node const y = created(document, APSTRING("y"));
  Node const d = first_of(c);
  group.check(y != nullptr && d != nullptr && replace(root, y, d) == nullptr, "!root->replaceChild(y, d).get()",
    __LINE__, "a node further down is no child");
  group.check(names_of_children(root), APSTRING("a b x e f"), "names(root->getChildNodes())", __LINE__,
    "a refused replacement changes nothing");
  group.check(is_alone(y), "y has no parent and no siblings", __LINE__, "what was refused stays detached");
  group.check(same(parent_of(d), c), "*d->getParentNode() == *c", __LINE__, "what was not replaced keeps its parent");

  Node const last = last_of(root);
  Node const text = text_node(document, APSTRING("text"));
  group.check(same(replace(root, text, last), last), "*root->replaceChild(text, last) == *last", __LINE__,
    "the last child is replaced by a text");
  group.check(same(last_of(root), text), "*root->getLastChild() == *text", __LINE__, "the text is the last child");
}

void axmContractUtest::test_remove_child(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_remove_child");
  auto const root = load_root(*factory, five_children);
  Node const c = child_of(root, 2);
  group.check(same(remove(root, c), c), "*root->removeChild(c) == *c", __LINE__, "the result is the removed child");
  group.check(names_of_children(root), APSTRING("a b e f"), "names(root->getChildNodes())", __LINE__,
    "the others stay in their order");
  group.check(names_forward(root), APSTRING("a b e f"), "names forward", __LINE__, "links forward");
  group.check(names_backward(root), APSTRING("f e b a"), "names backward", __LINE__, "links backward");
  group.check(is_alone(c), "c has no parent and no siblings", __LINE__, "the removed child is out");
  group.check(
    names_of_children(c), APSTRING("d"), "names(c->getChildNodes())", __LINE__, "the removed child keeps its children");
  group.check(same(parent_of(first_of(c)), c), "*c->getFirstChild()->getParentNode() == *c", __LINE__,
    "and its children their parent");
  group.check(c != nullptr && remove(root, c) == nullptr, "!root->removeChild(c).get()", __LINE__,
    "what is out cannot be removed again");
  Node const d = first_of(c);
  group.check(d != nullptr && remove(root, d) == nullptr, "!root->removeChild(d).get()", __LINE__,
    "only the parent removes a child");
  group.check(names_of_children(root), APSTRING("a b e f"), "names(root->getChildNodes())", __LINE__,
    "a refused removal changes nothing");

  group.check(same(append(root, c), c), "*root->appendChild(c) == *c", __LINE__, "what was removed can come back");
  group.check(names_of_children(root), APSTRING("a b e f c"), "names(root->getChildNodes())", __LINE__,
    "with what it holds, at its new place");
}

void axmContractUtest::test_moves(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_moves");
  auto const document = load(*factory, five_children);
  auto const root = root_of(document);
  Node const a = child_of(root, 0);
  Node const c = child_of(root, 2);
  if (!group.check(a != nullptr && c != nullptr, "a.get() && c.get()", __LINE__, "the nodes to move"))
    return;
  utUnitTest::get_tester()->expect_assert_min(1);
  Node const appended = append(root, a);
  utUnitTest::get_tester()->check_assert();
  group.check(same(appended, a), "*root->appendChild(a) == *a", __LINE__, "an attached node is moved");
  group.check(names_of_children(root), APSTRING("b c e f a"), "names(root->getChildNodes())", __LINE__,
    "it is at its new place only");
  group.check(names_backward(root), APSTRING("a f e c b"), "names backward", __LINE__, "links backward");

  utUnitTest::get_tester()->expect_assert_min(1);
  Node const inserted = insert(c, a, first_of(c));
  utUnitTest::get_tester()->check_assert();
  group.check(same(inserted, a), "*c->insertBefore(a, d) == *a", __LINE__, "it is moved to another parent");
  group.check(names_of_children(root), APSTRING("b c e f"), "names(root->getChildNodes())", __LINE__,
    "the old parent does not hold it any more");
  group.check(names_of_children(c), APSTRING("a d"), "names(c->getChildNodes())", __LINE__, "the new parent holds it");
  group.check(same(parent_of(a), c), "*a->getParentNode() == *c", __LINE__, "its parent is the new one");

  Node const e = child_of(root, 2);
  utUnitTest::get_tester()->expect_assert_min(1);
  Node const replaced = replace(root, a, e);
  utUnitTest::get_tester()->check_assert();
  group.check(same(replaced, e), "*root->replaceChild(a, e) == *e", __LINE__, "it replaces a node elsewhere");
  group.check(
    names_of_children(root), APSTRING("b c a f"), "names(root->getChildNodes())", __LINE__, "it is in that place");
  group.check(names_of_children(c), APSTRING("d"), "names(c->getChildNodes())", __LINE__, "and not in its old one");
  group.check(is_alone(e), "e has no parent and no siblings", __LINE__, "what it replaced is out");
}

void axmContractUtest::test_refusals(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_refusals");
  AssertionsAllowed const allowed;
  auto const document = load(*factory, "<root K='V'><a><b/></a></root>");
  auto const root = root_of(document);
  Node const a = first_of(root);
  Node const b = first_of(a);
  if (!group.prerequisite(a != nullptr && b != nullptr, "a.get() && b.get()", __LINE__, "Prerequisite: children"))
    return;
  apString const before = root->get_xml();
  group.check(b->appendChild(a) == nullptr, "!b->appendChild(a).get()", __LINE__, "no node goes below itself");
  group.check(a->insertBefore(a, b) == nullptr, "!a->insertBefore(a, b).get()", __LINE__, "no node goes into itself");
  group.check(
    a->replaceChild(root, b) == nullptr, "!a->replaceChild(root, b).get()", __LINE__, "no node replaces what it holds");
  group.check(
    a->appendChild(nullptr) == nullptr, "!a->appendChild(nullptr).get()", __LINE__, "nothing cannot be appended");
  group.check(a->insertBefore(nullptr, b) == nullptr, "!a->insertBefore(nullptr, b).get()", __LINE__,
    "nothing cannot be inserted");
  group.check(a->replaceChild(nullptr, b) == nullptr, "!a->replaceChild(nullptr, b).get()", __LINE__,
    "nothing cannot replace a child");
  Node const x = created(document, APSTRING("x"));
  group.check(a->replaceChild(x, nullptr) == nullptr, "!a->replaceChild(x, nullptr).get()", __LINE__,
    "nothing cannot be replaced");
  group.check(
    a->removeChild(nullptr) == nullptr, "!a->removeChild(nullptr).get()", __LINE__, "nothing cannot be removed");
  group.check(document->appendChild(x) == nullptr, "!document->appendChild(x).get()", __LINE__,
    "a document has one root element");
  auto const map = map_of(root);
  Node const attribute = map != nullptr ? map->getNamedItem(APSTRING("K")) : nullptr;
  group.check(attribute != nullptr && root->removeChild(attribute) == nullptr, "!root->removeChild(attribute).get()",
    __LINE__, "an attribute is no child");
  group.check(attribute != nullptr && attribute->appendChild(x) == nullptr, "!attribute->appendChild(x).get()",
    __LINE__, "an attribute holds no element");
  group.check(xml_of(root), before, "root->get_xml() == before", __LINE__, "a refused edit changes nothing");
  group.check(
    same(parent_of(b), a) && same(parent_of(a), root), "the parents are as before", __LINE__, "nor any parent");
  group.check(is_alone(x), "x has no parent and no siblings", __LINE__, "what was refused stays detached");
}

void axmContractUtest::test_identity(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_identity");
  auto const document = load(*factory, "<root><a/><a/>text<!--remark--></root>");
  auto const root = root_of(document);
  Node const first = first_of(root);
  Node const twin = next_of(first);
  group.check(same(first, first), "*first == *first", __LINE__, "a node is itself");
  group.check(same(first, child_of(root, 0)), "*first == *children->at(0)", __LINE__, "from a list");
  group.check(same(child_of(root, 0), first), "*children->at(0) == *first", __LINE__, "the other way round");
  group.check(same(previous_of(twin), first), "*twin->getPreviousSibling() == *first", __LINE__, "from a sibling");
  group.check(first != nullptr && twin != nullptr && !(*first == *twin), "!(*first == *twin)", __LINE__,
    "an equal node is another one");
  group.check(
    twin != nullptr && !same(root, twin), "!(*root == *twin)", __LINE__, "a node of another name is another one");
  if (root != nullptr && document != nullptr)
  {
    group.check(same(root->selectSingleNode(APSTRING("//root/a")), first),
      "*root->selectSingleNode(\"//root/a\") == *first", __LINE__, "from a search");
    group.check(same(item_of(document->getElementsByTagName(APSTRING("a")), 1), twin),
      "*document->getElementsByTagName(\"a\")->at(1) == *twin", __LINE__, "from a search by name");
  }
  Node const text = next_of(twin);
  group.check(same(text, child_of(root, 2)), "*text == *children->at(2)", __LINE__, "a text from a list");
  group.check(same(child_of(root, 2), text), "*children->at(2) == *text", __LINE__, "a text, the other way round");
  group.check(same(last_of(root), child_of(root, 3)), "*remark == *children->at(3)", __LINE__, "a comment from a list");
  group.check(
    same(child_of(root, 3), last_of(root)), "*children->at(3) == *remark", __LINE__, "a comment, the other way round");
  group.check(text != nullptr && !same(child_of(root, 3), text), "!(*children->at(3) == *text)", __LINE__,
    "a comment is not the text beside it");
  group.check(same(parent_of(root), document), "*root->getParentNode() == *document", __LINE__, "a document is itself");
}

void axmContractUtest::test_lifetimes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_lifetimes");
  Node removed;
  Node inner;
  Node attached;
  std::shared_ptr<axmNodeList> list;
  std::shared_ptr<axmNamedNodeMap> map;
  Node attribute;
  {
    auto const document = load(*factory, "<root><a N='V'><b>deep</b></a><c K='W'>kept</c></root>");
    auto const root = root_of(document);
    removed = remove(root, first_of(root));
    inner = first_of(removed);
    attached = first_of(root);
    list = children_of(root);
    auto const c = child_of(root, 0);
    map = map_of(c);
    attribute = map != nullptr ? map->getNamedItem(APSTRING("K")) : nullptr;
  }
  group.check(
    text_of(removed), APSTRING("deep"), "removed->get_text()", __LINE__, "a removed node outlives its document");
  group.check(
    same(parent_of(inner), removed), "*inner->getParentNode() == *removed", __LINE__, "with the nodes that it holds");
  group.check(owner_of(removed) != nullptr, "removed->getOwnerDocument().get()", __LINE__, "and the document it is of");
  group.check(text_of(attached), APSTRING("kept"), "attached->get_text()", __LINE__,
    "an attached node outlives the handle on its document");
  group.check(name_of(parent_of(attached)), APSTRING("root"), "attached->getParentNode()->getNodeName()", __LINE__,
    "with its parent");
  group.check(names_in(list), APSTRING("c"), "names(list)", __LINE__, "a list outlives the handles");
  group.check(map != nullptr && map->getLength() == 1, "map->getLength() == 1", __LINE__, "a map outlives the handles");
  group.check(
    value_of(attribute), APSTRING("W"), "attribute->getNodeValue()", __LINE__, "an attribute outlives the handles");

  Node child;
  {
    auto const document = factory->createDocument(APSTRING("root"));
    Node const parent = created(document, APSTRING("parent"));
    child = append(parent, created(document, APSTRING("child")));
    remove(parent, child);
  }
  group.check(name_of(child), APSTRING("child"), "child->getNodeName()", __LINE__,
    "a removed child outlives a parent that was in no tree");
  group.check(is_alone(child), "child has no parent and no siblings", __LINE__, "and is alone");
}

void axmContractUtest::test_text(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_text");
  auto const document = load(*factory, "<root K='V'>one<a>two<b>three</b></a>four</root>");
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  group.check(root->get_text(), APSTRING("onetwothreefour"), "root->get_text()", __LINE__,
    "the texts at every depth, in document order");
  group.check(
    text_of(first_of(root)), APSTRING("one"), "root->getFirstChild()->get_text()", __LINE__, "of a text its own");

  Node const a = child_of(root, 1);
  apString const markup = APSTRING(" a < b & c > d \"e\" 'f' ");
  set_text(root, markup);
  group.check(root->get_text(), markup, "root->get_text() == markup", __LINE__, "a text comes back exactly");
  group.check(number_of_children(root), 1, "root->getChildNodes()->length() == 1", __LINE__, "it is the only child");
  Node const child = first_of(root);
  group.check(
    value_of(child), markup, "root->getFirstChild()->getNodeValue() == markup", __LINE__, "the child holds it");
  group.check(
    std::dynamic_pointer_cast<axmTextNode>(child) != nullptr, "the child is a text", __LINE__, "it is a text node");
  group.check(same(parent_of(child), root), "*child->getParentNode() == *root", __LINE__, "the parent of the text");
  group.check(is_detached(a), "!a->getParentNode().get()", __LINE__, "the old children are out");
  group.check(text_of(a), APSTRING("twothree"), "a->get_text()", __LINE__, "and whole");
  group.check(
    attribute_of(root, APSTRING("K")), APSTRING("V"), "root->getAttribute(\"K\")", __LINE__, "attributes stay");
  auto const copy = reloaded(factory, root);
  group.check(
    text_of(copy), markup, "load(root->get_xml())->get_text() == markup", __LINE__, "it survives a round trip");

  set_text(root, APSTRING("again"));
  group.check(root->get_text(), APSTRING("again"), "root->get_text()", __LINE__, "a text replaces a text");
  group.check(
    number_of_children(root), 1, "root->getChildNodes()->length() == 1", __LINE__, "and is still the only child");
  auto const map = map_of(root);
  Node const attribute = map != nullptr ? map->getNamedItem(APSTRING("K")) : nullptr;
  group.check(text_of(attribute), APSTRING("V"), "attribute->get_text()", __LINE__, "of an attribute its value");
  set_text(attribute, APSTRING("W"));
  group.check(
    attribute_of(root, APSTRING("K")), APSTRING("W"), "root->getAttribute(\"K\")", __LINE__, "which can be replaced");
  Node const instruction = first_of(load_root(*factory, "<r><?target content?></r>"));
  set_text(instruction, APSTRING("other"));
  group.check(value_of(instruction), APSTRING("other"), "instruction->getNodeValue()", __LINE__,
    "so can the value of an instruction");
  set_text(document, APSTRING("nothing"));
  group.check(same(root_of(document), root) && same(first_of(document), root) && same(last_of(document), root),
    "*document->getDocumentElement() == *root", __LINE__, "that of a document is not replaced");
  Node const fresh = created(document, APSTRING("fresh"));
  set_text(fresh, APSTRING("filled"));
  group.check(text_of(fresh), APSTRING("filled"), "fresh->get_text()", __LINE__, "an element that was empty");
}

namespace
{
// Whether the XML of each element in `root` is that element with all that it holds; out of the tree, if that is asked for.
bool are_their_xml(Factory const& factory, Node const& root, bool is_in_tree)
{
  std::vector<Node> waiting = {root};
  // A wrong tree may have no end.
  int steps = 0;
  while (!waiting.empty())
  {
    Node const element = waiting.back();
    waiting.pop_back();
    for (Node child = first_of(element); child != nullptr && ++steps < 100; child = next_of(child))
      if (std::dynamic_pointer_cast<axmElement>(child) != nullptr)
        waiting.push_back(child);
    if (!is_in_tree)
      remove(parent_of(element), element);
    auto const copy = reloaded(factory, element);
    if (axmXmlTables::shape_of(copy) != axmXmlTables::shape_of(element))
      return false;
  }
  return root != nullptr;
}
}

void axmContractUtest::test_xml(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_xml");
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  auto const a = created(document, APSTRING("a"));
  append(root, a);
  append(root, comment(document, APSTRING(" <remark> & more ")));
  append(root, text_node(document, APSTRING("x & y < z > w ]]> \u00E4\u0444\u20AC")));
  apString const awkward = APSTRING("&<>\"'\t\n\r \u00E4\u0444\u20AC");
  if (!group.prerequisite(root != nullptr && a != nullptr, "root.get() && a.get()", __LINE__, "Prerequisite: create"))
    return;
  a->setAttribute(APSTRING("N"), awkward);

  auto const copy = reloaded(factory, root);
  group.check(
    number_of_children(copy), 3, "copy->getChildNodes()->length() == 3", __LINE__, "the children are all there");
  group.check(attribute_of(child_of(copy, 0), APSTRING("N")), awkward, "copy->at(0)->getAttribute(\"N\") == awkward",
    __LINE__, "every character of an attribute survives");
  group.check(value_of(child_of(copy, 1)), APSTRING(" <remark> & more "), "copy->at(1)->getNodeValue()", __LINE__,
    "a comment survives");
  group.check(value_of(child_of(copy, 2)), APSTRING("x & y < z > w ]]> \u00E4\u0444\u20AC"),
    "copy->at(2)->getNodeValue()", __LINE__, "a text survives");

  auto const whole = load_root(*factory, xml_of(document).to_utf8().c_str());
  group.check(name_of(whole), APSTRING("root"), "load(document->get_xml())->getDocumentElement()->getNodeName()",
    __LINE__, "a document survives");
  group.check(attribute_of(child_of(whole, 0), APSTRING("N")), awkward, "whole->at(0)->getAttribute(\"N\") == awkward",
    __LINE__, "with its attributes");
  group.check(text_of(whole), text_of(root), "whole->get_text() == root->get_text()", __LINE__, "and its texts");
  group.check(xml_of(text_node(document, APSTRING("&amp;"))), APSTRING("&amp;amp;"), "text->get_xml()", __LINE__,
    "what looks escaped is escaped too");
  group.check(xml_of(text_node(document, APSTRING("\"quoted\" 'too'"))), APSTRING("\"quoted\" 'too'"),
    "text->get_xml()", __LINE__, "quotes in a text are not escaped");
  struct Unwritable
  {
    Node node;
    char const* description;
  };
  auto const rootless = factory->createDocument(APSTRING("gone"));
  remove(rootless, root_of(rootless));
  auto const held = created(document, APSTRING("held"));
  append(held, text_node(document, APSTRING("\u0001")));
  auto const holder = created(document, APSTRING("holder"));
  append(holder, created(document, APSTRING("between")));
  append(last_of(holder), comment(document, APSTRING("--")));
  auto const named = created(document, APSTRING("named"));
  if (named != nullptr)
    named->setAttribute(APSTRING("N"), APSTRING("\uFFFE"));
  Node const instruction = first_of(load_root(*factory, "<r><?target content?></r>"));
  set_text(instruction, APSTRING("a?>b"));
  Unwritable const unwritable[] = {{rootless, "a document without a root"},
    {text_node(document, APSTRING("\u0001")), "a control character"},
    {text_node(document, APSTRING("a\uFFFF")), "what is no character"},
    {comment(document, APSTRING("a--b")), "a comment that holds two hyphens"},
    {comment(document, APSTRING("a-")), "a comment that ends with a hyphen"},
    {comment(document, APSTRING("\u0008")), "a control character in a comment"},
    {instruction, "an instruction that holds its end"}, {held, "an element that holds a control character"},
    {holder, "a comment further down"}, {named, "an attribute that holds what is no character"}};
  for (auto const& [node, description] : unwritable)
    group.check(xml_of(node), apString(), "node->get_xml()", __LINE__, description);
  group.check(xml_of(created(document, APSTRING("only"))).find(APSTRING("<only")), 0, "only->get_xml()", __LINE__,
    "the XML of an element begins with its tag");
  auto const mixed = load(
    *factory, "<r k='1'>a<b l='2' m='&lt;'>c<d>e<!--f--></d> <?g h?></b><![CDATA[<i>]]><j><k><l/></k>&amp;</j></r>");
  for (bool const is_in_tree : {true, false})
    group.check(are_their_xml(factory, root_of(mixed), is_in_tree), "loaded(element->get_xml()) is the element",
      __LINE__, is_in_tree ? "every element of a document" : "and where it is taken out");
}
