#include "Making.h"

#include <algorithm>

using Order = axsValue::Order;

namespace
{
Order order(char const* type, std::string_view left, std::string_view right)
{
  return axsValue::compare(bytes_of(built_in(type), left), bytes_of(built_in(type), right));
}

struct Equals
{
  char const* type;
  std::vector<std::string> same;
  std::vector<std::string> others;
};

// The first of each is equal to all that are the same, and to none of the others.
Equals const equals[] = {
  {"string", {"a", "a"}, {"A", " a", ""}},
  {"boolean", {"true", "1"}, {"false", "0"}},
  {"decimal", {"1", "1.0", "+01.00", "1."}, {"-1", "10", "0.1", "1.01"}},
  {"decimal", {"0", "-0", "0.0", "-.00"}, {"1", "0.1"}},
  {"decimal", {"100", "0100.0"}, {"10", "1000", "1"}},
  {"decimal", {"0.001", ".0010"}, {"0.01", "0.0001"}},
  {"decimal", {"123456789012345678901234567890.5", "0123456789012345678901234567890.50"},
    {"123456789012345678901234567891.5"}},
  {"float", {"1", "1.0", "10e-1", "0.1E1"}, {"1.0000002", "-1", "NaN"}},
  {"float", {"0", "-0", "0e5", "1e-999"}, {"1e-45"}},
  {"float", {"16777216", "16777217"}, {"16777218"}},
  {"float", {"INF", "1e999", "3.5e38"}, {"-INF", "NaN", "3.4e38"}},
  {"double", {"NaN", "NaN"}, {"INF", "0"}},
  {"double", {"0.1", "1e-1", "0.1000000000000000055511151231257827"}, {"0.10000000000000002"}},
  {"double", {"INF", "1e309", "1e9999999999999999999999", "0.1e310"}, {"1e308"}},
  {"double", {"0", "1e-9999999999999999999999", "0.0000001e-400"}, {"5e-324"}},
  {"duration", {"P1Y", "P12M", "P0Y12M0D", "P1YT0S"}, {"P365D", "P13M", "-P1Y"}},
  {"duration", {"P1D", "PT24H", "PT1440M", "PT86400S", "PT86400.0S"}, {"PT86400.1S", "P1DT1S"}},
  {"duration", {"P0Y", "-P0D", "PT0.000S"}, {"PT0.001S"}},
  {"duration", {"P1Y1M", "P13M"}, {"P11M", "P31M"}},
  {"duration", {"P100000000000000000000Y", "P1200000000000000000000M"}, {"P1200000000000000000001M"}},
  {"dateTime",
    {"2024-01-01T00:00:00Z", "2024-01-01T02:00:00+02:00", "2023-12-31T23:30:00-00:30", "2023-12-31T24:00:00Z",
      "2024-01-01T00:00:00.000Z", "2024-01-01T14:00:00+14:00"},
    {"2024-01-01T00:00:00", "2024-01-01T00:00:00.001Z"}},
  {"dateTime", {"2024-03-01T00:30:00Z", "2024-02-29T23:30:00-01:00"}, {"2024-02-29T00:30:00Z"}},
  {"dateTime", {"2023-03-01T00:30:00Z", "2023-02-28T23:30:00-01:00"}, {}},
  {"dateTime", {"0001-01-01T00:00:00Z", "-0001-12-31T23:00:00-01:00"}, {"-0001-12-31T23:00:00Z"}},
  {"dateTime", {"-0002-12-31T23:00:00Z", "-0001-01-01T00:00:00+01:00"}, {}},
  {"dateTime", {"0001-01-01T00:00:00+01:00", "-0001-12-31T23:00:00Z"}, {"0001-12-31T23:00:00Z"}},
  {"dateTime", {"0002-01-01T00:00:00+01:00", "0001-12-31T23:00:00Z"}, {}},
  {"dateTime", {"10000-01-01T00:00:00Z", "9999-12-31T23:00:00-01:00"}, {}},
  {"dateTime", {"99999999999999999999-12-31T24:00:00", "100000000000000000000-01-01T00:00:00"}, {}},
  {"time", {"12:00:00Z", "13:00:00+01:00"}, {"12:00:00", "13:00:00Z"}},
  {"time", {"00:00:00", "24:00:00"}, {"23:59:59"}},
  {"date", {"2024-01-02Z", "2024-01-02+00:00"}, {"2024-01-02", "2024-01-02+01:00"}},
  {"date", {"2002-10-10+13:00", "2002-10-09-11:00"}, {"2002-10-10-11:00"}},
  {"gYear", {"2024", "2024"}, {"2024Z", "-2024"}},
  {"gMonthDay", {"--02-29", "--02-29"}, {"--03-01"}},
  {"gDay", {"---05Z", "---05+00:00"}, {"---05"}},
  {"gMonth", {"--05", "--05"}, {"--06"}},
  {"gYearMonth", {"2024-05Z", "2024-05-00:00"}, {"2024-05"}},
  {"hexBinary", {"0aFf", "0AfF"}, {"0aFe", "", "0aff00"}},
  {"base64Binary", {"QUJD", "Q U J D"}, {"QUJE", "QUI="}},
  {"anyURI", {"a b", " a  b "}, {"a%20b"}},
  {"NMTOKENS", {"a b", " a   b "}, {"b a", "a", "a b c"}},
  {"NMTOKENS", {std::string(200, 'a') + " b", std::string(200, 'a') + "  b"},
    {std::string(200, 'a') + "b", std::string(199, 'a') + " ab", "b " + std::string(200, 'a')}},
};
}

