#include "FullDisk.h"

#include "FaultyRun.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

namespace
{
void put(std::string const& file, std::string const& text)
{
  std::ofstream(file, std::ios::binary) << text;
}

// Without the right to mount anything, a process has it in a user namespace of its own, in which it stays who it is.
bool may_mount()
{
  std::string const user = std::to_string(geteuid());
  std::string const group = std::to_string(getegid());
  if (unshare(CLONE_NEWNS) == 0)
    return true;
  if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
    return false;
  put("/proc/self/setgroups", "deny");
  put("/proc/self/uid_map", user + " " + user + " 1");
  put("/proc/self/gid_map", group + " " + group + " 1");
  return true;
}

bool mount_disk(std::string const& place)
{
  return may_mount() && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("tmpfs", place.c_str(), "tmpfs", 0, "size=400k") == 0;
}

void fill(std::string const& place, std::size_t room)
{
  struct statvfs found;
  if (statvfs(place.c_str(), &found) == 0)
    put(place + "/filler", std::string(found.f_bavail * found.f_bsize - room, 'f'));
}

void limit_files()
{
  signal(SIGXFSZ, SIG_IGN);
  rlimit const limit = {48 * 1024, 48 * 1024};
  setrlimit(RLIMIT_FSIZE, &limit);
}
}

std::string on_full_disk(std::string const& place, std::size_t room, std::function<void()> const& prepare,
  std::function<std::string()> const& work)
{
  std::string const report = "full_disk_" + std::to_string(getpid());
  pid_t const child = fork();
  if (child == 0)
  {
    bool const has_disk = mount_disk(place);
    prepare();
    if (has_disk)
      fill(place, room);
    else
      limit_files();
    put(report, work());
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  std::string result = contents_of(report);
  unlink(report.c_str());
  return result;
}
