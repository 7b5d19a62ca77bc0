#pragma once

#include "axsContentGroup.h"
#include "axsContentProblem.h"
#include "axsReach.h"
#include "axsSymbolSet.h"

class axsContentModels;

/// Checks a group whose parts have been checked: that each child can be meant by one particle only, whatever precedes it
/// (Part 1, 3.8.6 cos-nonambig), with numbers of occurrences taken as they are: a{2}, a? is right, a{1,2}, a? is not; and
/// that elements of one name are of one type (cos-element-consistent).
class axsAttribution
{
public:
  /// What the check of a group has to know of its parts.
  struct Sets
  {
    /// Of what can follow the last child: `same` what can take the first child too, `other` the rest.
    axsReach same;
    axsReach other;
    /// The elements at any depth; those of them that have members of substitution groups, with the names of these; those
    /// that are local and have the name of a global one.
    axsSymbolSet decls;
    axsSymbolSet heads;
    axsSymbolSet locals;
  };

  axsAttribution(axsContentModels& given, axsContentGroup& checked, axsContentProblem& found)
    : models(given),
      group(checked),
      problem(found)
  {
  }

  /// Sets the group's `first` and says which of its items are weak.
  Sets run();

private:
  struct Part
  {
    axsReach first;
    axsReach same;
    axsReach other;
    bool nullable;
  };

  Part part_of(axsContentItem& item);
  void add_decls(axsContentItem const& item);
  void follow_in_sequence(Part const& part, bool is_beginning);
  void refuse_overlap(axsReach const& left, axsReach const& right);
  void refuse_types(axsSymbolSet const& left, axsSymbolSet const& right);
  void refuse_locals(axsSymbolSet const& locals, axsSymbolSet const& heads);
  void report(axsContentProblem::Kind kind, axsContentItem const& first, axsContentItem const& second);

  axsContentModels& models;
  axsContentGroup& group;
  axsContentProblem& problem;
  Sets sets;
  bool has_children = false;
};
