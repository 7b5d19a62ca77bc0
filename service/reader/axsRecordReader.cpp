#include "axsRecordReader.h"

#include "axsParser.h"
#include "axsReadError.h"
#include "axsRecord.h"
#include "axsRecordHandler.h"
#include "axsRecordPattern.h"
#include "axsSource.h"

namespace
{
// Thrown through the parser when the caller wants no more.
struct Ended
{
};

std::string const empty_request = "x";
}

class axsRecordReader::Reading
{
public:
  explicit Reading(Request const& request)
    : is_possible(complaint(request).empty()),
      pattern(is_possible ? request.path : empty_request, is_possible ? request.columns : std::vector<std::string>(),
        request.namespaces),
      record(pattern, request.repeat, request.separator)
  {
  }

  template <class Open>
  bool read(Open open, axmLoadOptions const& options, axmParseError& error, Take const& take)
  try
  {
    records = 0;
    rows = 0;
    std::unique_ptr<axsSource> const source = open();
    axsRecordHandler handler(pattern, record, [&](axsRecord& ended) { give(ended, take); });
    axsParser(*source, options, handler).run();
    return true;
  }
  catch (Ended const&)
  {
    return true;
  }
  catch (axsReadError const& failure)
  {
    error = failure.record();
    return false;
  }

  std::uint64_t records = 0;
  std::uint64_t rows = 0;

private:
  void give(axsRecord& ended, Take const& take)
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

  bool const is_possible;
  axsRecordPattern const pattern;
  axsRecord record;
};

std::string axsRecordReader::complaint(Request const& request)
{
  return axsRecordPattern::complaint(request.path, request.columns, request.namespaces);
}

axsRecordReader::axsRecordReader(Request const& request) : reading(std::make_unique<Reading>(request)) {}
axsRecordReader::~axsRecordReader() = default;

bool axsRecordReader::read(apPath const& file, axmLoadOptions const& options, axmParseError& error, Take const& take)
{
  return reading->read([&] { return std::make_unique<axsSource>(file); }, options, error, take);
}

bool axsRecordReader::read(
  apByteArray const& data, axmLoadOptions const& options, axmParseError& error, Take const& take)
{
  return reading->read([&] { return std::make_unique<axsSource>(data); }, options, error, take);
}

bool axsRecordReader::read(
  axsByteStream& stream, apPath const& name, axmLoadOptions const& options, axmParseError& error, Take const& take)
{
  return reading->read([&] { return std::make_unique<axsSource>(stream, name); }, options, error, take);
}

std::uint64_t axsRecordReader::records() const noexcept
{
  return reading->records;
}

std::uint64_t axsRecordReader::rows() const noexcept
{
  return reading->rows;
}
