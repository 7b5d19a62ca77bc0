// What becomes of the bytes of every encoding, whole and in pieces; the system's converter is the judge.

#include "axsUtf8Source.h"

#include "axsDecoder.h"
#include "axsSingleByteSets.h"
#include "axsSource.h"

#include <gtest/gtest.h>

#include <iconv.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace
{
struct Text
{
  std::string utf8;
  std::string fault;
};

Text read_all(std::string const& bytes, std::size_t room = 1000)
{
  apByteArray const data(bytes.data(), bytes.size());
  axsSource source(data);
  axsUtf8Source text(source);
  Text all;
  std::string piece(room, '\0');
  while (std::size_t const count = text.read(piece.data(), piece.size()))
    all.utf8.append(piece, 0, count);
  all.fault = text.fault().to_utf8().c_str();
  return all;
}

// What the system makes of it; empty where that is not in the encoding.
std::string converted(std::string const& bytes, char const* from, char const* to)
{
  iconv_t const converter = iconv_open(to, from);
  if (converter == reinterpret_cast<iconv_t>(-1))
  {
    ADD_FAILURE() << from << " to " << to;
    return {};
  }
  std::string in = bytes;
  std::string out(bytes.size() * 8 + 64, '\0');
  char* at = in.data();
  std::size_t left = in.size();
  char* made = out.data();
  std::size_t room = out.size();
  bool const good = iconv(converter, &at, &left, &made, &room) != static_cast<std::size_t>(-1) &&
                    iconv(converter, nullptr, nullptr, &made, &room) != static_cast<std::size_t>(-1);
  iconv_close(converter);
  out.resize(good ? static_cast<std::size_t>(made - out.data()) : 0);
  return out;
}

std::vector<std::string> const single_byte_sets = []
{
  std::vector<std::string> names{"KOI8-R", "KOI8-U"};
  for (int i = 1; i <= 16; ++i)
    if (i != 12)
      names.push_back("ISO-8859-" + std::to_string(i));
  for (int i = 1250; i <= 1258; ++i)
    names.push_back("windows-" + std::to_string(i));
  return names;
}();

std::string declaration(std::string const& name)
{
  return "<?xml version='1.0' encoding='" + name + "'?>";
}

// Each character of a range that is one, in UTF-8.
std::string characters(char32_t from, char32_t to)
{
  std::string bytes;
  for (char32_t code = from; code < to; ++code)
    if (code < 0xD800 || code > 0xDFFF)
      for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(code >> shift);
  return converted(bytes, "UTF-32LE", "UTF-8");
}

std::string decoded(axsDecoder& decoder, std::string_view bytes, std::size_t cut)
{
  std::string text(bytes.size() * 4 + 64, '\0');
  axsDecoder::Result const first = decoder.decode(bytes.substr(0, cut), text.data(), text.size(), false);
  if (first.is_illegal || first.taken > cut)
    return "illegal";
  axsDecoder::Result const second =
    decoder.decode(bytes.substr(first.taken), text.data() + first.made, text.size() - first.made, true);
  text.resize(first.made + second.made);
  return second.is_illegal ? "illegal" : text;
}
}

TEST(axsUtf8Source, reads_every_byte_of_single_byte_encodings_as_the_system_does)
{
  ASSERT_EQ(single_byte_sets.size(), 26u);
  for (std::string const& name : single_byte_sets)
  {
    ASSERT_NE(axsSingleByteSets::find(name), nullptr) << name;
    for (int byte = 1; byte < 256; ++byte)
    {
      std::string const character(1, static_cast<char>(byte));
      std::string const expected = converted(character, name.c_str(), "UTF-8");
      Text const text = read_all(declaration(name) + character);
      EXPECT_EQ(text.utf8, declaration(name) + expected) << name << ' ' << byte;
      EXPECT_EQ(text.fault.empty(), !expected.empty()) << name << ' ' << byte;
    }
  }
}

TEST(axsUtf8Source, names_a_byte_that_has_no_meaning)
{
  Text const text = read_all(declaration("windows-1252") + "ab\x81"
                                                           "c");
  EXPECT_EQ(text.utf8, declaration("windows-1252") + "ab");
  EXPECT_EQ(text.fault, "The byte 0x81 is not windows-1252, which the document says that it is");
  EXPECT_EQ(read_all(declaration("us-ascii") + "a\xC3\xA4").fault,
    "The byte 0xC3 is not US-ASCII, which the document says that it is");
  EXPECT_EQ(read_all("a\xFF").fault, "The byte 0xFF is not UTF-8; a document in another encoding has to declare it");
  EXPECT_EQ(read_all(std::string("\xFE\xFF\0a\xDC\0", 6)).fault, "The byte 0xDC is not UTF-16BE");
  EXPECT_EQ(read_all(std::string("\xFE\xFF\0a\0", 5)).fault, "The byte 0x00 is not UTF-16BE");
}

