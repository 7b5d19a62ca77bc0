#pragma once

#include <axmCharException.h>
#include <axmEndException.h>
#include <axmTagException.h>

#include <string>

// What a call throws, in words: "nothing", "end", "char " or "tag " with the whole explanation after it.
template <class Call>
std::string thrown_by(Call call)
{
  try
  {
    call();
    return "nothing";
  }
  catch (axmEndException const&)
  {
    return "end";
  }
  catch (axmCharException const& error)
  {
    return std::string("char ") + error.explanation().c_str();
  }
  catch (axmTagException const& error)
  {
    return std::string("tag ") + error.explanation().c_str();
  }
}

// The same for a character and a tag that an exception is to carry.
inline std::string char_error(char c)
{
  return std::string("char ") + axmCharException(c).explanation().c_str();
}

inline std::string tag_error(char const* text)
{
  return std::string("tag axmTagException:: Something wrong with tag ") + text + "\n";
}
