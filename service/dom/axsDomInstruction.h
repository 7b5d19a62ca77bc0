#pragma once

#include "axsDomNode.h"
#include "axsLeaf.h"

#include <axmProcessingInstruction.h>

/// A processing instruction as its interface. Its text is target, space, data.
class axsDomInstruction final : public axsDomNode<axmProcessingInstruction, axsLeaf>
{
public:
  explicit axsDomInstruction(std::uint8_t units) noexcept : axsDomNode(axsKind::processing_instruction, units) {}

  void reserved_processing_instruction_33() override {}
  void reserved_processing_instruction_34() override {}
};
