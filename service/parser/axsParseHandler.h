#pragma once

#include "axsNames.h"
#include "axsReadError.h"

#include <memory>
#include <string_view>

class axsDtd;
class axsLocator;
struct axsStartTag;

/// Is told by a parser what it reads, in the order of the document, in UTF-8. The seam between what parses and what takes
/// it, a tree, a validator or a reader: neither side knows the other, and filters may stand between them. Views and
/// objects live for the duration of the call.
/// A handler may stop the parser by throwing axsReadError.
class axsParseHandler : public axsNames
{
public:
  /// Comes first. `locator` may be asked during each event until the parser is gone.
  virtual void start_document(axsLocator const& locator) { static_cast<void>(locator); }

  /// The XML declaration (XML 1.0, 2.8); `encoding` and `standalone` are empty where it does not say them.
  virtual void declaration(std::string_view version, std::string_view encoding, std::string_view standalone)
  {
    static_cast<void>(version);
    static_cast<void>(encoding);
    static_cast<void>(standalone);
  }

  /// The document type declaration, when all of it has been read.
  virtual void doctype(std::shared_ptr<axsDtd const> const& type) = 0;

  virtual void start_element(axsStartTag const& tag) = 0;

  /// The element that began last and has not ended ends.
  virtual void end_element() = 0;

  /// A whole text, from markup to markup, or a whole CDATA section; that may be empty.
  virtual void text(std::string_view text, bool is_cdata) = 0;

  virtual void comment(std::string_view data) = 0;
  virtual void processing_instruction(std::string_view target, std::string_view data) = 0;
};
