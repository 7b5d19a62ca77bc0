#include "axsSymbols.h"

#include "axsElementDecl.h"

axsSymbols::axsSymbols(std::vector<axsElementDecl const*> const& globals)
{
  std::unordered_map<axsElementDecl const*, std::vector<axsElementDecl const*>> members;
  for (axsElementDecl const* const decl : globals)
    if (decl->head != nullptr)
      members[decl->head].push_back(decl);
  for (axsElementDecl const* const decl : globals)
    if (decl->head == nullptr)
      add_group(*decl, members);
  // What is affiliated in a circle, which no schema may have (e-props-correct.6), is without a root.
  for (axsElementDecl const* const decl : globals)
    if (find(decl->name.name_space, decl->name.local) == none)
      add_global(*decl);
}

std::uint32_t axsSymbols::add_global(axsElementDecl const& decl)
{
  std::uint32_t const symbol = add(decl.name);
  if (symbol == globals_by_number.size())
  {
    globals_by_number.push_back(&decl);
    group_ends.push_back(symbol);
  }
  return symbol;
}

void axsSymbols::add_group(axsElementDecl const& root,
  std::unordered_map<axsElementDecl const*, std::vector<axsElementDecl const*>> const& members)
{
  static std::vector<axsElementDecl const*> const no_members;
  struct Open
  {
    std::uint32_t symbol;
    std::vector<axsElementDecl const*> const* members;
    std::size_t next;
  };
  std::vector<Open> open;
  auto const enter = [&](axsElementDecl const& decl)
  {
    auto const found = members.find(&decl);
    open.push_back({add_global(decl), found == members.end() ? &no_members : &found->second, 0});
  };
  enter(root);
  while (!open.empty())
  {
    Open& top = open.back();
    if (top.next < top.members->size())
    {
      enter(*(*top.members)[top.next++]);
      continue;
    }
    group_ends[top.symbol] = static_cast<std::uint32_t>(globals_by_number.size() - 1);
    open.pop_back();
  }
}

std::uint32_t axsSymbols::add(axsSchemaName const& name)
{
  std::uint32_t const known = find(name.name_space, name.local);
  if (known != none)
    return known;
  names.push_back(name);
  auto const symbol = static_cast<std::uint32_t>(spaces_of_names.size());
  spaces_of_names.push_back(add_space(name.name_space));
  numbers.emplace(Key{names.back().name_space, names.back().local}, symbol);
  return symbol;
}

std::uint32_t axsSymbols::add_space(std::string_view name_space)
{
  std::uint32_t const known = find_space(name_space);
  if (known != none)
    return known;
  spaces.emplace_back(name_space);
  auto const number = static_cast<std::uint32_t>(spaces.size() - 1);
  space_numbers.emplace(spaces.back(), number);
  return number;
}

std::uint32_t axsSymbols::find(std::string_view name_space, std::string_view local) const
{
  auto const found = numbers.find(Key{name_space, local});
  return found == numbers.end() ? none : found->second;
}

std::uint32_t axsSymbols::find_space(std::string_view name_space) const
{
  auto const found = space_numbers.find(name_space);
  return found == space_numbers.end() ? none : found->second;
}
