#include <apITarnFilecoPrf.h>

#include <gtest/gtest.h>
#include <memory>

namespace
{
// A file that tells when it goes.
class Watched : public apITarnFile
{
public:
  explicit Watched(bool& gone) : told(gone) {}
  ~Watched() override { told = true; }

  bool seek(int, int) override { return true; }
  int tell() override { return 7; }
  bool rewind() override { return true; }
  int read(void*, int, int) override { return 0; }

private:
  bool& told;
};
}

TEST(apITarnFilecoPrf, file_goes_with_its_last_owner)
{
  bool gone = false;
  auto owner = std::make_unique<apITarnFilecoPrf>(new Watched(gone));
  apITarnFilecoPrf copy(*owner);
  owner.reset();
  EXPECT_FALSE(gone);
  EXPECT_EQ(copy->tell(), 7);
  copy = apITarnFilecoPrf();
  EXPECT_TRUE(gone);
}

TEST(apITarnFilecoPrf, converts_from_and_to_a_shared_pointer)
{
  bool gone = false;
  std::shared_ptr<apITarnFile> const file = std::make_shared<Watched>(gone);
  apITarnFilecoPrf const owner(file);
  EXPECT_EQ(static_cast<std::shared_ptr<apITarnFile>>(owner), file);
}
