#pragma once

#include "axsParser.h"
#include "axsReadError.h"
#include "axsRecord.h"
#include "axsRecordHandler.h"
#include "axsRecordPattern.h"
#include "axsRecordReader.h"
#include "axsSource.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// What a record reader does: one document after the other with one pattern.
class axsRecordReading
{
public:
  /// A request that is not possible finds no records.
  explicit axsRecordReading(axsRecordReader::Request const& request);

  /// See axsRecordReader::read(); `open` makes the source and throws axsReadError as axsSource does.
  template <class Open>
  bool read(Open open, axmLoadOptions const& options, axmParseError& error, axsRecordReader::Take const& take)
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
  // Thrown through the parser when the caller wants no more.
  struct Ended
  {
  };

  void give(axsRecord& ended, axsRecordReader::Take const& take);

  bool const is_possible;
  axsRecordPattern const pattern;
  axsRecord record;
};
