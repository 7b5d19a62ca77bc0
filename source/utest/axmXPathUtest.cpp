#include "axmXPathUtest.h"

#include "axmUtestAccess.h"
#include "axmUtestGroup.h"
#include "model/axmModelText.h"

#include <utUnitTest.h>

#include <string>
#include <vector>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmXPathUtest";

enum class Kind
{
  nodes,
  boolean,
  number,
  string
};

// What is asked of the root element of a document and what is to come: nodes by name, "#" and the attribute "id" of those
// that have one, "=" and the value of those that have one; or a value.
struct Question
{
  Kind kind;
  char const* expression;
  char const* answer;
};

char const document_0[] =
  "<!DOCTYPE r [<!ATTLIST b key ID #IMPLIED n CDATA 'ID'><!-- <!ATTLIST c no ID #IMPLIED> --><!ENTITY e '<!ATTLIST c "
  "never ID #IMPLIED>'><!ATTLIST c kind (ID|x) #IMPLIED>]><r xmlns:p='urn:p'><a xml:id='one' id='A'>1</a><b key='two' "
  "id='B'>2.5</b><b id='C'>three</b><c no='four' never='five' kind='x' id='D' xml:lang='en-US'><d id='E'>one "
  "two</d></c><p:e id='F' p:x='1'/><?go on?></r>";

Question const questions_0[] = {
  {Kind::nodes, "/r/b[last()]", "b#C"},
  {Kind::nodes, "/r/*[last()-1]", "c#D"},
  {Kind::nodes, "/r/*[position()=last()][last()=1]", "p:e#F"},
  {Kind::number, "last()", "1"},
  {Kind::nodes, "/r/*[position()=2]", "b#B"},
  {Kind::nodes, "/r/*[self::b][position()=2]", "b#C"},
  {Kind::nodes, "/r/*[position() mod 2 = 1]", "a#A b#C p:e#F"},
  {Kind::number, "position()", "1"},
  {Kind::number, "count(//b)", "2"},
  {Kind::number, "count(//b|//b)", "2"},
  {Kind::number, "count(//nothing)", "0"},
  {Kind::string, "local-name(//p:e)", "e"},
  {Kind::string, "local-name(//@p:x)", "x"},
  {Kind::string, "local-name(//processing-instruction())", "go"},
  {Kind::string, "local-name(//text())", ""},
  {Kind::string, "local-name(/)", ""},
  {Kind::string, "local-name(//nothing)", ""},
  {Kind::nodes, "//*[local-name()='e']", "p:e#F"},
  {Kind::string, "namespace-uri(//p:e)", "urn:p"},
  {Kind::string, "namespace-uri(//@p:x)", "urn:p"},
  {Kind::string, "namespace-uri(//@xml:id)", "http://www.w3.org/XML/1998/namespace"},
  {Kind::string, "namespace-uri(//a)", ""},
  {Kind::nodes, "//*[namespace-uri()='urn:p']", "p:e#F"},
  {Kind::string, "name(//p:e)", "p:e"},
  {Kind::string, "name(//@p:x)", "p:x"},
  {Kind::string, "name(//processing-instruction())", "go"},
  {Kind::nodes, "//*[name()='b']", "b#B b#C"},
  {Kind::string, "string(//b)", "2.5"},
  {Kind::string, "string(//c)", "one two"},
  {Kind::string, "string(//nothing)", ""},
  {Kind::string, "string(//processing-instruction())", "on"},
  {Kind::string, "string(//d/preceding::*[1])", "three"},
  {Kind::string, "string(true())", "true"},
  {Kind::string, "string(1=2)", "false"},
  {Kind::string, "string(0.1)", "0.1"},
  {Kind::string, "string(0.1 + 0.2)", "0.30000000000000004"},
  {Kind::string, "string(1 div 3)", "0.3333333333333333"},
  {Kind::string, "string(-12.50)", "-12.5"},
  {Kind::string, "string(100)", "100"},
  {Kind::string, "string(1 div 0)", "Infinity"},
  {Kind::string, "string(-1 div 0)", "-Infinity"},
  {Kind::string, "string(0 div 0)", "NaN"},
  {Kind::string, "string(-0)", "0"},
  {Kind::string, "string(0.0000001)", "0.0000001"},
  {Kind::string, "string(1000000000000000000000)", "1000000000000000000000"},
  {Kind::string, "string(9007199254740993)", "9007199254740992"},
  {Kind::string, "concat('a', 'b')", "ab"},
  {Kind::string, "concat(//a, '-', 1.5, true())", "1-1.5true"},
  {Kind::string, "concat(concat('a', 'b'), concat('c', concat('d', 'e')))", "abcde"},
  {Kind::boolean, "starts-with('abc', 'ab')", "true"},
  {Kind::boolean, "starts-with('abc', 'bc')", "false"},
  {Kind::boolean, "starts-with('abc', '')", "true"},
  {Kind::boolean, "starts-with('ab', 'abc')", "false"},
  {Kind::boolean, "contains('abc', 'bc')", "true"},
  {Kind::boolean, "contains('abc', 'd')", "false"},
  {Kind::boolean, "contains('', '')", "true"},
  {Kind::nodes, "//*[contains(., 'two')][not(*)]", "d#E"},
  {Kind::string, "substring-before('1999/04/01', '/')", "1999"},
  {Kind::string, "substring-before('abc', 'x')", ""},
  {Kind::string, "substring-before('abc', '')", ""},
  {Kind::string, "substring-after('1999/04/01', '/')", "04/01"},
  {Kind::string, "substring-after('abc', 'x')", ""},
  {Kind::string, "substring-after('abc', '')", "abc"},
  {Kind::string, "substring('12345', 2, 3)", "234"},
  {Kind::string, "substring('12345', 2)", "2345"},
  {Kind::string, "substring('12345', 1.5, 2.6)", "234"},
  {Kind::string, "substring('12345', 0, 3)", "12"},
  {Kind::string, "substring('12345', 0 div 0, 3)", ""},
  {Kind::string, "substring('12345', 1, 0 div 0)", ""},
  {Kind::string, "substring('12345', -42, 1 div 0)", "12345"},
  {Kind::string, "substring('12345', -1 div 0, 1 div 0)", ""},
  {Kind::string, "substring('12345', -1 div 0)", "12345"},
  {Kind::string, "substring('12345', 0 div 0)", ""},
  {Kind::string, "substring('12345', 6)", ""},
  {Kind::string, "substring('\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z', 2, 2)", "\xE2\x82\xAC\xF0\x9F\x98\x80"},
  {Kind::number, "string-length('')", "0"},
  {Kind::number, "string-length('\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z')", "4"},
  {Kind::nodes, "//*[string-length()=3]", "b#B"},
  {Kind::string, "normalize-space(' \t a \r\n  b ')", "a b"},
  {Kind::string, "normalize-space('   ')", ""},
  {Kind::nodes, "//*[normalize-space()='one two'][not(*)]", "d#E"},
  {Kind::string, "translate('bar', 'abc', 'ABC')", "BAr"},
  {Kind::string, "translate('--aaa--', 'abc-', 'ABC')", "AAA"},
  {Kind::string, "translate('aa', 'aa', 'bc')", "bb"},
  {Kind::string, "translate('\xC3\xA4x', 'x\xC3\xA4', '\xE2\x82\xACy')", "y\xE2\x82\xAC"},
  {Kind::string, "translate('ab', 'a', 'xyz')", "xb"},
  {Kind::boolean, "boolean(0)", "false"},
  {Kind::boolean, "boolean(-0)", "false"},
  {Kind::boolean, "boolean(0 div 0)", "false"},
  {Kind::boolean, "boolean(0.1)", "true"},
  {Kind::boolean, "boolean('')", "false"},
  {Kind::boolean, "boolean('false')", "true"},
  {Kind::boolean, "boolean(//a)", "true"},
  {Kind::boolean, "boolean(//nothing)", "false"},
  {Kind::boolean, "not(true())", "false"},
  {Kind::boolean, "not(//nothing)", "true"},
  {Kind::boolean, "true()", "true"},
  {Kind::boolean, "false()", "false"},
  {Kind::nodes, "//*[lang('en')]", "c#D d#E"},
  {Kind::nodes, "//*[lang('EN-us')]", "c#D d#E"},
  {Kind::nodes, "//*[lang('e')]", ""},
  {Kind::nodes, "//*[lang('en-US-x')]", ""},
  {Kind::nodes, "//@*[lang('en')][name()='kind']", "kind=x"},
  {Kind::nodes, "//*[lang('')]", ""},
  {Kind::number, "number(' -12.5 ')", "-12.5"},
  {Kind::number, "number('1 ')", "1"},
  {Kind::number, "number(' 1')", "1"},
  {Kind::number, "number('1\t')", "1"},
  {Kind::number, "number('1\n\r ')", "1"},
  {Kind::number, "number('.5')", "0.5"},
  {Kind::number, "number('5.')", "5"},
  {Kind::number, "number('\t\r\n7\n')", "7"},
  {Kind::number, "number('0.1000000000000000055511151231257827021181583404541015625')", "0.1"},
  {Kind::boolean, "number('9007199254740993') = 9007199254740992", "true"},
  {Kind::number, "number(true())", "1"},
  {Kind::number, "number(false())", "0"},
  {Kind::number, "number(//b)", "2.5"},
  {Kind::number, "number(//nothing)", "NaN"},
  {Kind::nodes, "//*[number()=2.5]", "b#B"},
  {Kind::number, "sum(//a|//b[1])", "3.5"},
  {Kind::number, "sum(//b)", "NaN"},
  {Kind::number, "sum(//nothing)", "0"},
  {Kind::number, "floor(2.6)", "2"},
  {Kind::number, "floor(-2.5)", "-3"},
  {Kind::number, "floor('x')", "NaN"},
  {Kind::number, "ceiling(2.2)", "3"},
  {Kind::number, "ceiling(-2.5)", "-2"},
  {Kind::number, "1 div ceiling(-0.5)", "-Infinity"},
  {Kind::number, "round(2.5)", "3"},
  {Kind::number, "round(-2.5)", "-2"},
  {Kind::number, "round(2.4)", "2"},
  {Kind::number, "round(-0.2)", "0"},
  {Kind::number, "1 div round(-0.2)", "-Infinity"},
  {Kind::number, "1 div round(-0.5)", "-Infinity"},
  {Kind::number, "round(0 div 0)", "NaN"},
  {Kind::number, "round(-1 div 0)", "-Infinity"},
  {Kind::number, "round(0.49999999999999994)", "0"},
  {Kind::number, "round(4503599627370497)", "4503599627370497"},
};

