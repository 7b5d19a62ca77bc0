#include "../Engine.h"
#include "../TextStream.h"

#include <axsComparison.h>

#include <apString.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace
{
// The differences, a line each.
std::string compared(
  std::string const& before, std::string const& after, axsCompareOptions const& options = axsCompareOptions())
{
  axsComparison comparison(options);
  axmParseError error;
  TextStream first(before);
  TextStream second(after);
  EXPECT_TRUE(comparison.read_first(first, error) && comparison.read_second(second, error))
    << error.message().to_utf8().c_str();
  std::string lines;
  bool const is_same = comparison.run(
    [&](axsDifference const& difference)
    {
      std::string const signs[] = {"-", "+", "!"};
      lines += signs[static_cast<int>(difference.kind)] + difference.path + " " + difference.before + "|" +
               difference.after + "\n";
      return true;
    });
  EXPECT_EQ(is_same, lines.empty());
  return lines;
}

std::string numbered(int count, int without, int changed)
{
  std::string text = "<l>";
  for (int i = 0; i < count; ++i)
    if (i != without)
      text += "<r><n>" + std::to_string(i) + "</n><v>" + (i == changed ? "new" : "old") + "</v></r>";
  return text + "</l>";
}

axsCompareOptions const no_layout = {true, false, false};
axsCompareOptions const no_space = {false, true, false};
axsCompareOptions const no_comments = {false, false, true};
}

TEST(axsComparison, what_is_written_in_another_way_is_no_difference)
{
  EXPECT_EQ(compared("<a x='1' y='&#50;'><b/>&amp;c<!--d--><?p q?></a>",
              "<?xml version='1.0' encoding='UTF-8'?><a y='2' x=\"1\"><b></b><![CDATA[&]]>c<!--d--><?p  q?></a>"),
    "");
}

TEST(axsComparison, line_ends_are_no_difference)
{
  EXPECT_EQ(
    compared("<!DOCTYPE a [\r\n\r<!ENTITY e '\r'>]><a>\r\n</a>", "<!DOCTYPE a [\n\n<!ENTITY e '\n'>]><a>\n</a>"), "");
  EXPECT_EQ(
    compared("<?xml version='1.1'?><!DOCTYPE a [\xC2\x85]><a/>", "<?xml version='1.1'?><!DOCTYPE a [\n]><a/>"), "");
}

TEST(axsComparison, names_count_by_their_namespaces)
{
  EXPECT_EQ(
    compared("<a xmlns='u' xmlns:p='v' p:x='1'><p:b/></a>", "<q:a xmlns:q='u' xmlns:r='v' r:x='1'><r:b/></q:a>"), "");
  EXPECT_EQ(compared("<a xmlns='u'/>", "<a xmlns='v'/>"), "-/a <a xmlns=\"u\"/>|\n+/a |<a xmlns=\"v\"/>\n");
}

TEST(axsComparison, attributes_are_removed_added_and_changed)
{
  EXPECT_EQ(compared("<a><b x='1' y='2'/></a>", "<a><b y='3' z='4'/></a>"), "-/a/b/@x 1|\n!/a/b/@y 2|3\n+/a/b/@z |4\n");
}

TEST(axsComparison, texts_comments_and_instructions_are_changed)
{
  EXPECT_EQ(compared("<!DOCTYPE a><a>1<b/>2<!--c--><?p q?></a>", "<!DOCTYPE a [ ]><a>1<b/>3<!--d--><?p r?></a>"),
    "!DOCTYPE <!DOCTYPE a>|<!DOCTYPE a [ ]>\n!/a/text()[2] 2|3\n!/a/comment() c|d\n!/a/processing-instruction('p') "
    "q|r\n");
}

