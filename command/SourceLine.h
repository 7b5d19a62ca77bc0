#pragma once

#include <apPath.h>

#include <string>

/// How what comes from documents is shown to a user: in one line, with a mark for every character that a terminal could
/// take for a command, and for what is no character.
std::string shown(std::string const& text);

/// Line `number` of the file, or the part of a long one around `column`, and below it a mark under that column, each
/// ended by a line feed. Columns are units of UTF-16, as the engine counts them. Empty if there is no such line, if it is
/// in an encoding in which it cannot be shown, or if what was read is no regular file: a pipe cannot be read again.
std::string shown_place(apPath const& file, int number, int column);
