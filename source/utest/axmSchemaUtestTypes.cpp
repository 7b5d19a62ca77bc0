#include "axmSchemaTables.h"
#include "axmSchemaUtest.h"
#include "axmUtestGroup.h"

using namespace axmSchemaTables;

namespace
{
char const file[] = "source/utest/axmSchemaUtestTypes";

std::vector<Case> const& type_cases()
{
  static std::vector<Case> const cases = {
    {"xs:string",
      {"<xs:element name='v' type='xs:string'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:string'/></xs:complexType></xs:element>",
        {"<v></v>", "<v>a</v>", "<v> b  c </v>", "<v>&#9;x&#10;</v>", "<w a=''/>", "<w a='a'/>", "<w a=' b  c '/>"},
        {}}},
    {"xs:normalizedString",
      {"<xs:element name='v' type='xs:normalizedString'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:normalizedString'/></xs:complexType></xs:element>",
        {"<v>a b</v>", "<v> x  y </v>", "<w a='a b'/>", "<w a=' x  y '/>"}, {}}},
    {"xs:token", {"<xs:element name='v' type='xs:token'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                  "type='xs:token'/></xs:complexType></xs:element>",
                   {"<v>a b</v>", "<v> x  y </v>", "<w a='a b'/>", "<w a=' x  y '/>"}, {}}},
    {"xs:boolean", {"<xs:element name='v' type='xs:boolean'/><xs:element name='w'><xs:complexType><xs:attribute "
                    "name='a' type='xs:boolean'/></xs:complexType></xs:element>",
                     {"<v>true</v>", "<v>false</v>", "<v>1</v>", "<v>0</v>", "<v> true </v>", "<w a='true'/>",
                       "<w a='false'/>", "<w a='1'/>"},
                     {"<v></v>", "<v>TRUE</v>", "<v>True</v>", "<v>2</v>", "<v>yes</v>", "<v>tru e</v>",
                       "<v>truefalse</v>", "<w a=''/>", "<w a='TRUE'/>", "<w a='True'/>"}}},
    {"xs:decimal",
      {"<xs:element name='v' type='xs:decimal'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:decimal'/></xs:complexType></xs:element>",
        {"<v>0</v>", "<v>-1</v>", "<v>+1</v>", "<v>1.5</v>", "<v>.5</v>", "<v>5.</v>", "<v>-0.0</v>", "<v>007</v>",
          "<v> 3 </v>", "<v>12345678901234567890.12345678901234567890</v>", "<w a='0'/>", "<w a='-1'/>", "<w a='+1'/>"},
        {"<v></v>", "<v>.</v>", "<v>-</v>", "<v>+</v>", "<v>1e3</v>", "<v>1,5</v>", "<v>1 2</v>", "<v>--1</v>",
          "<v>INF</v>", "<v>0x1</v>", "<v>1.2.3</v>", "<w a=''/>", "<w a='.'/>", "<w a='-'/>"}}},
    {"xs:float",
      {"<xs:element name='v' type='xs:float'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:float'/></xs:complexType></xs:element>",
        {"<v>0</v>", "<v>-1.5</v>", "<v>1e3</v>", "<v>1E-3</v>", "<v>+2.5e+2</v>", "<v>INF</v>", "<v>-INF</v>",
          "<v>NaN</v>", "<v> 1 </v>", "<v>.5</v>", "<v>5.</v>", "<w a='0'/>", "<w a='-1.5'/>", "<w a='1e3'/>"},
        {"<v></v>", "<v>inf</v>", "<v>+INF</v>", "<v>nan</v>", "<v>1e</v>", "<v>e5</v>", "<v>1.5f</v>", "<v>1 e3</v>",
          "<v>infinity</v>", "<v>0x1</v>", "<v>.</v>", "<v>1e1.5</v>", "<w a=''/>", "<w a='inf'/>", "<w a='+INF'/>"}}},
    {"xs:double", {"<xs:element name='v' type='xs:double'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                   "type='xs:double'/></xs:complexType></xs:element>",
                    {"<v>0</v>", "<v>-1.5</v>", "<v>1e300</v>", "<v>1E-300</v>", "<v>INF</v>", "<v>-INF</v>",
                      "<v>NaN</v>", "<v>5.e2</v>", "<w a='0'/>", "<w a='-1.5'/>", "<w a='1e300'/>"},
                    {"<v></v>", "<v>inf</v>", "<v>+INF</v>", "<v>-NaN</v>", "<v>1e</v>", "<v>e5</v>", "<v>1d</v>",
                      "<w a=''/>", "<w a='inf'/>", "<w a='+INF'/>"}}},
    {"xs:integer", {"<xs:element name='v' type='xs:integer'/><xs:element name='w'><xs:complexType><xs:attribute "
                    "name='a' type='xs:integer'/></xs:complexType></xs:element>",
                     {"<v>0</v>", "<v>-0</v>", "<v>+5</v>", "<v>-123456789012345678901234567890</v>", "<v>007</v>",
                       "<v> 1 </v>", "<w a='0'/>", "<w a='-0'/>", "<w a='+5'/>"},
                     {"<v></v>", "<v>1.0</v>", "<v>1.</v>", "<v>1e3</v>", "<v>+</v>", "<v>-</v>", "<v>a</v>",
                       "<v>1 2</v>", "<v>0x1</v>", "<w a=''/>", "<w a='1.0'/>", "<w a='1.'/>"}}},
    {"xs:nonPositiveInteger",
      {"<xs:element name='v' type='xs:nonPositiveInteger'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:nonPositiveInteger'/></xs:complexType></xs:element>",
        {"<v>0</v>", "<v>-1</v>", "<v>-0</v>", "<v>+0</v>", "<w a='0'/>", "<w a='-1'/>", "<w a='-0'/>"},
        {"<v>1</v>", "<v>+1</v>", "<v></v>", "<w a='1'/>", "<w a='+1'/>", "<w a=''/>"}}},
    {"xs:negativeInteger",
      {"<xs:element name='v' type='xs:negativeInteger'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:negativeInteger'/></xs:complexType></xs:element>",
        {"<v>-1</v>", "<v>-100</v>", "<w a='-1'/>", "<w a='-100'/>"},
        {"<v>0</v>", "<v>1</v>", "<v>-0</v>", "<v></v>", "<w a='0'/>", "<w a='1'/>", "<w a='-0'/>"}}},
    {"xs:nonNegativeInteger",
      {"<xs:element name='v' type='xs:nonNegativeInteger'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:nonNegativeInteger'/></xs:complexType></xs:element>",
        {"<v>0</v>", "<v>1</v>", "<v>+1</v>", "<v>-0</v>", "<w a='0'/>", "<w a='1'/>", "<w a='+1'/>"},
        {"<v>-1</v>", "<v></v>", "<w a='-1'/>", "<w a=''/>"}}},
    {"xs:positiveInteger",
      {"<xs:element name='v' type='xs:positiveInteger'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:positiveInteger'/></xs:complexType></xs:element>",
        {"<v>1</v>", "<v>+1</v>", "<v>100</v>", "<w a='1'/>", "<w a='+1'/>", "<w a='100'/>"},
        {"<v>0</v>", "<v>-1</v>", "<v></v>", "<w a='0'/>", "<w a='-1'/>", "<w a=''/>"}}},
    {"xs:long", {"<xs:element name='v' type='xs:long'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                 "type='xs:long'/></xs:complexType></xs:element>",
                  {"<v>9223372036854775807</v>", "<v>-9223372036854775808</v>", "<v>0</v>",
                    "<w a='9223372036854775807'/>", "<w a='-9223372036854775808'/>", "<w a='0'/>"},
                  {"<v>9223372036854775808</v>", "<v>-9223372036854775809</v>", "<v>1.0</v>",
                    "<w a='9223372036854775808'/>", "<w a='-9223372036854775809'/>", "<w a='1.0'/>"}}},
    {"xs:int", {"<xs:element name='v' type='xs:int'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                "type='xs:int'/></xs:complexType></xs:element>",
                 {"<v>2147483647</v>", "<v>-2147483648</v>", "<v>+0</v>", "<w a='2147483647'/>", "<w a='-2147483648'/>",
                   "<w a='+0'/>"},
                 {"<v>2147483648</v>", "<v>-2147483649</v>", "<v></v>", "<v>1.0</v>", "<w a='2147483648'/>",
                   "<w a='-2147483649'/>", "<w a=''/>"}}},
    {"xs:short", {"<xs:element name='v' type='xs:short'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                  "type='xs:short'/></xs:complexType></xs:element>",
                   {"<v>32767</v>", "<v>-32768</v>", "<w a='32767'/>", "<w a='-32768'/>"},
                   {"<v>32768</v>", "<v>-32769</v>", "<w a='32768'/>", "<w a='-32769'/>"}}},
    {"xs:byte", {"<xs:element name='v' type='xs:byte'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                 "type='xs:byte'/></xs:complexType></xs:element>",
                  {"<v>127</v>", "<v>-128</v>", "<w a='127'/>", "<w a='-128'/>"},
                  {"<v>128</v>", "<v>-129</v>", "<w a='128'/>", "<w a='-129'/>"}}},
    {"xs:unsignedLong",
      {"<xs:element name='v' type='xs:unsignedLong'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:unsignedLong'/></xs:complexType></xs:element>",
        {"<v>18446744073709551615</v>", "<v>0</v>", "<w a='18446744073709551615'/>", "<w a='0'/>"},
        {"<v>18446744073709551616</v>", "<v>-1</v>", "<w a='18446744073709551616'/>", "<w a='-1'/>"}}},
    {"xs:unsignedInt",
      {"<xs:element name='v' type='xs:unsignedInt'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:unsignedInt'/></xs:complexType></xs:element>",
        {"<v>4294967295</v>", "<v>0</v>", "<w a='4294967295'/>", "<w a='0'/>"},
        {"<v>4294967296</v>", "<v>-1</v>", "<w a='4294967296'/>", "<w a='-1'/>"}}},
    {"xs:unsignedShort",
      {"<xs:element name='v' type='xs:unsignedShort'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:unsignedShort'/></xs:complexType></xs:element>",
        {"<v>65535</v>", "<w a='65535'/>"}, {"<v>65536</v>", "<v>-1</v>", "<w a='65536'/>", "<w a='-1'/>"}}},
    {"xs:unsignedByte",
      {"<xs:element name='v' type='xs:unsignedByte'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:unsignedByte'/></xs:complexType></xs:element>",
        {"<v>255</v>", "<v>0</v>", "<w a='255'/>", "<w a='0'/>"},
        {"<v>256</v>", "<v>-1</v>", "<w a='256'/>", "<w a='-1'/>"}}},
    {"xs:date", {"<xs:element name='v' type='xs:date'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                 "type='xs:date'/></xs:complexType></xs:element>",
                  {"<v>2024-02-29</v>", "<v>2000-02-29</v>", "<v>1999-12-31Z</v>", "<v>2024-01-01+14:00</v>",
                    "<v>-0001-01-01</v>", "<v>12024-01-01</v>", "<v>2024-04-30-13:59</v>", "<w a='2024-02-29'/>",
                    "<w a='2000-02-29'/>", "<w a='1999-12-31Z'/>"},
                  {"<v>2023-02-29</v>", "<v>1900-02-29</v>", "<v>2024-13-01</v>", "<v>2024-00-10</v>",
                    "<v>2024-01-00</v>", "<v>2024-04-31</v>", "<v>24-01-01</v>", "<v>2024-1-01</v>",
                    "<v>2024-01-01+14:01</v>", "<v>2024-01-01+15:00</v>", "<v>0000-01-01</v>", "<v>2024/01/01</v>",
                    "<v></v>", "<v>2024-01-01T00:00:00</v>", "<v>02024-01-01</v>", "<v>2024-01-01z</v>",
                    "<v>2024-01-01+1:00</v>", "<w a='2023-02-29'/>", "<w a='1900-02-29'/>", "<w a='2024-13-01'/>"}}},
    {"xs:time", {"<xs:element name='v' type='xs:time'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                 "type='xs:time'/></xs:complexType></xs:element>",
                  {"<v>00:00:00</v>", "<v>23:59:59</v>", "<v>12:30:45.123</v>", "<v>24:00:00</v>", "<v>12:00:00Z</v>",
                    "<v>12:00:00-05:30</v>", "<w a='00:00:00'/>", "<w a='23:59:59'/>", "<w a='12:30:45.123'/>"},
                  {"<v>24:00:01</v>", "<v>12:60:00</v>", "<v>12:00:60</v>", "<v>1:00:00</v>", "<v>12:00</v>",
                    "<v>12:00:00.</v>", "<v>25:00:00</v>", "<v>12:00:00 Z</v>", "<v>12:00:0</v>", "<v></v>",
                    "<w a='24:00:01'/>", "<w a='12:60:00'/>", "<w a='12:00:60'/>"}}},
    {"xs:dateTime",
      {"<xs:element name='v' type='xs:dateTime'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:dateTime'/></xs:complexType></xs:element>",
        {"<v>2024-02-29T12:00:00</v>", "<v>2024-01-01T00:00:00Z</v>", "<v>2024-12-31T24:00:00</v>",
          "<v>2024-01-01T00:00:00.5+02:00</v>", "<w a='2024-02-29T12:00:00'/>", "<w a='2024-01-01T00:00:00Z'/>",
          "<w a='2024-12-31T24:00:00'/>"},
        {"<v>2024-02-30T12:00:00</v>", "<v>2024-01-01 00:00:00</v>", "<v>2024-01-01T24:00:01</v>", "<v>2024-01-01</v>",
          "<v>T00:00:00</v>", "<v>2024-01-01T</v>", "<v>2024-01-01t00:00:00</v>", "<v>2023-02-29T00:00:00</v>",
          "<v></v>", "<w a='2024-02-30T12:00:00'/>", "<w a='2024-01-01 00:00:00'/>", "<w a='2024-01-01T24:00:01'/>"}}},
    {"xs:gYear", {"<xs:element name='v' type='xs:gYear'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                  "type='xs:gYear'/></xs:complexType></xs:element>",
                   {"<v>2024</v>", "<v>-0044</v>", "<v>12024</v>", "<v>2024Z</v>", "<v>2024+01:00</v>", "<w a='2024'/>",
                     "<w a='-0044'/>", "<w a='12024'/>"},
                   {"<v>24</v>", "<v>0000</v>", "<v>02024</v>", "<v>20 24</v>", "<v></v>", "<v>+2024</v>",
                     "<w a='24'/>", "<w a='0000'/>", "<w a='02024'/>"}}},
    {"xs:gYearMonth", {"<xs:element name='v' type='xs:gYearMonth'/><xs:element name='w'><xs:complexType><xs:attribute "
                       "name='a' type='xs:gYearMonth'/></xs:complexType></xs:element>",
                        {"<v>2024-12</v>", "<v>2024-01Z</v>", "<w a='2024-12'/>", "<w a='2024-01Z'/>"},
                        {"<v>2024-13</v>", "<v>2024-00</v>", "<v>2024-1</v>", "<v>2024</v>", "<v>2024-12-</v>",
                          "<w a='2024-13'/>", "<w a='2024-00'/>", "<w a='2024-1'/>"}}},
    {"xs:gMonth", {"<xs:element name='v' type='xs:gMonth'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                   "type='xs:gMonth'/></xs:complexType></xs:element>",
                    {"<v>--01</v>", "<v>--12</v>", "<v>--12Z</v>", "<w a='--01'/>", "<w a='--12'/>", "<w a='--12Z'/>"},
                    {"<v>--00</v>", "<v>--13</v>", "<v>-01</v>", "<v>01</v>", "<v>--1</v>", "<v>--01-</v>",
                      "<w a='--00'/>", "<w a='--13'/>", "<w a='-01'/>"}}},
    {"xs:gMonthDay", {"<xs:element name='v' type='xs:gMonthDay'/><xs:element name='w'><xs:complexType><xs:attribute "
                      "name='a' type='xs:gMonthDay'/></xs:complexType></xs:element>",
                       {"<v>--02-29</v>", "<v>--12-31</v>", "<v>--04-30Z</v>", "<w a='--02-29'/>", "<w a='--12-31'/>",
                         "<w a='--04-30Z'/>"},
                       {"<v>--02-30</v>", "<v>--04-31</v>", "<v>--13-01</v>", "<v>--00-01</v>", "<v>--01-00</v>",
                         "<v>-01-01</v>", "<v>--1-1</v>", "<w a='--02-30'/>", "<w a='--04-31'/>", "<w a='--13-01'/>"}}},
    {"xs:gDay", {"<xs:element name='v' type='xs:gDay'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                 "type='xs:gDay'/></xs:complexType></xs:element>",
                  {"<v>---01</v>", "<v>---31</v>", "<v>---15+02:00</v>", "<w a='---01'/>", "<w a='---31'/>",
                    "<w a='---15+02:00'/>"},
                  {"<v>---00</v>", "<v>---32</v>", "<v>--01</v>", "<v>---1</v>", "<v>01</v>", "<w a='---00'/>",
                    "<w a='---32'/>", "<w a='--01'/>"}}},
    {"xs:duration",
      {"<xs:element name='v' type='xs:duration'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:duration'/></xs:complexType></xs:element>",
        {"<v>P1Y</v>", "<v>P1M</v>", "<v>P1D</v>", "<v>PT1H</v>", "<v>PT1M</v>", "<v>PT1S</v>",
          "<v>P1Y2M3DT4H5M6.7S</v>", "<v>-P1D</v>", "<v>P0Y</v>", "<v>PT0.5S</v>", "<v>P12M</v>", "<w a='P1Y'/>",
          "<w a='P1M'/>", "<w a='P1D'/>"},
        {"<v>P</v>", "<v>PT</v>", "<v>P1</v>", "<v>1Y</v>", "<v>P1S</v>", "<v>PT1D</v>", "<v>P1DT</v>", "<v>P-1D</v>",
          "<v>P1M1Y</v>", "<v>PT1.5H</v>", "<v>+P1D</v>", "<v>P1Y2</v>", "<v></v>", "<v>PT1.S</v>", "<v>p1d</v>",
          "<v>P1.5Y</v>", "<v>P1W</v>", "<w a='P'/>", "<w a='PT'/>", "<w a='P1'/>"}}},
    {"xs:hexBinary",
      {"<xs:element name='v' type='xs:hexBinary'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:hexBinary'/></xs:complexType></xs:element>",
        {"<v></v>", "<v>00</v>", "<v>0aFf</v>", "<v>DEADBEEF</v>", "<w a=''/>", "<w a='00'/>", "<w a='0aFf'/>"},
        {"<v>0</v>", "<v>0g</v>", "<v>000</v>", "<v>0x00</v>", "<v>0 0</v>", "<w a='0'/>", "<w a='0g'/>",
          "<w a='000'/>"}}},
    {"xs:base64Binary",
      {"<xs:element name='v' type='xs:base64Binary'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:base64Binary'/></xs:complexType></xs:element>",
        {"<v></v>", "<v>YQ==</v>", "<v>YWI=</v>", "<v>YWJj</v>", "<v>YW Jj</v>", "<v> YQ== </v>", "<v>YWJjYQ==</v>",
          "<w a=''/>", "<w a='YQ=='/>", "<w a='YWI='/>"},
        {"<v>Y</v>", "<v>YQ</v>", "<v>YQ=</v>", "<v>YWJ</v>", "<v>=</v>", "<v>YQ==Y</v>", "<v>Y*==</v>", "<v>YR==x</v>",
          "<v>YWI==</v>", "<v>====</v>", "<v>YQ=a</v>", "<w a='Y'/>", "<w a='YQ'/>", "<w a='YQ='/>"}}},
    {"xs:anyURI", {"<xs:element name='v' type='xs:anyURI'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                   "type='xs:anyURI'/></xs:complexType></xs:element>",
                    {"<v></v>", "<v>http://a.b/c?d=e#f</v>", "<v>a b</v>", "<v>../x</v>", "<v>urn:x:y</v>",
                      "<v>a%20b</v>", "<w a=''/>", "<w a='http://a.b/c?d=e#f'/>", "<w a='a b'/>"},
                    {}}},
    {"xs:QName", {"<xs:element name='v' type='xs:QName'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                  "type='xs:QName'/></xs:complexType></xs:element>",
                   {"<v>a</v>",
                     "<v xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                     "xmlns:xs='http://www.w3.org/2001/XMLSchema' >xs:a</v>",
                     "<v xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                     "xmlns:xs='http://www.w3.org/2001/XMLSchema' > xs:b </v>",
                     "<v>_x</v>", "<w a='a'/>",
                     "<w xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                     "xmlns:xs='http://www.w3.org/2001/XMLSchema' a='xs:a'/>",
                     "<w xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                     "xmlns:xs='http://www.w3.org/2001/XMLSchema' a=' xs:b '/>"},
                   {"<v></v>", "<v>a:b:c</v>", "<v>1a</v>", "<v>zz:a</v>", "<v>:a</v>", "<v>a:</v>", "<v>a b</v>",
                     "<w a=''/>", "<w a='a:b:c'/>", "<w a='1a'/>"}}},
    {"xs:NCName",
      {"<xs:element name='v' type='xs:NCName'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:NCName'/></xs:complexType></xs:element>",
        {"<v>a</v>", "<v>_a-b.1</v>", "<v>\xC3\xA4</v>", "<w a='a'/>", "<w a='_a-b.1'/>", "<w a='\xC3\xA4'/>"},
        {"<v></v>", "<v>a:b</v>", "<v>1a</v>", "<v>-a</v>", "<v>a b</v>", "<v>.a</v>", "<w a=''/>", "<w a='a:b'/>",
          "<w a='1a'/>"}}},
    {"xs:Name", {"<xs:element name='v' type='xs:Name'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                 "type='xs:Name'/></xs:complexType></xs:element>",
                  {"<v>a</v>", "<v>a:b</v>", "<v>:a</v>", "<v>_1</v>", "<w a='a'/>", "<w a='a:b'/>", "<w a=':a'/>"},
                  {"<v></v>", "<v>1a</v>", "<v>-a</v>", "<v>a b</v>", "<w a=''/>", "<w a='1a'/>", "<w a='-a'/>"}}},
    {"xs:NMTOKEN",
      {"<xs:element name='v' type='xs:NMTOKEN'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:NMTOKEN'/></xs:complexType></xs:element>",
        {"<v>a</v>", "<v>1</v>", "<v>-a</v>", "<v>a:b</v>", "<v>.</v>", "<w a='a'/>", "<w a='1'/>", "<w a='-a'/>"},
        {"<v></v>", "<v>a b</v>", "<v>a,b</v>", "<v>a/</v>", "<w a=''/>", "<w a='a b'/>", "<w a='a,b'/>"}}},
    {"xs:NMTOKENS", {"<xs:element name='v' type='xs:NMTOKENS'/><xs:element name='w'><xs:complexType><xs:attribute "
                     "name='a' type='xs:NMTOKENS'/></xs:complexType></xs:element>",
                      {"<v>a</v>", "<v>a b</v>", "<v> 1  -2 </v>", "<w a='a'/>", "<w a='a b'/>", "<w a=' 1  -2 '/>"},
                      {"<v></v>", "<v>a,b</v>", "<v>a ,</v>", "<w a=''/>", "<w a='a,b'/>", "<w a='a ,'/>"}}},
    {"xs:language", {"<xs:element name='v' type='xs:language'/><xs:element name='w'><xs:complexType><xs:attribute "
                     "name='a' type='xs:language'/></xs:complexType></xs:element>",
                      {"<v>en</v>", "<v>en-US</v>", "<v>i-klingon</v>", "<v>x-private1</v>", "<v>abcdefgh-12345678</v>",
                        "<w a='en'/>", "<w a='en-US'/>", "<w a='i-klingon'/>"},
                      {"<v></v>", "<v>e_n</v>", "<v>abcdefghi</v>", "<v>en-</v>", "<v>1</v>", "<v>en-abcdefghi</v>",
                        "<v>-en</v>", "<w a=''/>", "<w a='e_n'/>", "<w a='abcdefghi'/>"}}},
    {"xs:ID", {"<xs:element name='v' type='xs:ID'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
               "type='xs:ID'/></xs:complexType></xs:element>",
                {"<v>a</v>", "<v>_a1</v>", "<w a='a'/>", "<w a='_a1'/>"},
                {"<v></v>", "<v>1a</v>", "<v>a b</v>", "<v>a:b</v>", "<w a=''/>", "<w a='1a'/>", "<w a='a b'/>"}}},
    {"xs:IDREF", {"<xs:element name='v' type='xs:IDREF'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
                  "type='xs:IDREF'/></xs:complexType></xs:element>",
                   {}, {"<v>a</v>", "<v>1</v>", "<w a='a'/>", "<w a='1'/>"}}},
    {"xs:anySimpleType",
      {"<xs:element name='v' type='xs:anySimpleType'/><xs:element name='w'><xs:complexType><xs:attribute name='a' "
       "type='xs:anySimpleType'/></xs:complexType></xs:element>",
        {"<v></v>", "<v>anything &lt;</v>", "<w a=''/>", "<w a='anything &lt;'/>"}, {}}},
  };
  return cases;
}

std::vector<Case> const& facet_cases()
{
  static std::vector<Case> const cases = {
    {"length",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:length "
       "value='3'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>abc</v>", "<v>\xC3\xA4\xC3\xB6\xC3\xBC</v>", "<v>   </v>"}, {"<v>ab</v>", "<v>abcd</v>", "<v></v>"}}},
    {"minLength and maxLength", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:minLength "
                                 "value='2'/><xs:maxLength value='4'/></xs:restriction></xs:simpleType></xs:element>",
                                  {"<v>ab</v>", "<v>abc</v>", "<v>abcd</v>"}, {"<v>a</v>", "<v>abcde</v>", "<v></v>"}}},
    {"length of tokens", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:token'><xs:length "
                          "value='3'/></xs:restriction></xs:simpleType></xs:element>",
                           {"<v>abc</v>", "<v> abc </v>", "<v>a  b</v>"}, {"<v>a b c</v>", "<v>ab</v>"}}},
    {"length of lists", {"<xs:element name='v'><xs:simpleType><xs:restriction base='l'><xs:length "
                         "value='2'/></xs:restriction></xs:simpleType></xs:element><xs:simpleType name='l'><xs:list "
                         "itemType='xs:int'/></xs:simpleType>",
                          {"<v>1 2</v>", "<v> 1  2 </v>"}, {"<v>1</v>", "<v>1 2 3</v>", "<v></v>", "<v>1 x</v>"}}},
    {"length of bytes", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:hexBinary'><xs:length "
                         "value='2'/></xs:restriction></xs:simpleType></xs:element>",
                          {"<v>00ff</v>"}, {"<v>00</v>", "<v>0000ff</v>", "<v></v>"}}},
    {"length of base64", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:base64Binary'><xs:maxLength "
                          "value='2'/></xs:restriction></xs:simpleType></xs:element>",
                           {"<v>YWI=</v>", "<v>YQ==</v>", "<v></v>"}, {"<v>YWJj</v>"}}},
    {"inclusive bounds", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:int'><xs:minInclusive "
                          "value='-3'/><xs:maxInclusive value='5'/></xs:restriction></xs:simpleType></xs:element>",
                           {"<v>-3</v>", "<v>0</v>", "<v>5</v>", "<v>+5</v>"}, {"<v>-4</v>", "<v>6</v>"}}},
    {"exclusive bounds", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:decimal'><xs:minExclusive "
                          "value='1.5'/><xs:maxExclusive value='2.5'/></xs:restriction></xs:simpleType></xs:element>",
                           {"<v>1.51</v>", "<v>2</v>", "<v>2.499</v>"},
                           {"<v>1.5</v>", "<v>2.5</v>", "<v>1.50</v>", "<v>2.50</v>", "<v>3</v>", "<v>-2</v>"}}},
    {"bounds of large numbers",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:integer'><xs:minInclusive "
       "value='123456789012345678901234567890'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>123456789012345678901234567890</v>", "<v>0123456789012345678901234567891</v>"},
        {"<v>123456789012345678901234567889</v>", "<v>-123456789012345678901234567890</v>", "<v>99999</v>"}}},
    {"bounds of decimals",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:decimal'><xs:maxInclusive "
       "value='0.05'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>0.05</v>", "<v>0.050</v>", "<v>0.049</v>", "<v>-7</v>"}, {"<v>0.051</v>", "<v>0.1</v>", "<v>.06</v>"}}},
    {"bounds of doubles",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:double'><xs:minInclusive "
       "value='-1e2'/><xs:maxExclusive value='INF'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>-100</v>", "<v>1e300</v>"}, {"<v>-100.5</v>", "<v>INF</v>", "<v>NaN</v>", "<v>-INF</v>"}}},
    {"bounds of dates",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:date'><xs:minInclusive "
       "value='2024-01-31'/><xs:maxExclusive value='2024-03-01'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>2024-01-31</v>", "<v>2024-02-29</v>"}, {"<v>2024-01-30</v>", "<v>2024-03-01</v>", "<v>2023-12-31</v>"}}},
    {"bounds of moments",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:dateTime'><xs:maxInclusive "
       "value='2024-01-01T12:00:00Z'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>2024-01-01T12:00:00Z</v>", "<v>2024-01-01T13:00:00+01:00</v>", "<v>2024-01-01T11:59:59.999Z</v>",
          "<v>2023-12-31T24:00:00Z</v>"},
        {"<v>2024-01-01T12:00:01Z</v>", "<v>2024-01-01T12:30:00+00:00</v>", "<v>2024-01-01T11:30:00-01:00</v>"}}},
    {"bounds of times", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:time'><xs:minExclusive "
                         "value='08:00:00'/></xs:restriction></xs:simpleType></xs:element>",
                          {"<v>08:00:01</v>", "<v>23:00:00</v>"}, {"<v>08:00:00</v>", "<v>07:59:59</v>"}}},
    {"bounds of years", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:gYear'><xs:minInclusive "
                         "value='2000'/></xs:restriction></xs:simpleType></xs:element>",
                          {"<v>2000</v>", "<v>2024</v>"}, {"<v>1999</v>", "<v>-2024</v>"}}},
    {"bounds of durations",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:duration'><xs:maxInclusive "
       "value='P1M'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>P27D</v>", "<v>P1M</v>", "<v>P26DT24H</v>"}, {"<v>P31DT1S</v>", "<v>P2M</v>", "<v>P1Y</v>"}}},
    {"digits", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:decimal'><xs:totalDigits "
                "value='4'/><xs:fractionDigits value='2'/></xs:restriction></xs:simpleType></xs:element>",
                 {"<v>12.34</v>", "<v>1234</v>", "<v>0.12</v>", "<v>0012.30</v>", "<v>-12.3</v>", "<v>12.3400</v>"},
                 {"<v>123.45</v>", "<v>12345</v>", "<v>0.123</v>", "<v>.001</v>"}}},
    {"an enumeration",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:enumeration "
       "value='a'/><xs:enumeration value='b c'/><xs:enumeration "
       "value=''/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>a</v>", "<v>b c</v>", "<v></v>"}, {"<v>b</v>", "<v>c</v>", "<v>A</v>", "<v> a</v>", "<v>b  c</v>"}}},
    {"an enumeration of numbers",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:decimal'><xs:enumeration "
       "value='1.0'/><xs:enumeration value='20'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>1</v>", "<v>01.00</v>", "<v>20.0</v>"}, {"<v>2</v>", "<v>10</v>", "<v>-1</v>"}}},
    {"an enumeration of dates",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:date'><xs:enumeration "
       "value='2024-01-01Z'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>2024-01-01Z</v>", "<v>2024-01-01+00:00</v>"}, {"<v>2024-01-02Z</v>", "<v>2024-01-01+01:00</v>"}}},
    {"white space kept",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:whiteSpace "
       "value='preserve'/><xs:enumeration value=' a '/></xs:restriction></xs:simpleType></xs:element>",
        {"<v> a </v>"}, {"<v>a</v>", "<v>  a </v>"}}},
    {"white space collapsed",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:whiteSpace "
       "value='collapse'/><xs:enumeration value='a b'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>a b</v>", "<v> a   b </v>"}, {"<v>ab</v>", "<v>a b c</v>"}}},
    {"white space replaced",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:whiteSpace "
       "value='replace'/><xs:enumeration value='a b'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>a b</v>", "<v>a&#9;b</v>", "<v>a\nb</v>"}, {"<v>a  b</v>", "<v> a b</v>"}}},
    {"pattern [a-z]+", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                        "value='[a-z]+'/></xs:restriction></xs:simpleType></xs:element>",
                         {"<v>abc</v>"}, {"<v></v>", "<v>aB</v>", "<v>ab1</v>"}}},
    {"pattern a{2,3}", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                        "value='a{2,3}'/></xs:restriction></xs:simpleType></xs:element>",
                         {"<v>aa</v>", "<v>aaa</v>"}, {"<v>a</v>", "<v>aaaa</v>", "<v></v>"}}},
    {"pattern a{2}", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                      "value='a{2}'/></xs:restriction></xs:simpleType></xs:element>",
                       {"<v>aa</v>"}, {"<v>a</v>", "<v>aaa</v>"}}},
    {"pattern a{2,}", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                       "value='a{2,}'/></xs:restriction></xs:simpleType></xs:element>",
                        {"<v>aa</v>", "<v>aaaaa</v>"}, {"<v>a</v>"}}},
    {"pattern (ab|c)*", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                         "value='(ab|c)*'/></xs:restriction></xs:simpleType></xs:element>",
                          {"<v></v>", "<v>ab</v>", "<v>cab</v>", "<v>abc</v>"}, {"<v>a</v>", "<v>ba</v>"}}},
    {"pattern a?b", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                     "value='a?b'/></xs:restriction></xs:simpleType></xs:element>",
                      {"<v>b</v>", "<v>ab</v>"}, {"<v>aab</v>", "<v>a</v>"}}},
    {"pattern \\d{3}-\\d\\d", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                               "value='\\d{3}-\\d\\d'/></xs:restriction></xs:simpleType></xs:element>",
                                {"<v>123-45</v>"}, {"<v>12-345</v>", "<v>123-4</v>", "<v>a23-45</v>"}}},
    {"pattern [^0-9]", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                        "value='[^0-9]'/></xs:restriction></xs:simpleType></xs:element>",
                         {"<v>a</v>", "<v>-</v>"}, {"<v>5</v>", "<v>ab</v>"}}},
    {"pattern [a-z-[aeiou]]+", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                                "value='[a-z-[aeiou]]+'/></xs:restriction></xs:simpleType></xs:element>",
                                 {"<v>xyz</v>"}, {"<v>abc</v>", "<v>e</v>"}}},
    {"pattern \\w+\\s\\w+", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                             "value='\\w+\\s\\w+'/></xs:restriction></xs:simpleType></xs:element>",
                              {"<v>a b</v>"}, {"<v>ab</v>", "<v>a  b</v>"}}},
    {"pattern .", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                   "value='.'/></xs:restriction></xs:simpleType></xs:element>",
                    {"<v>a</v>", "<v>\xC3\xA4</v>"}, {"<v></v>", "<v>ab</v>"}}},
    {"pattern \\.", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                     "value='\\.'/></xs:restriction></xs:simpleType></xs:element>",
                      {"<v>.</v>"}, {"<v>a</v>"}}},
    {"pattern a|b|", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                      "value='a|b|'/></xs:restriction></xs:simpleType></xs:element>",
                       {"<v>a</v>", "<v>b</v>", "<v></v>"}, {"<v>ab</v>", "<v>c</v>"}}},
    {"pattern \\p{Lu}\\p{Ll}*", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                                 "value='\\p{Lu}\\p{Ll}*'/></xs:restriction></xs:simpleType></xs:element>",
                                  {"<v>Abc</v>", "<v>A</v>", "<v>\xC3\x84</v>"}, {"<v>abc</v>", "<v>AB</v>"}}},
    {"pattern \\P{L}+", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                         "value='\\P{L}+'/></xs:restriction></xs:simpleType></xs:element>",
                          {"<v>123</v>"}, {"<v>a1</v>"}}},
    {"pattern \\i\\c*", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                         "value='\\i\\c*'/></xs:restriction></xs:simpleType></xs:element>",
                          {"<v>a-1</v>", "<v>_</v>"}, {"<v>1a</v>", "<v></v>"}}},
    {"pattern [\\-x]", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                        "value='[\\-x]'/></xs:restriction></xs:simpleType></xs:element>",
                         {"<v>-</v>", "<v>x</v>"}, {"<v>a</v>"}}},
    {"pattern (a(b(c)?)?)", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                             "value='(a(b(c)?)?)'/></xs:restriction></xs:simpleType></xs:element>",
                              {"<v>a</v>", "<v>ab</v>", "<v>abc</v>"}, {"<v>ac</v>", "<v>b</v>"}}},
    {"pattern \\S+", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                      "value='\\S+'/></xs:restriction></xs:simpleType></xs:element>",
                       {"<v>ab</v>"}, {"<v>a b</v>", "<v> </v>"}}},
    {"pattern \\D\\W", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                        "value='\\D\\W'/></xs:restriction></xs:simpleType></xs:element>",
                         {"<v>a-</v>"}, {"<v>1-</v>", "<v>ab</v>"}}},
    {"pattern x.{0,2}y", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                          "value='x.{0,2}y'/></xs:restriction></xs:simpleType></xs:element>",
                           {"<v>xy</v>", "<v>xay</v>", "<v>xaby</v>"}, {"<v>xabcy</v>", "<v>x</v>"}}},
    {"pattern [0-9]{1,3}(\\.[0-9]{1,3}){3}",
      {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
       "value='[0-9]{1,3}(\\.[0-9]{1,3}){3}'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>1.2.3.4</v>", "<v>255.255.255.0</v>"},
        {"<v>1.2.3</v>", "<v>1.2.3.4.5</v>", "<v>1..3.4</v>", "<v>1234.1.1.1</v>"}}},
    {"two patterns of one step", {"<xs:element name='v'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern "
                                  "value='a+'/><xs:pattern value='b+'/></xs:restriction></xs:simpleType></xs:element>",
                                   {"<v>aa</v>", "<v>b</v>"}, {"<v>ab</v>", "<v></v>"}}},
    {"patterns of two steps",
      {"<xs:simpleType name='p'><xs:restriction base='xs:string'><xs:pattern "
       "value='[a-c]+'/></xs:restriction></xs:simpleType><xs:element name='v'><xs:simpleType><xs:restriction "
       "base='p'><xs:pattern value='[b-d]+'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>b</v>", "<v>bc</v>"}, {"<v>a</v>", "<v>d</v>", "<v>abc</v>"}}},
    {"a list", {"<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:element name='v' type='l'/>",
                 {"<v></v>", "<v>1</v>", "<v> 1  2 3 </v>"}, {"<v>x</v>", "<v>1 x</v>", "<v>1,2</v>", "<v>1.5</v>"}}},
    {"a union",
      {"<xs:simpleType name='u'><xs:union memberTypes='xs:int xs:boolean'><xs:simpleType><xs:restriction "
       "base='xs:string'><xs:enumeration "
       "value='none'/></xs:restriction></xs:simpleType></xs:union></xs:simpleType><xs:element name='v' type='u'/>",
        {"<v>1</v>", "<v>true</v>", "<v>none</v>", "<v>-5</v>"}, {"<v></v>", "<v>x</v>", "<v>None</v>", "<v>1.5</v>"}}},
    {"a list of a union",
      {"<xs:simpleType name='u'><xs:union memberTypes='xs:int xs:boolean'/></xs:simpleType><xs:simpleType "
       "name='l'><xs:list itemType='u'/></xs:simpleType><xs:element name='v' type='l'/>",
        {"<v>1 true 2</v>", "<v>false</v>"}, {"<v>1 x</v>"}}},
    {"an enumeration of a union",
      {"<xs:simpleType name='u'><xs:union memberTypes='xs:int xs:string'/></xs:simpleType><xs:element "
       "name='v'><xs:simpleType><xs:restriction base='u'><xs:enumeration value='1'/><xs:enumeration "
       "value='x'/></xs:restriction></xs:simpleType></xs:element>",
        {"<v>1</v>", "<v>x</v>", "<v>01</v>"}, {"<v>2</v>", "<v>y</v>"}}},
    {"a pattern of a list", {"<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:element "
                             "name='v'><xs:simpleType><xs:restriction base='l'><xs:pattern value='1( "
                             "\\d)*'/></xs:restriction></xs:simpleType></xs:element>",
                              {"<v>1</v>", "<v>1 2 3</v>"}, {"<v>2</v>", "<v>2 1</v>"}}},
  };
  return cases;
}
}

void axmSchemaUtest::test_types(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_types");
  check_cases(group, *tester, *factory, type_cases());
}

void axmSchemaUtest::test_facets(std::shared_ptr<axmDocumentFactory> const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_facets");
  check_cases(group, *tester, *factory, facet_cases());
}
