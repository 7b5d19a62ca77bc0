#include "axmContractUtest.h"

#include "axmCommentNode.h"
#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <cstdio>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Element = std::shared_ptr<axmElement>;

char const file[] = "source/utest/axmContractUtestContent";

Element fresh_element(Factory const& factory)
{
  return root_of(factory->createDocument(APSTRING("root")));
}

// What a getter makes of the attribute text "text", "failed" when it fails and "touched" when it then leaves another
// value than it found.
template <class Value>
apString outcome(axmElement& element, apString const& text, Value found, Value wanted)
{
  element.setAttribute(APSTRING("N"), text);
  Value value = found;
  if (element.get_attribute(APSTRING("N"), value))
    return value == wanted ? APSTRING("wanted") : APSTRING("another value");
  return value == found ? APSTRING("failed") : APSTRING("touched");
}

// As the C library writes it in the current locale.
apString locale_text(double value)
{
  char text[40];
  std::snprintf(text, sizeof text, "%.16g", value);
  return apString(text);
}

// That no typed setter and getter has to do with a node that is no element.
bool refuses_setters(axmNode& node)
{
  apString const name = APSTRING("N");
  return !node.set_attribute(name, true) && !node.set_attribute(name, APSTRING("text")) &&
         !node.set_attribute(name, 1.5) && !node.set_attribute(name, 1) && !node.set_attribute(name, 1U) &&
         !node.set_attribute_locale(name, 1.5);
}

bool refuses_getters(axmNode const& node)
{
  apString const name = APSTRING("N");
  bool truth = true;
  apString text = APSTRING("before");
  double number = 4.5;
  int count = 7;
  bool const refused = !node.get_attribute(name, truth) && !node.get_attribute(name, text) &&
                       !node.get_attribute(name, number) && !node.get_attribute(name, count) &&
                       !node.get_attribute_locale(name, number);
  return refused && truth && text == APSTRING("before") && number == 4.5 && count == 7;
}
}

void axmContractUtest::test_creation(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_creation");
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  group.check(number_of_children(root), 0, "root->getChildNodes()->length() == 0", __LINE__, "a new root is empty");
  group.check(!root->hasAttributes(), "!root->hasAttributes()", __LINE__, "a new root has no attributes");
  group.check(same(root, document->getDocumentElement()), "*root == *document->getDocumentElement()", __LINE__,
    "the root is the same at every call");
  auto const other = factory->createDocument(APSTRING("root"));
  append(root, created(document, APSTRING("a")));
  group.check(number_of_children(root_of(other)), 0, "other->getDocumentElement()->getChildNodes()->length() == 0",
    __LINE__, "each document is a new one");

  auto const element = document->createElement(APSTRING("p_1.x-y"));
  group.check(name_of(element), APSTRING("p_1.x-y"), "element->getNodeName()", __LINE__, "a name as it was given");
  group.check(name_of(document->createElement(APSTRING("\u0444\u00E4"))), APSTRING("\u0444\u00E4"),
    "element->getNodeName()", __LINE__, "a name in other letters");
  group.check(name_of(document->createElement(APSTRING("p:x"))), APSTRING("p:x"), "element->getNodeName()", __LINE__,
    "a name with a colon is one");
  group.check(name_of(load_root(*factory, "<p:Root xmlns:p='u'/>")), APSTRING("p:Root"), "root->getNodeName()",
    __LINE__, "a name as it was written, prefix included");
  group.check(
    element != nullptr && !element->hasChildNodes(), "!element->hasChildNodes()", __LINE__, "a new element is empty");
  group.check(document->createElement(apString()) == nullptr, "!document->createElement(apString()).get()", __LINE__,
    "no element without a name");
  group.check(document->createElement(APSTRING("1 x")) == nullptr, "!document->createElement(APSTRING(\"1 x\")).get()",
    __LINE__, "no element with a name that is none");
  group.check(factory->createDocument(APSTRING("<x>")) == nullptr, "!factory->createDocument(APSTRING(\"<x>\")).get()",
    __LINE__, "no document with a root whose name is none");

  apString const data = APSTRING("  two  spaces & <markup> \u0444 ");
  auto const text = document->createTextNode(data);
  group.check(
    text != nullptr && text->getData() == data, "text->getData() == data", __LINE__, "a text as it was given");
  group.check(text_of(text), data, "text->get_text() == data", __LINE__, "the text of a text");
  group.check(value_of(text), data, "text->getNodeValue() == data", __LINE__, "the value of a text");
  auto const remark = document->createComment(data);
  group.check(
    remark != nullptr && remark->getData() == data, "remark->getData() == data", __LINE__, "a comment as it was given");
  group.check(text_of(remark), data, "remark->get_text() == data", __LINE__, "the text of a comment");
  group.check(value_of(remark), data, "remark->getNodeValue() == data", __LINE__, "the value of a comment");
  auto const nothing = document->createTextNode(apString());
  group.check(
    nothing != nullptr && nothing->getData().empty(), "text->getData().empty()", __LINE__, "a text may be empty");
}

