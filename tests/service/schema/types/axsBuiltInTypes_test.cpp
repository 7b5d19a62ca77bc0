#include "Making.h"

namespace
{
struct Forms
{
  char const* type;
  std::vector<std::string> valid;
  std::vector<std::string> invalid;
};

Forms const all_forms[] = {
  {"anySimpleType", {"", " a ", "<&>"}, {}},
  {"string", {"", " a\tb\n"}, {}},
  {"normalizedString", {"", " a\tb "}, {}},
  {"token", {"", "  a   b "}, {}},
  {"boolean", {"true", "false", "1", "0", " true\n"}, {"", "TRUE", "2", "tru", "true false", "10"}},
  {"decimal", {"0", "-0", "+1", "1.5", ".5", "5.", "00012.500", "-.0", "123456789012345678901234567890.1", " 1 "},
    {"", ".", "+", "-", "1e5", "1,5", "1 2", "INF", "--1", "1.2.3", "0x1", "1_0"}},
  {"integer", {"0", "-0", "+12", "0012", "123456789012345678901234567890"}, {"", "1.0", "1.", "1e2", "a", "- 1"}},
  {"nonPositiveInteger", {"0", "-1", "-0", "-99999999999999999999"}, {"1", "+1"}},
  {"negativeInteger", {"-1", "-99999999999999999999"}, {"0", "-0", "1"}},
  {"nonNegativeInteger", {"0", "-0", "+5", "99999999999999999999"}, {"-1"}},
  {"positiveInteger", {"1", "99999999999999999999"}, {"0", "-1"}},
  {"long", {"9223372036854775807", "-9223372036854775808"}, {"9223372036854775808", "-9223372036854775809"}},
  {"int", {"2147483647", "-2147483648", "0002147483647"}, {"2147483648", "-2147483649", "99999999999"}},
  {"short", {"32767", "-32768"}, {"32768", "-32769"}},
  {"byte", {"127", "-128", "0"}, {"128", "-129"}},
  {"unsignedLong", {"18446744073709551615", "0"}, {"18446744073709551616", "-1"}},
  {"unsignedInt", {"4294967295"}, {"4294967296", "-1"}},
  {"unsignedShort", {"65535"}, {"65536", "-1"}},
  {"unsignedByte", {"255", "-0"}, {"256", "-1"}},
  {"float", {"0", "-0", "1.5", "1E5", "1e-5", "-1.E+05", ".5e1", "INF", "-INF", "NaN", "1e999", "1e-999", " 1 "},
    {"", "+INF", "inf", "nan", "1e", "e5", "1e5.0", "0x1p3", "1 e5", "Infinity", "1e+-5", "."}},
  {"double", {"0", "1.7976931348623157E308", "4.9E-324", "1e99999999999999999999", "INF", "-INF", "NaN"},
    {"", "+INF", "1d", "1e5e5", "--1"}},
  {"duration",
    {"P1Y", "P1Y2M3DT4H5M6S", "-P1D", "PT1.5S", "P0Y", "PT0S", "P1M", "PT1M", "P99999999999999999999Y", "P1YT1S"},
    {"", "P", "PT", "P1YT", "1Y", "P1S", "PT1Y", "P-1Y", "P1M1Y", "P1.5Y", "PT1.S", "PT.5S", "+P1Y", "P1", "PT1.5M",
      "P1D1D", "-P", "p1y"}},
  {"dateTime",
    {"2024-02-29T23:59:59", "2024-12-31T24:00:00", "-0001-01-01T00:00:00Z", "12024-01-01T00:00:00.123456789012",
      "2024-01-01T00:00:00+14:00", "2024-01-01T00:00:00-13:59", "0001-01-01T00:00:00", " 2024-01-01T00:00:00 "},
    {"", "2024-01-01", "2023-02-29T00:00:00", "0000-01-01T00:00:00", "024-01-01T00:00:00", "012024-01-01T00:00:00",
      "+2024-01-01T00:00:00", "2024-13-01T00:00:00", "2024-00-01T00:00:00", "2024-01-32T00:00:00",
      "2024-01-00T00:00:00", "2024-01-01T24:00:01", "2024-01-01T24:01:00", "2024-01-01T25:00:00", "2024-01-01T00:60:00",
      "2024-01-01T00:00:60", "2024-01-01T00:00:00.", "2024-01-01T00:00:00+14:01", "2024-01-01T00:00:00+15:00",
      "2024-01-01T00:00:00+1:00", "2024-01-01T00:00:00z", "2024-01-01t00:00:00", "2024-01-01T00:00",
      "2024-1-1T00:00:00", "2024-01-01T00:00:00+00:60", "2024-01-01T00:00:00ZZ", "2024-01-01 00:00:00",
      "1900-02-29T00:00:00"}},
  {"time", {"00:00:00", "23:59:59.999", "24:00:00", "24:00:00.000Z", "12:00:00-05:00"},
    {"", "24:00:00.1", "1:00:00", "12:00", "12:00:00+", "12-00-00", "25:00:00"}},
  {"date", {"2024-12-31", "2000-02-29", "-2000-01-01Z", "2024-01-01+05:30"},
    {"", "31.12.2024", "2024-02-30", "1900-02-29", "2024-12-31T", "24-12-31", "2024-04-31"}},
  {"gYearMonth", {"2024-12", "-0045-03Z"}, {"", "2024", "2024-13", "2024-12-01", "24-12"}},
  {"gYear", {"2024", "-0001", "99999", "2024Z", "2024+01:00"}, {"", "24", "0000", "02024", "+2024", "2024-01"}},
  {"gMonthDay", {"--12-31", "--02-29", "--01-01Z"}, {"", "-12-31", "--02-30", "--13-01", "--04-31", "12-31"}},
  {"gDay", {"---01", "---31", "---15-05:00"}, {"", "---32", "---00", "--01", "31"}},
  {"gMonth", {"--01", "--12", "--06Z"}, {"", "--13", "--00", "-01", "--01--", "06"}},
  {"hexBinary", {"", "00ff", "ABCDef"}, {"0", "0g", "00 11", "0x00"}},
  {"base64Binary", {"", "AAAA", "AA==", "AAA=", "A A A A", "A A\n= =", "+/+/", "QUJD"},
    {"A", "AA", "AAA", "AAAAA", "AB==", "AAB=", "A===", "====", "AA=A", "AA-_", "=AAA"}},
  {"anyURI",
    {"", "http://example.org/a?b#c", "a/b", "#f", "urn:x:y", "a b", "\xC3\xA4", "http://[::1]/", "../x", "%20"},
    {"%", "%2", "%zz", "a#b#c", ":a", "1a:b"}},
  {"language", {"en", "de-AT", "x-klingon", "abcdefgh"},
    {"", "abcdefghi", "1a", "en-", "-en", "en--us", "de_AT", "e n"}},
  {"Name", {"a", ":", "_x", "a:b:c", "\xC3\xA4-1.2"}, {"", "1a", "-a", ".a", "a b", "a/b"}},
  {"NCName", {"a", "_", "a.b-c", "\xC3\xA4"}, {"", "a:b", ":a", "1"}},
  {"NMTOKEN", {"1", "-a", ":", "a.b"}, {"", "a b", "a/b", "\xC2\xA0"}},
  {"NMTOKENS", {"1", "a b  c", "\ta\n"}, {"", "  ", "a b/c"}},
  {"ID", {"a"}, {"", "a:b", "1", "a b"}},
  {"IDREF", {"a"}, {"", "a:b", "a b"}},
  {"IDREFS", {"a", "a b"}, {"", "a 1"}},
  {"QName", {"a", " a "}, {"", ":a", "a:", "a:b:c", "1", "p:a", "a b"}},
};
}

