#pragma once

#include <apString.h>
#include <utString.h>

/// Wide texts that callers give, on their way into a document.
namespace axsWideText
{
/// Whether every character of `text` is one of Unicode: no surrogate is without its other half, no number beyond U+10FFFF.
bool is_unicode(apString const& text) noexcept;

/// Makes `utf8` the text. False, with `utf8` of no use, where it is not Unicode, and so nothing that a document could hold
/// and give back. Throws std::bad_alloc when memory runs out.
bool to_utf8(apString const& text, utString& utf8);
}
