#include "axsCanonicalForm.h"

#include "axsCanonicalWriter.h"
#include "axsLocator.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

namespace
{
void write_whole(axsSource& source, axmLoadOptions const& reading, axsCanonicalOptions const& options,
  axsCanonicalForm::Write const& write)
{
  axsCanonicalWriter writer(options, write);
  // It tells the writer where it is, also in what is written last.
  axsParser parser(source, reading, writer);
  parser.run();
  writer.finish();
}
}

bool axsCanonicalForm::write(
  axsByteStream& stream, axsCanonicalOptions const& options, axmParseError& error, Write const& write)
try
{
  axsSource source(stream, apPath());
  write_whole(source, axmLoadOptions(axmValidateNone), options, write);
  return true;
}
catch (axsReadError const& wrong)
{
  error = wrong.record();
  return false;
}

bool axsCanonicalForm::write(apPath const& path, axmLoadOptions const& reading, axsCanonicalOptions const& options,
  axmParseError& error, Write const& write)
try
{
  axsSource source(path);
  write_whole(source, reading, options, write);
  return true;
}
catch (axsReadError const& wrong)
{
  error = wrong.record();
  return false;
}
