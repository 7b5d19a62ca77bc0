// Schemas made to take long or much. Each is done in a time that is about linear; what is not would not end here.

#include "SchemaFiles.h"

#include <axsComplexType.h>
#include <axsElementDecl.h>

namespace
{
int const many = 10000;

std::string number(int i)
{
  return std::to_string(i);
}

template <class Part>
std::string repeated(int count, Part part)
{
  std::string text;
  for (int i = 0; i < count; ++i)
    text += part(i);
  return text;
}

std::string nested(int levels, std::string const& open, std::string const& inner, std::string const& close)
{
  auto const same = [](std::string const& text) { return [&text](int) { return text; }; };
  return repeated(levels, same(open)) + inner + repeated(levels, same(close));
}

std::string in_type(std::string const& content)
{
  return "<xs:complexType name='t'>" + content + "</xs:complexType>";
}
}

TEST(hostile_schemas, types_are_derived_from_each_other_over_10000_levels)
{
  for (char const* const content : {"", "<xs:attribute name='a%'/>",
         "<xs:sequence><xs:element name='a%'/></xs:sequence>", "<xs:anyAttribute namespace='urn:%'/>"})
  {
    auto const type = [&](int i)
    {
      std::string own = content;
      if (std::size_t const at = own.find('%'); at != std::string::npos)
        own.replace(at, 1, number(i));
      return "<xs:complexType name='t" + number(i) + "'><xs:complexContent><xs:extension base='t" + number(i + 1) +
             "'>" + own + "</xs:extension></xs:complexContent></xs:complexType>\n";
    };
    EXPECT_EQ(error_of_schema(repeated(many, type) + "<xs:complexType name='t" + number(many) + "'/>"), "") << content;
  }
  auto const restricted = [](int i)
  {
    return "<xs:simpleType name='t" + number(i) + "'><xs:restriction base='" +
           (i + 1 == many ? std::string("xs:string") : "t" + number(i + 1)) + "'><xs:maxLength value='" + number(i) +
           "'/></xs:restriction></xs:simpleType>\n";
  };
  EXPECT_EQ(error_of_schema(repeated(many, restricted)), "");
}

// Types that have the wildcard of a group, or what is left of it, hold its names together with that.
TEST(hostile_schemas, types_with_long_lists_of_namespaces_share_them)
{
  std::string const names = repeated(many, [](int i) { return " urn:" + number(i); });
  auto const group = [&](std::string const& name, std::string const& more)
  {
    return "<xs:attributeGroup name='" + name + "'><xs:anyAttribute namespace='" + more + names +
           "'/></xs:attributeGroup>";
  };
  std::string const groups = group("g", "##local") + group("h", "urn:x");
  std::string const reference = "<xs:attributeGroup ref='g'/>";
  for (std::string const& content : {reference, reference + "<xs:anyAttribute namespace='##other'/>",
         reference + "<xs:attributeGroup ref='h'/>", reference + "<xs:anyAttribute namespace='urn:1'/>"})
  {
    auto const type = [&](int i)
    { return "<xs:complexType name='t" + number(i) + "'>" + content + "</xs:complexType>"; };
    EXPECT_EQ(error_of_schema(groups + repeated(many, type)), "") << content;
  }
  auto const extended = [](int i)
  {
    return "<xs:complexType name='t" + number(i) +
           "'><xs:complexContent><xs:extension base='base'>"
           "<xs:anyAttribute namespace='urn:x" +
           number(i) + "'/></xs:extension></xs:complexContent></xs:complexType>";
  };
  EXPECT_EQ(error_of_schema(
              groups + "<xs:complexType name='base'>" + reference + "</xs:complexType>" + repeated(many, extended)),
    "");
}

TEST(hostile_schemas, contents_with_long_lists_of_namespaces_share_them)
{
  std::string const names = repeated(many, [](int i) { return " urn:" + number(i); });
  std::string const group =
    "<xs:group name='g'><xs:sequence><xs:any namespace='" + names + "'/></xs:sequence></xs:group>";
  for (char const* const before : {"", "<xs:element name='a' minOccurs='0'/>"})
  {
    auto const type = [&](int i)
    {
      return "<xs:complexType name='t" + number(i) + "'><xs:sequence>" + before +
             "<xs:group ref='g' minOccurs='0'/><xs:element name='b'/></xs:sequence></xs:complexType>";
    };
    EXPECT_EQ(error_of_schema(group + repeated(many, type)), "") << before;
  }
  EXPECT_NE(error_of_schema(group + in_type("<xs:sequence><xs:group ref='g' minOccurs='0'/><xs:any namespace='urn:1'/>"
                                            "</xs:sequence>")),
    "");
}

