#include "Readers.h"

#include <axsXmlReader.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
std::string attribute(Reader const& reader, char const* name)
{
  return text_of(reader->attribute(utString(name), ut_lit("(none)")));
}

bool down(Reader const& reader, char const* name)
{
  return reader->down_to(utString(name));
}

std::string text(Reader const& reader)
{
  return text_of(reader->text_node());
}
}

TEST(axsXmlReader, walks_children_of_one_name_and_no_others)
{
  Reader const reader = exact("<r><items n='0'/><item n='1'/><it n='2'/><item n='3'></item></r>");
  ASSERT_TRUE(down(reader, "r"));
  std::string numbers;
  for (; down(reader, "item"); reader->up())
    numbers += attribute(reader, "n");
  EXPECT_EQ("13", numbers);
  reader->up();
  EXPECT_FALSE(reader->has_error_occurred()) << errors_of(*reader);
}

TEST(axsXmlReader, a_search_that_fails_goes_back_to_the_beginning_of_the_content)
{
  Reader const reader = exact("<r><a>1</a><b>2</b></r>");
  ASSERT_TRUE(down(reader, "r"));
  ASSERT_TRUE(down(reader, "b"));
  reader->up();
  EXPECT_FALSE(down(reader, "a"));
  ASSERT_TRUE(down(reader, "a"));
  EXPECT_EQ("1", text(reader));
}

TEST(axsXmlReader, goes_back_in_files_of_any_size_and_keeps_places)
{
  std::string document = "<r>\n<first>1</first>";
  for (int i = 0; i < 20000; ++i)
    document += "\n<x>some text that fills pieces</x>";
  document += "<last/></r>";
  Reader const reader = reader_of(axsXmlFactory(), document, 1000);
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(down(reader, "r"));
  ASSERT_TRUE(down(reader, "last"));
  reader->up();
  for (int i = 0; i < 3; ++i)
  {
    EXPECT_FALSE(down(reader, "absent"));
    ASSERT_TRUE(down(reader, "first")) << errors_of(*reader);
    EXPECT_EQ("1", text(reader));
    reader->up();
  }
}

TEST(axsXmlReader, of_a_pipe_the_last_of_it_is_kept)
{
  std::string const document = "<r><a>1</a><b>" + std::string(200000, 'x') + "</b></r>";
  Reader const reader = reader_of(axsXmlFactory(), document, 1000, true);
  ASSERT_TRUE(reader->read_file()) << errors_of(*reader);
  ASSERT_TRUE(down(reader, "r"));
  EXPECT_FALSE(down(reader, "absent"));
  ASSERT_TRUE(down(reader, "a")) << errors_of(*reader);
  EXPECT_EQ("1", text(reader));
}

TEST(axsXmlReader, going_back_further_than_a_pipe_is_kept_is_an_error)
{
  std::string document = "<r><a/>";
  while (document.size() < std::size_t{70} * 1024 * 1024)
    document += "<b>" + std::string(100000, 'x') + "</b>";
  Reader const reader = reader_of(axsXmlFactory(), document + "</r>", document.size(), true);
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(down(reader, "r"));
  EXPECT_FALSE(down(reader, "absent"));
  EXPECT_FALSE(down(reader, "a"));
  EXPECT_TRUE(reader->has_error_occurred());
  EXPECT_NE(std::string::npos, errors_of(*reader).find("32 MiB")) << errors_of(*reader);
}

TEST(axsXmlReader, a_pipe_of_any_length_is_walked_to_its_end)
{
  std::string document = "<r>";
  int count = 0;
  for (; document.size() < std::size_t{70} * 1024 * 1024; ++count)
    document += "<b>" + std::string(100000, 'x') + "</b>";
  Reader const reader = reader_of(axsXmlFactory(), document + "</r>", document.size(), true);
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(down(reader, "r"));
  for (; down(reader, "b"); reader->up())
    --count;
  reader->up();
  EXPECT_FALSE(down(reader, "r"));
  EXPECT_EQ(0, count);
  EXPECT_FALSE(reader->has_error_occurred()) << errors_of(*reader);
}

