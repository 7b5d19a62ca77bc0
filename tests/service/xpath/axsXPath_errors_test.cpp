#include "Subject.h"

#include <axsXPath.h>

#include <gtest/gtest.h>

namespace
{
using subject::value;

struct Wrong
{
  char const* what;
  char const* expression;
  char const* error;
};

class XPathError : public testing::TestWithParam<Wrong>
{
};

Wrong const wrong_expressions[] = {{"an_empty_expression", "", "error at 1: a step is missing"},
  {"white_space_alone", "  ", "error at 3: a step is missing"},
  {"a_missing_step", "//", "error at 3: a step is missing"},
  {"a_step_missing_between_slashes", "a///b", "error at 4: a step is missing"},
  {"a_missing_operand", "1 +", "error at 4: a step is missing"},
  {"a_missing_operator", "a b", "error at 3: an operator is missing before this name"},
  {"a_missing_operator_before_a_literal", "a 'b'", "error at 3: the expression should end here"},
  {"an_unknown_axis", "a/kin::b", "error at 3: there is no axis 'kin'"},
  {"an_unknown_function", "a[foo()]", "error at 3: there is no function 'foo'"},
  {"a_function_with_a_prefix", "p:foo()", "error at 1: there is no function 'p:foo'"},
  {"a_variable", "1 + $x", "error at 5: there are no variables, so 'x' has no value"},
  {"a_variable_with_a_prefix", "$p:x", "error at 1: there are no variables, so 'x' has no value"},
  {"a_variable_without_a_name", "$ x", "error at 1: a name is missing after '$'"},
  {"too_few_arguments", "contains('a')", "error at 1: contains() takes 2 arguments, not 1"},
  {"too_many_arguments", "1 + last(1)", "error at 5: last() takes 0 arguments, not 1"},
  {"an_argument_missing", "not()", "error at 1: not() takes 1 argument, not 0"},
  {"too_few_of_many_arguments", "concat('a')", "error at 1: concat() takes 2 or more arguments, not 1"},
  {"too_many_of_some_arguments", "substring('a',1,2,3)", "error at 1: substring() takes 2 to 3 arguments, not 4"},
  {"an_argument_that_is_no_node_set", "count( 1 )", "error at 8: the argument has to be a node-set"},
  {"a_sum_of_a_string", "sum('1')", "error at 5: the argument has to be a node-set"},
  {"a_union_with_a_number", "a | 1", "error at 5: what '|' joins has to be a node-set"},
  {"a_union_with_a_string_first", "'a'|b", "error at 1: what '|' joins has to be a node-set"},
  {"a_filter_on_a_number", "1[2]", "error at 1: only a node-set can be filtered or walked on from"},
  {"a_path_after_a_string", "a | string()/b", "error at 5: only a node-set can be filtered or walked on from"},
  {"a_predicate_after_a_dot", ".[1]", "error at 2: the expression should end here"},
  {"a_predicate_after_two_dots", "..[1]", "error at 3: the expression should end here"},
  {"an_open_parenthesis", "(a", "error at 3: a ')' is missing"},
  {"a_parenthesis_too_many", "a)", "error at 2: the expression should end here"},
  {"an_open_predicate", "a[1", "error at 4: a ']' is missing"},
  {"an_open_predicate_of_a_filter", "(a)[1", "error at 6: a ']' is missing"},
  {"a_missing_step_after_a_filter", "(a)/+", "error at 5: a step is missing"},
  {"an_empty_predicate", "a[]", "error at 3: a step is missing"},
  {"an_open_call", "count(a", "error at 8: a ',' or ')' is missing"},
  {"an_open_literal", "a = 'b", "error at 5: the literal is not closed"},
  {"a_foreign_character", "a # b", "error at 3: this character cannot stand here"},
  {"a_single_exclamation_mark", "a ! b", "error at 3: this character cannot stand here"},
  {"a_prefix_without_a_name", "p:", "error at 3: a name or '*' is missing after the prefix"},
  {"white_space_inside_a_name", "p :a", "error at 3: this character cannot stand here"},
  {"two_axes", "child::child::a", "error at 8: a step is missing"},
  {"an_attribute_of_nothing", "@", "error at 2: a step is missing"},
  {"an_argument_to_a_node_type", "text('a')", "error at 6: a ')' is missing"},
  {"two_points_in_a_number", "1.2.3", "error at 4: the expression should end here"},
  {"an_exponent", "1e3", "error at 2: an operator is missing before this name"},
  {"an_undeclared_prefix", "a/q:b", "error at 3: the prefix 'q' is not declared at the context node"},
  {"an_undeclared_prefix_of_a_predicate", "a[@q:*]", "error at 4: the prefix 'q' is not declared at the context node"},
  {"a_place_counted_in_characters", "'\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80' = $x",
    "error at 9: there are no variables, so 'x' has no value"}};
}

TEST_P(XPathError, is_told_with_its_place)
{
  EXPECT_EQ(value(GetParam().expression), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(Expressions, XPathError, testing::ValuesIn(wrong_expressions),
  [](auto const& tested) { return std::string(tested.param.what); });

TEST(XPathErrors, leave_the_value_as_it_was)
{
  auto const document = subject::create("r");
  EXPECT_EQ(subject::nodes(*document, "count(r)"), "no node-set");
  EXPECT_EQ(subject::nodes(*document, "r["), "error at 3: a step is missing");
}

TEST(XPathErrors, of_before_are_gone_when_an_expression_that_is_known_is_right)
{
  auto const document = subject::load("<r/>");
  axsXPath::Value value;
  axsXPathError error;
  ASSERT_TRUE(axsXPath::evaluate(*document, APSTRING("count(r)"), value, error));
  for (char const* const wrong : {"//[", "count(", "p:r"})
  {
    EXPECT_FALSE(axsXPath::evaluate(*document, apString(wrong), value, error)) << wrong;
    EXPECT_NE(error.message, "");
    // Compiled before, and taken out of the cache.
    EXPECT_TRUE(axsXPath::evaluate(*document, APSTRING("count(r)"), value, error));
    EXPECT_EQ(error.message, "");
    EXPECT_EQ(error.position, 0);
    EXPECT_EQ(value.number, 1);
  }
}
