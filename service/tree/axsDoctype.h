#pragma once

#include "axsNodeOf.h"

#include <axmNode.h>

/// The document type declaration, kept as it was read: a child of the document between the others. Its text is the
/// declaration from "<!DOCTYPE" to ">".
class axsDoctype final : public axsNodeOf<axmNode, axsLeaf>
{
public:
  explicit axsDoctype(std::uint8_t units) noexcept : axsNodeOf(axsKind::doctype, this + 1, units) {}
};
