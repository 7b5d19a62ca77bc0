// The side of the verb conform that meets the engine: a process which may end in any way at any time.
#include "VerbOptions.h"

#include "BuiltInEngine.h"
#include "ChildProcess.h"
#include "ConformClasses.h"
#include "ConformRecord.h"
#include "EngineLibrary.h"
#include "StandardOutput.h"
#include "Threads.h"
#include "Verb.h"

#include <axmUtestGroupListener.h>
#include <utUnitTest.h>

#if defined(_WIN32)
#  include <windows.h>
#endif

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

struct Request
{
  std::string service;
  int skip = 0;
  ConformSelection selection;
  std::string pipe;
};

// Tells the other side what happens.
class Teller : public utUnitTestListener, public axmUtestGroupListener
{
public:
  Teller(std::string const& pipe_name, int given_skip) : pipe(pipe_name), skip(given_skip) {}

  void reported(utUnitTestReport const& report) override
  {
    tell(ConformRecord::reported, {report.passed ? "1" : "0", report.expression, report.file,
                                    std::to_string(report.line), report.description, report.function});
  }
  void printed(char const* text) override { tell(ConformRecord::printed, {text}); }
  void finished() override { tell(ConformRecord::finished, {}); }

  bool begins(char const* name) override
  {
    if (skip > 0)
    {
      --skip;
      return false;
    }
    tell(ConformRecord::begins, {name});
    return true;
  }

  void ended(char const* name) override
  {
    if (!standard_output.is_open() && !told_of_output)
    {
      told_of_output = true;
      fail(name, "standard output is open", "the engine leaves standard output to the program");
    }
    tell(ConformRecord::ended, {name});
  }

  void fail(char const* group, char const* expression, char const* description)
  {
    reported({false, expression, "command/ConformWorker", 0, description, group});
  }

  void tell(ConformRecord::Kind kind, std::vector<std::string> const& texts)
  {
    // Nobody is left to run for.
    if (!pipe.write(conform_bytes({kind, texts})))
      std::_Exit(exit_bad_input);
  }

private:
  ParentPipe pipe;
  StandardOutput standard_output;
  bool told_of_output = false;
  int skip;
};

Factory engine_of(Request const& request, std::string& error)
{
  error = "the program was built without an engine: name one with --service";
  return request.service.empty() ? built_in_engine() : EngineLibrary::load(request.service, error);
}

void run_checks(Request const& request, Teller& teller, Factory const& factory)
{
  utUnitTest tester;
  tester.add_listener(teller);
  utUnitTest::set_tester(&tester);
  axmUtestGroupListener::set(&teller);
  run_conform_classes(request.selection, &tester, factory);
  axmUtestGroupListener::set(nullptr);
  utUnitTest::set_tester(nullptr);
}

int work(Request const& request)
{
#if defined(_WIN32)
  // A crash is told by the exit code, not in a window that waits for somebody.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
#endif
  Teller teller(request.pipe, request.skip);
  int const threads = Threads::count();
  std::string error;
  Factory factory = engine_of(request, error);
  if (factory == nullptr)
  {
    teller.tell(ConformRecord::no_engine, {error});
    return exit_good;
  }
  run_checks(request, teller, factory);
  factory.reset();
  utService::get_instance()->register_service(utServiceName(ut_lit("XMLService")), nullptr);
  if (!Threads::come_down_to(threads))
    teller.fail("axm_register_engine", "no thread of the engine runs",
      "once its factory and all that it made are released, an engine has no thread that runs");
  teller.finished();
  return exit_good;
}
}

void add_conform_worker(CLI::App& app, int& exit_code)
{
  auto const request = std::make_shared<Request>();
  VerbOptions verb(app, "conform-worker", "", "");
  verb.hide();
  verb.add("--service", request->service);
  verb.add("--skip", request->skip);
  verb.add("--class", request->selection.classes);
  verb.add("--seed", request->selection.seed);
  verb.add("--rounds", request->selection.rounds);
  verb.add("--pipe", request->pipe).required();
  verb.run([request, &exit_code] { exit_code = work(*request); });
}
