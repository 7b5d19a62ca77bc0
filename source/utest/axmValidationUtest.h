#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <apPath.h>

class utUnitTest;

/// The checks of validation against schemas; see axmDocumentFactory and axmLoadOptions for what they check.
///
/// Every check is reported to utUnitTest::get_tester(). The tester given here, which is not owned and must outlive this
/// object, gets the diagnostic text. What is missing or thrown is a failed check.
///
/// The checks write schemas and documents into the working directory, under names that bear the process id; they are
/// gone when the checks are done.
class AXM_API axmValidationUtest
{
public:
  explicit axmValidationUtest(utUnitTest* tester);
  ~axmValidationUtest();

  /// Runs all checks on what `factory` loads.
  void run_tests(axmDocumentFactory const& factory) const;

protected:
  void test_missing_schema(axmDocumentFactory const& factory) const;
  void test_missing_nons_schema(axmDocumentFactory const& factory) const;
  void test_simple_schema_path(axmDocumentFactory const& factory) const;
  void test_simple_nons_schema_path(axmDocumentFactory const& factory) const;
  void test_spaces_in_schema(axmDocumentFactory const& factory) const;
  void test_spaces_in_nons_schema(axmDocumentFactory const& factory) const;
  void test_nb_spaces_in_schema(axmDocumentFactory const& factory) const;
  void test_nb_spaces_in_nons_schema(axmDocumentFactory const& factory) const;
  void test_mixed_spaces_in_schema(axmDocumentFactory const& factory) const;
  void test_mixed_spaces_in_nons_schema(axmDocumentFactory const& factory) const;
  void test_percent_in_schema(axmDocumentFactory const& factory) const;
  void test_percent_in_nons_schema(axmDocumentFactory const& factory) const;
  void test_cyrillic_in_schema(axmDocumentFactory const& factory) const;
  void test_cyrillic_in_nons_schema(axmDocumentFactory const& factory) const;
  void test_multiple_schemas(axmDocumentFactory const& factory) const;

private:
  void run_schema_test(axmDocumentFactory const& factory, apPath const& schema_path, char const* description) const;
  void run_nons_schema_test(
    axmDocumentFactory const& factory, apPath const& schema_path, char const* description) const;

  utUnitTest* tester;
};
