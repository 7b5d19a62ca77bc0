#include "utAnycoPageArrINTERNALcoDynArr.h"

template class CO_SYMBOL_INSTANCE coDynArr<void*>;
