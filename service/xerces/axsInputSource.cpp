#include "axsInputSource.h"
#include "axsXercesId.h"

#include <xercesc/util/BinInputStream.hpp>

namespace
{
// A level of elements may be three bytes in the document, and takes the parser a few hundred.
std::size_t const memory_factor = 128;

class Stream final : public xercesc::BinInputStream
{
public:
  Stream(axsSource& given, axsParserMemory& given_memory) noexcept : source(given), memory(given_memory) {}

  XMLFilePos curPos() const override { return position; }

  XMLSize_t readBytes(XMLByte* const to, XMLSize_t const most) override
  {
    std::size_t const count = source.read(reinterpret_cast<char*>(to), most);
    position += count;
    memory.allow(count * memory_factor);
    return count;
  }

  XMLCh const* getContentType() const override { return nullptr; }

private:
  axsSource& source;
  axsParserMemory& memory;
  XMLFilePos position = 0;
};
}

axsInputSource::axsInputSource(axsSource& given, axsParserMemory& memory)
  : InputSource(axsXercesId::of(given.file()).c_str(), &memory),
    source(given),
    parser_memory(memory)
{
}

xercesc::BinInputStream* axsInputSource::makeStream() const
{
  return new (getMemoryManager()) Stream(source, parser_memory);
}
