#include <apITarnFile.h>
#include <axm.h>
#include <axsXmlFactory.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

namespace
{
class MemoryFile final : public apITarnFile
{
public:
  explicit MemoryFile(std::string text) : bytes(std::move(text)) {}

  bool seek(int offset, int origin) override
  {
    at = offset + (origin == 0 ? 0 : origin == 1 ? at : static_cast<int>(bytes.size()));
    return true;
  }
  int tell() override { return at; }
  bool rewind() override { return seek(0, 0); }
  int read(void* buffer, int, int count) override
  {
    int const got = std::min(count, static_cast<int>(bytes.size()) - at);
    std::memcpy(buffer, bytes.data() + at, static_cast<std::size_t>(got));
    at += got;
    return got;
  }

private:
  std::string const bytes;
  int at = 0;
};

/// What holds for the readers of each factory.
template <class Factory>
class axmWalk : public testing::Test
{
protected:
  /// Enters the root element `l`.
  axm::entered_child root_of(std::string const& text)
  {
    made = Factory().create_xml_reader_file(
      utPtrReleaseToCaller, apITarnFilecoPrf(new MemoryFile("<?xml version='1.0'?>\n" + text + "\n<!-- end -->\n")));
    return axm::read_root(*made, "l");
  }

  std::unique_ptr<axmAbstractXmlReader> made;
};

using Factories = testing::Types<axmSimpleXmlFactory, axsXmlFactory>;
TYPED_TEST_SUITE(axmWalk, Factories, );

char const library[] = "<l n='L'><b i='1'><t>One</t><a>x</a><a>y</a></b><c i='9'><t>no</t></c><b i='2'><a>z</a>"
                       "<t>Two</t></b><b i='3'><t>Three</t></b></l>";
}

TYPED_TEST(axmWalk, loops_may_lie_in_each_other)
{
  auto const l = this->root_of(library);
  std::string seen;
  for (auto& b : l.children("b"))
  {
    seen += b.attribute("i", "?");
    for (auto& a : b.children("a"))
      seen += a.text();
    seen += ' ';
  }
  EXPECT_EQ("1xy 2z 3 ", seen);
  EXPECT_TRUE(l.good());
}

TYPED_TEST(axmWalk, one_element_has_several_loops)
{
  auto const l = this->root_of(library);
  std::string seen;
  for (auto& b : l.children("b"))
  {
    for (auto& t : b.children("t"))
      seen += t.text();
    for (auto& a : b.children("a"))
      seen += a.text();
  }
  for (auto& c : l.children("c"))
    seen += c.attribute("i", "?");
  EXPECT_EQ("OnexyTwozThree9", seen);
  EXPECT_TRUE(l.good());
}

TYPED_TEST(axmWalk, a_loop_that_is_broken_off_has_left_its_element)
{
  auto const l = this->root_of(library);
  ASSERT_TRUE(l);
  for (auto& b : l.children("b"))
  {
    for (auto& a : b.children("a"))
      if (a.text() == "x")
        break;
    EXPECT_EQ("1", b.attribute("i", "?"));
    break;
  }
  EXPECT_EQ("L", l.attribute("n", "?"));
  std::string rest;
  for (auto& b : l.children("b"))
    rest += b.attribute("i", "?");
  EXPECT_EQ("23", rest);
}

namespace
{
std::string author_in(axm::walk const& library_element, std::string const& number)
{
  for (auto& b : library_element.children("b"))
    if (b.attribute("i") == number)
      for (auto& a : b.children("a"))
        return a.text();
  return "nobody";
}
}

TYPED_TEST(axmWalk, a_return_out_of_loops_leaves_all_of_their_elements)
{
  auto const l = this->root_of(library);
  EXPECT_EQ("x", author_in(l, "1"));
  EXPECT_EQ("L", l.attribute("n", "?"));
  EXPECT_EQ("nobody", author_in(l, "3"));
  EXPECT_EQ("z", author_in(l, "2"));
  EXPECT_EQ("L", l.attribute("n", "?"));
}

