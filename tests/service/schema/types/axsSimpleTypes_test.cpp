#include "Making.h"

using Kind = axsFacetKind;

namespace
{
// What is wrong with one step of derivation after another one, each of which is facets of a built-in type.
struct Step
{
  char const* base;
  std::vector<std::pair<Kind, char const*>> first;
  std::vector<std::pair<Kind, char const*>> second;
  char const* rule;
};

std::vector<axsFacet> facets_of(std::vector<std::pair<Kind, char const*>> const& pairs)
{
  std::vector<axsFacet> facets;
  for (auto const& [kind, value] : pairs)
    facets.push_back(facet(kind, value));
  return facets;
}

Step const steps[] = {
  // Lengths
  {"string", {}, {{Kind::length, "3"}}, ""},
  {"string", {}, {{Kind::length, " +03 "}}, ""},
  {"string", {}, {{Kind::length, "-1"}}, "cvc-datatype-valid.1.2.1"},
  {"string", {}, {{Kind::length, "-0"}}, ""},
  {"string", {}, {{Kind::length, "x"}}, "cvc-datatype-valid.1.2.1"},
  {"string", {}, {{Kind::length, "1.0"}}, "cvc-datatype-valid.1.2.1"},
  {"string", {}, {{Kind::length, ""}}, "cvc-datatype-valid.1.2.1"},
  {"string", {}, {{Kind::length, "3"}, {Kind::length, "3"}}, "src-single-facet-value"},
  {"string", {{Kind::length, "3"}}, {{Kind::length, "3"}}, ""},
  {"string", {{Kind::length, "3"}}, {{Kind::length, "2"}}, "length-valid-restriction"},
  {"string", {}, {{Kind::length, "3"}, {Kind::min_length, "1"}}, "length-minLength-maxLength"},
  {"string", {}, {{Kind::length, "3"}, {Kind::max_length, "3"}}, "length-minLength-maxLength"},
  {"string", {{Kind::min_length, "1"}, {Kind::max_length, "5"}}, {{Kind::length, "3"}}, ""},
  {"string", {{Kind::min_length, "1"}, {Kind::max_length, "5"}}, {{Kind::length, "3"}, {Kind::min_length, "1"}}, ""},
  {"string", {{Kind::min_length, "1"}}, {{Kind::length, "3"}, {Kind::min_length, "2"}}, "length-minLength-maxLength"},
  {"string", {{Kind::min_length, "4"}}, {{Kind::length, "3"}}, "length-minLength-maxLength"},
  {"string", {{Kind::max_length, "2"}}, {{Kind::length, "3"}}, "length-minLength-maxLength"},
  {"string", {}, {{Kind::min_length, "2"}, {Kind::max_length, "1"}}, "minLength-less-than-equal-to-maxLength"},
  {"string", {}, {{Kind::min_length, "99999999999999999999999"}, {Kind::max_length, "99999999999999999999998"}},
    "minLength-less-than-equal-to-maxLength"},
  {"string", {{Kind::length, "99999999999999999999999"}}, {{Kind::length, "099999999999999999999998"}},
    "length-valid-restriction"},
  {"string", {{Kind::max_length, "99999999999999999999998"}}, {{Kind::max_length, "99999999999999999999999"}},
    "maxLength-valid-restriction"},
  {"decimal", {{Kind::total_digits, "99999999999999999999998"}}, {{Kind::total_digits, "99999999999999999999999"}},
    "totalDigits-valid-restriction"},
  {"string", {}, {{Kind::min_length, "2"}, {Kind::max_length, "2"}}, ""},
  {"string", {{Kind::max_length, "3"}}, {{Kind::min_length, "4"}}, "minLength-less-than-equal-to-maxLength"},
  {"string", {{Kind::min_length, "2"}}, {{Kind::min_length, "1"}}, "minLength-valid-restriction"},
  {"string", {{Kind::min_length, "2"}}, {{Kind::min_length, "3"}}, ""},
  {"string", {{Kind::max_length, "2"}}, {{Kind::max_length, "3"}}, "maxLength-valid-restriction"},
  {"string", {{Kind::max_length, "2"}}, {{Kind::max_length, "1"}}, ""},
  {"string", {{Kind::max_length, "99999999999999999999999"}}, {{Kind::max_length, "5"}}, ""},
  {"NMTOKENS", {}, {{Kind::min_length, "0"}}, "minLength-valid-restriction"},
  {"NMTOKENS", {}, {{Kind::max_length, "3"}}, ""},
  // White space
  {"string", {}, {{Kind::white_space, "collapse"}}, ""},
  {"string", {}, {{Kind::white_space, "shrink"}}, "cvc-enumeration-valid"},
  {"normalizedString", {}, {{Kind::white_space, "preserve"}}, "whiteSpace-valid-restriction"},
  {"token", {}, {{Kind::white_space, "replace"}}, "whiteSpace-valid-restriction"},
  {"token", {}, {{Kind::white_space, "collapse"}}, ""},
  {"int", {}, {{Kind::white_space, "collapse"}}, ""},
  {"int", {}, {{Kind::white_space, "replace"}}, "cos-st-restricts.1.3"},
  // Bounds
  {"int", {}, {{Kind::min_inclusive, "1"}, {Kind::max_inclusive, "2"}}, ""},
  {"int", {}, {{Kind::min_inclusive, "2"}, {Kind::max_inclusive, "2"}}, ""},
  {"int", {}, {{Kind::min_inclusive, "3"}, {Kind::max_inclusive, "2"}}, "minInclusive-less-than-equal-to-maxInclusive"},
  {"int", {}, {{Kind::min_exclusive, "3"}, {Kind::max_exclusive, "2"}}, "minExclusive-less-than-equal-to-maxExclusive"},
  {"int", {}, {{Kind::min_exclusive, "2"}, {Kind::max_exclusive, "2"}}, ""},
  {"int", {}, {{Kind::min_exclusive, "2"}, {Kind::max_inclusive, "2"}}, "minExclusive-less-than-maxInclusive"},
  {"int", {}, {{Kind::min_inclusive, "2"}, {Kind::max_exclusive, "2"}}, "minInclusive-less-than-maxExclusive"},
  {"int", {}, {{Kind::min_inclusive, "1"}, {Kind::min_exclusive, "0"}}, "minInclusive-minExclusive"},
  {"int", {}, {{Kind::max_inclusive, "1"}, {Kind::max_exclusive, "2"}}, "maxInclusive-maxExclusive"},
  {"int", {}, {{Kind::max_inclusive, "x"}}, "cvc-datatype-valid.1.2.1"},
  {"int", {}, {{Kind::max_inclusive, "1.5"}}, "cvc-datatype-valid.1.2.1"},
  {"int", {}, {{Kind::max_inclusive, "2147483648"}}, "maxInclusive-valid-restriction"},
  {"int", {}, {{Kind::min_inclusive, "-2147483649"}}, "minInclusive-valid-restriction"},
  {"int", {}, {{Kind::max_inclusive, "1"}, {Kind::max_inclusive, "1"}}, "src-single-facet-value"},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::max_inclusive, "6"}}, "maxInclusive-valid-restriction"},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::max_inclusive, "5"}}, ""},
  {"int", {{Kind::max_exclusive, "5"}}, {{Kind::max_inclusive, "5"}}, "maxInclusive-valid-restriction"},
  {"int", {{Kind::max_exclusive, "5"}}, {{Kind::max_inclusive, "4"}}, ""},
  {"int", {{Kind::min_inclusive, "5"}}, {{Kind::max_inclusive, "4"}}, "maxInclusive-valid-restriction"},
  {"int", {{Kind::min_exclusive, "5"}}, {{Kind::max_inclusive, "5"}}, "maxInclusive-valid-restriction"},
  {"int", {{Kind::max_exclusive, "5"}}, {{Kind::max_exclusive, "5"}}, ""},
  {"int", {{Kind::max_exclusive, "5"}}, {{Kind::max_exclusive, "6"}}, "maxExclusive-valid-restriction"},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::max_exclusive, "6"}}, "maxExclusive-valid-restriction"},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::max_exclusive, "5"}}, ""},
  {"int", {{Kind::min_inclusive, "5"}}, {{Kind::max_exclusive, "5"}}, "maxExclusive-valid-restriction"},
  {"int", {{Kind::min_exclusive, "5"}}, {{Kind::min_exclusive, "5"}}, ""},
  {"int", {{Kind::min_exclusive, "5"}}, {{Kind::min_exclusive, "4"}}, "minExclusive-valid-restriction"},
  {"int", {{Kind::min_inclusive, "5"}}, {{Kind::min_exclusive, "4"}}, "minExclusive-valid-restriction"},
  {"int", {{Kind::min_inclusive, "5"}}, {{Kind::min_exclusive, "5"}}, ""},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::min_exclusive, "5"}}, "minExclusive-valid-restriction"},
  {"int", {{Kind::max_exclusive, "5"}}, {{Kind::min_exclusive, "5"}}, "minExclusive-valid-restriction"},
  {"int", {{Kind::min_inclusive, "5"}}, {{Kind::min_inclusive, "4"}}, "minInclusive-valid-restriction"},
  {"int", {{Kind::min_exclusive, "5"}}, {{Kind::min_inclusive, "5"}}, "minInclusive-valid-restriction"},
  {"int", {{Kind::min_exclusive, "5"}}, {{Kind::min_inclusive, "6"}}, ""},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::min_inclusive, "6"}}, "minInclusive-valid-restriction"},
  {"int", {{Kind::max_exclusive, "5"}}, {{Kind::min_inclusive, "5"}}, "minInclusive-valid-restriction"},
  {"date", {}, {{Kind::min_inclusive, "2024-02-30"}}, "cvc-datatype-valid.1.2.1"},
  {"date", {{Kind::min_inclusive, "2024-01-01"}}, {{Kind::min_inclusive, "2023-01-01"}},
    "minInclusive-valid-restriction"},
  {"duration", {}, {{Kind::min_inclusive, "P1M"}, {Kind::max_inclusive, "P30D"}}, ""},
  {"double", {}, {{Kind::min_inclusive, "NaN"}}, ""},
  // Digits
  {"decimal", {}, {{Kind::total_digits, "3"}, {Kind::fraction_digits, "3"}}, ""},
  {"decimal", {}, {{Kind::total_digits, "0"}}, "cvc-datatype-valid.1.2.1"},
  {"decimal", {}, {{Kind::fraction_digits, "0"}}, ""},
  {"decimal", {}, {{Kind::total_digits, "2"}, {Kind::fraction_digits, "3"}},
    "fractionDigits-less-than-equal-to-totalDigits"},
  {"decimal", {{Kind::total_digits, "2"}}, {{Kind::total_digits, "3"}}, "totalDigits-valid-restriction"},
  {"decimal", {{Kind::fraction_digits, "2"}}, {{Kind::fraction_digits, "3"}}, "fractionDigits-valid-restriction"},
  {"decimal", {{Kind::fraction_digits, "2"}}, {{Kind::total_digits, "1"}},
    "fractionDigits-less-than-equal-to-totalDigits"},
  {"integer", {}, {{Kind::fraction_digits, "0"}}, ""},
  {"integer", {}, {{Kind::fraction_digits, "1"}}, "cos-st-restricts.1.3"},
  // Patterns and enumerations
  {"string", {}, {{Kind::pattern, "a"}, {Kind::pattern, "b"}}, ""},
  {"string", {}, {{Kind::pattern, "a("}}, "pattern-valid"},
  {"int", {}, {{Kind::enumeration, "1"}, {Kind::enumeration, "1"}}, ""},
  {"int", {}, {{Kind::enumeration, "x"}}, "enumeration-valid-restriction"},
  {"int", {{Kind::max_inclusive, "5"}}, {{Kind::enumeration, "6"}}, "enumeration-valid-restriction"},
  {"int", {{Kind::enumeration, "1"}}, {{Kind::enumeration, "2"}}, "enumeration-valid-restriction"},
  {"int", {{Kind::enumeration, "1"}}, {{Kind::enumeration, "01"}}, ""},
  // Which facets apply to which types (Part 2, 4.1.5)
  {"int", {}, {{Kind::length, "1"}}, "cos-applicable-facets"},
  {"string", {}, {{Kind::max_inclusive, "1"}}, "cos-applicable-facets"},
  {"string", {}, {{Kind::total_digits, "1"}}, "cos-applicable-facets"},
  {"boolean", {}, {{Kind::enumeration, "true"}}, "cos-applicable-facets"},
  {"boolean", {}, {{Kind::pattern, "true"}}, ""},
  {"double", {}, {{Kind::total_digits, "1"}}, "cos-applicable-facets"},
  {"date", {}, {{Kind::max_length, "1"}}, "cos-applicable-facets"},
  {"anyURI", {}, {{Kind::max_length, "1"}}, ""},
  {"hexBinary", {}, {{Kind::max_length, "1"}}, ""},
  {"QName", {}, {{Kind::max_length, "1"}}, ""},
  {"NMTOKENS", {}, {{Kind::max_inclusive, "1"}}, "cos-applicable-facets"},
  {"anySimpleType", {}, {{Kind::length, "1"}}, "cos-st-restricts.1.1 cos-applicable-facets"},
};

