// Typed access to attributes, which every node inherits.

#include <axmNode.h>

#include "../TestLocale.h"
#include "TestTree.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{
apString const name(L"name");

struct axmNodeTest : testing::Test
{
  // The attribute as text, "absent" if there is none.
  std::wstring stored() const
  {
    return element.hasAttribute(name) ? std::wstring(element.getAttribute(name).view()) : L"absent";
  }

  void store(apString const& text) { element.setAttribute(name, text); }

  // What the getter for doubles makes of `text`; not a number when it fails, which must leave its output alone.
  double read_double(apString const& text)
  {
    store(text);
    double value = -77.5;
    if (node.get_attribute(name, value))
      return value;
    EXPECT_EQ(value, -77.5) << text.to_utf8();
    return std::numeric_limits<double>::quiet_NaN();
  }

  double read_double_locale(apString const& text)
  {
    store(text);
    double value = -77.5;
    if (node.get_attribute_locale(name, value))
      return value;
    EXPECT_EQ(value, -77.5) << text.to_utf8();
    return std::numeric_limits<double>::quiet_NaN();
  }

  double written_and_read(double value)
  {
    EXPECT_TRUE(node.set_attribute(name, value));
    double read = -77.5;
    EXPECT_TRUE(node.get_attribute(name, read));
    return read;
  }

  TestElement element;
  axmNode& node = element;
};

// An element that keeps its attributes elsewhere: it overrides the two operations for texts and nothing else.
class Elsewhere : public TestElement
{
public:
  bool get_attribute(apString const& asked, apString& value) const override
  {
    names.push_back(asked);
    if (accepts)
      value = text;
    return accepts;
  }

  bool set_attribute(apString const& asked, apString const& value) override
  {
    names.push_back(asked);
    text = value;
    return accepts;
  }

  apString text;
  bool accepts = true;
  mutable std::vector<apString> names;
};
}

TEST_F(axmNodeTest, bool_is_written_as_true_or_false)
{
  EXPECT_TRUE(node.set_attribute(name, true));
  EXPECT_EQ(stored(), L"true");
  EXPECT_TRUE(node.set_attribute(name, false));
  EXPECT_EQ(stored(), L"false");
}

TEST_F(axmNodeTest, bool_is_read_from_exactly_true_1_false_0)
{
  for (auto const& [text, expected] :
    {std::pair(L"true", true), std::pair(L"1", true), std::pair(L"false", false), std::pair(L"0", false)})
  {
    store(text);
    bool value = !expected;
    EXPECT_TRUE(node.get_attribute(name, value)) << text;
    EXPECT_EQ(value, expected) << text;
  }
}

TEST_F(axmNodeTest, bool_of_anything_else_fails_and_leaves_the_output)
{
  for (apString const& text : {apString(), apString(L"TRUE"), apString(L"True"), apString(L"FALSE"), apString(L"False"),
         apString(L"yes"), apString(L"no"), apString(L" true"), apString(L"true "), apString(L"2"), apString(L"01"),
         apString(L"00"), apString(L"tru"), apString(L"truee"), apString(L"true\0", 5)})
    for (bool const before : {true, false})
    {
      store(text);
      bool value = before;
      EXPECT_FALSE(node.get_attribute(name, value)) << text.to_utf8();
      EXPECT_EQ(value, before) << text.to_utf8();
    }
}

TEST_F(axmNodeTest, text_is_written_and_read_as_it_is)
{
  for (apString const& text : {apString(L"text"), apString(L" \u0444 &<> "), apString(L"a\0b", 3)})
  {
    EXPECT_TRUE(node.set_attribute(name, text));
    apString value;
    EXPECT_TRUE(node.get_attribute(name, value));
    EXPECT_EQ(value, text);
  }
}

TEST_F(axmNodeTest, literals_are_texts)
{
  EXPECT_TRUE(node.set_attribute(name, L"wide"));
  EXPECT_EQ(stored(), L"wide");
  EXPECT_TRUE(node.set_attribute(name, "narrow \xC3\xA9"));
  EXPECT_EQ(stored(), L"narrow \u00E9");
  EXPECT_TRUE(node.set_attribute(name, static_cast<char const*>(nullptr)));
  EXPECT_EQ(stored(), L"");
}

TEST_F(axmNodeTest, empty_text_is_a_value)
{
  EXPECT_TRUE(node.set_attribute(name, apString()));
  EXPECT_EQ(stored(), L"");
  apString value(L"before");
  EXPECT_TRUE(node.get_attribute(name, value));
  EXPECT_TRUE(value.empty());
}

