#pragma once

#include "axsUtf8Scan.h"

#include <apByteBlock.h>

namespace axsUtf8Scan
{
#if defined(AP_HAS_AVX2)
/// skip() for processors with AVX2.
char const* skip_by_avx2(char const* at, char const* end, Seen& seen) noexcept;
#endif
}
