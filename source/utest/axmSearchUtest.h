#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <cstdint>
#include <memory>

class utUnitTest;

/// The checks of searches (axmElement::selectNodes(), selectSingleNode()): expressions of a subset of XPath 1.0 that are
/// drawn at random, on documents that are, against a small judge: paths of "/" and "//", names, *, @, text(), . and ..,
/// conditions on positions, attributes and texts. Reports as axmModelUtest does.
class AXM_API axmSearchUtest
{
public:
  explicit axmSearchUtest(utUnitTest* tester);

  /// With other draws than by default, and another number of them; see axmModelUtest.
  axmSearchUtest(utUnitTest* tester, std::uint64_t seed, int rounds);

  ~axmSearchUtest();

  /// Runs all checks on `factory`, which must not be empty.
  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

protected:
  void test_paths(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_lists(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  utUnitTest* tester;
  std::uint64_t seed;
  int rounds;
};
