#include "EditTrial.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

// Random edits; see EditTrial.
namespace
{
namespace fs = std::filesystem;

std::string const hard_document =
  "\xEF\xBB\xBF<?xml version='1.0' encoding=\"utf-8\" ?>\r\n<!DOCTYPE list [\r\n  <!ENTITY word 'some <b>text</b>'>\r\n"
  "  <!ATTLIST item kind CDATA #IMPLIED tokens NMTOKENS #IMPLIED>\r\n]>\r\n<!-- before --><?p q?>\r\n"
  "<list xmlns:p='urn:p'  a = \"1>2\"\r\n   b='&lt;\t&#65;'>\r\n\t<item id=\"i1\">x<![CDATA[<item>]]>y</item >\r\n"
  "\t<item\ttokens='a b'/>\r\n\t<p:item p:z='\xC3\xA4\xE2\x82\xAC'><deep><deep><deep/></deep></deep></p:item>\r\n"
  "  <mixed>one <i>two</i> three <i/>\r\n four &amp; \xF0\x9D\x84\x9E</mixed>\r\n  <pre xml:space='preserve'>\r\n "
  "<i/>\r\n </pre>"
  "\r\n\r\n  <i/><i/> <i/>\r\n <!-- <item/> --> <?item <i/>?>\r\n</list>\r\n<!-- after -->\r\n";

std::string contents(fs::path const& path)
{
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

int number_of_edits()
{
  char const* const wanted = std::getenv("AXM_EDITS");
  return wanted == nullptr ? 300 : std::atoi(wanted);
}

// Those of the repository, and those in the folder that AXM_EDIT_DOCUMENTS names. What the scanner cannot see, elements in
// entities, none of them has.
std::vector<EditedDocument> documents()
{
  std::vector<EditedDocument> all;
  std::string plain = hard_document;
  all.emplace_back(plain);
  for (char const* const name : {"examples/books.xml", "examples/stations.xml", "examples/stations.xsd",
         "data/in_memory_test_schema.xsd", "tests/suites/schemas/order_good.xml"})
    all.emplace_back(contents(fs::path(AXM_SAMPLES) / name));
  if (char const* const folder = std::getenv("AXM_EDIT_DOCUMENTS"))
    for (fs::directory_entry const& entry : fs::directory_iterator(folder))
      if (entry.path().extension() == ".xml")
        all.emplace_back(contents(entry.path()));
  return all;
}
}

TEST(axsEditor_generated, edits_change_nothing_else_and_mean_what_the_tree_says)
{
  std::vector<EditedDocument> const all = documents();
  std::mt19937 random(7);
  // Large documents have their share of bytes, not of edits.
  std::vector<double> weights;
  for (EditedDocument const& document : all)
    weights.push_back(1 / std::max(20000.0, static_cast<double>(document.bytes.size())));
  std::discrete_distribution<std::size_t> choice(weights.begin(), weights.end());
  for (int i = 0; i < number_of_edits() && !testing::Test::HasFailure(); ++i)
  {
    std::size_t const number = i < static_cast<int>(all.size()) ? static_cast<std::size_t>(i) : choice(random);
    SCOPED_TRACE("document " + std::to_string(number) + ", edit " + std::to_string(i));
    EditTrial(all[number], random).run();
  }
}

TEST(axsEditor_generated, edits_of_what_is_in_utf_16_are_those_of_utf_8)
{
  std::mt19937 random(8);
  for (int i = 0; i < 60; ++i)
  {
    auto const wide = [&](std::string text)
    {
      text.replace(text.find("utf-8"), 5, "utf-16");
      return Markup::encoded(text, i % 2 == 0 ? Markup::utf_16_le : Markup::utf_16_be);
    };
    std::string const chosen = EditTrial::number_of(1 + random() % 14);
    auto const where = static_cast<axsEditPlace>(random() % 4);
    auto const edit = [&](axsEditor& editor)
    { return i % 3 == 0 ? editor.remove(chosen) : editor.insert(chosen, where, "<n>\xE2\x82\xAC</n>"); };
    axsEditor one(hard_document, apPath());
    axsEditor other(wide(hard_document), apPath());
    EXPECT_EQ(edit(one), 1u) << chosen;
    EXPECT_EQ(edit(other), 1u) << chosen;
    EXPECT_EQ(other.bytes(), wide(one.bytes())) << chosen;
  }
}
