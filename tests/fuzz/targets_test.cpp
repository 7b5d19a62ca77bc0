#include "Replay.h"

extern "C"
{
  int fuzz_document(std::uint8_t const* data, std::size_t size);
  int fuzz_pattern(std::uint8_t const* data, std::size_t size);
  int fuzz_reader(std::uint8_t const* data, std::size_t size);
  int fuzz_scanner(std::uint8_t const* data, std::size_t size);
  int fuzz_schema(std::uint8_t const* data, std::size_t size);
  int fuzz_tree(std::uint8_t const* data, std::size_t size);
  int fuzz_validation(std::uint8_t const* data, std::size_t size);
  int fuzz_walk(std::uint8_t const* data, std::size_t size);
  int fuzz_xpath(std::uint8_t const* data, std::size_t size);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_document)
{
  EXPECT_GT(replay(fuzz_document, "document"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_pattern)
{
  EXPECT_GT(replay(fuzz_pattern, "pattern"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_reader)
{
  EXPECT_GT(replay(fuzz_reader, "reader"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_scanner)
{
  EXPECT_GT(replay(fuzz_scanner, "scanner"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_schema)
{
  EXPECT_GT(replay(fuzz_schema, "schema"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_tree)
{
  EXPECT_GT(replay(fuzz_tree, "tree"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_validation)
{
  EXPECT_GT(replay(fuzz_validation, "validation"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_walk)
{
  EXPECT_GT(replay(fuzz_walk, "walk"), 0);
}

TEST(FuzzSeeds, have_no_fault_in_fuzz_xpath)
{
  EXPECT_GT(replay(fuzz_xpath, "xpath"), 0);
}
