#include <utAssert.h>

#include <gtest/gtest.h>

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
