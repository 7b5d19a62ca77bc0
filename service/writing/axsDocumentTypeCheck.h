#pragma once

class axsTree;
struct axsSaveFault;

/// Whether what the document type says of attributes leaves those of a document as they are when it is read again: each
/// default stands in its elements, or it would come back (XML 1.0, 3.3.2), and no value that consists of tokens has a space
/// at its ends or two in a row, which a reader takes out (3.3.3).
namespace axsDocumentTypeCheck
{
/// False with the reason in `fault`. Linear in the number of elements and attributes; does not recurse. Throws
/// std::bad_alloc when memory runs out.
bool holds(axsTree const& document, axsSaveFault& fault);
}
