#include "axmXmlUtest.h"

#include "axmUtestGroup.h"
#include "axmXmlTables.h"
#include "model/axmModelText.h"

#include <utUnitTest.h>
#include <utUtf8.h>

#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

using namespace axmXmlTables;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

char const file[] = "source/utest/axmXmlUtest";

Taken const taken_documents[] = {
  {"<r/>", "<r></r>"},
  {"<r></r>", "<r></r>"},
  {" \t\r\n<r/> \t\r\n", "<r></r>"},
  {"<!--a--><?b c?>\n<r/>\n<?d?><!--e-->", "<!--a--><?b c?><r></r><?d ?><!--e-->"},
  {"\xEF\xBB\xBF<r/>", "<r></r>"},
  {"<?xml version='1.0'?><r/>", "<r></r>"},
  {"<?xml version=\"1.0\" ?><r/>", "<r></r>"},
  {"<?xml\tversion\r\n=\n'1.0'?>\n<r/>", "<r></r>"},
  {"<?xml version='1.0' encoding='UTF-8'?><r/>", "<r></r>"},
  {"<?xml version='1.0' encoding=\"utf-8\" ?><r>\xC3\xA4</r>", "<r>\xC3\xA4</r>"},
  {"<?xml version='1.0' encoding='US-ASCII'?><r/>", "<r></r>"},
  {"<?xml version='1.0' encoding='us-ascii'?><r>&#xE4;</r>", "<r>\xC3\xA4</r>"},
  {"<?xml version='1.0' encoding='UTF-8' standalone='yes'?><r/>", "<r></r>"},
  {"<?xml version='1.0' standalone='no'  ?><r/>", "<r></r>"},
  {"\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><r/>", "<r></r>"},
  {"\xEF\xBB\xBF<?xml version='1.0'?><r/>", "<r></r>"},
  {"<!DOCTYPE r><r/>", "<r></r>"},
  {"<!DOCTYPE r ><r/>", "<r></r>"},
  {"<!DOCTYPE\r\n\tr\n>\n<r/>", "<r></r>"},
  {"<!--a--><!DOCTYPE other><?b?><r>&amp;</r>", "<!--a--><?b ?><r>&</r>"},
  {"<!DOCTYPE r SYSTEM 's'><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM \"a's.dtd\" ><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM ''><r/>", "<r></r>"},
  {"<!DOCTYPE r PUBLIC '-//a (b)+,./:=?;!*#@$_%//EN' \"http://s.dtd?a=b#c\"><r a='  x  '> <b/> </r>",
    "<r a='  x  '> <b></b> </r>"},
  {"<!DOCTYPE r PUBLIC \"it's\"\n'>'\n><r/>", "<r></r>"},
  {"<!DOCTYPE r PUBLIC '' ''><r/>", "<r></r>"},
  {"<!DOCTYPE p:r><r/>", "<r></r>"},
  {"<?xml version='1.0' standalone='yes'?><!DOCTYPE r SYSTEM 's'><r/>", "<r></r>"},
  {"<!DOCTYPE SYSTEM><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM 'a[b]'><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM 'a&b'><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM '\xC3\xA4'><r/>", "<r></r>"},
  {"<!DOCTYPE r PUBLIC 'a\nb' 's'><r/>", "<r></r>"},
  {"<!DOCTYPE r []><r/>", "<r></r>"},
  {"<!DOCTYPE r[]><r/>", "<r></r>"},
  {"<!DOCTYPE r [ \t\r\n ] ><r/>", "<r></r>"},
  {"<!DOCTYPE r [<!ELEMENT r ANY>]><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM 's' [<!ELEMENT r ANY>]><r/>", "<r></r>"},
  {"<!DOCTYPE r SYSTEM 's'[]><r/>", "<r></r>"},
  {"<!DOCTYPE r PUBLIC 'p' \"s\"\n[\n<!ELEMENT r ANY>\n]\n>\n<r> text </r>", "<r> text </r>"},
  {"<?xml version='1.0' standalone='yes'?><!DOCTYPE r SYSTEM 's' [<!ATTLIST r a NMTOKEN ' x '>]><r/>", "<r a='x'></r>"},
  {"<!--a--><!DOCTYPE other [<!ELEMENT a (b)><!ELEMENT b EMPTY>]><?c?><r>&amp;<d e='1'/></r>",
    "<!--a--><?c ?><r>&<d e='1'></d></r>"},
  {"<!DOCTYPE r [<!ELEMENT a ANY><!ELEMENT b ANY>\r\n\t<!ELEMENT c ANY>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<!-- ]> -->]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<?p ]> ?>]><r/>", "<r></r>"},
};

