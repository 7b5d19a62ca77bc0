#pragma once

#include "SplitIndex.h"

#include <axmParseError.h>
#include <axsByteStream.h>

#include <cstdint>
#include <cstdio>
#include <string>

/// One part of a document as a document of its own: its prolog, the tags that are open where the part begins, the part,
/// and the tags that close what is open at its end. As many line ends as stand before the part in the whole document stand
/// before it here, so that lines have their numbers.
class PartStream final : public axsByteStream
{
public:
  PartStream(std::string const& file, SplitIndex const& index, std::size_t number);
  ~PartStream() override;

  std::size_t read(char* to, std::size_t size) override;
  apString fault() const override { return apString::from_utf8(wrong); }

  /// The same error with its column in the whole document.
  axmParseError in_whole(axmParseError const& error) const;

private:
  enum class Piece
  {
    prolog,
    line_ends,
    open_tags,
    part,
    close_tags,
    end
  };

  std::size_t read_piece(char* to, std::size_t size);
  std::size_t read_range(char* to, std::size_t size, std::uint64_t end);
  std::size_t read_tags(char* to, std::size_t size, std::string const& tags);
  void next_piece();

  SplitIndex const& index;
  axsRecordSplitter::Part const& part;
  std::FILE* file;
  Piece piece = Piece::prolog;
  // Whether the part begins on a line of the prolog.
  bool is_on_prolog_line;
  std::string open_tags;
  // Where reading stands: in the file, or within the piece.
  std::uint64_t position = 0;
  std::string wrong;
};
