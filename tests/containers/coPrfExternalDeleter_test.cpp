#include <coPrfExternalDeleter.h>

#include "Counted.h"

#include <gtest/gtest.h>
#include <memory>

TEST(coPrfExternalDeleter, leaves_the_object_alone)
{
  Counted const object;
  coPrfExternalDeleter()(&object);
  EXPECT_EQ(Counted::alive, 1);
  coPrfExternalDeleter()(nullptr);
}

TEST(coPrfExternalDeleter, is_found_by_its_type_in_a_shared_pointer)
{
  Counted object;
  std::shared_ptr<Counted> const marked(&object, coPrfExternalDeleter());
  EXPECT_NE(std::get_deleter<coPrfExternalDeleter>(marked), nullptr);
  EXPECT_EQ(std::get_deleter<coPrfExternalDeleter>(std::make_shared<Counted>()), nullptr);
}
