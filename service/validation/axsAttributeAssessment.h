#pragma once

#include "axsFindings.h"
#include "axsStartTag.h"
#include "axsTypeDefinition.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class axsName;
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

private:
  struct Usual
  {
    axsName const* name;
    axsAttributeUse const* use;
  };

  // Of the elements of one type, which mostly have the same attributes in the same order.
  struct Known
  {
    bool is_looked_up = false;
    std::vector<std::size_t> awaited; // the numbers of the uses that are required or have a default
    bool has_usual = false;
    std::vector<Usual> usual; // those of an element in which each was declared and none was missing
  };

  static bool is_exempt(axsTagAttribute const& attribute) noexcept;
  Known& known_of(axsComplexType const& type);
  bool assess_usual(Known const& known);
  void assess_each(axsComplexType const& type, Known& known);
  void assess_use(axsTagAttribute const& attribute, axsAttributeUse const& use);
  void assess_wild(axsTagAttribute const& attribute, axsComplexType const& type);
  void check_value(axsTagAttribute const& attribute, axsSimpleType const& type, std::string const* fixed,
    std::string const& shown_fixed);
  bool add_missing(axsComplexType const& type, Known const& known);
  void add_default(axsAttributeUse const& use);
  void add_references(axsAttributeUse const& use, std::string const& value);
  void tell_identity(axsTagAttribute const& attribute);
  std::string subject(axsTagAttribute const& attribute) const;
  std::string element() const;

  axsFindings& findings;
  axsStartTag const* start = nullptr;
  std::vector<char> is_seen; // by the number of the use
  std::size_t wild_ids = 0;
  std::vector<Known> known_types; // by the number of the type
};
