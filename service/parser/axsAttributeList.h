#pragma once

#include "axsReadAttributes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// What a document declares of the attributes of one element (3.3), as the parser needs it for each such element.
class axsAttributeList
{
public:
  /// An attribute without a default. Whether it was added: it was not declared yet (3.3).
  bool add(axsQName& name, axsAttributeType type);

  /// The default of the attribute that was added last.
  void set_default(axsQName& name, axsAttributeType type, std::string_view value);

  /// CDATA, if it is not declared.
  axsAttributeType type_of(axsQName const& name) const;

  /// Adds to `attributes`, those of the element of that number, the ones that it lacks and that have a default (3.3.2).
  /// The values live as long as the list. Returns how many bytes that adds.
  std::uint64_t add_missing(axsReadAttributes& attributes, std::uint64_t element) const;

private:
  struct Default
  {
    axsQName* name;
    axsAttributeType type;
    std::string value;
  };

  std::unordered_map<axsQName const*, axsAttributeType> types;
  std::vector<Default> defaults;
  // Whether some attribute is of another type than CDATA.
  bool has_tokens = false;
};
