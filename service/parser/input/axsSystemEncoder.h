#pragma once

#include "axsEncoder.h"

#include <memory>
#include <string_view>

/// Encodes in whatever the system has a converter for.
namespace axsSystemEncoder
{
/// Null where the system has none for the encoding `name`. Throws std::bad_alloc when memory runs out.
std::unique_ptr<axsEncoder> make(std::string_view name);
}
