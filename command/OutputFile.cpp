#include "OutputFile.h"

#include <cerrno>
#include <cstring>

#if defined(_WIN32)
#  include <fcntl.h>
#  include <io.h>
#endif

namespace
{
std::FILE* standard_output()
{
#if defined(_WIN32)
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  return stdout;
}
}

OutputFile::OutputFile(std::string const& target)
{
  errno = 0;
  if (target.empty() || target == "-")
    stream = standard_output();
  else
    stream = file.emplace(apPath(target.c_str())).stream();
  if (stream == nullptr)
    reason = errno;
}

bool OutputFile::good() const
{
  return stream != nullptr && std::ferror(stream) == 0;
}

void OutputFile::write(std::string_view bytes)
{
  if (stream == nullptr || bytes.empty())
    return;
  errno = 0;
  std::fwrite(bytes.data(), 1, bytes.size(), stream);
  // A whole count may hide that a line could not be passed on.
  if (reason == 0 && !good())
    reason = errno;
}

bool OutputFile::finish()
{
  errno = 0;
  bool const is_done = file.has_value() ? file->commit() : std::fflush(stream) == 0 && good();
  if (!is_done && reason == 0)
    reason = errno;
  return is_done;
}

std::string OutputFile::fault() const
{
  return reason == 0 ? "cannot be written" : std::string("cannot be written: ") + std::strerror(reason);
}

std::string OutputFile::wrong_name(std::string const& target)
{
  return target.empty() ? "the file name is empty" : std::string();
}
