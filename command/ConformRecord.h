#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// What a process that runs checks tells the one that makes the report.
struct ConformRecord
{
  enum Kind : char
  {
    /// The group with the name texts[0] begins.
    begins = 'b',
    /// That group is over.
    ended = 'e',
    /// A check was made: whether it passed ("1" or "0"), expression, file, line, description, function.
    reported = 'r',
    /// Diagnostic text.
    printed = 'p',
    /// There is no engine, and texts[0] says why.
    no_engine = 'n',
    /// All groups are over.
    finished = 'f'
  };

  Kind kind;
  std::vector<std::string> texts;
};

/// The bytes of a record.
std::string conform_bytes(ConformRecord const& record);

/// Takes records off a stream of bytes, in whatever pieces it comes.
class ConformRecordReader
{
public:
  /// Adds a piece.
  void add(std::string const& bytes);

  /// Takes the next record; false when there is no whole one yet.
  bool next(ConformRecord& record);

  /// Whether what came are no records.
  bool is_broken() const { return broken; }

private:
  bool read_size(std::size_t& at, std::size_t& size) const;

  std::string waiting;
  bool broken = false;
};
