#include "axsSystemDecoder.h"

#if defined(_WIN32)

#  include <utUtf16.h>
#  include <utUtf8.h>

#  include <windows.h>

#  include <algorithm>
#  include <iterator>
#  include <string>

namespace
{
struct CodePage
{
  std::string_view key;
  UINT number;
};

// Names without punctuation, in small letters. Those of the kind "ibm037" and "windows-874" say their number.
CodePage const code_pages[] = {
  {"shiftjis", 932},
  {"sjis", 932},
  {"csshiftjis", 932},
  {"mskanji", 932},
  {"windows31j", 932},
  {"eucjp", 20932},
  {"gb2312", 936},
  {"csgb2312", 936},
  {"gbk", 936},
  {"gb18030", 54936},
  {"big5", 950},
  {"csbig5", 950},
  {"euckr", 949},
  {"cseuckr", 949},
  {"ksc56011987", 949},
  {"tis620", 874},
  {"macintosh", 10000},
};

UINT const gb18030 = 54936;

std::string key_of(std::string_view name)
{
  std::string key;
  for (char const c : name)
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
      key += c;
    else if (c >= 'A' && c <= 'Z')
      key += static_cast<char>(c - 'A' + 'a');
  return key;
}

UINT number_in(std::string_view key)
{
  for (std::string_view const start : {"ibm", "cp", "windows"})
  {
    std::string_view const digits = key.substr(std::min(start.size(), key.size()));
    bool const is_number =
      !digits.empty() && digits.size() < 6 && digits.find_first_not_of("0123456789") == digits.npos;
    if (key.substr(0, start.size()) == start && is_number)
      return static_cast<UINT>(std::stoul(std::string(digits)));
  }
  return 0;
}

UINT code_page_of(std::string_view name)
{
  std::string const key = key_of(name);
  CodePage const* const found = std::find_if(
    std::begin(code_pages), std::end(code_pages), [&key](CodePage const& page) { return page.key == key; });
  return found == std::end(code_pages) ? number_in(key) : found->number;
}

// Goes from character to character, so that a piece may end anywhere and what is illegal has its place.
class Decoder final : public axsDecoder
{
public:
  explicit Decoder(UINT number) noexcept : code_page(number) {}

  Result decode(std::string_view bytes, char* to, std::size_t room, bool is_end) noexcept override
  {
    char* made = to;
    std::size_t taken = 0;
    char const* const last = to + room - max_units * utUtf8::max_bytes;
    bool is_illegal = false;
    while (taken < bytes.size() && made <= last && !is_illegal)
    {
      std::string_view const rest = bytes.substr(taken);
      std::size_t const size = size_of_character(rest);
      if (size > rest.size())
      {
        is_illegal = is_end;
        break;
      }
      wchar_t units[max_units];
      int const count = MultiByteToWideChar(
        code_page, MB_ERR_INVALID_CHARS, rest.data(), static_cast<int>(size), units, static_cast<int>(max_units));
      is_illegal = count == 0 || !append(units, units + count, made);
      taken += is_illegal ? 0 : size;
    }
    return {taken, static_cast<std::size_t>(made - to), is_illegal};
  }

private:
  static constexpr std::size_t max_units = 4;

  // As its first bytes tell; more than there are where they do not.
  std::size_t size_of_character(std::string_view rest) const noexcept
  {
    auto const first = static_cast<unsigned char>(rest[0]);
    if (code_page != gb18030)
      return IsDBCSLeadByteEx(code_page, first) ? 2 : 1;
    if (first < 0x80 || rest.size() == 1)
      return first < 0x80 ? 1 : 2;
    return rest[1] >= '0' && rest[1] <= '9' ? 4 : 2;
  }

  static bool append(wchar_t const* at, wchar_t const* end, char*& to) noexcept
  {
    while (at != end)
    {
      utCodePoint const found = utUtf16::decode(at, end);
      if (!found.is_valid())
        return false;
      to = utUtf8::encode(found.code, to);
      at += found.length;
    }
    return true;
  }

  UINT code_page;
};
}

std::unique_ptr<axsDecoder> axsSystemDecoder::make(std::string_view name)
{
  UINT const number = code_page_of(name);
  wchar_t unit;
  // Some pages cannot be decoded strictly.
  bool const is_known = number != 0 && MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, "\x4C", 1, &unit, 1) == 1;
  return is_known ? std::make_unique<Decoder>(number) : nullptr;
}

#else

#  include <cerrno>
#  include <iconv.h>
#  include <new>
#  include <string>
#  include <utility>

namespace
{
class Decoder final : public axsDecoder
{
public:
  explicit Decoder(std::string const& name) : converter(iconv_open("UTF-8", name.c_str()))
  {
    if (!is_open() && errno == ENOMEM)
      throw std::bad_alloc();
  }

  ~Decoder() override
  {
    if (is_open())
      iconv_close(converter);
  }

  bool is_open() const noexcept { return converter != reinterpret_cast<iconv_t>(-1); }

  Result decode(std::string_view bytes, char* to, std::size_t room, bool is_end) noexcept override
  {
    // It is only read.
    char* at = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    char* made = to;
    bool const is_whole = left == 0 || iconv(converter, &at, &left, &made, &room) != failed;
    bool const is_illegal = !is_whole && (errno == EILSEQ || (errno == EINVAL && is_end));
    // Some converters keep a character until they know what follows it.
    if (is_illegal || (is_whole && is_end))
      iconv(converter, nullptr, nullptr, &made, &room);
    return {bytes.size() - left, static_cast<std::size_t>(made - to), is_illegal};
  }

private:
  static constexpr auto failed = static_cast<std::size_t>(-1);

  iconv_t converter;
};
}

std::unique_ptr<axsDecoder> axsSystemDecoder::make(std::string_view name)
{
  auto decoder = std::make_unique<Decoder>(std::string(name));
  return decoder->is_open() ? std::move(decoder) : nullptr;
}

#endif
