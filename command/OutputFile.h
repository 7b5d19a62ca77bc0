#pragma once

#include <cstdio>
#include <string>
#include <string_view>

/// Where a verb writes its result: standard output, or a file that takes its place in one step when it is whole.
///
/// Until finish() the file grows beside its target under another name, and goes if it is not finished; what is at the
/// target stays as it is until then. A target that is there and no regular file (a pipe, a device) is written straight.
/// Bytes are written as they come, without any change of line ends.
class OutputFile
{
public:
  /// To the file `target`, a path in UTF-8; to standard output if it is empty.
  explicit OutputFile(std::string const& target);
  OutputFile(OutputFile const&) = delete;
  OutputFile& operator=(OutputFile const&) = delete;
  ~OutputFile();

  /// Whether everything could be written so far.
  bool good() const;

  void write(std::string_view bytes);

  /// Puts the file in its place. False if not everything could be written; what was there before is unchanged then.
  bool finish();

private:
  bool close();

  std::string target;
  std::string written; // the file that grows, empty where the target is written straight
  std::FILE* stream;
};
