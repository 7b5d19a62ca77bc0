#include "axsSourcePlaces.h"

#include "axsLocator.h"
#include "axsMarkupSpans.h"
#include "axsMemorySource.h"
#include "axsParser.h"
#include "axsSourceText.h"
#include "axsTree.h"

#include <algorithm>

// What each node begins and ends with, by a walk over the tree that counts as the parser tells.
void axsSourcePlaces::number(axsTree const& tree)
{
  std::uint64_t count = 0;
  auto const entry = [&](axsNode const& node)
  {
    auto const found = places.find(&node);
    return found == places.end() ? nullptr : &found->second;
  };
  auto const open = [&](axsNode const& node)
  {
    count += node.is_text() ? 0 : 1;
    if (Entry* const asked = entry(node))
    {
      asked->first = count;
      asked->last = node.is_text() ? count + 1 : count;
    }
  };
  auto const close = [&](axsNode const& node)
  {
    if (!node.is_element())
      return;
    ++count;
    if (Entry* const asked = entry(node))
      asked->last = count;
  };
  axsNode const* node = tree.first_child();
  while (node != nullptr)
  {
    open(*node);
    if (node->first_child() != nullptr)
    {
      node = node->first_child();
      continue;
    }
    close(*node);
    while (node != &tree && node->next_sibling() == nullptr)
    {
      node = node->parent();
      close(*node);
    }
    node = node == &tree ? nullptr : node->next_sibling();
  }
}

void axsSourcePlaces::find(
  axsTree const& tree, axsSourceText const& source, axmLoadOptions const& options, apPath const& file)
{
  number(tree);
  std::vector<std::uint64_t> wanted;
  wanted.reserve(2 * places.size());
  for (auto const& [node, entry] : places)
  {
    wanted.push_back(entry.first);
    wanted.push_back(entry.last);
  }
  axsMarkupSpans spans(std::move(wanted), source.encoding().mark_size);
  axsMemorySource memory(source.bytes(), file);
  axsParser parser(memory.source(), options, spans);
  while (!spans.is_complete() && parser.step())
  {
  }

  styled_tag = spans.first_tag_with_attribute();
  for (auto& [node, entry] : places)
  {
    axsMarkupSpans::Markup const& first = spans.of(entry.first);
    axsMarkupSpans::Markup const& last = spans.of(entry.last);
    entry.place.is_in_entity = !first.is_in_document || !last.is_in_document;
    entry.place.first = first.span;
    entry.place.last = last.span;
    entry.place.line = first.place;
    if (!node->is_text())
      continue;
    entry.place.first = {first.span.end, last.span.begin};
    entry.place.last = entry.place.first;
    entry.place.line = first.end_place;
  }
}
