#include "axsEncoder.h"

#include "axsSingleByteSets.h"
#include "axsSystemEncoder.h"

#include <utUtf16.h>
#include <utUtf8.h>

#include <algorithm>

namespace
{
// Has each character appended by `append`, as long as that can.
template <class Append>
bool encode_each(std::string_view text, std::string& bytes, Append append)
{
  std::size_t const before = bytes.size();
  char const* const end = text.data() + text.size();
  for (char const* at = text.data(); at != end;)
  {
    utCodePoint const found = utUtf8::decode(at, end);
    if (!found.is_valid() || !append(found.code))
    {
      bytes.resize(before);
      return false;
    }
    at += found.length;
  }
  return true;
}

class Utf8 final : public axsEncoder
{
public:
  bool encode(std::string_view text, std::string& bytes) override
  {
    bytes.append(text);
    return true;
  }
};

class Ascii final : public axsEncoder
{
public:
  bool encode(std::string_view text, std::string& bytes) override
  {
    if (!std::all_of(text.begin(), text.end(), utUtf8::is_ascii))
      return false;
    bytes.append(text);
    return true;
  }
};

class SingleByte final : public axsEncoder
{
public:
  explicit SingleByte(axsSingleByteSets::Characters const& set) : characters(set) {}

  bool encode(std::string_view text, std::string& bytes) override
  {
    return encode_each(text, bytes,
      [&](char32_t code)
      {
        if (code < 0x80)
        {
          bytes += static_cast<char>(code);
          return true;
        }
        auto const found = std::find(characters.begin(), characters.end(), code);
        if (found == characters.end())
          return false;
        bytes += static_cast<char>(0x80 + (found - characters.begin()));
        return true;
      });
  }

private:
  axsSingleByteSets::Characters const& characters;
};

// UTF-16 in units of two bytes, UTF-32 in units of four.
class Unicode final : public axsEncoder
{
public:
  Unicode(int bytes_of_unit, bool is_big) : unit_size(bytes_of_unit), is_big_endian(is_big) {}

  bool encode(std::string_view text, std::string& bytes) override
  {
    return encode_each(text, bytes,
      [&](char32_t code)
      {
        char16_t units[2];
        char16_t const* const end = unit_size == 2 ? utUtf16::encode(code, units) : units;
        if (unit_size == 4)
          append(code, bytes);
        for (char16_t const* unit = units; unit != end; ++unit)
          append(*unit, bytes);
        return true;
      });
  }

private:
  void append(char32_t unit, std::string& bytes) const
  {
    for (int i = 0; i < unit_size; ++i)
      bytes += static_cast<char>(unit >> 8 * (is_big_endian ? unit_size - 1 - i : i) & 0xFF);
  }

  int const unit_size;
  bool const is_big_endian;
};
}

std::unique_ptr<axsEncoder> axsEncoder::make(std::string_view name)
{
  if (name == "UTF-8")
    return std::make_unique<Utf8>();
  if (name == "US-ASCII")
    return std::make_unique<Ascii>();
  if (auto const* const set = axsSingleByteSets::find(name))
    return std::make_unique<SingleByte>(*set);
  std::string_view const family = name.substr(0, 6);
  if (family == "UTF-16" || family == "UTF-32")
    return std::make_unique<Unicode>(family == "UTF-16" ? 2 : 4, name.substr(6) == "BE");
  return axsSystemEncoder::make(name);
}
