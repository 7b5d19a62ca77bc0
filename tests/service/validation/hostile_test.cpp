// Schemas and documents made to take long or much. Each is done in a time that is about linear; what is not would not end
// here.

#include "Schema.h"

namespace
{
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

std::string root_of(std::string const& content)
{
  return "<xs:element name='r'><xs:complexType>" + content + "</xs:complexType></xs:element>";
}

std::string optional_element(int i)
{
  return "<xs:element name='e" + number(i) + "' minOccurs='0'/>";
}

std::string child(int i)
{
  return "<e" + number(i) + "/>";
}

std::string in_root(std::string const& content)
{
  return "<r>" + content + "</r>";
}
}

TEST(hostile_documents, each_of_a_choice_of_100000_is_found_at_once)
{
  int const many = 100000;
  Schema const schema(root_of("<xs:choice maxOccurs='unbounded'>" + repeated(many, optional_element) + "</xs:choice>"));
  EXPECT_EQ(schema.wrong(in_root(repeated(many, [](int i) { return child(99999 - i); }))), "");
  EXPECT_NE(schema.wrong(in_root(repeated(many, child) + child(many))), "");
}

TEST(hostile_documents, optional_elements_in_a_row_are_passed_at_once)
{
  int const many = 10000;
  Schema const schema(
    root_of("<xs:sequence maxOccurs='4294967295'>" + repeated(many, optional_element) + "</xs:sequence>"));
  EXPECT_EQ(schema.wrong(in_root(repeated(many, [](int i) { return child(9999 * (i % 2)); }))), "");
  EXPECT_NE(schema.wrong(in_root(child(0) + child(many))), "");
}

TEST(hostile_documents, a_group_all_of_5000_is_taken_in_any_order)
{
  int const many = 5000;
  Schema const schema(root_of(
    "<xs:all>" + repeated(many, [](int i) { return "<xs:element name='e" + number(i) + "'/>"; }) + "</xs:all>"));
  auto const backwards = [](int i) { return child(4999 - i); };
  EXPECT_EQ(schema.wrong(in_root(repeated(many, backwards))), "");
  EXPECT_NE(schema.wrong(in_root(repeated(many - 1, backwards))), "");
  EXPECT_NE(schema.wrong(in_root(repeated(many, backwards) + child(0))), "");
}

TEST(hostile_documents, members_of_a_substitution_group_are_found_however_long_it_is)
{
  int const many = 10000;
  auto const member = [](int i)
  { return "<xs:element name='e" + number(i + 1) + "' substitutionGroup='e" + number(i) + "'/>"; };
  Schema const schema("<xs:element name='e0' type='xs:int'/>" + repeated(many, member) +
                      root_of("<xs:sequence><xs:element ref='e0' maxOccurs='unbounded'/></xs:sequence>"));
  ASSERT_EQ(schema.fault(), "");
  auto const value = [](int i) { return "<e" + number(i) + ">1</e" + number(i) + ">"; };
  EXPECT_EQ(schema.wrong(in_root(repeated(many, value))), "");
  EXPECT_NE(schema.wrong(in_root(child(many))), "");
}

TEST(hostile_documents, numbers_of_occurrences_are_counted_in_any_size)
{
  Schema const schema(
    root_of("<xs:sequence minOccurs='2' maxOccurs='4294967295'><xs:sequence maxOccurs='10000'><xs:element name='a' "
            "minOccurs='50000' maxOccurs='50000'/><xs:element name='b' minOccurs='0' maxOccurs='99999999999999999999'/>"
            "</xs:sequence></xs:sequence>"));
  ASSERT_EQ(schema.fault(), "");
  auto const part = [](int count) { return repeated(count, [](int) { return "<a/>"; }) + "<b/><b/>"; };
  EXPECT_EQ(schema.wrong(in_root(part(50000) + part(50000))), "");
  EXPECT_NE(schema.wrong(in_root(part(50000) + part(49999))), "");
  EXPECT_NE(schema.wrong(in_root(part(50000))), "");
}

TEST(hostile_documents, patterns_take_a_time_linear_in_the_value)
{
  for (char const* const pattern : {"(a+)*b", "(a|a)*b", "(a{0,1000}){0,1000}b", "(a|aa|aaa)+b"})
  {
    Schema const schema("<xs:element name='r'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern value='" +
                        std::string(pattern) + "'/></xs:restriction></xs:simpleType></xs:element>");
    ASSERT_EQ(schema.fault(), "") << pattern;
    EXPECT_EQ(schema.wrong(in_root(std::string(100000, 'a') + "b")), "") << pattern;
    EXPECT_NE(schema.wrong(in_root(std::string(100000, 'a'))), "") << pattern;
  }
}

TEST(hostile_documents, elements_and_types_are_nested_as_deep_as_one_likes)
{
  Schema const schema(
    "<xs:complexType name='t'><xs:sequence><xs:element name='r' type='t' minOccurs='0'/></xs:sequence>"
    "</xs:complexType><xs:element name='r' type='t'/>");
  auto const open = repeated(200000, [](int) { return "<r>"; });
  auto const close = repeated(200000, [](int) { return "</r>"; });
  EXPECT_EQ(schema.wrong(open + close), "");
  EXPECT_NE(schema.wrong(open + "<x/>" + close), "");
}

TEST(hostile_documents, a_derived_type_is_found_over_10000_levels)
{
  int const many = 10000;
  auto const type = [](int i)
  {
    return "<xs:complexType name='t" + number(i + 1) + "'><xs:complexContent><xs:extension base='t" + number(i) +
           "'><xs:sequence><xs:element name='e" + number(i) +
           "' minOccurs='0'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>\n";
  };
  Schema const schema("<xs:complexType name='t0'/>" + repeated(many, type) + "<xs:element name='r' type='t0'/>");
  ASSERT_EQ(schema.fault(), "");
  auto const document = [](std::string const& content)
  { return "<r xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:type='t10000'>" + content + "</r>"; };
  EXPECT_EQ(schema.wrong(document(repeated(many, child))), "");
  EXPECT_NE(schema.wrong(document(child(1) + child(0))), "");
}
