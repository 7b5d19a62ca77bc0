#pragma once

#include "axmNode.h"

/// What texts and comments have in common (DOM Core, interface CharacterData).
/// Interface; see axmNode for ownership, threads and order of operations.
class AXM_API axmCharacterData : public virtual axmNode
{
public:
  axmCharacterData();
  ~axmCharacterData() override;

  /// The characters of the node, exactly as created.
  virtual apString getData() const = 0;

protected:
  /// See axmInPlace.
  explicit axmCharacterData(axmInPlace) noexcept {}
};
