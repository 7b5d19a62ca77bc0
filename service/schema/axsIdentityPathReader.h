#pragma once

#include "axsIdentityConstraint.h"
#include "axsSchemaContext.h"

#include <string_view>

/// Reads the restricted XPath of selectors and fields (Part 1, 3.11.6, c-selector-xpath, c-fields-xpaths).
class axsIdentityPathReader
{
public:
  axsIdentityPathReader(axsSchemaContext& shared, axsSchemaElement const& element);

  /// The path of the attribute `xpath`; what is wrong is told of.
  axsIdentityPath read();

private:
  bool alternative(axsIdentityPath::Alternative& made);
  bool step(axsIdentityPath::Alternative& made);
  bool name_test(axsIdentityPath::Step& step);
  bool fail(char const* message);

  bool skip(std::string_view token);
  std::string_view ncname();
  void skip_space();

  axsSchemaContext& context;
  axsSchemaElement const& element;
  bool is_field;
  std::string_view text;
  std::size_t at = 0;
};