void axmContractUtest::test_attributes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_attributes");
  auto const root = load_root(*factory, "<root A='1' B='2'/>");
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  group.check(
    root->getAttribute(APSTRING("B")), APSTRING("2"), "root->getAttribute(\"B\")", __LINE__, "a loaded value");
  root->setAttribute(APSTRING("A"), APSTRING("&<>\"' \t\u0444"));
  group.check(root->getAttribute(APSTRING("A")), APSTRING("&<>\"' \t\u0444"), "root->getAttribute(\"A\")", __LINE__,
    "a value exactly as it was set");
  group.check(root->getAttribute(APSTRING("B")), APSTRING("2"), "root->getAttribute(\"B\")", __LINE__,
    "the others keep their values");
  auto const map = root->getAttributes();
  group.check(map != nullptr && map->getLength() == 2, "root->getAttributes()->getLength() == 2", __LINE__,
    "setting a value again adds nothing");
  root->setAttribute(APSTRING("a"), APSTRING("small"));
  group.check(root->getAttribute(APSTRING("a")), APSTRING("small"), "root->getAttribute(\"a\")", __LINE__,
    "names differ by case");
  group.check(root->getAttribute(APSTRING("A")), APSTRING("&<>\"' \t\u0444"), "root->getAttribute(\"A\")", __LINE__,
    "the name in the other case keeps its value");
  group.check(!root->hasAttribute(APSTRING("b")), "!root->hasAttribute(\"b\")", __LINE__,
    "an attribute is not found by its name in another case");

  root->setAttribute(APSTRING("E"), apString());
  group.check(root->hasAttribute(APSTRING("E")), "root->hasAttribute(\"E\")", __LINE__, "an empty value is a value");
  group.check(root->getAttribute(APSTRING("E")), apString(), "root->getAttribute(\"E\")", __LINE__, "and empty");
  root->setAttribute(APSTRING("B"), apString());
  group.check(root->getAttribute(APSTRING("B")), apString(), "root->getAttribute(\"B\")", __LINE__,
    "an empty value overwrites another");

  root->removeAttribute(APSTRING("A"));
  group.check(
    !root->hasAttribute(APSTRING("A")), "!root->hasAttribute(\"A\")", __LINE__, "a removed attribute is gone");
  group.check(
    root->hasAttribute(APSTRING("B")) && root->hasAttribute(APSTRING("a")) && root->hasAttribute(APSTRING("E")),
    "the others are there", __LINE__, "removing one leaves the others");
  root->removeAttribute(APSTRING("absent"));
  group.check(root->hasAttributes(), "root->hasAttributes()", __LINE__, "removing what is not there changes nothing");
  for (auto const& name : {APSTRING("B"), APSTRING("a"), APSTRING("E")})
    root->removeAttribute(name);
  group.check(!root->hasAttributes(), "!root->hasAttributes()", __LINE__, "after the last one there is none");
}

