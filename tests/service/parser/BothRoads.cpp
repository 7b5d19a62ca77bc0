#include "BothRoads.h"

#include "axsHandle.h"
#include "axsName.h"
#include "axsReadError.h"
#include "axsReader.h"
#include "axsSource.h"
#include "axsWriter.h"

#include <memory>

namespace
{
std::string text_of(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return std::string(utf8.c_str(), static_cast<std::size_t>(utf8.length()));
}

std::string quoted(std::string_view text)
{
  return '"' + std::string(text.substr(0, 200)) + '"';
}

std::string compare(std::string_view what, std::string_view scanned, std::string_view parsed)
{
  return scanned == parsed ? std::string()
                           : std::string(what) + " is " + quoted(scanned) + ", but " + quoted(parsed) + " to the judge";
}

std::string compare_attributes(axsNode const& scanned, axsNode const& parsed)
{
  axsNode const* left = scanned.first_attribute();
  axsNode const* right = parsed.first_attribute();
  for (; left != nullptr && right != nullptr; left = left->next_sibling(), right = right->next_sibling())
  {
    std::string found = compare("the name of an attribute", left->node_name(), right->node_name());
    if (found.empty())
      found = compare("the value of an attribute", left->value(), right->value());
    if (!found.empty())
      return found;
  }
  return left == right ? std::string() : "the number of attributes differs in " + quoted(scanned.node_name());
}

std::string compare_node(axsNode const& scanned, axsNode const& parsed)
{
  if (scanned.kind() != parsed.kind())
    return "the kind of " + quoted(scanned.node_name()) + " differs from that of " + quoted(parsed.node_name());
  std::string found = compare("a name", scanned.node_name(), parsed.node_name());
  if (found.empty())
    found = compare("a value", scanned.value(), parsed.value());
  return found.empty() ? compare_attributes(scanned, parsed) : found;
}

std::string written(axsNode const& document)
{
  std::string xml;
  return axsWriter::write(document, xml) ? xml : "not to be written";
}

std::string compare_trees(axsNode const& scanned, axsNode const& parsed)
{
  axsNode const* left = &scanned;
  axsNode const* right = &parsed;
  for (; left != nullptr && right != nullptr; left = left->next_in_tree(scanned), right = right->next_in_tree(parsed))
  {
    std::string found = compare_node(*left, *right);
    // Two nodes have the same place when those before them have, and their next ones are as far up or down.
    if (found.empty() && (left->first_child() == nullptr) != (right->first_child() == nullptr))
      found = "the children of " + quoted(left->node_name()) + " differ";
    if (found.empty() && (left->next_sibling() == nullptr) != (right->next_sibling() == nullptr))
      found = "what is behind " + quoted(left->node_name()) + " differs";
    if (!found.empty())
      return found;
  }
  if (left != right)
    return "the number of nodes differs";
  return compare("what is written", written(scanned), written(parsed));
}

// Null where it is refused, be it by what reads its bytes.
std::shared_ptr<axmDocument> scan(axsSource& source, axmLoadOptions const& options, apString const& uri)
try
{
  return axsReader::read(source, options, uri);
}
catch (axsReadError const&)
{
  return nullptr;
}
}

BothRoads::BothRoads(std::string_view document, axmLoadOptions const& options)
{
  apByteArray const bytes(document.data(), document.size());
  axsSource source(bytes);
  apString const uri = APSTRING("uri");
  std::shared_ptr<axmDocument> const scanned = scan(source, options, uri);
  was_scanned = scanned != nullptr;
  source.rewind();
  try
  {
    std::shared_ptr<axmDocument> const parsed = axsReader::parse(source, options, uri);
    was_parsed = true;
    if (was_scanned)
      found = compare_trees(*axsHandle::node_of(*scanned), *axsHandle::node_of(*parsed));
  }
  catch (axsReadError const& error)
  {
    if (was_scanned)
      found = "only the parser takes it; the judge says: " + text_of(error.message);
  }
}
