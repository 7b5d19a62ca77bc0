// The layout of axsFormatter on the W3C's XML conformance suite and, where AXM_DOCUMENTS names a folder, on the documents in
// it: what is laid out says what it said, and stays as it is when it is laid out again.

#include "../service/TextStream.h"
#include "XmlSuite.h"

#include <axsComparison.h>
#include <axsFormatter.h>

#include <apString.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{
std::string contents(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool format(std::string const& text, axsFormatOptions const& options, std::string& result)
{
  axmParseError error;
  result.clear();
  return axsFormatter::format(apByteArray(text.data(), text.size()), options, error, appending_to(result));
}

std::string first_difference(std::string const& before, std::string const& after)
{
  axsCompareOptions options;
  options.ignores_layout = true;
  axsComparison comparison(options);
  axmParseError error;
  TextStream first(before);
  TextStream second(after);
  if (!comparison.read_first(first, error) || !comparison.read_second(second, error))
    return error.message().to_utf8().c_str();
  std::string path;
  comparison.run(
    [&](axsDifference const& difference)
    {
      path = difference.path + ": " + difference.before + " -> " + difference.after;
      return false;
    });
  return path;
}

// Whether there was something to lay out.
bool check(std::string const& file)
{
  axsFormatOptions narrow;
  narrow.width = 40;
  narrow.attributes_per_line = 2;
  narrow.has_tabs = true;
  std::string const text = contents(file);
  for (axsFormatOptions const& options : {axsFormatOptions(), narrow})
  {
    std::string once;
    if (!format(text, options, once))
      return false;
    EXPECT_EQ(first_difference(text, once), "") << file;
    std::string twice;
    EXPECT_TRUE(format(once, options, twice)) << file;
    EXPECT_TRUE(once == twice) << file;
  }
  return true;
}
}

TEST(xml_suite_layout, says_the_same_and_stays_as_it_is)
{
  int laid_out = 0;
  for (XmlTest const& test : read_xml_suite(AXM_XML_SUITE))
    for (std::string const& file : {test.file, test.canonical_file})
      if (!file.empty())
        laid_out += check(file) ? 1 : 0;
  EXPECT_GT(laid_out, 1500);
}

TEST(xml_suite_layout, says_the_same_of_the_documents_at_hand)
{
  char const* const folder = std::getenv("AXM_DOCUMENTS");
  for (std::filesystem::path const& each : {std::filesystem::path(AXM_SOURCE) / "data",
         std::filesystem::path(AXM_SOURCE) / "examples", std::filesystem::path(folder == nullptr ? "" : folder)})
    for (auto const& file : std::filesystem::directory_iterator(each.empty() ? AXM_SOURCE : each))
      if (file.path().extension() == ".xml" || file.path().extension() == ".xsd")
        check(file.path().string());
}
