#pragma once

#include <apByteArray.h>
#include <apPath.h>

class axsTree;

/// Saves documents, all or nothing: the old bytes stay until the new ones are complete. May run in several threads for
/// several documents.
namespace axsSaver
{
/// Replaces the contents of `output` by the document. False, with `output` unchanged, when XML cannot hold
/// it, its names lack their namespaces, or memory runs out.
bool save(axsTree const& document, apByteArray& output) noexcept;

/// Writes it to `path` through apAtomicFile. False, without any leftover and with an old file unchanged, when XML cannot
/// hold the document, its names lack their namespaces, or the file cannot be written.
bool save(axsTree const& document, apPath const& path) noexcept;
}
