#pragma once

#include <string>

/// An attribute that is to have a value, both in UTF-8.
struct axsAttributeSetting
{
  std::string name;
  std::string value;
};
