// Each rule of XML 1.0 and its namespaces, by documents that keep and that break it. Numbers are those of the
// productions and sections of XML 1.0.

#include "ExpectRoads.h"

namespace
{
std::string const mark = "\xEF\xBB\xBF";
}

TEST(axsParser_rules, document)
{
  expect_taken({"<r/>", "<r></r>", " \t\r\n<r/> \t\r\n", "<!--a--><?b c?>\n<r/>\n<?d?><!--e-->", mark + "<r/>"});
  expect_refused(
    {"", " ", "text", "<r/>text", "text<r/>", "<r/><r/>", "<r></r><r></r>", "<r>", "<r><a></r>", "</r>", "<r></r></r>",
      "<r/>&#32;", "&#32;<r/>", "<r/><![CDATA[]]>", "<![CDATA[]]><r/>", "<!--a-->", "<?a?>", "<", "<r", "<r/", mark,
      mark + mark + "<r/>", "<r/>" + mark, std::string("<r/>\0", 5), std::string("\0<r/>", 5), "<r/><", "< r/>"});
}

TEST(axsParser_rules, declaration_of_xml)
{
  expect_taken({"<?xml version='1.0'?><r/>", "<?xml version=\"1.0\" ?><r/>", "<?xml\tversion\r\n=\n'1.0'?>\n<r/>",
    "<?xml version='1.0' encoding='UTF-8'?><r/>", "<?xml version='1.0' encoding=\"utf-8\" ?><r>\xC3\xA4</r>",
    "<?xml version='1.0' encoding='US-ASCII'?><r/>", "<?xml version='1.0' encoding='us-ascii'?><r>&#xE4;</r>",
    "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><r/>", "<?xml version='1.0' standalone='no'  ?><r/>",
    mark + "<?xml version='1.0' encoding='UTF-8'?><r/>", mark + "<?xml version='1.0'?><r/>",
    "<?xml version='1.0' encoding='ISO-8859-1'?><r>\xE4</r>", "<?xml version='1.0' encoding='UTF8'?><r/>",
    "<?xml version='1.0' encoding='windows-1252'?><r/>"});
  expect_taken({"<?xml version='1.1'?><r/>"});
  expect_refused({"<?xml?><r/>", "<?xml ?><r/>", "<?xml version=1.0?><r/>", "<?xml version='2.0'?><r/>",
    "<?xml version='1.0\"?><r/>", "<?xml version='1.0'><r/>", "<?xml version='1.0'? ><r/>",
    "<?xml encoding='UTF-8'?><r/>", "<?xml encoding='UTF-8' version='1.0'?><r/>",
    "<?xml version='1.0'encoding='UTF-8'?><r/>", "<?xml version='1.0' encoding='UTF-8'standalone='yes'?><r/>",
    "<?xml version='1.0' standalone='yes' encoding='UTF-8'?><r/>", "<?xml version='1.0' standalone='maybe'?><r/>",
    "<?xml version='1.0' standalone=''?><r/>", "<?xml version='1.0' encoding=''?><r/>",
    "<?xml version='1.0' encoding='no such encoding'?><r/>", "<?xml version='1.0' version='1.0'?><r/>",
    "<?xml version='1.0' unknown='1'?><r/>", " <?xml version='1.0'?><r/>", "<!----><?xml version='1.0'?><r/>",
    "<r/><?xml version='1.0'?>", "<?XML version='1.0'?><r/>", "<?xml version='1.0'?><?xml version='1.0'?><r/>",
    "<?xml version='1.0' encoding='US-ASCII'?><r>\xC3\xA4</r>",
    "<?xml version='1.0' encoding='US-ASCII'?><r a='\xC3\xA4'/>",
    "<?xml version='1.0' encoding='US-ASCII'?><r\xC3\xA4/>", "<?xml version='1.0' encoding='UTF-8'?><r>\xE4</r>",
    "<?xml version='1.0'", "<?xml version='1.", "<?xml"});
}

TEST(axsParser_rules, ascii_is_ascii_up_to_the_end)
{
  std::string const begin = "<?xml version='1.0' encoding='US-ASCII'?><r>" + std::string(100000, 'x');
  expect_taken({begin + "</r>", begin + "&#xE4;</r>"});
  expect_refused({begin + "\xC3\xA4</r>", begin + "<!--\xC3\xA4--></r>", begin + "<a\xC3\xA4/></r>"});
}

