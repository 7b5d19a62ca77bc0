#pragma once

#include "utExport.h"
#include "utUnitTestListener.h"

#include <memory>

/// The runner that checks report to. It passes what it is told on to its listeners.
///
///     utUnitTestConsole console(stdout);
///     utUnitTest tester;
///     tester.add_listener(console);
///     utUnitTest::set_tester(&tester);
///     ... the checks ...
///     tester.finish();
///     utUnitTest::set_tester(nullptr);
///
/// Does not own its listeners. All operations are safe from several threads at once; listeners are called one at a time,
/// in the order in which they were added, and may themselves print. Operations throw std::bad_alloc when memory runs out.
class UT_API utUnitTest
{
public:
  /// A runner without listeners.
  utUnitTest();
  utUnitTest(utUnitTest const&) = delete;
  utUnitTest& operator=(utUnitTest const&) = delete;
  ~utUnitTest();

  /// The runner in charge; never null. From the start it is one that writes to standard output.
  static utUnitTest* get_tester();

  /// Puts `tester` in charge, null for the one that is so from the start. It must live until it is replaced. Returns the
  /// one that was put in charge before, null if none was.
  static utUnitTest* set_tester(utUnitTest* tester);

  /// `listener` must live until it is removed or the runner is gone.
  void add_listener(utUnitTestListener& listener);

  /// Once this has returned, `listener` is not called any more.
  void remove_listener(utUnitTestListener& listener);

  /// Reports a check, passed if `ok` is not 0: see utUnitTestReport for the texts, of which none may be null. A
  /// `description` made with build_varargs() ends with this call.
  void utest_handler(
    int ok, char const* expression, char const* file, int line, char const* description, char const* function);

  /// A description from a pattern and values as for the C library's printf. It stays as it is until it is reported, on
  /// whatever thread and whatever else is built and reported in between; one that is never reported stays for good.
  /// Never null.
  static char const* build_varargs(char const* format, ...);

  /// Hands diagnostic text, made as by the C library's printf, to the listeners.
  void printf(char const* format, ...);

  /// From here on assertions reported anywhere in the process (utAssert.h) are counted and reach no other listener, until
  /// check_assert() ends that. A second call before then starts anew.
  void expect_assert_min(int n);

  /// Ends what expect_assert_min() began. If fewer than `n` assertions came, that is a failed check of the group which
  /// reported last; otherwise nothing is reported.
  void check_assert();

  /// Tells the listeners that the run is over.
  void finish();

private:
  struct State;
  std::unique_ptr<State> state;
};
