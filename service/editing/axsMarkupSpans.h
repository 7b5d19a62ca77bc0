#pragma once

#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsPlace.h"
#include "axsSpan.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Takes down where some of the tags, comments and processing instructions of a document stand, of which each has a number:
/// they are counted from 1, the document type declaration among them, an empty-element tag twice.
class axsMarkupSpans final : public axsParseHandler
{
public:
  struct Markup
  {
    std::uint64_t number = 0;
    axsSpan span;
    axsPlace place;
    axsPlace end_place;
    bool is_in_document = false; // and not in an entity
  };

  /// Of those numbers, in any order; `mark_size` is what the byte-order mark takes.
  axsMarkupSpans(std::vector<std::uint64_t> wanted, std::size_t mark_size);

  bool is_complete() const noexcept { return next == all.size(); }

  /// One that was wanted.
  Markup const& of(std::uint64_t number) const noexcept;

  /// The first start tag in the document that has an attribute, as far as has been read; empty if there is none.
  axsSpan first_tag_with_attribute() const noexcept { return styled_tag; }

  void start_document(axsLocator const& given) override { locator = &given; }
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override { count_markup(); }
  void start_element(axsStartTag const& tag) override;
  void end_element() override { count_markup(); }
  void text(std::string_view, bool) override {}
  void comment(std::string_view) override { count_markup(); }
  void processing_instruction(std::string_view, std::string_view) override { count_markup(); }

private:
  void count_markup();
  axsSpan span() const;

  axsNameTable names;
  axsLocator const* locator = nullptr;
  std::size_t const before_text;
  std::vector<Markup> all;
  std::size_t next = 0;
  std::uint64_t count = 0;
  axsSpan styled_tag;
};
