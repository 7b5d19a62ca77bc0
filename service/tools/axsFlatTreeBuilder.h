#pragma once

#include "axsFlatTree.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class axsFlatTreeNames;

/// What a flat tree leaves out; xml:space="preserve" keeps white space. A plain value.
struct axsFlatTreeRules
{
  /// White space between elements where there is no other text beside them.
  bool leaves_out_space = false;
  /// Instead of the white space in a text one blank, and none at its ends; a text of which nothing is left is left out.
  bool joins_space = false;
  bool leaves_out_comments = false;
};

/// Builds a flat tree from the events of a parser, in a time linear in them.
class axsFlatTreeBuilder final : public axsParseHandler
{
public:
  /// Both must live longer. `built` is empty.
  axsFlatTreeBuilder(axsFlatTree& built, axsFlatTreeNames& names, axsFlatTreeRules const& rules);

  axsName const& name(std::string_view text) override { return read_names.intern(text); }
  void start_document(axsLocator const& given) override { locator = &given; }
  void declaration(std::string_view version, std::string_view encoding, std::string_view standalone) override;
  void doctype(std::shared_ptr<axsDtd const> const& type) override;
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view data) override;
  void processing_instruction(std::string_view target, std::string_view data) override;

  /// To be called when the document has ended.
  void finish();

private:
  using Kind = axsFlatTree::Kind;
  using Node = axsFlatTree::Node;

  struct Open
  {
    std::size_t node;
    bool is_preserved;
    bool has_text = false;
    bool has_markup = false;
    // Children that are white space only.
    std::vector<std::size_t> spaces;
  };

  Node& add(Kind kind);
  void end_text();
  void leave_out();
  void count_sizes();
  void number_children();
  void hash_all();

  axsFlatTree& tree;
  axsFlatTreeNames& names;
  axsFlatTreeRules const rules;
  axsNameTable read_names;
  axsLocator const* locator = nullptr;
  bool is_xml_1_1 = false;
  std::vector<Open> open;
  // A text that may go on: there may be references and CDATA sections in it.
  std::string pending;
  bool has_pending = false;
  std::uint64_t pending_line = 0;
};
