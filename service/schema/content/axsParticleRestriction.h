#pragma once

#include "axsParticle.h"
#include "axsPointlessGroups.h"
#include "axsSchemaName.h"
#include "axsSchemaNameTable.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

class axsContentModels;
struct axsElementDecl;
struct axsModelGroup;
struct axsWildcard;

/// Whether a particle restricts another one, by the letter of Part 1, 3.9.6 cos-particle-restrict with all its cases
/// (rcase-*): those ask for the same form, and so refuse some that take less than the other all the same.
///
/// For one schema, while it is built. What was found is kept: a comparison of the same groups costs nothing again.
class axsParticleRestriction
{
public:
  explicit axsParticleRestriction(axsContentModels& all) : models(all) {}

  /// How many particles a group may have, those of groups in it written out. Groups that refer to the next one twice have
  /// 2^n of them.
  static constexpr std::size_t max_parts = 250000;

  /// Whether `restricted` restricts `base`; false, too, where either has more than max_parts.
  bool check(axsParticle const& restricted, axsParticle const& base);

  /// After a check that was false, the particle that does not fit; null if one is missing.
  axsParticle const* culprit() const noexcept { return wrong; }

  /// Whether the last check was given up for that.
  bool has_too_many_parts() const noexcept { return is_given_up; }

private:
  enum class Kind : unsigned char
  {
    element,
    wildcard,
    all,
    choice,
    sequence
  };

  // A particle as the comparison sees it.
  struct View
  {
    axsParticle const* particle = nullptr;
    Kind kind = Kind::sequence;
    std::uint64_t min = 1;
    std::uint64_t max = 1;
    axsElementDecl const* element = nullptr; // of a choice: the head of the substitution group that it stands for
    bool is_counted = true;                  // false if the numbers of occurrences are not to be compared
  };

  enum class Rule : unsigned char
  {
    recurse,
    recurse_lax,
    recurse_unordered,
    map_and_sum,
    each_in_wildcard
  };

  // A comparison of two groups that goes on: their parts, and the two of them that are compared now.
  struct Task
  {
    View restricted;
    View base;
    Rule rule;
    std::vector<View> parts;
    std::vector<View> base_parts;
    std::vector<char> is_used; // of the base's parts
    std::size_t at = 0;
    std::size_t base_at = 0;
    bool has_failed = false;
    // By rules that do not go by the order: where the base has elements of a name, and whether that was looked at.
    axsSchemaNameTable<std::size_t> names;
    bool has_looked_by_name = false;
  };

  enum class Answer : unsigned char
  {
    no,
    yes,
    open // a task is to be done first
  };

  // Numbers of children.
  struct Range
  {
    std::uint64_t min;
    std::uint64_t max;
  };

  static Answer answer(bool is_right) noexcept { return is_right ? Answer::yes : Answer::no; }
  static bool is_range(Range const& restricted, Range const& base) noexcept;
  static Rule rule_for(View const& base) noexcept;
  static bool occurs_once(View const& view) noexcept { return view.min == 1 && view.max == 1; }
  // Of parts of choices: a substitution group there.
  static bool is_pointless_choice(View const& part) noexcept
  {
    return part.kind == Kind::choice && part.element != nullptr && occurs_once(part);
  }

  View view_of(axsParticle const& particle);
  std::vector<View> parts_of(View const& view);
  std::vector<View> members_of(View const& view);
  std::vector<View> restricted_parts_of(View const& view);
  axsElementDecl const* member_of(View const& view, axsSchemaName const& name);
  Range range_of(axsModelGroup const& group);
  Range total_range(View const& view);

  bool run(View const& restricted, View const& base);
  Answer begin(View const& restricted, View const& base);
  Answer begin_in_wildcard(View const& restricted, View const& base);
  Answer begin_groups(View const& restricted, View const& base);
  bool is_repeated_by_group(View const& restricted, View const& base);
  Answer open_task(View const& restricted, View const& base, Rule rule);
  Answer next_pair(Task& task, View& restricted, View& base);
  Answer end_of(Task const& task);
  static bool find_by_name(Task& task, View const& restricted);
  void take(Task& task, bool fits);
  bool is_element_right(View const& restricted, View const& base);

  axsContentModels& models;
  axsPointlessGroups pointless;
  std::vector<Task> tasks;
  std::unordered_map<axsModelGroup const*, Range> ranges;
  using Pair = std::tuple<axsParticle const*, axsParticle const*, bool>;
  std::map<Pair, bool> known;
  axsParticle const* wrong = nullptr;
  bool is_given_up = false;
};
