#include "Making.h"
