#include "axsRecord.h"

#include <algorithm>
#include <utility>

axsRecord::axsRecord(axsRecordPattern const& given, axsRecordReader::Repeat repeat, std::string separator)
  : pattern(given),
    repeats(repeat),
    between(std::move(separator)),
    columns(given.column_count()),
    children(given.elements().size()),
    values(given.column_count())
{
}

void axsRecord::begin()
{
  for (Column& column : columns)
  {
    column.text.clear();
    column.values.clear();
    column.is_closed = false;
  }
  instances.clear();
  open = none;
  children.front() = {none, 0};
  begin_element(0);
}

void axsRecord::begin_element(std::size_t number)
{
  if (repeats != axsRecordReader::Repeat::rows)
    return;
  Children& same = children[number];
  bool const is_only = same.last == none;
  if (!is_only)
    instances[same.last].is_only = false;
  same.last = instances.size();
  for (axsRecordPattern::Element::Child const& child : pattern.elements()[number].children)
    children[child.element] = {none, same.end};
  instances.push_back({number, open, same.end, same.end + 1, is_only});
  open = same.last;
}

void axsRecord::end_element()
{
  if (repeats != axsRecordReader::Repeat::rows)
    return;
  Instance& ended = instances[open];
  for (axsRecordPattern::Element::Child const& child : pattern.elements()[ended.element].children)
    ended.end = std::max(ended.end, children[child.element].end);
  children[ended.element].end = ended.end;
  open = ended.parent;
}

void axsRecord::begin_value(std::size_t number)
{
  Column& column = columns[number];
  bool const is_another = !column.values.empty();
  if (repeats == axsRecordReader::Repeat::join && is_another)
  {
    column.text += between;
    return;
  }
  column.is_closed = is_another && (repeats == axsRecordReader::Repeat::first || column.values.back().instance == open);
  if (!column.is_closed)
    column.values.push_back({column.text.size(), open});
}

void axsRecord::append(std::size_t number, std::string_view text)
{
  Column& column = columns[number];
  if (!column.is_closed)
    column.text += text;
}

std::size_t axsRecord::row_count() const noexcept
{
  return repeats == axsRecordReader::Repeat::rows ? instances.front().end : 1;
}

axsRecord::Row const& axsRecord::row(std::size_t number)
{
  for (std::size_t i = 0; i < columns.size(); ++i)
    values[i] = value_in_row(columns[i], number);
  return values;
}

std::optional<std::string_view> axsRecord::value_in_row(Column const& column, std::size_t number) const
{
  if (column.values.empty())
    return std::nullopt;
  if (repeats != axsRecordReader::Repeat::rows)
    return text_of(column, 0);
  auto const after = std::upper_bound(column.values.begin(), column.values.end(), number,
    [this](std::size_t row, Value const& value) { return row < rows_of(value).begin; });
  if (after == column.values.begin() || number >= rows_of(*(after - 1)).end)
    return std::nullopt;
  return text_of(column, static_cast<std::size_t>(after - column.values.begin()) - 1);
}

// What there is one of stands in every row of its parent.
axsRecord::Instance const& axsRecord::rows_of(Value const& value) const
{
  std::size_t number = value.instance;
  while (instances[number].is_only && instances[number].parent != none)
    number = instances[number].parent;
  return instances[number];
}

std::string_view axsRecord::text_of(Column const& column, std::size_t value)
{
  std::size_t const begin = column.values[value].begin;
  std::size_t const end = value + 1 == column.values.size() ? column.text.size() : column.values[value + 1].begin;
  return std::string_view(column.text).substr(begin, end - begin);
}
