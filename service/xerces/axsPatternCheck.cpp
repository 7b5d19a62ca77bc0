#include "axsPatternCheck.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{
// What is known of an atom, or of the part of the pattern in the same parentheses as far as it has been read.
struct Part
{
  bool may_be_empty = false;
  bool repeats = false; // something in it does
};

struct Group
{
  Part branch{true, false};
  bool has_empty_branch = false;

  Part whole() const { return {has_empty_branch || branch.may_be_empty, branch.repeats}; }
};

struct Quantifier
{
  bool from_none;
  bool without_end;
  bool repeats;
};

class Reader
{
public:
  explicit Reader(std::string_view pattern) : text(pattern) {}

  char const* fault()
  {
    while (at < text.size())
    {
      char const c = text[at];
      if (c == '(')
      {
        ++at;
        groups.emplace_back();
        if (groups.size() > axsPatternCheck::most_levels)
          return "the parentheses of the pattern are nested more than 100 levels deep";
      }
      else if (c == '|')
      {
        ++at;
        groups.back().has_empty_branch = groups.back().whole().may_be_empty;
        groups.back().branch.may_be_empty = true;
      }
      else if (!add(atom()))
        return "a part of the pattern that may be empty repeats, and repeats in itself, which cannot be matched; "
               "instead of (a*b*)*, write (a|b)*";
    }
    return nullptr;
  }

private:
  Part atom()
  {
    char const c = text[at++];
    if (c == ')' && groups.size() > 1)
    {
      Part const inside = groups.back().whole();
      groups.pop_back();
      return inside;
    }
    if (c == '[')
      skip_class();
    else if (c == '\\')
      skip_escape();
    return {};
  }

  // Behind the backslash.
  void skip_escape()
  {
    bool const has_name = at < text.size() && (text[at] == 'p' || text[at] == 'P');
    ++at;
    if (has_name)
      at = std::min(text.find('}', at), text.size() - 1) + 1;
  }

  // Behind the bracket. Classes are taken from each other in brackets of their own.
  void skip_class()
  {
    for (std::size_t depth = 1; depth > 0 && at < text.size();)
    {
      char const c = text[at++];
      if (c == '\\')
        ++at;
      else if (c == '[')
        ++depth;
      else if (c == ']')
        --depth;
    }
  }

  Quantifier quantifier()
  {
    char const c = at < text.size() ? text[at] : '\0';
    if (c == '{')
    {
      std::size_t const end = std::min(text.find('}', at), text.size() - 1);
      std::string_view const counts = text.substr(at + 1, end - at - 1);
      at = end + 1;
      return {!counts.empty() && counts.front() == '0', !counts.empty() && counts.back() == ',', true};
    }
    bool const is_one = c == '?' || c == '*' || c == '+';
    at += is_one ? 1 : 0;
    return {c == '?' || c == '*', c == '*' || c == '+', c == '*' || c == '+'};
  }

  // Whether that can be borne.
  bool add(Part atom)
  {
    Quantifier const found = quantifier();
    if (found.without_end && atom.may_be_empty && atom.repeats)
      return false;
    Part& branch = groups.back().branch;
    branch.may_be_empty = branch.may_be_empty && (atom.may_be_empty || found.from_none);
    branch.repeats = branch.repeats || atom.repeats || found.repeats;
    return true;
  }

  std::string_view text;
  std::size_t at = 0;
  std::vector<Group> groups{Group()};
};
}

char const* axsPatternCheck::fault(std::string_view pattern)
{
  return Reader(pattern).fault();
}
