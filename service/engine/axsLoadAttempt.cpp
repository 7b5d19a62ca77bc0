#include "axsLoadAttempt.h"

#include "axsReadError.h"
#include "axsSource.h"

#include <apStringFormatter.h>

#include <atomic>
#include <exception>
#include <new>

namespace
{
std::shared_ptr<axmDocument> read(axsLoadAttempt::Load load, axsSource& source, axmLoadOptions const& options)
{
  apString const url = source.url();
  return load(source, options, url.empty() ? axsLoadAttempt::new_uri() : url);
}

template <class Input>
std::shared_ptr<axmDocument> attempt(
  axsLoadAttempt::Load load, Input const& input, axmLoadOptions const& options, axmParseError& error)
try
{
  axsSource source(input);
  return read(load, source, options);
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return nullptr;
}
catch (std::bad_alloc const&)
{
  error = axmParseError(APSTRING("Memory ran out"));
  return nullptr;
}
catch (std::exception const& failure)
{
  error = axmParseError(apString(failure.what()));
  return nullptr;
}
}

std::shared_ptr<axmDocument> axsLoadAttempt::make(
  Load load, apPath const& path, axmLoadOptions const& options, axmParseError& error)
{
  return attempt(load, path, options, error);
}

std::shared_ptr<axmDocument> axsLoadAttempt::make(
  Load load, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
{
  return attempt(load, data, options, error);
}

// Such documents are told from each other by a number.
apString axsLoadAttempt::new_uri()
{
  static std::atomic<unsigned int> documents{0};
  return apStringFormatter::format(L"axs:document:%u", ++documents);
}
