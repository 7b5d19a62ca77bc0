#pragma once

#include "axsNames.h"
#include "axsReadError.h"

#include <functional>
#include <string_view>

/// What a parser tells of a document, in the order of the document, in UTF-8. The seam between what parses and what
/// builds: neither knows the other. Views live for the duration of the call.
/// Whoever is told may stop the parser by throwing axsReadError.
class axsReadingEvents : public axsNames
{
public:
  /// Comes first, from a parser that knows places: `place` tells url, line and column of where it is, as long as it runs.
  virtual void start(std::function<axsReadError()> const& place) { static_cast<void>(place); }

  /// The document says that it is XML of that version; without it, it is 1.0.
  virtual void version(std::string_view number) { static_cast<void>(number); }

  /// An element begins; its attributes follow, in their order.
  virtual void start_element(axsName const& name) = 0;
  virtual void attribute(axsName const& name, std::string_view value) = 0;

  /// The element that began last and has not ended ends.
  virtual void end_element() = 0;

  /// A whole text, from markup to markup.
  virtual void text(std::string_view text) = 0;

  /// A whole CDATA section.
  virtual void cdata(std::string_view section) = 0;

  virtual void comment(std::string_view data) = 0;
  virtual void processing_instruction(std::string_view target, std::string_view data) = 0;

  /// The document type declaration, from "<!DOCTYPE" to ">".
  virtual void doctype(std::string_view declaration) = 0;
};
