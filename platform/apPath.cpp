#include "apPath.h"

#include "apNativeFile.h"

#include <cstddef>
#include <cstring>

apPath::apPath() noexcept = default;

apPath::apPath(char const* utf8) : name(utf8) {}

apPath::apPath(utString const& utf8) : name(utf8) {}

apPath::apPath(wchar_t const* wide) : apPath(apString(wide)) {}

apPath::apPath(apString const& wide) : name(wide.to_utf8()) {}

utString apPath::path() const noexcept
{
  return name;
}

bool apPath::empty() const noexcept
{
  return name.length() == 0;
}

bool apPath::exists() const
{
  return apNativeFile::exists(name);
}

bool apPath::delete_file() const
{
  return apNativeFile::remove(name) || !exists();
}

std::FILE* apPath::file_open(char const* mode) const
{
  return apNativeFile::open(name, mode);
}

char const* apPath::read_mode() noexcept
{
  return "rb";
}

char const* apPath::write_mode() noexcept
{
  return "wb";
}

bool apPath::replace(apPath const& target) const
{
  return apNativeFile::replace(name, target.name);
}

bool apPath::operator==(apPath const& other) const noexcept
{
  return name.length() == other.name.length() &&
         std::memcmp(name.c_str(), other.name.c_str(), static_cast<std::size_t>(name.length())) == 0;
}

bool apPath::operator!=(apPath const& other) const noexcept
{
  return !(*this == other);
}

std::ostream& operator<<(std::ostream& out, apPath const& path)
{
  return out << path.path();
}
