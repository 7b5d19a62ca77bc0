#include <utAnycoPageArrINTERNALcoDynArr.h>

template class coDynArr<void*>;
