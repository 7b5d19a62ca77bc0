#include "axmXmlTables.h"

#include "axmUtestFile.h"
#include "axmUtestUtils.h"

#include <utUnitTest.h>

#include <cstddef>
#include <string>

using namespace axmUtestAccess;
using namespace axmXmlTables;

namespace
{
// What a parser may come to the end of a block in, and its shape.
Taken const pieces[] = {
  {"\r\n", "\n"},
  {"a\r\r\nb", "a\n\nb"},
  {"&amp;", "&"},
  {"&#x10437;", "\xF0\x90\x90\xB7"},
  {"&#65;", "A"},
  {"&entity;", "value"},
  {"\xC3\xA4", "\xC3\xA4"},
  {"\xE2\x82\xAC", "\xE2\x82\xAC"},
  {"\xF0\x90\x90\xB7", "\xF0\x90\x90\xB7"},
  {"<!--c-->", "<!--c-->"},
  {"<?target content?>", "<?target content?>"},
  {"<![CDATA[d]]>", "d"},
  {"<![CDATA[]]]]>", "]]"},
  {"<el at='v' b=\"&amp;\r\n\">t</el>", "<el at='v' b='& '>t</el>"},
  {"<empty/>", "<empty></empty>"},
  {"<!--\r\n--><?p q\r\n?>", "<!--\n--><?p q\n?>"},
};

// The largest border is less than what is quick to load some hundreds of times.
constexpr int max_border = 65536;

bool is_loaded_as(axmDocumentFactory const& factory, std::string const& text, std::string const& shape, bool from_file)
{
  axmParseError error;
  if (!from_file)
    return shape_of(root_of(factory.loadDocument(apByteArray(text.data(), text.size()), axmLoadOptions(), error))) ==
           shape;
  apPath const path = axmUtestUtils::uniquify_filename(APSTRING("./xml_border"), APSTRING("xml"));
  axmUtestFile const removed_at_the_end(path);
  axmUtestUtils::write_data(path, text.c_str());
  return shape_of(root_of(factory.loadDocument(path, axmLoadOptions(), error))) == shape;
}

// Whether a piece is loaded as what it is where `before` bytes of it stand before the border.
bool is_taken_across(axmDocumentFactory const& factory, Taken const& piece, int border, int before)
{
  std::string const begin = "<!DOCTYPE r [<!ENTITY entity 'value'>]><r>";
  std::string const filling(static_cast<std::size_t>(border - before) - begin.size(), 'x');
  std::string const text = begin + filling + piece.text + "z</r>";
  std::string const shape = "<r>" + filling + piece.shape + "z</r>";
  return is_loaded_as(factory, text, shape, false) && is_loaded_as(factory, text, shape, true);
}
}

bool axmXmlTables::are_taken_across_borders(utUnitTest& tester, axmDocumentFactory const& factory)
{
  for (int border = 256; border <= max_border; border *= 2)
    for (Taken const& piece : pieces)
      for (int before = 1; before < static_cast<int>(std::string(piece.text).size()); ++before)
      {
        if (is_taken_across(factory, piece, border, before))
          continue;
        tester.printf("%s, of which %d bytes stand before the border of %d bytes", piece.text, before, border);
        return false;
      }
  return true;
}
