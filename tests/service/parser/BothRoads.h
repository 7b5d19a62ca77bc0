#pragma once

#include <axmLoadOptions.h>

#include <string>
#include <string_view>

/// Reads a document with the scanner of ordinary documents and with the parser of all, and compares.
class BothRoads
{
public:
  explicit BothRoads(std::string_view document, axmLoadOptions const& options = axmLoadOptions(axmValidateNone));

  /// Whether the scanner took it, and whether the parser did.
  bool scanned() const noexcept { return was_scanned; }
  bool parsed() const noexcept { return was_parsed; }

  /// What the rule is broken by that the parser takes whatever the scanner takes, with the same tree; empty if nothing.
  std::string const& difference() const noexcept { return found; }

private:
  bool was_scanned = false;
  bool was_parsed = false;
  std::string found;
};
