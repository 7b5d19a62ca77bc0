#include <utService.h>

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace
{
class Clock : public utService
{
public:
  using utService::do_locate_service;
};

class Lamp : public utService
{
};

utServiceName name(char const* text)
{
  return utServiceName(utString(text));
}

void enter(char const* text, std::shared_ptr<utService> service)
{
  utService::get_instance()->register_service(name(text), std::move(service));
}

// Takes the names that the tests use out of the registry again.
struct utServiceTest : testing::Test
{
  ~utServiceTest() override
  {
    for (char const* const used : {"Service", "b::Service", "a::b::Service", "Other"})
      enter(used, nullptr);
  }

  template <class T>
  std::shared_ptr<T> locate(char const* text)
  {
    return utService::locate_service<T>(name(text), resolved);
  }

  utServiceName resolved = name("untouched");
};
}

TEST_F(utServiceTest, get_instance_is_one_object)
{
  EXPECT_NE(utService::get_instance(), nullptr);
  EXPECT_EQ(utService::get_instance(), utService::get_instance());
}

TEST_F(utServiceTest, registered_service_is_located_under_its_name)
{
  auto const clock = std::make_shared<Clock>();
  enter("Service", clock);
  EXPECT_EQ(locate<Clock>("Service"), clock);
  EXPECT_EQ(resolved, name("Service"));
}

TEST_F(utServiceTest, located_service_shares_the_ownership)
{
  auto const clock = std::make_shared<Clock>();
  enter("Service", clock);
  EXPECT_EQ(clock.use_count(), 2);
  std::shared_ptr<Clock> const located = locate<Clock>("Service");
  EXPECT_EQ(clock.use_count(), 3);
  enter("Service", nullptr);
  EXPECT_EQ(clock.use_count(), 2);
}

TEST_F(utServiceTest, registry_keeps_a_service_alive_that_nobody_else_holds)
{
  enter("Service", std::make_shared<Clock>());
  EXPECT_NE(locate<Clock>("Service"), nullptr);
}

TEST_F(utServiceTest, nothing_is_found_under_a_name_that_is_not_registered)
{
  EXPECT_EQ(locate<Clock>("Service"), nullptr);
  EXPECT_TRUE(resolved.invalid());
  EXPECT_EQ(locate<Clock>("a::b::Service"), nullptr);
  EXPECT_TRUE(resolved.invalid());
}

TEST_F(utServiceTest, qualified_name_falls_back_one_qualifier_at_a_time)
{
  auto const plain = std::make_shared<Clock>();
  auto const qualified = std::make_shared<Clock>();
  enter("Service", plain);
  EXPECT_EQ(locate<Clock>("a::b::Service"), plain);
  EXPECT_EQ(resolved, name("Service"));
  enter("b::Service", qualified);
  EXPECT_EQ(locate<Clock>("a::b::Service"), qualified);
  EXPECT_EQ(resolved, name("b::Service"));
  EXPECT_EQ(locate<Clock>("b::Service"), qualified);
  EXPECT_EQ(locate<Clock>("c::Service"), plain);
}

TEST_F(utServiceTest, unqualified_name_does_not_find_a_qualified_one)
{
  enter("b::Service", std::make_shared<Clock>());
  EXPECT_EQ(locate<Clock>("Service"), nullptr);
  EXPECT_EQ(locate<Clock>("a::Service"), nullptr);
}

TEST_F(utServiceTest, service_of_another_class_is_passed_over)
{
  auto const clock = std::make_shared<Clock>();
  auto const lamp = std::make_shared<Lamp>();
  enter("a::b::Service", lamp);
  enter("b::Service", clock);
  EXPECT_EQ(locate<Clock>("a::b::Service"), clock);
  EXPECT_EQ(resolved, name("b::Service"));
  EXPECT_EQ(locate<Lamp>("a::b::Service"), lamp);
  EXPECT_EQ(resolved, name("a::b::Service"));
  EXPECT_EQ(lamp.use_count(), 2) << "what was passed over is let go";
}

TEST_F(utServiceTest, only_a_service_of_another_class_is_as_none)
{
  enter("Service", std::make_shared<Lamp>());
  EXPECT_EQ(locate<Clock>("Service"), nullptr);
  EXPECT_TRUE(resolved.invalid());
}

