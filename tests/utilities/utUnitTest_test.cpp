#include <utUnitTest.h>

#include <utAssert.h>
#include <utUnitTestConsole.h>
#include <utUnitTestCounter.h>
#include <utUnitTestJunit.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace
{
using Lines = std::vector<std::string>;

class Recorder : public utUnitTestListener
{
public:
  void reported(utUnitTestReport const& report) override
  {
    lines.push_back(std::string(report.passed ? "pass " : "fail ") + report.expression + "|" + report.file + ":" +
                    std::to_string(report.line) + "|" + report.description + "|" + report.function);
  }
  void printed(char const* text) override { lines.push_back(std::string("print ") + text); }
  void finished() override { lines.push_back("end"); }

  Lines lines;
};

void report(utUnitTest& tester, bool ok, char const* description, char const* function)
{
  tester.utest_handler(ok ? 1 : 0, "a == b", "suite", 3, description, function);
}

// What a listener that writes to a stream has written.
template <class Listener, class Run>
std::string written_by(Run run)
{
  std::FILE* const file = std::tmpfile();
  Listener listener(file);
  utUnitTest tester;
  tester.add_listener(listener);
  run(tester);
  tester.finish();
  std::rewind(file);
  std::string text;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
    text += static_cast<char>(c);
  std::fclose(file);
  return text;
}
}

TEST(utUnitTest, hands_every_text_on_to_each_listener)
{
  Recorder first;
  Recorder second;
  utUnitTest tester;
  tester.add_listener(first);
  tester.add_listener(second);
  tester.utest_handler(1, "x", "file", 7, "what", "C::g");
  tester.utest_handler(0, "y", "file", 8, "why", "C::g");
  tester.utest_handler(-2, "z", "file", 9, "any number but 0", "C::g");
  tester.printf("%s is %d", "two", 2);
  tester.finish();
  EXPECT_EQ(first.lines, (Lines{"pass x|file:7|what|C::g", "fail y|file:8|why|C::g",
                           "pass z|file:9|any number but 0|C::g", "print two is 2", "end"}));
  EXPECT_EQ(second.lines, first.lines);
}

TEST(utUnitTest, a_removed_listener_is_not_told)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  tester.remove_listener(recorder);
  tester.remove_listener(recorder);
  report(tester, true, "", "C::g");
  EXPECT_TRUE(recorder.lines.empty());
}

TEST(utUnitTest, the_tester_in_charge_can_be_exchanged)
{
  utUnitTest* const from_the_start = utUnitTest::get_tester();
  ASSERT_NE(from_the_start, nullptr);
  utUnitTest own;
  EXPECT_EQ(utUnitTest::set_tester(&own), nullptr);
  EXPECT_EQ(utUnitTest::get_tester(), &own);
  EXPECT_EQ(utUnitTest::set_tester(nullptr), &own);
  EXPECT_EQ(utUnitTest::get_tester(), from_the_start);
}

TEST(utUnitTest, the_tester_from_the_start_writes_to_standard_output)
{
  testing::internal::CaptureStdout();
  utUnitTest::get_tester()->printf("hello");
  utUnitTest::get_tester()->finish();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "hello\n0 passed, 0 failed\n");
}

TEST(utUnitTest, descriptions_are_formatted)
{
  EXPECT_STREQ(utUnitTest::build_varargs("node %d of %s", 7, "root"), "node 7 of root");
  EXPECT_STREQ(utUnitTest::build_varargs("plain"), "plain");
  EXPECT_STREQ(utUnitTest::build_varargs("%s", ""), "");
  std::string const longest(100000, 'x');
  EXPECT_EQ(utUnitTest::build_varargs("%s", longest.c_str()), longest);
}

TEST(utUnitTest, descriptions_stay_valid_until_they_are_reported_under_nesting_too)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  Lines expected;
  std::vector<char const*> outer;
  for (int depth = 0; depth < 200; ++depth)
  {
    outer.push_back(utUnitTest::build_varargs("outer %d", depth));
    report(tester, true, utUnitTest::build_varargs("inner %d", depth), "C::g");
    expected.push_back("pass a == b|suite:3|inner " + std::to_string(depth) + "|C::g");
  }
  for (int depth = 200; depth-- > 0;)
  {
    report(tester, true, outer[static_cast<std::size_t>(depth)], "C::g");
    expected.push_back("pass a == b|suite:3|outer " + std::to_string(depth) + "|C::g");
  }
  EXPECT_EQ(recorder.lines, expected);
}

