// Loaded before the C library (LD_PRELOAD), it makes one call of a program to the system fail, or ends the program there.
// AXM_FAULT says which: CALL NUMBER FAULT, as in "fsync 2 EIO", "any 7 kill", "fread 1 short". The calls of one name are
// counted from 1, those of "any" all together. "shrink" and "grow" fail nothing: before that call somebody else cuts the
// file AXM_FAULT_FILE to its half, or adds a comment to it. That it has been done is told by the file AXM_FAULT_DONE.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
enum class Fault
{
  none,
  failure, // errno is set
  shortened
};

template <class Function>
Function* real(char const* name)
{
  void* const found = dlsym(RTLD_NEXT, name);
  Function* function = nullptr;
  std::memcpy(&function, &found, sizeof function);
  return function;
}

void note_done()
{
  char const* const file = std::getenv("AXM_FAULT_DONE");
  static auto* const open_file = real<int(char const*, int, ...)>("open");
  if (file != nullptr)
    open_file(file, O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
}

void change_file(bool grows)
{
  char const* const file = std::getenv("AXM_FAULT_FILE");
  static auto* const open_file = real<int(char const*, int, ...)>("open");
  static auto* const write_file = real<ssize_t(int, void const*, std::size_t)>("write");
  static auto* const cut_file = real<int(int, off_t)>("ftruncate");
  static auto* const close_file = real<int(int)>("close");
  int const number = file == nullptr ? -1 : open_file(file, O_WRONLY | O_APPEND | O_CLOEXEC);
  if (number < 0)
    return;
  char const more[] = "<!-- more -->\n";
  off_t const size = lseek(number, 0, SEEK_END);
  if (grows ? write_file(number, more, sizeof more - 1) < 0 : cut_file(number, size / 2) != 0)
    std::abort();
  close_file(number);
}

// What is to become of a call of that name.
Fault fault_of(char const* call)
{
  static char const* const wanted = std::getenv("AXM_FAULT");
  static std::atomic<int> calls{0};
  char name[32];
  int number = 0;
  char fault[32];
  if (wanted == nullptr || std::sscanf(wanted, "%31s %d %31s", name, &number, fault) != 3)
    return Fault::none;
  if ((std::strcmp(name, "any") != 0 && std::strcmp(name, call) != 0) || ++calls != number)
    return Fault::none;

  note_done();
  if (std::strcmp(fault, "kill") == 0)
    std::raise(SIGKILL);
  if (std::strcmp(fault, "terminate") == 0)
  {
    std::raise(SIGTERM);
    return Fault::none;
  }
  if (std::strcmp(fault, "short") == 0)
    return Fault::shortened;
  bool const grows = std::strcmp(fault, "grow") == 0;
  if (grows || std::strcmp(fault, "shrink") == 0)
  {
    change_file(grows);
    return Fault::none;
  }
  errno = std::strcmp(fault, "ENOSPC") == 0 ? ENOSPC : EIO;
  return Fault::failure;
}

// The streams of the C library call the system in ways that cannot be reached; what they would say of it, is said for them.
void set_error(std::FILE* stream)
{
  stream->_flags |= 0x20; // _IO_ERR_SEEN
}

std::FILE* const no_stream = nullptr;

// The call of that name with these arguments, or what it gives when it fails.
template <class Result, class... Arguments>
Result called(char const* name, Result failed, Arguments... arguments)
{
  Fault const fault = fault_of(name);
  if (fault == Fault::none)
    return real<Result(Arguments...)>(name)(arguments...);
  if (fault == Fault::shortened) // which there is not of these
    errno = EIO;
  return failed;
}
}

extern "C" int fsync(int file)
{
  return called("fsync", -1, file);
}

extern "C" int rename(char const* from, char const* to) noexcept
{
  return called("rename", -1, from, to);
}

extern "C" int unlink(char const* name) noexcept
{
  return called("unlink", -1, name);
}

extern "C" int fchmod(int file, mode_t mode) noexcept
{
  return called("fchmod", -1, file, mode);
}

extern "C" int fchown(int file, uid_t user, gid_t group) noexcept
{
  return called("fchown", -1, file, user, group);
}

extern "C" int ftruncate(int file, off_t size) noexcept
{
  return called("ftruncate", -1, file, size);
}

