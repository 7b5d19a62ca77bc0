#include <apAtomicFile.h>

#include "Scratch.h"

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
    EXPECT_EQ(folder.entries(), 2);
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
#endif
