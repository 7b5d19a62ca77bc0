#pragma once

#include "axsExport.h"
#include <apPath.h>
#include <axmParseError.h>

#include <functional>
#include <string_view>

class axsByteStream;

/// Documents as JSON (RFC 8259), in one convention from which the document can be made again:
///
/// - The document is an object with the root element as its one member: its name, as it is written, and its value.
/// - An element without attributes and content is null, one with a text alone that text. Any other one is an object with
///   "@name" for each attribute, declarations of namespaces included, and then
///   - "#text" for a text that is alone, or
///   - a member for each child element or, of several with one name, an array of them, where there are elements only and
///     those with one name stand together, or
///   - "#content": an array of all that is in it: texts, and objects with one member each, which are elements or
///     "#comment" or "#instruction" (target and data).
/// - A document with more than its root element is such an object with "#content", and "#doctype" there as it is written.
///
/// All values are texts. White space between elements where no other text is beside them is left out, unless
/// xml:space="preserve" holds. CDATA sections are texts, references are resolved; the XML declaration is left out.
class AXS_API axsJsonText
{
public:
  /// Takes a piece of what is written; false to end it.
  using Write = std::function<bool(std::string_view)>;

  /// Hands the document in the file or the stream to `write`, on one line without blanks if `indent` is 0, which otherwise
  /// is how many blanks a level is indented by, of up to 100 levels. False, with the reason in `error` and nothing written,
  /// where it cannot be read or is not well-formed. Time and memory are linear in the document. Throw std::bad_alloc
  /// when memory runs out. May be used in many threads at once.
  static bool convert(apPath const& file, unsigned indent, axmParseError& error, Write const& write);
  static bool convert(axsByteStream& stream, unsigned indent, axmParseError& error, Write const& write);
};
