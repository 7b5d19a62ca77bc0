#pragma once

#include "apExport.h"
#include "apITarnFile.h"

#include <coPrf.h>

/// Shared owner of an open file.
using apITarnFilecoPrf = coPrf<apITarnFile>;

extern template class AP_API_INSTANCE coPrf<apITarnFile>;
