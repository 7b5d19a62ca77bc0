#include "axsInputSource.h"

#include "axsSystemId.h"

#include <xercesc/util/BinInputStream.hpp>

namespace
{
class Stream final : public xercesc::BinInputStream
{
public:
  explicit Stream(axsSource& given) noexcept : source(given) {}

  XMLFilePos curPos() const override { return position; }

  XMLSize_t readBytes(XMLByte* const to, XMLSize_t const most) override
  {
    std::size_t const count = source.read(reinterpret_cast<char*>(to), most);
    position += count;
    return count;
  }

  XMLCh const* getContentType() const override { return nullptr; }

private:
  axsSource& source;
  XMLFilePos position = 0;
};
}

axsInputSource::axsInputSource(axsSource& given, xercesc::MemoryManager& memory)
  : InputSource(axsSystemId::of(given.file()).c_str(), &memory),
    source(given)
{
}

xercesc::BinInputStream* axsInputSource::makeStream() const
{
  return new (getMemoryManager()) Stream(source);
}
