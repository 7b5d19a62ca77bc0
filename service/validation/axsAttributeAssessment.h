#pragma once

#include "axsFindings.h"
#include "axsStartTag.h"
#include "axsTypeDefinition.h"

#include "axsTextHash.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct axsAttributeUse;
struct axsComplexType;
struct axsWildcard;

/// Assesses the attributes of an element (Part 1, 3.2.4, 3.4.4 cvc-complex-type.3 to .5, 3.5.4).
class axsAttributeAssessment
{
public:
  static constexpr std::string_view xsi = "http://www.w3.org/2001/XMLSchema-instance";

  explicit axsAttributeAssessment(axsFindings& all) : findings(all) {}

  /// Of an element of a complex type.
  void assess(axsStartTag const& tag, axsComplexType const& type);
  /// Of one of a simple type, which has none.
  void assess_simple(axsStartTag const& tag);
  /// Of one of which nothing is known: those that are known are looked at.
  void assess_lax(axsStartTag const& tag);
  /// Nothing is looked at.
  void skip(axsStartTag const& tag);

  /// Whether a value of the type may be or contain an ID or a reference to one.
  static bool has_meaning(axsSimpleType const& type) noexcept;

  /// The attributes that the type adds to the element assessed last.
  std::vector<axsAttributeUse const*> const& defaults() const noexcept { return added; }

private:
  struct NameHash
  {
    axsTextHash text;
    std::size_t operator()(std::pair<std::string_view, std::string_view> const& name) const
    {
      return text(name.first) * 31 + text(name.second);
    }
  };
  static bool is_exempt(axsTagAttribute const& attribute) noexcept;
  std::size_t find_use(axsComplexType const& type, axsTagAttribute const& attribute);
  void assess_use(axsTagAttribute const& attribute, axsAttributeUse const& use);
  void assess_wild(axsTagAttribute const& attribute, axsComplexType const& type);
  bool check_value(axsTagAttribute const& attribute, axsSimpleType const& type, std::string const* fixed,
    std::string const& shown_fixed);
  void add_missing(axsComplexType const& type);
  void add_references(axsAttributeUse const& use, std::string const& value);
  void tell_identity(axsTagAttribute const& attribute);
  std::string subject(axsTagAttribute const& attribute) const;
  std::string element() const;

  axsFindings& findings;
  axsStartTag const* start = nullptr;
  std::vector<char> is_seen; // by the number of the use
  std::size_t wild_ids = 0;
  std::vector<axsAttributeUse const*> added;
};
