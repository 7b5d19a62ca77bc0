#include "axsRecordReading.h"

axsRecordReading::axsRecordReading(axsRecordReader::Request const& request)
  : is_possible(axsRecordReader::complaint(request).empty()),
    pattern(
      is_possible ? request.path : "x", is_possible ? request.columns : std::vector<std::string>(), request.namespaces),
    record(pattern, request.repeat, request.separator)
{
}

void axsRecordReading::give(axsRecord& ended, axsRecordReader::Take const& take)
{
  if (!is_possible)
    return;
  ++records;
  std::size_t const count = ended.row_count();
  for (std::size_t i = 0; i < count; ++i)
  {
    ++rows;
    if (!take(ended.row(i)))
      throw Ended();
  }
}