char const* const refused_documents[] = {
  "",
  " ",
  "text",
  "<r/>text",
  "text<r/>",
  "<r/><r/>",
  "<r></r><r></r>",
  "<r>",
  "<r><a></r>",
  "</r>",
  "<r></r></r>",
  "<r/>&#32;",
  "&#32;<r/>",
  "<r/><![CDATA[]]>",
  "<![CDATA[]]><r/>",
  "<!--a-->",
  "<?a?>",
  "<",
  "<r",
  "<r/",
  "\xEF\xBB\xBF",
  "\xEF\xBB\xBF\xEF\xBB\xBF<r/>",
  "<r/>\xEF\xBB\xBF",
  "<r/><",
  "< r/>",
  "<?xml?><r/>",
  "<?xml ?><r/>",
  "<?xml version=1.0?><r/>",
  "<?xml version='1.0\"?><r/>",
  "<?xml version='1.0'><r/>",
  "<?xml version='1.0'? ><r/>",
  "<?xml encoding='UTF-8'?><r/>",
  "<?xml encoding='UTF-8' version='1.0'?><r/>",
  "<?xml version='1.0'encoding='UTF-8'?><r/>",
  "<?xml version='1.0' encoding='UTF-8'standalone='yes'?><r/>",
  "<?xml version='1.0' standalone='yes' encoding='UTF-8'?><r/>",
  "<?xml version='1.0' standalone='maybe'?><r/>",
  "<?xml version='1.0' standalone=''?><r/>",
  "<?xml version='1.0' encoding=''?><r/>",
  "<?xml version='1.0' encoding='no such encoding'?><r/>",
  "<?xml version='1.0' version='1.0'?><r/>",
  "<?xml version='1.0' unknown='1'?><r/>",
  " <?xml version='1.0'?><r/>",
  "<!----><?xml version='1.0'?><r/>",
  "<r/><?xml version='1.0'?>",
  "<?XML version='1.0'?><r/>",
  "<?xml version='1.0'?><?xml version='1.0'?><r/>",
  "<?xml version='1.0' encoding='US-ASCII'?><r>\xC3\xA4</r>",
  "<?xml version='1.0' encoding='US-ASCII'?><r a='\xC3\xA4'/>",
  "<?xml version='1.0' encoding='US-ASCII'?><r\xC3\xA4/>",
  "<?xml version='1.0' encoding='UTF-8'?><r>\xE4</r>",
  "<?xml version='1.0'",
  "<?xml version='1.",
  "<?xml",
  "<!DOCTYPE r SYSTEM 's\x01'><r/>",
  "<r/><!DOCTYPE r>",
  "<r><!DOCTYPE r></r>",
  "<!DOCTYPE r>",
  "<!ELEMENT r ANY><r/>",
  "<!DOCTYPE><r/>",
  "<!DOCTYPE ><r/>",
  "<!DOCTYPEr><r/>",
  "<!doctype r><r/>",
  "<!DOCTYPE r",
  "<!DOCTYPE r SYSTEM",
  "<!DOCTYPE r SYSTEM 's",
  "<!DOCTYPE r SYSTEM 's'",
  "<!DOCTYPE r SYSTEM><r/>",
  "<!DOCTYPE r SYSTEM s><r/>",
  "<!DOCTYPE r SYSTEM's'><r/>",
  "<!DOCTYPE r PUBLIC><r/>",
  "<!DOCTYPE r PUBLIC 'p'><r/>",
  "<!DOCTYPE r PUBLIC 'p''s'><r/>",
  "<!DOCTYPE r PUBLIC'p' 's'><r/>",
  "<!DOCTYPE r PUBLIC '<' 's'><r/>",
  "<!DOCTYPE r PUBLIC '\"' 's'><r/>",
  "<!DOCTYPE r PUBLIC '[' 's'><r/>",
  "<!DOCTYPE r 's'><r/>",
  "<!DOCTYPE r system 's'><r/>",
  "<!DOCTYPE r SYSTEM 's' 't'><r/>",
  "<!DOCTYPE r><!DOCTYPE r><r/>",
  "<!DOCTYPE 1><r/>",
  "<!DOCTYPE rSYSTEM 's'><r/>",
  "<!DOCTYPE r SYSTEM 's']><r/>",
  "<!DOCTYPE r [><r/>",
  "<!DOCTYPE r []<r/>",
  "<!DOCTYPE r [",
  "<!DOCTYPE r []",
  "<!DOCTYPE r [<r/>",
  "<!DOCTYPE r [text]><r/>",
  "<!DOCTYPE r []]><r/>",
  "<!DOCTYPE r [] SYSTEM 's'><r/>",
  "<!DOCTYPE r [][]><r/>",
  "<!DOCTYPE r [<!>]><r/>",
  "<!DOCTYPE r [<!OTHER a>]><r/>",
  "<!DOCTYPE r [<a/>]><r/>",
  "<!DOCTYPE r [<!element r ANY>]><r/>",
  "<!DOCTYPE r [< !ELEMENT r ANY>]><r/>",
  "<!DOCTYPE r [<!ELEMENT]><r/>",
  "<!DOCTYPE r [<!ELEMENT r]><r/>",
  "<!DOCTYPE r [<!ELEMENT r ANY]><r/>",
  "<!DOCTYPE r [&amp;]><r/>",
  "<!DOCTYPE r [&#32;]><r/>",
  "<!DOCTYPE r [<![CDATA[]]>]><r/>",
  "<!DOCTYPE r [<![INCLUDE[<!ELEMENT r ANY>]]>]><r/>",
  "<!DOCTYPE r [<!DOCTYPE r>]><r/>",
  "<!DOCTYPE r [<?xml version='1.0'?>]><r/>",
  "<!DOCTYPE r [\xC3\xA4]><r/>",
  "<!DOCTYPE r [\x01]><r/>",
  "<!DOCTYPE r PUBLIC '\xC3\xA4' 's'><r/>",
  "<!DOCTYPE r PUBLIC '\xEF\xBB\xBF-//p//' 's'><r/>",
  "<?xml version='1.'?><r/>",
  "<?xml version='1.x'?><r/>",
  "<?xml version=''?><r/>",
  "<?xml version='.0'?><r/>",
  "<?xml version='a'?><r/>",
};

Taken const taken_names[] = {
  {"<_/>", "<_></_>"},
  {"<a1.-_:b xmlns:a1.-_='u'/>", "<a1.-_:b></a1.-_:b>"},
  {"<\xC3\xA4/>", "<\xC3\xA4></\xC3\xA4>"},
  {"<a\xC2\xB7\xCC\x80/>", "<a\xC2\xB7\xCC\x80></a\xC2\xB7\xCC\x80>"},
  {"<r \xC3\xA4='1'/>", "<r \xC3\xA4='1'></r>"},
  {"<?\xC3\xA4 b?><r/>", "<?\xC3\xA4 b?><r></r>"},
  {"<r></r >", "<r></r>"},
  {"<r ></r\r\n>", "<r></r>"},
  {"<r xmlns='u'/>", "<r></r>"},
  {"<r xmlns=''/>", "<r></r>"},
  {"<r xmlns='u'><a xmlns=''/></r>", "<r><a></a></r>"},
  {"<p:r xmlns:p='u'/>", "<p:r></p:r>"},
  {"<r xmlns:p='u'><p:a p:b='1'/></r>", "<r><p:a p:b='1'></p:a></r>"},
  {"<r xmlns:p='u'><p:a xmlns:p='v'/><p:a/></r>", "<r><p:a></p:a><p:a></p:a></r>"},
  {"<r xml:lang='en' xml:space='preserve'/>", "<r xml:lang='en' xml:space='preserve'></r>"},
  {"<xml:r/>", "<xml:r></xml:r>"},
  {"<r xmlns:xml='http://www.w3.org/XML/1998/namespace'/>", "<r></r>"},
  {"<r p:a='1' xmlns:p='u'/>", "<r p:a='1'></r>"},
  {"<r a='1' p:a='1' xmlns:p='u' xmlns='u'/>", "<r a='1' p:a='1'></r>"},
  {"<r xmlns:p='u' xmlns:q='v' p:a='1' q:a='1'/>", "<r p:a='1' q:a='1'></r>"},
  {"<r xmlns:p='u' xmlns:q='u' p:a='1' q:b='1'/>", "<r p:a='1' q:b='1'></r>"},
  {"<r xmlns:p='&#117;'><p:a/></r>", "<r><p:a></p:a></r>"},
  {"<r xmlns:a='u' a:a='1' a='2'/>", "<r a='2' a:a='1'></r>"},
  {"<r xmlns:p='u'><a xmlns:q='v' q:c='1'><p:b q:c='1'/></a></r>", "<r><a q:c='1'><p:b q:c='1'></p:b></a></r>"},
  {"<r xmlns:XML='u' XML:a='1'/>", "<r XML:a='1'></r>"},
};