TEST(axsComparison, equal_children_are_matched_first)
{
  EXPECT_EQ(
    compared("<a><b>1</b><b>2</b><b>3</b></a>", "<a><b>0</b><b>1</b><b>2</b><b>3</b></a>"), "+/a/b[1] |<b>0</b>\n");
  EXPECT_EQ(compared("<a><b>1</b><b>2</b><b>3</b></a>", "<a><b>1</b><b>3</b></a>"), "-/a/b[2] <b>2</b>|\n");
  EXPECT_EQ(compared("<a><b>1</b><c/><b>2</b></a>", "<a><b>1</b><b>2</b></a>"), "-/a/c <c/>|\n");
}

TEST(axsComparison, children_of_one_id_are_matched_before_those_of_one_name)
{
  EXPECT_EQ(compared("<a><b id='1'>x</b><b id='2'>y</b></a>", "<a><b id='2'>z</b></a>"),
    "-/a/b[1] <b id=\"1\">x</b>|\n!/a/b[2]/text() y|z\n");
  EXPECT_EQ(compared("<a><b id='1'>x</b></a>", "<a><b id='2'>x</b></a>"), "!/a/b/@id 1|2\n");
}

TEST(axsComparison, what_has_moved_is_removed_and_added)
{
  EXPECT_EQ(compared("<a><b/><c/><d/></a>", "<a><c/><d/><b/></a>"), "-/a/b <b/>|\n+/a/b |<b/>\n");
}

TEST(axsComparison, white_space_and_comments_can_be_left_out)
{
  EXPECT_EQ(compared("<a>\n <b>x\n y </b>\n</a>", "<a><b> x y</b></a>", no_space), "");
  EXPECT_NE(compared("<a>\n <b/>\n</a>", "<a><b/></a>"), "");
  EXPECT_EQ(compared("<a>\n <b>x </b>\n</a>", "<a><b>x </b></a>", no_layout), "");
  EXPECT_EQ(compared("<a><b>x </b> y</a>", "<a><b>x</b> y</a>", no_layout), "!/a/b/text() x |x\n");
  EXPECT_EQ(compared("<a>x<b/> <b/></a>", "<a>x<b/><b/></a>", no_layout), "-/a/text()[2]  |\n");
  // Between words it counts whether there is some.
  EXPECT_EQ(compared("<a>x<b/> y</a>", "<a>x<b/>y z</a>", no_space), "!/a/text()[2] y|y z\n");
  EXPECT_NE(compared("<a xml:space='preserve'> <b/></a>", "<a xml:space='preserve'><b/></a>", no_space), "");
  EXPECT_EQ(compared("<a>x<!--c-->y</a>", "<a>xy<!--d--></a>", no_comments), "");
}

TEST(axsComparison, an_element_is_shown_up_to_a_bound)
{
  std::string const difference = compared("<a/>", "<a><b>" + std::string(1000, 'x') + "</b></a>");
  EXPECT_EQ(difference.find("+/a/b |<b>xxx"), 0u);
  EXPECT_LT(difference.size(), 300u);
  EXPECT_EQ(difference.substr(difference.size() - 4), "...\n");
}

TEST(axsComparison, one_change_in_a_long_list_is_one_difference)
{
  EXPECT_EQ(compared(numbered(100000, -1, -1), numbered(100000, -1, 70000)), "!/l/r[70001]/v/text() old|new\n");
  EXPECT_EQ(compared(numbered(20000, -1, -1), numbered(20000, 500, 19000)),
    "-/l/r[501] <r><n>500</n><v>old</v></r>|\n!/l/r[19001]/v/text() old|new\n");
}

TEST(axsComparison, long_lists_that_differ_everywhere_take_no_quadratic_time)
{
  std::string one = "<l>";
  std::string other = "<l>";
  for (int i = 0; i < 100000; ++i)
  {
    one += "<r>" + std::to_string(i % 7) + "</r>";
    other += "<r>" + std::to_string(i % 11) + "x</r><s/>";
  }
  axsComparison comparison{axsCompareOptions()};
  axmParseError error;
  std::string const first_text = one + "</l>";
  std::string const second_text = other + "</l>";
  TextStream before(first_text);
  TextStream after(second_text);
  ASSERT_TRUE(comparison.read_first(before, error) && comparison.read_second(after, error));
  int differences = 0;
  EXPECT_FALSE(comparison.run([&](axsDifference const&) { return ++differences > 0; }));
  EXPECT_GE(differences, 100000);
}

