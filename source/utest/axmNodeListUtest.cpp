#include "axmNodeListUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmNodeListUtest";

int const number_of_names = 3;
wchar_t const* const names[number_of_names] = {L"Child1", L"Child2", L"Child3"};

void append_children(std::shared_ptr<axmDocument> const& document, Node const& root)
{
  for (wchar_t const* const name : names)
    append(root, created(document, name));
}
}

axmNodeListUtest::axmNodeListUtest(utUnitTest* given) : tester(given) {}

axmNodeListUtest::~axmNodeListUtest() = default;

void axmNodeListUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmNodeListUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_access, "axmNodeListUtest::test_access"},
    {&Utest::test_iteration, "axmNodeListUtest::test_iteration"},
    {&Utest::test_next_node, "axmNodeListUtest::test_next_node"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmNodeListUtest::test_access(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeListUtest::test_access");
  auto const document = factory.createDocument(APSTRING("Test"));
  Node const root = document != nullptr ? document->getDocumentElement() : nullptr;
  group.check(number_of_children(root), 0, "root->getChildNodes()->length() == 0", __LINE__, "test length when empty");

  append_children(document, root);
  auto const children = root != nullptr ? root->getChildNodes() : nullptr;
  if (!group.check(children != nullptr, "children.get()", __LINE__, "test pointer"))
    return;
  group.check(children->length(), number_of_names, "children->length() == number_of_names", __LINE__, "test length");
  for (int i = 0; i < number_of_names; ++i)
    group.check(name_of(item_of(children, i)), names[i], "children->at(i)->getNodeName() == names[i]", __LINE__,
      utUnitTest::build_varargs("test name %d", i));
}

void axmNodeListUtest::test_iteration(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeListUtest::test_iteration");
  auto const document = factory.createDocument(APSTRING("Test"));
  Node const root = document != nullptr ? document->getDocumentElement() : nullptr;
  auto const none = root != nullptr ? root->getChildNodes() : nullptr;
  group.check(none != nullptr && !++*none, "!++*children", __LINE__, "test iterate empty list");
  if (none == nullptr)
    return;
  none->reset();
  group.check(!++*none, "!++*children", __LINE__, "test iterate empty list after reset");

  append_children(document, root);
  auto const children = root->getChildNodes();
  if (children == nullptr)
  {
    group.check(false, "++*children", __LINE__, utUnitTest::build_varargs("test iterate %d %d", number_of_names, 0));
    return;
  }
  for (int j = 0; j < number_of_names; ++j)
  {
    bool const advanced = ++*children;
    group.check(advanced, "++*children", __LINE__, utUnitTest::build_varargs("test iterate %d %d", number_of_names, j));
    group.check(advanced ? name_of((*children)()) : apString(), names[j], "(*children)()->getNodeName() == names[j]",
      __LINE__, utUnitTest::build_varargs("test name %d %d", number_of_names, j));
  }
  children->reset();
  for (int j = 0; j < number_of_names; ++j)
  {
    bool const advanced = ++*children;
    group.check(advanced, "++*children", __LINE__,
      utUnitTest::build_varargs("test iterate after reset %d %d", number_of_names, j));
    group.check(advanced ? name_of((*children)()) : apString(), names[j], "(*children)()->getNodeName() == names[j]",
      __LINE__, utUnitTest::build_varargs("test name after reset %d %d", number_of_names, j));
  }
  group.check(!++*children, "!++*children", __LINE__, "test iterate at list end");
}

void axmNodeListUtest::test_next_node(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmNodeListUtest::test_next_node");
  auto const document = factory.createDocument(APSTRING("Test"));
  Node const root = document != nullptr ? document->getDocumentElement() : nullptr;
  auto const none = root != nullptr ? root->getChildNodes() : nullptr;
  group.check(none != nullptr && none->next_node() == nullptr, "!children->next_node().get()", __LINE__,
    "test next node empty list");
  if (none == nullptr)
    return;
  none->reset();
  group.check(
    none->next_node() == nullptr, "!children->next_node().get()", __LINE__, "test next node empty list after reset");

  append_children(document, root);
  auto const children = root->getChildNodes();
  if (children == nullptr)
  {
    group.check(false, "node.get()", __LINE__, utUnitTest::build_varargs("test next node %d %d", number_of_names, 0));
    return;
  }
  for (int j = 0; j < number_of_names; ++j)
  {
    Node const node = children->next_node();
    group.check(
      node != nullptr, "node.get()", __LINE__, utUnitTest::build_varargs("test next node %d %d", number_of_names, j));
    group.check(name_of(node), names[j], "node->getNodeName() == names[j]", __LINE__,
      utUnitTest::build_varargs("test name %d %d", number_of_names, j));
  }
  children->reset();
  for (int j = 0; j < number_of_names; ++j)
  {
    Node const node = children->next_node();
    group.check(node != nullptr, "node.get()", __LINE__,
      utUnitTest::build_varargs("test next node after reset %d %d", number_of_names, j));
    group.check(name_of(node), names[j], "node->getNodeName() == names[j]", __LINE__,
      utUnitTest::build_varargs("test name after reset %d %d", number_of_names, j));
  }
  group.check(children->next_node() == nullptr, "!children->next_node().get()", __LINE__, "test next node at list end");
}
