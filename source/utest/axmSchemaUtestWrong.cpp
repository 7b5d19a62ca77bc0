#include "axmSchemaTables.h"
#include "axmSchemaUtest.h"
#include "axmUtestGroup.h"

#include <utUnitTest.h>

using namespace axmSchemaTables;
using axmUtestAccess::bytes_of;

namespace
{
char const file[] = "source/utest/axmSchemaUtestWrong";

char const* const wrong_schemas[] = {
  "<xs:element name='r' type='none'/>",
  "<xs:element name='r' type='xs:none'/>",
  "<xs:element/>",
  "<xs:element name='1'/>",
  "<xs:element name='r'/><xs:element name='r'/>",
  "<xs:element name='r' unknown='x'/>",
  "<other/>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element "
  "ref='none'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:group ref='none'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attribute ref='none'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attribute name='a'/><xs:attribute name='a'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attribute name='a' type='xs:int' "
  "default='x'/></xs:complexType></xs:element>",
  "<xs:element name='r' type='xs:int' default='x'/>",
  "<xs:element name='r' type='xs:int' fixed='1' default='1'/>",
  "<xs:element name='r' type='xs:int'><xs:simpleType><xs:restriction base='xs:int'/></xs:simpleType></xs:element>",
  "<xs:simpleType name='t'><xs:restriction base='t'/></xs:simpleType>",
  "<xs:complexType name='t'><xs:complexContent><xs:extension base='t'/></xs:complexContent></xs:complexType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='['/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minInclusive value='x'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minInclusive value='5'/><xs:maxInclusive "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value='-1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:length value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:minLength value='3'/><xs:maxLength "
  "value='2'/></xs:restriction></xs:simpleType>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='2' "
  "maxOccurs='1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs='x'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' type='xs:int'/><xs:element name='a' "
  "type='xs:string'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='0'/><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:choice><xs:element name='a'/><xs:element "
  "name='a'/></xs:choice></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:all><xs:element name='a' "
  "maxOccurs='2'/></xs:all></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:all><xs:element "
  "name='a'/></xs:all></xs:sequence></xs:complexType></xs:element>",
  "<xs:complexType name='b' final='extension'/><xs:complexType name='d'><xs:complexContent><xs:extension "
  "base='b'/></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:element "
  "name='c'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:element name='h' type='xs:int'/><xs:element name='m' type='xs:string' substitutionGroup='h'/>",
  "<xs:element name='h' type='xs:int' final='restriction'/><xs:element name='m' type='xs:byte' substitutionGroup='h'/>",
  "<xs:element name='m' substitutionGroup='none'/>",
  "<xs:element name='r'><xs:complexType/><xs:key name='k'><xs:selector xpath='a['/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType/><xs:keyref name='k' refer='none'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:keyref></xs:element>",
  "<xs:element name='r'><xs:complexType/><xs:key name='k'><xs:selector xpath='a'/></xs:key></xs:element>",
  "<xs:group name='g'><xs:sequence><xs:group ref='g'/></xs:sequence></xs:group><xs:element "
  "name='r'><xs:complexType><xs:group ref='g'/></xs:complexType></xs:element>",
  "<xs:attributeGroup name='g'><xs:attribute name='a'/><xs:attribute name='a'/></xs:attributeGroup>",
  "<xs:simpleType name='t'><xs:list itemType='none'/></xs:simpleType>",
  "<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:simpleType name='t'><xs:list "
  "itemType='l'/></xs:simpleType>",
  "<xs:simpleType name='t'><xs:union memberTypes='none'/></xs:simpleType>",
  "<xs:simpleType name='t'/>",
  "<xs:include schemaLocation='./no_such_schema.xsd'/>",
  "<xs:notation/>",
  "<xs:element name='r' abstract='x'/>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value='2'/><xs:length "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value='2'/><xs:minLength "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value='2'/><xs:maxLength "
  "value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minInclusive value='1'/><xs:minExclusive "
  "value='0'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:maxInclusive value='1'/><xs:maxExclusive "
  "value='2'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minExclusive value='5'/><xs:maxExclusive "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minInclusive value='5'/><xs:maxExclusive "
  "value='5'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:minExclusive value='5'/><xs:maxInclusive "
  "value='5'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:date'><xs:minInclusive value='2001-01-02'/><xs:maxInclusive "
  "value='2001-01-01'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:decimal'><xs:totalDigits value='1'/><xs:fractionDigits "
  "value='2'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:decimal'><xs:totalDigits "
  "value='0'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:decimal'><xs:totalDigits "
  "value='-1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:decimal'><xs:fractionDigits "
  "value='x'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:double'><xs:totalDigits "
  "value='2'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:maxLength value='2'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:length value='2'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:minInclusive "
  "value='a'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:totalDigits "
  "value='2'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:boolean'><xs:enumeration "
  "value='true'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:boolean'><xs:length value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:enumeration value='x'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:byte'><xs:enumeration "
  "value='128'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:byte'><xs:maxInclusive "
  "value='128'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:unsignedInt'><xs:minInclusive "
  "value='-1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:positiveInteger'><xs:minInclusive "
  "value='0'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:whiteSpace "
  "value='keep'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:token'><xs:whiteSpace "
  "value='preserve'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:token'><xs:whiteSpace "
  "value='replace'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:normalizedString'><xs:whiteSpace "
  "value='preserve'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:whiteSpace "
  "value='preserve'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:integer'><xs:fractionDigits "
  "value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:minimum value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value='1' "
  "fixed='x'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value='1.5'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:length value=''/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:int'><xs:maxInclusive value=''/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:anySimpleType'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:anyType'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:enumeration/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:maxLength value='1'><xs:maxLength "
  "value='1'/></xs:maxLength></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='('/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='a)'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='(a'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='a{2,1}'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='*'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='+a'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='?'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='a**'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='a+?'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='[]'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='[^]'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='[b-a]'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='[a'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='a]b['/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='\\q'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='\\'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='\\p{Xx}'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='\\p{IsNone}'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='\\p'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='\\pL'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='[a-z-[a]b]'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='[a-\\d]'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='[[a]]'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='\\u0041'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='\\x41'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern "
  "value='(?:a)'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:pattern value='\\b'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:maxInclusive "
  "value='5'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:maxInclusive "
  "value='6'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:minInclusive "
  "value='5'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:minInclusive "
  "value='4'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:maxExclusive "
  "value='5'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:maxInclusive "
  "value='5'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:minExclusive "
  "value='5'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:minInclusive "
  "value='5'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:maxInclusive "
  "value='5'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:minInclusive "
  "value='6'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:maxInclusive "
  "value='5'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:maxExclusive "
  "value='7'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:enumeration value='1'/><xs:enumeration "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:enumeration "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:length "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:length "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:maxLength "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:maxLength "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:minLength "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:minLength "
  "value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:maxLength "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:minLength "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:decimal'><xs:totalDigits "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:totalDigits "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:decimal'><xs:fractionDigits "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:fractionDigits "
  "value='3'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:whiteSpace "
  "value='collapse'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:whiteSpace "
  "value='replace'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:maxLength value='2' "
  "fixed='true'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:maxLength "
  "value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:int'><xs:maxInclusive value='5' "
  "fixed='true'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:maxInclusive "
  "value='4'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:whiteSpace value='replace' "
  "fixed='true'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:whiteSpace "
  "value='collapse'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:length "
  "value='2'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:enumeration "
  "value='abc'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='xs:string'><xs:pattern "
  "value='a'/></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction base='b'><xs:enumeration "
  "value='b'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:simpleType name='t'><xs:restriction "
  "base='l'><xs:minInclusive value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:simpleType name='u'><xs:union "
  "memberTypes='l xs:int'/></xs:simpleType><xs:simpleType name='t'><xs:list itemType='u'/></xs:simpleType>",
  "<xs:simpleType name='t'><xs:list itemType='xs:NMTOKENS'/></xs:simpleType>",
  "<xs:simpleType name='u'><xs:union memberTypes='xs:int xs:string'/></xs:simpleType><xs:simpleType "
  "name='t'><xs:restriction base='u'><xs:length value='1'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='u'><xs:union memberTypes='xs:int'/></xs:simpleType><xs:simpleType name='t'><xs:restriction "
  "base='u'><xs:enumeration value='x'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:simpleType name='t'><xs:restriction "
  "base='l'><xs:enumeration value='1 x'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:simpleType name='t'><xs:restriction "
  "base='l'><xs:whiteSpace value='preserve'/></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b'><xs:union memberTypes='a'/></xs:simpleType><xs:simpleType name='a'><xs:union "
  "memberTypes='b'/></xs:simpleType>",
  "<xs:simpleType name='t'><xs:list itemType='t'/></xs:simpleType>",
  "<xs:simpleType name='b'><xs:restriction base='a'></xs:restriction></xs:simpleType><xs:simpleType "
  "name='a'><xs:restriction base='b'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b' final='restriction'><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction "
  "base='b'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b' final='list'><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:list itemType='b'/></xs:simpleType>",
  "<xs:simpleType name='b' final='union'><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:union "
  "memberTypes='b'/></xs:simpleType>",
  "<xs:simpleType name='b' final='#all'><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType><xs:simpleType name='t'><xs:restriction "
  "base='b'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='b' final='none'><xs:restriction base='xs:string'></xs:restriction></xs:simpleType>",
  "<xs:simpleType><xs:restriction base='xs:string'></xs:restriction></xs:simpleType>",
  "<xs:element name='r'><xs:simpleType name='t'><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType></xs:element>",
  "<xs:simpleType name='t'><xs:restriction/></xs:simpleType>",
  "<xs:simpleType name='t'><xs:list/></xs:simpleType>",
  "<xs:simpleType name='t'><xs:union/></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'><xs:simpleType><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:list itemType='xs:int'><xs:simpleType><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType></xs:list></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'></xs:restriction><xs:restriction "
  "base='xs:string'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'></xs:restriction></xs:simpleType><xs:simpleType "
  "name='t'><xs:restriction base='xs:string'></xs:restriction></xs:simpleType>",
  "<xs:simpleType name='t'><xs:restriction base='xs:string'></xs:restriction></xs:simpleType><xs:complexType "
  "name='t'/>",
  "<xs:complexType name='c'/><xs:simpleType name='t'><xs:restriction base='c'></xs:restriction></xs:simpleType>",
  "<xs:complexType name='c'/><xs:simpleType name='t'><xs:list itemType='c'/></xs:simpleType>",
  "<xs:complexType name='c'/><xs:simpleType name='t'><xs:union memberTypes='c'/></xs:simpleType>",
  "<xs:element name='a:b'/>",
  "<xs:element name=''/>",
  "<xs:element name='r' ref='x'/>",
  "<xs:element ref='x'/>",
  "<xs:element name='r' minOccurs='1'/>",
  "<xs:element name='r' maxOccurs='1'/>",
  "<xs:element name='r' form='qualified'/>",
  "<xs:element name='r' block='none'/>",
  "<xs:element name='r' final='none'/>",
  "<xs:element name='r' final='substitution'/>",
  "<xs:element name='r' nillable='x'/>",
  "<xs:element name='r' nillable=''/>",
  "<xs:element name='r' type=''/>",
  "<xs:element name='r' type='q:x'/>",
  "<xs:element name='r' type='a:b:c'/>",
  "<xs:element name='r' type='xs:ID' default='a'/>",
  "<xs:element name='r' type='xs:ID' fixed='a'/>",
  "<xs:element name='r' type='xs:byte' default='128'/>",
  "<xs:element name='r' type='xs:byte' fixed='x'/>",
  "<xs:element name='r' substitutionGroup='r'/>",
  "<xs:element name='r' substitutionGroup=''/>",
  "<xs:element name='r' id='1'/>",
  "<xs:element name='r' xs:name='s'/>",
  "<xs:element name='r' value='1'/>",
  "<xs:element name='r' use='required'/>",
  "<xs:element name='r' abstract=''/>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "abstract='true'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "substitutionGroup='x'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "final='#all'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "type='xs:int'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "nillable='true'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "default='1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "fixed='1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "form='qualified'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='x' "
  "block='#all'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "form='x'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs='-1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "maxOccurs='-1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "maxOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs='2'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "maxOccurs='many'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs='unbounded'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs=''/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs='1.0'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element "
  "minOccurs='1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' type='xs:int' "
  "default='1' fixed='1'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='x'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element "
  "ref='x'><xs:complexType></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r' type='xs:int'><xs:complexType></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:complexType></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:simpleType><xs:restriction "
  "base='xs:int'></xs:restriction></xs:simpleType></xs:element>",
  "<xs:element name='r'><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='b'/></xs:key><xs:complexType></xs:complexType></xs:element>",
  "<xs:element name='r' default='x'><xs:complexType><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r' default='x'><xs:complexType mixed='true'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r' default='x'><xs:complexType><xs:simpleContent><xs:extension "
  "base='xs:int'/></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element name='a' substitutionGroup='b'/><xs:element name='b' substitutionGroup='a'/>",
  "<xs:element name='h' type='xs:int' final='#all'/><xs:element name='m' type='xs:byte' substitutionGroup='h'/>",
  "<xs:element name='h' type='xs:int'/><xs:element name='m' type='xs:decimal' substitutionGroup='h'/>",
  "<xs:element name='r'><xs:complexType><xs:attribute name='a'/><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a'/></xs:sequence><xs:sequence><xs:element "
  "name='b'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element "
  "name='a'/></xs:sequence><xs:choice/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:element name='a'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:any/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:anyAttribute/><xs:attribute name='a'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:anyAttribute/><xs:anyAttribute/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element "
  "name='a'/></xs:sequence><xs:annotation/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:annotation/><xs:annotation/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:simpleContent></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:complexContent></xs:complexContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:simpleContent><xs:extension base='xs:int'></xs:extension><xs:extension "
  "base='xs:int'></xs:extension></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:complexContent><xs:extension "
  "base='xs:int'></xs:extension></xs:complexContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:simpleContent><xs:extension "
  "base='xs:anyType'></xs:extension></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:simpleContent><xs:restriction "
  "base='xs:int'></xs:restriction></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element "
  "name='r'><xs:complexType><xs:simpleContent><xs:extension/></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element "
  "name='r'><xs:complexType><xs:complexContent><xs:restriction/></xs:complexContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:simpleContent><xs:extension "
  "base='xs:int'></xs:extension></xs:simpleContent><xs:attribute name='a'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:simpleContent><xs:extension base='xs:int'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:extension></xs:simpleContent></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:all maxOccurs='2'><xs:element "
  "name='a'/></xs:all></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:all minOccurs='2'><xs:element "
  "name='a'/></xs:all></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:all><xs:element name='a'/><xs:any/></xs:all></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:all><xs:element name='a'/><xs:element "
  "name='a'/></xs:all></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:all><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:all></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:choice><xs:all><xs:element "
  "name='a'/></xs:all></xs:choice></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence minOccurs='2' maxOccurs='1'><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence name='s'><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType>text</xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence>text</xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence ref='x'><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:attribute "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any "
  "namespace='##none'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any namespace='##any "
  "urn:p'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any namespace='##any "
  "##other'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any "
  "processContents='none'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:anyAttribute processContents='x'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:anyAttribute minOccurs='0'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='0'/><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' maxOccurs='unbounded'/><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
  "minOccurs='0'/><xs:any/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0'/><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any "
  "maxOccurs='2'/><xs:any/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:choice><xs:element "
  "name='a'/><xs:any/></xs:choice></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:choice><xs:sequence><xs:element name='a'/><xs:element "
  "name='b'/></xs:sequence><xs:sequence><xs:element name='a'/></xs:sequence></xs:choice></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:choice maxOccurs='unbounded'><xs:element "
  "name='a'/><xs:element name='b'/></xs:choice><xs:element name='b'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:sequence minOccurs='0' maxOccurs='unbounded'><xs:element "
  "name='b' minOccurs='0'/></xs:sequence><xs:element name='b'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='1' maxOccurs='2'/><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:any namespace='##local' minOccurs='0'/><xs:element "
  "name='a'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' type='xs:int'/><xs:element "
  "name='b'/><xs:element name='a' type='xs:decimal'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:choice><xs:element name='a' type='xs:int'/><xs:sequence><xs:element "
  "name='b'/><xs:element name='a'/></xs:sequence></xs:choice></xs:complexType></xs:element>",
  "<xs:element name='h'/><xs:element name='m' substitutionGroup='h'/><xs:element "
  "name='r'><xs:complexType><xs:choice><xs:element ref='h'/><xs:element "
  "ref='m'/></xs:choice></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "default='1' fixed='1'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "use='required' default='1'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "use='prohibited' default='1'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "use='x'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "type='xs:ID' default='a'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "type='xs:ID' fixed='a'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "type='c'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute "
  "name='xmlns'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute "
  "name='a:b'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute "
  "name=''/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute "
  "/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute ref='g' "
  "name='a'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute ref='g' "
  "type='xs:int'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute ref='g' "
  "form='qualified'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "form='x'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "minOccurs='0'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute name='a' "
  "type='none'/></xs:complexType></xs:element>",
  "<xs:complexType name='c'/><xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute "
  "ref='none'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attribute name='a' type='xs:int'><xs:simpleType><xs:restriction "
  "base='xs:int'></xs:restriction></xs:simpleType></xs:attribute></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attribute name='a' type='xs:ID'/><xs:attribute name='b' "
  "type='xs:ID'/></xs:complexType></xs:element>",
  "<xs:attribute name='g' type='xs:int' fixed='1'/><xs:element name='r'><xs:complexType><xs:attribute ref='g' "
  "fixed='2'/></xs:complexType></xs:element>",
  "<xs:attribute name='g' type='xs:int' fixed='1'/><xs:element name='r'><xs:complexType><xs:attribute ref='g' "
  "default='1'/></xs:complexType></xs:element>",
  "<xs:attribute name='g'/><xs:element name='r'><xs:complexType><xs:attribute ref='g'/><xs:attribute "
  "name='g'/></xs:complexType></xs:element>",
  "<xs:attribute name='b'/><xs:attribute name='a' ref='b'/>",
  "<xs:attribute name='b'/><xs:attribute ref='b'/>",
  "<xs:attribute name='b'/><xs:attribute name='a' form='qualified'/>",
  "<xs:attribute name='b'/><xs:attribute />",
  "<xs:attribute name='a'/><xs:attribute name='a'/>",
  "<xs:attributeGroup name='g'/><xs:attributeGroup name='g'/>",
  "<xs:attributeGroup name='g'><xs:attributeGroup ref='g'/></xs:attributeGroup>",
  "<xs:attributeGroup name='g'><xs:attributeGroup ref='h'/></xs:attributeGroup><xs:attributeGroup "
  "name='h'><xs:attributeGroup ref='g'/></xs:attributeGroup>",
  "<xs:attributeGroup name='g'><xs:attribute name='a'/></xs:attributeGroup><xs:element "
  "name='r'><xs:complexType><xs:attribute name='a'/><xs:attributeGroup ref='g'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attributeGroup ref='none'/></xs:complexType></xs:element>",
  "<xs:element name='r'><xs:complexType><xs:attributeGroup name='g'/></xs:complexType></xs:element>",
  "<xs:attributeGroup/>",
  "<xs:attributeGroup ref='g'/>",
  "<xs:group name='g'></xs:group>",
  "<xs:group name='g'><xs:sequence><xs:element name='a'/></xs:sequence><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:group>",
  "<xs:group name='g'><xs:element name='a'/></xs:group>",
  "<xs:group name='g' minOccurs='1'><xs:sequence><xs:element name='a'/></xs:sequence></xs:group>",
  "<xs:group><xs:sequence><xs:element name='a'/></xs:sequence></xs:group>",
  "<xs:group ref='g'/><xs:group name='g'><xs:sequence><xs:element name='a'/></xs:sequence></xs:group>",
  "<xs:group name='g'><xs:sequence minOccurs='0'><xs:element name='a'/></xs:sequence></xs:group>",
  "<xs:group name='g'><xs:all><xs:element name='a'/></xs:all></xs:group><xs:element "
  "name='r'><xs:complexType><xs:sequence><xs:group ref='g'/></xs:sequence></xs:complexType></xs:element>",
  "<xs:group name='g'><xs:all><xs:element name='a'/></xs:all></xs:group><xs:element name='r'><xs:complexType><xs:group "
  "ref='g' maxOccurs='2'/></xs:complexType></xs:element>",
  "<xs:group name='g'><xs:sequence><xs:element name='a'/></xs:sequence></xs:group><xs:group "
  "name='g'><xs:sequence><xs:element name='a'/></xs:sequence></xs:group>",
  "<xs:group name='g'><xs:sequence><xs:element name='a'/></xs:sequence></xs:group><xs:element "
  "name='r'><xs:complexType><xs:group name='g'/></xs:complexType></xs:element>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' minOccurs='0' "
  "maxOccurs='2'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a' minOccurs='0' "
  "maxOccurs='3'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:element name='a' "
  "minOccurs='0'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/><xs:element "
  "name='b'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/><xs:element "
  "name='b'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='b'/><xs:element "
  "name='a'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:choice><xs:element name='a'/><xs:element "
  "name='b'/></xs:choice></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:choice><xs:element name='a'/><xs:element "
  "name='c'/></xs:choice></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' "
  "type='xs:int'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a' "
  "type='xs:string'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' "
  "type='xs:int'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a' "
  "type='xs:decimal'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' type='xs:int' "
  "fixed='1'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a' type='xs:int' "
  "fixed='2'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' type='xs:int' "
  "fixed='1'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a' "
  "type='xs:int'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' "
  "type='xs:int'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a' type='xs:int' "
  "nillable='true'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:any namespace='urn:p'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:any "
  "namespace='urn:q'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:any namespace='urn:p'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:any/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:any namespace='urn:p'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:any maxOccurs='2'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:any "
  "maxOccurs='3'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a' use='required'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:attribute "
  "name='a'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a' use='required'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:attribute name='a' "
  "use='prohibited'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a' type='xs:int'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:attribute name='a' "
  "type='xs:string'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a' fixed='1'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:attribute name='a' "
  "fixed='2'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a' fixed='1'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:attribute "
  "name='a'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:attribute name='a'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:anyAttribute namespace='urn:p'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:anyAttribute "
  "namespace='urn:q'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:anyAttribute/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:anyAttribute namespace='urn:p'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:attribute "
  "name='a'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:anyAttribute processContents='strict'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:anyAttribute "
  "processContents='skip'/></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:extension base='b'><xs:attribute "
  "name='a'/></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:attribute name='a' type='xs:ID'/></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:extension base='b'><xs:attribute name='c' "
  "type='xs:ID'/></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:extension base='b'><xs:all><xs:element "
  "name='b'/></xs:all></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:all><xs:element name='a'/></xs:all></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:extension base='b'><xs:sequence><xs:element "
  "name='b'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' "
  "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:extension "
  "base='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a' "
  "type='xs:int'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:extension "
  "base='b'><xs:sequence><xs:element name='a' "
  "type='xs:string'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:extension base='none'></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent mixed='true'><xs:extension base='b'><xs:sequence><xs:element "
  "name='b'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b' mixed='true'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:extension "
  "base='b'><xs:sequence><xs:element name='b'/></xs:sequence></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent mixed='true'><xs:restriction base='b'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b' final='restriction'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:restriction "
  "base='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b' final='#all'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:complexType><xs:complexType name='d'><xs:complexContent><xs:extension "
  "base='b'></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b' final='list'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType>",
  "<xs:complexType name='b' block='substitution'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType>",
  "<xs:complexType name='b' mixed='x'></xs:complexType>",
  "<xs:complexType name='b' abstract='x'></xs:complexType>",
  "<xs:complexType name='b'></xs:complexType><xs:complexType name='b'></xs:complexType>",
  "<xs:complexType/>",
  "<xs:element name='r'><xs:complexType name='t'/></xs:element>",
  "<xs:element name='r'><xs:complexType abstract='true'/></xs:element>",
  "<xs:complexType name='b'><xs:simpleContent><xs:extension "
  "base='xs:int'></xs:extension></xs:simpleContent></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:element "
  "name='a'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType>",
  "<xs:complexType name='b'><xs:simpleContent><xs:extension "
  "base='xs:int'></xs:extension></xs:simpleContent></xs:complexType><xs:complexType "
  "name='d'><xs:simpleContent><xs:restriction base='b'><xs:maxInclusive "
  "value='x'/></xs:restriction></xs:simpleContent></xs:complexType>",
  "<xs:complexType name='b'><xs:simpleContent><xs:extension "
  "base='xs:int'></xs:extension></xs:simpleContent></xs:complexType><xs:complexType "
  "name='d'><xs:simpleContent><xs:restriction base='b'><xs:length "
  "value='1'/></xs:restriction></xs:simpleContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:simpleContent><xs:extension base='b'></xs:extension></xs:simpleContent></xs:complexType>",
  "<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
  "name='d'><xs:simpleContent><xs:restriction base='b'><xs:length "
  "value='1'/></xs:restriction></xs:simpleContent></xs:complexType>",
  "<xs:complexType name='b'><xs:complexContent><xs:extension "
  "base='d'></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
  "name='d'><xs:complexContent><xs:extension base='b'></xs:extension></xs:complexContent></xs:complexType>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath=''/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='//a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='/a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a//b'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='..'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a/..'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='@a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a/@b'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a|'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='|a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a b'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a[b]'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='ancestor::a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector "
  "xpath='descendant::a'/><xs:field xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='self::a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='text()'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a/text()'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='count(a)'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='q:a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='.//'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a/'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='.//.//a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a/.//b'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='1'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='*a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='node()'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a|@b'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='.//@a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath=''/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='//a'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='/a'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@a/b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@a/@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='a/@b/c'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='a[1]'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='..'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@a|'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field xpath='a "
  "b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='q:a'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@q:a'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='text()'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='string(a)'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='a/..'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='a//b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='attribute::'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='child::'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='self::node()'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:field xpath='@b'/><xs:selector "
  "xpath='a'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:selector "
  "xpath='b'/><xs:field xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:field xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector/><xs:field "
  "xpath='a'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector "
  "xpath='a'/><xs:field/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='1'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k' refer='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:keyref name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:keyref></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:keyref name='k' refer='q:k'><xs:selector "
  "xpath='a'/><xs:field xpath='@b'/></xs:keyref></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key><xs:key name='k'><xs:selector xpath='a'/><xs:field xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key></xs:element><xs:element name='s'><xs:complexType></xs:complexType><xs:key "
  "name='k'><xs:selector xpath='a'/><xs:field xpath='@b'/></xs:key></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key><xs:unique name='k'><xs:selector xpath='a'/><xs:field xpath='@b'/></xs:unique></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='a'/><xs:field xpath='@b'/><xs:field "
  "xpath='@c'/></xs:keyref></xs:element>",
  "<xs:element name='r'><xs:complexType></xs:complexType><xs:key name='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:keyref><xs:keyref name='g' refer='f'><xs:selector xpath='a'/><xs:field "
  "xpath='@b'/></xs:keyref></xs:element>",
  "text",
  "<xs:other/>",
  "<xs:sequence/>",
  "<xs:any/>",
  "<xs:key name='k'/>",
  "<xs:element name='a'/><xs:include schemaLocation='./none.xsd'/>",
  "<xs:import/>",
  "<xs:include/>",
  "<xs:redefine/>",
  "<xs:element name='a' type='p:t' xmlns:p='urn:p'/>",
  "<xs:element name='a' type='int'/>",
  "<xs:element name='a' type='xs:Int'/>",
  "<xs:element name='a' id='x'/><xs:element name='b' id='x'/>",
  "<xs:notation name='n' public='p'/><xs:notation name='n' public='p'/>",
  "<xs:notation public='p'/>",
  "<xs:schema/>",
  "<xs:element name='a'><xs:annotation><xs:other/></xs:annotation></xs:element>",
  "<xs:annotation><xs:documentation/><xs:element name='a'/></xs:annotation>",
  "<xs:element name='a'><xs:element name='b'/></xs:element>",
  "<xs:attribute name='a'><xs:complexType/></xs:attribute>",
  "<xs:element xmlns='urn:x' name='a' unknown='1'/>",
};
}

void axmSchemaUtest::test_wrong_schemas(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_wrong_schemas");
  auto const is_used = [&factory](std::string const& content)
  {
    // But for what is wrong, it could be used for this document.
    SchemaFile const schema("wrong", schema_of(content + "<xs:element name='document' type='xs:int'/>"));
    axmParseError error;
    return factory->loadDocument(bytes_of("<document>1</document>"), options_with(schema.path), error) != nullptr ||
           error.invalid();
  };
  group.check(is_used(""), "the load succeeds", __LINE__, "a schema that can be used");
  bool are_all = true;
  for (char const* const content : wrong_schemas)
  {
    bool const fails = !is_used(content);
    if (!fails)
      tester->printf("was used: %s", content);
    are_all = are_all && fails;
  }
  group.check(are_all, "every load fails", __LINE__, "schemas that cannot be used");
}
