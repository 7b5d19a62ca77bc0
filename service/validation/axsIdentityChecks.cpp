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

axsIdentityChecks::Plan& axsIdentityChecks::plan_of(axsIdentityConstraint const& constraint)
{
  std::unique_ptr<Plan>& plan = plans[&constraint];
  if (plan != nullptr)
    return *plan;
  auto made = std::make_unique<Plan>(constraint);
  if (!made->is_reference())
  {
    made->key = &key_of(constraint);
    made->key->plan = made.get();
  }
  else if (constraint.referenced != nullptr)
  {
    made->key = &key_of(*constraint.referenced);
    made->key->referring.push_back(made.get());
  }
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

axsIdentityChecks::Key& axsIdentityChecks::key_of(axsIdentityConstraint const& constraint)
{
  auto const [at, is_new] = keys_by_constraint.try_emplace(&constraint);
  Key& key = at->second;
  if (is_new)
  {
    key.number = keys.size();
    keys.push_back(&key);
  }
  return key;
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
    if (Plan const& plan = plan_of(*constraint); plan.is_reference() && plan.key != nullptr)
      ++plan.key->references;
  for (axsIdentityConstraint const* const constraint : decl.identity_constraints)
    if (Plan& plan = plan_of(*constraint); !is_covered(plan))
      open_scope(plan, name);
}

void axsIdentityChecks::open_scope(Plan& plan, axsKnownName const& name)
{
  if (plan.is_deep() && !plan.is_open())
    deep_plans.push_back(&plan);
  plan.scopes.push_back(scopes.size());
  scopes.push_back({open.size(), &plan, &name, plan.values.deep_count(), nullptr, nullptr, nullptr});
}

axsIdentityTable& axsIdentityChecks::table_of(Scope& scope)
{
  if (scope.table == nullptr)
    scope.table = std::make_unique<axsIdentityTable>(axsIdentityTable::of_element(scope.level, scope.plan->is_deep()));
  return *scope.table;
}

// What is unique in an element is so in each within it: where an outer element has the same constraint, the inner one needs
// none, unless it is referred to.
bool axsIdentityChecks::is_covered(Plan const& plan) noexcept
{
  return !plan.is_reference() && plan.selector.is_deep_only() && plan.is_open() && plan.key->references == 0;
}

// By ".//", an element is selected once, in the innermost scope that has it; only what other alternatives of the selector
// select in scopes within that is their own.
void axsIdentityChecks::select(axsKnownName const& name, std::function<axsPlace()> const& place)
{
  for (Plan* const plan : deep_plans)
  {
    plan->origin = plan->selector.innermost_origin(open);
    auto const is_within = [&](std::size_t number) { return scopes[number].level <= plan->origin; };
    auto const found = std::find_if(plan->scopes.rbegin(), plan->scopes.rend(), is_within);
    if (found != plan->scopes.rend())
      select_in(*found, true, name, place());
  }
  for (std::size_t i = scopes.size(); i-- > 0 && scopes[i].level + depth_of_selectors >= open.size();)
    if (scopes[i].level > scopes[i].plan->origin &&
        scopes[i].plan->selector.leads_near_to_element(open, scopes[i].level - 1))
      select_in(i, false, name, place());
}

void axsIdentityChecks::select_in(std::size_t scope, bool is_deep, axsKnownName const& name, axsPlace place)
{
  Plan& plan = *scopes[scope].plan;
  if (plan.has_deep_fields)
  {
    if (plan.selections.empty())
      plans_with_deep_fields.push_back(&plan);
    plan.selections.push_back(selections.size());
  }
  selections.push_back({open.size(), scope, is_deep, &name, place, {}, {}});
  selections.back().fields.resize(plan.fields.size());
}

// The last one.
void axsIdentityChecks::deselect()
{
  Plan& plan = *scopes[selections.back().scope].plan;
  selections.pop_back();
  if (!plan.has_deep_fields)
    return;
  plan.selections.pop_back();
  if (plan.selections.empty())
    plans_with_deep_fields.pop_back();
}

// Visits the selections of which a field may lead to the innermost element: those of the last levels, and of those further
// out the ones whose fields lead there to any depth. As a field has one value, these are not visited often.
template <class Visit, class Leads>
void axsIdentityChecks::for_each_led_here(Visit visit, Leads leads_deep)
{
  std::size_t near = selections.size();
  for (; near > 0 && selections[near - 1].level + depth_of_fields >= open.size(); --near)
    visit(near - 1);
  for (Plan const* const plan : plans_with_deep_fields)
    if (plan->selections.front() < near && std::any_of(plan->fields.begin(), plan->fields.end(), leads_deep))
      for (std::size_t i = 0; i < plan->selections.size() && plan->selections[i] < near; ++i)
        visit(plan->selections[i]);
}

void axsIdentityChecks::await_fields()
{
  auto const has_attributes = [](axsIdentityMatcher const& field) { return field.has_attributes(); };
  attributes_wanted = std::any_of(plans_with_deep_fields.begin(), plans_with_deep_fields.end(),
    [&](Plan const* plan) { return std::any_of(plan->fields.begin(), plan->fields.end(), has_attributes); });
  for_each_led_here(
    [&](std::size_t number)
    {
      Selection& selection = selections[number];
      std::vector<axsIdentityMatcher> const& fields = scopes[selection.scope].plan->fields;
      for (std::size_t i = 0; i < fields.size(); ++i)
      {
        attributes_wanted = attributes_wanted || fields[i].has_attributes();
        if (fields[i].leads_to_element(open, selection.level - 1) && found_field(selection, i) != nullptr)
          awaited.push_back({open.size(), number, i});
      }
    },
    [this](axsIdentityMatcher const& field) { return field.innermost_origin(open) != 0; });
}

void axsIdentityChecks::attribute(std::string_view name_space, std::string_view local, Value const& value)
{
  for_each_led_here(
    [&](std::size_t number)
    {
      Selection& selection = selections[number];
      std::vector<axsIdentityMatcher> const& fields = scopes[selection.scope].plan->fields;
      for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].leads_to_attribute(open, selection.level - 1, name_space, local))
          if (Field* const field = found_field(selection, i))
            set(selection, *field, value);
    },
    [&](axsIdentityMatcher const& field) { return field.leads_deep_to_attribute(open, name_space, local); });
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
    deselect();
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
  if (scope.plan->is_reference())
  {
    std::unique_ptr<axsIdentityReferences>& references = selection.is_deep ? scope.deep_references : scope.references;
    if (references == nullptr)
      references = std::make_unique<axsIdentityReferences>();
    references->add(key, std::move(selection.text), selection.place);
  }
  else if (axsPlace const* const first = add_key(selection, key))
    report_duplicate(selection, *first);
}

