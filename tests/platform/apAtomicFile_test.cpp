#include <apAtomicFile.h>

#include "Scratch.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#if !defined(_WIN32)
#  include <sys/resource.h>
#  include <sys/stat.h>
#  include <sys/wait.h>
#  include <unistd.h>

#  include <csignal>
#endif

namespace
{
// A folder of the test's own, so that it sees what is left there.
class Folder
{
public:
  Folder()
  {
    std::filesystem::create_directory(std::filesystem::u8path(path.path().c_str()));
    std::filesystem::permissions(std::filesystem::u8path(path.path().c_str()), std::filesystem::perms::all);
  }
  Folder(Folder const&) = delete;
  Folder& operator=(Folder const&) = delete;
  ~Folder() { std::filesystem::remove_all(std::filesystem::u8path(path.path().c_str())); }

  apPath file(char const* name) const { return apPath(path.path() + utString("/") + utString(name)); }

  int entries() const
  {
    int count = 0;
    for (auto const& entry : std::filesystem::directory_iterator(std::filesystem::u8path(path.path().c_str())))
      count += entry.path().empty() ? 0 : 1;
    return count;
  }

private:
  apPath path = scratch_path(L"atomic \u0444");
};

bool put(apPath const& target, std::string const& text)
{
  apAtomicFile file(target);
  return file.stream() != nullptr && std::fwrite(text.data(), 1, text.size(), file.stream()) == text.size() &&
         file.commit();
}

#if !defined(_WIN32)
mode_t mode_of(apPath const& path)
{
  struct stat found;
  return stat(path.path().c_str(), &found) == 0 ? found.st_mode & 07777 : 0;
}
#endif
}

TEST(apAtomicFile, leaves_the_target_as_it_is_until_commit)
{
  Folder const folder;
  for (char const* const name : {"plain.xml", "with space.xml", "\xD1\x84.xml", "%20#.xml"})
  {
    write_file(folder.file(name), "old");
    apAtomicFile file(folder.file(name));
    ASSERT_NE(file.stream(), nullptr);
    std::fputs("new", file.stream());
    std::fflush(file.stream());
    EXPECT_EQ(read_file(folder.file(name)), "old");
    EXPECT_TRUE(file.commit());
    EXPECT_EQ(file.stream(), nullptr);
    EXPECT_EQ(read_file(folder.file(name)), "new");
    EXPECT_FALSE(file.commit());
    EXPECT_EQ(read_file(folder.file(name)), "new");
  }
  EXPECT_EQ(folder.entries(), 4);
}

TEST(apAtomicFile, makes_a_file_where_none_is)
{
  Folder const folder;
  EXPECT_TRUE(put(folder.file("new.xml"), "new"));
  EXPECT_EQ(read_file(folder.file("new.xml")), "new");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, goes_without_commit)
{
  Folder const folder;
  write_file(folder.file("a.xml"), "old");
  {
    apAtomicFile const file(folder.file("a.xml"));
    std::fputs("new", file.stream());
    // Some systems know files without a name.
    EXPECT_LE(folder.entries(), 2);
  }
  EXPECT_EQ(read_file(folder.file("a.xml")), "old");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, has_no_stream_for_what_cannot_be_a_file)
{
  Folder const folder;
  for (apPath const& path : {apPath(), apPath("."), folder.file("not/there.xml"), apPath(utString("a\0b", 3))})
  {
    apAtomicFile file(path);
    EXPECT_EQ(file.stream(), nullptr);
    EXPECT_FALSE(file.commit());
  }
  EXPECT_EQ(folder.entries(), 0);
}

TEST(apAtomicFile, two_for_one_target_do_not_meet)
{
  Folder const folder;
  apAtomicFile one(folder.file("a.xml"));
  apAtomicFile two(folder.file("a.xml"));
  std::fputs("one", one.stream());
  std::fputs("two", two.stream());
  EXPECT_TRUE(two.commit());
  EXPECT_EQ(read_file(folder.file("a.xml")), "two");
  EXPECT_TRUE(one.commit());
  EXPECT_EQ(read_file(folder.file("a.xml")), "one");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, leaves_a_file_that_may_not_be_written)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old");
  std::filesystem::permissions(std::filesystem::u8path(path.path().c_str()), std::filesystem::perms::owner_read);
#if defined(_WIN32)
  EXPECT_FALSE(put(path, "new"));
#else
  // The user root may write everything; so it is tried as somebody else.
  pid_t const child = fork();
  if (child == 0)
    _exit((getuid() == 0 && (chown(path.path().c_str(), 65534, 65534) != 0 || setuid(65534) != 0)) || put(path, "new"));
  int status = 1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
#endif
  EXPECT_EQ(read_file(path), "old");
  EXPECT_EQ(folder.entries(), 1);
  std::filesystem::permissions(std::filesystem::u8path(path.path().c_str()), std::filesystem::perms::all);
}

