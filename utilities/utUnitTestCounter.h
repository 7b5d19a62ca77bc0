#pragma once

#include "utExport.h"
#include "utUnitTestListener.h"

#include <memory>

/// The silent listener: counts what passed and failed, in all, for each class of checks and for each of its groups.
///
/// Throws std::bad_alloc when memory runs out. It may be read while nothing is reported.
class UT_API utUnitTestCounter : public utUnitTestListener
{
public:
  struct Count
  {
    long passed;
    long failed;
  };

  utUnitTestCounter();
  ~utUnitTestCounter() override;

  void reported(utUnitTestReport const& report) override;
  void printed(char const* text) override;
  void finished() override;

  /// All checks reported so far.
  Count total() const;

  /// Those of the class or the group `name`, as "axmNodeUtest" or "axmNodeUtest::test_set_text"; zero if there are none.
  Count of(char const* name) const;

  /// The classes and groups that reported, in the order of their first report, each class before its groups.
  int size() const;

  /// The name at `index`, 0 <= index < size(); lives as long as this object.
  char const* name(int index) const;

private:
  struct Table;
  std::unique_ptr<Table> table;
};
