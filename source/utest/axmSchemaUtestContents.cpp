#include "axmSchemaDraw.h"
#include "axmSchemaTables.h"
#include "axmSchemaUtest.h"
#include "axmUtestGroup.h"

#include <string>
#include <vector>

using namespace axmSchemaTables;

namespace
{
char const file[] = "source/utest/axmSchemaUtestContents";

// The root element, of a type with that content, or of a sequence of those particles.
std::string content(std::string const& inside)
{
  return "<xs:element name='r'><xs:complexType>" + inside + "</xs:complexType></xs:element>";
}

std::string sequence(std::string const& particles)
{
  return content("<xs:sequence>" + particles + "</xs:sequence>");
}

// A root that any elements and attributes of these namespaces may stand in, and one of each that is declared.
std::string wildcards(std::string const& process_contents, std::string const& name_space)
{
  std::string const wildcard = " processContents='" + process_contents + "' namespace='" + name_space + "'";
  return "<xs:element name='n' type='xs:int'/><xs:attribute name='i' type='xs:int'/>" +
         content("<xs:sequence><xs:any minOccurs='0' maxOccurs='2'" + wildcard + "/></xs:sequence><xs:anyAttribute" +
                 wildcard + "/>");
}

// A type and others that are derived from it.
std::string derived_types()
{
  return "<xs:complexType name='base'><xs:sequence><xs:element name='a' "
         "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='more'><xs:complexContent><xs:extension "
         "base='base'><xs:sequence><xs:element name='b'/></xs:sequence><xs:attribute name='x' "
         "type='xs:int'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
         "name='less'><xs:complexContent><xs:restriction "
         "base='base'/></xs:complexContent></xs:complexType><xs:complexType name='gone' "
         "abstract='true'><xs:complexContent><xs:extension base='base'/></xs:complexContent></xs:complexType>";
}

// A document of that many elements and what stands after them.
std::string many_elements(int count, std::string const& after = "")
{
  std::string text = "<r>";
  for (int number = 0; number < count; ++number)
    text += "<a/>";
  return text + after + "</r>";
}

// A document of elements in each other and what the innermost one holds.
std::string many_levels(int count, std::string const& inside)
{
  std::string text = inside;
  for (int number = 0; number < count; ++number)
    text = "<r>" + text + "</r>";
  return text;
}

std::string many_declarations()
{
  std::string text;
  for (int number = 0; number < 70; ++number)
    text += "<xs:attribute name='a" + std::to_string(number) + "' type='xs:int' use='required'/>";
  return text;
}

// The attributes `first` to `last`, in that order.
std::string many_attributes(int first, int last)
{
  std::string text;
  for (int number = first; number != last; number += first < last ? 1 : -1)
    text += " a" + std::to_string(number) + "='1'";
  return text + " a" + std::to_string(last) + "='1'";
}

std::vector<Case> const& content_cases()
{
  static std::vector<Case> const cases = {
    {"a sequence", {sequence("<xs:element name='a'/><xs:element name='b'/>"),
                     {"<r><a/><b/></r>", "<r> <a/>\n<b/> </r>", "<r><a/><!--x--><b/><?p?></r>"},
                     {"<r></r>", "<r><a/></r>", "<r><b/></r>", "<r><b/><a/></r>", "<r><a/><b/><a/></r>",
                       "<r><a/><b/><b/></r>", "<r><a/>x<b/></r>", "<r><a/><c/></r>", "<r><a/><b/><c/></r>"}}},
    {"occurrences", {sequence("<xs:element name='a' minOccurs='0'/><xs:element name='b' minOccurs='2' "
                              "maxOccurs='3'/><xs:element name='c' maxOccurs='unbounded'/>"),
                      {"<r><b/><b/><c/></r>", "<r><a/><b/><b/><b/><c/><c/><c/><c/></r>"},
                      {"<r><b/><c/></r>", "<r><a/><a/><b/><b/><c/></r>", "<r><b/><b/><b/><b/><c/></r>",
                        "<r><b/><b/></r>", "<r><a/><b/><b/></r>"}}},
    {"large occurrences",
      {sequence("<xs:element name='a' minOccurs='20' maxOccurs='30'/><xs:element name='b' minOccurs='0'/>"),
        {many_elements(20), many_elements(25, "<b/>"), many_elements(30)},
        {many_elements(19), many_elements(31), many_elements(19, "<b/>"), many_elements(31, "<b/>")}}},
    {"a choice", {content("<xs:choice><xs:element name='a'/><xs:element name='b'/></xs:choice>"),
                   {"<r><a/></r>", "<r><b/></r>"}, {"<r></r>", "<r><a/><b/></r>", "<r><a/><a/></r>", "<r><c/></r>"}}},
    {"a choice many times",
      {content(
         "<xs:choice minOccurs='0' maxOccurs='unbounded'><xs:element name='a'/><xs:element name='b'/></xs:choice>"),
        {"<r></r>", "<r><a/><b/><b/><a/></r>"}, {"<r><a/><c/></r>", "<r>x</r>"}}},
    {"a choice of sequences",
      {content(
         "<xs:choice><xs:sequence><xs:element name='a'/><xs:element name='b'/></xs:sequence><xs:sequence><xs:element "
         "name='b'/><xs:element name='a'/></xs:sequence></xs:choice>"),
        {"<r><a/><b/></r>", "<r><b/><a/></r>"},
        {"<r></r>", "<r><a/></r>", "<r><b/></r>", "<r><a/><b/><a/></r>", "<r><a/><a/></r>"}}},
    {"a sequence many times", {content("<xs:sequence minOccurs='2' maxOccurs='2'><xs:element name='a'/><xs:element "
                                       "name='b' minOccurs='0'/></xs:sequence>"),
                                {"<r><a/><a/></r>", "<r><a/><b/><a/><b/></r>", "<r><a/><a/><b/></r>"},
                                {"<r><a/></r>", "<r><a/><b/><b/></r>", "<r><a/><a/><a/></r>", "<r><b/><a/><a/></r>"}}},
    {"all",
      {content("<xs:all><xs:element name='a'/><xs:element name='b'/><xs:element name='c' minOccurs='0'/></xs:all>"),
        {"<r><a/><b/></r>", "<r><b/><a/></r>", "<r><c/><b/><a/></r>", "<r><b/><c/><a/></r>"},
        {"<r></r>", "<r><a/></r>", "<r><a/><a/><b/></r>", "<r><a/><b/><c/><c/></r>", "<r><a/><b/><d/></r>",
          "<r><c/><b/></r>"}}},
    {"all that may be absent", {content("<xs:all minOccurs='0'><xs:element name='a'/><xs:element name='b'/></xs:all>"),
                                 {"<r></r>", "<r><b/><a/></r>"}, {"<r><a/></r>", "<r><b/></r>"}}},
    {"an empty content", {content(""), {"<r></r>", "<r><!--x--></r>", "<r><?p?></r>"},
                           {"<r>x</r>", "<r> </r>", "<r><a/></r>", "<r><![CDATA[x]]></r>"}}},
    {"an empty choice", {content("<xs:choice/>"), {}, {"<r></r>", "<r><a/></r>", "<r>x</r>"}}},
    {"an empty sequence", {content("<xs:sequence/>"), {"<r></r>", "<r><!--x--></r>"}, {"<r><a/></r>", "<r>x</r>"}}},
    {"a mixed content", {"<xs:element name='r'><xs:complexType mixed='true'><xs:sequence><xs:element "
                         "name='a'/><xs:element name='b' minOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
                          {"<r>x<a/>y</r>", "<r><a/></r>", "<r><a/>x<b/></r>", "<r>&lt;<a/></r>"},
                          {"<r>x</r>", "<r>x<b/></r>", "<r><a/><a/></r>", "<r><a/>x<c/></r>"}}},
    {"elements around no text",
      {sequence("<xs:element name='a'/>"), {"<r>\n<a/>\t</r>", "<r>&#32;<a/></r>", "<r><a/></r>"},
        {"<r>x<a/></r>", "<r><a/>&#65;</r>", "<r><![CDATA[y]]><a/></r>"}}},
    {"a simple content",
      {content("<xs:simpleContent><xs:extension base='xs:int'><xs:attribute name='u' type='xs:string' "
               "use='required'/></xs:extension></xs:simpleContent>"),
        {"<r u='x'>5</r>", "<r u=''> 5 </r>"}, {"<r>5</r>", "<r u='x'>y</r>", "<r u='x'/>", "<r u='x'>5<a/></r>"}}},
    {"a simple value", {"<xs:element name='r' type='xs:string'/>", {"<r></r>", "<r>x</r>", "<r>a<!--b-->c</r>"},
                         {"<r><a/></r>", "<r a='1'/>"}}},
    {"anything",
      {"<xs:element name='r'/>", {"<r></r>", "<r>x<a b=\"c\"/>y</r>", "<r><a><b/></a></r>", "<r a='1'/>"}, {}}},
    {"a named group", {"<xs:group name='g'><xs:sequence><xs:element name='a'/><xs:element name='b' "
                       "minOccurs='0'/></xs:sequence></xs:group>" +
                          sequence("<xs:group ref='g' maxOccurs='2'/><xs:element name='c'/>"),
                        {"<r><a/><c/></r>", "<r><a/><b/><a/><c/></r>"},
                        {"<r><c/></r>", "<r><b/><c/></r>", "<r><a/><a/><a/><c/></r>", "<r><a/><b/></r>"}}},
    {"references", {"<xs:element name='a' type='xs:int'/>" + sequence("<xs:element ref='a' maxOccurs='2'/>"),
                     {"<r><a>1</a></r>", "<r><a>1</a><a>2</a></r>"},
                     {"<r><a>x</a></r>", "<r><a>1</a><a>x</a></r>", "<r><a/></r>", "<r></r>"}}},
    {"elements below each other",
      {"<xs:element name='r' type='t'/><xs:complexType name='t'><xs:sequence><xs:element name='r' type='t' "
       "minOccurs='0'/><xs:element name='v' type='xs:int' minOccurs='0'/></xs:sequence></xs:complexType>",
        {"<r></r>", "<r><r><r><v>1</v></r></r><v>2</v></r>", many_levels(1000, "<v>1</v>")},
        {"<r><r><r><v>x</v></r></r></r>", "<r><v>1</v><r/></r>", "<r><r><v>1</v><v>2</v></r></r>",
          many_levels(1000, "<v>x</v>"), many_levels(1000, "<v>1</v><v>2</v>")}}},
    {"one name with one type",
      {sequence("<xs:element name='a' type='xs:int'/><xs:element name='b' minOccurs='0'/><xs:element name='a' "
                "type='xs:int' minOccurs='0'/>"),
        {"<r><a>1</a></r>", "<r><a>1</a><b/><a>2</a></r>", "<r><a>1</a><b/></r>"},
        {"<r><a>1</a><b/><a>x</a></r>", "<r><a>x</a></r>", "<r><b/><a>1</a></r>", "<r><a>1</a><b/><b/></r>"}}},
    {"nested groups",
      {sequence("<xs:choice minOccurs='0' maxOccurs='2'><xs:element name='a'/><xs:sequence><xs:element "
                "name='b'/><xs:element name='c' maxOccurs='2'/></xs:sequence></xs:choice><xs:element name='d'/>"),
        {"<r><d/></r>", "<r><a/><d/></r>", "<r><b/><c/><c/><a/><d/></r>", "<r><a/><a/><d/></r>",
          "<r><b/><c/><b/><c/><d/></r>"},
        {"<r><a/><a/><a/><d/></r>", "<r><b/><d/></r>", "<r><c/><d/></r>", "<r><b/><c/><c/><c/><d/></r>", "<r><a/></r>",
          "<r><d/><d/></r>"}}},
    {"no occurrence", {sequence("<xs:element name='a' minOccurs='0' maxOccurs='0'/><xs:element name='b'/>"),
                        {"<r><b/></r>"}, {"<r><a/><b/></r>", "<r><a/></r>"}}},
  };
  return cases;
}

std::vector<Case> const& attribute_cases()
{
  static std::vector<Case> const cases = {
    {"uses", {content("<xs:attribute name='a' type='xs:int' use='required'/><xs:attribute name='b' "
                      "type='xs:boolean'/><xs:attribute name='c' use='prohibited'/>"),
               {"<r a='1'/>", "<r a='1' b='true'/>", "<r a=' 1 ' b=' 0 '/>"},
               {"<r/>", "<r a=''/>", "<r a='1' b='x'/>", "<r a='1' c='x'/>", "<r a='1' d='x'/>", "<r b='true'/>"}}},
    {"fixed and default",
      {content("<xs:attribute name='f' type='xs:int' fixed='7'/><xs:attribute name='d' type='xs:int' default='3'/>"),
        {"<r/>", "<r f='7'/>", "<r f='07'/>", "<r d='5'/>"}, {"<r f='8'/>", "<r f=''/>", "<r d='x'/>"}}},
    {"groups of attributes",
      {"<xs:attributeGroup name='g'><xs:attribute name='a' type='xs:int'/><xs:attribute name='b' "
       "use='required'/></xs:attributeGroup>" +
          content("<xs:attributeGroup ref='g'/><xs:attribute name='c'/>"),
        {"<r b='x'/>", "<r a='1' b='' c=''/>"}, {"<r a='1'/>", "<r a='x' b=''/>", "<r b='' e=''/>"}}},
    {"global attributes", {"<xs:attribute name='a' type='xs:int'/>" + content("<xs:attribute ref='a' use='required'/>"),
                            {"<r a='1'/>"}, {"<r a='x'/>", "<r/>"}}},
    {"attributes of the instance",
      {content(""), {"<r xsi:schemaLocation='urn:x none.xsd'/>", "<r xsi:noNamespaceSchemaLocation='none.xsd'/>"},
        {"<r xsi:other='1'/>"}}},
    {"many attributes",
      {content(many_declarations()), {"<r" + many_attributes(0, 69) + "/>", "<r" + many_attributes(69, 0) + "/>"},
        {"<r" + many_attributes(0, 68) + "/>",
          "<r" + many_attributes(0, 65) + " a66='x'" + many_attributes(67, 69) + "/>",
          "<r b='1'" + many_attributes(0, 69) + "/>"}}},
    {"a local simple type",
      {content("<xs:attribute name='a'><xs:simpleType><xs:restriction base='xs:string'><xs:enumeration "
               "value='x'/></xs:restriction></xs:simpleType></xs:attribute>"),
        {"<r a='x'/>", "<r/>"}, {"<r a='y'/>"}}},
    {"strict wildcards",
      {wildcards("strict", "##any"), {"<r/>", "<r i='1'><n>1</n></r>"},
        {"<r><n>x</n></r>", "<r><u/></r>", "<r u='1'/>", "<r i='x'/>", "<r><n>1</n><n>2</n><n>3</n></r>"}}},
    {"lax wildcards", {wildcards("lax", "##any"), {"<r u='1'><u><n>1</n></u></r>", "<r u=''/>"},
                        {"<r><n>x</n></r>", "<r><u><n>x</n></u></r>", "<r i='x'/>"}}},
    {"skipping wildcards",
      {wildcards("skip", "##any"), {"<r i='x' u='1'><n>x</n><u v='1'/></r>"}, {"<r><u/><u/><u/></r>"}}},
    {"wildcards for other namespaces", {wildcards("skip", "##other"), {"<r xmlns:p='urn:p' p:a='1'><p:x/></r>"},
                                         {"<r><n>1</n></r>", "<r i='1'/>", "<r><n xmlns=''/></r>"}}},
    {"wildcards for no namespace", {wildcards("skip", "##local"), {"<r i='x'><u/></r>"},
                                     {"<r xmlns:p='urn:p'><p:x/></r>", "<r xmlns:p='urn:p' p:a='1'/>"}}},
    {"wildcards for a list of namespaces",
      {wildcards("skip", "urn:p urn:q"), {"<r xmlns:p='urn:p' p:a='1'><p:x/><x xmlns='urn:q'/></r>"},
        {"<r><u/></r>", "<r xmlns:p='urn:z'><p:x/></r>", "<r a='1'/>"}}},
  };
  return cases;
}

std::vector<Case> const& derivation_cases()
{
  static std::vector<Case> const cases = {
    {"defaults of derived types",
      {"<xs:element name='r' type='xs:decimal' default='1.5'/>",
        {"<r />", "<r xsi:type='xs:int'>1</r>", "<r xsi:type='xs:decimal'/>"}, {"<r xsi:type='xs:int'/>"}}},
    {"derived types by name",
      {derived_types() + "<xs:element name='r' type='base'/>",
        {"<r />", "<r><a/></r>", "<r xsi:type='more'><a/><b/></r>", "<r xsi:type='more' x='1'><b/></r>",
          "<r xsi:type='less'/>", "<r xsi:type='base'/>", "<r xsi:type=' base '/>"},
        {"<r xsi:type='more' x='y'><b/></r>", "<r xsi:type='more'><a/></r>", "<r><b/></r>",
          "<r xsi:type='less'><a/></r>", "<r xsi:type='gone'/>", "<r xsi:type='none'/>", "<r xsi:type=''/>",
          "<r xsi:type='xs:int'>1</r>"}}},
    {"derived simple types by name", {"<xs:element name='r' type='xs:decimal'/>",
                                       {"<r xsi:type='xs:int'>5</r>", "<r>5.5</r>", "<r xsi:type='xs:decimal'>5.5</r>"},
                                       {"<r xsi:type='xs:int'>5.5</r>", "<r xsi:type='xs:string'>5</r>"}}},
    {"blocked types", {derived_types() + "<xs:element name='r' type='base' block='extension'/>",
                        {"<r xsi:type='less'/>"}, {"<r xsi:type='more'><b/></r>"}}},
    {"blocked restrictions", {derived_types() + "<xs:element name='r' type='base' block='restriction'/>",
                               {"<r xsi:type='more'><b/></r>"}, {"<r xsi:type='less'/>"}}},
    {"abstract types", {derived_types() + "<xs:element name='r' type='gone'/>", {}, {"<r />", "<r xsi:type='gone'/>"}}},
    {"nil",
      {content("<xs:choice><xs:element name='n' nillable='true' type='xs:int'/><xs:element name='p' "
               "type='xs:int'/><xs:element name='f' nillable='true' type='xs:int' fixed='1'/><xs:element name='c' "
               "nillable='true'><xs:complexType><xs:sequence><xs:element name='x'/></xs:sequence><xs:attribute "
               "name='a' use='required'/></xs:complexType></xs:element></xs:choice>"),
        {"<r ><n xsi:nil='true'/></r>", "<r ><n xsi:nil='1'></n></r>", "<r ><n xsi:nil=' true '/></r>",
          "<r ><n xsi:nil='false'>5</n></r>", "<r><f>1</f></r>", "<r ><c xsi:nil='true' a=''/></r>"},
        {"<r ><n xsi:nil='false'/></r>", "<r ><n xsi:nil='true'>5</n></r>", "<r ><n xsi:nil='true'> </n></r>",
          "<r ><n xsi:nil='yes'>5</n></r>", "<r><n/></r>", "<r ><p xsi:nil='true'/></r>", "<r ><f xsi:nil='true'/></r>",
          "<r ><c xsi:nil='true'/></r>", "<r ><c xsi:nil='true' a=''><x/></c></r>", "<r><c a=''/></r>"}}},
    {"substitution",
      {"<xs:element name='h' type='xs:decimal'/><xs:element name='m' substitutionGroup='h'/><xs:element name='i' "
       "type='xs:int' substitutionGroup='h'/><xs:element name='k' type='xs:int' substitutionGroup='i'/><xs:element "
       "name='z' type='xs:int'/>" +
          sequence("<xs:element ref='h' maxOccurs='2'/>"),
        {"<r><h>1.5</h></r>", "<r><m>1.5</m></r>", "<r><i>1</i><h>2</h></r>", "<r><k>1</k></r>"},
        {"<r><i>1.5</i></r>", "<r><z>1</z></r>", "<r><k>x</k></r>", "<r></r>", "<r><h>1</h><h>1</h><i>1</i></r>"}}},
    {"abstract elements",
      {"<xs:element name='h' abstract='true' type='xs:int'/><xs:element name='m' substitutionGroup='h'/>" +
          sequence("<xs:element ref='h'/>"),
        {"<r><m>1</m></r>", "<m>1</m>"}, {"<r><h>1</h></r>", "<r><m>x</m></r>", "<h>1</h>"}}},
    {"blocked substitution",
      {"<xs:element name='h' type='xs:int' block='substitution'/><xs:element name='m' substitutionGroup='h'/>" +
          sequence("<xs:element ref='h'/>"),
        {"<r><h>1</h></r>"}, {"<r><m>1</m></r>"}}},
    {"extended simple contents",
      {"<xs:complexType name='s'><xs:simpleContent><xs:extension base='xs:string'><xs:attribute "
       "name='a'/></xs:extension></xs:simpleContent></xs:complexType>" +
          content("<xs:simpleContent><xs:restriction base='s'><xs:maxLength value='2'/><xs:attribute name='a' "
                  "use='required'/></xs:restriction></xs:simpleContent>"),
        {"<r a=''>xy</r>"}, {"<r a=''>xyz</r>", "<r>xy</r>"}}},
    {"restricted contents",
      {"<xs:complexType name='b'><xs:sequence><xs:element name='a' minOccurs='0' maxOccurs='3'/><xs:element name='b' "
       "minOccurs='0'/></xs:sequence><xs:attribute name='x'/></xs:complexType>" +
          content("<xs:complexContent><xs:restriction base='b'><xs:sequence><xs:element name='a' "
                  "maxOccurs='2'/></xs:sequence><xs:attribute name='x' "
                  "use='prohibited'/></xs:restriction></xs:complexContent>"),
        {"<r><a/></r>", "<r><a/><a/></r>"}, {"<r/>", "<r><a/><a/><a/></r>", "<r><a/><b/></r>", "<r x=''><a/></r>"}}},
    {"extended mixed contents",
      {"<xs:complexType name='b' mixed='true'><xs:sequence><xs:element name='a' "
       "minOccurs='0'/></xs:sequence></xs:complexType>" +
          content("<xs:complexContent mixed='true'><xs:extension base='b'><xs:sequence><xs:element "
                  "name='b'/></xs:sequence></xs:extension></xs:complexContent>"),
        {"<r>x<a/>y<b/>z</r>", "<r><b/></r>"}, {"<r>x<a/>y</r>", "<r><b/><a/></r>"}}},
    {"fixed values of elements",
      {content("<xs:choice><xs:element name='f' type='xs:decimal' fixed='1.0'/><xs:element name='d' type='xs:int' "
               "default='5'/><xs:element name='m' fixed='x y'><xs:complexType mixed='true'><xs:sequence><xs:element "
               "name='a' minOccurs='0'/></xs:sequence></xs:complexType></xs:element></xs:choice>"),
        {"<r><f>01</f></r>", "<r><f/></r>", "<r><d/></r>", "<r><d>7</d></r>", "<r><m>x y</m></r>", "<r><m/></r>"},
        {"<r><f>2</f></r>", "<r><d>x</d></r>", "<r><m>x <a/>y</m></r>", "<r><m>xy</m></r>", "<r><m>x y<a/></m></r>",
          "<r><m><a/></m></r>"}}},
  };
  return cases;
}
}

void axmSchemaUtest::test_contents(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_contents");
  check_cases(group, *tester, *factory, content_cases());
  bool are_right = true;
  for (std::vector<Rule> const& rules : {axmSchemaDraw::contents(), axmSchemaDraw::groups_of_all()})
    for (Rule const& rule : rules)
      are_right = are_right && is_kept(*tester, *factory, rule);
  group.check(are_right, all_are_judged, __LINE__, "every short row of elements, of contents that are drawn");
}

void axmSchemaUtest::test_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_attributes");
  check_cases(group, *tester, *factory, attribute_cases());
}

void axmSchemaUtest::test_derivation(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_derivation");
  check_cases(group, *tester, *factory, derivation_cases());
  group.check(is_kept(*tester, *factory, axmSchemaDraw::nils()), all_are_judged, __LINE__,
    "elements that are nil or not, with every content");
}
