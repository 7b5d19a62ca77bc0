#include "../Engine.h"
#include "../TextStream.h"

#include <axsOutline.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
// "path count texts @attribute=count ...;" of each path.
std::string shown(axsOutline const& outline)
{
  std::string all;
  for (axsOutlinePath const& path : outline.paths())
  {
    all += path.path + " " + std::to_string(path.count) + " " + std::to_string(path.texts);
    for (axsOutlinePath::Attribute const& attribute : path.attributes)
      all += " @" + attribute.name + "=" + std::to_string(attribute.count);
    all += ";";
  }
  return all;
}

void read(axsOutline& outline, std::string const& document)
{
  TextStream source(document);
  axmParseError error;
  EXPECT_TRUE(outline.read(source, error)) << narrow(error.message());
}
}

TEST(axsOutline, elements_texts_and_attributes_are_counted_by_their_paths)
{
  axsOutline outline;
  read(outline, "<!DOCTYPE a><!--c--><a x='1'>\n<b y='1' z='2'>t<?p?>u</b><c><b/></c><b y='3'> <d/> </b></a>");
  EXPECT_EQ(shown(outline), "a 1 0 @x=1;a/b 2 1 @y=2 @z=1;a/b/d 1 0;a/c 1 0;a/c/b 1 0;");
  EXPECT_EQ(outline.paths()[1].depth, 2u);
  EXPECT_EQ(outline.left_out(), 0u);
}

TEST(axsOutline, several_documents_make_one)
{
  axsOutline outline;
  read(outline, "<a><b/></a>");
  read(outline, "<a><b>1</b><c/></a>");
  read(outline, "<z/>");
  EXPECT_EQ(shown(outline), "a 2 0;a/b 2 1;a/c 1 0;z 1 0;");
}

TEST(axsOutline, what_another_one_has_is_added)
{
  axsOutline outline;
  read(outline, "<a x='1'><b/></a>");
  axsOutline other;
  read(other, "<a x='1' y='2'><c>1</c><b/></a>");
  outline.add(other);
  EXPECT_EQ(shown(outline), "a 2 0 @x=2 @y=1;a/b 2 0;a/c 1 1;");
}

TEST(axsOutline, paths_beyond_the_bounds_are_counted_as_left_out)
{
  axsOutline few(2);
  read(few, "<a><b><c><d/></c></b><e/><b/></a>");
  EXPECT_EQ(shown(few), "a 1 0;a/b 2 0;");
  EXPECT_EQ(few.left_out(), 3u);
  axsOutline shallow(100, 2);
  read(shallow, "<a><b>x<c>y</c></b></a>");
  EXPECT_EQ(shown(shallow), "a 1 0;a/b 1 1;");
  EXPECT_EQ(shallow.left_out(), 1u);
  axsOutline whole;
  read(whole, "<a><e><f/></e><g/></a>");
  few.add(whole);
  EXPECT_EQ(shown(few), "a 2 0;a/b 2 0;");
  EXPECT_EQ(few.left_out(), 6u);
}

TEST(axsOutline, attributes_beyond_the_bound_are_not_told_apart)
{
  axsOutline outline(2);
  read(outline, "<a x='1' y='2' z='3'/>");
  EXPECT_EQ(shown(outline), "a 1 0 @x=1 @y=1;");
}

TEST(axsOutline, what_was_read_before_a_fault_counts_and_the_next_document_begins_anew)
{
  axsOutline outline;
  std::string const document = "<a><b>\n</a>";
  TextStream source(document);
  axmParseError error;
  EXPECT_FALSE(outline.read(source, error));
  EXPECT_EQ(error.line_number(), 2);
  EXPECT_EQ(shown(outline), "a 1 0;a/b 1 0;");
  read(outline, "<a/>");
  EXPECT_EQ(shown(outline), "a 2 0;a/b 1 0;");
}

TEST(axsOutline, a_file_is_read_with_its_progress)
{
  std::string document = "<a>";
  for (int i = 0; i < 20000; ++i)
    document += "<b/>";
  TestFile const file("axsOutline.xml", document + "</a>");
  axsOutline outline;
  axmParseError error;
  std::uint64_t last = 0;
  int calls = 0;
  EXPECT_TRUE(outline.read(file.path(), error,
    [&](std::uint64_t bytes)
    {
      EXPECT_GE(bytes, last);
      last = bytes;
      ++calls;
    }));
  EXPECT_GT(calls, 1);
  EXPECT_LE(last, document.size() + 4);
  EXPECT_EQ(shown(outline), "a 1 0;a/b 20000 0;");
  EXPECT_FALSE(outline.read(apPath("no/such/file.xml"), error));
  EXPECT_EQ(narrow(error.url()), "no/such/file.xml");
}
