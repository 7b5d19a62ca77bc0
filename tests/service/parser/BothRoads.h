#pragma once

#include "Xml2Judge.h"

#include <axmLoadOptions.h>

#include <string>
#include <string_view>

/// Reads a document with our parser and with another one, the judge, and compares.
class BothRoads
{
public:
  /// Reads a document into events, or else into why not.
  using Judge = bool (*)(std::string_view document, std::string& events);

  explicit BothRoads(std::string_view document, axmLoadOptions const& options = axmLoadOptions(axmValidateNone),
    Judge judge = Xml2Judge::read);

  /// Whether ours took it, and whether the judge did.
  bool scanned() const noexcept { return was_scanned; }
  bool parsed() const noexcept { return was_parsed; }

  /// What the rule is broken by that the judge takes whatever ours takes, with the same tree; empty if nothing.
  std::string const& difference() const noexcept { return found; }

  /// Why ours refuses what the judge takes; empty where both take or refuse it.
  std::string const& refusal() const noexcept { return refused; }

private:
  bool was_scanned = false;
  bool was_parsed = false;
  std::string found;
  std::string refused;
};