TYPED_TEST(axmWalk, an_exception_out_of_loops_leaves_all_of_their_elements)
{
  auto const l = this->root_of(library);
  auto const throw_within = [&]
  {
    for (auto& b : l.children("b"))
      for (auto& a : b.children("a"))
        throw std::runtime_error(a.text());
  };
  EXPECT_THROW(throw_within(), std::runtime_error);
  EXPECT_EQ("L", l.attribute("n", "?"));
  EXPECT_TRUE(l.good());
}

TYPED_TEST(axmWalk, a_loop_over_no_children_stays_in_the_element)
{
  auto const l = this->root_of(library);
  for (auto& none : l.children("none"))
    FAIL() << none.text();
  EXPECT_EQ("L", l.attribute("n", "?"));
  EXPECT_FALSE(l.child("none"));
  EXPECT_EQ("L", l.attribute("n", "?"));
}

TYPED_TEST(axmWalk, a_child_is_left_at_the_end_of_its_scope_or_before)
{
  auto const l = this->root_of(library);
  {
    auto const b = l.child("b");
    ASSERT_TRUE(b);
    auto const t = b.child("t");
    ASSERT_TRUE(t);
    EXPECT_EQ("One", t.text());
  }
  EXPECT_EQ("L", l.attribute("n", "?"));
  auto second = l.child("b");
  EXPECT_EQ("2", second.attribute("i", "?"));
  second.leave();
  EXPECT_FALSE(second);
  second.leave();
  EXPECT_EQ("L", l.attribute("n", "?"));
}

TYPED_TEST(axmWalk, texts_of_children_come_in_any_order)
{
  auto const l = this->root_of("<l><b><x>1</x><y>2</y></b></l>");
  auto const b = l.child("b");
  EXPECT_EQ("2", b.child_text("y"));
  EXPECT_EQ("1", b.child_text("x"));
  EXPECT_EQ("2", b.child_text("y"));
  EXPECT_EQ(std::nullopt, b.child_text("z"));
  EXPECT_EQ("1", b.child_text("x"));
}

TYPED_TEST(axmWalk, an_attribute_that_is_empty_is_another_than_none)
{
  auto const l = this->root_of("<l a=''>x</l>");
  EXPECT_EQ("", l.attribute("a"));
  EXPECT_EQ(std::nullopt, l.attribute("b"));
  EXPECT_EQ("d", l.attribute("b", "d"));
  EXPECT_EQ("", l.attribute("a", "d"));
}

TYPED_TEST(axmWalk, an_error_ends_every_loop)
{
  auto const l = this->root_of("<l><b><a>1</a><a>2</a></c><b><a>3</a></b></l>");
  int loops = 0;
  for (auto& b : l.children("b"))
    for (auto& a : b.children("a"))
      loops += a.text().empty() ? 0 : 1;
  EXPECT_EQ(2, loops);
  EXPECT_FALSE(l.good());
}

TYPED_TEST(axmWalk, a_root_of_another_name_is_none)
{
  EXPECT_FALSE(this->root_of("<other/>"));
  EXPECT_TRUE(this->root_of("<l>x</l>"));
}

TYPED_TEST(axmWalk, a_document_that_cannot_be_read_has_no_root)
{
  auto const reader =
    TypeParam().create_xml_reader_file(utPtrReleaseToCaller, apITarnFilecoPrf(new MemoryFile("<?xml")));
  auto const root = axm::read_root(*reader, "l");
  EXPECT_FALSE(root);
  EXPECT_FALSE(root.good());
}

TYPED_TEST(axmWalk, a_reader_that_stands_in_an_element_already_can_be_looped_over)
{
  auto const l = this->root_of(library);
  axm::walk reader(*this->made);
  int count = 0;
  for (auto& book : reader.children("b"))
    count += book.attribute("i") ? 1 : 0;
  EXPECT_EQ(3, count);
}
