#include "axsNameTable.h"

axsName const& axsNameTable::intern(std::string_view text)
{
  if (axsName const* const known = find(text))
    return *known;
  auto made = std::make_unique<axsName const>(text);
  std::string_view const key = made->utf8();
  return *names.emplace(key, std::move(made)).first->second;
}

axsName const* axsNameTable::find(std::string_view text) const noexcept
{
  auto const found = names.find(text);
  return found == names.end() ? nullptr : found->second.get();
}
