#pragma once

#include "axmModel.h"

#include <string>

// A document as a text, of many a way to write one, and what a load must make of it.
struct axmModelSource
{
  // In UTF-8.
  std::string text;
  // The document in the model.
  int document;
};

// The source that `number` stands for, put into `model`.
axmModelSource axm_model_source(axmModel& model, int number);

// A document that stands in the model as a text: white space between tags, quotes, references and line ends vary with
// `number`.
std::string axm_model_text(axmModel const& model, int document, int number);
