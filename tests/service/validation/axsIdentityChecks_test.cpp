#include "Schema.h"

#include <gtest/gtest.h>

namespace
{
// An element r that may hold anything declared, and has the constraints.
std::string root(std::string const& constraints, std::string const& name = "r")
{
  return "<xs:element name='" + name +
         "'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded'/>"
         "</xs:sequence></xs:complexType>" +
         constraints + "</xs:element>";
}

std::string constraint(std::string const& kind, std::string const& name, std::string const& selector,
  std::vector<std::string> const& fields, std::string const& refer = {})
{
  std::string text = "<xs:" + kind + " name='" + name + "'" + (refer.empty() ? "" : " refer='" + refer + "'") +
                     "><xs:selector xpath='" + selector + "'/>";
  for (std::string const& field : fields)
    text += "<xs:field xpath='" + field + "'/>";
  return text + "</xs:" + kind + ">";
}

// <i k='' l=''><v>decimal</v></i>, <f to=''/>, and a group g of such.
std::string const items =
  "<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
  "maxOccurs='3'/>"
  "</xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' type='xs:string'/></xs:complexType>"
  "</xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' type='xs:decimal'/></xs:complexType>"
  "</xs:element>";
}

TEST(axsIdentityChecks, values_are_compared_and_not_texts)
{
  Schema const schema(items + root(constraint("unique", "u", "i", {"@k"})));
  EXPECT_EQ(schema.wrong("<r><i k='1'/><i k='2'/><i/><i/></r>"), "");
  EXPECT_EQ(schema.wrong("<r>\n<i k='1'/>\n<i k='1.0'/></r>"),
    "3: element 'i': what must be unique in the element 'r' is not: \"1.0\"; first at line 2\n");
}

TEST(axsIdentityChecks, a_key_has_all_its_fields)
{
  Schema const schema(items + root(constraint("key", "k", "i", {"@k", "@l"})));
  EXPECT_EQ(schema.wrong("<r><i k='1' l='a'/><i k='1' l='b'/><i k='11' l=''/><i k='1' l='1'/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><i k='1' l='a'/>\n<i k='1.0' l='a'/></r>"),
    "2: element 'i': its key \"1.0\", \"a\" is not unique in the element 'r'; first at line 1\n");
  EXPECT_EQ(schema.wrong("<r><i/></r>"), "1: element 'i': the key 'k' of the element 'r' has no value\n");
  EXPECT_EQ(
    schema.wrong("<r><i k='1'/></r>"), "1: element 'i': a part of the key 'k' of the element 'r' has no value\n");
}

TEST(axsIdentityChecks, a_field_has_one_value)
{
  Schema const schema(items + root(constraint("unique", "u", "i", {"v"})));
  EXPECT_EQ(schema.wrong("<r><i><v>1</v></i><i/><i/></r>"), "");
  EXPECT_EQ(
    schema.wrong("<r><i><v>1</v><v>2</v></i></r>"), "1: element 'i': a field of a key has several values here\n");
  Schema const complex(items + root(constraint("unique", "u", ".", {"i"})));
  EXPECT_EQ(complex.wrong("<r><i/></r>"), "1: element 'i' is a field of a key, and must have a simple type\n");
}

// cvc-identity-constraint.3
TEST(axsIdentityChecks, a_field_without_a_declaration_has_no_simple_type)
{
  for (char const* const process : {"lax", "skip"})
  {
    Schema const schema("<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='" +
                        std::string(process) + "' maxOccurs='unbounded'/></xs:sequence></xs:complexType>" +
                        constraint("unique", "u", "*", {"."}) + "</xs:element><xs:element name='i' type='xs:int'/>");
    ASSERT_EQ(schema.fault(), "");
    EXPECT_EQ(schema.wrong("<r><o>1</o></r>"), "1: element 'o' is a field of a key, and must have a simple type\n");
  }
}

TEST(axsIdentityChecks, references_find_keys_in_their_element)
{
  Schema const schema(items + root(constraint("key", "k", "i", {"@k"}) + constraint("keyref", "f", "f", {"@to"}, "k")));
  EXPECT_EQ(schema.wrong("<r><f to='1.0'/><f/><i k='1'/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><f to='1'/>\n<f to='2'/><i k='1'/></r>"),
    "2: the key reference \"2\" in the element 'r' has no key that it refers to\n");
}

