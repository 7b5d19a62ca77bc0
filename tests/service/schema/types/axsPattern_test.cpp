#include <axsPattern.h>

#include <gtest/gtest.h>

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
  {"\\p{IsPrivateUse}", {"\xEE\x80\x80", "\xF3\xB0\x80\x80"}, {"a"}},
  {"[\\p{L}-[a-z]]", {"A"}, {"a", "1"}},
  {"\\p{Cn}", {"\xCD\xB8"}, {"a"}},
  {"(\\p{Lu}\\p{Ll}*)\\s(\\p{Lu}\\p{Ll}*)", {"Ab Cd"}, {"ab Cd"}},
  {"(a{0,1000}){0,1000}", {"", "aaa", std::string(5000, 'a')}, {"b", "ab"}},
  {"a{4294967295}", {}, {"", "aaa"}},
  {"a{0,99999999999999999999999999}", {"", "aaa"}, {"b"}},
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
  {"\\p{Isnowhere}", 1}, {"\\p{Is}", 1}, {"\\p{}", 1}, {"[a-\\d]", 4}, {"[\\d-x]", 4}, {"\xC3\xA4(", 2}};
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
