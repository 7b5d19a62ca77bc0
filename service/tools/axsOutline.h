#pragma once

#include "axsExport.h"
#include "axsOutlinePath.h"
#include <apPath.h>
#include <axmParseError.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class axsByteStream;
class axsOutlineHandler;

/// What documents consist of: which elements they have in which, how many, with which attributes.
///
/// Documents are read in one pass, of any size; memory grows with the number of different paths and their attributes, which
/// is bounded, and with the depth. Several documents make one outline. One object belongs to one thread at a time.
class AXS_API axsOutline
{
public:
  /// Told now and then how many bytes have been read.
  using Progress = std::function<void(std::uint64_t bytes)>;

  /// No more paths than `max_paths`, no more attributes of one path, and no paths of more than `max_depth` names are told
  /// apart.
  explicit axsOutline(std::size_t max_paths = 10000, std::size_t max_depth = 100);
  axsOutline(axsOutline const&) = delete;
  axsOutline& operator=(axsOutline const&) = delete;
  ~axsOutline();

  /// Adds a document. False, with the reason in `error` and what was read up to there added, where it cannot be read or is
  /// not well-formed. Throw std::bad_alloc when memory runs out.
  bool read(apPath const& file, axmParseError& error, Progress const& progress = {});
  bool read(axsByteStream& stream, axmParseError& error, Progress const& progress = {});

  /// Adds what another one has, as far as there is room for it. Throws std::bad_alloc when memory runs out.
  void add(axsOutline const& other);

  /// The paths, each after that which it goes on from, otherwise in the order in which they came.
  std::vector<axsOutlinePath> paths() const;

  /// How many elements are in none of them: there were too many paths, or they lie too deep.
  std::uint64_t left_out() const noexcept;

private:
  std::unique_ptr<axsOutlineHandler> handler;
};
