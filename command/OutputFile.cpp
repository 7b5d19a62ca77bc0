#include "OutputFile.h"

#include <apPath.h>
#include <apProcessControl.h>

#include <filesystem>
#include <system_error>

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

// The file that a link leads to, so that the link stays one.
std::string resolved(std::string const& target)
{
  std::error_code failed;
  std::filesystem::path const path = std::filesystem::u8path(target);
  if (!std::filesystem::is_symlink(path, failed))
    return target;
  std::filesystem::path const end = std::filesystem::canonical(path, failed);
  return failed ? target : end.u8string();
}

bool is_written_straight(std::string const& target)
{
  std::error_code failed;
  std::filesystem::file_status const status = std::filesystem::status(std::filesystem::u8path(target), failed);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

void keep_permissions(std::string const& from, std::string const& to)
{
  std::error_code failed;
  std::filesystem::file_status const status = std::filesystem::status(std::filesystem::u8path(from), failed);
  if (std::filesystem::exists(status))
    std::filesystem::permissions(std::filesystem::u8path(to), status.permissions(), failed);
}
}

OutputFile::OutputFile(std::string const& wanted) : target(wanted.empty() ? wanted : resolved(wanted))
{
  if (target.empty())
    stream = standard_output();
  else
  {
    if (!is_written_straight(target))
      written = target + "." + std::to_string(apProcessControl::getpid()) + ".tmp";
    stream = apPath((written.empty() ? target : written).c_str()).file_open(apPath::write_mode());
  }
}

OutputFile::~OutputFile()
{
  close();
  if (!written.empty())
    apPath(written.c_str()).delete_file();
}

bool OutputFile::good() const
{
  return stream != nullptr && std::ferror(stream) == 0;
}

void OutputFile::write(std::string_view bytes)
{
  if (stream != nullptr)
    std::fwrite(bytes.data(), 1, bytes.size(), stream);
}

bool OutputFile::finish()
{
  if (!close())
    return false;
  if (written.empty())
    return true;
  keep_permissions(target, written);
  if (!apPath(written.c_str()).replace(apPath(target.c_str())))
    return false;
  written.clear();
  return true;
}

// Writes what is left; whether all went well.
bool OutputFile::close()
{
  if (stream == nullptr)
    return false;
  bool const flushed = std::fflush(stream) == 0 && good();
  std::FILE* const closing = stream;
  stream = nullptr;
  return target.empty() ? flushed : std::fclose(closing) == 0 && flushed;
}
