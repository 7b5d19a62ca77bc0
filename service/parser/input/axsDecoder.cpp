#include "axsDecoder.h"

#include "axsSingleByteDecoder.h"
#include "axsSingleByteSets.h"
#include "axsSystemDecoder.h"
#include "axsUnicodeDecoder.h"

std::unique_ptr<axsDecoder> axsDecoder::make(std::string_view name)
{
  if (auto const* const set = axsSingleByteSets::find(name))
    return std::make_unique<axsSingleByteDecoder>(*set);
  if (name == "UTF-16LE")
    return std::make_unique<axsUnicodeDecoder<2, axsByteOrder::little>>();
  if (name == "UTF-16BE")
    return std::make_unique<axsUnicodeDecoder<2, axsByteOrder::big>>();
  if (name == "UTF-32LE")
    return std::make_unique<axsUnicodeDecoder<4, axsByteOrder::little>>();
  if (name == "UTF-32BE")
    return std::make_unique<axsUnicodeDecoder<4, axsByteOrder::big>>();
  return axsSystemDecoder::make(name);
}

bool axsDecoder::has_states(std::string_view name) noexcept
{
  bool const is_ours = axsSingleByteSets::find(name) != nullptr || name.substr(0, 4) == "UTF-";
  return !is_ours;
}
