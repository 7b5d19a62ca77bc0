#pragma once

#include "axsAttributeValue.h"
#include "axsDtd.h"
#include "axsInputStack.h"

#include <cstddef>
#include <string>
#include <string_view>

class axsEntities;

/// Reads the parts of which declarations in a document type are made, where the input is, and moves on after them.
/// References to parameter entities in a declaration are followed on the way, where they may stand (2.8, WFC: PEs in
/// Internal Subset). Throws as the input does.
class axsDeclarationReader
{
public:
  axsDeclarationReader(axsInputStack& input, axsEntities& entities)
    : in(input),
      all_entities(entities),
      values(input, entities)
  {
  }

  axsInputStack& input() noexcept { return in; }

  /// A declaration begins: it ends in the input in which it begins, or in one inside it.
  void begin() noexcept { depth = in.depth(); }

  /// Moves after white space and what stands for it (4.4.8). Whether there is some.
  bool spaces();

  /// The same where there must be some.
  void need_spaces();

  /// Moves after `expected`. Whether it is there.
  bool take(std::string_view expected) { return axsCharacters::skip(in.at, expected); }
  bool is_at(char c) const { return *in.at == c; }

  std::string name(char const* missing);

  /// The name of an element or an attribute (Namespaces in XML, 4, [7] QName).
  std::string qualified_name(char const* missing);

  /// The name of an entity or a notation, which has no colon (Namespaces in XML 1.0, 7).
  std::string plain_name(char const* missing);

  /// 2.3, [7] Nmtoken
  std::string name_token(char const* missing);

  /// Whether the next character begins a text in quotes.
  bool is_at_quote() const { return is_at('"') || is_at('\''); }

  /// A text in quotes in which no references are looked for, with its line ends as one line feed.
  std::string literal(char const* missing);

  /// 2.3, [9] EntityValue: the replacement text (4.5).
  std::string entity_value();

  /// The value of an attribute of that name and type, normalised (3.3.3).
  std::string attribute_value(std::string_view attribute, bool is_of_tokens);

  /// 4.2.2, [75] ExternalID; that of a notation may be a public one alone (4.7, [83] PublicID). False where there is none.
  bool external_id(axsDtd::ExternalId& id, bool is_of_notation);

  /// The '>' that ends the declaration of `what`.
  void end(char const* what);

  [[noreturn]] void unexpected(std::string const& message) const { in.unexpected(in.at, message); }

private:
  void follow_parameter();
  void read_entity_reference(std::string& value);
  std::string public_literal();

  axsInputStack& in;
  axsEntities& all_entities;
  axsAttributeValue values;
  std::size_t depth = 0;
};
