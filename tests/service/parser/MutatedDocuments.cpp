#include "MutatedDocuments.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{
std::vector<std::string> const documents = {
  "<?xml version='1.0' encoding='UTF-8'?>\n<r a='1' b=\"2\"><c>text</c><!--d--><?e f?><![CDATA[g]]></r>\n",
  "<p:r xmlns:p='u' xmlns:q='v' xmlns='w'><p:a q:b='1' p:b='2'/><q:c xmlns:q='u'><d xmlns=''/></q:c></p:r>",
  "<r>a&lt;b&#65;c&#x20AC;]]d\r\ne\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E</r>",
  "<a><b><c x='&quot;\t\n\r'/></b><b/></a><!-- - -->", "\xEF\xBB\xBF<?a b?><r> <x> </x>\n</r>",
  "<!DOCTYPE r PUBLIC '-//p//' \"s.dtd\">\n<r a=' b  c '/>", "<!DOCTYPE r SYSTEM 's'><!--a--><r>&amp;</r>",
  "<!DOCTYPE r [<!ELEMENT r (a,(b|c)*)+><!ELEMENT a (#PCDATA|b)*>\n<!NOTATION n PUBLIC 'p'><!--c--><?p d?>]><r/>",
  "<!DOCTYPE r [<!ATTLIST r a CDATA '1' b NMTOKENS #FIXED ' 2  3 '><!ATTLIST c b (d|e) #IMPLIED>]><r><c b=' d '/></r>",
  "<!DOCTYPE r SYSTEM 's' [<!ENTITY e '&#65;&f;'> <!ATTLIST r xmlns:p CDATA 'u' p:a NOTATION (n) #IMPLIED>]><r "
  "p:a=''/>",
  "<!DOCTYPE r [<!ATTLIST r a ID '&#32;&lt;\xC3\xA4\t'>\n<!ENTITY e \"x\"><!ELEMENT r ANY>]><r b='&#9; '>&amp;</r>",
  "<!DOCTYPE r [<!ENTITY e '\t&#65; '><!ENTITY f \"'\"><!ATTLIST r a NMTOKENS ''>]><r a='x&e; y' "
  "b='&f;'>]]&e;z&f;<a/></r>"};

std::vector<std::string> const parts = {"<", ">", "/>", "</", "<!--", "-->", "--", "-", "<![CDATA[", "]]>", "]]", "]",
  "<?", "?>", "?", "&", ";", "&lt;", "&amp;", "&#", "&#x", "&#65;", "&#xD;", "&#0;", "&e;", "'", "\"", "=", " ", "\t",
  "\n", "\r", "\r\n", ":", "xmlns", "xmlns:", "xml", "p:", "q:", " a='1'", " p:b='1'", " xmlns:p='u'", " xmlns:q='u'",
  " xmlns=''", "<a>", "</a>", "<b/>", "\xC3\xA4", "\xC3", "\xA4", "\xE2\x82\xAC", "\xED\xA0\x80", "\xEF\xBF\xBE",
  "\xEF\xBC\x8C", "\xC2\xB7", "\xEF\xBB\xBF", "\x01", std::string(1, '\0'), "\x7F", "<!DOCTYPE r>",
  "<!DOCTYPE r SYSTEM 's'>", "[]", "SYSTEM", "PUBLIC", "|", ",", "*", "(", ")", "#PCDATA", "#FIXED ", "#IMPLIED",
  " a CDATA '2'", " b NMTOKEN '  3 '", "<!ATTLIST r ", "<!ELEMENT r ", "<!ENTITY e 'x'>", "%", "<?xml version='1.0'?>",
  " standalone='yes'", "version", "1"};
}

std::string MutatedDocuments::next()
{
  std::string document = documents[below(documents.size())];
  for (std::size_t changes = 1 + below(3); changes > 0; --changes)
    change(document);
  return document;
}

std::size_t MutatedDocuments::below(std::size_t bound)
{
  return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
}

void MutatedDocuments::change(std::string& document)
{
  std::size_t const at = below(document.size() + 1);
  std::size_t const length = std::min(below(8), document.size() - at);
  switch (below(5))
  {
  case 0:
    document.erase(at, length);
    return;
  case 1:
    document.insert(at, document.substr(below(document.size() + 1), length));
    return;
  case 2:
    document.replace(at, length, parts[below(parts.size())]);
    return;
  default:
    document.insert(at, parts[below(parts.size())]);
    return;
  }
}
