#include "Document.h"

#include <cstdint>
#include <limits>
#include <sstream>
#include <string>

namespace
{
enum class Colour
{
  red,
  blue
};

axm::enum_names<Colour> const colours = {{"red", Colour::red}, {"blue", Colour::blue}};
}

TEST(axmAttributeValue, reads_values_of_their_types)
{
  auto const root =
    document_of("<r i='-12' d='1.5' t='true' f='0' s='\xC3\xA9' u='4294967295' c='blue'/>")->getDocumentElement();
  EXPECT_EQ(-12, axm::attribute<int>(root, "i"));
  EXPECT_EQ(1.5, axm::attribute<double>(root, "d"));
  EXPECT_EQ(true, axm::attribute<bool>(root, "t"));
  EXPECT_EQ(false, axm::attribute<bool>(root, "f"));
  EXPECT_EQ("\xC3\xA9", axm::attribute<std::string>(root, "s"));
  EXPECT_EQ(4294967295u, axm::attribute<std::uint32_t>(root, "u"));
  EXPECT_EQ(Colour::blue, axm::attribute<Colour>(root, "c", colours));
}

TEST(axmAttributeValue, what_is_absent_or_no_such_value_is_none)
{
  auto const root = document_of("<r i='12x' n='99999999999' m='-1' e='' c='green' s=' 1'/>")->getDocumentElement();
  EXPECT_EQ(std::nullopt, axm::attribute<int>(root, "absent"));
  EXPECT_EQ(std::nullopt, axm::attribute<int>(root, "i"));
  EXPECT_EQ(std::nullopt, axm::attribute<int>(root, "n"));
  EXPECT_EQ(99999999999, axm::attribute<std::int64_t>(root, "n"));
  EXPECT_EQ(std::nullopt, axm::attribute<unsigned>(root, "m"));
  EXPECT_EQ(std::nullopt, axm::attribute<int>(root, "e"));
  EXPECT_EQ(std::nullopt, axm::attribute<int>(root, "s"));
  EXPECT_EQ("", axm::attribute<std::string>(root, "e"));
  EXPECT_EQ(std::nullopt, axm::attribute<bool>(root, "i"));
  EXPECT_EQ(std::nullopt, axm::attribute<Colour>(root, "c", colours));
  EXPECT_EQ(std::nullopt, axm::attribute<int>(std::shared_ptr<axmElement>(), "i"));
}

TEST(axmAttributeValue, one_sign_may_stand_before_a_number)
{
  EXPECT_EQ(5, axm::value_of<int>("+5"));
  EXPECT_EQ(-5, axm::value_of<int>("-5"));
  EXPECT_EQ(1.5, axm::value_of<double>("+1.5"));
  for (char const* const wrong : {"+", "-", "++5", "+-5", "-+5", "--5", "+ 5"})
  {
    EXPECT_EQ(std::nullopt, axm::value_of<int>(wrong)) << wrong;
    EXPECT_EQ(std::nullopt, axm::value_of<double>(wrong)) << wrong;
  }
}

TEST(axmAttributeValue, truth_has_four_spellings)
{
  EXPECT_EQ(true, axm::value_of<bool>("1"));
  EXPECT_EQ(true, axm::value_of<bool>("true"));
  EXPECT_EQ(false, axm::value_of<bool>("0"));
  EXPECT_EQ(false, axm::value_of<bool>("false"));
  EXPECT_EQ(std::nullopt, axm::value_of<bool>("TRUE"));
  EXPECT_EQ(std::nullopt, axm::value_of<bool>(""));
}

TEST(axmAttributeValue, where_there_is_no_element_there_is_no_attribute)
{
  std::shared_ptr<axmElement> const none;
  EXPECT_EQ(std::nullopt, axm::attribute<Colour>(none, "c", colours));
  EXPECT_FALSE(axm::set_attribute(none, "c", Colour::red, colours));
  auto const root = document_of("<r>text</r>")->getDocumentElement();
  EXPECT_EQ(std::nullopt, axm::attribute<Colour>(root, "c", colours));
  EXPECT_EQ(std::nullopt, axm::attribute<Colour>(*root->getFirstChild(), "c", colours));
  EXPECT_EQ(std::nullopt, axm::attribute<std::string>(*root->getFirstChild(), "c"));
}

TEST(axmAttributeValue, what_is_set_comes_back)
{
  auto const root = document_of("<r/>")->getDocumentElement();
  double const sum = 0.1 + 0.2;
  EXPECT_TRUE(axm::set_attribute(root, "d", sum));
  EXPECT_EQ(sum, axm::attribute<double>(root, "d"));
  EXPECT_TRUE(axm::set_attribute(root, "l", std::numeric_limits<std::int64_t>::min()));
  EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), axm::attribute<std::int64_t>(root, "l"));
  EXPECT_TRUE(axm::set_attribute(root, "b", true));
  EXPECT_EQ(true, axm::attribute<bool>(root, "b"));
  EXPECT_TRUE(axm::set_attribute(root, "s", "text"));
  EXPECT_TRUE(axm::set_attribute(root, "t", std::string("text")));
  EXPECT_EQ("text", axm::attribute<std::string>(root, "t"));
  EXPECT_TRUE(axm::set_attribute(root, "w", APSTRING("wide")));
  EXPECT_EQ("wide", axm::attribute<std::string>(root, "w"));
  EXPECT_TRUE(axm::set_attribute(root, "c", Colour::blue, colours));
  EXPECT_EQ(Colour::blue, axm::attribute<Colour>(root, "c", colours));
  EXPECT_FALSE(axm::set_attribute(root, "c", Colour::blue, {{"red", Colour::red}}));
  EXPECT_EQ(Colour::blue, axm::attribute<Colour>(root, "c", colours));
  EXPECT_FALSE(axm::set_attribute(std::shared_ptr<axmElement>(), "s", "text"));
  EXPECT_FALSE(axm::set_attribute(*root->getOwnerDocument(), "s", "text"));
}

TEST(axmAttributeValue, texts_and_paths_are_written_to_streams)
{
  std::ostringstream out;
  out << APSTRING("a\u00E9") << apPath("b.xml");
  EXPECT_EQ("a\xC3\xA9"
            "b.xml",
    out.str());
}
