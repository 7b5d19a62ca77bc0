#include "axmCommentNodeUtest.h"

#include "axmCommentNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmUtestAccess;

namespace
{
char const file[] = "source/utest/axmCommentNodeUtest";

std::shared_ptr<axmCommentNode> node_with(axmDocumentFactory const& factory, apString const& text)
{
  auto const document = factory.createDocument(APSTRING("Test"));
  return document != nullptr ? document->createComment(text) : nullptr;
}

apString data_of(std::shared_ptr<axmCommentNode> const& node)
{
  return node != nullptr ? node->getData() : APSTRING("(no node)");
}
}

axmCommentNodeUtest::axmCommentNodeUtest(utUnitTest* given) : tester(given) {}

axmCommentNodeUtest::~axmCommentNodeUtest() = default;

void axmCommentNodeUtest::run_tests(axmDocumentFactory const& factory) const
{
  using Utest = axmCommentNodeUtest;
  axmUtestEntry<Utest, axmDocumentFactory const&> const groups[] = {
    {&Utest::test_getData, "axmCommentNodeUtest::test_getData"},
    {&Utest::test_get_xml, "axmCommentNodeUtest::test_get_xml"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmCommentNodeUtest::test_getData(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmCommentNodeUtest::test_getData");
  apString const text = APSTRING("Some comment");
  auto const node = node_with(factory, text);
  group.check(data_of(node), text, "node->getData() == text", __LINE__, "test getData");
  group.check(text_of(node), text, "node->get_text() == text", __LINE__, "test get_text");
  group.check(value_of(node), text, "node->getNodeValue() == text", __LINE__, "test getNodeValue");
}

void axmCommentNodeUtest::test_get_xml(axmDocumentFactory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmCommentNodeUtest::test_get_xml");
  group.check(xml_of(node_with(factory, APSTRING("Some comment"))), APSTRING("<!--Some comment-->"),
    "node->get_xml() == APSTRING(\"<!--Some comment-->\")", __LINE__, "test get_xml");
  group.check(xml_of(node_with(factory, APSTRING("Some & comment < and > stuff"))),
    APSTRING("<!--Some & comment < and > stuff-->"),
    "node->get_xml() == APSTRING(\"<!--Some & comment < and > stuff-->\")", __LINE__,
    "test get_xml with funny characters");
}
