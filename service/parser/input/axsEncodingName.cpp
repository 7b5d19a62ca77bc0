#include "axsEncodingName.h"

#include <algorithm>
#include <iterator>

namespace
{
struct Alias
{
  std::string_view key;
  std::string_view preferred;
};

// The keys without punctuation, in small letters.
Alias const aliases[] = {
  {"utf8", "UTF-8"},
  {"csutf8", "UTF-8"},
  {"unicode11utf8", "UTF-8"},

  {"usascii", "US-ASCII"},
  {"ascii", "US-ASCII"},
  {"csascii", "US-ASCII"},
  {"us", "US-ASCII"},
  {"iso646us", "US-ASCII"},
  {"isoir6", "US-ASCII"},
  {"ansix341968", "US-ASCII"},
  {"ansix341986", "US-ASCII"},
  {"ibm367", "US-ASCII"},
  {"cp367", "US-ASCII"},

  {"utf16", "UTF-16"},
  {"csutf16", "UTF-16"},
  {"iso10646ucs2", "UTF-16"},
  {"ucs2", "UTF-16"},
  {"csunicode", "UTF-16"},
  {"utf16be", "UTF-16BE"},
  {"csutf16be", "UTF-16BE"},
  {"utf16le", "UTF-16LE"},
  {"csutf16le", "UTF-16LE"},
  {"utf32", "UTF-32"},
  {"csutf32", "UTF-32"},
  {"iso10646ucs4", "UTF-32"},
  {"ucs4", "UTF-32"},
  {"csucs4", "UTF-32"},
  {"utf32be", "UTF-32BE"},
  {"csutf32be", "UTF-32BE"},
  {"utf32le", "UTF-32LE"},
  {"csutf32le", "UTF-32LE"},

  {"iso88591", "ISO-8859-1"},
  {"latin1", "ISO-8859-1"},
  {"l1", "ISO-8859-1"},
  {"isoir100", "ISO-8859-1"},
  {"csisolatin1", "ISO-8859-1"},
  {"ibm819", "ISO-8859-1"},
  {"cp819", "ISO-8859-1"},
  {"iso88592", "ISO-8859-2"},
  {"latin2", "ISO-8859-2"},
  {"l2", "ISO-8859-2"},
  {"isoir101", "ISO-8859-2"},
  {"csisolatin2", "ISO-8859-2"},
  {"iso88593", "ISO-8859-3"},
  {"latin3", "ISO-8859-3"},
  {"l3", "ISO-8859-3"},
  {"isoir109", "ISO-8859-3"},
  {"csisolatin3", "ISO-8859-3"},
  {"iso88594", "ISO-8859-4"},
  {"latin4", "ISO-8859-4"},
  {"l4", "ISO-8859-4"},
  {"isoir110", "ISO-8859-4"},
  {"csisolatin4", "ISO-8859-4"},
  {"iso88595", "ISO-8859-5"},
  {"cyrillic", "ISO-8859-5"},
  {"isoir144", "ISO-8859-5"},
  {"csisolatincyrillic", "ISO-8859-5"},
  {"iso88596", "ISO-8859-6"},
  {"arabic", "ISO-8859-6"},
  {"isoir127", "ISO-8859-6"},
  {"ecma114", "ISO-8859-6"},
  {"asmo708", "ISO-8859-6"},
  {"csisolatinarabic", "ISO-8859-6"},
  {"iso88596e", "ISO-8859-6"},
  {"iso88596i", "ISO-8859-6"},
  {"iso88597", "ISO-8859-7"},
  {"greek", "ISO-8859-7"},
  {"greek8", "ISO-8859-7"},
  {"isoir126", "ISO-8859-7"},
  {"ecma118", "ISO-8859-7"},
  {"elot928", "ISO-8859-7"},
  {"csisolatingreek", "ISO-8859-7"},
  {"iso88598", "ISO-8859-8"},
  {"hebrew", "ISO-8859-8"},
  {"isoir138", "ISO-8859-8"},
  {"csisolatinhebrew", "ISO-8859-8"},
  {"iso88598e", "ISO-8859-8"},
  {"iso88598i", "ISO-8859-8"},
  {"iso88599", "ISO-8859-9"},
  {"latin5", "ISO-8859-9"},
  {"l5", "ISO-8859-9"},
  {"isoir148", "ISO-8859-9"},
  {"csisolatin5", "ISO-8859-9"},
  {"iso885910", "ISO-8859-10"},
  {"latin6", "ISO-8859-10"},
  {"l6", "ISO-8859-10"},
  {"isoir157", "ISO-8859-10"},
  {"csisolatin6", "ISO-8859-10"},
  {"iso885911", "ISO-8859-11"},
  {"iso885913", "ISO-8859-13"},
  {"csiso885913", "ISO-8859-13"},
  {"iso885914", "ISO-8859-14"},
  {"latin8", "ISO-8859-14"},
  {"l8", "ISO-8859-14"},
  {"isoir199", "ISO-8859-14"},
  {"csiso885914", "ISO-8859-14"},
  {"iso885915", "ISO-8859-15"},
  {"latin9", "ISO-8859-15"},
  {"csiso885915", "ISO-8859-15"},
  {"iso885916", "ISO-8859-16"},
  {"latin10", "ISO-8859-16"},
  {"l10", "ISO-8859-16"},
  {"isoir226", "ISO-8859-16"},
  {"csiso885916", "ISO-8859-16"},

  {"windows1250", "windows-1250"},
  {"cp1250", "windows-1250"},
  {"cswindows1250", "windows-1250"},
  {"windows1251", "windows-1251"},
  {"cp1251", "windows-1251"},
  {"cswindows1251", "windows-1251"},
  {"windows1252", "windows-1252"},
  {"cp1252", "windows-1252"},
  {"cswindows1252", "windows-1252"},
  {"windows1253", "windows-1253"},
  {"cp1253", "windows-1253"},
  {"cswindows1253", "windows-1253"},
  {"windows1254", "windows-1254"},
  {"cp1254", "windows-1254"},
  {"cswindows1254", "windows-1254"},
  {"windows1255", "windows-1255"},
  {"cp1255", "windows-1255"},
  {"cswindows1255", "windows-1255"},
  {"windows1256", "windows-1256"},
  {"cp1256", "windows-1256"},
  {"cswindows1256", "windows-1256"},
  {"windows1257", "windows-1257"},
  {"cp1257", "windows-1257"},
  {"cswindows1257", "windows-1257"},
  {"windows1258", "windows-1258"},
  {"cp1258", "windows-1258"},
  {"cswindows1258", "windows-1258"},

  {"koi8r", "KOI8-R"},
  {"cskoi8r", "KOI8-R"},
  {"koi8u", "KOI8-U"},
  {"cskoi8u", "KOI8-U"},
};

bool is_letter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool is_digit(char c)
{
  return c >= '0' && c <= '9';
}

std::string key_of(std::string_view name)
{
  std::string key;
  for (char const c : name)
    if (is_letter(c) || is_digit(c))
      key += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return key;
}
}

std::string axsEncodingName::preferred(std::string_view name)
{
  std::string const key = key_of(name);
  Alias const* const found =
    std::find_if(std::begin(aliases), std::end(aliases), [&key](Alias const& alias) { return alias.key == key; });
  return std::string(found == std::end(aliases) ? name : found->preferred);
}

bool axsEncodingName::is_name(std::string_view text) noexcept
{
  return !text.empty() && is_letter(text[0]) &&
         std::all_of(text.begin(), text.end(),
           [](char c) { return is_letter(c) || is_digit(c) || c == '.' || c == '_' || c == '-'; });
}
