#include "axsIdentityChecks.h"

#include "axsElementDecl.h"
#include "axsKnownName.h"
#include "axsName.h"
#include "axsShownText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
using Category = axsIdentityConstraint::Category;

std::string quoted(axsKnownName const& name)
{
  return "'" + std::string(name.name->local()) + "'";
}

std::string line_of(axsPlace place)
{
  return "line " + std::to_string(place.line);
}

// The value of several fields is that of each with its length.
void append(std::string& key, std::string const& field)
{
  for (std::size_t rest = field.size();; rest >>= 7)
  {
    key += static_cast<char>(rest & 0x7F);
    if (rest <= 0x7F)
      break;
    key.back() = static_cast<char>(key.back() | char(-128));
  }
  key += field;
}
}

axsIdentityChecks::Plan const& axsIdentityChecks::plan_of(axsIdentityConstraint const& constraint)
{
  std::unique_ptr<Plan>& plan = plans[&constraint];
  if (plan != nullptr)
    return *plan;
  auto made = std::make_unique<Plan>(Plan{&constraint, axsIdentityMatcher(constraint.selector), {}});
  for (axsIdentityPath const& path : constraint.fields)
  {
    made->fields.emplace_back(path);
    made->depth_of_fields = std::max(made->depth_of_fields, made->fields.back().depth());
    made->has_deep_fields = made->has_deep_fields || made->fields.back().is_deep();
  }
  depth_of_fields = std::max(depth_of_fields, made->depth_of_fields);
  depth_of_selectors = std::max(depth_of_selectors, made->selector.depth());
  plan = std::move(made);
  return *plan;
}

void axsIdentityChecks::begin(
  axsKnownName const& name, axsElementDecl const* decl, std::function<axsPlace()> const& place)
{
  open.push_back(&name);
  if (decl != nullptr)
    open_scopes(*decl, name);
  select(name, place);
  await_fields();
}

void axsIdentityChecks::open_scopes(axsElementDecl const& decl, axsKnownName const& name)
{
  for (axsIdentityConstraint const* const constraint : decl.identity_constraints)
  {
    Plan const& plan = plan_of(*constraint);
    if (is_covered(plan, decl))
      continue;
    scopes.push_back({open.size(), &plan, &name, std::make_unique<axsIdentityTable>(), {}});
    if (plan.selector.is_deep())
      deep_scopes.push_back(scopes.size() - 1);
  }
}

// What is unique in an element is so in each within it: where an outer element has the same constraint, the inner one needs
// none, unless it is referred to.
bool axsIdentityChecks::is_covered(Plan const& plan, axsElementDecl const& decl) const
{
  if (plan.constraint->category == Category::keyref || !plan.selector.is_deep_only())
    return false;
  bool const has_outer = std::any_of(deep_scopes.begin(), deep_scopes.end(),
    [&](std::size_t scope) { return scopes[scope].plan == &plan && scopes[scope].level < open.size(); });
  auto const refers = [&](axsIdentityConstraint const* other) { return other->referenced == plan.constraint; };
  return has_outer && !is_referred_to(*plan.constraint) &&
         std::none_of(decl.identity_constraints.begin(), decl.identity_constraints.end(), refers);
}

bool axsIdentityChecks::is_referred_to(axsIdentityConstraint const& key) const
{
  return std::any_of(
    scopes.begin(), scopes.end(), [&](Scope const& scope) { return scope.plan->constraint->referenced == &key; });
}

void axsIdentityChecks::select(axsKnownName const& name, std::function<axsPlace()> const& place)
{
  auto const try_scope = [&](std::size_t number)
  {
    Scope const& scope = scopes[number];
    if (!scope.plan->selector.leads_to_element(open, scope.level - 1))
      return;
    selections.push_back({open.size(), number, &name, place(), {}, {}});
    selections.back().fields.resize(scope.plan->fields.size());
    selections_with_deep_fields += scope.plan->has_deep_fields ? 1U : 0U;
  };
  for (std::size_t const number : deep_scopes)
    try_scope(number);
  for (std::size_t i = scopes.size(); i-- > 0 && scopes[i].level + depth_of_selectors >= open.size();)
    if (!scopes[i].plan->selector.is_deep())
      try_scope(i);
}

// Visits the selections of which a field may lead to the innermost element.
template <class Visit>
void axsIdentityChecks::for_each_near(Visit visit)
{
  for (std::size_t i = selections.size(); i-- > 0;)
  {
    if (selections_with_deep_fields == 0 && selections[i].level + depth_of_fields < open.size())
      return;
    visit(i);
  }
}

