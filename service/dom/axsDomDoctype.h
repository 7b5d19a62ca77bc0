#pragma once

#include "axsDomNode.h"
#include "axsLeaf.h"

/// The document type declaration, kept as it was read: a child of the document between the others. Its text is the
/// declaration from "<!DOCTYPE" to ">".
class axsDomDoctype final : public axsDomNode<axmNode, axsLeaf>
{
public:
  explicit axsDomDoctype(std::uint8_t units) noexcept : axsDomNode(axsKind::doctype, units) {}
};