TEST(axsBuiltInTypes, take_their_lexical_forms_and_no_others)
{
  for (Forms const& forms : all_forms)
  {
    axsSimpleType const& type = built_in(forms.type);
    for (std::string const& text : forms.valid)
      EXPECT_TRUE(is_valid(type, text)) << forms.type << " '" << text << "'";
    for (std::string const& text : forms.invalid)
    {
      EXPECT_FALSE(is_valid(type, text)) << forms.type << " '" << text << "'";
      EXPECT_NE(fault_of(type, text).find("xs:" + std::string(forms.type)), std::string::npos);
    }
  }
}

TEST(axsBuiltInTypes, are_derived_as_the_recommendation_has_them)
{
  std::pair<char const*, char const*> const bases[] = {{"string", "anySimpleType"}, {"boolean", "anySimpleType"},
    {"decimal", "anySimpleType"}, {"float", "anySimpleType"}, {"double", "anySimpleType"},
    {"duration", "anySimpleType"}, {"dateTime", "anySimpleType"}, {"time", "anySimpleType"}, {"date", "anySimpleType"},
    {"gYearMonth", "anySimpleType"}, {"gYear", "anySimpleType"}, {"gMonthDay", "anySimpleType"},
    {"gDay", "anySimpleType"}, {"gMonth", "anySimpleType"}, {"hexBinary", "anySimpleType"},
    {"base64Binary", "anySimpleType"}, {"anyURI", "anySimpleType"}, {"QName", "anySimpleType"},
    {"NOTATION", "anySimpleType"}, {"normalizedString", "string"}, {"token", "normalizedString"}, {"language", "token"},
    {"NMTOKEN", "token"}, {"NMTOKENS", "anySimpleType"}, {"Name", "token"}, {"NCName", "Name"}, {"ID", "NCName"},
    {"IDREF", "NCName"}, {"IDREFS", "anySimpleType"}, {"ENTITY", "NCName"}, {"ENTITIES", "anySimpleType"},
    {"integer", "decimal"}, {"nonPositiveInteger", "integer"}, {"negativeInteger", "nonPositiveInteger"},
    {"long", "integer"}, {"int", "long"}, {"short", "int"}, {"byte", "short"}, {"nonNegativeInteger", "integer"},
    {"unsignedLong", "nonNegativeInteger"}, {"unsignedInt", "unsignedLong"}, {"unsignedShort", "unsignedInt"},
    {"unsignedByte", "unsignedShort"}, {"positiveInteger", "nonNegativeInteger"}};
  EXPECT_EQ(std::size(bases), 44u);
  for (auto const& [name, base] : bases)
  {
    EXPECT_EQ(built_in(name).base(), &built_in(base)) << name;
    EXPECT_EQ(built_in(name).name(), name);
    EXPECT_EQ(built_in(name).name_space(), axsBuiltInTypes::name_space);
    EXPECT_TRUE(built_in(name).is_built_in());
    EXPECT_TRUE(built_in(name).is_derived_from(axsBuiltInTypes::any_simple_type()));
  }
  EXPECT_EQ(axsBuiltInTypes::find("anyType"), nullptr);
  EXPECT_EQ(axsBuiltInTypes::find(""), nullptr);
  EXPECT_EQ(built_in("IDREFS").item(), &built_in("IDREF"));
  EXPECT_EQ(built_in("ENTITIES").item(), &built_in("ENTITY"));
  EXPECT_EQ(built_in("NMTOKENS").item(), &built_in("NMTOKEN"));
}

