#pragma once

#include "axsDecoder.h"

#include <memory>
#include <string_view>

/// Decodes whatever the system has a converter for.
namespace axsSystemDecoder
{
/// Null where the system has none for the encoding `name`. Throws std::bad_alloc when memory runs out.
std::unique_ptr<axsDecoder> make(std::string_view name);
}
