#pragma once

#include <string>
#include <utility>
#include <vector>

/// A schema as PairMaker writes it, looked at for what rules are about.
class DrawnSchema
{
public:
  explicit DrawnSchema(std::string given) : text(std::move(given)) {}

  bool has(std::string const& part) const { return text.find(part) != std::string::npos; }

  /// Whether one of the values by default, or fixed, has that token in it.
  bool has_default_with(std::string const& token) const;

  /// Whether the type is the other one, or restricted from it, or a list or union with it in it.
  bool is_made_of(std::string const& type, std::string const& part) const;

  /// Whether an attribute is of a type that is restricted from ID; with a default or a fixed value, if that is asked for.
  bool has_attribute_derived_from_id(bool is_constrained) const;

  /// Whether an attribute is of a list or union in which IDs are.
  bool has_attribute_made_of_ids(bool is_constrained) const;

  /// Whether a type is a list of NMTOKENs, NMTOKENS or restricted from it, with that facet.
  bool has_nmtokens_with(std::string const& facet) const;

  /// Whether a type has a minExclusive that is not below a maxInclusive of it or of what it is restricted from.
  bool has_lower_bound_at_upper_one() const;

  /// Whether a type has the same value for a facet as what it is restricted from.
  bool has_repeated(std::string const& facet) const;

  /// Whether a type of a group "all" is extended without more content.
  bool has_all_extended_by_nothing() const;

private:
  struct Attribute
  {
    std::string type;
    bool is_constrained;
  };

  std::vector<std::string> simple_types() const;
  std::vector<Attribute> attributes() const;
  std::string body(std::string const& kind, std::string const& name) const;
  std::string simple_body(std::string const& type) const { return body("simpleType", type); }
  std::vector<std::string> restricted_from(std::string const& type) const;

  std::string text;
};