TEST(axsBuiltInTypes, normalise_white_space_as_they_ask_for)
{
  EXPECT_EQ(bytes_of(built_in("string"), " a\t\nb ").substr(1), " a\t\nb ");
  EXPECT_EQ(bytes_of(built_in("normalizedString"), " a\t\nb\r").substr(1), " a  b ");
  EXPECT_EQ(bytes_of(built_in("token"), " a\t\n b ").substr(1), "a b");
  EXPECT_EQ(bytes_of(built_in("anyURI"), " a\t\n b ").substr(1), "a b");
  EXPECT_EQ(bytes_of(built_in("NCName"), "\n a\t").substr(1), "a");
  EXPECT_EQ(built_in("string").white_space(), axsWhiteSpace::preserve);
  EXPECT_EQ(built_in("normalizedString").white_space(), axsWhiteSpace::replace);
  EXPECT_EQ(built_in("int").white_space(), axsWhiteSpace::collapse);
  EXPECT_TRUE(built_in("int").is_fixed(axsFacetKind::white_space));
  EXPECT_FALSE(built_in("token").is_fixed(axsFacetKind::white_space));
}

TEST(axsBuiltInTypes, entities_and_notations_are_those_that_are_declared)
{
  ToldContext context;
  context.entity = "picture";
  context.notation = "gif";
  context.namespaces["n"] = "urn:n";
  EXPECT_TRUE(built_in("ENTITY").check(" picture ", context, nullptr));
  EXPECT_FALSE(built_in("ENTITY").check("other", context, nullptr));
  EXPECT_TRUE(built_in("ENTITIES").check("picture picture", context, nullptr));
  EXPECT_FALSE(built_in("ENTITIES").check("picture other", context, nullptr));
  EXPECT_TRUE(built_in("NOTATION").check("n:gif", context, nullptr));
  EXPECT_FALSE(built_in("NOTATION").check("n:png", context, nullptr));
  EXPECT_FALSE(built_in("NOTATION").check("m:gif", context, nullptr));
  EXPECT_EQ(built_in("ENTITY").fault("other", context),
    "\"other\" is not of the type xs:ENTITY: the document type declares no unparsed entity of that name");
}

