#include "axsGrowth.h"

#include "axsInputBuffer.h"
#include "axsXercesParser.h"

bool axsGrowth::add(std::size_t bytes) noexcept
{
  added += bytes;
  return added <= axsXercesParser::growth_free / 2 ||
         added / (axsXercesParser::growth_limit / 2) <= document.position(document.end());
}
