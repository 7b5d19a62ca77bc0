#include "axsNodeLines.h"

#include "axsHandle.h"
#include "axsLocator.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"
#include "axsStartTag.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace
{
using Lines = std::unordered_map<axsNode const*, int>;

// Walks through a tree as the parser tells of what it was built from. What the builder has left out, which is white space,
// is not what comes next in the tree.
class Follower final : public axsParseHandler
{
public:
  Follower(axsNode const& top, Lines& wanted) : root(top), next(top.next_in_tree(top)), lines(wanted) {}

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void start_document(axsLocator const& given) override { locator = &given; }
  void doctype(std::shared_ptr<axsDtd const> const&) override { pass(axsKind::doctype); }
  void end_element() override {}
  void comment(std::string_view) override { pass(axsKind::comment); }
  void processing_instruction(std::string_view, std::string_view) override { pass(axsKind::processing_instruction); }

  void start_element(axsStartTag const&) override
  {
    if (next == nullptr || !next->is_element())
      return;
    std::size_t index = 0;
    for (axsAttribute const* at = next->first_attribute(); at != nullptr; at = at->next_attribute(), ++index)
      if (auto const found = lines.find(at); found != lines.end())
        found->second = number(locator->attribute(index));
    pass(axsKind::element);
  }

  void text(std::string_view text, bool is_cdata) override
  {
    if (next != nullptr && next->value() == text)
      pass(is_cdata ? axsKind::cdata_section : axsKind::text);
  }

private:
  static int number(axsPlace place)
  {
    return static_cast<int>(std::min<std::uint64_t>(place.line, std::numeric_limits<int>::max()));
  }

  void pass(axsKind kind)
  {
    if (next == nullptr || next->kind() != kind)
      return;
    if (auto const found = lines.find(next); found != lines.end())
      found->second = number(locator->begin());
    next = next->next_in_tree(root);
  }

  axsNode const& root;
  axsNode const* next;
  Lines& lines;
  axsNameTable names;
  axsLocator const* locator = nullptr;
};
}

std::vector<int> axsNodeLines::find(axmDocument const& document, apByteArray const& source,
  axmLoadOptions const& options, std::vector<std::shared_ptr<axmNode>> const& nodes)
{
  std::vector<int> result(nodes.size(), 0);
  axsNode const* const root = axsHandle::node_of(document);
  if (root == nullptr)
    return result;
  Lines lines;
  for (std::shared_ptr<axmNode> const& node : nodes)
    lines.emplace(axsHandle::node_of(*node), 0);
  Follower follower(*root, lines);
  try
  {
    axsSource input(source);
    axsParser(input, options, follower).run();
  }
  catch (axsReadError const&)
  {
    // It was loaded from something else.
    return result;
  }
  for (std::size_t i = 0; i < nodes.size(); ++i)
    result[i] = lines[axsHandle::node_of(*nodes[i])];
  return result;
}
