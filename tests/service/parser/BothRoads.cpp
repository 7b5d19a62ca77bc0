#include "BothRoads.h"

#include "EventText.h"

#include <apByteArray.h>
#include <axsParser.h>
#include <axsSource.h>

#include <sstream>

namespace
{
bool read(std::string_view document, axmLoadOptions const& options, std::string& events)
try
{
  apByteArray const bytes(document.data(), document.size());
  axsSource source(bytes);
  EventTaker taker;
  axsParser(source, options, taker).run();
  events = taker.all();
  return true;
}
catch (axsReadError const& error)
{
  events = error.message.to_utf8().c_str();
  return false;
}

// The first line in which the two differ.
std::string difference_of(std::string const& ours, std::string const& judged)
{
  std::istringstream left(ours);
  std::istringstream right(judged);
  std::string line;
  std::string other;
  while (true)
  {
    bool const has_line = static_cast<bool>(std::getline(left, line));
    bool const has_other = static_cast<bool>(std::getline(right, other));
    if (!has_line && !has_other)
      return {};
    if (!has_line || !has_other || line != other)
      return '"' + (has_line ? line.substr(0, 200) : "") + "\", but to the judge \"" +
             (has_other ? other.substr(0, 200) : "") + '"';
  }
}
}

BothRoads::BothRoads(std::string_view document, axmLoadOptions const& options, Judge judge)
{
  std::string ours;
  std::string judged;
  was_scanned = read(document, options, ours);
  was_parsed = judge(document, judged);
  if (was_scanned && was_parsed)
    found = difference_of(ours, judged);
  else if (was_scanned)
    found = "only our parser takes it; the judge says: " + judged;
  else if (was_parsed)
    refused = ours;
}
