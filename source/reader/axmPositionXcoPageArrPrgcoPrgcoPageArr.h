#pragma once

#include "axmExport.h"
#include "axmPositionXcoPageArrPrgcoPrg.h"

#include <coPageArr.h>

/// Growable array of cursors, which it owns: the stack of a reader.
using axmPositionXcoPageArrPrgcoPrgcoPageArr = coPageArr<axmPositionXcoPageArrPrgcoPrg>;

extern template class AXM_API_INSTANCE coPageArr<axmPositionXcoPageArrPrgcoPrg>;
