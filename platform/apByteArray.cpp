#include "apByteArray.h"

#include <cstring>
#include <functional>

apByteArray::apByteArray() noexcept = default;
apByteArray::apByteArray(apByteArray const&) = default;
apByteArray::apByteArray(apByteArray&&) noexcept = default;
apByteArray& apByteArray::operator=(apByteArray const&) = default;
apByteArray& apByteArray::operator=(apByteArray&&) noexcept = default;
apByteArray::~apByteArray() = default;

apByteArray::apByteArray(void const* bytes, std::size_t size)
  : contents(static_cast<char const*>(bytes), static_cast<char const*>(bytes) + size)
{
}

char const* apByteArray::data() const noexcept
{
  return contents.data();
}

char* apByteArray::data() noexcept
{
  return contents.data();
}

std::size_t apByteArray::size() const noexcept
{
  return contents.size();
}

bool apByteArray::empty() const noexcept
{
  return contents.empty();
}

void apByteArray::resize(std::size_t size)
{
  contents.resize(size);
}

void apByteArray::append(void const* bytes, std::size_t size)
{
  if (size == 0)
    return;
  auto const* first = static_cast<char const*>(bytes);
  std::size_t const before = contents.size();
  std::less<> const stands_before;
  bool const own = !stands_before(first, contents.data()) && stands_before(first, contents.data() + before);
  std::size_t const offset = own ? static_cast<std::size_t>(first - contents.data()) : 0;
  contents.resize(before + size);
  // Growing may have moved the bytes to add, if they are its own.
  if (own)
    first = contents.data() + offset;
  std::memcpy(contents.data() + before, first, size);
}

void apByteArray::clear() noexcept
{
  std::vector<char>().swap(contents);
}

bool apByteArray::operator==(apByteArray const& other) const noexcept
{
  return contents == other.contents;
}

bool apByteArray::operator!=(apByteArray const& other) const noexcept
{
  return !(*this == other);
}
