#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <memory>

class utUnitTest;

/// The checks of loads and saves against tables and generators: entities counted however they are nested, external things
/// left alone, encodings, markup of every kind, places of errors, schemas, saves of every size, saves that fail. See
/// axmDocumentFactory and axmLoadOptions. Reports and files as axmContractUtest has them.
class AXM_API axmLoadUtest
{
public:
  explicit axmLoadUtest(utUnitTest* tester);
  ~axmLoadUtest();

  /// Runs all checks on `factory`, which must not be empty.
  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

protected:
  void test_entity_limits(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_external_things(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_external_files(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_encodings(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_markup(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_large_documents(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_places(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_schemas(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_schema_places(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_schema_sets(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_saved_sizes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_second_saves(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_saved_edits(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_refused_saves(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_save_obstacles(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  utUnitTest* tester;
};
