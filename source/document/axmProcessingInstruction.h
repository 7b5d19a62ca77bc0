#pragma once

#include "axmNode.h"

/// A processing instruction (DOM Core, interface ProcessingInstruction): getNodeName() is its target, getNodeValue() its
/// content. Interface; see axmNode for ownership, threads and order of operations.
class AXM_API axmProcessingInstruction : public axmNode
{
public:
  axmProcessingInstruction();
  ~axmProcessingInstruction() override;

  /// Reserved: keep their places in the order; never called.
  virtual void reserved_processing_instruction_33() = 0;
  virtual void reserved_processing_instruction_34() = 0;

protected:
  /// See axmInPlace.
  explicit axmProcessingInstruction(axmInPlace in_place) noexcept : axmNode(in_place) {}
};
