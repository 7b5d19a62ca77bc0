#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <cstdint>
#include <memory>

class utUnitTest;

/// The checks against a plain model of documents: documents and operations are drawn at random, done on the engine and on
/// the model, and all that can be asked is held against each other after each. What is drawn is the same for the same
/// seed, on every system. What happens between neighbours, and to texts that look like something else, is not drawn: there is
/// one sequence for each case.
///
/// Every group reports one check, which fails at the first difference; the tester given here, which is not owned and must
/// outlive this object, gets the shortest sequence of operations that was found to show it, as a text in C++, and what was
/// promised and what came. While a group runs, assertions are counted by it.
class AXM_API axmModelUtest
{
public:
  static constexpr std::uint64_t default_seed = 1;
  static constexpr int default_rounds = 1500;

  explicit axmModelUtest(utUnitTest* tester);

  /// With other draws than by default, and another number of them: `rounds` sequences a group.
  axmModelUtest(utUnitTest* tester, std::uint64_t seed, int rounds);

  ~axmModelUtest();

  /// Runs all checks on `factory`, which must not be empty, and on what it creates, loads and saves.
  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

protected:
  void test_trees(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_lists(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_loads(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_everything(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_neighbours(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_texts(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_many_children(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_many_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_long_texts(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_many_levels(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_many_documents(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  utUnitTest* tester;
  std::uint64_t seed;
  int rounds;
};
