#include "ExactTable.h"

#include "InputStream.h"
#include "Loading.h"

#include <axsRecordReader.h>

namespace
{
axsRecordReader::Request request_of(TableRequest const& table)
{
  axsRecordReader::Request request;
  request.path = table.path;
  request.columns = table.columns;
  request.namespaces = table.namespaces;
  if (table.repeat == "rows")
    request.repeat = axsRecordReader::Repeat::rows;
  else if (table.repeat != "first")
  {
    request.repeat = axsRecordReader::Repeat::join;
    request.separator = table.repeat.substr(table.repeat.find('=') + 1);
  }
  return request;
}
}

std::string ExactTable::complaint(TableRequest const& table)
{
  return axsRecordReader::complaint(request_of(table));
}

bool ExactTable::write(std::string const& file, TableRequest const& table, TableOutput& output)
{
  axsRecordReader reader(request_of(table));
  auto const take = [&output](axsRecordReader::Row const& row) { return output.write(row); };
  axmParseError error;
  axmLoadOptions const options;
  InputStream input(file);
  bool const is_read = input.is_plain_file() ? reader.read(apPath(file.c_str()), options, error, take)
                                             : reader.read(input, apPath(file.c_str()), options, error, take);
  if (is_read)
    return true;
  std::string const rows = "; rows read before that: " + std::to_string(output.rows());
  if (input.is_plain_file())
    complain_about(error, file, rows);
  else
    complain_in_one_line(error, file, rows);
  return false;
}
