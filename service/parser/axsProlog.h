#pragma once

/// What stands before the root element of ordinary documents, besides comments and processing instructions. What is
/// unusual there is not taken.
namespace axsProlog
{
/// Moves from the start of a document to the end of the XML declaration (XML 1.0, 2.8, [23] XMLDecl), which may be
/// missing. False where there is another declaration; `at` is then of no use.
bool skip_declaration(char const*& at);

/// Moves from the start of a document type declaration (2.8, [28] doctypedecl) to the '[' of its internal subset, or to the
/// '>' if it has none. False where there is no declaration; `at` is then where that shows.
bool skip_doctype_begin(char const*& at);
}
