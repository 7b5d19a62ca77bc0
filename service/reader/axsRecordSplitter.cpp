#include "axsRecordSplitter.h"

#include "axsLocator.h"
#include "axsName.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsRecord.h"
#include "axsRecordHandler.h"
#include "axsRecordPattern.h"
#include "axsSource.h"
#include "axsStartTag.h"

#include <optional>
#include <utility>

namespace
{
std::string escaped(std::string_view value)
{
  std::string text;
  for (char const c : value)
    switch (c)
    {
    case '&':
      text += "&amp;";
      break;
    case '<':
      text += "&lt;";
      break;
    case '"':
      text += "&quot;";
      break;
    case '\t':
    case '\n':
    case '\r':
      text += "&#" + std::to_string(static_cast<int>(c)) + ';';
      break;
    default:
      text += c;
    }
  return text;
}

// Of the tag what the elements inside depend on: its name and the namespaces that it declares.
std::string open_tag(axsStartTag const& tag)
{
  std::string text = '<' + std::string(tag.name->utf8());
  for (axsTagAttribute const& attribute : *tag.attributes)
    if (attribute.is_declaration)
      text += ' ' + std::string(attribute.name->utf8()) + "=\"" + escaped(attribute.value) + '"';
  return text + '>';
}

class Splitter final : public axsParseHandler
{
public:
  using Parts = axsRecordSplitter::Parts;

  Splitter(axsRecordPattern const& pattern, std::uint64_t size, std::size_t count, Parts& found)
    : no_columns(pattern, axsRecordReader::Repeat::first, {}),
      records(pattern, no_columns, [](axsRecord&) {}),
      levels(pattern.path().size()),
      part_size(size / count + 1),
      parts(found)
  {
  }

  axsName const& name(std::string_view text) override { return records.name(text); }
  void start_document(axsLocator const& given) override { locator = &given; }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}

  void start_element(axsStartTag const& tag) override
  {
    if (depth == 0)
      begin_root();
    bool const was_in_record = records.is_in_record();
    records.start_element(tag);
    if (!was_in_record && records.is_in_record())
      begin_record();
    ++depth;
    if (depth < levels)
      open.emplace_back(open_tag(tag), "</" + std::string(tag.name->utf8()) + '>');
  }

  void end_element() override
  {
    records.end_element();
    if (depth < levels)
      open.pop_back();
    --depth;
  }

  void text(std::string_view, bool) override {}
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

private:
  // No root comes out of an entity.
  void begin_root()
  {
    parts.prolog_end = locator->begin_position().value_or(0);
    parts.prolog_lines = locator->begin().line;
    parts.prolog_column = locator->begin().column;
  }

  // The first part begins with the root, whatever stands before its records; the others with a record that stands in the
  // document itself, and is not of an entity.
  void begin_record()
  {
    std::uint64_t const number = parts.records++;
    if (parts.parts.empty())
      begin_part({parts.prolog_end, 0, number, parts.prolog_lines, parts.prolog_column, {}, {}});
    else if (std::optional<std::uint64_t> const here = locator->begin_position(); here && *here >= next_begin)
    {
      axsPlace const place = locator->begin();
      axsRecordSplitter::Part part{*here, 0, number, place.line, place.column, {}, {}};
      for (auto const& [open_tag, close_tag] : open)
      {
        part.open_tags += open_tag;
        part.close_tags.insert(0, close_tag);
      }
      parts.parts.back().end = part.begin;
      parts.parts.back().close_tags = part.close_tags;
      begin_part(std::move(part));
    }
  }

  void begin_part(axsRecordSplitter::Part part)
  {
    parts.parts.push_back(std::move(part));
    next_begin = parts.parts.size() * part_size;
  }

  axsRecord no_columns;
  axsRecordHandler records;
  std::size_t const levels;
  std::uint64_t const part_size;
  Parts& parts;
  axsLocator const* locator = nullptr;
  std::uint64_t depth = 0;
  std::uint64_t next_begin = 0;
  // The tags of the open elements around the records.
  std::vector<std::pair<std::string, std::string>> open;
};
}

bool axsRecordSplitter::split(apPath const& file, std::string const& path,
  std::map<std::string, std::string> const& namespaces, std::size_t count, axmLoadOptions const& options,
  axmParseError& error, Parts& parts)
try
{
  parts = Parts();
  axsRecordPattern const pattern(path, {}, namespaces);
  axsSource source(file);
  std::uint64_t const size = source.size();
  Splitter splitter(pattern, size, count, parts);
  axsParser parser(source, options, splitter);
  parser.run();
  if (parser.encoding() != "UTF-8" && parser.encoding() != "US-ASCII")
    throw axsReadError{APSTRING("only a document in UTF-8 can be split, and this one is in ") +
                         apString::from_utf8(parser.encoding()) +
                         APSTRING(": convert it first, as 'xmllint --encode UTF-8' does, or take its rows as a whole"),
      source.url()};
  parts.size = size;
  // What follows the last record is read with it, up to the end of the document.
  if (!parts.parts.empty())
  {
    parts.parts.back().end = size;
    parts.parts.back().close_tags.clear();
  }
  return true;
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return false;
}