TEST(axsComparison, many_names_and_many_parents_take_no_quadratic_time)
{
  std::string text = "<l>";
  for (int i = 0; i < 50000; ++i)
    text += "<n" + std::to_string(i) + "><a/></n" + std::to_string(i) + ">";
  EXPECT_EQ(compared(text + "</l>", text + "<b/></l>"), "+/l/b |<b/>\n");
}

TEST(axsComparison, depth_takes_no_stack)
{
  auto const deep = [](char const* text)
  {
    std::string all;
    for (int i = 0; i < 100000; ++i)
      all += "<a>";
    all += text;
    for (int i = 0; i < 100000; ++i)
      all += "</a>";
    return all;
  };
  std::string const difference = compared(deep("1"), deep("2"));
  EXPECT_EQ(difference.find("!.../a/a/"), 0u) << difference;
  EXPECT_EQ(difference.substr(difference.size() - 12), "/text() 1|2\n");
}

TEST(axsComparison, comparing_ends_where_no_more_is_wanted)
{
  axsComparison comparison{axsCompareOptions()};
  axmParseError error;
  std::string const one = "<a x='1'><b/><c/></a>";
  std::string const other = "<a/>";
  TextStream first(one);
  TextStream second(other);
  ASSERT_TRUE(comparison.read_first(first, error) && comparison.read_second(second, error));
  int differences = 0;
  EXPECT_FALSE(comparison.run([&](axsDifference const&) { return ++differences < 2; }));
  EXPECT_EQ(differences, 2);
}

TEST(axsComparison, a_document_that_is_wrong_is_an_error_with_its_place)
{
  axsComparison comparison{axsCompareOptions()};
  axmParseError error;
  TextStream bad("<a>\n</b>");
  EXPECT_FALSE(comparison.read_first(bad, error));
  EXPECT_EQ(error.line_number(), 2);
}

TEST(axsComparison, what_is_added_is_shown_as_it_would_be_written)
{
  EXPECT_EQ(
    compared("<a/>", "<a><b><!--c--><?d e?>f</b><!--g--></a>"), "+/a/b |<b><!--c--><?d e?>f</b>\n+/a/comment() |g\n");
  // A character is shown whole or not at all.
  std::string const shown = compared("<a/>", "<a><b>" + std::string(196, 'x') + "\xC3\xA4</b></a>");
  EXPECT_EQ(shown, "+/a/b |<b>" + std::string(196, 'x') + "...\n");
  std::string const attributes = compared("<a/>", "<a><b c='" + std::string(300, 'x') + "' d='1'/></a>");
  EXPECT_EQ(attributes, "+/a/b |<b c=\"" + std::string(194, 'x') + "...\n");
}

TEST(axsComparison, a_deep_path_is_shown_by_its_end)
{
  std::string begin;
  std::string end;
  for (int i = 0; i < 60; ++i)
  {
    begin += "<a>";
    end += "</a>";
  }
  std::string path = "...";
  for (int i = 0; i < 48; ++i)
    path += "/a";
  EXPECT_EQ(compared(begin + "<b x='1'/>" + end, begin + "<b x='2'/>" + end), "!" + path + "/a/b/@x 1|2\n");
}

TEST(axsComparison, comparing_ends_in_the_middle_of_attributes)
{
  axsComparison comparison{axsCompareOptions()};
  axmParseError error;
  TextStream first("<a x='1' y='2'/>");
  TextStream second("<a x='2' y='3'/>");
  ASSERT_TRUE(comparison.read_first(first, error) && comparison.read_second(second, error));
  int differences = 0;
  EXPECT_FALSE(comparison.run([&](axsDifference const&) { return ++differences < 1; }));
  EXPECT_EQ(differences, 1);
}