TEST(utUnitTest, a_description_may_be_reported_by_another_thread)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  char const* description = nullptr;
  std::thread([&] { description = utUnitTest::build_varargs("built %s", "elsewhere"); }).join();
  report(tester, true, description, "C::g");
  EXPECT_EQ(recorder.lines, (Lines{"pass a == b|suite:3|built elsewhere|C::g"}));
}

TEST(utUnitTest, several_threads_may_report_at_once)
{
  utUnitTestCounter counter;
  utUnitTest tester;
  tester.add_listener(counter);
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread)
    threads.emplace_back(
      [&tester, thread]
      {
        for (int check = 0; check < 250; ++check)
        {
          tester.printf("%d", check);
          report(tester, thread != 0, utUnitTest::build_varargs("%d", check), "C::g");
        }
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(counter.total().passed, 750);
  EXPECT_EQ(counter.total().failed, 250);
}

TEST(utUnitTest, awaited_assertions_are_swallowed_and_report_nothing)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  testing::internal::CaptureStderr();
  tester.expect_assert_min(2);
  for (int count = 0; count < 3; ++count)
    ut_report_assertion("awaited", "file", 1);
  tester.check_assert();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(recorder.lines.empty());
}

TEST(utUnitTest, assertions_that_do_not_come_fail_in_the_group_that_reported_last)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  report(tester, true, "before", "C::g");
  tester.expect_assert_min(2);
  ut_report_assertion("awaited", "file", 1);
  tester.check_assert();
  ASSERT_EQ(recorder.lines.size(), 2U);
  EXPECT_EQ(recorder.lines[1].substr(0, 42), "fail assertions >= expected|utilities/utUn");
  EXPECT_NE(recorder.lines[1].find("|expected at least 2 assertion reports, 1 came|C::g"), std::string::npos);
}

TEST(utUnitTest, nothing_is_awaited_after_the_check)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  tester.expect_assert_min(1);
  ut_report_assertion("awaited", "file", 1);
  tester.check_assert();
  tester.check_assert();
  EXPECT_TRUE(recorder.lines.empty());
  testing::internal::CaptureStderr();
  ut_report_assertion("later", "file", 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "file:1: assertion failed: later\n");
}

TEST(utUnitTest, a_second_expectation_starts_anew)
{
  Recorder recorder;
  utUnitTest tester;
  tester.add_listener(recorder);
  tester.expect_assert_min(1);
  ut_report_assertion("awaited", "file", 1);
  tester.expect_assert_min(1);
  tester.check_assert();
  EXPECT_EQ(recorder.lines.size(), 1U);
}