void axmContractUtest::test_typed_attributes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_typed_attributes");
  auto const root = fresh_element(factory);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  apString const name = APSTRING("N");
  auto const stored = [&root, &name] { return root->getAttribute(name); };

  group.check(root->set_attribute(name, true), "root->set_attribute(name, true)", __LINE__, "set a bool");
  group.check(stored(), APSTRING("true"), "root->getAttribute(name)", __LINE__, "text of true");
  root->set_attribute(name, false);
  group.check(stored(), APSTRING("false"), "root->getAttribute(name)", __LINE__, "text of false");
  group.check(root->set_attribute(name, -2147483647), "root->set_attribute(name, -2147483647)", __LINE__, "set an int");
  group.check(stored(), APSTRING("-2147483647"), "root->getAttribute(name)", __LINE__, "text of an int");
  group.check(
    root->set_attribute(name, 4294967295U), "root->set_attribute(name, 4294967295U)", __LINE__, "set an unsigned int");
  group.check(stored(), APSTRING("4294967295"), "root->getAttribute(name)", __LINE__, "text of an unsigned int");
  group.check(root->set_attribute(name, -1.5e-7), "root->set_attribute(name, -1.5e-7)", __LINE__, "set a double");
  group.check(stored(), APSTRING("-1.5e-07"), "root->getAttribute(name)", __LINE__,
    "text of a double has a point under every locale");
  root->set_attribute(name, 0.1234567890123456);
  group.check(stored(), APSTRING("0.1234567890123456"), "root->getAttribute(name)", __LINE__,
    "text of a double has sixteen digits");
  group.check(
    root->set_attribute(name, APSTRING(" as is ")), "root->set_attribute(name, text)", __LINE__, "set a text");
  group.check(stored(), APSTRING(" as is "), "root->getAttribute(name)", __LINE__, "text of a text");

  struct Truth
  {
    wchar_t const* text;
    bool value;
    bool good;
  };
  Truth const truths[] = {{L"true", true, true}, {L"1", true, true}, {L"false", false, true}, {L"0", false, true},
    {L"TRUE", true, false}, {L"False", false, false}, {L"yes", true, false}, {L"", false, false}, {L" 1", true, false}};
  for (auto const& [text, value, good] : truths)
    group.check(outcome(*root, text, !value, value), good ? APSTRING("wanted") : APSTRING("failed"),
      "root->get_attribute(name, bool_value)", __LINE__, "a bool from a text");

  struct Count
  {
    wchar_t const* text;
    int value;
    bool good;
  };
  Count const counts[] = {{L"123", 123, true}, {L"-7", -7, true}, {L"2147483647", 2147483647, true},
    {L"12x", 12, false}, {L"1.5", 1, false}, {L"", 0, false}, {L"2147483648", 0, false}};
  for (auto const& [text, value, good] : counts)
    group.check(outcome(*root, text, -99, value), good ? APSTRING("wanted") : APSTRING("failed"),
      "root->get_attribute(name, int_value)", __LINE__, "an int from a text");

  struct Number
  {
    wchar_t const* text;
    double value;
    bool good;
  };
  Number const numbers[] = {{L"1.5", 1.5, true}, {L"-0.25e2", -25.0, true}, {L"7", 7.0, true}, {L"1,5", 1.5, false},
    {L"1.5x", 1.5, false}, {L"", 0.0, false}, {L"1.5.5", 1.5, false}};
  for (auto const& [text, value, good] : numbers)
    group.check(outcome(*root, text, -99.0, value), good ? APSTRING("wanted") : APSTRING("failed"),
      "root->get_attribute(name, double_value)", __LINE__, "a double from a text");

  apString text = APSTRING("before");
  group.check(!root->get_attribute(APSTRING("absent"), text), "!root->get_attribute(absent, text)", __LINE__,
    "what is absent is not got");
  group.check(text, APSTRING("before"), "text", __LINE__, "and touches nothing");
  root->setAttribute(name, apString());
  group.check(root->get_attribute(name, text) && text.empty(), "root->get_attribute(name, text) && text.empty()",
    __LINE__, "an empty text is got");
}

void axmContractUtest::test_locale_attributes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_locale_attributes");
  auto const root = fresh_element(factory);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  apString const name = APSTRING("N");
  group.check(root->set_attribute_locale(name, 1.5), "root->set_attribute_locale(name, 1.5)", __LINE__,
    "set a double in the form of the locale");
  group.check(root->getAttribute(name), locale_text(1.5), "root->getAttribute(name) == locale_text(1.5)", __LINE__,
    "it is written as the C library does");
  double value = -99.0;
  group.check(root->get_attribute_locale(name, value) && value == 1.5,
    "root->get_attribute_locale(name, value) && value == 1.5", __LINE__, "it is read in that form");

  // Under a decimal point the two forms are one; under another separator each getter refuses the other's form.
  bool const is_point = locale_text(1.5) == APSTRING("1.5");
  value = -99.0;
  group.check(root->get_attribute(name, value) == is_point, "root->get_attribute(name, value) == is_point", __LINE__,
    "the other getter takes a point only");
  group.check(value == (is_point ? 1.5 : -99.0), "value == (is_point ? 1.5 : -99.0)", __LINE__,
    "and touches nothing when it fails");
  root->set_attribute(name, 1.5);
  value = -99.0;
  group.check(root->get_attribute_locale(name, value) == is_point,
    "root->get_attribute_locale(name, value) == is_point", __LINE__, "a point is read in the locale's form only");
  group.check(
    value == (is_point ? 1.5 : -99.0), "value == (is_point ? 1.5 : -99.0)", __LINE__, "and a failure touches nothing");
  value = -99.0;
  group.check(!root->get_attribute_locale(APSTRING("absent"), value) && value == -99.0,
    "!root->get_attribute_locale(absent, value) && value == -99.0", __LINE__, "what is absent is not got");
}

