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
    file(apPath(name.c_str()).file_open(apPath::read_mode())),
    is_on_prolog_line(part.line <= index.parts.prolog_lines),
    open_tags(part.open_tags)
{
  if (file == nullptr)
    wrong = "cannot be opened";
  else if (size_of(file) != index.parts.size)
    wrong = "has another size than when it was split";
  else if (!move_to(file, 0))
    wrong = "cannot be read in parts";
  if (!is_on_prolog_line)
    open_tags += '\n' + std::string(static_cast<std::size_t>(part.column) - 1, ' ');
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
    std::size_t const count = read_piece(to, size);
    position += count;
    if (count > 0)
      return count;
    next_piece();
  }
  return 0;
}

std::size_t PartStream::read_piece(char* to, std::size_t size)
{
  switch (piece)
  {
  case Piece::prolog:
    return read_range(to, size, index.parts.prolog_end);
  case Piece::line_ends:
  {
    std::uint64_t const before = is_on_prolog_line ? 0 : part.line - index.parts.prolog_lines - 1;
    std::size_t const count = static_cast<std::size_t>(std::min<std::uint64_t>(size, before - position));
    std::fill(to, to + count, '\n');
    return count;
  }
  case Piece::open_tags:
    return read_tags(to, size, open_tags);
  case Piece::part:
    return read_range(to, size, part.end);
  case Piece::close_tags:
    return read_tags(to, size, part.close_tags);
  case Piece::end:
    return 0;
  }
  return 0;
}

void PartStream::next_piece()
{
  piece = static_cast<Piece>(static_cast<int>(piece) + 1);
  position = piece == Piece::part ? part.begin : 0;
  if (piece == Piece::part && wrong.empty() && !move_to(file, position))
    wrong = "cannot be read in parts";
}

std::size_t PartStream::read_range(char* to, std::size_t size, std::uint64_t end)
{
  std::size_t const wanted = static_cast<std::size_t>(std::min<std::uint64_t>(size, end - position));
  std::size_t const count = std::fread(to, 1, wanted, file);
  if (count < wanted)
    wrong = "cannot be read to the end of the part";
  return count;
}

std::size_t PartStream::read_tags(char* to, std::size_t size, std::string const& tags)
{
  return tags.copy(to, size, static_cast<std::size_t>(position));
}

axmParseError PartStream::in_whole(axmParseError const& error) const
{
  axmParseError moved = error;
  int const begin = static_cast<int>(index.parts.prolog_column + part.open_tags.size());
  if (is_on_prolog_line && error.line_number() == static_cast<int>(part.line) && error.column_number() >= begin)
    moved.set_column_number(error.column_number() - begin + static_cast<int>(part.column));
  return moved;
}
