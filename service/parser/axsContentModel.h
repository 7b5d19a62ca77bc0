#pragma once

/// The content models of element declarations (3.2), in memory as axsCharacters wants it.
namespace axsContentModel
{
/// Groups may lie as deep in each other; deeper ones are unusual.
constexpr int most_levels = 32;

/// Moves behind the content model at `at` ([46] contentspec). False where there is none; `at` is then where that shows.
bool skip(char const*& at);
}
