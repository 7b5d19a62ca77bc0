#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <cstdint>
#include <memory>

class utUnitTest;

/// The checks of typed attributes (axmNode::get_attribute() and the others): texts that are drawn at random from what
/// stands around every border of a type, against the rules of the header, under the current C locale and, where the
/// system has one, under a decimal comma, to which the process is set meanwhile. Reports as axmModelUtest does.
class AXM_API axmTypedUtest
{
public:
  explicit axmTypedUtest(utUnitTest* tester);

  /// With other draws than by default, and another number of them; see axmModelUtest.
  axmTypedUtest(utUnitTest* tester, std::uint64_t seed, int rounds);

  ~axmTypedUtest();

  /// Runs all checks on `factory`, which must not be empty.
  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

protected:
  void test_getters(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_setters(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_decimal_comma(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  utUnitTest* tester;
  std::uint64_t seed;
  int rounds;
};
