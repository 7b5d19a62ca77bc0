#include "axmException.h"

axmException::axmException() = default;
axmException::axmException(axmException const& other) = default;
axmException& axmException::operator=(axmException const& other) = default;
axmException::~axmException() = default;
