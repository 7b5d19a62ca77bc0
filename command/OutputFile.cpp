#include "OutputFile.h"

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
  if (target.empty() || target == "-")
    stream = standard_output();
  else
    stream = file.emplace(apPath(target.c_str())).stream();
}

bool OutputFile::good() const
{
  return stream != nullptr && std::ferror(stream) == 0;
}

void OutputFile::write(std::string_view bytes)
{
  if (stream != nullptr && !bytes.empty())
    std::fwrite(bytes.data(), 1, bytes.size(), stream);
}

bool OutputFile::finish()
{
  if (file.has_value())
    return file->commit();
  return std::fflush(stream) == 0 && good();
}

std::string OutputFile::wrong_name(std::string const& target)
{
  return target.empty() ? "the file name is empty" : std::string();
}
