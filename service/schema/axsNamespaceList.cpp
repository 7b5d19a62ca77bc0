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

// Visits the names that do not lie in a block of both lists, until a visit says no; whether none did.
template <class Visit>
bool axsNamespaceList::all_apart_from(axsNamespaceList const& other, Visit visit) const
{
  for (std::shared_ptr<Block const> const& block : blocks)
    if (!other.shares(block))
      for (std::string const& name : *block)
        if (!is_left_out(name) && !visit(name))
          return false;
  return true;
}

bool axsNamespaceList::has_all_of(axsNamespaceList const& other) const noexcept
{
  auto const is_in_other = [&](std::string const& name) { return other.has(name); };
  return std::none_of(left_out.begin(), left_out.end(), is_in_other) &&
         other.all_apart_from(*this, [this](std::string const& name) { return has(name); });
}

std::vector<std::string_view> axsNamespaceList::names() const
{
  std::vector<std::string_view> all;
  all_apart_from({},
    [&](std::string const& name)
    {
      all.emplace_back(name);
      return true;
    });
  std::sort(all.begin(), all.end());
  return all;
}

// The larger list is shared.
axsNamespaceList axsNamespaceList::with(axsNamespaceList const& other) const
{
  if (other.size() > size())
    return other.with(*this);
  axsNamespaceList both = *this;
  auto const is_in_other = [&](std::string const& name) { return other.has(name); };
  both.left_out.erase(std::remove_if(both.left_out.begin(), both.left_out.end(), is_in_other), both.left_out.end());
  Block own;
  other.all_apart_from(*this,
    [&](std::string const& name)
    {
      if (!both.has(name))
        own.push_back(name);
      return true;
    });
  std::sort(own.begin(), own.end());
  both.add(std::move(own));
  return both;
}

axsNamespaceList axsNamespaceList::common_with(axsNamespaceList const& other) const
{
  if (other.size() < size())
    return other.common_with(*this);
  if (other.has_all_of(*this))
    return *this;
  Block common;
  all_apart_from({},
    [&](std::string const& name)
    {
      if (other.has(name))
        common.push_back(name);
      return true;
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
