#include "axmPositionXcoPageArrPrgcoPrg.h"

template class CO_SYMBOL_INSTANCE coPrg<axmPositionX>;
