#include "axmPositionXcoPageArrPrgcoPrgcoPageArr.h"

template class CO_SYMBOL_INSTANCE coPageArr<axmPositionXcoPageArrPrgcoPrg>;
