#pragma once

#include <string>
#include <vector>

/// The arguments of the program in UTF-8 on every system, whatever its code page.
class Arguments
{
public:
  Arguments(int argc, char const* const* argv);

  int count() const { return static_cast<int>(pointers.size()); }

  /// Pointers into this object.
  char const* const* values() const { return pointers.data(); }

private:
  std::vector<std::string> texts;
  std::vector<char const*> pointers;
};