char const document_1[] = "<r xml:lang='de'><a xml:lang=''><b/></a><c/></r>";

Question const questions_1[] = {
  {Kind::nodes, "//*[lang('de')]", "r c"},
  {Kind::nodes, "//*[lang('')]", "a b"},
};

char const document_2[] = "<r><a>1</a><a>2</a><b>2</b><b>3</b><c>x</c><c>x</c><d/></r>";

Question const questions_2[] = {
  {Kind::boolean, "false() or true()", "true"},
  {Kind::boolean, "false() or 0 or ''", "false"},
  {Kind::boolean, "//nothing or //a", "true"},
  {Kind::boolean, "true() and 'x' and 1", "true"},
  {Kind::boolean, "true() and //nothing", "false"},
  {Kind::boolean, "true() or true() and false()", "true"},
  {Kind::boolean, "1 = '1.0'", "true"},
  {Kind::boolean, "'1' = '1.0'", "false"},
  {Kind::boolean, "true() = 'x'", "true"},
  {Kind::boolean, "true() = 2", "true"},
  {Kind::boolean, "0 div 0 = 0 div 0", "false"},
  {Kind::boolean, "0 = -0", "true"},
  {Kind::boolean, "//a = 1", "true"},
  {Kind::boolean, "//a != 1", "true"},
  {Kind::boolean, "//c != 'x'", "false"},
  {Kind::boolean, "//nothing = 1", "false"},
  {Kind::boolean, "//nothing != 1", "false"},
  {Kind::boolean, "0 div 0 != 0 div 0", "true"},
  {Kind::boolean, "//a = //b", "true"},
  {Kind::boolean, "//a = //c", "false"},
  {Kind::boolean, "//a != //b", "true"},
  {Kind::boolean, "//c != //c", "false"},
  {Kind::boolean, "//nothing = //nothing", "false"},
  {Kind::boolean, "//a < //b", "true"},
  {Kind::boolean, "//b < //a", "false"},
  {Kind::boolean, "//b <= //a", "true"},
  {Kind::boolean, "//a >= //b", "true"},
  {Kind::boolean, "//a > //b", "false"},
  {Kind::boolean, "//a < //c", "false"},
  {Kind::boolean, "//d = true()", "true"},
  {Kind::boolean, "//nothing = false()", "true"},
  {Kind::boolean, "false() < //d", "true"},
  {Kind::boolean, "//nothing >= true()", "false"},
  {Kind::boolean, "//c = 'x'", "true"},
  {Kind::boolean, "'x' = //c", "true"},
  {Kind::boolean, "3 <= //b", "true"},
  {Kind::boolean, "3 < //b", "false"},
  {Kind::boolean, "//b > '2'", "true"},
  {Kind::boolean, "//c > 0", "false"},
  {Kind::boolean, "'10' > '9'", "true"},
  {Kind::boolean, "'a' < 'b'", "false"},
  {Kind::boolean, "1 <= 1", "true"},
  {Kind::boolean, "1 >= 2", "false"},
  {Kind::boolean, "true() > false()", "true"},
  {Kind::boolean, "3 > 2 > 1", "false"},
  {Kind::boolean, "1 = 1 = 1", "true"},
  {Kind::boolean, "2 = 2 = 2", "true"},
  {Kind::boolean, "2 = 2 != 3", "false"},
  {Kind::boolean, "1 < 2 = true()", "true"},
  {Kind::number, "//b[2] -1", "2"},
  {Kind::number, "//a[2] * 3", "6"},
  {Kind::number, "-//b|//c", "-2"},
  {Kind::nodes, "//b|//a", "a a b b"},
  {Kind::nodes, "//a | //a | /r", "r a a"},
  {Kind::nodes, "(//b|//a)[2]", "a"},
  {Kind::boolean, "2 < 3 < 2", "true"},
  {Kind::boolean, "3 > 2 > '0.5'", "true"},
  {Kind::boolean, "2 > 1 = d", "true"},
  {Kind::boolean, "1 > 2 < d", "true"},
  {Kind::boolean, "3 > 2 >= 1.5", "false"},
  {Kind::boolean, "true() > '0.5'", "true"},
  {Kind::boolean, "true() > 0.5", "true"},
  {Kind::boolean, "true() < 2", "true"},
  {Kind::boolean, "2 > true()", "true"},
  {Kind::boolean, "false() < 0.5", "true"},
  {Kind::boolean, "'0.5' < true()", "true"},
  {Kind::boolean, "true() >= 1.5", "false"},
  {Kind::boolean, "d >= false()", "true"},
  {Kind::number, "count(*) * count(../*)", "7"},
  {Kind::nodes, "a", "a a"},
  {Kind::nodes, "a|d|b", "a a b b d"},
  {Kind::nodes, "a[2]|a[1]", "a a"},
  {Kind::nodes, "*[. = 2]", "a b"},
  {Kind::nodes, "*[string() = '2']", "a b"},
  {Kind::nodes, "*[string() = 'x'][2]", "c"},
  {Kind::nodes, "*[number() > 2]", "b"},
  {Kind::nodes, "*[string-length() = 0]", "d"},
  {Kind::nodes, "*[normalize-space() = '3']", "b"},
  {Kind::nodes, "*[local-name() = 'd']", "d"},
  {Kind::nodes, "*[name() = name(../*[7])]", "d"},
  {Kind::nodes, "*[namespace-uri() = ''][7]", "d"},
  {Kind::nodes, "self::r[*[string() = '3']]/b[concat(string(), name()) = '3b']", "b"},
  {Kind::string, "string(*[string() = 'x'])", "x"},
  {Kind::boolean, "string() = '1223xx'", "true"},
  {Kind::nodes, "*[. > 1]", "a b b"},
  {Kind::nodes, "*[position() > 1 and position() < 4]", "a b"},
  {Kind::nodes, "*[last()]", "d"},
  {Kind::nodes, "*[last() - 1]", "c"},
  {Kind::nodes, "(a | b)[last()]", "b"},
  {Kind::nodes, "a[. = ../b]", "a"},
  {Kind::nodes, "a[. != ../b]", "a a"},
  {Kind::nodes, "b[. < ../a]", ""},
  {Kind::nodes, "*[not(text())]", "d"},
  {Kind::string, "string()", "1223xx"},
  {Kind::string, "name()", "r"},
  {Kind::string, "local-name()", "r"},
  {Kind::number, "sum(a)", "3"},
  {Kind::number, "sum(a | b)", "8"},
  {Kind::number, "sum(*)", "NaN"},
  {Kind::boolean, "a < 2 and b > 2", "true"},
  {Kind::boolean, "a > 2 or b < 2", "false"},
  {Kind::boolean, "d < 1", "false"},
  {Kind::number, "count(a[. = 1]) + count(b[. = 2]) * 2", "3"},
  {Kind::boolean, "boolean(a) and not(e)", "true"},
  {Kind::boolean, "a = 2", "true"},
  {Kind::boolean, "2 = a", "true"},
  {Kind::boolean, "3 = a", "false"},
  {Kind::boolean, "2 < b", "true"},
  {Kind::boolean, "3 < b", "false"},
  {Kind::boolean, "2 > a", "true"},
  {Kind::boolean, "1 > a", "false"},
  {Kind::boolean, "1 >= a", "true"},
  {Kind::boolean, "3 <= b", "true"},
  {Kind::boolean, "a <= 1", "true"},
  {Kind::boolean, "a <= 0", "false"},
  {Kind::boolean, "b >= 3", "true"},
  {Kind::boolean, "b >= 4", "false"},
  {Kind::boolean, "'x' != c", "false"},
  {Kind::boolean, "'y' != c", "true"},
  {Kind::boolean, "e = ''", "false"},
  {Kind::boolean, "e = e", "false"},
  {Kind::boolean, "not(e) = true()", "true"},
  {Kind::boolean, "a = true()", "true"},
  {Kind::boolean, "true() = a", "true"},
  {Kind::boolean, "e != true()", "true"},
  {Kind::boolean, "true() != e", "true"},
  {Kind::boolean, "a != true()", "false"},
  {Kind::boolean, "e < true()", "true"},
  {Kind::boolean, "true() > e", "true"},
  {Kind::boolean, "a < true()", "false"},
  {Kind::boolean, "d = ''", "true"},
  {Kind::boolean, "1 = true()", "true"},
  {Kind::boolean, "'' = false()", "true"},
  {Kind::boolean, "2 = '2'", "true"},
  {Kind::boolean, "'a' != 'b'", "true"},
  {Kind::boolean, "1 != 1", "false"},
  {Kind::boolean, "'1' < 2", "true"},
};

char const document_3[] = "<r/>";

Question const questions_3[] = {
  {Kind::number, "1 + '2' + true()", "4"},
  {Kind::number, "10 - 4 - 3", "3"},
  {Kind::number, "7 div 2", "3.5"},
  {Kind::number, "1 div -0", "-Infinity"},
  {Kind::number, "0 div 0", "NaN"},
  {Kind::number, "5 mod 2", "1"},
  {Kind::number, "5 mod -2", "1"},
  {Kind::number, "-5 mod 2", "-1"},
  {Kind::number, "1.5 mod 0.5", "0"},
  {Kind::number, "5 mod 0", "NaN"},
  {Kind::number, "5 mod (1 div 0)", "5"},
  {Kind::number, "-1", "-1"},
  {Kind::number, "---1", "-1"},
  {Kind::number, "--'1'", "1"},
  {Kind::number, "-true()", "-1"},
  {Kind::number, "2 --1", "3"},
  {Kind::number, "1 + 2 * 3 - 4 div 2", "5"},
  {Kind::number, "(1 + 2) * 3", "9"},
  {Kind::number, " count \t ( \n //x\r) ", "0"},
  {Kind::string, "\"it's\"", "it's"},
  {Kind::string, "'\"'", "\""},
  {Kind::string, "''", ""},
  {Kind::number, "1.50", "1.5"},
  {Kind::number, ".5", "0.5"},
  {Kind::number, "5.", "5"},
  {Kind::number, "1.+.5", "1.5"},
  {Kind::nodes, "//xml:*|//@xml:*", ""},
  {Kind::number, "1 - 1", "0"},
  {Kind::number, "2 - -1", "3"},
  {Kind::number, "2 * 3 div 4", "1.5"},
  {Kind::number, "7 mod 4 * 2", "6"},
  {Kind::number, "-7 mod 4", "-3"},
  {Kind::number, "7 mod -4", "3"},
  {Kind::number, "1 + 2 - 3 + 4", "4"},
  {Kind::number, "- - 2", "2"},
  {Kind::number, "-(2 + 3)", "-5"},
  {Kind::boolean, "1 div 3 < 0.34", "true"},
  {Kind::string, "string(1.0)", "1"},
  {Kind::string, "string(-1.5)", "-1.5"},
  {Kind::string, "string(.25)", "0.25"},
  {Kind::string, "string(1000000)", "1000000"},
  {Kind::string, "string(0.001)", "0.001"},
  {Kind::string, "string(123456789.5)", "123456789.5"},
  {Kind::string, "string(100 * 100)", "10000"},
  {Kind::string, "string(1 > 0)", "true"},
  {Kind::boolean, "1 or 0", "true"},
  {Kind::boolean, "0 or 0", "false"},
  {Kind::boolean, "1 and 0", "false"},
  {Kind::boolean, "1 and 1", "true"},
  {Kind::boolean, "0 or 1 and 0", "false"},
  {Kind::boolean, "true() != false()", "true"},
  {Kind::boolean, "not(false() or true())", "false"},
};

