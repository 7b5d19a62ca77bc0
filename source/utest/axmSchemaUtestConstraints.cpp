#include "axmSchemaTables.h"
#include "axmSchemaUtest.h"
#include "axmUtestGroup.h"

using namespace axmSchemaTables;

namespace
{
char const file[] = "source/utest/axmSchemaUtestConstraints";

// The elements i, with keys, and f, which refers to them.
std::string items()
{
  return "<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
         "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
         "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
         "type='xs:decimal'/></xs:complexType></xs:element>";
}

// The beginning of an element that may have any children, and no attributes; its constraints and its end follow.
std::string holding(char const* name)
{
  return std::string("<xs:element name='") + name +
         "'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType>";
}

// With a root of any such elements, to which the constraints belong.
std::string constrained(char const* constraints)
{
  return items() + holding("r") + constraints + "</xs:element>";
}

// A document of 300 keys and what stands after them.
std::string many_items(char const* more)
{
  std::string text = "<r>";
  for (int i = 0; i < 300; ++i)
    text += "<i k='" + std::to_string(i) + "'/>";
  return text + more + "</r>";
}

std::vector<Case> const& constraint_cases()
{
  static std::vector<Case> const cases = {
    {"unique values", {constrained("<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:unique>"),
                        {"<r><i k='1'/><i k='2'/><i/><i/></r>", "<r></r>"},
                        {"<r><i k='1'/><i k='1.0'/></r>", "<r><i k='1'/><i/><i k='2'/><i k='1'/></r>"}}},
    {"unique contents", {constrained("<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='v'/></xs:unique>"),
                          {"<r><i><v>1</v></i><i><v>2</v></i><i/><i/></r>"},
                          {"<r><i><v>1</v></i><i><v>01</v></i></r>", "<r><i><v>1</v><v>2</v></i></r>"}}},
    {"unique pairs",
      {constrained(
         "<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='@k'/><xs:field xpath='@l'/></xs:unique>"),
        {"<r><i k='1' l='a'/><i k='1' l='b'/><i k='2' l='a'/><i k='1'/><i k='1'/></r>"},
        {"<r><i k='1' l='a'/><i k='2' l='a'/><i k='1.0' l='a'/></r>"}}},
    {"keys",
      {constrained("<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/><xs:field xpath='@l'/></xs:key>"),
        {"<r><i k='1' l='a'/><i k='1' l='b'/><i k='11' l=''/><i k='1' l='1'/></r>"},
        {"<r><i k='1' l='a'/><i k='1.0' l='a'/></r>", "<r><i/></r>", "<r><i k='1'/></r>", "<r><i l='1'/></r>"}}},
    {"key references",
      {constrained("<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' "
                   "refer='k'><xs:selector xpath='f'/><xs:field xpath='@to'/></xs:keyref>"),
        {"<r><f to='1.0'/><f/><i k='1'/></r>", "<r><i k='1'/><i k='2'/><f to='2'/><f to='2'/></r>"},
        {"<r><f to='1'/><f to='2'/><i k='1'/></r>", "<r><f to='1'/></r>", "<r><i k='1'/><f to='1'/><f to='3'/></r>"}}},
    {"keys of elements within",
      {items() + holding("g") +
          "<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key></xs:element>" + holding("r") +
          "<xs:keyref name='f' refer='k'><xs:selector xpath='.//f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><g><i k='1'/></g><g><i k='2'/></g><f to='1'/><f to='2'/></r>",
          "<r><g><i k='1'/></g><g><i k='1'/></g></r>"},
        {"<r><g><i k='1'/></g><g><i k='1'/></g><f to='1'/></r>", "<r><i k='1'/><f to='1'/></r>",
          "<r><g><i k='1'/><i k='1'/></g></r>"}}},
    {"selectors",
      {items() + holding("g") + "</xs:element>" + holding("r") +
          "<xs:unique name='u'><xs:selector xpath='.//g/i|i'/><xs:field xpath='@k'/></xs:unique></xs:element>",
        {"<r><i k='1'/><g><i k='2'/></g></r>", "<r><g><g><i k='1'/><i k='2'/></g></g></r>"},
        {"<r><i k='1'/><g><g><i k='1'/></g></g></r>", "<r><i k='1'/><i k='1'/></r>"}}},
    {"stars", {items() + holding("g") + "</xs:element>" + holding("r") +
                  "<xs:unique name='u'><xs:selector xpath='*/i'/><xs:field xpath='@*'/></xs:unique></xs:element>",
                {"<r><i k='1'/><i k='1'/><g><i l='1'/></g></r>"},
                {"<r><g><i l='1'/><i l='1'/></g></r>", "<r><g><i l='1' k='1'/></g></r>"}}},
    {"the element itself",
      {"<xs:element name='i' type='xs:int'/>" + holding("r") +
          "<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='.'/></xs:unique></xs:element>",
        {"<r><i>1</i><i>2</i></r>"}, {"<r><i>1</i><i>01</i></r>"}}},
    {"values of different types",
      {"<xs:element name='i' type='xs:int'/><xs:element name='s' type='xs:string'/>" + holding("r") +
          "<xs:unique name='u'><xs:selector xpath='i|s'/><xs:field xpath='.'/></xs:unique></xs:element>",
        {"<r><i>1</i><s>1</s></r>"}, {"<r><i>1</i><i>1</i><s>1</s></r>", "<r><s>1</s><s>1</s></r>"}}},
    {"nillable keys", {"<xs:element name='n' type='xs:int' nillable='true'/>" + holding("r") +
                          "<xs:key name='k'><xs:selector xpath='n'/><xs:field xpath='.'/></xs:key></xs:element>",
                        {"<r></r>"}, {"<r><n>1</n></r>", "<r><n xsi:nil='true'/></r>"}}},
    {"keys handed up through elements of one name",
      {items() + holding("g") +
          "<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key></xs:element>" + holding("r") +
          "<xs:keyref name='f' refer='k'><xs:selector xpath='.//f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><g><i k='1'/><g><i k='2'/><g><i k='3'/></g></g></g><f to='1'/><f to='2'/><f to='3'/></r>",
          "<r><g><g><i k='2'/></g><g><i k='3'/></g></g><f to='2'/><f to='3'/></r>",
          "<r><g><i k='1'/><g><i k='1'/></g></g><f to='1'/></r>"},
        {"<r><g><g><i k='2'/></g><g><i k='2'/></g></g><f to='2'/></r>",
          "<r><g><i k='1'/><g><i k='2'/></g></g><f to='3'/></r>"}}},
    {"keys handed up through elements without constraints",
      {items() + holding("w") + "</xs:element>" + holding("g") +
          "<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key></xs:element>" + holding("r") +
          "<xs:keyref name='f' refer='k'><xs:selector xpath='.//f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><w><g><i k='1'/></g></w><f to='1'/></r>", "<r><w><w><w><g><i k='1'/></g></w></w></w><f to='1'/></r>",
          "<r><w><g><i k='1'/></g><w><g><i k='2'/></g></w></w><g><i k='3'/></g><f to='1'/><f to='2'/><f to='3'/></r>",
          "<r><w><g><i k='1'/></g></w><w><f to='1'/></w></r>"},
        {"<r><w><g><i k='1'/></g></w><f to='2'/></r>", "<r><w><i k='1'/></w><f to='1'/></r>",
          "<r><w><w><g><i k='1'/></g></w><g><i k='1'/></g></w><f to='1'/></r>",
          "<r><w><g><i k='1'/></g></w><w><g><i k='1'/></g></w><f to='1'/></r>"}}},
    {"references within and around",
      {items() + holding("g") +
          "<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' "
          "refer='k'><xs:selector xpath='f'/><xs:field xpath='@to'/></xs:keyref></xs:element>" +
          holding("r") +
          "<xs:keyref name='h' refer='k'><xs:selector xpath='f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><g><i k='1'/><f to='1'/></g><f to='1'/></r>",
          "<r><g><i k='1'/></g><g><i k='2'/><f to='2'/></g><f to='1'/><f to='2'/></r>"},
        {"<r><g><i k='1'/></g><g><f to='1'/></g></r>", "<r><g><i k='1'/><f to='1'/></g><f to='2'/></r>"}}},
    {"long values", {constrained("<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='@l'/></xs:unique>"),
                      {"<r><i l='" + std::string(300, 'a') + "b'/><i l='" + std::string(300, 'a') + "c'/></r>"},
                      {"<r><i l='" + std::string(300, 'a') + "'/><i l='" + std::string(300, 'b') + "'/><i l='" +
                        std::string(300, 'a') + "'/></r>"}}},
    {"pairs of long values",
      {items() +
          "<xs:element name='t'><xs:complexType><xs:attribute name='a'/><xs:attribute "
          "name='b'/></xs:complexType></xs:element>" +
          holding("r") +
          "<xs:key name='k'><xs:selector xpath='t'/><xs:field xpath='@a'/><xs:field xpath='@b'/></xs:key></xs:element>",
        {"<r><t a='" + std::string(150, 'x') + "' b='y'/><t a='" + std::string(149, 'x') +
          "' b='xy'/><t a='' b=''/><t a='y' b='" + std::string(150, 'x') + "'/></r>"},
        {"<r><t a='" + std::string(150, 'x') + "' b='y'/><t a='y' b='z'/><t a='" + std::string(150, 'x') +
          "' b='y'/></r>"}}},
    {"nil values", {"<xs:element name='n' type='xs:int' nillable='true'/>" + holding("r") +
                       "<xs:unique name='u'><xs:selector xpath='n'/><xs:field xpath='.'/></xs:unique></xs:element>",
                     {"<r><n xsi:nil='true'/><n xsi:nil='true'/><n>1</n></r>", "<r><n>1</n><n>2</n></r>"},
                     {"<r><n>1</n><n>1</n></r>"}}},
    {"attributes of no declared type",
      {"<xs:element name='i'/>" + holding("r") +
          "<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:unique></xs:element>",
        {"<r><i k='1'/><i k='01'/></r>"}, {"<r><i k='1'/><i k='1'/></r>"}}},
    {"defaults are values",
      {"<xs:element name='i'><xs:complexType><xs:attribute name='k' type='xs:int' "
       "default='5'/></xs:complexType></xs:element><xs:element name='e' type='xs:int' default='7'/>" +
          holding("r") +
          "<xs:unique name='u'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:unique><xs:unique "
          "name='w'><xs:selector xpath='e'/><xs:field xpath='.'/></xs:unique></xs:element>",
        {"<r><i k='1'/><i/></r>", "<r><e/><e>8</e></r>"},
        {"<r><i/><i/></r>", "<r><i/><i k='5'/></r>", "<r><e/><e>7</e></r>"}}},
    {"keys of an element and of those of its name within",
      {constrained("<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' "
                   "refer='k'><xs:selector xpath='f'/><xs:field xpath='@to'/></xs:keyref>"),
        {"<r><i k='1'/><r><i k='2'/></r><f to='2'/><f to='1'/></r>",
          "<r><r><r><i k='3'/><f to='3'/></r></r><i k='1'/><f to='3'/></r>",
          "<r><i k='1'/><r><i k='1'/></r><f to='1'/></r>"},
        {"<r><i k='1'/><r><i k='2'/></r><f to='3'/></r>", "<r><i k='1'/><r><i k='2'/><f to='1'/></r></r>"}}},
    {"constraints on all below",
      {constrained("<xs:unique name='u'><xs:selector xpath='.//i'/><xs:field xpath='@k'/></xs:unique>") + holding("g") +
          "</xs:element>",
        {"<r><i k='1'/><r><i k='2'/><r><i k='3'/></r></r></r>", "<g><r><i k='1'/></r><r><i k='1'/></r><i k='1'/></g>"},
        {"<r><i k='1'/><r><i k='1'/></r></r>", "<r><r><i k='1'/></r><r><i k='1'/></r></r>",
          "<r><r><r><i k='1'/><g><i k='1'/></g></r></r></r>", "<g><r><i k='1'/><g><i k='1'/></g></r></g>"}}},
    {"references to all below",
      {constrained("<xs:key name='k'><xs:selector xpath='.//i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' "
                   "refer='k'><xs:selector xpath='.//f'/><xs:field xpath='@to'/></xs:keyref>"),
        {"<r><i k='1'/><r><i k='2'/><f to='2'/></r><f to='2'/><f to='1'/></r>"},
        {"<r><i k='1'/><r><i k='2'/><f to='1'/></r></r>", "<r><r><i k='2'/></r><f to='3'/></r>"}}},
    {"fields that have no simple type",
      {constrained("<xs:unique name='u'><xs:selector xpath='.'/><xs:field xpath='i'/></xs:unique>"), {"<r></r>"},
        {"<r><i/></r>", "<r><i k='1'/></r>"}}},
    {"fields of several steps",
      {constrained("<xs:unique name='u'><xs:selector xpath='.'/><xs:field xpath='i/v'/></xs:unique>"),
        {"<r><i><v>1</v></i></r>", "<r><i/></r>"}, {"<r><i><v>1</v></i><i><v>2</v></i></r>"}}},
    {"many keys", {constrained("<xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key>"),
                    {many_items("")}, {many_items("<i k='177'/>")}}},
    {"IDs", {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='e' "
             "maxOccurs='unbounded'><xs:complexType><xs:attribute name='id' type='xs:ID'/><xs:attribute name='ref' "
             "type='xs:IDREF'/><xs:attribute name='refs' "
             "type='xs:IDREFS'/></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>",
              {"<r><e refs='b a'/><e id='a'/><e id='b'/></r>", "<r><e id='a' ref='a'/></r>"},
              {"<r><e id='a'/><e id='a'/></r>", "<r><e refs='a b'/><e id='a'/></r>", "<r><e ref='x'/><e id='a'/></r>",
                "<r><e refs=''/></r>"}}},
    {"IDs beside other values",
      {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='e' "
       "maxOccurs='unbounded'><xs:complexType><xs:simpleContent><xs:extension base='xs:int'><xs:attribute name='id' "
       "type='xs:ID'/><xs:attribute name='n' type='xs:int'/><xs:attribute name='s'/><xs:attribute name='l' "
       "type='xs:NMTOKENS'/></xs:extension></xs:simpleContent></xs:complexType></xs:element></xs:sequence></"
       "xs:complexType></xs:element>",
        {"<r><e id='a' n='1' s='a' l='a b'>1</e></r>", "<r><e n='1' id='a' s='b'>1</e><e s='a' n='1' id='b'>2</e></r>",
          "<r><e id='a'>1</e><e n='2'>1</e><e l='a' id='b'>1</e></r>"},
        {"<r><e id='a' n='1'>1</e><e n='1' id='a'>2</e></r>", "<r><e id='a' s='b'>1</e><e s='a' id='a' n='2'>1</e></r>",
          "<r><e id='a' n='b'>1</e></r>"}}},
    {"IDs of elements",
      {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='e' type='xs:ID' maxOccurs='9'/><xs:element "
       "name='f' type='xs:IDREF' minOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
        {"<r><e>a</e><e>b</e><f>a</f></r>"}, {"<r><e>a</e><e>a</e></r>", "<r><e>a</e><f>b</f></r>"}}},
    {"IDs by a wildcard",
      {"<xs:attribute name='i' type='xs:ID'/><xs:attribute name='j' type='xs:ID'/><xs:element "
       "name='r'><xs:complexType><xs:anyAttribute processContents='lax'/></xs:complexType></xs:element>",
        {"<r i='x'/>"}, {"<r i='x' j='y'/>"}}},
    {"names with prefixes",
      {"<xs:element name='q' type='xs:QName'/>" + holding("r") +
          "<xs:unique name='u'><xs:selector xpath='q'/><xs:field xpath='.'/></xs:unique></xs:element>",
        {"<r xmlns:p='urn:p'><q>p:a</q><q xmlns:p='urn:q'>p:a</q></r>"},
        {"<r xmlns:p='urn:p'><q>p:a</q><q xmlns:o='urn:p'>o:a</q></r>", "<r><q>p:a</q></r>"}}},
  };
  return cases;
}
}

void axmSchemaUtest::test_constraints(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_constraints");
  check_cases(group, *tester, *factory, constraint_cases());
}
