#include "utUnitTestCounter.h"

#include <map>
#include <string>
#include <vector>

namespace
{
void add(utUnitTestCounter::Count& to, bool passed)
{
  ++(passed ? to.passed : to.failed);
}

std::string class_of(std::string const& function)
{
  return function.substr(0, function.find("::"));
}
}

struct utUnitTestCounter::Table
{
  Count& at(std::string const& name)
  {
    auto const [found, is_new] = counts.try_emplace(name, Count{0, 0});
    if (is_new)
      order.push_back(&found->first);
    return found->second;
  }

  Count total{0, 0};
  std::map<std::string, Count> counts;
  std::vector<std::string const*> order;
};

utUnitTestCounter::utUnitTestCounter() : table(std::make_unique<Table>()) {}
utUnitTestCounter::~utUnitTestCounter() = default;

void utUnitTestCounter::reported(utUnitTestReport const& report)
{
  std::string const function = report.function;
  std::string const of_class = class_of(function);
  add(table->total, report.passed);
  add(table->at(of_class), report.passed);
  if (of_class != function)
    add(table->at(function), report.passed);
}

void utUnitTestCounter::printed(char const*) {}

void utUnitTestCounter::finished() {}

utUnitTestCounter::Count utUnitTestCounter::total() const
{
  return table->total;
}

utUnitTestCounter::Count utUnitTestCounter::of(char const* name) const
{
  auto const found = table->counts.find(name);
  return found == table->counts.end() ? Count{0, 0} : found->second;
}

int utUnitTestCounter::size() const
{
  return static_cast<int>(table->order.size());
}

char const* utUnitTestCounter::name(int index) const
{
  return table->order[static_cast<std::size_t>(index)]->c_str();
}
