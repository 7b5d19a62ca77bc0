#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

class utUnitTest;

/// The checks of nodes; see axmNode for what they check.
///
/// Every check is reported to utUnitTest::get_tester(). The tester given here, which is not owned and must outlive this
/// object, gets the diagnostic text. What is missing or thrown is a failed check; a group that cannot go on leaves out
/// the rest of its checks. Nothing is written to files.
class AXM_API axmNodeUtest
{
public:
  explicit axmNodeUtest(utUnitTest* tester);
  ~axmNodeUtest();

  /// Runs all checks on what `factory` creates and loads.
  void run_tests(axmDocumentFactory const& factory) const;

protected:
  void test_set_text(axmDocumentFactory const& factory) const;
  void test_get_next_sibling(axmDocumentFactory const& factory) const;
  void test_get_previous_sibling(axmDocumentFactory const& factory) const;
  void test_get_parent_node(axmDocumentFactory const& factory) const;
  void test_append_child(axmDocumentFactory const& factory) const;
  void test_insert_child(axmDocumentFactory const& factory) const;
  void test_replace_child(axmDocumentFactory const& factory) const;
  void test_remove_child(axmDocumentFactory const& factory) const;

private:
  utUnitTest* tester;
};
