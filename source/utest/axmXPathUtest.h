#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <memory>

class utUnitTest;

/// Checks of searches by tables of expressions: all axes, operators and functions of XPath 1.0, what each of them gives, and
/// what is no expression. The frame is that of axmContractUtest.
class AXM_API axmXPathUtest
{
public:
  explicit axmXPathUtest(utUnitTest* tester);
  ~axmXPathUtest();

  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  void test_expressions(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_contexts(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_many_nodes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_errors(std::shared_ptr<axmDocumentFactory> const& factory) const;

  utUnitTest* tester;
};