TEST(utUnitTest, a_tester_that_goes_stops_awaiting_assertions)
{
  {
    utUnitTest tester;
    tester.expect_assert_min(1);
  }
  testing::internal::CaptureStderr();
  ut_report_assertion("later", "file", 1);
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST(utUnitTestCounter, counts_for_each_class_and_group)
{
  utUnitTestCounter counter;
  utUnitTest tester;
  tester.add_listener(counter);
  report(tester, true, "", "A::one");
  report(tester, false, "", "A::two");
  report(tester, true, "", "B::one");
  report(tester, true, "", "A::one");
  EXPECT_EQ(counter.total().passed, 3);
  EXPECT_EQ(counter.total().failed, 1);
  EXPECT_EQ(counter.of("A").passed, 2);
  EXPECT_EQ(counter.of("A").failed, 1);
  EXPECT_EQ(counter.of("A::one").passed, 2);
  EXPECT_EQ(counter.of("A::one").failed, 0);
  EXPECT_EQ(counter.of("A::two").failed, 1);
  EXPECT_EQ(counter.of("B").passed, 1);
  EXPECT_EQ(counter.of("C").passed, 0);
  Lines names;
  for (int index = 0; index < counter.size(); ++index)
    names.push_back(counter.name(index));
  EXPECT_EQ(names, (Lines{"A", "A::one", "A::two", "B", "B::one"}));
}

TEST(utUnitTestCounter, counts_a_check_outside_of_a_class_once_and_no_text)
{
  utUnitTestCounter counter;
  utUnitTest tester;
  tester.add_listener(counter);
  tester.printf("text");
  report(tester, true, "", "main");
  tester.finish();
  EXPECT_EQ(counter.total().passed, 1);
  EXPECT_EQ(counter.of("main").passed, 1);
  EXPECT_EQ(counter.size(), 1);
}

TEST(utUnitTestConsole, writes_failures_counts_and_the_closing_line)
{
  std::string const text = written_by<utUnitTestConsole>(
    [](utUnitTest& tester)
    {
      tester.printf("Error was \"%s\"", "oh");
      report(tester, true, "good", "A::one");
      tester.printf("Expected \"%s\"\nActual   \"%s\"", "x", "y");
      report(tester, false, "bad", "A::two");
      report(tester, true, "fine", "B::one");
      tester.printf("last\n");
    });
  EXPECT_EQ(text, "Error was \"oh\"\n"
                  "FAILED A::two: bad\n"
                  "  a == b\n"
                  "  at suite:3\n"
                  "  Expected \"x\"\n"
                  "  Actual   \"y\"\n"
                  "last\n"
                  "A: 1 passed, 1 failed\n"
                  "  A::two: 1 failed\n"
                  "B: 1 passed, 0 failed\n"
                  "2 passed, 1 failed\n");
}

TEST(utUnitTestConsole, each_text_of_a_check_has_lines_of_its_own)
{
  std::string const text = written_by<utUnitTestConsole>(
    [](utUnitTest& tester)
    {
      tester.printf("one");
      tester.printf("two\n");
      tester.printf("three");
      report(tester, false, "bad", "A::two");
    });
  EXPECT_NE(text.find("  at suite:3\n  one\n  two\n  three\n"), std::string::npos) << text;
}

TEST(utUnitTestJunit, each_text_of_a_check_has_lines_of_its_own)
{
  std::string const text = written_by<utUnitTestJunit>(
    [](utUnitTest& tester)
    {
      tester.printf("one");
      tester.printf("two\n");
      tester.printf("three");
      report(tester, false, "bad", "A::two");
    });
  EXPECT_NE(text.find(">suite:3&#10;one&#10;two&#10;three</failure>"), std::string::npos) << text;
}

TEST(utUnitTestJunit, a_check_outside_of_a_class_is_a_suite_of_its_own)
{
  std::string const text =
    written_by<utUnitTestJunit>([](utUnitTest& tester) { report(tester, true, "fine", "main"); });
  EXPECT_NE(text.find("<testsuite name=\"main\" tests=\"1\""), std::string::npos) << text;
  EXPECT_NE(text.find("<testcase classname=\"main\" name=\"main: fine\"/>"), std::string::npos) << text;
}

TEST(utUnitTestJunit, writes_a_suite_for_each_class_and_a_case_for_each_check)
{
  std::string const text = written_by<utUnitTestJunit>(
    [](utUnitTest& tester)
    {
      tester.printf("belongs to the first");
      report(tester, true, "good", "A::one");
      report(tester, true, "fine", "B::one");
      tester.printf("Expected \"%s\"\n", "<&>");
      report(tester, false, "bad", "A::two");
    });
  EXPECT_EQ(text, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                  "<testsuites>\n"
                  "  <testsuite name=\"A\" tests=\"2\" failures=\"1\" errors=\"0\">\n"
                  "    <testcase classname=\"A::one\" name=\"one: good\"/>\n"
                  "    <testcase classname=\"A::two\" name=\"two: bad\">\n"
                  "      <failure message=\"a == b\">suite:3&#10;Expected &quot;&lt;&amp;&gt;&quot;&#10;</failure>\n"
                  "    </testcase>\n"
                  "  </testsuite>\n"
                  "  <testsuite name=\"B\" tests=\"1\" failures=\"0\" errors=\"0\">\n"
                  "    <testcase classname=\"B::one\" name=\"one: fine\"/>\n"
                  "  </testsuite>\n"
                  "</testsuites>\n");
}

TEST(utUnitTestJunit, what_xml_cannot_hold_is_replaced)
{
  auto const name_written_for = [](std::string const& description)
  {
    std::string const text = written_by<utUnitTestJunit>(
      [&description](utUnitTest& tester) { report(tester, true, description.c_str(), "A::g"); });
    std::size_t const start = text.find(" name=\"g: ") + 10;
    return text.substr(start, text.find('"', start) - start);
  };
  EXPECT_EQ(name_written_for("\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80"), "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80");
  EXPECT_EQ(name_written_for("tab\tline\nreturn\r"), "tab&#9;line&#10;return&#13;");
  std::string const replaced = "\xEF\xBF\xBD";
  EXPECT_EQ(name_written_for("a\x01z"), "a" + replaced + "z");
  EXPECT_EQ(name_written_for("a\xFFz"), "a" + replaced + "z");
  EXPECT_EQ(name_written_for("a\xE2\x82"), "a" + replaced + replaced);
  EXPECT_EQ(name_written_for("\xE0\x80\x80"), replaced + replaced + replaced);
  EXPECT_EQ(name_written_for("\xED\xA0\x80"), replaced + replaced + replaced);
  EXPECT_EQ(name_written_for("\xEF\xBF\xBF"), replaced + replaced + replaced);
}
