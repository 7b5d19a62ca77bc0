#include "axsAttributeUses.h"

#include "axsAttributeDecl.h"

#include <algorithm>
#include <utility>

namespace
{
// Up to so many, a look at each is as fast.
std::size_t const few = 8;

axsSchemaNameView name_of(axsAttributeUse const& use)
{
  return {use.decl->name.name_space, use.decl->name.local};
}
}

axsAttributeUses::axsAttributeUses(std::vector<axsAttributeUse> own)
{
  add(std::move(own));
}

axsAttributeUses::axsAttributeUses(axsAttributeUses const& base, std::vector<axsAttributeUse> own) : blocks(base.blocks)
{
  add(std::move(own));
}

// Takes into one block with them those that are not larger: along a chain of types, each use is copied as often as there
// are digits, in base 2, in the length of the chain.
void axsAttributeUses::add(std::vector<axsAttributeUse> own)
{
  if (own.empty())
    return;
  while (!blocks.empty() && blocks.back().block->uses.size() <= own.size())
  {
    std::vector<axsAttributeUse> both;
    std::vector<axsAttributeUse> const& before = blocks.back().block->uses;
    both.reserve(before.size() + own.size());
    both.insert(both.end(), before.begin(), before.end());
    both.insert(both.end(), std::make_move_iterator(own.begin()), std::make_move_iterator(own.end()));
    own = std::move(both);
    blocks.pop_back();
  }
  std::size_t const begin = size();
  blocks.push_back({make(std::move(own)), begin});
}

std::shared_ptr<axsAttributeUses::Block const> axsAttributeUses::make(std::vector<axsAttributeUse> uses)
{
  auto made = std::make_shared<Block>();
  made->uses = std::move(uses);
  if (made->uses.size() > few)
    for (std::size_t i = 0; i < made->uses.size(); ++i)
      made->numbers.emplace(name_of(made->uses[i]), i);
  return made;
}

axsAttributeUse const& axsAttributeUses::operator[](std::size_t number) const noexcept
{
  std::size_t part = 0;
  while (part + 1 < blocks.size() && number >= blocks[part + 1].begin)
    ++part;
  return blocks[part].block->uses[number - blocks[part].begin];
}

std::size_t axsAttributeUses::find(std::string_view name_space, std::string_view local) const
{
  axsSchemaNameView const wanted{name_space, local};
  for (Part const& part : blocks)
  {
    Block const& block = *part.block;
    if (block.uses.size() > few)
    {
      auto const found = block.numbers.find(wanted);
      if (found != block.numbers.end())
        return part.begin + found->second;
      continue;
    }
    for (std::size_t i = 0; i < block.uses.size(); ++i)
      if (name_of(block.uses[i]) == wanted)
        return part.begin + i;
  }
  return none;
}

std::vector<axsAttributeUse> axsAttributeUses::not_shared_with(axsAttributeUses const& other) const
{
  std::vector<axsAttributeUse> found;
  for (Part const& part : blocks)
    if (std::none_of(
          other.blocks.begin(), other.blocks.end(), [&](Part const& its) { return its.block == part.block; }))
      found.insert(found.end(), part.block->uses.begin(), part.block->uses.end());
  return found;
}

bool axsAttributeUses::is_shared_with(axsAttributeUses const& other) const noexcept
{
  if (blocks.size() != other.blocks.size())
    return false;
  for (std::size_t i = 0; i < blocks.size(); ++i)
    if (blocks[i].block != other.blocks[i].block)
      return false;
  return true;
}