TEST_F(axmNodeTest, name_and_output_may_be_one_text)
{
  store(L"value");
  apString both(name);
  EXPECT_TRUE(node.get_attribute(both, both));
  EXPECT_EQ(both.view(), L"value");
}

TEST_F(axmNodeTest, absent_attribute_fails_and_leaves_the_output)
{
  bool truth = true;
  apString text(L"before");
  double number = 7.5;
  double local = 8.5;
  int whole = 9;
  element.setAttribute(L"Name", L"1");
  EXPECT_FALSE(node.get_attribute(name, truth));
  EXPECT_FALSE(node.get_attribute(name, text));
  EXPECT_FALSE(node.get_attribute(name, number));
  EXPECT_FALSE(node.get_attribute(name, whole));
  EXPECT_FALSE(node.get_attribute_locale(name, local));
  EXPECT_TRUE(truth);
  EXPECT_EQ(text.view(), L"before");
  EXPECT_EQ(number, 7.5);
  EXPECT_EQ(local, 8.5);
  EXPECT_EQ(whole, 9);
}

TEST_F(axmNodeTest, node_without_attributes_fails_to_read_and_leaves_the_output)
{
  TestText text_node;
  axmNode const& without = text_node;
  bool truth = true;
  apString text(L"before");
  double number = 7.5;
  int whole = 9;
  EXPECT_FALSE(without.get_attribute(name, truth));
  EXPECT_FALSE(without.get_attribute(name, text));
  EXPECT_FALSE(without.get_attribute(name, number));
  EXPECT_FALSE(without.get_attribute(name, whole));
  EXPECT_FALSE(without.get_attribute_locale(name, number));
  EXPECT_TRUE(truth);
  EXPECT_EQ(text.view(), L"before");
  EXPECT_EQ(number, 7.5);
  EXPECT_EQ(whole, 9);
}

TEST_F(axmNodeTest, setters_fail_on_every_node_that_is_not_an_element)
{
  TestText text;
  TestComment comment;
  TestDocument document;
  TestInstruction instruction;
  TestAttribute attribute(name, L"value");
  for (axmNode* const other : {static_cast<axmNode*>(&text), static_cast<axmNode*>(&comment),
         static_cast<axmNode*>(&document), static_cast<axmNode*>(&instruction), static_cast<axmNode*>(&attribute)})
  {
    EXPECT_FALSE(other->set_attribute(name, true));
    EXPECT_FALSE(other->set_attribute(name, apString(L"text")));
    EXPECT_FALSE(other->set_attribute(name, 1.5));
    EXPECT_FALSE(other->set_attribute(name, 1));
    EXPECT_FALSE(other->set_attribute(name, 1u));
    EXPECT_FALSE(other->set_attribute_locale(name, 1.5));
  }
  EXPECT_EQ(attribute.getNodeValue().view(), L"value");
}

TEST_F(axmNodeTest, int_is_written_in_decimal)
{
  for (auto const& [value, text] : {std::pair(0, L"0"), std::pair(123, L"123"), std::pair(-5, L"-5"),
         std::pair(INT_MAX, L"2147483647"), std::pair(INT_MIN, L"-2147483648")})
  {
    EXPECT_TRUE(node.set_attribute(name, value));
    EXPECT_EQ(stored(), text);
    int read = 77;
    EXPECT_TRUE(node.get_attribute(name, read));
    EXPECT_EQ(read, value);
  }
}

TEST_F(axmNodeTest, unsigned_int_is_written_in_decimal)
{
  EXPECT_TRUE(node.set_attribute(name, 7u));
  EXPECT_EQ(stored(), L"7");
  EXPECT_TRUE(node.set_attribute(name, UINT_MAX));
  EXPECT_EQ(stored(), L"4294967295");
  int read = 77;
  EXPECT_FALSE(node.get_attribute(name, read));
  EXPECT_EQ(read, 77);
}

TEST_F(axmNodeTest, int_is_read_from_the_whole_text)
{
  for (auto const& [text, expected] :
    {std::pair(L"123", 123), std::pair(L"-7", -7), std::pair(L"+7", 7), std::pair(L" 12", 12), std::pair(L"007", 7)})
  {
    store(text);
    int value = 77;
    EXPECT_TRUE(node.get_attribute(name, value)) << text;
    EXPECT_EQ(value, expected) << text;
  }
}

