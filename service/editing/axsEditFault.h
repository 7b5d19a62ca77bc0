#pragma once

#include <axmParseError.h>

#include <string>

/// Why an edit was not made.
struct axsEditFault
{
  enum class Kind
  {
    none,
    /// The document cannot be read.
    document,
    /// What was asked for is no expression, name or fragment, or the expression gives no nodes.
    request,
    /// The expression selects nothing.
    nothing,
    /// What is selected cannot be edited so.
    edit
  };

  Kind kind = Kind::none;

  /// With the place where there is one: in the document or, in a fragment, without a URL.
  axmParseError error;

  /// The expression or name, in UTF-8, that the message is about; empty where there is none.
  std::string about;
};
