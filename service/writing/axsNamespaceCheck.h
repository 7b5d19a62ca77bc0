#pragma once

class axsTree;

/// Whether the names of a tree stand for something (Namespaces in XML 1.0): edits may leave a prefix without its
/// declaration, or give one element two attributes of the same name in the same namespace, and what is then saved could not
/// be loaded again.
namespace axsNamespaceCheck
{
/// Throws std::bad_alloc when memory runs out. It does not recurse.
bool holds(axsTree const& document);
}