char const* const refused_names[] = {
  "<1/>",
  "<-/>",
  "<./>",
  "<\xC2\xB7/>",
  "<r 1='1'/>",
  "<r -a='1'/>",
  "<a\xC3\x97/>",
  "<a!/>",
  "<a<b/>",
  "<r></ r>",
  "<r></r a='1'>",
  "<r></rr>",
  "<rr></r>",
  "<r></R>",
  "<r></>",
  "<r><//r>",
  "<r></r",
  "<r></",
  "<?1 a?><r/>",
  "<\xF3\xB0\x80\x80/>",
  "<a\xF4\x8F\xBF\xBF/>",
  "<a\xFF/>",
  "<a\xC3/>",
  "<a\xE2\x82/>",
  "<r><a></r></a>",
  "<r></r<",
  "<r></r/",
  "<r></r ]",
  "<r></r=",
  "<r><a></a<</r>",
  "<r><a></a!</r>",
  "<r><a></a /</r>",
  "<r><a></a '</r>",
  "<r><a/<</r>",
  "<r><a !</r>",
  "<r xmlns:p='u' xmlns:p='v'/>",
  "<r xmlns='u' xmlns='u'/>",
  "<r xmlns:p='u'></r><p:a/>",
  "<p:r xmlns:q='u'/>",
  "<p:r q:a='1' xmlns:q='u'/>",
  "<r xmlns:q='u'><p:a q:b='1'/></r>",
  "<r p:a='1' q:b='2' xmlns:q='u'/>",
};

Taken const taken_attributes[] = {
  {"<r a='1'/>", "<r a='1'></r>"},
  {"<r a=\"1\" b='2'></r>", "<r a='1' b='2'></r>"},
  {"<r\ta\r\n=\n '1'\n/>", "<r a='1'></r>"},
  {"<r a=''/>", "<r a=''></r>"},
  {"<r a='\"' b=\"'\"/>", "<r a='\"' b='''></r>"},
  {"<r a='>]]>&gt;'/>", "<r a='>]]>>'></r>"},
  {"<r b='1' a='2' c='3'/>", "<r a='2' b='1' c='3'></r>"},
  {"<r a='1' A='1'/>", "<r A='1' a='1'></r>"},
  {"<r a='1' p:a='1' xmlns:p='u'/>", "<r a='1' p:a='1'></r>"},
  {"<r a = '1' />", "<r a='1'></r>"},
  {"<r a='\t'/>", "<r a=' '></r>"},
  {"<r a='\n'/>", "<r a=' '></r>"},
  {"<r a='\r'/>", "<r a=' '></r>"},
  {"<r a='\r\n'/>", "<r a=' '></r>"},
  {"<r a='\r\r\n\n'/>", "<r a='   '></r>"},
  {"<r a=' x  y '/>", "<r a=' x  y '></r>"},
  {"<r a='b\xEF\xBF\xBD\xED\x9F\xBF'/>", "<r a='b\xEF\xBF\xBD\xED\x9F\xBF'></r>"},
  {"<r a='&#9;&#10;&#13;&#32;'/>", "<r a='\t\n\r '></r>"},
  {"<r a='x\ty\nz\rq' b='\t' c='plain' d='&lt;\n'/>", "<r a='x y z q' b=' ' c='plain' d='< '></r>"},
  {"<r a='&#xD;\n'/>", "<r a='\r '></r>"},
  {"<r a='\r&#10;'/>", "<r a=' \n'></r>"},
  {"<r a='&#13;&#10;'/>", "<r a='\r\n'></r>"},
};

char const* const refused_attributes[] = {
  "<r a/>",
  "<r a=/>",
  "<r a=1/>",
  "<r a='1\"/>",
  "<r a='1/>",
  "<r a='1",
  "<r a=",
  "<r a",
  "<r a='1'b='2'/>",
  "<r a=\"1\"b=\"2\"/>",
  "<r a='<'/>",
  "<r a='&'/>",
  "<r a='& '/>",
  "<r a='1' a='1'/>",
  "<r a='1' b='2' a='3'/>",
  "<r a='1' / >",
  "<r / a='1'/>",
  "<r =''/>",
  "<r ='1' a='2'/>",
  "<r a='1',b='2'/>",
  "<r a=''''/>",
  "<r a='\x01'/>",
  "<r a='\xE4'/>",
  "<r a=\xC2\xA0'1'/>",
  "<ra='1'/>",
  "<r/a='1'>",
};

Taken const taken_references[] = {
  {"<r>&lt;&gt;&amp;&quot;&apos;</r>", "<r><>&\"'</r>"},
  {"<r a='&lt;&gt;&amp;&quot;&apos;'/>", "<r a='<>&\"''></r>"},
  {"<r>&amp;lt;</r>", "<r>&lt;</r>"},
  {"<r>&#65;&#x41;&#x00041;&#xe4;&#xE4;&#8364;&#x1D11E;&#119070;&#x10FFFF;&#xD7FF;&#xE000;&#xFFFD;</r>",
    "<r>"
    "AAA\xC3\xA4\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E\xF4\x8F\xBF\xBF\xED\x9F\xBF\xEE\x80\x80\xEF\xBF"
    "\xBD</r>"},
  {"<r>a&#65;b&#66;c</r>", "<r>aAbBc</r>"},
  {"<r>&#127;&#x80;&#x7FF;&#x800;&#xFFFD;&#x10000;</r>",
    "<r>\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x90\x80\x80</r>"},
  {"<r a='&#60;&#38;&#39;&#34;'/>", "<r a='<&'\"'></r>"},
  {"<r>&#60;a&#62;</r>", "<r><a></r>"},
  {"<r>&#38;lt;</r>", "<r>&lt;</r>"},
  {"<r>&#x0000000000041;</r>", "<r>A</r>"},
};

char const* const refused_references[] = {
  "<r>&</r>",
  "<r>& </r>",
  "<r>&;</r>",
  "<r>&lt</r>",
  "<r>&lt ;</r>",
  "<r>& lt;</r>",
  "<r>&nbsp;</r>",
  "<r>&LT;</r>",
  "<r>&#;</r>",
  "<r>&#x;</r>",
  "<r>&#X41;</r>",
  "<r>&#xG;</r>",
  "<r>&#A;</r>",
  "<r>&#65</r>",
  "<r>&#65 ;</r>",
  "<r>&#-65;</r>",
  "<r>&#0;</r>",
  "<r>&#1;</r>",
  "<r>&#11;</r>",
  "<r>&#31;</r>",
  "<r>&#xD800;</r>",
  "<r>&#xDFFF;</r>",
  "<r>&#xFFFE;</r>",
  "<r>&#xFFFF;</r>",
  "<r>&#x110000;</r>",
  "<r>&#xFFFFFFFF;</r>",
  "<r>&#x100000041;</r>",
  "<r>&#4294967361;</r>",
  "<r>&#99999999999999999999;</r>",
  "<r>&lt",
  "<r>&#65",
  "<r>&#",
  "<r>&",
  "<r a='&#0;'/>",
};

