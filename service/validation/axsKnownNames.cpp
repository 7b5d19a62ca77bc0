#include "axsKnownNames.h"

#include "axsContentModels.h"
#include "axsName.h"
#include "axsSchemaComponents.h"

axsKnownName const& axsKnownNames::find(axsName const& name, std::string_view name_space)
{
  std::size_t const number = name.number();
  if (number < latest.size() && latest[number] != nullptr && latest[number]->name == &name &&
      latest[number]->name_space == name_space)
    return *latest[number];
  axsKnownName const& found = add(name, name_space);
  if (number == axsName::no_number)
    return found;
  if (number >= latest.size())
    latest.resize(number + 1);
  latest[number] = &found;
  return found;
}

axsKnownName const& axsKnownNames::add(axsName const& name, std::string_view name_space)
{
  BySpace& same = by_name[&name];
  if (auto const known = same.find(name_space); known != same.end())
    return *known->second;
  axsSymbols const& symbols = schema.content_models().symbols();
  all.push_back({&name, std::string(name_space), symbols.find(name_space, name.local()), symbols.find_space(name_space),
    schema.element(name_space, name.local())});
  same.emplace(all.back().name_space, &all.back());
  return all.back();
}
