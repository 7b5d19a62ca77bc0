#pragma once

#include "axsExport.h"

/// Makes the default engine available: registers a factory under "XMLService" and "axs::XMLService" with utService, in
/// the place of whatever was registered there. May be called again and from any thread. Throws std::bad_alloc when memory
/// runs out.
///
/// What the engine promises beyond axmDocumentFactory:
/// - Threads: its const operations may be called from many threads at once, on one factory; a document with all its nodes,
///   lists and maps belongs to one thread at a time, or is shared by many that read it; see axsSharing.
/// - Nodes, lists and maps hold what they need: a node stays valid as long as it is held, even if its tree and its
///   document have been let go. A `std::weak_ptr` holds no node, only some bytes of bookkeeping.
/// - Load: white-space-only text is dropped in CDATA sections, too, but kept where xml:space="preserve" holds. Prefixes
///   must be bound
///   (Namespaces in XML 1.0; in a document of XML 1.1, by version 1.1 of them). The external DTD subset is read where the
///   options enable the resolution of entities and it is a local file; an entity that is declared nowhere in what is read is
///   an error. The expansions of parameter entities count as those of others. Besides the number of entity expansions, what
///   they and defaults of attributes make of a document is bounded: to 100 times the size of what is read once that is more
///   than 8 MiB. A document may be nested as deep as memory lasts, validated or not.
/// - Encodings: UTF-8, UTF-16, UTF-32, US-ASCII, ISO-8859-1 to -16, windows-1250 to -1258, KOI8-R and -U, and what else the
///   system has a converter for. A byte that has no meaning in the encoding of the document is an error; so is a
///   declaration of another encoding than that of the bytes.
/// - External entities, where the options allow them, and schemas are regular files of this computer, named by a relative
///   or an absolute path or a "file:" URL. Nothing is ever fetched from a network; documents themselves may be pipes.
/// - Schemas: XML Schema 1.0 (second edition), read from local files only; a reference that leads to none is an error, but
///   for the schema of the XML namespace, which is built in, and for an import of which nothing is used. Validation is done
///   in the pass that reads the document, in a time linear in its size, whatever its schema: numbers of occurrences,
///   patterns and the length of values are not bounded. What in a document says where schemas lie is not heeded. A
///   document whose root is in a namespace that no schema knows loads, but what is declared in it, at any depth, is
///   validated. Where a content can be counted in more than 1000 ways at once, as after many a in (a{2,3}, b?){9,5000}, only
///   that many are followed. A pattern whose quantifiers multiply to more than 500,000 parts, repeats that can be counted
///   aside, is refused; so is a restriction of a content that has more than 250,000 particles with its groups written out.
///   Characters have the properties of Unicode 15. Defaults of the schema are not added to the document.
/// - Errors: the place is the end of what is wrong, of an element that of its start tag. A character beyond U+FFFF counts as
///   two columns, a tab as one.
/// - Save: to a file that takes the place of the target in one step, with its permissions; see apAtomicFile. What was
///   loaded as XML 1.1 is saved as that. Text that XML cannot hold makes it fail, and get_xml() of such a node is
///   empty. So do, though not get_xml(), a prefix that is not declared where it is used, a missing attribute of which
///   the document type declares a default, and spaces that a reader takes out of a value that consists of tokens by its
///   declaration: whatever is saved is read again as it was. axsSaving tells the reason. What is not Unicode (a surrogate without
///   its other half) does not enter a document: createTextNode() and createComment() give an empty pointer, what sets a
///   value changes nothing and reports an assertion (utAssert.h). The standalone declaration is kept.
/// - New elements have the attributes of which the document type declares defaults (DOM Core, createElement).
AXS_API void axs_register();
