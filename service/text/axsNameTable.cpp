#include "axsNameTable.h"

#include "axsXmlName.h"

#include <iterator>

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

axsName const* axsNameTable::intern_checked(apString const& text)
{
  std::wstring_view const name = text.view();
  if (name.empty())
    return nullptr;
  axsName const*& place =
    recent[(name.size() + 3 * static_cast<std::size_t>(name.front()) + 5 * static_cast<std::size_t>(name.back())) %
           std::size(recent)];
  if (place != nullptr && place->wide_view() == name)
    return place;
  if (!axsXmlName::is_name(text))
    return nullptr;
  place = &intern(text.to_utf8().view());
  return place;
}
