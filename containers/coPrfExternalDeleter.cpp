#include "coPrfExternalDeleter.h"

void coPrfExternalDeleter::operator()(void const*) const noexcept {}
