#pragma once

#include "apExport.h"

#include <coText.h>
#include <utString.h>

#include <cstddef>
#include <iosfwd>
#include <string_view>
#include <utility>

/// Wide text: Unicode in `wchar_t` (UTF-16 where that has 16 bits, UTF-32 where it has 32), closed by a NUL that does
/// not count.
///
/// A value type that cannot be changed in place except where an operation says so. A short text, of up to `max_inside`
/// characters, lies in the object itself and needs no allocation; of a longer one, copies share the storage, which goes
/// with the last of them. The count is atomic, so copies may be made, used and dropped by several threads, while one and
/// the same object belongs to one thread at a time. Lengths and positions are counted in `wchar_t`, positions from 0.
/// Operations that make a text throw std::bad_alloc when memory runs out and leave their object as it was.
class AP_API apString
{
public:
  /// How long a text that needs no allocation may be.
  static constexpr int max_inside = 23;

  /// The empty text.
  AP_KEPT apString() noexcept {}

  /// A copy of the NUL-terminated `wide` text; empty if it is null.
  apString(wchar_t const* wide);

  /// A copy of the `length` characters at `wide`; a negative length counts as 0.
  apString(wchar_t const* wide, int length);

  explicit apString(std::wstring_view wide);

  /// The text of NUL-terminated UTF-8; empty if it is null. See from_utf8().
  apString(char const* utf8);

  apString(utString const& utf8);

  AP_KEPT apString(apString const& other) noexcept : text(other.text) {}
  AP_KEPT apString(apString&& other) noexcept : text(std::move(other.text)) {}

  AP_KEPT apString& operator=(apString const& other) noexcept
  {
    text = other.text;
    return *this;
  }

  AP_KEPT apString& operator=(apString&& other) noexcept
  {
    text = std::move(other.text);
    return *this;
  }

  AP_KEPT ~apString() {}

  /// The text of `utf8`. Each longest beginning of a sequence that is not UTF-8 (an overlong form, a surrogate or a
  /// number beyond U+10FFFF included) becomes one U+FFFD (The Unicode Standard, "Substitution of Maximal Subparts").
  static apString from_utf8(std::string_view utf8);

  /// Takes the text that from_utf8() gives, in less time than an assignment of that.
  void assign_utf8(std::string_view utf8);

  /// The text as UTF-8; what is not Unicode (an unpaired surrogate, a number beyond U+10FFFF) becomes U+FFFD.
  utString to_utf8() const;

  /// The characters, with a NUL after the last one; never null. They live as long as this object and stay where they are
  /// until it takes another value.
  AP_KEPT wchar_t const* c_str() const noexcept { return text.data(); }

  AP_KEPT int length() const noexcept { return text.length(); }

  AP_KEPT bool empty() const noexcept { return length() == 0; }

  AP_KEPT std::wstring_view view() const noexcept { return {c_str(), static_cast<std::size_t>(length())}; }

  /// Equality and order of the whole texts, character by character; NULs inside count as characters.
  bool operator==(apString const& other) const noexcept;
  bool operator!=(apString const& other) const noexcept;
  bool operator<(apString const& other) const noexcept;

  /// The position of the first occurrence of `wanted` at or after `from`, -1 if there is none. An empty `wanted` is
  /// found at `from` as long as that is within the text. A negative `from` counts as 0.
  int find(apString const& wanted, int from = 0) const noexcept;

  /// Replaces every occurrence of `wanted`, found from left to right without overlap, and returns their number.
  /// An empty `wanted` is found nowhere.
  int replace_all(apString const& wanted, apString const& replacement);

  apString& operator+=(apString const& other);

private:
  using Text = coText<wchar_t, max_inside>;

  friend AP_API apString operator+(apString const& left, apString const& right);

  // The text of `length` characters (0 or more) that `write` puts at the place it is given.
  template <class Write>
  apString(std::size_t length, Write const& write);

  static apString from_any_utf8(std::string_view utf8);

  Text text;
};

AP_API apString operator+(apString const& left, apString const& right);

/// Writes the text as UTF-8, without regard to width and fill; what is not Unicode as U+FFFD.
AP_API std::ostream& operator<<(std::ostream& out, apString const& text);

/// A wide text from a narrow literal: APSTRING("name").
#define APSTRING(literal) apString(L"" literal)