// cvc-identity-constraint.4.3: keys of elements within count, too; of two that are equal, neither does.
TEST(axsIdentityChecks, keys_are_handed_up_to_the_elements_around)
{
  std::string const group = root(constraint("key", "k", "i", {"@k"}), "g");
  Schema const schema(items + group + root(constraint("keyref", "f", ".//f", {"@to"}, "k")));
  EXPECT_EQ(schema.fault(), "");
  EXPECT_EQ(schema.wrong("<r><g><i k='1'/></g><g><i k='2'/></g><f to='1'/><f to='2'/></r>"), "");
  EXPECT_NE(schema.wrong("<r><g><i k='1'/></g><g><i k='1'/></g><f to='1'/></r>"), "");
  EXPECT_NE(schema.wrong("<r><i k='1'/><f to='1'/></r>"), "");
}

TEST(axsIdentityChecks, each_element_has_its_own_keys)
{
  Schema const schema(items + root(constraint("key", "k", "i", {"@k"}), "g") + root(""));
  EXPECT_EQ(schema.wrong("<r><g><i k='1'/></g><g><i k='1'/></g></r>"), "");
  EXPECT_NE(schema.wrong("<r><g><i k='1'/><i k='1'/></g></r>"), "");
}

TEST(axsIdentityChecks, paths_select_as_written)
{
  Schema const deep(items + root("", "g") + root(constraint("unique", "u", ".//g/i|i", {"@k"})));
  EXPECT_EQ(deep.fault(), "");
  EXPECT_EQ(deep.wrong("<r><i k='1'/><g><i k='2'/></g></r>"), "");
  EXPECT_NE(deep.wrong("<r><i k='1'/><g><g><i k='1'/></g></g></r>"), "");
  Schema const any(items + root("", "g") + root(constraint("unique", "u", "*/i", {"@*"})));
  EXPECT_EQ(any.wrong("<r><i k='1'/><i k='1'/><g><i l='1'/></g></r>"), "");
  EXPECT_NE(any.wrong("<r><g><i l='1'/><i l='1'/></g></r>"), "");
  EXPECT_NE(any.wrong("<r><g><i l='1' k='1'/></g></r>"), "");
}

// cvc-identity-constraint.4.2.3
TEST(axsIdentityChecks, no_part_of_a_key_may_be_nillable)
{
  Schema const schema(
    "<xs:element name='n' type='xs:int' nillable='true'/>" + root(constraint("key", "k", "n", {"."})));
  EXPECT_EQ(schema.wrong("<r><n>1</n></r>"), "1: element 'n' is a part of a key, and may not be nillable\n");
}

TEST(axsIdentityChecks, many_values_and_many_levels_are_held)
{
  Schema const schema(
    items + root(constraint("key", "k", ".//i", {"@k"}) + constraint("keyref", "f", ".//f", {"@to"}, "k")));
  std::string text = "<r>";
  for (int i = 0; i < 20000; ++i)
    text += "<f to='" + std::to_string(19999 - i) + "'/><i k='" + std::to_string(i) + "'/>";
  EXPECT_EQ(schema.wrong(text + "</r>"), "");
  EXPECT_NE(schema.wrong(text + "<f to='20000'/></r>"), "");

  // The same constraint at each of many levels.
  Schema const nested(items + root(constraint("unique", "u", ".//i", {"@k"})));
  std::string open;
  std::string close;
  for (int i = 0; i < 20000; ++i)
  {
    open += "<r><i k='" + std::to_string(i) + "'/>";
    close += "</r>";
  }
  EXPECT_EQ(nested.wrong(open + close), "");
  EXPECT_NE(nested.wrong(open + "<i k='0'/>" + close), "");
}

// Each level has a key of its own, and refers to those of all levels within; what is not linear would not end here.
TEST(axsIdentityChecks, keys_in_each_of_many_levels_are_held)
{
  Schema const schema("<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='f' minOccurs='0' "
                      "maxOccurs='2'><xs:complexType><xs:attribute name='to' type='xs:int'/></xs:complexType>"
                      "</xs:element><xs:element ref='r' minOccurs='0'/></xs:sequence>"
                      "<xs:attribute name='k' type='xs:int'/></xs:complexType>" +
                      constraint("key", "k", ".", {"@k"}) + constraint("keyref", "f", "f", {"@to"}, "k") +
                      constraint("unique", "u", ".", {"@k"}) + "</xs:element>");
  ASSERT_EQ(schema.fault(), "");
  int const levels = 100000;
  std::string open;
  std::string close;
  for (int i = 0; i < levels; ++i)
  {
    open += "<r k='" + std::to_string(i) + "'><f to='" + std::to_string(levels - 1) + "'/>";
    close += "</r>";
  }
  EXPECT_EQ(schema.wrong(open + "<f to='99999'/>" + close), "");
  EXPECT_EQ(schema.wrong(open + "<f to='0'/>" + close),
    "1: the key reference \"0\" in the element 'r' has no key that it refers to\n");
}

