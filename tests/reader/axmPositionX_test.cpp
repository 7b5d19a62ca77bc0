#include "OpenCursor.h"
#include "Outcome.h"

#include <axmPositionXcoPageArrPrgcoPrg.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <type_traits>

#if !defined(_WIN32)
#  include <sys/time.h>

#  include <csignal>
#  include <cstdlib>
#endif

namespace
{
// A document with a cursor at its beginning.
class Document
{
public:
  explicit Document(char const* given) : text(given), cursor(&text[0]) {}

  OpenCursor* operator->() { return &cursor; }

  // A cursor on the first `mark`.
  OpenCursor at(char const* mark)
  {
    char* const found = &text[0] + text.find(mark);
    return OpenCursor(found);
  }

  // What is left before the cursor, counted from it.
  std::string rest() const { return cursor.current(); }

  std::string text;
  OpenCursor cursor;
};

std::string str(utString const& text)
{
  return std::string(text.c_str(), static_cast<std::size_t>(text.length()));
}

axmPositionXcoPageArrPrgcoPrg child_of(OpenCursor& cursor, char const* name)
{
  return axmPositionXcoPageArrPrgcoPrg(cursor.go_to_sub_tag(utPtrReleaseToCaller, ut_lit(name)));
}
}

TEST(axmPositionX, is_two_pointers_and_nothing_virtual)
{
  EXPECT_EQ(sizeof(axmPositionX), 2 * sizeof(char*));
  EXPECT_FALSE(std::is_polymorphic_v<axmPositionX>);
  EXPECT_TRUE(std::is_copy_constructible_v<axmPositionX>);
  EXPECT_TRUE(std::is_copy_assignable_v<axmPositionX>);
}

TEST(axmPositionX, begins_where_it_is_placed)
{
  Document document("<a></a>\n");
  EXPECT_EQ(document->current(), &document.text[0]);
  EXPECT_EQ(document->start(), &document.text[0]);
}

TEST(axmPositionX, read_char_steps_and_returns_what_it_stepped_over)
{
  Document document("abc");
  EXPECT_EQ(document->read_char(), 'a');
  EXPECT_EQ(document.rest(), "bc");
}

TEST(axmPositionX, stepping_onto_and_from_the_terminator_is_the_end_error)
{
  Document document("a");
  EXPECT_TRUE(document->is_char('a'));
  EXPECT_EQ(thrown_by([&] { document->read_char(); }), "end");
  EXPECT_EQ(document.rest(), "");
  EXPECT_EQ(thrown_by([&] { document->read_char(); }), "end");
  EXPECT_EQ(thrown_by([&] { document->move_on(); }), "end");
  EXPECT_EQ(document.rest(), "");
}

TEST(axmPositionX, whitespace_is_space_tab_line_feed_and_carriage_return)
{
  for (int code = 0; code < 256; ++code)
  {
    char buffer[] = {static_cast<char>(code), 'x', '\0'};
    bool const expected = code == 0x20 || code == 0x09 || code == 0x0A || code == 0x0D;
    EXPECT_EQ(OpenCursor(buffer).is_whitespace(), expected) << code;
  }
}

TEST(axmPositionX, is_string_compares_without_moving)
{
  Document document("abcd");
  EXPECT_TRUE(document->is_string(ut_lit("abc")));
  EXPECT_FALSE(document->is_string(ut_lit("abx")));
  EXPECT_EQ(document.rest(), "abcd");
}

TEST(axmPositionX, is_string_of_an_empty_text_is_true_even_at_the_end)
{
  Document document("");
  EXPECT_TRUE(document->is_string(ut_lit("")));
  EXPECT_TRUE(document->is_string(utString()));
}

TEST(axmPositionX, is_string_at_the_last_character_is_the_end_error_match_or_not)
{
  Document document("ab");
  EXPECT_EQ(thrown_by([&] { document->is_string(ut_lit("ab")); }), "end");
  EXPECT_EQ(thrown_by([&] { document->is_string(ut_lit("ax")); }), "end");
  EXPECT_TRUE(document->is_string(ut_lit("a")));
  EXPECT_FALSE(document->is_string(ut_lit("x")));
}

TEST(axmPositionX, is_comment_on_the_last_two_characters_of_the_document_is_the_end_error)
{
  Document document("<!");
  EXPECT_EQ(thrown_by([&] { document->is_comment(); }), "end");
}

