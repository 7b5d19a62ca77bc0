#pragma once

#include "axmExport.h"
#include "axmPositionX.h"

#include <coPrg.h>

/// Sole owner of a cursor.
using axmPositionXcoPageArrPrgcoPrg = coPrg<axmPositionX>;

extern template class AXM_API_INSTANCE coPrg<axmPositionX>;
