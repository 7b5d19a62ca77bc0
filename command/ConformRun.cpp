#include "ConformRun.h"

#include "ChildProcess.h"
#include "CommaLocale.h"
#include "ConformanceData.h"
#include "Interruption.h"
#include "ScratchFolder.h"

#include <apPath.h>
#include <axmUtestUtils.h>
#include <utUnitTest.h>

#include <algorithm>
#include <utility>

using std::chrono::milliseconds;

namespace
{
void lay_out_data(ScratchFolder const& scratch)
{
  std::filesystem::create_directory(scratch.path() / "data");
  axmUtestUtils::write_data(apPath("../data/in_memory_test_schema.xsd"), in_memory_test_schema);
  comma_locale::provide(scratch.path() / "locales");
}

std::string in_seconds(milliseconds time)
{
  return std::to_string(time.count() / 1000) + " seconds";
}
}

ConformRun::ConformRun(std::vector<std::string> given, milliseconds given_limit, utUnitTest& given_tester)
  : arguments(std::move(given)),
    end_limit(given_limit),
    group_limit(given_limit),
    tester(given_tester)
{
}

bool ConformRun::run()
{
  Outcome outcome = Outcome::go_on;
  while (outcome == Outcome::go_on)
    outcome = run_process();
  return no_engine.empty();
}

ConformRun::Outcome ConformRun::run_process()
{
  // Each process begins as the first one did.
  ScratchFolder const scratch;
  lay_out_data(scratch);
  std::vector<std::string> with_place = arguments;
  with_place.insert(with_place.end(), {"--skip", std::to_string(begun), "--pipe"});
  begun_here = 0;
  auto const process = ChildProcess::start(with_place);
  if (process == nullptr)
  {
    fail("no process can be started");
    return Outcome::give_up;
  }
  return listen(*process);
}

ConformRun::Outcome ConformRun::listen(ChildProcess& process)
{
  ConformRecordReader reader;
  grant(group_limit);
  while (true)
  {
    auto const left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now());
    std::string bytes;
    ChildProcess::Got const got = process.read(bytes, std::max(left, milliseconds(0)));
    reader.add(bytes);
    ConformRecord record;
    while (!(fail_fast && has_failed) && reader.next(record))
      take(record);
    // With it ends the process.
    if (Interruption::is_asked() || (fail_fast && has_failed))
      return Outcome::give_up;
    ran_out_of_time = left.count() <= 0 && got != ChildProcess::Got::end;
    if (got == ChildProcess::Got::end || ran_out_of_time || reader.is_broken())
      return judge(process);
  }
}

ConformRun::Outcome ConformRun::judge(ChildProcess& process)
{
  if (!no_engine.empty())
  {
    fail("the engine cannot be loaded: " + no_engine);
    return Outcome::give_up;
  }
  if (ran_out_of_time)
  {
    process.kill();
    fail("the group took more than " + in_seconds(granted));
    group_limit = std::min(group_limit, std::max(group_limit / 10, milliseconds(1000)));
  }
  else
  {
    ChildProcess::End const end = process.wait(end_limit);
    if (is_finished && end.well)
      return Outcome::done;
    fail("the process " + end.how);
  }
  if (is_finished || fail_fast)
    return Outcome::done;
  return begun_here > 0 ? Outcome::go_on : Outcome::give_up;
}

void ConformRun::grant(milliseconds time)
{
  granted = time;
  deadline = Clock::now() + time;
}

void ConformRun::take(ConformRecord const& record)
{
  std::vector<std::string> const& texts = record.texts;
  switch (record.kind)
  {
  case ConformRecord::begins:
    grant(group_limit);
    ++begun;
    ++begun_here;
    group = texts.empty() ? "" : texts[0];
    step.clear();
    break;
  case ConformRecord::ended:
    grant(group_limit);
    break;
  case ConformRecord::reported:
    take_report(texts);
    break;
  case ConformRecord::printed:
    if (!texts.empty())
      tester.printf("%s", texts[0].c_str());
    break;
  case ConformRecord::no_engine:
    no_engine = texts.empty() ? "it says nothing" : texts[0];
    break;
  case ConformRecord::finished:
    is_finished = true;
    grant(end_limit);
    break;
  }
}

void ConformRun::take_report(std::vector<std::string> const& texts)
{
  if (texts.size() != 6)
    return;
  step = texts[4];
  has_failed = has_failed || texts[0] != "1";
  int const line = std::atoi(texts[3].c_str());
  tester.utest_handler(
    texts[0] == "1" ? 1 : 0, texts[1].c_str(), texts[2].c_str(), line, texts[4].c_str(), texts[5].c_str());
}

void ConformRun::fail(std::string const& description)
{
  std::string const place = step.empty() ? ", at its beginning" : ", after the check \"" + step + "\"";
  tester.utest_handler(
    0, "the group runs to its end", "command/ConformRun", __LINE__, (description + place).c_str(), group.c_str());
}
