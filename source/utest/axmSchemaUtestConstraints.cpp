#include "axmSchemaTables.h"
#include "axmSchemaUtest.h"
#include "axmUtestGroup.h"

using namespace axmSchemaTables;

namespace
{
char const file[] = "source/utest/axmSchemaUtestConstraints";

std::vector<Case> const& constraint_cases()
{
  static std::vector<Case> const cases = {
    {"unique values",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:unique></xs:element>",
        {"<r><i k='1'/><i k='2'/><i/><i/></r>", "<r></r>"},
        {"<r><i k='1'/><i k='1.0'/></r>", "<r><i k='1'/><i/><i k='2'/><i k='1'/></r>"}}},
    {"unique contents",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='i'/><xs:field xpath='v'/></xs:unique></xs:element>",
        {"<r><i><v>1</v></i><i><v>2</v></i><i/><i/></r>"},
        {"<r><i><v>1</v></i><i><v>01</v></i></r>", "<r><i><v>1</v><v>2</v></i></r>"}}},
    {"unique pairs",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/><xs:field xpath='@l'/></xs:unique></xs:element>",
        {"<r><i k='1' l='a'/><i k='1' l='b'/><i k='2' l='a'/><i k='1'/><i k='1'/></r>"},
        {"<r><i k='1' l='a'/><i k='2' l='a'/><i k='1.0' l='a'/></r>"}}},
    {"keys",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/><xs:field xpath='@l'/></xs:key></xs:element>",
        {"<r><i k='1' l='a'/><i k='1' l='b'/><i k='11' l=''/><i k='1' l='1'/></r>"},
        {"<r><i k='1' l='a'/><i k='1.0' l='a'/></r>", "<r><i/></r>", "<r><i k='1'/></r>", "<r><i l='1'/></r>"}}},
    {"key references",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='f'/><xs:field "
       "xpath='@to'/></xs:keyref></xs:element>",
        {"<r><f to='1.0'/><f/><i k='1'/></r>", "<r><i k='1'/><i k='2'/><f to='2'/><f to='2'/></r>"},
        {"<r><f to='1'/><f to='2'/><i k='1'/></r>", "<r><f to='1'/></r>", "<r><i k='1'/><f to='1'/><f to='3'/></r>"}}},
    {"keys of elements within",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='g'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:key></xs:element><xs:element "
       "name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:keyref name='f' refer='k'><xs:selector "
       "xpath='.//f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><g><i k='1'/></g><g><i k='2'/></g><f to='1'/><f to='2'/></r>",
          "<r><g><i k='1'/></g><g><i k='1'/></g></r>"},
        {"<r><g><i k='1'/></g><g><i k='1'/></g><f to='1'/></r>", "<r><i k='1'/><f to='1'/></r>",
          "<r><g><i k='1'/><i k='1'/></g></r>"}}},
    {"selectors",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='g'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType></xs:element><xs:element "
       "name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='.//g/i|i'/><xs:field xpath='@k'/></xs:unique></xs:element>",
        {"<r><i k='1'/><g><i k='2'/></g></r>", "<r><g><g><i k='1'/><i k='2'/></g></g></r>"},
        {"<r><i k='1'/><g><g><i k='1'/></g></g></r>", "<r><i k='1'/><i k='1'/></r>"}}},
    {"stars",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='g'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType></xs:element><xs:element "
       "name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector xpath='*/i'/><xs:field "
       "xpath='@*'/></xs:unique></xs:element>",
        {"<r><i k='1'/><i k='1'/><g><i l='1'/></g></r>"},
        {"<r><g><i l='1'/><i l='1'/></g></r>", "<r><g><i l='1' k='1'/></g></r>"}}},
    {"the element itself",
      {"<xs:element name='i' type='xs:int'/><xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector xpath='i'/><xs:field "
       "xpath='.'/></xs:unique></xs:element>",
        {"<r><i>1</i><i>2</i></r>"}, {"<r><i>1</i><i>01</i></r>"}}},
    {"values of different types",
      {"<xs:element name='i' type='xs:int'/><xs:element name='s' type='xs:string'/><xs:element "
       "name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector xpath='i|s'/><xs:field "
       "xpath='.'/></xs:unique></xs:element>",
        {"<r><i>1</i><s>1</s></r>"}, {"<r><i>1</i><i>1</i><s>1</s></r>", "<r><s>1</s><s>1</s></r>"}}},
    {"nillable keys",
      {"<xs:element name='n' type='xs:int' nillable='true'/><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='n'/><xs:field xpath='.'/></xs:key></xs:element>",
        {"<r></r>"},
        {"<r><n>1</n></r>", "<r><n xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                            "xmlns:xs='http://www.w3.org/2001/XMLSchema' xsi:nil='true'/></r>"}}},
    {"keys handed up through elements of one name",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='g'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:key></xs:element><xs:element "
       "name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:keyref name='f' refer='k'><xs:selector "
       "xpath='.//f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><g><i k='1'/><g><i k='2'/><g><i k='3'/></g></g></g><f to='1'/><f to='2'/><f to='3'/></r>",
          "<r><g><g><i k='2'/></g><g><i k='3'/></g></g><f to='2'/><f to='3'/></r>",
          "<r><g><i k='1'/><g><i k='1'/></g></g><f to='1'/></r>"},
        {"<r><g><g><i k='2'/></g><g><i k='2'/></g></g><f to='2'/></r>",
          "<r><g><i k='1'/><g><i k='2'/></g></g><f to='3'/></r>"}}},
    {"references within and around",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='g'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='f'/><xs:field "
       "xpath='@to'/></xs:keyref></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:keyref name='h' refer='k'><xs:selector "
       "xpath='f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><g><i k='1'/><f to='1'/></g><f to='1'/></r>",
          "<r><g><i k='1'/></g><g><i k='2'/><f to='2'/></g><f to='1'/><f to='2'/></r>"},
        {"<r><g><i k='1'/></g><g><f to='1'/></g></r>", "<r><g><i k='1'/><f to='1'/></g><f to='2'/></r>"}}},
    {"long values",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='i'/><xs:field xpath='@l'/></xs:unique></xs:element>",
        {"<r><i "
         "l='"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaab'/><i "
         "l='"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaac'/></r>"},
        {"<r><i "
         "l='"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'/><i "
         "l='"
         "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb"
         "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb"
         "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb'/><i "
         "l='"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'/></r>"}}},
    {"pairs of long values",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='t'><xs:complexType><xs:attribute "
       "name='a'/><xs:attribute name='b'/></xs:complexType></xs:element><xs:element "
       "name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='t'/><xs:field "
       "xpath='@a'/><xs:field xpath='@b'/></xs:key></xs:element>",
        {"<r><t "
         "a='"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' b='y'/><t "
         "a='"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' b='xy'/><t a='' b=''/><t a='y' "
         "b='"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'/></r>"},
        {"<r><t "
         "a='"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' b='y'/><t a='y' b='z'/><t "
         "a='"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
         "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' b='y'/></r>"}}},
    {"nil values",
      {"<xs:element name='n' type='xs:int' nillable='true'/><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='n'/><xs:field xpath='.'/></xs:unique></xs:element>",
        {"<r><n xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:xs='http://www.w3.org/2001/XMLSchema' "
         "xsi:nil='true'/><n xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
         "xmlns:xs='http://www.w3.org/2001/XMLSchema' xsi:nil='true'/><n>1</n></r>",
          "<r><n>1</n><n>2</n></r>"},
        {"<r><n>1</n><n>1</n></r>"}}},
    {"attributes of no declared type",
      {"<xs:element name='i'/><xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector xpath='i'/><xs:field "
       "xpath='@k'/></xs:unique></xs:element>",
        {"<r><i k='1'/><i k='01'/></r>"}, {"<r><i k='1'/><i k='1'/></r>"}}},
    {"defaults are values", {"<xs:element name='i'><xs:complexType><xs:attribute name='k' type='xs:int' "
                             "default='5'/></xs:complexType></xs:element><xs:element name='e' type='xs:int' "
                             "default='7'/><xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
                             "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
                             "xpath='i'/><xs:field xpath='@k'/></xs:unique><xs:unique name='w'><xs:selector "
                             "xpath='e'/><xs:field xpath='.'/></xs:unique></xs:element>",
                              {"<r><i k='1'/><i/></r>", "<r><e/><e>8</e></r>"},
                              {"<r><i/><i/></r>", "<r><i/><i k='5'/></r>", "<r><e/><e>7</e></r>"}}},
    {"keys of an element and of those of its name within",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='f'/><xs:field "
       "xpath='@to'/></xs:keyref></xs:element>",
        {"<r><i k='1'/><r><i k='2'/></r><f to='2'/><f to='1'/></r>",
          "<r><r><r><i k='3'/><f to='3'/></r></r><i k='1'/><f to='3'/></r>",
          "<r><i k='1'/><r><i k='1'/></r><f to='1'/></r>"},
        {"<r><i k='1'/><r><i k='2'/></r><f to='3'/></r>", "<r><i k='1'/><r><i k='2'/><f to='1'/></r></r>"}}},
    {"constraints on all below",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='.//i'/><xs:field xpath='@k'/></xs:unique></xs:element><xs:element "
       "name='g'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType></xs:element>",
        {"<r><i k='1'/><r><i k='2'/><r><i k='3'/></r></r></r>", "<g><r><i k='1'/></r><r><i k='1'/></r><i k='1'/></g>"},
        {"<r><i k='1'/><r><i k='1'/></r></r>", "<r><r><i k='1'/></r><r><i k='1'/></r></r>",
          "<r><r><r><i k='1'/><g><i k='1'/></g></r></r></r>", "<g><r><i k='1'/><g><i k='1'/></g></r></g>"}}},
    {"references to all below",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='.//i'/><xs:field xpath='@k'/></xs:key><xs:keyref name='f' refer='k'><xs:selector "
       "xpath='.//f'/><xs:field xpath='@to'/></xs:keyref></xs:element>",
        {"<r><i k='1'/><r><i k='2'/><f to='2'/></r><f to='2'/><f to='1'/></r>"},
        {"<r><i k='1'/><r><i k='2'/><f to='1'/></r></r>", "<r><r><i k='2'/></r><f to='3'/></r>"}}},
    {"fields that have no simple type",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='.'/><xs:field xpath='i'/></xs:unique></xs:element>",
        {"<r></r>"}, {"<r><i/></r>", "<r><i k='1'/></r>"}}},
    {"fields of several steps",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector "
       "xpath='.'/><xs:field xpath='i/v'/></xs:unique></xs:element>",
        {"<r><i><v>1</v></i></r>", "<r><i/></r>"}, {"<r><i><v>1</v></i><i><v>2</v></i></r>"}}},
    {"many keys",
      {"<xs:element name='i'><xs:complexType><xs:sequence><xs:element name='v' type='xs:decimal' minOccurs='0' "
       "maxOccurs='3'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='l' "
       "type='xs:string'/></xs:complexType></xs:element><xs:element name='f'><xs:complexType><xs:attribute name='to' "
       "type='xs:decimal'/></xs:complexType></xs:element><xs:element name='r'><xs:complexType><xs:sequence><xs:any "
       "minOccurs='0' maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector "
       "xpath='i'/><xs:field xpath='@k'/></xs:key></xs:element>",
        {"<r><i k='0'/><i k='1'/><i k='2'/><i k='3'/><i k='4'/><i k='5'/><i k='6'/><i k='7'/><i k='8'/><i k='9'/><i "
         "k='10'/><i k='11'/><i k='12'/><i k='13'/><i k='14'/><i k='15'/><i k='16'/><i k='17'/><i k='18'/><i "
         "k='19'/><i k='20'/><i k='21'/><i k='22'/><i k='23'/><i k='24'/><i k='25'/><i k='26'/><i k='27'/><i "
         "k='28'/><i k='29'/><i k='30'/><i k='31'/><i k='32'/><i k='33'/><i k='34'/><i k='35'/><i k='36'/><i "
         "k='37'/><i k='38'/><i k='39'/><i k='40'/><i k='41'/><i k='42'/><i k='43'/><i k='44'/><i k='45'/><i "
         "k='46'/><i k='47'/><i k='48'/><i k='49'/><i k='50'/><i k='51'/><i k='52'/><i k='53'/><i k='54'/><i "
         "k='55'/><i k='56'/><i k='57'/><i k='58'/><i k='59'/><i k='60'/><i k='61'/><i k='62'/><i k='63'/><i "
         "k='64'/><i k='65'/><i k='66'/><i k='67'/><i k='68'/><i k='69'/><i k='70'/><i k='71'/><i k='72'/><i "
         "k='73'/><i k='74'/><i k='75'/><i k='76'/><i k='77'/><i k='78'/><i k='79'/><i k='80'/><i k='81'/><i "
         "k='82'/><i k='83'/><i k='84'/><i k='85'/><i k='86'/><i k='87'/><i k='88'/><i k='89'/><i k='90'/><i "
         "k='91'/><i k='92'/><i k='93'/><i k='94'/><i k='95'/><i k='96'/><i k='97'/><i k='98'/><i k='99'/><i "
         "k='100'/><i k='101'/><i k='102'/><i k='103'/><i k='104'/><i k='105'/><i k='106'/><i k='107'/><i k='108'/><i "
         "k='109'/><i k='110'/><i k='111'/><i k='112'/><i k='113'/><i k='114'/><i k='115'/><i k='116'/><i k='117'/><i "
         "k='118'/><i k='119'/><i k='120'/><i k='121'/><i k='122'/><i k='123'/><i k='124'/><i k='125'/><i k='126'/><i "
         "k='127'/><i k='128'/><i k='129'/><i k='130'/><i k='131'/><i k='132'/><i k='133'/><i k='134'/><i k='135'/><i "
         "k='136'/><i k='137'/><i k='138'/><i k='139'/><i k='140'/><i k='141'/><i k='142'/><i k='143'/><i k='144'/><i "
         "k='145'/><i k='146'/><i k='147'/><i k='148'/><i k='149'/><i k='150'/><i k='151'/><i k='152'/><i k='153'/><i "
         "k='154'/><i k='155'/><i k='156'/><i k='157'/><i k='158'/><i k='159'/><i k='160'/><i k='161'/><i k='162'/><i "
         "k='163'/><i k='164'/><i k='165'/><i k='166'/><i k='167'/><i k='168'/><i k='169'/><i k='170'/><i k='171'/><i "
         "k='172'/><i k='173'/><i k='174'/><i k='175'/><i k='176'/><i k='177'/><i k='178'/><i k='179'/><i k='180'/><i "
         "k='181'/><i k='182'/><i k='183'/><i k='184'/><i k='185'/><i k='186'/><i k='187'/><i k='188'/><i k='189'/><i "
         "k='190'/><i k='191'/><i k='192'/><i k='193'/><i k='194'/><i k='195'/><i k='196'/><i k='197'/><i k='198'/><i "
         "k='199'/><i k='200'/><i k='201'/><i k='202'/><i k='203'/><i k='204'/><i k='205'/><i k='206'/><i k='207'/><i "
         "k='208'/><i k='209'/><i k='210'/><i k='211'/><i k='212'/><i k='213'/><i k='214'/><i k='215'/><i k='216'/><i "
         "k='217'/><i k='218'/><i k='219'/><i k='220'/><i k='221'/><i k='222'/><i k='223'/><i k='224'/><i k='225'/><i "
         "k='226'/><i k='227'/><i k='228'/><i k='229'/><i k='230'/><i k='231'/><i k='232'/><i k='233'/><i k='234'/><i "
         "k='235'/><i k='236'/><i k='237'/><i k='238'/><i k='239'/><i k='240'/><i k='241'/><i k='242'/><i k='243'/><i "
         "k='244'/><i k='245'/><i k='246'/><i k='247'/><i k='248'/><i k='249'/><i k='250'/><i k='251'/><i k='252'/><i "
         "k='253'/><i k='254'/><i k='255'/><i k='256'/><i k='257'/><i k='258'/><i k='259'/><i k='260'/><i k='261'/><i "
         "k='262'/><i k='263'/><i k='264'/><i k='265'/><i k='266'/><i k='267'/><i k='268'/><i k='269'/><i k='270'/><i "
         "k='271'/><i k='272'/><i k='273'/><i k='274'/><i k='275'/><i k='276'/><i k='277'/><i k='278'/><i k='279'/><i "
         "k='280'/><i k='281'/><i k='282'/><i k='283'/><i k='284'/><i k='285'/><i k='286'/><i k='287'/><i k='288'/><i "
         "k='289'/><i k='290'/><i k='291'/><i k='292'/><i k='293'/><i k='294'/><i k='295'/><i k='296'/><i k='297'/><i "
         "k='298'/><i k='299'/></r>"},
        {"<r><i k='0'/><i k='1'/><i k='2'/><i k='3'/><i k='4'/><i k='5'/><i k='6'/><i k='7'/><i k='8'/><i k='9'/><i "
         "k='10'/><i k='11'/><i k='12'/><i k='13'/><i k='14'/><i k='15'/><i k='16'/><i k='17'/><i k='18'/><i "
         "k='19'/><i k='20'/><i k='21'/><i k='22'/><i k='23'/><i k='24'/><i k='25'/><i k='26'/><i k='27'/><i "
         "k='28'/><i k='29'/><i k='30'/><i k='31'/><i k='32'/><i k='33'/><i k='34'/><i k='35'/><i k='36'/><i "
         "k='37'/><i k='38'/><i k='39'/><i k='40'/><i k='41'/><i k='42'/><i k='43'/><i k='44'/><i k='45'/><i "
         "k='46'/><i k='47'/><i k='48'/><i k='49'/><i k='50'/><i k='51'/><i k='52'/><i k='53'/><i k='54'/><i "
         "k='55'/><i k='56'/><i k='57'/><i k='58'/><i k='59'/><i k='60'/><i k='61'/><i k='62'/><i k='63'/><i "
         "k='64'/><i k='65'/><i k='66'/><i k='67'/><i k='68'/><i k='69'/><i k='70'/><i k='71'/><i k='72'/><i "
         "k='73'/><i k='74'/><i k='75'/><i k='76'/><i k='77'/><i k='78'/><i k='79'/><i k='80'/><i k='81'/><i "
         "k='82'/><i k='83'/><i k='84'/><i k='85'/><i k='86'/><i k='87'/><i k='88'/><i k='89'/><i k='90'/><i "
         "k='91'/><i k='92'/><i k='93'/><i k='94'/><i k='95'/><i k='96'/><i k='97'/><i k='98'/><i k='99'/><i "
         "k='100'/><i k='101'/><i k='102'/><i k='103'/><i k='104'/><i k='105'/><i k='106'/><i k='107'/><i k='108'/><i "
         "k='109'/><i k='110'/><i k='111'/><i k='112'/><i k='113'/><i k='114'/><i k='115'/><i k='116'/><i k='117'/><i "
         "k='118'/><i k='119'/><i k='120'/><i k='121'/><i k='122'/><i k='123'/><i k='124'/><i k='125'/><i k='126'/><i "
         "k='127'/><i k='128'/><i k='129'/><i k='130'/><i k='131'/><i k='132'/><i k='133'/><i k='134'/><i k='135'/><i "
         "k='136'/><i k='137'/><i k='138'/><i k='139'/><i k='140'/><i k='141'/><i k='142'/><i k='143'/><i k='144'/><i "
         "k='145'/><i k='146'/><i k='147'/><i k='148'/><i k='149'/><i k='150'/><i k='151'/><i k='152'/><i k='153'/><i "
         "k='154'/><i k='155'/><i k='156'/><i k='157'/><i k='158'/><i k='159'/><i k='160'/><i k='161'/><i k='162'/><i "
         "k='163'/><i k='164'/><i k='165'/><i k='166'/><i k='167'/><i k='168'/><i k='169'/><i k='170'/><i k='171'/><i "
         "k='172'/><i k='173'/><i k='174'/><i k='175'/><i k='176'/><i k='177'/><i k='178'/><i k='179'/><i k='180'/><i "
         "k='181'/><i k='182'/><i k='183'/><i k='184'/><i k='185'/><i k='186'/><i k='187'/><i k='188'/><i k='189'/><i "
         "k='190'/><i k='191'/><i k='192'/><i k='193'/><i k='194'/><i k='195'/><i k='196'/><i k='197'/><i k='198'/><i "
         "k='199'/><i k='200'/><i k='201'/><i k='202'/><i k='203'/><i k='204'/><i k='205'/><i k='206'/><i k='207'/><i "
         "k='208'/><i k='209'/><i k='210'/><i k='211'/><i k='212'/><i k='213'/><i k='214'/><i k='215'/><i k='216'/><i "
         "k='217'/><i k='218'/><i k='219'/><i k='220'/><i k='221'/><i k='222'/><i k='223'/><i k='224'/><i k='225'/><i "
         "k='226'/><i k='227'/><i k='228'/><i k='229'/><i k='230'/><i k='231'/><i k='232'/><i k='233'/><i k='234'/><i "
         "k='235'/><i k='236'/><i k='237'/><i k='238'/><i k='239'/><i k='240'/><i k='241'/><i k='242'/><i k='243'/><i "
         "k='244'/><i k='245'/><i k='246'/><i k='247'/><i k='248'/><i k='249'/><i k='250'/><i k='251'/><i k='252'/><i "
         "k='253'/><i k='254'/><i k='255'/><i k='256'/><i k='257'/><i k='258'/><i k='259'/><i k='260'/><i k='261'/><i "
         "k='262'/><i k='263'/><i k='264'/><i k='265'/><i k='266'/><i k='267'/><i k='268'/><i k='269'/><i k='270'/><i "
         "k='271'/><i k='272'/><i k='273'/><i k='274'/><i k='275'/><i k='276'/><i k='277'/><i k='278'/><i k='279'/><i "
         "k='280'/><i k='281'/><i k='282'/><i k='283'/><i k='284'/><i k='285'/><i k='286'/><i k='287'/><i k='288'/><i "
         "k='289'/><i k='290'/><i k='291'/><i k='292'/><i k='293'/><i k='294'/><i k='295'/><i k='296'/><i k='297'/><i "
         "k='298'/><i k='299'/><i k='177'/></r>"}}},
    {"IDs", {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='e' "
             "maxOccurs='unbounded'><xs:complexType><xs:attribute name='id' type='xs:ID'/><xs:attribute name='ref' "
             "type='xs:IDREF'/><xs:attribute name='refs' "
             "type='xs:IDREFS'/></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>",
              {"<r><e refs='b a'/><e id='a'/><e id='b'/></r>", "<r><e id='a' ref='a'/></r>"},
              {"<r><e id='a'/><e id='a'/></r>", "<r><e refs='a b'/><e id='a'/></r>", "<r><e ref='x'/><e id='a'/></r>",
                "<r><e refs=''/></r>"}}},
    {"IDs of elements",
      {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='e' type='xs:ID' maxOccurs='9'/><xs:element "
       "name='f' type='xs:IDREF' minOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
        {"<r><e>a</e><e>b</e><f>a</f></r>"}, {"<r><e>a</e><e>a</e></r>", "<r><e>a</e><f>b</f></r>"}}},
    {"IDs by a wildcard",
      {"<xs:attribute name='i' type='xs:ID'/><xs:attribute name='j' type='xs:ID'/><xs:element "
       "name='r'><xs:complexType><xs:anyAttribute processContents='lax'/></xs:complexType></xs:element>",
        {"<r i='x'/>"}, {"<r i='x' j='y'/>"}}},
    {"names with prefixes",
      {"<xs:element name='q' type='xs:QName'/><xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' "
       "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:unique name='u'><xs:selector xpath='q'/><xs:field "
       "xpath='.'/></xs:unique></xs:element>",
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
