#pragma once

#include "axsEditPlace.h"
#include "axsSplice.h"

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

class axmNode;
class axsEditSession;
class axsNode;

/// Puts something into a document at one place. Beside what stands alone on its lines it gets a line of its own, with the same
/// indentation, except where white space is to be preserved.
class axsInsertion
{
public:
  using Pieces = std::vector<axsSplice::Piece>;
  using Nodes = std::vector<std::shared_ptr<axmNode>>;

  /// `absent` are nodes that will not be there any more. Asks for the places that are needed.
  axsInsertion(axsEditSession& used, axsNode& target, axsEditPlace where, std::unordered_set<axsNode const*> absent);

  /// The element or document that will be the parent.
  axsNode& parent() const noexcept { return *owner; }

  /// Into the text, when places have been found: the pieces one after the other.
  void splice(Pieces const& pieces);

  /// Into the tree, after that: each piece as its nodes.
  void apply(std::vector<Nodes> const& pieces) const;

private:
  bool is_beside() const noexcept { return neighbour != nullptr; }
  void find_neighbour(axsNode& target);
  void place_beside();
  void place_in(axsSplice& splice, std::string& closing) const;
  std::shared_ptr<axmNode> reference() const;

  axsEditSession& session;
  std::unordered_set<axsNode const*> const gone;
  axsNode* owner;
  // What it stands beside, and on which side; null where it is the whole content, or stands beside text.
  axsNode* neighbour = nullptr;
  bool is_after;
  bool const is_into;
  // A line end with the indentation, where it gets lines of its own.
  std::string line;
};
