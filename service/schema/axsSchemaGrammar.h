#pragma once

class axsSchemaDocument;
class axsSchemaErrors;

/// The grammar of schema documents: what the schema for schemas asks for (Part 1, appendix A) and what the constraints on
/// representations (Part 1, chapter 3, "src-...") say of one document by itself, before any name is looked up.
namespace axsSchemaGrammar
{
/// Tells `errors` of what is wrong. Time linear in the size of the document.
void check(axsSchemaDocument const& document, axsSchemaErrors& errors);
}
