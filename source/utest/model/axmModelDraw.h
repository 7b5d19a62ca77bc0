#pragma once

#include "axmModelRandom.h"
#include "axmModelRun.h"

#include <vector>

// What the steps that are drawn are mostly about.
enum class axmModelTopic
{
  trees,
  attributes,
  lists,
  loads,
  everything
};

// Draws the steps of a run: right ones and wrong ones, on whatever is there. Not installed.
class axmModelDraw
{
public:
  axmModelDraw(axmModelTopic topic, std::uint64_t seed);
  axmModelDraw(axmModelTopic topic, axmModelRandom const& random);

  // The next step for `run`, which has done all those before.
  axmModelStep next(axmModelRun const& run);

  // How many steps the run is to have.
  int length() const { return steps; }

private:
  using Slots = std::vector<axmModelRun::Slot>;
  using Action = axmModelAction;

  Action action();
  void fill(axmModelStep& step, axmModelRun const& run);
  bool may_add_last(axmModelRun const& run);
  void add_last(axmModelStep& step, axmModelRun const& run);
  void fill_put(axmModelStep& step, axmModelRun const& run);
  int any_node(axmModelRun const& run);
  int node_of(axmModelRun const& run, axmModelKind kind);
  int mostly(axmModelRun const& run, axmModelKind kind);
  int child_of(axmModelRun const& run, int slot);
  int neighbour_of(axmModelRun const& run, int slot);
  int any_list(axmModelRun const& run);
  std::wstring text(axmModelRun const& run, int slot);
  template <class Wanted>
  int choose(axmModelRun const& run, Wanted wanted);

  axmModelTopic topic;
  axmModelRandom random;
  int steps;
  int made = 0;
  int last_made = axmModelStep::no_slot;
};
