#include "XmlSuite.h"

#include "Engine.h"

#include <axmElement.h>
#include <axmNodeList.h>

#include <stdexcept>

namespace
{
std::string attribute(axmNode const& node, char const* name)
{
  apString value;
  node.get_attribute(name, value);
  return value.to_utf8().c_str();
}

/// The folder that the elements around `test` name with xml:base, each relative to the one outside it; it ends in '/'.
std::string base_of(axmNode& test)
{
  std::string base;
  for (auto node = test.getParentNode(); node != nullptr; node = node->getParentNode())
    base = attribute(*node, "xml:base") + base;
  return base;
}

XmlTest read_test(axmElement& element, std::string const& documents)
{
  std::string const base = base_of(element);
  XmlTest test;
  test.id = attribute(element, "ID");
  test.collection = base.substr(0, base.find_last_not_of('/') + 1);
  test.type = attribute(element, "TYPE");
  std::string const editions = attribute(element, "EDITION");
  test.is_of_fifth_edition = editions.empty() || editions.find('5') != std::string::npos;
  test.file = documents + base + attribute(element, "URI");
  std::string const output = attribute(element, "OUTPUT");
  if (!output.empty())
    test.canonical_file = documents + base + output;
  return test;
}
}

std::vector<XmlTest> read_xml_suite(std::string const& folder)
{
  axmParseError error;
  std::string const catalogue = folder + "/build/dist/cleaned/xmlconf-flattened.xml";
  auto const document = engine()->loadDocument(apPath(catalogue.c_str()), axmLoadOptions(), error);
  if (document == nullptr)
    throw std::runtime_error(catalogue + ": " + error.message().to_utf8().c_str());

  std::vector<XmlTest> tests;
  auto const elements = document->getElementsByTagName("TEST");
  while (auto const element = elements->next_node())
    tests.push_back(read_test(*element, folder + "/build/dist/xmlconf/"));
  return tests;
}
