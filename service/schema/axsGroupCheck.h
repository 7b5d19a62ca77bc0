#pragma once

#include "axsParticleRestriction.h"
#include "axsSchemaContext.h"

#include <deque>
#include <optional>
#include <string>
#include <unordered_map>

/// The constraints on model groups and particles (Part 1, 3.8.6, 3.9.6), when all components are there.
class axsGroupCheck
{
public:
  explicit axsGroupCheck(axsSchemaContext& shared) : context(shared) {}

  /// Whether no group contains itself (mg-props-correct.2). What follows needs that.
  bool check_circles();

  /// Whether the particle, or the content, can be empty (cos-group-emptiable).
  bool is_emptiable(axsParticle const& particle);

  /// All groups are where they may be (cos-all-limited).
  void check_all_groups();

  /// The particle of a type restricts that of its base (derivation-ok-restriction.5.4).
  void check_restriction(axsComplexType const& type, axsComplexType const& base);

  /// The group of a model group definition restricts that which it redefines (src-redefine.6.2).
  void check_restriction(axsSchemaSymbol const& redefinition);

private:
  void complete(axsModelGroup const& group);
  void check_restriction(
    axsParticle const& restricted, axsParticle const& base, axsSchemaPlace place, std::string const& base_words);

  axsSchemaContext& context;
  std::optional<axsParticleRestriction> restrictions;
  std::deque<axsParticle> redefinitions; // of groups, as particles
  std::unordered_map<axsModelGroup const*, bool> emptiable;
};
