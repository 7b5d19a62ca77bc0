#include "axmAbstractXmlReadercoPrg.h"

template class CO_SYMBOL_INSTANCE coPrg<axmAbstractXmlReader>;
