#include "Backtracker.h"

#include <cstddef>
#include <set>

// What an expression matches of a value is the set of places where it may end, for each place where it may begin. That is
// what the recommendation says of each construct, put down one to one.
namespace
{
using Places = std::set<std::size_t>;

class Judge
{
public:
  Judge(std::string_view expression, std::string_view given) : pattern(expression), value(given) {}

  bool run()
  {
    std::size_t at = 0;
    return branches(at, {0}).count(value.size()) > 0;
  }

private:
  // From `at` up to the end or the ')' there.
  Places branches(std::size_t& at, Places const& from)
  {
    Places all;
    while (true)
    {
      Places const ends = branch(at, from);
      all.insert(ends.begin(), ends.end());
      if (at >= pattern.size() || pattern[at] != '|')
        return all;
      ++at;
    }
  }

  Places branch(std::size_t& at, Places places)
  {
    while (at < pattern.size() && pattern[at] != '|' && pattern[at] != ')')
    {
      std::size_t const begin = at;
      std::size_t end = at;
      Places const once = atom(end, places);
      std::size_t min = 1;
      std::size_t max = 1;
      at = end;
      quantifier(at, min, max);
      places = repeated(begin, once, places, min, max);
    }
    return places;
  }

  Places repeated(std::size_t begin, Places const& once, Places const& from, std::size_t min, std::size_t max)
  {
    Places all = min == 0 ? from : Places();
    Places reached = from;
    // No value needs more rounds than it has characters, but for those that take nothing.
    std::size_t const rounds = max < min + value.size() + 1 ? max : min + value.size() + 1;
    for (std::size_t i = 1; i <= rounds && !reached.empty(); ++i)
    {
      std::size_t at = begin;
      reached = i == 1 ? once : atom(at, reached);
      if (i >= min)
        all.insert(reached.begin(), reached.end());
    }
    return all;
  }

  void quantifier(std::size_t& at, std::size_t& min, std::size_t& max)
  {
    char const c = at < pattern.size() ? pattern[at] : '\0';
    if (c == '?' || c == '*' || c == '+')
    {
      ++at;
      min = c == '+' ? 1 : 0;
      max = c == '?' ? 1 : unbounded;
    }
    else if (c == '{')
    {
      ++at;
      min = max = number(at);
      if (pattern[at] == ',')
      {
        ++at;
        max = pattern[at] == '}' ? unbounded : number(at);
      }
      ++at;
    }
  }

  std::size_t number(std::size_t& at)
  {
    std::size_t result = 0;
    while (pattern[at] >= '0' && pattern[at] <= '9')
      result = result * 10 + static_cast<std::size_t>(pattern[at++] - '0');
    return result;
  }

  Places atom(std::size_t& at, Places const& from)
  {
    if (pattern[at] == '(')
    {
      ++at;
      Places const ends = branches(at, from);
      ++at;
      return ends;
    }
    Places ends;
    for (std::size_t const place : from)
    {
      std::size_t after = at;
      if (place < value.size() && takes(after, value[place]))
        ends.insert(place + 1);
    }
    takes(at, 'x');
    return ends;
  }

  // Whether what stands at `at` takes the character; moves after it.
  bool takes(std::size_t& at, char c)
  {
    char const first = pattern[at++];
    if (first == '[')
      return class_takes(at, c);
    if (first == '.')
      return c != '\n' && c != '\r';
    return first == '\\' ? escape_takes(at, c) : first == c;
  }

  bool escape_takes(std::size_t& at, char c)
  {
    char const letter = pattern[at++];
    if (letter == 'd')
      return c >= '0' && c <= '9';
    if (letter == 's')
      return c == ' ' || c == '\t' || c == '\n' || c == '\r';
    return c == letter;
  }

  // Behind the bracket.
  bool class_takes(std::size_t& at, char c)
  {
    bool const negative = pattern[at] == '^';
    at += negative ? 1 : 0;
    bool found = false;
    bool subtracted = false;
    while (pattern[at] != ']')
    {
      if (pattern[at] == '-' && pattern[at + 1] == '[')
      {
        at += 2;
        subtracted = class_takes(at, c);
        continue;
      }
      if (pattern[at] == '\\')
      {
        ++at;
        found = escape_takes(at, c) || found;
        continue;
      }
      char const low = pattern[at++];
      char high = low;
      if (pattern[at] == '-' && pattern[at + 1] != '[' && pattern[at + 1] != ']')
      {
        high = pattern[at + 1];
        at += 2;
      }
      found = found || (c >= low && c <= high);
    }
    ++at;
    return found != negative && !subtracted;
  }

  static constexpr std::size_t unbounded = static_cast<std::size_t>(-1);

  std::string_view pattern;
  std::string_view value;
};
}

bool backtracker::matches(std::string_view expression, std::string_view value)
{
  return Judge(expression, value).run();
}
