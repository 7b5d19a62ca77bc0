#include "../TextStream.h"

#include <axsFormatter.h>

#include <apString.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string formatted(std::string const& text, axsFormatOptions const& options = axsFormatOptions())
{
  std::string result;
  axmParseError error;
  auto const write = appending_to(result);
  if (!axsFormatter::format(apByteArray(text.data(), text.size()), options, error, write))
    return "line " + std::to_string(error.line_number());
  return result;
}

// Laid out twice, it is what it is laid out once.
std::string formatted_twice(std::string const& text, axsFormatOptions const& options = axsFormatOptions())
{
  std::string const once = formatted(text, options);
  EXPECT_EQ(formatted(once, options), once);
  return once;
}
}

TEST(axsFormatter, elements_stand_on_lines_of_their_own)
{
  EXPECT_EQ(formatted_twice("<a><b><c/></b>  <b/>\n\n</a>"), "<a>\n  <b>\n    <c/>\n  </b>\n  <b/>\n</a>\n");
}

TEST(axsFormatter, one_empty_line_between_elements_stays)
{
  EXPECT_EQ(formatted_twice("<a>\n\n\n<b/>\n\n\n\n<b/>\n<b/>\n\n</a>"), "<a>\n  <b/>\n\n  <b/>\n  <b/>\n</a>\n");
}

TEST(axsFormatter, an_element_with_text_keeps_every_blank)
{
  for (char const* const text : {"<p>a <b> <i/>\n<i/> </b>\n</p>", "<p><b/> &amp; <b/></p>",
         "<p> <![CDATA[]]> <b/></p>", "<p> &#32;<b/></p>", "<p>  </p>", "<p>\n</p>"})
    EXPECT_EQ(formatted_twice(text), std::string(text) + "\n");
  EXPECT_EQ(formatted_twice("<a><p>a <b> <i/></b></p></a>"), "<a>\n  <p>a <b> <i/></b></p>\n</a>\n");
}

TEST(axsFormatter, an_entity_counts_as_text)
{
  EXPECT_EQ(formatted_twice("<!DOCTYPE a [<!ENTITY e '<b/>'>]><a> &e; <c/></a>"),
    "<!DOCTYPE a [<!ENTITY e '<b/>'>]>\n<a> &e; <c/></a>\n");
}

TEST(axsFormatter, preserved_white_space_stays)
{
  EXPECT_EQ(formatted_twice("<a><b xml:space='preserve'> <c/>\n</b><b/></a>"),
    "<a>\n  <b xml:space='preserve'> <c/>\n</b>\n  <b/>\n</a>\n");
  // An element within may have it the other way.
  EXPECT_EQ(formatted_twice("<a xml:space='preserve'> <b xml:space='default'> <c/> </b></a>"),
    "<a xml:space='preserve'> <b xml:space='default'>\n    <c/>\n  </b></a>\n");
  EXPECT_EQ(formatted_twice("<p xml:space='default'>t <b xml:space='default'> <c/> </b></p>"),
    "<p xml:space='default'>t <b xml:space='default'> <c/> </b></p>\n");
}

TEST(axsFormatter, white_space_that_the_document_type_preserves_stays)
{
  std::string const type = "<!DOCTYPE a [\n<!ENTITY e '<b/>'><!ATTLIST b xml:space CDATA 'preserve'>\n]>\n";
  // The element of the entity is not one of the text.
  EXPECT_EQ(formatted_twice(type + "<a><x>&e;</x><c> <d/></c><b> <c/></b></a>"),
    type + "<a>\n  <x>&e;</x>\n  <c>\n    <d/>\n  </c>\n  <b> <c/></b>\n</a>\n");
}

TEST(axsFormatter, comments_and_instructions_stay_as_they_are_written)
{
  EXPECT_EQ(formatted_twice("<?xml version='1.0'?><!-- 1\n 2 --><?p  d ?><a><!-- <b/> --><?q?></a><!-- end -->"),
    "<?xml version='1.0'?>\n<!-- 1\n 2 -->\n<?p  d ?>\n<a>\n  <!-- <b/> -->\n  <?q?>\n</a>\n<!-- end -->\n");
}

