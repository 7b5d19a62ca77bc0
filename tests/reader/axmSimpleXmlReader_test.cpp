#include "MemoryFile.h"

#include <axmSimpleXmlFactory.h>
#include <axmSimpleXmlReader.h>

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>

namespace
{
char const end_error[] = "axmEndException:: Xml reader moved of the end of the file\n";
char const nesting_error[] = "Incorrect xml nesting";
char const not_read_error[] = "No xml file has been read";

// A reader on a file in memory.
class Reader
{
public:
  explicit Reader(std::string text)
    : file(new MemoryFile(std::move(text))),
      reader(axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, apITarnFilecoPrf(file)))
  {
  }

  // On an element, after a declaration.
  static Reader of(std::string const& root)
  {
    Reader made("<?xml version='1.0'?>\n" + root + "\n");
    EXPECT_TRUE(made->read_file());
    return made;
  }

  axmSimpleXmlReader* operator->() { return static_cast<axmSimpleXmlReader*>(reader.get()); }

  bool down(char const* name) { return reader->down_to(ut_lit(name)); }

  std::string attribute(char const* name) { return reader->attribute(ut_lit(name), ut_lit("none")).c_str(); }

  std::string text() { return reader->text_node().c_str(); }

  std::string errors() const
  {
    std::ostringstream out;
    reader->dump_error(out);
    return out.str();
  }

  MemoryFile* file;
  std::unique_ptr<axmAbstractXmlReader> reader;
};
}

TEST(axmSimpleXmlReader, is_made_by_the_factory_only)
{
  EXPECT_FALSE((std::is_constructible_v<axmSimpleXmlReader, apITarnFilecoPrf const&>));
  EXPECT_TRUE((std::is_base_of_v<axmAbstractXmlReader, axmSimpleXmlReader>));
}

TEST(axmSimpleXmlReader, new_reports_unknown_no_error_and_has_read_nothing)
{
  Reader reader("<?xml version='1.0'?>\n");
  EXPECT_STREQ(reader->encoding().c_str(), "Unknown");
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_EQ(reader.errors(), "");
  EXPECT_EQ(reader.file->reads, 0);
}

TEST(axmSimpleXmlReader, read_file_takes_the_encoding_from_the_declaration)
{
  Reader reader("<?xml version='1.0' encoding='ISO-8859-1'?><r></r>\n");
  EXPECT_TRUE(reader->read_file());
  EXPECT_STREQ(reader->encoding().c_str(), "ISO-8859-1");
}

TEST(axmSimpleXmlReader, read_file_of_too_few_bytes_is_false_without_a_message)
{
  Reader reader("<?xml version='1.0'?><r></r>\n");
  reader.file->missing = 1;
  EXPECT_FALSE(reader->read_file());
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_EQ(reader.errors(), "");
  EXPECT_STREQ(reader->encoding().c_str(), "Unknown");
}

TEST(axmSimpleXmlReader, read_file_refuses_utf16_in_any_case_without_a_message)
{
  for (char const* const name : {"UTF-16", "utf-16", "Utf-16"})
  {
    Reader reader(std::string("<?xml version='1.0' encoding='") + name + "'?><r></r>\n");
    EXPECT_FALSE(reader->read_file());
    EXPECT_STREQ(reader->encoding().c_str(), name);
    EXPECT_FALSE(reader->has_error_occurred());
    EXPECT_EQ(reader.errors(), "");
  }
}

TEST(axmSimpleXmlReader, read_file_accepts_other_spellings_of_utf16)
{
  for (char const* const name : {"UTF16", "utf-16le", "utf_16"})
  {
    Reader reader(std::string("<?xml version='1.0' encoding='") + name + "'?><r></r>\n");
    EXPECT_TRUE(reader->read_file());
    EXPECT_TRUE(reader.down("r"));
  }
}

TEST(axmSimpleXmlReader, read_file_records_what_is_wrong_with_the_declaration)
{
  Reader without("<r></r>\n");
  EXPECT_FALSE(without->read_file());
  EXPECT_TRUE(without->has_error_occurred());
  EXPECT_EQ(without.errors(), "\n");
  EXPECT_STREQ(without->encoding().c_str(), "Unknown");

  Reader broken("<?xml version='1.0");
  EXPECT_FALSE(broken->read_file());
  EXPECT_EQ(broken.errors(), end_error);
}

TEST(axmSimpleXmlReader, read_file_of_an_empty_file_is_an_error)
{
  Reader reader("");
  EXPECT_FALSE(reader->read_file());
  EXPECT_EQ(reader.errors(), "\n");
}

