#pragma once

#include "axsXPathToken.h"

#include <string_view>

/// Cuts an XPath expression into its tokens, one a call, deciding between names and operators as XPath 1.0, section 3.7
/// rules. Points into the expression, which has to outlive it and its tokens; one object belongs to one thread.
class axsXPathLexer
{
public:
  /// Starts at the beginning of `expression`, UTF-8.
  explicit axsXPathLexer(std::string_view expression) noexcept;

  /// The next token. At the end of the expression it is of the kind `end`, where no token begins of the kind `wrong`; it
  /// stays so at further calls.
  axsXPathToken next() noexcept;

private:
  axsXPathToken read() noexcept;
  axsXPathToken read_symbol() noexcept;
  axsXPathToken read_literal() noexcept;
  axsXPathToken read_number() noexcept;
  axsXPathToken read_variable() noexcept;
  axsXPathToken read_name() noexcept;
  axsXPathToken read_operator_name() noexcept;

  /// The name without a colon that starts here, passed over; empty if there is none.
  std::string_view take_name() noexcept;

  void skip_space() noexcept;
  bool starts_with(std::string_view wanted) const noexcept;
  axsXPathToken made(axsXPathToken::Kind kind, std::size_t bytes) noexcept;
  axsXPathToken wrong(std::size_t position, char const* problem) const noexcept;

  std::string_view text;
  std::size_t at = 0;
  bool first = true;
  axsXPathToken previous;
};
