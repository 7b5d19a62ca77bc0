#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

class utUnitTest;

/// The checks of text nodes; see axmTextNode for what they check.
///
/// Every check is reported to utUnitTest::get_tester(). The tester given here, which is not owned and must outlive this
/// object, gets the diagnostic text. What is missing or thrown is a failed check; a group that cannot go on leaves out
/// the rest of its checks. Nothing is written to files.
class AXM_API axmTextNodeUtest
{
public:
  explicit axmTextNodeUtest(utUnitTest* tester);
  ~axmTextNodeUtest();

  /// Runs all checks on what `factory` creates and loads.
  void run_tests(axmDocumentFactory const& factory) const;

protected:
  void test_getData(axmDocumentFactory const& factory) const;
  void test_get_xml(axmDocumentFactory const& factory) const;

private:
  utUnitTest* tester;
};
