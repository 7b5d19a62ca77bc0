#pragma once

#include "axsExport.h"

#include <apPath.h>
#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Finds where a document can be cut so that its records can be read in parts, by several processes or machines, each of
/// which reads its own part only.
///
/// A part is a range of the document's bytes that begins with a record, the first one with the root element. What
/// stands before it in the document is given by the prolog and by the tags of the elements that are open there: those,
/// the part, and the tags that close what is open at its end are a document of their own, with the same records,
/// namespaces and entities. The records of all parts after one another are the records of the document.
struct AXS_API axsRecordSplitter
{
  struct Part
  {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    std::uint64_t first_record = 0; // counted from 0
    std::uint64_t line = 1;         // of its beginning, counted from 1, as the column in units of UTF-16
    std::uint64_t column = 1;
    std::string open_tags;
    std::string close_tags;
  };

  struct Parts
  {
    std::uint64_t size = 0;         // of the document, in bytes
    std::uint64_t prolog_end = 0;   // where its root element begins
    std::uint64_t prolog_lines = 0; // and its line and column
    std::uint64_t prolog_column = 0;
    std::uint64_t records = 0;
    std::vector<Part> parts;
  };

  /// Cuts the document into `count` parts of about the same size, or fewer where it has fewer records; a document without
  /// records has none. `path` and `namespaces` are as axsRecordReader has them, and without complaint. False, with `error`
  /// saying why, when the document cannot be read, is not well-formed, or is not in UTF-8. Records that come out of entities
  /// stay with those before them. Reads the document once. Throws std::bad_alloc when memory runs out.
  static bool split(apPath const& file, std::string const& path, std::map<std::string, std::string> const& namespaces,
    std::size_t count, axmLoadOptions const& options, axmParseError& error, Parts& parts);
};
