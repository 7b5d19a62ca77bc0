#include "axsFormatter.h"

#include "axsLayout.h"
#include "axsLineFeeds.h"
#include "axsLocator.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"
#include "axsStartTag.h"
#include "axsUtf8Source.h"

#include <axmLoadOptions.h>

#include <string>

namespace
{
// Notes what a layout has to know and only a parser can tell.
class Notes final : public axsParseHandler
{
public:
  explicit Notes(axsLayoutNotes& target) : notes(target) {}

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void start_document(axsLocator const& given) override { locator = &given; }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void end_element() override {}
  void text(std::string_view, bool) override {}
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

  void declaration(std::string_view version, std::string_view, std::string_view) override
  {
    notes.is_xml_1_1 = version == "1.1";
  }

  // What comes out of an entity does not stand in the text.
  void start_element(axsStartTag const& tag) override
  {
    if (!locator->begin_position())
      return;
    for (axsTagAttribute const& attribute : *tag.attributes)
      if (attribute.name->utf8() == "xml:space")
        notes.spaces.push_back({elements, attribute.value == "preserve"});
    ++elements;
  }

private:
  axsLayoutNotes& notes;
  axsNameTable names;
  axsLocator const* locator = nullptr;
  std::size_t elements = 0;
};

std::string text_of(apByteArray const& bytes)
{
  axsSource source(bytes);
  axsUtf8Source utf8(source);
  std::size_t const piece = std::size_t{64} * 1024;
  std::string text;
  std::size_t size = 0;
  for (std::size_t count = piece; count > 0; size += count)
  {
    if (text.size() < size + piece)
      text.resize(size + size / 2 + piece);
    count = utf8.read(&text[size], piece);
  }
  text.resize(size);
  return text;
}

// With the name of the encoding in which it is written.
void declare_utf8(std::string& text)
{
  std::size_t const end = text.find("?>");
  std::size_t const name = text.find("encoding");
  if (text.compare(0, 5, "<?xml") != 0 || name >= end)
    return;
  std::size_t const quote = text.find_first_of("\"'", name);
  std::size_t const last = text.find(text[quote], quote + 1);
  text.replace(quote + 1, last - quote - 1, "UTF-8");
}

// Of a document in UTF-8.
bool has_mark(apByteArray const& bytes)
{
  return std::string_view(bytes.data(), bytes.size()).substr(0, 3) == "\xEF\xBB\xBF";
}
}

bool axsFormatter::format(
  apByteArray const& source, axsFormatOptions const& options, axmParseError& error, Write const& write)
try
{
  axsLayoutNotes notes;
  axmLoadOptions const load_options(axmValidateNone);
  axsSource input(source);
  Notes handler(notes);
  axsParser parser(input, load_options, handler);
  parser.run();

  std::string text = text_of(source);
  std::size_t const line_feed = text.find('\n');
  bool const has_carriage_return = line_feed != std::string::npos && line_feed > 0 && text[line_feed - 1] == '\r';
  axsLineFeeds::normalise(text, notes.is_xml_1_1);
  if (parser.encoding() != "UTF-8" && parser.encoding() != "US-ASCII")
    declare_utf8(text);
  axsLayout layout(text, notes, options, has_carriage_return ? "\r\n" : "\n", write);
  if (!has_mark(source) || layout.write_mark())
    layout.run();
  return true;
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return false;
}
