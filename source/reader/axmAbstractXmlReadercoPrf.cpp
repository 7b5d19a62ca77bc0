#include <axmAbstractXmlReadercoPrf.h>

template class coPrf<axmAbstractXmlReader>;