char const document_4[] = "<!--before--><a id='1'><b id='2'><c id='3'/></b>one<d id='4' x='7' y='8'><e id='5'><f "
                          "id='6'/></e>two<!--in--></d><?go on?><g id='7'><h id='8'/></g></a>";

Question const questions_4[] = {
  {Kind::nodes, "//d/ancestor::node()", "#document a#1"},
  {Kind::nodes, "//f/ancestor::*", "a#1 d#4 e#5"},
  {Kind::nodes, "//d/ancestor-or-self::*", "a#1 d#4"},
  {Kind::nodes, "//d/attribute::x", "x=7"},
  {Kind::nodes, "//d/attribute::text()", ""},
  {Kind::nodes, "//d/child::node()", "e#5 #text=two #comment=in"},
  {Kind::nodes, "//d/child::*", "e#5"},
  {Kind::nodes, "//d/descendant::node()", "e#5 f#6 #text=two #comment=in"},
  {Kind::nodes, "//d/descendant-or-self::*", "d#4 e#5 f#6"},
  {Kind::nodes, "//@x/descendant-or-self::node()", "x=7"},
  {Kind::nodes, "//d/following::node()", "go=on g#7 h#8"},
  {Kind::nodes, "//c/following::*", "d#4 e#5 f#6 g#7 h#8"},
  {Kind::nodes, "//d/@x/following::*", "e#5 f#6 g#7 h#8"},
  {Kind::nodes, "//d/following-sibling::node()", "go=on g#7"},
  {Kind::nodes, "//d/@x/following-sibling::node()", ""},
  {Kind::nodes, "//d/parent::node()", "a#1"},
  {Kind::nodes, "//d/parent::b", ""},
  {Kind::nodes, "//d/@x/parent::node()", "d#4"},
  {Kind::nodes, "/parent::node()", ""},
  {Kind::nodes, "//f/parent::*|//h/parent::*|//c/parent::*", "b#2 e#5 g#7"},
  {Kind::nodes, "//d/preceding::node()", "#comment=before b#2 c#3 #text=one"},
  {Kind::nodes, "//g/preceding::*", "b#2 c#3 d#4 e#5 f#6"},
  {Kind::nodes, "//d/@x/preceding::*", "b#2 c#3"},
  {Kind::nodes, "//d/preceding-sibling::node()", "b#2 #text=one"},
  {Kind::nodes, "//d/self::d", "d#4"},
  {Kind::nodes, "//d/self::a", ""},
  {Kind::nodes, "//d/@x/self::node()", "x=7"},
  {Kind::nodes, "//d/@x/self::*", ""},
  {Kind::nodes, "//f/ancestor::*[1]", "e#5"},
  {Kind::nodes, "//f/ancestor-or-self::*[2]", "e#5"},
  {Kind::nodes, "//g/preceding::*[1]", "f#6"},
  {Kind::nodes, "//g/preceding-sibling::*[1]", "d#4"},
  {Kind::nodes, "//g/preceding-sibling::*[last()]", "b#2"},
  {Kind::nodes, "(//f/ancestor::*)[1]", "a#1"},
  {Kind::nodes, "(//g/preceding::*)[1]", "b#2"},
  {Kind::nodes, "//*/ancestor::*", "a#1 b#2 d#4 e#5 g#7"},
  {Kind::nodes, "//*/following::*", "d#4 e#5 f#6 g#7 h#8"},
  {Kind::nodes, "//*/preceding::*", "b#2 c#3 d#4 e#5 f#6"},
  {Kind::nodes, "//*/following-sibling::*", "d#4 g#7"},
  {Kind::nodes, "//*/preceding-sibling::*", "b#2 d#4"},
  {Kind::nodes, "//*/..", "#document a#1 b#2 d#4 e#5 g#7"},
  {Kind::nodes, "//*/descendant::*", "b#2 c#3 d#4 e#5 f#6 g#7 h#8"},
  {Kind::nodes, "//*/*", "b#2 c#3 d#4 e#5 f#6 g#7 h#8"},
  {Kind::nodes, "//*/preceding-sibling::*[1]", "b#2 d#4"},
  {Kind::nodes, "//self::f", "f#6"},
  {Kind::nodes, "//self::*[@id > 5][1]", "f#6 g#7 h#8"},
  {Kind::nodes, "//descendant-or-self::f[1]", "f#6"},
  {Kind::nodes, "//*/self::c", "c#3"},
  {Kind::nodes, "//@x/..", "d#4"},
  {Kind::nodes, "//f/following::*[1]", "g#7"},
  {Kind::nodes, "//*[last()]", "a#1 c#3 e#5 f#6 g#7 h#8"},
  {Kind::nodes, "//*[following::g]/@id", "id=2 id=3 id=4 id=5 id=6"},
  {Kind::nodes, "//*[preceding::b]/@id", "id=4 id=5 id=6 id=7 id=8"},
  {Kind::nodes, "//*[ancestor::d]/@id", "id=5 id=6"},
  {Kind::nodes, "//*[ancestor-or-self::d]/@id", "id=4 id=5 id=6"},
  {Kind::nodes, "//*[following-sibling::*]/@id", "id=2 id=4"},
  {Kind::nodes, "//*[preceding-sibling::b]/@id", "id=4 id=7"},
  {Kind::nodes, "//*[descendant::f]/@id", "id=1 id=4 id=5"},
  {Kind::nodes, "//*[descendant-or-self::f]/@id", "id=1 id=4 id=5 id=6"},
  {Kind::nodes, "//*[@x]/@id", "id=4"},
  {Kind::nodes, "//*[parent::a]/@id", "id=2 id=4 id=7"},
  {Kind::nodes, "//*[self::d]/@id", "id=4"},
  {Kind::nodes, "//*[preceding::comment()]/@id", "id=1 id=2 id=3 id=4 id=5 id=6 id=7 id=8"},
  {Kind::nodes, "//*[following::processing-instruction()]/@id", "id=2 id=3 id=4 id=5 id=6"},
  {Kind::boolean, "boolean(//h/preceding::e)", "true"},
  {Kind::boolean, "boolean(//c/preceding::e)", "false"},
  {Kind::number, "count((//d/@x | //d)/descendant::*)", "2"},
  {Kind::nodes, "(//d/@x | //d)/descendant-or-self::node()[not(self::text())]", "d#4 x=7 e#5 f#6 #comment=in"},
  {Kind::nodes, "(//d/@x | //b)/following::*[1]", "d#4 e#5"},
  {Kind::nodes, "(//d/@x | //g)/ancestor::*", "a#1 d#4"},
  {Kind::nodes, "(//g | //b | //d)[2]", "d#4"},
  {Kind::nodes, "(//g | //b | //d)/*", "c#3 e#5 h#8"},
  {Kind::nodes, "//e/preceding::node()[last()]", "#comment=before"},
  {Kind::nodes, "//f/preceding::node()", "#comment=before b#2 c#3 #text=one"},
  {Kind::nodes, "//h/preceding::*[2]", "e#5"},
  {Kind::nodes, "//c/following::node()[1]", "#text=one"},
  {Kind::nodes, "//d/preceding-sibling::node()[1]", "#text=one"},
  {Kind::nodes, "b/following-sibling::*[1]", "d#4"},
  {Kind::nodes, "g/preceding-sibling::*[2]", "b#2"},
  {Kind::nodes, "//e/ancestor-or-self::*[2]", "d#4"},
  {Kind::nodes, "descendant::*[3]", "d#4"},
  {Kind::nodes, "descendant-or-self::*[3]", "c#3"},
  {Kind::nodes, "preceding::node()", "#comment=before"},
  {Kind::nodes, "preceding-sibling::node()", "#comment=before"},
  {Kind::nodes, "following::node()", ""},
  {Kind::nodes, "//@x/ancestor::*", "a#1 d#4"},
  {Kind::nodes, "//@x/ancestor::*[1]", "d#4"},
  {Kind::nodes, "//@x/ancestor::*[2]", "a#1"},
  {Kind::nodes, "//@x/ancestor::node()[last()]", "#document"},
  {Kind::nodes, "//@x/ancestor-or-self::node()[2]", "d#4"},
  {Kind::nodes, "//@y/preceding-sibling::node()", ""},
  {Kind::nodes, "//@x/child::node()", ""},
  {Kind::nodes, "//@x/following::node()[2]", "f#6"},
};

char const document_5[] = "<r id='1' xmlns:p='urn:p'><a id='2'><b id='3'/><b id='4'>t</b><c id='5'/></a><a id='6'><b "
                          "id='7'/></a><p:a id='8' p:k='v'/><!--note--><?pi one?><?go two?>text</r>";

