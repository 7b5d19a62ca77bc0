#pragma once

#include "axsNameTable.h"
#include "axsParseHandler.h"

#include <string>
#include <string_view>
#include <unordered_set>

class axsNode;
class axsTree;

/// Compares what a parser tells of a document with a tree that has all its text: whether it is the same but for how it is
/// written, CDATA sections and the division of texts among that.
class axsTreeComparison final : public axsParseHandler
{
public:
  /// Both must live longer. `defaults` are the attributes of the tree that were added by the document type: they and those
  /// that the parser adds count nothing.
  axsTreeComparison(axsTree const& tree, std::unordered_set<axsNode const*> const& defaults);

  /// Whether all that was told was the same.
  bool is_same() const noexcept { return same; }

  /// The same when the document has ended.
  bool is_whole() noexcept;

  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const& type) override;
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view data) override;
  void processing_instruction(std::string_view target, std::string_view data) override;

private:
  void end_text();
  axsNode const* take();
  void expect(bool is_right) noexcept { same = same && is_right; }

  axsNameTable names;
  std::unordered_set<axsNode const*> const& added;
  axsNode const* parent;
  axsNode const* next;
  std::string read;
  std::string expected;
  bool same = true;
};