TEST_F(axmNodeTest, int_of_text_that_is_no_whole_number_fails_and_leaves_the_output)
{
  for (apString const& text : {apString(), apString(L" "), apString(L"12a"), apString(L"a12"), apString(L"12 "),
         apString(L"1.5"), apString(L"1,5"), apString(L"1e3"), apString(L"0x10"), apString(L"2147483648"),
         apString(L"-2147483649"), apString(L"--1"), apString(L"true"), apString(L"12\0", 3)})
  {
    store(text);
    int value = 77;
    EXPECT_FALSE(node.get_attribute(name, value)) << text.to_utf8();
    EXPECT_EQ(value, 77) << text.to_utf8();
  }
}

TEST_F(axmNodeTest, double_is_written_with_16_digits_and_a_point)
{
  for (auto const& [value, text] : {std::pair(1.5, L"1.5"), std::pair(-0.25, L"-0.25"), std::pair(3.0, L"3"),
         std::pair(0.1, L"0.1"), std::pair(1e100, L"1e+100"), std::pair(1.0 / 3, L"0.3333333333333333"),
         std::pair(0.1 + 0.2, L"0.3"), std::pair(-0.0, L"-0")})
  {
    EXPECT_TRUE(node.set_attribute(name, value));
    EXPECT_EQ(stored(), text);
  }
}

TEST_F(axmNodeTest, double_is_read_from_the_whole_text)
{
  EXPECT_EQ(read_double(L"1.5"), 1.5);
  EXPECT_EQ(read_double(L"-1.5e3"), -1500.0);
  EXPECT_EQ(read_double(L"15"), 15.0);
  EXPECT_EQ(read_double(L" .5"), 0.5);
  EXPECT_EQ(read_double(L"inf"), std::numeric_limits<double>::infinity());
}

TEST_F(axmNodeTest, double_of_text_that_is_no_number_as_a_whole_fails_and_leaves_the_output)
{
  for (apString const& text : {apString(), apString(L" "), apString(L"1.5a"), apString(L"a1.5"), apString(L"1.5 "),
         apString(L"1,5"), apString(L"1.5.5"), apString(L"1e"), apString(L"--1"), apString(L"1.5\0", 4)})
  {
    EXPECT_TRUE(std::isnan(read_double(text))) << text.to_utf8();
    EXPECT_TRUE(std::isnan(read_double_locale(text))) << text.to_utf8();
  }
}

TEST_F(axmNodeTest, double_read_from_at_most_15_digits_comes_back)
{
  for (double const value : {0.1, 0.3, 1e-5, 123456789.012345, 0.123456789012345, 1e300, 5e-324, -7.25e-100})
    EXPECT_EQ(written_and_read(value), value);
}

TEST_F(axmNodeTest, double_that_needs_17_digits_comes_back_as_a_neighbour)
{
  double const value = 0.1 + 0.2;
  EXPECT_EQ(written_and_read(value), 0.3);
  EXPECT_EQ(std::nextafter(0.3, 1.0), value);
}

TEST_F(axmNodeTest, largest_double_comes_back_as_an_infinity)
{
  EXPECT_EQ(written_and_read(DBL_MAX), std::numeric_limits<double>::infinity());
  EXPECT_EQ(written_and_read(-DBL_MAX), -std::numeric_limits<double>::infinity());
}

TEST_F(axmNodeTest, infinities_and_not_a_number_come_back)
{
  EXPECT_EQ(written_and_read(-std::numeric_limits<double>::infinity()), -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(written_and_read(std::numeric_limits<double>::quiet_NaN())));
}

TEST_F(axmNodeTest, locale_pair_writes_and_reads_the_point_in_the_C_locale)
{
  EXPECT_TRUE(node.set_attribute_locale(name, -1.5));
  EXPECT_EQ(stored(), L"-1.5");
  EXPECT_EQ(read_double_locale(L"-1.5"), -1.5);
  EXPECT_TRUE(node.set_attribute_locale(name, -DBL_MAX));
  EXPECT_EQ(stored(), L"-1.797693134862316e+308");
  EXPECT_TRUE(node.set_attribute_locale(name, -1.0 / 3e300));
  EXPECT_EQ(stored(), L"-3.333333333333333e-301");
}

