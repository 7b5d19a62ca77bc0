// The containers in which the reader keeps its cursors, and those in which readers are kept.

#include "MemoryFile.h"

#include <axmAbstractXmlReadercoPrf.h>
#include <axmAbstractXmlReadercoPrg.h>
#include <axmInitialPositionXcoPrg.h>
#include <axmPositionXcoPageArrPrgcoPrgcoPageArr.h>
#include <axmPositionXcoPageArrPrgcoPrgcoPageArrcoIterator.h>
#include <axmSimpleXmlFactory.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace
{
char buffer[] = "<a></a>\n";

axmPositionX* new_cursor()
{
  return new axmPositionX(buffer);
}

class CountedReader : public axmAbstractXmlReader
{
public:
  explicit CountedReader(int& count) : readers(count) { ++readers; }
  ~CountedReader() override { --readers; }

  bool read_file() override { return false; }
  void up() override {}
  bool down_to(utString const&) override { return false; }
  utString attribute(utString const&, utString const&) override { return utString(); }
  utString text_node() override { return utString(); }
  bool has_error_occurred() const override { return false; }

private:
  int& readers;
};
}

TEST(axmPositionXcoPageArrPrgcoPrg, owns_hands_over_and_swaps)
{
  axmPositionXcoPageArrPrgcoPrg owner;
  EXPECT_EQ(owner.get(), nullptr);
  axmPositionX* const first = new_cursor();
  owner.become(first);
  EXPECT_EQ(owner.get(), first);
  axmPositionX* const second = new_cursor();
  owner = second;
  EXPECT_EQ(owner.get(), second);

  axmPositionXcoPageArrPrgcoPrg other(new_cursor());
  axmPositionX* const third = other.get();
  owner.swap(other);
  EXPECT_EQ(owner.get(), third);
  EXPECT_EQ(other.get(), second);

  std::unique_ptr<axmPositionX> const released(owner.release());
  EXPECT_EQ(released.get(), third);
  EXPECT_EQ(owner.get(), nullptr);
  other.reset();
  EXPECT_EQ(other.get(), nullptr);
  EXPECT_FALSE(std::is_copy_constructible_v<axmPositionXcoPageArrPrgcoPrg>);
  EXPECT_FALSE(std::is_copy_assignable_v<axmPositionXcoPageArrPrgcoPrg>);
}

TEST(axmInitialPositionXcoPrg, owns)
{
  axmInitialPositionXcoPrg owner(new axmInitialPositionX(buffer));
  owner = new axmInitialPositionX(buffer);
  EXPECT_NE(owner.get(), nullptr);
}

