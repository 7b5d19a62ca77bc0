#include "charcoDynArr.h"

template class CO_SYMBOL_INSTANCE coDynArr<char>;