TEST(axmPositionX, kinds_of_tags)
{
  struct
  {
    char const* text;
    bool closing, comment, cdata, tag, opening;
  } const rows[] = {
    {"<a>__", false, false, false, true, true},
    {"</a>_", true, false, false, true, false},
    {"<!--c-->", false, true, false, false, false},
    {"<![CDATA[x]]>_", false, false, true, false, false},
    {"<?p?>_", false, false, false, true, true},
    {"<!DOCTYPE a>", false, false, false, true, true},
    {"text_", false, false, false, false, false},
  };
  for (auto const& row : rows)
  {
    Document document(row.text);
    EXPECT_EQ(document->is_closing_tag(), row.closing) << row.text;
    EXPECT_EQ(document->is_comment(), row.comment) << row.text;
    EXPECT_EQ(document->is_cdata(), row.cdata) << row.text;
    EXPECT_EQ(document->is_tag(), row.tag) << row.text;
    EXPECT_EQ(document->is_opening_tag(), row.opening) << row.text;
    EXPECT_EQ(document.rest(), row.text);
  }
}

TEST(axmPositionX, is_opening_tag_on_text_at_the_end_is_false_without_an_error)
{
  EXPECT_FALSE(Document("t")->is_opening_tag());
  EXPECT_FALSE(Document("")->is_opening_tag());
}

TEST(axmPositionX, self_closing_tag_looks_at_the_character_before_the_first_bracket)
{
  EXPECT_TRUE(Document("<a/>_")->self_closing_tag());
  EXPECT_TRUE(Document("<a b=\"/>\">")->self_closing_tag()); // quotes are not looked at
  EXPECT_FALSE(Document("<a / >_")->self_closing_tag());
  EXPECT_FALSE(Document("<a>_")->self_closing_tag());
  EXPECT_FALSE(Document(">")->self_closing_tag());
  EXPECT_EQ(thrown_by([] { Document("<a/")->self_closing_tag(); }), "end");
}

TEST(axmPositionX, is_tag_name_is_a_prefix_test_on_opening_and_closing_tags)
{
  utString const item = ut_lit("item");
  EXPECT_TRUE(Document("<items> ")->is_tag_name(item));
  EXPECT_TRUE(Document("</items> ")->is_tag_name(item));
  EXPECT_TRUE(Document("<item/> ")->is_tag_name(item));
  EXPECT_FALSE(Document("<ite> ")->is_tag_name(item));
  EXPECT_FALSE(Document("items> ")->is_tag_name(item));
  EXPECT_TRUE(Document("<x> ")->is_tag_name(ut_lit("")));
  EXPECT_EQ(thrown_by([&] { Document("<it")->is_tag_name(item); }), "end");
  EXPECT_EQ(thrown_by([&] { Document("<item")->is_tag_name(item); }), "end");
}

TEST(axmPositionX, skip_char_wants_the_character)
{
  Document document("ab");
  EXPECT_EQ(thrown_by([&] { document->skip_char('b'); }), char_error('b'));
  EXPECT_EQ(document.rest(), "ab");
  document->skip_char('a');
  EXPECT_EQ(document.rest(), "b");
  EXPECT_EQ(thrown_by([&] { document->skip_char('b'); }), "end");
}

TEST(axmPositionX, skip_whitespace_stays_where_there_is_none)
{
  Document document("x \t\r\ny");
  document->skip_whitespace();
  EXPECT_EQ(document.rest(), "x \t\r\ny");
  document->move_on();
  document->skip_whitespace();
  EXPECT_EQ(document.rest(), "y");
  EXPECT_EQ(thrown_by([] { Document(" \n")->skip_whitespace(); }), "end");
}

TEST(axmPositionX, skip_string_names_the_first_character_that_differs)
{
  Document document("a-!x");
  EXPECT_EQ(thrown_by([&] { document->skip_string(ut_lit("a-'")); }), "char tain expected char \n");
  EXPECT_EQ(document.rest(), "!x");
  document->skip_string(ut_lit(""));
  EXPECT_EQ(document.rest(), "!x");
  EXPECT_EQ(thrown_by([&] { document->skip_string(ut_lit("!x")); }), "end");
}

TEST(axmPositionX, skip_tag_ends_at_the_first_bracket_quotes_or_not)
{
  Document document("<a b=\">\">c");
  document->skip_tag();
  EXPECT_EQ(document.rest(), "\">c");
}