TEST(axsUtf8Source, reads_every_character_of_unicode)
{
  std::string const text = characters(1, 0x110000);
  ASSERT_GT(text.size(), 4000000u);
  EXPECT_EQ(read_all("\xEF\xBB\xBF" + text).utf8, text);
  struct
  {
    char const* name;
    std::string mark;
  } const encodings[] = {{"UTF-16LE", "\xFF\xFE"}, {"UTF-16BE", "\xFE\xFF"},
    {"UTF-32LE", std::string("\xFF\xFE\0\0", 4)}, {"UTF-32BE", std::string("\0\0\xFE\xFF", 4)}};
  for (auto const& encoding : encodings)
  {
    Text const read = read_all(encoding.mark + converted(text, "UTF-8", encoding.name), 4000);
    EXPECT_EQ(read.fault, "");
    EXPECT_TRUE(read.utf8 == text) << encoding.name;
  }
}

TEST(axsUtf8Source, takes_text_in_pieces_of_any_size)
{
  std::string const text = "<r>" + characters(0x70, 0x900) + characters(0xFF00, 0x10100) + "</r>";
  for (std::size_t room = axsUtf8Source::min_room; room < 100; ++room)
  {
    EXPECT_EQ(read_all(text, room).utf8, text) << room;
    EXPECT_EQ(read_all("\xFE\xFF" + converted(text, "UTF-8", "UTF-16BE"), room).utf8, text) << room;
  }
}

TEST(axsUtf8Source, reads_what_only_the_system_knows)
{
  std::string const text = "<r>\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E"
                           "abc\xE3\x82\xA2</r>";
  for (char const* const name : {"Shift_JIS", "EUC-JP", "ISO-2022-JP", "GB18030", "GBK"})
  {
    std::string const document = declaration(name) + text;
    std::string const bytes = converted(document, "UTF-8", name);
    ASSERT_FALSE(bytes.empty()) << name;
    for (std::size_t const room : {32u, 33u, 1000u})
    {
      Text const read = read_all(bytes, room);
      EXPECT_EQ(read.utf8, document) << name;
      EXPECT_EQ(read.fault, "") << name;
    }
  }
  // Characters that it holds back until it knows the next one.
  EXPECT_EQ(read_all(declaration("TCVN") + "A\xB0").utf8, declaration("TCVN") + "\xC3\x80");
  EXPECT_EQ(read_all(declaration("Shift_JIS") + "a\xFF").fault,
    "The byte 0xFF is not Shift_JIS, which the document says that it is");
  EXPECT_EQ(read_all(declaration("Shift_JIS") + "a\x93").fault,
    "The byte 0x93 is not Shift_JIS, which the document says that it is");
  std::string const ebcdic = converted(declaration("IBM037") + "<r>\xC3\xA4</r>", "UTF-8", "IBM037");
  EXPECT_EQ(read_all(ebcdic).utf8, declaration("IBM037") + "<r>\xC3\xA4</r>");
}

TEST(axsUtf8Source, refuses_all_that_is_not_utf8)
{
  struct
  {
    char const* bytes;
    std::size_t good;
  } const texts[] = {{"\x80", 0}, {"\xBF", 0}, {"\xC0\x80", 0}, {"\xC1\xBF", 0}, {"\xC3", 0}, {"\xC3(", 0},
    {"\xE0\x80\x80", 0}, {"\xE0\x9F\xBF", 0}, {"\xED\xA0\x80", 0}, {"\xED\xBF\xBF", 0}, {"\xE2\x82", 0},
    {"\xE2\x82(", 0}, {"\xF0\x80\x80\x80", 0}, {"\xF0\x8F\xBF\xBF", 0}, {"\xF4\x90\x80\x80", 0},
    {"\xF5\x80\x80\x80", 0}, {"\xF8\x88\x80\x80\x80", 0}, {"\xFC", 0}, {"\xFE", 0}, {"\xFF", 0}, {"\xF0\x9F\x98", 0},
    {"\xC3\xA4\xA4", 2}, {"\xE2\x82\xAC\xE2", 3}, {"\xF0\x9F\x98\x80\xF0\x9F", 4}};
  for (auto const& text : texts)
    for (std::size_t const before : {1u, 7u, 31u, 32u, 40u, 100u})
      for (std::string const after : {"", "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz"})
      {
        Text const read = read_all(std::string(before, 'x') + text.bytes + after, 32);
        EXPECT_EQ(read.utf8.size(), before + text.good) << testing::PrintToString(text.bytes);
        EXPECT_EQ(read.fault.find("The byte 0x"), 0u) << read.fault;
      }
}

