#include "Backtracker.h"

#include <axsPattern.h>
#include <axsPatternCounting.h>
#include <axsPatternParser.h>
#include <axsPatternProgram.h>
#include <axsPatternStates.h>
#include <utUtf8.h>

#include <gtest/gtest.h>

#include <atomic>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{
bool matches(std::string const& expression, std::string const& value)
{
  axsPattern::Fault fault;
  auto const pattern = axsPattern::compile(expression, fault);
  EXPECT_NE(pattern, nullptr) << expression << ": " << fault.text;
  return pattern != nullptr && pattern->matches(value);
}

struct Case
{
  char const* expression;
  std::vector<std::string> matched;
  std::vector<std::string> others;
};

Case const cases[] = {
  {"", {""}, {"a"}},
  {"a", {"a"}, {"", "aa", "b", "ba", "ab"}},
  {"a|b|", {"a", "b", ""}, {"ab", "c"}},
  {"(a|b)c", {"ac", "bc"}, {"a", "abc"}},
  {"a?b*c+", {"c", "abbcc", "bc"}, {"", "ab", "aac"}},
  {"a{2}b{1,3}c{2,}d{0}", {"aabcc", "aabbbcccc"}, {"abcc", "aabbbbcc", "aabc", "aabccd"}},
  {"()*a", {"a"}, {""}},
  {"(a*)*b", {"b", "aaab"}, {"a", ""}},
  {"(a|b)*abb", {"abb", "ababb"}, {"ab", "abba"}},
  {".", {"a", "\xC3\xA4", "\xF0\x9F\x98\x80"}, {"\n", "\r", "", "ab"}},
  {"[abc]", {"a", "c"}, {"d", ""}},
  {"[^abc]", {"d", "\xC3\xA4", "\n"}, {"a", ""}},
  {"[a-c-[b]]", {"a", "c"}, {"b", "-"}},
  {"[a-z-[c-x-[f]]]", {"a", "f", "z"}, {"d", "x"}},
  {"[^a-[b]]", {"c"}, {"a", "b"}},
  {"[-a]", {"-", "a"}, {"b"}},
  {"[a-]", {"-", "a"}, {"b"}},
  {"[a-z--[b-z]]", {"-", "a"}, {"b"}},
  {"[ --]", {}, {}},
  {"[\\-\\[\\]\\^]", {"-", "[", "]", "^"}, {"\\"}},
  {"[a^]", {"^"}, {"b"}},
  {"[.*+?(){}|$]", {".", "*", "{", "$", "|"}, {"a"}},
  {"^a$", {"^a$"}, {"a"}},
  {"\\n\\r\\t\\\\\\|\\.\\-\\^\\?\\*\\+\\{\\}\\(\\)\\[\\]", {"\n\r\t\\|.-^?*+{}()[]"}, {"n"}},
  {"\\d+", {"019", "\xD9\xA3"}, {"a", ""}},
  {"\\D", {"a"}, {"1"}},
  {"\\s\\S", {" a", "\ta", "\na"},
    {"a ", "\xC2\xA0"
           "a"}},
  {"\\w+", {"aZ09", "\xC3\xA4", "$"}, {"a b", "-", "."}},
  {"\\W", {"-", " "}, {"a"}},
  {"\\i\\c*", {"a", "_", ":a-1.2"}, {"1a", "-", ""}},
  {"\\I\\C", {"1 "}, {"a ", "1a"}},
  {"\\p{Lu}\\P{Lu}",
    {"Aa", "\xC3\x84"
           "1"},
    {"aA", "AA"}},
  {"\\p{L}\\p{N}", {"a1"}, {"1a"}},
  {"\\p{IsBasicLatin}\\P{IsBasicLatin}", {"a\xC3\xA4"}, {"ab"}},
  {"\\p{IsGreek}", {"\xCE\xB1"}, {"a"}},
  {"a?\\p{IsLowSurrogates}?", {"a", ""}, {"\xEE\x80\x80"}},
  {"\\p{IsPrivateUse}", {"\xEE\x80\x80", "\xF3\xB0\x80\x80"}, {"a"}},
  {"[\\p{L}-[a-z]]", {"A"}, {"a", "1"}},
  {"\\p{Cn}", {"\xCD\xB8"}, {"a"}},
  {"(\\p{Lu}\\p{Ll}*)\\s(\\p{Lu}\\p{Ll}*)", {"Ab Cd"}, {"ab Cd"}},
  {"(a{0,1000}){0,1000}", {"", "aaa", std::string(5000, 'a')}, {"b", "ab"}},
  {"a{4294967295}", {}, {"", "aaa"}},
  {"a{0,99999999999999999999999999}", {"", "aaa"}, {"b"}},
  {"(\\d{1,3},){0,65535}", {"", "1,", "1,22,333,"}, {"1", "1,,", "1234,"}},
  {"(ab|c){1,4294967295}", {"ab", "cab", "ccc"}, {"", "a", "abx"}},
  {"(a{2}){0,600}b", {"b", std::string(1200, 'a') + "b"}, {"ab", std::string(1202, 'a') + "b"}},
  {"(ab?){0,700}(cd){10,500}", {std::string(20, 'a').replace(0, 20, "abab") + "cdcdcdcdcdcdcdcdcdcd"}, {"abcdcd"}},
  {".*a.{1500}", {"a" + std::string(1500, 'b')}, {"a" + std::string(1501, 'b'), std::string(1501, 'b')}},
  {"(x|y)[a-c]{1200,1203}d", {"x" + std::string(1200, 'a') + "d", "y" + std::string(1203, 'c') + "d"},
    {"x" + std::string(1199, 'a') + "d", "x" + std::string(1204, 'a') + "d"}},
};

