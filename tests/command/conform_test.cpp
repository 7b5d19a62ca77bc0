// The verb conform, run as a user runs it.

#include "Program.h"

#include <axmDocumentFactory.h>
#include <axmNodeList.h>
#include <axsRegister.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#if !defined(_WIN32)
#  include <unistd.h>
#endif

namespace
{
// With as few random operations as a test can afford, and, unless the test is about the limit, with time for builds that count
// what they run.
ProgramRun conform(std::vector<std::string> arguments)
{
  if (std::find(arguments.begin(), arguments.end(), "--time-limit") == arguments.end())
    arguments.insert(arguments.begin(), {"--time-limit", "600"});
  arguments.insert(arguments.begin(), {"conform", "--rounds", "20"});
  return run_axm(testing::UnitTest::GetInstance()->current_test_info()->name(), arguments);
}

bool holds(std::string const& text, std::string const& wanted)
{
  return text.find(wanted) != std::string::npos;
}

std::string last_line(std::string const& text)
{
  std::size_t const end = text.find_last_not_of("\r\n");
  std::size_t const start = text.rfind('\n', end);
  return end == std::string::npos ? "" : text.substr(start + 1, end - start);
}

std::shared_ptr<axmDocument> loaded(std::string const& file)
{
  axs_register();
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmParseError error;
  return factory->loadDocument(apPath(file.c_str()), axmLoadOptions(), error);
}

class GoneAtTheEnd
{
public:
  explicit GoneAtTheEnd(std::string const& given) : name(given) {}
  GoneAtTheEnd(GoneAtTheEnd const&) = delete;
  GoneAtTheEnd& operator=(GoneAtTheEnd const&) = delete;
  ~GoneAtTheEnd() { apPath(name.c_str()).delete_file(); }

  std::string const name;
};
}

TEST(conform, the_built_in_engine_passes)
{
  ProgramRun const run = conform({});
  EXPECT_EQ(run.exit_code, 0) << run.out << run.err;
  EXPECT_FALSE(holds(run.out, "FAILED"));
  EXPECT_TRUE(holds(last_line(run.out), " passed, 0 failed")) << run.out;
  EXPECT_TRUE(holds(run.out, "axmContractUtest: "));
  EXPECT_EQ(run.err, "");
}

