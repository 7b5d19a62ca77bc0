#pragma once

#include "utExport.h"
#include "utUnitTestCounter.h"
#include "utUnitTestListener.h"

#include <cstdio>
#include <memory>

/// The listener for people: writes each failed check with the diagnostic text that belongs to it, all other diagnostic
/// text as it comes, and at the end the counts of each class and the line "N passed, N failed".
class UT_API utUnitTestConsole : public utUnitTestListener
{
public:
  /// Writes to `out`, which stays the caller's and must live as long as this object.
  explicit utUnitTestConsole(std::FILE* out);
  ~utUnitTestConsole() override;

  void reported(utUnitTestReport const& report) override;
  void printed(char const* text) override;
  void finished() override;

private:
  struct Held;

  void write_failure(utUnitTestReport const& report);
  void write_held(char const* indent);

  std::FILE* out;
  utUnitTestCounter counter;
  std::unique_ptr<Held> held;
};
