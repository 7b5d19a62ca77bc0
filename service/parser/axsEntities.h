#pragma once

#include "axsTextHash.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

class axsGrowth;
class axsInputBuffer;

/// The entities that a document declares itself and uses, as long as they are plain text. Others are left to others.
class axsEntities
{
public:
  /// Where a reference stands.
  enum class Place
  {
    text,
    attribute
  };

  /// Of the document in `window`. At most `most_expansions` references are expanded, those that are read again counted
  /// again. What they refer to must live longer.
  axsEntities(axsInputBuffer const& window, axsGrowth& growth, std::size_t most_expansions)
    : document(window),
      grown(growth),
      expansions_left(most_expansions)
  {
  }

  /// An entity with that replacement text (4.5). Of several with one name the first one counts (4.2).
  void declare(std::string_view name, std::string_view replacement);

  /// Moves behind the reference at `at`, one to a declared entity or one that axsReference reads, and appends to `text`
  /// what becomes of it at that place (4.4.2, 4.4.5). Behind a replacement text, `text` has room for all of the window: it
  /// does not move. False where there is another reference or none, and `at` is then where that shows; where there are too
  /// many or too large ones; and where `text` lacks room.
  bool read(char const*& at, std::string& text, Place place);

  /// How much room the last reading lacked, if that was why it failed; asked once.
  std::size_t take_lacking_room() noexcept;

private:
  axsInputBuffer const& document;
  axsGrowth& grown;
  std::size_t expansions_left;
  std::size_t lacking_room = 0;
  // Of one that is not plain text, empty.
  std::unordered_map<std::string, std::string, axsTextHash> replacements;
};
