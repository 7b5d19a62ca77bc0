#pragma once

#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsRecord.h"
#include "axsRecordPattern.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

/// Finds the records of a document in what a parser tells of it, with all their columns, in one pass: in a time that
/// grows with the document alone, in memory that grows with the largest record and the names.
class axsRecordHandler final : public axsParseHandler
{
public:
  /// Is called when a record ends; may stop the parser by throwing.
  using Ended = std::function<void(axsRecord&)>;

  /// `pattern` and `record` must live longer.
  axsRecordHandler(axsRecordPattern const& pattern, axsRecord& record, Ended ended);

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void start_document(axsLocator const& given) override { locator = &given; }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

  /// Whether a record is open.
  bool is_in_record() const noexcept { return !open.empty(); }

  /// Where the parser is; null before it has begun.
  axsLocator const* place() const noexcept { return locator; }

private:
  using Element = axsRecordPattern::Element;

  void begin_record(axsStartTag const& tag);
  void begin_child(axsStartTag const& tag);
  void take_attributes(Element const& element, axsStartTag const& tag);
  bool is_it(axsRecordPattern::Name const& wanted, axsName const& name, std::string_view name_space) const;

  axsRecordPattern const& pattern;
  axsRecord& record;
  Ended const record_ended;
  axsNameTable names;
  // The names of the pattern as those of the document, by their numbers.
  std::vector<axsName const*> wanted_names;
  axsLocator const* locator = nullptr;
  // Which name of the path the next element has to have, counted from 1.
  std::size_t depth = 1;
  // How many are open below them, about which it is not.
  std::uint64_t passed = 0;
  // Of the open elements of the record, their numbers in the pattern.
  std::vector<std::size_t> open;
};
