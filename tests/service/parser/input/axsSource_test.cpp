#include "axsSource.h"

#include "../../Engine.h"

#include <thread>

#if !defined(_WIN32)
#  include <sys/stat.h>
#endif

namespace
{
std::string read_all(axsSource& source, std::size_t piece)
{
  std::string all;
  std::string block(piece, '\0');
  while (std::size_t const count = source.read(block.data(), block.size()))
    all.append(block, 0, count);
  return all;
}

std::string const long_text = []
{
  std::string text;
  for (int i = 0; text.size() < 200000; ++i)
    text += std::to_string(i);
  return text;
}();
}

TEST(axsSource, can_be_read_again_from_the_start)
{
  TestFile const file("source_again.xml", long_text);
  axsSource source(file.path());
  ASSERT_TRUE(source.can_rewind());
  EXPECT_FALSE(source.is_whole());
  for (std::size_t const piece : {7u, 65536u, 1000000u})
  {
    EXPECT_EQ(read_all(source, piece), long_text);
    source.rewind();
  }
  char few[100000];
  for (std::size_t const count : {1u, 65536u, 65537u, 100000u})
  {
    source.read(few, count);
    source.rewind();
    EXPECT_EQ(read_all(source, 4096), long_text) << count;
    source.rewind();
  }
  EXPECT_EQ(source.whole(), long_text);
  EXPECT_EQ(read_all(source, 4096), long_text);
}

TEST(axsSource, can_be_whole_after_it_was_read)
{
  TestFile const file("source_whole.xml", long_text);
  axsSource source(file.path());
  EXPECT_EQ(read_all(source, 10000), long_text);
  source.rewind();
  EXPECT_EQ(source.whole(), long_text);
}

TEST(axsSource, is_whole_at_any_size)
{
  for (std::size_t const size : {1u, 65535u, 65536u, 65537u, 131071u, 131072u, 131073u, 200000u})
  {
    TestFile const file("source_size.xml", long_text.substr(0, size));
    axsSource source(file.path());
    EXPECT_EQ(source.whole(), long_text.substr(0, size)) << size;
    EXPECT_TRUE(source.is_whole());
  }
}

#if !defined(_WIN32)
TEST(axsSource, is_whole_from_a_pipe)
{
  char const* const name = "source_whole_pipe";
  std::remove(name);
  ASSERT_EQ(mkfifo(name, 0600), 0);
  std::string const text = long_text + long_text + long_text;
  std::thread writer(
    [&]
    {
      std::FILE* const stream = std::fopen(name, "w");
      std::fwrite(text.data(), 1, text.size(), stream);
      std::fclose(stream);
    });
  {
    axsSource source{apPath(name)};
    EXPECT_EQ(source.whole(), text);
  }
  writer.join();
  std::remove(name);
}

TEST(axsSource, cannot_go_back_in_a_pipe)
{
  char const* const name = "source_pipe";
  std::remove(name);
  ASSERT_EQ(mkfifo(name, 0600), 0);
  std::string const text = "<r>" + std::string(100000, 'x') + "</r>";
  for (bool const is_read : {false, true})
  {
    std::thread writer(
      [&]
      {
        std::FILE* const stream = std::fopen(name, "w");
        std::fwrite(text.data(), 1, text.size(), stream);
        std::fclose(stream);
      });
    if (is_read)
    {
      axmParseError error;
      auto const document = engine()->loadDocument(apPath(name), axmLoadOptions(axmValidateNone), error);
      EXPECT_NE(document, nullptr) << narrow(error.message());
    }
    else
    {
      axsSource source{apPath(name)};
      EXPECT_FALSE(source.can_rewind());
      EXPECT_EQ(read_all(source, 4096), text);
    }
    writer.join();
  }
  std::remove(name);
}
#endif
