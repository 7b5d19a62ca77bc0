#pragma once

/// Walks the elements of an array, from index 0 to its count less one.
///
/// Refers to the array, which must live longer. It reads the count afresh at every step, so an array that changes
/// meanwhile is followed as it stands. Before the first step it stands before the first element.
template <class Array>
class coIterator
{
public:
  using value_type = typename Array::value_type;

  explicit coIterator(Array& walked) noexcept : array(&walked) {}

  /// Goes to the first element; false if there is none.
  bool do_first() noexcept
  {
    reset();
    return do_next();
  }

  /// Goes to the next element; false, and stands after the last one, if there is none.
  bool do_next() noexcept
  {
    if (position < array->count())
      ++position;
    return !invalid();
  }

  /// Back to before the first element.
  void reset() noexcept { position = -1; }

  /// Whether it stands on no element.
  bool invalid() const noexcept { return position < 0 || position >= array->count(); }

  /// The index it stands on, -1 before the first element.
  int index() const noexcept { return position; }

  /// The element it stands on; there must be one.
  value_type& operator()() const { return (*array)[position]; }

private:
  Array* array;
  int position = -1;
};