void axmContractUtest::test_attributes_of_others(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_attributes_of_others");
  auto const document = load(*factory, "<root k='1'>text<!--remark--></root><?target N='1'?>");
  auto const root = root_of(document);
  Node const text = first_of(root);
  Node const remark = last_of(root);
  if (!group.prerequisite(
        text != nullptr && remark != nullptr, "text.get() && remark.get()", __LINE__, "Prerequisite: children"))
    return;
  struct Other
  {
    Node node;
    char const* description;
  };
  Other const others[] = {{text, "a text has no attributes"}, {remark, "a comment has no attributes"},
    {document, "a document has no attributes"}, {child_of(root, 0), "a text from a list has no attributes"},
    {child_of(root, 1), "a comment from a list has no attributes"},
    {next_of(root), "an instruction has no attributes, whatever it holds"},
    {detached_attribute(document, APSTRING("N"), APSTRING("1")), "an attribute has no attributes"},
    {document->createTextNode(APSTRING("new")), "a text in no tree has no attributes"}};
  for (auto const& [node, description] : others)
  {
    group.check(node != nullptr && refuses_setters(*node), "refuses_setters(*node)", __LINE__, description);
    group.check(node != nullptr && refuses_getters(*node), "refuses_getters(*node)", __LINE__, description);
    group.check(node != nullptr && !node->hasAttributes(), "!node->hasAttributes()", __LINE__, description);
  }
  group.check(std::dynamic_pointer_cast<axmElement>(text) == nullptr, "the text is no axmElement", __LINE__,
    "only elements are elements");
  group.check(std::dynamic_pointer_cast<axmElement>(remark) == nullptr, "the comment is no axmElement", __LINE__,
    "only elements are elements");
  group.check(std::dynamic_pointer_cast<axmElement>(first_of(document)) != nullptr, "the root is an axmElement",
    __LINE__, "an element is one from wherever it comes");
  group.check(text_of(root), APSTRING("text"), "root->get_text()", __LINE__, "a refused setter changes nothing");
  group.check(number_of_children(root), 2, "root->getChildNodes()->length() == 2", __LINE__, "nor any child");
}

void axmContractUtest::test_select(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_select");
  auto const document =
    load(*factory, "<root><a N='1'/><b><a N='2'><a N='3'/></a></b><c><d/></c><a N='4'>t</a></root>");
  auto const root = root_of(document);
  auto const b = child_of(root, 1);
  auto const c = child_of(root, 2);
  if (!group.prerequisite(b != nullptr && c != nullptr, "b.get() && c.get()", __LINE__, "Prerequisite: children"))
    return;
  auto const numbers = [](std::shared_ptr<axmNodeList> const& list)
  {
    apString result;
    for (int index = 0; index < loop_length_of(list); ++index)
      result += attribute_of(list->at(index), APSTRING("N"));
    return result;
  };
  group.check(numbers(root->selectNodes(APSTRING("//a"))), APSTRING("1234"), "numbers of root->selectNodes(\"//a\")",
    __LINE__, "what is found stands in document order");
  group.check(numbers(c->selectNodes(APSTRING("//a"))), APSTRING("1234"), "numbers of c->selectNodes(\"//a\")",
    __LINE__, "an absolute path is resolved against the whole document");
  group.check(numbers(root->selectNodes(APSTRING("a"))), APSTRING("14"), "numbers of root->selectNodes(\"a\")",
    __LINE__, "a relative path is resolved against the element");
  group.check(numbers(b->selectNodes(APSTRING("a"))), APSTRING("2"), "numbers of b->selectNodes(\"a\")", __LINE__,
    "further down too");
  group.check(numbers(b->selectNodes(APSTRING("a/a"))), APSTRING("3"), "numbers of b->selectNodes(\"a/a\")", __LINE__,
    "a path of two steps");
  group.check(numbers(root->selectNodes(APSTRING("/root/b//a"))), APSTRING("23"),
    "numbers of root->selectNodes(\"/root/b//a\")", __LINE__, "descendants at every depth");
  group.check(same(root->selectSingleNode(APSTRING("//a")), first_of(root)), "*root->selectSingleNode(\"//a\") == *a1",
    __LINE__, "the single node is the first one");
  group.check(same(c->selectSingleNode(APSTRING("d")), first_of(c)), "*c->selectSingleNode(\"d\") == *d", __LINE__,
    "the single node of a relative path");
  auto const none = c->selectNodes(APSTRING("a"));
  group.check(none != nullptr && none->isEmpty() && none->length() == 0, "none->isEmpty() && none->length() == 0",
    __LINE__, "nothing found is an empty list");
  group.check(c->selectSingleNode(APSTRING("a")) == nullptr, "!c->selectSingleNode(\"a\").get()", __LINE__,
    "nothing found is no node");
  group.check(root->selectNodes(APSTRING("//a[")) != nullptr, "root->selectNodes(\"//a[\").get()", __LINE__,
    "what is no path gives a list too");
  group.check(root->selectSingleNode(APSTRING("//a[")) == nullptr, "!root->selectSingleNode(\"//a[\").get()", __LINE__,
    "what is no path gives no node");

  remove(root, b);
  group.check(numbers(root->selectNodes(APSTRING("//a"))), APSTRING("14"), "numbers of root->selectNodes(\"//a\")",
    __LINE__, "what was removed is not found");
  group.check(numbers(b->selectNodes(APSTRING("a"))), APSTRING("2"), "numbers of b->selectNodes(\"a\")", __LINE__,
    "a removed element can be searched");
  group.check(numbers(b->selectNodes(APSTRING("a/a"))), APSTRING("3"), "numbers of b->selectNodes(\"a/a\")", __LINE__,
    "at every depth");
  auto const fresh = created(document, APSTRING("fresh"));
  append(fresh, b);
  group.check(same(fresh != nullptr ? fresh->selectSingleNode(APSTRING("b")) : nullptr, b),
    "*fresh->selectSingleNode(\"b\") == *b", __LINE__, "as can one that never was in the tree");
}