TEST(axsBuiltInTypes, name_ids_and_references)
{
  ToldContext const context;
  axsValue value;
  ASSERT_TRUE(built_in("IDREFS").check(" a  b", context, &value));
  ASSERT_EQ(value.identifiers().size(), 2u);
  EXPECT_EQ(value.identifiers()[1].name, "b");
  EXPECT_EQ(value.identifiers()[1].kind, axsValue::Reference::idref);
  ASSERT_TRUE(built_in("ID").check(" x ", context, &value));
  ASSERT_EQ(value.identifiers().size(), 1u);
  EXPECT_EQ(value.identifiers()[0].name, "x");
  EXPECT_EQ(value.identifiers()[0].kind, axsValue::Reference::id);
  ASSERT_TRUE(built_in("NCName").check("x", context, &value));
  EXPECT_TRUE(value.identifiers().empty());
  EXPECT_TRUE(built_in("ID").has_id());
  EXPECT_FALSE(built_in("IDREF").has_id());
}

TEST(axsBuiltInTypes, say_what_is_wrong_in_plain_words)
{
  std::pair<std::pair<char const*, char const*>, char const*> const faults[] = {
    {{"double", "1,5"}, "\"1,5\" is not of the type xs:double, as in 1.5"},
    {{"boolean", "yes"}, "\"yes\" is not of the type xs:boolean, which is true, false, 1 or 0"},
    {{"date", "31.12.2024"}, "\"31.12.2024\" is not of the type xs:date, as in 2024-12-31"},
    {{"date", "2024-02-30"}, "\"2024-02-30\" is not of the type xs:date: its day must be between 1 and 29"},
    {{"date", "2023-02-29"}, "\"2023-02-29\" is not of the type xs:date: its day must be between 1 and 28"},
    {{"gYear", "0000"}, "\"0000\" is not of the type xs:gYear: there is no year 0000"},
    {{"int", "x"}, "\"x\" is not of the type xs:int"},
    {{"int", "99999999999"}, "\"99999999999\" is not of the type xs:int: it must be less than or equal to maxInclusive "
                             "facet value '2147483647'"},
    {{"QName", "p:a"}, "\"p:a\" is not of the type xs:QName: its prefix is not declared"},
    {{"NMTOKENS", "a b/c"}, "\"a b/c\" is not of the type xs:NMTOKENS: its item 'b/c' is not of the type xs:NMTOKEN"},
  };
  for (auto const& [given, words] : faults)
    EXPECT_EQ(fault_of(built_in(given.first), given.second), words);
  EXPECT_EQ(fault_of(built_in("int"), std::string(1000, 'x')),
    "\"" + std::string(100, 'x') + "...\" is not of the type xs:int");
}