struct Wrong
{
  char const* expression;
  std::size_t character;
};

Wrong const wrong[] = {{"(", 1}, {"((a)", 1}, {"a)", 2}, {"*", 1}, {"a**", 3}, {"+a", 1}, {"a|*", 3}, {"(?a)", 2},
  {"a{2}{3}", 5}, {"a{3,2}", 2}, {"a{,2}", 2}, {"a{", 2}, {"a{2", 2}, {"{1}a", 1}, {"}", 1}, {"]", 1}, {"[", 1},
  {"[a", 1}, {"[]", 1}, {"[^]", 1}, {"[b-a]", 2}, {"[a[b]]", 3}, {"[a-c-e]", 5}, {"[-[a]]", 1}, {"[a-[b]", 1},
  {"\\", 1}, {"a\\", 2}, {"\\q", 1}, {"\\$", 1}, {"\\p", 1}, {"\\pL", 1}, {"\\p{", 1}, {"\\p{X}", 1}, {"\\p{Cs}", 1},
  {"\\p{Isnowhere}", 1}, {"\\p{Is}", 1}, {"\\p{}", 1}, {"[a-\\d]", 4}, {"[\\d-x]", 4}, {"[a-\\y]", 4}, {"[\\y]", 2},
  {"[a--]", 4}, {"[a-", 1}, {"[!--]", 4}, {"\xC3\xA4(", 2}};
}

TEST(axsPattern, matches_what_its_constructs_say)
{
  for (Case const& each : cases)
  {
    for (std::string const& value : each.matched)
      EXPECT_TRUE(matches(each.expression, value)) << each.expression << " '" << value << "'";
    for (std::string const& value : each.others)
      EXPECT_FALSE(matches(each.expression, value)) << each.expression << " '" << value << "'";
  }
}

TEST(axsPattern, refuses_what_is_no_expression_and_says_where)
{
  for (Wrong const& each : wrong)
  {
    axsPattern::Fault fault;
    EXPECT_EQ(axsPattern::compile(each.expression, fault), nullptr) << each.expression;
    EXPECT_EQ(fault.character, each.character) << each.expression << ": " << fault.text;
    EXPECT_FALSE(fault.text.empty());
  }
}

namespace
{
// Expressions and values over few letters, so that many match.
class Random
{
public:
  explicit Random(unsigned seed) : engine(seed) {}

  std::string expression(int depth)
  {
    std::string text = branch(depth);
    while (number(4) == 0)
      text += "|" + branch(depth);
    return text;
  }

  std::string value()
  {
    std::string text;
    for (unsigned length = number(9); length > 0; --length)
      text += "aabbc1 -"[number(8)];
    return text;
  }

  unsigned number(unsigned below) { return static_cast<unsigned>(engine() % below); }

private:
  std::string branch(int depth)
  {
    std::string text;
    for (unsigned pieces = number(4); pieces > 0; --pieces)
      text += atom(depth) + quantifier();
    return text;
  }

  std::string atom(int depth)
  {
    if (depth > 0 && number(3) == 0)
      return "(" + expression(depth - 1) + ")";
    static char const* const atoms[] = {"a", "b", "c", ".", "\\d", "\\s", "\\-", "[ab]", "[^a]", "[a-c]", "[a-c-[b]]",
      "[-a]", "[^b-[a]]", "[\\d-]", "[a-c-[a-b-[a]]]"};
    return atoms[number(static_cast<unsigned>(std::size(atoms)))];
  }

