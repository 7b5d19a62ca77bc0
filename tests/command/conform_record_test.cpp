// Records that come in pieces.

#include "ConformRecord.h"

#include <gtest/gtest.h>

#include <string>

TEST(conform_record, one_comes_back_whatever_pieces_it_comes_in)
{
  std::string const bytes = conform_bytes({ConformRecord::printed, {"a text", "", std::string("\0\n", 2)}}) +
                            conform_bytes({ConformRecord::finished, {}});
  for (std::size_t piece = 1; piece <= bytes.size(); ++piece)
  {
    ConformRecordReader reader;
    std::vector<ConformRecord> records;
    for (std::size_t at = 0; at < bytes.size(); at += piece)
    {
      reader.add(bytes.substr(at, piece));
      ConformRecord record;
      while (reader.next(record))
        records.push_back(record);
    }
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].kind, ConformRecord::printed);
    EXPECT_EQ(records[0].texts, (std::vector<std::string>{"a text", "", std::string("\0\n", 2)}));
    EXPECT_EQ(records[1].kind, ConformRecord::finished);
    EXPECT_FALSE(reader.is_broken());
  }
}

TEST(conform_record, what_is_no_record_is_told)
{
  for (std::string const& bytes : {std::string("what an engine prints"), std::string("r\xFF\xFF\xFF\xFF", 5),
         std::string("p\x01\x00\x00\x00\xFF\xFF\xFF\xFF", 9)})
  {
    ConformRecordReader reader;
    reader.add(bytes);
    ConformRecord record;
    EXPECT_FALSE(reader.next(record));
    EXPECT_TRUE(reader.is_broken());
  }
}

TEST(conform_record, half_a_record_is_awaited)
{
  std::string const bytes = conform_bytes({ConformRecord::begins, {"a group"}});
  ConformRecordReader reader;
  reader.add(bytes.substr(0, bytes.size() - 1));
  ConformRecord record;
  EXPECT_FALSE(reader.next(record));
  EXPECT_FALSE(reader.is_broken());
}
