#pragma once

#include "utAssertListener.h"
#include "utExport.h"

/// Reports a broken assumption: that `expression` does not hold at `line` of `file`. The report goes to the listener in
/// charge, and the program goes on. Safe from several threads at once; a listener may itself report.
UT_API void ut_report_assertion(char const* expression, char const* file, int line);

/// Puts `listener` in charge of the whole process and returns the one it takes over from. It must live until it is
/// replaced; once this has returned, the replaced one is not called any more. A null pointer stands for the listener
/// that is in charge from the start, which writes a line to standard error for each of the first three reports of a place,
/// and then one with their number at the tenth, the hundredth and so on.
UT_API utAssertListener* ut_set_assert_listener(utAssertListener* listener);
