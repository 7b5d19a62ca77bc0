#pragma once

#include "axsContentSize.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsStartTag.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

class axsSource;

/// A look over one schema document before the validator gets it: that it is one, for which namespace, and that it does
/// not ask for more than the validator can bear.
///
/// The validator goes down into nested parts by recursion, hence a bound; for another one it tells axsContentSize what the
/// schema allows.
class axsSchemaScan final : private axsParseHandler
{
public:
  /// How deep elements of a schema may be nested.
  static constexpr std::size_t most_levels = 500;

  /// Throws axsReadError when it is no schema or nested deeper, std::bad_alloc when memory runs out.
  axsSchemaScan(axsSource& source, axsContentSize& sizes);

  /// In UTF-8, empty for none.
  std::string const& target_namespace() const noexcept { return target; }

  /// Whether the declaration whose tag ends at that line and column is a global attribute with a legal "use", which we
  /// accept though it says nothing there.
  bool has_lenient_use(int line, int column) const { return lenient.count({line, column}) != 0; }

private:
  struct Level
  {
    // Of the schema language itself, "" for any other element.
    std::string_view local;
    // The content it belongs to, and how often the groups around it, and it itself, repeat what is in it.
    axsContentSize::Id content;
    double repetitions;
  };

  void start_document(axsLocator const& told) override { locator = &told; }
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void start_element(axsStartTag const& tag) override;
  void end_element() override { levels.pop_back(); }
  void text(std::string_view, bool) override {}
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}
  void doctype(std::shared_ptr<axsDtd const> const&) override {}

  void enter_content(Level& level);
  std::string_view own_attribute(std::string_view local) const;
  [[noreturn]] void fail(apString const& message) const;

  axsContentSize& content_sizes;
  axsLocator const* locator = nullptr;
  axsNameTable names;
  std::vector<Level> levels;
  // Of the element that begins.
  axsReadError entered_place;
  std::vector<axsTagAttribute> const* entered_attributes = nullptr;
  std::string target;
  std::set<std::pair<int, int>> lenient;
};
