#include "utAssert.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <mutex>

namespace
{
// Writes the first reports of a place, and then only how many there are: as often as their number has one digit more. A
// program that breaks an assumption in a loop must not fill a disk.
class StandardErrorListener : public utAssertListener
{
public:
  void assertion_failed(char const* expression, char const* file, int line) override
  {
    long long const number = ++reports_at(file, line);
    if (number <= max_written)
      std::fprintf(stderr, "%s:%d: assertion failed: %s\n", file, line, expression);
    else if (is_power_of_ten(number))
      std::fprintf(stderr, "%s:%d: assertion failed %lld times: %s\n", file, line, number, expression);
  }

private:
  struct Place
  {
    std::uint64_t hash;
    long long reports;
  };

  static constexpr long long max_written = 3;
  static constexpr std::size_t max_places = 256;

  static bool is_power_of_ten(long long number)
  {
    while (number % 10 == 0)
      number /= 10;
    return number == 1;
  }

  // FNV-1a. The texts need not live on, and no memory can be asked for here.
  static std::uint64_t hash_of(char const* file, int line)
  {
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (char const* at = file; *at != '\0'; ++at)
      hash = (hash ^ static_cast<unsigned char>(*at)) * 0x100000001B3u;
    return (hash ^ static_cast<unsigned>(line)) * 0x100000001B3u;
  }

  // The count of a place. Where there are too many places, another one is forgotten.
  long long& reports_at(char const* file, int line)
  {
    std::uint64_t const hash = hash_of(file, line);
    for (Place& place : places)
      if (place.reports != 0 && place.hash == hash)
        return place.reports;
    Place* taken = &places[hash % max_places];
    for (Place& place : places)
      if (place.reports == 0)
        taken = &place;
    *taken = Place{hash, 0};
    return taken->reports;
  }

  Place places[max_places] = {};
};

struct Charge
{
  // Recursive, for a listener may report an assertion of its own.
  std::recursive_mutex guard;
  StandardErrorListener standard_error;
  utAssertListener* listener = nullptr;
};

// Never destroyed: assertions may fail while static objects go away.
Charge& charge()
{
  static Charge* const made = new Charge;
  return *made;
}
}

void ut_report_assertion(char const* expression, char const* file, int line)
{
  Charge& current = charge();
  std::lock_guard<std::recursive_mutex> const lock(current.guard);
  utAssertListener* const listener = current.listener != nullptr ? current.listener : &current.standard_error;
  listener->assertion_failed(expression, file, line);
}

utAssertListener* ut_set_assert_listener(utAssertListener* listener)
{
  Charge& current = charge();
  std::lock_guard<std::recursive_mutex> const lock(current.guard);
  utAssertListener* const replaced = current.listener;
  current.listener = listener;
  return replaced;
}