TEST_F(axmNodeTest, double_is_written_and_read_with_a_point_in_a_locale_with_a_comma)
{
  TestLocale const locale(TestLocale::comma);
  EXPECT_TRUE(node.set_attribute(name, 1.5));
  EXPECT_EQ(stored(), L"1.5");
  EXPECT_EQ(read_double(L"1.5"), 1.5);
  EXPECT_EQ(read_double(L"-1.25e-3"), -0.00125);
  EXPECT_EQ(read_double(L"15"), 15.0);
}

TEST_F(axmNodeTest, double_with_the_comma_of_the_locale_fails)
{
  TestLocale const locale(TestLocale::comma);
  for (wchar_t const* const text : {L"1,5", L"1,000.5", L"1.000,5", L",", L"1,"})
    EXPECT_TRUE(std::isnan(read_double(text))) << text;
}

TEST_F(axmNodeTest, double_that_is_no_number_fails_in_a_locale_with_a_comma_too)
{
  TestLocale const locale(TestLocale::comma);
  for (wchar_t const* const text : {L"", L"1.5.5", L"1.5a", L"1.5 ", L"."})
    EXPECT_TRUE(std::isnan(read_double(text))) << text;
}

TEST_F(axmNodeTest, locale_pair_writes_and_reads_the_comma_in_a_locale_with_one)
{
  TestLocale const locale(TestLocale::comma);
  EXPECT_TRUE(node.set_attribute_locale(name, 1.5));
  EXPECT_EQ(stored(), L"1,5");
  EXPECT_EQ(read_double_locale(L"1,5"), 1.5);
  EXPECT_EQ(read_double_locale(L"15"), 15.0);
  EXPECT_TRUE(std::isnan(read_double_locale(L"1.5")));
  EXPECT_TRUE(std::isnan(read_double_locale(L"1,5,5")));
}

TEST_F(axmNodeTest, the_two_pairs_for_doubles_are_not_interchangeable_in_a_locale_with_a_comma)
{
  TestLocale const locale(TestLocale::comma);
  double value = -77.5;
  EXPECT_TRUE(node.set_attribute(name, 1.5));
  EXPECT_FALSE(node.get_attribute_locale(name, value));
  EXPECT_TRUE(node.set_attribute_locale(name, 1.5));
  EXPECT_FALSE(node.get_attribute(name, value));
  EXPECT_EQ(value, -77.5);
}

TEST_F(axmNodeTest, other_types_are_the_same_in_a_locale_with_a_comma)
{
  TestLocale const locale(TestLocale::comma);
  EXPECT_TRUE(node.set_attribute(name, -1234567));
  EXPECT_EQ(stored(), L"-1234567");
  int whole = 0;
  EXPECT_TRUE(node.get_attribute(name, whole));
  EXPECT_EQ(whole, -1234567);
  EXPECT_TRUE(node.set_attribute(name, 4000000000u));
  EXPECT_EQ(stored(), L"4000000000");
  EXPECT_TRUE(node.set_attribute(name, true));
  bool truth = false;
  EXPECT_TRUE(node.get_attribute(name, truth));
  EXPECT_TRUE(truth);
}

#if !defined(_WIN32)
TEST_F(axmNodeTest, double_is_written_and_read_with_a_point_in_a_locale_whose_point_takes_two_bytes)
{
  TestLocale const locale(TestLocale::two_byte_point);
  EXPECT_TRUE(node.set_attribute(name, 1.5));
  EXPECT_EQ(stored(), L"1.5");
  EXPECT_EQ(read_double(L"1.5"), 1.5);
  EXPECT_TRUE(std::isnan(read_double(L"1\u066B5")));
  EXPECT_TRUE(node.set_attribute_locale(name, 1.5));
  EXPECT_EQ(stored(), L"1\u066B5");
  EXPECT_EQ(read_double_locale(L"1\u066B5"), 1.5);
}
#endif

TEST_F(axmNodeTest, every_getter_reads_through_the_getter_for_texts_called_virtually)
{
  Elsewhere other;
  axmNode const& overriding = other;
  bool truth = false;
  double number = 0;
  int whole = 0;
  other.text = apString(L"1");
  EXPECT_TRUE(overriding.get_attribute(apString(L"a"), truth));
  EXPECT_TRUE(overriding.get_attribute(apString(L"b"), number));
  EXPECT_TRUE(overriding.get_attribute(apString(L"c"), whole));
  EXPECT_TRUE(overriding.get_attribute_locale(apString(L"d"), number));
  EXPECT_TRUE(truth);
  EXPECT_EQ(number, 1.0);
  EXPECT_EQ(whole, 1);
  EXPECT_EQ(other.names, (std::vector<apString>{L"a", L"b", L"c", L"d"}));

  other.accepts = false;
  EXPECT_FALSE(overriding.get_attribute(name, truth));
  EXPECT_FALSE(overriding.get_attribute(name, number));
  EXPECT_FALSE(overriding.get_attribute(name, whole));
  EXPECT_FALSE(overriding.get_attribute_locale(name, number));
}

