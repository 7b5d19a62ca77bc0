// Walking, taking rows and splitting with each allocation failing in turn.

#include "../../FailingMemory.h"
#include "Readers.h"

#include <axsRecordReader.h>
#include <axsRecordSplitter.h>

#include <cstdio>
#include <string>

namespace
{
std::string const document =
  "<!DOCTYPE r [<!ENTITY entity_of_a_long_name 'with a text that is as long'><!ATTLIST e d CDATA 'a default that is "
  "long'>]>"
  "<r xmlns:prefix='urn:of:some:length'><e k='&entity_of_a_long_name;'>a text that has no place inside<f>&amp;" +
  std::string(5000, 'x') +
  "</f></e><prefix:e>&entity_of_a_long_name;<f k='a value that has no place inside'/></prefix:e>" +
  "<e k='another value that has no place inside'><f/><f>more</f></e></r>";

void walk(axmAbstractXmlReader& reader)
{
  utString const absent("a default value that is as long");
  reader.down_to(utString("r"));
  for (int turn = 0; turn < 2; ++turn)
    for (; reader.down_to(utString("e")); reader.up())
    {
      reader.attribute(utString("k"), absent);
      reader.text_node();
      for (; reader.down_to(utString("f")); reader.up())
        reader.text_node();
    }
  reader.up();
}

// Of the rows' values.
std::size_t size_of_rows(axsRecordReader::Repeat repeat)
{
  axsRecordReader::Request request;
  request.path = "r/e";
  request.columns = {"@k", "@d", "f", "f/@k", ".", "of/a/column/that/is/long"};
  request.repeat = repeat;
  request.separator = "a separator that has no place inside";
  std::size_t size = 0;
  axmParseError error;
  axsRecordReader(request).read(apByteArray(document.data(), document.size()), axmLoadOptions(), error,
    [&size](axsRecordReader::Row const& row)
    {
      for (auto const& value : row)
        size += value ? value->size() : 0;
      return true;
    });
  return size;
}
}

TEST(exact_reader_memory, a_walk_fails_cleanly)
{
  for (std::size_t const piece : {std::size_t{1} << 20, std::size_t{100}})
  {
    int const allocations = fails_cleanly(
      [&]
      {
        Reader const reader = reader_of(axsXmlFactory(), document, piece);
        if (reader->read_file())
          walk(*reader);
        if (reader->has_error_occurred())
          ADD_FAILURE();
      });
    EXPECT_GT(allocations, 50);
  }
}

TEST(exact_reader_memory, taking_rows_fails_cleanly)
{
  for (auto const repeat :
    {axsRecordReader::Repeat::first, axsRecordReader::Repeat::join, axsRecordReader::Repeat::rows})
  {
    std::size_t size = 0;
    int const allocations = fails_cleanly([&] { size = size_of_rows(repeat); });
    EXPECT_GT(allocations, 50);
    EXPECT_GT(size, 5000u);
  }
}

TEST(exact_reader_memory, splitting_fails_cleanly)
{
  apPath const path("exact_reader_memory.xml");
  std::FILE* const file = path.file_open(apPath::write_mode());
  ASSERT_EQ(document.size(), std::fwrite(document.data(), 1, document.size(), file));
  std::fclose(file);
  std::size_t count = 0;
  int const allocations = fails_cleanly(
    [&]
    {
      axsRecordSplitter::Parts parts;
      axmParseError error;
      if (!axsRecordSplitter::split(path, "r/e", {{"p", "urn:of:some:length"}}, 2, axmLoadOptions(), error, parts))
        ADD_FAILURE();
      count = parts.parts.size();
    });
  EXPECT_GT(allocations, 50);
  EXPECT_EQ(2u, count);
  path.delete_file();
}
