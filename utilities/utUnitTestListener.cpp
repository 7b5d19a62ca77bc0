#include "utUnitTestListener.h"

utUnitTestListener::utUnitTestListener() = default;
utUnitTestListener::~utUnitTestListener() = default;