TEST(hostile_schemas, circles_over_10000_definitions_are_found)
{
  std::pair<char const*, char const*> const parts[] = {
    {"<xs:complexType name='t%'><xs:complexContent><xs:extension base='t",
      "'/></xs:complexContent></xs:complexType>\n"},
    {"<xs:simpleType name='t%'><xs:restriction base='t", "'/></xs:simpleType>\n"},
    {"<xs:group name='t%'><xs:sequence><xs:group ref='t", "'/></xs:sequence></xs:group>\n"},
    {"<xs:attributeGroup name='t%'><xs:attributeGroup ref='t", "'/></xs:attributeGroup>\n"},
    {"<xs:element name='t%' substitutionGroup='t", "'/>\n"},
  };
  for (auto const& [open, close] : parts)
  {
    auto const definition = [&, open = open, close = close](int i)
    {
      std::string text = open;
      text.replace(text.find('%'), 1, number(i));
      return text + number((i + 1) % many) + close;
    };
    std::string const error = error_of_schema(repeated(many, definition));
    bool const is_told = error.find("by itself") != std::string::npos || error.find("in its own") != std::string::npos;
    EXPECT_TRUE(is_told) << open << ' ' << error;
  }
}

TEST(hostile_schemas, groups_and_types_are_nested_as_deep_as_one_likes)
{
  EXPECT_EQ(error_of_schema(in_type(nested(20000, "<xs:sequence>", "<xs:element name='a'/>", "</xs:sequence>"))), "");
  EXPECT_EQ(error_of_schema(in_type(nested(5000, "<xs:sequence><xs:element name='b'/><xs:choice>",
              "<xs:element name='a'/>", "</xs:choice></xs:sequence>"))),
    "");
  EXPECT_EQ(error_of_schema("<xs:element name='r'>" +
                            nested(5000, "<xs:complexType><xs:sequence><xs:element name='r'>", "",
                              "</xs:element></xs:sequence></xs:complexType>") +
                            "</xs:element>"),
    "");
  EXPECT_EQ(error_of_schema("<xs:simpleType name='s'>" +
                            nested(5000, "<xs:restriction><xs:simpleType>", "<xs:restriction base='xs:int'/>",
                              "</xs:simpleType></xs:restriction>") +
                            "</xs:simpleType>"),
    "");
  auto const group = [](int i)
  {
    return "<xs:group name='g" + number(i) + "'><xs:sequence><xs:group ref='g" + number(i + 1) + "'/><xs:group ref='g" +
           number(i + 1) + "'/></xs:sequence></xs:group>\n";
  };
  EXPECT_EQ(error_of_schema(repeated(60, group) +
                            "<xs:group name='g60'><xs:sequence><xs:element name='a'/></xs:sequence></xs:group>" +
                            in_type("<xs:group ref='g0'/>")),
    "");
}

TEST(hostile_schemas, contents_are_wide)
{
  auto const element = [](int i) { return "<xs:element name='e" + number(i) + "' minOccurs='0'/>\n"; };
  EXPECT_EQ(error_of_schema(in_type("<xs:choice>" + repeated(100000, element) + "</xs:choice>")), "");
  EXPECT_EQ(error_of_schema(in_type("<xs:sequence>" + repeated(many, element) + "</xs:sequence>")), "");
  EXPECT_EQ(error_of_schema(in_type("<xs:all>" + repeated(5000, element) + "</xs:all>")), "");
  auto const attribute = [](int i) { return "<xs:attribute name='a" + number(i) + "'/>\n"; };
  EXPECT_EQ(error_of_schema(in_type(repeated(50000, attribute))), "");
}

TEST(hostile_schemas, a_wide_sequence_restricts_a_wide_choice)
{
  auto const element = [](int i) { return "<xs:element name='e" + number(i) + "'/>\n"; };
  auto const turned = [&](int i) { return element(2 * many - 1 - i); };
  auto const types = [&](std::string const& more)
  {
    return "<xs:complexType name='b'><xs:choice maxOccurs='unbounded'>" + repeated(2 * many, element) +
           "</xs:choice></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction base='b'>"
           "<xs:sequence>" +
           repeated(2 * many, turned) + more + "</xs:sequence></xs:restriction></xs:complexContent></xs:complexType>";
  };
  EXPECT_EQ(error_of_schema(types("")), "");
  EXPECT_NE(error_of_schema(types("<xs:element name='other'/>")), "");
}

TEST(hostile_schemas, substitution_groups_are_wide_and_long)
{
  std::string const use = in_type("<xs:sequence><xs:element ref='e0' maxOccurs='unbounded'/></xs:sequence>");
  auto const wide = [](int i) { return "<xs:element name='e" + number(i + 1) + "' substitutionGroup='e0'/>\n"; };
  auto const longer = [](int i)
  { return "<xs:element name='e" + number(i + 1) + "' substitutionGroup='e" + number(i) + "'/>\n"; };
  EXPECT_EQ(error_of_schema("<xs:element name='e0'/>" + repeated(many, wide) + use), "");
  EXPECT_EQ(error_of_schema("<xs:element name='e0'/>" + repeated(many, longer) + use), "");
  EXPECT_EQ(error_of_schema("<xs:element name='e0'/>" + repeated(many, longer) + use, "blockDefault='extension'"), "");
}

