#pragma once

#include <coSharedText.h>
#include <utExport.h>

#include <cstddef>
#include <iosfwd>
#include <string_view>

/// Narrow text: bytes with a length, closed by a NUL that does not count.
///
/// A value type that cannot be changed in place. Copies share the storage, which goes with the last of them; the count
/// is atomic, so copies may be made, used and dropped by several threads, while one and the same object belongs to one
/// thread at a time. A text may have no storage at all, which is a state of its own beside the empty text.
/// Only the constructors and operator+ allocate; they throw std::bad_alloc when memory runs out.
class UT_API utString
{
public:
  /// No storage.
  utString() noexcept;

  /// A copy of the NUL-terminated `bytes`; no storage if it is null.
  utString(char const* bytes);

  /// A copy of the `length` bytes at `bytes`, whatever they are; no storage if `bytes` is null. A negative length counts
  /// as 0.
  utString(char const* bytes, int length);

  /// A text of `length` bytes (0 or more) that `write` puts at the place it is given.
  template <class Write>
  static utString written(int length, Write write)
  {
    utString made;
    made.text = coSharedText<char>(length);
    write(made.text.writable());
    return made;
  }

  utString(utString const& other) noexcept;
  utString(utString&& other) noexcept;
  utString& operator=(utString const& other) noexcept;
  utString& operator=(utString&& other) noexcept;
  ~utString();

  /// The bytes, with a NUL behind the last one; never null. They live as long as this object or a copy of it.
  char const* c_str() const noexcept;

  /// The number of bytes; 0 without storage.
  int length() const noexcept;

  /// All bytes, without the NUL behind them; they live as those of c_str().
  std::string_view view() const noexcept { return {text.data(), static_cast<std::size_t>(text.length())}; }

  /// Whether there is storage, be it of an empty text.
  bool has_storage() const noexcept;

  /// Two texts without storage are equal, and a text without storage equals none with storage, be that empty. Otherwise
  /// the bytes are compared up to the first NUL.
  bool operator==(utString const& other) const noexcept;
  bool operator!=(utString const& other) const noexcept;

  /// Compares up to the first NUL, the 26 ASCII letters without regard to case: negative, 0 or positive as this text
  /// stands before, at or behind `other`. A text without storage counts as an empty one.
  int case_compare(utString const& other) const noexcept;

private:
  coSharedText<char> text;
};

/// The bytes of `left`, then those of `right`. If one of them is empty, the other is shared.
UT_API utString operator+(utString const& left, utString const& right);

/// Writes all bytes of `text`, without regard to width and fill.
UT_API std::ostream& operator<<(std::ostream& out, utString const& text);

/// A text from a literal.
UT_API utString ut_lit(char const* text);
