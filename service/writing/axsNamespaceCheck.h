#pragma once

class axsTree;
struct axsSaveFault;

/// Whether a document is namespace-well-formed (Namespaces in XML 1.0, 7). Edits may leave a prefix without its declaration
/// or give an element two attributes with one expanded name; saved, such a document could not be loaded again.
namespace axsNamespaceCheck
{
/// False with the reason in `fault`. Linear in the number of nodes, but O(n log n) in the attributes of one element.
/// Does not recurse. Throws std::bad_alloc when memory runs out.
bool holds(axsTree const& document, axsSaveFault& fault);
}