Taken const taken_texts[] = {
  {"<r>text</r>", "<r>text</r>"},
  {"<r> </r>", "<r> </r>"},
  {"<r>  </r>", "<r></r>"},
  {"<r>\n</r>", "<r></r>"},
  {"<r>a<b/>c<b/></r>", "<r>a<b></b>c<b></b></r>"},
  {"<r>\ta\n</r>", "<r>\ta\n</r>"},
  {"<r>]</r>", "<r>]</r>"},
  {"<r>]]</r>", "<r>]]</r>"},
  {"<r>a\xEF\xBF\xBD\xED\x9F\xBF</r>", "<r>a\xEF\xBF\xBD\xED\x9F\xBF</r>"},
  {"<r>] ]></r>", "<r>] ]></r>"},
  {"<r>]&gt;</r>", "<r>]></r>"},
  {"<r>]]&gt;</r>", "<r>]]></r>"},
  {"<r>]]&#62;</r>", "<r>]]></r>"},
  {"<r>&#93;&#93;></r>", "<r>]]></r>"},
  {"<r>></r>", "<r>></r>"},
  {"<r>]></r>", "<r>]></r>"},
  {"<r>]<a/>]></r>", "<r>]<a></a>]></r>"},
  {"<r>]]<a/>></r>", "<r>]]<a></a>></r>"},
  {"<r>]]<!---->></r>", "<r>]]<!---->></r>"},
  {"<r>]]<![CDATA[]]>></r>", "<r>]]></r>"},
  {"<r>]<?a?>]></r>", "<r>]<?a ?>]></r>"},
  {"<r>\"'</r>", "<r>\"'</r>"},
  {"<r>\x7F</r>", "<r>\x7F</r>"},
  {"<r>\xC2\x80</r>", "<r>\xC2\x80</r>"},
  {"<r>\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E</r>", "<r>\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E</r>"},
  {"<r>\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD</r>", "<r>\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD</r>"},
  {"<r>\xEF\xBB\xBF</r>", "<r>\xEF\xBB\xBF</r>"},
  {"<r>\r</r>", "<r></r>"},
  {"<r>a\rb\r\nc\n\rd\r\r\ne\r</r>", "<r>a\nb\nc\n\nd\n\ne\n</r>"},
  {"<r>\r\n</r>", "<r></r>"},
  {"<r>&#13;\n</r>", "<r></r>"},
  {"<r>\r&#10;</r>", "<r></r>"},
  {"<r><!--\r\n\r--></r>", "<r><!--\n\n--></r>"},
  {"<?a b\r\nc\rd?><r/>", "<?a b\nc\nd?><r></r>"},
  {"<r><![CDATA[\r\na\r]]></r>", "<r>\na\n</r>"},
  {"<r>\xC2\x85\xE2\x80\xA8</r>", "<r>\xC2\x85\xE2\x80\xA8</r>"},
  {"<r\r\n></r\r>\r\n", "<r></r>"},
  {"<r><![CDATA[]]></r>", "<r></r>"},
  {"<r><![CDATA[a]]></r>", "<r>a</r>"},
  {"<r><![CDATA[ ]]></r>", "<r> </r>"},
  {"<r><![CDATA[<a>&b;]]></r>", "<r><a>&b;</r>"},
  {"<r><![CDATA[]]]></r>", "<r>]</r>"},
  {"<r><![CDATA[]]]]></r>", "<r>]]</r>"},
  {"<r><![CDATA[]>]]></r>", "<r>]></r>"},
  {"<r><![CDATA[a]]b]]></r>", "<r>a]]b</r>"},
  {"<r>a<![CDATA[b]]>c</r>", "<r>abc</r>"},
  {"<r><![CDATA[a]]><![CDATA[b]]></r>", "<r>ab</r>"},
  {"<r><![CDATA[a]]]]><![CDATA[>b]]></r>", "<r>a]]>b</r>"},
  {"<r> <![CDATA[b]]> </r>", "<r> b </r>"},
  {"<r><![CDATA[<![CDATA[]]></r>", "<r><![CDATA[</r>"},
  {"<r><![CDATA[\xC3\xA4\r\n]]></r>", "<r>\xC3\xA4\n</r>"},
  {"<r>a<![CDATA[]]>b</r>", "<r>ab</r>"},
  {"<r>&#32;</r>", "<r> </r>"},
  {"<r>&#32;&#32;</r>", "<r></r>"},
  {"<r> &#32;</r>", "<r></r>"},
  {"<r>&#10;</r>", "<r></r>"},
  {"<r>&#9;<a/>&#13;&#10;</r>", "<r><a></a></r>"},
  {"<r>\t<a/> <a/>  <a/>\n</r>", "<r><a></a> <a></a><a></a></r>"},
  {"<r xml:space='default'> <a/>  </r>", "<r xml:space='default'> <a></a></r>"},
  {"<!DOCTYPE r [<!ENTITY e ' '>]><r>&e;</r>", "<r> </r>"},
  {"<!DOCTYPE r [<!ENTITY e ' '>]><r> &e;</r>", "<r></r>"},
  {"<!DOCTYPE r [<!ENTITY e '  '>]><r>&e;<a/>x&e;</r>", "<r><a></a>x  </r>"},
  {"<!DOCTYPE r [<!ENTITY e ''>]><r> &e; </r>", "<r></r>"},
  {"<!DOCTYPE r [<!ENTITY e ''>]><r> &e;</r>", "<r> </r>"},
  {"<!DOCTYPE r [<!ELEMENT r (a)*>]><r> <a/>  <a/></r>", "<r> <a></a><a></a></r>"},
  {"<r>  <?p?>  <!---->  </r>", "<r><?p ?><!----></r>"},
  {"<r>                                                                                                </r>",
    "<r></r>"},
};

