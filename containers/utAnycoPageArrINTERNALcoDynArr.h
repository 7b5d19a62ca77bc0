#pragma once

#include "coDynArr.h"
#include "coExport.h"

/// The page directory of every paged array: one untyped pointer a page.
using utAnycoPageArrINTERNALcoDynArr = coDynArr<void*>;

extern template class CO_API_INSTANCE coDynArr<void*>;
