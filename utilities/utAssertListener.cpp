#include "utAssertListener.h"

utAssertListener::utAssertListener() = default;
utAssertListener::~utAssertListener() = default;