char const* const refused_texts[] = {
  "<r>]]></r>",
  "<r>]]]></r>",
  "<r>a]]>b</r>",
  "<r>\x01</r>",
  "<r>\x1F</r>",
  "<r>\x0B</r>",
  "<r>\x0C</r>",
  "<r>\xEF\xBF\xBE</r>",
  "<r>\xEF\xBF\xBF</r>",
  "<r>\xED\xA0\x80</r>",
  "<r>\xC0\x80</r>",
  "<r>\xE0\x80\x80</r>",
  "<r>\xF4\x90\x80\x80</r>",
  "<r>\xF8\x88\x80\x80\x80</r>",
  "<r>\x80</r>",
  "<r>\xC3</r>",
  "<r>\xE2\x82</r>",
  "<r>\xC3\xA4",
  "<r>\xC3",
  "<r>]]>",
  "<r>]]",
  "<r>a",
  "<r><![CDATA[</r>",
  "<r><![CDATA[]]</r>",
  "<r><![CDATA[]] ></r>",
  "<r><![CDATA []]></r>",
  "<r><![cdata[]]></r>",
  "<r><! [CDATA[]]></r>",
  "<r><![CDATA]]></r>",
  "<r><![CDATA[\x01]]></r>",
  "<r><![CDATA[\xE4]]></r>",
  "<r><![CDATA[]]>]]></r>",
  "<r><![CDATA[",
  "<r><![CDATA[]]",
  "<r><![",
  "<r><!",
};

Taken const taken_comments[] = {
  {"<r><!----></r>", "<r><!----></r>"},
  {"<r><!-- a --></r>", "<r><!-- a --></r>"},
  {"<r><!--<a>&b;]]>?>--></r>", "<r><!--<a>&b;]]>?>--></r>"},
  {"<r><!-- - - --></r>", "<r><!-- - - --></r>"},
  {"<r><!-->--></r>", "<r><!-->--></r>"},
  {"<r><!--->a--></r>", "<r><!--->a--></r>"},
  {"<r><!---a--></r>", "<r><!---a--></r>"},
  {"<r><!--\xC3\xA4\n\t--></r>", "<r><!--\xC3\xA4\n\t--></r>"},
  {"<r><!--a\xEF\xBF\xBD\xED\x9F\xBF--></r>", "<r><!--a\xEF\xBF\xBD\xED\x9F\xBF--></r>"},
  {"<r><!--a\r\nb\rc\n\r--></r>", "<r><!--a\nb\nc\n\n--></r>"},
  {"<!--a\r\nb--><r/><!--\rc-->", "<!--a\nb--><r></r><!--\nc-->"},
  {"<r><?a b\r\nc\rd\n\r?></r>", "<r><?a b\nc\nd\n\n?></r>"},
  {"<?a\r\nb\rc?><r/><?d \re\r\n?>", "<?a b\nc?><r></r><?d e\n?>"},
  {"<r>a<!--b-->c</r>", "<r>a<!--b-->c</r>"},
  {"<r> <!--b--> </r>", "<r> <!--b--> </r>"},
  {"<r><?a?></r>", "<r><?a ?></r>"},
  {"<r><?a ?></r>", "<r><?a ?></r>"},
  {"<r><?a b?></r>", "<r><?a b?></r>"},
  {"<r><?a   b  ?></r>", "<r><?a b  ?></r>"},
  {"<r><?a\tb\n?></r>", "<r><?a b\n?></r>"},
  {"<r><?a ?\?></r>", "<r><?a ?\?></r>"},
  {"<r><?a b?c>?></r>", "<r><?a b?c>?></r>"},
  {"<r><?a <b>&c;]]>-->?></r>", "<r><?a <b>&c;]]>-->?></r>"},
  {"<r><?xml-stylesheet a='b'?></r>", "<r><?xml-stylesheet a='b'?></r>"},
  {"<?xmla?><r/>", "<?xmla ?><r></r>"},
  {"<r><?a \xC3\xA4?></r>", "<r><?a \xC3\xA4?></r>"},
  {"<r><?a b\xEF\xBF\xBD\xED\x9F\xBF?></r>", "<r><?a b\xEF\xBF\xBD\xED\x9F\xBF?></r>"},
  {"<?a?><?b?><r/><?c?>", "<?a ?><?b ?><r></r><?c ?>"},
  {"<r><?a b ?\t?></r>", "<r><?a b ?\t?></r>"},
  {"<!DOCTYPE r [<!---->]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<!-- a - b ' \" <!ELEMENT > ]>\r\n\xC3\xA4 -->]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<?p?>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<?p ?>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<?p a ? > ' \" <!ATTLIST r a CDATA '1'> ]>\r\n\xC3\xA4 ?\?>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<?xml-a b?>]><r/>", "<r></r>"},
  {"<!DOCTYPE r [<!--a--><?b?><!--c--> <?d?>]><r/>", "<r></r>"},
};

char const* const refused_comments[] = {
  "<r><!-- -- --></r>",
  "<r><!-----></r>",
  "<r><!--a---></r>",
  "<r><!--a></r>",
  "<r><!-a--></r>",
  "<r><!--a-- ></r>",
  "<r><!-></r>",
  "<r><!></r>",
  "<r><!--\x01--></r>",
  "<r><!--\xE4--></r>",
  "<r><!--",
  "<!--",
  "<r/><!--",
  "<r><!--a--",
  "<r><! --a--></r>",
  "<r><?\?></r>",
  "<r><? a?></r>",
  "<r><?a?b?></r>",
  "<r><?a></r>",
  "<r><?a b></r>",
  "<r><?a b? ></r>",
  "<r><?xml?></r>",
  "<r><?xml a?></r>",
  "<r><?XmL a?></r>",
  "<r><?a \x01?></r>",
  "<r><?a \xE4?></r>",
  "<r><?a",
  "<r><?a b",
  "<r><?a b?",
  "<r><?",
  "<!DOCTYPE r [<!-- -- -->]><r/>",
  "<!DOCTYPE r [<!--->]><r/>",
  "<!DOCTYPE r [<!----->]><r/>",
  "<!DOCTYPE r [<!-- a --->]><r/>",
  "<!DOCTYPE r [<!--]><r/>",
  "<!DOCTYPE r [<!-- \x01 -->]><r/>",
  "<!DOCTYPE r [<!-- \xE4 -->]><r/>",
  "<!DOCTYPE r [<!- a -->]><r/>",
  "<!DOCTYPE r [<? p?>]><r/>",
  "<!DOCTYPE r [<?p]><r/>",
  "<!DOCTYPE r [<?p?]><r/>",
  "<!DOCTYPE r [<?p!?>]><r/>",
  "<!DOCTYPE r [<?xml?>]><r/>",
  "<!DOCTYPE r [<?XML a?>]><r/>",
  "<!DOCTYPE r [<?p \x01?>]><r/>",
  "<!DOCTYPE r [<?p \xE4?>]><r/>",
  "<!DOCTYPE r [<?1?>]><r/>",
};

