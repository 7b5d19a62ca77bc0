#include "axsRecord.h"

#include <algorithm>
#include <utility>

axsRecord::axsRecord(axsRecordPattern const& pattern, axsRecordReader::Repeat repeat, std::string separator)
  : repeats(repeat),
    between(std::move(separator)),
    columns(pattern.column_count()),
    instances(pattern.group_count()),
    values(pattern.column_count())
{
  for (std::size_t i = 0; i < columns.size(); ++i)
    columns[i].group = pattern.group_of(i);
}

void axsRecord::clear() noexcept
{
  for (Column& column : columns)
  {
    column.text.clear();
    column.values.clear();
    column.is_closed = false;
  }
  std::fill(instances.begin(), instances.end(), std::size_t{0});
}

void axsRecord::begin_value(std::size_t number)
{
  Column& column = columns[number];
  std::size_t const instance = column.group == axsRecordPattern::no_group ? 0 : instances[column.group];
  bool const is_another = !column.values.empty();
  if (repeats == axsRecordReader::Repeat::join && is_another)
  {
    column.text += between;
    return;
  }
  column.is_closed =
    is_another && (repeats == axsRecordReader::Repeat::first || column.values.back().instance == instance);
  if (!column.is_closed)
    column.values.push_back({column.text.size(), instance});
}

void axsRecord::append(std::size_t number, std::string_view text)
{
  Column& column = columns[number];
  if (!column.is_closed)
    column.text += text;
}

std::size_t axsRecord::row_count() const noexcept
{
  std::size_t const most = instances.empty() ? 1 : *std::max_element(instances.begin(), instances.end());
  return repeats == axsRecordReader::Repeat::rows ? std::max<std::size_t>(most, 1) : 1;
}

axsRecord::Row const& axsRecord::row(std::size_t number)
{
  for (std::size_t i = 0; i < columns.size(); ++i)
    values[i] = value_in_row(columns[i], number);
  return values;
}

// What there is one of stands in every row.
std::optional<std::string_view> axsRecord::value_in_row(Column const& column, std::size_t number) const
{
  bool const is_in_every_row = repeats != axsRecordReader::Repeat::rows || column.group == axsRecordPattern::no_group ||
                               instances[column.group] == 1;
  if (is_in_every_row)
    return column.values.empty() ? std::nullopt : std::optional<std::string_view>(text_of(column, 0));
  auto const found = std::lower_bound(column.values.begin(), column.values.end(), number + 1,
    [](Value const& value, std::size_t instance) { return value.instance < instance; });
  if (found == column.values.end() || found->instance != number + 1)
    return std::nullopt;
  return text_of(column, static_cast<std::size_t>(found - column.values.begin()));
}

std::string_view axsRecord::text_of(Column const& column, std::size_t value)
{
  std::size_t const begin = column.values[value].begin;
  std::size_t const end = value + 1 == column.values.size() ? column.text.size() : column.values[value + 1].begin;
  return std::string_view(column.text).substr(begin, end - begin);
}
