#pragma once

#include "Readers.h"

#include <axmDocument.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What a document holds as the engine's tree has it, in a form in which the answers of the streaming readers can be worked
/// out: plainly, and without them.
class TreeModel
{
public:
  struct Element
  {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<std::size_t> children;
    /// Of each, the text before the child of that number; the last one is what follows the last child.
    std::vector<std::string> texts = std::vector<std::string>(1);
    std::size_t parent = 0;
    /// Whether white space is kept in it: elsewhere the tree has none that stands alone.
    bool keeps_space = false;
  };

  explicit TreeModel(axmDocument& document);

  Element const& at(std::size_t number) const { return elements[number]; }
  std::size_t size() const { return elements.size(); }

  std::optional<std::string> attribute(std::size_t element, std::string const& name) const;

  /// All texts directly in it.
  std::string text(std::size_t element) const;

  /// The names of elements and attributes that are there, and one of each that is not.
  std::vector<std::string> names;
  std::vector<std::string> attribute_names;

private:
  std::size_t begin(axmNode& node, std::size_t parent);
  void gather_names();

  std::vector<Element> elements;
};

/// Walks where chance leads, up to so many steps, and says what a reader, which has read nothing yet, answers in another
/// way than the tree; empty if nothing is.
std::string walk_difference(TreeModel const& tree, axmAbstractXmlReader& reader, unsigned seed, int steps);

/// Takes rows of a path and columns that chance chooses out of the document and says what is not as in the tree.
std::string rows_difference(TreeModel const& tree, std::string const& document, unsigned seed, std::size_t piece);

/// The names that follow a '<' in the document, each once, whatever its encoding: its root is among them.
std::vector<std::string> names_in(std::string const& document);

/// Loads the document; walks and takes rows of it where that succeeds. Where it fails, a reader has to fail as well, at
/// the latest when it leaves the root. Says what is not so. Files come in pieces of `piece` bytes.
std::string reader_difference(std::string const& document, unsigned seed, std::size_t piece);
