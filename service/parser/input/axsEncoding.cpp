#include "axsEncoding.h"

#include "axsDecoder.h"
#include "axsEncodingName.h"
#include "axsLineEnds.h"

#include <utXmlCharacter.h>

#include <algorithm>
#include <iterator>
#include <memory>

using namespace std::string_view_literals;

namespace
{
// No declaration is longer, whoever wrote it.
std::size_t const max_declaration = 4096;

// What the first bytes tell.
struct Family
{
  std::string_view bytes;
  std::size_t mark_size;
  std::string_view encoding;
};

// Encodings in which ASCII is ASCII, and those that have the letters of EBCDIC.
std::string_view const like_ascii = "ASCII";
std::string_view const like_ebcdic = "EBCDIC";
std::string_view const unusual_order = "unusual";

// Appendix F.1. The longer ones first.
Family const families[] = {
  {"\0\0\xFE\xFF"sv, 4, "UTF-32BE"},
  {"\xFF\xFE\0\0"sv, 4, "UTF-32LE"},
  {"\0\0\xFF\xFE"sv, 4, unusual_order},
  {"\xFE\xFF\0\0"sv, 4, unusual_order},
  {"\xFE\xFF"sv, 2, "UTF-16BE"},
  {"\xFF\xFE"sv, 2, "UTF-16LE"},
  {"\xEF\xBB\xBF"sv, 3, "UTF-8"},
  {"\0\0\0<"sv, 0, "UTF-32BE"},
  {"<\0\0\0"sv, 0, "UTF-32LE"},
  {"\0\0<\0"sv, 0, unusual_order},
  {"\0<\0\0"sv, 0, unusual_order},
  {"\0<"sv, 0, "UTF-16BE"},
  {"<\0"sv, 0, "UTF-16LE"},
  {"\x4C\x6F\xA7\x94"sv, 0, like_ebcdic},
  {""sv, 0, like_ascii},
};

Family const& family_of(std::string_view head)
{
  return *std::find_if(std::begin(families), std::end(families),
    [head](Family const& family) { return head.substr(0, family.bytes.size()) == family.bytes; });
}

// What is the same in all encodings like EBCDIC, as ASCII; other bytes as a zero byte.
char ascii_of_ebcdic(char byte)
{
  struct Run
  {
    unsigned char first;
    std::string_view characters;
  };
  static Run const runs[] = {{0x40, " "}, {0x4B, ".<"}, {0x60, "-/"}, {0x6D, "_>?"}, {0x7A, ":"}, {0x7D, "'=\""},
    {0x81, "abcdefghi"}, {0x91, "jklmnopqr"}, {0xA2, "stuvwxyz"}, {0xC1, "ABCDEFGHI"}, {0xD1, "JKLMNOPQR"},
    {0xE2, "STUVWXYZ"}, {0xF0, "0123456789"}, {0x05, "\t"}, {0x0D, "\r"}, {0x25, "\n"}};
  auto const code = static_cast<unsigned char>(byte);
  for (Run const& run : runs)
    if (code >= run.first && code - run.first < static_cast<int>(run.characters.size()))
      return run.characters[static_cast<std::size_t>(code - run.first)];
  return '\0';
}

// Of units of two or four bytes.
bool is_wide(std::string_view encoding)
{
  std::string_view const begin = encoding.substr(0, 6);
  return begin == "UTF-16" || begin == "UTF-32";
}

std::string decoded(axsDecoder& decoder, std::string_view bytes)
{
  std::string text(3 * bytes.size() + axsDecoder::min_room, '\0');
  text.resize(decoder.decode(bytes, text.data(), text.size(), false).made);
  return text;
}

// The beginning as far as it can be read without a declaration.
std::string readable(Family const& family, std::string_view bytes)
{
  std::string text;
  if (family.encoding == like_ebcdic)
    std::transform(bytes.begin(), bytes.end(), std::back_inserter(text), ascii_of_ebcdic);
  else if (is_wide(family.encoding))
    text = decoded(*axsDecoder::make(family.encoding), bytes);
  else
    text = bytes;
  return text;
}

// Goes along a declaration.
class Declaration
{
public:
  explicit Declaration(std::string_view given) : text(given) {}

