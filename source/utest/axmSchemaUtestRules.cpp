#include "axmSchemaTables.h"
#include "axmSchemaUtest.h"

using namespace axmSchemaTables;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmSchemaUtestRules";

using Rules = std::vector<Rule>;

Rules const& builtin_rules()
{
  static Rules const rules = {
    {"<xs:element name='v' type='xs:byte'/>", {"<v>-128</v>", "<v>127</v>", "<v>+127</v>", "<v>-0</v>", "<v>0127</v>"},
      {"<v>-129</v>", "<v>128</v>", "<v>1.0</v>", "<v>1e1</v>", "<v></v>"}},
    {"<xs:element name='v' type='xs:short'/>", {"<v>-32768</v>", "<v>32767</v>"}, {"<v>-32769</v>", "<v>32768</v>"}},
    {"<xs:element name='v' type='xs:int'/>", {"<v>-2147483648</v>", "<v>2147483647</v>", "<v>+0002147483647</v>"},
      {"<v>-2147483649</v>", "<v>2147483648</v>", "<v>99999999999999999999</v>"}},
    {"<xs:element name='v' type='xs:long'/>", {"<v>-9223372036854775808</v>", "<v>9223372036854775807</v>"},
      {"<v>-9223372036854775809</v>", "<v>9223372036854775808</v>"}},
    {"<xs:element name='v' type='xs:unsignedByte'/>", {"<v>0</v>", "<v>255</v>"}, {"<v>-1</v>", "<v>256</v>"}},
    {"<xs:element name='v' type='xs:unsignedShort'/>", {"<v>0</v>", "<v>65535</v>"}, {"<v>-1</v>", "<v>65536</v>"}},
    {"<xs:element name='v' type='xs:unsignedInt'/>", {"<v>0</v>", "<v>4294967295</v>"},
      {"<v>-1</v>", "<v>4294967296</v>"}},
    {"<xs:element name='v' type='xs:unsignedLong'/>", {"<v>0</v>", "<v>18446744073709551615</v>"},
      {"<v>-1</v>", "<v>18446744073709551616</v>"}},
    {"<xs:element name='v' type='xs:positiveInteger'/>", {"<v>1</v>", "<v>100000000000000000000000</v>"},
      {"<v>0</v>", "<v>-1</v>", "<v>-0</v>"}},
    {"<xs:element name='v' type='xs:nonNegativeInteger'/>",
      {"<v>0</v>", "<v>-0</v>", "<v>100000000000000000000000</v>"}, {"<v>-1</v>"}},
    {"<xs:element name='v' type='xs:negativeInteger'/>", {"<v>-1</v>", "<v>-100000000000000000000000</v>"},
      {"<v>0</v>", "<v>1</v>"}},
    {"<xs:element name='v' type='xs:nonPositiveInteger'/>", {"<v>0</v>", "<v>-1</v>", "<v>+0</v>"}, {"<v>1</v>"}},
    {"<xs:element name='v' type='xs:integer'/>", {"<v>0</v>", "<v>-5</v>", "<v>+5</v>"},
      {"<v>1.</v>", "<v>1.0</v>", "<v>.</v>", "<v></v>", "<v> </v>", "<v>1 2</v>", "<v>\xD9\xA1</v>"}},
    {"<xs:element name='v' type='xs:boolean'/>", {"<v>true</v>", "<v>1</v>", "<v> 0 </v>", "<v>false</v>"},
      {"<v>TRUE</v>", "<v>01</v>", "<v>yes</v>", "<v></v>", "<v>true false</v>"}},
    {"<xs:element name='v' type='xs:float'/>",
      {"<v>1e38</v>", "<v>-1E-45</v>", "<v>NaN</v>", "<v>INF</v>", "<v>-INF</v>", "<v>+1</v>", "<v>1.</v>",
        "<v>.1</v>"},
      {"<v>+NaN</v>", "<v>1e1.5</v>", "<v>1e+</v>", "<v>1 e1</v>", "<v>Infinity</v>", "<v>0x1p1</v>"}},
    {"<xs:element name='v' type='xs:double'/>", {"<v>1e308</v>", "<v>4.9E-324</v>", "<v>1e400</v>", "<v>-0</v>"},
      {"<v>1d</v>", "<v>--1</v>", "<v>1e</v>", "<v>e1</v>", "<v>+-1</v>", "<v>1,0</v>"}},
    {"<xs:element name='v' type='xs:date'/>",
      {"<v>2000-02-29</v>", "<v>2004-12-31</v>", "<v>0001-01-01</v>", "<v>-0001-01-01</v>", "<v>12000-01-01</v>",
        "<v>2001-01-01Z</v>", "<v>2001-01-01+14:00</v>", "<v>2001-01-01-14:00</v>"},
      {"<v>1900-02-29</v>", "<v>2001-02-29</v>", "<v>2001-13-01</v>", "<v>2001-00-01</v>", "<v>2001-01-00</v>",
        "<v>2001-01-32</v>", "<v>2001-04-31</v>", "<v>2001-1-1</v>", "<v>01-01-01</v>", "<v>0000-01-01</v>",
        "<v>2001-01-01+14:01</v>", "<v>2001-01-01+15:00</v>", "<v>2001-01-01T00:00:00</v>", "<v>02001-01-01</v>",
        "<v>+2001-01-01</v>"}},
    {"<xs:element name='v' type='xs:time'/>",
      {"<v>00:00:00</v>", "<v>23:59:59.999999</v>", "<v>24:00:00</v>", "<v>12:00:00Z</v>", "<v>12:00:00-05:30</v>"},
      {"<v>24:00:01</v>", "<v>23:60:00</v>", "<v>23:59:60</v>", "<v>1:00:00</v>", "<v>12:00</v>", "<v>12:00:00.</v>",
        "<v>12:00:00+1:00</v>", "<v>12:00:00z</v>"}},
    {"<xs:element name='v' type='xs:dateTime'/>",
      {"<v>2001-01-01T00:00:00</v>", "<v>2001-12-31T24:00:00</v>", "<v>2001-01-01T12:00:00.5Z</v>",
        "<v>-2001-01-01T00:00:00+13:59</v>"},
      {"<v>2001-01-01</v>", "<v>2001-01-01 00:00:00</v>", "<v>2001-01-01T00:00</v>", "<v>2001-01-01T25:00:00</v>",
        "<v>2001-01-01T24:00:01</v>", "<v>2001-02-30T00:00:00</v>", "<v>2001-01-01t00:00:00</v>"}},
    {"<xs:element name='v' type='xs:gYear'/>",
      {"<v>0001</v>", "<v>2001</v>", "<v>-2001</v>", "<v>12001</v>", "<v>2001Z</v>"},
      {"<v>1</v>", "<v>201</v>", "<v>0000</v>", "<v>02001</v>", "<v>+2001</v>", "<v>20 01</v>"}},
    {"<xs:element name='v' type='xs:gYearMonth'/>", {"<v>2001-01</v>", "<v>2001-12Z</v>"},
      {"<v>2001-00</v>", "<v>2001-13</v>", "<v>2001</v>", "<v>2001-1</v>"}},
    {"<xs:element name='v' type='xs:gMonthDay'/>", {"<v>--01-01</v>", "<v>--02-29</v>", "<v>--12-31Z</v>"},
      {"<v>--02-30</v>", "<v>--13-01</v>", "<v>-01-01</v>", "<v>--1-1</v>", "<v>01-01</v>", "<v>--04-31</v>"}},
    {"<xs:element name='v' type='xs:gDay'/>", {"<v>---01</v>", "<v>---31</v>", "<v>---31+01:00</v>"},
      {"<v>---00</v>", "<v>---32</v>", "<v>--01</v>", "<v>---1</v>"}},
    {"<xs:element name='v' type='xs:gMonth'/>", {"<v>--01</v>", "<v>--12</v>", "<v>--12Z</v>"},
      {"<v>--00</v>", "<v>--13</v>", "<v>-01</v>", "<v>--1</v>"}},
    {"<xs:element name='v' type='xs:duration'/>",
      {"<v>P1Y</v>", "<v>-P1M</v>", "<v>P1DT1H</v>", "<v>PT1.5S</v>", "<v>P0D</v>", "<v>PT0S</v>",
        "<v>P1Y2M3DT4H5M6.7S</v>", "<v>P400D</v>"},
      {"<v>P</v>", "<v>PT</v>", "<v>P1</v>", "<v>1Y</v>", "<v>P1YT</v>", "<v>P1S</v>", "<v>PT1D</v>", "<v>P-1Y</v>",
        "<v>P1.5Y</v>", "<v>P1M1Y</v>", "<v>PT1S1M</v>", "<v>+P1Y</v>", "<v>P1Y 2M</v>", "<v>PT1.S</v>"}},
    {"<xs:element name='v' type='xs:hexBinary'/>", {"<v></v>", "<v>00</v>", "<v>aBcD</v>", "<v>ff</v>"},
      {"<v>0</v>", "<v>0g</v>", "<v>0x00</v>", "<v>a b</v>"}},
    {"<xs:element name='v' type='xs:base64Binary'/>",
      {"<v></v>", "<v>YQ==</v>", "<v>YWI=</v>", "<v>YWJj</v>", "<v>Y Q = =</v>", "<v>YWJj YWJj</v>"},
      {"<v>YQ=</v>", "<v>YQ</v>", "<v>Y</v>", "<v>YQ===</v>", "<v>=YQ=</v>", "<v>YR==</v>", "<v>YWK=</v>",
        "<v>Y*==</v>"}},
    {"<xs:element name='v' type='xs:normalizedString'/>", {"<v>a</v>", "<v> a  b </v>", "<v>\ta\n</v>"}, {}},
    {"<xs:element name='v' type='xs:token'/>", {"<v>a</v>", "<v> a  b </v>"}, {}},
    {"<xs:element name='v' type='xs:language'/>", {"<v>en</v>", "<v>en-GB</v>", "<v>x-a1</v>", "<v>zh-Hans-CN</v>"},
      {"<v></v>", "<v>en-</v>", "<v>e1</v>", "<v>en_GB</v>", "<v>abcdefghi</v>", "<v>en-abcdefghi</v>", "<v>-</v>"}},
    {"<xs:element name='v' type='xs:Name'/>",
      {"<v>a</v>", "<v>_</v>", "<v>a:b</v>", "<v>:</v>", "<v>a-1.b</v>", "<v>\xC3\xA4</v>"},
      {"<v></v>", "<v>1a</v>", "<v>-a</v>", "<v>a b</v>", "<v>a\xC3\x97</v>"}},
    {"<xs:element name='v' type='xs:NCName'/>", {"<v>a</v>", "<v>_</v>", "<v>a-1.b</v>", "<v>\xC3\xA4</v>"},
      {"<v></v>", "<v>a:b</v>", "<v>:</v>", "<v>1a</v>", "<v>.a</v>"}},
    {"<xs:element name='v' type='xs:NMTOKEN'/>", {"<v>1</v>", "<v>-</v>", "<v>a:b</v>", "<v>.</v>", "<v>\xC2\xB7</v>"},
      {"<v></v>", "<v>a b</v>", "<v>a,b</v>", "<v>\xC3\x97</v>"}},
    {"<xs:element name='v' type='xs:NMTOKENS'/>", {"<v>1</v>", "<v>a b</v>", "<v>\ta\nb </v>"},
      {"<v></v>", "<v>a ,b</v>"}},
    {"<xs:element name='v' type='xs:QName'/>", {"<v>a</v>"},
      {"<v>p:a</v>", "<v>:a</v>", "<v>a:</v>", "<v>a:b:c</v>", "<v></v>"}},
    {"<xs:element name='v' type='xs:anyURI'/>",
      {"<v></v>", "<v>a</v>", "<v>http://a/b?c#d</v>", "<v>#x</v>", "<v>../a</v>"}, {}},
    {"<xs:element name='v' type='xs:ID'/>", {"<v>a</v>"}, {"<v></v>", "<v>1</v>", "<v>a b</v>", "<v>a:b</v>"}},
    {"<xs:element name='v' type='xs:ENTITY'/>", {}, {"<v>a</v>", "<v></v>"}},
    {"<xs:element name='v' type='xs:anySimpleType'/>", {"<v></v>", "<v>anything</v>"}, {"<v><x/></v>"}},
  };
  return rules;
}

