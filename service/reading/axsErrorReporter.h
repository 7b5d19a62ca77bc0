#pragma once

#include "axsReadError.h"

#include <xercesc/framework/XMLErrorReporter.hpp>

/// Makes the parser stop at the first error: throws it as axsReadError. Warnings are passed over.
class axsErrorReporter final : public xercesc::XMLErrorReporter
{
public:
  void error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text, XMLCh const* system_id,
    XMLCh const* public_id, XMLFileLoc line, XMLFileLoc column) override;
  void resetErrors() override {}

  /// The error for a place in the parser's terms.
  static axsReadError make(apString const& message, XMLCh const* system_id, XMLFileLoc line, XMLFileLoc column);
};
