#include "axsSystemId.h"

#include <utString.h>

#include <cstddef>
#include <vector>

namespace
{
#if defined(_WIN32)
std::string_view const separators = "/\\";
#else
std::string_view const separators = "/";
#endif

int hex_value(char c)
{
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool is_letter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool begins_with_drive(std::string_view path)
{
  return path.size() > 1 && is_letter(path[0]) && path[1] == ':';
}

// Of a URL (RFC 3986, 3.1), in small letters. A single letter before a colon is a drive.
std::string scheme_of(std::string_view reference)
{
  std::size_t const end = reference.find_first_of(":/\\?#");
  if (end == std::string_view::npos || end < 2 || reference[end] != ':')
    return {};
  std::string scheme;
  for (char const c : reference.substr(0, end))
    scheme += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return scheme;
}

// What is before the first folder or file of a path: a drive, and what makes it absolute.
std::string_view root_of(std::string_view path)
{
  std::size_t const drive = begins_with_drive(path) ? 2 : 0;
  std::size_t const end = path.find_first_not_of(separators, drive);
  return path.substr(0, end == std::string_view::npos ? path.size() : end);
}

bool is_absolute(std::string_view path)
{
  std::string_view const slashes = "/\\";
  return begins_with_drive(path) || (!path.empty() && slashes.find(path[0]) != std::string_view::npos);
}

// Two slashes begin the name of another computer.
bool is_elsewhere(std::string_view path)
{
  std::string_view const slashes = "/\\";
  return path.size() > 1 && slashes.find(path[0]) != std::string_view::npos &&
         slashes.find(path[1]) != std::string_view::npos;
}

std::string normalised(std::string_view path)
{
  std::string_view const root = root_of(path);
  std::vector<std::string_view> steps;
  for (std::size_t at = root.size(); at < path.size();)
  {
    std::size_t const end = std::min(path.find_first_of(separators, at), path.size());
    std::string_view const step = path.substr(at, end - at);
    at = end + 1;
    bool const is_up = step == "..";
    if (is_up && !steps.empty() && steps.back() != "..")
      steps.pop_back();
    else if (!step.empty() && step != "." && !(is_up && !root.empty()))
      steps.push_back(step);
  }
  std::string made(root);
  for (std::string_view const step : steps)
    made.append(made.size() == root.size() ? "" : "/").append(step);
  return made;
}

apPath path_of(std::string const& text)
{
  return apPath(utString(text.data(), static_cast<int>(text.size())));
}

std::string folder_of(apPath const& file)
{
  utString const path = file.path();
  std::string_view const text(path.c_str(), static_cast<std::size_t>(path.length()));
  std::size_t const slash = text.find_last_of(separators);
  return std::string(text.substr(0, slash == std::string_view::npos ? 0 : slash + 1));
}

// The path of a "file:" URL (RFC 8089), given what follows the colon; empty where that names another computer.
std::string path_of_url(std::string_view rest)
{
  if (rest.substr(0, 2) == "//")
  {
    std::size_t const end = std::min(rest.find('/', 2), rest.size());
    std::string_view const host = rest.substr(2, end - 2);
    if (!host.empty() && host != "localhost")
      return {};
    rest.remove_prefix(end);
  }
  std::string const path = axsSystemId::decoded(rest);
  if (path.empty() || path[0] != '/' || is_elsewhere(path))
    return {};
  return begins_with_drive(std::string_view(path).substr(1)) ? path.substr(1) : path;
}
}

apPath axsSystemId::resolve(apPath const& base, std::string_view reference)
{
  std::string const scheme = scheme_of(reference);
  if (scheme == "file")
    return path_of(normalised(path_of_url(reference.substr(scheme.size() + 1))));
  if (reference.empty() || !scheme.empty() || is_elsewhere(reference))
    return apPath();
  std::string const folder = is_absolute(reference) ? std::string() : folder_of(base);
  apPath const as_written = path_of(normalised(folder + std::string(reference)));
  return as_written.exists() ? as_written : path_of(normalised(folder + decoded(reference)));
}

std::string axsSystemId::decoded(std::string_view text)
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