TEST(axsValue, values_are_equal_as_their_value_spaces_have_it)
{
  for (Equals const& each : equals)
  {
    axsSimpleType const& type = built_in(each.type);
    std::string const value = bytes_of(type, each.same.front());
    for (std::string const& text : each.same)
      EXPECT_EQ(bytes_of(type, text), value) << each.type << " '" << text << "'";
    for (std::string const& text : each.others)
      EXPECT_NE(bytes_of(type, text), value) << each.type << " '" << text << "'";
  }
}

TEST(axsValue, values_of_different_primitive_types_are_never_equal_and_derived_ones_may_be)
{
  char const* const types[] = {
    "string", "boolean", "decimal", "float", "double", "hexBinary", "base64Binary", "anyURI"};
  for (char const* const left : types)
    for (char const* const right : types)
    {
      std::string const text = std::string(left) == "base64Binary" || std::string(right) == "base64Binary" ? "" : "1";
      bool const both_take = is_valid(built_in(left), text) && is_valid(built_in(right), text);
      if (both_take && left != right)
      {
        EXPECT_NE(bytes_of(built_in(left), text), bytes_of(built_in(right), text)) << left << right;
      }
    }
  EXPECT_EQ(bytes_of(built_in("byte"), "1"), bytes_of(built_in("decimal"), "1.0"));
  EXPECT_EQ(bytes_of(built_in("NCName"), " a "), bytes_of(built_in("string"), "a"));
  EXPECT_NE(bytes_of(built_in("NMTOKENS"), "a"), bytes_of(built_in("NMTOKEN"), "a"));
}

TEST(axsValue, names_are_equal_by_their_namespace)
{
  ToldContext context;
  context.namespaces = {{"p", "urn:a"}, {"q", "urn:a"}, {"r", "urn:b"}, {"", "urn:a"}};
  auto const bytes = [&context](char const* text)
  {
    axsValue value;
    EXPECT_TRUE(built_in("QName").check(text, context, &value));
    return std::string(value.bytes());
  };
  EXPECT_EQ(bytes("p:x"), bytes("q:x"));
  EXPECT_EQ(bytes("p:x"), bytes("x"));
  EXPECT_NE(bytes("p:x"), bytes("r:x"));
  EXPECT_NE(bytes("p:x"), bytes("p:y"));
}

