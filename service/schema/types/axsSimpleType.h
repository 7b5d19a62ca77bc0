#pragma once

#include "axsDerivation.h"
#include "axsFacet.h"
#include "axsPrimitive.h"
#include "axsQuickCheck.h"
#include "axsValue.h"
#include "axsValueContext.h"
#include "axsValueSet.h"
#include "axsWhiteSpace.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class axsPattern;

/// A simple type definition (XML Schema Part 1, 3.14.1): built in (axsBuiltInTypes) or made by an axsSimpleTypes, which
/// owns it; what it is derived from must live as long. Immutable, and so shared between threads.
class axsSimpleType
{
public:
  enum class Variety : unsigned char
  {
    ur, // anySimpleType
    atomic,
    list,
    union_of
  };

  /// What the value stands for beside itself.
  enum class Role : unsigned char
  {
    plain,
    id,
    idref,
    entity
  };

  axsSimpleType(axsSimpleType const&) = delete;
  axsSimpleType& operator=(axsSimpleType const&) = delete;
  ~axsSimpleType();

  /// Empty of a type without a name.
  std::string const& name() const noexcept { return own_name; }
  std::string const& name_space() const noexcept { return own_name_space; }
  bool is_built_in() const noexcept { return built_in; }

  Variety variety() const noexcept { return own_variety; }

  /// Null of anySimpleType only.
  axsSimpleType const* base() const noexcept { return own_base; }

  /// none but of atomic types.
  axsPrimitive primitive() const noexcept { return own_primitive; }

  /// The type of a list's items; null of others.
  axsSimpleType const* item() const noexcept { return own_item; }

  /// A union's members, in their order, a type that is named again left out; empty of others.
  std::vector<axsSimpleType const*> const& members() const noexcept;

  /// Of a union collapse, which each member does for itself (Part 2, 4.3.6).
  axsWhiteSpace white_space() const noexcept { return own_white_space; }

  /// Of atomic types.
  Role role() const noexcept { return own_role; }

  /// The derivations that may not be made from it.
  axsDerivationSet final_set() const noexcept { return own_final; }

  /// Whether the type is ID or NOTATION, or made of it: derived from it, or with such items or members.
  bool has_id() const noexcept { return contains_id; }
  bool has_notation() const noexcept { return contains_notation; }

  /// Whether it is NOTATION without an enumeration, of which types may be made only (Part 2, 3.2.19,
  /// enumeration-required-notation).
  bool lacks_notations() const noexcept
  {
    return own_variety == Variety::atomic && contains_notation && !has_facet(axsFacetKind::enumeration);
  }

  /// Whether a value may be or contain an ID or a reference to one.
  bool has_references() const noexcept { return contains_references; }

  /// Whether every text is a value of the type, whatever surrounds it.
  bool takes_all() const noexcept { return quick.takes_all(); }

  /// Whether values depend on the namespaces in scope: the type is or contains QName or NOTATION.
  bool needs_namespaces() const noexcept { return contains_names; }

  /// Whether the facet is set, by the type or one that it is derived from. For pattern: whether there is one.
  bool has_facet(axsFacetKind kind) const noexcept;
  bool is_fixed(axsFacetKind kind) const noexcept;

  /// The facet's value as written; empty if it is not set. Not for pattern and enumeration.
  std::string const& facet_text(axsFacetKind kind) const noexcept;

  /// The listed values (axsValue::bytes); empty without the facet enumeration.
  axsValueSet const* enumeration() const noexcept
  {
    return own_enumeration == nullptr ? nullptr : &own_enumeration->values;
  }

  /// For messages: the patterns of the type's own step of derivation; the listed values, if they are few.
  std::string const& pattern_text() const noexcept { return patterns.shown; }
  std::string enumeration_text() const;

  /// Whether it is derived from `ancestor`, or is it, by none of the `excluded` derivations (Part 1, 3.14.6
  /// cos-st-derived-ok).
  bool is_derived_from(axsSimpleType const& ancestor, axsDerivationSet excluded = 0) const;