void axmContractUtest::test_elements_by_tag_name(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmContractUtest::test_elements_by_tag_name");
  auto const document = load(*factory, "<a>1<b>2<a>3</a></b><a><a>4</a></a><A/></a>");
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const all = document->getElementsByTagName(APSTRING("a"));
  group.check(length_of(all), 4, "all->length() == 4", __LINE__, "elements at every depth, the root included");
  group.check(same(item_of(all, 0), root), "*all->at(0) == *root", __LINE__, "the root comes first");
  group.check(
    text_of(item_of(all, 1)) + APSTRING("|") + text_of(item_of(all, 2)) + APSTRING("|") + text_of(item_of(all, 3)),
    APSTRING("3|4|4"), "texts of all", __LINE__, "the others follow in document order");
  group.check(length_of(document->getElementsByTagName(APSTRING("A"))), 1,
    "document->getElementsByTagName(\"A\")->length() == 1", __LINE__, "names differ by case");
  for (wchar_t const* const name : {L"", L"*", L"//a", L"a b", L" a", L"a|b", L"1", L"#text", L"a[1]", L"."})
    group.check(length_of(document->getElementsByTagName(name)), 0,
      "document->getElementsByTagName(name)->length() == 0", __LINE__, "what is no name finds nothing");
  auto const prefixed =
    load(*factory, "<r xmlns:p='urn:p' xmlns:q='urn:p'><p:a/><a/><q:a/><p:a xmlns:p='urn:q'/><p:b/></r>");
  if (prefixed != nullptr)
  {
    auto const found = prefixed->getElementsByTagName(APSTRING("p:a"));
    group.check(names_in(found), APSTRING("p:a p:a"), "document->getElementsByTagName(\"p:a\")", __LINE__,
      "a prefix is a part of the name");
    group.check(length_of(prefixed->getElementsByTagName(APSTRING("a"))), 1,
      "document->getElementsByTagName(\"a\")->length() == 1", __LINE__, "and none is none");
    group.check(length_of(prefixed->getElementsByTagName(APSTRING("b"))), 0,
      "document->getElementsByTagName(\"b\")->length() == 0", __LINE__, "a name without its prefix is another one");
    group.check(length_of(prefixed->getElementsByTagName(APSTRING("p:"))), 0,
      "document->getElementsByTagName(\"p:\")->length() == 0", __LINE__, "nor is a prefix alone the name of any");
  }

  Node const b = child_of(root, 1);
  remove(root, b);
  group.check(length_of(document->getElementsByTagName(APSTRING("a"))), 3,
    "document->getElementsByTagName(\"a\")->length() == 3", __LINE__, "what was removed is not found");
  append(root, created(document, APSTRING("b")));
  group.check(length_of(document->getElementsByTagName(APSTRING("b"))), 1,
    "document->getElementsByTagName(\"b\")->length() == 1", __LINE__, "what was added is found");
}