TEST(conform, only_the_classes_that_are_named_are_run)
{
  ProgramRun const run = conform({"axmNodeUtest", "axmTextNodeUtest"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(last_line(run.out), "48 passed, 0 failed");
  EXPECT_TRUE(holds(run.out, "axmNodeUtest: 43 passed, 0 failed"));
  EXPECT_TRUE(holds(run.out, "axmTextNodeUtest: 5 passed, 0 failed"));
  EXPECT_FALSE(holds(run.out, "axmElementUtest"));
}

TEST(conform, wrong_usage)
{
  EXPECT_EQ(conform({"axmNoSuchUtest"}).exit_code, 2);
  EXPECT_EQ(conform({"--no-such-option"}).exit_code, 2);
  EXPECT_EQ(conform({"--service"}).exit_code, 2);
  EXPECT_EQ(conform({"--help"}).exit_code, 0);
}

TEST(conform, a_library_that_cannot_be_loaded)
{
  ProgramRun const run = conform({"--service", "./no_such_library.so"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_TRUE(holds(run.err, "axm: ./no_such_library.so: ")) << run.err;
}

TEST(conform, a_report_that_cannot_be_written)
{
  ProgramRun const run = conform({"axmTextNodeUtest", "--junit", "no/such/folder/report.xml"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_TRUE(holds(run.err, "axm: no/such/folder/report.xml: ")) << run.err;
}

TEST(conform, the_report_is_a_document)
{
  GoneAtTheEnd const report("conform \xC3\xA4 report.xml");
  ProgramRun const run = conform({"axmNodeUtest", "axmTextNodeUtest", "--junit", report.name});
  EXPECT_EQ(run.exit_code, 0) << run.err;
  auto const document = loaded(report.name);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->getDocumentElement()->getNodeName(), APSTRING("testsuites"));
  EXPECT_EQ(document->getElementsByTagName(APSTRING("testsuite"))->length(), 2);
  EXPECT_EQ(document->getElementsByTagName(APSTRING("testcase"))->length(), 48);
  EXPECT_EQ(document->getElementsByTagName(APSTRING("failure"))->length(), 0);
}

#if !defined(_WIN32)
TEST(conform, nothing_is_left_behind)
{
  namespace fs = std::filesystem;
  fs::path const folder = fs::temp_directory_path() / fs::u8path("axm conform \xD1\x84 test");
  fs::create_directory(folder);
  setenv("TMPDIR", folder.c_str(), 1);
  EXPECT_EQ(conform({}).exit_code, 0);
  unsetenv("TMPDIR");
  EXPECT_TRUE(fs::is_empty(folder));
  fs::remove_all(folder);
}
#endif

#if defined(AXM_LIBRARY)
TEST(conform, a_library_without_an_engine)
{
  ProgramRun const run = conform({"--service", AXM_LIBRARY});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_TRUE(holds(run.err, "the library does not export axm_register_engine")) << run.err;
}
#endif

#if defined(AXM_SMALLEST_ENGINE)
// It makes and loads no documents: what matters is that it is reached.
TEST(conform, an_engine_in_a_folder_of_any_name_is_checked)
{
  namespace fs = std::filesystem;
  fs::path const folder = fs::u8path("conform \xC3\xA4 \xD1\x84 engine");
  fs::remove_all(folder);
  fs::create_directory(folder);
  fs::path const engine = folder / fs::u8path(AXM_SMALLEST_ENGINE).filename();
  fs::copy_file(fs::u8path(AXM_SMALLEST_ENGINE), engine);
  ProgramRun const run = conform({"--service", engine.u8string(), "axmTextNodeUtest"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(last_line(run.out), "0 passed, 5 failed") << run.out;
  fs::remove_all(folder);
}
#endif

#if defined(AXM_MISBEHAVING_ENGINE)
namespace
{
void set_misbehaviour(char const* how)
{
#  if defined(_WIN32)
  _putenv_s("AXM_MISBEHAVIOUR", how);
#  else
  setenv("AXM_MISBEHAVIOUR", how, 1);
#  endif
}

// That an engine which misbehaves fails, and that its report is whole: the group in which it happens fails with a
// description that holds `told`, all others pass.
void expect_told(char const* how, std::string const& group, std::string const& told, char const* seconds = "60")
{
  set_misbehaviour(how);
  GoneAtTheEnd const report("conform misbehaving report.xml");
  ProgramRun const run =
    conform({"--service", AXM_MISBEHAVING_ENGINE, "--time-limit", seconds, "--junit", report.name, "axmNodeUtest"});
  EXPECT_EQ(run.exit_code, 1) << run.err;
  EXPECT_TRUE(holds(run.out, "FAILED " + group + ": ")) << run.out;
  EXPECT_TRUE(holds(run.out, told)) << run.out;
  EXPECT_TRUE(holds(last_line(run.out), " passed, 1 failed")) << run.out;
  EXPECT_TRUE(holds(run.out, "axmNodeUtest: ")) << run.out;
  auto const document = loaded(report.name);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->getElementsByTagName(APSTRING("failure"))->length(), 1);
  EXPECT_NE(document->getDocumentElement()->selectSingleNode(
              APSTRING("//testcase[@classname='axmNodeUtest::test_remove_child'][last()]")),
    nullptr);
  EXPECT_EQ(document->getDocumentElement()
              ->selectNodes(APSTRING("//testcase[@classname='axmNodeUtest::test_remove_child']"))
              ->length(),
    6);
}

char const in_group[] = "axmNodeUtest::test_set_text";
}

TEST(conform, an_engine_that_crashes_fails_where_it_does)
{
  expect_told("crash", in_group, "the process ");
}

TEST(conform, an_engine_that_aborts_fails_where_it_does)
{
  expect_told("abort", in_group, "the process ");
}

TEST(conform, an_engine_that_exits_fails_where_it_does)
{
  expect_told("exit", in_group, "the process ended with exit code 0, at its beginning");
}

TEST(conform, an_engine_that_exits_at_once_fails_where_it_does)
{
  expect_told("quick exit", in_group, "the process ended with exit code 0, at its beginning");
}

TEST(conform, an_engine_that_runs_out_of_stack_fails_where_it_does)
{
  expect_told("stack overflow", in_group, "the process ");
}

TEST(conform, an_engine_that_hangs_fails_where_it_does)
{
  expect_told("hang", in_group, "the group took more than 5 seconds", "5");
}

TEST(conform, after_a_group_that_hung_the_process_still_has_the_whole_time_to_end)
{
  expect_told("hang and slow end", in_group, "the group took more than 8 seconds", "8");
}

TEST(conform, an_engine_that_throws_fails_where_it_does)
{
  expect_told("exception", in_group, "thrown by the engine");
}

TEST(conform, an_engine_that_closes_standard_output_fails_where_it_does)
{
  expect_told("closed output", in_group, "the engine leaves standard output to the program");
}

#  if defined(__linux__)
// Whether a heap notices is its own business; the one of Wine does not.
TEST(conform, an_engine_that_breaks_the_heap_fails_where_it_does)
{
  expect_told("broken heap", in_group, "the process ");
}

TEST(conform, an_engine_that_leaves_a_thread_running_fails)
{
  expect_told("thread", "axm_register_engine", "no thread of the engine runs");
}

TEST(conform, an_engine_that_crashes_leaves_no_folder_behind)
{
  namespace fs = std::filesystem;
  fs::path const folder = fs::temp_directory_path() / "axm conform crash test";
  fs::create_directory(folder);
  setenv("TMPDIR", folder.c_str(), 1);
  set_misbehaviour("crash");
  EXPECT_EQ(conform({"--service", AXM_MISBEHAVING_ENGINE, "axmNodeUtest"}).exit_code, 1);
  unsetenv("TMPDIR");
  EXPECT_TRUE(fs::is_empty(folder));
  fs::remove_all(folder);
}

TEST(conform, a_run_that_is_interrupted_leaves_nothing_behind)
{
  namespace fs = std::filesystem;
  for (int const signal : {SIGINT, SIGTERM, SIGHUP})
  {
    fs::path const folder = fs::temp_directory_path() / "axm conform interruption test";
    fs::remove_all(folder);
    fs::create_directory(folder);
    setenv("TMPDIR", folder.c_str(), 1);
    set_misbehaviour("hang");
    pid_t const process = fork();
    if (process == 0)
    {
      execl(AXM_PROGRAM, "axm", "conform", "--service", AXM_MISBEHAVING_ENGINE, "axmNodeUtest", nullptr);
      std::_Exit(1);
    }
    unsetenv("TMPDIR");
    while (fs::is_empty(folder))
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    kill(process, signal);
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
    EXPECT_TRUE(fs::is_empty(folder));
    fs::remove_all(folder);
  }
}
#  endif

TEST(conform, a_run_that_is_to_fail_fast_ends_with_the_first_failure)
{
  set_misbehaviour("exception");
  ProgramRun const run = conform({"--service", AXM_MISBEHAVING_ENGINE, "--fail-fast", "axmNodeUtest"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_TRUE(holds(run.out, std::string("FAILED ") + in_group)) << run.out;
  EXPECT_TRUE(holds(last_line(run.out), " passed, 1 failed")) << run.out;
  ProgramRun const whole = conform({"--service", AXM_MISBEHAVING_ENGINE, "axmNodeUtest"});
  EXPECT_NE(last_line(run.out), last_line(whole.out));
}
#endif

#if defined(__linux__)
TEST(conform, a_report_that_does_not_fit_is_a_failure)
{
  EXPECT_EQ(conform({"axmTextNodeUtest", "--junit", "/dev/full"}).exit_code, 1);
  std::string const command = std::string("\"") + AXM_PROGRAM + "\" conform axmTextNodeUtest > /dev/full 2> /dev/null";
  int const status = std::system(command.c_str());
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1);
}
#endif

#if defined(AXM_SECOND_ENGINE)
TEST(conform, an_engine_of_another_make_gets_an_honest_list)
{
  GoneAtTheEnd const report("conform second report.xml");
  ProgramRun const run = conform({"--service", AXM_SECOND_ENGINE, "--junit", report.name});
  EXPECT_EQ(run.exit_code, 1) << run.err;
  EXPECT_EQ(last_line(run.out), "1978 passed, 45 failed") << run.out;
  std::vector<std::string> failed;
  auto const cases = loaded(report.name)->getDocumentElement()->selectNodes(APSTRING("//failure/.."));
  for (auto one = cases->next_node(); one != nullptr; one = cases->next_node())
  {
    std::string const group = one->getAttribute(APSTRING("classname")).to_utf8().c_str();
    if (std::find(failed.begin(), failed.end(), group) == failed.end())
      failed.push_back(group);
  }
  // What its library takes, refuses or computes otherwise; docs/writing-an-engine.md says what that is. One failure more,
  // of axmSearchUtest::test_paths, shows with more rounds.
  EXPECT_EQ(
    failed, (std::vector<std::string>{"axmValidationUtest::test_multiple_schemas", "axmLoadUtest::test_encodings",
              "axmLoadUtest::test_schema_sets", "axmXmlUtest::test_documents", "axmXmlUtest::test_constraints",
              "axmXmlUtest::test_element_declarations", "axmXmlUtest::test_attribute_declarations",
              "axmXmlUtest::test_tokens", "axmXmlUtest::test_forms", "axmSchemaUtest::test_types",
              "axmSchemaUtest::test_facets", "axmSchemaUtest::test_contents", "axmSchemaUtest::test_attributes",
              "axmSchemaUtest::test_derivation", "axmSchemaUtest::test_constraints", "axmSchemaUtest::test_rules",
              "axmSchemaUtest::test_wrong_schemas", "axmXPathUtest::test_expressions", "axmXPathUtest::test_errors"}));
}

TEST(conform, a_failure_is_shown_with_what_was_expected_and_what_came)
{
  ProgramRun const run = conform({"--service", AXM_SECOND_ENGINE, "axmXPathUtest"});
  EXPECT_TRUE(holds(run.out, "FAILED axmXPathUtest::test_expressions: functions\n"
                             "  every question has its answer\n"
                             "  at source/utest/axmXPathUtest:"))
    << run.out;
  EXPECT_TRUE(holds(run.out, "  Expected \"0.30000000000000004\"\n  Actual   \"something else\"\n")) << run.out;
}
#endif
