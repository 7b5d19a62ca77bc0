// Groups of the conformance suite, which the input chooses, a line each: its name, and a number that what is drawn begins
// with. The engine must pass every one, whatever ran before it and whatever is drawn.

#include "ConformClasses.h"
#include "SilentAssertions.h"
#include "SuiteFolder.h"

#include <axmEngineAccess.h>
#include <axmUtestGroupListener.h>
#include <axsRegister.h>
#include <utUnitTest.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

namespace
{
int const max_groups = 3;

class Judge : public utUnitTestListener
{
public:
  void reported(utUnitTestReport const& report) override
  {
    if (report.passed)
      return;
    std::cerr << report.function << ": " << report.description << ": " << report.expression << '\n';
    std::abort();
  }
  void printed(char const*) override {}
  void finished() override {}
};

class OneGroup : public axmUtestGroupListener
{
public:
  explicit OneGroup(std::string_view name) : wanted(name) { set(this); }
  ~OneGroup() override { set(nullptr); }

  bool begins(char const* name) override { return wanted == name && !is_long(); }
  void ended(char const*) override {}

private:
  // Whether its documents are too large or too many for a fuzzer.
  bool is_long() const
  {
    static constexpr std::string_view names[] = {"axmLoadUtest::test_large_documents", "axmLoadUtest::test_saved_sizes",
      "axmModelUtest::test_long_texts", "axmModelUtest::test_many_children", "axmModelUtest::test_neighbours",
      "axmSchemaUtest::test_contents", "axmXPathUtest::test_many_nodes", "axmXmlUtest::test_texts",
      "axmContractUtest::test_live_maps"};
    return std::find(std::begin(names), std::end(names), wanted) != std::end(names);
  }

  std::string_view const wanted;
};

void run(utUnitTest& tester, std::string_view group, std::uint64_t seed)
{
  OneGroup const chosen(group);
  ConformSelection selection;
  selection.seed = seed;
  selection.rounds = 4;
  run_conform_classes(selection, &tester, axm::engine());
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  axs_register();
  SuiteFolder const folder("axm fuzz suite");
  SilentAssertions const silent;
  Judge judge;
  utUnitTest tester;
  tester.add_listener(judge);
  utUnitTest* const replaced = utUnitTest::set_tester(&tester);
  std::string_view rest(reinterpret_cast<char const*>(data), size);
  for (int count = 0; count < max_groups && !rest.empty(); ++count)
  {
    std::string_view const line = rest.substr(0, rest.find('\n'));
    std::size_t const end = std::min(line.find(' '), line.size());
    std::uint64_t seed = axmModelUtest::default_seed;
    std::from_chars(line.data() + std::min(end + 1, line.size()), line.data() + line.size(), seed);
    run(tester, line.substr(0, end), seed);
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  }
  utUnitTest::set_tester(replaced);
  return 0;
}
