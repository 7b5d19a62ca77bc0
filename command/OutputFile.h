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
  /// To the file `target`, a path in UTF-8; to standard output if it is empty or "-".
  explicit OutputFile(std::string const& target);

  /// Whether everything could be written so far.
  bool good() const;

  void write(std::string_view bytes);

  /// Puts the file in its place. False if not everything could be written; what was there before is unchanged then.
  bool finish();

  /// What to say of it where finish() is false: that it cannot be written and, where the system has told, why.
  std::string fault() const;

  /// For the check of an option: what is wrong with the name of a file that was given; empty if nothing is. An empty one,
  /// as an unset variable of a script leaves it, must not pass for one that was not given.
  static std::string wrong_name(std::string const& target);

private:
  std::optional<apAtomicFile> file; // none for standard output
  std::FILE* stream;
  int reason = 0; // of the first failure, as the system numbers it
};
