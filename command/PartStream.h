#pragma once

#include "SplitIndex.h"

#include <axmParseError.h>
#include <axsByteStream.h>

#include <cstdint>
#include <cstdio>
#include <string>

/// One part of a document as a document of its own: its prolog, the tags that are open where the part begins, the part,
/// and the tags that close what is open at its end.
class PartStream final : public axsByteStream
{
public:
  PartStream(std::string const& file, SplitIndex const& index, std::size_t number);
  ~PartStream() override;

  std::size_t read(char* to, std::size_t size) override;
  apString fault() const override { return apString::from_utf8(wrong); }

  /// The same error with its place in the whole document.
  axmParseError in_whole(axmParseError const& error) const;

private:
  enum class Piece
  {
    prolog,
    open_tags,
    part,
    close_tags,
    end
  };

  std::size_t read_range(char* to, std::size_t size, std::uint64_t end);
  void begin_part();

  SplitIndex const& index;
  axsRecordSplitter::Part const& part;
  std::FILE* file;
  Piece piece = Piece::prolog;
  // Where reading stands: in the file or in the tags.
  std::uint64_t position = 0;
  std::string tags;
  std::string wrong;
};
