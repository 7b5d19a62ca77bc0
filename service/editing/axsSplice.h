#pragma once

#include "axsSpan.h"

#include <string>
#include <vector>

/// A piece of the text of a document that is replaced.
struct axsSplice
{
  /// Text of its own, in UTF-8, or another piece of the document as it stands there.
  struct Piece
  {
    std::string text;
    axsSpan copied;
  };

  axsSpan replaced;
  std::vector<Piece> pieces;

  /// Whether the pieces stand in a tag, outside of values, rather than in the content of an element.
  bool is_in_tag = false;
};