// Which texts a step of facets takes.
struct Taking
{
  char const* base;
  std::vector<std::pair<Kind, char const*>> facets;
  std::vector<std::string> taken;
  std::vector<std::string> refused;
};

Taking const takings[] = {
  {"string", {{Kind::length, "2"}}, {"ab", "\xC3\xA4\xF0\x9F\x98\x80"}, {"a", "abc", ""}},
  {"string", {{Kind::min_length, "2"}, {Kind::max_length, "3"}}, {"ab", "abc"}, {"a", "abcd"}},
  {"token", {{Kind::length, "3"}}, {" a  b "}, {"a  b c"}},
  {"hexBinary", {{Kind::length, "2"}}, {"0011"}, {"00", "001122"}},
  {"base64Binary", {{Kind::max_length, "2"}}, {"AAA=", "A A A =", "AA=="}, {"AAAA"}},
  {"NMTOKENS", {{Kind::length, "2"}}, {" a  b "}, {"a", "a b c"}},
  {"QName", {{Kind::length, "1"}}, {"abc"}, {}},
  {"anyURI", {{Kind::max_length, "3"}}, {"a/b"}, {"a/bc"}},
  {"decimal", {{Kind::total_digits, "3"}}, {"123", "1.23", "00123.00", "0.123", "-999"},
    {"1234", "0.1234", "12.34", "0.0001"}},
  {"decimal", {{Kind::fraction_digits, "1"}}, {"1", "1.5", "123456.50"}, {"1.55", "0.01"}},
  {"decimal", {{Kind::min_exclusive, "1"}, {Kind::max_exclusive, "2"}}, {"1.5", "1.0000001"},
    {"1", "2", "1.0", "2.00"}},
  {"int", {{Kind::min_inclusive, "-5"}, {Kind::max_inclusive, "10"}}, {"-5", "10", "+9", "-0"}, {"-6", "11", "100"}},
  {"double", {{Kind::max_inclusive, "1"}}, {"1", "-INF", "0.5"}, {"NaN", "INF", "1.1"}},
  {"double", {{Kind::max_inclusive, "NaN"}}, {"NaN"}, {"1", "INF"}},
  {"double", {{Kind::max_exclusive, "NaN"}}, {}, {"NaN", "1"}},
  {"dateTime", {{Kind::min_inclusive, "2000-01-01T00:00:00Z"}}, {"2000-01-01T00:00:00Z", "2000-01-01T14:00:01"},
    {"1999-12-31T23:59:59Z", "2000-01-01T14:00:00", "2000-01-01T00:00:00"}},
  {"date", {{Kind::max_exclusive, "2024-01-01"}}, {"2023-12-31", "1000-01-01Z"}, {"2024-01-01", "2024-01-01Z"}},
  {"time", {{Kind::min_inclusive, "12:00:00"}}, {"12:00:00", "23:00:00"}, {"11:59:59.9"}},
  {"duration", {{Kind::max_inclusive, "P1M"}}, {"P1M", "P27D"}, {"P28D", "P31D", "P2M"}},
  {"gYear", {{Kind::max_inclusive, "2000"}}, {"-5000", "2000"}, {"2001", "10000"}},
  {"string", {{Kind::pattern, "a+"}, {Kind::pattern, "b|c"}}, {"aa", "b", "c"}, {"ab", "bb", ""}},
  {"int", {{Kind::pattern, "0.*"}}, {"05", " 05 "}, {"5"}},
  {"token", {{Kind::pattern, "a b"}}, {" a   b "}, {"ab"}},
  {"NMTOKENS", {{Kind::pattern, "a( b)*"}}, {" a   b b", "a"}, {"b"}},
  {"string", {{Kind::enumeration, "a"}, {Kind::enumeration, " b"}}, {"a", " b"}, {"b", "A", ""}},
  {"decimal", {{Kind::enumeration, "1"}, {Kind::enumeration, "2.50"}}, {"1.0", "2.5", "+01"}, {"2", "1.1"}},
  {"double", {{Kind::enumeration, "0"}, {Kind::enumeration, "NaN"}}, {"-0", "NaN", "0e5"}, {"1"}},
  {"NMTOKENS", {{Kind::enumeration, "a b"}}, {" a  b"}, {"a", "b a", "ab"}},
  {"dateTime", {{Kind::enumeration, "2024-01-01T00:00:00Z"}}, {"2024-01-01T01:00:00+01:00"}, {"2024-01-01T00:00:00"}},
  {"string", {{Kind::white_space, "collapse"}, {Kind::length, "1"}}, {"a", "  a  "}, {"a a"}},
};
}

