#include <utAssert.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

namespace
{
class Recorder : public utAssertListener
{
public:
  void assertion_failed(char const* expression, char const* file, int line) override
  {
    reports.push_back(std::string(file) + ":" + std::to_string(line) + ":" + expression);
    if (line == 1)
      ut_report_assertion("inner", "nested.cpp", 2);
  }

  std::vector<std::string> reports;
};

class InCharge
{
public:
  explicit InCharge(utAssertListener& listener) : replaced(ut_set_assert_listener(&listener)) {}
  ~InCharge() { ut_set_assert_listener(replaced); }
  InCharge(InCharge const&) = delete;
  InCharge& operator=(InCharge const&) = delete;

private:
  utAssertListener* replaced;
};
}

TEST(utAssert, writes_to_standard_error_and_goes_on)
{
  testing::internal::CaptureStderr();
  ut_report_assertion("a < b", "file.cpp", 7);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "file.cpp:7: assertion failed: a < b\n");
}

TEST(utAssert, writes_the_first_reports_of_a_place_and_then_their_number)
{
  testing::internal::CaptureStderr();
  for (int report = 0; report < 100000; ++report)
    ut_report_assertion("moved", "repeated.cpp", 1);
  ut_report_assertion("moved", "repeated.cpp", 2);
  ut_report_assertion("moved", "other.cpp", 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "repeated.cpp:1: assertion failed: moved\n"
                                                    "repeated.cpp:1: assertion failed: moved\n"
                                                    "repeated.cpp:1: assertion failed: moved\n"
                                                    "repeated.cpp:1: assertion failed 10 times: moved\n"
                                                    "repeated.cpp:1: assertion failed 100 times: moved\n"
                                                    "repeated.cpp:1: assertion failed 1000 times: moved\n"
                                                    "repeated.cpp:1: assertion failed 10000 times: moved\n"
                                                    "repeated.cpp:1: assertion failed 100000 times: moved\n"
                                                    "repeated.cpp:2: assertion failed: moved\n"
                                                    "other.cpp:1: assertion failed: moved\n");
}

TEST(utAssert, writes_of_a_place_that_is_new_after_very_many_others)
{
  testing::internal::CaptureStderr();
  for (int line = 0; line < 1000; ++line)
    ut_report_assertion("here", "many.cpp", line);
  std::string const written = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 1000);
}

TEST(utAssert, tells_the_listener_in_charge)
{
  Recorder recorder;
  InCharge const in_charge(recorder);
  testing::internal::CaptureStderr();
  ut_report_assertion("a < b", "file.cpp", 7);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(recorder.reports, (std::vector<std::string>{"file.cpp:7:a < b"}));
}

TEST(utAssert, setting_a_listener_hands_back_the_replaced_one)
{
  Recorder first;
  Recorder second;
  EXPECT_EQ(ut_set_assert_listener(&first), nullptr);
  EXPECT_EQ(ut_set_assert_listener(&second), &first);
  EXPECT_EQ(ut_set_assert_listener(nullptr), &second);
  testing::internal::CaptureStderr();
  ut_report_assertion("again", "file.cpp", 8);
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(first.reports.empty());
  EXPECT_TRUE(second.reports.empty());
}

TEST(utAssert, a_listener_may_report)
{
  Recorder recorder;
  InCharge const in_charge(recorder);
  ut_report_assertion("outer", "file.cpp", 1);
  EXPECT_EQ(recorder.reports, (std::vector<std::string>{"file.cpp:1:outer", "nested.cpp:2:inner"}));
}

TEST(utAssert, reports_of_several_threads_come_one_by_one)
{
  Recorder recorder;
  InCharge const in_charge(recorder);
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread)
    threads.emplace_back(
      []
      {
        for (int report = 0; report < 100; ++report)
          ut_report_assertion("x", "file.cpp", 3);
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(recorder.reports.size(), 400U);
}
