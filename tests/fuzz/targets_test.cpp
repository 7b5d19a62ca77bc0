#include "Replay.h"

extern "C"
{
  int fuzz_document(std::uint8_t const* data, std::size_t size);
  int fuzz_pattern(std::uint8_t const* data, std::size_t size);
  int fuzz_reader(std::uint8_t const* data, std::size_t size);
  int fuzz_scanner(std::uint8_t const* data, std::size_t size);
  int fuzz_schema(std::uint8_t const* data, std::size_t size);
  int fuzz_suite(std::uint8_t const* data, std::size_t size);
  int fuzz_tree(std::uint8_t const* data, std::size_t size);
  int fuzz_validation(std::uint8_t const* data, std::size_t size);
  int fuzz_walk(std::uint8_t const* data, std::size_t size);
  int fuzz_xpath(std::uint8_t const* data, std::size_t size);
}

namespace
{
struct Target
{
  char const* name;
  int (*run)(std::uint8_t const* data, std::size_t size);
};

Target const targets[] = {{"document", fuzz_document}, {"pattern", fuzz_pattern}, {"reader", fuzz_reader},
  {"scanner", fuzz_scanner}, {"schema", fuzz_schema}, {"suite", fuzz_suite}, {"tree", fuzz_tree},
  {"validation", fuzz_validation}, {"walk", fuzz_walk}, {"xpath", fuzz_xpath}};

class FuzzSeeds : public testing::TestWithParam<Target>
{
};
}

TEST_P(FuzzSeeds, have_no_fault)
{
  EXPECT_GT(replay(GetParam().run, GetParam().name), 0);
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzSeeds, testing::ValuesIn(targets),
  [](testing::TestParamInfo<Target> const& target) { return std::string(target.param.name); });
