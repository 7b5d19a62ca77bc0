#include "axsInputBuffer.h"

#include "axsSource.h"
#include "axsTextScan.h"

#include <cstring>
#include <utility>

namespace
{
std::size_t const usual_room = 65536;

// What may be read after the last byte.
std::size_t const bytes_after = 1 + axsTextScan::overreach;

// They are not all set: a short document leaves most of them alone.
std::unique_ptr<char[]> make_bytes(std::size_t room)
{
  std::unique_ptr<char[]> bytes(new char[axsLineEnds::bytes_before + room + bytes_after]);
  std::memset(bytes.get(), 0, axsLineEnds::bytes_before);
  return bytes;
}
}

axsInputBuffer::axsInputBuffer(axsSource& given)
  : url(given.url()),
    source(given),
    bytes(make_bytes(usual_room)),
    room(usual_room),
    known(begin())
{
  fill();
}

axsPlace axsInputBuffer::place(char const* at) const noexcept
{
  bool const is_counted = line_ends == axsLineEnds::Rule::xml_1_0 && source.has_line_ends();
  // As many lines as the source has counted but for those that end after `at`.
  if (at >= known && is_counted && end() - at < at - known)
    known_place = axsLineEnds::place_after(
      known_place, known, at, source.line_ends() + 1 - axsLineEnds::count(at, end()) - known_place.line);
  else if (at >= known)
    known_place = axsLineEnds::place_after(known_place, known, at, line_ends);
  else
    known_place = axsLineEnds::place_before(begin_place, begin(), known_place, known, at, line_ends);
  known = at;
  return known_place;
}

char const* axsInputBuffer::return_to(Mark const& mark)
{
  if (mark.position >= passed)
    return begin() + (mark.position - passed);
  source.seek(mark.position);
  std::memset(bytes.get(), 0, axsLineEnds::bytes_before);
  passed = mark.position;
  begin_place = mark.place;
  known = begin();
  known_place = mark.place;
  filled = 0;
  last = false;
  failure.reset();
  fill();
  return begin();
}

char const* axsInputBuffer::advance(char const* from)
{
  if (failure != nullptr)
    throw axsReadError(*failure);
  if (!source.fault().empty())
    throw axsReadError::at(source.fault(), url, place(end()));
  begin_place = place(from);
  std::size_t const kept = static_cast<std::size_t>(end() - from);
  passed += filled - kept;
  char const* const moved = from - axsLineEnds::bytes_before;
  if (kept > room / 2)
  {
    std::unique_ptr<char[]> larger = make_bytes(room * 2);
    std::memcpy(larger.get(), moved, axsLineEnds::bytes_before + kept);
    bytes = std::move(larger);
    room *= 2;
  }
  else
    std::memmove(bytes.get(), moved, axsLineEnds::bytes_before + kept);
  filled = kept;
  known = begin();
  fill();
  return begin();
}

void axsInputBuffer::fill()
{
  char* const to = bytes.get() + axsLineEnds::bytes_before;
  std::size_t const before = filled;
  try
  {
    while (!last && source.fault().empty() && room - filled >= axsUtf8Source::min_room)
    {
      std::size_t const count = source.read(to + filled, room - filled);
      filled += count;
      last = count == 0 && source.fault().empty();
    }
  }
  catch (axsReadError const& error)
  {
    // What came before is there to be read first.
    if (filled == before)
      throw;
    failure = std::make_unique<axsReadError>(error);
  }
  std::memset(to + filled, 0, bytes_after);
}
