// Documents of more than 2 GiB, of which no more is kept than a piece.

#include "axsByteStream.h"
#include "axsLocator.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsParser.h"
#include "axsReadError.h"
#include "axsSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace
{
std::uint64_t const two_gibibytes = std::uint64_t{1} << 31;

// A root element with comments in it, a line each, and after them something that is wrong.
class LargeStream final : public axsByteStream
{
public:
  std::size_t read(char* to, std::size_t size) override
  {
    std::size_t done = 0;
    while (done < size && given < this->size())
    {
      std::string_view const part = part_here();
      std::size_t const count = std::min(part.size(), size - done);
      std::copy_n(part.data(), count, to + done);
      done += count;
      given += count;
    }
    return done;
  }

  apString fault() const override { return apString(); }

  std::uint64_t size() const { return begin.size() + lines * line.size() + end.size(); }

  static constexpr std::uint64_t lines = 34000;
  std::string const begin = "<r>\n";
  std::string const line = "<!--" + std::string(65528, 'x') + "-->\n";
  std::string const end = "<e/></s>";

private:
  // From where reading is to the end of what is repeated there.
  std::string_view part_here() const
  {
    if (given < begin.size())
      return std::string_view(begin).substr(given);
    std::uint64_t const in_lines = given - begin.size();
    if (in_lines < lines * line.size())
      return std::string_view(line).substr(in_lines % line.size());
    return std::string_view(end).substr(in_lines - lines * line.size());
  }

  std::uint64_t given = 0;
};

// Notes where the last element begins.
class LastElement final : public axsParseHandler
{
public:
  void start_document(axsLocator const& locator) override { places = &locator; }
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const&) override
  {
    position = places->begin_position().value_or(0);
    line = places->begin().line;
  }
  void end_element() override {}
  void text(std::string_view, bool) override {}
  void comment(std::string_view) override { ++comments; }
  void processing_instruction(std::string_view, std::string_view) override {}

  std::uint64_t position = 0;
  std::uint64_t line = 0;
  std::uint64_t comments = 0;

private:
  axsNameTable names;
  axsLocator const* places = nullptr;
};
}

TEST(large_documents, have_their_places_beyond_2_GiB)
{
  LargeStream stream;
  ASSERT_GT(stream.size(), two_gibibytes);
  axsSource source(stream, apPath("large"));
  LastElement handler;
  axsParser parser(source, axmLoadOptions(axmValidateNone), handler);
  try
  {
    parser.run();
    ADD_FAILURE() << "the end tag has the wrong name";
  }
  catch (axsReadError const& error)
  {
    EXPECT_EQ(error.line, static_cast<int>(stream.lines) + 2);
    EXPECT_GT(error.column, 4);
  }
  EXPECT_EQ(handler.comments, stream.lines);
  EXPECT_EQ(handler.line, stream.lines + 2);
  EXPECT_EQ(handler.position, stream.size() - stream.end.size());
}

// The file has a hole where nothing was written.
TEST(large_documents, are_files_in_which_every_place_can_be_read)
{
  char const* const name = "large_file.xml";
  std::uint64_t const far = two_gibibytes + 12345;
  {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(std::fopen(name, "wb"), std::fclose);
    ASSERT_NE(file, nullptr);
    ASSERT_GE(std::fputs("<r>", file.get()), 0);
    for (std::uint64_t at = 3; at < far;)
    {
      long const step = static_cast<long>(std::min<std::uint64_t>(far - at, 1 << 30));
      ASSERT_EQ(std::fseek(file.get(), step, SEEK_CUR), 0);
      at += static_cast<std::uint64_t>(step);
    }
    ASSERT_GE(std::fputs("</r>", file.get()), 0);
  }
  {
    axsSource source{apPath(name)};
    EXPECT_EQ(source.size(), far + 4);
    char bytes[5] = {};
    source.seek(far);
    EXPECT_EQ(source.read(bytes, sizeof bytes), 4u);
    EXPECT_EQ(std::string(bytes), "</r>");
    EXPECT_EQ(source.consumed(), far + 4);
    source.seek(0);
    EXPECT_EQ(source.read(bytes, 3), 3u);
    EXPECT_EQ(std::string(bytes, 3), "<r>");
  }
  std::remove(name);
}
