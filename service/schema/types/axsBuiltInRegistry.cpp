#include "axsBuiltInRegistry.h"

#include "axsBuiltInTypes.h"
#include "axsPattern.h"
#include "axsRestriction.h"

#include <string>

using Form = axsSimpleType::Form;
using Kind = axsFacetKind;
using Role = axsSimpleType::Role;

namespace
{
class NoDiagnostics : public axsTypeDiagnostics
{
public:
  void report(std::uint64_t, char const*, std::string) override {}
};

axsFacet facet(Kind kind, char const* value, bool fixed = false)
{
  axsFacet made;
  made.kind = kind;
  made.value = value;
  made.fixed = fixed;
  return made;
}

struct TextType
{
  char const* name;
  char const* base;
  Form form;
  Role role;
};
}

axsBuiltInRegistry::axsBuiltInRegistry()
{
  add("anySimpleType", nullptr);
  add_primitives();
  add_text_types();
  add_lists();
  add_numbers();
  for (std::unique_ptr<axsSimpleType> const& type : made)
    type->quick = axsQuickCheck(*type);
}

axsSimpleType const* axsBuiltInRegistry::find(std::string_view name) const noexcept
{
  auto const found = by_name.find(name);
  return found == by_name.end() ? nullptr : found->second;
}

axsSimpleType& axsBuiltInRegistry::add(char const* name, axsSimpleType const* base)
{
  made.push_back(std::unique_ptr<axsSimpleType>(new axsSimpleType));
  axsSimpleType& type = *made.back();
  type.own_name = name;
  type.own_name_space = axsBuiltInTypes::name_space;
  type.built_in = true;
  type.own_base = base;
  by_name.emplace(type.own_name, &type);
  return type;
}

// Part 2, 3.2: white space is collapsed, whatever is derived, but for strings.
void axsBuiltInRegistry::add_primitives()
{
  for (auto primitive = axsPrimitive::string; primitive <= axsPrimitive::notation;
       primitive = static_cast<axsPrimitive>(static_cast<int>(primitive) + 1))
  {
    std::string const name(axsPrimitives::name(primitive));
    axsSimpleType& type = add(name.c_str(), find("anySimpleType"));
    type.own_variety = axsSimpleType::Variety::atomic;
    type.own_primitive = primitive;
    type.contains_notation = primitive == axsPrimitive::notation;
    type.contains_names = primitive == axsPrimitive::notation || primitive == axsPrimitive::qname;
    if (primitive == axsPrimitive::string)
      continue;
    type.own_white_space = axsWhiteSpace::collapse;
    type.fixed_facets = axsSimpleType::bit(Kind::white_space);
    type.facet_texts.push_back({Kind::white_space, "collapse"});
  }
}

// Part 2, 3.3.1 to 3.3.12
void axsBuiltInRegistry::add_text_types()
{
  restrict("normalizedString", "string", {facet(Kind::white_space, "replace")});
  restrict("token", "normalizedString", {facet(Kind::white_space, "collapse")});
  static TextType const types[] = {{"language", "token", Form::language, Role::plain},
    {"NMTOKEN", "token", Form::nmtoken, Role::plain}, {"Name", "token", Form::name, Role::plain},
    {"NCName", "Name", Form::ncname, Role::plain}, {"ID", "NCName", Form::ncname, Role::id},
    {"IDREF", "NCName", Form::ncname, Role::idref}, {"ENTITY", "NCName", Form::ncname, Role::entity}};
  for (TextType const& text : types)
  {
    axsSimpleType& type = restrict(text.name, text.base);
    type.form = text.form;
    type.own_role = text.role;
    type.contains_id = text.role == Role::id;
    type.contains_references = text.role == Role::id || text.role == Role::idref;
  }
}

// Lists of at least one item.
void axsBuiltInRegistry::add_lists()
{
  for (auto const& [name, item] : {std::pair("NMTOKENS", "NMTOKEN"), {"IDREFS", "IDREF"}, {"ENTITIES", "ENTITY"}})
  {
    axsSimpleType& type = add(name, find("anySimpleType"));
    type.make_list(*find(item));
    NoDiagnostics none;
    axsRestriction(type, none, 0).add_all({facet(Kind::min_length, "1")});
  }
}

// Part 2, 3.3.13 to 3.3.25
void axsBuiltInRegistry::add_numbers()
{
  restrict("integer", "decimal", {facet(Kind::fraction_digits, "0", true)}).form = Form::integer;
  restrict("nonPositiveInteger", "integer", {facet(Kind::max_inclusive, "0")});
  restrict("negativeInteger", "nonPositiveInteger", {facet(Kind::max_inclusive, "-1")});
  restrict("long", "integer",
    {facet(Kind::max_inclusive, "9223372036854775807"), facet(Kind::min_inclusive, "-9223372036854775808")});
  restrict("int", "long", {facet(Kind::max_inclusive, "2147483647"), facet(Kind::min_inclusive, "-2147483648")});
  restrict("short", "int", {facet(Kind::max_inclusive, "32767"), facet(Kind::min_inclusive, "-32768")});
  restrict("byte", "short", {facet(Kind::max_inclusive, "127"), facet(Kind::min_inclusive, "-128")});
  restrict("nonNegativeInteger", "integer", {facet(Kind::min_inclusive, "0")});
  restrict("unsignedLong", "nonNegativeInteger", {facet(Kind::max_inclusive, "18446744073709551615")});
  restrict("unsignedInt", "unsignedLong", {facet(Kind::max_inclusive, "4294967295")});
  restrict("unsignedShort", "unsignedInt", {facet(Kind::max_inclusive, "65535")});
  restrict("unsignedByte", "unsignedShort", {facet(Kind::max_inclusive, "255")});
  restrict("positiveInteger", "nonNegativeInteger", {facet(Kind::min_inclusive, "1")});
}

axsSimpleType& axsBuiltInRegistry::restrict(char const* name, char const* base, std::vector<axsFacet> const& facets)
{
  axsSimpleType& type = add(name, find(base));
  type.inherit(*type.base());
  NoDiagnostics none;
  axsRestriction(type, none, 0).add_all(facets);
  return type;
}
