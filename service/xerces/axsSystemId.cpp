#include "axsSystemId.h"

#include "axsUtf16.h"

namespace
{
std::string_view const scheme = "axs:";

bool stands_for_itself(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' || c == '.' ||
         c == '-' || c == '_' || c == '~';
}

int hex_value(char c)
{
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::string_view view(utString const& text)
{
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}

apPath in_folder_of(apPath const& base, std::string const& reference)
{
  utString const base_text = base.path();
  std::size_t const slash = view(base_text).find_last_of("/\\");
  std::string const folder(view(base_text).substr(0, slash == std::string_view::npos ? 0 : slash + 1));
  return apPath((folder + reference).c_str());
}
}

std::basic_string<XMLCh> axsSystemId::of(apPath const& path)
{
  char const* const digits = "0123456789ABCDEF";
  utString const text = path.path();
  std::string id(scheme);
  for (char const c : view(text))
    if (stands_for_itself(c))
      id += c;
    else
    {
      id += '%';
      id += digits[static_cast<unsigned char>(c) >> 4];
      id += digits[static_cast<unsigned char>(c) & 0xF];
    }
  return {id.begin(), id.end()};
}

apPath axsSystemId::path(XMLCh const* system_id)
{
  std::string const id = axsUtf16::to_utf8(system_id);
  return id.compare(0, scheme.size(), scheme) == 0 ? apPath(decode(id.substr(scheme.size())).c_str()) : apPath();
}

bool axsSystemId::is_absolute(std::string_view reference) noexcept
{
  std::size_t const end = reference.find_first_of(":/\\?#");
  return end != std::string_view::npos &&
         (reference[end] == ':' || (end == 0 && (reference[0] == '/' || reference[0] == '\\')));
}

apPath axsSystemId::resolve(apPath const& base, std::string_view reference)
{
  apPath const as_written = in_folder_of(base, std::string(reference));
  return as_written.exists() ? as_written : in_folder_of(base, decode(reference));
}

apPath axsSystemId::file_url_path(std::string_view url)
{
  std::string_view const start = "file:///";
  if (url.substr(0, start.size()) != start)
    return apPath();
  std::string const path = decode(url.substr(start.size()));
  bool const has_drive = path.size() > 1 && path[1] == ':';
  return apPath((has_drive ? path : "/" + path).c_str());
}

std::string axsSystemId::decode(std::string_view text)
{
  std::string decoded;
  for (std::size_t at = 0; at < text.size(); ++at)
  {
    int const high = text[at] == '%' && at + 2 < text.size() ? hex_value(text[at + 1]) : -1;
    int const low = high < 0 ? -1 : hex_value(text[at + 2]);
    if (low < 0)
      decoded += text[at];
    else
    {
      decoded += static_cast<char>(high * 16 + low);
      at += 2;
    }
  }
  return decoded;
}
