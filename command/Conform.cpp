#include "BuiltInEngine.h"
#include "Complaint.h"
#include "ConformListener.h"
#include "ConformanceData.h"
#include "EngineLibrary.h"
#include "ScratchFolder.h"

#include <apPath.h>
#include <axmCommentNodeUtest.h>
#include <axmContractUtest.h>
#include <axmDocumentFactoryUtest.h>
#include <axmDocumentUtest.h>
#include <axmElementUtest.h>
#include <axmNamedNodeMapUtest.h>
#include <axmNodeListUtest.h>
#include <axmNodeUtest.h>
#include <axmTextNodeUtest.h>
#include <axmUtestUtils.h>
#include <axmValidationUtest.h>
#include <utUnitTest.h>
#include <utUnitTestCounter.h>
#include <utUnitTestJunit.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace
{
char const description[] = "Check whether an engine honours the contract of axm.";

char const footer[] =
  R"(Examples:
  axm conform
  axm conform --service ./libmy_engine.so --junit report.xml axmNodeUtest axmElementUtest

Without --service the built-in engine is checked. LIBRARY exports the function
axm_register_engine, which registers its factory under "XMLService" (axmEngine.h).
The checks run in a folder of their own, which is gone afterwards. Each failed check
is shown with its expression and description and, where texts or numbers were compared,
with what was expected and what came.

The exit code is 0 only if nothing failed, 1 if something did or the engine cannot be
loaded, 2 for wrong usage.)";

using Factory = std::shared_ptr<axmDocumentFactory>;

struct CheckClass
{
  char const* name;
  void (*run)(utUnitTest* tester, Factory const& factory);
};

template <class Suite>
void run_with_owner(utUnitTest* tester, Factory const& factory)
{
  Suite(tester).run_tests(factory);
}

template <class Suite>
void run_with_reference(utUnitTest* tester, Factory const& factory)
{
  Suite(tester).run_tests(*factory);
}

CheckClass const check_classes[] = {
  {"axmDocumentFactoryUtest", run_with_owner<axmDocumentFactoryUtest>},
  {"axmValidationUtest", run_with_reference<axmValidationUtest>},
  {"axmNodeUtest", run_with_reference<axmNodeUtest>},
  {"axmElementUtest", run_with_reference<axmElementUtest>},
  {"axmDocumentUtest", run_with_reference<axmDocumentUtest>},
  {"axmNodeListUtest", run_with_reference<axmNodeListUtest>},
  {"axmNamedNodeMapUtest", run_with_reference<axmNamedNodeMapUtest>},
  {"axmTextNodeUtest", run_with_reference<axmTextNodeUtest>},
  {"axmCommentNodeUtest", run_with_reference<axmCommentNodeUtest>},
  {"axmContractUtest", run_with_owner<axmContractUtest>},
};

struct Request
{
  std::string service;
  std::string junit;
  std::vector<std::string> classes;
};

std::vector<std::string> names_of_classes()
{
  std::vector<std::string> names;
  for (CheckClass const& check_class : check_classes)
    names.emplace_back(check_class.name);
  return names;
}

struct FileCloser
{
  void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

void lay_out_data(ScratchFolder const& scratch)
{
  std::filesystem::create_directory(scratch.path() / "data");
  axmUtestUtils::write_data(apPath("../data/in_memory_test_schema.xsd"), in_memory_test_schema);
}

void run_classes(std::vector<std::string> const& wanted, utUnitTest* tester, Factory const& factory)
{
  for (CheckClass const& check_class : check_classes)
    if (wanted.empty() || std::find(wanted.begin(), wanted.end(), check_class.name) != wanted.end())
      check_class.run(tester, factory);
}

int conform(Request const& request)
{
  std::string error = "the program was built without an engine: name one with --service";
  Factory const factory = request.service.empty() ? built_in_engine() : EngineLibrary::load(request.service, error);
  if (factory == nullptr)
    return complain(request.service.empty() ? "conform" : request.service, error, exit_bad_input);
  // Opened before the program goes to work elsewhere: the name may be relative.
  File const junit_file(
    request.junit.empty() ? nullptr : apPath(request.junit.c_str()).file_open(apPath::write_mode()));
  if (!request.junit.empty() && junit_file == nullptr)
    return complain(request.junit, "the file cannot be written", exit_bad_input);

  ConformListener listener;
  utUnitTestCounter counter;
  utUnitTest tester;
  tester.add_listener(listener);
  tester.add_listener(counter);
  std::optional<utUnitTestJunit> junit;
  if (junit_file != nullptr)
    tester.add_listener(junit.emplace(junit_file.get()));
  utUnitTest::set_tester(&tester);
  {
    ScratchFolder const scratch;
    lay_out_data(scratch);
    run_classes(request.classes, &tester, factory);
  }
  tester.finish();
  utUnitTest::set_tester(nullptr);
  if (junit_file != nullptr && std::ferror(junit_file.get()) != 0)
    return complain(request.junit, "the file cannot be written", exit_bad_input);
  return counter.total().failed == 0 ? exit_good : exit_bad_input;
}
}

void add_conform(CLI::App& app, int& exit_code)
{
  auto const request = std::make_shared<Request>();
  CLI::App* const verb = app.add_subcommand("conform", description);
  verb->footer(footer);
  verb->add_option("--service", request->service, "Library with the engine to check")->type_name("LIBRARY");
  verb->add_option("--junit", request->junit, "Write the checks as JUnit XML too")->type_name("FILE");
  verb->add_option("CLASS", request->classes, "Classes of checks to run; all by default")
    ->check(CLI::IsMember(names_of_classes()));
  verb->callback([request, &exit_code] { exit_code = conform(*request); });
}
