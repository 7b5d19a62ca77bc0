// What axsLoading adds to the factory.

#include "Engine.h"

#include <axsLoading.h>
#include <axsSharing.h>

#include <vector>

namespace
{
std::string const spaced = declaration + "<r>\n  <a/>\n\n  <b> </b>\t<c>x </c>\n</r>\n";

// The fragment as it is put into `context`, or the message and the place of what is wrong with it.
std::string put(std::shared_ptr<axmElement> const& context, std::string_view xml)
{
  axmParseError error;
  std::vector<std::shared_ptr<axmNode>> const nodes = axsLoading::fragment(*context, xml, error);
  if (!error.invalid())
  {
    EXPECT_TRUE(nodes.empty());
    return narrow(error.message()) + " (" + std::to_string(error.line_number()) + ":" +
           std::to_string(error.column_number()) + ")";
  }
  for (auto const& node : nodes)
  {
    EXPECT_EQ(node->getParentNode(), nullptr);
    EXPECT_EQ(context->appendChild(node), node);
  }
  return narrow(context->get_xml());
}

std::string put(std::string_view context, std::string_view xml)
{
  return put(load_root(context), xml);
}
}

TEST(axsLoading_spaces, a_document_is_loaded_and_saved_with_all_white_space)
{
  axmParseError error;
  auto const document = axsLoading::with_spaces(bytes(spaced), axmLoadOptions(), error);
  ASSERT_NE(document, nullptr) << narrow(error.message());
  EXPECT_EQ(narrow(document->getDocumentElement()->getFirstChild()->getNodeValue()), "\n  ");
  EXPECT_EQ(saved(document), spaced);

  TestFile const file("spaces.xml", spaced);
  auto const again = axsLoading::with_spaces(file.path(), axmLoadOptions(), error);
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(saved(again), spaced);
  EXPECT_EQ(narrow(again->getDocumentURI()), "spaces.xml");
  EXPECT_TRUE(error.invalid());
}

TEST(axsLoading_spaces, it_is_validated_and_told_what_is_wrong_as_by_a_factory)
{
  TestFile const schema("spaces.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='r'><xs:complexType><xs:sequence>"
    "<xs:element name='a'/></xs:sequence></xs:complexType></xs:element></xs:schema>");
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(schema.path());
  axmParseError error;
  EXPECT_NE(axsLoading::with_spaces(bytes("<r> <a/>\n</r>"), options, error), nullptr);
  EXPECT_EQ(axsLoading::with_spaces(bytes("<r>\n<b/>\n</r>"), options, error), nullptr);
  EXPECT_EQ(error.line_number(), 2);
  EXPECT_EQ(axsLoading::with_spaces(apPath("no such file.xml"), axmLoadOptions(), error), nullptr);
  EXPECT_EQ(narrow(error.url()), "no such file.xml");
}

TEST(axsLoading_fragment, texts_elements_and_what_else_may_stand_in_one)
{
  EXPECT_EQ(put("<r>x</r>", "one <b c='1'>two</b> <!--c--><?p d?>&amp;<![CDATA[<]]>"),
    "<r>xone <b c=\"1\">two</b> <!--c--><?p d?>&amp;<![CDATA[<]]></r>");
  EXPECT_EQ(put("<r/>", "\n  <a/>\n"), "<r>\n  <a/>\n</r>");
  EXPECT_EQ(put("<r/>", ""), "<r/>");
  EXPECT_EQ(put("<r/>", "\xC3\xA4\xF0\x9D\x84\x9E"), "<r>\xC3\xA4\xF0\x9D\x84\x9E</r>");
}

TEST(axsLoading_fragment, prefixes_mean_what_they_mean_in_the_context)
{
  EXPECT_EQ(put("<r xmlns:p='urn:p'/>", "<p:a p:b='1'/>"), "<r xmlns:p=\"urn:p\"><p:a p:b=\"1\"/></r>");
  EXPECT_EQ(put("<r/>", "<q:a xmlns:q='urn:q'/>"), "<r><q:a xmlns:q=\"urn:q\"/></r>");
  EXPECT_NE(put("<r/>", "<p:a/>").find("prefix 'p'"), std::string::npos);
  auto const document = load("<r xmlns:p='urn:p'/>");
  axmParseError error;
  EXPECT_TRUE(axsLoading::fragment(*document, "<p:a/>", error).empty());
  EXPECT_FALSE(error.invalid());
}

TEST(axsLoading_fragment, the_declaration_of_its_document_stays)
{
  std::string const start = "<?xml version=\"1.1\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
  axmParseError error;
  auto const document = axsLoading::with_spaces(bytes(start + "<r/>"), axmLoadOptions(), error);
  ASSERT_NE(document, nullptr) << narrow(error.message());
  put(document->getDocumentElement(), "<b/>");
  EXPECT_EQ(saved(document), start + "<r><b/></r>\n");
}

TEST(axsLoading_fragment, what_is_wrong_is_told_with_its_place_in_it)
{
  EXPECT_NE(put("<r xmlns:p='urn:p'/>", "<p:a>\n</b>").find("(2:3)"), std::string::npos)
    << put("<r xmlns:p='urn:p'/>", "<p:a>\n</b>");
  EXPECT_NE(put("<r xmlns:p='urn:p'/>", "p: &no;").find("(1:8)"), std::string::npos)
    << put("<r xmlns:p='urn:p'/>", "p: &no;");
  // Nothing gets out of the fragment.
  for (char const* const xml :
    {"</fragment>", "</fragment><fragment>", "<a>", "<!DOCTYPE a>", "<?xml version='1.0'?>", "<!--"})
    EXPECT_EQ(put("<r/>", xml).back(), ')') << xml;
}

TEST(axsLoading_fragment, the_context_is_an_element_or_document_that_can_be_changed)
{
  axmParseError error;
  auto document = load("<r>text</r>");
  EXPECT_TRUE(axsLoading::fragment(*document->getDocumentElement()->getFirstChild(), "<a/>", error).empty());
  EXPECT_FALSE(error.invalid());
  EXPECT_EQ(axsLoading::fragment(*document, "<a/><b/>", error).size(), 2u);
  ASSERT_TRUE(axsSharing::share(document));
  error = axmParseError();
  EXPECT_TRUE(axsLoading::fragment(*document, "<a/>", error).empty());
  EXPECT_FALSE(error.invalid());
}
