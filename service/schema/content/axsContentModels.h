#pragma once

#include "axsAttribution.h"
#include "axsContentGroup.h"
#include "axsContentProblem.h"
#include "axsSymbols.h"

#include <deque>
#include <memory>
#include <unordered_map>
#include <vector>

class axsContentAutomaton;
struct axsElementDecl;
struct axsModelGroup;
struct axsParticle;
struct axsWildcard;

/// Makes the automata of a schema's content models and owns what they have in common: the names, and each model group once,
/// however many particles refer to it. A model takes memory and time in proportion to its particles, whatever their
/// numbers of occurrences, and a logarithm of them.
///
/// For one thread while a schema is built, then, unchanged, for any number. Outlives the automata.
class axsContentModels
{
public:
  /// Takes all global element declarations of the schema, whose types and heads are known.
  explicit axsContentModels(std::vector<axsElementDecl const*> const& globals);
  axsContentModels(axsContentModels const&) = delete;
  axsContentModels& operator=(axsContentModels const&) = delete;
  ~axsContentModels();

  /// The automaton of a content. `problem` says what is wrong with it if something is (cos-nonambig,
  /// cos-element-consistent); an automaton there is all the same. The particle must live as long as it.
  std::shared_ptr<axsContentAutomaton const> compile(axsParticle const& particle, axsContentProblem& problem);

  /// What is wrong with a group by itself, if no content that was compiled has it.
  void check(axsModelGroup const& group, axsContentProblem& problem) { compile_groups(group, problem); }

  axsSymbols const& symbols() const noexcept { return names; }

  /// For the check of what contains the group.
  axsAttribution::Sets const& sets_of(axsContentGroup const& group) const { return sets.at(&group); }

  /// The names that a particle with that declaration takes.
  axsContentNames const& names_of(axsElementDecl const& decl);

private:
  void compile_groups(axsModelGroup const& outermost, axsContentProblem& problem);
  void complete(axsContentGroup& group, axsContentProblem& problem);
  void add_item(axsParticle const& particle, axsContentGroup& group);
  axsContentWildcard const& wildcard_of(axsParticle const& particle);

  axsSymbols names;
  bool is_guarded = false; // whether any declaration or type blocks what could stand in its place
  std::unordered_map<axsElementDecl const*, axsContentNames> names_of_decls;
  std::unordered_map<axsWildcard const*, axsContentWildcard> wildcards;
  std::deque<axsContentItem> items_of_wildcards; // one of each, to which their sets refer
  std::unordered_map<axsModelGroup const*, std::unique_ptr<axsContentGroup>> groups;
  std::unordered_map<axsContentGroup const*, axsAttribution::Sets> sets;
  std::deque<axsContentGroup> tops; // of the automata
};
