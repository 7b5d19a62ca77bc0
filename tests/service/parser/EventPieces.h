#pragma once

#include "EventText.h"

/// Takes down what other parsers tell: text comes in pieces, and what stands in the document type comes too, which is no event
/// of ours.
class EventPieces
{
public:
  void start(std::string_view name, std::vector<EventText::Attribute> attributes)
  {
    end_text();
    taken.start(name, std::move(attributes));
  }
  void end()
  {
    end_text();
    taken.end();
  }
  void text(std::string_view piece) { pending += piece; }
  void start_cdata() { end_text(); }
  void end_cdata()
  {
    taken.cdata(pending);
    pending.clear();
  }
  void comment(std::string_view data)
  {
    if (is_in_doctype)
      return;
    end_text();
    taken.comment(data);
  }
  void instruction(std::string_view target, std::string_view data)
  {
    if (is_in_doctype)
      return;
    end_text();
    taken.instruction(target, data);
  }
  void start_doctype() { is_in_doctype = true; }
  void end_doctype() { is_in_doctype = false; }

  std::string const& all() const noexcept { return taken.all(); }

private:
  void end_text()
  {
    if (!pending.empty())
      taken.text(pending);
    pending.clear();
  }

  EventText taken;
  std::string pending;
  bool is_in_doctype = false;
};
