#include "axmProcessingInstruction.h"

axmProcessingInstruction::axmProcessingInstruction() = default;
axmProcessingInstruction::~axmProcessingInstruction() = default;
