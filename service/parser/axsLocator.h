#pragma once

#include "axsPlace.h"
#include "axsReadError.h"

#include <apString.h>

#include <cstddef>
#include <cstdint>
#include <optional>

/// Tells where in the files of a document a parser is. To be asked during an event; what is not asked for costs nothing.
///
/// What comes out of an entity in another file has its place there, what comes out of one in the document type where the
/// reference to it stands.
class axsLocator
{
public:
  virtual ~axsLocator() = default;

  /// The path of the file, empty for bytes in memory.
  virtual apString url() const = 0;

  /// The first character of the markup or text of which the event tells.
  virtual axsPlace begin() const = 0;

  /// How many bytes of the document stand before that; none where it comes out of an entity.
  virtual std::optional<std::uint64_t> begin_position() const = 0;

  /// How many bytes of the document stand before its end, its last character among them; none where it comes out of an
  /// entity.
  virtual std::optional<std::uint64_t> end_position() const = 0;

  /// The name of the attribute at `index` of the start tag of which the event tells; of one that is not specified there,
  /// begin(). Asked in their order, all of them cost one pass over the tag.
  virtual axsPlace attribute(std::size_t index) const = 0;

  /// After its last character.
  virtual axsPlace end() const = 0;

  /// What is to be thrown for something wrong at `place`.
  axsReadError error(apString const& message, axsPlace place) const;
};
