#pragma once

#include "coSharedText.h"

#include <cstring>
#include <new>
#include <utility>

/// What a text class keeps: characters with a length, closed by a NUL that does not count, or nothing at all.
///
/// A short text, of up to `most` characters, lies in the object itself; of a longer one, copies share the storage, which
/// goes with the last of them. The count is atomic, so copies may be made, used and dropped by several threads, while one
/// and the same object belongs to one thread at a time. Only making a longer text allocates; running out of memory is
/// std::bad_alloc.
template <class C, int most>
class coText
{
public:
  /// How long a text that needs no allocation may be.
  static constexpr int max_inside = most;

  /// No storage.
  coText() noexcept { forget(); }

  /// A text of `length` characters (0 or more) that `write` puts at the place it is given. There is room for
  /// max_inside + 1 at least, and those after `length` may be written as well.
  template <class Write>
  coText(int length, Write const& write)
  {
    if (length <= most)
      write_inside(length, write);
    else
    {
      coSharedText<C> storage(length);
      write(storage.writable());
      new (room) coSharedText<C>(std::move(storage));
      inside()[most] = outside;
    }
  }

  coText(coText const& other) noexcept
  {
    copy_room(other);
    if (other.is_outside())
      share(other);
  }

  /// `other` has no storage afterwards.
  coText(coText&& other) noexcept
  {
    copy_room(other);
    other.forget();
  }

  coText& operator=(coText const& other) noexcept
  {
    if (this != &other)
    {
      drop();
      copy_room(other);
      if (other.is_outside())
        share(other);
    }
    return *this;
  }

  coText& operator=(coText&& other) noexcept
  {
    if (this != &other)
    {
      drop();
      copy_room(other);
      other.forget();
    }
    return *this;
  }

  ~coText() { drop(); }

  /// Takes such a text in the place of what there is, which stays where memory runs out. A short one is written where it
  /// is to be: to move it there costs more than to write it.
  template <class Write>
  void assign(int length, Write const& write)
  {
    if (length <= most)
    {
      drop();
      write_inside(length, write);
    }
    else
      *this = coText(length, write);
  }

  /// The characters and the closing NUL; never null. They live as long as this object and stay where they are until it
  /// takes another text. However short the text is, max_inside + 1 characters can be read there.
  C const* data() const noexcept { return is_outside() ? shared().data() : inside(); }

  /// 0 without storage.
  int length() const noexcept
  {
    int const state = static_cast<int>(inside()[most]);
    return state <= most ? most - state : state == outside ? shared().length() : 0;
  }

  /// Whether there is storage, be it of an empty text.
  bool has_storage() const noexcept { return inside()[most] != nothing; }

private:
  // The last character of the room tells what is in it: how much of the room for a short text is left (which makes it the
  // NUL of the longest one), or one of these.
  static constexpr C outside = 64;
  static constexpr C nothing = 65;
  static_assert(most < outside, "a state could be taken for another one");
  static_assert((most + 1) * sizeof(C) >= sizeof(coSharedText<C>) + sizeof(C), "a shared text would cover the state");

  C* inside() noexcept { return reinterpret_cast<C*>(room); }
  C const* inside() const noexcept { return reinterpret_cast<C const*>(room); }

  bool is_outside() const noexcept { return inside()[most] == outside; }

  coSharedText<C> const& shared() const noexcept
  {
    return *std::launder(reinterpret_cast<coSharedText<C> const*>(room));
  }

  // All of it at once: that is faster than a look at how much of it there is.
  void copy_room(coText const& other) noexcept { std::memcpy(room, other.room, sizeof room); }

  void share(coText const& other) noexcept { new (room) coSharedText<C>(other.shared()); }

  template <class Write>
  void write_inside(int length, Write const& write)
  {
    write(inside());
    inside()[length] = C();
    inside()[most] = static_cast<C>(most - length);
  }

  void forget() noexcept
  {
    inside()[0] = C();
    inside()[most] = nothing;
  }

  void drop() noexcept
  {
    if (is_outside())
      shared().~coSharedText<C>();
  }

  // A short text or, at the beginning, a shared one.
  alignas(coSharedText<C>) unsigned char room[(most + 1) * sizeof(C)];
};