TEST(axsParser_rules, encodings_show_in_the_first_bytes)
{
  std::string little = "\xFF\xFE";
  std::string big = "\xFE\xFF";
  for (char const c : std::string("<r>text</r>"))
  {
    little += std::string{c, '\0'};
    big += std::string{'\0', c};
  }
  expect_taken({little, big});
  expect_refused({little.substr(2)});
}

TEST(axsParser_rules, document_types)
{
  expect_taken(
    {"<!DOCTYPE r><r/>", "<!DOCTYPE r ><r/>", "<!DOCTYPE\r\n\tr\n>\n<r/>", "<!--a--><!DOCTYPE other><?b?><r>&amp;</r>",
      "<!DOCTYPE r SYSTEM 's'><r/>", "<!DOCTYPE r SYSTEM \"a's.dtd\" ><r/>", "<!DOCTYPE r SYSTEM ''><r/>",
      "<!DOCTYPE r PUBLIC '-//a (b)+,./:=?;!*#@$_%//EN' \"http://s.dtd?a=b#c\"><r a='  x  '> <b/> </r>",
      "<!DOCTYPE r PUBLIC \"it's\"\n'>'\n><r/>", "<!DOCTYPE r PUBLIC '' ''><r/>", "<!DOCTYPE p:r><r/>",
      "<?xml version='1.0' standalone='yes'?><!DOCTYPE r SYSTEM 's'><r/>", "<!DOCTYPE SYSTEM><r/>",
      "<!DOCTYPE r SYSTEM 'a[b]'><r/>"});
  expect_taken(
    {"<!DOCTYPE r SYSTEM 'a&b'><r/>", "<!DOCTYPE r SYSTEM '\xC3\xA4'><r/>", "<!DOCTYPE r PUBLIC 'a\nb' 's'><r/>"});
  expect_refused({"<!DOCTYPE r SYSTEM 's\x01'><r/>"});
  expect_refused({"<r/><!DOCTYPE r>", "<r><!DOCTYPE r></r>", "<!DOCTYPE r>", "<!ELEMENT r ANY><r/>", "<!DOCTYPE><r/>",
    "<!DOCTYPE ><r/>", "<!DOCTYPEr><r/>", "<!doctype r><r/>", "<!DOCTYPE r", "<!DOCTYPE r SYSTEM",
    "<!DOCTYPE r SYSTEM 's", "<!DOCTYPE r SYSTEM 's'", "<!DOCTYPE r SYSTEM><r/>", "<!DOCTYPE r SYSTEM s><r/>",
    "<!DOCTYPE r SYSTEM's'><r/>", "<!DOCTYPE r PUBLIC><r/>", "<!DOCTYPE r PUBLIC 'p'><r/>",
    "<!DOCTYPE r PUBLIC 'p''s'><r/>", "<!DOCTYPE r PUBLIC'p' 's'><r/>", "<!DOCTYPE r PUBLIC '<' 's'><r/>",
    "<!DOCTYPE r PUBLIC '\"' 's'><r/>", "<!DOCTYPE r PUBLIC '[' 's'><r/>", "<!DOCTYPE r 's'><r/>",
    "<!DOCTYPE r system 's'><r/>", "<!DOCTYPE r SYSTEM 's' 't'><r/>", "<!DOCTYPE r><!DOCTYPE r><r/>",
    "<!DOCTYPE 1><r/>", "<!DOCTYPE r SYSTEM 's'><r>&e;</r>", "<!DOCTYPE rSYSTEM 's'><r/>",
    "<!DOCTYPE r SYSTEM 's']><r/>"});
}

TEST(axsParser_rules, names)
{
  expect_taken({"<_/>", "<a1.-_:b xmlns:a1.-_='u'/>", "<\xC3\xA4/>", "<a\xC2\xB7\xCC\x80/>", "<r \xC3\xA4='1'/>",
    "<?\xC3\xA4 b?><r/>", "<\xF0\x90\x80\x80 a\xF0\x90\x80\x80='1'></\xF0\x90\x80\x80>", "<?\xF0\x90\x80\x80 b?><r/>",
    "<!DOCTYPE \xF0\x90\x80\x80><r/>",
    "<\xF0\x90\x80\x80:a xmlns:\xF0\x90\x80\x80='u' \xF0\x90\x80\x80:\xF3\xAF\xBF\xBF=''/>", "<r></r >", "<r ></r\r\n>",
    "<" + std::string(5000, 'n') + "/>"});
  expect_refused(
    {"<1/>", "<-/>", "<./>", "<\xC2\xB7/>", "<r 1='1'/>", "<r -a='1'/>", "<a\xC3\x97/>", "<a!/>", "<a<b/>", "<r></ r>",
      "<r></r a='1'>", "<r></rr>", "<rr></r>", "<r></R>", "<r></>", "<r><//r>", "<r></r", "<r></", "<?1 a?><r/>",
      "<\xF3\xB0\x80\x80/>", "<a\xF4\x8F\xBF\xBF/>", "<a\xFF/>", "<a\xC3/>", "<a\xE2\x82/>", "<r><a></r></a>"});
}

