#include "Making.h"

#include <axsQuickCheck.h>

#include <random>

using Kind = axsFacetKind;

namespace
{
bool is_recognised(axsSimpleType const& type, std::string_view text)
{
  return axsQuickCheck(type).takes(text);
}

// Texts that come near to values: made of the parts of which values are.
class Texts
{
public:
  explicit Texts(unsigned seed) : random(seed) {}

  std::string make()
  {
    static char const* const parts[] = {"0", "00", "1", "9", "12", "29", "30", "31", "59", "60", "24", "2024", "1900",
      "0000", "12345", "123456789012345678", "9999999999", "-", "+", ".", ":", "T", "Z", "T12:30:00", "2024-02-29",
      "2023-02-29", "2024-01-31", "-01-15", "true", "false", "en", "abc", "a b", " ", "  ", "\t", "\n", "_x", "ü",
      "%41", "%", "#", "http://a", "E5", "INF"};
    std::string text;
    for (std::size_t count = random() % 4 + (random() % 20 != 0 ? 1 : 0); count > 0; --count)
      text += parts[random() % std::size(parts)];
    return text;
  }

  std::size_t below(std::size_t count) { return random() % count; }

private:
  std::mt19937 random;
};
}

TEST(axsQuickCheck, recognises_what_is_written_most)
{
  std::pair<char const*, char const*> const values[] = {{"string", " any\ntext "}, {"token", " any text "},
    {"NCName", "a-b.1"}, {"Name", "a:b"}, {"NMTOKEN", "1"}, {"language", "en-GB"}, {"anyURI", "http://example.org/a#b"},
    {"boolean", "true"}, {"boolean", "0"}, {"decimal", "-12.50"}, {"decimal", ".5"}, {"integer", "+7"},
    {"int", "2147483647"}, {"unsignedLong", "999999999999999999"}, {"long", "-5"}, {"positiveInteger", "1"},
    {"double", "1.5"}, {"date", "2024-01-31"}, {"dateTime", "2024-12-31T23:59:59"},
    {"dateTime", "2024-12-31T00:00:00Z"}};
  for (auto const& [type, text] : values)
    EXPECT_TRUE(is_recognised(built_in(type), text)) << type << " " << text;
}

TEST(axsQuickCheck, recognises_values_with_facets)
{
  Making making;
  axsSimpleType const& code = making.restrict("string", {facet(Kind::pattern, "[A-Z]{3}")});
  EXPECT_TRUE(is_recognised(code, "EUR"));
  EXPECT_FALSE(is_recognised(code, "EU"));
  axsSimpleType const& colour =
    making.restrict("token", {facet(Kind::enumeration, "red"), facet(Kind::enumeration, "blue")});
  EXPECT_TRUE(is_recognised(colour, "blue"));
  EXPECT_FALSE(is_recognised(colour, "green"));
  axsSimpleType const& brief = making.restrict("string", {facet(Kind::max_length, "3")});
  EXPECT_TRUE(is_recognised(brief, "äöü"));
  EXPECT_FALSE(is_recognised(brief, "abcd"));
  axsSimpleType const& money =
    making.restrict("decimal", {facet(Kind::fraction_digits, "2"), facet(Kind::min_inclusive, "0")});
  EXPECT_TRUE(is_recognised(money, "12.25"));
  EXPECT_FALSE(is_recognised(money, "12.255"));
  EXPECT_FALSE(is_recognised(money, "-1"));
}

// Whether a value is asked for decides which of the two ways is taken.
TEST(axsQuickCheck, recognises_nothing_that_is_no_value)
{
  Making making;
  std::vector<axsSimpleType const*> types;
  for (char const* const name : {"string", "normalizedString", "token", "language", "NMTOKEN", "Name", "NCName", "ID",
         "anyURI", "boolean", "decimal", "integer", "float", "double", "date", "dateTime", "time", "gYear", "gMonthDay",
         "duration", "int", "byte", "unsignedByte", "unsignedLong", "long", "nonPositiveInteger", "negativeInteger",
         "positiveInteger", "QName", "hexBinary", "base64Binary", "NMTOKENS", "anySimpleType"})
    types.push_back(&built_in(name));
  auto const add = [&](char const* base, std::vector<axsFacet> const& facets)
  { types.push_back(&making.restrict(base, facets)); };
  for (char const* const bound : {"0", "12", "-12", "1.5", "-1.5", "-12345.9999999999999999999", "12345678901234567890",
         "-12345678901234567890", "999999999999999999.5"})
    for (Kind const kind : {Kind::min_inclusive, Kind::min_exclusive, Kind::max_inclusive, Kind::max_exclusive})
      add("decimal", {facet(kind, bound)});
  add("integer", {facet(Kind::min_exclusive, "-3"), facet(Kind::max_exclusive, "13")});
  add("decimal", {facet(Kind::total_digits, "3")});
  add("decimal", {facet(Kind::total_digits, "3"), facet(Kind::fraction_digits, "1")});
  add("decimal", {facet(Kind::pattern, "[0-9]+")});
  add("decimal", {facet(Kind::enumeration, "1.0"), facet(Kind::enumeration, "12")});
  add("float", {facet(Kind::max_inclusive, "12")});
  add("date", {facet(Kind::min_inclusive, "2024-02-01")});
  add("string", {facet(Kind::length, "3")});
  add("token", {facet(Kind::min_length, "1"), facet(Kind::max_length, "4")});
  add("normalizedString", {facet(Kind::max_length, "2")});
  add("token", {facet(Kind::pattern, "[a-z ]*")});
  add("token", {facet(Kind::enumeration, "a b"), facet(Kind::enumeration, "1")});
  add("anyURI", {facet(Kind::enumeration, "http://a"), facet(Kind::enumeration, "1")});
  add("NCName", {facet(Kind::max_length, "2")});
  add("boolean", {facet(Kind::pattern, "true|1")});
  types.push_back(
    &making.restrict(making.restrict("string", {facet(Kind::pattern, "[0-9]+")}), {facet(Kind::pattern, "1.*")}));
  types.push_back(&making.list(built_in("int")));
  types.push_back(&making.union_of({&built_in("int"), &built_in("boolean"), &built_in("date")}));

  ToldContext const context;
  Texts texts(20240229);
  std::size_t valid = 0;
  for (int i = 0; i < 60000; ++i)
  {
    axsSimpleType const& type = *types[texts.below(types.size())];
    std::string const text = texts.make();
    axsValue value;
    bool const is_value = type.check(text, context, &value);
    valid += is_value ? 1U : 0U;
    EXPECT_EQ(type.check(text, context, nullptr), is_value) << type.shown_name() << " \"" << text << '"';
  }
  EXPECT_GT(valid, 9000U);
}
