#include "axsRecordHandler.h"

#include "axsName.h"
#include "axsStartTag.h"

#include <utility>

axsRecordHandler::axsRecordHandler(axsRecordPattern const& given, axsRecord& filled, Ended ended)
  : pattern(given),
    record(filled),
    record_ended(std::move(ended))
{
  for (std::string const& text : pattern.names())
    wanted_names.push_back(&names.intern(text));
}

void axsRecordHandler::start_element(axsStartTag const& tag)
{
  if (passed > 0)
    ++passed;
  else if (!open.empty())
    begin_child(tag);
  else if (!is_it(pattern.path()[depth - 1], *tag.name, tag.name_space))
    passed = 1;
  else if (depth == pattern.path().size())
    begin_record(tag);
  else
    ++depth;
}

void axsRecordHandler::end_element()
{
  if (passed > 0)
    --passed;
  else if (open.empty())
    --depth;
  else
  {
    open.pop_back();
    record.end_element();
    if (open.empty())
      record_ended(record);
  }
}

void axsRecordHandler::text(std::string_view text, bool)
{
  if (passed > 0 || open.empty())
    return;
  for (std::size_t const column : pattern.elements()[open.back()].text_columns)
    record.append(column, text);
}

void axsRecordHandler::begin_record(axsStartTag const& tag)
{
  record.begin();
  open.push_back(0);
  take_attributes(pattern.elements().front(), tag);
}

void axsRecordHandler::begin_child(axsStartTag const& tag)
{
  auto const& children = pattern.elements()[open.back()].children;
  for (Element::Child const& child : children)
    if (is_it(child.name, *tag.name, tag.name_space))
    {
      record.begin_element(child.element);
      open.push_back(child.element);
      return take_attributes(pattern.elements()[child.element], tag);
    }
  passed = 1;
}

void axsRecordHandler::take_attributes(Element const& element, axsStartTag const& tag)
{
  for (std::size_t const column : element.text_columns)
    record.begin_value(column);
  for (Element::Attribute const& wanted : element.attributes)
    for (axsTagAttribute const& attribute : *tag.attributes)
      if (!attribute.is_declaration && is_it(wanted.name, *attribute.name, attribute.name_space))
      {
        record.begin_value(wanted.column);
        record.append(wanted.column, attribute.value);
      }
}

bool axsRecordHandler::is_it(
  axsRecordPattern::Name const& wanted, axsName const& name, std::string_view name_space) const
{
  if (wanted.has_name_space)
    return (wanted.is_any || name.local() == wanted.text) && name_space == wanted.name_space;
  return wanted.is_any || &name == wanted_names[wanted.number];
}
