#include "apAtomicFile.h"

#include "apEntropy.h"
#include "apHeldSignals.h"
#include "apNativeFile.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <memory>
#include <utility>

namespace
{
using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// A name beside the target, so that renaming does not cross file systems; short, for the target's may be as long as the
// system takes.
utString name_beside(utString const& target)
{
  char const characters[] = "abcdefghijklmnopqrstuvwxyz234567";
  char name[] = "/.ax----------.tmp";
  std::uint64_t random = apEntropy::draw();
  for (char& c : name)
    if (c == '-')
    {
      c = characters[random % 32];
      random /= 32;
    }
  return apNativeFile::folder_of(target) + utString(name);
}

// Calls `make(name)` with names beside the target until it does not find the name taken. Empty where it cannot be.
template <class Make>
utString made_beside(utString const& target, Make make)
{
  int const max_attempts = 100;
  for (int attempt = 0; attempt < max_attempts; ++attempt)
  {
    utString name = name_beside(target);
    switch (make(name))
    {
    case apNativeFile::Made::yes:
      return name;
    case apNativeFile::Made::exists:
      break;
    case apNativeFile::Made::no:
      return utString();
    }
  }
  return utString();
}

// Makes `to` hold what `from` holds.
bool copy(std::FILE* from, std::FILE* to)
{
  if (std::fseek(from, 0, SEEK_SET) != 0 || std::fseek(to, 0, SEEK_SET) != 0)
    return false;
  std::array<char, 16384> bytes;
  for (std::size_t count; (count = std::fread(bytes.data(), 1, bytes.size(), from)) > 0;)
    if (std::fwrite(bytes.data(), 1, count, to) != count)
      return false;
  return std::ferror(from) == 0 && apNativeFile::end_here(to);
}

// Whether all that was written to the stream so far has reached the system.
bool is_written(std::FILE* file)
{
  return std::ferror(file) == 0 && std::fflush(file) == 0;
}

// Puts `file`, which is called `temporary` unless that is empty, in the place of `place`. False with it open still, under
// the name in `temporary` if it has got one.
bool take_place(std::FILE*& file, apPath const& place, apPath& temporary)
{
  if (apNativeFile::has_further_names(place.path()) || !apNativeFile::take_permissions(file, place.path()))
    return false;
  if (temporary.empty() && apNativeFile::give_name(file, place.path()) == apNativeFile::Made::yes)
    return true; // nothing was there
  // With a name of its own, the file would stay if a signal ended the process.
  apHeldSignals const held;
  if (temporary.empty())
    temporary =
      apPath(made_beside(place.path(), [&](utString const& name) { return apNativeFile::give_name(file, name); }));
  if (temporary.empty())
    return false;
#if defined(_WIN32)
  // There, what is open cannot be renamed.
  std::fclose(std::exchange(file, nullptr));
#endif
  if (temporary.replace(place))
  {
    temporary = apPath();
    return true;
  }
#if defined(_WIN32)
  file = temporary.file_open("r+b");
#endif
  return false;
}

bool write_in_place(std::FILE* file, apPath const& place)
{
  Stream const target(place.file_open("r+b"), &std::fclose);
  Stream const old(std::tmpfile(), &std::fclose);
  if (file == nullptr || target == nullptr || old == nullptr || !copy(target.get(), old.get()))
    return false;
  if (copy(file, target.get()) && apNativeFile::sync(target.get()))
    return true;
  int const reason = errno;
  // The old bytes need no room that the file did not have.
  std::clearerr(target.get());
  static_cast<void>(copy(old.get(), target.get()) && apNativeFile::sync(target.get()));
  errno = reason;
  return false;
}
}

apAtomicFile::apAtomicFile(apPath const& target)
{
  utString const resolved = apNativeFile::resolved(target.path());
  int const descriptor = apNativeFile::descriptor(resolved);
  if (descriptor >= 0 || apNativeFile::is_special(resolved))
  {
    file = descriptor >= 0 ? apNativeFile::open_descriptor(descriptor) : target.file_open(apPath::write_mode());
    return;
  }
  if (resolved.length() == 0 || !apNativeFile::may_be_written(resolved))
    return;

  place = apPath(resolved);
  bool const is_new = !place.exists();
  file = apNativeFile::open_nameless(resolved, is_new);
  if (file == nullptr)
    temporary = apPath(made_beside(resolved,
      [&](utString const& name)
      {
        bool exists = false;
        file = apNativeFile::open_new(name, is_new, exists);
        return file != nullptr ? apNativeFile::Made::yes : exists ? apNativeFile::Made::exists : apNativeFile::Made::no;
      }));
  // Where nothing new may be made, the file itself is written at the end.
  if (file == nullptr && !is_new)
    file = std::tmpfile();
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
  bool const straight = place.empty();
  bool const done =
    is_written(file) &&
    (straight || (apNativeFile::sync(file) && (take_place(file, place, temporary) || write_in_place(file, place))));
  int const reason = errno;
  bool const is_closed = file == nullptr || std::fclose(std::exchange(file, nullptr)) == 0;
  if (!done)
    errno = reason;
  return is_closed && done;
}
catch (...)
{
  return false;
}
