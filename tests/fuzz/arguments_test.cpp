#include "Replay.h"

extern "C" int fuzz_arguments(std::uint8_t const* data, std::size_t size);

TEST(FuzzSeeds, have_no_fault_in_fuzz_arguments)
{
  EXPECT_GT(replay(fuzz_arguments, "arguments"), 0);
}
