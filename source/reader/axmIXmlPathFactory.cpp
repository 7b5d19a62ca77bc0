#include "axmIXmlPathFactory.h"

axmIXmlPathFactory::axmIXmlPathFactory() = default;
axmIXmlPathFactory::~axmIXmlPathFactory() = default;