TEST(hostile_schemas, many_members_restrict_a_substitution_group_in_any_order)
{
  auto const member = [](int i) { return "<xs:element name='e" + number(i) + "' substitutionGroup='h'/>\n"; };
  auto const reference = [](int i) { return "<xs:element ref='e" + number(many - 1 - i) + "'/>\n"; };
  auto const types = [&](std::string const& base, std::string const& more)
  {
    return "<xs:element name='h'/><xs:element name='x'/><xs:element name='y'/>" + repeated(many, member) +
           "<xs:complexType name='b'>" + base +
           "</xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction base='b'><xs:choice>" +
           repeated(many, reference) + more + "</xs:choice></xs:restriction></xs:complexContent></xs:complexType>";
  };
  for (char const* const base : {"<xs:sequence><xs:element ref='h'/></xs:sequence>",
         "<xs:choice><xs:element ref='x'/><xs:element ref='h'/></xs:choice>"})
  {
    EXPECT_EQ(error_of_schema(types(base, "")), "") << base;
    EXPECT_NE(error_of_schema(types(base, "<xs:element ref='y'/>")), "") << base;
  }
}

// What each holds is shared, or the memory would grow with the square of their number.
TEST(hostile_schemas, attribute_groups_refer_to_each_other_over_10000_levels)
{
  auto const group = [](int i)
  {
    return "<xs:attributeGroup name='g" + number(i) + "'><xs:attribute name='a" + number(i) +
           "'/><xs:attributeGroup ref='g" + number(i + 1) + "'/></xs:attributeGroup>\n";
  };
  std::string const groups = repeated(many, group) + "<xs:attributeGroup name='g" + number(many) + "'>";
  std::string const type = "</xs:attributeGroup>" + in_type("<xs:attributeGroup ref='g0'/>");
  EXPECT_EQ(error_of_schema(groups + type), "");
  EXPECT_NE(error_of_schema(groups + "<xs:attribute name='a5'/>" + type), "");
  auto const group_of_two = [&](int i)
  {
    std::string text = group(i);
    return text.insert(text.rfind("</"), "<xs:attributeGroup ref='g" + number(std::min(i + 2, many)) + "'/>");
  };
  EXPECT_EQ(
    error_of_schema(repeated(many, group_of_two) + "<xs:attributeGroup name='g" + number(many) + "'>" + type), "");
}

TEST(hostile_schemas, numbers_of_occurrences_are_large)
{
  EXPECT_EQ(error_of_schema(in_type("<xs:sequence maxOccurs='4294967295'><xs:element name='a' "
                                    "maxOccurs='99999999999999999999999999'/><xs:sequence minOccurs='3' "
                                    "maxOccurs='50000'><xs:element name='b'/><xs:element name='c' minOccurs='10000' "
                                    "maxOccurs='10001'/></xs:sequence></xs:sequence>")),
    "");
}

TEST(hostile_schemas, keys_and_prefixes_are_many)
{
  auto const key = [](int i)
  {
    return "<xs:key name='k" + number(i) +
           "'><xs:selector xpath='a|.//b'/><xs:field xpath='@c'/></xs:key>\n<xs:keyref name='r" + number(i) +
           "' refer='k" + number(i) + "'><xs:selector xpath='d'/><xs:field xpath='@e'/></xs:keyref>\n";
  };
  EXPECT_EQ(error_of_schema("<xs:element name='r'>" + repeated(2000, key) + "</xs:element>"), "");
  auto const prefix = [](int i) { return " xmlns:p" + number(i) + "='u" + number(i) + "'"; };
  auto const element = [](int i) { return "<xs:element name='e" + number(i) + "' type='xs:int'/>"; };
  EXPECT_EQ(error_of_schema(repeated(many, element), repeated(many, prefix)), "");
}

TEST(hostile_schemas, groups_that_refer_to_the_next_one_twice_are_not_written_out_for_ever)
{
  auto const with_restriction = [](int levels)
  {
    auto const group = [](int i)
    {
      std::string const inner = i == 0 ? std::string() : "<xs:group ref='g" + number(i - 1) + "'/>";
      return "<xs:group name='g" + number(i) + "'><xs:sequence>" + inner + "<xs:element name='e" + number(i) + "'/>" +
             inner + "</xs:sequence></xs:group>\n";
    };
    std::string const last = number(levels - 1);
    return repeated(levels, group) + in_type("<xs:group ref='g" + last + "'/>") +
           "<xs:complexType name='d'><xs:complexContent><xs:restriction base='t'><xs:sequence><xs:group ref='g" + last +
           "' maxOccurs='1'/><xs:element name='n' maxOccurs='0' minOccurs='0'/></xs:sequence></xs:restriction>"
           "</xs:complexContent></xs:complexType>" +
           "<xs:complexType name='c'><xs:complexContent><xs:restriction base='t'><xs:sequence><xs:group ref='g" +
           number(levels - 2) + "'/><xs:element name='e" + last + "'/><xs:group ref='g" + number(levels - 2) +
           "'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>";
  };
  EXPECT_EQ(error_of_schema(with_restriction(12)), "");
  EXPECT_NE(error_of_schema(with_restriction(60)).find("has more than 250000 particles, its groups written out"),
    std::string::npos);
}
