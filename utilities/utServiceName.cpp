#include "utServiceName.h"

#include <cstring>

utServiceName::utServiceName() noexcept = default;

utServiceName::utServiceName(utString const& name) : text(name) {}

utString utServiceName::name() const noexcept
{
  return text;
}

bool utServiceName::invalid() const noexcept
{
  return *text.c_str() == '\0';
}

void utServiceName::dequalify()
{
  char const* const qualifier_end = std::strstr(text.c_str(), "::");
  text = qualifier_end == nullptr ? utString() : utString(qualifier_end + 2);
}

bool utServiceName::operator==(utServiceName const& other) const noexcept
{
  return std::strcmp(text.c_str(), other.text.c_str()) == 0;
}

bool utServiceName::operator!=(utServiceName const& other) const noexcept
{
  return !(*this == other);
}
