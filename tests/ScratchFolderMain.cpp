// The main function of every test program: each test works in a folder of its own, so that tests which run side by side
// cannot meet in a file, and nothing of them stays.

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

class ScratchFolder : public testing::EmptyTestEventListener
{
  void OnTestStart(testing::TestInfo const&) override
  {
    before = fs::current_path();
    std::random_device random;
    do
      folder = before / ("scratch_" + std::to_string(random()));
    while (!fs::create_directory(folder));
    fs::current_path(folder);
  }

  void OnTestEnd(testing::TestInfo const&) override
  {
    fs::current_path(before);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  fs::path before;
  fs::path folder;
};
}

int main(int argc, char** argv)
{
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new ScratchFolder);
  return RUN_ALL_TESTS();
}
