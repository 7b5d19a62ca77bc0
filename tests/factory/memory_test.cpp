// Load options and error records when memory runs out.

#include <axmLoadOptions.h>
#include <axmParseError.h>

#include "../FailingMemory.h"

#include <gtest/gtest.h>

namespace
{
axmLoadOptions with_schemas(int count)
{
  axmLoadOptions options;
  for (int i = 0; i < count; ++i)
    options.add_external_schema(L"namespace", apPath(L"path"));
  return options;
}
}

TEST(axmLoadOptions_memory, failed_add_leaks_nothing_and_leaves_the_entries_paired)
{
  apString const name_space(L"namespace");
  apPath const path(L"path");
  for (int count = 0; count < 5; ++count)
  {
    axmLoadOptions const source = with_schemas(count);
    // The copy has room for its entries only, so both lists have to grow.
    EXPECT_GT(fails_cleanly(
                [&]
                {
                  axmLoadOptions options(source);
                  options.add_external_schema(name_space, path);
                }),
      1);
  }

  for (int allowed = 0; allowed < 2; ++allowed)
  {
    axmLoadOptions options = with_schemas(0);
    bool threw = false;
    {
      FailingMemory const memory(allowed);
      try
      {
        options.add_external_schema(name_space, path);
      }
      catch (std::bad_alloc const&)
      {
        threw = true;
      }
    }
    EXPECT_TRUE(threw);
    EXPECT_EQ(options.num_external_schemas(), 0);
    options.add_external_schema(L"next", apPath(L"next path"));
    EXPECT_EQ(options.external_namespace(0).view(), L"next");
    EXPECT_TRUE(options.external_schema(0) == apPath(L"next path"));
  }
}

TEST(axmLoadOptions_memory, failed_copy_leaks_nothing)
{
  axmLoadOptions const source = with_schemas(3);
  EXPECT_EQ(fails_cleanly([&source] { axmLoadOptions const copy(source); }), 2);
}

TEST(axmLoadOptions_memory, failed_assignment_leaves_all_members_as_they_were)
{
  axmLoadOptions source = with_schemas(3);
  source.set_validate_mode(axmValidateWithSchemas);
  source.set_entity_expansion_limit(7);
  axmLoadOptions const old = with_schemas(2);
  bool threw = true;
  for (int allowed = 0; threw; ++allowed)
  {
    axmLoadOptions options(old);
    threw = false;
    {
      FailingMemory const memory(allowed);
      try
      {
        options = source;
      }
      catch (std::bad_alloc const&)
      {
        threw = true;
      }
    }
    int const entries = threw ? 2 : 3;
    EXPECT_EQ(options.num_external_schemas(), entries);
    EXPECT_TRUE(options.external_schema(entries - 1) == apPath(L"path"));
    EXPECT_EQ(options.validate_mode(), threw ? axmValidateNone : axmValidateWithSchemas);
    EXPECT_EQ(options.entity_expansion_limit(), threw ? 50000 : 7);
    options.add_external_schema(L"next", apPath(L"next path"));
    EXPECT_EQ(options.external_namespace(entries).view(), L"next");
    EXPECT_TRUE(options.external_schema(entries) == apPath(L"next path"));
  }
}

TEST(axmParseError_memory, copies_of_texts_need_none)
{
  axmParseError const error(L"message");
  apString const another(L"another");
  axmParseError target(another);
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                axmParseError copy(error);
                copy.set_url(error.message());
                target = copy;
              }),
    0);
}
