#include "axsNameTable.h"

axsName const& axsNameTable::intern(std::string_view text)
{
  if (axsName const* const known = find(text))
    return *known;
  bool const has_number = by_number.size() < axsName::no_number;
  auto made = std::make_unique<axsName const>(
    text, has_number ? static_cast<std::uint16_t>(by_number.size()) : axsName::no_number);
  if (by_number.size() == by_number.capacity())
    by_number.reserve(by_number.size() * 2 + 8);
  std::string_view const key = made->utf8();
  axsName const& name = *names.emplace(key, std::move(made)).first->second;
  if (has_number)
    by_number.push_back(&name);
  namespaces = namespaces || text == "xmlns" || text.find(':') != std::string_view::npos;
  return name;
}

axsName const* axsNameTable::find(std::string_view text) const noexcept
{
  auto const found = names.find(text);
  return found == names.end() ? nullptr : found->second.get();
}
