#include <apAtomicFile.h>

#include "apNativeFile.h"

#include <apProcessControl.h>
#include <apStringFormatter.h>

#include <atomic>
#include <utility>

namespace
{
// Beside the target, so that renaming does not cross file systems; no two of them alike, in whatever process or thread.
apPath beside(apPath const& target)
{
  static std::atomic<unsigned int> files{0};
  apString const suffix = apStringFormatter::format(L".%d_%u.tmp", apProcessControl::getpid(), ++files);
  return apPath(target.path() + suffix.to_utf8());
}
}

apAtomicFile::apAtomicFile(apPath const& target) : place(target)
{
  if (!apNativeFile::is_special(target.path()))
  {
    place = apPath(apNativeFile::resolved(target.path()));
    if (place.empty() || !apNativeFile::may_be_written(place.path()))
      return;
    temporary = beside(place);
  }
  file = (temporary.empty() ? place : temporary).file_open(apPath::write_mode());
  if (file == nullptr)
    temporary = apPath();
}

apAtomicFile::~apAtomicFile()
{
  if (file != nullptr)
    std::fclose(file);
  if (!temporary.empty())
    apNativeFile::remove(temporary.path());
}

std::FILE* apAtomicFile::stream() const noexcept
{
  return file;
}

bool apAtomicFile::commit() noexcept
try
{
  if (file == nullptr)
    return false;
  bool const straight = temporary.empty();
  bool const written = std::ferror(file) == 0 && std::fflush(file) == 0 && (straight || apNativeFile::sync(file));
  if (std::fclose(std::exchange(file, nullptr)) != 0 || !written)
    return false;
  if (straight)
    return true;
  apNativeFile::keep_permissions(place.path(), temporary.path());
  if (!temporary.replace(place))
    return false;
  temporary = apPath();
  return true;
}
catch (...)
{
  return false;
}
