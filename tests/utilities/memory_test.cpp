// Narrow texts, service names and the registry when memory runs out.

#include <utService.h>
#include <utServiceName.h>
#include <utString.h>
#include <utStringcoPageArr.h>

#include "../FailingMemory.h"

#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace
{
char const long_text[] = "a text that is too long to lie in the object itself";

class Clock : public utService
{
};
}

TEST(utString_memory, constructors_throw_and_leak_nothing)
{
  std::string const name(utString::max_inside + 1, 'x');
  EXPECT_EQ(fails_cleanly([&] { utString const text(name.c_str()); }), 1);
  EXPECT_EQ(fails_cleanly([&] { utString const text(long_text, 30); }), 1);
  EXPECT_EQ(fails_cleanly([] { utString const text(ut_lit(long_text)); }), 1);
}

TEST(utString_memory, a_short_text_needs_none)
{
  std::string const name(utString::max_inside, 'x');
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                utString const text(name.c_str());
                utString const with_length(long_text, utString::max_inside);
                utString const sum = utString("ab") + utString("cd");
                utString copy(sum);
                copy = text;
              }),
    0);
}

TEST(utString_memory, no_storage_copies_and_moves_need_none)
{
  utString const text(long_text);
  EXPECT_EQ(fails_cleanly(
              [&text]
              {
                utString const none;
                utString const null(nullptr, 3);
                utString copy(text);
                copy = none;
                utString moved(std::move(copy));
                moved = text;
              }),
    0);
}

TEST(utString_memory, failed_assignment_keeps_the_old_text)
{
  utString const old(long_text);
  utString text(old);
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                text = utString("another text that is too long to lie in the object itself");
                text = old;
              },
              [&] { return text.c_str() == old.c_str(); }),
    1);
}

TEST(utString_memory, sum_throws_and_leaks_nothing)
{
  utString const left(long_text);
  utString const right("cd");
  EXPECT_EQ(fails_cleanly([&] { utString const sum = left + right; }), 1);
  EXPECT_EQ(fails_cleanly([&] { utString const sum = left + utString(); }), 0);
}

TEST(utServiceName_memory, failed_dequalify_keeps_the_name)
{
  utServiceName const given(ut_lit("a::a_name_that_is_too_long_to_lie_in_the_object"));
  utServiceName name(given);
  EXPECT_EQ(fails_cleanly(
              [&]
              {
                name.dequalify();
                name = given;
              },
              [&] { return name == given; }),
    1);
}

TEST(utService_memory, failed_registration_changes_nothing)
{
  // The registry itself is made here, at its first use.
  utService& registry = *utService::get_instance();
  utServiceName const name(ut_lit("a service with a name too long to be held without memory"));
  utServiceName resolved;
  registry.register_service(name, nullptr);

  auto const clock = std::make_shared<Clock>();
  int const failures = with_every_failure(
    [&]
    {
      try
      {
        registry.register_service(name, clock);
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    [&](bool failed, long held)
    {
      EXPECT_EQ(clock.use_count(), failed ? 1 : 2);
      EXPECT_TRUE(!failed || held == 0) << held;
    });
  EXPECT_GE(failures, 2);
  EXPECT_EQ(utService::locate_service<Clock>(name, resolved), clock);
  registry.register_service(name, nullptr);
  EXPECT_EQ(utService::locate_service<Clock>(name, resolved), nullptr);
}

TEST(utStringcoPageArr_memory, failed_append_keeps_the_list)
{
  utStringcoPageArr texts(0, 1, 1);
  texts[0] = utString("first");
  utString const text("second");
  bool threw = false;
  {
    FailingMemory const memory(0);
    try
    {
      texts[1] = text;
    }
    catch (std::bad_alloc const&)
    {
      threw = true;
    }
  }
  EXPECT_TRUE(threw);
  EXPECT_EQ(texts.count(), 1);
  EXPECT_EQ(texts[0], utString("first"));
}

// Too long to lie in the string itself.
TEST(utString_memory, what_a_string_had_is_given_back_when_it_takes_another_text)
{
  std::string const one(1000, '1');
  std::string const two(1000, '2');
  FailingMemory const memory(1000);
  {
    utString copied(one.c_str());
    utString moved(one.c_str());
    utString const other(two.c_str());
    copied = other;
    moved = utString(two.c_str());
    EXPECT_TRUE(copied == moved);
  }
  EXPECT_EQ(memory.blocks_held(), 0);
}
