#pragma once

#include "axsParticle.h"

#include <vector>

/// A model group (Part 1, 3.8.1). That of a model group definition is shared by all particles that refer to it.
struct axsModelGroup
{
  enum class Compositor
  {
    sequence,
    choice,
    all
  };

  Compositor compositor = Compositor::sequence;
  std::vector<axsParticle> particles;
  axsSchemaPlace place;
};
