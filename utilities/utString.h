#pragma once

#include "utExport.h"

#include <coText.h>

#include <cstddef>
#include <iosfwd>
#include <string_view>
#include <utility>

/// Narrow text: bytes with a length, closed by a NUL that does not count.
///
/// A value type that cannot be changed in place. A short text, of up to `max_inside` bytes, lies in the object itself;
/// of a longer one, copies share the storage, which goes with the last of them. The count is atomic, so copies may be
/// made, used and dropped by several threads, while one and the same object belongs to one thread at a time. A text may
/// have no storage at all, which is a state of its own beside the empty text.
/// Only the constructors and operator+ allocate, and only for longer texts; they throw std::bad_alloc when memory runs
/// out.
class UT_API utString
{
public:
  /// How long a text that needs no allocation may be.
  static constexpr int max_inside = 23;

  /// No storage.
  utString() noexcept {}

  /// A copy of the NUL-terminated `bytes`; no storage if it is null.
  utString(char const* bytes);

  /// A copy of the `length` bytes at `bytes`, whatever they are; no storage if `bytes` is null. A negative length counts
  /// as 0.
  utString(char const* bytes, int length);

  /// A text of `length` bytes (0 or more) that `write` puts at the place it is given. There is room for max_inside + 1
  /// at least, and those after `length` may be written as well.
  template <class Write>
  static utString written(int length, Write const& write)
  {
    return utString(length, write);
  }

  utString(utString const& other) noexcept : text(other.text) {}

  /// `other` has no storage afterwards.
  utString(utString&& other) noexcept : text(std::move(other.text)) {}

  utString& operator=(utString const& other) noexcept
  {
    text = other.text;
    return *this;
  }

  utString& operator=(utString&& other) noexcept
  {
    text = std::move(other.text);
    return *this;
  }

  ~utString() {}

  /// The bytes, with a NUL after the last one; never null. They live as long as this object and stay where they are
  /// until it takes another value. However short the text is, max_inside + 1 bytes can be read there.
  char const* c_str() const noexcept { return text.data(); }

  /// The number of bytes; 0 without storage.
  int length() const noexcept { return text.length(); }

  /// All bytes, without the NUL after them; they live as those of c_str().
  std::string_view view() const noexcept { return {c_str(), static_cast<std::size_t>(length())}; }

  /// Whether there is storage, be it of an empty text.
  bool has_storage() const noexcept { return text.has_storage(); }

  /// Two texts without storage are equal, and a text without storage equals none with storage, be that empty. Otherwise
  /// the bytes are compared up to the first NUL.
  bool operator==(utString const& other) const noexcept;
  bool operator!=(utString const& other) const noexcept;

  /// Compares up to the first NUL, the 26 ASCII letters without regard to case: negative, 0 or positive as this text
  /// stands before, at or after `other`. A text without storage counts as an empty one.
  int case_compare(utString const& other) const noexcept;

private:
  using Text = coText<char, max_inside>;

  template <class Write>
  utString(int length, Write const& write) : text(length, write)
  {
  }

  Text text;
};

/// The bytes of `left`, then those of `right`. If one of them is empty, the other is shared.
UT_API utString operator+(utString const& left, utString const& right);

/// Writes all bytes of `text`, without regard to width and fill.
UT_API std::ostream& operator<<(std::ostream& out, utString const& text);

/// A text from a literal.
UT_API utString ut_lit(char const* text);
