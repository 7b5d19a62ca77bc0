#pragma once

#include <string>

/// References to characters and to the entities that every document has, in memory as axsCharacters wants it.
namespace axsReference
{
/// Moves behind the reference at `at` and appends the character for which it stands to `text` (4.1, [66] CharRef; 4.6).
/// False where there is another one or none; `at` is then where that shows.
bool read(char const*& at, std::string& text);
}
