#include "Complaint.h"
#include "ConformClasses.h"
#include "ConformListener.h"
#include "ConformRun.h"
#include "Interruption.h"
#include "VerbOptions.h"

#include <apPath.h>
#include <utUnitTest.h>
#include <utUnitTestCounter.h>
#include <utUnitTestJunit.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
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
The engine runs in processes of its own, in folders of their own, which are gone
afterwards. If it ends one, in whatever way, or takes longer than the time limit, that is
a failed check of the group under way, and the checks go on with the next group. Each
failed check is shown with its expression and description and, where texts or numbers
were compared, with what was expected and what came. What the engine writes to standard
output goes to standard error.

The exit code is 0 only if nothing failed, 1 if something did, the engine cannot be
loaded or the report cannot be written, 2 for wrong usage.)";

struct Request
{
  std::string service;
  std::string junit;
  int time_limit = 60;
  bool fail_fast = false;
  ConformSelection selection;
};

struct FileCloser
{
  void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

// The run goes to work elsewhere, and a name may be relative; one that is no file is left for the system to find.
std::string whole_path(std::string const& name)
{
  std::error_code ignored;
  std::filesystem::path const path = std::filesystem::u8path(name);
  return std::filesystem::exists(path, ignored) ? std::filesystem::absolute(path).u8string() : name;
}

std::vector<std::string> worker_arguments(Request const& request)
{
  std::vector<std::string> arguments = {"conform-worker"};
  if (!request.service.empty())
    arguments.insert(arguments.end(), {"--service", whole_path(request.service)});
  arguments.insert(arguments.end(), {"--seed", std::to_string(request.selection.seed)});
  arguments.insert(arguments.end(), {"--rounds", std::to_string(request.selection.rounds)});
  for (std::string const& name : request.selection.classes)
    arguments.insert(arguments.end(), {"--class", name});
  return arguments;
}

int conform(Request const& request)
{
  Interruption const interruption;
  // Opened before the run goes to work elsewhere: the name may be relative.
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
  ConformRun run(worker_arguments(request), std::chrono::seconds(request.time_limit), tester);
  run.set_fail_fast(request.fail_fast);
  bool const had_engine = run.run();
  tester.finish();

  if (!had_engine)
    complain(request.service.empty() ? "conform" : request.service, run.error(), exit_bad_input);
  if (junit_file != nullptr && std::ferror(junit_file.get()) != 0)
    return complain(request.junit, "the file cannot be written", exit_bad_input);
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
    return complain("standard output", "the report cannot be written", exit_bad_input);
  return had_engine && counter.total().failed == 0 ? exit_good : exit_bad_input;
}
}

void add_conform(CLI::App& app, int& exit_code)
{
  auto const request = std::make_shared<Request>();
  VerbOptions verb(app, "conform", description, footer);
  verb.add("--service", request->service, "Library with the engine to check").value_name("LIBRARY");
  verb.add("--junit", request->junit, "Write the checks as JUnit XML too").value_name("FILE");
  verb.add("--time-limit", request->time_limit, "How long a group of checks may take; 60 by default")
    .value_name("SECONDS")
    .in_range(1, 86400);
  verb.add_flag("--fail-fast", request->fail_fast, "End at the first check that fails");
  verb.add("--seed", request->selection.seed, "Draw other random operations: the same for the same number")
    .value_name("N");
  verb.add("--rounds", request->selection.rounds, "How many sequences of them a group draws")
    .value_name("N")
    .in_range(0, 1000000000);
  verb.add("CLASS", request->selection.classes, "Classes of checks to run; all by default")
    .one_of(conform_class_names());
  verb.run([request, &exit_code] { exit_code = conform(*request); });
}
