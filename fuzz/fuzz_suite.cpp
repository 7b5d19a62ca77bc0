// Groups of the conformance suite, which the input chooses, a line each: its name, and a number that what is drawn begins
// with. The engine must pass every one, whatever ran before it and whatever is drawn.

#include <axmCommentNodeUtest.h>
#include <axmContractUtest.h>
#include <axmDocumentFactoryUtest.h>
#include <axmDocumentUtest.h>
#include <axmElementUtest.h>
#include <axmEngineAccess.h>
#include <axmLoadUtest.h>
#include <axmModelUtest.h>
#include <axmNamedNodeMapUtest.h>
#include <axmNodeListUtest.h>
#include <axmNodeUtest.h>
#include <axmSchemaUtest.h>
#include <axmSearchUtest.h>
#include <axmTextNodeUtest.h>
#include <axmTypedUtest.h>
#include <axmUtestGroupListener.h>
#include <axmValidationUtest.h>
#include <axmXPathUtest.h>
#include <axmXmlUtest.h>
#include <axsRegister.h>
#include <utAssert.h>
#include <utUnitTest.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

namespace
{
namespace fs = std::filesystem;

int const max_groups = 3;

// While it lives, the process works where the suite finds its data and may write.
class SuiteFolder
{
public:
  SuiteFolder() : outside(fs::current_path())
  {
    std::string name = (fs::temp_directory_path() / "axm_suite_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      std::abort();
    folder = name;
    fs::create_directory(folder / "work");
    fs::create_directory(folder / "data");
    char const schema[] = "in_memory_test_schema.xsd";
    fs::copy_file(fs::u8path(AXM_DATA_FOLDER) / schema, folder / "data" / schema);
    fs::current_path(folder / "work");
  }
  SuiteFolder(SuiteFolder const&) = delete;
  SuiteFolder& operator=(SuiteFolder const&) = delete;
  ~SuiteFolder()
  {
    fs::current_path(outside);
    fs::remove_all(folder);
  }

private:
  fs::path const outside;
  fs::path folder;
};

class SilentAssertions : public utAssertListener
{
public:
  SilentAssertions() : replaced(ut_set_assert_listener(this)) {}
  ~SilentAssertions() override { ut_set_assert_listener(replaced); }
  void assertion_failed(char const*, char const*, int) override {}

private:
  utAssertListener* const replaced;
};

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
  // Whether its documents are of a size that is not for a fuzzer.
  bool is_long() const
  {
    static constexpr std::string_view names[] = {"axmLoadUtest::test_large_documents", "axmLoadUtest::test_saved_sizes",
      "axmModelUtest::test_long_texts", "axmModelUtest::test_many_children", "axmXPathUtest::test_many_nodes",
      "axmContractUtest::test_live_maps"};
    return std::find(std::begin(names), std::end(names), wanted) != std::end(names);
  }

  std::string_view const wanted;
};

void run(utUnitTest& tester, std::string_view group, std::uint64_t seed)
{
  int const rounds = 4;
  auto const engine = axm::engine();
  OneGroup const chosen(group);
  axmDocumentFactoryUtest(&tester).run_tests(engine);
  axmValidationUtest(&tester).run_tests(*engine);
  axmNodeUtest(&tester).run_tests(*engine);
  axmElementUtest(&tester).run_tests(*engine);
  axmDocumentUtest(&tester).run_tests(*engine);
  axmNodeListUtest(&tester).run_tests(*engine);
  axmNamedNodeMapUtest(&tester).run_tests(*engine);
  axmTextNodeUtest(&tester).run_tests(*engine);
  axmCommentNodeUtest(&tester).run_tests(*engine);
  axmContractUtest(&tester).run_tests(engine);
  axmLoadUtest(&tester).run_tests(engine);
  axmXmlUtest(&tester).run_tests(engine);
  axmSchemaUtest(&tester).run_tests(engine);
  axmXPathUtest(&tester).run_tests(engine);
  axmTypedUtest(&tester, seed, rounds).run_tests(engine);
  axmSearchUtest(&tester, seed, rounds).run_tests(engine);
  axmModelUtest(&tester, seed, rounds).run_tests(engine);
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  axs_register();
  SuiteFolder const folder;
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
