#include <apPath.h>

#include "../TestLocale.h"
#include "Scratch.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace
{
// Names that are awkward on one system or another, and fine on all of them.
wchar_t const* const awkward_names[] = {L"plain.xml", L"with space.xml", L"no\u00A0break.xml", L"100%.xml", L"%20.xml",
  L"\u0444.xml", L"#hash.xml", L"\u65E5\u672C.xml", L"a&b;c'd.xml"};
}

TEST(apPath, default_constructed_is_empty_and_names_nothing)
{
  apPath const path;
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(path.path().length(), 0);
  EXPECT_FALSE(path.exists());
  EXPECT_EQ(path.file_open(apPath::read_mode()), nullptr);
}

TEST(apPath, path_is_the_narrow_text_it_was_made_from)
{
  EXPECT_EQ(apPath("dir/\xD1\x84.xml").path(), utString("dir/\xD1\x84.xml"));
  EXPECT_EQ(apPath(utString("dir/a.xml")).path(), utString("dir/a.xml"));
  EXPECT_FALSE(apPath("a").empty());
}

TEST(apPath, is_written_to_a_stream_as_its_path)
{
  std::ostringstream out;
  out << apPath("dir/\xD1\x84.xml");
  EXPECT_EQ(out.str(), "dir/\xD1\x84.xml");
}

TEST(apPath, path_of_wide_text_is_UTF_8)
{
  EXPECT_EQ(apPath(L"\u0444 \u00E4.xml").path(), utString("\xD1\x84 \xC3\xA4.xml"));
  EXPECT_EQ(apPath(apString(L"\u65E5")).path(), utString("\xE6\x97\xA5"));
  EXPECT_EQ(apPath(APSTRING("")).path(), utString(""));
}

TEST(apPath, path_of_wide_text_is_UTF_8_in_every_locale)
{
  TestLocale const locale(TestLocale::comma);
  EXPECT_EQ(apPath(L"\u0444.xml").path(), utString("\xD1\x84.xml"));
}

TEST(apPath, nothing_is_decoded_or_normalised)
{
  EXPECT_EQ(apPath("a%20b//../c").path(), utString("a%20b//../c"));
  EXPECT_EQ(apPath("file:///a").path(), utString("file:///a"));
}

TEST(apPath, equal_as_texts)
{
  EXPECT_TRUE(apPath("\xD1\x84") == apPath(L"\u0444"));
  EXPECT_FALSE(apPath("a") == apPath("./a"));
  EXPECT_TRUE(apPath("a") != apPath("A"));
  EXPECT_FALSE(apPath("a") != apPath("a"));
  EXPECT_TRUE(apPath() == apPath(""));
  EXPECT_TRUE(apPath() == apPath(L""));
}

TEST(apPath, names_of_different_bytes_differ_also_where_they_are_not_UTF_8)
{
  EXPECT_FALSE(apPath("\xFF") == apPath("\xFE"));
  EXPECT_FALSE(apPath("\xFF") == apPath(L"\uFFFD"));
}

TEST(apPath, file_that_is_not_there_neither_exists_nor_opens)
{
  apPath const path = scratch_path(L"not_there.xml");
  EXPECT_FALSE(path.exists());
  EXPECT_EQ(path.file_open(apPath::read_mode()), nullptr);
  EXPECT_EQ(scratch_path(L"not/there/file.xml").file_open(apPath::write_mode()), nullptr);
}

TEST(apPath, file_of_any_name_is_written_found_read_and_deleted)
{
  for (wchar_t const* const name : awkward_names)
  {
    apPath const path = scratch_path(name);
    write_file(path, "text");
    EXPECT_TRUE(path.exists()) << path.path();
    EXPECT_TRUE(apPath(path.path()).exists()) << path.path();
    EXPECT_EQ(read_file(path), "text") << path.path();
    EXPECT_TRUE(path.delete_file()) << path.path();
    EXPECT_FALSE(path.exists()) << path.path();
  }
}

TEST(apPath, name_is_the_same_file_in_every_locale)
{
  apPath const path = scratch_path(L"\u0444 locale.xml");
  write_file(path, "text");
  {
    TestLocale const locale(TestLocale::comma);
    EXPECT_TRUE(path.exists());
    EXPECT_EQ(read_file(path), "text");
    EXPECT_TRUE(path.delete_file());
  }
  EXPECT_FALSE(path.exists());
}

TEST(apPath, bytes_are_written_and_read_unchanged)
{
  apPath const path = scratch_path(L"bytes.bin");
  std::string const bytes("a\r\nb\nc\x1A\0\xFF", 9);
  write_file(path, bytes);
  EXPECT_EQ(read_file(path), bytes);
  write_file(path, "new");
  EXPECT_EQ(read_file(path), "new");
  path.delete_file();
}

TEST(apPath, delete_file_of_a_missing_file_succeeds)
{
  EXPECT_TRUE(scratch_path(L"not_there.xml").delete_file());
}

TEST(apPath, folder_exists_and_is_not_deleted_as_a_file)
{
  apPath const folder(".");
  EXPECT_TRUE(folder.exists());
  EXPECT_FALSE(folder.delete_file());
  EXPECT_TRUE(folder.exists());
}

TEST(apPath, replace_puts_a_file_in_the_place_of_another)
{
  apPath const from = scratch_path(L"\u0444 from.xml");
  apPath const to = scratch_path(L"\u0444 to.xml");
  write_file(from, "new");
  write_file(to, "old");
  EXPECT_TRUE(from.replace(to));
  EXPECT_FALSE(from.exists());
  EXPECT_EQ(read_file(to), "new");
  to.delete_file();
}

TEST(apPath, replace_goes_where_no_file_is)
{
  apPath const from = scratch_path(L"from.xml");
  apPath const to = scratch_path(L"to.xml");
  write_file(from, "new");
  EXPECT_TRUE(from.replace(to));
  EXPECT_EQ(read_file(to), "new");
  to.delete_file();
}

TEST(apPath, replace_that_fails_leaves_both_as_they_were)
{
  apPath const missing = scratch_path(L"not_there.xml");
  apPath const file = scratch_path(L"there.xml");
  write_file(file, "old");
  EXPECT_FALSE(missing.replace(file));
  EXPECT_EQ(read_file(file), "old");
  EXPECT_FALSE(file.replace(scratch_path(L"not/there/file.xml")));
  EXPECT_EQ(read_file(file), "old");
  file.delete_file();
}

TEST(apPath, name_with_a_NUL_names_nothing_and_not_the_file_before_the_NUL)
{
  apPath const file = scratch_path(L"before.xml");
  write_file(file, "old");
  apPath const longer(utString(file.path().c_str(), file.path().length() + 1) + utString(".xml"));
  EXPECT_FALSE(longer.exists());
  EXPECT_EQ(longer.file_open(apPath::read_mode()), nullptr);
  EXPECT_EQ(longer.file_open(apPath::write_mode()), nullptr);
  EXPECT_FALSE(longer.replace(file));
  EXPECT_FALSE(file.replace(longer));
  longer.delete_file();
  EXPECT_EQ(read_file(file), "old");
  file.delete_file();
}

#if !defined(_WIN32)
TEST(apPath, name_that_is_not_UTF_8_names_what_its_bytes_name)
{
  apPath const path(scratch_path(L"bytes").path() + utString("\xFF.xml"));
  write_file(path, "text");
  EXPECT_TRUE(path.exists());
  EXPECT_EQ(read_file(path), "text");
  EXPECT_TRUE(path.delete_file());
}
#endif
