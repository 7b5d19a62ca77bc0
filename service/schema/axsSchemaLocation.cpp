#include "axsSchemaLocation.h"

#include <filesystem>
#include <system_error>

namespace
{
std::string_view const file_scheme = "file:///";

int hex_value(char c)
{
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::string decoded(std::string_view text)
{
  std::string made;
  for (std::size_t at = 0; at < text.size(); ++at)
  {
    int const high = text[at] == '%' && at + 2 < text.size() ? hex_value(text[at + 1]) : -1;
    int const low = high < 0 ? -1 : hex_value(text[at + 2]);
    if (low < 0)
      made += text[at];
    else
    {
      made += static_cast<char>(high * 16 + low);
      at += 2;
    }
  }
  return made;
}

std::string narrow(apPath const& path)
{
  utString const text = path.path();
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}

std::string in_folder_of(apPath const& base, std::string const& reference)
{
  std::string const text = narrow(base);
  std::size_t const slash = text.find_last_of("/\\");
  return text.substr(0, slash == std::string::npos ? 0 : slash + 1) + reference;
}

// "c:" is a drive, longer ones are schemes.
bool has_scheme(std::string_view reference)
{
  std::size_t const colon = reference.find(':');
  return colon != std::string_view::npos && colon > 1 && colon < reference.find_first_of("/\\?#");
}

bool is_rooted(std::string_view reference)
{
  bool const has_drive = reference.size() > 1 && reference[1] == ':';
  return has_drive || (!reference.empty() && (reference[0] == '/' || reference[0] == '\\'));
}

apPath as_written_or_decoded(std::string const& path)
{
  apPath const as_written(path.c_str());
  return as_written.exists() ? as_written : apPath(decoded(path).c_str());
}
}

apPath axsSchemaLocation::resolve(apPath const& base, std::string_view reference)
{
  if (reference.substr(0, file_scheme.size()) == file_scheme)
  {
    std::string const path = decoded(reference.substr(file_scheme.size()));
    bool const has_drive = path.size() > 1 && path[1] == ':';
    return apPath((has_drive ? path : "/" + path).c_str());
  }
  if (reference.empty() || has_scheme(reference))
    return apPath();
  if (is_rooted(reference))
    return as_written_or_decoded(std::string(reference));
  apPath const as_written(in_folder_of(base, std::string(reference)).c_str());
  return as_written.exists() ? as_written : apPath(in_folder_of(base, decoded(reference)).c_str());
}

std::string axsSchemaLocation::identity(apPath const& path)
{
  std::error_code failure;
  std::filesystem::path const canonical = std::filesystem::canonical(std::filesystem::u8path(narrow(path)), failure);
  return failure ? narrow(path) : canonical.u8string();
}
