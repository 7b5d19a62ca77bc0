#pragma once

#include <string_view>

/// The numbers by which Windows knows encodings. Safe from several threads at once.
namespace axsCodePage
{
/// That of the encoding `name`, of which case and punctuation do not matter; 0 if we know none.
unsigned int number_of(std::string_view name);
}
