#pragma once

#include "axsExport.h"
#include "axsFormatOptions.h"
#include <apByteArray.h>
#include <axmParseError.h>

#include <functional>
#include <string_view>

/// Lays documents out anew: what they say stays, only white space that no reader heeds is changed.
///
/// - An element with elements only has each of them, comments and instructions on lines of their own, one level further
///   in, up to 100 levels. Of empty lines between them one stays; a comment after blanks on a line stays there.
/// - Whatever is in an element with text in it, CDATA and references included, stays as it is, down to the last blank; so
///   does the white space of an element that has nothing else, and what xml:space="preserve" is said of, in the document or
///   its type (XML 1.0, 2.10).
/// - Tags have one blank between attributes, and none around "=" and before ">"; values stay as they are written.
/// - Comments, instructions, the document type and empty elements stay as they are written.
/// - Lines end as the first one of the document does, with CR LF or LF (XML 1.0, 2.11).
///
/// What is laid out already stays as it is. Documents in other encodings become UTF-8, and say so.
class AXS_API axsFormatter
{
public:
  /// Takes a piece of what is written; false to end it.
  using Write = std::function<bool(std::string_view)>;

  /// Hands the document in `source`, laid out anew, to `write`. False, with the reason in `error` and nothing written,
  /// where it is not well-formed. Linear in the size of the document, which is in memory up to three times. Throws
  /// std::bad_alloc when memory runs out. May be used in many threads at once.
  static bool format(
    apByteArray const& source, axsFormatOptions const& options, axmParseError& error, Write const& write);
};