TEST(axsParser_rules, attributes)
{
  expect_taken({"<r a='1'/>", "<r a=\"1\" b='2'></r>", "<r\ta\r\n=\n '1'\n/>", "<r a=''/>", "<r a='\"' b=\"'\"/>",
    "<r a='>]]>&gt;'/>", "<r b='1' a='2' c='3'/>", "<r a='1' A='1'/>", "<r a='1' p:a='1' xmlns:p='u'/>",
    "<r a = '1' />"});
  expect_refused({"<r a/>", "<r a=/>", "<r a=1/>", "<r a='1\"/>", "<r a='1/>", "<r a='1", "<r a=", "<r a",
    "<r a='1'b='2'/>", "<r a=\"1\"b=\"2\"/>", "<r a='<'/>", "<r a='&'/>", "<r a='& '/>", "<r a='1' a='1'/>",
    "<r a='1' b='2' a='3'/>", "<r a='1' / >", "<r / a='1'/>", "<r =''/>", "<r ='1' a='2'/>", "<r a='1',b='2'/>",
    "<r a=''''/>", "<r a='\x01'/>", "<r></r a='1'>", "<r a='\xE4'/>", "<r a=\xC2\xA0'1'/>", "<ra='1'/>", "<r/a='1'>"});
  expect_refused({std::string("<r a='\0'/>", 10)});
}

// 3.3.3 and 2.11
TEST(axsParser_rules, values_are_normalised)
{
  expect_taken({"<r a='\t'/>", "<r a='\n'/>", "<r a='\r'/>", "<r a='\r\n'/>", "<r a='\r\r\n\n'/>", "<r a=' x  y '/>",
    "<r a='&#9;&#10;&#13;&#32;'/>", "<r a='x\ty\nz\rq' b='\t' c='plain' d='&lt;\n'/>", "<r a='&#xD;\n'/>",
    "<r a='\r&#10;'/>", "<r a='&#13;&#10;'/>"});
}

TEST(axsParser_rules, references)
{
  expect_taken({"<r>&lt;&gt;&amp;&quot;&apos;</r>", "<r a='&lt;&gt;&amp;&quot;&apos;'/>", "<r>&amp;lt;</r>",
    "<r>&#65;&#x41;&#x00041;&#xe4;&#xE4;&#8364;&#x1D11E;&#119070;&#x10FFFF;&#xD7FF;&#xE000;&#xFFFD;</r>",
    "<r>a&#65;b&#66;c</r>", "<r>&#127;&#x80;&#x7FF;&#x800;&#xFFFD;&#x10000;</r>", "<r a='&#60;&#38;&#39;&#34;'/>",
    "<r>&#60;a&#62;</r>", "<r>&#38;lt;</r>"});
  expect_taken({"<r>&#x0000000000041;</r>"});
  expect_refused({"<r>&</r>", "<r>& </r>", "<r>&;</r>", "<r>&lt</r>", "<r>&lt ;</r>", "<r>& lt;</r>", "<r>&nbsp;</r>",
    "<r>&LT;</r>", "<r>&#;</r>", "<r>&#x;</r>", "<r>&#X41;</r>", "<r>&#xG;</r>", "<r>&#A;</r>", "<r>&#65</r>",
    "<r>&#65 ;</r>", "<r>&#-65;</r>", "<r>&#0;</r>", "<r>&#1;</r>", "<r>&#11;</r>", "<r>&#31;</r>", "<r>&#xD800;</r>",
    "<r>&#xDFFF;</r>", "<r>&#xFFFE;</r>", "<r>&#xFFFF;</r>", "<r>&#x110000;</r>", "<r>&#xFFFFFFFF;</r>",
    "<r>&#x100000041;</r>", "<r>&#4294967361;</r>", "<r>&#99999999999999999999;</r>", "<r>&lt", "<r>&#65", "<r>&#",
    "<r>&", "<r a='&#0;'/>"});
}

