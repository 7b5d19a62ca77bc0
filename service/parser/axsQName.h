#pragma once

#include "axsCharacters.h"

#include <apBits.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

class axsAttributeList;
class axsName;
struct axsPrefix;

/// A name of a document as its parser needs it: the name of the tree, and what namespaces make of it.
struct axsQName
{
  /// `full` and `text`, the same in UTF-8, must live longer.
  axsQName(axsName const& full, std::string_view text) noexcept;

  /// Whether the name, and no longer one, stands at `p`, in memory as axsCharacters wants it. False also where the memory
  /// ends with the name, which may go on.
  bool stands_at(char const* p) const noexcept
  {
    return ((apBits::load(p) ^ words[0]) & masks[0]) == 0 && (text.size() <= word_size || has_rest_at(p)) &&
           ends_names(p[text.size()]);
  }

  axsName const* name;
  std::string_view text;

  /// What stands before the colon; null without one.
  axsPrefix const* prefix = nullptr;

  /// Of "xmlns" and "xmlns:p", which declare a namespace: the prefix that they bind; null of other names.
  axsPrefix* declared = nullptr;

  /// Whether it is a name without a colon, or two with one between them (Namespaces in XML, 4, [7] QName).
  bool is_qualified = true;

  /// The number of the last element that had an attribute of that name.
  std::uint64_t last_element = 0;

  /// What is declared of the attributes of elements of that name; null if nothing is.
  axsAttributeList* attributes = nullptr;

  /// The name that was read after this one the last time: they come in the same order again and again.
  axsQName* following = nullptr;

private:
  static constexpr std::size_t word_size = 8;

  static bool ends_names(char c) noexcept
  {
    return c != '\0' && axsCharacters::is_ascii(c) && !axsCharacters::is(c, axsCharacters::name);
  }

  // The name has more bytes than one word, and they stand at `p` up to there.
  bool has_rest_at(char const* p) const noexcept;

  // The first bytes of the name, and which bits of a word they are.
  std::uint64_t words[2] = {};
  std::uint64_t masks[2] = {};
};
