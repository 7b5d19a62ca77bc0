#pragma once

#include <apString.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The name of elements and attributes of one document, kept once for all of them: two nodes of a document have the same
/// name exactly if they point to the same object. How long it lives, its table says (axsNameTable).
class axsName
{
public:
  /// What takes the place of a number where numbers have run out.
  static constexpr std::uint16_t no_number = 0xFFFF;

  /// `given` is the number by which the table of names finds it, or no_number.
  axsName(std::string_view text, std::uint16_t given)
    : wide_text(apString::from_utf8(text)),
      wide_characters(wide_text.view()),
      narrow_text(text),
      colon(narrow_text.find(':')),
      place(given)
  {
  }

  apString const& wide() const noexcept { return wide_text; }
  std::wstring_view wide_view() const noexcept { return wide_characters; }
  std::string_view utf8() const noexcept { return narrow_text; }

  std::uint16_t number() const noexcept { return place; }

  /// What stands before the first colon; empty without one.
  std::string_view prefix() const noexcept
  {
    return colon == std::string::npos ? std::string_view() : utf8().substr(0, colon);
  }

  /// What stands after the first colon; the whole name without one.
  std::string_view local() const noexcept { return colon == std::string::npos ? utf8() : utf8().substr(colon + 1); }

private:
  friend class axsNameTable;

  apString wide_text;
  std::wstring_view wide_characters;
  std::string narrow_text;
  std::size_t colon;
  std::uint16_t place;

  // What the table keeps of it: whether it lives as long as the table, and otherwise how many nodes have it.
  mutable bool stays = true;
  mutable std::size_t users = 0;
};
