#pragma once

#include "axsNode.h"

#include <string>

/// What keeps a document from being saved: the first node, in the order of the document, that XML could not hold or that
/// would be another one when it is read again.
struct axsSaveFault
{
  /// What is wrong, to be read after the name of the node; null while nothing is.
  char const* words = nullptr;

  /// Valid while the tree is as it is.
  axsNode const* node = nullptr;

  /// Notes the fault and returns false.
  bool note(axsNode const& where, char const* what) noexcept
  {
    node = &where;
    words = what;
    return false;
  }

  /// The whole sentence in UTF-8, without an end; empty while nothing is wrong. Throws std::bad_alloc when memory runs out.
  std::string text() const;
};
