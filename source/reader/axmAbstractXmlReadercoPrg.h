#pragma once

#include "axmAbstractXmlReader.h"
#include "axmExport.h"

#include <coPrg.h>

/// Sole owner of a reader.
using axmAbstractXmlReadercoPrg = coPrg<axmAbstractXmlReader>;

extern template class AXM_API_INSTANCE coPrg<axmAbstractXmlReader>;
