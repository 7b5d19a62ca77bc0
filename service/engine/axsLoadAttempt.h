#pragma once

#include <apByteArray.h>
#include <apPath.h>
#include <axmDocument.h>
#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <memory>

class axsSource;

/// Loads whose failures are results.
namespace axsLoadAttempt
{
/// One of those of axsLoader.
using Load = std::shared_ptr<axmDocument> (*)(axsSource& source, axmLoadOptions const& options, apString const& uri);

/// What `load` makes of the file, or of the bytes; empty, with the reason in `error`, where that throws. `error` stays as
/// it was otherwise.
std::shared_ptr<axmDocument> make(Load load, apPath const& path, axmLoadOptions const& options, axmParseError& error);
std::shared_ptr<axmDocument> make(
  Load load, apByteArray const& data, axmLoadOptions const& options, axmParseError& error);

/// What identifies a document that has no file. Throws std::bad_alloc when memory runs out.
apString new_uri();
}