TEST(axsXmlReader, goes_back_in_every_encoding)
{
  std::string document = "<r><a>1</a>";
  for (int i = 0; i < 20000; ++i)
    document += "<x>text</x>";
  document += "</r>";
  std::string wide = std::string("\xFF\xFE", 2);
  for (char const c : document)
    wide += std::string(1, c) + '\0';
  std::string const latin = "<?xml version='1.0' encoding='ISO-8859-1'?><r><a>\xE9</a>" + document.substr(11);
  for (auto const& [text_in, expected] : {std::pair(wide, std::string("1")), std::pair(latin, std::string("\xC3\xA9"))})
  {
    Reader const reader = reader_of(axsXmlFactory(), text_in, 777);
    ASSERT_TRUE(reader->read_file()) << errors_of(*reader);
    ASSERT_TRUE(down(reader, "r"));
    EXPECT_FALSE(down(reader, "absent")) << errors_of(*reader);
    ASSERT_TRUE(down(reader, "a")) << errors_of(*reader);
    EXPECT_EQ(expected, text(reader));
    reader->up();
    int count = 0;
    for (; down(reader, "x"); reader->up())
      ++count;
    EXPECT_EQ(20000, count);
  }
}

TEST(axsXmlReader, goes_back_within_an_entity)
{
  Reader const reader =
    exact("<!DOCTYPE r [<!ENTITY e '<g><a>1</a><b>2</b></g>'><!ENTITY f '&e;'>]><r>&f;<g><a>3</a></g></r>");
  ASSERT_TRUE(down(reader, "r")) << errors_of(*reader);
  ASSERT_TRUE(down(reader, "g"));
  EXPECT_FALSE(down(reader, "c"));
  ASSERT_TRUE(down(reader, "a"));
  EXPECT_EQ("1", text(reader));
  reader->up();
  reader->up();
  ASSERT_TRUE(down(reader, "g"));
  ASSERT_TRUE(down(reader, "a"));
  EXPECT_EQ("3", text(reader));
  reader->up();
  reader->up();
  EXPECT_FALSE(down(reader, "g"));
  ASSERT_TRUE(down(reader, "g")) << errors_of(*reader);
  ASSERT_TRUE(down(reader, "b"));
  EXPECT_EQ("2", text(reader));
}

TEST(axsXmlReader, going_back_counts_no_expansion_twice)
{
  axmLoadOptions options;
  options.set_entity_expansion_limit(3);
  Reader const reader = reader_of(axsXmlFactory(options), "<!DOCTYPE r [<!ENTITY e '<a>1</a>'>]><r>&e;&e;&e;</r>");
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(down(reader, "r"));
  for (int i = 0; i < 10; ++i)
    EXPECT_FALSE(down(reader, "absent"));
  EXPECT_FALSE(reader->has_error_occurred()) << errors_of(*reader);
}

TEST(axsXmlReader, resolves_references_and_joins_what_is_one_text)
{
  Reader const reader = exact("<!DOCTYPE r [<!ENTITY e 'E'><!ATTLIST r d CDATA 'D'>]>"
                              "<r a = '&lt;&#65;&e;'\n\tb=\"2\">a&amp;<!--c--><![CDATA[<b>]]><?p?>&e;\r\nz</r>");
  ASSERT_TRUE(down(reader, "r")) << errors_of(*reader);
  EXPECT_EQ("<AE", attribute(reader, "a"));
  EXPECT_EQ("2", attribute(reader, "b"));
  EXPECT_EQ("D", attribute(reader, "d"));
  EXPECT_EQ("(none)", attribute(reader, "c"));
  EXPECT_EQ("a&<b>E\nz", text(reader));
  EXPECT_EQ("a&<b>E\nz", text(reader));
}