Question const questions_5[] = {
  {Kind::nodes, "/", "#document"},
  {Kind::nodes, "/r", "r#1"},
  {Kind::nodes, "/*/a", "a#2 a#6"},
  {Kind::nodes, "//b", "b#3 b#4 b#7"},
  {Kind::nodes, "/r//b", "b#3 b#4 b#7"},
  {Kind::nodes, "//a//b", "b#3 b#4 b#7"},
  {Kind::nodes, "//@p:k", "p:k=v"},
  {Kind::nodes, "//r", "r#1"},
  {Kind::nodes, "//b[1]", "b#3 b#7"},
  {Kind::nodes, "/descendant::b[1]", "b#3"},
  {Kind::nodes, "//b[last()]", "b#4 b#7"},
  {Kind::nodes, "//b[position()=2]", "b#4"},
  {Kind::nodes, ".", "r#1"},
  {Kind::nodes, ".//c", "c#5"},
  {Kind::nodes, "//a/./b/.", "b#3 b#4 b#7"},
  {Kind::nodes, "//b[.='t']", "b#4"},
  {Kind::nodes, "//c/..", "a#2"},
  {Kind::nodes, "//c/../../@id", "id=1"},
  {Kind::nodes, "//c/@id", "id=5"},
  {Kind::nodes, "//a[@id=6]", "a#6"},
  {Kind::nodes, "/r/node()", "a#2 a#6 p:a#8 #comment=note pi=one go=two #text=text"},
  {Kind::nodes, "//text()", "#text=t #text=text"},
  {Kind::nodes, "//comment()", "#comment=note"},
  {Kind::nodes, "//processing-instruction()", "pi=one go=two"},
  {Kind::nodes, "//processing-instruction('go')", "go=two"},
  {Kind::nodes, "//node()[not(self::*)]", "#text=t #comment=note pi=one go=two #text=text"},
  {Kind::nodes, "//p:a", "p:a#8"},
  {Kind::nodes, "//p:*", "p:a#8"},
  {Kind::nodes, "//@p:*", "p:k=v"},
  {Kind::nodes, "//a", "a#2 a#6"},
  {Kind::nodes, "//@k", ""},
  {Kind::nodes, "//p:b", ""},
  {Kind::nodes, "/r/*[2][self::a]", "a#6"},
  {Kind::nodes, "/r/*[self::p:a][1]", "p:a#8"},
  {Kind::nodes, "/r/a[b][2]", "a#6"},
  {Kind::nodes, "/r/*[1.5]", ""},
  {Kind::nodes, "/r/*[0]", ""},
  {Kind::nodes, "/r/*['1']", "a#2 a#6 p:a#8"},
  {Kind::nodes, "/r/a[count(c) + 1]", ""},
  {Kind::nodes, "/r/a[3 - count(b)]", "a#2 a#6"},
  {Kind::nodes, "/r/a[4 - count(b)]", ""},
  {Kind::nodes, "(//b)[1]", "b#3"},
  {Kind::nodes, "(//b)[last()]", "b#7"},
  {Kind::nodes, "(//b)[position()>1][1]", "b#4"},
  {Kind::nodes, "(//b|//c)[3]/@id", "id=5"},
  {Kind::nodes, "(//a)//b[1]", "b#3 b#7"},
  {Kind::nodes, "((//a)[1]/b)[2]", "b#4"},
  {Kind::nodes, " / r / a [ @ id = 6 ] / child :: b ", "b#7"},
  {Kind::nodes, "//processing-instruction ( 'go' )", "go=two"},
  {Kind::string, "string(namespace::p)", "urn:p"},
  {Kind::string, "name(namespace::p)", "p"},
  {Kind::number, "count(namespace::*)", "2"},
  {Kind::number, "count(a[1]/namespace::*)", "2"},
  {Kind::nodes, "namespace::p/..", "r#1"},
  {Kind::string, "string(namespace::xml)", "http://www.w3.org/XML/1998/namespace"},
  {Kind::number, "count(namespace::q)", "0"},
  {Kind::nodes, "a/c", "c#5"},
  {Kind::nodes, "child::a/child::c", "c#5"},
  {Kind::nodes, "..", "#document"},
  {Kind::nodes, "../r/a[2]/b", "b#7"},
  {Kind::nodes, ".//b[2]", "b#4"},
  {Kind::nodes, "a//@id", "id=2 id=3 id=4 id=5 id=6 id=7"},
  {Kind::nodes, "*/*[1]", "b#3 b#7"},
  {Kind::nodes, "a[b[2]]", "a#2"},
  {Kind::nodes, "a[not(b[2])]", "a#6"},
  {Kind::nodes, "a[c]/b[. = 't']/@id", "id=4"},
  {Kind::nodes, "node()[5]", "pi=one"},
  {Kind::nodes, "processing-instruction('pi')", "pi=one"},
  {Kind::nodes, "processing-instruction('none')", ""},
  {Kind::nodes, "comment()/following-sibling::node()[1]", "pi=one"},
  {Kind::nodes, "text()", "#text=text"},
  {Kind::nodes, "text()/..", "r#1"},
  {Kind::nodes, "@id/..", "r#1"},
  {Kind::nodes, "@id/../a[1]", "a#2"},
  {Kind::nodes, "@none", ""},
  {Kind::nodes, "none/none", ""},
  {Kind::string, "string(a/@id)", "2"},
  {Kind::string, "string(@none)", ""},
  {Kind::string, "string(comment())", "note"},
  {Kind::string, "name(processing-instruction())", "pi"},
  {Kind::nodes, "//*[@id mod 2 = 0]", "a#2 b#4 a#6 p:a#8"},
  {Kind::nodes, "//*[@id > 3 and @id < 7]", "b#4 c#5 a#6"},
  {Kind::nodes, "//*[@id >= 7]", "b#7 p:a#8"},
  {Kind::nodes, "//a/b/.. | //c/..", "a#2 a#6"},
  {Kind::nodes, "//b/ancestor::a", "a#2 a#6"},
  {Kind::number, "count(//node())", "13"},
  {Kind::number, "count(//@*)", "9"},
  {Kind::number, "count(//*)", "8"},
};

char const document_6[] = "<r><div>6</div><mod>4</mod><and/><or/><text>x</text><div-mod/></r>";

Question const questions_6[] = {
  {Kind::nodes, "/r/div", "div"},
  {Kind::nodes, "//and[../or]", "and"},
  {Kind::nodes, "//div-mod", "div-mod"},
  {Kind::number, "div div mod", "1.5"},
  {Kind::number, "div mod mod", "2"},
  {Kind::boolean, "and and or or and", "true"},
  {Kind::nodes, "text[text()]", "text"},
  {Kind::number, "*[1]*mod", "24"},
  {Kind::nodes, "div-mod", "div-mod"},
  {Kind::number, "div - mod", "2"},
  {Kind::number, "div*mod+1", "25"},
  {Kind::nodes, "child::div", "div"},
  {Kind::nodes, "descendant::div", "div"},
  {Kind::nodes, "self::r", "r"},
  {Kind::nodes, "self::div", ""},
};

char const document_7[] = "<r><\xC3\xA4.b-c_1/><\xD1\x84/></r>";

Question const questions_7[] = {
  {Kind::nodes, "//\xC3\xA4.b-c_1", "\xC3\xA4.b-c_1"},
  {Kind::nodes, "/r/\xD1\x84", "\xD1\x84"},
};

char const document_18[] = "<r><a-b/><a/><b>1</b><a.b/><a_b/><a-b.c/><div-/><a--b x-y='1'/></r>";

// Names with what is an operator elsewhere.
Question const questions_18[] = {
  {Kind::nodes, "//a-b", "a-b"},
  {Kind::nodes, "a-b", "a-b"},
  {Kind::nodes, "/r/a-b | //a", "a-b a"},
  {Kind::nodes, "//a.b", "a.b"},
  {Kind::nodes, "a_b", "a_b"},
  {Kind::nodes, "//a-b.c", "a-b.c"},
  {Kind::nodes, "//div-", "div-"},
  {Kind::nodes, "a--b", "a--b"},
  {Kind::nodes, "//*[@x-y]", "a--b"},
  {Kind::nodes, "*[@x-y=1]", "a--b"},
  {Kind::number, "2 -b", "1"},
  {Kind::number, "b -b", "0"},
  {Kind::number, "count(a)-b", "0"},
  {Kind::number, "count(//a-b)-1", "0"},
  {Kind::number, "count(a-b|a)", "2"},
};

char const document_19[] =
  "<!--before--><?one 1?><?two 2?><r><a>\xF0\x90\x90\xB7</a><b>x\xF0\x9D\x84\x9Ey</b><c>\xF0\x90\x90\xB7"
  "\xF0\x9D\x84\x9E</c><d>\xF0\x9F\x98\x80</d><e> \xF0\x9D\x84\x9E  x </e><!--in--><?two 3?></r><!--after--><?one 4?>";

// Functions without an argument, characters beyond U+FFFF, and what stands beside the root.
Question const questions_19[] = {
  {Kind::nodes, "*[string-length() = 1]", "a d"},
  {Kind::nodes, "*[string-length() = 2]", "c"},
  {Kind::nodes, "*[string-length() = 3]", "b"},
  {Kind::nodes, "*[string-length(normalize-space()) = 3]", "b e"},
  {Kind::nodes, "//*[name() = 'a' or local-name() = 'd']", "a d"},
  {Kind::nodes, "*[string() = '\xF0\x9F\x98\x80']", "d"},
  {Kind::nodes, "*[number() = number()]", ""},
  {Kind::nodes, "*[namespace-uri() != '']", ""},
  {Kind::string, "substring(b, 2, 1)", "\xF0\x9D\x84\x9E"},
  {Kind::string, "substring(b, 3)", "y"},
  {Kind::string, "substring(c, 2)", "\xF0\x9D\x84\x9E"},
  {Kind::string, "substring(c, 0, 2)", "\xF0\x90\x90\xB7"},
  {Kind::string, "translate(b, '\xF0\x9D\x84\x9E', 'z')", "xzy"},
  {Kind::string, "translate(b, 'xy', '\xF0\x9D\x84\x9E\xF0\x90\x90\xB7')",
    "\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E\xF0\x90\x90\xB7"},
  {Kind::string, "substring-before(b, '\xF0\x9D\x84\x9E')", "x"},
  {Kind::string, "substring-after(b, '\xF0\x9D\x84\x9E')", "y"},
  {Kind::boolean, "starts-with(a, '\xF0\x90\x90\xB7')", "true"},
  {Kind::boolean, "contains(c, '\xF0\x9D\x84\x9E')", "true"},
  {Kind::boolean, "contains(d, '\xF0\x9D\x84\x9E')", "false"},
  {Kind::number, "count(//comment())", "3"},
  {Kind::number, "count(/comment())", "2"},
  {Kind::number, "count(/r/comment())", "1"},
  {Kind::number, "count(//comment()[. = 'after'])", "1"},
  {Kind::number, "count(//processing-instruction())", "4"},
  {Kind::number, "count(//processing-instruction('two'))", "2"},
  {Kind::number, "count(/processing-instruction('one'))", "2"},
  {Kind::number, "count(/node())", "6"},
  {Kind::number, "count(preceding-sibling::node())", "3"},
  {Kind::number, "count(following::node())", "2"},
  {Kind::string, "string(//comment())", "before"},
  {Kind::string, "string(//comment()[last()])", "in"},
  {Kind::string, "string((//comment())[last()])", "after"},
};