TEST(axsFormatter, a_comment_after_blanks_stays_on_its_line)
{
  EXPECT_EQ(formatted_twice("<a>\n<b/>  <!-- 1 -->\n<!-- 2 --><b/><!-- 3 -->\n</a>"),
    "<a>\n  <b/> <!-- 1 -->\n  <!-- 2 -->\n  <b/>\n  <!-- 3 -->\n</a>\n");
}

TEST(axsFormatter, the_document_type_stays_as_it_is_written)
{
  std::string const type =
    "<!DOCTYPE a PUBLIC \"-//X//EN\" 'y[>' [\n <!ENTITY e \"]>'\">\n <!-- ]> ' -->\n<?p ]> ?> ]  >";
  EXPECT_EQ(formatted_twice("<?xml version='1.0'?>" + type + "<a/>"), "<?xml version='1.0'?>\n" + type + "\n<a/>\n");
}

TEST(axsFormatter, tags_have_one_blank_between_attributes)
{
  EXPECT_EQ(formatted_twice("<a  x = '1'\n\ty=\"a > 'b'\" ><b ></b ><c /></a >"),
    "<a x='1' y=\"a > 'b'\">\n  <b></b>\n  <c/>\n</a>\n");
}

TEST(axsFormatter, attributes_that_are_too_long_for_a_line_stand_on_several)
{
  axsFormatOptions options;
  options.width = 16;
  EXPECT_EQ(formatted_twice("<a><b x='12345' y='1' z='\xC3\xA4\xC3\xA4'/></a>", options),
    "<a>\n  <b x='12345'\n      y='1'\n      z='\xC3\xA4\xC3\xA4'/>\n</a>\n");
  options.width = 0;
  EXPECT_EQ(formatted_twice("<a  x='12345'  y='12345' z='123'/>", options), "<a x='12345' y='12345' z='123'/>\n");
}

TEST(axsFormatter, a_line_has_no_more_attributes_than_are_wanted)
{
  axsFormatOptions options;
  options.attributes_per_line = 2;
  EXPECT_EQ(formatted_twice("<a x='1' y='2' z='3'/>", options), "<a x='1' y='2'\n    z='3'/>\n");
}

TEST(axsFormatter, lines_end_as_the_first_one_does)
{
  EXPECT_EQ(formatted_twice("<a>\r\n<b/>\n<c>\r\n\r</c></a>"), "<a>\r\n  <b/>\r\n  <c>\r\n\r\n</c>\r\n</a>\r\n");
  EXPECT_EQ(formatted_twice("<a>\r<b/></a>"), "<a>\n  <b/>\n</a>\n");
  // NEL and LS end lines of XML 1.1, which may be in a tag.
  EXPECT_EQ(formatted_twice("<?xml version='1.1'?><a\xC2\x85x='1'>\xE2\x80\xA8<b/></a>"),
    "<?xml version='1.1'?>\n<a x='1'>\n  <b/>\n</a>\n");
}

TEST(axsFormatter, other_encodings_become_utf_8)
{
  EXPECT_EQ(formatted_twice("<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?><a>\xE4</a>"),
    "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n<a>\xC3\xA4</a>\n");
  EXPECT_EQ(formatted(std::string("\xFF\xFE<\0a\0/\0>\0", 10)), "<a/>\n");
  EXPECT_EQ(formatted_twice("\xEF\xBB\xBF<a/>"), "\xEF\xBB\xBF<a/>\n");
}

TEST(axsFormatter, what_is_not_well_formed_is_an_error_with_its_place)
{
  EXPECT_EQ(formatted("<a>\n</b>"), "line 2");
}

TEST(axsFormatter, depth_and_size_take_linear_time_and_no_stack)
{
  std::string deep;
  for (int i = 0; i < 300; ++i)
    deep += "<a>";
  std::string const many = deep;
  std::string text;
  for (int i = 0; i < 1000; ++i)
    text += many;
  std::string closing;
  for (int i = 0; i < 300000; ++i)
    closing += "</a>";
  // Each line is indented by no more than 100 levels.
  EXPECT_LT(formatted(text + closing).size(), std::size_t{600000} * (4 + 1 + 200));
}

