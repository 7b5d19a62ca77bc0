#include "axsSystemDecoder.h"

#if defined(_WIN32)

#  include "axsCodePage.h"

#  include <utUtf16.h>
#  include <utUtf8.h>

#  include <windows.h>

namespace
{
UINT const gb18030 = 54936;

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
  UINT const number = axsCodePage::number_of(name);
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