// Each element of each level is selected by all levels around it; held once for each of those, they would not end here.
TEST(axsIdentityChecks, keys_and_references_of_any_depth_in_each_of_many_levels_are_held)
{
  int const levels = 20000;
  std::string const last = std::to_string(levels - 1);
  std::string open;
  std::string close;
  for (int i = 0; i < levels; ++i)
  {
    open += "<r k='" + std::to_string(i) + "' t='" + last + "'>";
    close += "</r>";
  }
  std::string const inmost = "<r k='" + last + "'/>";
  std::vector<std::pair<std::string, std::string>> const selectors = {{".//r", ".//r"}, {".//.", ".//."}, {".//r", "r"},
    {"r", ".//r"}, {".//r/r|.//r", ".//r"}, {".//r/r|.", ".//r|."}, {"r|.//r/r/r", "r|.//r/r/r"},
    {".|.//r/r", "r|.//."}};
  for (auto const& [keys, references] : selectors)
  {
    Schema const schema(
      "<xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='r' minOccurs='0' "
      "maxOccurs='2'/></xs:sequence>"
      "<xs:attribute name='k' type='xs:int'/><xs:attribute name='t' type='xs:int'/></xs:complexType>" +
      constraint("unique", "u", keys, {"@k"}) + constraint("keyref", "f", references, {"@t"}, "u") + "</xs:element>");
    ASSERT_EQ(schema.fault(), "");
    EXPECT_EQ(schema.wrong("<r>" + open + close + "</r>"), "") << keys;
    EXPECT_NE(schema.wrong("<r>" + open + "<r t='-1'/>" + close + "</r>"), "") << keys;
    EXPECT_NE(schema.wrong("<r>" + open + inmost + inmost + close + "</r>"), "") << keys;
  }
}

// Fields that may lead to any element within are not looked for once in each for each level around it.
TEST(axsIdentityChecks, fields_of_any_depth_in_each_of_many_levels_are_held)
{
  Schema const schema(items + root(constraint("unique", "u", ".//r", {".//@l|.//v"})));
  ASSERT_EQ(schema.fault(), "");
  std::string open;
  std::string close;
  for (int i = 0; i < 30000; ++i)
  {
    open += "<r><i k='1'/>";
    close += "</r>";
  }
  EXPECT_EQ(schema.wrong(open + close), "");
  EXPECT_EQ(schema.wrong("<r><r><i l='1'/></r><r><i><v>1</v></i></r></r>"), "");
  EXPECT_NE(schema.wrong(open + "<i l='x'/>" + close), "");
  EXPECT_NE(schema.wrong(open + "<i><v>1</v></i>" + close), "");
  EXPECT_NE(schema.wrong(open + "<i l='x'><v>1</v></i>" + close), "");
  EXPECT_EQ(
    schema.wrong("<r><r><i l='1'><v>1</v></i></r></r>"), "1: element 'r': a field of a key has several values here\n");
  EXPECT_EQ(schema.wrong("<r>\n<r><i l='1'/></r>\n<r><i l='1'/></r></r>"),
    "3: element 'r': what must be unique in the element 'r' is not: \"1\"; first at line 2\n");
}

// What is unique for elements of any depth is so for each level; what is wrong with it is told once.
TEST(axsIdentityChecks, what_is_wrong_at_several_levels_is_told_once)
{
  Schema const schema(
    items + root(constraint("key", "k", ".//i", {"@k"}) + constraint("keyref", "f", ".//f", {"@to"}, "k")));
  EXPECT_EQ(schema.wrong("<r><r><r>\n<i k='1'/>\n<i k='1'/><f to='1'/></r></r></r>"),
    "3: element 'i': its key \"1\" is not unique in the element 'r'; first at line 2\n");
  EXPECT_EQ(schema.wrong("<r><i k='1'/>\n<r><i k='1'/><f to='1'/></r></r>"),
    "2: element 'i': its key \"1\" is not unique in the element 'r'; first at line 1\n");
  EXPECT_EQ(schema.wrong("<r><i k='1'/><r><r>\n<f to='1'/></r></r></r>"),
    "2: the key reference \"1\" in the element 'r' has no key that it refers to\n");
}