char const* const refused_constraints[] = {
  "x<a/>",
  "<a/>x",
  "<a/><b/>",
  "<!-- -->",
  "</a>",
  "<a/></a>",
  "<a/><!DOCTYPE a>",
  "<!DOCTYPE a><!DOCTYPE a><a/>",
  "<a><!DOCTYPE a></a>",
  "<a/>&b;",
  "<a><!b></a>",
  "<!b><a/>",
  "<a>\x01</a>",
  "<a b='\x02'/>",
  "<!--\x03--><a/>",
  "<?p \x04?><a/>",
  "<a><![CDATA[\x05]]></a>",
  "<a>\xEF\xBF\xBE</a>",
  "<!DOCTYPE a [<!ENTITY e '\x06'>]><a/>",
  "<a\x07/>",
  "<a 1='2'/>",
  "<a><?1?></a>",
  "<a>&1;</a>",
  "<!DOCTYPE 1><a/>",
  "<a>\n]]></a>",
  "<a>1 < 2</a>",
  "<a><!--\n--b --></a>",
  "<a><!-- --->\n</a>",
  "<a><!-- </a>",
  "<a><?p</a>",
  "<a><?p!?></a>",
  "<a><?XML?></a>",
  "<a/><?xml?>",
  " <?xml version='1.0'?><a/>",
  "<a><?\?></a>",
  "<a><![CDATA[ </a>",
  "<a><![cdata[]]></a>",
  "<![CDATA[]]><a/>",
  "<?xml?><a/>",
  "<?xml encoding='UTF-8'?><a/>",
  "<?xml version=1.0?><a/>",
  "<?xml version='1.0'encoding='UTF-8'?><a/>",
  "<?xml version='1.0' encoding=''?><a/>",
  "<?xml version='1.0' standalone='no' encoding='UTF-8'?><a/>",
  "<?xml version='1.0' standalone='?'?><a/>",
  "<!DOCTYPE><a/>",
  "<!DOCTYPE a",
  "<!DOCTYPE a x><a/>",
  "<!DOCTYPE a [",
  "<!DOCTYPE a [] x><a/>",
  "<!DOCTYPE a [x]><a/>",
  "<!DOCTYPE a [<!X>]><a/>",
  "<!DOCTYPE a SYSTEM><a/>",
  "<!DOCTYPE a SYSTEM x><a/>",
  "<!DOCTYPE a PUBLIC 'p'><a/>",
  "<!DOCTYPE a PUBLIC '{' 's'><a/>",
  "<!DOCTYPE a SYSTEM 's><a/>",
  "<!DOCTYPE a [<!ENTITY % p 'ANY'><!ELEMENT a %p;>]><a/>",
  "<!DOCTYPE a [<!ENTITY % p 'v'><!ENTITY e '%p;'>]><a/>",
  "<!DOCTYPE a [<!ENTITY % p '<!ELEMENT a '>%p; ANY>]><a/>",
  "<!DOCTYPE a [<!ENTITY % p '<!ELEMENT a ANY> x'>%p;]><a/>",
  "<a>\n<b>\n</a>",
  "<a></b>",
  "<a></a1>",
  "<a1></a>",
  "<a>",
  "<a>\n<b/>",
  "<a></a b='1'>",
  "<a></a",
  "<a",
  "<a b='1'",
  "<a b='1'c='2'/>",
  "<a/b>",
  "<a <b/></a>",
  "<a b/>",
  "<a b=c/>",
  "<a b='c/>",
  "<a 'b'/>",
  "<a b='1'\n b='2'/>",
  "<!DOCTYPE a [<!ENTITY e SYSTEM 'x'>]><a b='&e;'/>",
  "<!DOCTYPE a [<!ENTITY e SYSTEM 'x'><!ENTITY f '&e;'>]><a b='&f;'/>",
  "<a b='<'/>",
  "<!DOCTYPE a [<!ENTITY e '<'>]><a b='&e;'/>",
  "<!DOCTYPE a [<!ENTITY e '&#60;'>]><a b='&e;'/>",
  "<!DOCTYPE a [<!ELEMENT>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a b>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a (b c)>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a (b,c|d)>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a ()>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a (#PCDATA|b)>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a (#PCDATA,b)*>]><a/>",
  "<!DOCTYPE a [<!ELEMENT a ANY x>]><a/>",
  "<!DOCTYPE a [<!ATTLIST>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a 1>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b X 'c'>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b CDATA c>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b CDATA 'c'd CDATA 'e'>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b (c,d) 'c'>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b (?) 'c'>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b CDATA '<'>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b CDATA '&e;'><!ENTITY e 'x'>]><a/>",
  "<!DOCTYPE a [<![INCLUDE[]]>]><a/>",
  "<!DOCTYPE a [<!ENTITY % p '<![INCLUDE['>%p;]><a/>",
  "<!DOCTYPE a [<!ENTITY % p '<![OTHER[]]>'>%p;]><a/>",
  "<!DOCTYPE a [<!ENTITY % p ']]>'>%p;]><a/>",
  "<!DOCTYPE a [<!ENTITY % p '<![IGNORE[<![]]>'>%p;]><a/>",
  "<a>&#x;</a>",
  "<a>&#;</a>",
  "<a>&#1a;</a>",
  "<a>&#65</a>",
  "<a>& b</a>",
  "<a>&b</a>",
  "<a b='x&c=d'/>",
  "<a>&#0;</a>",
  "<a b='&#xD800;'/>",
  "<a>&#99999999999;</a>",
  "<!DOCTYPE a [<!ENTITY e '&#1;'>]><a/>",
  "<a>\n&b;</a>",
  "<a c='&b;'/>",
  "<?xml version='1.0' standalone='yes'?><!DOCTYPE a [<!ENTITY % p '<!ENTITY e \"x\">'>%p;]><a>&e;</a>",
  "<!DOCTYPE a [<!NOTATION n SYSTEM 'n'><!ENTITY e SYSTEM 'x' NDATA n>]><a>&e;</a>",
  "<!DOCTYPE a [<!NOTATION n SYSTEM 'n'><!ENTITY e SYSTEM 'x' NDATA n>]><a b='&e;'/>",
  "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a>&e;</a>",
  "<!DOCTYPE a [<!ENTITY e '&e;'>]><a b='&e;'/>",
  "<!DOCTYPE a [<!ENTITY % p '&#37;p;'>%p;]><a/>",
  "<!DOCTYPE a [<!ENTITY>]><a/>",
  "<!DOCTYPE a [<!ENTITY e>]><a/>",
  "<!DOCTYPE a [<!ENTITY e x>]><a/>",
  "<!DOCTYPE a [<!ENTITY e 'x>]><a/>",
  "<!DOCTYPE a [<!ENTITY e '%'>]><a/>",
  "<!DOCTYPE a [<!ENTITY e '&'>]><a/>",
  "<!DOCTYPE a [<!ENTITY e '&f'>]><a/>",
  "<!DOCTYPE a [<!ENTITY e '&;'>]><a/>",
  "<!DOCTYPE a [<!ENTITY e 'x& ;y'>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a b CDATA '&;'>]><a/>",
  "<!DOCTYPE a [%;]><a/>",
  "<!DOCTYPE a [<!ENTITY % p ''>%p]><a/>",
  "<a b='&;'/>",
  "<!DOCTYPE a [<!ENTITY e 'x' NDATA n>]><a/>",
  "<!DOCTYPE a [<!ENTITY % e SYSTEM 'x' NDATA n>]><a/>",
  "<!DOCTYPE a [<!ENTITY e SYSTEM 'x' NDATA>]><a/>",
  "<!DOCTYPE a [<!ENTITY e '<b>'>]><a>&e;</b></a>",
  "<!DOCTYPE a [<!ENTITY e '</b>'>]><a><b>&e;</a>",
  "<!DOCTYPE a [<!ENTITY e '<!--'>]><a>&e;--></a>",
  "<!DOCTYPE a [<!ENTITY e '<b'>]><a>&e;/></a>",
  "<!DOCTYPE a [<!ENTITY e '&#38;'>]><a>&e;</a>",
  "<!DOCTYPE a [<!ENTITY e ']]>'>]><a>&e;</a>",
  "<!DOCTYPE a [<!NOTATION>]><a/>",
  "<!DOCTYPE a [<!NOTATION n>]><a/>",
  "<!DOCTYPE a [<!NOTATION n PUBLIC>]><a/>",
  "<!DOCTYPE :a><a/>",
  "<!DOCTYPE a [<!ELEMENT a (b:)>]><a/>",
  "<!DOCTYPE a [<!ATTLIST a :b CDATA ''>]><a/>",
};

}

