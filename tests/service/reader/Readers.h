#pragma once

#include <apITarnFile.h>
#include <axmSimpleXmlFactory.h>
#include <axsXmlFactory.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

/// A file in memory that gives at most `piece` bytes at a time and, as a pipe, cannot go back.
class PieceFile final : public apITarnFile
{
public:
  PieceFile(std::string text, std::size_t most, bool pipe) : bytes(std::move(text)), piece(most), is_pipe(pipe) {}

  bool seek(int offset, int origin) override
  {
    if (is_pipe)
      return false;
    long const base = origin == 0 ? 0 : origin == 1 ? static_cast<long>(at) : static_cast<long>(bytes.size());
    at = static_cast<std::size_t>(base + offset);
    return true;
  }
  int tell() override { return static_cast<int>(at); }
  bool rewind() override { return seek(0, 0); }
  int read(void* buffer, int size, int count) override
  {
    std::size_t const wanted = std::min(piece, static_cast<std::size_t>(size) * static_cast<std::size_t>(count));
    std::size_t const got = at >= bytes.size() ? 0 : std::min(wanted, bytes.size() - at);
    std::memcpy(buffer, bytes.data() + at, got);
    at += got;
    return static_cast<int>(got) / size;
  }

private:
  std::string const bytes;
  std::size_t const piece;
  bool const is_pipe;
  std::size_t at = 0;
};

using Reader = std::unique_ptr<axmAbstractXmlReader>;

inline Reader reader_of(
  axmIXmlFileFactory const& factory, std::string_view text, std::size_t piece = 1u << 20, bool is_pipe = false)
{
  return factory.create_xml_reader_file(
    utPtrReleaseToCaller, apITarnFilecoPrf(new PieceFile(std::string(text), piece, is_pipe)));
}

/// A reader of that text that has read its beginning.
inline Reader exact(std::string_view text)
{
  Reader reader = reader_of(axsXmlFactory(), text);
  reader->read_file();
  return reader;
}

inline std::string text_of(utString const& text)
{
  return std::string(text.view());
}

inline std::string errors_of(axmAbstractXmlReader const& reader)
{
  std::ostringstream out;
  reader.dump_error(out);
  return out.str();
}
