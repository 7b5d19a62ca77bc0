#include "axmXmlTables.h"

#include "model/axmModelText.h"

#include <utUnitTest.h>

#include <cstddef>
#include <string>
#include <vector>

using namespace axmUtestAccess;
using namespace axmXmlTables;

namespace
{
// A range of UTF-8 (RFC 3629, 4): what may be the first byte and the second one, and how many there are.
struct Range
{
  unsigned first;
  unsigned last;
  unsigned low;
  unsigned high;
  std::size_t size;
};

Range const ranges[] = {{0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
  {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4},
  {0xF4, 0xF4, 0x80, 0x8F, 4}};

bool is_within(unsigned char byte, unsigned low, unsigned high)
{
  return low <= byte && byte <= high;
}

// Whether the bytes are one character of XML (XML 1.0, 2.2).
bool is_character(std::string const& bytes)
{
  auto const byte = [&bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  for (Range const& range : ranges)
  {
    if (!is_within(byte(0), range.first, range.last) || bytes.size() != range.size)
      continue;
    bool is_one = is_within(byte(1), range.low, range.high);
    for (std::size_t at = 2; at < bytes.size(); ++at)
      is_one = is_one && is_within(byte(at), 0x80, 0xBF);
    return is_one && bytes != "\xEF\xBF\xBE" && bytes != "\xEF\xBF\xBF";
  }
  return false;
}

// Every first byte beyond ASCII with those after it that are at an end of a range, from none of them to all.
std::vector<std::string> sequences()
{
  std::vector<std::string> found;
  for (unsigned first = 0x80; first <= 0xFF; ++first)
    found.push_back(std::string(1, static_cast<char>(first)));
  for (std::size_t at = 0; at < found.size(); ++at)
  {
    std::string const begin = found[at];
    if (begin.size() == 1)
      for (char const second : {'\x80', '\x8F', '\x90', '\x9F', '\xA0', '\xBF', '\xC0'})
        found.push_back(begin + second);
    else if (begin.size() < 4)
      for (char const next : {'\x80', '\xAF', '\xBF'})
        found.push_back(begin + next);
  }
  return found;
}

// Where a text can be, as the beginning and the end of a document.
struct Place
{
  char const* begin;
  char const* end;
};

Place const places[] = {{"<r>", "</r>"}, {"<r k='", "'/>"}, {"<r k=\"x", "\"/>"}, {"<r>x", "y</r>"},
  {"<r><!--", "--></r>"}, {"<r><?p ", "?></r>"}, {"<r><![CDATA[", "]]></r>"}, {"<!--", "--><r/>"}};

bool is_loaded(axmDocumentFactory const& factory, std::string const& text)
{
  axmParseError error;
  return factory.loadDocument(apByteArray(text.data(), text.size()), axmLoadOptions(), error) != nullptr;
}

// White space as it is written, and what it is once it is loaded.
struct Blank
{
  char const* text;
  char const* value;
};

Blank const blanks[] = {{" ", " "}, {"\t", "\t"}, {"\n", "\n"}, {"\r\n", "\n"}, {"&#32;", " "}, {"&#x9;", "\t"},
  {"&#10;", "\n"}, {"&#xD;", "\r"}};

// What a text stands between.
Place const neighbours[] = {{"<r>", "</r>"}, {"<r><a></a>", "</r>"}, {"<r>", "<a></a></r>"},
  {"<r><a></a>", "<a></a></r>"}, {"<r><!--c-->", "<a></a></r>"}, {"<r><a></a>", "<!--c--></r>"},
  {"<r><?p q?>", "<?p q?></r>"}, {"<r><a>", "</a></r>"}};

bool is_dropped_or_kept(utUnitTest& tester, axmDocumentFactory& factory, Blank const& blank, bool is_kept)
{
  for (Place const& between : neighbours)
  {
    std::string const text = between.begin + std::string(blank.text) + between.end;
    std::string const shape = between.begin + std::string(is_kept ? blank.value : "") + between.end;
    if (!is_taken(tester, factory, {text.c_str(), shape.c_str()}))
      return false;
  }
  return true;
}
}

bool axmXmlTables::are_bytes_judged(utUnitTest& tester, axmDocumentFactory const& factory)
{
  for (std::string const& bytes : sequences())
    for (Place const& place : places)
    {
      if (is_loaded(factory, place.begin + bytes + place.end) == is_character(bytes))
        continue;
      tester.printf("%s%s%s: the %d bytes from 0x%02X on", place.begin, "...", place.end,
        static_cast<int>(bytes.size()), static_cast<unsigned>(static_cast<unsigned char>(bytes[0])));
      return false;
    }
  return true;
}

bool axmXmlTables::is_white_space_judged(utUnitTest& tester, axmDocumentFactory& factory)
{
  bool are_right = true;
  for (Blank const& first : blanks)
  {
    are_right = is_dropped_or_kept(tester, factory, first, first.value == std::string(" ")) && are_right;
    for (Blank const& second : blanks)
    {
      std::string const text = first.text + std::string(second.text);
      are_right = is_dropped_or_kept(tester, factory, {text.c_str(), ""}, false) && are_right;
      std::string const kept = text + "x";
      std::string const value = first.value + std::string(second.value) + "x";
      are_right = is_dropped_or_kept(tester, factory, {kept.c_str(), value.c_str()}, true) && are_right;
    }
  }
  return are_right;
}
