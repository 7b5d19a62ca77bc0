#pragma once

#include <map>
#include <string>

/// The tests of a suite that are known to come out otherwise than the suite says, each with the reason.
/// The name of a test, and the reason in full.
using KnownExceptions = std::map<std::string, std::string>;

/// Reads the list in `file`. Its lines, the fields parted by tabs:
///
///     # a comment
///     reason KEY TEXT...
///     test NAME KEY
///
/// Throws std::runtime_error, with the line, for a file that cannot be read, a line of another form, a reason that is
/// missing, given twice or used by no test, and a test that is listed twice.
KnownExceptions read_known_exceptions(std::string const& file);