void axsIdentityChecks::await_fields()
{
  attributes_wanted = false;
  for_each_near(
    [this](std::size_t number)
    {
      Selection& selection = selections[number];
      std::vector<axsIdentityMatcher> const& fields = scopes[selection.scope].plan->fields;
      for (std::size_t i = 0; i < fields.size(); ++i)
      {
        attributes_wanted = attributes_wanted || fields[i].has_attributes();
        if (fields[i].leads_to_element(open, selection.level - 1) && found_field(selection, i) != nullptr)
          awaited.push_back({open.size(), number, i});
      }
    });
}

void axsIdentityChecks::attribute(std::string_view name_space, std::string_view local, Value const& value)
{
  for_each_near(
    [&](std::size_t number)
    {
      Selection& selection = selections[number];
      std::vector<axsIdentityMatcher> const& fields = scopes[selection.scope].plan->fields;
      for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].leads_to_attribute(open, selection.level - 1, name_space, local))
          if (Field* const field = found_field(selection, i))
            set(selection, *field, value);
    });
}

// A field has one value at most (cvc-identity-constraint.3).
axsIdentityChecks::Field* axsIdentityChecks::found_field(Selection& selection, std::size_t number)
{
  Field& field = selection.fields[number];
  if (field.is_found)
  {
    if (!field.is_void)
      report("element " + quoted(*selection.name) + ": a field of a key has several values here", selection.place);
    field.is_void = true;
    return nullptr;
  }
  field.is_found = true;
  return &field;
}

void axsIdentityChecks::set(Selection& selection, Field& field, Value const& value)
{
  field.bytes = value.bytes;
  field.is_void = value.bytes.empty();
  selection.text += (selection.text.empty() ? "\"" : ", \"") + axsShownText::shortened(value.text) + "\"";
}

void axsIdentityChecks::value(Value const& value, bool is_nillable)
{
  for (; wants_value(); awaited.pop_back())
  {
    Selection& selection = selections[awaited.back().selection];
    set(selection, selection.fields[awaited.back().field], value);
    // A part of a key may not be nillable (cvc-identity-constraint.4.2.3).
    if (is_nillable && scopes[selection.scope].plan->constraint->category == Category::key)
      report("element " + quoted(*open.back()) + " is a part of a key, and may not be nillable", selection.place);
  }
}

void axsIdentityChecks::no_value(Without reason)
{
  for (; wants_value(); awaited.pop_back())
  {
    Selection& selection = selections[awaited.back().selection];
    Field& field = selection.fields[awaited.back().field];
    field.is_found = reason != Without::is_nil;
    field.is_void = true;
    if (reason == Without::is_complex)
      report("element " + quoted(*open.back()) + " is a field of a key, and must have a simple type", selection.place);
  }
}

void axsIdentityChecks::end()
{
  no_value(Without::is_not_valid);
  while (!selections.empty() && selections.back().level == open.size())
  {
    complete(selections.back());
    selections_with_deep_fields -= scopes[selections.back().scope].plan->has_deep_fields ? 1U : 0U;
    selections.pop_back();
  }
  close_scopes();
  open.pop_back();
}

void axsIdentityChecks::complete(Selection& selection)
{
  if (!has_all_fields(selection))
    return;
  Scope& scope = scopes[selection.scope];
  std::string key;
  if (selection.fields.size() == 1)
    key = std::move(selection.fields.front().bytes);
  else
    for (Field const& field : selection.fields)
      append(key, field.bytes);
  std::size_t const known = scope.table->add(key, selection.place);
  if (scope.plan->constraint->category == Category::keyref)
  {
    if (known == axsIdentityTable::none)
      scope.texts.push_back(std::move(selection.text));
    return;
  }
  if (known != axsIdentityTable::none)
    report_duplicate(selection, (*scope.table)[known].place);
}

// Only of a key, each part must have a value (cvc-identity-constraint.4.2.1).
bool axsIdentityChecks::has_all_fields(Selection const& selection) const
{
  Scope const& scope = scopes[selection.scope];
  auto const is_missing = [](Field const& field) { return !field.is_found; };
  auto const is_void = [](Field const& field) { return field.is_void; };
  if (std::none_of(selection.fields.begin(), selection.fields.end(), is_missing))
    return std::none_of(selection.fields.begin(), selection.fields.end(), is_void);
  if (scope.plan->constraint->category != Category::key)
    return false;
  bool const is_whole = std::all_of(selection.fields.begin(), selection.fields.end(), is_missing);
  report("element " + quoted(*selection.name) + ": " +
           (is_whole ? "a key" : "a part of the key '" + scope.plan->constraint->name.local + "'") +
           " of the element " + quoted(*scope.name) + " has no value",
    selection.place);
  return false;
}

