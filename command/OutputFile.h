#pragma once

#include <apAtomicFile.h>

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

/// Where a verb writes its result: standard output, or a file that takes its place in one step when it is whole (see
/// apAtomicFile). Bytes are written as they come, without any change of line ends.
class OutputFile
{
public:
  /// To the file `target`, a path in UTF-8; to standard output if it is empty.
  explicit OutputFile(std::string const& target);

  /// Whether everything could be written so far.
  bool good() const;

  void write(std::string_view bytes);

  /// Puts the file in its place. False if not everything could be written; what was there before is unchanged then.
  bool finish();

private:
  std::optional<apAtomicFile> file; // none for standard output
  std::FILE* stream;
};