TEST(axsParser_rules, text)
{
  expect_taken({"<r>text</r>", "<r> </r>", "<r>  </r>", "<r>\n</r>", "<r>a<b/>c<b/></r>", "<r>\ta\n</r>", "<r>]</r>",
    "<r>]]</r>", "<r>] ]></r>", "<r>]&gt;</r>", "<r>]]&gt;</r>", "<r>]]&#62;</r>", "<r>&#93;&#93;></r>", "<r>></r>",
    "<r>]></r>", "<r>]<a/>]></r>", "<r>]]<a/>></r>", "<r>]]<!---->></r>", "<r>]]<![CDATA[]]>></r>", "<r>]<?a?>]></r>",
    "<r>\"'</r>", "<r>\x7F</r>", "<r>\xC2\x80</r>", "<r>\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E</r>",
    "<r>\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD</r>", "<r>" + mark + "</r>"});
  expect_refused({"<r>]]></r>", "<r>]]]></r>", "<r>a]]>b</r>", "<r>\x01</r>", "<r>\x1F</r>", "<r>\x0B</r>",
    "<r>\x0C</r>", "<r>\xEF\xBF\xBE</r>", "<r>\xEF\xBF\xBF</r>", "<r>\xED\xA0\x80</r>", "<r>\xC0\x80</r>",
    "<r>\xE0\x80\x80</r>", "<r>\xF4\x90\x80\x80</r>", "<r>\xF8\x88\x80\x80\x80</r>", "<r>\x80</r>", "<r>\xC3</r>",
    "<r>\xE2\x82</r>", "<r>\xC3\xA4", "<r>\xC3", "<r>]]>", "<r>]]", "<r>a"});
  expect_refused({std::string("<r>\0</r>", 8)});
}

TEST(axsParser_rules, line_ends)
{
  expect_taken({"<r>\r</r>", "<r>a\rb\r\nc\n\rd\r\r\ne\r</r>", "<r>\r\n</r>", "<r>&#13;\n</r>", "<r>\r&#10;</r>",
    "<r><!--\r\n\r--></r>", "<?a b\r\nc\rd?><r/>", "<r><![CDATA[\r\na\r]]></r>", "<r>\xC2\x85\xE2\x80\xA8</r>",
    "<r\r\n></r\r>\r\n"});
}

TEST(axsParser_rules, comments)
{
  expect_taken(
    {"<r><!----></r>", "<r><!-- a --></r>", "<r><!--<a>&b;]]>?>--></r>", "<r><!-- - - --></r>", "<r><!-->--></r>",
      "<r><!--->a--></r>", "<r><!---a--></r>", "<r><!--\xC3\xA4\n\t--></r>", "<r>a<!--b-->c</r>", "<r> <!--b--> </r>"});
  expect_refused({"<r><!-- -- --></r>", "<r><!-----></r>", "<r><!--a---></r>", "<r><!--a></r>", "<r><!-a--></r>",
    "<r><!--a-- ></r>", "<r><!-></r>", "<r><!></r>", "<r><!--\x01--></r>", "<r><!--\xE4--></r>", "<r><!--", "<!--",
    "<r/><!--", "<r><!--a--", "<r><! --a--></r>"});
  expect_refused({std::string("<r><!--\0--></r>", 15)});
}

TEST(axsParser_rules, processing_instructions)
{
  expect_taken({"<r><?a?></r>", "<r><?a ?></r>", "<r><?a b?></r>", "<r><?a   b  ?></r>", "<r><?a\tb\n?></r>",
    "<r><?a ?\?></r>", "<r><?a b?c>?></r>", "<r><?a <b>&c;]]>-->?></r>", "<r><?xml-stylesheet a='b'?></r>",
    "<?xmla?><r/>", "<r><?a \xC3\xA4?></r>", "<?a?><?b?><r/><?c?>", "<r><?a b ?\t?></r>"});
  expect_refused({"<r><?\?></r>", "<r><? a?></r>", "<r><?a?b?></r>", "<r><?a></r>", "<r><?a b></r>", "<r><?a b? ></r>",
    "<r><?xml?></r>", "<r><?xml a?></r>", "<r><?XmL a?></r>", "<r><?a \x01?></r>", "<r><?a \xE4?></r>", "<r><?a",
    "<r><?a b", "<r><?a b?", "<r><?", "<r><?a:b?></r>", "<?a:b c?><r/>"});
}

