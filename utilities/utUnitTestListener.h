#pragma once

#include "utExport.h"
#include "utUnitTestReport.h"

/// Is told what happens in a run of checks; see utUnitTest. Interface. Calls come one at a time, on the thread that
/// reports.
class UT_API utUnitTestListener
{
public:
  utUnitTestListener();
  utUnitTestListener(utUnitTestListener const&) = delete;
  utUnitTestListener& operator=(utUnitTestListener const&) = delete;
  virtual ~utUnitTestListener();

  /// A check was made.
  virtual void reported(utUnitTestReport const& report) = 0;

  /// The suite has diagnostic text, which belongs to the check that it reports next. Not null; lives as long as the call.
  virtual void printed(char const* text) = 0;

  /// The run is over.
  virtual void finished() = 0;
};
