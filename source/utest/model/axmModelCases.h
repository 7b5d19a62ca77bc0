#pragma once

#include "axmModelStep.h"

#include <vector>

// Sequences of steps that are not drawn, for they are all there are. Not installed.

// Each edit of each two neighbours of all kinds: below an element, and beside the root.
std::vector<std::vector<axmModelStep>> axm_model_neighbours();

// Each text that looks like something else, in each place where a text can be, put there in each way, saved and loaded.
std::vector<std::vector<axmModelStep>> axm_model_texts();
