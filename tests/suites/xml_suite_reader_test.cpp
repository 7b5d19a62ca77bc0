// The exact readers on the W3C's XML conformance suite: a full walk takes and refuses what a load takes and refuses.

#include "Engine.h"
#include "TreeModel.h"
#include "XmlSuite.h"

#include <axsRecordReader.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <vector>

namespace
{
std::string contents(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

axmLoadOptions options()
{
  axmLoadOptions made(axmValidateNone);
  made.set_disable_entity_resolution(false);
  return made;
}

Reader reader_at(std::string const& file)
{
  return axsXmlFactory(options()).create_xml_reader_path(utPtrReleaseToCaller, apPath(file.c_str()));
}

utString name_of(std::string const& name)
{
  return utString(name.data(), static_cast<int>(name.size()));
}

// Enters every element below, each once, and asks for all of its texts.
void walk_everything(TreeModel const& tree, axmAbstractXmlReader& reader)
{
  struct Open
  {
    std::size_t element;
    std::size_t next;
  };
  std::vector<Open> open;
  if (reader.down_to(name_of(tree.at(0).name)))
    open.push_back({0, 0});
  while (!open.empty())
  {
    reader.text_node();
    TreeModel::Element const& element = tree.at(open.back().element);
    std::size_t const child = open.back().next++;
    if (child == element.children.size())
    {
      reader.up();
      open.pop_back();
    }
    else if (reader.down_to(name_of(tree.at(element.children[child]).name)))
      open.push_back({element.children[child], 0});
    else
      return;
  }
}

enum class Verdict
{
  taken,
  refused,
  unknown // no name in the document's bytes is that of its root
};

Verdict walked(std::string const& file, TreeModel const* tree)
{
  Reader const reader = reader_at(file);
  if (!reader->read_file())
    return Verdict::refused;
  if (tree != nullptr)
  {
    walk_everything(*tree, *reader);
    return reader->has_error_occurred() ? Verdict::refused : Verdict::taken;
  }
  for (std::string const& name : names_in(contents(file)))
    if (reader->down_to(name_of(name)))
    {
      reader->up();
      return reader->has_error_occurred() ? Verdict::refused : Verdict::taken;
    }
  return Verdict::unknown;
}

bool has_rows_read(std::string const& file)
{
  axsRecordReader::Request request;
  request.path = "*";
  request.columns = {"."};
  axmParseError error;
  return axsRecordReader(request).read(
    apPath(file.c_str()), options(), error, [](axsRecordReader::Row const&) { return true; });
}
}

TEST(xml_suite_reader, a_full_walk_takes_and_refuses_what_a_load_takes_and_refuses)
{
  int taken = 0;
  int refused = 0;
  int unknown = 0;
  for (XmlTest const& test : read_xml_suite(AXM_XML_SUITE))
  {
    axmParseError error;
    auto const document = engine()->loadDocument(apPath(test.file.c_str()), options(), error);
    std::unique_ptr<TreeModel const> const tree =
      document == nullptr ? nullptr : std::make_unique<TreeModel>(*document);
    Verdict const verdict = walked(test.file, tree.get());
    taken += verdict == Verdict::taken ? 1 : 0;
    refused += verdict == Verdict::refused ? 1 : 0;
    unknown += verdict == Verdict::unknown ? 1 : 0;
    Verdict const expected = document == nullptr ? Verdict::refused : Verdict::taken;
    EXPECT_TRUE(verdict == expected || verdict == Verdict::unknown) << test.file;
    EXPECT_EQ(has_rows_read(test.file), document != nullptr) << test.file;
  }
  EXPECT_GT(taken, 1000);
  EXPECT_GT(refused, 1000);
  EXPECT_LT(unknown, 10);
  RecordProperty("taken", taken);
  RecordProperty("refused", refused);
  RecordProperty("unknown", unknown);
}

TEST(xml_suite_reader, walks_have_what_the_tree_has)
{
  int walks = 0;
  for (XmlTest const& test : read_xml_suite(AXM_XML_SUITE))
  {
    axmParseError error;
    auto const document = engine()->loadDocument(apPath(test.file.c_str()), options(), error);
    if (document == nullptr)
      continue;
    TreeModel const tree(*document);
    for (unsigned seed = 0; seed < 3; ++seed, ++walks)
      EXPECT_EQ("", walk_difference(tree, *reader_at(test.file), seed, 40)) << test.file;
  }
  EXPECT_GT(walks, 3000);
}