extern "C" int linkat(int from_folder, char const* from, int to_folder, char const* to, int flags) noexcept
{
  return called("linkat", -1, from_folder, from, to_folder, to, flags);
}

extern "C" int fstat(int file, struct stat* found) noexcept
{
  return called("fstat", -1, file, found);
}

extern "C" int stat(char const* name, struct stat* found) noexcept
{
  return called("stat", -1, name, found);
}

extern "C" int access(char const* name, int mode) noexcept
{
  return called("access", -1, name, mode);
}

extern "C" ssize_t readlink(char const* name, char* text, std::size_t size) noexcept
{
  return called("readlink", ssize_t{-1}, name, text, size);
}

extern "C" int fseeko(std::FILE* stream, off_t to, int from)
{
  return called("fseeko", -1, stream, to, from);
}

extern "C" off_t ftello(std::FILE* stream)
{
  return called("ftello", off_t{-1}, stream);
}

extern "C" std::FILE* fopen(char const* name, char const* mode)
{
  return called("fopen", no_stream, name, mode);
}

extern "C" std::FILE* fdopen(int file, char const* mode) noexcept
{
  return called("fdopen", no_stream, file, mode);
}

extern "C" std::FILE* tmpfile()
{
  return called("tmpfile", no_stream);
}

extern "C" int open(char const* name, int flags, ...)
{
  va_list more;
  va_start(more, flags);
  mode_t const mode = va_arg(more, mode_t);
  va_end(more);
  return fault_of("open") == Fault::none ? real<int(char const*, int, ...)>("open")(name, flags, mode) : -1;
}

// A short count of them is no fault, and those who call them must go on.
extern "C" ssize_t read(int file, void* bytes, std::size_t size)
{
  static auto* const call = real<ssize_t(int, void*, std::size_t)>("read");
  Fault const fault = fault_of("read");
  if (fault == Fault::failure)
    return -1;
  return call(file, bytes, fault == Fault::shortened && size > 1 ? size / 2 : size);
}

extern "C" ssize_t write(int file, void const* bytes, std::size_t size)
{
  static auto* const call = real<ssize_t(int, void const*, std::size_t)>("write");
  Fault const fault = fault_of("write");
  if (fault == Fault::failure)
    return -1;
  return call(file, bytes, fault == Fault::shortened && size > 1 ? size / 2 : size);
}

// A short count of these is one.
extern "C" std::size_t fread(void* bytes, std::size_t size, std::size_t count, std::FILE* stream)
{
  static auto* const call = real<std::size_t(void*, std::size_t, std::size_t, std::FILE*)>("fread");
  Fault const fault = fault_of("fread");
  if (fault == Fault::none)
    return call(bytes, size, count, stream);
  std::size_t const done = fault == Fault::shortened ? call(bytes, size, count / 2, stream) : 0;
  set_error(stream);
  errno = EIO;
  return done;
}

extern "C" std::size_t fwrite(void const* bytes, std::size_t size, std::size_t count, std::FILE* stream)
{
  static auto* const call = real<std::size_t(void const*, std::size_t, std::size_t, std::FILE*)>("fwrite");
  Fault const fault = stream == stderr ? Fault::none : fault_of("fwrite");
  if (fault == Fault::none)
    return call(bytes, size, count, stream);
  std::size_t const done = fault == Fault::shortened ? call(bytes, size, count / 2, stream) : 0;
  set_error(stream);
  errno = ENOSPC;
  return done;
}

extern "C" int fflush(std::FILE* stream)
{
  static auto* const call = real<int(std::FILE*)>("fflush");
  if (fault_of("fflush") == Fault::none)
    return call(stream);
  if (stream != nullptr)
    set_error(stream);
  return EOF;
}

// Closed it is all the same.
extern "C" int close(int file)
{
  static auto* const call = real<int(int)>("close");
  bool const fails = fault_of("close") != Fault::none;
  int const result = call(file);
  if (!fails)
    return result;
  errno = EIO;
  return -1;
}

extern "C" int fclose(std::FILE* stream)
{
  static auto* const call = real<int(std::FILE*)>("fclose");
  bool const fails = fault_of("fclose") != Fault::none;
  int const result = call(stream);
  return fails ? EOF : result;
}
