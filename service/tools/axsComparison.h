#pragma once

#include "axsByteStream.h"
#include "axsCompareOptions.h"
#include "axsDifference.h"
#include "axsExport.h"
#include <apPath.h>
#include <axmParseError.h>

#include <functional>
#include <memory>

struct axsComparedDocuments;

/// Compares two documents by what they say: elements and attributes by their names and namespaces, whatever their prefixes
/// and the order of attributes; texts whether they are written with references, CDATA sections or not; comments,
/// instructions and the text of the document type. Declarations of namespaces, the XML declaration and the encoding do not
/// count.
///
/// What is equal is known by keyed hashes of 64 bits: nobody can make two different contents that pass for equal.
///
/// Children are matched in their order: those that are equal first, then those with one name and one id, then those with
/// one name. What has moved is removed and added. Time and memory are linear in the documents, but for sorting: of long
/// lists of children that differ everywhere, not the shortest list of differences is found.
/// One object belongs to one thread at a time.
class AXS_API axsComparison
{
public:
  /// Told of each difference, in the order of the documents; false to end it.
  using Take = std::function<bool(axsDifference const&)>;

  explicit axsComparison(axsCompareOptions const& options);
  axsComparison(axsComparison const&) = delete;
  axsComparison& operator=(axsComparison const&) = delete;
  ~axsComparison();

  /// Reads the first document, and the second one. False, with the reason in `error`, where it cannot be read or is not
  /// well-formed. Each is read once, before run(). Throw std::bad_alloc when memory runs out.
  bool read_first(apPath const& file, axmParseError& error);
  bool read_first(axsByteStream& stream, axmParseError& error);
  bool read_second(apPath const& file, axmParseError& error);
  bool read_second(axsByteStream& stream, axmParseError& error);

  /// Whether they say the same.
  bool run(Take const& take);

private:
  std::unique_ptr<axsComparedDocuments> documents;
};
