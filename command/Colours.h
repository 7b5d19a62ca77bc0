#pragma once

#include <string>
#include <string_view>

/// Colours for what a person reads.
class Colours
{
public:
  enum Colour
  {
    red = 31,
    green = 32,
    yellow = 33,
    magenta = 35,
    cyan = 36
  };

  /// `when` is "always", "never" or "auto": where standard output is a terminal that takes colours and the environment has
  /// no NO_COLOR.
  explicit Colours(std::string const& when);

  /// The text in that colour, where there are colours.
  std::string in(Colour colour, std::string_view text) const;

private:
  bool const is_coloured;
};