TEST(axsIdentityChecks, what_lies_at_any_depth_is_unique_with_what_one_element_alone_selects)
{
  Schema const schema(items + root("", "g") + root(constraint("unique", "u", ".//g/i|i", {"@k"})));
  std::string const is_not_unique =
    "3: element 'i': what must be unique in the element 'r' is not: \"1\"; first at line 2\n";
  EXPECT_EQ(schema.wrong("<r>\n<i k='1'/>\n<g><i k='1'/></g></r>"), is_not_unique);
  EXPECT_EQ(schema.wrong("<r>\n<g><i k='1'/></g>\n<i k='1'/></r>"), is_not_unique);
  EXPECT_EQ(schema.wrong("<r>\n<i k='1'/>\n<i k='1'/></r>"), is_not_unique);
  EXPECT_EQ(schema.wrong("<r>\n<i k='1'/><r>\n<g><i k='1'/></g></r></r>"), is_not_unique);
  EXPECT_EQ(schema.wrong("<r><i k='1'/><r><i k='1'/></r><r><i k='1'/></r></r>"), "");
  EXPECT_EQ(schema.wrong("<r><r><i k='1'/></r><g><i k='1'/></g></r>"), "");
  EXPECT_EQ(schema.wrong("<r><r><i k='1'/></r><r><g><i k='1'/></g></r><i k='2'/></r>"), "");
}

