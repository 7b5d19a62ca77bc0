#include <axmPositionXcoPageArrPrgcoPrg.h>

template class coPrg<axmPositionX>;
