#include "axsKnownNames.h"

#include "axsContentModels.h"
#include "axsSchemaComponents.h"

axsKnownName const& axsKnownNames::look_up(axsName const& name, std::string_view name_space)
{
  axsKnownName const& found = add(name, name_space);
  std::size_t const number = name.number();
  if (number == axsName::no_number)
    return found;
  if (number >= latest.size())
    latest.resize(number + 1);
  latest[number] = &found;
  return found;
}

axsKnownName const& axsKnownNames::add(axsName const& name, std::string_view name_space)
{
  if (auto const known = by_key.find({&name, name_space}); known != by_key.end())
    return *known->second;
  axsSymbols const& symbols = schema.content_models().symbols();
  std::uint32_t const symbol = symbols.find(name_space, name.local());
  std::uint32_t const space = symbol != axsSymbols::none ? symbols.space_of(symbol) : symbols.find_space(name_space);
  all.push_back({&name, std::string(name_space), symbol, space, symbols.global(symbol)});
  by_key.emplace(Key{&name, all.back().name_space}, &all.back());
  return all.back();
}
