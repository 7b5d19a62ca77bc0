#include "axsRecordReader.h"

#include "axsRecordPattern.h"
#include "axsRecordReading.h"
#include "axsSource.h"

std::string axsRecordReader::complaint(Request const& request)
{
  return axsRecordPattern::complaint(request.path, request.columns, request.namespaces);
}

axsRecordReader::axsRecordReader(Request const& request) : reading(std::make_unique<axsRecordReading>(request)) {}
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
