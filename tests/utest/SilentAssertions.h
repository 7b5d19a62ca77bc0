#pragma once

#include <utAssert.h>

// While it lives, assertions are kept from standard error.
class SilentAssertions : public utAssertListener
{
public:
  SilentAssertions() : replaced(ut_set_assert_listener(this)) {}
  ~SilentAssertions() override { ut_set_assert_listener(replaced); }
  void assertion_failed(char const*, char const*, int) override {}

private:
  utAssertListener* const replaced;
};
