#include "axsSource.h"

#include "axsReadError.h"

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
  for (std::size_t const piece : {7u, 65536u, 1000000u})
  {
    EXPECT_EQ(read_all(source, piece), long_text);
    source.seek(0);
  }
  char few[100000];
  for (std::size_t const count : {1u, 8191u, 8192u, 8193u, 100000u})
  {
    source.read(few, count);
    source.seek(0);
    EXPECT_EQ(read_all(source, 4096), long_text) << count;
    source.seek(0);
  }
}

TEST(axsSource, can_be_read_again_from_anywhere)
{
  TestFile const file("source_anywhere.xml", long_text);
  axsSource source(file.path());
  read_all(source, 4096);
  for (std::size_t const at : {1u, 8191u, 8192u, 8193u, 150000u})
  {
    source.seek(at);
    EXPECT_EQ(source.consumed(), at);
    EXPECT_EQ(read_all(source, 4096), long_text.substr(at)) << at;
  }
}

TEST(axsSource, knows_its_size)
{
  for (std::size_t const size : {0u, 1u, 8191u, 8192u, 8193u, 200000u})
  {
    TestFile const file("source_size.xml", long_text.substr(0, size));
    axsSource source(file.path());
    EXPECT_EQ(source.size(), size);
    EXPECT_EQ(read_all(source, 4096), long_text.substr(0, size));
    EXPECT_EQ(source.size(), size);
  }
}

#if !defined(_WIN32)
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
      EXPECT_EQ(source.size(), 0u);
      EXPECT_EQ(read_all(source, 4096), text);
      EXPECT_THROW(source.seek(text.size() - 1), axsReadError);
    }
    writer.join();
  }
  std::remove(name);
}
#endif