  std::string quantifier()
  {
    switch (number(10))
    {
    case 0:
      return "?";
    case 1:
      return "*";
    case 2:
      return "+";
    case 3:
    {
      unsigned const min = number(4);
      return "{" + std::to_string(min) + "," + std::to_string(min + number(4)) + "}";
    }
    case 4:
      return "{" + std::to_string(number(3)) + ",}";
    case 5:
      return "{" + std::to_string(number(4)) + "}";
    default:
      return "";
    }
  }

  std::mt19937 engine;
};
}

TEST(axsPattern, agrees_with_a_backtracker_on_random_expressions_and_values)
{
  Random random(20260);
  int matched = 0;
  for (int i = 0; i < 4000; ++i)
  {
    std::string const expression = random.expression(3);
    axsPattern::Fault fault;
    auto const pattern = axsPattern::compile(expression, fault);
    ASSERT_NE(pattern, nullptr) << expression << ": " << fault.text;
    for (int j = 0; j < 12; ++j)
    {
      std::string const value = random.value();
      bool const expected = backtracker::matches(expression, value);
      matched += expected ? 1 : 0;
      ASSERT_EQ(pattern->matches(value), expected) << expression << " '" << value << "'";
    }
  }
  EXPECT_GT(matched, 1000);
}

TEST(axsPattern, agrees_with_a_backtracker_where_repeats_are_counted)
{
  Random random(7);
  int matched = 0;
  // The branch that nothing matches is too long to be written out.
  std::string const long_branch = "|(xyz){400}";
  for (int i = 0; i < 3000; ++i)
  {
    std::string const counted =
      "[abc1]{" + std::to_string(random.number(12)) + "," + std::to_string(12 + random.number(3)) + "}";
    std::string const expression = random.expression(2) + counted + random.expression(1) + long_branch;
    axsPattern::Fault fault;
    auto const pattern = axsPattern::compile(expression, fault);
    ASSERT_NE(pattern, nullptr) << expression << ": " << fault.text;
    for (int j = 0; j < 12; ++j)
    {
      std::string const value = random.value() + random.value() + random.value();
      bool const expected = backtracker::matches(expression, value);
      matched += expected ? 1 : 0;
      ASSERT_EQ(pattern->matches(value), expected) << expression << " '" << value << "'";
    }
  }
  EXPECT_GT(matched, 1000);
}

namespace
{
// The steps that an automaton takes for a value, made for it alone.
std::uint64_t steps(std::string const& expression, std::string const& value)
{
  axsPattern::Fault fault;
  axsPatternTree tree;
  EXPECT_TRUE(axsPatternParser(expression, fault).parse(tree)) << fault.text;
  auto const program = axsPatternProgram::build(std::move(tree), fault);
  if (program == nullptr)
  {
    ADD_FAILURE() << fault.text;
    return 0;
  }
  if (!program->counts())
  {
    axsPatternStates states(*program);
    states.matches(value);
    return states.steps();
  }
  axsPatternCounting counting(*program);
  counting.matches(value);
  return counting.steps();
}
}

TEST(axsPattern, hostile_expressions_take_steps_linear_in_the_value)
{
  // With the steps that a character may take.
  std::pair<char const*, std::uint64_t> const expressions[] = {{"(a+)*b", 2}, {"(a|a)*", 2}, {"(a|aa)*b", 2},
    {"(a*)*b", 2}, {"((a?){20}a{20})*b", 2}, {"(a{0,1000}){0,1000}b", 5}, {".*a.{3000}b", 10},
    {"(.*)(.*)(.*)(.*)(.*)b", 2}, {"(a|b)*a(a|b){12}", 2}, {"([a-z0-9]+([-.][a-z0-9]+)*)+@x", 2},
    {"(a{1,50}){1,50}b", 5}, {"a{0,4294967295}b", 5}, {"([a-z]+ ?){0,5000}b", 20},
    {"((ab?|a){0,4294967295}c?){0,2}b", 60}, {"([ab]{0,1000}c?){0,1000}b", 3500},
    {"((a|aa|aaa){0,9}c?){0,99999}b", 200}};
  for (auto const& [expression, bound] : expressions)
  {
    std::uint64_t const few = steps(expression, std::string(4000, 'a'));
    std::uint64_t const many = steps(expression, std::string(8000, 'a'));
    EXPECT_LE(many, few * 2 + few / 2) << expression;
    EXPECT_LE(many, 8000 * bound) << expression;
  }
}

