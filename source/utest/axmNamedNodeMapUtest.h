#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

class utUnitTest;

/// The checks of attribute maps; see axmNamedNodeMap for what they check.
///
/// Every check is reported to utUnitTest::get_tester(). The tester given here, which is not owned and must outlive this
/// object, gets the diagnostic text. What is missing or thrown is a failed check; a group that cannot go on leaves out
/// the rest of its checks. Nothing is written to files.
class AXM_API axmNamedNodeMapUtest
{
public:
  explicit axmNamedNodeMapUtest(utUnitTest* tester);
  ~axmNamedNodeMapUtest();

  /// Runs all checks on what `factory` creates and loads.
  void run_tests(axmDocumentFactory const& factory) const;

protected:
  void test_getLength(axmDocumentFactory const& factory) const;
  void test_iteration(axmDocumentFactory const& factory) const;
  void test_getNamedItem(axmDocumentFactory const& factory) const;
  void test_removeNamedItem(axmDocumentFactory const& factory) const;
  void test_setNamedItem(axmDocumentFactory const& factory) const;

private:
  utUnitTest* tester;
};
