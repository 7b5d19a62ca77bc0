#pragma once

#include "axsByteStream.h"
#include "axsExport.h"
#include <apByteArray.h>
#include <apPath.h>
#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class axsRecordReading;

/// Takes the records of a document out as rows: elements that lie at one path, with columns from their attributes and
/// texts, in one pass and without a tree.
///
///     axsRecordReader::Request request;
///     request.path = "catalog/book";
///     request.columns = {"@id", "title", "author/name"};
///     axsRecordReader reader(request);
///     axmParseError error;
///     reader.read(apPath("books.xml"), axmLoadOptions(), error, [](axsRecordReader::Row const& row) { ...; return true; });
///
/// A path is written `a/b/c` from the root; a name in it may be `*`. A column is `@a` (an attribute of the record; defaults
/// are attributes, declarations of namespaces are none), `b` (the texts directly in a child, joined), `b/c`, `b/@a`, or `.`
/// (the texts directly in the record). Names are compared as they are written in the document, but those with a prefix that
/// the request gives a namespace: by that and the part after the colon. References are resolved, texts are UTF-8 whatever
/// the document is encoded in.
///
/// The document is checked as a load checks it, from its first byte to its last. Time: linear in its size. Memory: that of
/// the largest record and text; the document itself may be of any size, and come from a pipe.
/// Nothing is thrown for what is wrong with a document. Running out of memory is std::bad_alloc.
/// One object belongs to one thread at a time.
class AXS_API axsRecordReader
{
public:
  /// How the values of a column become one where a record has several.
  enum class Repeat
  {
    first, // the first counts
    join,  // with the separator between them
    rows // a row each: elements of one name in one row after the other, what there is one of in every row of its parent
  };

  struct Request
  {
    std::string path;
    std::vector<std::string> columns;
    Repeat repeat = Repeat::first;
    std::string separator = " ";
    /// Prefixes of path and columns with their namespaces.
    std::map<std::string, std::string> namespaces;
  };

  /// One value for each column, none where the record has none. They live for the duration of the call.
  using Row = std::vector<std::optional<std::string_view>>;

  /// Takes a row; false ends the reading. May throw.
  using Take = std::function<bool(Row const&)>;

  /// Why nothing can be read with such a request, in a sentence; empty if it can.
  static std::string complaint(Request const& request);

  /// The request must be without complaint; with others, no record is ever found.
  explicit axsRecordReader(Request const& request);
  axsRecordReader(axsRecordReader const&) = delete;
  axsRecordReader& operator=(axsRecordReader const&) = delete;
  ~axsRecordReader();

  /// Reads a document. True when `take` has been given all rows or has ended the reading; false, with `error` saying why
  /// and where, when the document cannot be read or is not well-formed: the rows before that have been taken.
  bool read(apPath const& file, axmLoadOptions const& options, axmParseError& error, Take const& take);
  bool read(apByteArray const& data, axmLoadOptions const& options, axmParseError& error, Take const& take);

  /// The same of a stream; `name` is what errors call it.
  bool read(
    axsByteStream& stream, apPath const& name, axmLoadOptions const& options, axmParseError& error, Take const& take);

  /// How many records, and how many rows of them, the last read() has found.
  std::uint64_t records() const noexcept;
  std::uint64_t rows() const noexcept;

private:
  std::unique_ptr<axsRecordReading> reading;
};