TEST(axsFormatter, writing_ends_where_no_more_is_wanted)
{
  std::string text = "<a>";
  for (int i = 0; i < 100000; ++i)
    text += "<b/>";
  text += "</a>";
  int pieces = 0;
  axmParseError error;
  EXPECT_TRUE(axsFormatter::format(
    apByteArray(text.data(), text.size()), axsFormatOptions(), error, [&](std::string_view) { return ++pieces < 2; }));
  EXPECT_EQ(pieces, 2);
}

TEST(axsFormatter, a_document_type_that_nothing_parts_from_markup_is_parted)
{
  EXPECT_EQ(formatted_twice("<!DOCTYPE a [<!ENTITY e '<]>\"'><!-- ]> ' --><?p ]> ' ?>]><a/>"),
    "<!DOCTYPE a [<!ENTITY e '<]>\"'><!-- ]> ' --><?p ]> ' ?>]>\n<a/>\n");
  EXPECT_EQ(formatted_twice("<?xml-stylesheet a?><a b='>' c=\"'>\"/>"), "<?xml-stylesheet a?>\n<a b='>' c=\"'>\"/>\n");
}

TEST(axsFormatter, tabs_indent_where_they_are_wanted)
{
  axsFormatOptions options;
  options.has_tabs = true;
  options.indent = 1;
  EXPECT_EQ(formatted_twice("<a><b><c/></b></a>", options), "<a>\n\t<b>\n\t\t<c/>\n\t</b>\n</a>\n");
}

TEST(axsFormatter, empty_elements_with_preserved_white_space_keep_the_place_of_the_next)
{
  EXPECT_EQ(formatted_twice("<a><b xml:space='preserve'/><c xml:space='preserve'> <d/></c> <e/></a>"),
    "<a>\n  <b xml:space='preserve'/>\n  <c xml:space='preserve'> <d/></c>\n  <e/>\n</a>\n");
}

TEST(axsFormatter, line_ends_of_xml_1_1_of_two_characters_are_one)
{
  EXPECT_EQ(formatted_twice("<?xml version='1.1'?><a>x\r\xC2\x85y</a>"), "<?xml version='1.1'?>\n<a>x\ny</a>\n");
}

TEST(axsFormatter, a_declaration_says_no_more_than_it_did)
{
  std::string const text = "<?xml version='1.0'?><a/>";
  std::string utf16 = "\xFF\xFE";
  for (char const c : text)
    utf16.append(1, c).append(1, '\0');
  EXPECT_EQ(formatted(utf16), "<?xml version='1.0'?>\n<a/>\n");
  EXPECT_EQ(formatted_twice("<?xml version='1.0' encoding='US-ASCII'?><a/>"),
    "<?xml version='1.0' encoding='US-ASCII'?>\n<a/>\n");
}

TEST(axsFormatter, line_ends_before_the_root_element_go)
{
  EXPECT_EQ(formatted_twice("\n\n<a/>"), "<a/>\n");
}

TEST(axsFormatter, a_comment_that_comes_first_in_an_element_stands_on_a_line_of_its_own)
{
  EXPECT_EQ(formatted_twice("<a> <!--c--><b/> <!--d--></a>"), "<a>\n  <!--c-->\n  <b/> <!--d-->\n</a>\n");
}

TEST(axsFormatter, lines_are_as_long_as_they_come_where_no_width_is_wanted)
{
  axsFormatOptions options;
  options.width = 0;
  std::string const tag = "<a b='" + std::string(500, 'x') + "' c='" + std::string(500, 'y') + "'/>\n";
  EXPECT_EQ(formatted_twice(tag, options), tag);
}

TEST(axsFormatter, nothing_follows_a_mark_that_nobody_wants)
{
  int pieces = 0;
  axmParseError error;
  std::string const text = "\xEF\xBB\xBF<a/>";
  EXPECT_TRUE(axsFormatter::format(apByteArray(text.data(), text.size()), axsFormatOptions(), error,
    [&](std::string_view)
    {
      ++pieces;
      return false;
    }));
  EXPECT_EQ(pieces, 1);
}
