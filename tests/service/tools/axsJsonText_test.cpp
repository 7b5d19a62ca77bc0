#include "../Engine.h"
#include "../TextStream.h"

#include <axsJsonText.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
// The JSON or, after "!", why there is none.
std::string json(std::string const& document, unsigned indent = 0)
{
  TextStream source(document);
  std::string made;
  axmParseError error;
  auto const write = appending_to(made);
  return axsJsonText::convert(source, indent, error, write) ? made : "!" + made + std::to_string(error.line_number());
}
}

TEST(axsJsonText, an_element_is_null_or_its_text_where_it_has_nothing_else)
{
  EXPECT_EQ(json("<a/>"), "{\"a\":null}\n");
  EXPECT_EQ(json("<p:a xmlns:p='u'></p:a>"), "{\"p:a\":{\"@xmlns:p\":\"u\"}}\n");
  EXPECT_EQ(json("<a>x<![CDATA[<]]>&amp;</a>"), "{\"a\":\"x<&\"}\n");
  EXPECT_EQ(json("<a b='1' c=''>x</a>"), "{\"a\":{\"@b\":\"1\",\"@c\":\"\",\"#text\":\"x\"}}\n");
}

TEST(axsJsonText, elements_are_members_where_those_of_one_name_stand_together)
{
  EXPECT_EQ(json("<a>\n <b>1</b>\n <b/>\n <c>2</c>\n</a>"), "{\"a\":{\"b\":[\"1\",null],\"c\":\"2\"}}\n");
  EXPECT_EQ(json("<a><b/><c/><b/></a>"), "{\"a\":{\"#content\":[{\"b\":null},{\"c\":null},{\"b\":null}]}}\n");
  EXPECT_EQ(json("<a d='1'><b><c/></b></a>"), "{\"a\":{\"@d\":\"1\",\"b\":{\"c\":null}}}\n");
}

TEST(axsJsonText, what_is_mixed_is_an_array_in_its_order)
{
  EXPECT_EQ(json("<a>x<b/><!--c--><?d e?><?f?></a>"),
    "{\"a\":{\"#content\":[\"x\",{\"b\":null},{\"#comment\":\"c\"},{\"#instruction\":\"d e\"},"
    "{\"#instruction\":\"f\"}]}}\n");
  EXPECT_EQ(json("<!DOCTYPE a><!--c--><a/>"),
    "{\"#content\":[{\"#doctype\":\"<!DOCTYPE a>\"},{\"#comment\":\"c\"},{\"a\":null}]}\n");
}

TEST(axsJsonText, white_space_that_is_preserved_stays)
{
  EXPECT_EQ(json("<a xml:space='preserve'> <b/></a>"),
    "{\"a\":{\"@xml:space\":\"preserve\",\"#content\":[\" \",{\"b\":null}]}}\n");
}

TEST(axsJsonText, what_json_has_no_character_for_is_escaped)
{
  EXPECT_EQ(json("<a>&quot;\\&#9;&#10;&#13;\xC3\xA4</a>"), "{\"a\":\"\\\"\\\\\\t\\n\\r\xC3\xA4\"}\n");
  EXPECT_EQ(json("<?xml version='1.1'?><a>&#1;&#x1F;</a>"), "{\"a\":\"\\u0001\\u001f\"}\n");
}

TEST(axsJsonText, a_level_is_indented_as_wanted_up_to_a_hundred)
{
  EXPECT_EQ(json("<a><b/><c d='1'/></a>", 2),
    "{\n  \"a\": {\n    \"b\": null,\n    \"c\": {\n      \"@d\": \"1\"\n    }\n  }\n}\n");
  std::string document;
  std::string ends;
  for (int i = 0; i < 150; ++i)
  {
    document += "<a>";
    ends += "</a>";
  }
  std::string const made = json(document + ends, 1);
  EXPECT_NE(made.find("\n" + std::string(100, ' ') + "\"a\""), std::string::npos);
  EXPECT_EQ(made.find(std::string(101, ' ')), std::string::npos);
}

TEST(axsJsonText, a_document_that_is_wrong_gives_its_place_and_nothing_is_written)
{
  EXPECT_EQ(json("<a>\n<b></a>"), "!2");
}

TEST(axsJsonText, writing_ends_where_no_more_is_wanted)
{
  std::string document = "<a>";
  for (int i = 0; i < 30000; ++i)
    document += "<b>text</b>";
  TextStream source(document + "</a>");
  axmParseError error;
  int pieces = 0;
  EXPECT_TRUE(axsJsonText::convert(source, 0, error, [&](std::string_view) { return ++pieces < 2; }));
  EXPECT_EQ(pieces, 2);
}

TEST(axsJsonText, a_file_is_read_and_one_that_is_not_there_is_told)
{
  TestFile const file("axsJsonText.xml", "<a/>");
  std::string made;
  axmParseError error;
  auto const write = appending_to(made);
  EXPECT_TRUE(axsJsonText::convert(file.path(), 0, error, write));
  EXPECT_EQ(made, "{\"a\":null}\n");
  EXPECT_FALSE(axsJsonText::convert(apPath("no/such/file.xml"), 0, error, write));
  EXPECT_EQ(narrow(error.url()), "no/such/file.xml");
}
