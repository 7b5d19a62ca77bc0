#pragma once

#include <axsRecordSplitter.h>

#include <map>
#include <string>

/// The index that the verb split writes and the verb table reads: where a document is cut, and for what.
struct SplitIndex
{
  std::string file; // the name that it was split under
  std::string path;
  std::map<std::string, std::string> namespaces;
  axsRecordSplitter::Parts parts;

  /// As JSON (RFC 8259), which is UTF-8; empty if one of the names is not.
  std::string to_json() const;

  /// Reads it from the file `name`; what is wrong, in a sentence, and empty if nothing is.
  static std::string read(std::string const& name, SplitIndex& index);
};