axmXmlUtest::axmXmlUtest(utUnitTest* given_tester) : tester(given_tester) {}
axmXmlUtest::~axmXmlUtest() = default;

void axmXmlUtest::run_tests(Factory const& factory) const
{
  using Utest = axmXmlUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_documents, "axmXmlUtest::test_documents"},
    {&Utest::test_names, "axmXmlUtest::test_names"},
    {&Utest::test_attributes, "axmXmlUtest::test_attributes"},
    {&Utest::test_references, "axmXmlUtest::test_references"},
    {&Utest::test_texts, "axmXmlUtest::test_texts"},
    {&Utest::test_comments, "axmXmlUtest::test_comments"},
    {&Utest::test_constraints, "axmXmlUtest::test_constraints"},
    {&Utest::test_element_declarations, "axmXmlUtest::test_element_declarations"},
    {&Utest::test_attribute_declarations, "axmXmlUtest::test_attribute_declarations"},
    {&Utest::test_tokens, "axmXmlUtest::test_tokens"},
    {&Utest::test_entity_declarations, "axmXmlUtest::test_entity_declarations"},
    {&Utest::test_entities, "axmXmlUtest::test_entities"},
    {&Utest::test_forms, "axmXmlUtest::test_forms"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

namespace
{
// What a declaration may be made of, and what it may not.
char const* const parts_of_declarations[] = {" version='1.0'", " encoding='UTF-8'", " standalone='yes'",
  " standalone='no'", " version=\"1.0\"", " standalone='YES'", " standalone='No'", " standalone=''",
  " standalone='true'", " standalone=yes", " encoding=''", " encoding=' UTF-8'", " encoding='-'", " version=''",
  " version='1'", " version='1.0 '", " Version='1.0'", " version='1.0", "version='1.0'", "encoding='UTF-8'",
  " other='1'"};

// XML 1.0, 2.8: the version, the encoding or none, whether it stands alone or not told, in this order.
bool is_declaration(std::vector<int> const& parts)
{
  std::size_t at = 0;
  if (at == parts.size() || (parts[at] != 0 && parts[at] != 4))
    return false;
  ++at;
  at += at < parts.size() && parts[at] == 1 ? 1 : 0;
  at += at < parts.size() && (parts[at] == 2 || parts[at] == 3) ? 1 : 0;
  return at == parts.size();
}

// Every declaration of up to three parts.
bool are_declarations_judged(utUnitTest& tester, axmDocumentFactory const& factory)
{
  int const count = static_cast<int>(std::size(parts_of_declarations));
  std::vector<std::vector<int>> rows = {{}};
  for (std::size_t at = 0; at < rows.size(); ++at)
  {
    std::string text = "<?xml";
    for (int const part : rows[at])
      text += parts_of_declarations[part];
    text += "?><r/>";
    axmParseError error;
    bool const is_loaded =
      factory.loadDocument(axmUtestAccess::bytes_of(text.c_str()), axmLoadOptions(), error) != nullptr;
    if (is_loaded != is_declaration(rows[at]) || is_loaded != error.invalid())
    {
      tester.printf("%s: %s", is_loaded ? "loaded, but is no document" : "not loaded", text.c_str());
      return false;
    }
    for (int part = 0; part < count && rows[at].size() < 3; ++part)
    {
      std::vector<int> row = rows[at];
      row.push_back(part);
      rows.push_back(row);
    }
  }
  return true;
}
}

void axmXmlUtest::test_documents(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_documents");
  group.check(all_are_taken(*tester, *factory, taken_documents), "every document is loaded as what it is", __LINE__,
    "documents, their declarations and document types");
  group.check(all_are_refused(*tester, *factory, refused_documents), "everything else fails", __LINE__,
    "documents, their declarations and document types");
  group.check(are_declarations_judged(*tester, *factory), "every declaration is judged", __LINE__,
    "declarations of up to three parts");
}

namespace
{
// The first and the last character of each range of the productions of names, those beside them, and what ASCII has.
char32_t const characters_at_borders[] = {0x9, 0xA, 0xD, 0x20, 0x21, 0x22, 0x26, 0x2C, 0x2D, 0x2E, 0x2F, 0x30, 0x39,
  0x3A, 0x3B, 0x3C, 0x3E, 0x40, 0x41, 0x5A, 0x5B, 0x5E, 0x5F, 0x60, 0x61, 0x7A, 0x7B, 0x7F, 0x80, 0x85, 0xA0, 0xAA,
  0xB5, 0xB6, 0xB7, 0xB8, 0xBA, 0xBF, 0xC0, 0xD6, 0xD7, 0xD8, 0xF6, 0xF7, 0xF8, 0x2FF, 0x300, 0x36F, 0x370, 0x37D,
  0x37E, 0x37F, 0x1FFF, 0x2000, 0x200B, 0x200C, 0x200D, 0x200E, 0x2028, 0x203E, 0x203F, 0x2040, 0x2041, 0x206F, 0x2070,
  0x218F, 0x2190, 0x2BFF, 0x2C00, 0x2FEF, 0x2FF0, 0x3000, 0x3001, 0xD7FF, 0xE000, 0xF8FF, 0xF900, 0xFDCF, 0xFDD0,
  0xFDEF, 0xFDF0, 0xFEFF, 0xFFFD, 0xFFFE, 0xFFFF, 0x10000, 0x1FFFF, 0xEFFFF, 0xF0000, 0x10FFFF};

// Whether every way to give a name takes what is one, and nothing else.
bool is_judged(axmDocumentFactory const& factory, std::string const& text)
{
  apString const name(text.c_str());
  bool const is_name = axmModelText::is_name(name.view());
  auto const document = factory.createDocument(APSTRING("r"));
  auto const named = factory.createDocument(name);
  auto const root = axmUtestAccess::root_of(document);
  auto const element = document != nullptr ? document->createElement(name) : nullptr;
  if (root == nullptr || (named != nullptr) != is_name || (element != nullptr) != is_name)
    return false;
  axmUtestAccess::append(root, element);
  if (axmUtestAccess::length_of(document->getElementsByTagName(name)) != (is_name ? 1 : 0))
    return false;
  root->setAttribute(name, APSTRING("v"));
  if (root->hasAttribute(name) != is_name || root->hasAttributes() != is_name)
    return false;
  // A colon has a meaning of its own there.
  bool const has_colon = text.find(':') != std::string::npos;
  // White space and the ends of tags end a name.
  bool const ends = text.find_first_of("\t\n\r />") != std::string::npos;
  axmParseError error;
  std::string const markup = "<r><" + text + "></" + text + "></r>";
  auto const loaded = factory.loadDocument(axmUtestAccess::bytes_of(markup.c_str()), axmLoadOptions(), error);
  return has_colon || ends || (loaded != nullptr) == is_name;
}

bool are_judged(utUnitTest& tester, axmDocumentFactory const& factory)
{
  bool are_right = true;
  for (char32_t const character : characters_at_borders)
    for (char const* const begin : {"", "a"})
    {
      std::string text = begin;
      utUtf8::append(character, text);
      bool const is_right = is_judged(factory, text) && is_judged(factory, text + "b");
      if (!is_right)
        tester.printf("of the name %s", axmModelText::quoted(apString(text.c_str()).view()).c_str());
      are_right = are_right && is_right;
    }
  return are_right;
}

bool is_loaded_as(axmDocumentFactory const& factory, std::string const& text, std::string const& shape)
{
  auto const document = axmUtestAccess::load(factory, text.c_str());
  return document != nullptr && shape_of(document) == shape;
}

bool fails(axmDocumentFactory const& factory, std::string const& text)
{
  return axmUtestAccess::load(factory, text.c_str()) == nullptr;
}

// Whether `other`, which differs from `name` in one character, is another name wherever one may stand.
bool are_two(axmDocumentFactory const& factory, std::string const& name, std::string const& other)
{
  std::string const declared = "<!DOCTYPE r [<!ENTITY " + name + " 'x'><!ATTLIST " + name + " d CDATA 'y'>]>";
  std::string const attributes = other < name ? other + "='2' " + name + "='1'" : name + "='1' " + other + "='2'";
  return fails(factory, "<" + name + "></" + other + ">") &&
         fails(factory, "<r><" + name + "/><" + name + "></" + other + "></r>") &&
         fails(factory, declared + "<r>&" + other + ";</r>") &&
         is_loaded_as(factory, declared + "<r " + name + "='1' " + other + "='2'><" + other + "/></r>",
           "<r " + attributes + "><" + other + "></" + other + "></r>");
}

// Whether names of every length are one with themselves only, also with one that differs in a single character.
bool are_told_apart(utUnitTest& tester, axmDocumentFactory const& factory)
{
  std::string const letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMN";
  for (std::size_t length = 1; length <= letters.size(); ++length)
  {
    std::string const name = letters.substr(0, length);
    bool are_right = fails(factory, "<r " + name + "='1' " + name + "='2'/>") &&
                     is_loaded_as(factory, "<" + name + "/>", "<" + name + "></" + name + ">");
    for (std::size_t at = 0; at < length && are_right; ++at)
    {
      std::string other = name;
      other[at] = '_';
      are_right = are_two(factory, name, other);
    }
    if (!are_right)
    {
      tester.printf("of the name %s", name.c_str());
      return false;
    }
  }
  return true;
}
}

void axmXmlUtest::test_names(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_names");
  group.check(
    all_are_taken(*tester, *factory, taken_names), "every document is loaded as what it is", __LINE__, "names");
  group.check(all_are_refused(*tester, *factory, refused_names), "everything else fails", __LINE__, "names");
  group.check(
    are_judged(*tester, *factory), "names are taken, all else is not", __LINE__, "characters at the ends of ranges");
  group.check(
    are_told_apart(*tester, *factory), "names that differ are two", __LINE__, "names of any length and one character");
}

void axmXmlUtest::test_attributes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_attributes");
  group.check(all_are_taken(*tester, *factory, taken_attributes), "every document is loaded as what it is", __LINE__,
    "attributes and their normalization");
  group.check(all_are_refused(*tester, *factory, refused_attributes), "everything else fails", __LINE__,
    "attributes and their normalization");
}

