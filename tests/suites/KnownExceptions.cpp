#include "KnownExceptions.h"

#include "Fields.h"

#include <fstream>
#include <set>
#include <stdexcept>

KnownExceptions read_known_exceptions(std::string const& file)
{
  std::ifstream input(file);
  if (!input)
    throw std::runtime_error(file + ": cannot be read");

  KnownExceptions exceptions;
  std::map<std::string, std::string> reasons;
  std::set<std::string> unused;
  std::string line;
  for (int number = 1; std::getline(input, line); ++number)
  {
    auto const refuse = [&](char const* why)
    { throw std::runtime_error(file + ":" + std::to_string(number) + ": " + why); };
    if (line.empty() || line[0] == '#')
      continue;
    auto const fields = split_fields(line);
    if (fields.size() != 3)
      refuse("there are not three fields");
    if (fields[0] == "reason")
    {
      if (!reasons.emplace(fields[1], fields[2]).second)
        refuse("this reason is there already");
      unused.insert(fields[1]);
    }
    else if (fields[0] == "test")
    {
      auto const reason = reasons.find(fields[2]);
      if (reason == reasons.end())
        refuse("there is no such reason above");
      if (!exceptions.emplace(fields[1], reason->second).second)
        refuse("this test is listed already");
      unused.erase(fields[2]);
    }
    else
      refuse("this is neither a reason nor a test");
  }
  if (!unused.empty())
    throw std::runtime_error(file + ": no test is listed for the reason " + *unused.begin());
  return exceptions;
}
