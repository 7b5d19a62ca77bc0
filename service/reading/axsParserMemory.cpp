#include "axsParserMemory.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdlib>
#include <new>

namespace
{
// Before every block stands its size.
struct alignas(std::max_align_t) Header
{
  std::size_t size;
};
}

// An exception may outlive the run.
xercesc::MemoryManager* axsParserMemory::getExceptionMemoryManager()
{
  return xercesc::XMLPlatformUtils::fgMemoryManager->getExceptionMemoryManager();
}

void* axsParserMemory::allocate(XMLSize_t size)
{
  if (size > bound || used > bound - size)
  {
    was_exhausted = true;
    throw xercesc::OutOfMemoryException();
  }
  void* const memory = std::malloc(sizeof(Header) + size);
  if (memory == nullptr)
    throw xercesc::OutOfMemoryException();
  used += size;
  return new (memory) Header{size} + 1;
}

void axsParserMemory::deallocate(void* block)
{
  if (block == nullptr)
    return;
  Header* const header = static_cast<Header*>(block) - 1;
  used -= header->size;
  std::free(header);
}
