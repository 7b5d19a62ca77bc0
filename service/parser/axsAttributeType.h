#pragma once

/// The types of attributes (XML 1.0, 3.3.1). One that is not declared is of character data (3.3.3).
enum class axsAttributeType : unsigned char
{
  cdata,
  id,
  idref,
  idrefs,
  entity,
  entities,
  nmtoken,
  nmtokens,
  notation,
  enumeration
};