#if !defined(_WIN32)
TEST(apAtomicFile, keeps_the_permissions_of_the_target)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old");
  for (mode_t const mode : {0600U, 0640U, 0666U})
  {
    ASSERT_EQ(chmod(path.path().c_str(), mode), 0);
    EXPECT_TRUE(put(path, "new"));
    EXPECT_EQ(mode_of(path), mode);
  }
}

TEST(apAtomicFile, leaves_a_link_a_link)
{
  Folder const folder;
  write_file(folder.file("file.xml"), "old");
  ASSERT_EQ(symlink("file.xml", folder.file("link.xml").path().c_str()), 0);
  ASSERT_EQ(symlink("link.xml", folder.file("link to link.xml").path().c_str()), 0);
  EXPECT_TRUE(put(folder.file("link to link.xml"), "new"));
  EXPECT_EQ(read_file(folder.file("file.xml")), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(std::filesystem::u8path(folder.file("link.xml").path().c_str())));
  EXPECT_EQ(folder.entries(), 3);
}

TEST(apAtomicFile, makes_the_file_that_a_link_leads_to)
{
  Folder const folder;
  ASSERT_EQ(symlink("file.xml", folder.file("link.xml").path().c_str()), 0);
  EXPECT_TRUE(put(folder.file("link.xml"), "new"));
  EXPECT_EQ(read_file(folder.file("file.xml")), "new");
  EXPECT_EQ(folder.entries(), 2);
}

TEST(apAtomicFile, does_not_follow_a_link_to_itself_for_ever)
{
  Folder const folder;
  ASSERT_EQ(symlink("link.xml", folder.file("link.xml").path().c_str()), 0);
  EXPECT_FALSE(put(folder.file("link.xml"), "new"));
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, takes_a_target_whose_name_is_as_long_as_names_may_be)
{
  Folder const folder;
  std::string const longest(255, 'n');
  write_file(folder.file(longest.c_str()), "old");
  EXPECT_TRUE(put(folder.file(longest.c_str()), "new"));
  EXPECT_EQ(read_file(folder.file(longest.c_str())), "new");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, is_read_by_its_owner_only_until_it_has_the_permissions_of_the_target)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old");
  ASSERT_EQ(chmod(path.path().c_str(), 0644), 0);
  apAtomicFile file(path);
  struct stat found;
  ASSERT_EQ(fstat(fileno(file.stream()), &found), 0);
  EXPECT_EQ(found.st_mode & 07777, 0600U);
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(mode_of(path), 0644U);
}

TEST(apAtomicFile, a_new_file_has_the_permissions_that_the_process_gives_to_new_files)
{
  Folder const folder;
  mode_t const before = umask(027);
  EXPECT_TRUE(put(folder.file("a.xml"), "new"));
  umask(before);
  EXPECT_EQ(mode_of(folder.file("a.xml")), 0640U);
}

TEST(apAtomicFile, keeps_every_name_of_a_file)
{
  Folder const folder;
  write_file(folder.file("a.xml"), "old and longer");
  ASSERT_EQ(link(folder.file("a.xml").path().c_str(), folder.file("b.xml").path().c_str()), 0);
  EXPECT_TRUE(put(folder.file("a.xml"), "new"));
  EXPECT_EQ(read_file(folder.file("a.xml")), "new");
  EXPECT_EQ(read_file(folder.file("b.xml")), "new");
  EXPECT_TRUE(put(folder.file("b.xml"), "newer and longer still"));
  EXPECT_EQ(read_file(folder.file("a.xml")), "newer and longer still");
  EXPECT_EQ(folder.entries(), 2);
}

namespace
{
// What `work` gives in a process of a user who is nobody in particular; what it gives here if this user is no root.
template <class Work>
bool as_nobody(Work work)
{
  if (getuid() != 0)
    return work();
  pid_t const child = fork();
  if (child == 0)
    _exit(setgid(65534) == 0 && setuid(65534) == 0 && work() ? 0 : 1);
  int status = 1;
  waitpid(child, &status, 0);
  return status == 0;
}
}

TEST(apAtomicFile, writes_a_file_in_a_folder_in_which_nothing_new_may_be_made)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old and longer");
  ASSERT_EQ(chmod(path.path().c_str(), 0666), 0);
  std::filesystem::path const at = std::filesystem::u8path(path.path().c_str()).parent_path();
  std::filesystem::permissions(
    at, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec | std::filesystem::perms::others_exec);
  bool const old_may_be_changed = as_nobody([&] { return put(path, "new"); });
  bool const new_may_be_made = as_nobody([&] { return put(folder.file("b.xml"), "new"); });
  std::filesystem::permissions(at, std::filesystem::perms::all);
  EXPECT_TRUE(old_may_be_changed);
  EXPECT_FALSE(new_may_be_made);
  EXPECT_EQ(read_file(path), "new");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, a_file_that_everybody_may_write_stays_that_of_its_owner)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old");
  ASSERT_EQ(chmod(path.path().c_str(), 0666), 0);
  EXPECT_TRUE(as_nobody([&] { return put(path, "new"); }));
  struct stat found;
  ASSERT_EQ(stat(path.path().c_str(), &found), 0);
  EXPECT_EQ(found.st_uid, getuid());
  EXPECT_EQ(read_file(path), "new");
  EXPECT_EQ(mode_of(path), 0666U);
}

