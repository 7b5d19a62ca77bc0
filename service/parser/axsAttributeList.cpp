#include "axsAttributeList.h"

#include <algorithm>

bool axsAttributeList::add(axsReadName& name, Type type)
{
  if (all.size() == most_attributes ||
      std::any_of(all.begin(), all.end(), [&](Declared const& declared) { return declared.name == &name; }))
    return false;
  all.push_back({&name, type, false, {}});
  return true;
}

void axsAttributeList::set_default(std::string_view value)
{
  all.back().has_default = true;
  all.back().value = value;
}

bool axsAttributeList::is_of_tokens(axsReadName const& name) const noexcept
{
  return std::any_of(all.begin(), all.end(),
    [&](Declared const& declared) { return declared.name == &name && declared.type == Type::tokens; });
}

std::size_t axsAttributeList::add_missing(std::vector<axsReadAttribute>& attributes, std::uint64_t element) const
{
  std::size_t added = 0;
  for (Declared const& declared : all)
    if (declared.has_default && declared.name->last_element != element)
    {
      attributes.push_back({declared.name, declared.value});
      added += sizeof(void*) + declared.value.size();
    }
  return added;
}
