// The suite against engines of which each breaks one promise. What sees which of them stands in faults.txt; the program
// fault_table writes that file anew.

#include "ExpectSeen.h"
#include "Faults.h"
#include "Lines.h"
#include "SuiteRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace
{
std::vector<Fault> every_fault()
{
  std::vector<Fault> faults = all_faults();
  std::vector<Fault> const subtle = all_subtle_faults();
  faults.insert(faults.end(), subtle.begin(), subtle.end());
  for (auto const* const some : {&promise_faults(), &rule_faults(), &held_faults(), &outside_tree_faults(),
         &outside_value_faults(), &outside_load_faults(), &outside_second_faults(), &outside_third_tree_faults(),
         &outside_third_typed_faults(), &outside_third_load_faults(), &outside_third_save_faults(),
         &outside_third_schema_faults(), &outside_third_search_faults(), &outside_fourth_faults()})
    faults.insert(faults.end(), some->begin(), some->end());
  return faults;
}

std::vector<std::string> names_of_faults()
{
  std::vector<std::string> names;
  for (Fault const& fault : every_fault())
    names.push_back(std::string(fault.operation) + ": " + fault.name);
  return names;
}
}

TEST(faults, those_of_nodes_are_seen)
{
  expect_seen(node_faults(), run_fixed_classes);
}

TEST(faults, those_of_contents_are_seen)
{
  expect_seen(content_faults(), run_fixed_classes);
}

TEST(faults, those_of_lists_and_maps_are_seen)
{
  expect_seen(collection_faults(), run_fixed_classes);
}

TEST(faults, those_of_factories_are_seen)
{
  expect_seen(factory_faults(), run_fixed_classes);
}

TEST(faults, every_one_has_its_line_in_the_table)
{
  std::vector<std::string> const names = names_of_faults();
  std::vector<std::string> const table = lines_of_file("faults.txt");
  ASSERT_EQ(table.size(), names.size());
  for (std::size_t index = 0; index < names.size(); ++index)
    EXPECT_EQ(table[index].substr(0, names[index].size() + 2), names[index] + " |");
}

TEST(faults, there_are_enough_and_no_two_are_one)
{
  std::vector<std::string> const names = names_of_faults();
  EXPECT_GE(names.size(), 60U);
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

TEST(faults, every_operation_of_the_contracts_has_one)
{
  std::set<std::string> broken;
  for (Fault const& fault : every_fault())
    broken.insert(fault.operation);
  for (char const* const operation :
    {"getNodeName", "getNodeValue", "getParentNode", "getChildNodes", "getFirstChild", "getLastChild", "getNextSibling",
      "getPreviousSibling", "getOwnerDocument", "insertBefore", "replaceChild", "removeChild", "appendChild",
      "hasChildNodes", "hasAttributes", "getAttributes", "operator==", "get_text", "set_text", "get_xml", "lifetime",
      "get_attribute", "set_attribute", "get_attribute_locale", "set_attribute_locale", "getAttribute", "setAttribute",
      "removeAttribute", "hasAttribute", "selectNodes", "selectSingleNode", "createElement", "createTextNode",
      "createComment", "getDocumentElement", "getDocumentURI", "getElementsByTagName", "getData", "axmNodeList::at",
      "axmNodeList::length", "axmNodeList::isEmpty", "axmNodeList::operator++", "axmNodeList::operator()",
      "axmNodeList::next_node", "axmNodeList::reset", "axmNodeList::invalid", "axmNamedNodeMap::getLength",
      "axmNamedNodeMap::item", "axmNamedNodeMap::getNamedItem", "axmNamedNodeMap::setNamedItem",
      "axmNamedNodeMap::removeNamedItem", "createDocument", "loadDocument", "white space", "saveDocument"})
    EXPECT_EQ(broken.count(operation), 1U) << operation;
}