TEST(apAtomicFile, a_process_that_is_killed_leaves_the_old_file_alone)
{
  Folder const folder;
  write_file(folder.file("a.xml"), "old");
  int entries = 2;
  {
    apAtomicFile const file(folder.file("a.xml"));
    entries = folder.entries();
  }
  pid_t const child = fork();
  if (child == 0)
  {
    apAtomicFile const file(folder.file("a.xml"));
    std::fputs("new", file.stream());
    std::fflush(file.stream());
    std::raise(SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(read_file(folder.file("a.xml")), "old");
  // Where files have no name until they are whole, nothing else is there.
  EXPECT_EQ(folder.entries(), entries);
}

TEST(apAtomicFile, writes_to_a_descriptor_of_the_process_whatever_it_leads_to)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  std::FILE* const open = path.file_open("wb");
  ASSERT_NE(open, nullptr);
  std::fputs("before ", open);
  std::fflush(open);
  std::string const number = std::to_string(fileno(open));
  for (std::string const& name : {"/dev/fd/" + number, "/proc/self/fd/" + number})
    EXPECT_TRUE(put(apPath(name.c_str()), "new ")) << name;
  ASSERT_EQ(symlink(("/dev/fd/" + number).c_str(), folder.file("link").path().c_str()), 0);
  EXPECT_TRUE(put(folder.file("link"), "linked "));
  std::fputs("after", open);
  std::fclose(open);
  EXPECT_EQ(read_file(path), "before new new linked after");
  EXPECT_FALSE(put(apPath("/dev/fd/12345"), "new"));
}

TEST(apAtomicFile, a_name_that_only_looks_like_that_of_a_descriptor_is_none)
{
  for (char const* const name :
    {"/dev/fd/", "/dev/fd/x", "/dev/fd/1x", "/dev/fd/-1", "/dev/fd/99999999999", "/proc/self/fd/2 "})
    EXPECT_FALSE(put(apPath(name), "new")) << name;
}

TEST(apAtomicFile, writes_straight_to_what_is_no_regular_file)
{
  Folder const folder;
  apPath const pipe = folder.file("pipe");
  ASSERT_EQ(mkfifo(pipe.path().c_str(), 0600), 0);
  pid_t const child = fork();
  if (child == 0)
    _exit(put(pipe, "new") ? 0 : 1);
  EXPECT_EQ(read_file(pipe), "new");
  int status = 1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(std::filesystem::is_fifo(std::filesystem::u8path(pipe.path().c_str())));
  EXPECT_EQ(folder.entries(), 1);
  EXPECT_TRUE(put(apPath("/dev/null"), "new"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(apAtomicFile, leaves_the_target_when_the_disk_is_full)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old");
  // A process may make files so large and no larger.
  auto const old_handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old_limit;
  getrlimit(RLIMIT_FSIZE, &old_limit);
  rlimit limit = old_limit;
  limit.rlim_cur = 100;
  setrlimit(RLIMIT_FSIZE, &limit);
  // So short that it fails when what was kept back is written.
  bool const done = put(path, std::string(1000, 'x'));
  setrlimit(RLIMIT_FSIZE, &old_limit);
  std::signal(SIGXFSZ, old_handler);
  EXPECT_FALSE(done);
  EXPECT_EQ(read_file(path), "old");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(apAtomicFile, whoever_reads_the_old_file_still_reads_it_whole)
{
  Folder const folder;
  apPath const path = folder.file("a.xml");
  write_file(path, "old");
  std::FILE* const reader = path.file_open(apPath::read_mode());
  ASSERT_NE(reader, nullptr);
  EXPECT_TRUE(put(path, "new and longer"));
  char bytes[20] = {};
  EXPECT_EQ(std::fread(bytes, 1, sizeof bytes, reader), 3u);
  EXPECT_STREQ(bytes, "old");
  std::fclose(reader);
  EXPECT_EQ(read_file(path), "new and longer");
}

TEST(apAtomicFile, does_not_mind_what_errno_says_of_something_else)
{
  Folder const folder;
  apPath const place = folder.file("a.xml");
  apAtomicFile file(place);
  ASSERT_NE(file.stream(), nullptr);
  EXPECT_GE(std::fputs("new", file.stream()), 0);
  errno = EINTR;
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(read_file(place), "new");
}

TEST(apAtomicFile, leaves_the_reason_in_errno_where_it_cannot_write)
{
  Folder const folder;
  apPath const nowhere = folder.file("not/there.xml");
  errno = 0;
  EXPECT_EQ(apAtomicFile(nowhere).stream(), nullptr);
  EXPECT_EQ(errno, ENOENT);

  apAtomicFile full(apPath("/dev/full"));
  ASSERT_NE(full.stream(), nullptr);
  EXPECT_GE(std::fputs("new", full.stream()), 0);
  errno = 0;
  EXPECT_FALSE(full.commit());
  EXPECT_EQ(errno, ENOSPC);
}
#endif
