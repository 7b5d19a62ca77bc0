#pragma once

struct axsContentGroup;
class axsSymbols;

/// A content model (Part 1, 3.4.1 {content type}) made ready for running (axsContentStack). Immutable; of the
/// axsContentModels that made it, which must live as long.
class axsContentAutomaton
{
public:
  axsContentAutomaton(axsContentGroup const& given, axsSymbols const& known) noexcept : top(given), names(known) {}

  /// What the children are matched with.
  axsContentGroup const& content() const noexcept { return top; }

  axsSymbols const& symbols() const noexcept { return names; }

private:
  axsContentGroup const& top;
  axsSymbols const& names;
};
