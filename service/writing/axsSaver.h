#pragma once

#include <apByteArray.h>
#include <apPath.h>

class axsTree;

/// Saves documents. All or nothing: what was there before stays whole until the new document is.
namespace axsSaver
{
/// Puts the document into `output`, in the place of what it held. False, with `output` unchanged, when XML cannot hold
/// it, its names lack their namespaces, or memory runs out.
bool save(axsTree const& document, apByteArray& output) noexcept;

/// Writes it to `path`, the way of apAtomicFile. False, with nothing left behind and an old file
/// unchanged, when XML cannot hold the document, its names lack their namespaces, or the file cannot be written.
bool save(axsTree const& document, apPath const& path) noexcept;
}
