#include "axmAbstractXmlReadercoPrf.h"

template class CO_SYMBOL_INSTANCE coPrf<axmAbstractXmlReader>;
