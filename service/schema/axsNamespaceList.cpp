#include "axsNamespaceList.h"

#include <algorithm>
#include <iterator>
#include <utility>

axsNamespaceList::axsNamespaceList(std::vector<std::string> names)
{
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  add(std::move(names));
}

// Takes into one block with them those that are not larger: along a chain of unions, each name is copied as often as there
// are digits, in base 2, in the length of the chain.
void axsNamespaceList::add(Block names)
{
  if (names.empty())
    return;
  while (!blocks.empty() && blocks.back()->size() <= names.size())
  {
    Block both;
    both.reserve(blocks.back()->size() + names.size());
    std::merge(blocks.back()->begin(), blocks.back()->end(), std::make_move_iterator(names.begin()),
      std::make_move_iterator(names.end()), std::back_inserter(both));
    names = std::move(both);
    blocks.pop_back();
  }
  blocks.push_back(std::make_shared<Block const>(std::move(names)));
}

std::size_t axsNamespaceList::size() const noexcept
{
  std::size_t count = 0;
  for (std::shared_ptr<Block const> const& block : blocks)
    count += block->size();
  return count - left_out.size();
}

bool axsNamespaceList::is_left_out(std::string_view name) const noexcept
{
  return std::find(left_out.begin(), left_out.end(), name) != left_out.end();
}

bool axsNamespaceList::has(std::string_view name) const noexcept
{
  return !is_left_out(name) && std::any_of(blocks.begin(), blocks.end(),
                                 [&](std::shared_ptr<Block const> const& block)
                                 { return std::binary_search(block->begin(), block->end(), name); });
}

bool axsNamespaceList::shares(std::shared_ptr<Block const> const& block) const noexcept
{
  return std::find(blocks.begin(), blocks.end(), block) != blocks.end();
}

template <class Visit>
void axsNamespaceList::for_each(Visit visit) const
{
  for (std::shared_ptr<Block const> const& block : blocks)
    for (std::string const& name : *block)
      if (!is_left_out(name))
        visit(name);
}

// The names that another list has, and this one has not.
axsNamespaceList::Block axsNamespaceList::missing_of(axsNamespaceList const& other) const
{
  Block missing;
  if (identity() != nullptr && other.identity() != nullptr)
  {
    Block const& own = *blocks.front();
    Block const& its = *other.blocks.front();
    if (&own != &its)
      std::set_difference(its.begin(), its.end(), own.begin(), own.end(), std::back_inserter(missing));
    return missing;
  }
  for (std::shared_ptr<Block const> const& block : other.blocks)
    if (!shares(block))
      std::copy_if(block->begin(), block->end(), std::back_inserter(missing),
        [&](std::string const& name) { return !other.is_left_out(name) && !has(name); });
    else
      std::copy_if(left_out.begin(), left_out.end(), std::back_inserter(missing),
        [&](std::string const& name)
        { return !other.is_left_out(name) && std::binary_search(block->begin(), block->end(), name); });
  std::sort(missing.begin(), missing.end());
  return missing;
}

bool axsNamespaceList::has_all_of(axsNamespaceList const& other) const
{
  return missing_of(other).empty();
}

std::vector<std::string_view> axsNamespaceList::names() const
{
  std::vector<std::string_view> all;
  for_each([&](std::string const& name) { all.emplace_back(name); });
  std::sort(all.begin(), all.end());
  return all;
}

// The larger list is shared.
axsNamespaceList axsNamespaceList::with(axsNamespaceList const& other) const
{
  bool const is_larger = size() >= other.size();
  axsNamespaceList both = is_larger ? *this : other;
  axsNamespaceList const& more = is_larger ? other : *this;
  auto const is_in_more = [&](std::string const& name) { return more.has(name); };
  both.left_out.erase(std::remove_if(both.left_out.begin(), both.left_out.end(), is_in_more), both.left_out.end());
  both.add(both.missing_of(more));
  return both;
}

// The smaller one is, if the other has all of it.
axsNamespaceList axsNamespaceList::common_with(axsNamespaceList const& other) const
{
  axsNamespaceList const& smaller = size() <= other.size() ? *this : other;
  axsNamespaceList const& larger = &smaller == this ? other : *this;
  if (larger.has_all_of(smaller))
    return smaller;
  Block common;
  smaller.for_each(
    [&](std::string const& name)
    {
      if (larger.has(name))
        common.push_back(name);
    });
  return axsNamespaceList(std::move(common));
}

axsNamespaceList axsNamespaceList::without(std::string_view name) const
{
  axsNamespaceList rest = *this;
  if (has(name))
    rest.left_out.emplace_back(name);
  return rest;
}
