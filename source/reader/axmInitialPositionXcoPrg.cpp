#include <axmInitialPositionXcoPrg.h>

template class coPrg<axmInitialPositionX>;
