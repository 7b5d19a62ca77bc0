#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <memory>

class utUnitTest;

/// Checks by the rules of XML 1.0, section by section: documents and what each of them is once it is loaded, and what is
/// no document and must fail. What names and prefixes mean to namespaces is not asked. The frame is that of
/// axmContractUtest.
class AXM_API axmXmlUtest
{
public:
  explicit axmXmlUtest(utUnitTest* tester);
  ~axmXmlUtest();

  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  void test_documents(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_names(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_references(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_texts(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_comments(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_constraints(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_element_declarations(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_attribute_declarations(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_tokens(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_entity_declarations(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_entities(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_forms(std::shared_ptr<axmDocumentFactory> const& factory) const;

  utUnitTest* tester;
};
