#pragma once

#include "axsPlace.h"
#include "axsSpan.h"

#include <axmLoadOptions.h>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

class axsNode;
class axsSourceText;
class axsTree;

/// Where nodes of a tree stand in the text of the document that it was read from, found by reading that again: of each node
/// that is asked for its markup, or of a text what stands between markup. Memory is needed for those only.
class axsSourcePlaces
{
public:
  /// The markup of an element begins and ends with its tags, which are one for an empty-element tag; that of a comment or
  /// processing instruction is one piece as well.
  struct Place
  {
    axsSpan first;
    axsSpan last;
    /// In the lines of the document.
    axsPlace line;
    /// Whether it comes out of an entity, and stands nowhere in the document.
    bool is_in_entity = false;

    axsSpan whole() const noexcept { return {first.begin, last.end}; }

    /// Of an element that has an end tag.
    axsSpan content() const noexcept { return {first.end, last.begin}; }
  };

  /// Asks for a node of the tree that is no attribute: an element, comment, processing instruction or text; of texts that
  /// stand beside each other the first.
  void ask(axsNode const& node) { places.try_emplace(&node); }

  /// Finds what was asked for. The tree is that of `source`, with all its nodes as they were read. Throws what the parser
  /// does, std::bad_alloc when memory runs out.
  void find(axsTree const& tree, axsSourceText const& source, axmLoadOptions const& options, apPath const& file);

  Place const& of(axsNode const& node) const { return places.at(&node).place; }

  /// The first start tag with an attribute that stands in the document; empty if there is none.
  axsSpan first_tag_with_attribute() const noexcept { return styled_tag; }

private:
  struct Entry
  {
    // The numbers of the tags, comments and instructions that it begins and ends with, counted from 1 through the document;
    // of a text of those around it.
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    Place place;
  };

  void number(axsTree const& tree);

  std::unordered_map<axsNode const*, Entry> places;
  axsSpan styled_tag;
};
