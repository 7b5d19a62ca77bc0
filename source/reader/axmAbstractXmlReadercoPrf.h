#pragma once

#include "axmAbstractXmlReader.h"
#include "axmExport.h"

#include <coPrf.h>

/// Shared owner of a reader.
using axmAbstractXmlReadercoPrf = coPrf<axmAbstractXmlReader>;

extern template class AXM_API_INSTANCE coPrf<axmAbstractXmlReader>;
