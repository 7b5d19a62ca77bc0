#include "axmElementIndex.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
using Id = axmElementIndex::Id;

// More characters than are looked at together.
std::string const far(2 * axmStructuralScan::bytes, 'x');

// An index of a document that begins with its root.
class Index
{
public:
  explicit Index(std::string given) : text(std::move(given))
  {
    index.restart(text.c_str(), static_cast<axmElementIndex::Place>(text.size()), 0);
  }

  axmElementIndex* operator->() { return &index; }
  axmElementIndex::Element const& operator[](Id id) const { return index[id]; }

  std::string from(axmElementIndex::Place place) const { return text.substr(place); }

  std::string const text;
  axmElementIndex index;
};
}

TEST(axmElementIndex, begins_with_the_root_and_goes_no_further)
{
  Index index("<r a='1'>" + far + "<a/></r>\n");
  EXPECT_EQ(index->count(), 1u);
  EXPECT_EQ(index[0].start(), 0u);
  EXPECT_FALSE(index[0].is_closed());
}

TEST(axmElementIndex, goes_on_only_as_far_as_asked)
{
  Index index("<r><a>" + far + "</a>" + far + "<b/>" + far + "<c/></r>\n");
  EXPECT_TRUE(index->reach_child(0, 1));
  EXPECT_EQ(index->count(), 2u);
  EXPECT_FALSE(index[1].is_closed());
  EXPECT_TRUE(index->reach_end(1));
  EXPECT_EQ(index->count(), 2u);
  EXPECT_EQ(index.from(index[1].end()).substr(0, 1), "x");
  EXPECT_EQ(index[1].next(), 2u);
  EXPECT_TRUE(index->reach_child(0, 2));
  EXPECT_EQ(index->count(), 3u);
  EXPECT_TRUE(index[2].is_self_closing());
  EXPECT_FALSE(index[1].is_self_closing());
}

TEST(axmElementIndex, knows_what_stands_in_front_of_a_halt)
{
  Index index("<r><a></a><b></c></r>\n");
  EXPECT_TRUE(index->reach_end(1));
  EXPECT_TRUE(index->reach_child(0, 2));
  EXPECT_FALSE(index->reach_child(0, 3));
  EXPECT_FALSE(index->reach_end(2));
}

TEST(axmElementIndex, knows_where_children_end)
{
  Index index("<r><a><b/><c></c></a></r>\n");
  EXPECT_TRUE(index->reach_end(0));
  EXPECT_EQ(index->count(), 4u);
  EXPECT_EQ(index[1].next(), 4u);
  EXPECT_EQ(index[2].next(), 3u);
  EXPECT_EQ(index[3].next(), 4u);
  EXPECT_EQ(index[0].next(), 4u);
  EXPECT_EQ(index.from(index[0].end()), "\n");
  EXPECT_TRUE(index->reach_child(0, 4)); // the root is closed
}

TEST(axmElementIndex, halts_where_a_closing_tag_does_not_match)
{
  Index index("<r><a></a><b></c></r>\n");
  EXPECT_TRUE(index->reach_child(0, 1));
  EXPECT_TRUE(index->reach_end(1));
  EXPECT_TRUE(index->reach_child(0, 2));
  EXPECT_FALSE(index->reach_end(2));
  EXPECT_FALSE(index->reach_end(0));
  EXPECT_EQ(index->count(), 3u);
}

TEST(axmElementIndex, compares_whole_names_whatever_follows_them)
{
  for (char const* const good :
    {"<a></a >", "<a b='c'></a>", "<a ></a>", "<name_of_more_than_16_bytes></name_of_more_than_16_bytes>",
      "<abcdefgh></abcdefgh>", "<abcdefghi k='v'></abcdefghi >", "<a></a b>", "<></>", "< ></>"})
  {
    Index index(std::string("<r>") + good + "</r>\n");
    EXPECT_TRUE(index->reach_end(0)) << good;
  }
  for (char const* const bad : {"<a></ab>", "<ab></a>", "<a\t></a>", "<a></a\t>", "<abcdefgh></abcdefgx>",
         "<name_of_more_than_16_bytes></name_of_more_than_16_byteX>", "<abcdefghi></abcdefghx>", "<a></ a>", "<a></>"})
  {
    Index index(std::string("<r>") + bad + "</r>\n");
    EXPECT_FALSE(index->reach_end(0)) << bad;
  }
}

