#include "SuiteRun.h"

#include "Faults.h"
#include "SilentAssertions.h"
#include "SuiteFolder.h"

#include <ConformClasses.h>

#include <apProcessControl.h>
#include <axmModelUtest.h>
#include <axmSaveObstacles.h>
#include <axmUtestGroupListener.h>
#include <axsRegister.h>
#include <utUnitTest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace
{
class Recorder : public utUnitTestListener
{
public:
  void reported(utUnitTestReport const& report) override
  {
    checks.push_back(
      {report.passed, neutral(report.expression), report.file, neutral(report.description), report.function});
  }
  void printed(char const*) override {}
  void finished() override {}

  std::vector<Check> checks;

private:
  static std::string neutral(std::string text)
  {
    std::string const id = "_" + std::to_string(apProcessControl::getpid()) + ".";
    for (std::size_t at = 0; (at = text.find(id, at)) != std::string::npos;)
      text.replace(at, id.size(), "_PID.");
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos;)
      text.replace(at, 1, "\\n");
    return text;
  }
};

class QuickFactory : public axmDocumentFactory, public axmSaveObstacles
{
public:
  explicit QuickFactory(Factory given) : engine(std::move(given)) {}
  ~QuickFactory() override = default;

  Document createDocument(apString const& root_name) const override { return engine->createDocument(root_name); }
  Document loadDocument(apPath const& path, axmLoadOptions const& options, axmParseError& error) const override
  {
    return engine->loadDocument(path, options, error);
  }
  Document loadDocument(apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const override
  {
    if (data.size() < 100000)
      return engine->loadDocument(data, options, error);
    for (Load const& load : remembered)
      if (load.data == data && load.limit == options.entity_expansion_limit())
        return handed_out(load, error);
    axmParseError fresh;
    Document const document = engine->loadDocument(data, options, fresh);
    remembered.push_back({data, options.entity_expansion_limit(), document, fresh});
    return handed_out(remembered.back(), error);
  }
  bool saveDocument(Document document, apByteArray& output) override { return engine->saveDocument(document, output); }
  bool saveDocument(Document document, apPath const& path) override { return engine->saveDocument(document, path); }
  apString obstacle(axmDocument const& document) const override
  {
    return std::dynamic_pointer_cast<axmSaveObstacles>(engine)->obstacle(document);
  }

private:
  struct Load
  {
    apByteArray data;
    int limit;
    Document document;
    axmParseError error;
  };

  static Document handed_out(Load const& load, axmParseError& error)
  {
    if (load.document == nullptr)
      error = load.error;
    return load.document;
  }

  Factory engine;
  mutable std::vector<Load> remembered;
};
}

Factory default_engine()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

Factory quick_engine()
{
  static Factory const engine = std::make_shared<QuickFactory>(default_engine());
  return engine;
}

namespace
{
// What a test can afford that runs everything, and one that looks for a fault and is over once it is seen.
constexpr int few_rounds = 40;
constexpr int more_rounds = 400;

// In the order of the suite, the classes whose checks are written by hand come before this one, those that go through tables
// from it on, and those whose cases are drawn from the other one on.
char const first_generated[] = "axmLoadUtest";
char const first_drawn[] = "axmTypedUtest";

// The classes from one to before another, to all of them where a name is none.
void run_classes(
  utUnitTest& tester, Factory const& factory, std::string const& first, std::string const& end, int rounds)
{
  std::vector<std::string> const all = conform_class_names();
  auto const begin = first.empty() ? all.begin() : std::find(all.begin(), all.end(), first);
  ConformSelection selection;
  selection.classes = {begin, std::find(all.begin(), all.end(), end)};
  selection.rounds = rounds;
  run_conform_classes(selection, &tester, factory);
}

void run_fixed(utUnitTest& tester, Factory const& factory)
{
  run_classes(tester, factory, "", first_generated, few_rounds);
}

void run_tables(utUnitTest& tester, Factory const& factory)
{
  run_classes(tester, factory, first_generated, first_drawn, few_rounds);
}

void run_drawn(utUnitTest& tester, Factory const& factory, int rounds)
{
  run_classes(tester, factory, first_drawn, "", rounds);
}

void run_generated(utUnitTest& tester, Factory const& factory, int rounds)
{
  run_tables(tester, factory);
  run_drawn(tester, factory, rounds);
}

// What `run` reports.
template <class Run>
std::vector<Check> recorded(Run run)
{
  SilentAssertions const silent;
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  utUnitTest* const replaced = utUnitTest::set_tester(&tester);
  run(tester, recorder);
  utUnitTest::set_tester(replaced);
  return std::move(recorder.checks);
}

// Leaves out all groups after the first one with a failed check.
class UpToFailure : public axmUtestGroupListener
{
public:
  explicit UpToFailure(std::vector<Check> const& given) : checks(given) { set(this); }
  ~UpToFailure() override { set(nullptr); }

  bool begins(char const*) override
  {
    return std::all_of(checks.begin(), checks.end(), [](Check const& check) { return check.passed; });
  }
  void ended(char const*) override {}

private:
  std::vector<Check> const& checks;
};

// Lets the groups begin that are named.
class OnlyNamed : public axmUtestGroupListener
{
public:
  explicit OnlyNamed(std::set<std::string> const& given) : names(given) { set(this); }
  ~OnlyNamed() override { set(nullptr); }

