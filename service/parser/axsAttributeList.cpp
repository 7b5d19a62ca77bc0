#include "axsAttributeList.h"

#include "axsBounds.h"

bool axsAttributeList::add(axsQName& name, axsAttributeType type)
{
  has_tokens = has_tokens || type != axsAttributeType::cdata;
  return types.emplace(&name, type).second;
}

void axsAttributeList::set_default(axsQName& name, axsAttributeType type, std::string_view value)
{
  defaults.push_back({&name, type, std::string(value)});
}

axsAttributeType axsAttributeList::type_of(axsQName const& name) const
{
  if (!has_tokens)
    return axsAttributeType::cdata;
  auto const found = types.find(&name);
  return found == types.end() ? axsAttributeType::cdata : found->second;
}

std::uint64_t axsAttributeList::add_missing(axsReadAttributes& attributes, std::uint64_t element) const
{
  std::uint64_t added = 0;
  for (Default const& missing : defaults)
    if (missing.name->last_element != element)
    {
      attributes.add(*missing.name, missing.value, nullptr).type = missing.type;
      added += axsBounds::node_size + missing.value.size();
    }
  return added;
}
