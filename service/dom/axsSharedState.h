#pragma once

#include "axsChildPositionTable.h"
#include "axsHandlePool.h"

#include <memory>
#include <mutex>

/// What the threads that read a shared document change together, each while it has the lock.
class axsSharedState
{
public:
  /// Throws std::bad_alloc when memory runs out.
  axsSharedState() : pool(axsHandlePool::make()), positions(*pool, axsChildPositionTable::Watch::none) {}
  axsSharedState(axsSharedState const&) = delete;
  axsSharedState& operator=(axsSharedState const&) = delete;

  std::mutex lock;

private:
  std::unique_ptr<axsHandlePool, axsHandlePool::Abandoner> const pool;

public:
  axsChildPositionTable positions;
};