void axsIdentityChecks::report_duplicate(Selection const& selection, axsPlace first)
{
  Scope const& scope = scopes[selection.scope];
  bool const is_key = scope.plan->constraint->category == Category::key;
  report("element " + quoted(*selection.name) + ": " + (is_key ? "its key " : "what must be unique in the element ") +
           (is_key ? selection.text + " is not unique in the element " + quoted(*scope.name)
                   : quoted(*scope.name) + " is not: " + selection.text) +
           "; first at " + line_of(first),
    selection.place);
}

// Each reference must find a key in the element or within it (cvc-identity-constraint.4.3).
void axsIdentityChecks::check_references(Scope const& scope)
{
  axsIdentityConstraint const* const key = scope.plan->constraint->referenced;
  if (key == nullptr)
    return;
  axsIdentityTable const* const keys = table_of(*key, scope.level);
  for (std::size_t i = 0; i < scope.table->size(); ++i)
    if (keys == nullptr || !keys->has(scope.table->value(i)))
      report("the key reference " + scope.texts[i] + " in the element " + quoted(*scope.name) +
               " has no key that it refers to",
        (*scope.table)[i].place);
}

// The keys that an element and those within it have.
axsIdentityTable const* axsIdentityChecks::table_of(axsIdentityConstraint const& key, std::size_t level)
{
  axsIdentityTable* own = nullptr;
  for (std::size_t i = scopes.size(); i-- > 0 && scopes[i].level == level;)
    if (scopes[i].plan->constraint == &key)
      own = scopes[i].table.get();
  for (std::size_t i = inherited.size(); i-- > 0 && inherited[i].level >= level;)
  {
    if (inherited[i].level != level || inherited[i].key != &key || inherited[i].table == nullptr)
      continue;
    if (own == nullptr)
      return inherited[i].table.get();
    own->inherit(std::move(*inherited[i].table));
    inherited[i].table = nullptr;
  }
  return own;
}

void axsIdentityChecks::close_scopes()
{
  std::size_t const level = open.size();
  std::size_t first = scopes.size();
  while (first > 0 && scopes[first - 1].level == level)
    --first;
  for (std::size_t i = first; i < scopes.size(); ++i)
    check_references(scopes[i]);
  auto const begin = scopes.begin() + static_cast<std::ptrdiff_t>(first);
  std::vector<Scope> closed(std::make_move_iterator(begin), std::make_move_iterator(scopes.end()));
  scopes.erase(begin, scopes.end());
  while (!deep_scopes.empty() && deep_scopes.back() >= first)
    deep_scopes.pop_back();
  std::vector<Inherited> within;
  for (; !inherited.empty() && inherited.back().level == level; inherited.pop_back())
    within.push_back(std::move(inherited.back()));
  if (scopes.empty())
    return;
  for (Scope& scope : closed)
  {
    // Of equal values, those of the element itself count, not those within it.
    for (Inherited& inner : within)
      if (inner.key == scope.plan->constraint && inner.table != nullptr)
        scope.table->inherit(std::move(*std::exchange(inner.table, nullptr)));
    if (scope.plan->constraint->category != Category::keyref)
      hand_up(*scope.plan->constraint, std::move(scope.table), level);
  }
  for (Inherited& inner : within)
    hand_up(*inner.key, std::move(inner.table), level);
}

// Keys are known in the elements around that refer to them.
void axsIdentityChecks::hand_up(
  axsIdentityConstraint const& key, std::unique_ptr<axsIdentityTable> table, std::size_t level)
{
  if (table == nullptr || table->size() == 0)
    return;
  auto const referring = std::find_if(scopes.rbegin(), scopes.rend(),
    [&](Scope const& scope) { return scope.plan->constraint->referenced == &key || scope.plan->constraint == &key; });
  if (referring == scopes.rend() || !is_referred_to(key) || referring->level >= level)
    return;
  for (Inherited& known : inherited)
    if (known.level == referring->level && known.key == &key && known.table != nullptr)
    {
      known.table->inherit(std::move(*table));
      return;
    }
  auto made = std::make_unique<axsIdentityTable>();
  made->inherit(std::move(*table));
  auto const place = std::find_if(
    inherited.begin(), inherited.end(), [&](Inherited const& other) { return other.level > referring->level; });
  inherited.insert(place, {referring->level, &key, std::move(made)});
}
