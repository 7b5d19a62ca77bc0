#include "utUnitTest.h"

#include "utAssert.h"
#include "utUnitTestConsole.h"

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace
{
std::string formatted(char const* format, std::va_list arguments)
{
  std::va_list again;
  va_copy(again, arguments);
  int const length = std::vsnprintf(nullptr, 0, format, again);
  va_end(again);
  // A text that the C library cannot convert is better shown by its pattern than not at all.
  if (length < 0)
    return format;
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::vsnprintf(text.data(), text.size(), format, arguments);
  text.pop_back();
  return text;
}

// The descriptions that were built and not reported yet.
class Descriptions
{
public:
  // Never destroyed: what is built for good may be read while static objects go away.
  static Descriptions& instance()
  {
    static Descriptions* const made = new Descriptions;
    return *made;
  }

  char const* keep(std::string text)
  {
    auto kept = std::make_unique<std::string>(std::move(text));
    char const* const key = kept->c_str();
    std::lock_guard<std::mutex> const lock(guard);
    texts.emplace(key, std::move(kept));
    return key;
  }

  void drop(char const* text)
  {
    std::lock_guard<std::mutex> const lock(guard);
    texts.erase(text);
  }

private:
  std::mutex guard;
  std::unordered_map<char const*, std::unique_ptr<std::string>> texts;
};

class AssertCounter : public utAssertListener
{
public:
  void assertion_failed(char const*, char const*, int) override { ++count; }

  std::atomic<int> count{0};
};

class DefaultTester
{
public:
  DefaultTester() : console(stdout) { tester.add_listener(console); }

  utUnitTestConsole console;
  utUnitTest tester;
};

std::atomic<utUnitTest*> tester_in_charge{nullptr};
}

struct utUnitTest::State
{
  // Recursive, for a listener may print.
  std::recursive_mutex guard;
  std::vector<utUnitTestListener*> listeners;
  std::string last_function;

  AssertCounter assertions;
  bool expecting = false;
  int expected = 0;
  utAssertListener* displaced = nullptr;

  void stop_expecting()
  {
    if (expecting)
      ut_set_assert_listener(displaced);
    expecting = false;
  }
};

utUnitTest::utUnitTest() : state(std::make_unique<State>()) {}

utUnitTest::~utUnitTest()
{
  state->stop_expecting();
}

utUnitTest* utUnitTest::get_tester()
{
  static DefaultTester* const made = new DefaultTester;
  utUnitTest* const given = tester_in_charge;
  return given != nullptr ? given : &made->tester;
}

utUnitTest* utUnitTest::set_tester(utUnitTest* tester)
{
  return tester_in_charge.exchange(tester);
}

void utUnitTest::add_listener(utUnitTestListener& listener)
{
  std::lock_guard<std::recursive_mutex> const lock(state->guard);
  state->listeners.push_back(&listener);
}

void utUnitTest::remove_listener(utUnitTestListener& listener)
{
  std::lock_guard<std::recursive_mutex> const lock(state->guard);
  auto& listeners = state->listeners;
  listeners.erase(std::remove(listeners.begin(), listeners.end(), &listener), listeners.end());
}

void utUnitTest::utest_handler(
  int ok, char const* expression, char const* file, int line, char const* description, char const* function)
{
  {
    std::lock_guard<std::recursive_mutex> const lock(state->guard);
    state->last_function = function;
    utUnitTestReport const report = {ok != 0, expression, file, line, description, function};
    for (utUnitTestListener* const listener : state->listeners)
      listener->reported(report);
  }
  Descriptions::instance().drop(description);
}

char const* utUnitTest::build_varargs(char const* format, ...)
{
  std::va_list arguments;
  va_start(arguments, format);
  std::string text = formatted(format, arguments);
  va_end(arguments);
  return Descriptions::instance().keep(std::move(text));
}

void utUnitTest::printf(char const* format, ...)
{
  std::va_list arguments;
  va_start(arguments, format);
  std::string const text = formatted(format, arguments);
  va_end(arguments);
  std::lock_guard<std::recursive_mutex> const lock(state->guard);
  for (utUnitTestListener* const listener : state->listeners)
    listener->printed(text.c_str());
}

void utUnitTest::expect_assert_min(int n)
{
  std::lock_guard<std::recursive_mutex> const lock(state->guard);
  state->stop_expecting();
  state->assertions.count = 0;
  state->expected = n;
  state->displaced = ut_set_assert_listener(&state->assertions);
  state->expecting = true;
}

void utUnitTest::check_assert()
{
  std::lock_guard<std::recursive_mutex> const lock(state->guard);
  bool const was_expecting = state->expecting;
  state->stop_expecting();
  int const came = state->assertions.count;
  if (!was_expecting || came >= state->expected)
    return;
  std::string const function = state->last_function;
  utest_handler(0, "assertions >= expected", "utilities/utUnitTest", __LINE__,
    build_varargs("expected at least %d assertion reports, %d came", state->expected, came), function.c_str());
}

void utUnitTest::finish()
{
  std::lock_guard<std::recursive_mutex> const lock(state->guard);
  for (utUnitTestListener* const listener : state->listeners)
    listener->finished();
}
