#pragma once

#include <string>

class axsInputStack;

/// References to characters and to the entities that every document has.
namespace axsReference
{
/// Moves after a reference to a character or to one of the five predefined entities at `p` and appends the character for
/// which it stands to `text` (4.1, [66] CharRef; 4.6). False where another reference stands there. Throws as the input
/// does where the reference is wrong.
bool read(axsInputStack const& input, char const*& p, std::string& text);

/// The same for references to characters only; `p` is at "&#".
void read_character(axsInputStack const& input, char const*& p, std::string& text);
}
