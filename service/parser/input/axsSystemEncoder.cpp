#include "axsSystemEncoder.h"

#include "axsDecoder.h"

#include <string>

#if defined(_WIN32)
#  include "axsCodePage.h"

#  include <apString.h>

#  include <windows.h>
#else
#  include <cerrno>
#  include <iconv.h>
#  include <new>
#endif

namespace
{
// What the bytes mean when they are read.
bool is_meant(std::string_view name, std::string const& bytes, std::string_view text)
{
  std::unique_ptr<axsDecoder> const decoder = axsDecoder::make(name);
  if (decoder == nullptr)
    return false;
  std::string read(text.size() + axsDecoder::min_room, '\0');
  std::string_view rest = bytes;
  std::size_t made = 0;
  while (read.size() - made >= axsDecoder::min_room)
  {
    axsDecoder::Result const result = decoder->decode(rest, read.data() + made, read.size() - made, true);
    made += result.made;
    rest.remove_prefix(result.taken);
    if (result.is_illegal)
      return false;
    if (result.made + result.taken == 0)
      break;
  }
  return rest.empty() && std::string_view(read).substr(0, made) == text;
}

#if defined(_WIN32)

class Encoder final : public axsEncoder
{
public:
  Encoder(std::string_view name, unsigned int number) : encoding(name), code_page(number) {}

  bool encode(std::string_view text, std::string& bytes) override
  {
    apString const wide = apString::from_utf8(text);
    int const length = wide.length();
    int const size = WideCharToMultiByte(code_page, 0, wide.c_str(), length, nullptr, 0, nullptr, nullptr);
    std::string made(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(code_page, 0, wide.c_str(), length, made.data(), size, nullptr, nullptr);
    // What it has no bytes for it replaces.
    if (!is_meant(encoding, made, text))
      return false;
    bytes += made;
    return true;
  }

private:
  std::string const encoding;
  unsigned int const code_page;
};

#else

class Encoder final : public axsEncoder
{
public:
  explicit Encoder(std::string_view name) : encoding(name), converter(iconv_open(encoding.c_str(), "UTF-8"))
  {
    if (!is_open() && errno == ENOMEM)
      throw std::bad_alloc();
  }

  ~Encoder() override
  {
    if (is_open())
      iconv_close(converter);
  }

  bool is_open() const noexcept { return converter != reinterpret_cast<iconv_t>(-1); }

  bool encode(std::string_view text, std::string& bytes) override
  {
    std::string made;
    if (!convert(text, made) || !is_meant(encoding, made, text))
      return false;
    bytes += made;
    return true;
  }

private:
  // Also back to the first state of the encoding.
  bool convert(std::string_view text, std::string& made)
  {
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    // It is only read.
    char* from = const_cast<char*>(text.data());
    std::size_t left = text.size();
    bool is_whole = false;
    while (!is_whole)
    {
      char room[256];
      char* to = room;
      std::size_t free = sizeof room;
      bool const is_at_end = left == 0;
      std::size_t const result =
        is_at_end ? iconv(converter, nullptr, nullptr, &to, &free) : iconv(converter, &from, &left, &to, &free);
      if (result == static_cast<std::size_t>(-1) && errno != E2BIG)
        return false;
      made.append(room, static_cast<std::size_t>(to - room));
      is_whole = is_at_end && result != static_cast<std::size_t>(-1);
    }
    return true;
  }

  std::string const encoding;
  iconv_t converter;
};

#endif
}

std::unique_ptr<axsEncoder> axsSystemEncoder::make(std::string_view name)
{
#if defined(_WIN32)
  unsigned int const number = axsCodePage::number_of(name);
  return number == 0 ? nullptr : std::make_unique<Encoder>(name, number);
#else
  auto encoder = std::make_unique<Encoder>(name);
  return encoder->is_open() ? std::move(encoder) : nullptr;
#endif
}