Rules const& facets_rules()
{
  static Rules const rules = {
    {restricted("xs:string", "<xs:length value='0'/>"), {"<v></v>"}, {"<v>a</v>", "<v> </v>"}},
    {restricted("xs:string", "<xs:length value='1'/>"), {"<v>\xF0\x9D\x84\x9E</v>", "<v>\xC3\xA4</v>", "<v> </v>"},
      {"<v></v>", "<v>ab</v>"}},
    {restricted("xs:string", "<xs:minLength value='2'/>"), {"<v>\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E</v>", "<v>ab</v>"},
      {"<v>\xF0\x9D\x84\x9E</v>", "<v>a</v>"}},
    {restricted("xs:string", "<xs:maxLength value='1'/>"), {"<v>\xF0\x9D\x84\x9E</v>", "<v></v>"}, {"<v>ab</v>"}},
    {restricted("xs:string", "<xs:minLength value='2'/><xs:maxLength value='2'/>"), {"<v>ab</v>"},
      {"<v>a</v>", "<v>abc</v>"}},
    {restricted("xs:NMTOKENS", "<xs:length value='2'/>"), {"<v>a b</v>", "<v> a\nb </v>"},
      {"<v>a</v>", "<v>a b c</v>"}},
    {restricted("xs:NMTOKENS", "<xs:minLength value='2'/>"), {"<v>a b</v>", "<v>a b c</v>"}, {"<v>a</v>"}},
    {restricted("xs:NMTOKENS", "<xs:maxLength value='2'/>"), {"<v>a</v>", "<v>a b</v>"}, {"<v>a b c</v>"}},
    {restricted("xs:base64Binary", "<xs:length value='3'/>"), {"<v>YWJj</v>", "<v>Y W J j</v>"},
      {"<v>YWI=</v>", "<v>YWJjYQ==</v>"}},
    {restricted("xs:hexBinary", "<xs:minLength value='1'/><xs:maxLength value='2'/>"), {"<v>00</v>", "<v>0000</v>"},
      {"<v></v>", "<v>000000</v>"}},
    {restricted("xs:anyURI", "<xs:maxLength value='3'/>"), {"<v>abc</v>"}, {"<v>abcd</v>"}},
    {restricted("xs:decimal", "<xs:minInclusive value='-1.5'/><xs:maxInclusive value='1.5'/>"),
      {"<v>-1.5</v>", "<v>1.5</v>"}, {"<v>-1.50001</v>", "<v>1.50001</v>"}},
    {restricted("xs:decimal", "<xs:minExclusive value='-1.5'/><xs:maxExclusive value='1.5'/>"), {},
      {"<v>-1.5</v>", "<v>1.5</v>", "<v>-1.50001</v>", "<v>1.50001</v>"}},
    {restricted("xs:integer", "<xs:minInclusive value='-10'/><xs:maxInclusive value='10'/>"),
      {"<v>-10</v>", "<v>10</v>"}, {"<v>-11</v>", "<v>11</v>"}},
    {restricted("xs:integer", "<xs:minExclusive value='-10'/><xs:maxExclusive value='10'/>"), {},
      {"<v>-10</v>", "<v>10</v>", "<v>-11</v>", "<v>11</v>"}},
    {restricted("xs:double", "<xs:minInclusive value='-1e10'/><xs:maxInclusive value='1e10'/>"),
      {"<v>-1e10</v>", "<v>1e10</v>"}, {"<v>-1.1e10</v>", "<v>1.1e10</v>"}},
    {restricted("xs:double", "<xs:minExclusive value='-1e10'/><xs:maxExclusive value='1e10'/>"), {},
      {"<v>-1e10</v>", "<v>1e10</v>", "<v>-1.1e10</v>", "<v>1.1e10</v>"}},
    {restricted("xs:float", "<xs:minInclusive value='-1'/><xs:maxInclusive value='1'/>"), {"<v>-1</v>", "<v>1</v>"},
      {"<v>-1.001</v>", "<v>1.001</v>"}},
    {restricted("xs:float", "<xs:minExclusive value='-1'/><xs:maxExclusive value='1'/>"), {},
      {"<v>-1</v>", "<v>1</v>", "<v>-1.001</v>", "<v>1.001</v>"}},
    {restricted("xs:date", "<xs:minInclusive value='2001-01-01'/><xs:maxInclusive value='2001-12-31'/>"),
      {"<v>2001-01-01</v>", "<v>2001-12-31</v>"}, {"<v>2000-12-31</v>", "<v>2002-01-01</v>"}},
    {restricted("xs:date", "<xs:minExclusive value='2001-01-01'/><xs:maxExclusive value='2001-12-31'/>"), {},
      {"<v>2001-01-01</v>", "<v>2001-12-31</v>", "<v>2000-12-31</v>", "<v>2002-01-01</v>"}},
    {restricted(
       "xs:dateTime", "<xs:minInclusive value='2001-01-01T00:00:00Z'/><xs:maxInclusive value='2001-12-31T23:59:59Z'/>"),
      {"<v>2001-01-01T00:00:00Z</v>", "<v>2001-12-31T23:59:59Z</v>"},
      {"<v>2000-12-31T23:59:59Z</v>", "<v>2002-01-01T00:00:00Z</v>"}},
    {restricted(
       "xs:dateTime", "<xs:minExclusive value='2001-01-01T00:00:00Z'/><xs:maxExclusive value='2001-12-31T23:59:59Z'/>"),
      {},
      {"<v>2001-01-01T00:00:00Z</v>", "<v>2001-12-31T23:59:59Z</v>", "<v>2000-12-31T23:59:59Z</v>",
        "<v>2002-01-01T00:00:00Z</v>"}},
    {restricted("xs:time", "<xs:minInclusive value='01:00:00'/><xs:maxInclusive value='23:00:00'/>"),
      {"<v>01:00:00</v>", "<v>23:00:00</v>"}, {"<v>00:59:59.9</v>", "<v>23:00:00.1</v>"}},
    {restricted("xs:time", "<xs:minExclusive value='01:00:00'/><xs:maxExclusive value='23:00:00'/>"), {},
      {"<v>01:00:00</v>", "<v>23:00:00</v>", "<v>00:59:59.9</v>", "<v>23:00:00.1</v>"}},
    {restricted("xs:gYear", "<xs:minInclusive value='1990'/><xs:maxInclusive value='2010'/>"),
      {"<v>1990</v>", "<v>2010</v>"}, {"<v>1989</v>", "<v>2011</v>"}},
    {restricted("xs:gYear", "<xs:minExclusive value='1990'/><xs:maxExclusive value='2010'/>"), {},
      {"<v>1990</v>", "<v>2010</v>", "<v>1989</v>", "<v>2011</v>"}},
    {restricted("xs:gYearMonth", "<xs:minInclusive value='2001-02'/><xs:maxInclusive value='2001-11'/>"),
      {"<v>2001-02</v>", "<v>2001-11</v>"}, {"<v>2001-01</v>", "<v>2001-12</v>"}},
    {restricted("xs:gYearMonth", "<xs:minExclusive value='2001-02'/><xs:maxExclusive value='2001-11'/>"), {},
      {"<v>2001-02</v>", "<v>2001-11</v>", "<v>2001-01</v>", "<v>2001-12</v>"}},
    {restricted("xs:gMonth", "<xs:minInclusive value='--02'/><xs:maxInclusive value='--11'/>"),
      {"<v>--02</v>", "<v>--11</v>"}, {"<v>--01</v>", "<v>--12</v>"}},
    {restricted("xs:gMonth", "<xs:minExclusive value='--02'/><xs:maxExclusive value='--11'/>"), {},
      {"<v>--02</v>", "<v>--11</v>", "<v>--01</v>", "<v>--12</v>"}},
    {restricted("xs:gDay", "<xs:minInclusive value='---02'/><xs:maxInclusive value='---30'/>"),
      {"<v>---02</v>", "<v>---30</v>"}, {"<v>---01</v>", "<v>---31</v>"}},
    {restricted("xs:gDay", "<xs:minExclusive value='---02'/><xs:maxExclusive value='---30'/>"), {},
      {"<v>---02</v>", "<v>---30</v>", "<v>---01</v>", "<v>---31</v>"}},
    {restricted("xs:gMonthDay", "<xs:minInclusive value='--02-01'/><xs:maxInclusive value='--11-30'/>"),
      {"<v>--02-01</v>", "<v>--11-30</v>"}, {"<v>--01-31</v>", "<v>--12-01</v>"}},
    {restricted("xs:gMonthDay", "<xs:minExclusive value='--02-01'/><xs:maxExclusive value='--11-30'/>"), {},
      {"<v>--02-01</v>", "<v>--11-30</v>", "<v>--01-31</v>", "<v>--12-01</v>"}},
    {restricted("xs:duration", "<xs:minInclusive value='P1M'/><xs:maxInclusive value='P1Y'/>"),
      {"<v>P1M</v>", "<v>P1Y</v>"}, {"<v>P27D</v>", "<v>P367D</v>"}},
    {restricted("xs:duration", "<xs:minExclusive value='P1M'/><xs:maxExclusive value='P1Y'/>"), {},
      {"<v>P1M</v>", "<v>P1Y</v>", "<v>P27D</v>", "<v>P367D</v>"}},
    {restricted("xs:dateTime", "<xs:minInclusive value='2001-01-01T00:00:00Z'/>"),
      {"<v>2001-01-01T01:00:00+01:00</v>", "<v>2000-12-31T23:00:00-01:00</v>", "<v>2000-12-31T24:00:00Z</v>"},
      {"<v>2001-01-01T00:59:59+01:00</v>"}},
    {restricted("xs:decimal", "<xs:totalDigits value='1'/>"),
      {"<v>0</v>", "<v>9</v>", "<v>-9</v>", "<v>+09</v>", "<v>9.0</v>", "<v>.9</v>", "<v>0.0</v>"},
      {"<v>10</v>", "<v>1.1</v>", "<v>99</v>", "<v>.99</v>"}},
    {restricted("xs:decimal", "<xs:totalDigits value='3'/>"),
      {"<v>123</v>", "<v>12.3</v>", "<v>0.123</v>", "<v>-0123.0</v>"},
      {"<v>1234</v>", "<v>123.4</v>", "<v>0.1234</v>"}},
    {restricted("xs:decimal", "<xs:fractionDigits value='0'/>"),
      {"<v>1</v>", "<v>1.</v>", "<v>1.0</v>", "<v>1.000</v>"}, {"<v>1.1</v>", "<v>.1</v>"}},
    {restricted("xs:integer", "<xs:totalDigits value='2'/>"), {"<v>99</v>", "<v>-099</v>"}, {"<v>100</v>"}},
    {restricted("xs:decimal", "<xs:minExclusive value='0'/>"), {"<v>0.0000000000000000000000001</v>"},
      {"<v>0</v>", "<v>-0</v>", "<v>0.0</v>"}},
    {restricted("xs:double", "<xs:minInclusive value='0'/>"), {"<v>0</v>", "<v>-0</v>", "<v>INF</v>"},
      {"<v>NaN</v>", "<v>-1e-300</v>"}},
    {restricted("xs:double", "<xs:enumeration value='NaN'/>"), {"<v>NaN</v>"}, {"<v>INF</v>", "<v>0</v>"}},
    {restricted("xs:float", "<xs:enumeration value='1'/>"), {"<v>1</v>", "<v>1.0</v>", "<v>1e0</v>", "<v>10E-1</v>"},
      {"<v>1.1</v>"}},
    {restricted("xs:float", "<xs:enumeration value='16777217'/>"), {"<v>16777216</v>", "<v>1.6777216E7</v>"},
      {"<v>16777218</v>"}},
    {restricted("xs:boolean", "<xs:pattern value='true'/>"), {"<v>true</v>", "<v> true </v>"},
      {"<v>1</v>", "<v>false</v>"}},
    {restricted("xs:boolean", "<xs:pattern value='0|1'/>"), {"<v>0</v>", "<v>1</v>"}, {"<v>true</v>"}},
    {restricted("xs:dateTime", "<xs:enumeration value='2001-01-01T12:00:00Z'/>"),
      {"<v>2001-01-01T13:00:00+01:00</v>", "<v>2001-01-01T12:00:00.0Z</v>"},
      {"<v>2001-01-01T12:00:00</v>", "<v>2001-01-01T12:00:00+01:00</v>"}},
    {restricted("xs:time", "<xs:enumeration value='12:00:00Z'/>"), {"<v>13:00:00+01:00</v>"}, {"<v>12:00:00</v>"}},
    {restricted("xs:duration", "<xs:enumeration value='P1Y'/>"), {"<v>P12M</v>"}, {"<v>P365D</v>", "<v>P366D</v>"}},
    {restricted("xs:duration", "<xs:enumeration value='P1D'/>"), {"<v>PT24H</v>", "<v>PT1440M</v>", "<v>PT86400S</v>"},
      {"<v>P1M</v>"}},
    {restricted("xs:hexBinary", "<xs:enumeration value='0A'/>"), {"<v>0a</v>", "<v>0A</v>"}, {"<v>A0</v>"}},
    {restricted("xs:base64Binary", "<xs:enumeration value='YWJj'/>"), {"<v>Y W J j</v>"}, {"<v>YWJk</v>"}},
    {restricted("xs:QName", "<xs:enumeration value='xs:a'/>"), {}, {"<v>a</v>"}},
    {restricted("xs:token", "<xs:enumeration value='a b'/>"), {"<v>a b</v>", "<v> a \n b </v>"},
      {"<v>ab</v>", "<v>a  c</v>"}},
    {restricted("xs:string", "<xs:enumeration value='a b'/>"), {"<v>a b</v>"},
      {"<v>a  b</v>", "<v> a b</v>", "<v>a b </v>"}},
    {restricted("xs:normalizedString", "<xs:enumeration value='a b'/>"), {"<v>a b</v>", "<v>a\tb</v>", "<v>a\nb</v>"},
      {"<v>a  b</v>", "<v> a b</v>"}},
    {restricted("xs:NMTOKENS", "<xs:enumeration value='a b'/>"), {"<v>a b</v>", "<v> a  b </v>"},
      {"<v>b a</v>", "<v>a</v>", "<v>a b c</v>"}},
    {restricted("xs:decimal", "<xs:enumeration value='1.10'/>"), {"<v>1.1</v>", "<v>01.1</v>", "<v>+1.100</v>"},
      {"<v>1.11</v>", "<v>-1.1</v>"}},
    {restricted("xs:integer", "<xs:pattern value='0\\d'/>"), {"<v>01</v>"}, {"<v>1</v>", "<v>011</v>", "<v>+01</v>"}},
    {restricted("xs:token", "<xs:pattern value='a b'/>"), {"<v> a   b </v>"}, {"<v>ab</v>"}},
    {restricted("xs:string", "<xs:enumeration value='a'/><xs:enumeration value='bb'/><xs:maxLength value='1'/>"),
      {"<v>a</v>"}, {"<v>bb</v>", "<v>b</v>"}},
  };
  return rules;
}

