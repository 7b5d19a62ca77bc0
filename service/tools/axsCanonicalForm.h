#pragma once

#include "axsByteStream.h"
#include "axsCanonicalOptions.h"
#include "axsExport.h"
#include <apPath.h>
#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <functional>
#include <string_view>

/// Canonical forms of whole documents: Canonical XML 1.0 and 1.1, which differ for parts of documents only, and Exclusive XML
/// Canonicalization 1.0. Documents that differ only in how they are written have the same one.
class AXS_API axsCanonicalForm
{
public:
  /// Takes a piece of what is written; false to end it.
  using Write = std::function<bool(std::string_view)>;

  /// Hands the canonical form of the document in `source` to `write` while it is read, in little memory. False, with the
  /// reason in `error`, where the document is not well-formed, is XML 1.1, or names a namespace by a relative URI, which have
  /// no canonical form; a part may have been written then. Throws std::bad_alloc when memory runs out. May be used in many
  /// threads at once.
  static bool write(
    axsByteStream& source, axsCanonicalOptions const& options, axmParseError& error, Write const& write);

  /// The same of the file at `path`. Where `reading` enables the resolution of entities, the external subset and external
  /// entities are read from local files: what they declare is in the canonical form, and without them an entity of theirs is
  /// not declared. It also says how many expansions there may be; nothing is validated.
  static bool write(apPath const& path, axmLoadOptions const& reading, axsCanonicalOptions const& options,
    axmParseError& error, Write const& write);
};
