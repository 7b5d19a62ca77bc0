#include "documents.h"

#include <fstream>

namespace
{
std::string const start = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>";
}

Made make_books(std::string const& folder, int records)
{
  Made made{std::to_string(records) + " books", folder + "/books.xsd", folder + "/books.xml"};
  std::ofstream(made.schema)
    << start
    << "<xs:element name='catalog'><xs:complexType><xs:sequence><xs:element name='book' type='book' "
       "maxOccurs='unbounded'/>"
       "</xs:sequence></xs:complexType></xs:element><xs:complexType name='book'><xs:sequence>"
       "<xs:element name='author' type='xs:string' maxOccurs='5'/><xs:element name='title' type='xs:token'/>"
       "<xs:element name='price'><xs:complexType><xs:simpleContent><xs:extension base='xs:decimal'>"
       "<xs:attribute name='currency' use='required'><xs:simpleType><xs:restriction base='xs:string'>"
       "<xs:pattern value='[A-Z]{3}'/></xs:restriction></xs:simpleType></xs:attribute></xs:extension>"
       "</xs:simpleContent></xs:complexType></xs:element><xs:element name='published' type='xs:date'/>"
       "<xs:element name='description' type='xs:string'/></xs:sequence><xs:attribute name='id' type='xs:NCName' "
       "use='required'/><xs:attribute name='lang' type='xs:language'/>"
       "<xs:attribute name='pages' type='xs:positiveInteger'/></xs:complexType></xs:schema>";
  std::ofstream document(made.document);
  document << "<catalog>\n";
  for (int i = 0; i < records; ++i)
    document << "  <book id='b" << i << "' lang='en' pages='" << 10 + i % 900 << "'>\n    <author>Author " << i % 977
             << ", N.</author>\n    <title>The title of book " << i << "</title>\n    <price currency='EUR'>" << i % 90
             << ".95</price>\n    <published>20" << 10 + i % 14 << "-0" << 1 + i % 9 << "-1" << i % 10
             << "</published>\n    <description>What is told in book " << i
             << " at some length, in a sentence or two that say what one may expect.</description>\n  </book>\n";
  document << "</catalog>\n";
  return made;
}

Made make_keys(std::string const& folder, int records)
{
  Made made{std::to_string(records) + " keys", folder + "/keys.xsd", folder + "/keys.xml"};
  std::ofstream(made.schema)
    << start
    << "<xs:element name='list'><xs:complexType><xs:sequence><xs:element name='i' "
       "maxOccurs='unbounded'><xs:complexType>"
       "<xs:attribute name='k' type='xs:int'/><xs:attribute name='next' type='xs:int'/></xs:complexType></xs:element>"
       "</xs:sequence></xs:complexType><xs:key name='k'><xs:selector xpath='i'/><xs:field xpath='@k'/></xs:key>"
       "<xs:keyref name='f' refer='k'><xs:selector xpath='i'/><xs:field xpath='@next'/></xs:keyref></xs:element>"
       "</xs:schema>";
  std::ofstream document(made.document);
  document << "<list>\n";
  for (int i = 0; i < records; ++i)
    document << "<i k='" << i << "' next='" << (i + 1) % records << "'/>\n";
  document << "</list>\n";
  return made;
}
