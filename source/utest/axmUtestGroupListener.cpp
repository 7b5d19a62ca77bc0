#include "axmUtestGroupListener.h"

#include <atomic>

namespace
{
std::atomic<axmUtestGroupListener*> in_charge(nullptr);
}

axmUtestGroupListener::axmUtestGroupListener() = default;
axmUtestGroupListener::~axmUtestGroupListener() = default;

axmUtestGroupListener* axmUtestGroupListener::get()
{
  return in_charge;
}

void axmUtestGroupListener::set(axmUtestGroupListener* listener)
{
  in_charge = listener;
}
