#include "apITarnFilecoPrf.h"

template class CO_SYMBOL_INSTANCE coPrf<apITarnFile>;