char const document_8[] = "<r>one<![CDATA[<two>]]>three<!--c-->four</r>";

Question const questions_8[] = {
  {Kind::number, "count(//text())", "2"},
  {Kind::string, "string(//text())", "one<two>three"},
  {Kind::string, "string(//comment()/preceding-sibling::node())", "one<two>three"},
  {Kind::number, "count(//text()[1]/following-sibling::node())", "2"},
};

char const document_9[] = "<!DOCTYPE r [<!ELEMENT r ANY>]><r/>";

Question const questions_9[] = {
  {Kind::nodes, "/node()", "r"},
  {Kind::nodes, "/r/preceding::node()", ""},
};

char const document_10[] = "<r xmlns='urn:d' xmlns:p='urn:p' a='1'/>";

Question const questions_10[] = {
  {Kind::nodes, "//@*", "a=1"},
  {Kind::nodes, "//@xmlns", ""},
  {Kind::number, "count(//@node())", "1"},
};

char const document_11[] = "<r xmlns='urn:d' xmlns:p='urn:d' x='1'><a/><b xmlns=''><a id='1'/></b><p:a/></r>";

Question const questions_11[] = {
  {Kind::nodes, "//a", "a#1"},
  {Kind::nodes, "//p:a", "a p:a"},
  {Kind::nodes, "/p:r/@x", "x=1"},
};

char const document_12[] = "<r xmlns:p='urn:1'><x xmlns:p='urn:2'><y/></x><a xmlns='urn:2'/><b xmlns='urn:1'/></r>";

Question const questions_12[] = {
  {Kind::nodes, "//p:*", "b"},
};

char const document_13[] = "<r><a>1<b>2</b>3</a><c>1<d>2</d><!--x-->3</c></r>";

Question const questions_13[] = {
  {Kind::string, "string(a)", "123"},
  {Kind::nodes, "//a[. = '123']", "a"},
  {Kind::nodes, "//a[. = 123]", "a"},
  {Kind::number, "sum(a)", "123"},
  {Kind::boolean, "a = 123", "true"},
  {Kind::boolean, "a > 122", "true"},
  {Kind::boolean, "a = c", "true"},
  {Kind::boolean, "a != c", "false"},
  {Kind::nodes, "//*[. = ../c]", "a c"},
  {Kind::nodes, "//b[. = 2]", "b"},
  {Kind::number, "string-length(.)", "6"},
  {Kind::boolean, "c/node() = a", "false"},
  {Kind::number, "count(//text())", "6"},
  {Kind::nodes, "(a | c)[. = '123']", "a c"},
};

char const document_14[] = "<!DOCTYPE r [<!ATTLIST a key ID #IMPLIED><!ATTLIST b key ID #IMPLIED n CDATA 'ID'>]><r><a "
                           "key='one' id='A'>two</a><b key='two' id='B'/><b n='three' id='C'>one two</b></r>";

Question const questions_14[] = {
  {Kind::nodes, "id('two')", "b#B"},
  {Kind::nodes, "id(' two\tone  nothing ')", "a#A b#B"},
  {Kind::nodes, "id(a)", "b#B"},
  {Kind::nodes, "id(//b)", "a#A b#B"},
  {Kind::nodes, "id('three')", ""},
  {Kind::nodes, "id('A')", ""},
  {Kind::nodes, "id('one')/@key", "key=one"},
  {Kind::nodes, "id('two')/../a", "a#A"},
  {Kind::number, "count(id('one two one'))", "2"},
};

char const document_15[] =
  "<r xmlns:p='urn:p'><a xml:id='one' id='A'>1</a><b key='two' id='B'>2.5</b><b id='C'>three</b><c no='four' "
  "never='five' kind='x' id='D' xml:lang='en-US'><d id='E'>one two</d></c><p:e id='F' p:x='1'/><?go on?></r>";

Question const questions_15[] = {
  {Kind::nodes, "//c[lang('en')]", "c#D"},
  {Kind::boolean, "lang('en')", "false"},
  {Kind::nodes, "//d[lang('en-us')]", "d#E"},
  {Kind::nodes, "//d[lang('de')]", ""},
  {Kind::nodes, "//b[starts-with(., 'th')]", "b#C"},
  {Kind::nodes, "//b[contains(., '.')]", "b#B"},
  {Kind::nodes, "//*[string-length(@id) = 1 and string-length(.) = 7]", "c#D d#E"},
  {Kind::string, "translate(//d, 'o', '0')", "0ne tw0"},
  {Kind::string, "concat(//a, //b)", "12.5"},
  {Kind::string, "substring(//d, 5)", "two"},
  {Kind::string, "substring(//d, 2, 2)", "ne"},
  {Kind::number, "floor(//b)", "2"},
  {Kind::number, "ceiling(//b)", "3"},
  {Kind::number, "round(//b)", "3"},
  {Kind::number, "number(//b[2])", "NaN"},
  {Kind::string, "normalize-space(concat(' ', //d, '  x '))", "one two x"},
};

char const document_16[] =
  "<r a='\xC2\xA0 1'><t>\xF0\x9D\x84\x9E-\xF0\x90\x90\xB7-x</t><u>\xC2\xA0 y  z\xE2\x80\x83</u></r>";

// What is a number, a blank and a character, and what only looks like one.
Question const questions_16[] = {
  {Kind::number, "number('1e3')", "NaN"},
  {Kind::number, "number('1E3')", "NaN"},
  {Kind::number, "number('+1')", "NaN"},
  {Kind::number, "number('0x10')", "NaN"},
  {Kind::number, "number('1 2')", "NaN"},
  {Kind::number, "number('1,5')", "NaN"},
  {Kind::number, "number('1.2.3')", "NaN"},
  {Kind::number, "number('1..2')", "NaN"},
  {Kind::number, "number('')", "NaN"},
  {Kind::number, "number(' ')", "NaN"},
  {Kind::number, "number('-')", "NaN"},
  {Kind::number, "number('.')", "NaN"},
  {Kind::number, "number('-.')", "NaN"},
  {Kind::number, "number('--1')", "NaN"},
  {Kind::number, "number('- 1')", "NaN"},
  {Kind::number, "number('1-')", "NaN"},
  {Kind::number, "number('1a')", "NaN"},
  {Kind::number, "number('Infinity')", "NaN"},
  {Kind::number, "number('-Infinity')", "NaN"},
  {Kind::number, "number('inf')", "NaN"},
  {Kind::number, "number('nan')", "NaN"},
  {Kind::number, "number('\xD9\xA1')", "NaN"},
  {Kind::number, "number('1\xC2\xA0')", "NaN"},
  {Kind::number, "number(@a)", "NaN"},
  {Kind::number, "number('-.5')", "-0.5"},
  {Kind::number, "number('-5.')", "-5"},
  {Kind::number, "number('007')", "7"},
  {Kind::number, "number('00.50')", "0.5"},
  {Kind::number, "1 div number('-0')", "-Infinity"},
  {Kind::number, "1 div number('-0.0')", "-Infinity"},
  {Kind::boolean, "'1e3' = 1000", "false"},
  {Kind::boolean, "'0x1' = 1", "false"},
  {Kind::number, "string-length(string(1 div 3 div 1000000000000000000000))", "39"},
  {Kind::string, "string(0.000000000000000000001)", "0.000000000000000000001"},
  {Kind::string, "string(-0.0001)", "-0.0001"},
  {Kind::string, "string(4294967296)", "4294967296"},
  {Kind::string, "string(2147483648)", "2147483648"},
  {Kind::string, "string(9007199254740991)", "9007199254740991"},
  {Kind::string, "string(1.5 * 2)", "3"},
  {Kind::string, "string(0.1 * 3)", "0.30000000000000004"},
  {Kind::string, "string(-1 div 3)", "-0.3333333333333333"},
  {Kind::string, "string(2 div 3)", "0.6666666666666666"},
  {Kind::string, "string(1 mod 0)", "NaN"},
  {Kind::string, "concat(0 div 0, -1 div 0, -0)", "NaN-Infinity0"},
  {Kind::number, "0.1 mod 0.3", "0.1"},
  {Kind::number, "-0.5 mod 1", "-0.5"},
  {Kind::number, "1 div (-4 mod 2)", "-Infinity"},
  {Kind::number, "(1 div 0) mod 2", "NaN"},
  {Kind::number, "1 mod (-1 div 0)", "1"},
  {Kind::number, "(1 div 0) - (1 div 0)", "NaN"},
  {Kind::number, "(1 div 0) * 0", "NaN"},
  {Kind::number, "9007199254740993 - 9007199254740992", "0"},
  {Kind::number, "floor(-0.5)", "-1"},
  {Kind::number, "1 div floor(-0)", "-Infinity"},
  {Kind::number, "floor(1 div 0)", "Infinity"},
  {Kind::number, "ceiling(-1 div 0)", "-Infinity"},
  {Kind::number, "ceiling(0 div 0)", "NaN"},
  {Kind::number, "ceiling(0.000001)", "1"},
  {Kind::number, "round(0.5)", "1"},
  {Kind::number, "round(-0.5)", "0"},
  {Kind::number, "round(-1.5)", "-1"},
  {Kind::number, "round(-2.6)", "-3"},
  {Kind::number, "round(1 div 0)", "Infinity"},
  {Kind::number, "1 div round(-0)", "-Infinity"},
  {Kind::string, "normalize-space(u)", "\xC2\xA0 y z\xE2\x80\x83"},
  {Kind::string, "normalize-space('\xC2\x85  \xE3\x80\x80')", "\xC2\x85 \xE3\x80\x80"},
  {Kind::number, "string-length(normalize-space(@a))", "3"},
  {Kind::number, "string-length(t)", "5"},
  {Kind::string, "substring(t, 3, 2)", "\xF0\x90\x90\xB7-"},
  {Kind::string, "substring(t, 2)", "-\xF0\x90\x90\xB7-x"},
  {Kind::string, "substring(t, 1, 1)", "\xF0\x9D\x84\x9E"},
  {Kind::string, "substring(t, 5)", "x"},
  {Kind::string, "substring-before(t, '\xF0\x90\x90\xB7')", "\xF0\x9D\x84\x9E-"},
  {Kind::string, "substring-after(t, '\xF0\x9D\x84\x9E-')", "\xF0\x90\x90\xB7-x"},
  {Kind::string, "substring-before(t, '-')", "\xF0\x9D\x84\x9E"},
  {Kind::string, "substring-after(t, '-')", "\xF0\x90\x90\xB7-x"},
  {Kind::boolean, "starts-with(t, '\xF0\x9D\x84\x9E')", "true"},
  {Kind::boolean, "starts-with(t, '\xF0\x9D\x84\x9F')", "false"},
  {Kind::boolean, "contains(t, '\xF0\x90\x90\xB7-')", "true"},
  {Kind::boolean, "contains(t, '\xF0\x90\x90\xB8')", "false"},
  {Kind::string, "translate(t, '\xF0\x90\x90\xB7-', '+')", "\xF0\x9D\x84\x9E+x"},
  {Kind::string, "translate(t, 'x-\xF0\x9D\x84\x9E', '\xF0\x90\x90\xB7_')", "_\xF0\x90\x90\xB7_\xF0\x90\x90\xB7"},
  {Kind::string, "translate('abc', '', 'xyz')", "abc"},
  {Kind::string, "translate('', 'abc', 'xyz')", ""},
  {Kind::string, "translate('abcabc', 'cab', '')", ""},
  {Kind::string, "translate('aba', 'aba', 'xy')", "xyx"},
  {Kind::string, "substring-before('aXbXc', 'X')", "a"},
  {Kind::string, "substring-after('aXbXc', 'X')", "bXc"},
  {Kind::string, "substring-before('abc', 'abc')", ""},
  {Kind::string, "substring-after('abc', 'abc')", ""},
  {Kind::string, "substring-after('abc', 'c')", ""},
  {Kind::string, "substring-after('', '')", ""},
  {Kind::string, "substring('12345', 5)", "5"},
  {Kind::string, "substring('12345', 5, 9)", "5"},
  {Kind::string, "substring('12345', 1, 0)", ""},
  {Kind::string, "substring('12345', 2, -1)", ""},
  {Kind::string, "substring('12345', -1, 3)", "1"},
  {Kind::string, "substring('12345', 0.4)", "12345"},
  {Kind::string, "substring('12345', 0.5, 1)", "1"},
  {Kind::string, "substring('12345', 1.4, 1.1)", "1"},
  {Kind::string, "substring('12345', 2.5, 1.5)", "34"},
  {Kind::string, "substring('12345', 1 div 0)", ""},
  {Kind::string, "substring('12345', 2, 1 div 0)", "2345"},
  {Kind::string, "substring('12345', 1, -1 div 0)", ""},
  {Kind::string, "substring('12345', 2147483648)", ""},
  {Kind::string, "substring('12345', 2, 4294967297)", "2345"},
  {Kind::string, "substring('12345', '2', true())", "2"},
  {Kind::boolean, "contains('aab', 'ab')", "true"},
  {Kind::boolean, "contains('abc', '')", "true"},
  {Kind::boolean, "contains('', 'a')", "false"},
  {Kind::boolean, "starts-with('', '')", "true"},
  {Kind::boolean, "boolean('0')", "true"},
  {Kind::boolean, "boolean(' ')", "true"},
  {Kind::boolean, "boolean(-1)", "true"},
  {Kind::boolean, "boolean(1 div 0)", "true"},
  {Kind::boolean, "boolean(@a)", "true"},
  {Kind::boolean, "boolean(@b)", "false"},
  {Kind::boolean, "'true' = true()", "true"},
  {Kind::boolean, "'false' = true()", "true"},
  {Kind::boolean, "0 div 0 = true()", "false"},
  {Kind::boolean, "'a' = 'A'", "false"},
  {Kind::boolean, "'a ' = 'a'", "false"},
  {Kind::boolean, "1 div 0 = 1 div 0", "true"},
  {Kind::boolean, "-1 div 0 < 1 div 0", "true"},
  {Kind::boolean, "0 div 0 < 1", "false"},
  {Kind::boolean, "0 div 0 >= 0 div 0", "false"},
};