TEST(axsSimpleTypes, refuse_what_is_against_a_rule_of_a_facet_and_name_it)
{
  for (Step const& step : steps)
  {
    Making making;
    axsSimpleType const& base =
      step.first.empty() ? built_in(step.base) : making.restrict(step.base, facets_of(step.first));
    std::string told;
    for (auto const& pair : step.second)
      told += std::string(axsFacets::name(pair.first)) + " '" + pair.second + "' ";
    EXPECT_EQ(making.fault(base, facets_of(step.second)), step.rule) << step.base << ' ' << told;
  }
}

TEST(axsSimpleTypes, facets_take_the_values_that_they_say)
{
  for (Taking const& each : takings)
  {
    Making making;
    axsSimpleType const& type = making.restrict(each.base, facets_of(each.facets), "t");
    for (std::string const& text : each.taken)
      EXPECT_TRUE(is_valid(type, text)) << each.base << ' ' << each.facets.front().second << " '" << text << "'";
    for (std::string const& text : each.refused)
    {
      EXPECT_FALSE(is_valid(type, text)) << each.base << ' ' << each.facets.front().second << " '" << text << "'";
      EXPECT_NE(fault_of(type, text).find("is not of the type 't'"), std::string::npos) << fault_of(type, text);
    }
  }
}

