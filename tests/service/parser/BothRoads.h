#pragma once

#include <axmLoadOptions.h>

#include <string>
#include <string_view>

/// Reads a document with our parser and with another one, the judge, and compares.
class BothRoads
{
public:
  explicit BothRoads(std::string_view document, axmLoadOptions const& options = axmLoadOptions(axmValidateNone));

  /// Whether ours took it, and whether the judge did.
  bool scanned() const noexcept { return was_scanned; }
  bool parsed() const noexcept { return was_parsed; }

  /// What the rule is broken by that the judge takes whatever ours takes, with the same tree; empty if nothing.
  std::string const& difference() const noexcept { return found; }

private:
  bool was_scanned = false;
  bool was_parsed = false;
  std::string found;
};
