#include "axsNameTable.h"

#include "axsXmlName.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
// Fewer that nobody uses are not worth the look.
std::size_t const max_unused = 256;
}

axsName const& axsNameTable::intern(std::string_view text)
{
  axsName const* const known = find(text);
  axsName const& name = known != nullptr ? *known : add(text);
  if (!name.stays)
  {
    name.stays = true;
    if (name.users == 0)
      --unused;
  }
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
  utString const utf8 = text.to_utf8();
  axsName const* known = find(utf8.view());
  if (known == nullptr)
  {
    if (unused > max_unused && unused > names.size() / 2)
      remove_unused();
    known = &add(utf8.view());
    known->stays = false;
    ++unused;
  }
  place = known;
  return known;
}

axsName const& axsNameTable::add(std::string_view text)
{
  std::uint16_t const number = free_number();
  auto made = std::make_unique<axsName const>(text, number);
  std::string_view const key = made->utf8();
  axsName const& name = *names.emplace(key, std::move(made)).first->second;
  if (number != axsName::no_number)
    by_number[number] = &name;
  namespaces = namespaces || text == "xmlns" || text.find(':') != std::string_view::npos;
  return name;
}

// One that no name has, with a place for it.
std::uint16_t axsNameTable::free_number()
{
  while (first_to_look_at < by_number.size() && by_number[first_to_look_at] != nullptr)
    ++first_to_look_at;
  if (first_to_look_at == axsName::no_number)
    return axsName::no_number;
  if (first_to_look_at == by_number.size())
    by_number.push_back(nullptr);
  return static_cast<std::uint16_t>(first_to_look_at);
}

void axsNameTable::remove_unused() noexcept
{
  for (auto at = names.begin(); at != names.end();)
  {
    axsName const& name = *at->second;
    bool const goes = !name.stays && name.users == 0;
    if (goes && name.number() != axsName::no_number)
      by_number[name.number()] = nullptr;
    at = goes ? names.erase(at) : std::next(at);
  }
  std::fill(std::begin(recent), std::end(recent), nullptr);
  first_to_look_at = 0;
  unused = 0;
}