TEST(axsSimpleTypes, facets_of_all_steps_hold)
{
  Making making;
  axsSimpleType const& first = making.restrict("string", {facet(Kind::pattern, "[ab]+"), facet(Kind::max_length, "4")});
  axsSimpleType const& second = making.restrict(first, {facet(Kind::pattern, ".*b"), facet(Kind::pattern, "a.*")});
  axsSimpleType const& third = making.restrict(second, {facet(Kind::min_length, "2")});
  EXPECT_TRUE(is_valid(third, "ab"));
  EXPECT_TRUE(is_valid(third, "aa"));
  EXPECT_TRUE(is_valid(third, "bb"));
  EXPECT_FALSE(is_valid(third, "ba"));
  EXPECT_FALSE(is_valid(third, "a"));
  EXPECT_FALSE(is_valid(third, "aaaab"));
  EXPECT_FALSE(is_valid(third, "acb"));
  EXPECT_EQ(third.facet_text(Kind::max_length), "4");
}

TEST(axsSimpleTypes, a_fixed_facet_may_be_repeated_but_not_changed)
{
  Making making;
  axsSimpleType const& base = making.restrict("decimal",
    {facet(Kind::total_digits, "5", true), facet(Kind::max_inclusive, "9", true), facet(Kind::pattern, "\\d+")});
  EXPECT_TRUE(base.is_fixed(Kind::total_digits));
  EXPECT_EQ(making.fault(base, {facet(Kind::total_digits, "05")}), "");
  EXPECT_EQ(making.fault(base, {facet(Kind::total_digits, "4")}), "cos-st-restricts.1.3");
  EXPECT_EQ(making.fault(base, {facet(Kind::max_inclusive, "9.0")}), "");
  EXPECT_EQ(making.fault(base, {facet(Kind::max_inclusive, "8")}), "cos-st-restricts.1.3");
  axsSimpleType const& text =
    making.restrict("string", {facet(Kind::length, "2", true), facet(Kind::white_space, "replace", true)});
  EXPECT_EQ(making.fault(text, {facet(Kind::white_space, "collapse")}), "cos-st-restricts.1.3");
  EXPECT_EQ(making.fault(text, {facet(Kind::length, "2")}), "");
}

