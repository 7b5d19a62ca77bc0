#include <apPath.h>
#include <apTarnFileStdio.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

// What a name means is told by the standard library, which asks the system in its own terms: a call of ours that went
// through a narrow code page would make, find or miss another file.

namespace
{
constexpr char const* names[] = {
  "plain", "two words",
  "no\xC2\xA0nbsp",                   // U+00A0
  "per%20cent",                       // not a URL
  "\xC3\xA9t\xC3\xA9",                // in many code pages
  "\xD1\x84\xD0\xB0\xD0\xB9\xD0\xBB", // in some
  "\xE6\x96\x87\xE4\xBB\xB6",         // in few
  "\xF0\x9D\x84\x9E",                 // U+1D11E: two units where wchar_t has 16 bits
};

class UnicodePaths : public testing::TestWithParam<char const*>
{
protected:
  void SetUp() override
  {
    std::filesystem::remove_all(folder);
    ASSERT_TRUE(std::filesystem::create_directory(folder));
  }

  void TearDown() override
  {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  std::filesystem::path const folder =
    std::filesystem::temp_directory_path() /
    std::filesystem::u8path(std::string("axm_paths_") + std::to_string(std::hash<std::string>()(GetParam())));
  std::filesystem::path const file = folder / std::filesystem::u8path(GetParam());
  apPath const path = apPath(file.u8string().c_str());
};

std::string contents_of(std::filesystem::path const& file)
{
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void write(std::filesystem::path const& file, char const* text)
{
  std::ofstream(file, std::ios::binary) << text;
}
}

TEST_P(UnicodePaths, a_file_written_bears_the_name)
{
  std::FILE* const stream = path.file_open(apPath::write_mode());
  ASSERT_NE(stream, nullptr);
  EXPECT_GE(std::fputs("text\n", stream), 0);
  EXPECT_EQ(std::fclose(stream), 0);
  ASSERT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(contents_of(file), "text\n");
}

TEST_P(UnicodePaths, a_file_of_the_name_is_there)
{
  EXPECT_FALSE(path.exists());
  write(file, "text");
  EXPECT_TRUE(path.exists());
}

TEST_P(UnicodePaths, a_file_of_the_name_is_read)
{
  write(file, "text");
  apTarnFileStdio stream(path.path(), apTarnModeRead);
  char bytes[8];
  EXPECT_EQ(stream.read(bytes, 1, 8), 4);
  EXPECT_EQ(std::string(bytes, 4), "text");
}

TEST_P(UnicodePaths, a_file_of_the_name_is_deleted)
{
  write(file, "text");
  EXPECT_TRUE(path.delete_file());
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_P(UnicodePaths, a_file_takes_the_place_of_the_one_of_the_name)
{
  std::filesystem::path const other = folder / "other";
  write(file, "old");
  write(other, "new");
  EXPECT_TRUE(apPath(other.u8string().c_str()).replace(path));
  EXPECT_EQ(contents_of(file), "new");
  EXPECT_FALSE(std::filesystem::exists(other));
}

INSTANTIATE_TEST_SUITE_P(names, UnicodePaths, testing::ValuesIn(names),
  [](testing::TestParamInfo<char const*> const& named) { return std::to_string(named.index); });