char const document_17[] =
  "<r><a n='1'><b>x</b><c>y</c></a><a n='2'><b>y</b><c>z</c><d/></a><a n='3'><b>z</b></a><e>x</e><e>y</e></r>";

// Conditions in conditions, with paths that begin at the document, at the context, and at what a function finds.
Question const questions_17[] = {
  {Kind::nodes, "a[b[. = //c]]/@n", "n=2 n=3"},
  {Kind::nodes, "a[b[. = //c[../d]]]/@n", "n=3"},
  {Kind::nodes, "a[b[. = //c[../d] or . = //e[position() = 1]]]/@n", "n=1 n=3"},
  {Kind::nodes, "a[b[. = //e[. = //c]]]/@n", "n=2"},
  {Kind::nodes, "a[b[. = //e[not(. = //c)]]]/@n", "n=1"},
  {Kind::nodes, "a[*[. = //e[. = //c[. = //b]]]]/@n", "n=1 n=2"},
  {Kind::nodes, "a[b[count(//c[. = current]) = 0]]/@n", "n=1 n=2 n=3"},
  {Kind::nodes, "a[*[count(//e[. = //c]) = 1][2]]/@n", "n=1 n=2"},
  {Kind::nodes, "a[*[//e[2] = .]]/@n", "n=1 n=2"},
  {Kind::nodes, "a[*[//e[last()] = .][//e[1] != .]]/@n", "n=1 n=2"},
  {Kind::nodes, "//*[*[*[. = /r/e[2]]]]", "r"},
  {Kind::nodes, "a[b[(//e | //c)[2] = .]]/@n", "n=3"},
  {Kind::nodes, "a[b[(//e | //c)[. = //b][1] = .]]/@n", "n=2"},
  {Kind::nodes, "a[sum(//a[d]/@n) = @n]/@n", "n=2"},
  {Kind::nodes, "a[@n = count(//a[b[. = //e]])]/@n", "n=2"},
  {Kind::nodes, "a[@n = count(//a[b[. = //e]]) + count(//a[b[. = //c[../d]]])]/@n", "n=3"},
  {Kind::nodes, "a[position() = count(//d) + 1][b]/@n", "n=2"},
  {Kind::nodes, "a[c][position() = last()]/@n", "n=2"},
  {Kind::nodes, "a[position() != last()][last()]/@n", "n=2"},
  {Kind::nodes, "a[*[position() = last()][self::d]]/@n", "n=2"},
  {Kind::nodes, "a[*[2][self::c]][2]/@n", "n=2"},
  {Kind::nodes, "a[string(b) = string(../e[2])]/@n", "n=2"},
  {Kind::nodes, "a[b = following-sibling::a/b]", ""},
  {Kind::nodes, "a[c = following-sibling::a/b]/@n", "n=1 n=2"},
  {Kind::nodes, "a[b = preceding-sibling::a[1]/c]/@n", "n=2 n=3"},
  {Kind::nodes, "a[preceding-sibling::a[c][1][@n = 2]]/@n", "n=3"},
  {Kind::nodes, "e[. = ../a[not(d)]/*][last()]", "e"},
};

// What is no expression, or has a type that it cannot have where it stands.
char const* const wrong_expressions[] = {
  "",
  "  ",
  "//",
  "a///b",
  "1 +",
  "a b",
  "a 'b'",
  "a/kin::b",
  "a[foo()]",
  "1 + $x",
  "contains('a')",
  "not()",
  "concat('a')",
  "substring('a',1,2,3)",
  "count( 1 )",
  "sum('1')",
  "a | 1",
  "'a'|b",
  "1[2]",
  ".[1]",
  "..[1]",
  "(a",
  "a)",
  "a[1",
  "a[]",
  "count(a",
  "a = 'b",
  "a # b",
  "a ! b",
  "p:",
  "@",
  "text('a')",
  "1.2.3",
  "a/q:b",
  "child::",
  "a[@q:*]",
  "*[",
  "a/",
  "/a/",
  "a or",
  "a ==b",
  "a &lt b",
  "--",
  "last(1)",
  "position(1)",
  "count()",
  "count(a, b)",
  "count('a')",
  "count(true())",
  "id()",
  "id('a', 'b')",
  "local-name(a, b)",
  "local-name('a')",
  "namespace-uri(a, b)",
  "namespace-uri(1)",
  "name(a, b)",
  "name('a')",
  "string(1, 2)",
  "concat()",
  "starts-with('a')",
  "starts-with('a', 'b', 'c')",
  "contains('a', 'b', 'c')",
  "substring-before('a')",
  "substring-before('a', 'b', 'c')",
  "substring-after('a')",
  "substring-after('a', 'b', 'c')",
  "substring('a')",
  "string-length('a', 'b')",
  "normalize-space('a', 'b')",
  "translate('a', 'b')",
  "translate('a', 'b', 'c', 'd')",
  "boolean()",
  "boolean(1, 2)",
  "not(1, 2)",
  "true(1)",
  "false(1)",
  "lang()",
  "lang('a', 'b')",
  "number(1, 2)",
  "sum()",
  "sum(a, b)",
  "sum(1)",
  "sum(true())",
  "floor()",
  "floor(1, 2)",
  "ceiling()",
  "ceiling(1, 2)",
  "round()",
  "round(1, 2)",
  "1 | a",
  "a | 'b'",
  "a | true()",
  "count(1 | a)",
  "'a'/b",
  "1/a",
  "true()/a",
  "concat('a', 'b')/c",
  "'a'//b",
  "(1)[1]",
  "'a'[1]",
  "true()[1]",
  "string(a)[1]",
  "sum('a')",
  "count(a,)",
  "concat('a',,'b')",
  "concat(,'a')",
  "count a",
  "a]",
  "a[1]]",
  "((a)",
  "()",
  "a, b",
  "$x",
  "a/$x",
  "a[$x = 1]",
  "a//",
  "//a//",
  "a/[1]",
  "/[1]",
  "a/'b'",
  "a/1",
  "a/(b)",
  "@@a",
  "@(a)",
  "a/@",
  "..a",
  ".a",
  "...",
  "*a",
  "a*",
  "**",
  "a**b",
  "a:b:c",
  "a:",
  ":a",
  "*:a",
  "a: b",
  "a :b",
  "child:a",
  "child::child::a",
  "none::a",
  "Child::a",
  "::a",
  "attribute:a",
  "@child::a",
  "node(1)",
  "comment('a')",
  "text(1)",
  "processing-instruction(a)",
  "processing-instruction(1)",
  "processing-instruction('a', 'b')",
  "a=",
  "=a",
  "a==b",
  "a=!b",
  "a!b",
  "a<>b",
  "a=>b",
  "a && b",
  "a || b",
  "a % b",
  "a ? b",
  "a & b",
  "a ; b",
  "a ^ b",
  "a ~ b",
  "{a}",
  "a\\b",
  "1a",
  "1 2",
  "1e3",
  "0x1",
  "1..2",
  ". .",
  "'a",
  "\"a",
  "'a'b'",
  "'a' 'b'",
  "a div",
  "div a b",
  "1 div",
  "mod 2 1",
  "1 mod",
  "or or",
  "a and",
  "a or or b",
  "- ",
  "+1",
  "1 + + 2",
  "* 2 3",
  "not a",
  "a\xC2\xA0= b",
  "\xC2\xA0",
  "a[\x01]",
  "unknown()",
  "p:count(a)",
  "Count(a)",
  "COUNT(a)",
  "current()",
  "document('a')",
  "ends-with('a', 'a')",
  "matches('a', 'a')",
  "if (a) then b else b",
  "for $i in a return b",
  "a except b",
  "a intersect b",
  "a to b",
  "a eq b",
  "a is b",
  "a << b",
  "//*:a",
};

