#pragma once

#include "axsSource.h"

#include <xercesc/sax/InputSource.hpp>

/// Our sources for the parser: it gets a stream over what we have opened and read. Refers to the source, which must live
/// longer.
class axsInputSource final : public xercesc::InputSource
{
public:
  axsInputSource(axsSource& given, xercesc::MemoryManager& memory);

  xercesc::BinInputStream* makeStream() const override;

private:
  axsSource& source;
};