TEST(axsParser_rules, cdata_sections)
{
  expect_taken({"<r><![CDATA[]]></r>", "<r><![CDATA[a]]></r>", "<r><![CDATA[ ]]></r>", "<r><![CDATA[  ]]></r>",
    "<r><![CDATA[<a>&b;]]></r>", "<r><![CDATA[]]]></r>", "<r><![CDATA[]]]]></r>", "<r><![CDATA[]>]]></r>",
    "<r><![CDATA[a]]b]]></r>", "<r>a<![CDATA[b]]>c</r>", "<r><![CDATA[a]]><![CDATA[b]]></r>",
    "<r><![CDATA[a]]]]><![CDATA[>b]]></r>", "<r> <![CDATA[b]]> </r>", "<r><![CDATA[<![CDATA[]]></r>",
    "<r><![CDATA[\xC3\xA4\r\n]]></r>", "<r>a<![CDATA[]]>b</r>"});
  expect_refused({"<r><![CDATA[</r>", "<r><![CDATA[]]</r>", "<r><![CDATA[]] ></r>", "<r><![CDATA []]></r>",
    "<r><![cdata[]]></r>", "<r><! [CDATA[]]></r>", "<r><![CDATA]]></r>", "<r><![CDATA[\x01]]></r>",
    "<r><![CDATA[\xE4]]></r>", "<r><![CDATA[]]>]]></r>", "<r><![CDATA[", "<r><![CDATA[]]", "<r><![", "<r><!"});
  expect_refused({std::string("<r><![CDATA[\0]]></r>", 20)});
}

// Namespaces in XML 1.0
TEST(axsParser_rules, namespaces)
{
  std::string const xml = "http://www.w3.org/XML/1998/namespace";
  std::string const xmlns = "http://www.w3.org/2000/xmlns/";
  expect_taken({"<r xmlns='u'/>", "<r xmlns=''/>", "<r xmlns='u'><a xmlns=''/></r>", "<p:r xmlns:p='u'/>",
    "<r xmlns:p='u'><p:a p:b='1'/></r>", "<r xmlns:p='u'><p:a xmlns:p='v'/><p:a/></r>",
    "<r xml:lang='en' xml:space='preserve'/>", "<xml:r/>", "<r xmlns:xml='" + xml + "'/>", "<r p:a='1' xmlns:p='u'/>",
    "<r a='1' p:a='1' xmlns:p='u' xmlns='u'/>", "<r xmlns:p='u' xmlns:q='v' p:a='1' q:a='1'/>",
    "<r xmlns:p='u' xmlns:q='u' p:a='1' q:b='1'/>", "<r xmlns:p='&#117;'><p:a/></r>", "<r xmlns:a='u' a:a='1' a='2'/>",
    "<r xmlns:p='u'><a xmlns:q='v' q:c='1'><p:b q:c='1'/></a></r>", "<r xmlns:XML='u' XML:a='1'/>"});
  expect_refused({"<p:r/>", "<r p:a='1'/>", "<r><a xmlns:p='u'/><p:b/></r>", "<r xmlns:p=''/>",
    "<r xmlns:p='u'><a xmlns:p=''/></r>", "<r xmlns:xml='u'/>", "<r xmlns:xmlns='u'/>", "<r xmlns:p='" + xml + "'/>",
    "<r xmlns:p='" + xmlns + "'/>", "<r xmlns='" + xml + "'/>", "<r xmlns='" + xmlns + "'/>", "<xmlns:r/>",
    "<r xmlns:xmlns='" + xmlns + "'/>", "<:r/>", "<r:/>", "<:/>", "<r xmlns:p='u'><p:a:b/></r>",
    "<r xmlns:p='u' p:a:b='1'/>", "<r xmlns:='u'/>", "<r :a='1'/>", "<r xmlns:p='u'><p:1/></r>", "<r xmlns:a:b='u'/>",
    "<r xmlns:p='u' xmlns:q='u' p:a='1' q:a='1'/>", "<r xmlns:p='u' xmlns:q='&#117;' p:a='1' b='2' q:a='1'/>",
    "<r xmlns:p='u' xmlns:p='v'/>", "<r xmlns='u' xmlns='u'/>", "<r xmlns:p='u'></r><p:a/>",
    "<r><p:a xmlns:q='u'></p:a></r>", "<r xmlns:p='u' xmlns:q='u'><a p:a='1' p:b='1' q:a='1'/></r>"});
}
