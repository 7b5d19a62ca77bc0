#include "axsContentModel.h"

#include "axsCharacters.h"

namespace
{
using namespace axsCharacters;

void skip_occurrence(char const*& at)
{
  if (*at == '?' || *at == '*' || *at == '+')
    ++at;
}

// Behind "(#PCDATA" ([51] Mixed).
bool skip_rest_of_mixed(char const*& at)
{
  bool has_names = false;
  while (true)
  {
    skip_spaces(at);
    if (skip_character(at, ')'))
      return skip_character(at, '*') || !has_names;
    if (!skip_character(at, '|'))
      return false;
    skip_spaces(at);
    if (!skip_name(at))
      return false;
    has_names = true;
  }
}

// Behind the first "(" ([47] children to [50] seq).
bool skip_rest_of_children(char const*& at)
{
  // What separates the parts of each open group; zero as long as it has one only.
  char separators[axsContentModel::most_levels] = {};
  int level = 1;
  while (true)
  {
    skip_spaces(at);
    if (skip_character(at, '('))
    {
      if (level == axsContentModel::most_levels)
        return false;
      separators[level++] = 0;
      continue;
    }
    if (!skip_name(at))
      return false;
    skip_occurrence(at);
    skip_spaces(at);
    while (skip_character(at, ')'))
    {
      skip_occurrence(at);
      if (--level == 0)
        return true;
      skip_spaces(at);
    }
    char& separator = separators[level - 1];
    if ((*at != ',' && *at != '|') || (separator != 0 && separator != *at))
      return false;
    separator = *at++;
  }
}
}

bool axsContentModel::skip(char const*& at)
{
  if (axsCharacters::skip(at, "EMPTY") || axsCharacters::skip(at, "ANY"))
    return true;
  if (!skip_character(at, '('))
    return false;
  skip_spaces(at);
  return axsCharacters::skip(at, "#PCDATA") ? skip_rest_of_mixed(at) : skip_rest_of_children(at);
}
