#pragma once

#include "axsReadName.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What a document declares of the attributes of one element (3.3), in the order in which it does.
class axsAttributeList
{
public:
  enum class Type
  {
    character_data,
    tokens
  };

  /// A list cannot be longer.
  static constexpr std::size_t most_attributes = 100;

  /// An attribute without a default. Whether it was added: it was not declared yet, and there is room.
  bool add(axsReadName& name, Type type);

  /// The default of the attribute that was added last.
  void set_default(std::string_view value);

  /// Whether the attribute is declared to be one of tokens: of any type but CDATA (3.3.1).
  bool is_of_tokens(axsReadName const& name) const noexcept;

  /// Adds to `attributes`, those of the element of that number, the ones that it lacks and that have a default (3.3.2).
  /// The values live as long as the list. Returns how much that is, as axsGrowth counts.
  std::size_t add_missing(std::vector<axsReadAttribute>& attributes, std::uint64_t element) const;

private:
  struct Declared
  {
    axsReadName* name;
    Type type;
    bool has_default;
    std::string value;
  };

  std::vector<Declared> all;
};