std::string label_of(Node const& node)
{
  std::string label = name_of(node).to_utf8().c_str();
  auto const element = std::dynamic_pointer_cast<axmElement>(node);
  if (element != nullptr && element->hasAttribute(APSTRING("id")))
    label += std::string("#") + element->getAttribute(APSTRING("id")).to_utf8().c_str();
  std::string const value = value_of(node).to_utf8().c_str();
  return value.empty() ? label : label + "=" + value;
}

std::string labels_in(std::shared_ptr<axmNodeList> const& list)
{
  std::string labels;
  for (int index = 0; index < length_of(list) && index < 1000; ++index)
    labels += (index > 0 ? " " : "") + label_of(item_of(list, index));
  return labels;
}

// The nodes that the expression selects, and what is not so in other forms of it.
std::string nodes_of(axmElement& root, std::string const& expression)
{
  apString const path(expression.c_str());
  auto const list = root.selectNodes(path);
  auto const single = root.selectSingleNode(path);
  std::string const first = label_of(single);
  std::string const labels = labels_in(list);
  bool const agree =
    (single != nullptr) == (length_of(list) > 0) && (single == nullptr || same(single, item_of(list, 0)));
  if (!agree)
    return labels + ", but " + first + " as the single node";
  std::string const whole = "(" + expression + ")";
  for (std::string const& other : {whole, " \t" + whole + "\r\n", whole + "|" + whole, "/..|" + expression})
    if (labels_in(root.selectNodes(apString(other.c_str()))) != labels)
      return labels + ", but not for " + other;
  Node const nearest = root.selectSingleNode(apString((whole + "[1]").c_str()));
  return label_of(nearest) == first ? labels : labels + ", but not the first one for " + whole + "[1]";
}

// What holds if the expression, which selects no nodes, is what is promised.
std::string condition_of(Question const& question)
{
  std::string const expression = question.expression;
  std::string const promised = question.answer;
  if (question.kind == Kind::boolean)
    return expression;
  if (question.kind == Kind::string)
  {
    char const* const quote = promised.find('"') == std::string::npos ? "\"" : "'";
    return "concat(" + expression + ", '|') = " + quote + promised + "|" + quote;
  }
  if (promised == "NaN")
    return "string(" + expression + ") = 'NaN'";
  std::string const infinity = promised == "-Infinity" ? "-1 div 0" : "1 div 0";
  bool const is_infinite = promised.find("Infinity") != std::string::npos;
  return "(" + expression + ") = " + (is_infinite ? infinity : promised);
}

std::string answer_to(axmElement& root, Question const& question)
{
  if (question.kind == Kind::nodes)
    return nodes_of(root, question.expression);
  std::string const condition = condition_of(question);
  auto const is_found = [&root](std::string const& text)
  { return length_of(root.selectNodes(apString(text.c_str()))) == 1; };
  bool const holds = is_found("self::node()[" + condition + "]");
  for (std::string const& other : {"self::node()[not(not(" + condition + "))]",
         "self::node()[false() or (" + condition + ")]", "self::node()[self::node()[" + condition + "]]"})
    if (is_found(other) != holds)
      return "something else for " + other;
  if (question.kind == Kind::boolean)
    return holds ? "true" : "false";
  return holds ? question.answer : "something else";
}

template <std::size_t Count>
bool are_answered(
  utUnitTest& tester, axmDocumentFactory const& factory, char const* document, Question const (&questions)[Count])
{
  auto const root = load_root(factory, document);
  if (root == nullptr)
    return false;
  bool are_right = true;
  for (Question const& question : questions)
  {
    std::string const answer = answer_to(*root, question);
    if (answer == question.answer)
      continue;
    are_right = false;
    tester.printf("auto const root = loaded(%s)->getDocumentElement();\n// %s\nExpected \"%s\"\nActual   \"%s\"",
      axmModelText::quoted(apString(document).view()).c_str(), question.expression, question.answer, answer.c_str());
  }
  return are_right;
}
}

axmXPathUtest::axmXPathUtest(utUnitTest* given_tester) : tester(given_tester) {}
axmXPathUtest::~axmXPathUtest() = default;