  // Where the name of the encoding stands ([23] XMLDecl, [77] TextDecl, [80] EncodingDecl); empty if there is none.
  std::string_view encoding()
  {
    if (!skip("<?xml") || !skip_spaces())
      return {};
    if (skip("version") && (value().empty() || !skip_spaces()))
      return {};
    std::string_view const found = skip("encoding") ? value() : std::string_view();
    return axsEncodingName::is_name(found) ? found : std::string_view();
  }

private:
  bool skip(std::string_view expected)
  {
    bool const is_there = text.substr(at, expected.size()) == expected;
    at += is_there ? expected.size() : 0;
    return is_there;
  }

  bool skip_spaces()
  {
    std::size_t const before = at;
    while (at < text.size() && utXmlCharacter::is_space(text[at]))
      ++at;
    return at != before;
  }

  std::string_view value()
  {
    skip_spaces();
    if (!skip("="))
      return {};
    skip_spaces();
    char const quote = at < text.size() ? text[at] : '\0';
    std::size_t const end = quote == '"' || quote == '\'' ? text.find(quote, at + 1) : std::string_view::npos;
    if (end == std::string_view::npos)
      return {};
    std::string_view const found = text.substr(at + 1, end - at - 1);
    at = end + 1;
    return found;
  }

  std::string_view text;
  std::size_t at = 0;
};

axsPlace place_in(std::string const& text, std::string_view part)
{
  // Two bytes before it are looked at.
  std::string const padded = std::string(axsLineEnds::bytes_before, '\0') + text;
  char const* const begin = padded.data() + axsLineEnds::bytes_before;
  return axsLineEnds::place_after({}, begin, begin + (part.data() - text.data()), axsLineEnds::Rule::xml_1_0);
}

apString quoted(std::string_view name)
{
  return APSTRING("'") + apString::from_utf8(name) + APSTRING("'");
}

// One entity of which the encoding is looked for.
class Search
{
public:
  Search(std::string_view head, apString const& entity)
    : url(entity),
      family(family_of(head)),
      bytes(head.substr(family.mark_size, max_declaration)),
      text(readable(family, bytes))
  {
  }

  axsEncoding run() const
  {
    if (family.encoding == unusual_order)
      fail(APSTRING("The bytes of the document's characters are in an unusual order, which is not read"));
    std::string_view const name = Declaration(text).encoding();
    return name.empty() ? undeclared() : declared(name);
  }

private:
  axsEncoding undeclared() const
  {
    if (family.encoding == like_ascii)
      return {"UTF-8", 0, false};
    if (family.mark_size == 0)
      fail(APSTRING("The document is in ") + apString::from_utf8(family.encoding) +
           APSTRING(", but has neither a byte-order mark nor a declaration that says so"));
    return {std::string(family.encoding), family.mark_size, false};
  }

  axsEncoding declared(std::string_view written) const
  {
    std::string const name = axsEncodingName::preferred(written);
    bool const is_bytes_own = family.encoding != like_ascii && family.encoding != like_ebcdic;
    bool const is_right = is_bytes_own ? is_family(name) : says_itself(name, written);
    if (!is_right)
      fail(APSTRING("the encoding is declared as ") + quoted(written) + APSTRING(", but the bytes are in another one"),
        written);
    return {is_bytes_own ? std::string(family.encoding) : name, family.mark_size, true};
  }

  // The name with or without the order of the bytes.
  bool is_family(std::string_view name) const
  {
    return name == family.encoding || (is_wide(name) && name == family.encoding.substr(0, 6));
  }

  // Whether the declaration is what it is in the encoding that it declares.
  bool says_itself(std::string const& name, std::string_view written) const
  {
    if (name == "UTF-8" || name == "US-ASCII" || is_wide(name))
      return family.encoding == like_ascii && !is_wide(name);
    std::unique_ptr<axsDecoder> const decoder = axsDecoder::make(name);
    if (decoder == nullptr)
      fail(APSTRING("the encoding ") + quoted(written) + APSTRING(" is not known"), written);
    auto const size = static_cast<std::size_t>(written.data() + written.size() - text.data());
    return decoded(*decoder, bytes).compare(0, size, text, 0, size) == 0;
  }

  // The place is that of `part`, of the text.
  [[noreturn]] void fail(apString const& message, std::string_view part = {}) const
  {
    throw axsReadError::at(message, url, part.empty() ? axsPlace() : place_in(text, part));
  }

  apString const& url;
  Family const& family;
  std::string_view bytes;
  std::string text;
};
}

axsEncoding axsEncoding::of(std::string_view head, apString const& url)
{
  return Search(head, url).run();
}
