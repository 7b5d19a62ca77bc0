#include "axsSaver.h"

#include "axsDocument.h"
#include "axsWriter.h"

#include <apProcessControl.h>
#include <apStringFormatter.h>

#include <atomic>
#include <cstdio>
#include <memory>

namespace
{
// Beside the target, so that renaming does not cross file systems; no two of them alike, in whatever process or thread.
apPath temporary_path(apPath const& target)
{
  static std::atomic<unsigned int> saves{0};
  apString const suffix = apStringFormatter::format(L".%d_%u.tmp", apProcessControl::getpid(), ++saves);
  return apPath(target.path() + suffix.to_utf8());
}

bool write_file(axsDocument const& document, apPath const& path)
{
  std::FILE* const file = path.file_open(apPath::write_mode());
  if (file == nullptr)
    return false;
  bool const written = axsWriter::write(document, file);
  return std::fclose(file) == 0 && written;
}

bool save_to(axsDocument const& document, apPath const& path)
{
  apPath const temporary = temporary_path(path);
  if (write_file(document, temporary) && temporary.replace(path))
    return true;
  temporary.delete_file();
  return false;
}
}

bool axsSaver::save(axsDocument const& document, apByteArray& output) noexcept
try
{
  std::string xml;
  if (!axsWriter::write(document, xml))
    return false;
  output = apByteArray(xml.data(), xml.size());
  return true;
}
catch (...)
{
  return false;
}

bool axsSaver::save(axsDocument const& document, apPath const& path) noexcept
try
{
  return !path.empty() && save_to(document, path);
}
catch (...)
{
  return false;
}