TEST(axsValue, totally_ordered_values_stand_in_order)
{
  std::pair<char const*, std::vector<std::string>> const ascending[] = {
    {"decimal",
      {"-1000000000000000000000", "-999.5", "-100", "-99.99", "-99.9", "-10", "-9", "-1", "-0.51", "-0.5", "-0.05", "0",
        "0.05", "0.5", "0.51", "1", "9", "9.9", "9.99", "10", "99", "100", "100.001", "1000000000000000000000"}},
    {"double", {"-INF", "-1e300", "-1", "-1e-300", "0", "1e-300", "1", "1.5", "1e300", "INF"}},
    {"float", {"-INF", "-1e30", "-1", "-1e-30", "0", "1e-30", "1", "1.5", "1e30", "INF"}},
    {"dateTime", {"-10000-01-01T00:00:00", "-0002-12-31T00:00:00", "-0001-01-01T00:00:00", "-0001-12-31T00:00:00",
                   "0001-01-01T00:00:00", "1999-12-31T23:59:59", "1999-12-31T23:59:59.05", "1999-12-31T23:59:59.5",
                   "1999-12-31T23:59:59.51", "2000-01-01T00:00:00", "10000-01-01T00:00:00"}},
    {"date", {"2024-01-02+14:00", "2024-01-02Z", "2024-01-02-11:00", "2024-01-03Z"}},
    {"gMonthDay", {"--01-31", "--02-01", "--02-29", "--12-31"}},
    {"time", {"00:00:00+14:00", "00:00:00Z", "23:59:59Z", "23:59:59-14:00"}},
    {"duration", {"-P1Y", "-P1M", "-PT1.5S", "-PT1.4S", "-PT1S", "-PT0.05S", "-PT0.005S", "PT0S",
                   "PT0." + std::string(300, '0') + "1S", "PT0.005S", "PT0.05S", "PT0.5S", "PT0.51S", "PT1S", "P1D",
                   "P27D", "P1M", "P32D", "P11M", "P1Y", "P367D", "P2Y", "P83333333332Y", "P99999999999999999Y",
                   "P1" + std::string(200, '0') + "Y", "P1" + std::string(250, '0') + "Y"}},
  };
  for (auto const& [type, texts] : ascending)
    for (std::size_t i = 0; i < texts.size(); ++i)
      for (std::size_t j = 0; j < texts.size(); ++j)
      {
        Order const expected = i < j ? Order::less : i > j ? Order::greater : Order::equal;
        EXPECT_EQ(order(type, texts[i], texts[j]), expected) << type << ' ' << texts[i] << ' ' << texts[j];
      }
}

TEST(axsValue, some_durations_have_no_order)
{
  // Part 2, 3.2.6.2
  EXPECT_EQ(order("duration", "P1Y", "P364D"), Order::greater);
  EXPECT_EQ(order("duration", "P1Y", "P365D"), Order::none);
  EXPECT_EQ(order("duration", "P1Y", "P366D"), Order::none);
  EXPECT_EQ(order("duration", "P1Y", "P367D"), Order::less);
  EXPECT_EQ(order("duration", "P1M", "P27D"), Order::greater);
  for (char const* const days : {"P28D", "P29D", "P30D", "P31D"})
    EXPECT_EQ(order("duration", "P1M", days), Order::none) << days;
  EXPECT_EQ(order("duration", "P1M", "P32D"), Order::less);
  EXPECT_EQ(order("duration", "P5M", "P149D"), Order::greater);
  EXPECT_EQ(order("duration", "P5M", "P150D"), Order::none);
  EXPECT_EQ(order("duration", "P5M", "P153D"), Order::none);
  EXPECT_EQ(order("duration", "P5M", "P154D"), Order::less);
  EXPECT_EQ(order("duration", "-P1M", "-P32D"), Order::greater);
  EXPECT_EQ(order("duration", "-P1M", "-P30D"), Order::none);
  EXPECT_EQ(order("duration", "P1M", "P27DT86399.999S"), Order::greater);
  EXPECT_EQ(order("duration", "P1M", "P31DT0.001S"), Order::less);
  // 400 years have as many days wherever they begin.
  EXPECT_EQ(order("duration", "P400YT0.05S", "P146097DT0.5S"), Order::less);
  EXPECT_EQ(order("duration", "-P400YT0.05S", "-P146097DT0.5S"), Order::greater);
}

