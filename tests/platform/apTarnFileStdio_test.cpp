#include <apTarnFileStdio.h>

#include "Scratch.h"

#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#if !defined(_WIN32)
#  include <sys/stat.h>
#  include <unistd.h>

#  include <csignal>
#  include <thread>
#endif

namespace
{
int const from_start = 0;
int const from_here = 1;
int const from_end = 2;

struct apTarnFileStdioTest : testing::Test
{
  apTarnFileStdioTest()
  {
    write_file(path, std::string("0123\r\n\0\x1A"
                                 "89",
                       10));
    file = std::make_unique<apTarnFileStdio>(path.path(), apTarnModeRead);
  }
  ~apTarnFileStdioTest() override
  {
    file.reset();
    path.delete_file();
  }

  std::string read(int size, int count)
  {
    std::string buffer(100, '.');
    int const elements = file->read(&buffer[0], size, count);
    return buffer.substr(0, static_cast<std::size_t>(elements * size));
  }

  apPath const path = scratch_path(L"\u0444 tarn.bin");
  std::unique_ptr<apITarnFile> file;
};
}

TEST(apTarnMode, reading_an_existing_file_is_0)
{
  EXPECT_EQ(static_cast<int>(apTarnModeRead), 0);
}

TEST_F(apTarnFileStdioTest, size_is_the_position_at_the_end)
{
  EXPECT_EQ(file->tell(), 0);
  EXPECT_TRUE(file->seek(0, from_end));
  EXPECT_EQ(file->tell(), 10);
  EXPECT_TRUE(file->rewind());
  EXPECT_EQ(file->tell(), 0);
}

TEST_F(apTarnFileStdioTest, bytes_come_unchanged)
{
  EXPECT_EQ(read(1, 10), std::string("0123\r\n\0\x1A"
                                     "89",
                           10));
}

TEST_F(apTarnFileStdioTest, read_goes_on_where_it_stands)
{
  EXPECT_EQ(read(1, 2), "01");
  EXPECT_EQ(file->tell(), 2);
  EXPECT_EQ(read(1, 2), "23");
}

TEST_F(apTarnFileStdioTest, read_returns_the_elements_that_came_whole)
{
  EXPECT_EQ(read(4, 2).size(), 8u);
  EXPECT_EQ(read(4, 2).size(), 0u) << "two bytes are no element of four";
  file->rewind();
  EXPECT_EQ(read(1, 50).size(), 10u);
}

TEST_F(apTarnFileStdioTest, read_of_nothing_reads_nothing)
{
  EXPECT_EQ(file->read(nullptr, 1, 0), 0);
  EXPECT_EQ(file->read(nullptr, 0, 1), 0);
  EXPECT_EQ(file->read(nullptr, 1, -1), 0);
  EXPECT_EQ(file->read(nullptr, INT_MIN, INT_MIN), 0);
  EXPECT_EQ(file->tell(), 0);
}

TEST_F(apTarnFileStdioTest, seek_moves_from_start_from_here_and_from_the_end)
{
  EXPECT_TRUE(file->seek(3, from_start));
  EXPECT_EQ(read(1, 1), "3");
  EXPECT_TRUE(file->seek(-2, from_here));
  EXPECT_EQ(read(1, 1), "2");
  EXPECT_TRUE(file->seek(-1, from_end));
  EXPECT_EQ(read(1, 1), "9");
}

TEST_F(apTarnFileStdioTest, seek_that_cannot_be_done_leaves_the_position)
{
  EXPECT_TRUE(file->seek(3, from_start));
  EXPECT_FALSE(file->seek(-1, from_start));
  EXPECT_FALSE(file->seek(INT_MIN, from_end));
  EXPECT_FALSE(file->seek(0, 3));
  EXPECT_FALSE(file->seek(0, -1));
  EXPECT_EQ(file->tell(), 3);
}

TEST_F(apTarnFileStdioTest, reading_goes_on_after_the_end_was_met)
{
  read(1, 100);
  EXPECT_TRUE(file->rewind());
  EXPECT_EQ(read(1, 1), "0");
}

