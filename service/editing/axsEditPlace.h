#pragma once

/// Where something comes to stand, seen from an element or, but for the last two, a comment or processing instruction.
enum class axsEditPlace
{
  before,
  after,
  /// As its last child.
  into,
  /// As its first child.
  into_first
};
