#include "axmModelUtest.h"

#include "axmUtestGroup.h"
#include "model/axmModelCases.h"
#include "model/axmModelDraw.h"
#include "model/axmModelRun.h"
#include "model/axmModelShrink.h"

#include <utUnitTest.h>

#include <string>
#include <vector>

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Topic = axmModelTopic;

char const file[] = "source/utest/axmModelUtest";

void tell(utUnitTest* tester, axmDocumentFactory& factory, axmModelFinding const& finding)
{
  axmModelFinding const shrunk = axm_model_shrunk(factory, finding);
  tester->printf("%s// %s", axm_model_program(shrunk.steps).c_str(), shrunk.difference.c_str());
}

// A round is over at its first difference, which is in the result then.
axmModelFinding round_of(axmDocumentFactory& factory, Topic topic, std::uint64_t seed)
{
  axmModelDraw draw(topic, seed);
  axmModelRun run(factory, 8);
  axmModelFinding finding;
  for (int step = 0; step < draw.length() && run.difference().empty(); ++step)
  {
    finding.steps.push_back(draw.next(run));
    run.execute(finding.steps.back());
  }
  run.compare_all();
  finding.difference = run.difference();
  return finding;
}

struct Draws
{
  Topic topic;
  std::uint64_t seed;
  int rounds;
};

char const expression[] = "every answer is the promised one";

void run_rounds(
  utUnitTest* tester, char const* name, char const* description, axmDocumentFactory& factory, Draws const& draws)
{
  axmUtestGroup const group(tester, file, name);
  for (int round = 0; round < draws.rounds; ++round)
  {
    std::uint64_t const number = draws.seed * 1000003U + static_cast<std::uint64_t>(round);
    axmModelFinding const finding =
      round_of(factory, draws.topic, number * 8U + static_cast<std::uint64_t>(draws.topic));
    if (finding.difference.empty())
      continue;
    tell(tester, factory, finding);
    group.check(false, expression, __LINE__, description);
    return;
  }
  group.check(true, expression, __LINE__, description);
}

void run_cases(utUnitTest* tester, char const* name, char const* description, axmDocumentFactory& factory,
  std::vector<std::vector<axmModelStep>> const& cases)
{
  axmUtestGroup const group(tester, file, name);
  for (std::vector<axmModelStep> const& steps : cases)
  {
    axmModelRun run(factory, static_cast<int>(steps.size()) + 1);
    for (axmModelStep const& step : steps)
      run.execute(step);
    run.compare_all();
    if (run.difference().empty())
      continue;
    tell(tester, factory, {steps, run.difference()});
    group.check(false, expression, __LINE__, description);
    return;
  }
  group.check(true, expression, __LINE__, description);
}
}

axmModelUtest::axmModelUtest(utUnitTest* given_tester) : axmModelUtest(given_tester, default_seed, default_rounds) {}

axmModelUtest::axmModelUtest(utUnitTest* given_tester, std::uint64_t given_seed, int given_rounds)
  : tester(given_tester),
    seed(given_seed),
    rounds(given_rounds)
{
}

axmModelUtest::~axmModelUtest() = default;

void axmModelUtest::run_tests(Factory const& factory) const
{
  using Utest = axmModelUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_trees, "axmModelUtest::test_trees"},
    {&Utest::test_attributes, "axmModelUtest::test_attributes"},
    {&Utest::test_lists, "axmModelUtest::test_lists"},
    {&Utest::test_loads, "axmModelUtest::test_loads"},
    {&Utest::test_everything, "axmModelUtest::test_everything"},
    {&Utest::test_neighbours, "axmModelUtest::test_neighbours"},
    {&Utest::test_texts, "axmModelUtest::test_texts"},
    {&Utest::test_many_children, "axmModelUtest::test_many_children"},
    {&Utest::test_many_attributes, "axmModelUtest::test_many_attributes"},
    {&Utest::test_long_texts, "axmModelUtest::test_long_texts"},
    {&Utest::test_many_levels, "axmModelUtest::test_many_levels"},
    {&Utest::test_many_documents, "axmModelUtest::test_many_documents"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmModelUtest::test_trees(Factory const& factory) const
{
  run_rounds(tester, "axmModelUtest::test_trees", "edits of trees", *factory, {Topic::trees, seed, rounds});
}

void axmModelUtest::test_attributes(Factory const& factory) const
{
  run_rounds(
    tester, "axmModelUtest::test_attributes", "edits of attributes", *factory, {Topic::attributes, seed, rounds});
}

void axmModelUtest::test_lists(Factory const& factory) const
{
  run_rounds(
    tester, "axmModelUtest::test_lists", "lists held while trees change", *factory, {Topic::lists, seed, rounds});
}

void axmModelUtest::test_loads(Factory const& factory) const
{
  run_rounds(
    tester, "axmModelUtest::test_loads", "documents loaded, edited, saved", *factory, {Topic::loads, seed, rounds});
}

void axmModelUtest::test_everything(Factory const& factory) const
{
  run_rounds(
    tester, "axmModelUtest::test_everything", "all operations at once", *factory, {Topic::everything, seed, rounds});
}

void axmModelUtest::test_neighbours(Factory const& factory) const
{
  run_cases(
    tester, "axmModelUtest::test_neighbours", "edits of every pair of neighbours", *factory, axm_model_neighbours());
}

void axmModelUtest::test_texts(Factory const& factory) const
{
  run_cases(tester, "axmModelUtest::test_texts", "texts in every place", *factory, axm_model_texts());
}