TEST(axsComparison, declarations_of_prefixes_are_no_attributes)
{
  EXPECT_EQ(compared("<a xmlns:p='u' x='1'/>", "<a xmlns:q='v' x='2'/>"), "!/a/@x 1|2\n");
}

TEST(axsComparison, preserved_white_space_ends_where_it_is_ended)
{
  std::string const before = "<a xml:space='preserve'><b xml:space='default'> <c/></b></a>";
  EXPECT_EQ(compared(before, "<a xml:space='preserve'><b xml:space='default'><c/></b></a>", no_layout), "");
}

TEST(axsComparison, a_joined_document_type_and_comment_differ_in_words_only)
{
  EXPECT_EQ(compared("<!DOCTYPE  a><a><!-- b\n c --></a>", "<!DOCTYPE a><a><!--b c--></a>", no_space), "");
  EXPECT_EQ(compared("<a><!-- b --></a>", "<a><!--bc--></a>", no_space), "!/a/comment() b|bc\n");
}

TEST(axsComparison, large_texts_are_compared_to_their_ends)
{
  std::string const text(100000, 'x');
  EXPECT_EQ(compared("<a>" + text + "y</a>", "<a>" + text + "y</a>"), "");
  EXPECT_EQ(compared("<a>" + text + "y</a>", "<a>" + text + "z</a>"), "!/a/text() " + text + "y|" + text + "z\n");
}

TEST(axsComparison, files_are_compared_and_one_that_is_not_there_is_told)
{
  TestFile const one("axsComparison_1.xml", "<a>1</a>");
  TestFile const other("axsComparison_2.xml", "<a>2</a>");
  axsComparison comparison{axsCompareOptions()};
  axmParseError error;
  ASSERT_TRUE(comparison.read_first(one.path(), error) && comparison.read_second(other.path(), error));
  std::string path;
  EXPECT_FALSE(comparison.run(
    [&](axsDifference const& difference)
    {
      path = difference.path;
      return true;
    }));
  EXPECT_EQ(path, "/a/text()");
  axsComparison missing{axsCompareOptions()};
  EXPECT_FALSE(missing.read_first(apPath("no/such/file.xml"), error));
  EXPECT_EQ(narrow(error.url()), "no/such/file.xml");
  EXPECT_FALSE(missing.read_second(apPath("no/such/file.xml"), error));
}

TEST(axsComparison, of_a_long_list_of_which_halves_are_exchanged_one_half_has_moved)
{
  auto const items = [](int begin, int end)
  {
    std::string made;
    for (int i = begin; i < end; ++i)
      made += "<r>" + std::to_string(i) + "</r>";
    return made;
  };
  std::string const lines = compared(
    "<l>" + items(0, 300) + "<gone/>" + items(300, 600) + "</l>", "<l>" + items(300, 600) + items(0, 300) + "</l>");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 601);
  EXPECT_NE(lines.find("-/l/gone <gone/>|\n"), std::string::npos);
  EXPECT_EQ(lines.find('!'), std::string::npos);
  EXPECT_NE(lines.find(" <r>0</r>|\n"), std::string::npos);
  EXPECT_NE(lines.find("|<r>0</r>\n"), std::string::npos);
  EXPECT_EQ(lines.find("<r>300</r>"), std::string::npos);
}

TEST(axsComparison, elements_in_what_is_added_are_closed_where_they_end)
{
  EXPECT_EQ(compared("<a/>", "<a><b><c>x</c><d><e/></d>y</b></a>"), "+/a/b |<b><c>x</c><d><e/></d>y</b>\n");
}

TEST(axsComparison, attributes_are_added_before_others_too)
{
  EXPECT_EQ(compared("<a y='1'><b z='1'/></a>", "<a y='1'><b y='2' z='1'/></a>"), "+/a/b/@y |2\n");
}
