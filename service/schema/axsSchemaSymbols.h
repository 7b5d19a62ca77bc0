#pragma once

#include "axsSchemaErrors.h"
#include "axsSchemaSymbol.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_set>

/// The names of a set of schema documents, and what they stand for (Part 1, 3.15.3, QName resolution).
class axsSchemaSymbols
{
public:
  using Space = axsSchemaSymbol::Space;

  explicit axsSchemaSymbols(axsSchemaErrors& told);

  /// Takes up what a document defines (3.15.2). Two with one name are told of (sch-props-correct.2).
  void declare(axsSchemaUnit const& unit);

  /// Takes up what it redefines (4.2.2), after all has been declared; documents that it redefines come first.
  void redefine(axsSchemaUnit const& unit);

  /// Takes up a definition that is not at the top of a document: an identity constraint.
  axsSchemaSymbol* declare(Space space, axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// What stands in an element and has no name there, as the types in declarations.
  axsSchemaSymbol& anonymous(axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// The expanded name that a QName in the element has (src-resolve, src-qname). Whether there is one; if not, it is told.
  bool expand(axsSchemaUnit const& unit, axsSchemaElement const& element, std::string_view qname, axsSchemaPlace place,
    axsSchemaNameView& name);

  /// What the attribute `field` of the element refers to; null where there is nothing, which is told of.
  axsSchemaSymbol* resolve(
    Space space, axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaField field);
  axsSchemaSymbol* resolve(Space space, axsSchemaUnit const& unit, axsSchemaElement const& element,
    axsSchemaNameView const& name, axsSchemaPlace place);

  axsSchemaSymbol* find(Space space, axsSchemaNameView const& name) noexcept;

  /// All in their order, those that are redefined among them.
  std::deque<axsSchemaSymbol>& all() noexcept { return symbols; }

  /// "'name' in the namespace 'x'", or "in no namespace".
  static std::string words(axsSchemaNameView const& name);

private:
  axsSchemaNameTable<axsSchemaSymbol*>& table(Space space) { return tables[static_cast<std::size_t>(space)]; }
  axsSchemaSymbol* redefined_here(
    axsSchemaUnit const& unit, axsSchemaElement const& from, Space space, axsSchemaNameView const& name);
  void tell_unknown(axsSchemaUnit const& unit, axsSchemaNameView const& name, axsSchemaPlace place);
  void replace(axsSchemaUnit const& unit, axsSchemaUnit const& redefined, axsSchemaElement const& definition);

  axsSchemaErrors& errors;
  std::deque<axsSchemaSymbol> symbols;
  std::unordered_set<std::string_view> targets;
  std::unordered_set<axsSchemaUnit::Import const*> told_imports;
  axsSchemaNameTable<axsSchemaSymbol*> tables[axsSchemaSymbol::spaces];
};