Rules const& patterns_rules()
{
  static Rules const rules = {
    {restricted("xs:string", "<xs:pattern value=''/>"), {"<v></v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='abc'/>"), {"<v>abc</v>"},
      {"<v>xabc</v>", "<v>abcx</v>", "<v>ab</v>", "<v>ABC</v>", "<v></v>"}},
    {restricted("xs:string", "<xs:pattern value='^a$'/>"), {"<v>^a$</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='a\\|b'/>"), {"<v>a|b</v>"}, {"<v>a</v>", "<v>b</v>"}},
    {restricted("xs:string", "<xs:pattern value='a||b'/>"), {"<v>a</v>", "<v></v>", "<v>b</v>"}, {"<v>|</v>"}},
    {restricted("xs:string", "<xs:pattern value='(a|b)(c|d)'/>"), {"<v>ac</v>", "<v>bd</v>"},
      {"<v>ab</v>", "<v>a</v>", "<v>acd</v>"}},
    {restricted("xs:string", "<xs:pattern value='a*b+c?'/>"), {"<v>b</v>", "<v>aabbc</v>"},
      {"<v>c</v>", "<v>ac</v>", "<v>abcc</v>"}},
    {restricted("xs:string", "<xs:pattern value='(ab){2,3}'/>"), {"<v>abab</v>", "<v>ababab</v>"},
      {"<v>ab</v>", "<v>abababab</v>", "<v>aba</v>"}},
    {restricted("xs:string", "<xs:pattern value='a{0}'/>"), {"<v></v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='a{0,1}b'/>"), {"<v>b</v>", "<v>ab</v>"}, {"<v>aab</v>"}},
    {restricted("xs:string", "<xs:pattern value='(a{2}){3}'/>"), {"<v>aaaaaa</v>"}, {"<v>aaaaa</v>", "<v>aaaaaaa</v>"}},
    {restricted("xs:string", "<xs:pattern value='(a*)*'/>"), {"<v></v>", "<v>aaa</v>"}, {"<v>b</v>"}},
    {restricted("xs:string", "<xs:pattern value='(a|ab)(c|bcd)(d*)'/>"), {"<v>abcd</v>", "<v>acd</v>", "<v>abcdd</v>"},
      {"<v>abd</v>"}},
    {restricted("xs:string", "<xs:pattern value='.'/>"), {"<v>a</v>", "<v>\xF0\x9D\x84\x9E</v>", "<v> </v>"},
      {"<v></v>", "<v>ab</v>", "<v>\n</v>"}},
    {restricted("xs:string", "<xs:pattern value='.*'/>"), {"<v></v>", "<v>a b</v>"}, {"<v>a\nb</v>"}},
    {restricted("xs:string", "<xs:pattern value='[abc]'/>"), {"<v>a</v>", "<v>c</v>"},
      {"<v>d</v>", "<v></v>", "<v>ab</v>"}},
    {restricted("xs:string", "<xs:pattern value='[a-c]'/>"), {"<v>b</v>"}, {"<v>-</v>", "<v>d</v>"}},
    {restricted("xs:string", "<xs:pattern value='[-a]'/>"), {"<v>-</v>", "<v>a</v>"}, {"<v>b</v>"}},
    {restricted("xs:string", "<xs:pattern value='[a-]'/>"), {"<v>-</v>", "<v>a</v>"}, {"<v>b</v>"}},
    {restricted("xs:string", "<xs:pattern value='[^a-c]'/>"), {"<v>d</v>", "<v>\xF0\x9D\x84\x9E</v>", "<v>\n</v>"},
      {"<v>a</v>", "<v></v>", "<v>de</v>"}},
    {restricted("xs:string", "<xs:pattern value='[\\^a]'/>"), {"<v>^</v>", "<v>a</v>"}, {"<v>b</v>"}},
    {restricted("xs:string", "<xs:pattern value='[a^]'/>"), {"<v>^</v>", "<v>a</v>"}, {"<v>b</v>"}},
    {restricted("xs:string", "<xs:pattern value='[\\[\\]]'/>"), {"<v>[</v>", "<v>]</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='[.]'/>"), {"<v>.</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='[*+?(){}|]+'/>"), {"<v>*+?(){}|</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='[\\d-[5]]+'/>"), {"<v>1234</v>"}, {"<v>5</v>", "<v>15</v>"}},
    {restricted("xs:string", "<xs:pattern value='[a-z-[b-y-[m]]]+'/>"), {"<v>amz</v>"}, {"<v>b</v>", "<v>n</v>"}},
    {restricted("xs:string", "<xs:pattern value='[^a-z-[0-9]]'/>"), {"<v>A</v>", "<v>-</v>"}, {"<v>a</v>", "<v>5</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\s'/>"), {"<v> </v>", "<v>\n</v>", "<v>\t</v>"},
      {"<v>a</v>", "<v>\xC2\xA0</v>", "<v>\xE2\x80\x83</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\S'/>"), {"<v>a</v>", "<v>\xC2\xA0</v>"}, {"<v> </v>", "<v>\n</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\d'/>"), {"<v>5</v>", "<v>\xD9\xA5</v>", "<v>\xF0\x9D\x9F\x98</v>"},
      {"<v>a</v>", "<v>\xC2\xB2</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\D'/>"), {"<v>a</v>"}, {"<v>5</v>", "<v>\xD9\xA5</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\w'/>"),
      {"<v>a</v>", "<v>5</v>", "<v>\xC3\xA4</v>", "<v>$</v>", "<v>\xF0\x90\x90\x80</v>"},
      {"<v>-</v>", "<v> </v>", "<v>.</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\W'/>"), {"<v>-</v>", "<v> </v>", "<v>.</v>"},
      {"<v>a</v>", "<v>5</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\i'/>"), {"<v>a</v>", "<v>_</v>", "<v>:</v>", "<v>\xC3\xA4</v>"},
      {"<v>1</v>", "<v>-</v>", "<v>.</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\I'/>"), {"<v>1</v>", "<v>-</v>", "<v>.</v>"},
      {"<v>a</v>", "<v>_</v>", "<v>:</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\c'/>"), {"<v>a</v>", "<v>1</v>", "<v>-</v>", "<v>.</v>", "<v>:</v>"},
      {"<v> </v>", "<v>!</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\C'/>"), {"<v> </v>", "<v>!</v>"}, {"<v>a</v>", "<v>-</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\n\\t'/>"), {"<v>\n\t</v>"}, {"<v>nt</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\\\'/>"), {"<v>\\</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\-\\^\\.\\?\\*\\+\\{\\}\\(\\)\\[\\]\\|'/>"), {"<v>-^.?*+{}()[]|</v>"},
      {"<v>-</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{L}+'/>"), {"<v>a\xC3\xA4\xD1\x84</v>", "<v>\xF0\x90\x90\x80</v>"},
      {"<v>1</v>", "<v>a1</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{Lu}'/>"),
      {"<v>A</v>", "<v>\xC3\x84</v>", "<v>\xF0\x90\x90\x80</v>"}, {"<v>a</v>", "<v>1</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\P{Lu}'/>"), {"<v>a</v>", "<v>1</v>"}, {"<v>A</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{Nd}'/>"), {"<v>1</v>", "<v>\xD9\xA1</v>"},
      {"<v>a</v>", "<v>\xE2\x85\xA0</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{Nl}'/>"), {"<v>\xE2\x85\xA0</v>"}, {"<v>1</v>", "<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{P}'/>"), {"<v>!</v>", "<v>-</v>"}, {"<v>a</v>", "<v>+</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{Sm}'/>"), {"<v>+</v>"}, {"<v>-</v>", "<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{Sc}'/>"), {"<v>$</v>", "<v>\xE2\x82\xAC</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{Zs}'/>"), {"<v> </v>", "<v>\xC2\xA0</v>"},
      {"<v>a</v>", "<v>\n</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{IsBasicLatin}+'/>"), {"<v>abc</v>", "<v>~</v>"},
      {"<v>\xC3\xA4</v>", "<v>a\xC2\x80</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\P{IsBasicLatin}'/>"), {"<v>\xC3\xA4</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{IsCyrillic}'/>"), {"<v>\xD1\x84</v>"},
      {"<v>a</v>", "<v>\xCD\xB0</v>"}},
    {restricted("xs:string", "<xs:pattern value='\\p{IsGreek}'/>"), {"<v>\xCE\xB1</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='[\\p{Lu}\\d]+'/>"), {"<v>A1</v>"}, {"<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='[^\\p{Lu}\\d]+'/>"), {"<v>a-</v>"}, {"<v>A</v>", "<v>1</v>"}},
    {restricted("xs:string", "<xs:pattern value='[\\s\\S]*'/>"), {"<v>a\nb</v>", "<v></v>"}, {}},
    {restricted("xs:string", "<xs:pattern value='(a(b(c(d)?)?)?)?'/>"),
      {"<v></v>", "<v>a</v>", "<v>ab</v>", "<v>abc</v>", "<v>abcd</v>"}, {"<v>b</v>", "<v>ac</v>", "<v>abd</v>"}},
    {restricted("xs:string", "<xs:pattern value='&#x1D11E;{2}'/>"), {"<v>\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E</v>"},
      {"<v>\xF0\x9D\x84\x9E</v>", "<v>\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E</v>"}},
    {restricted("xs:string", "<xs:pattern value='[&#x10000;-&#x10FFFF;]'/>"),
      {"<v>\xF0\x9D\x84\x9E</v>", "<v>\xF4\x8F\xBF\xBF</v>"}, {"<v>\xEF\xBF\xBD</v>", "<v>a</v>"}},
    {restricted("xs:string", "<xs:pattern value='[a-z]{2}-[0-9]{3,}'/>"), {"<v>ab-123</v>", "<v>ab-12345</v>"},
      {"<v>ab-12</v>", "<v>a-123</v>", "<v>ab123</v>"}},
  };
  return rules;
}