TEST(axsUtf8Source, refuses_units_that_are_no_characters)
{
  auto const utf16 = [](std::initializer_list<unsigned> units)
  {
    std::string bytes = "\xFE\xFF";
    for (unsigned const unit : units)
      bytes += {static_cast<char>(unit >> 8), static_cast<char>(unit)};
    return read_all(bytes);
  };
  EXPECT_EQ(utf16({'a', 0xD83D, 0xDE00, 'b'}).utf8, "a\xF0\x9F\x98\x80"
                                                    "b");
  EXPECT_EQ(utf16({'a', 0xDE00, 'b'}).utf8, "a");
  EXPECT_EQ(utf16({'a', 0xD83D, 'b'}).utf8, "a");
  EXPECT_EQ(utf16({'a', 0xD83D, 0xD83D}).utf8, "a");
  EXPECT_EQ(utf16({'a', 0xD83D}).fault, "The byte 0xD8 is not UTF-16BE");
  for (unsigned const code : {0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu})
  {
    std::string bytes("\0\0\xFE\xFF\0\0\0a", 8);
    for (int shift = 24; shift >= 0; shift -= 8)
      bytes += static_cast<char>(code >> shift);
    EXPECT_EQ(read_all(bytes).utf8, "a") << code;
    EXPECT_NE(read_all(bytes).fault, "") << code;
  }
}

TEST(axsUtf8Source, ends_before_a_zero)
{
  EXPECT_EQ(read_all(std::string("ab\0c", 4)).utf8, "ab");
  EXPECT_EQ(read_all(std::string("ab\0c", 4)).fault, "A zero byte stands in the document");
  EXPECT_EQ(read_all(std::string("\xFE\xFF\0a\0\0\0b", 8)).utf8, "a");
  EXPECT_EQ(read_all(declaration("ISO-8859-1") + std::string("ab\0c", 4)).utf8, declaration("ISO-8859-1") + "ab");
  // What is wrong first is told.
  EXPECT_EQ(read_all(std::string("ab\0\xFF", 4)).fault, "A zero byte stands in the document");
  EXPECT_EQ(read_all(std::string("ab\xFF\0", 4)).fault.find("The byte 0xFF"), 0u);
}

TEST(axsDecoder, takes_bytes_that_are_cut_anywhere)
{
  std::string const text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z";
  for (char const* const name : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE", "GB18030"})
  {
    std::string const bytes = converted(text, "UTF-8", name);
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut)
    {
      EXPECT_EQ(decoded(*axsDecoder::make(name), bytes, cut), text) << name << ' ' << cut;
      std::string const part = decoded(*axsDecoder::make(name), bytes.substr(0, cut), 0);
      EXPECT_EQ(part == "illegal", converted(bytes.substr(0, cut), name, "UTF-8").empty() && cut > 0)
        << name << ' ' << cut;
    }
  }
}

TEST(axsDecoder, never_writes_beyond_its_room)
{
  std::string const text = characters(0x80, 0x900) + characters(0xFF00, 0x10100);
  for (char const* const name : {"UTF-16LE", "UTF-32BE", "GB18030", "UTF-16BE"})
  {
    std::string const bytes = converted(text, "UTF-8", name);
    for (std::size_t room = axsDecoder::min_room; room < axsDecoder::min_room + 8; ++room)
    {
      auto const decoder = axsDecoder::make(name);
      std::string all;
      std::string_view left = bytes;
      while (!left.empty())
      {
        std::string piece(room, '#');
        axsDecoder::Result const made = decoder->decode(left, piece.data(), room, true);
        ASSERT_LE(made.made, room);
        ASSERT_GT(made.taken, 0u);
        all.append(piece, 0, made.made);
        left.remove_prefix(made.taken);
      }
      EXPECT_TRUE(all == text) << name << ' ' << room;
    }
  }
}
