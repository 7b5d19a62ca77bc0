#include "axsValueSet.h"

#include <new>

std::size_t axsValueSet::insert(std::string_view bytes)
{
  make_room();
  std::uint32_t const hash = hash_of(bytes.front(), bytes.substr(1));
  Slot& slot = slots[slot_of(hash, bytes.front(), bytes.substr(1))];
  if (slot.number != no_number)
    return slot.number;
  std::size_t const number = ends.size();
  if (number >= no_number)
    throw std::bad_alloc();
  if (ends.size() == ends.capacity())
    ends.reserve(ends.size() * 2 + 8);
  data.append(bytes);
  ends.push_back(data.size());
  slot.number = static_cast<std::uint32_t>(number);
  slot.hash = hash;
  return number;
}

std::size_t axsValueSet::find(std::string_view bytes) const
{
  return bytes.empty() ? none : find(bytes.front(), bytes.substr(1));
}

std::size_t axsValueSet::find(char first, std::string_view rest) const
{
  if (slots.empty())
    return none;
  Slot const& slot = slots[slot_of(hash_of(first, rest), first, rest)];
  return slot.number == no_number ? none : slot.number;
}

std::string_view axsValueSet::operator[](std::size_t number) const noexcept
{
  std::size_t const begin = number == 0 ? 0 : ends[number - 1];
  return std::string_view(data).substr(begin, ends[number] - begin);
}

std::uint32_t axsValueSet::hash_of(char first, std::string_view rest) const
{
  // What the values of a set begin with is the same for nearly all.
  return static_cast<std::uint32_t>(hasher(rest)) + static_cast<unsigned char>(first);
}

// The slot of the value, or the free one in which it would lie. There always is a free one.
std::size_t axsValueSet::slot_of(std::uint32_t hash, char first, std::string_view rest) const
{
  std::size_t const mask = slots.size() - 1;
  for (std::size_t i = hash & mask;; i = (i + 1) & mask)
  {
    Slot const& slot = slots[i];
    if (slot.number == no_number)
      return i;
    if (slot.hash != hash)
      continue;
    std::string_view const there = (*this)[slot.number];
    if (there.front() == first && there.substr(1) == rest)
      return i;
  }
}

// At most two thirds of the slots are taken.
void axsValueSet::make_room()
{
  if ((ends.size() + 1) * 3 < slots.size() * 2)
    return;
  std::vector<Slot> larger(slots.empty() ? 16 : slots.size() * 2);
  std::size_t const mask = larger.size() - 1;
  for (Slot const& slot : slots)
  {
    if (slot.number == no_number)
      continue;
    std::size_t i = slot.hash & mask;
    while (larger[i].number != no_number)
      i = (i + 1) & mask;
    larger[i] = slot;
  }
  slots.swap(larger);
}
