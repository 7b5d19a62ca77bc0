#include "Engine.h"

#include "../document/TestTree.h"

#include <axsNodeLines.h>
#include <axsXPath.h>

namespace
{
std::vector<int> lines_of(std::string const& text, char const* xpath)
{
  auto const document = load(text);
  axsXPath::Value value;
  axsXPathError error;
  EXPECT_TRUE(axsXPath::evaluate(*document, apString(xpath), value, error)) << error.message;
  return axsNodeLines::find(*document, bytes(text), axmLoadOptions(axmValidateNone), value.nodes);
}

using Lines = std::vector<int>;
}

TEST(axsNodeLines, finds_the_lines_of_nodes_of_each_kind)
{
  std::string const text = "<?xml version='1.0'?>\n<!DOCTYPE a [\n<!ENTITY e '<b/>'>]>\n<?p d?>\n<a\nx='1'\ny='2'>\n"
                           "<!-- c --><b>t</b>\n&e;\n  <![CDATA[s]]>\n</a>\n<!-- end -->";
  EXPECT_EQ(lines_of(text, "//b"), (Lines{8, 9}));
  EXPECT_EQ(lines_of(text, "/a/@*"), (Lines{6, 7}));
  EXPECT_EQ(lines_of(text, "//comment()"), (Lines{8, 12}));
  EXPECT_EQ(lines_of(text, "/processing-instruction()"), (Lines{4}));
  EXPECT_EQ(lines_of(text, "//text()"), (Lines{8, 10}));
}

TEST(axsNodeLines, passes_over_white_space_that_is_no_part_of_the_document)
{
  EXPECT_EQ(lines_of("<a>\n<b/>\n<![CDATA[\n]]><![CDATA[x]]>\n<b xml:space='preserve'>\n<c/> </b>\n<b/></a>", "//b"),
    (Lines{2, 5, 7}));
}

TEST(axsNodeLines, has_no_line_for_what_is_no_part_of_the_document)
{
  auto const document = load("<a/>");
  auto const other = load("<a/>");
  EXPECT_EQ(axsNodeLines::find(*document, bytes("<a/>"), axmLoadOptions(axmValidateNone),
              {other->getDocumentElement(), document, document->getDocumentElement()}),
    (Lines{0, 0, 1}));
}

TEST(axsNodeLines, has_no_line_of_a_document_of_another_engine)
{
  auto const foreign = std::make_shared<TestDocument>();
  EXPECT_EQ(
    axsNodeLines::find(*foreign, bytes("<a/>"), axmLoadOptions(axmValidateNone), {foreign, nullptr}), (Lines{0, 0}));
}

TEST(axsNodeLines, has_no_line_where_the_tree_has_another_node_than_the_source)
{
  auto const document = load("<a>\n<b/>\n<c/></a>");
  auto const root = document->getDocumentElement();
  auto const b = root->getFirstChild();
  auto const c = root->getLastChild();
  root->insertBefore(document->createTextNode(APSTRING("t")), b);
  EXPECT_EQ(axsNodeLines::find(*document, bytes("<a>\n<b/>\n<c/></a>"), axmLoadOptions(axmValidateNone), {b, c, root}),
    (Lines{0, 0, 1}));
}

TEST(axsNodeLines, has_no_line_where_the_source_is_another_one)
{
  auto const document = load("<a><b/></a>");
  auto const b = document->getDocumentElement()->getFirstChild();
  for (char const* const source : {"<a>", "<a/>", "<a><!--c--></a>", ""})
    EXPECT_EQ(axsNodeLines::find(*document, bytes(source), axmLoadOptions(axmValidateNone), {b}), (Lines{0})) << source;
}