TEST(axmElementIndex, halts_where_the_document_ends)
{
  for (char const* const text : {"<r><a></a></r>", "<r><a></a></r", "<r><a></a>", "<r><!--c", "<r><![CDATA[x", "<r><"})
  {
    Index index(text);
    EXPECT_FALSE(index->reach_end(0)) << text;
  }
}

TEST(axmElementIndex, passes_comments_and_sections)
{
  for (char const* const text : {"<!--<a>-->", "<!---->", "<!-- - -->", "<!---a-->", "<![CDATA[<a>]]>", "<![CDATA[]]>",
         "<![CDATA[a]b]c]]>", "a > b"})
  {
    Index index(std::string("<r>") + text + "<b/></r>\n");
    EXPECT_TRUE(index->reach_end(0)) << text;
    EXPECT_EQ(index->count(), 2u) << text;
  }
  for (char const* const text : {"<!--a--b-->", "<!--a--->", "<![CDATA[a]]b]]>", "<![CDATA[a]]]>"})
  {
    Index index(std::string("<r>") + text + "</r>\n");
    EXPECT_FALSE(index->reach_end(0)) << text;
  }
}

TEST(axmElementIndex, marks_the_gaps_in_which_a_section_has_markup)
{
  Index index("<r><![CDATA[<]]><a/><![CDATA[x]]><b></b> <![CDATA[<]]><c/></r>\n");
  EXPECT_TRUE(index->reach_end(0));
  EXPECT_TRUE(index->has_markup_in_section_at_start(0));
  EXPECT_FALSE(index->has_markup_in_section_after(1));
  EXPECT_TRUE(index->has_markup_in_section_after(2));
  EXPECT_FALSE(index->has_markup_in_section_after(3));
  EXPECT_FALSE(index->has_markup_in_section_at_start(2));
  EXPECT_EQ(index.from(index[2].end()).substr(0, 3), " <!");
  EXPECT_EQ(index[2].next(), 3u);
}

TEST(axmElementIndex, finds_elements_by_their_place)
{
  Index index("<r><a><b/></a><c/></r>\n");
  EXPECT_EQ(index->find(6), 2u);
  EXPECT_EQ(index->find(0), 0u);
  EXPECT_EQ(index->find(3), 1u);
  EXPECT_EQ(index->find(4), axmElementIndex::none);
  EXPECT_EQ(index->find(14), 3u);
  EXPECT_EQ(index->find(18), axmElementIndex::none);
  EXPECT_EQ(index->find(22), axmElementIndex::none); // after the root
  EXPECT_EQ(index->first_from(4), 2u);
  EXPECT_EQ(index->first_from(15), index->count());
}

TEST(axmElementIndex, goes_as_far_as_the_place_asked_for)
{
  Index index("<r>" + far + "<a/>" + far + "<b/></r>\n");
  EXPECT_EQ(index->find(static_cast<axmElementIndex::Place>(3 + far.size())), 1u);
  EXPECT_EQ(index->count(), 2u);
}

TEST(axmElementIndex, forgets_everything_at_a_restart)
{
  Index index("<r><![CDATA[<]]></r>x<s></t>\n");
  EXPECT_TRUE(index->reach_end(0));
  EXPECT_TRUE(index->has_markup_in_sections());
  index->restart(index.text.c_str(), static_cast<axmElementIndex::Place>(index.text.size()), 21);
  EXPECT_EQ(index->count(), 1u);
  EXPECT_EQ(index[0].start(), 21u);
  EXPECT_FALSE(index->has_markup_in_sections());
  EXPECT_FALSE(index->reach_end(0));
}

TEST(axmElementIndex, holds_more_elements_than_a_page)
{
  std::string text = "<r>";
  for (int i = 0; i < 10000; ++i)
    text += "<a><b/></a>";
  Index index(text + "</r>\n");
  EXPECT_TRUE(index->reach_end(0));
  EXPECT_EQ(index->count(), 20001u);
  for (Id id = 1; id < 20001; id += 2)
  {
    ASSERT_EQ(index[id].start(), 3 + 11 * (id / 2));
    ASSERT_EQ(index[id].end(), index[id].start() + 11);
    ASSERT_EQ(index[id].next(), id + 2);
  }
}