TEST_F(axmNodeTest, every_setter_writes_through_the_setter_for_texts_called_virtually)
{
  Elsewhere other;
  axmNode& overriding = other;
  EXPECT_TRUE(overriding.set_attribute(apString(L"a"), true));
  EXPECT_EQ(other.text.view(), L"true");
  EXPECT_TRUE(overriding.set_attribute(apString(L"b"), 1.5));
  EXPECT_EQ(other.text.view(), L"1.5");
  EXPECT_TRUE(overriding.set_attribute(apString(L"c"), -2));
  EXPECT_EQ(other.text.view(), L"-2");
  EXPECT_TRUE(overriding.set_attribute(apString(L"d"), 3u));
  EXPECT_EQ(other.text.view(), L"3");
  EXPECT_TRUE(overriding.set_attribute_locale(apString(L"e"), 2.5));
  EXPECT_EQ(other.text.view(), L"2.5");
  EXPECT_EQ(other.names, (std::vector<apString>{L"a", L"b", L"c", L"d", L"e"}));
  EXPECT_FALSE(other.hasAttributes());
}

TEST_F(axmNodeTest, result_of_a_setter_is_that_of_the_setter_for_texts)
{
  Elsewhere other;
  other.accepts = false;
  axmNode& overriding = other;
  EXPECT_FALSE(overriding.set_attribute(name, true));
  EXPECT_FALSE(overriding.set_attribute(name, 1.5));
  EXPECT_FALSE(overriding.set_attribute(name, 1));
  EXPECT_FALSE(overriding.set_attribute(name, 1u));
  EXPECT_FALSE(overriding.set_attribute_locale(name, 1.5));
}

TEST_F(axmNodeTest, getters_see_what_is_set_through_the_map)
{
  element.getAttributes()->setNamedItem(std::make_shared<TestAttribute>(name, L"12"));
  int value = 0;
  EXPECT_TRUE(node.get_attribute(name, value));
  EXPECT_EQ(value, 12);
}

TEST_F(axmNodeTest, shared_pointers_to_the_kinds_of_node_convert_to_the_one_node_they_are)
{
  std::shared_ptr<axmElement> const made = std::make_shared<TestElement>();
  std::shared_ptr<axmNode> const as_node = made;
  EXPECT_TRUE(*as_node == *made);
  EXPECT_EQ(std::dynamic_pointer_cast<axmElement>(as_node), made);
  EXPECT_EQ(std::dynamic_pointer_cast<axmDocument>(as_node), nullptr);
  EXPECT_EQ(std::shared_ptr<axmNode>(std::shared_ptr<axmElement>()), nullptr);
  EXPECT_EQ(std::shared_ptr<axmNode>(std::shared_ptr<axmDocument>()), nullptr);
  EXPECT_EQ(std::shared_ptr<axmNode>(std::shared_ptr<axmTextNode>()), nullptr);
  EXPECT_EQ(std::shared_ptr<axmNode>(std::shared_ptr<axmCommentNode>()), nullptr);
}

TEST_F(axmNodeTest, kinds_of_node_inherit_the_node_virtually_but_for_the_processing_instruction)
{
  // A class of two kinds holds one node part, to which it converts, exactly if both inherit it virtually.
  struct Both : axmElement, axmTextNode
  {
  };
  struct BothOthers : axmDocument, axmCommentNode
  {
  };
  struct One : axmProcessingInstruction
  {
  };
  struct Other : axmProcessingInstruction
  {
  };
  struct Two : One, Other
  {
  };
  EXPECT_TRUE((std::is_convertible_v<Both*, axmNode*>));
  EXPECT_TRUE((std::is_convertible_v<BothOthers*, axmNode*>));
  EXPECT_FALSE((std::is_convertible_v<Two*, axmNode*>));
  EXPECT_TRUE((std::is_base_of_v<axmCharacterData, axmTextNode>));
  EXPECT_TRUE((std::is_base_of_v<axmCharacterData, axmCommentNode>));
}
