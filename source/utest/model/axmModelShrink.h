#pragma once

#include "axmDocumentFactory.h"
#include "axmModelStep.h"

#include <string>
#include <vector>

// A sequence of steps that shows a difference between an engine and the model.
struct axmModelFinding
{
  std::vector<axmModelStep> steps;
  // See axmModelRun::difference().
  std::string difference;
};

// Of the steps of `finding` as few and simple ones as still show a difference, and that difference.
axmModelFinding axm_model_shrunk(axmDocumentFactory& factory, axmModelFinding finding);