TEST(axsSimpleTypes, tell_the_place_and_the_words_of_what_is_wrong)
{
  axsSimpleTypes types;
  NotedDiagnostics noted;
  axsFacet wrong = facet(Kind::max_inclusive, "99999999999");
  wrong.place = 7;
  axsTypeHead head;
  head.place = 3;
  axsSimpleType const& type = types.restrict(head, built_in("int"), {wrong}, noted);
  ASSERT_EQ(noted.places, std::vector<std::uint64_t>{7});
  EXPECT_EQ(noted.texts[0],
    "maxInclusive '99999999999' is outside of the values of xs:int, whose maxInclusive is '2147483647'");
  EXPECT_EQ(type.facet_text(Kind::max_inclusive), "2147483647");
  wrong = facet(Kind::pattern, "a(b");
  types.restrict(head, built_in("int"), {wrong}, noted);
  EXPECT_EQ(noted.texts[1], "pattern 'a(b' is no regular expression: there is no ')' for this '(' (character 2)");
}

TEST(axsSimpleTypes, lists_have_items_of_their_type)
{
  Making making;
  axsSimpleType const& ints = making.list(built_in("int"), "ints");
  EXPECT_TRUE(is_valid(ints, ""));
  EXPECT_TRUE(is_valid(ints, " 1\n 2 "));
  EXPECT_EQ(fault_of(ints, "1 x"), "\"1 x\" is not of the type 'ints': its item 'x' is not of the type xs:int");
  EXPECT_EQ(ints.white_space(), axsWhiteSpace::collapse);
  EXPECT_EQ(making.fault(ints, {facet(Kind::white_space, "replace")}), "cos-st-restricts.1.3");
  axsSimpleType const& few = making.restrict(ints, {facet(Kind::max_length, "2"), facet(Kind::enumeration, "1 2")});
  EXPECT_TRUE(is_valid(few, "01 2.") == false);
  EXPECT_TRUE(is_valid(few, "01 +2"));
  EXPECT_FALSE(is_valid(few, "1"));
}