TEST(axmSimpleXmlReader, read_file_reads_nothing_when_the_size_cannot_be_told)
{
  auto const refused = [](auto spoil)
  {
    Reader reader("<?xml version='1.0'?><r></r>\n");
    spoil(*reader.file);
    return !reader->read_file() && reader.file->reads == 0 && !reader->has_error_occurred() && reader.errors().empty();
  };
  EXPECT_TRUE(refused([](MemoryFile& file) { file.seeks = false; }));
  EXPECT_TRUE(refused([](MemoryFile& file) { file.rewinds = false; }));
  EXPECT_TRUE(refused([](MemoryFile& file) { file.told = -1; }));
  EXPECT_TRUE(refused([](MemoryFile& file) { file.told = INT_MAX; }));
}

TEST(axmSimpleXmlReader, read_file_without_a_file_is_false)
{
  auto const reader = axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, apITarnFilecoPrf());
  EXPECT_FALSE(reader->read_file());
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, read_file_again_outside_any_element_begins_a_new_walk_over_the_file_as_it_is_now)
{
  Reader reader = Reader::of("<r><a>1</a></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  reader->up();
  reader->up();
  reader.file->bytes = "<?xml version='1.0' encoding='x'?><r>" + std::string(100000, ' ') + "<b>2</b></r>\n";
  EXPECT_TRUE(reader->read_file());
  EXPECT_STREQ(reader->encoding().c_str(), "x");
  EXPECT_TRUE(reader.down("r"));
  EXPECT_TRUE(reader.down("b"));
  EXPECT_EQ(reader.text(), "2");
}

TEST(axmSimpleXmlReader, read_file_again_within_elements_goes_on_there_in_the_text_as_it_is_now)
{
  Reader reader = Reader::of("<r><a n='1'><x/></a><b>2</b></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  // The text moves, and its elements stay where they are.
  reader.file->bytes =
    "<?xml version='1.0'?>\n<r><a n='3'><y/></a><b>4</b>" + std::string(100000, ' ') + "<c>5</c></r>\n";
  EXPECT_TRUE(reader->read_file());
  EXPECT_EQ(reader.attribute("n"), "3");
  EXPECT_FALSE(reader.down("x"));
  EXPECT_TRUE(reader.down("y"));
  reader->up();
  reader->up();
  EXPECT_TRUE(reader.down("b"));
  EXPECT_EQ(reader.text(), "4");
  reader->up();
  EXPECT_TRUE(reader.down("c"));
  EXPECT_EQ(reader.text(), "5");
  reader->up();
  reader->up();
  EXPECT_TRUE(reader.down("r"));
  EXPECT_EQ(reader.errors(), "");
}

TEST(axmSimpleXmlReader, read_file_again_of_a_file_that_has_become_short_leaves_the_elements_at_its_end)
{
  auto const with = [](auto ask)
  {
    Reader reader = Reader::of("<r><a n='1'>" + std::string(1000, ' ') + "<b m='1'><c/></b></a></r>");
    EXPECT_TRUE(reader.down("r"));
    EXPECT_TRUE(reader.down("a"));
    EXPECT_TRUE(reader.down("b"));
    reader.file->bytes = "<?xml version='1.0'?>\n<r></r>\n";
    EXPECT_TRUE(reader->read_file());
    EXPECT_EQ(reader.errors(), "");
    ask(reader);
    return reader.errors();
  };
  EXPECT_EQ(with([](Reader& reader) { EXPECT_FALSE(reader.down("c")); }), end_error);
  EXPECT_EQ(with([](Reader& reader) { EXPECT_EQ(reader.attribute("m"), "none"); }), end_error);
  EXPECT_EQ(with([](Reader& reader) { EXPECT_EQ(reader.text(), ""); }), end_error);
  EXPECT_NE(with([](Reader& reader) { reader->up(); }), "");
}

TEST(axmSimpleXmlReader, read_file_runs_in_error_and_leaves_the_error)
{
  Reader reader("<?xml version='1.0' encoding='x'?><r></r>\n");
  reader->error_has_occurred(ut_lit("first"));
  EXPECT_TRUE(reader->read_file());
  EXPECT_STREQ(reader->encoding().c_str(), "x");
  EXPECT_TRUE(reader->has_error_occurred());
  EXPECT_FALSE(reader.down("r"));
}

TEST(axmSimpleXmlReader, read_file_that_fails_later_leaves_nothing_to_walk)
{
  Reader reader = Reader::of("<r><a/></r>");
  ASSERT_TRUE(reader.down("r"));
  reader.file->missing = 3;
  EXPECT_FALSE(reader->read_file());
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_FALSE(reader.down("r"));
  EXPECT_EQ(reader.errors(), not_read_error);
}

TEST(axmSimpleXmlReader, down_to_before_read_file_is_an_error)
{
  Reader reader("<?xml version='1.0'?><r></r>\n");
  EXPECT_FALSE(reader.down("r"));
  EXPECT_EQ(reader.errors(), not_read_error);
}

TEST(axmSimpleXmlReader, down_to_after_a_refused_file_is_an_error)
{
  Reader reader("<?xml version='1.0' encoding='utf-16'?><r></r>\n");
  EXPECT_FALSE(reader->read_file());
  EXPECT_FALSE(reader.down("r"));
  EXPECT_EQ(reader.errors(), not_read_error);
}

TEST(axmSimpleXmlReader, attribute_and_text_outside_any_element_are_errors)
{
  Reader one = Reader::of("<r a='1'>t</r>");
  EXPECT_EQ(one.attribute("a"), "none");
  EXPECT_EQ(one.errors(), nesting_error);

  Reader other = Reader::of("<r a='1'>t</r>");
  EXPECT_EQ(other.text(), "");
  EXPECT_EQ(other.errors(), nesting_error);

  Reader unread("");
  EXPECT_EQ(unread.text(), "");
  EXPECT_EQ(unread.errors(), nesting_error);
}

TEST(axmSimpleXmlReader, up_outside_any_element_is_an_error_for_good)
{
  Reader reader = Reader::of("<r a='1'></r>");
  reader->up();
  EXPECT_EQ(reader.errors(), nesting_error);
  EXPECT_FALSE(reader.down("r"));
  EXPECT_EQ(reader.attribute("a"), "none");
  EXPECT_EQ(reader.text(), "");
  reader->up();
  EXPECT_EQ(reader.errors(), nesting_error);
}

TEST(axmSimpleXmlReader, up_after_climbing_out_is_an_error)
{
  Reader reader = Reader::of("<r><a></a></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  reader->up();
  reader->up();
  EXPECT_FALSE(reader->has_error_occurred());
  reader->up();
  EXPECT_EQ(reader.errors(), nesting_error);
}

TEST(axmSimpleXmlReader, walks_down_and_up)
{
  Reader reader = Reader::of("<r><a k='1'>one</a><a k='2'>two<b>three</b></a><c>four</c></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.attribute("k"), "1");
  EXPECT_EQ(reader.text(), "one");
  reader->up();
  ASSERT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.attribute("k"), "2");
  EXPECT_EQ(reader.attribute("x"), "none");
  ASSERT_TRUE(reader.down("b"));
  EXPECT_EQ(reader.text(), "three");
  reader->up();
  reader->up();
  ASSERT_TRUE(reader.down("c"));
  EXPECT_EQ(reader.text(), "four");
  reader->up();
  reader->up();
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, down_to_what_is_not_there_is_false_without_an_error_and_begins_again)
{
  Reader reader = Reader::of("<r><a>1</a><b>2</b></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("b"));
  reader->up();
  EXPECT_FALSE(reader.down("a"));
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.text(), "1");
}

TEST(axmSimpleXmlReader, down_to_finds_names_by_their_beginning)
{
  Reader reader = Reader::of("<r><items>1</items></r>");
  ASSERT_TRUE(reader.down("r"));
  EXPECT_TRUE(reader.down("item"));
  EXPECT_EQ(reader.text(), "1");
}

TEST(axmSimpleXmlReader, down_to_past_an_error_records_it)
{
  Reader reader = Reader::of("<r><a></b><c></c></r>");
  ASSERT_TRUE(reader.down("r"));
  EXPECT_FALSE(reader.down("c"));
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag a\n");
}

TEST(axmSimpleXmlReader, up_past_an_error_records_it)
{
  Reader reader = Reader::of("<r><a><b></a></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  reader->up();
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag b\n");
}

TEST(axmSimpleXmlReader, attribute_past_an_error_records_it_and_is_the_default)
{
  Reader reader = Reader::of("<r><a k='1'/></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.attribute("x"), "none");
  EXPECT_EQ(reader.errors(), end_error);
}

TEST(axmSimpleXmlReader, text_node_past_an_error_records_it_and_is_empty)
{
  Reader reader = Reader::of("<r><a><b></c></a></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.text(), "");
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag b\n");
}

TEST(axmSimpleXmlReader, leaving_the_outermost_element_finds_it_again)
{
  Reader reader = Reader::of("<r k='1'><a></a></r>");
  for (int i = 0; i < 3; ++i)
  {
    ASSERT_TRUE(reader.down("r"));
    EXPECT_EQ(reader.attribute("k"), "1");
    reader->up();
  }
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, leaving_the_outermost_element_wants_its_closing_tag)
{
  Reader reader = Reader::of("<r><a></a></s>");
  ASSERT_TRUE(reader.down("r"));
  reader->up();
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag s\n");
}

TEST(axmSimpleXmlReader, leaving_an_inner_element_passes_it_by_its_parent)
{
  // The wrong tag is found by the parent and named after the opening one; by itself the element would name the other.
  Reader reader = Reader::of("<r><a></s></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  reader->up();
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag a\n");
}

TEST(axmSimpleXmlReader, leaving_the_outermost_element_ends_with_children_called_Invalid)
{
  Reader reader = Reader::of("<r><Invalid/><a></a><Invalidated><Invalid></Invalid></Invalidated></r>");
  ASSERT_TRUE(reader.down("r"));
  reader->up();
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_TRUE(reader.down("r"));
}

TEST(axmSimpleXmlReader, a_closing_tag_at_the_very_end_of_the_file_is_an_error_only_when_it_is_passed)
{
  Reader reader("<?xml version='1.0'?><r><a></a></r>");
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  reader->up();
  reader->up();
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_FALSE(reader.down("x"));
  EXPECT_EQ(reader.errors(), end_error);
}

TEST(axmSimpleXmlReader, a_document_type_or_instruction_before_the_root_is_taken_for_an_element)
{
  Reader doctype = Reader::of("<!DOCTYPE r>\n<r></r>");
  EXPECT_FALSE(doctype.down("r"));
  EXPECT_EQ(doctype.errors(), end_error);
  Reader instruction = Reader::of("<?style x?>\n<r></r>");
  EXPECT_FALSE(instruction.down("r"));
  EXPECT_EQ(instruction.errors(), end_error);
}

TEST(axmSimpleXmlReader, comments_before_the_root_are_passed)
{
  Reader reader = Reader::of("<!-- <r> --><r><!--c--></r>");
  EXPECT_TRUE(reader.down("r"));
  EXPECT_EQ(reader.text(), "");
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, a_tab_after_the_name_is_part_of_it)
{
  Reader reader = Reader::of("<r><a\tk='1'></a></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.attribute("k"), "none");
  reader->up();
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag a\tk='1'\n");
}

TEST(axmSimpleXmlReader, a_self_closing_element_is_entered_as_if_what_follows_were_its_content)
{
  Reader reader = Reader::of("<r><a/><b>text</b></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  ASSERT_TRUE(reader.down("b"));
  EXPECT_EQ(reader.text(), "text");
  reader->up();
  EXPECT_FALSE(reader.down("c"));
  EXPECT_EQ(reader.errors(), "axmTagException:: Something wrong with tag r\n");
}

TEST(axmSimpleXmlReader, an_attribute_missing_in_a_self_closing_element_may_come_from_a_later_one)
{
  Reader reader = Reader::of("<r><a k='1'/><a l='2' x='3'></a></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("a"));
  EXPECT_EQ(reader.attribute("x"), "3");
  EXPECT_EQ(reader.attribute("y"), "none");
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, values_and_texts_come_as_they_stand)
{
  Reader reader = Reader::of("<r k='&lt;\xE4'> &amp;<![CDATA[<]]></r>");
  ASSERT_TRUE(reader.down("r"));
  EXPECT_EQ(reader.attribute("k"), "&lt;\xE4");
  EXPECT_EQ(reader.text(), "<");
}

TEST(axmSimpleXmlReader, a_nul_ends_the_document)
{
  Reader reader(std::string("<?xml version='1.0'?><r>\0</r>\n", 30));
  ASSERT_TRUE(reader->read_file());
  EXPECT_FALSE(reader.down("r"));
  EXPECT_EQ(reader.errors(), end_error);
}

TEST(axmSimpleXmlReader, errors_run_together)
{
  Reader reader("");
  reader->error_has_occurred(ut_lit("one"));
  reader->error_has_occurred(ut_lit("two"));
  EXPECT_TRUE(reader->has_error_occurred());
  EXPECT_EQ(reader.errors(), "onetwo");
}

TEST(axmSimpleXmlReader, after_an_error_every_answer_is_neutral_and_nothing_is_recorded)
{
  Reader reader = Reader::of("<r k='1'><a></a>text</r>");
  ASSERT_TRUE(reader.down("r"));
  reader->error_has_occurred(ut_lit("e"));
  EXPECT_FALSE(reader.down("a"));
  EXPECT_EQ(reader.attribute("k"), "none");
  EXPECT_EQ(reader.text(), "");
  reader->up();
  EXPECT_EQ(reader.errors(), "e");
}

TEST(axmSimpleXmlReader, what_is_known_of_names_after_searches_in_vain_is_whole)
{
  Reader reader = Reader::of("<r><one/><two/><three/><four/><five/></r>\n");
  ASSERT_TRUE(reader.down("r"));
  for (int round = 0; round < 2; ++round)
  {
    EXPECT_FALSE(reader.down("none")); // all names have been seen
    EXPECT_TRUE(reader.down("three"));
    reader->up();
    EXPECT_FALSE(reader.down("one")); // the last ones have been seen again
    for (char const* const name : {"one", "two", "th", "four", "five", "fi"})
    {
      EXPECT_TRUE(reader.down(name) || reader.down(name)) << name;
      reader->up();
    }
    EXPECT_TRUE(reader.down("t") || reader.down("t"));
    reader->up();
    EXPECT_FALSE(reader.down("twos") || reader.down("twos"));
  }
  reader->up();
  EXPECT_EQ(reader.errors(), "");
}

TEST(axmSimpleXmlReader, a_default_handed_back_is_the_one_given)
{
  Reader reader = Reader::of("<r k='1'></r>");
  ASSERT_TRUE(reader.down("r"));
  utString const given = ut_lit("a text that is long enough to be shared by its copies");
  EXPECT_EQ(reader->attribute(ut_lit("x"), given).c_str(), given.c_str());
  reader->error_has_occurred(ut_lit("e"));
  EXPECT_EQ(reader->attribute(ut_lit("k"), given).c_str(), given.c_str());
}

TEST(axmSimpleXmlReader, goes_a_hundred_thousand_levels_down_and_up)
{
  int const levels = 100000;
  std::string text;
  for (int i = 0; i < levels; ++i)
    text += "<a>";
  for (int i = 0; i < levels; ++i)
    text += "</a>";
  Reader reader = Reader::of(text);
  // Whoever passes again what has been passed does so 100,000 times here.
  for (int i = 0; i < levels; ++i)
    ASSERT_TRUE(reader.down("a"));
  for (int i = 0; i < levels; ++i)
    reader->up();
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, elements_in_a_cdata_section_are_found_as_the_cursor_finds_them)
{
  Reader reader = Reader::of("<r><a>1</a><![CDATA[<a>2</a>]]><a>3</a></r>");
  ASSERT_TRUE(reader.down("r"));
  std::string texts;
  for (; reader.down("a"); reader->up())
    texts += reader.text();
  EXPECT_EQ(texts, "123");
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, a_closing_tag_in_a_cdata_section_ends_the_search_of_its_element)
{
  Reader reader = Reader::of("<r><![CDATA[</r>]]><a>1</a></r>");
  ASSERT_TRUE(reader.down("r"));
  EXPECT_FALSE(reader.down("a"));
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlReader, text_is_read_between_children_and_the_walk_goes_on_there)
{
  Reader reader = Reader::of("<r><a>1</a>one<b>2</b>two<c>3</c></r>");
  ASSERT_TRUE(reader.down("r"));
  EXPECT_EQ(reader.text(), "one");
  ASSERT_TRUE(reader.down("c"));
  EXPECT_EQ(reader.text(), "3");
  reader->up();
  EXPECT_EQ(reader.text(), "");
  ASSERT_TRUE(reader.down("a"));
  reader->up();
  EXPECT_EQ(reader.text(), "one");
  EXPECT_TRUE(reader.down("b"));
}

TEST(axmSimpleXmlReader, absent_attributes_of_many_self_closing_siblings_are_found_absent)
{
  // Each search goes on to the end of them all. Whoever does that anew each time never comes to an end here.
  int const siblings = 300000;
  std::string text = "<r>";
  for (int i = 0; i < siblings; ++i)
    text += "<a k='1'/>";
  Reader reader = Reader::of(text + "<z k='1' late='2'></z></r>");
  ASSERT_TRUE(reader.down("r"));
  int found = 0;
  for (; reader.down("a"); reader->up())
    found += reader.attribute("x") == "none" && reader.attribute("late") == "2" && reader.attribute("k") == "1";
  EXPECT_EQ(found, siblings);
}

TEST(axmSimpleXmlReader, passes_a_million_levels)
{
  int const levels = 1000000;
  std::string text = "<r><a>";
  for (int i = 0; i < levels; ++i)
    text += "<a>";
  for (int i = 0; i < levels; ++i)
    text += "</a>";
  Reader reader = Reader::of(text + "</a><b>x</b></r>");
  ASSERT_TRUE(reader.down("r"));
  ASSERT_TRUE(reader.down("b"));
  EXPECT_EQ(reader.text(), "x");
}
