#include "TableOutput.h"

namespace
{
std::size_t const piece = 64 * 1024;
}

TableOutput::TableOutput(TableRequest const& request)
  : table(request),
    format(RowFormat::of(request.format)),
    file(request.output)
{
  if (request.header)
    format->append_header(pending, request.columns);
}

bool TableOutput::write(std::vector<Value> const& values)
{
  if (table.missing.empty())
    format->append_row(pending, table.columns, values);
  else
  {
    filled = values;
    for (Value& value : filled)
      value = value.value_or(table.missing);
    format->append_row(pending, table.columns, filled);
  }
  progress.show(++count);
  if (pending.size() >= piece)
    flush();
  return good();
}

bool TableOutput::finish()
{
  flush();
  return file.finish();
}

void TableOutput::flush()
{
  file.write(pending);
  pending.clear();
}
