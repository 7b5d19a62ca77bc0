#include <utAssert.h>

#include <cstdio>
#include <mutex>

namespace
{
class StandardErrorListener : public utAssertListener
{
public:
  void assertion_failed(char const* expression, char const* file, int line) override
  {
    std::fprintf(stderr, "%s:%d: assertion failed: %s\n", file, line, expression);
  }
};

struct Charge
{
  // Recursive, for a listener may report an assertion of its own.
  std::recursive_mutex guard;
  StandardErrorListener standard_error;
  utAssertListener* listener = nullptr;
};

// Never destroyed: assertions may fail while static objects go away.
Charge& charge()
{
  static Charge* const made = new Charge;
  return *made;
}
}

void ut_report_assertion(char const* expression, char const* file, int line)
{
  Charge& current = charge();
  std::lock_guard<std::recursive_mutex> const lock(current.guard);
  utAssertListener* const listener = current.listener != nullptr ? current.listener : &current.standard_error;
  listener->assertion_failed(expression, file, line);
}

utAssertListener* ut_set_assert_listener(utAssertListener* listener)
{
  Charge& current = charge();
  std::lock_guard<std::recursive_mutex> const lock(current.guard);
  utAssertListener* const replaced = current.listener;
  current.listener = listener;
  return replaced;
}
