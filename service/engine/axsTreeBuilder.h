#pragma once

#include "axsDtd.h"
#include "axsParseHandler.h"

#include <vector>

class axsDomDocument;
class axsName;
class axsParent;
class axsTree;

/// Builds the tree of a document from the events of a parser. The caller holds the document.
///
/// A text that is white space only is dropped, except where it is exactly one space or the author asked with xml:space for
/// it to be preserved (XML 1.0, 2.10).
class axsTreeBuilder : public axsParseHandler
{
public:
  explicit axsTreeBuilder(axsDomDocument& document) noexcept;

  /// Builds under `parent`, a node of the document that the caller holds, instead.
  axsTreeBuilder(axsDomDocument& document, axsParent& parent) noexcept;

  /// From now on no text is dropped.
  void keep_all_spaces() noexcept { keeps_spaces = true; }

  /// The node whose content comes next.
  axsParent& innermost() const noexcept { return *open; }

  void declaration(std::string_view version, std::string_view encoding, std::string_view standalone) override;
  axsName const& name(std::string_view text) override;
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view data) override;
  void processing_instruction(std::string_view target, std::string_view data) override;
  void doctype(std::shared_ptr<axsDtd const> const& type) override;

private:
  struct Space
  {
    axsParent const* element;
    bool is_preserved;
  };

  void declare(axsName const& element, axsDtd::Attribute const& attribute);

  axsDomDocument& built;
  // The same: what makes nodes of it in place.
  axsTree& tree;
  axsParent* open;
  // That of the attribute xml:space; null as long as there is none.
  axsName const* space_name = nullptr;
  bool keeps_spaces = false;
  // What the open elements say with xml:space, the innermost last.
  std::vector<Space> spaces;
};
