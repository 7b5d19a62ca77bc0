#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

struct axsContentItem;

/// A set of spans of numbers (axsSymbols), each with the item that it comes from. Copies share what they have in common, and
/// uniting two costs no more than the smaller one, in the long run.
class axsSymbolSet
{
public:
  struct Span
  {
    std::uint32_t first;
    std::uint32_t last;
    axsContentItem const* item;
  };

  bool empty() const noexcept { return runs.empty(); }
  std::size_t size() const noexcept;

  void add(std::vector<Span> spans);
  void unite(axsSymbolSet const& other);

  /// One of the spans that have a number in common with first..last; null if none has. Logarithmic in the size.
  Span const* find(std::uint32_t first, std::uint32_t last) const noexcept;

  /// Calls `visit` with each span until that is true; whether it was.
  template <class Visit>
  bool any_of(Visit visit) const
  {
    for (auto const& run : runs)
      for (Span const& span : run->spans)
        if (visit(span))
          return true;
    return false;
  }

private:
  // Spans in the order of their beginnings. Of all up to a place, `furthest` is the one that ends last.
  struct Run
  {
    std::vector<Span> spans;
    std::vector<std::uint32_t> furthest;
  };

  static std::shared_ptr<Run const> make_run(std::vector<Span> spans);
  void add_run(std::shared_ptr<Run const> run);

  // The larger ones first; each at least twice as long as the next.
  std::vector<std::shared_ptr<Run const>> runs;
};
