#include "axsLocator.h"

axsReadError axsLocator::error(apString const& message, axsPlace place) const
{
  return axsReadError::at(message, url(), place);
}