TEST(axsSimpleTypes, the_items_of_a_list_are_no_lists)
{
  Making making;
  axsSimpleType const& ints = making.list(built_in("int"));
  axsSimpleType const& mixed = making.union_of({&built_in("int"), &ints});
  NotedDiagnostics noted;
  making.types.list({}, ints, noted);
  making.types.list({}, mixed, noted);
  making.types.list({}, built_in("NMTOKENS"), noted);
  EXPECT_EQ(noted.rules, std::vector<std::string>(3, "cos-list-of-atomic"));
}

TEST(axsSimpleTypes, the_first_member_that_takes_a_text_is_the_active_one)
{
  Making making;
  axsSimpleType const& colour = making.restrict("string", {facet(Kind::enumeration, "red")}, "colour");
  axsSimpleType const& ints = making.list(built_in("int"));
  axsSimpleType const& type = making.union_of({&built_in("int"), &colour, &ints, &built_in("date")}, "u");
  ToldContext const context;
  axsValue value;
  std::pair<char const*, axsSimpleType const*> const active[] = {
    {"1", &built_in("int")}, {"red", &colour}, {"1 2", &ints}, {" 2024-01-01 ", &built_in("date")}};
  for (auto const& [text, member] : active)
  {
    EXPECT_TRUE(type.check(text, context, &value)) << text;
    EXPECT_EQ(value.active_type(), member) << text;
  }
  EXPECT_FALSE(type.check(" red", context, &value));
  EXPECT_TRUE(value.bytes().empty());
  EXPECT_EQ(fault_of(making.union_of({&built_in("int"), &colour}, "v"), "blue"),
    "\"blue\" is not of the type 'v': it is of none of the types xs:int, 'colour'");
  EXPECT_EQ(bytes_of(type, "1"), bytes_of(built_in("byte"), "+01"));
}

