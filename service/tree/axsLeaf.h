#pragma once

#include "axsNode.h"

#include <cstring>

/// A node that consists of a text, in UTF-8: of an attribute the value, of a text or comment the data. A processing
/// instruction has its target there, too, before the first space; a document type its whole declaration.
///
/// Room for the text follows the record, in units of `unit` bytes, of which there is at least one. A text that is too
/// long for the room lies in a block of its own, and the room has its address.
class axsLeaf : public axsNode
{
public:
  static constexpr std::size_t unit = 8;

  static constexpr std::size_t units_for(std::size_t length) noexcept
  {
    return length <= unit ? 1 : (length + unit - 1) / unit;
  }

  std::string_view text() const noexcept
  {
    return is_external() ? std::string_view(external()->bytes(), external()->length)
                         : std::string_view(room(), text_length);
  }

  /// Throws std::bad_alloc, with the text as it was, when memory runs out or the text is too long for an apString.
  void set_text(std::string_view text);

  /// The same for a node that has had no text yet, and has room for it, in less time.
  void set_first_text(std::string_view text) noexcept
  {
    copy(text, room());
    text_length = static_cast<std::uint16_t>(text.size());
  }

  /// The bytes of the record and its room.
  std::size_t size() const noexcept { return sizeof(axsLeaf) + room_units * unit; }

  /// Gives the memory of a text outside the room back to the arena; called before the record goes.
  void free_text() noexcept;

protected:
  /// `units` units of room follow the record.
  axsLeaf(axsKind kind, std::uint8_t units) noexcept : axsNode(kind), room_units(units) {}
  axsLeaf(axsName const& full_name, std::uint8_t units) noexcept : axsNode(full_name), room_units(units) {}
  ~axsLeaf() = default;

private:
  struct ExternalText
  {
    std::size_t length;

    std::size_t size() const noexcept { return sizeof(ExternalText) + length; }
    char* bytes() noexcept { return reinterpret_cast<char*>(this + 1); }
  };

  static constexpr std::uint16_t length_of_external = 0xFFFF;

  struct TwoWords
  {
    std::uint64_t words[2];
  };

  // Most texts are short: two pieces that overlap, rather than a call.
  static void copy(std::string_view text, char* to) noexcept
  {
    std::size_t const size = text.size();
    if (size > 2 * sizeof(TwoWords))
      std::memcpy(to, text.data(), size);
    else if (size > sizeof(TwoWords))
      copy_ends<TwoWords>(text, to);
    else if (size >= 8)
      copy_ends<std::uint64_t>(text, to);
    else if (size >= 4)
      copy_ends<std::uint32_t>(text, to);
    else
      for (std::size_t i = 0; i < size; ++i)
        to[i] = text[i];
  }

  template <class Word>
  static void copy_ends(std::string_view text, char* to) noexcept
  {
    Word first;
    Word last;
    std::memcpy(&first, text.data(), sizeof first);
    std::memcpy(&last, text.data() + text.size() - sizeof last, sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + text.size() - sizeof last, &last, sizeof last);
  }

  char* room() const noexcept { return reinterpret_cast<char*>(const_cast<axsLeaf*>(this) + 1); }

  bool is_external() const noexcept { return text_length == length_of_external; }
  ExternalText* external() const noexcept { return *reinterpret_cast<ExternalText**>(room()); }
  ExternalText* make_external(std::string_view text);

  std::uint8_t room_units;
  std::uint16_t text_length = 0;
};

inline std::string_view axsNode::value() const noexcept
{
  switch (node_kind)
  {
  case axsKind::document:
  case axsKind::element:
  case axsKind::doctype:
    return {};
  case axsKind::attribute:
  case axsKind::text:
  case axsKind::cdata_section:
  case axsKind::comment:
    return static_cast<axsLeaf const*>(this)->text();
  case axsKind::processing_instruction:
    return instruction_data();
  }
  return {};
}
