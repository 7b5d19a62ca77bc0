#pragma once

#include <coPageArr.h>
#include <utExport.h>
#include <utString.h>

/// Growable list of narrow texts.
using utStringcoPageArr = coPageArr<utString>;

extern template class UT_API_INSTANCE coPageArr<utString>;
