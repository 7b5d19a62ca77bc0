#pragma once

#include "axmCharacterData.h"

/// A comment (DOM Core, interface Comment). Its get_xml() is the comment with its delimiters, and escapes nothing.
/// Interface; see axmNode for ownership, threads and order of operations.
class AXM_API axmCommentNode : public axmCharacterData
{
public:
  axmCommentNode();
  ~axmCommentNode() override;

protected:
  /// See axmInPlace.
  explicit axmCommentNode(axmInPlace in_place) noexcept : axmCharacterData(in_place) {}
};
