#pragma once

#include "axsReadError.h"

#include <xercesc/framework/XMLErrorReporter.hpp>

#include <functional>
#include <utility>

/// Makes the parser stop at the first error: throws it as axsReadError. Warnings are passed over.
class axsErrorReporter final : public xercesc::XMLErrorReporter
{
public:
  /// `open_since` tells in which line the innermost element began that is open, 0 if none is.
  explicit axsErrorReporter(std::function<int()> open_since) : open_line(std::move(open_since)) {}

  void error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text, XMLCh const* system_id,
    XMLCh const* public_id, XMLFileLoc line, XMLFileLoc column) override;
  void resetErrors() override {}

  /// The error for a place in the parser's terms.
  static axsReadError make(apString const& message, XMLCh const* system_id, XMLFileLoc line, XMLFileLoc column);

private:
  std::function<int()> open_line;
};