// Of equal keys, those of an element itself count before those within it, which do not conflict with them.
TEST(axsIdentityChecks, keys_within_conflict_with_each_other_only)
{
  Schema const schema(items + root(constraint("key", "k", "i", {"@k"}) + constraint("keyref", "f", "f", {"@to"}, "k")));
  ASSERT_EQ(schema.fault(), "");
  std::string const one = "<r><i k='1'/></r>";
  std::string const two = "<r><i k='1'/><i k='2'/><i k='3'/></r>";
  std::string const reference = "<f to='1'/>";
  EXPECT_EQ(schema.wrong("<r>" + one + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r>" + one + one + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r>" + one + two + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r>" + two + one + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r>" + one + two + "<i k='1'/>" + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r>" + two + "<i k='1'/><i k='9'/>" + reference + "</r>"), "");
  // What is in conflict further in is not there further out.
  EXPECT_NE(schema.wrong("<r><r>" + one + one + "</r>" + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r><r>" + one + one + "</r>" + one + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r><r>" + one + two + "</r>" + one + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r><r>" + one + two + "</r>" + one + one + reference + "</r>"), "");
}

// Equal keys are in conflict in the innermost element that has both, whether it has a constraint itself or not.
TEST(axsIdentityChecks, keys_are_in_conflict_in_elements_without_constraints_too)
{
  Schema const schema(items + root("", "x") + root(constraint("key", "k", "i", {"@k"}), "g") +
                      root(constraint("keyref", "f", "f", {"@to"}, "k")));
  ASSERT_EQ(schema.fault(), "");
  std::string const one = "<g><i k='1'/></g>";
  std::string const many = "<g><i k='1'/><i k='2'/><i k='3'/></g>";
  std::string const reference = "<f to='1'/>";
  EXPECT_EQ(schema.wrong("<r><x>" + one + "</x>" + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r><x>" + one + one + "</x>" + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r><x>" + one + "</x><x>" + one + "</x>" + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r><x>" + one + one + "</x>" + one + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r>" + one + "<x>" + many + many + "</x>" + reference + "</r>"), "");
  EXPECT_EQ(schema.wrong("<r><x><x>" + one + many + "</x>" + one + "</x>" + reference + "</r>"), "");
  EXPECT_NE(schema.wrong("<r><x><x>" + one + many + "</x>" + one + "</x>" + one + reference + "</r>"), "");
}

// What ".//" selects is selected again by the next element around that has the key, what "i" selects is not.
TEST(axsIdentityChecks, keys_in_conflict_come_back_where_they_lie_at_any_depth_alone)
{
  Schema const schema(items + root("", "x") + root("", "g") + root(constraint("keyref", "f", "f", {"@to"}, "k"), "y") +
                      root(constraint("key", "k", ".//g/i|i", {"@k"})));
  ASSERT_EQ(schema.fault(), "");
  std::string const near = "<r><i k='1'/></r>";
  std::string const deep = "<r><g><i k='1'/></g></r>";
  std::string const reference = "<f to='1'/>";
  EXPECT_EQ(schema.wrong("<y><r>" + near + near + "<x>" + deep + "</x></r>" + reference + "</y>"), "");
  EXPECT_NE(schema.wrong("<y><r>" + near + near + "</r>" + reference + "</y>"), "");
  EXPECT_NE(schema.wrong("<y><x>" + deep + deep + "</x>" + reference + "</y>"), "");
  EXPECT_NE(schema.wrong("<y><x>" + deep + near + "</x>" + reference + "</y>"), "");
  EXPECT_EQ(schema.wrong("<y><x>" + deep + deep + "</x>" + near + reference + "</y>"), "");
  EXPECT_NE(schema.wrong("<y><r>" + near + near + "</r><x>" + deep + deep + "</x>" + reference + "</y>"), "");
}

TEST(axsIdentityChecks, two_thousand_keys_at_once_are_checked)
{
  std::string constraints;
  for (int i = 0; i < 2000; ++i)
    constraints += constraint("key", "k" + std::to_string(i), "i", {"@k"});
  Schema const schema(items + root(constraints));
  std::string text = "<r>";
  for (int i = 0; i < 50; ++i)
    text += "<i k='" + std::to_string(i) + "'/>";
  EXPECT_EQ(schema.wrong(text + "</r>"), "");
  EXPECT_NE(schema.wrong(text + "<i k='7'/></r>"), "");
}

TEST(axsIdentityChecks, a_value_that_is_wrong_by_its_type_is_a_value_of_the_key)
{
  Schema const schema(items + root(constraint("key", "k", "i", {"@k"})));
  EXPECT_EQ(schema.wrong("<r><i k='x'/></r>"),
    "1: attribute 'k' of element 'i': \"x\" is not of the type xs:decimal, as in 1.5\n");
}

TEST(axsIdentityChecks, names_of_a_namespace_are_selected_whatever_they_are)
{
  Schema const schema("<xs:element name='i'/>" + root("<xs:unique name='u'><xs:selector xpath='t:*'/>"
                                                      "<xs:field xpath='@*'/></xs:unique>"),
    "xmlns:t='u'");
  EXPECT_EQ(schema.wrong("<r><i a='1'/><i a='1'/></r>").find("must be unique"), std::string::npos);
  Schema const lax(
    "<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='lax' maxOccurs='9'/></xs:sequence>"
    "</xs:complexType><xs:unique name='u'><xs:selector xpath='t:*'/><xs:field "
    "xpath='@t:*|@k'/></xs:unique></xs:element>",
    "xmlns:t='u'");
  std::string const begin = "<r xmlns:t='u' xmlns:o='o'>";
  EXPECT_EQ(lax.wrong(begin + "<t:a k='1'/><t:b k='2'/><o:a k='1'/><a k='1'/></r>"), "");
  EXPECT_NE(lax.wrong(begin + "<t:a k='1'/><t:b k='1'/></r>"), "");
  EXPECT_NE(lax.wrong(begin + "<t:a t:x='1'/><t:b t:y='1'/></r>"), "");
  EXPECT_EQ(lax.wrong(begin + "<t:a o:x='1'/><t:b o:x='1'/></r>"), "");
  EXPECT_NE(lax.wrong(begin + "<t:a k='1' t:x='2'/></r>"), "");
}

TEST(axsIdentityChecks, a_field_may_be_at_any_depth)
{
  Schema const schema(
    items +
    "<xs:element name='g'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='9'/></xs:sequence>"
    "</xs:complexType></xs:element>" +
    root(constraint("unique", "u", "g", {".//i/@k"}) + constraint("unique", "v", "i", {"@k"})));
  EXPECT_EQ(schema.wrong("<r><g><g><i k='1'/></g></g><g><i k='2'/></g><i k='1'/></r>"), "");
  EXPECT_EQ(schema.wrong("<r><g><g><i k='1'/></g></g>\n<g><i k='1.0'/></g></r>"),
    "2: element 'g': what must be unique in the element 'r' is not: \"1.0\"; first at line 1\n");
  EXPECT_EQ(schema.wrong("<r><g><i k='1'/><g><i k='2'/></g></g></r>"),
    "1: element 'g': a field of a key has several values here\n");
}

TEST(axsIdentityChecks, elements_of_one_written_name_in_two_namespaces_are_told_apart)
{
  Schema const schema(
    "<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='lax' maxOccurs='9'/></xs:sequence>"
    "</xs:complexType><xs:unique name='u'><xs:selector xpath='t:a'/><xs:field xpath='@k'/></xs:unique></xs:element>",
    "xmlns:t='u'");
  std::string const begin = "<r xmlns:t='u'><t:a k='1'/><t:a xmlns:t='o' k='1'/>";
  EXPECT_EQ(schema.wrong(begin + "<t:a k='2'/><t:a xmlns:t='o' k='2'/></r>"), "");
  EXPECT_EQ(schema.wrong(begin + "\n<t:a k='1'/></r>"),
    "2: element 'a': what must be unique in the element 'r' is not: \"1\"; first at line 1\n");
}
