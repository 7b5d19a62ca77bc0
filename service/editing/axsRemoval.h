#pragma once

#include "axsSpan.h"

#include <cstddef>
#include <vector>

class axsEditSession;
class axsNode;

/// Takes nodes out of a document. Elements, comments and instructions that stand alone on their lines take those with
/// them, except where white space is to be preserved or texts are taken out as well.
class axsRemoval
{
public:
  /// Of nodes in document order; what lies in another one goes with it. Asks for their places.
  axsRemoval(axsEditSession& used, std::vector<axsNode*> const& nodes);

  /// From the text, when places have been found.
  void splice();

  /// From the tree, after that.
  void apply();

private:
  struct Piece
  {
    axsNode* node;
    axsSpan span;
  };

  // Nodes with nothing but blanks between, of which the first one begins a line and the last one ends one.
  struct Run
  {
    std::size_t first;
    std::size_t end;
  };

  void collect();
  axsSpan span_of(axsNode const& node) const;
  bool goes_on(std::size_t index) const;
  void splice_run(Run run);
  void trim(Run run) const;

  axsEditSession& session;
  std::vector<axsNode*> const all;
  bool has_text = false;
  std::vector<Piece> pieces;
  std::vector<Run> whole_lines;
};