TEST(apTarnFileStdio, missing_file_fails_at_every_operation)
{
  apTarnFileStdio file(scratch_path(L"not_there.bin").path(), apTarnModeRead);
  char byte = 'x';
  EXPECT_FALSE(file.seek(0, from_end));
  EXPECT_LT(file.tell(), 0);
  EXPECT_FALSE(file.rewind());
  EXPECT_EQ(file.read(&byte, 1, 1), 0);
  EXPECT_EQ(byte, 'x');
}

TEST(apTarnFileStdio, unknown_mode_opens_nothing_and_harms_no_file)
{
  apPath const path = scratch_path(L"mode.bin");
  write_file(path, "text");
  {
    apTarnFileStdio file(path.path(), static_cast<apTarnMode>(1));
    EXPECT_LT(file.tell(), 0);
  }
  EXPECT_EQ(read_file(path), "text");
  path.delete_file();
}

TEST(apTarnFileStdio, empty_file_has_size_0)
{
  apPath const path = scratch_path(L"empty.bin");
  write_file(path, "");
  {
    apTarnFileStdio file(path.path(), apTarnModeRead);
    EXPECT_TRUE(file.seek(0, from_end));
    EXPECT_EQ(file.tell(), 0);
  }
  path.delete_file();
}

#if !defined(_WIN32)
// The file is a hole but for its last byte, so it takes no room. On Windows it would take all of it.
TEST(apTarnFileStdio, position_that_does_not_fit_an_int_cannot_be_told)
{
  apPath const path = scratch_path(L"huge.bin");
  std::FILE* const writer = path.file_open(apPath::write_mode());
  ASSERT_NE(writer, nullptr);
  // Of more than 32 bits, the lowest of which are a small number.
  EXPECT_EQ(std::fseek(writer, (1L << 32) + 4, SEEK_SET), 0);
  EXPECT_EQ(std::fputc('x', writer), 'x');
  EXPECT_EQ(std::fclose(writer), 0);
  {
    apTarnFileStdio file(path.path(), apTarnModeRead);
    EXPECT_TRUE(file.seek(0, from_end));
    EXPECT_LT(file.tell(), 0);
    EXPECT_TRUE(file.seek(-1, from_end));
    EXPECT_LT(file.tell(), 0);
    char byte = 0;
    EXPECT_EQ(file.read(&byte, 1, 1), 1);
    EXPECT_EQ(byte, 'x');
    EXPECT_TRUE(file.seek(INT_MAX, from_start));
    EXPECT_EQ(file.tell(), INT_MAX);
    EXPECT_TRUE(file.seek(1, from_here));
    EXPECT_LT(file.tell(), 0);
  }
  path.delete_file();
}
#endif

#if !defined(_WIN32)
TEST(apTarnFileStdio, a_signal_does_not_end_a_read)
{
  struct sigaction interrupting = {};
  struct sigaction before = {};
  interrupting.sa_handler = [](int) {};
  ASSERT_EQ(sigaction(SIGUSR1, &interrupting, &before), 0);
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  pthread_t const reader = pthread_self();
  std::thread writer(
    [reader]
    {
      std::FILE* const pipe = std::fopen("pipe", "wb");
      std::fputs("01234", pipe);
      std::fflush(pipe);
      // The other thread waits for more by then, or will do at one of these.
      for (int i = 0; i < 50; ++i)
      {
        pthread_kill(reader, SIGUSR1);
        usleep(1000);
      }
      std::fputs("56789", pipe);
      std::fclose(pipe);
    });
  char bytes[10] = {};
  apTarnFileStdio file("pipe", apTarnModeRead);
  EXPECT_EQ(file.read(bytes, 1, 10), 10);
  writer.join();
  EXPECT_EQ(std::string(bytes, 10), "0123456789");
  sigaction(SIGUSR1, &before, nullptr);
}
#endif
