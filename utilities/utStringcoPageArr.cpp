#include "utStringcoPageArr.h"

template class CO_SYMBOL_INSTANCE coPageArr<utString>;