// A year has 365.2425 days in the mean, and no more than that is known of spans beyond what can be computed with.
TEST(axsValue, spans_beyond_all_numbers_have_an_order_where_they_are_not_near_each_other)
{
  std::string const zeros(20, '0');
  EXPECT_EQ(order("duration", "P1" + zeros + "Y", "P364" + zeros + "D"), Order::greater);
  EXPECT_EQ(order("duration", "P1" + zeros + "Y", "P3652425" + zeros.substr(4) + "D"), Order::none);
  EXPECT_EQ(order("duration", "P1" + zeros + "Y", "P366" + zeros + "D"), Order::less);
  std::string const nines(400, '9');
  EXPECT_EQ(order("duration", "P" + nines + "Y", "P1Y"), Order::greater);
  EXPECT_EQ(order("duration", "-P" + nines + "Y", "P1Y"), Order::less);
}

TEST(axsValue, times_of_which_one_has_a_time_zone_have_an_order_only_if_far_apart)
{
  // Part 2, 3.2.7.4
  EXPECT_EQ(order("dateTime", "2000-01-15T00:00:00", "2000-02-15T00:00:00Z"), Order::less);
  EXPECT_EQ(order("dateTime", "2000-01-15T12:00:00", "2000-01-16T12:00:00Z"), Order::less);
  EXPECT_EQ(order("dateTime", "2000-01-01T12:00:00", "1999-12-31T23:00:00Z"), Order::none);
  EXPECT_EQ(order("dateTime", "2000-01-16T12:00:00", "2000-01-16T12:00:00Z"), Order::none);
  EXPECT_EQ(order("dateTime", "2000-01-16T00:00:00", "2000-01-16T12:00:00Z"), Order::none);
  EXPECT_EQ(order("dateTime", "2000-01-01T00:00:00", "2000-01-01T14:00:01Z"), Order::less);
  EXPECT_EQ(order("dateTime", "2000-01-01T00:00:00", "2000-01-01T14:00:00Z"), Order::none);
  EXPECT_EQ(order("dateTime", "2000-01-01T14:00:01Z", "2000-01-01T00:00:00"), Order::greater);
  EXPECT_EQ(order("dateTime", "10000-01-01T00:00:00", "9999-12-31T09:59:59Z"), Order::greater);
  EXPECT_EQ(order("dateTime", "-0001-12-31T23:00:00", "0001-01-02T00:00:00Z"), Order::less);
  EXPECT_EQ(
    order("dateTime", "123456789012345678901-01-01T00:00:00", "123456789012345678900-12-30T00:00:00Z"), Order::greater);
}

TEST(axsValue, what_is_not_ordered_has_no_order)
{
  EXPECT_EQ(order("double", "NaN", "1"), Order::none);
  EXPECT_EQ(order("double", "NaN", "NaN"), Order::equal);
  EXPECT_EQ(order("string", "a", "b"), Order::none);
  EXPECT_EQ(order("boolean", "0", "1"), Order::none);
  EXPECT_EQ(axsValue::compare(bytes_of(built_in("float"), "1"), bytes_of(built_in("double"), "2")), Order::none);
}

TEST(axsValue, short_values_take_few_bytes)
{
  EXPECT_LE(bytes_of(built_in("long"), "-9223372036854775807").size(), 15u);
  EXPECT_LE(bytes_of(built_in("dateTime"), "2024-12-31T23:59:59.123Z").size(), 15u);
  EXPECT_LE(bytes_of(built_in("date"), "2024-12-31").size(), 15u);
  EXPECT_LE(bytes_of(built_in("double"), "1.5").size(), 9u);
}

TEST(axsValueSet, numbers_values_in_the_order_of_their_coming)
{
  axsValueSet set;
  EXPECT_EQ(set.find("x"), axsValueSet::none);
  std::size_t const count = 100000;
  for (std::size_t i = 0; i < count; ++i)
    ASSERT_EQ(set.insert("v" + std::to_string(i)), i);
  for (std::size_t i = 0; i < count; ++i)
    ASSERT_EQ(set.insert("v" + std::to_string(i)), i);
  EXPECT_EQ(set.size(), count);
  EXPECT_EQ(set[17], "v17");
  EXPECT_EQ(set.find("v99999"), 99999u);
  EXPECT_EQ(set.find('v', "99999"), 99999u);
  EXPECT_EQ(set.find('w', "99999"), axsValueSet::none);
  EXPECT_EQ(set.find("v100000"), axsValueSet::none);
  EXPECT_EQ(set.find(""), axsValueSet::none);
}