TEST(axsXmlReader, the_text_of_an_element_with_children_goes_up_to_the_first_and_on_after_it)
{
  Reader const reader = exact("<r>one<a>x</a>two<b/>three</r>");
  ASSERT_TRUE(down(reader, "r"));
  EXPECT_EQ("one", text(reader));
  ASSERT_TRUE(down(reader, "a"));
  reader->up();
  EXPECT_EQ("two", text(reader));
  ASSERT_TRUE(down(reader, "b"));
  EXPECT_EQ("", text(reader));
  reader->up();
  EXPECT_EQ("three", text(reader));
}

TEST(axsXmlReader, an_empty_element_has_nothing_in_it)
{
  Reader const reader = exact("<r><a k='1'/>text<b>inner</b></r>");
  ASSERT_TRUE(down(reader, "r"));
  ASSERT_TRUE(down(reader, "a"));
  EXPECT_EQ("", text(reader));
  EXPECT_FALSE(down(reader, "b"));
  EXPECT_EQ("1", attribute(reader, "k"));
  reader->up();
  EXPECT_TRUE(down(reader, "b"));
}

TEST(axsXmlReader, attributes_of_the_parent_are_there_again_after_up)
{
  Reader const reader = exact("<r k='1'><a k='2'><b k='3'/></a></r>");
  ASSERT_TRUE(down(reader, "r"));
  ASSERT_TRUE(down(reader, "a"));
  ASSERT_TRUE(down(reader, "b"));
  reader->up();
  EXPECT_EQ("2", attribute(reader, "k"));
  reader->up();
  EXPECT_EQ("1", attribute(reader, "k"));
}

TEST(axsXmlReader, a_root_of_another_name_is_not_entered)
{
  Reader const reader = exact("<?xml version='1.0'?><!--c--><r><a/></r>");
  EXPECT_FALSE(down(reader, "s"));
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_TRUE(down(reader, "r"));
}

TEST(axsXmlReader, the_root_can_be_entered_again_after_a_search_that_fails)
{
  Reader const reader = exact("<r><a/></r>");
  for (int i = 0; i < 3; ++i)
  {
    ASSERT_TRUE(down(reader, "r"));
    EXPECT_TRUE(down(reader, "a"));
    reader->up();
    reader->up();
    EXPECT_FALSE(down(reader, "r"));
  }
  EXPECT_FALSE(reader->has_error_occurred()) << errors_of(*reader);
}

TEST(axsXmlReader, leaving_the_root_checks_the_rest)
{
  Reader const reader = exact("<r><a><b></c></a></r>");
  ASSERT_TRUE(down(reader, "r"));
  EXPECT_FALSE(reader->has_error_occurred());
  reader->up();
  EXPECT_TRUE(reader->has_error_occurred());

  Reader const after = exact("<r></r>\n x");
  ASSERT_TRUE(down(after, "r"));
  after->up();
  EXPECT_EQ(0u, errors_of(*after).find(":2:2: ")) << errors_of(*after);
}

TEST(axsXmlReader, errors_have_a_line_each_with_their_place)
{
  Reader const reader = exact("<r>\n  <a></b>\n</r>");
  ASSERT_TRUE(down(reader, "r"));
  ASSERT_TRUE(down(reader, "a"));
  reader->up();
  std::string const error = errors_of(*reader);
  EXPECT_EQ(0u, error.find(":2:")) << error;
  EXPECT_NE(std::string::npos, error.find("'a'")) << error;
  EXPECT_EQ('\n', error.back());
}

TEST(axsXmlReader, after_an_error_every_answer_is_neutral)
{
  Reader const reader = exact("<r k='1'>text<a></r>");
  ASSERT_TRUE(down(reader, "r"));
  reader->up();
  ASSERT_TRUE(reader->has_error_occurred());
  EXPECT_FALSE(down(reader, "r"));
  EXPECT_EQ("(none)", attribute(reader, "k"));
  EXPECT_EQ("", text(reader));
  reader->up();
}

