#pragma once

#include "coDynArr.h"
#include "coExport.h"

/// Growable array of bytes, such as the contents of a file.
using charcoDynArr = coDynArr<char>;

extern template class CO_API_INSTANCE coDynArr<char>;
