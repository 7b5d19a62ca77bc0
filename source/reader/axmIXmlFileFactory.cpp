#include "axmIXmlFileFactory.h"

axmIXmlFileFactory::axmIXmlFileFactory() = default;
axmIXmlFileFactory::~axmIXmlFileFactory() = default;