TEST(axsPattern, parentheses_may_lie_in_each_other_as_deep_as_they_like)
{
  std::size_t const depth = 100000;
  EXPECT_TRUE(matches(std::string(depth, '(') + "a" + std::string(depth, ')'), "a"));
  std::string optional = "a";
  for (std::size_t i = 0; i < 20000; ++i)
    optional = "(" + optional;
  for (std::size_t i = 0; i < 20000; ++i)
    optional += "|b)";
  EXPECT_TRUE(matches(optional, "b"));
  std::string subtracted;
  for (std::size_t i = 0; i < 10000; ++i)
    subtracted += "[a-b-";
  EXPECT_TRUE(matches(subtracted + "[a]" + std::string(10000, ']'), "a"));
}

TEST(axsPattern, what_multiplies_beyond_bounds_is_refused_with_a_reason)
{
  for (char const* const expression : {"((ab){1000}){1000}", "((((((ab){100}){100}){100}){100}){100}){100}",
         "(ab|c){4294967295}", "((((ab){0,100}c){0,100}d){0,100}e){0,100}"})
  {
    axsPattern::Fault fault;
    EXPECT_EQ(axsPattern::compile(expression, fault), nullptr) << expression;
    EXPECT_NE(fault.text.find("500000"), std::string::npos) << fault.text;
  }
}

TEST(axsPattern, many_branches_and_many_classes_are_compiled_at_once)
{
  std::string branches;
  std::string classes;
  for (int i = 0; i < 20000; ++i)
  {
    branches += (i == 0 ? "v" : "|v") + std::to_string(i);
    classes += "[^";
    utUtf8::append(0x4E00 + static_cast<char32_t>(i % 20000), classes);
    classes += "]?";
  }
  EXPECT_TRUE(matches(branches, "v19999"));
  EXPECT_FALSE(matches(branches, "v20000"));
  EXPECT_TRUE(matches(classes, "abc"));
}

TEST(axsPattern, states_beyond_the_bound_are_forgotten_and_made_anew)
{
  axsPattern::Fault fault;
  axsPatternTree tree;
  ASSERT_TRUE(axsPatternParser("(a|b)*a(a|b){60}", fault).parse(tree));
  auto const program = axsPatternProgram::build(std::move(tree), fault);
  axsPatternStates states(*program);
  std::mt19937 engine(1);
  std::string value;
  for (int i = 0; i < 100000; ++i)
    value += engine() % 2 == 0 ? 'a' : 'b';
  value[value.size() - 61] = 'a';
  EXPECT_TRUE(states.matches(value));
  EXPECT_LT(states.memory_taken(), 2 * axsPatternStates::max_memory);
  value[value.size() - 61] = 'b';
  EXPECT_FALSE(states.matches(value));
  EXPECT_TRUE(states.matches("a" + std::string(60, 'b')));
}

// Each 'a' begins a count of its own, and most of them are over long before the value is.
TEST(axsPattern, counts_that_begin_within_each_other_are_each_held_to_their_bounds)
{
  std::string letters;
  for (int i = 0; i < 300; ++i)
    letters += "ab";
  char const* const expression = "[ab]*a[ab]{1040,1060}c";
  EXPECT_FALSE(matches(expression, letters + "c"));
  for (auto const& [more, is_matched] :
    {std::pair(400, false), {440, false}, {441, true}, {1039, true}, {1059, true}, {1060, false}})
    EXPECT_EQ(matches(expression, letters + std::string(static_cast<std::size_t>(more), 'b') + "c"), is_matched)
      << more;
}

TEST(axsPattern, several_threads_match_with_one_expression)
{
  axsPattern::Fault fault;
  auto const pattern = axsPattern::compile("([a-c]+[0-9]{2,3})*", fault);
  ASSERT_NE(pattern, nullptr);
  std::vector<std::thread> threads;
  std::atomic<int> wrong_answers{0};
  for (int t = 0; t < 4; ++t)
    threads.emplace_back(
      [&]
      {
        for (int i = 0; i < 2000; ++i)
        {
          std::string const value = "abc" + std::to_string(10 + i);
          bool const expected = i < 990;
          wrong_answers += pattern->matches(value) == expected ? 0 : 1;
        }
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(wrong_answers, 0);
}

TEST(axsPattern, bytes_that_are_no_utf8_match_nothing)
{
  EXPECT_FALSE(matches(".*", "a\xFF"));
  EXPECT_FALSE(matches("[^a]{0,2000}", "\xC3"));
  EXPECT_FALSE(matches("a\xFF", "a\xFF"));
}
