#include "axmElementUtest.h"

#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmElementUtest";

void append_with_text(axmDocument& document, Node const& element, apString const& text)
{
  append(element, document.createTextNode(text));
}
}

axmElementUtest::axmElementUtest(utUnitTest* given) : tester(given) {}

axmElementUtest::~axmElementUtest() = default;

void axmElementUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmElementUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_select, "axmElementUtest::test_select"},
    {&Utest::test_zero_length_attribute, "axmElementUtest::test_zero_length_attribute"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmElementUtest::test_select(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmElementUtest::test_select");
  auto const document = factory.createDocument(APSTRING("root"));
  auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  append_with_text(*document, append(root, document->createElement(APSTRING("tag1"))), APSTRING("Hello"));
  append_with_text(*document, append(root, document->createElement(APSTRING("tag1"))), APSTRING("World"));
  append(root, document->createElement(APSTRING("tag2")));
  Node const tag3 = append(root, document->createElement(APSTRING("tag3")));
  append_with_text(*document, append(tag3, document->createElement(APSTRING("tag4"))), APSTRING("Goodbye"));

  {
    apString const xpath = APSTRING("//root/tag1");
    auto const nodes = root->selectNodes(xpath);
    group.check(length_of(nodes), 2, "nodes->length() == 2", __LINE__, "test number of nodes found");
    Node const node0 = item_of(nodes, 0);
    Node const node1 = item_of(nodes, 1);
    group.check(name_of(node0), APSTRING("tag1"), "nodes->at(0)->getNodeName() == APSTRING(\"tag1\")", __LINE__,
      "test selectNodes | node 0 name");
    group.check(text_of(node0), APSTRING("Hello"), "nodes->at(0)->get_text() == APSTRING(\"Hello\")", __LINE__,
      "test selectNodes | node 0 text");
    group.check(name_of(node1), APSTRING("tag1"), "nodes->at(1)->getNodeName() == APSTRING(\"tag1\")", __LINE__,
      "test selectNodes | node 1 name");
    group.check(text_of(node1), APSTRING("World"), "nodes->at(1)->get_text() == APSTRING(\"World\")", __LINE__,
      "test selectNodes | node 1 text");
    Node const node = root->selectSingleNode(xpath);
    group.check(node != nullptr, "node.get()", __LINE__, "test node found");
    group.check(name_of(node), APSTRING("tag1"), "node->getNodeName() == APSTRING(\"tag1\")", __LINE__,
      "test selectSingleNode | name");
    group.check(text_of(node), APSTRING("Hello"), "node->get_text() == APSTRING(\"Hello\")", __LINE__,
      "test selectSingleNode | text");
  }
  {
    apString const xpath = APSTRING("//root/bob");
    auto const nodes = root->selectNodes(xpath);
    group.check(nodes != nullptr && nodes->isEmpty(), "nodes->isEmpty()", __LINE__, "test nodes found from bad xpath");
    group.check(root->selectSingleNode(xpath) == nullptr, "!node.get()", __LINE__, "test node found from bad xpath");
  }
  {
    apString const xpath = APSTRING("//tag3/tag4");
    auto const nodes = root->selectNodes(xpath);
    group.check(length_of(nodes), 1, "nodes->length() == 1", __LINE__, "test number of nodes found");
    Node const node0 = item_of(nodes, 0);
    group.check(name_of(node0), APSTRING("tag4"), "nodes->at(0)->getNodeName() == APSTRING(\"tag4\")", __LINE__,
      "test selectNodes | node 0 name");
    group.check(text_of(node0), APSTRING("Goodbye"), "nodes->at(0)->get_text() == APSTRING(\"Goodbye\")", __LINE__,
      "test selectNodes | node 0 text");
    Node const node = root->selectSingleNode(xpath);
    group.check(node != nullptr, "node.get()", __LINE__, "test node found");
    group.check(name_of(node), APSTRING("tag4"), "node->getNodeName() == APSTRING(\"tag4\")", __LINE__,
      "test selectSingleNode | name");
    group.check(text_of(node), APSTRING("Goodbye"), "node->get_text() == APSTRING(\"Goodbye\")", __LINE__,
      "test selectSingleNode | text");
  }
}

void axmElementUtest::test_zero_length_attribute(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmElementUtest::test_zero_length_attribute");
  auto const document = factory.createDocument(APSTRING("root"));
  auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  apString const value;
  root->setAttribute(APSTRING("attribute_name"), value);
  apString read = APSTRING("(no attribute)");
  root->get_attribute(APSTRING("attribute_name"), read);
  group.check(read, value, "read == value", __LINE__, "test zero length attribute value");
}