void axmXPathUtest::run_tests(Factory const& factory) const
{
  using Utest = axmXPathUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_expressions, "axmXPathUtest::test_expressions"},
    {&Utest::test_contexts, "axmXPathUtest::test_contexts"},
    {&Utest::test_many_nodes, "axmXPathUtest::test_many_nodes"},
    {&Utest::test_errors, "axmXPathUtest::test_errors"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmXPathUtest::test_expressions(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXPathUtest::test_expressions");
  char const expression[] = "every question has its answer";
  group.check(are_answered(*tester, *factory, document_0, questions_0), expression, __LINE__, "functions");
  group.check(are_answered(*tester, *factory, document_1, questions_1), expression, __LINE__, "languages");
  group.check(are_answered(*tester, *factory, document_2, questions_2), expression, __LINE__, "operators");
  group.check(are_answered(*tester, *factory, document_3, questions_3), expression, __LINE__, "numbers and values");
  group.check(are_answered(*tester, *factory, document_4, questions_4), expression, __LINE__, "axes");
  group.check(are_answered(*tester, *factory, document_5, questions_5), expression, __LINE__, "paths");
  group.check(
    are_answered(*tester, *factory, document_6, questions_6), expression, __LINE__, "names that are operators too");
  group.check(are_answered(*tester, *factory, document_7, questions_7), expression, __LINE__, "names in other letters");
  group.check(
    are_answered(*tester, *factory, document_8, questions_8), expression, __LINE__, "texts beside each other");
  group.check(are_answered(*tester, *factory, document_9, questions_9), expression, __LINE__, "a document type");
  group.check(are_answered(*tester, *factory, document_10, questions_10), expression, __LINE__,
    "attributes and declarations of namespaces");
  group.check(are_answered(*tester, *factory, document_11, questions_11), expression, __LINE__, "names in namespaces");
  group.check(are_answered(*tester, *factory, document_12, questions_12), expression, __LINE__, "prefixes in scope");
  group.check(
    are_answered(*tester, *factory, document_13, questions_13), expression, __LINE__, "values of several texts");
  group.check(are_answered(*tester, *factory, document_14, questions_14), expression, __LINE__, "identifiers");
  group.check(are_answered(*tester, *factory, document_15, questions_15), expression, __LINE__, "more of functions");
  group.check(are_answered(*tester, *factory, document_16, questions_16), expression, __LINE__,
    "what is a number, a blank and a character");
  group.check(
    are_answered(*tester, *factory, document_17, questions_17), expression, __LINE__, "conditions in conditions");
  group.check(are_answered(*tester, *factory, document_18, questions_18), expression, __LINE__, "names with hyphens");
  group.check(are_answered(*tester, *factory, document_19, questions_19), expression, __LINE__,
    "characters beyond U+FFFF, and what stands beside the root");
}

namespace
{
// The nodes of a document but for attributes, in document order, each with the number of the one that holds it.
class Tree
{
public:
  explicit Tree(Node const& top)
  {
    std::vector<int> open;
    Node node = top;
    while (node != nullptr && nodes.size() < 1000)
    {
      nodes.push_back(node);
      parents.push_back(open.empty() ? -1 : open.back());
      if (node->getFirstChild() != nullptr)
      {
        open.push_back(static_cast<int>(nodes.size()) - 1);
        node = node->getFirstChild();
        continue;
      }
      while (node->getNextSibling() == nullptr && !open.empty())
      {
        node = nodes[static_cast<std::size_t>(open.back())];
        open.pop_back();
      }
      node = open.empty() ? nullptr : node->getNextSibling();
    }
  }

  int size() const { return static_cast<int>(nodes.size()); }
  Node const& node(int number) const { return nodes[static_cast<std::size_t>(number)]; }
  int parent(int number) const { return parents[static_cast<std::size_t>(number)]; }
  bool is_element(int number) const { return std::dynamic_pointer_cast<axmElement>(node(number)) != nullptr; }

  bool is_below(int number, int top) const
  {
    for (int above = parent(number); above >= 0; above = parent(above))
      if (above == top)
        return true;
    return false;
  }

private:
  std::vector<Node> nodes;
  std::vector<int> parents;
};

// The axes of XPath 1.0, 2.2, but for those of attributes and namespaces: whether `other` is on the axis from `from`.
struct Axis
{
  char const* name;
  bool is_reverse;
  bool (*holds)(Tree const& tree, int from, int other);
};

Axis const axes[] = {
  {"self", false, [](Tree const&, int from, int other) { return other == from; }},
  {"child", false, [](Tree const& tree, int from, int other) { return tree.parent(other) == from; }},
  {"parent", true, [](Tree const& tree, int from, int other) { return tree.parent(from) == other; }},
  {"ancestor", true, [](Tree const& tree, int from, int other) { return tree.is_below(from, other); }},
  {"ancestor-or-self", true,
    [](Tree const& tree, int from, int other) { return other == from || tree.is_below(from, other); }},
  {"descendant", false, [](Tree const& tree, int from, int other) { return tree.is_below(other, from); }},
  {"descendant-or-self", false,
    [](Tree const& tree, int from, int other) { return other == from || tree.is_below(other, from); }},
  {"following", false,
    [](Tree const& tree, int from, int other) { return other > from && !tree.is_below(other, from); }},
  {"preceding", true,
    [](Tree const& tree, int from, int other) { return other < from && !tree.is_below(from, other); }},
  {"following-sibling", false,
    [](Tree const& tree, int from, int other) { return other > from && tree.parent(other) == tree.parent(from); }},
  {"preceding-sibling", true,
    [](Tree const& tree, int from, int other) { return other < from && tree.parent(other) == tree.parent(from); }},
};

// The numbers of those on the axis, in document order.
std::vector<int> on_axis(Tree const& tree, Axis const& axis, int from, bool only_elements)
{
  std::vector<int> found;
  for (int other = 0; other < tree.size(); ++other)
    if (axis.holds(tree, from, other) && (!only_elements || tree.is_element(other)))
      found.push_back(other);
  return found;
}

bool finds(Tree const& tree, int from, std::string const& expression, std::vector<int> const& promised)
{
  auto const context = std::dynamic_pointer_cast<axmElement>(tree.node(from));
  auto const list = context->selectNodes(apString(expression.c_str()));
  bool is_right = length_of(list) == static_cast<int>(promised.size());
  for (std::size_t index = 0; is_right && index < promised.size(); ++index)
    is_right = same(list->at(static_cast<int>(index)), tree.node(promised[index]));
  Node const single = context->selectSingleNode(apString(expression.c_str()));
  return is_right && (promised.empty() ? single == nullptr : same(single, tree.node(promised[0])));
}

// Whether an axis leads where it must from an element: all of it, its elements, and by positions that count along it.
bool is_axis(utUnitTest& tester, Tree const& tree, int from, Axis const& axis)
{
  std::vector<int> const elements = on_axis(tree, axis, from, true);
  struct Search
  {
    char const* test;
    std::vector<int> promised;
  };
  std::vector<Search> searches = {{"node()", on_axis(tree, axis, from, false)}, {"*", elements}};
  if (!elements.empty())
  {
    int const nearest = axis.is_reverse ? elements.back() : elements.front();
    int const farthest = axis.is_reverse ? elements.front() : elements.back();
    searches.push_back({"*[1]", {nearest}});
    searches.push_back({"*[last()]", {farthest}});
    searches.push_back({"*[position() < 2]", {nearest}});
  }
  for (auto const& [test, promised] : searches)
  {
    std::string const expression = std::string(axis.name) + "::" + test;
    if (finds(tree, from, expression, promised))
      continue;
    tester.printf("\"%s\" from the element \"%s\", the node %d of its document, does not find the %d nodes it must",
      expression.c_str(), name_of(tree.node(from)).to_utf8().c_str(), from, static_cast<int>(promised.size()));
    return false;
  }
  return true;
}
}

void axmXPathUtest::test_contexts(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXPathUtest::test_contexts");
  auto const document = load(*factory,
    "<?p q?><!--c--><r k='1'>a<b><c/>x<d><e/><!--y--></d></b><f l='2'>z<?g h?><b>w<d/>v</b></f><i/></r><!--t-->");
  if (!group.prerequisite(root_of(document) != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  Tree const tree(document);
  for (Axis const& axis : axes)
  {
    bool is_right = true;
    for (int from = 0; from < tree.size(); ++from)
      is_right = is_right && (!tree.is_element(from) || is_axis(*tester, tree, from, axis));
    group.check(is_right, "the nodes on the axis, in document order", __LINE__, axis.name);
  }
}

namespace
{
// The elements of a document of many in their order, by their attribute "n", where `wanted` says so.
template <class Wanted>
std::string promised_names(axmElement& root, Wanted wanted)
{
  std::string names;
  Node node = root.getFirstChild();
  for (int steps = 0; node != nullptr && steps < 100000; ++steps)
  {
    if (wanted(node))
      names += std::string(" ") + name_of(node).to_utf8().c_str() + label_of(node);
    Node next = node->getFirstChild();
    while (next == nullptr && node != nullptr && !(*node == root))
    {
      next = node->getNextSibling();
      node = next == nullptr ? node->getParentNode() : node;
    }
    node = next;
  }
  return names;
}

std::string found_names(axmElement& root, char const* expression)
{
  std::string names;
  auto const list = root.selectNodes(apString(expression));
  int const length = length_of(list);
  for (int index = 0; index < length && index < 100000; ++index)
  {
    Node const node = item_of(list, index);
    names += std::string(" ") + name_of(node).to_utf8().c_str() + label_of(node);
  }
  return names;
}

bool is_one_of(Node const& node, char const* names)
{
  return std::string(names).find(name_of(node).to_utf8().c_str()) != std::string::npos;
}

char const* const orders[][2] = {{"//d | //b | //a", "abd"}, {"//d/.. | //b", "bc"},
  {"//d/ancestor::* [not(self::r)]", "ac"}, {"//d/preceding::b", "b"}, {"//d/../preceding-sibling::*", "b"},
  {"//b/following-sibling::* | //b/..", "ac"}, {"(//c | //a)/descendant-or-self::*", "abcd"},
  {"//c/ancestor-or-self::*[self::a or self::c]", "ac"}, {"//*[@id mod 2 >= 0]", "abcd"}};

// The same where some elements hold nothing and have no attribute.
char const* const edited_orders[][2] = {{"//d | //b | //a", "abd"}, {"//c | //b", "bc"},
  {"//a/descendant-or-self::*", "abcd"}, {"(//a | //d | //c)/self::*", "acd"}};

// Comparisons of the texts and numbers of many nodes.
void check_many_values(axmUtestGroup const& group, axmElement& root)
{
  char const* const conditions[] = {"//b = //a/@id", "//b != //b", "not(//b = //d)", "//b = 599", "//b != 599",
    "//d = 'x599'", "not(//d = 'x600')", "//b < //d/@id", "//b >= 599", "not(//b > 599)",
    "count(//b[. = //c/@id]) = 600", "count(//d[. = //b]) = 0", "sum(//b[. >= 0]) = 179700",
    "count(//a | //b | //a) = count(//a) + count(//b)"};
  for (char const* const condition : conditions)
  {
    std::string const expression = std::string("self::r[") + condition + "]";
    group.check(
      length_of(root.selectNodes(apString(expression.c_str()))), 1, condition, __LINE__, "comparisons of many nodes");
  }
}

// Whether texts are found in texts as they must, of every length and with beginnings that come again.
bool are_found_in_texts(axmElement& root)
{
  for (std::size_t length = 1; length < 100; ++length)
    for (std::size_t period = 1; period < 5; ++period)
    {
      std::string wanted;
      for (std::size_t at = 0; at < length; ++at)
        wanted += at % period == 0 || at == length / 2 ? 'a' : 'b';
      wanted.back() = 'c';
      std::string const begin = wanted.substr(0, length - 1);
      std::string const before = begin + begin + "b" + begin.substr(length / 3) + "a" + begin;
      std::string const text = before + wanted + "d" + wanted;
      std::string const promised = text.substr(0, text.find(wanted));
      std::string const rest = text.substr(text.find(wanted) + length);
      std::string const pair = "('" + text + "', '" + wanted + "')";
      std::string const expression = "self::r[contains" + pair + " and substring-before" + pair + " = '" + promised +
                                     "' and substring-after" + pair + " = '" + rest + "' and not(contains('" + before +
                                     begin + "', '" + wanted + "')) and starts-with('" + wanted + text + "', '" +
                                     wanted + "') and not(starts-with('" + begin + "x', '" + wanted + "'))]";
      if (length_of(root.selectNodes(apString(expression.c_str()))) != 1)
        return false;
    }
  return true;
}

bool are_in_order(axmElement& root, char const* expression, char const* names)
{
  return found_names(root, expression) ==
         promised_names(root, [names](Node const& node) { return is_one_of(node, names); });
}
}

void axmXPathUtest::test_many_nodes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXPathUtest::test_many_nodes");
  std::string text = "<r>";
  for (int number = 0; number < 600; ++number)
  {
    std::string const id = std::to_string(number);
    text += "<a id='" + id + "'><b id='" + id + "'>" + id + "</b><c id='" + id + "'><d id='" + id + "'>x" + id +
            "</d></c></a>";
  }
  auto const root = load_root(*factory, (text + "</r>").c_str());
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  for (auto const& [expression, names] : orders)
    group.check(are_in_order(*root, expression, names), expression, __LINE__, "many nodes in document order");
  check_many_values(group, *root);
  group.check(are_found_in_texts(*root), "texts are found where they are", __LINE__, "long texts in texts");
  std::string alternatives = "a[1]/b";
  std::string conditions = "1=1";
  for (int number = 2; number <= 600; ++number)
  {
    alternatives += " | a[" + std::to_string(number) + "]/b";
    conditions += " and 1=1";
  }
  group.check(length_of(root->selectNodes(apString(alternatives.c_str()))), 600,
    "root->selectNodes(expression)->length() == 600", __LINE__, "many alternatives");
  group.check(length_of(root->selectNodes(apString(("self::r[" + conditions + "]").c_str()))), 1,
    "root->selectNodes(expression)->length() == 1", __LINE__, "many conditions");
  // A node is put elsewhere, and new ones among the others.
  Node const last = root->getLastChild();
  remove(root, last);
  insert(root, last, root->getFirstChild());
  append(first_of(root), created(root->getOwnerDocument(), APSTRING("b")));
  insert(root, created(root->getOwnerDocument(), APSTRING("a")), child_of(root, 300));
  for (auto const& [expression, names] : edited_orders)
    group.check(are_in_order(*root, expression, names), expression, __LINE__, "many nodes after edits");
  check_many_values(group, *root);
}

void axmXPathUtest::test_errors(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXPathUtest::test_errors");
  auto const root = load_root(*factory, "<r><a>1</a><b/></r>");
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  bool are_right = true;
  for (char const* const expression : wrong_expressions)
  {
    auto const list = root->selectNodes(apString(expression));
    // As a condition that would hold if it were taken, whatever it comes to.
    std::string const condition = std::string("self::node()[(") + expression + ") or true()]";
    bool const is_alone_wrong =
      list != nullptr && list->length() == 0 && root->selectSingleNode(apString(expression)) == nullptr;
    if (is_alone_wrong && length_of(root->selectNodes(apString(condition.c_str()))) == 0)
      continue;
    are_right = false;
    tester->printf("found something: %s", expression);
  }
  group.check(are_right, "nothing is found", __LINE__, "what is no expression selects nothing");
  group.check(length_of(root->selectNodes(APSTRING("a"))), 1, "root->selectNodes(\"a\")->length()", __LINE__,
    "a search after one that failed");
}
