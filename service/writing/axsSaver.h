#pragma once

#include <apByteArray.h>
#include <apPath.h>

#include <string>

class axsTree;

/// Saves documents, all or nothing: the old bytes stay until the new ones are complete. May run in several threads for
/// several documents.
namespace axsSaver
{
/// Replaces the contents of `output` by the document. False, with `output` unchanged, when XML cannot hold
/// it, reading it again would give another one (see obstacle()), or memory runs out.
bool save(axsTree const& document, apByteArray& output) noexcept;

/// Writes it to `path` through apAtomicFile. False, without any leftover and with an old file unchanged, when XML cannot
/// hold the document, reading it again would give another one, or the file cannot be written.
bool save(axsTree const& document, apPath const& path) noexcept;

/// What in the document keeps it from being saved, in UTF-8; empty where it can be: a character or a text that XML cannot
/// hold where it stands, a name without its namespace, a default of the document type that is missing, a value that its
/// declaration would make another one. Costs as much as a save. Throws std::bad_alloc when memory runs out.
std::string obstacle(axsTree const& document);
}
