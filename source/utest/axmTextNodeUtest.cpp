#include "axmTextNodeUtest.h"

#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmTextNodeUtest";

std::shared_ptr<axmTextNode> node_with(axmDocumentFactory const& factory, apString const& text)
{
  auto const document = factory.createDocument(APSTRING("Test"));
  return document != nullptr ? document->createTextNode(text) : nullptr;
}

apString data_of(std::shared_ptr<axmTextNode> const& node)
{
  return node != nullptr ? node->getData() : APSTRING("(no node)");
}
}

axmTextNodeUtest::axmTextNodeUtest(utUnitTest* given) : tester(given) {}

axmTextNodeUtest::~axmTextNodeUtest() = default;

void axmTextNodeUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmTextNodeUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_getData, "axmTextNodeUtest::test_getData"},
    {&Utest::test_get_xml, "axmTextNodeUtest::test_get_xml"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmTextNodeUtest::test_getData(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmTextNodeUtest::test_getData");
  apString const text = APSTRING("Some text");
  auto const node = node_with(factory, text);
  group.check(data_of(node), text, "node->getData() == text", __LINE__, "test getData");
  group.check(text_of(node), text, "node->get_text() == text", __LINE__, "test get_text");
  group.check(value_of(node), text, "node->getNodeValue() == text", __LINE__, "test getNodeValue");
}

void axmTextNodeUtest::test_get_xml(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmTextNodeUtest::test_get_xml");
  group.check(xml_of(node_with(factory, APSTRING("Some text"))), APSTRING("Some text"),
    "node->get_xml() == APSTRING(\"Some text\")", __LINE__, "test get_xml");
  group.check(xml_of(node_with(factory, APSTRING("Some & text < and > stuff"))),
    APSTRING("Some &amp; text &lt; and &gt; stuff"),
    "node->get_xml() == APSTRING(\"Some &amp; text &lt; and &gt; stuff\")", __LINE__,
    "test get_xml with funny characters");
}