  /// Whether `text` is a value of the type (cvc-simple-type, cvc-datatype-valid), white space being normalised as the type
  /// asks for. `value`, unless null, gets the value; it is clear on failure. Linear in the length of the text; for
  /// atomic types that are not strings to be collapsed, allocates nothing on success.
  bool check(std::string_view text, axsValueContext const& context, axsValue* value) const;

  /// What is wrong with `text`, of which check() is false, for those who write documents: which value is not of which
  /// type, and what that asks for. `rule`, unless null, is set to the name of the constraint, such as
  /// "cvc-pattern-valid".
  std::string fault(std::string_view text, axsValueContext const& context, char const** rule = nullptr) const;

  /// How the type is called in messages: "xs:int", "'colour'"; empty of a type without a name.
  std::string shown_name() const;

  // How the text of an atomic value of the type is formed beyond what its primitive type asks for.
  enum class Form : unsigned char
  {
    plain,
    integer,  // no decimal point (Part 2, 3.3.13)
    language, // 3.3.3
    nmtoken,  // 3.3.4
    name,     // 3.3.6
    ncname    // 3.3.7
  };

private:
  friend class axsSimpleTypes;
  friend class axsBuiltInRegistry;
  friend class axsQuickCheck;
  friend class axsTypeChecker;
  friend class axsRestriction;

  // The patterns of one step of derivation, of which one must match (Part 2, 4.3.4.3 src-multiple-patterns).
  struct PatternStep
  {
    std::unique_ptr<axsPattern const> pattern;
    std::string shown;
  };

  struct FacetText
  {
    axsFacetKind kind;
    std::string text;
  };

  // The listed values, with the beginning of the list as written.
  struct Enumeration
  {
    axsValueSet values;
    std::vector<std::string> shown;
  };

  axsSimpleType() = default;

  // What a type made by restriction begins with, and a list of items.
  void inherit(axsSimpleType const& base);
  void make_list(axsSimpleType const& of);
  void contain(axsSimpleType const& part) noexcept;
  bool is_restriction_of(axsSimpleType const& ancestor, axsDerivationSet excluded) const noexcept;

  std::string own_name;
  std::string own_name_space;
  axsSimpleType const* own_base = nullptr;
  axsSimpleType const* own_item = nullptr;
  // Shared with the types that restrict the union.
  std::shared_ptr<std::vector<axsSimpleType const*> const> own_members;

  Variety own_variety = Variety::ur;
  axsPrimitive own_primitive = axsPrimitive::none;
  axsWhiteSpace own_white_space = axsWhiteSpace::preserve;
  Form form = Form::plain;
  Role own_role = Role::plain;
  axsDerivationSet own_final = 0;
  bool built_in = false;
  bool contains_id = false;
  bool contains_references = false;
  bool contains_notation = false;
  bool contains_names = false;
  bool contains_list = false; // the type or a member

  static constexpr unsigned bit(axsFacetKind kind) noexcept { return 1u << static_cast<unsigned>(kind); }
  static constexpr unsigned length_facets = 7; // length, minLength, maxLength

  // The facets in force, bits by their kinds. Lengths and digits that are larger than any text are the largest number.
  unsigned set_facets = 0;
  unsigned fixed_facets = 0;
  std::size_t lengths[3] = {}; // by axsFacetKind, length to max_length
  std::size_t total_digits = 0;
  std::size_t fraction_digits = 0;
  std::string min_bound; // axsValue::bytes, of minInclusive or minExclusive
  std::string max_bound;
  std::vector<FacetText> facet_texts;
  std::shared_ptr<Enumeration const> own_enumeration;
  PatternStep patterns;
  // The nearest type with patterns of its own that it is derived from, or is.
  axsSimpleType const* with_patterns = nullptr;
  // Made when all else is.
  axsQuickCheck quick;
};
