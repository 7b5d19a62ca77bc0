#pragma once

#include <apByteBlock.h>
#include <utUtf8.h>
#include <utXmlCharacter.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

/// The characters of XML 1.0 in UTF-8, for who reads them out of memory in which a zero byte stands after the last one
/// and `apByteBlock::size` bytes more may be read.
namespace axsCharacters
{
using utUtf8::is_ascii;
using utXmlCharacter::is_character;

enum Class : unsigned char
{
  space = 1,
  name_start = 2,
  name = 4
};

constexpr std::array<unsigned char, 256> make_classes()
{
  std::array<unsigned char, 256> made{};
  for (std::size_t c = 0; c < 0x80; ++c)
    made[c] = utXmlCharacter::is_space(static_cast<char>(c)) ? space : Class();
  for (std::size_t c = 0; c < 26; ++c)
    made['a' + c] = made['A' + c] = name_start | name;
  made[':'] = made['_'] = name_start | name;
  for (std::size_t c = '0'; c <= '9'; ++c)
    made[c] = name;
  made['-'] = made['.'] = name;
  return made;
}

/// Of ASCII; of other bytes nothing is known.
inline constexpr std::array<unsigned char, 256> classes = make_classes();

inline bool is(char c, Class of)
{
  return (classes[static_cast<unsigned char>(c)] & of) != 0;
}

inline char const* end_of_spaces(char const* at)
{
  while (is(*at, space))
    ++at;
  return at;
}

inline bool begins(char const* at, std::string_view with)
{
  return std::strncmp(at, with.data(), with.size()) == 0;
}

/// Moves past `expected`, if that stands at `at`. Whether it does.
inline bool skip(char const*& at, std::string_view expected)
{
  bool const found = begins(at, expected);
  at += found ? expected.size() : 0;
  return found;
}

/// Moves past white space. Whether there is some.
inline bool skip_spaces(char const*& at)
{
  char const* const before = at;
  at = end_of_spaces(at);
  return at != before;
}

/// Moves past the character `expected`, one of ASCII, if that stands at `at`. Whether it does.
inline bool skip_character(char const*& at, char expected)
{
  bool const found = *at == expected;
  at += found ? 1 : 0;
  return found;
}

/// Moves past the tab or line end at `at` (2.11).
inline void skip_line_end(char const*& at)
{
  at += begins(at, "\r\n") ? 2 : 1;
}

/// Whether the two differ at most in capital letters of ASCII.
bool is_equal_in_any_case(std::string_view text, std::string_view lower_case);

/// The character at `at` and its length in bytes, which is 0 where the bytes are no UTF-8 or no character of XML (2.2,
/// [2] Char).
struct Character
{
  char32_t code;
  std::size_t length;
};
Character character(char const* at);

/// Whether a name may begin with the character (2.3, [4] NameStartChar), and whether it may stand further on ([4a]
/// NameChar).
bool is_name_start(char32_t character) noexcept;
bool is_name_part(char32_t character) noexcept;

/// The end of the name at `at` (2.3, [5] Name); `at` itself if there is none.
char const* end_of_name(char const* at);

/// The end of the characters of a name, of which the character before `at` is a part.
char const* end_of_name_characters(char const* at);

/// Moves past the name at `at`. Whether there is one.
inline bool skip_name(char const*& at)
{
  char const* const before = at;
  at = end_of_name(at);
  return at != before;
}

/// The first byte at or after `at` that is one of `stops`, not ASCII or a control character other than tab and line
/// feed.
template <class Block, char... stops>
char const* end_of_text(char const* at)
{
  while (true)
  {
    Block const block(at);
    auto const found =
      (block.is_control_or_non_ascii().without(block.is('\t') | block.is('\n')) | ... | block.is(stops));
    if (found.any())
      return at + found.first();
    at += Block::size;
  }
}

/// Those bytes of the block that such text ends at in well-formed UTF-8 without U+FFFE and U+FFFF, where all beyond ASCII is
/// text.
template <char... stops, class Block>
typename Block::Found ends_of_utf8_text(Block const& block)
{
  return (block.is_control().without(block.is('\t') | block.is('\n')) | ... | block.is(stops));
}

/// The first of them at or after `at`.
template <class Block, char... stops>
char const* end_of_utf8_text(char const* at)
{
  while (true)
  {
    auto const found = ends_of_utf8_text<stops...>(Block(at));
    if (found.any())
      return at + found.first();
    at += Block::size;
  }
}

/// The first byte at or after `at` that is `quote`, '<', '&', not ASCII or a control character.
template <class Block = apByteBlock>
char const* end_of_value(char const* at, char quote)
{
  while (true)
  {
    Block const block(at);
    auto const found = block.is_control_or_non_ascii() | block.is(quote) | block.is('<') | block.is('&');
    if (found.any())
      return at + found.first();
    at += Block::size;
  }
}

/// The same in such UTF-8.
template <class Block = apByteBlock>
char const* end_of_utf8_value(char const* at, char quote)
{
  while (true)
  {
    Block const block(at);
    auto const found = block.is_control() | block.is(quote) | block.is('<') | block.is('&');
    if (found.any())
      return at + found.first();
    at += Block::size;
  }
}

/// Reads a text in quotes and moves to its end. Whether there was one, without '<', '&', control characters and characters
/// beyond ASCII; `at` is otherwise where that shows.
inline bool read_literal(char const*& at, std::string_view& text)
{
  char const quote = *at;
  if (quote != '"' && quote != '\'')
    return false;
  char const* const from = at + 1;
  at = end_of_value(from, quote);
  text = {from, static_cast<std::size_t>(at - from)};
  return skip_character(at, quote);
}
}
