#pragma once

#include "axsNodeOf.h"

#include <axmProcessingInstruction.h>

/// A processing instruction of the tree. Its text is target, space, data.
class axsProcessingInstruction final : public axsNodeOf<axmProcessingInstruction, axsLeaf>
{
public:
  explicit axsProcessingInstruction(std::uint8_t units) noexcept
    : axsNodeOf(axsKind::processing_instruction, this + 1, units)
  {
  }

  void reserved_processing_instruction_33() override {}
  void reserved_processing_instruction_34() override {}
};
