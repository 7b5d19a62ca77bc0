#include "Markup.h"

#include <axsEditor.h>

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;

namespace
{
char const* const text = "<r a='\xC3\xA4'>\r\n  <!-- \xC3\xB6 -->\r\n  <b>\xC3\x9F</b>\r\n  <c/>\r\n</r>\r\n";

// The document in UTF-8, but for the declaration, after all edits, of a document in some encoding.
std::string edit_all(axsEditor& editor)
{
  EXPECT_EQ(editor.set_attributes("/r", {{"a", "\xC3\xBC"}, {"n", "1"}}), 1u);
  EXPECT_EQ(editor.rename("//b", "d"), 1u);
  EXPECT_EQ(editor.insert("//d", axsEditPlace::after, "<e>\xC3\xA9</e>"), 1u);
  EXPECT_EQ(editor.move("//d", axsEditPlace::into, "//c"), 1u);
  EXPECT_EQ(editor.remove("//comment()"), 1u);
  return editor.bytes();
}

char const* const edited = "<r a='\xC3\xBC' n='1'>\r\n  <e>\xC3\xA9</e>\r\n  <c><d>\xC3\x9F</d></c>\r\n</r>\r\n";
}

TEST(axsEditor_encodings, utf_8_with_and_without_a_byte_order_mark)
{
  for (std::string const mark : {"", "\xEF\xBB\xBF"})
  {
    axsEditor editor(mark + text, apPath());
    EXPECT_EQ(edit_all(editor), mark + edited);
  }
}

TEST(axsEditor_encodings, utf_16_and_utf_32_in_both_orders)
{
  for (Markup::Units const units : {Markup::utf_16_le, Markup::utf_16_be, Markup::utf_32_le, Markup::utf_32_be})
  {
    std::string const mark = "\xEF\xBB\xBF";
    axsEditor editor(Markup::encoded(mark + text, units), apPath());
    EXPECT_EQ(edit_all(editor), Markup::encoded(mark + edited, units)) << units;
  }
}

TEST(axsEditor_encodings, characters_beyond_the_first_plane_take_two_units)
{
  std::string const mark = "\xEF\xBB\xBF";
  axsEditor editor(Markup::encoded(mark + "<a>\xF0\x9D\x84\x9E<b/></a>", Markup::utf_16_le), apPath());
  EXPECT_EQ(editor.set_attributes("//b", {{"c", "\xF0\x9F\x98\x80"}}), 1u);
  EXPECT_EQ(
    editor.bytes(), Markup::encoded(mark + "<a>\xF0\x9D\x84\x9E<b c=\"\xF0\x9F\x98\x80\"/></a>", Markup::utf_16_le));
}

TEST(axsEditor_encodings, latin_1_and_references_to_what_it_does_not_have)
{
  std::string const declaration = "<?xml version='1.0' encoding='ISO-8859-1'?>";
  axsEditor editor(declaration + Markup::latin_1(text), apPath());
  EXPECT_EQ(edit_all(editor), declaration + Markup::latin_1(edited));
  EXPECT_EQ(editor.set_attributes("//c", {{"x", "\xC3\xA4\xE2\x82\xAC"}}), 1u);
  EXPECT_NE(editor.bytes().find("<c x='\xE4&#8364;'>"), std::string::npos);
  EXPECT_EQ(editor.insert("//c", axsEditPlace::into, "\xE2\x82\xAC<f g='\xE2\x82\xAC'/>"), 1u);
  EXPECT_NE(editor.bytes().find("&#8364;<f g='&#8364;'/></c>"), std::string::npos);
}

TEST(axsEditor_encodings, what_cannot_be_written_and_has_no_reference_is_refused)
{
  std::string const declaration = "<?xml version='1.0' encoding='US-ASCII'?>";
  axsEditor editor(declaration + "<a b='1'/>", apPath());
  EXPECT_EQ(editor.rename("/a", "\xC3\xA4"), 0u);
  EXPECT_EQ(editor.fault().error.message(),
    apString("the character 228 cannot be written in US-ASCII, the document's encoding, where only text and values can "
             "refer to it"));
  EXPECT_EQ(editor.rename("//@b", "\xC3\xA4"), 0u);
  EXPECT_EQ(editor.insert("/a", axsEditPlace::into, "<!-- \xC3\xA4 -->"), 0u);
  EXPECT_EQ(editor.insert("/a", axsEditPlace::into, "<![CDATA[\xC3\xA4]]>"), 0u);
  EXPECT_EQ(editor.insert("/a", axsEditPlace::into, "<?p \xC3\xA4?>"), 0u);
  EXPECT_EQ(editor.bytes(), declaration + "<a b='1'/>");
  EXPECT_EQ(editor.insert("/a", axsEditPlace::into, "<!-- c --><![CDATA[d]]><?e f?>\xC3\xA4"), 1u);
  EXPECT_EQ(editor.bytes(), declaration + "<a b='1'><!-- c --><![CDATA[d]]><?e f?>&#228;</a>");
}

TEST(axsEditor_encodings, shift_jis)
{
  std::string const declaration = "<?xml version='1.0' encoding='Shift_JIS'?>\n";
  // A second byte may look like a backslash or a letter.
  axsEditor editor(declaration + "<a>\n\x83\x5C\x95\x5C<b>\x93\xFA</b>\n\x83\x41</a>", apPath());
  ASSERT_EQ(editor.set_attributes("//b", {{"c", "\xE6\x97\xA5\xC3\xA4"}}), 1u)
    << editor.fault().error.message().to_utf8().c_str();
  EXPECT_EQ(editor.bytes(), declaration + "<a>\n\x83\x5C\x95\x5C<b c='\x93\xFA&#228;'>\x93\xFA</b>\n\x83\x41</a>");
  EXPECT_EQ(editor.rename("//b", "\xE6\x97\xA5"), 1u);
  EXPECT_EQ(editor.bytes(),
    declaration + "<a>\n\x83\x5C\x95\x5C<\x93\xFA c='\x93\xFA&#228;'>\x93\xFA</\x93\xFA>\n\x83\x41</a>");
}
