#pragma once

#include "axsDomDocument.h"
#include "axsSourcePlaces.h"
#include "axsSourceText.h"
#include "axsSplice.h"
#include "axsXPathPrefixes.h"
#include "axsXPathScopes.h"

#include <axmLoadOptions.h>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

/// One edit of a document, made twice: in its tree, and in its text by splices. What comes of both has to be the same.
///
/// First nodes are selected and places asked for; then places are found, and splices made; the tree is changed last.
/// Throws axsEditFault where the edit cannot be made, axsReadError where the document cannot be read, std::bad_alloc when
/// memory runs out.
class axsEditSession
{
public:
  using Nodes = std::vector<axsNode*>;

  /// Reads the document that `bytes` are, which must live longer.
  axsEditSession(std::string_view bytes, apPath const& path, axsXPathPrefixes const& given);

  /// The nodes that `expression` selects, in document order; at least one. They are held.
  Nodes select(std::string_view expression);

  axsDomDocument& tree() noexcept { return static_cast<axsDomDocument&>(root_of(*document)); }
  axsSourceText const& source() const noexcept { return text; }
  axsXPathPrefixes const& prefixes() const noexcept { return known_prefixes; }

  axsSourcePlaces& places() noexcept { return all_places; }
  void find_places() { all_places.find(tree(), text, options, file); }

  /// The place of a node that was asked for. Refuses one that comes out of an entity.
  axsSourcePlaces::Place const& place_in_document(axsNode const& node) const;

  void splice(axsSplice&& made) { splices.push_back(std::move(made)); }

  /// The quote for a new value where the tag has none.
  char quote() const;

  /// Whether the document type added the attribute.
  bool is_default(axsNode const& attribute) const { return defaults.count(&attribute) > 0; }
  void make_specified(axsNode const& attribute) { defaults.erase(&attribute); }

  /// What is bound, and whether white space is to be kept as it is (XML 1.0, 2.10), in an element or the document, as long
  /// as the tree has not been changed.
  axsXPathScopes& scopes() noexcept { return all_scopes; }
  bool is_preserved(axsNode const& parent);

  [[noreturn]] static void refuse(std::string const& message);
  [[noreturn]] void refuse_at(axsNode const& node, std::string const& message) const;

  /// The bytes of the edited document, after a comparison of what they say with the tree.
  std::string finish();

private:
  static axsNode& root_of(axmDocument& document) noexcept;
  void check(std::string const& bytes);

  apPath const file;
  axsXPathPrefixes const& known_prefixes;
  axmLoadOptions const options;
  std::unordered_set<axsNode const*> defaults;
  std::shared_ptr<axmDocument> const document;
  axsSourceText const text;
  axsXPathScopes all_scopes;
  axsSourcePlaces all_places;
  std::vector<axsSplice> splices;
  std::vector<std::shared_ptr<axmNode>> held;
};
