#pragma once

/// A link of a doubly linked chain of `List` objects, which are derived from it. The chain owns nothing; entering and
/// leaving take a constant time.
template <class List>
class axsChained
{
public:
  /// Becomes the first of the chain that starts with `first`. The object is in no chain.
  void enter(List*& first) noexcept
  {
    next = first;
    if (first != nullptr)
      link(*first).previous = static_cast<List*>(this);
    first = static_cast<List*>(this);
  }

  /// Leaves the chain that starts with `first`.
  void leave(List*& first) noexcept
  {
    if (next != nullptr)
      link(*next).previous = previous;
    (previous == nullptr ? first : link(*previous).next) = next;
    previous = nullptr;
    next = nullptr;
  }

  List* next_in_chain() const noexcept { return next; }

private:
  friend List;
  axsChained() = default;

  static axsChained& link(List& list) noexcept { return list; }

  List* previous = nullptr;
  List* next = nullptr;
};
