#include "axsCanonicalForm.h"

#include "axsCanonicalWriter.h"
#include "axsLocator.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

#include <axmLoadOptions.h>

bool axsCanonicalForm::write(
  axsByteStream& stream, axsCanonicalOptions const& options, axmParseError& error, Write const& write)
try
{
  axsSource source(stream, apPath());
  axsCanonicalWriter writer(options, write);
  axsParser(source, axmLoadOptions(axmValidateNone), writer).run();
  writer.finish();
  return true;
}
catch (axsReadError const& wrong)
{
  error = wrong.record();
  return false;
}