TEST(axsSimpleTypes, unions_take_patterns_and_enumerations_of_values)
{
  Making making;
  axsSimpleType const& base = making.union_of({&built_in("decimal"), &built_in("string")});
  axsSimpleType const& type = making.restrict(base, {facet(Kind::enumeration, "1.0"), facet(Kind::enumeration, "x")});
  EXPECT_TRUE(is_valid(type, "1"));
  EXPECT_TRUE(is_valid(type, "x"));
  EXPECT_FALSE(is_valid(type, "1.5"));
  EXPECT_FALSE(is_valid(type, " x"));
  EXPECT_EQ(making.fault(base, {facet(Kind::max_length, "2")}), "cos-applicable-facets");
  EXPECT_EQ(making.fault(base, {facet(Kind::white_space, "collapse")}), "cos-applicable-facets");
  axsSimpleType const& matched = making.restrict(base, {facet(Kind::pattern, "1.*")});
  EXPECT_TRUE(is_valid(matched, " 1 "));
  EXPECT_FALSE(is_valid(matched, " 1x"));
  EXPECT_TRUE(is_valid(matched, "1x"));
}

TEST(axsSimpleTypes, a_member_that_is_named_twice_counts_once)
{
  Making making;
  axsSimpleType const& type = making.union_of({&built_in("int"), &built_in("date"), &built_in("int")}, "u");
  EXPECT_TRUE(is_valid(type, "1"));
  EXPECT_EQ(fault_of(type, "x"), "\"x\" is not of the type 'u': it is of none of the types xs:int, xs:date");
}

// Part 1, 3.14.2, {member type definitions}: a union among the members is replaced by its own members, whatever it asks for
// beyond them.
TEST(axsSimpleTypes, the_members_of_a_union_within_a_union_stand_in_its_place)
{
  Making making;
  axsSimpleType const& inner = making.union_of({&built_in("int"), &built_in("date")});
  axsSimpleType const& few = making.restrict(inner, {facet(Kind::enumeration, "1")});
  axsSimpleType const& outer = making.union_of({&few, &built_in("boolean")});
  EXPECT_FALSE(is_valid(few, "2"));
  EXPECT_TRUE(is_valid(outer, "2"));
  EXPECT_TRUE(is_valid(outer, "2024-01-01"));
  EXPECT_TRUE(is_valid(outer, "true"));
  EXPECT_FALSE(is_valid(outer, "x"));
}

TEST(axsSimpleTypes, an_id_counts_only_in_the_member_that_takes_the_text)
{
  Making making;
  axsSimpleType const& ids = making.restrict("IDREFS", {facet(Kind::max_length, "1")});
  axsSimpleType const& type = making.union_of({&ids, &built_in("NMTOKENS")});
  ToldContext const context;
  axsValue value;
  EXPECT_TRUE(type.check("a b", context, &value));
  EXPECT_TRUE(value.identifiers().empty());
  EXPECT_TRUE(type.check("a", context, &value));
  EXPECT_EQ(value.identifiers().size(), 1u);
}