TEST(axmPositionX, skip_tag_at_the_very_end_of_the_document_is_the_end_error)
{
  EXPECT_EQ(thrown_by([] { Document("</a>")->skip_tag(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("</a")->skip_tag(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("</a>\n")->skip_tag(); }), "nothing");
}

TEST(axmPositionX, skip_comment_passes_a_comment)
{
  for (char const* const comment : {"<!--c-->x", "<!---->x", "<!-- - -->x", "<!---a-->x", "<!--<a>-->x", "<!-->-->x"})
  {
    Document document(comment);
    document->skip_comment();
    EXPECT_EQ(document.rest(), "x") << comment;
  }
}

TEST(axmPositionX, skip_comment_refuses_two_hyphens_inside)
{
  Document document("<!--a--b-->x");
  EXPECT_EQ(thrown_by([&] { document->skip_comment(); }), char_error('>'));
  EXPECT_EQ(document.rest(), "b-->x");
  EXPECT_EQ(thrown_by([] { Document("<!--a--->x")->skip_comment(); }), char_error('>'));
}

TEST(axmPositionX, skip_comment_wants_a_comment_and_more_after_it)
{
  EXPECT_EQ(thrown_by([] { Document("<a>")->skip_comment(); }), char_error('!'));
  EXPECT_EQ(thrown_by([] { Document("<!--a-->")->skip_comment(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("<!--a-")->skip_comment(); }), "end");
}

TEST(axmPositionX, read_string_to_char_stays_on_the_character)
{
  Document document("ab>c");
  EXPECT_EQ(str(document->read_string_to_char('>')), "ab");
  EXPECT_EQ(document.rest(), ">c");
  EXPECT_EQ(str(document->read_string_to_char('>')), "");
  EXPECT_EQ(thrown_by([&] { document->read_string_to_char('x'); }), "end");
}

TEST(axmPositionX, read_tag_ends_the_name_at_space_or_bracket_only)
{
  EXPECT_EQ(str(Document("<a/>")->read_tag()), "a/");
  EXPECT_EQ(str(Document("</b>")->read_tag()), "b");
  EXPECT_EQ(str(Document("<c d=\"1\">")->read_tag()), "c");
  EXPECT_EQ(str(Document("<c\td=\"1\" e>")->read_tag()), "c\td=\"1\"");
  EXPECT_EQ(str(Document("<c\n>")->read_tag()), "c\n");
  EXPECT_EQ(str(Document("<>")->read_tag()), "");
}

TEST(axmPositionX, read_tag_stays_and_wants_a_tag)
{
  Document document("<a>");
  document->read_tag();
  EXPECT_EQ(document.rest(), "<a>");
  EXPECT_EQ(thrown_by([] { Document("a>")->read_tag(); }), char_error('<'));
  EXPECT_EQ(thrown_by([] { Document("<a")->read_tag(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("</")->read_tag(); }), "end");
}

TEST(axmPositionX, read_cdata_returns_the_content_as_it_stands)
{
  for (auto const& [section, content] :
    {std::pair<char const*, char const*>{"<![CDATA[x]]>y", "x"}, {"<![CDATA[]]>y", ""},
      {"<![CDATA[<b>&lt;]]>y", "<b>&lt;"}, {"<![CDATA[a]b]c]]>y", "a]b]c"}, {"<![CDATA[]x]]>y", "]x"}})
  {
    Document document(section);
    EXPECT_EQ(str(document->read_cdata()), content);
    EXPECT_EQ(document.rest(), "y");
  }
}

TEST(axmPositionX, read_cdata_refuses_two_brackets_without_the_end)
{
  EXPECT_EQ(thrown_by([] { Document("<![CDATA[a]]b]]>y")->read_cdata(); }), char_error('>'));
  EXPECT_EQ(thrown_by([] { Document("<![CDATA[a]]]>y")->read_cdata(); }), char_error('>'));
  EXPECT_EQ(thrown_by([] { Document("<![CDATA[a]]>")->read_cdata(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("<![CDATX[")->read_cdata(); }), char_error('A'));
}

TEST(axmPositionX, read_text_loses_what_stands_before_a_cdata_section)
{
  Document document("abc<![CDATA[x]]>def</a>");
  EXPECT_EQ(str(document->read_text()), "xdef");
  EXPECT_EQ(document.rest(), "</a>");
}

TEST(axmPositionX, read_text_leaves_comments_out)
{
  Document document("ab<!--c-->de<f>");
  EXPECT_EQ(str(document->read_text()), "abde");
  EXPECT_EQ(document.rest(), "<f>");
}

TEST(axmPositionX, read_text_joins_sections_and_comments)
{
  EXPECT_EQ(str(Document("1<!--c-->2<![CDATA[3]]><![CDATA[4]]><!--c-->5<!--c-->6<a>")->read_text()), "13456");
  EXPECT_EQ(str(Document("<a>")->read_text()), "");
  EXPECT_EQ(str(Document("&lt;&#65;<a>")->read_text()), "&lt;&#65;");
}

TEST(axmPositionX, read_text_without_a_tag_is_the_end_error_before_the_last_character)
{
  Document document("abc");
  EXPECT_EQ(thrown_by([&] { document->read_text(); }), "end");
  EXPECT_EQ(document.rest(), "c");
}

TEST(axmPositionX, text_node_keeps_the_white_space_before_the_text)
{
  Document document("<a> <b>x</b>\n<!--c-->\ttext <d/></a>\n");
  document->object_setup();
  EXPECT_EQ(document.rest().substr(0, 2), "<b");
  EXPECT_EQ(str(document->text_node()), "\n\ttext ");
  EXPECT_EQ(document.rest(), "<d/></a>\n");
}

TEST(axmPositionX, text_node_reads_a_cdata_section)
{
  Document document("<a><![CDATA[<x>]]> y</a>\n");
  document->object_setup();
  EXPECT_EQ(str(document->text_node()), "<x> y");
}

TEST(axmPositionX, text_node_without_text_is_empty_and_goes_back_after_the_opening_tag)
{
  Document document("<a k=\"v\"> <b>x</b> </a>\n");
  document->object_setup();
  EXPECT_EQ(str(document->text_node()), "");
  EXPECT_EQ(document.rest(), " <b>x</b> </a>\n");
}

TEST(axmPositionX, text_node_refuses_the_closing_tag_of_another_element)
{
  Document document("<a></b>\n");
  document->object_setup();
  EXPECT_EQ(thrown_by([&] { document->text_node(); }), tag_error("b"));
  EXPECT_EQ(document.rest(), "<a></b>\n");
}

TEST(axmPositionX, text_node_of_a_self_closing_element_reads_what_follows_it)
{
  Document document("<r><a/>next<b></b></r>\n");
  OpenCursor cursor = document.at("<a/>");
  cursor.object_setup();
  EXPECT_EQ(str(cursor.text_node()), "next");
}

TEST(axmPositionX, skip_object_passes_children_comments_and_sections)
{
  Document document("<a><b/><!--c--><![CDATA[<d>]]></a>x");
  document->skip_object();
  EXPECT_EQ(document.rest(), "x");
}

TEST(axmPositionX, skip_object_passes_an_empty_element)
{
  Document document("<a k=\"v\"/>x");
  document->skip_object();
  EXPECT_EQ(document.rest(), "x");
}

TEST(axmPositionX, skip_object_refuses_another_closing_tag_and_names_the_opening_one)
{
  Document document("<a></b>x");
  EXPECT_EQ(thrown_by([&] { document->skip_object(); }), tag_error("a"));
  EXPECT_EQ(document.rest(), "</b>x");
  EXPECT_EQ(thrown_by([] { Document("<a><b></B></a>x")->skip_object(); }), tag_error("b"));
  EXPECT_EQ(thrown_by([] { Document("<a></ab>x")->skip_object(); }), tag_error("a"));
  EXPECT_EQ(thrown_by([] { Document("<a\tb=\"1\"></a>x")->skip_object(); }), tag_error("a\tb=\"1\""));
}

TEST(axmPositionX, skip_object_takes_instructions_and_declarations_for_elements)
{
  EXPECT_EQ(thrown_by([] { Document("<a><?p i?></a>x")->skip_object(); }), tag_error("?p"));
  EXPECT_EQ(thrown_by([] { Document("<a><!x></!x></a>x")->skip_object(); }), "nothing");
}

TEST(axmPositionX, skip_object_at_the_end_of_the_document_is_the_end_error)
{
  EXPECT_EQ(thrown_by([] { Document("<a></a>")->skip_object(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("<a>text")->skip_object(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("<a")->skip_object(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("text<")->skip_object(); }), char_error('<'));
}

TEST(axmPositionX, skip_object_passes_a_million_levels)
{
  int const levels = 1000000;
  std::string text;
  for (int i = 0; i < levels; ++i)
    text += "<a>";
  for (int i = 0; i < levels; ++i)
    text += "</a>";
  text += "x";
  OpenCursor cursor(&text[0]);
  cursor.skip_object();
  EXPECT_STREQ(cursor.current(), "x");
}

TEST(axmPositionX, skip_object_finds_the_wrong_name_below_a_million_levels)
{
  int const levels = 1000000;
  std::string text;
  for (int i = 0; i < levels; ++i)
    text += "<a>";
  text += "<b></c>";
  OpenCursor cursor(&text[0]);
  EXPECT_EQ(thrown_by([&] { cursor.skip_object(); }), tag_error("b"));
}

TEST(axmPositionX, find_sub_tag_stays_on_the_child)
{
  Document document("<r><a/>text<!--c--><b><c/></b><c/></r>\n");
  document->object_setup();
  EXPECT_TRUE(document->find_sub_tag(ut_lit("c")));
  EXPECT_EQ(document.rest(), "<c/></r>\n");
  EXPECT_TRUE(document->find_sub_tag(ut_lit("c")));
  EXPECT_EQ(document.rest(), "<c/></r>\n");
}

TEST(axmPositionX, find_sub_tag_goes_back_after_the_opening_tag_when_there_is_none)
{
  Document document("<r k=\"v\"> <a></a></r>\n");
  document->object_setup();
  EXPECT_FALSE(document->find_sub_tag(ut_lit("b")));
  EXPECT_EQ(document.rest(), " <a></a></r>\n");
}

TEST(axmPositionX, find_sub_tag_refuses_the_closing_tag_of_another_element)
{
  Document document("<r></s>\n");
  document->object_setup();
  EXPECT_EQ(thrown_by([&] { document->find_sub_tag(ut_lit("b")); }), tag_error("s"));
}

TEST(axmPositionX, find_sub_tag_accepts_a_closing_tag_that_is_a_beginning_of_the_name)
{
  Document document("<root></ro>\n");
  document->object_setup();
  EXPECT_FALSE(document->find_sub_tag(ut_lit("b")));
}

TEST(axmPositionX, find_sub_tag_passes_a_cdata_section_as_text)
{
  Document document("<r><![CDATA[x]]><a/></r>\n");
  document->object_setup();
  EXPECT_TRUE(document->find_sub_tag(ut_lit("a")));
  EXPECT_EQ(document.rest(), "<a/></r>\n");
}

TEST(axmPositionX, find_sub_tag_finds_elements_in_a_cdata_section)
{
  Document document("<r><![CDATA[<a>]]></r>\n");
  document->object_setup();
  EXPECT_TRUE(document->find_sub_tag(ut_lit("a")));
  EXPECT_EQ(document.rest(), "<a>]]></r>\n");
}

TEST(axmPositionX, find_sub_tag_without_a_tag_is_the_end_error)
{
  EXPECT_EQ(thrown_by([] { Document("text")->find_sub_tag(ut_lit("a")); }), "end");
  EXPECT_EQ(thrown_by([] { Document("<a/><b")->find_sub_tag(ut_lit("x")); }), "end");
}

TEST(axmPositionX, end_object_passes_all_children)
{
  Document document("<r><a/>text<b></b></r>\n");
  document->object_setup();
  document->end_object();
  EXPECT_EQ(document.rest(), "<a/>text<b></b></r>\n");
}

TEST(axmPositionX, end_object_comes_to_the_same_place_again_with_a_child_called_Invalid)
{
  Document document("<r><Invalidated/></r>\n");
  document->object_setup();
  for (int i = 0; i < 3; ++i)
  {
    EXPECT_TRUE(document->find_sub_tag(ut_lit("Invalid")));
    EXPECT_EQ(document.rest(), "<Invalidated/></r>\n");
  }
}

#if !defined(_WIN32)
namespace
{
void end_object_under_watch(char const* text)
{
  // Processor time of a process of its own is what runs out, however busy the machine.
  itimerval limit = {};
  limit.it_value.tv_usec = 200000;
  setitimer(ITIMER_VIRTUAL, &limit, nullptr);
  Document document(text);
  document->object_setup();
  document->end_object();
  std::_Exit(7);
}
}

TEST(axmPositionX, end_object_does_not_return_with_a_child_called_Invalid)
{
  EXPECT_EXIT(end_object_under_watch("<r><Invalidated/></r>\n"), testing::KilledBySignal(SIGVTALRM), "");
  EXPECT_EXIT(end_object_under_watch("<r><invalid/></r>\n"), testing::ExitedWithCode(7), "");
}
#endif

TEST(axmPositionX, go_to_sub_tag_hands_out_a_cursor_in_the_content_of_the_child)
{
  Document document("<r> <a k=\"v\"> <b/></a></r>\n");
  document->object_setup();
  auto const child = child_of(document.cursor, "a");
  ASSERT_TRUE(child);
  EXPECT_EQ(document.rest().substr(0, 3), "<a ");
  OpenCursor const open(*child);
  EXPECT_EQ(open.start(), document->current());
  EXPECT_STREQ(open.current(), "<b/></a></r>\n");
  EXPECT_EQ(str(child->attribute(ut_lit("k"), utString())), "v");
}

TEST(axmPositionX, go_to_sub_tag_for_an_absent_child_is_null_and_goes_back)
{
  Document document("<r><a/></r>\n");
  document->object_setup();
  EXPECT_FALSE(child_of(document.cursor, "b"));
  EXPECT_EQ(document.rest(), "<a/></r>\n");
}

TEST(axmPositionX, go_to_sub_tag_takes_any_release_mode)
{
  Document document("<r><a></a></r>\n");
  document->object_setup();
  axmPositionXcoPageArrPrgcoPrg const child(document->go_to_sub_tag(static_cast<utPtrRelease>(0), ut_lit("a")));
  EXPECT_TRUE(child);
}

TEST(axmPositionX, go_to_sub_tag_to_a_child_that_ends_the_document_is_the_end_error)
{
  Document document("<r><a>");
  document->object_setup();
  EXPECT_EQ(thrown_by([&] { child_of(document.cursor, "a"); }), "end");
  EXPECT_EQ(document.rest(), "<a>");
}

TEST(axmPositionX, object_setup_passes_comments_and_moves_the_beginning)
{
  Document document("<!--1--><!--2--><a>x</a>\n");
  document->object_setup();
  EXPECT_EQ(document.rest(), "x</a>\n");
  EXPECT_STREQ(document->start(), "<a>x</a>\n");
}

TEST(axmPositionX, object_setup_wants_an_opening_tag)
{
  EXPECT_EQ(thrown_by([] { Document("text")->object_setup(); }), tag_error("Initial tag"));
  EXPECT_EQ(thrown_by([] { Document("<!--c-->text")->object_setup(); }), tag_error("Initial tag"));
  EXPECT_EQ(thrown_by([] { Document("</a>x")->object_setup(); }), tag_error("Initial tag"));
  EXPECT_EQ(thrown_by([] { Document("<![CDATA[x]]>y")->object_setup(); }), tag_error("Initial tag"));
}

TEST(axmPositionX, object_setup_does_not_tell_a_self_closing_element_apart)
{
  Document document("<b/> \n<c>x</c>");
  document->object_setup();
  EXPECT_EQ(document.rest(), "<c>x</c>");
}

TEST(axmPositionX, initial_tag_is_the_name_after_the_first_tag)
{
  Document document("<!--c--><?xml version='1.0'?>\n<root a='1'>");
  EXPECT_EQ(str(document->initial_tag()), "root");
  EXPECT_EQ(document->current(), &document.text[0]);
}

TEST(axmPositionX, initial_tag_begins_at_the_beginning_of_the_element)
{
  Document document("<?xml?><root> ");
  document->move_on();
  document->move_on();
  EXPECT_EQ(str(document->initial_tag()), "root");
}

TEST(axmPositionX, initial_tag_errors)
{
  EXPECT_EQ(thrown_by([] { Document("text")->initial_tag(); }), tag_error("Initial tag"));
  EXPECT_EQ(thrown_by([] { Document("</a><b> ")->initial_tag(); }), tag_error("Initial tag"));
  EXPECT_EQ(thrown_by([] { Document("<![CDATA[x]]><b> ")->initial_tag(); }), tag_error("Initial tag"));
  EXPECT_EQ(thrown_by([] { Document("<a>\n")->initial_tag(); }), "end");
  EXPECT_EQ(thrown_by([] { Document("<a> text")->initial_tag(); }), char_error('<'));
}

TEST(axmPositionX, attribute_accepts_both_quotes_and_any_other)
{
  Document document("<a x='1' y=\"2\" z=|3 4|>_");
  EXPECT_EQ(str(document->attribute(ut_lit("x"), utString())), "1");
  EXPECT_EQ(str(document->attribute(ut_lit("y"), utString())), "2");
  EXPECT_EQ(str(document->attribute(ut_lit("z"), utString())), "3 4");
  EXPECT_EQ(document->current(), &document.text[0]);
}

TEST(axmPositionX, attribute_with_space_before_the_equals_sign_is_never_found)
{
  Document document("<a x = \"1\" >_");
  EXPECT_EQ(str(document->attribute(ut_lit("x"), ut_lit("none"))), "none");
}

TEST(axmPositionX, attribute_with_space_after_the_equals_sign_has_a_space_for_quote)
{
  Document document("<a x= \"1\" y='2'>_");
  EXPECT_EQ(str(document->attribute(ut_lit("x"), ut_lit("none"))), "\"1\"");
}

TEST(axmPositionX, attribute_that_is_missing_is_the_default_itself)
{
  utString const none = ut_lit("a text that is long enough to be shared by its copies");
  Document document("<a x='1'>_");
  EXPECT_EQ(document->attribute(ut_lit("y"), none).c_str(), none.c_str());
  EXPECT_EQ(document->attribute(ut_lit("X"), none).c_str(), none.c_str());
  EXPECT_FALSE(document->attribute(ut_lit("y"), utString()).has_storage());
}

TEST(axmPositionX, attribute_value_stays_as_it_is_written)
{
  Document document("<a x='&lt;\n \"b\">' x='2'>_");
  EXPECT_EQ(str(document->attribute(ut_lit("x"), utString())), "&lt;\n \"b\">");
}

TEST(axmPositionX, attribute_without_a_name_is_found_by_an_empty_one)
{
  Document document("<a =\"1\">_");
  EXPECT_EQ(str(document->attribute(utString(), ut_lit("none"))), "1");
  EXPECT_EQ(str(document->attribute(ut_lit(""), ut_lit("none"))), "1");
}

TEST(axmPositionX, attribute_begins_after_the_first_space)
{
  Document document("<a\tx='1' y='2'>_");
  EXPECT_EQ(str(document->attribute(ut_lit("x"), ut_lit("none"))), "none");
  EXPECT_EQ(str(document->attribute(ut_lit("y"), ut_lit("none"))), "2");
}

TEST(axmPositionX, attribute_missing_in_a_self_closing_tag_is_looked_for_in_what_follows)
{
  Document document("<a x='1'/><b k='2' y='3'>_");
  EXPECT_EQ(str(document->attribute(ut_lit("y"), ut_lit("none"))), "3");
  EXPECT_EQ(str(document->attribute(ut_lit("z"), ut_lit("none"))), "none");
}

TEST(axmPositionX, attribute_of_a_tag_that_does_not_end_is_the_end_error)
{
  utString const none;
  EXPECT_EQ(thrown_by([&] { Document("<a")->attribute(ut_lit("x"), none); }), "end");
  EXPECT_EQ(thrown_by([&] { Document("<a x")->attribute(ut_lit("x"), none); }), "end");
  EXPECT_EQ(thrown_by([&] { Document("<a x='1")->attribute(ut_lit("x"), none); }), "end");
  EXPECT_EQ(thrown_by([&] { Document("<a x='1'")->attribute(ut_lit("x"), none); }), "end");
  EXPECT_EQ(thrown_by([&] { Document("<a x='1'/>\n")->attribute(ut_lit("y"), none); }), "end");
}

TEST(axmPositionX, find_attribute_moves_the_cursor)
{
  Document document("<a x='1' y='2'>_");
  EXPECT_EQ(str(document->find_attribute(ut_lit("x"), utString())), "1");
  EXPECT_EQ(document.rest(), " y='2'>_");
}

TEST(axmPositionX, make_string_from_cuts_up_to_the_cursor)
{
  Document document("abc");
  document->move_on();
  document->move_on();
  EXPECT_EQ(str(document->make_string_from(&document.text[0])), "ab");
}

TEST(axmPositionX, throws_its_errors_by_value)
{
  Document document("a");
  EXPECT_EQ(thrown_by([&] { document->throw_char_error_x('-'); }), "char xpected char \n");
  EXPECT_EQ(thrown_by([&] { document->throw_end_error_x(); }), "end");
  EXPECT_EQ(thrown_by([&] { document->throw_tag_error_x(ut_lit("t")); }), tag_error("t"));
}
