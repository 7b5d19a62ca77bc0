#include "axmNamedNodeMapUtest.h"

#include "axmNamedNodeMap.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

#include <algorithm>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmNamedNodeMapUtest";

void set_attributes(axmElement& element)
{
  element.setAttribute(APSTRING("N1"), APSTRING("V1"));
  element.setAttribute(APSTRING("N2"), APSTRING("V2"));
}

std::shared_ptr<axmElement> element_with_attributes(axmDocumentFactory const& factory)
{
  auto const document = factory.createDocument(APSTRING("Test"));
  auto root = document != nullptr ? document->getDocumentElement() : nullptr;
  if (root != nullptr)
    set_attributes(*root);
  return root;
}
}

axmNamedNodeMapUtest::axmNamedNodeMapUtest(utUnitTest* given) : tester(given) {}

axmNamedNodeMapUtest::~axmNamedNodeMapUtest() = default;

void axmNamedNodeMapUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmNamedNodeMapUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_getLength, "axmNamedNodeMapUtest::test_getLength"},
    {&Utest::test_iteration, "axmNamedNodeMapUtest::test_iteration"},
    {&Utest::test_getNamedItem, "axmNamedNodeMapUtest::test_getNamedItem"},
    {&Utest::test_removeNamedItem, "axmNamedNodeMapUtest::test_removeNamedItem"},
    {&Utest::test_setNamedItem, "axmNamedNodeMapUtest::test_setNamedItem"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmNamedNodeMapUtest::test_getLength(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNamedNodeMapUtest::test_getLength");
  auto const document = factory.createDocument(APSTRING("Test"));
  auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
  auto const map = map_of(root);
  group.check(map != nullptr && map->getLength() == 0, "map->getLength() == 0", __LINE__, "test initial length");
  if (map == nullptr)
    return;
  root->setAttribute(APSTRING("N1"), APSTRING("V1"));
  group.check(map->getLength(), 1, "map->getLength() == 1", __LINE__, "test length | 1");
  root->setAttribute(APSTRING("N2"), APSTRING("V2"));
  group.check(map->getLength(), 2, "map->getLength() == 2", __LINE__, "test length | 2");
}

void axmNamedNodeMapUtest::test_iteration(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNamedNodeMapUtest::test_iteration");
  auto const map = map_of(element_with_attributes(factory));
  bool seen1 = false;
  bool seen2 = false;
  // A map with two attributes that says it had no end of them is left after a few.
  int const length = map != nullptr ? std::min(map->getLength(), 10) : 0;
  for (int index = 0; index < length; ++index)
  {
    Node const node = map->item(index);
    // A map that is at its end before its length is.
    if (node == nullptr)
      break;
    if (node->getNodeName() == APSTRING("N1"))
    {
      group.check(
        node->getNodeValue(), APSTRING("V1"), "node->getNodeValue() == APSTRING(\"V1\")", __LINE__, "test N1 value");
      seen1 = true;
    }
    if (node->getNodeName() == APSTRING("N2"))
    {
      group.check(
        node->getNodeValue(), APSTRING("V2"), "node->getNodeValue() == APSTRING(\"V2\")", __LINE__, "test N2 value");
      seen2 = true;
    }
  }
  group.check(seen1 && seen2, "seen1 && seen2", __LINE__, "test iteration returned all nodes");
}

void axmNamedNodeMapUtest::test_getNamedItem(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNamedNodeMapUtest::test_getNamedItem");
  auto const document = factory.createDocument(APSTRING("Test"));
  auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
  auto const map = map_of(root);
  group.check(map != nullptr && map->getNamedItem(APSTRING("N0")) == nullptr,
    "!map->getNamedItem(APSTRING(\"N0\")).get()", __LINE__, "test getNamedItem | empty");
  if (map == nullptr)
    return;

  set_attributes(*root);
  Node const n1 = map->getNamedItem(APSTRING("N1"));
  Node const n2 = map->getNamedItem(APSTRING("N2"));
  group.check(n1 != nullptr, "n1.get()", __LINE__, "test getNamedItem | N1");
  group.check(
    value_of(n1), APSTRING("V1"), "n1->getNodeValue() == APSTRING(\"V1\")", __LINE__, "test getNamedItem value | N1");
  group.check(n2 != nullptr, "n2.get()", __LINE__, "test getNamedItem | N2");
  group.check(
    value_of(n2), APSTRING("V2"), "n2->getNodeValue() == APSTRING(\"V2\")", __LINE__, "test getNamedItem value | N2");
  group.check(map->getNamedItem(APSTRING("N3")) == nullptr, "!map->getNamedItem(APSTRING(\"N3\")).get()", __LINE__,
    "test getNamedItem | non existent");
}

void axmNamedNodeMapUtest::test_removeNamedItem(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNamedNodeMapUtest::test_removeNamedItem");
  auto const map = map_of(element_with_attributes(factory));
  Node const removed = map != nullptr ? map->removeNamedItem(APSTRING("N1")) : nullptr;
  group.check(removed != nullptr, "removed.get()", __LINE__, "test removeNamedItem | N1");
  group.check(value_of(removed), APSTRING("V1"), "removed->getNodeValue() == APSTRING(\"V1\")", __LINE__,
    "test removeNamedItem value | N1");
  if (map == nullptr)
    return;
  group.check(map->getLength(), 1, "map->getLength() == 1", __LINE__, "test getLength after removeNamedItem");
  group.check(map->getNamedItem(APSTRING("N1")) == nullptr, "!map->getNamedItem(APSTRING(\"N1\")).get()", __LINE__,
    "test getNamedItem on removed item");
  group.check(map->getNamedItem(APSTRING("N2")) != nullptr, "map->getNamedItem(APSTRING(\"N2\")).get()", __LINE__,
    "test getNamedItem on item left after removeNamedItem");
}

void axmNamedNodeMapUtest::test_setNamedItem(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNamedNodeMapUtest::test_setNamedItem");
  auto const document = factory.createDocument(APSTRING("Test"));
  auto const map = map_of(document != nullptr ? document->getDocumentElement() : nullptr);
  Node const first = detached_attribute(document, APSTRING("N1"), APSTRING("V1"));
  Node const second = detached_attribute(document, APSTRING("N1"), APSTRING("V2"));
  if (!group.prerequisite(map != nullptr && map->getLength() == 0, "map->getLength() == 0", __LINE__,
        "Prerequisite: length should be zero"))
    return;
  if (!group.prerequisite(first != nullptr && second != nullptr, "first.get() && second.get()", __LINE__,
        "Prerequisite: attribute nodes"))
    return;

  group.check(map->setNamedItem(first) == nullptr, "!map->setNamedItem(first).get()", __LINE__,
    "test setNamedItem return value | insert");
  group.check(map->getLength(), 1, "map->getLength() == 1", __LINE__, "test length after setNamedItem | insert");
  group.check(value_of(map->getNamedItem(APSTRING("N1"))), APSTRING("V1"),
    "map->getNamedItem(APSTRING(\"N1\"))->getNodeValue() == APSTRING(\"V1\")", __LINE__,
    "test value of setNamedItem node | insert");

  Node const replaced = map->setNamedItem(second);
  group.check(replaced != nullptr, "replaced.get()", __LINE__, "test setNamedItem return value | replace");
  group.check(value_of(replaced), APSTRING("V1"), "replaced->getNodeValue() == APSTRING(\"V1\")", __LINE__,
    "test setNamedItem | replaced node value");
  group.check(map->getLength(), 1, "map->getLength() == 1", __LINE__, "test length after setNamedItem | replace");
  group.check(value_of(map->getNamedItem(APSTRING("N1"))), APSTRING("V2"),
    "map->getNamedItem(APSTRING(\"N1\"))->getNodeValue() == APSTRING(\"V2\")", __LINE__,
    "test value of setNamedItem node | replace");
}
