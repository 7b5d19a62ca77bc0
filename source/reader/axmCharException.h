#pragma once

#include "axmException.h"

/// A character that has to stand in a certain place does not stand there.
class AXM_API axmCharException : public axmException
{
public:
  /// `expected_char` is the character that was expected.
  axmCharException(char expected_char);
  axmCharException(axmCharException const& other);
  axmCharException& operator=(axmCharException const& other);
  ~axmCharException() override;

  /// The end of "axmCharException:: Xml file did not contain expected char " (58 characters) that begins at the offset
  /// which the code of the expected character names, and a line feed; programs rely on just that. A code outside the
  /// text (58 and more, and negative ones) gives the line feed alone.
  utString explanation() const override;

private:
  signed char expected_char;
};
