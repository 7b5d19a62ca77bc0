#include "axsLocalFile.h"

#include "axsReadError.h"
#include "axsSource.h"

#include "../../Engine.h"

#include <filesystem>
#include <sys/stat.h>

namespace
{
std::string refusal(char const* name)
try
{
  axsLocalFile::open(apPath(name));
  return {};
}
catch (axsReadError const& error)
{
  return narrow(error.message);
}
}

TEST(axsLocalFile, is_opened_to_be_read)
{
  TestFile const file("local_file.ent", "text");
  EXPECT_EQ(axsLocalFile::open(file.path())->head(), "text");
}

TEST(axsLocalFile, is_no_folder_no_pipe_no_device)
{
  std::filesystem::create_directory("local_folder");
  EXPECT_EQ(refusal("local_folder"), "Cannot read the file local_folder: it is a folder");
  std::filesystem::remove("local_folder");
  EXPECT_EQ(refusal("/dev/zero"), "Cannot read the file /dev/zero: it is a pipe or a device");
  // Nobody writes to it: opening it would never end.
  std::filesystem::remove("local_pipe");
  ASSERT_EQ(mkfifo("local_pipe", 0600), 0);
  EXPECT_EQ(refusal("local_pipe"), "Cannot read the file local_pipe: it is a pipe or a device");
  std::filesystem::remove("local_pipe");
  EXPECT_EQ(refusal("local_no_file"), "There is no file local_no_file");
}

TEST(axsLocalFile, is_one_file_by_whatever_path)
{
  TestFile const file("local_one.ent", "text");
  TestFile const other("local_other.ent", "text");
  std::string const one = axsLocalFile::identity(file.path());
  std::filesystem::create_directory("local_folder");
  std::filesystem::remove("local_link.ent");
  std::filesystem::remove("local_hard.ent");
  std::filesystem::create_symlink("local_one.ent", "local_link.ent");
  std::filesystem::create_hard_link("local_one.ent", "local_hard.ent");
  std::string const absolute = (std::filesystem::current_path() / "local_one.ent").string();
  for (std::string const& name :
    {std::string("local_one.ent"), std::string("./local_one.ent"), std::string("local_folder/../local_one.ent"),
      absolute, std::string("local_link.ent"), std::string("local_hard.ent")})
    EXPECT_EQ(axsLocalFile::identity(apPath(name.c_str())), one) << name;
  EXPECT_NE(axsLocalFile::identity(other.path()), one);
  EXPECT_EQ(axsLocalFile::identity(apPath("local_no_file")), "local_no_file");
  for (char const* const name : {"local_folder", "local_link.ent", "local_hard.ent"})
    std::filesystem::remove(name);
}
