#include "axsChildAlignment.h"

#include "axsHashKey.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace
{
// So many pairs of a range are looked at.
std::size_t const max_pairs = 250000;

// What says which record an element is, by the usual names.
std::string_view identity_of(axsFlatTree const& tree, axsFlatTree::Node const& node)
{
  for (std::string_view const name : {"xml:id", "id", "key", "name"})
    for (std::size_t i = 0; i < node.attribute_count; ++i)
      if (tree.attributes[node.first_attribute + i].name == name)
        return tree.attributes[node.first_attribute + i].value;
  return {};
}

std::uint64_t name_key(axsFlatTree::Node const& node)
{
  return (std::uint64_t{node.number} << 8 | static_cast<std::uint64_t>(node.kind)) + 1;
}
}

axsChildAlignment::axsChildAlignment(axsFlatTree const& first, std::vector<std::size_t> const& before,
  axsFlatTree const& second, std::vector<std::size_t> const& after)
  : tree_before(first),
    nodes_before(before),
    tree_after(second),
    nodes_after(after),
    found(before.size(), none)
{
}

std::vector<std::size_t> axsChildAlignment::matches()
{
  std::vector<Range> ranges = {{0, nodes_before.size(), 0, nodes_after.size()}};
  for (Likeness const likeness : {Likeness::equal, Likeness::same_id, Likeness::same_name})
    ranges = align(ranges, likeness);
  return found;
}

axsChildAlignment::Keys axsChildAlignment::keys_of(
  axsFlatTree const& tree, std::vector<std::size_t> const& nodes, Likeness likeness)
{
  Keys keys;
  keys.reserve(nodes.size());
  for (std::size_t const place : nodes)
  {
    axsFlatTree::Node const& node = tree.nodes[place];
    std::string_view const identity = likeness == Likeness::same_id ? identity_of(tree, node) : std::string_view();
    if (likeness == Likeness::equal)
      keys.push_back(node.hash);
    else if (likeness == Likeness::same_name)
      keys.push_back(name_key(node));
    else if (identity.empty())
      keys.push_back(0);
    else
      keys.push_back(axsHashKey::of_process().long_texts(std::to_string(name_key(node)) + ' ' + std::string(identity)));
  }
  return keys;
}

// Finds what corresponds in the ranges. Gives the ranges that are left between.
std::vector<axsChildAlignment::Range> axsChildAlignment::align(std::vector<Range> const& ranges, Likeness likeness)
{
  std::vector<Range> left;
  if (ranges.empty())
    return left;
  keys_before = keys_of(tree_before, nodes_before, likeness);
  keys_after = keys_of(tree_after, nodes_after, likeness);
  for (Range range : ranges)
  {
    trim(range);
    if (!range.is_open())
      continue;
    std::size_t const size_before = range.end_before - range.begin_before;
    std::size_t const size_after = range.end_after - range.begin_after;
    bool const is_short = size_before <= max_pairs / size_after;
    std::vector<Pair> pairs = is_short ? find_common(range) : find_unique(range);
    pairs.push_back({range.end_before, range.end_after});
    Range between{range.begin_before, 0, range.begin_after, 0};
    for (Pair const& pair : pairs)
    {
      if (pair.before < range.end_before)
        found[pair.before] = pair.after;
      between.end_before = pair.before;
      between.end_after = pair.after;
      trim(between);
      if (between.is_open())
        left.push_back(between);
      between = {pair.before + 1, 0, pair.after + 1, 0};
    }
  }
  return left;
}

// Takes what corresponds off both ends.
void axsChildAlignment::trim(Range& range)
{
  while (range.is_open() && are_alike(range.begin_before, range.begin_after))
    found[range.begin_before++] = range.begin_after++;
  while (range.is_open() && are_alike(range.end_before - 1, range.end_after - 1))
    found[--range.end_before] = --range.end_after;
}

// The longest common subsequence.
std::vector<axsChildAlignment::Pair> axsChildAlignment::find_common(Range const& range) const
{
  std::size_t const rows = range.end_before - range.begin_before;
  std::size_t const columns = range.end_after - range.begin_after;
  // lengths[i * (columns + 1) + j] is that of what follows row i and column j.
  std::vector<std::uint32_t> lengths((rows + 1) * (columns + 1), 0);
  auto const length = [&](std::size_t i, std::size_t j) -> std::uint32_t& { return lengths[i * (columns + 1) + j]; };
  for (std::size_t i = rows; i-- > 0;)
    for (std::size_t j = columns; j-- > 0;)
      length(i, j) = are_alike(range.begin_before + i, range.begin_after + j)
                       ? length(i + 1, j + 1) + 1
                       : std::max(length(i + 1, j), length(i, j + 1));
  std::vector<Pair> pairs;
  for (std::size_t i = 0, j = 0; i < rows && j < columns;)
    if (are_alike(range.begin_before + i, range.begin_after + j))
      pairs.push_back({range.begin_before + i++, range.begin_after + j++});
    else if (length(i + 1, j) >= length(i, j + 1))
      ++i;
    else
      ++j;
  return pairs;
}

// Of what is once in each, the longest sequence that is in the same order in both.
std::vector<axsChildAlignment::Pair> axsChildAlignment::find_unique(Range const& range) const
{
  struct Places
  {
    std::size_t before = none;
    std::size_t after = none;
    bool is_unique = true;
  };
  std::unordered_map<std::uint64_t, Places> places;
  for (std::size_t i = range.begin_before; i < range.end_before; ++i)
  {
    Places& place = places[keys_before[i]];
    place.is_unique = place.is_unique && place.before == none && keys_before[i] != 0;
    place.before = i;
  }
  for (std::size_t i = range.begin_after; i < range.end_after; ++i)
  {
    Places& place = places[keys_after[i]];
    place.is_unique = place.is_unique && place.after == none;
    place.after = i;
  }

  std::vector<Pair> candidates;
  for (std::size_t i = range.begin_before; i < range.end_before; ++i)
  {
    Places const& place = places[keys_before[i]];
    if (place.is_unique && place.before == i && place.after != none)
      candidates.push_back({i, place.after});
  }

  // Of the sequences of each length the one that ends first, and of each candidate the one before it.
  std::vector<std::size_t> ends;
  std::vector<std::size_t> previous(candidates.size(), none);
  for (std::size_t i = 0; i < candidates.size(); ++i)
  {
    auto const at = std::lower_bound(ends.begin(), ends.end(), candidates[i].after,
      [&](std::size_t end, std::size_t after) { return candidates[end].after < after; });
    previous[i] = at == ends.begin() ? none : *std::prev(at);
    if (at == ends.end())
      ends.push_back(i);
    else
      *at = i;
  }
  std::vector<Pair> pairs;
  for (std::size_t at = ends.empty() ? none : ends.back(); at != none; at = previous[at])
    pairs.push_back(candidates[at]);
  std::reverse(pairs.begin(), pairs.end());
  return pairs;
}
