#include <charcoDynArr.h>

template class coDynArr<char>;
