#pragma once

#include "axsReadingEvents.h"

class axsAttribute;
class axsDocument;
class axsElement;
class axsNode;
class axsParent;

/// Builds the tree of a document from what a parser tells. The document is held by its caller.
///
/// A text that is white space only is dropped, except where it is exactly one space.
class axsTreeBuilder final : public axsReadingEvents
{
public:
  explicit axsTreeBuilder(axsDocument& document) noexcept;

  void version(std::string_view number) override;
  axsName const& name(std::string_view text) override;
  void start_element(axsName const& name) override;
  void attribute(axsName const& name, std::string_view value) override;
  void end_element() override;
  void text(std::string_view text) override;
  void cdata(std::string_view section) override;
  void comment(std::string_view data) override;
  void processing_instruction(std::string_view target, std::string_view data) override;
  void doctype(std::string_view declaration) override;

private:
  void append_text(std::string_view text, bool cdata);

  axsDocument& built;
  axsParent* open;
  axsAttribute* last_attribute = nullptr;
};
