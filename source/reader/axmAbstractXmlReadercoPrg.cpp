#include <axmAbstractXmlReadercoPrg.h>

template class coPrg<axmAbstractXmlReader>;
