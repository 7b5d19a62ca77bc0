#pragma once

#include "axsSpan.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Where the parts of a tag stand in the text of a document; tags of a document that is well-formed.
class axsTagText
{
public:
  struct Attribute
  {
    axsSpan whole; // from the white space before it
    axsSpan name;
    axsSpan value; // with its quotes
  };

  /// Of the start, end or empty-element tag at `span` of `text`.
  axsTagText(std::string_view text, axsSpan span);

  axsSpan name() const noexcept { return name_span; }
  std::vector<Attribute> const& attributes() const noexcept { return all; }

  /// Null if it is not specified.
  Attribute const* find(std::string_view attribute) const noexcept;

  /// Where a further attribute goes, and the white space to be put before it: that before the last one.
  std::size_t attributes_end() const noexcept { return all.empty() ? name_span.end : all.back().whole.end; }
  std::string_view separator() const noexcept;

  /// Whether it is an empty-element tag, and what closes it, with the white space before.
  bool is_empty() const noexcept { return empty; }
  axsSpan closing() const noexcept { return {attributes_end(), tag.end}; }

private:
  std::string_view all_text;
  axsSpan tag;
  axsSpan name_span;
  std::vector<Attribute> all;
  bool empty = false;
};
