#include "axsOutline.h"

#include "axsByteStream.h"
#include "axsOutlineHandler.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

#include <axmLoadOptions.h>

namespace
{
// Between two calls of a progress function.
int const max_steps = 1024;

template <class Open>
bool read_into(axsOutlineHandler& handler, Open open, axmParseError& error, axsOutline::Progress const& progress)
try
{
  handler.begin();
  std::unique_ptr<axsSource> const source = open();
  axmLoadOptions const options(axmValidateNone);
  axsParser parser(*source, options, handler);
  for (int steps = 0; parser.step(); ++steps)
    if (progress && steps % max_steps == 0)
      progress(source->consumed());
  return true;
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return false;
}
}

axsOutline::axsOutline(std::size_t max_paths, std::size_t max_depth)
  : handler(std::make_unique<axsOutlineHandler>(max_paths, max_depth))
{
}

axsOutline::~axsOutline() = default;

bool axsOutline::read(apPath const& file, axmParseError& error, Progress const& progress)
{
  return read_into(
    *handler, [&] { return std::make_unique<axsSource>(file); }, error, progress);
}

bool axsOutline::read(axsByteStream& stream, axmParseError& error, Progress const& progress)
{
  return read_into(
    *handler, [&] { return std::make_unique<axsSource>(stream, apPath()); }, error, progress);
}

void axsOutline::add(axsOutline const& other)
{
  handler->add(*other.handler);
}

std::vector<axsOutlinePath> axsOutline::paths() const
{
  return handler->paths();
}

std::uint64_t axsOutline::left_out() const noexcept
{
  return handler->left_out();
}
