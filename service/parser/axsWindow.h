#pragma once

#include <cstddef>
#include <memory>

class axsSource;

/// The part of a document that is being read: a piece of it in memory that moves on through a source, and grows when
/// something does not fit.
///
/// Behind its last byte stands a zero byte, and behind that some bytes more may be read, so that who reads on needs no
/// look at where the end is.
class axsWindow
{
public:
  /// The beginning of the source, which is read on from where it is and must live longer.
  explicit axsWindow(axsSource& source);

  char const* begin() const noexcept { return bytes.get(); }
  char const* end() const noexcept { return bytes.get() + filled; }

  /// Whether nothing comes behind the end.
  bool is_last() const noexcept { return last; }

  /// The most bytes that it holds before it grows.
  std::size_t capacity() const noexcept { return room; }

  /// Where in the source `at` is, which points into the window.
  std::size_t position(char const* at) const noexcept { return passed + static_cast<std::size_t>(at - begin()); }

  /// Lets go what is before `from`, which points into the window, and reads more, if something comes. Returns where that
  /// byte stands now. Throws axsReadError when the source cannot be read, std::bad_alloc when memory runs out.
  char const* advance(char const* from);

private:
  void fill();

  axsSource& source;
  std::unique_ptr<char[]> bytes;
  std::size_t room;
  std::size_t filled = 0;
  // The bytes before the window.
  std::size_t passed = 0;
  bool last = false;
};
