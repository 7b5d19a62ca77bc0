#include "PartStream.h"

#include <apPath.h>

#include <algorithm>

namespace
{
bool move_to(std::FILE* file, std::uint64_t position)
{
#if defined(_WIN32)
  return _fseeki64(file, static_cast<std::int64_t>(position), SEEK_SET) == 0;
#else
  return fseeko(file, static_cast<off_t>(position), SEEK_SET) == 0;
#endif
}

std::uint64_t size_of(std::FILE* file)
{
#if defined(_WIN32)
  return _fseeki64(file, 0, SEEK_END) == 0 ? static_cast<std::uint64_t>(_ftelli64(file)) : 0;
#else
  return fseeko(file, 0, SEEK_END) == 0 ? static_cast<std::uint64_t>(ftello(file)) : 0;
#endif
}
}

PartStream::PartStream(std::string const& name, SplitIndex const& given, std::size_t number)
  : index(given),
    part(given.parts.parts[number]),
    file(apPath(name.c_str()).file_open(apPath::read_mode()))
{
  if (file == nullptr)
    wrong = "cannot be opened";
  else if (size_of(file) != index.parts.size)
    wrong = "has another size than when it was split";
  else if (!move_to(file, 0))
    wrong = "cannot be read in parts";
  // The line ends make places easy to count.
  tags = '\n' + part.open_tags + '\n';
}

PartStream::~PartStream()
{
  if (file != nullptr)
    std::fclose(file);
}

std::size_t PartStream::read(char* to, std::size_t size)
{
  while (wrong.empty() && piece != Piece::end)
  {
    std::size_t count = 0;
    if (piece == Piece::prolog)
      count = read_range(to, size, index.parts.prolog_end);
    else if (piece == Piece::part)
      count = read_range(to, size, part.end);
    else
    {
      count = tags.copy(to, size, static_cast<std::size_t>(position));
      position += count;
    }
    if (count > 0)
      return count;
    piece = static_cast<Piece>(static_cast<int>(piece) + 1);
    position = 0;
    if (piece == Piece::part)
      begin_part();
    else
      tags = piece == Piece::close_tags ? part.close_tags : tags;
  }
  return 0;
}

void PartStream::begin_part()
{
  position = part.begin;
  if (!move_to(file, position))
    wrong = "cannot be read in parts";
}

std::size_t PartStream::read_range(char* to, std::size_t size, std::uint64_t end)
{
  std::size_t const wanted = static_cast<std::size_t>(std::min<std::uint64_t>(size, end - position));
  std::size_t const count = std::fread(to, 1, wanted, file);
  if (count < wanted)
    wrong = "cannot be read to the end of the part";
  position += count;
  return count;
}

axmParseError PartStream::in_whole(axmParseError const& error) const
{
  axmParseError moved = error;
  int const before = static_cast<int>(index.parts.prolog_lines) + 2;
  if (error.line_number() < before)
    return moved;
  if (error.line_number() == before)
    moved.set_column_number(error.column_number() + static_cast<int>(part.column) - 1);
  moved.set_line_number(error.line_number() - before + static_cast<int>(part.line));
  return moved;
}