void axmXmlUtest::test_references(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_references");
  group.check(all_are_taken(*tester, *factory, taken_references), "every document is loaded as what it is", __LINE__,
    "references");
  group.check(all_are_refused(*tester, *factory, refused_references), "everything else fails", __LINE__, "references");
}

void axmXmlUtest::test_texts(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_texts");
  group.check(all_are_taken(*tester, *factory, taken_texts), "every document is loaded as what it is", __LINE__,
    "texts, line ends and CDATA sections");
  group.check(all_are_refused(*tester, *factory, refused_texts), "everything else fails", __LINE__,
    "texts, line ends and CDATA sections");
  group.check(are_taken_across_borders(*tester, *factory), "every document is loaded as what it is", __LINE__,
    "what lies across a border of blocks");
  group.check(are_bytes_judged(*tester, *factory), "UTF-8 is loaded, all else fails", __LINE__,
    "sequences of bytes in every place");
  group.check(is_white_space_judged(*tester, *factory), "every document is loaded as what it is", __LINE__,
    "white space of every kind, alone and beside a character");
}

void axmXmlUtest::test_comments(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_comments");
  group.check(all_are_taken(*tester, *factory, taken_comments), "every document is loaded as what it is", __LINE__,
    "comments and processing instructions");
  group.check(all_are_refused(*tester, *factory, refused_comments), "everything else fails", __LINE__,
    "comments and processing instructions");
}

void axmXmlUtest::test_constraints(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmXmlUtest::test_constraints");
  group.check(all_are_refused(*tester, *factory, refused_constraints), "everything else fails", __LINE__,
    "what each constraint forbids");
}
