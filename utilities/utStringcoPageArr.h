#pragma once

#include "utExport.h"
#include "utString.h"

#include <coPageArr.h>

/// Growable list of narrow texts.
using utStringcoPageArr = coPageArr<utString>;

extern template class UT_API_INSTANCE coPageArr<utString>;
