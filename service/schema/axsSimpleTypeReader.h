#pragma once

#include "axsSchemaContext.h"

#include <vector>

class axsSimpleType;

/// Makes simple types out of schema documents (Part 1, 3.14.2), those that they are derived from first, in any depth
/// without recursion.
class axsSimpleTypeReader
{
public:
  explicit axsSimpleTypeReader(axsSchemaContext& shared) : context(shared) {}

  /// The type of that symbol, which is one of a simple type.
  axsSimpleType const& named(axsSchemaSymbol& symbol);

  /// The type that the element xs:simpleType in a declaration defines.
  axsSimpleType const& anonymous(axsSchemaUnit const& unit, axsSchemaElement const& element);

  /// The simple type that the attribute `field` of the element names; anySimpleType where it names none, which is told of.
  axsSimpleType const& referred(axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaField field);

  /// `base` restricted by the facets in the element (3.4.2, simple content); `base` itself where there are none.
  axsSimpleType const& restricted(
    axsSchemaUnit const& unit, axsSchemaElement const& element, axsSimpleType const& base);

private:
  struct Part;
  struct Frame;

  axsSimpleType const& run(axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaSymbol* symbol);
  Frame frame(axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaSymbol* symbol);
  Part part(
    axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaNameView const& name, axsSchemaPlace place);
  bool enter(std::vector<Frame>& frames);
  axsSimpleType const& made(Frame const& frame);
  axsSimpleType const& with_facets(axsSchemaUnit const& unit, axsSchemaElement const& element,
    axsSimpleType const& base, axsSchemaElement const* type);

  axsSchemaContext& context;
};