TEST_F(utServiceTest, service_is_found_as_its_base_class)
{
  auto const clock = std::make_shared<Clock>();
  enter("Service", clock);
  EXPECT_EQ(locate<utService>("Service"), clock);
}

TEST_F(utServiceTest, invalid_name_finds_nothing_and_leaves_resolved_invalid)
{
  enter("Service", std::make_shared<Clock>());
  EXPECT_EQ(locate<Clock>(""), nullptr);
  EXPECT_TRUE(resolved.invalid());
}

TEST_F(utServiceTest, one_object_may_be_both_name_and_resolved)
{
  auto const clock = std::make_shared<Clock>();
  enter("Service", clock);
  utServiceName both = name("a::Service");
  EXPECT_EQ(utService::locate_service<Clock>(both, both), clock);
  EXPECT_EQ(both, name("Service"));
}

TEST_F(utServiceTest, registering_under_an_invalid_name_changes_nothing)
{
  auto const clock = std::make_shared<Clock>();
  enter("", clock);
  EXPECT_EQ(clock.use_count(), 1);
  EXPECT_EQ(clock->do_locate_service(name("")), nullptr);
}

TEST_F(utServiceTest, later_service_takes_the_name_and_the_earlier_one_is_let_go)
{
  auto const first = std::make_shared<Clock>();
  auto const second = std::make_shared<Clock>();
  enter("Service", first);
  enter("Service", second);
  EXPECT_EQ(locate<Clock>("Service"), second);
  EXPECT_EQ(first.use_count(), 1);
}

TEST_F(utServiceTest, empty_pointer_takes_the_name_out)
{
  enter("Service", std::make_shared<Clock>());
  enter("Service", nullptr);
  EXPECT_EQ(locate<Clock>("Service"), nullptr);
  enter("Service", nullptr);
  EXPECT_EQ(locate<Clock>("Service"), nullptr);
}

TEST_F(utServiceTest, names_are_apart)
{
  auto const first = std::make_shared<Clock>();
  auto const second = std::make_shared<Clock>();
  enter("Service", first);
  enter("Other", second);
  EXPECT_EQ(locate<Clock>("Service"), first);
  EXPECT_EQ(locate<Clock>("Other"), second);
}

TEST_F(utServiceTest, any_service_as_a_registry_is_the_process_wide_one)
{
  Clock registry;
  auto const clock = std::make_shared<Clock>();
  registry.register_service(name("Service"), clock);
  EXPECT_EQ(locate<Clock>("Service"), clock);
  EXPECT_EQ(registry.do_locate_service(name("Service")), clock);
  EXPECT_EQ(registry.do_locate_service(name("a::Service")), nullptr) << "exactly this name";
}

TEST_F(utServiceTest, destructor_of_a_replaced_service_may_use_the_registry)
{
  class Leaving : public utService
  {
  public:
    ~Leaving() override { enter("Other", std::make_shared<Lamp>()); }
  };
  enter("Service", std::make_shared<Leaving>());
  enter("Service", std::make_shared<Clock>());
  EXPECT_NE(locate<Lamp>("Other"), nullptr);

  enter("Other", nullptr);
  enter("Service", std::make_shared<Leaving>());
  enter("Service", nullptr);
  EXPECT_NE(locate<Lamp>("Other"), nullptr);
}

TEST_F(utServiceTest, several_threads_register_and_locate_at_once)
{
  enter("Service", std::make_shared<Clock>());
  std::atomic<int> found(0);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back(
      [&found, i]
      {
        std::string const own = "own" + std::to_string(i) + "::Service";
        for (int round = 0; round < 500; ++round)
        {
          enter("Service", std::make_shared<Clock>());
          enter(own.c_str(), std::make_shared<Clock>());
          utServiceName own_resolved;
          if (utService::locate_service<Clock>(name(own.c_str()), own_resolved) != nullptr &&
              own_resolved == name(own.c_str()))
            ++found;
          enter(own.c_str(), nullptr);
          if (utService::locate_service<Clock>(name(own.c_str()), own_resolved) != nullptr &&
              own_resolved == name("Service"))
            ++found;
        }
      });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(found, 4 * 500 * 2);
}
