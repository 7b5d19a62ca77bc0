#pragma once

#include "axmExport.h"
#include "axmPositionXcoPageArrPrgcoPrgcoPageArr.h"

#include <coIterator.h>

/// Walks the owners in an array of cursors.
using axmPositionXcoPageArrPrgcoPrgcoPageArrcoIterator = coIterator<axmPositionXcoPageArrPrgcoPrgcoPageArr>;

extern template class AXM_API_INSTANCE coIterator<axmPositionXcoPageArrPrgcoPrgcoPageArr>;