TEST(axsSimpleTypes, final_types_are_not_derived_from)
{
  Making making;
  NotedDiagnostics noted;
  axsTypeHead head;
  head.name = "closed";
  head.final_set = axsDerivationRestriction | axsDerivationList | axsDerivationUnion;
  axsSimpleType const& closed = making.types.restrict(head, built_in("int"), {}, noted);
  making.types.restrict({}, closed, {}, noted);
  making.types.list({}, closed, noted);
  making.types.union_of({}, {&closed}, noted);
  EXPECT_EQ(noted.rules,
    (std::vector<std::string>{"st-props-correct.3", "cos-st-restricts.2.3.1.1", "cos-st-restricts.3.3.1.1"}));
}

TEST(axsSimpleTypes, are_derived_from_their_bases_and_into_unions)
{
  Making making;
  axsSimpleType const& own = making.restrict("int", {});
  axsSimpleType const& inner = making.union_of({&built_in("date"), &built_in("decimal")});
  axsSimpleType const& outer = making.union_of({&inner, &built_in("string")});
  EXPECT_TRUE(own.is_derived_from(own));
  EXPECT_TRUE(own.is_derived_from(built_in("decimal")));
  EXPECT_FALSE(built_in("decimal").is_derived_from(own));
  EXPECT_TRUE(own.is_derived_from(outer));
  EXPECT_FALSE(built_in("double").is_derived_from(outer));
  EXPECT_FALSE(own.is_derived_from(built_in("int"), axsDerivationRestriction));
  EXPECT_TRUE(own.is_derived_from(own, axsDerivationRestriction));
  EXPECT_TRUE(making.list(own).is_derived_from(axsBuiltInTypes::any_simple_type()));
}

TEST(axsSimpleTypes, enumerations_of_names_are_resolved_where_they_stand)
{
  ToldContext schema;
  schema.namespaces["s"] = "urn:n";
  schema.notation = "gif";
  axsFacet listed = facet(Kind::enumeration, "s:gif");
  listed.context = &schema;
  Making making;
  axsSimpleType const& type = making.restrict("NOTATION", {listed});
  ToldContext document = schema;
  document.namespaces = {{"d", "urn:n"}, {"s", "urn:other"}};
  EXPECT_TRUE(type.check("d:gif", document, nullptr));
  EXPECT_FALSE(type.check("s:gif", document, nullptr));
  EXPECT_TRUE(type.has_notation());
  EXPECT_TRUE(type.needs_namespaces());
  EXPECT_EQ(making.fault(built_in("QName"), {facet(Kind::enumeration, "p:x")}), "enumeration-valid-restriction");
}

TEST(axsSimpleTypes, say_what_facets_ask_for)
{
  Making making;
  std::vector<axsFacet> const colours{facet(Kind::enumeration, "red"), facet(Kind::enumeration, "green")};
  EXPECT_EQ(fault_of(making.restrict("string", colours, "colour"), "blue"),
    "\"blue\" is not of the type 'colour': it is none of 'red', 'green'");
  EXPECT_EQ(
    fault_of(making.restrict("string", std::vector<axsFacet>(1, facet(Kind::pattern, "[A-Z]{3}")), "code"), "ab"),
    "\"ab\" is not of the type 'code': it does not match the pattern '[A-Z]{3}'");
  axsSimpleType const& percent =
    making.restrict("int", {facet(Kind::min_inclusive, "0"), facet(Kind::max_inclusive, "100")}, "percent");
  EXPECT_EQ(fault_of(percent, "x"), "\"x\" is not of the type 'percent', which is made from xs:int");
  EXPECT_EQ(fault_of(percent, "101"),
    "\"101\" is not of the type 'percent': it must be less than or equal to maxInclusive facet value '100'");
  EXPECT_EQ(fault_of(making.restrict("string", {facet(Kind::max_length, "2")}), "abc"),
    "\"abc\" is not allowed: it has length '3' which exceeds maxLength facet value '2'");
  char const* rule = nullptr;
  ToldContext const context;
  static_cast<void>(percent.fault("101", context, &rule));
  EXPECT_STREQ(rule, "cvc-maxInclusive-valid");
}