Rules const& contents_rules()
{
  static Rules const rules = {
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='0'/><xs:element name='b' "
     "minOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
      {"<r></r>", "<r><a/></r>", "<r><b/></r>", "<r><a/><b/></r>"},
      {"<r><b/><a/></r>", "<r><a/><a/></r>", "<r><a/><b/><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' "
     "maxOccurs='unbounded'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><a/></r>", "<r><a/><a/></r>", "<r><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/></r>"},
      {"<r></r>", "<r><a/><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='2' "
     "maxOccurs='2'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><a/><a/></r>"}, {"<r><a/></r>", "<r><a/><a/><a/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='0' "
     "maxOccurs='unbounded'/><xs:element name='b'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><b/></r>", "<r><a/><a/><b/></r>"}, {"<r><a/></r>", "<r></r>", "<r><b/><a/></r>", "<r><a/><b/><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:choice maxOccurs='2'><xs:element name='a'/><xs:element "
     "name='b'/></xs:choice><xs:element name='c'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><a/><c/></r>", "<r><a/><b/><c/></r>", "<r><b/><b/><c/></r>"},
      {"<r><c/></r>", "<r><a/><a/><a/><c/></r>", "<r><a/><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:choice minOccurs='2' maxOccurs='3'><xs:element "
     "name='a'/><xs:element name='b'/></xs:choice></xs:sequence></xs:complexType></xs:element>",
      {"<r><a/><b/></r>", "<r><b/><b/></r>", "<r><a/><b/><a/></r>"},
      {"<r></r>", "<r><a/></r>", "<r><a/><b/><a/><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:choice><xs:sequence><xs:element name='a'/><xs:element "
     "name='b'/></xs:sequence><xs:sequence><xs:element name='c'/><xs:element "
     "name='d'/></xs:sequence></xs:choice></xs:complexType></xs:element>",
      {"<r><a/><b/></r>", "<r><c/><d/></r>"},
      {"<r><a/><d/></r>", "<r><c/><b/></r>", "<r><a/><b/><c/><d/></r>", "<r><a/></r>", "<r></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:choice><xs:element name='a' minOccurs='0'/><xs:element "
     "name='b'/></xs:choice></xs:complexType></xs:element>",
      {"<r></r>", "<r><a/></r>", "<r><b/></r>"}, {"<r><a/><b/></r>", "<r><a/><a/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:sequence minOccurs='0' maxOccurs='unbounded'><xs:element "
     "name='a'/><xs:element name='b' minOccurs='0'/></xs:sequence><xs:element name='c' "
     "minOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
      {"<r></r>", "<r><a/></r>", "<r><a/><b/></r>", "<r><a/><b/><a/><a/><b/></r>", "<r><a/><b/><c/></r>",
        "<r><c/></r>"},
      {"<r><b/></r>", "<r><b/><a/></r>", "<r><c/><a/></r>", "<r><a/><b/><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:all><xs:element name='a'/><xs:element name='b' "
     "minOccurs='0'/></xs:all></xs:complexType></xs:element>",
      {"<r><a/></r>", "<r><a/><b/></r>", "<r><b/><a/></r>"},
      {"<r></r>", "<r><b/></r>", "<r><a/><b/><a/></r>", "<r><a/><b/><b/></r>", "<r><a/><c/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:all minOccurs='0'><xs:element name='a'/><xs:element "
     "name='b'/></xs:all></xs:complexType></xs:element>",
      {"<r></r>", "<r><a/><b/></r>", "<r><b/><a/></r>"}, {"<r><a/></r>", "<r><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' minOccurs='100' "
     "maxOccurs='101'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
       "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
       "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
       "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/></r>",
        "<r><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
        "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
        "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
        "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/></r>"},
      {"<r><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
       "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
       "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
       "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/></r>",
        "<r><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
        "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
        "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/"
        "><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/><a/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' maxOccurs='0' "
     "minOccurs='0'/></xs:sequence></xs:complexType></xs:element>",
      {"<r></r>"}, {"<r><a/></r>"}},
    {"<xs:element name='r'><xs:complexType mixed='true'><xs:sequence><xs:element "
     "name='a'/></xs:sequence></xs:complexType></xs:element>",
      {"<r>x<a/>y</r>", "<r><a/></r>"}, {"<r>x</r>", "<r>x<b/></r>", "<r><a/>x<a/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' type='xs:int'/><xs:element name='b' "
     "type='xs:int' default='7'/><xs:element name='c' type='xs:int' "
     "fixed='7'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><a>1</a><b/><c/></r>", "<r><a>1</a><b>2</b><c>07</c></r>"},
      {"<r><a/><b/><c/></r>", "<r><a>1</a><b>x</b><c/></r>", "<r><a>1</a><b/><c>8</c></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a' type='xs:string' fixed=' x "
     "'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><a> x </a></r>", "<r><a/></r>"}, {"<r><a>x</a></r>", "<r><a>  x  </a></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:attribute name='a' type='xs:int' use='required'/><xs:attribute name='b' "
     "fixed='x'/><xs:attribute name='c' type='xs:token' fixed='x y'/></xs:complexType></xs:element>",
      {"<r a='1'/>", "<r a='1' b='x' c=' x  y '/>"},
      {"<r/>", "<r a='1' b='y'/>", "<r a='1' b=' x'/>", "<r a='1' c='xy'/>", "<r a='1' d=''/>"}},
    {"<xs:attributeGroup name='g'><xs:attribute name='a' use='required'/><xs:attributeGroup "
     "ref='h'/></xs:attributeGroup><xs:attributeGroup name='h'><xs:attribute name='b' "
     "type='xs:int'/></xs:attributeGroup><xs:element name='r'><xs:complexType><xs:attributeGroup "
     "ref='g'/></xs:complexType></xs:element>",
      {"<r a=''/>", "<r a='' b='1'/>"}, {"<r/>", "<r a='' b='x'/>", "<r b='1'/>"}},
    {"<xs:complexType name='b'><xs:attribute name='a'/><xs:attribute name='k'/></xs:complexType><xs:element "
     "name='r'><xs:complexType><xs:complexContent><xs:restriction base='b'><xs:attribute name='a' "
     "use='prohibited'/></xs:restriction></xs:complexContent></xs:complexType></xs:element>",
      {"<r/>", "<r k=''/>"}, {"<r a=''/>"}},
    {"<xs:complexType name='b'><xs:attribute name='a'/></xs:complexType><xs:element "
     "name='r'><xs:complexType><xs:complexContent><xs:restriction base='b'><xs:attribute name='a' use='required' "
     "type='xs:int'/></xs:restriction></xs:complexContent></xs:complexType></xs:element>",
      {"<r a='1'/>"}, {"<r/>", "<r a='x'/>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='strict' minOccurs='0' "
     "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute "
     "processContents='strict'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute "
     "name='i' type='xs:int'/>",
      {"<r/>", "<r i='1'><n>1</n><r/></r>"},
      {"<r><u/></r>", "<r><n>x</n></r>", "<r u=''/>", "<r i='x'/>", "<r><r><u/></r></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='lax' minOccurs='0' "
     "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute "
     "processContents='lax'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' "
     "type='xs:int'/>",
      {"<r u=''><u v=''>x</u></r>", "<r><u><n>1</n></u></r>"},
      {"<r><n>x</n></r>", "<r i='x'/>", "<r><u><n>x</n></u></r>", "<r><u><u><r i='x'/></u></u></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='skip' minOccurs='0' "
     "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute "
     "processContents='skip'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' "
     "type='xs:int'/>",
      {"<r i='x'><n>x</n><u><n>x</n></u></r>"}, {}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='skip' namespace='##other' "
     "minOccurs='0' maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='skip' "
     "namespace='##other'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' "
     "type='xs:int'/>",
      {"<r xmlns:p='urn:p' p:i=''><p:n/></r>"}, {"<r><n/></r>", "<r i=''/>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='skip' namespace='##local' "
     "minOccurs='0' maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='skip' "
     "namespace='##local'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' "
     "type='xs:int'/>",
      {"<r i=''><n/></r>"}, {"<r xmlns:p='urn:p'><p:n/></r>", "<r xmlns:p='urn:p' p:i=''/>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='skip' namespace='##targetNamespace "
     "urn:p' minOccurs='0' maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='skip' "
     "namespace='##targetNamespace urn:p'/></xs:complexType></xs:element><xs:element name='n' "
     "type='xs:int'/><xs:attribute name='i' type='xs:int'/>",
      {"<r i=''><n/></r>", "<r xmlns:p='urn:p' p:i=''><p:n/></r>"},
      {"<r xmlns:p='urn:q'><p:n/></r>", "<r xmlns:p='urn:q' p:i=''/>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='skip' namespace='##local urn:p' "
     "minOccurs='0' maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='skip' namespace='##local "
     "urn:p'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' type='xs:int'/>",
      {"<r i=''><n/></r>", "<r xmlns:p='urn:p' p:i=''><p:n/></r>"}, {"<r xmlns:p='urn:q'><p:n/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='skip' namespace='' minOccurs='0' "
     "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute processContents='skip' "
     "namespace=''/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' "
     "type='xs:int'/>",
      {"<r/>"}, {"<r><n/></r>", "<r i=''/>", "<r xmlns:p='urn:p'><p:n/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any processContents='lax' minOccurs='0' "
     "maxOccurs='unbounded'/></xs:sequence><xs:anyAttribute "
     "processContents='lax'/></xs:complexType></xs:element><xs:element name='n' type='xs:int'/><xs:attribute name='i' "
     "type='xs:int'/><xs:attribute name='j' type='xs:ID'/><xs:element name='e' type='xs:IDREF'/>",
      {"<r j='a'><e>a</e></r>", "<r><u j='a'/><u><e>a</e></u></r>"}, {"<r><e>a</e></r>", "<r j='a'><u j='a'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='a'/><xs:any processContents='skip' "
     "namespace='urn:p'/></xs:sequence></xs:complexType></xs:element>",
      {"<r xmlns:p='urn:p'><a/><p:x><y/>t</p:x></r>"},
      {"<r><a/></r>", "<r xmlns:p='urn:p'><p:x/><a/></r>", "<r><a/><a/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:simpleContent><xs:extension "
     "base='xs:int'/></xs:simpleContent></xs:complexType></xs:element>",
      {"<r>1</r>", "<r> 1 </r>", "<r>1<!--x--></r>"}, {"<r>x</r>", "<r/>", "<r>1<a/></r>", "<r a=''>1</r>"}},
    {"<xs:element name='r'><xs:complexType><xs:simpleContent><xs:restriction base='s'><xs:maxInclusive "
     "value='5'/><xs:attribute name='a' "
     "use='required'/></xs:restriction></xs:simpleContent></xs:complexType></xs:element><xs:complexType "
     "name='s'><xs:simpleContent><xs:extension base='xs:int'><xs:attribute "
     "name='a'/></xs:extension></xs:simpleContent></xs:complexType>",
      {"<r a=''>5</r>"}, {"<r a=''>6</r>", "<r>5</r>"}},
    {"<xs:group name='g'><xs:choice><xs:element name='a'/><xs:element name='b'/></xs:choice></xs:group><xs:element "
     "name='r'><xs:complexType><xs:group ref='g' minOccurs='0' maxOccurs='2'/></xs:complexType></xs:element>",
      {"<r></r>", "<r><a/></r>", "<r><a/><b/></r>", "<r><b/><b/></r>"}, {"<r><a/><b/><a/></r>", "<r><c/></r>"}},
    {"<xs:element name='r'/>", {"<r/>", "<r a='1'>x<b/>y</r>"}, {"<s/>"}},
    {"<xs:element name='r' type='xs:anyType'/><xs:element name='n' type='xs:int'/>", {"<r><n>1</n><u/></r>"},
      {"<r><n>x</n></r>"}},
    {"<xs:simpleType name='l'><xs:list itemType='xs:int'/></xs:simpleType><xs:simpleType name='u'><xs:union "
     "memberTypes='l xs:boolean'/></xs:simpleType><xs:element name='r' type='u'/>",
      {"<r>1 2</r>", "<r>true</r>", "<r/>", "<r> 1 </r>"}, {"<r>true 1</r>", "<r>x</r>", "<r>true false</r>"}},
    {"<xs:element name='r'><xs:simpleType><xs:list><xs:simpleType><xs:restriction base='xs:token'><xs:enumeration "
     "value='a'/><xs:enumeration value='b'/></xs:restriction></xs:simpleType></xs:list></xs:simpleType></xs:element>",
      {"<r/>", "<r>a b a</r>"}, {"<r>c</r>", "<r>a,b</r>"}},
    {"<xs:element name='r'><xs:simpleType><xs:union><xs:simpleType><xs:restriction base='xs:int'><xs:maxInclusive "
     "value='9'/></xs:restriction></xs:simpleType><xs:simpleType><xs:restriction base='xs:string'><xs:length "
     "value='2'/></xs:restriction></xs:simpleType></xs:union></xs:simpleType></xs:element>",
      {"<r>9</r>", "<r>ab</r>", "<r>10</r>"}, {"<r>100</r>", "<r>a</r>", "<r/>"}},
  };
  return rules;
}

Rules const& derivation_rules()
{
  static Rules const rules = {
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b'/>",
      {"<r><a/></r>", "<r xsi:type='b'><a/></r>", "<r xsi:type='x' k=''><a/><c/></r>", "<r xsi:type='l'></r>",
        "<r xsi:type='xl'></r>"},
      {"<r><c/></r>", "<r xsi:type='b'><c/></r>", "<r xsi:type='l'><a/></r>", "<r xsi:type='xl'><a/></r>",
        "<r xsi:type='x'><c/><a/></r>", "<r xsi:type='xs:string'></r>", "<r xsi:type='xs:anyType'></r>",
        "<r xsi:type='none'></r>", "<r xsi:type='p:b'></r>"}},
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b' block='extension'/>",
      {"<r></r>", "<r xsi:type='b'></r>", "<r xsi:type='l'></r>"}, {"<r xsi:type='x'></r>", "<r xsi:type='xl'></r>"}},
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b' block='restriction'/>",
      {"<r></r>", "<r xsi:type='x'></r>"}, {"<r xsi:type='l'></r>", "<r xsi:type='xl'></r>"}},
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b' block='#all'/>",
      {"<r></r>", "<r xsi:type='b'></r>"}, {"<r xsi:type='x'></r>", "<r xsi:type='l'></r>", "<r xsi:type='xl'></r>"}},
    {"<xs:complexType name='b' block='extension'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b'/>",
      {"<r xsi:type='l'></r>"}, {"<r xsi:type='x'></r>", "<r xsi:type='xl'></r>"}},
    {"<xs:complexType name='b' block='restriction'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b'/>",
      {"<r xsi:type='x'></r>"}, {"<r xsi:type='l'></r>", "<r xsi:type='xl'></r>"}},
    {"<xs:complexType name='b' block='#all'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b'/>",
      {"<r xsi:type='b'></r>"}, {"<r xsi:type='x'></r>", "<r xsi:type='l'></r>"}},
    {"<xs:complexType name='b' abstract='true'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='b'/>",
      {"<r xsi:type='x'></r>", "<r xsi:type='l'></r>"}, {"<r></r>", "<r xsi:type='b'></r>"}},
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a' "
     "minOccurs='0'/></xs:sequence></xs:complexType><xs:complexType name='x'><xs:complexContent><xs:extension "
     "base='b'><xs:sequence><xs:element name='c' minOccurs='0'/></xs:sequence><xs:attribute "
     "name='k'/></xs:extension></xs:complexContent></xs:complexType><xs:complexType "
     "name='l'><xs:complexContent><xs:restriction base='b'/></xs:complexContent></xs:complexType><xs:complexType "
     "name='xl'><xs:complexContent><xs:restriction base='x'/></xs:complexContent></xs:complexType><xs:element name='r' "
     "type='x'/>",
      {"<r xsi:type='x'></r>", "<r xsi:type='xl'></r>"}, {"<r xsi:type='b'></r>", "<r xsi:type='l'></r>"}},
    {"<xs:element name='r' type='xs:anyType'/>",
      {"<r xsi:type='xs:int'>1</r>", "<r xsi:type='xs:string'>x</r>", "<r><a/></r>"},
      {"<r xsi:type='xs:int'>x</r>", "<r xsi:type='xs:int'><a/></r>"}},
    {"<xs:element name='r' type='xs:anySimpleType'/>",
      {"<r xsi:type='xs:int'>1</r>", "<r xsi:type='xs:NMTOKENS'>a b</r>", "<r>x</r>"},
      {"<r xsi:type='xs:int'>x</r>", "<r xsi:type='xs:anyType'></r>"}},
    {"<xs:element name='r' type='xs:decimal'/>", {"<r xsi:type='xs:byte'>127</r>", "<r xsi:type='xs:integer'>1</r>"},
      {"<r xsi:type='xs:byte'>128</r>", "<r xsi:type='xs:double'>1</r>", "<r xsi:type='xs:string'>1</r>",
        "<r xsi:type='xs:integer'>1.0</r>"}},
    {"<xs:simpleType name='u'><xs:union memberTypes='xs:int xs:boolean'/></xs:simpleType><xs:element name='r' "
     "type='u'/>",
      {"<r xsi:type='xs:int'>1</r>", "<r xsi:type='xs:boolean'>true</r>", "<r xsi:type='u'>1</r>"},
      {"<r xsi:type='xs:int'>true</r>", "<r xsi:type='xs:string'>x</r>"}},
    {"<xs:element name='h' type='xs:decimal'/><xs:element name='m' substitutionGroup='h'/><xs:element name='i' "
     "type='xs:int' substitutionGroup='h'/><xs:element name='j' type='xs:byte' substitutionGroup='i'/><xs:element "
     "name='r'><xs:complexType><xs:sequence><xs:element ref='h' "
     "maxOccurs='3'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><h>1.5</h><m>1.5</m><i>1</i></r>", "<r><j>1</j></r>", "<j>1</j>"},
      {"<r><i>1.5</i></r>", "<r><j>128</j></r>", "<r><r/></r>"}},
    {"<xs:element name='h' type='xs:decimal' block='substitution'/><xs:element name='m' "
     "substitutionGroup='h'/><xs:element name='i' type='xs:int' substitutionGroup='h'/><xs:element name='j' "
     "type='xs:byte' substitutionGroup='i'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='h' "
     "maxOccurs='3'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><h>1</h></r>"}, {"<r><m>1</m></r>", "<r><j>1</j></r>"}},
    {"<xs:element name='h' type='xs:decimal' block='restriction'/><xs:element name='m' "
     "substitutionGroup='h'/><xs:element name='i' type='xs:int' substitutionGroup='h'/><xs:element name='j' "
     "type='xs:byte' substitutionGroup='i'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='h' "
     "maxOccurs='3'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><h>1</h><m>1</m></r>"}, {"<r><i>1</i></r>", "<r><j>1</j></r>"}},
    {"<xs:element name='h' type='xs:decimal' block='#all'/><xs:element name='m' substitutionGroup='h'/><xs:element "
     "name='i' type='xs:int' substitutionGroup='h'/><xs:element name='j' type='xs:byte' "
     "substitutionGroup='i'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='h' "
     "maxOccurs='3'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><h>1</h></r>"}, {"<r><m>1</m></r>", "<r><i>1</i></r>"}},
    {"<xs:element name='h' type='xs:decimal' abstract='true'/><xs:element name='m' substitutionGroup='h'/><xs:element "
     "name='i' type='xs:int' substitutionGroup='h'/><xs:element name='j' type='xs:byte' "
     "substitutionGroup='i'/><xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='h' "
     "maxOccurs='3'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><m>1</m><i>1</i></r>"}, {"<r><h>1</h></r>", "<h>1</h>"}},
    {"<xs:element name='h' type='xs:int'/><xs:element name='m' substitutionGroup='h'/><xs:element "
     "name='r'><xs:complexType><xs:sequence><xs:element name='h' "
     "type='xs:int'/></xs:sequence></xs:complexType></xs:element>",
      {"<r><h>1</h></r>"}, {"<r><m>1</m></r>"}},
    {"<xs:element name='h' type='xs:int'/><xs:element name='m' substitutionGroup='h'/><xs:element "
     "name='r'><xs:complexType><xs:all><xs:element ref='h'/><xs:element "
     "name='b'/></xs:all></xs:complexType></xs:element>",
      {"<r><m>1</m><b/></r>", "<r><b/><h>1</h></r>"},
      {"<r><m>1</m><h>1</h><b/></r>", "<r><b/></r>", "<r><m>x</m><b/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:choice><xs:element name='n' type='xs:int' nillable='true'/><xs:element "
     "name='o' type='xs:int'/><xs:element name='d' type='xs:int' nillable='true' "
     "default='1'/></xs:choice></xs:complexType></xs:element>",
      {"<r><n xsi:nil='true'></n></r>", "<r><n xsi:nil='1'></n></r>", "<r><n xsi:nil='false'>1</n></r>",
        "<r><n xsi:nil='0'>1</n></r>", "<r><n xsi:nil='true'><!--x--></n></r>", "<r><d xsi:nil='true'></d></r>",
        "<r><d xsi:nil='false'></d></r>"},
      {"<r><n xsi:nil='true'>1</n></r>", "<r><n xsi:nil='true'> </n></r>", "<r><n xsi:nil='false'></n></r>",
        "<r><n xsi:nil=''>1</n></r>", "<r><n xsi:nil='TRUE'></n></r>", "<r><o xsi:nil='true'></o></r>",
        "<r><o xsi:nil='true'>1</o></r>", "<r><d xsi:nil='true'>1</d></r>"}},
    {"<xs:element name='r' nillable='true'><xs:complexType mixed='true'><xs:sequence><xs:element "
     "name='a'/></xs:sequence><xs:attribute name='k' type='xs:int'/></xs:complexType></xs:element>",
      {"<r xsi:nil='true' k='1'/>", "<r>x<a/></r>"},
      {"<r/>", "<r xsi:nil='true'>x</r>", "<r xsi:nil='true'><a/></r>", "<r xsi:nil='true' k='x'/>"}},
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a'/></xs:sequence></xs:complexType><xs:complexType "
     "name='x' mixed='false'><xs:complexContent><xs:extension base='b'><xs:choice><xs:element name='c'/><xs:element "
     "name='d'/></xs:choice></xs:extension></xs:complexContent></xs:complexType><xs:element name='r' type='x'/>",
      {"<r><a/><c/></r>", "<r><a/><d/></r>"},
      {"<r><a/></r>", "<r><c/></r>", "<r><a/><c/><d/></r>", "<r><c/><a/></r>", "<r>x<a/><c/></r>"}},
    {"<xs:complexType name='b'><xs:sequence><xs:element name='a' minOccurs='0' "
     "maxOccurs='unbounded'/></xs:sequence></xs:complexType><xs:element "
     "name='r'><xs:complexType><xs:complexContent><xs:restriction base='b'><xs:sequence><xs:element name='a' "
     "type='xs:int' minOccurs='1' "
     "maxOccurs='2'/></xs:sequence></xs:restriction></xs:complexContent></xs:complexType></xs:element>",
      {"<r><a>1</a></r>", "<r><a>1</a><a>2</a></r>"}, {"<r/>", "<r><a>x</a></r>", "<r><a>1</a><a>1</a><a>1</a></r>"}},
  };
  return rules;
}

Rules const& constraints_rules()
{
  static Rules const rules = {
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i k='1'/><i k='2'/><i/><i/></r>", "<r><i k='1'/><v>1</v></r>"},
      {"<r><i k='1'/><i k='1.0'/></r>", "<r><i k='0'/><i k='-0'/></r>", "<r><i k='+01.50'/><i k='1.5'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@s'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i s='a'/><i s='A'/><i s=' a'/><i s=''/></r>"},
      {"<r><i s='a'/><i s='a'/></r>", "<r><i s=''/><i s=''/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@t'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i t='a b'/><i t='ab'/></r>"}, {"<r><i t='a b'/><i t=' a  b '/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@f'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i f='1'/><i f='2'/><i f='INF'/><i f='-INF'/></r>"},
      {"<r><i f='1'/><i f='1e0'/></r>", "<r><i f='INF'/><i f='INF'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/></xs:key></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r></r>", "<r><i k='1'/><i k='2'/></r>"},
      {"<r><i/></r>", "<r><i k='1'/><i/></r>", "<r><i k='1'/><i k='1'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/><xs:field xpath='@s'/></xs:key></xs:element><xs:element name='i'><xs:complexType "
     "mixed='true'><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='s' "
     "type='xs:string'/><xs:attribute name='t' type='xs:token'/><xs:attribute name='f' "
     "type='xs:double'/></xs:complexType></xs:element><xs:element name='v' type='xs:decimal'/><xs:element name='w' "
     "type='xs:string'/>",
      {"<r><i k='1' s='a'/><i k='1' s='b'/><i k='2' s='a'/></r>"},
      {"<r><i k='1'/></r>", "<r><i s='a'/></r>", "<r><i k='1' s='a'/><i k='1.0' s='a'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/><xs:field xpath='@s'/></xs:unique></xs:element><xs:element name='i'><xs:complexType "
     "mixed='true'><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='s' "
     "type='xs:string'/><xs:attribute name='t' type='xs:token'/><xs:attribute name='f' "
     "type='xs:double'/></xs:complexType></xs:element><xs:element name='v' type='xs:decimal'/><xs:element name='w' "
     "type='xs:string'/>",
      {"<r><i k='1'/><i k='1'/></r>", "<r><i s='a'/><i s='a'/></r>"}, {"<r><i k='1' s='a'/><i k='01' s='a'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i|v'/><xs:field "
     "xpath='.'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><v>1</v><v>2</v></r>"}, {"<r><v>1</v><v>1.0</v></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='.//v'/><xs:field "
     "xpath='.'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><v>1</v><i><v>2</v></i></r>"}, {"<r><v>1</v><i><v>1</v></i></r>", "<r><i><i><v>1</v></i><v>1</v></i></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i/v'/><xs:field "
     "xpath='.'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><v>1</v><i><v>1</v></i></r>", "<r><i><v>1</v></i><i><v>2</v></i></r>"},
      {"<r><i><v>1</v></i><i><v>1</v></i></r>", "<r><i><v>1</v><v>1</v></i></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='v|w'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i><v>1</v></i><i><v>2</v></i></r>", "<r><i><v>1</v></i><i><w>1</w></i></r>"},
      {"<r><i><v>1</v></i><i><v>1</v></i></r>", "<r><i><v>1</v><w>2</w></i></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='*'/><xs:field "
     "xpath='@k'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i k='1'/><i k='2'/><v>1</v></r>"}, {"<r><i k='1'/><i k='1'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='./i'/><xs:field "
     "xpath='./v'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i><v>1</v></i><i/></r>"}, {"<r><i><v>1</v></i><i><v>1</v></i></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector "
     "xpath='child::i'/><xs:field xpath='attribute::k'/></xs:unique></xs:element><xs:element name='i'><xs:complexType "
     "mixed='true'><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='s' "
     "type='xs:string'/><xs:attribute name='t' type='xs:token'/><xs:attribute name='f' "
     "type='xs:double'/></xs:complexType></xs:element><xs:element name='v' type='xs:decimal'/><xs:element name='w' "
     "type='xs:string'/>",
      {"<r><i k='1'/><i k='2'/></r>"}, {"<r><i k='1'/><i k='1'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@*'/></xs:unique></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i k='1'/><i k='2'/></r>"}, {"<r><i k='1'/><i k='1'/></r>", "<r><i k='1' s='2'/></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='v'/><xs:field "
     "xpath='.'/></xs:keyref></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i k='1'/><v>1.0</v><v>1</v></r>", "<r><v>2</v><i k='2'/></r>", "<r></r>"},
      {"<r><v>1</v></r>", "<r><i k='1'/><v>2</v></r>", "<r><i k='1'/><v>1</v><v>3</v></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:unique name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/></xs:unique><xs:keyref name='f' refer='k'><xs:selector xpath='v'/><xs:field "
     "xpath='.'/></xs:keyref></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i k='1'/><i/><v>1</v></r>"}, {"<r><i/><v>1</v></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@k'/><xs:field xpath='@s'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='.//i/i'/><xs:field "
     "xpath='@k'/><xs:field xpath='@s'/></xs:keyref></xs:element><xs:element name='i'><xs:complexType "
     "mixed='true'><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence><xs:attribute name='k' type='xs:decimal'/><xs:attribute name='s' "
     "type='xs:string'/><xs:attribute name='t' type='xs:token'/><xs:attribute name='f' "
     "type='xs:double'/></xs:complexType></xs:element><xs:element name='v' type='xs:decimal'/><xs:element name='w' "
     "type='xs:string'/>",
      {"<r><i k='1' s='a'><i k='1' s='a'/></i></r>", "<r><i k='1' s='a'><i k='2'/></i></r>"},
      {"<r><i k='1' s='a'><i k='1' s='b'/></i></r>", "<r><i k='1' s='a'><i k='2' s='a'/></i></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:any minOccurs='0' maxOccurs='unbounded' "
     "processContents='lax'/></xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/><xs:field "
     "xpath='@s'/></xs:key><xs:keyref name='f' refer='k'><xs:selector xpath='v'/><xs:field "
     "xpath='.'/></xs:keyref></xs:element><xs:element name='i'><xs:complexType mixed='true'><xs:sequence><xs:any "
     "minOccurs='0' maxOccurs='unbounded' processContents='lax'/></xs:sequence><xs:attribute name='k' "
     "type='xs:decimal'/><xs:attribute name='s' type='xs:string'/><xs:attribute name='t' "
     "type='xs:token'/><xs:attribute name='f' type='xs:double'/></xs:complexType></xs:element><xs:element name='v' "
     "type='xs:decimal'/><xs:element name='w' type='xs:string'/>",
      {"<r><i s='1'/></r>"}, {"<r><i s='1'/><v>1</v></r>"}},
    {"<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='e' minOccurs='0' "
     "maxOccurs='unbounded'><xs:complexType><xs:attribute name='id' type='xs:ID'/><xs:attribute name='ref' "
     "type='xs:IDREF'/><xs:attribute name='refs' "
     "type='xs:IDREFS'/></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>",
      {"<r><e id='a'/><e ref='a'/></r>", "<r><e ref='a'/><e id='a'/></r>", "<r><e id=' a '/><e refs=' a\n a '/></r>",
        "<r><e id='a'/><e id='A'/></r>", "<r><e id='a' ref='a' refs='a'/></r>"},
      {"<r><e id='a'/><e id=' a '/></r>", "<r><e ref='a'/></r>", "<r><e id='a'/><e ref='A'/></r>",
        "<r><e id='a'/><e refs='a b'/></r>", "<r><e id='a'/><e refs=' '/></r>", "<r><e id='a b'/></r>",
        "<r><e id=''/></r>", "<r><e id='1'/></r>"}},
  };
  return rules;
}

bool are_kept(utUnitTest& tester, axmDocumentFactory const& factory, Rules const& rules)
{
  bool are_all = true;
  for (Rule const& rule : rules)
    are_all = is_kept(tester, factory, rule) && are_all;
  return are_all;
}
}

void axmSchemaUtest::test_rules(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSchemaUtest::test_rules");
  group.check(
    are_kept(*tester, *factory, builtin_rules()), all_are_judged, __LINE__, "built-in types at their borders");
  group.check(are_kept(*tester, *factory, facets_rules()), all_are_judged, __LINE__, "facets at their borders");
  group.check(are_kept(*tester, *factory, patterns_rules()), all_are_judged, __LINE__, "patterns");
  group.check(are_kept(*tester, *factory, contents_rules()), all_are_judged, __LINE__, "content models and attributes");
  group.check(
    are_kept(*tester, *factory, derivation_rules()), all_are_judged, __LINE__, "derived types, substitution and nil");
  group.check(
    are_kept(*tester, *factory, constraints_rules()), all_are_judged, __LINE__, "keys, references and unique values");
}