// Where the key stands already, null if it is new.
axsPlace const* axsIdentityChecks::add_key(Selection const& selection, std::string const& key)
{
  Scope& scope = scopes[selection.scope];
  Plan& plan = *scope.plan;
  if (!plan.is_deep())
    return table_of(scope).add(key, selection.place, false);
  if (plan.key->references != 0)
    table_of(scope).add(key, selection.place, selection.is_deep);
  return selection.is_deep ? plan.values.add_deep(key, selection.place, scope.level)
                           : plan.values.add_near(key, selection.place, scope.level, scope.first_deep);
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
  report("element " + quoted(*selection.name) + ": " + (is_whole ? "the key '" : "a part of the key '") +
           scope.plan->constraint->name.local + "' of the element " + quoted(*scope.name) + " has no value",
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
void axsIdentityChecks::check_references(Scope& scope)
{
  if (scope.plan->key == nullptr)
    return;
  if (scope.references != nullptr)
    check_references(scope, *scope.references);
  if (scope.deep_references != nullptr)
    check_references(scope, *scope.deep_references);
}

void axsIdentityChecks::check_references(Scope const& scope, axsIdentityReferences& references)
{
  axsIdentityTable const* const table = table_at(*scope.plan->key, scope.level);
  references.visit_open(
    [&](std::string_view value, std::string const& text, axsPlace place)
    {
      if (table == nullptr || !table->has(value))
        report("the key reference " + text + " in the element " + quoted(*scope.name) + " has no key that it refers to",
          place);
    });
}

// The keys that an element and those within it have.
axsIdentityTable const* axsIdentityChecks::table_at(Key const& key, std::size_t level)
{
  Plan const* const plan = key.plan;
  if (plan != nullptr && plan->is_open() && scopes[plan->scopes.back()].level == level)
  {
    Scope& scope = scopes[plan->scopes.back()];
    gather(scope);
    return scope.table.get();
  }
  auto const found = inherited.find({level, key.number});
  return found == inherited.end() ? nullptr : found->second.get();
}

// The table of a key takes over what the elements within have.
void axsIdentityChecks::gather(Scope& scope)
{
  Key const& key = *scope.plan->key;
  auto const found = inherited.find({scope.level, key.number});
  if (found == inherited.end())
    return;
  table_of(scope).inherit(std::move(*found->second), [&](std::string_view value) { look_again(key, value); });
  inherited.erase(found);
}

void axsIdentityChecks::close_scopes()
{
  std::size_t const level = open.size();
  std::size_t first = scopes.size();
  while (first > 0 && scopes[first - 1].level == level)
    --first;
  for (std::size_t i = first; i < scopes.size(); ++i)
    check_references(scopes[i]);
  std::vector<std::pair<Key const*, std::unique_ptr<axsIdentityTable>>> closed;
  for (; scopes.size() > first; close_scope())
    if (Scope& scope = scopes.back(); !scope.plan->is_reference())
    {
      gather(scope);
      if (scope.table != nullptr)
        closed.emplace_back(scope.plan->key, std::move(scope.table));
    }
  // Only elements around are to be told of the keys now.
  for (auto const& [key, table] : closed)
    hand_up(*key, std::move(*table));
  while (!inherited.empty() && inherited.rbegin()->first.first == level)
  {
    auto const last = std::prev(inherited.end());
    Key const& key = *keys[last->first.second];
    std::unique_ptr<axsIdentityTable> const table = std::move(last->second);
    inherited.erase(last);
    hand_up(key, std::move(*table));
  }
}

// The last one.
void axsIdentityChecks::close_scope()
{
  Scope& scope = scopes.back();
  Plan& plan = *scope.plan;
  plan.values.end(scope.level);
  plan.scopes.pop_back();
  if (plan.is_deep() && !plan.is_open())
  {
    deep_plans.pop_back();
    plan.values = {};
    plan.origin = 0;
  }
  if (scope.deep_references != nullptr && plan.is_open())
    hand_out(std::move(scope.deep_references), scopes[plan.scopes.back()]);
  if (plan.is_reference() && plan.key != nullptr)
    --plan.key->references;
  scopes.pop_back();
}

// To the next scope around.
void axsIdentityChecks::hand_out(std::unique_ptr<axsIdentityReferences> references, Scope& around)
{
  if (around.deep_references == nullptr)
    around.deep_references = std::move(references);
  else
    around.deep_references->take(std::move(*references));
}

// Keys are known in the elements around, up to one that refers to them. Each of those on the way has them too: equal values
// of two of its children are in conflict there, and not further out (Part 1, 3.11.5).
void axsIdentityChecks::hand_up(Key const& key, axsIdentityTable&& table)
{
  if (table.size() == 0 || key.references == 0)
    return;
  std::size_t const level = open.size() - 1;
  std::unique_ptr<axsIdentityTable>& known = inherited[{level, key.number}];
  if (known == nullptr)
    known = std::make_unique<axsIdentityTable>(axsIdentityTable::of_children(level));
  known->inherit(std::move(table), [&](std::string_view value) { look_again(key, value); });
}

// References of elements that have ended have found a key that is in conflict now.
void axsIdentityChecks::look_again(Key const& key, std::string_view value)
{
  for (Plan const* const plan : key.referring)
    if (plan->is_open() && scopes[plan->scopes.back()].deep_references != nullptr)
      scopes[plan->scopes.back()].deep_references->look_again(value);
}
