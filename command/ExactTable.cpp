#include "ExactTable.h"

#include "Complaint.h"
#include "InputStream.h"
#include "Loading.h"
#include "PartStream.h"
#include "SplitIndex.h"

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
  if (table.index.empty() != (table.part < 0))
    return "--index and --part go together";
  if (!table.index.empty() && table.files.size() > 1)
    return "--part is of one document: --more does not go with it";
  return axsRecordReader::complaint(request_of(table));
}

namespace
{
std::string rows_before(TableOutput const& output)
{
  return "; rows read before that: " + std::to_string(output.rows());
}

bool write_part(std::string const& file, TableRequest const& table, TableOutput& output)
{
  SplitIndex index;
  std::string wrong = SplitIndex::read(table.index, index);
  std::size_t const number = static_cast<std::size_t>(table.part);
  if (wrong.empty() && (index.path != table.path || index.namespaces != table.namespaces))
    wrong = "is the index of another PATH or --ns";
  if (wrong.empty() && number >= index.parts.parts.size())
    wrong = "has no part " + std::to_string(number) + "; their number is " + std::to_string(index.parts.parts.size());
  if (!wrong.empty())
  {
    complain(table.index, wrong, exit_bad_input);
    return false;
  }
  PartStream input(file, index, number);
  axsRecordReader reader(request_of(table));
  axmParseError error;
  if (reader.read(input, apPath(file.c_str()), axmLoadOptions(), error,
        [&output](axsRecordReader::Row const& row) { return output.write(row); }))
    return true;
  complain_about(input.in_whole(error), file, rows_before(output));
  return false;
}
}

bool ExactTable::write(std::string const& file, TableRequest const& table, TableOutput& output)
{
  if (!table.index.empty())
    return write_part(file, table, output);
  axsRecordReader reader(request_of(table));
  auto const take = [&output](axsRecordReader::Row const& row) { return output.write(row); };
  axmParseError error;
  axmLoadOptions const options;
  InputStream input(file);
  bool const is_read = input.is_plain_file() ? reader.read(apPath(file.c_str()), options, error, take)
                                             : reader.read(input, apPath(file.c_str()), options, error, take);
  if (is_read)
    return true;
  std::string const rows = rows_before(output);
  if (input.is_plain_file())
    complain_about(error, file, rows);
  else
    complain_in_one_line(error, file, rows);
  return false;
}
