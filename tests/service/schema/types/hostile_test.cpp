#include "Making.h"

using Kind = axsFacetKind;

TEST(axsSimpleTypes, a_million_enumerated_values_are_found_at_once)
{
  std::size_t const count = 1000000;
  std::string texts;
  std::vector<std::size_t> ends;
  for (std::size_t i = 0; i < count; ++i)
  {
    texts += "v" + std::to_string(i);
    ends.push_back(texts.size());
  }
  std::vector<axsFacet> facets;
  facets.reserve(count);
  for (std::size_t i = 0; i < count; ++i)
  {
    std::size_t const begin = i == 0 ? 0 : ends[i - 1];
    facets.push_back(facet(Kind::enumeration, std::string_view(texts).substr(begin, ends[i] - begin)));
  }
  Making making;
  axsSimpleType const& type = making.restrict("string", facets, "t");
  ASSERT_NE(type.enumeration(), nullptr);
  EXPECT_EQ(type.enumeration()->size(), count);
  for (std::size_t i = 0; i < count; i += 7)
    ASSERT_TRUE(is_valid(type, facets[i].value));
  EXPECT_EQ(fault_of(type, "w"), "\"w\" is not of the type 't': it is none of the values listed in the schema");

  // What restricts it shares the list.
  axsSimpleType const* at = &type;
  for (int i = 0; i < 1000; ++i)
    at = &making.restrict(*at, {facet(Kind::max_length, std::to_string(2000 - i))});
  EXPECT_EQ(at->enumeration(), type.enumeration());
}

TEST(axsSimpleTypes, types_may_be_derived_from_each_other_in_any_depth)
{
  Making making;
  axsSimpleType const* at = &built_in("string");
  for (int i = 0; i < 100000; ++i)
    at = &making.restrict(*at, {});
  EXPECT_TRUE(is_valid(*at, "x"));
  EXPECT_TRUE(at->is_derived_from(built_in("string")));
  EXPECT_FALSE(at->is_derived_from(built_in("decimal")));
  std::vector<std::string> const patterns{"[a-z]*", ".*"};
  for (std::size_t i = 0; i < 1000; ++i)
    at = &making.restrict(*at, {facet(Kind::pattern, patterns[i % 2])});
  EXPECT_TRUE(is_valid(*at, "abc"));
  EXPECT_FALSE(is_valid(*at, "1"));
}

TEST(axsSimpleTypes, unions_of_unions_are_looked_at_once_each)
{
  // Every level names the one before it in two ways: there are 2 to the 200 ways down.
  Making making;
  axsSimpleType const* at = &making.union_of({&built_in("int"), &built_in("date")});
  for (int i = 0; i < 200; ++i)
  {
    axsSimpleType const& left = making.union_of({at});
    axsSimpleType const& right = making.union_of({at, &built_in("boolean")});
    at = &making.union_of({&left, &right});
  }
  EXPECT_TRUE(is_valid(*at, "1"));
  EXPECT_TRUE(is_valid(*at, "true"));
  EXPECT_FALSE(is_valid(*at, "x"));
  EXPECT_TRUE(built_in("byte").is_derived_from(*at));
  EXPECT_FALSE(built_in("double").is_derived_from(*at));
  EXPECT_NE(fault_of(*at, "x").find("is not allowed"), std::string::npos);
}

TEST(axsSimpleTypes, unions_may_lie_in_each_other_in_any_depth_and_have_any_number_of_members)
{
  Making making;
  axsSimpleType const* at = &built_in("int");
  for (int i = 0; i < 20000; ++i)
    at = &making.union_of({at, &built_in("boolean")});
  EXPECT_TRUE(is_valid(*at, "1"));
  EXPECT_FALSE(is_valid(*at, "x"));
  std::vector<axsSimpleType const*> members;
  for (int i = 0; i < 20000; ++i)
    members.push_back(&making.restrict("int", {}));
  axsSimpleType const* wide = &making.union_of(members);
  for (int i = 0; i < 20000; ++i)
    wide = &making.restrict(*wide, {});
  EXPECT_EQ(&wide->members(), &wide->base()->members());
  EXPECT_TRUE(is_valid(*wide, "5"));
}

TEST(axsSimpleTypes, long_values_are_looked_at_in_one_pass)
{
  std::size_t const length = 3000000;
  Making making;
  EXPECT_TRUE(is_valid(built_in("integer"), std::string(length, '9')));
  EXPECT_TRUE(is_valid(built_in("decimal"), "0." + std::string(length, '0') + "1"));
  EXPECT_EQ(bytes_of(built_in("decimal"), std::string(length, '0') + "1"), bytes_of(built_in("decimal"), "1"));
  EXPECT_TRUE(is_valid(built_in("double"), std::string(length, '9') + "e-" + std::to_string(length)));
  EXPECT_TRUE(is_valid(built_in("gYear"), std::string(length, '9')));
  EXPECT_TRUE(is_valid(built_in("duration"), "P" + std::string(length, '9') + "Y" + std::string(length, '9') + "M"));
  EXPECT_TRUE(is_valid(built_in("base64Binary"), std::string(length / 4 * 4, 'A')));
  EXPECT_TRUE(is_valid(built_in("token"), std::string(length, ' ') + "a"));
  std::string list;
  for (std::size_t i = 0; i < length / 3; ++i)
    list += "1 \n";
  EXPECT_TRUE(is_valid(making.list(built_in("int")), list));
  EXPECT_FALSE(is_valid(making.restrict("int", {facet(Kind::pattern, "(1+)+")}), std::string(100000, '1')));
  EXPECT_TRUE(is_valid(making.restrict("integer", {facet(Kind::pattern, "(1+)+")}), std::string(100000, '1')));
}

TEST(axsSimpleTypes, thousands_of_patterns_in_one_step_are_one_automaton)
{
  std::vector<std::string> texts;
  for (int i = 0; i < 10000; ++i)
    texts.push_back("x" + std::to_string(i) + "[a-z]*");
  std::vector<axsFacet> facets;
  for (std::string const& text : texts)
    facets.push_back(facet(Kind::pattern, text));
  Making making;
  axsSimpleType const& type = making.restrict("string", facets, "t");
  EXPECT_TRUE(is_valid(type, "x9999abc"));
  EXPECT_FALSE(is_valid(type, "x10000abc"));
  EXPECT_LT(fault_of(type, "y").size(), 1000u);
}
