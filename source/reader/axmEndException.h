#pragma once

#include "axmException.h"

/// The document ends where it must not.
class AXM_API axmEndException : public axmException
{
public:
  axmEndException();
  axmEndException(axmEndException const& other);
  axmEndException& operator=(axmEndException const& other);
  ~axmEndException() override;

  /// "axmEndException:: Xml reader moved of the end of the file" and a line feed.
  utString explanation() const override;
};
