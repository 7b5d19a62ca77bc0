#pragma once

#include <unordered_map>

struct axsModelGroup;
struct axsParticle;

/// Which groups a comparison of two particles passes over (Part 1, 3.9.6 cos-particle-restrict, "pointless occurrences").
///
/// For one schema, while it is built. What was found of a group is kept.
class axsPointlessGroups
{
public:
  /// Whether nothing is left of the particle once all is left out that is pointless, at any depth: it never occurs, or it is
  /// an empty group. A choice among nothing is left, unless it may be missing, for nothing can be chosen.
  bool is_empty(axsParticle const& particle);

  /// The particle, or where that is a group of one member, empty ones left out, and so on, the member.
  axsParticle const& innermost(axsParticle const& particle);

private:
  bool has_none(axsModelGroup const& outermost);
  axsParticle const* only_of(axsModelGroup const& group);

  std::unordered_map<axsModelGroup const*, bool> known;
};