TEST(axmAbstractXmlReadercoPrg, deletes_through_the_virtual_destructor)
{
  int readers = 0;
  axmAbstractXmlReadercoPrg owner(new CountedReader(readers));
  EXPECT_EQ(readers, 1);
  owner.become(new CountedReader(readers));
  EXPECT_EQ(readers, 1);
  owner.reset();
  EXPECT_EQ(readers, 0);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArr, default_constructed_has_count_0_and_no_pages)
{
  axmPositionXcoPageArrPrgcoPrgcoPageArr array;
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array.pages(), 0);
  EXPECT_EQ(array[0].get(), nullptr);
  EXPECT_EQ(array.count(), 1);
  EXPECT_EQ(array.pages(), 1);
  EXPECT_EQ(array.page_size(), 256);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArr, indexing_element_256_allocates_the_second_page)
{
  axmPositionXcoPageArrPrgcoPrgcoPageArr array;
  array[0] = new_cursor();
  axmPositionXcoPageArrPrgcoPrg const* const first = &array[0];
  array[255];
  EXPECT_EQ(array.pages(), 1);
  array[256] = new_cursor();
  EXPECT_EQ(array.pages(), 2);
  EXPECT_EQ(array.count(), 257);
  EXPECT_EQ(&array[0], first);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArr, shrinking_without_freeing_keeps_the_objects)
{
  axmPositionXcoPageArrPrgcoPrgcoPageArr array;
  array[0] = new_cursor();
  axmPositionX* const held = array[0].get();
  array.shrink(0, 0);
  EXPECT_EQ(array.count(), 0);
  EXPECT_EQ(array[0].get(), held);
  array[0] = new_cursor(); // deletes the old one, which the leak check would miss
  array.shrink(0, 0);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArr, shrinking_with_freeing_deletes_pages)
{
  axmPositionXcoPageArrPrgcoPrgcoPageArr array;
  for (int i = 0; i < 600; ++i)
    array[i] = new_cursor();
  EXPECT_EQ(array.pages(), 3);
  array.shrink(257, 1);
  EXPECT_EQ(array.pages(), 2);
  array.clear(1);
  EXPECT_EQ(array.pages(), 0);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArr, repaginates_and_keeps_what_it_owns)
{
  axmPositionXcoPageArrPrgcoPrgcoPageArr array;
  for (int i = 0; i < 3; ++i)
    array[i] = new_cursor();
  axmPositionX* const last = array[2].get();
  EXPECT_EQ(array.repaginate(), 256 - 4);
  EXPECT_EQ(array.page_size(), 4);
  EXPECT_EQ(array[2].get(), last);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArr, is_made_of_owners_and_from_another_array)
{
  axmPositionX* const cursor = new_cursor();
  axmPositionXcoPageArrPrgcoPrgcoPageArr array({cursor});
  EXPECT_EQ(array[0].get(), cursor);
  axmPositionXcoPageArrPrgcoPrgcoPageArr const other(utCopy(), array);
  EXPECT_EQ(other[0].get(), cursor);
  EXPECT_EQ(array[0].get(), nullptr);
}

TEST(axmPositionXcoPageArrPrgcoPrgcoPageArrcoIterator, walks_from_the_first_to_the_last)
{
  axmPositionXcoPageArrPrgcoPrgcoPageArr array;
  for (int i = 0; i < 3; ++i)
    array[i] = new_cursor();
  axmPositionXcoPageArrPrgcoPrgcoPageArrcoIterator iterator(array);
  int seen = 0;
  for (bool more = iterator.do_first(); more; more = iterator.do_next())
    EXPECT_EQ(iterator().get(), array[seen++].get());
  EXPECT_EQ(seen, 3);
  iterator.reset();
  EXPECT_TRUE(iterator.invalid());
}

TEST(axmAbstractXmlReadercoPrf, shares_and_deletes_with_the_last_owner)
{
  int readers = 0;
  {
    axmAbstractXmlReadercoPrf const one(new CountedReader(readers));
    axmAbstractXmlReadercoPrf const other = one;
    std::shared_ptr<axmAbstractXmlReader> const shared = other;
    EXPECT_EQ(shared.use_count(), 3);
    EXPECT_EQ(readers, 1);
  }
  EXPECT_EQ(readers, 0);
}

TEST(axmAbstractXmlReadercoPrf, leaves_a_reader_that_is_owned_elsewhere_alone)
{
  int readers = 0;
  CountedReader reader(readers);
  {
    axmAbstractXmlReadercoPrf const owner(coPrfExtern(), &reader);
    std::shared_ptr<axmAbstractXmlReader> const shared = owner;
    EXPECT_NE(std::get_deleter<coPrfExternalDeleter>(shared), nullptr);
  }
  EXPECT_EQ(readers, 1);
}

TEST(axmAbstractXmlReadercoPrf, an_owner_of_its_own_reader_is_not_external)
{
  int readers = 0;
  axmAbstractXmlReadercoPrf const owner(new CountedReader(readers));
  std::shared_ptr<axmAbstractXmlReader> const shared = owner;
  EXPECT_EQ(std::get_deleter<coPrfExternalDeleter>(shared), nullptr);
  axmAbstractXmlReadercoPrf const from_shared(shared);
  EXPECT_EQ(from_shared.get(), owner.get());
}

TEST(axmAbstractXmlReadercoPrf, takes_a_reader_from_a_factory)
{
  apITarnFilecoPrf const file(new MemoryFile("<?xml version='1.0'?><r>x</r>\n"));
  axmAbstractXmlReadercoPrf const owner(
    axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, file).release());
  EXPECT_TRUE(owner->read_file());
}
