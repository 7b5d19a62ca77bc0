#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <memory>

class utUnitTest;

/// Checks of loads under schemas by tables: types and their facets, content models, attributes and wildcards, derivation,
/// identity constraints, schemas of several files, and schemas that cannot be used (XML Schema 1.0). The frame is that of
/// axmContractUtest.
class AXM_API axmSchemaUtest
{
public:
  explicit axmSchemaUtest(utUnitTest* tester);
  ~axmSchemaUtest();

  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  void test_types(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_facets(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_contents(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_derivation(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_constraints(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_rules(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_modules(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_wrong_schemas(std::shared_ptr<axmDocumentFactory> const& factory) const;

  utUnitTest* tester;
};