TEST(axsXmlReader, what_is_asked_outside_of_elements_is_an_error)
{
  for (int i = 0; i < 3; ++i)
  {
    Reader const reader = exact("<r/>");
    if (i == 0)
      reader->up();
    else if (i == 1)
      EXPECT_EQ("(none)", attribute(reader, "k"));
    else
      EXPECT_EQ("", text(reader));
    EXPECT_EQ("Incorrect xml nesting\n", errors_of(*reader));
  }
}

TEST(axsXmlReader, a_document_that_was_not_read_cannot_be_walked)
{
  Reader const reader = reader_of(axsXmlFactory(), "<r/>");
  EXPECT_FALSE(down(reader, "r"));
  EXPECT_TRUE(reader->has_error_occurred());
}

TEST(axsXmlReader, a_file_that_is_not_there_is_an_error)
{
  Reader const reader =
    axsXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath("there is no such file.xml"));
  ASSERT_NE(nullptr, reader);
  EXPECT_FALSE(reader->has_error_occurred());
  EXPECT_FALSE(reader->read_file());
  EXPECT_NE(std::string::npos, errors_of(*reader).find("there is no such file.xml"));
}

TEST(axsXmlReader, documents_that_are_not_well_formed_at_their_beginning_are_not_read)
{
  for (char const* const text_in : {"", " ", "x", "<", "<r", "<!DOCTYPE r [", "<?xml version='1.0'"})
  {
    Reader const reader = reader_of(axsXmlFactory(), text_in);
    EXPECT_FALSE(reader->read_file()) << text_in;
    EXPECT_TRUE(reader->has_error_occurred()) << text_in;
  }
}

TEST(axsXmlReader, says_the_encoding)
{
  EXPECT_EQ("Unknown", text_of(reader_of(axsXmlFactory(), "<r/>")->encoding()));
  EXPECT_EQ("UTF-8", text_of(exact("<r/>")->encoding()));
  EXPECT_EQ("utf-8", text_of(exact("<?xml version='1.0' encoding='utf-8'?><r/>")->encoding()));
  EXPECT_EQ("Latin1", text_of(exact("<?xml version='1.0' encoding='Latin1'?><r/>")->encoding()));
}

TEST(axsXmlReader, reads_a_document_again_from_its_beginning)
{
  Reader const reader = exact("<r><a>1</a></r>");
  for (int i = 0; i < 2; ++i)
  {
    ASSERT_TRUE(reader->read_file());
    ASSERT_TRUE(down(reader, "r"));
    ASSERT_TRUE(down(reader, "a"));
    EXPECT_EQ("1", text(reader));
  }
}

TEST(axsXmlReader, deep_documents_need_no_stack)
{
  int const depth = 200000;
  std::string document;
  for (int i = 0; i < depth; ++i)
    document += "<a>";
  for (int i = 0; i < depth; ++i)
    document += "</a>";
  Reader const reader = exact(document);
  int reached = 0;
  while (down(reader, "a"))
    if (++reached == 1000)
      break;
  EXPECT_EQ(1000, reached);
  for (; reached > 0; --reached)
    reader->up();
  EXPECT_FALSE(reader->has_error_occurred()) << errors_of(*reader);
}

TEST(axsXmlReader, a_text_that_is_not_well_formed_is_none_and_an_error_with_its_place)
{
  Reader const reader = exact("<r>one\n&none;</r>");
  ASSERT_TRUE(down(reader, "r"));
  EXPECT_EQ("", text(reader));
  ASSERT_TRUE(reader->has_error_occurred());
  std::vector<axmParseError> const& errors = dynamic_cast<axsXmlReader const&>(*reader).errors();
  ASSERT_EQ(errors.size(), 1u);
  EXPECT_EQ(errors.front().line_number(), 2);
}
