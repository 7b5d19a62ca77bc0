#pragma once

#include "axmCharacterData.h"

/// A text between tags (DOM Core, interface Text). Its get_xml() escapes the three markup characters & < >.
/// Interface; see axmNode for ownership, threads and order of operations.
class AXM_API axmTextNode : public axmCharacterData
{
public:
  axmTextNode();
  ~axmTextNode() override;

protected:
  /// See axmInPlace.
  explicit axmTextNode(axmInPlace in_place) noexcept : axmCharacterData(in_place) {}
};
