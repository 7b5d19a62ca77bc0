#include "SchemaFiles.h"

#include <axsSchemaCache.h>

#include <chrono>
#include <thread>

namespace
{
std::string element(std::string const& name)
{
  return "<xs:element name='" + name + "'/>";
}

// A cache with the files of a test.
class Cached
{
public:
  SchemaFiles files;
  axsSchemaCache cache;

  std::shared_ptr<axsSchemaComponents const> get(std::string const& name)
  {
    axsSchemaCompiler compiler;
    return cache.get({{"", files.path(name)}}, compiler);
  }

  // As if the file had last been changed long ago.
  void age(std::string const& name) const
  {
    utString const path = files.path(name).path();
    std::filesystem::last_write_time(path.c_str(), old_time());
  }

  static std::filesystem::file_time_type old_time()
  {
    static auto const time = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
    return time;
  }
};
}

TEST(axsSchemaCache, gives_one_schema_as_long_as_its_files_are_the_same)
{
  Cached cached;
  cached.files.schema("s.xsd", "<xs:include schemaLocation='part.xsd'/>" + element("a"));
  cached.files.schema("part.xsd", element("b"));
  auto const first = cached.get("s.xsd");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(cached.get("s.xsd"), first);
  EXPECT_EQ(cached.get("./s.xsd")->element("", "b") == nullptr, false);

  cached.files.schema("part.xsd", element("c"));
  auto const second = cached.get("s.xsd");
  ASSERT_NE(second, nullptr);
  EXPECT_NE(second, first);
  EXPECT_NE(second->element("", "c"), nullptr);
  EXPECT_EQ(second->element("", "b"), nullptr);
  // Who has the old one keeps it.
  EXPECT_NE(first->element("", "b"), nullptr);
}

TEST(axsSchemaCache, notices_a_change_that_leaves_size_and_time_as_they_were)
{
  Cached cached;
  cached.files.schema("s.xsd", element("a"));
  auto const first = cached.get("s.xsd");
  ASSERT_NE(first, nullptr);
  utString const path = cached.files.path("s.xsd").path();
  auto const time = std::filesystem::last_write_time(path.c_str());
  cached.files.schema("s.xsd", element("b"));
  std::filesystem::last_write_time(path.c_str(), time);
  auto const second = cached.get("s.xsd");
  ASSERT_NE(second, nullptr);
  EXPECT_NE(second->element("", "b"), nullptr);
}

TEST(axsSchemaCache, notices_a_change_of_time_alone)
{
  Cached cached;
  cached.files.schema("s.xsd", element("a"));
  cached.age("s.xsd");
  auto const first = cached.get("s.xsd");
  EXPECT_EQ(cached.get("s.xsd"), first);
  cached.files.schema("s.xsd", element("b"));
  EXPECT_NE(cached.get("s.xsd"), first);
}

TEST(axsSchemaCache, notices_that_an_import_has_come)
{
  Cached cached;
  cached.files.schema("s.xsd", "<xs:import namespace='u' schemaLocation='u.xsd'/>" + element("a"));
  auto const first = cached.get("s.xsd");
  ASSERT_NE(first, nullptr);
  EXPECT_FALSE(first->knows("u"));
  cached.files.schema("u.xsd", element("b"), "targetNamespace='u'");
  auto const second = cached.get("s.xsd");
  ASSERT_NE(second, nullptr);
  EXPECT_TRUE(second->knows("u"));
}

TEST(axsSchemaCache, keeps_nothing_that_is_wrong)
{
  Cached cached;
  cached.files.schema("s.xsd", "<xs:element/>");
  axsSchemaCompiler compiler;
  EXPECT_EQ(cached.cache.get({{"", cached.files.path("s.xsd")}}, compiler), nullptr);
  EXPECT_EQ(compiler.errors().size(), 1u);
  EXPECT_EQ(cached.cache.find({{"", cached.files.path("s.xsd")}}), nullptr);
  cached.files.schema("s.xsd", element("a"));
  EXPECT_NE(cached.get("s.xsd"), nullptr);
}

TEST(axsSchemaCache, keeps_nothing_that_is_larger_than_all_that_may_be_kept)
{
  Cached cached;
  cached.files.schema("s.xsd", element("a") + "<!--" + std::string(axsSchemaCache::max_bytes, ' ') + "-->");
  cached.age("s.xsd");
  std::weak_ptr<axsSchemaComponents const> const made = cached.get("s.xsd");
  EXPECT_TRUE(made.expired());
  EXPECT_EQ(cached.cache.find({{"", cached.files.path("s.xsd")}}), nullptr);
  cached.files.schema("s.xsd", element("a"));
  std::weak_ptr<axsSchemaComponents const> const smaller = cached.get("s.xsd");
  EXPECT_FALSE(smaller.expired());
}

TEST(axsSchemaCache, lets_those_go_that_were_not_asked_for_longest)
{
  Cached cached;
  auto const name = [](std::size_t i) { return std::to_string(i) + ".xsd"; };
  std::weak_ptr<axsSchemaComponents const> kept;
  std::weak_ptr<axsSchemaComponents const> gone;
  for (std::size_t i = 0; i < axsSchemaCache::max_sets; ++i)
  {
    cached.files.schema(name(i), element("a"));
    std::weak_ptr<axsSchemaComponents const> const made = cached.get(name(i));
    (i == 0 ? kept : gone) = i < 2 ? made : gone;
  }
  EXPECT_NE(cached.get(name(0)), nullptr); // now the second one is the oldest
  cached.files.schema("more.xsd", element("a"));
  EXPECT_NE(cached.get("more.xsd"), nullptr);
  EXPECT_FALSE(kept.expired());
  EXPECT_TRUE(gone.expired());
}

TEST(axsSchemaCache, serves_many_threads)
{
  Cached cached;
  cached.files.schema("s.xsd", element("a"));
  std::vector<std::thread> threads;
  std::vector<int> found(4);
  for (int& count : found)
    threads.emplace_back(
      [&cached, &count]
      {
        for (int i = 0; i < 50; ++i)
          count += cached.get("s.xsd")->element("", "a") != nullptr ? 1 : 0;
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(found, std::vector<int>(4, 50));
}
