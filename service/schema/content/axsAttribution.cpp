#include "axsAttribution.h"

#include "axsContentModels.h"
#include "axsElementDecl.h"

axsAttribution::Sets axsAttribution::run()
{
  bool is_beginning = true;
  for (axsContentItem& item : group.items)
  {
    Part const part = part_of(item);
    add_decls(item);
    if (is_beginning)
      refuse_overlap(group.first, part.first);
    if (group.is_sequence())
      follow_in_sequence(part, is_beginning);
    else
    {
      sets.same.unite(part.same);
      sets.other.unite(part.other);
    }
    if (is_beginning)
      group.first.unite(part.first);
    is_beginning = is_beginning && (!group.is_sequence() || part.nullable);
    has_children = has_children || !part.first.empty();
  }
  return sets;
}

// What can stand after the beginning of a sequence changes with each of its parts. Part by part, it is what may follow the
// last child so far; where that may be one of a part that can be passed, also what follows an earlier one.
void axsAttribution::follow_in_sequence(Part const& part, bool is_beginning)
{
  refuse_overlap(sets.same, part.first);
  refuse_overlap(sets.other, part.first);
  if (!part.nullable)
  {
    sets.same = axsReach();
    sets.other = axsReach();
  }
  if (part.nullable && has_children)
    (is_beginning ? sets.same : sets.other).unite(part.first);
  (is_beginning ? sets.same : sets.other).unite(part.same);
  sets.other.unite(part.other);
}

axsAttribution::Part axsAttribution::part_of(axsContentItem& item)
{
  Part part;
  part.nullable = item.nullable;
  if (item.group != nullptr)
  {
    Sets const& inner = models.sets_of(*item.group);
    part.first = item.group->first;
    part.same = inner.same;
    part.other = inner.other;
  }
  else
    part.first.add(item);
  if (item.max > 1)
  {
    refuse_overlap(part.other, part.first);
    item.is_weak = !part.same.empty();
    // A number of times that is fixed leaves no choice between once more and going on.
    if (item.min < item.max)
      part.same = part.first;
  }
  group.is_weak = group.is_weak || item.is_weak || (item.group != nullptr && item.group->is_weak);
  return part;
}

void axsAttribution::add_decls(axsContentItem const& item)
{
  axsSymbolSet decls;
  axsSymbolSet heads;
  axsSymbolSet locals;
  if (item.group != nullptr)
  {
    Sets const& inner = models.sets_of(*item.group);
    decls = inner.decls;
    heads = inner.heads;
    locals = inner.locals;
  }
  else if (item.names != nullptr)
  {
    axsContentNames const& names = *item.names;
    decls.add({{names.symbol, names.symbol, &item}});
    if (!names.is_single())
    {
      std::vector<axsSymbolSet::Span> spans;
      for (axsContentNames::Span const& span : names.spans)
        spans.push_back({span.first, span.last, &item});
      heads.add(spans);
    }
    else if (!names.decl->is_global && models.symbols().global(names.symbol) != nullptr)
      locals.add({{names.symbol, names.symbol, &item}});
  }
  refuse_types(sets.decls, decls);
  refuse_locals(locals, sets.heads);
  refuse_locals(sets.locals, heads);
  sets.decls.unite(decls);
  sets.heads.unite(heads);
  sets.locals.unite(locals);
}

void axsAttribution::refuse_overlap(axsReach const& left, axsReach const& right)
{
  if (problem)
    return;
  if (axsReach::Overlap const found = axsReach::overlap(left, right))
    report(axsContentProblem::Kind::ambiguous, *found.first, *found.second);
}

void axsAttribution::refuse_types(axsSymbolSet const& left, axsSymbolSet const& right)
{
  if (left.size() < right.size())
    return refuse_types(right, left);
  right.any_of(
    [&](axsSymbolSet::Span const& span)
    {
      axsSymbolSet::Span const* const other = left.find(span.first, span.last);
      if (other != nullptr && !(other->item->names->decl->type == span.item->names->decl->type))
        report(axsContentProblem::Kind::inconsistent, *other->item, *span.item);
      return static_cast<bool>(problem);
    });
}

void axsAttribution::refuse_locals(axsSymbolSet const& locals, axsSymbolSet const& heads)
{
  if (heads.empty())
    return;
  locals.any_of(
    [&](axsSymbolSet::Span const& span)
    {
      axsSymbolSet::Span const* const head = heads.find(span.first, span.last);
      axsElementDecl const* const member = models.symbols().global(span.first);
      if (head != nullptr && !(member->type == span.item->names->decl->type))
        report(axsContentProblem::Kind::inconsistent, *span.item, *head->item);
      return static_cast<bool>(problem);
    });
}

void axsAttribution::report(axsContentProblem::Kind kind, axsContentItem const& first, axsContentItem const& second)
{
  if (!problem)
    problem = {kind, first.particle, second.particle};
}
