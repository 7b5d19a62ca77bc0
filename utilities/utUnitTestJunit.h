#pragma once

#include "utExport.h"
#include "utUnitTestListener.h"

#include <cstdio>
#include <memory>

/// The listener for machines: at the end of the run it writes all checks as JUnit XML, a suite for each class, a case for
/// each check. Holds every report until then. What XML cannot hold becomes U+FFFD.
class UT_API utUnitTestJunit : public utUnitTestListener
{
public:
  /// Writes to `out`, which stays the caller's and must live until the run is finished.
  explicit utUnitTestJunit(std::FILE* out);
  ~utUnitTestJunit() override;

  void reported(utUnitTestReport const& report) override;
  void printed(char const* text) override;
  void finished() override;

private:
  struct Suites;

  std::FILE* out;
  std::unique_ptr<Suites> suites;
};
