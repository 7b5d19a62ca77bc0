#pragma once

#include <coSharedText.h>
#include <utExport.h>

#include <cstddef>
#include <iosfwd>
#include <new>
#include <string_view>

/// Narrow text: bytes with a length, closed by a NUL that does not count.
///
/// A value type that cannot be changed in place. A short text, of up to `most_inside` bytes, lies in the object itself;
/// of a longer one, copies share the storage, which goes with the last of them. The count is atomic, so copies may be
/// made, used and dropped by several threads, while one and the same object belongs to one thread at a time. A text may
/// have no storage at all, which is a state of its own beside the empty text.
/// Only the constructors and operator+ allocate, and only for longer texts; they throw std::bad_alloc when memory runs
/// out.
class UT_API utString
{
public:
  /// How long a text that needs no allocation may be.
  static constexpr int most_inside = 23;

  /// No storage.
  utString() noexcept : place{} { place.inside[state_at] = nothing; }

  /// A copy of the NUL-terminated `bytes`; no storage if it is null.
  utString(char const* bytes);

  /// A copy of the `length` bytes at `bytes`, whatever they are; no storage if `bytes` is null. A negative length counts
  /// as 0.
  utString(char const* bytes, int length);

  /// A text of `length` bytes (0 or more) that `write` puts at the place it is given.
  template <class Write>
  static utString written(int length, Write const& write)
  {
    if (length <= most_inside)
      return written_inside(length, write);
    utString made;
    coSharedText<char> text(length);
    write(text.writable());
    made.take(text);
    return made;
  }

  /// The same of most_inside bytes at most; there is room for most_inside + 1, of which those behind `length` may be
  /// written as well.
  template <class Write>
  static utString written_inside(int length, Write const& write)
  {
    utString made;
    write(made.place.inside);
    made.place.inside[length] = '\0';
    made.place.inside[state_at] = static_cast<char>(most_inside - length);
    return made;
  }

  utString(utString const& other) noexcept : place(other.place)
  {
    if (place.inside[state_at] == outside)
      share(other);
  }

  /// `other` has no storage afterwards.
  utString(utString&& other) noexcept : place(other.place) { other.forget(); }

  utString& operator=(utString const& other) noexcept
  {
    if (this != &other)
    {
      drop();
      place = other.place;
      if (place.inside[state_at] == outside)
        share(other);
    }
    return *this;
  }

  utString& operator=(utString&& other) noexcept
  {
    if (this != &other)
    {
      drop();
      place = other.place;
      other.forget();
    }
    return *this;
  }

  ~utString() { drop(); }

  /// The bytes, with a NUL behind the last one; never null. They live as long as this object and stay where they are
  /// until it takes another value. However short the text is, most_inside + 1 bytes can be read there.
  char const* c_str() const noexcept { return place.inside[state_at] == outside ? shared().data() : place.inside; }

  /// The number of bytes; 0 without storage.
  int length() const noexcept
  {
    char const state = place.inside[state_at];
    return state <= most_inside ? most_inside - state : state == outside ? shared().length() : 0;
  }

  /// All bytes, without the NUL behind them; they live as those of c_str().
  std::string_view view() const noexcept { return {c_str(), static_cast<std::size_t>(length())}; }

  /// Whether there is storage, be it of an empty text.
  bool has_storage() const noexcept { return place.inside[state_at] != nothing; }

  /// Two texts without storage are equal, and a text without storage equals none with storage, be that empty. Otherwise
  /// the bytes are compared up to the first NUL.
  bool operator==(utString const& other) const noexcept;
  bool operator!=(utString const& other) const noexcept;

  /// Compares up to the first NUL, the 26 ASCII letters without regard to case: negative, 0 or positive as this text
  /// stands before, at or behind `other`. A text without storage counts as an empty one.
  int case_compare(utString const& other) const noexcept;

private:
  // The last byte of the place tells what is in it: how much of the room for a short text is left (which makes it the
  // NUL of the longest one), or one of these.
  static constexpr int state_at = most_inside;
  static constexpr char outside = 64;
  static constexpr char nothing = 65;

  // A short text or, at the beginning, a coSharedText.
  struct Place
  {
    alignas(coSharedText<char>) char inside[most_inside + 1];
  };

  coSharedText<char> const& shared() const noexcept
  {
    return *std::launder(reinterpret_cast<coSharedText<char> const*>(place.inside));
  }

  void forget() noexcept
  {
    place.inside[0] = '\0';
    place.inside[state_at] = nothing;
  }

  void drop() noexcept
  {
    if (place.inside[state_at] == outside)
      drop_shared();
  }

  void take(coSharedText<char>& text) noexcept;
  void share(utString const& other) noexcept;
  void drop_shared() noexcept;

  Place place;
};

/// The bytes of `left`, then those of `right`. If one of them is empty, the other is shared.
UT_API utString operator+(utString const& left, utString const& right);

/// Writes all bytes of `text`, without regard to width and fill.
UT_API std::ostream& operator<<(std::ostream& out, utString const& text);

/// A text from a literal.
UT_API utString ut_lit(char const* text);
