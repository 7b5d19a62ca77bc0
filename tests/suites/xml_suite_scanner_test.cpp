// The scanner of ordinary documents against the W3C's XML conformance suite: what it takes, the parser takes, too, with
// the same tree, and it takes nothing that the suite says is not well-formed.

#include "BothRoads.h"
#include "XmlSuite.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace
{
std::string contents(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << file;
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}
}

TEST(xml_suite_scanner, agrees_with_the_parser_on_every_document)
{
  int scanned = 0;
  for (XmlTest const& test : read_xml_suite(AXM_XML_SUITE))
    for (std::string const& file : {test.file, test.canonical_file})
    {
      if (file.empty())
        continue;
      BothRoads const roads(contents(file));
      EXPECT_EQ(roads.difference(), "") << file;
      scanned += roads.scanned() ? 1 : 0;
    }
  // Most documents of the suite are wrong or use entities.
  EXPECT_GT(scanned, 1500);
}
