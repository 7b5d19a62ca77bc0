#include "axsParserMemory.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdlib>
#include <new>
#include <utility>

struct alignas(std::max_align_t) axsParserMemory::Block
{
  Block* previous;
  Block* next;
  std::size_t size;
};

axsParserMemory::~axsParserMemory()
{
  while (blocks != nullptr)
    std::free(std::exchange(blocks, blocks->next));
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
  // The matcher of patterns goes down for every character of a value, and allocates on the way.
  if (stack && stack->is_low())
  {
    was_stack_low = true;
    throw xercesc::OutOfMemoryException();
  }
  void* const memory = std::malloc(sizeof(Block) + size);
  if (memory == nullptr)
    throw xercesc::OutOfMemoryException();
  blocks = new (memory) Block{nullptr, blocks, size};
  if (blocks->next != nullptr)
    blocks->next->previous = blocks;
  used += size;
  return blocks + 1;
}

void axsParserMemory::deallocate(void* memory)
{
  if (memory == nullptr)
    return;
  Block* const block = static_cast<Block*>(memory) - 1;
  if (block->next != nullptr)
    block->next->previous = block->previous;
  (block->previous == nullptr ? blocks : block->previous->next) = block->next;
  used -= block->size;
  std::free(block);
}
