#include "InputStream.h"

#include <apPath.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#if defined(_WIN32)
#  include <fcntl.h>
#  include <io.h>
#endif

namespace
{
std::size_t const piece = 64 * 1024;

// Most documents are short.
std::size_t const first_piece = 8 * 1024;

std::FILE* standard_input()
{
#if defined(_WIN32)
  _setmode(_fileno(stdin), _O_BINARY);
#endif
  return stdin;
}
}

InputStream::InputStream(std::string const& name) : is_standard_input(name == "-")
{
  file = is_standard_input ? standard_input() : apPath(name.c_str()).file_open(apPath::read_mode());
  if (file == nullptr)
    return;
  // Pieces are large enough as they come.
  if (!is_standard_input)
    std::setvbuf(file, nullptr, _IONBF, 0);
  pending.resize(first_piece);
  pending.resize(read_bytes(pending.data(), pending.size()));
  decompressor = Decompressor::of({pending.data(), pending.size()}, wrong);
}

// A pipe gives nothing twice.
bool InputStream::is_plain_file() const
{
  return file == nullptr ||
         (!is_standard_input && decompressor == nullptr && wrong.empty() && std::fseek(file, 0, SEEK_CUR) == 0);
}

InputStream::~InputStream()
{
  if (file != nullptr && !is_standard_input)
    std::fclose(file);
}

std::size_t InputStream::read(char* to, std::size_t size)
{
  if (!wrong.empty() || size == 0)
    return 0;
  if (decompressor == nullptr)
  {
    std::size_t const left = std::min(size, pending.size() - used);
    std::memcpy(to, pending.data() + used, left);
    used += left;
    return left > 0 ? left : read_bytes(to, size);
  }
  while (true)
  {
    std::string_view input{pending.data() + used, pending.size() - used};
    std::size_t const made = decompressor->decompress(input, to, size, wrong);
    used = pending.size() - input.size();
    if (made > 0 || !wrong.empty())
      return made;
    if (used == pending.size() && !read_compressed())
    {
      if (!decompressor->is_complete())
        wrong = "the compressed data ends too early";
      return 0;
    }
  }
}

bool InputStream::read_compressed()
{
  pending.resize(piece);
  used = 0;
  pending.resize(read_bytes(pending.data(), pending.size()));
  return !pending.empty();
}

std::size_t InputStream::read_bytes(char* to, std::size_t size)
{
  if (std::feof(file) != 0)
    return 0; // the system would be asked once more
  std::size_t const count = std::fread(to, 1, size, file);
  if (count == 0 && std::ferror(file) != 0)
    wrong = std::string("cannot be read: ") + std::strerror(errno);
  return count;
}
