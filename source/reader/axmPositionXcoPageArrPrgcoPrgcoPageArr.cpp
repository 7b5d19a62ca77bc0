#include <axmPositionXcoPageArrPrgcoPrgcoPageArr.h>

template class coPageArr<axmPositionXcoPageArrPrgcoPrg>;
