#include "axmNodeUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmNodeUtest";

char const two_tags[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root>  <tag_1>Some Text</tag_1>  <tag_2>Some More "
                        "Text</tag_2></root>";
}

axmNodeUtest::axmNodeUtest(utUnitTest* given) : tester(given) {}

axmNodeUtest::~axmNodeUtest() = default;

void axmNodeUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmNodeUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_set_text, "axmNodeUtest::test_set_text"},
    {&Utest::test_get_next_sibling, "axmNodeUtest::test_get_next_sibling"},
    {&Utest::test_get_previous_sibling, "axmNodeUtest::test_get_previous_sibling"},
    {&Utest::test_get_parent_node, "axmNodeUtest::test_get_parent_node"},
    {&Utest::test_append_child, "axmNodeUtest::test_append_child"},
    {&Utest::test_insert_child, "axmNodeUtest::test_insert_child"},
    {&Utest::test_replace_child, "axmNodeUtest::test_replace_child"},
    {&Utest::test_remove_child, "axmNodeUtest::test_remove_child"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmNodeUtest::test_set_text(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_set_text");
  auto const document = load(factory,
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root>  <tag_1>Some Text</tag_1>  <tag_2>    <tag_3>Some More "
    "Text1</tag_3>    <tag_3>Some More Text2</tag_3>  </tag_2></root>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const child1 = child_of(root, 0);
  Node const child2 = child_of(root, 1);
  if (!group.prerequisite(number_of_children(root) == 2 && child1 != nullptr && child2 != nullptr,
        "root->getChildNodes()->length() == 2", __LINE__, "Prerequisite: number of children"))
    return;

  apString const text1 = APSTRING("New Tag1 Text");
  apString const text2 = APSTRING("New Tag2 Text");
  child1->set_text(text1);
  child2->set_text(text2);
  group.check(number_of_children(root), 2, "root->getChildNodes()->length() == 2", __LINE__, "number of children");
  group.check(
    text_of(child_of(root, 0)), text1, "root->getChildNodes()->at(0)->get_text() == text1", __LINE__, "new tag1 text");
  group.check(
    text_of(child_of(root, 1)), text2, "root->getChildNodes()->at(1)->get_text() == text2", __LINE__, "new tag2 text");
  group.check(number_of_children(child_of(root, 1)), 1, "root->getChildNodes()->at(1)->getChildNodes()->length() == 1",
    __LINE__, "number of grand children");
}

void axmNodeUtest::test_get_next_sibling(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_get_next_sibling");
  auto const document = load(factory, two_tags);
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag1 = root != nullptr ? root->getFirstChild() : nullptr;
  if (!group.prerequisite(tag1 != nullptr, "tag1.get()", __LINE__, "Prerequisite: test root->getFirstChild"))
    return;
  group.prerequisite(tag1->getNodeName() == APSTRING("tag_1"), "tag1->getNodeName() == APSTRING(\"tag_1\")", __LINE__,
    "Prerequisite: test first name");

  Node const tag2 = tag1->getNextSibling();
  if (!group.check(tag2 != nullptr, "tag2.get()", __LINE__, "test tag1->getNextSibling"))
    return;
  group.check(tag2->getNodeName(), APSTRING("tag_2"), "tag2->getNodeName() == APSTRING(\"tag_2\")", __LINE__,
    "test next sibling name");
  group.check(
    tag2->getNextSibling() == nullptr, "!tag2->getNextSibling().get()", __LINE__, "test tag2->getNextSibling");
}

void axmNodeUtest::test_get_previous_sibling(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_get_previous_sibling");
  auto const document = load(factory, two_tags);
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag2 = root != nullptr ? root->getLastChild() : nullptr;
  if (!group.prerequisite(tag2 != nullptr, "tag2.get()", __LINE__, "Prerequisite: test root->getLastChild"))
    return;
  group.prerequisite(tag2->getNodeName() == APSTRING("tag_2"), "tag2->getNodeName() == APSTRING(\"tag_2\")", __LINE__,
    "Prerequisite: test last name");

  Node const tag1 = tag2->getPreviousSibling();
  if (!group.check(tag1 != nullptr, "tag1.get()", __LINE__, "test tag2->getPreviousSibling"))
    return;
  group.check(tag1->getNodeName(), APSTRING("tag_1"), "tag1->getNodeName() == APSTRING(\"tag_1\")", __LINE__,
    "test previous sibling name");
  // The label names the other direction; it is part of what the suite reports.
  group.check(
    tag1->getPreviousSibling() == nullptr, "!tag1->getPreviousSibling().get()", __LINE__, "test tag1->getNextSibling");
}

void axmNodeUtest::test_get_parent_node(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_get_parent_node");
  auto const document =
    load(factory, "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root>  <tag_1>Some Text</tag_1></root>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag1 = root != nullptr ? root->getFirstChild() : nullptr;
  Node const tag1_parent = parent_of(tag1);
  group.check(tag1_parent != nullptr, "tag1_parent.get()", __LINE__, "test tag1->getParentNode");
  group.check(same(tag1_parent, root), "*tag1_parent == *root", __LINE__, "test tag1 parent");

  Node const tag2 = document->createElement(APSTRING("tag2"));
  group.check(is_detached(tag2), "!tag2->getParentNode().get()", __LINE__, "test tag2 parent");
  Node const tag2_appended = append(root, tag2);
  Node const tag2_parent = parent_of(tag2_appended);
  group.check(
    same(tag2_parent, root), "tag2_parent.get() && *tag2_parent == *root", __LINE__, "test tag2_appended parent");
}

void axmNodeUtest::test_append_child(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_append_child");
  auto const document = load(factory, "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root></root>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag1 = append(root, document->createElement(APSTRING("tag1")));
  if (!group.check(tag1 != nullptr, "tag1.get()", __LINE__, "test root->appendChild"))
    return;
  group.check(tag1->getNodeName(), APSTRING("tag1"), "tag1->getNodeName() == APSTRING(\"tag1\")", __LINE__,
    "test appended child name");
  group.check(same(root->getFirstChild(), tag1), "*root->getFirstChild() == *tag1", __LINE__, "test appended child");
}

void axmNodeUtest::test_insert_child(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_insert_child");
  auto const document = load(factory, "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root><tag1>Some Text</tag1></root>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag1 = root != nullptr ? root->getFirstChild() : nullptr;
  Node const tag2 = insert(root, document->createElement(APSTRING("tag2")), tag1);
  if (!group.check(tag2 != nullptr, "tag2.get()", __LINE__, "test root->insertBefore"))
    return;
  group.check(tag2->getNodeName(), APSTRING("tag2"), "tag2->getNodeName() == APSTRING(\"tag2\")", __LINE__,
    "test inserted child name");
  group.check(same(root->getFirstChild(), tag2), "*root->getFirstChild() == *tag2", __LINE__, "test inserted child");

  Node const tag3 = insert(root, document->createElement(APSTRING("tag3")), nullptr);
  if (!group.check(tag3 != nullptr, "tag3.get()", __LINE__, "test root->insertBefore"))
    return;
  group.check(tag3->getNodeName(), APSTRING("tag3"), "tag3->getNodeName() == APSTRING(\"tag3\")", __LINE__,
    "test inserted child name");
  group.check(same(root->getLastChild(), tag3), "*root->getLastChild() == *tag3", __LINE__, "test inserted child");

  Node const tag5 = document->createElement(APSTRING("tag5"));
  Node const tag4 = tag5 != nullptr ? insert(root, document->createElement(APSTRING("tag4")), tag5) : nullptr;
  group.check(tag5 != nullptr && tag4 == nullptr, "!tag4.get()", __LINE__, "test insertee after non child");
  group.check(same(root->getLastChild(), tag3), "*root->getLastChild() == *tag3", __LINE__, "test inserted child");
}

void axmNodeUtest::test_replace_child(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_replace_child");
  auto const document = load(factory,
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root>  <tag1>Some Text</tag1>  <tag2>    <tag3>Yet more text</tag3>  "
    "</tag2></root>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag1 = child_of(root, 0);
  Node const tag2 = child_of(root, 1);
  Node const tag4 = document->createElement(APSTRING("tag4"));
  replace(root, tag4, tag1);
  group.check(number_of_children(root), 2, "root->getChildNodes()->length() == 2", __LINE__, "test number of children");
  group.check(same(child_of(root, 0), tag4), "*root->getChildNodes()->at(0) == *tag4", __LINE__, "test replaced child");
  group.check(
    same(child_of(root, 1), tag2), "*root->getChildNodes()->at(1) == *tag2", __LINE__, "test untouched child");
  group.check(same(parent_of(tag4), root), "*tag4->getParentNode() == *root", __LINE__, "test replacer child parent");
  group.check(is_detached(tag1), "!tag1->getParentNode().get()", __LINE__, "test replacee child parent");

  Node const tag3 = child_of(tag2, 0);
  Node const tag5 = document->createElement(APSTRING("tag5"));
  replace(tag2, tag5, tag3);
  group.check(number_of_children(tag2), 1, "tag2->getChildNodes()->length() == 1", __LINE__, "test number of children");
  group.check(same(child_of(tag2, 0), tag5), "*tag2->getChildNodes()->at(0) == *tag5", __LINE__, "test replaced child");
  group.check(same(parent_of(tag5), tag2), "*tag5->getParentNode() == *tag2", __LINE__, "test replacer child parent");
  group.check(is_detached(tag3), "!tag3->getParentNode().get()", __LINE__, "test replacee child parent");

  Node const tag6 = document->createElement(APSTRING("tag6"));
  Node const tag7 = document->createElement(APSTRING("tag7"));
  Node const replaced = replace(tag2, tag6, tag7);
  group.check(
    tag6 != nullptr && tag7 != nullptr && replaced == nullptr, "!replaced.get()", __LINE__, "test replacee non child");
  group.check(number_of_children(tag2), 1, "tag2->getChildNodes()->length() == 1", __LINE__, "test number of children");
  group.check(
    same(child_of(tag2, 0), tag5), "*tag2->getChildNodes()->at(0) == *tag5", __LINE__, "test untouched child");
}

void axmNodeUtest::test_remove_child(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeUtest::test_remove_child");
  auto const document = load(factory,
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root>  <tag1>Some Text</tag1>  <tag2>Some More Text</tag2></root>");
  if (!group.prerequisite(document != nullptr, "document.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const root = document->getDocumentElement();
  Node const tag1 = child_of(root, 0);
  Node const tag2 = child_of(root, 1);
  Node const removed1 = remove(root, tag1);
  group.check(same(removed1, tag1) && is_detached(removed1), "*removed1 == *tag1 && !removed1->getParentNode().get()",
    __LINE__, "test removed child parent");
  group.check(number_of_children(root), 1, "root->getChildNodes()->length() == 1", __LINE__, "test number of children");
  group.check(
    same(child_of(root, 0), tag2), "*root->getChildNodes()->at(0) == *tag2", __LINE__, "test remaining child");

  Node const tag3 = document->createElement(APSTRING("tag3"));
  Node const removed3 = remove(root, tag3);
  group.check(tag3 != nullptr && removed3 == nullptr, "!removed3.get()", __LINE__, "test removing a non child");

  Node const removed2 = remove(root, tag2);
  group.check(same(removed2, tag2) && is_detached(removed2), "*removed2 == *tag2 && !removed2->getParentNode().get()",
    __LINE__, "test removed child parent");
  group.check(number_of_children(root), 0, "root->getChildNodes()->length() == 0", __LINE__, "test number of children");
}
