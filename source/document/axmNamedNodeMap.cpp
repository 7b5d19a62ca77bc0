#include "axmNamedNodeMap.h"

axmNamedNodeMap::axmNamedNodeMap() = default;
axmNamedNodeMap::~axmNamedNodeMap() = default;
