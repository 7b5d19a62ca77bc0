// The exact readers against the engine's tree: of the same document, walks and rows that chance chooses have what is there.

#include "RandomDocument.h"
#include "TreeModel.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace
{
// More of them where AXM_READER_WALKS asks for so many.
unsigned number_of_documents()
{
  char const* const wanted = std::getenv("AXM_READER_WALKS");
  return wanted == nullptr ? 5000 : static_cast<unsigned>(std::atoi(wanted));
}

char const odd[] =
  "\xEF\xBB\xBF<?xml version='1.0'?>\r\n<!DOCTYPE r [<!ENTITY e '<b k=\"1\">x</b>y'><!ENTITY t "
  "'&#38;#60;'><!ATTLIST b d CDATA ' D '>]>\r\n<r xmlns:p='urn:p'\txml:space='preserve'> <b k = '>&t;\r\n' "
  "/>\r\ntext<!--<b>--> more<![CDATA[<b k='no'>]]&gt;]]>&e;<p:b p:k='&amp;'>\xF0\x9D\x84\x9E</p:b\n></r>\n";
}

TEST(tree_agreement, walks_and_rows_have_what_the_tree_has)
{
  RandomDocument documents(20261122);
  for (unsigned i = 0; i < number_of_documents(); ++i)
  {
    std::string const document = documents.next();
    std::size_t const piece = i % 2 == 0 ? 1u << 20 : 1 + documents.below(20);
    ASSERT_EQ("", reader_difference(document, i, piece)) << i << '\n' << document;
  }
}

TEST(tree_agreement, every_cut_of_a_document_into_pieces_gives_the_same)
{
  std::string const document = odd;
  for (std::size_t piece = 1; piece <= document.size(); ++piece)
    for (unsigned seed = 0; seed < 5; ++seed)
      ASSERT_EQ("", reader_difference(document, seed, piece)) << piece;
}

TEST(tree_agreement, pieces_of_a_document_longer_than_any_buffer_give_the_same)
{
  std::string document = "<r xml:space='preserve' k='" + std::string(70000, 'v') + "'>";
  for (int i = 0; i < 3000; ++i)
    document +=
      "<e n='" + std::to_string(i) + "'>text &amp; more<!--" + std::string(50, '.') + "--><f>\xC3\xA4</f></e>\r\n";
  document += "<t>" + std::string(200000, 'x') + "</t></r>";
  unsigned seed = 0;
  for (std::size_t const piece : {1, 7, 4095, 4096, 4097, 65535, 65536, 65537, 1 << 20})
    ASSERT_EQ("", reader_difference(document, ++seed, piece)) << piece;
}
