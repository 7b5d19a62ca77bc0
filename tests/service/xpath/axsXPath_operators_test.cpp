#include "Subject.h"

#include <gtest/gtest.h>

namespace
{
using subject::nodes;
using subject::value;

class XPathOperator : public testing::Test
{
protected:
  std::shared_ptr<axmDocument> const document =
    subject::load("<r><a>1</a><a>2</a><b>2</b><b>3</b><c>x</c><c>x</c><d/></r>");

  std::string ask(std::string const& expression) { return value(*document, expression).substr(8); }
};
}

TEST_F(XPathOperator, or_is_true_if_one_is)
{
  EXPECT_EQ(ask("false() or true()"), "true");
  EXPECT_EQ(ask("false() or 0 or ''"), "false");
  EXPECT_EQ(ask("//nothing or //a"), "true");
}

TEST_F(XPathOperator, and_is_true_if_all_are)
{
  EXPECT_EQ(ask("true() and 'x' and 1"), "true");
  EXPECT_EQ(ask("true() and //nothing"), "false");
}

TEST_F(XPathOperator, and_binds_closer_than_or)
{
  EXPECT_EQ(ask("true() or true() and false()"), "true");
}

TEST_F(XPathOperator, equal_compares_by_the_most_telling_type)
{
  EXPECT_EQ(ask("1 = '1.0'"), "true");
  EXPECT_EQ(ask("'1' = '1.0'"), "false");
  EXPECT_EQ(ask("true() = 'x'"), "true");
  EXPECT_EQ(ask("true() = 2"), "true");
  EXPECT_EQ(ask("0 div 0 = 0 div 0"), "false");
  EXPECT_EQ(ask("0 = -0"), "true");
}

TEST_F(XPathOperator, not_equal_is_not_the_contrary_of_equal_for_node_sets)
{
  EXPECT_EQ(ask("//a = 1"), "true");
  EXPECT_EQ(ask("//a != 1"), "true");
  EXPECT_EQ(ask("//c != 'x'"), "false");
  EXPECT_EQ(ask("//nothing = 1"), "false");
  EXPECT_EQ(ask("//nothing != 1"), "false");
  EXPECT_EQ(ask("0 div 0 != 0 div 0"), "true");
}

TEST_F(XPathOperator, comparing_node_sets_looks_for_a_pair)
{
  EXPECT_EQ(ask("//a = //b"), "true");
  EXPECT_EQ(ask("//a = //c"), "false");
  EXPECT_EQ(ask("//a != //b"), "true");
  EXPECT_EQ(ask("//c != //c"), "false");
  EXPECT_EQ(ask("//nothing = //nothing"), "false");
  EXPECT_EQ(ask("//a < //b"), "true");
  EXPECT_EQ(ask("//b < //a"), "false");
  EXPECT_EQ(ask("//b <= //a"), "true");
  EXPECT_EQ(ask("//a >= //b"), "true");
  EXPECT_EQ(ask("//a > //b"), "false");
  EXPECT_EQ(ask("//a < //c"), "false");
}

TEST_F(XPathOperator, comparing_a_node_set_with_a_boolean_asks_whether_it_has_nodes)
{
  EXPECT_EQ(ask("//d = true()"), "true");
  EXPECT_EQ(ask("//nothing = false()"), "true");
  EXPECT_EQ(ask("false() < //d"), "true");
  EXPECT_EQ(ask("//nothing >= true()"), "false");
}

TEST_F(XPathOperator, comparing_a_node_set_with_a_string_or_number)
{
  EXPECT_EQ(ask("//c = 'x'"), "true");
  EXPECT_EQ(ask("'x' = //c"), "true");
  EXPECT_EQ(ask("3 <= //b"), "true");
  EXPECT_EQ(ask("3 < //b"), "false");
  EXPECT_EQ(ask("//b > '2'"), "true");
  EXPECT_EQ(ask("//c > 0"), "false");
}

TEST_F(XPathOperator, less_and_greater_compare_numbers)
{
  EXPECT_EQ(ask("'10' > '9'"), "true");
  EXPECT_EQ(ask("'a' < 'b'"), "false");
  EXPECT_EQ(ask("1 <= 1"), "true");
  EXPECT_EQ(ask("1 >= 2"), "false");
  EXPECT_EQ(ask("true() > false()"), "true");
}

TEST_F(XPathOperator, comparisons_are_taken_from_left_to_right)
{
  EXPECT_EQ(ask("3 > 2 > 1"), "false");
  EXPECT_EQ(ask("1 = 1 = 1"), "true");
  EXPECT_EQ(ask("2 = 2 = 2"), "true");
  EXPECT_EQ(ask("2 = 2 != 3"), "false");
  EXPECT_EQ(ask("1 < 2 = true()"), "true");
}

TEST_F(XPathOperator, plus_adds)
{
  EXPECT_EQ(value("1 + '2' + true()"), "number 4");
}

TEST_F(XPathOperator, minus_subtracts_from_left_to_right)
{
  EXPECT_EQ(value("10 - 4 - 3"), "number 3");
  EXPECT_EQ(value(*document, "//b[2] -1"), "number 2");
}

TEST_F(XPathOperator, star_multiplies_where_an_operator_is_expected)
{
  EXPECT_EQ(value(*document, "//a[2] * 3"), "number 6");
  EXPECT_EQ(value(*document, "count(*) * count(*/*)"), "number 7");
}

TEST_F(XPathOperator, div_divides_as_doubles_do)
{
  EXPECT_EQ(value("7 div 2"), "number 3.5");
  EXPECT_EQ(value("1 div -0"), "number -Infinity");
  EXPECT_EQ(value("0 div 0"), "number NaN");
}

TEST_F(XPathOperator, mod_has_the_sign_of_its_left_side)
{
  EXPECT_EQ(value("5 mod 2"), "number 1");
  EXPECT_EQ(value("5 mod -2"), "number 1");
  EXPECT_EQ(value("-5 mod 2"), "number -1");
  EXPECT_EQ(value("1.5 mod 0.5"), "number 0");
  EXPECT_EQ(value("5 mod 0"), "number NaN");
  EXPECT_EQ(value("5 mod (1 div 0)"), "number 5");
}

TEST_F(XPathOperator, minus_in_front_negates)
{
  EXPECT_EQ(value("-1"), "number -1");
  EXPECT_EQ(value("---1"), "number -1");
  EXPECT_EQ(value("--'1'"), "number 1");
  EXPECT_EQ(value("-true()"), "number -1");
  EXPECT_EQ(value("2 --1"), "number 3");
  EXPECT_EQ(value("1 div -0"), "number -Infinity");
  EXPECT_EQ(value(*document, "-//b|//c"), "number -2");
}

TEST_F(XPathOperator, products_bind_closer_than_sums)
{
  EXPECT_EQ(value("1 + 2 * 3 - 4 div 2"), "number 5");
  EXPECT_EQ(value("(1 + 2) * 3"), "number 9");
}

TEST_F(XPathOperator, bar_joins_node_sets_in_document_order)
{
  EXPECT_EQ(nodes(*document, "//b|//a"), "a a b b");
  EXPECT_EQ(nodes(*document, "//a | //a | /r"), "r a a");
  EXPECT_EQ(nodes(*document, "(//b|//a)[2]"), "a");
}
