#pragma once

#include "axsParserMemory.h"
#include "axsSource.h"

#include <xercesc/sax/InputSource.hpp>

/// Our sources for the parser: it gets a stream over what we have opened and read, and with every piece of it the right to
/// hold a multiple of it in memory. Refers to the source, which must live
/// longer.
class axsInputSource final : public xercesc::InputSource
{
public:
  axsInputSource(axsSource& given, axsParserMemory& memory);

  xercesc::BinInputStream* makeStream() const override;

private:
  axsSource& source;
  axsParserMemory& parser_memory;
};
