#include "axmSaveObstacles.h"

axmSaveObstacles::axmSaveObstacles() = default;
axmSaveObstacles::~axmSaveObstacles() = default;
