#pragma once

#include <string_view>

class axsTree;

/// Tells a tree which attributes its document type declares to be IDs (XML 1.0, 3.3.1).
namespace axsIdDeclarations
{
/// Reads the attribute-list declarations of the internal subset, in `doctype` from "<!DOCTYPE" to ">". Parameter entities
/// are not expanded. Linear in the length. Throws std::bad_alloc when memory runs out.
void read(std::string_view doctype, axsTree& tree);
}