  bool begins(char const* name) override { return names.count(name) != 0; }
  void ended(char const*) override {}

private:
  std::set<std::string> const& names;
};

// The groups of the model with steps that are drawn, which are the quickest.
class DrawnUpToFailure : public UpToFailure
{
public:
  using UpToFailure::UpToFailure;
  bool begins(char const* name) override
  {
    std::string const group = name;
    bool is_drawn = false;
    for (char const* const topic : {"trees", "attributes", "lists", "loads", "everything"})
      is_drawn = is_drawn || group == std::string("axmModelUtest::test_") + topic;
    return is_drawn && UpToFailure::begins(name);
  }
};
}

std::vector<Check> run_suite(Factory const& factory)
{
  return recorded(
    [&](utUnitTest& tester, Recorder const&)
    {
      run_fixed(tester, factory);
      run_generated(tester, factory, few_rounds);
    });
}

std::vector<Check> run_fixed_classes(Factory const& factory)
{
  return recorded([&](utUnitTest& tester, Recorder const&) { run_fixed(tester, factory); });
}

std::vector<Check> run_generated_classes(Factory const& factory)
{
  std::vector<Check> checks;
  // Most faults show early; the others are worth a longer look.
  for (int const rounds : {few_rounds, more_rounds})
  {
    checks = recorded(
      [&](utUnitTest& tester, Recorder const& recorder)
      {
        UpToFailure const listener(recorder.checks);
        run_generated(tester, factory, rounds);
      });
    if (!failed_groups(checks).empty())
      break;
  }
  return checks;
}

std::vector<Check> run_until_seen(Factory const& factory)
{
  return recorded(
    [&](utUnitTest& tester, Recorder const& recorder)
    {
      UpToFailure const listener(recorder.checks);
      run_tables(tester, factory);
      run_fixed(tester, factory);
      run_drawn(tester, factory, few_rounds);
      run_drawn(tester, factory, more_rounds);
    });
}

std::vector<Check> run_rules_until_seen(Factory const& factory)
{
  return recorded(
    [&](utUnitTest& tester, Recorder const& recorder)
    {
      UpToFailure const listener(recorder.checks);
      run_tables(tester, factory);
      run_classes(tester, factory, "axmSearchUtest", "axmModelUtest", more_rounds);
      run_fixed(tester, factory);
    });
}

std::vector<Check> run_drawn_first(Factory const& factory)
{
  std::vector<Check> const checks = recorded(
    [&](utUnitTest& tester, Recorder const& recorder)
    {
      DrawnUpToFailure const listener(recorder.checks);
      axmModelUtest(&tester, axmModelUtest::default_seed, few_rounds).run_tests(factory);
    });
  return failed_groups(checks).empty() ? run_all_classes(factory) : checks;
}

std::vector<Check> run_all_classes(Factory const& factory)
{
  std::vector<Check> const checks = run_fixed_classes(factory);
  return failed_groups(checks).empty() ? run_generated_classes(factory) : checks;
}

std::vector<Check> run_groups(Factory const& factory, std::set<std::string> const& groups)
{
  OnlyNamed const listener(groups);
  std::vector<Check> checks;
  for (int const rounds : {few_rounds, more_rounds})
  {
    checks = recorded(
      [&](utUnitTest& tester, Recorder const&)
      {
        run_fixed(tester, factory);
        run_generated(tester, factory, rounds);
      });
    if (!failed_groups(checks).empty())
      break;
  }
  return checks;
}

std::vector<std::string> failed_groups(std::vector<Check> const& checks)
{
  std::vector<std::pair<std::string, int>> groups;
  for (Check const& check : checks)
  {
    if (check.passed)
      continue;
    auto const found =
      std::find_if(groups.begin(), groups.end(), [&check](auto const& group) { return group.first == check.function; });
    if (found == groups.end())
      groups.emplace_back(check.function, 1);
    else
      ++found->second;
  }
  std::vector<std::string> lines;
  for (auto const& [group, count] : groups)
    lines.push_back(group + " (" + std::to_string(count) + ")");
  return lines;
}

std::string table_row(Fault const& fault, std::vector<Check> const& checks)
{
  std::string row = std::string(fault.operation) + ": " + fault.name + " |";
  for (std::string const& group : failed_groups(checks))
    row += " " + group;
  return row;
}

std::set<std::string> groups_of(std::string const& row)
{
  std::set<std::string> groups;
  std::istringstream words(row.substr(row.rfind('|') + 1));
  for (std::string group, number; words >> group >> number;)
    groups.insert(group);
  return groups;
}

std::vector<Fault> all_faults()
{
  std::vector<Fault> faults;
  for (auto const* const some : {&node_faults(), &content_faults(), &collection_faults(), &factory_faults()})
    faults.insert(faults.end(), some->begin(), some->end());
  return faults;
}

std::vector<Fault> all_subtle_faults()
{
  std::vector<Fault> faults;
  for (auto const* const some : {&subtle_tree_faults(), &subtle_content_faults(), &subtle_factory_faults()})
    faults.insert(faults.end(), some->begin(), some->end());
  return faults;
}

void use_test_locales()
{
#if !defined(_WIN32)
  setenv("LOCPATH", AXM_LOCALE_FOLDER, 1);
#endif
}

std::string run_with(Fault const& fault, std::function<std::vector<Check>(Factory const& factory)> const& run)
{
  use_test_locales();
  SuiteFolder const folder("axm fault");
  Hooks hooks;
  fault.put_into(hooks);
  return table_row(fault, run(hooked_engine(quick_engine(), hooks)));
}
