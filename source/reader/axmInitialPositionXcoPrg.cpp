#include "axmInitialPositionXcoPrg.h"

template class CO_SYMBOL_INSTANCE coPrg<axmInitialPositionX>;
