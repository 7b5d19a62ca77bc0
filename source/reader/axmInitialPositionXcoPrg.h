#pragma once

#include "axmExport.h"
#include "axmInitialPositionX.h"

#include <coPrg.h>

/// Sole owner of a cursor at the beginning of a document.
using axmInitialPositionXcoPrg = coPrg<axmInitialPositionX>;

extern template class AXM_API_INSTANCE coPrg<axmInitialPositionX>;
