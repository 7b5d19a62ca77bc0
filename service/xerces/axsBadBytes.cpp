#include "axsBadBytes.h"

#include "axsEncoding.h"
#include "axsSource.h"

#include <apByteBlock.h>
#include <apStringFormatter.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{
// Goes over a document in UTF-8 (The Unicode Standard, table 3-7) as far as it is one, and counts lines and columns as
// the parser does: columns in units of UTF-16.
class Text
{
public:
  // Whether all is well up to the end of `bytes`, which follow those of the call before.
  bool goes_on(std::string_view bytes)
  {
    return std::all_of(bytes.begin(), bytes.end(), [this](char c) { return goes_on(static_cast<unsigned char>(c)); });
  }

  // What began at the end does not end there.
  bool ends() const { return wanted == 0; }

  // The byte that is wrong, or with which what is wrong began, and its place.
  unsigned int byte() const { return first; }
  int line() const { return lines; }
  int column() const { return columns; }

private:
  bool goes_on(unsigned char c)
  {
    if (wanted != 0)
    {
      bool const fits = c >= least && c <= most;
      least = 0x80;
      most = 0xBF;
      if (fits && --wanted == 0)
        columns += first >= 0xF0 ? 2 : 1;
      return fits;
    }
    first = c;
    if (c < 0x80)
      return ascii(c);
    return begin(c);
  }

  bool ascii(unsigned char c)
  {
    if (c == '\0')
      return false;
    bool const is_second_half = c == '\n' && last == '\r';
    last = c;
    if (is_second_half)
      return true;
    bool const is_line_end = c == '\n' || c == '\r';
    lines += is_line_end ? 1 : 0;
    columns = is_line_end ? 1 : columns + 1;
    return true;
  }

  bool begin(unsigned char c)
  {
    if (c < 0xC2 || c > 0xF4)
      return false;
    last = c;
    wanted = c < 0xE0 ? 1 : c < 0xF0 ? 2 : 3;
    least = c == 0xE0 ? 0xA0 : c == 0xF0 ? 0x90 : 0x80;
    most = c == 0xED ? 0x9F : c == 0xF4 ? 0x8F : 0xBF;
    return true;
  }

  int lines = 1;
  int columns = 1;
  unsigned int first = 0;
  unsigned char last = 0;
  int wanted = 0; // bytes of the character that began
  unsigned char least = 0x80;
  unsigned char most = 0xBF;
};

apString message(Text const& text, bool is_declared)
{
  if (text.byte() == 0)
    return APSTRING("A zero byte stands in the document");
  apString const byte = apStringFormatter::format(L"The byte 0x%02X is not UTF-8", text.byte());
  return byte + (is_declared ? APSTRING(", which the document says that it is")
                             : APSTRING("; a document in another encoding has to declare it"));
}
}

axsReadError axsBadBytes::explained(axsSource& source, axsReadError const& error)
{
  if (error.url != source.url() || !source.can_rewind())
    return error;
  axsEncoding const encoding = axsEncoding::of(source.head(), error.url);
  if (encoding.name != "UTF-8")
    return error;

  source.rewind();
  Text text;
  bool good = true;
  std::vector<char> block(64 * 1024);
  for (std::size_t count; good && (count = source.read(block.data(), block.size())) > 0;)
    good = text.goes_on({block.data(), count});
  bool const is_before = std::make_pair(text.line(), text.column()) <= std::make_pair(error.line, error.column);
  if ((good && text.ends()) || !(is_before || error.line < 0 || error.is_about_encoding))
    return error;
  return {message(text, encoding.is_declared), error.url, text.line(), text.column()};
}
