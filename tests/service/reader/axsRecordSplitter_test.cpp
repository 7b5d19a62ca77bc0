#include "../Engine.h"

#include <axsRecordSplitter.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace
{
using Parts = axsRecordSplitter::Parts;
using Namespaces = std::map<std::string, std::string>;

Parts parts_of(
  std::string const& document, std::string const& path, std::size_t count, Namespaces const& namespaces = {})
{
  TestFile const file("axsRecordSplitter.xml", document);
  axmParseError error;
  Parts parts;
  EXPECT_TRUE(
    axsRecordSplitter::split(file.path(), path, namespaces, count, axmLoadOptions(axmValidateNone), error, parts))
    << narrow(error.message());
  return parts;
}

// Of each part the document that it is of its own.
std::vector<std::string> documents_of(std::string const& document, Parts const& parts)
{
  std::vector<std::string> made;
  std::string const prolog = document.substr(0, parts.prolog_end);
  for (axsRecordSplitter::Part const& part : parts.parts)
    made.push_back(prolog + part.open_tags + document.substr(part.begin, part.end - part.begin) + part.close_tags);
  return made;
}

std::string error_of_split(std::string const& document)
{
  TestFile const file("axsRecordSplitter.xml", document);
  axmParseError error;
  Parts parts;
  EXPECT_FALSE(axsRecordSplitter::split(file.path(), "r/e", {}, 2, axmLoadOptions(axmValidateNone), error, parts));
  return std::to_string(error.line_number()) + ": " + narrow(error.message());
}
}

TEST(axsRecordSplitter, each_part_with_the_tags_around_it_is_a_document)
{
  auto const record = [](char digit) { return "<e>" + std::string(200, digit) + "</e>"; };
  std::string const document = "<!DOCTYPE r>\n<r xmlns:p='a&amp;b&lt;&quot;&#9;&#10;&#13;c' x='1'>\n" + record('1') +
                               record('2') + "\n" + record('3') + record('4') + "</r>";
  Parts const parts = parts_of(document, "r/e", 2);
  EXPECT_EQ(parts.records, 4u);
  EXPECT_EQ(parts.size, document.size());
  EXPECT_EQ(parts.prolog_end, document.find("<r"));
  EXPECT_EQ(parts.prolog_lines, 2u);
  ASSERT_EQ(parts.parts.size(), 2u);
  EXPECT_EQ(parts.parts[0].open_tags, "");
  EXPECT_EQ(parts.parts[0].close_tags, "</r>");
  EXPECT_EQ(parts.parts[1].first_record, 2u);
  EXPECT_EQ(parts.parts[1].line, 4u);
  EXPECT_EQ(parts.parts[1].column, 1u);
  // What a declaration would be read as otherwise is a reference there.
  EXPECT_EQ(parts.parts[1].open_tags, "<r xmlns:p=\"a&amp;b&lt;&quot;&#9;&#10;&#13;c\">");
  std::vector<std::string> texts;
  for (std::string const& part : documents_of(document, parts))
    texts.push_back(narrow(load(part)->getDocumentElement()->get_text()));
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_NE(texts[0].find("12"), std::string::npos);
  EXPECT_EQ(texts[0].find("3"), std::string::npos);
  EXPECT_NE(texts[1].find("34"), std::string::npos);
  EXPECT_EQ(texts[1].find("2"), std::string::npos);
}

TEST(axsRecordSplitter, a_document_has_no_more_parts_than_records)
{
  EXPECT_EQ(parts_of("<r><e/><e/></r>", "r/e", 10).parts.size(), 2u);
  EXPECT_EQ(parts_of("<r><e/><e/></r>", "r/e", 1).parts.size(), 1u);
  EXPECT_EQ(parts_of("<r><f/></r>", "r/e", 3).parts.size(), 0u);
  EXPECT_EQ(parts_of("<r/>", "r/e", 3).records, 0u);
}

TEST(axsRecordSplitter, records_count_by_their_namespaces)
{
  EXPECT_EQ(parts_of("<r xmlns:q='u'><q:e/><e/><q:e/></r>", "r/p:e", 3, {{"p", "u"}}).records, 2u);
}

TEST(axsRecordSplitter, what_cannot_be_cut_is_told)
{
  EXPECT_EQ(error_of_split("<r>\n<e></r>").substr(0, 2), "2:");
  EXPECT_NE(error_of_split("<?xml version='1.0' encoding='ISO-8859-1'?><r><e/></r>").find("UTF-8"), std::string::npos);
  EXPECT_EQ(parts_of("<?xml version='1.0' encoding='US-ASCII'?><r><e/></r>", "r/e", 1).records, 1u);
}
