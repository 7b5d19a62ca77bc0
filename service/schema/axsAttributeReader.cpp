#include "axsAttributeReader.h"

#include "axsBuiltInTypes.h"
#include "axsNamespaceConstraint.h"
#include "axsSchemaConstraint.h"
#include "axsSchemaText.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace
{
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using Space = axsSchemaSymbol::Space;
using State = axsSchemaSymbol::State;
using axsSchemaText::quoted;

axsSchemaNameView view(axsSchemaName const& name)
{
  return {name.name_space, name.local};
}

bool is_same_place(axsSchemaPlace left, axsSchemaPlace right)
{
  return left.file == right.file && left.line == right.line && left.column == right.column;
}
}

axsAttributeReader::axsAttributeReader(axsSchemaContext& shared, axsSimpleTypeReader& types)
  : context(shared),
    simple_types(types)
{
}

void axsAttributeReader::fill(axsSchemaSymbol& symbol)
{
  axsAttributeDecl& decl = *symbol.attribute_decl;
  decl.name = {std::string(symbol.name().name_space), std::string(symbol.name().local)};
  decl.is_global = true;
  decl.type = type_of(*symbol.unit, *symbol.element);
  decl.constraint = axsSchemaConstraint::read(context, *symbol.element, *decl.type);
  decl.place = symbol.element->place;
  if (decl.place.file != 0) // those of the instance namespace are built in
    check(decl);
}

// no-xmlns, no-xsi and enumeration-required-notation.
void axsAttributeReader::check(axsAttributeDecl const& decl)
{
  if (decl.name.local == "xmlns")
    context.errors.add(decl.place, "no attribute can be named 'xmlns'");
  if (decl.name.name_space == axsSchemaVocabulary::instance_namespace)
    context.errors.add(decl.place, "no attribute can be declared in the namespace " + quoted(decl.name.name_space));
  if (decl.type->lacks_notations())
    context.errors.add(decl.place, axsSchemaText::lacks_notations("attribute", decl.name.local));
}

axsSimpleType const* axsAttributeReader::type_of(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  if (axsSchemaElement const* const inner = element.child(Tag::simple_type))
    return &simple_types.anonymous(unit, *inner);
  if (element.has(Field::type))
    return &simple_types.referred(unit, element, Field::type);
  return &axsBuiltInTypes::any_simple_type();
}

void axsAttributeReader::make_group(axsSchemaSymbol& symbol)
{
  struct Open
  {
    axsSchemaSymbol* symbol;
    Groups groups;
    std::size_t next;
  };
  std::vector<Open> open;
  auto const enter = [&](axsSchemaSymbol& entered)
  {
    entered.state = State::active;
    open.push_back({&entered, groups_of(*entered.unit, *entered.element), 0});
  };

  if (symbol.state == State::untouched)
    enter(symbol);
  while (!open.empty())
  {
    Open& innermost = open.back();
    axsSchemaSymbol& made = *innermost.symbol;
    if (innermost.next == innermost.groups.size())
    {
      made.attributes = collect_direct(*made.unit, *made.element, innermost.groups);
      check_ids(made, innermost.groups);
      made.state = State::done;
      open.pop_back();
      continue;
    }
    axsSchemaSymbol* const other = innermost.groups[innermost.next++];
    if (other != nullptr && other->state == State::active) // src-attribute_group.3
      context.errors.add(made.element->place, quoted(other->name().local) + " is defined by itself");
    else if (other != nullptr && other->state == State::untouched)
      enter(*other);
  }
}

axsAttributeSet axsAttributeReader::collect(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  Groups const groups = groups_of(unit, element);
  for (axsSchemaSymbol* const group : groups)
    if (group != nullptr)
      make_group(*group);
  return collect_direct(unit, element, groups);
}

// The groups that it refers to, in their order; null for one that is not there.
axsAttributeReader::Groups axsAttributeReader::groups_of(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  Groups found;
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::attribute_group)
      found.push_back(context.symbols.resolve(Space::attribute_group, unit, *child, Field::ref));
  return found;
}

// All groups that it refers to are made.
axsAttributeSet axsAttributeReader::collect_direct(
  axsSchemaUnit const& unit, axsSchemaElement const& element, Groups const& groups)
{
  axsAttributeSet set;
  Uses direct;
  std::vector<axsAttributeUses const*> of_groups;
  auto next_group = groups.begin();
  if (axsSchemaElement const* const any = element.child(Tag::any_attribute))
    set.wildcard = wildcard(unit, *any);
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::attribute)
      add_use(set, direct, unit, *child);
    else if (child->tag == Tag::attribute_group)
    {
      axsSchemaSymbol const* const group = *next_group++;
      if (group == nullptr || group->state != State::done)
        continue;
      of_groups.push_back(&group->attributes.uses);
      for (axsAttributeDecl const* const id : group->attributes.ids)
        add_id(set, *id);
      if (group->attributes.wildcard.has_value())
        intersect(set, *group->attributes.wildcard, *child);
    }
  for (axsAttributeUse const& use : direct)
    if (use.decl->type->role() == axsSimpleType::Role::id)
      add_id(set, *use.decl);
  set.uses = unite(direct, of_groups);
  return set;
}

void axsAttributeReader::add_use(
  axsAttributeSet& set, Uses& direct, axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsAttributeDecl* decl = nullptr;
  if (element.has(Field::ref))
  {
    axsSchemaSymbol const* const symbol = context.symbols.resolve(Space::attribute, unit, element, Field::ref);
    decl = symbol == nullptr ? nullptr : symbol->attribute_decl;
  }
  else
    decl = local(unit, element);
  if (decl == nullptr)
    return;
  std::string_view const use = element.value(Field::use);
  if (use == "prohibited")
  {
    set.prohibited.push_back({decl->name, element.place});
    return;
  }
  axsAttributeUse& made = direct.emplace_back();
  made.decl = decl;
  made.is_required = use == "required";
  made.constraint = axsSchemaConstraint::read(context, element, *decl->type);
  made.place = element.place;
  if (decl->constraint.kind != axsValueConstraint::Kind::none)
    add_constraint_of(made, *decl, element);
}

// The effective value constraint (3.5.2), and au-props-correct.2.
void axsAttributeReader::add_constraint_of(
  axsAttributeUse& use, axsAttributeDecl const& decl, axsSchemaElement const& element)
{
  using Kind = axsValueConstraint::Kind;
  bool const is_changed = use.constraint.kind != Kind::none && decl.constraint.kind == Kind::fixed &&
                          (use.constraint.kind != Kind::fixed || use.constraint.bytes != decl.constraint.bytes);
  if (is_changed)
    context.errors.add(element.place, "attribute " + quoted(decl.name.local) + " has the fixed value " +
                                        quoted(decl.constraint.value) + ", which a reference cannot change");
  if (use.constraint.kind == Kind::none)
    use.constraint = decl.constraint;
}

axsAttributeDecl* axsAttributeReader::local(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsAttributeDecl& made = context.store.attributes.emplace_back();
  axsSchemaElement const& schema = unit.document->root();
  std::string_view const form =
    element.has(Field::form) ? element.value(Field::form) : schema.value(Field::attribute_form_default);
  made.name.local = element.value(Field::name);
  if (form == "qualified")
    made.name.name_space = unit.target;
  made.type = type_of(unit, element);
  made.place = element.place;
  check(made);
  return &made;
}

void axsAttributeReader::add_id(axsAttributeSet& set, axsAttributeDecl const& decl)
{
  if (set.ids.size() < 2 && std::find(set.ids.begin(), set.ids.end(), &decl) == set.ids.end())
    set.ids.push_back(&decl);
}

// ag-props-correct.3, of a group that has not got two from another one.
void axsAttributeReader::check_ids(axsSchemaSymbol const& group, Groups const& groups)
{
  std::vector<axsAttributeDecl const*> const& ids = group.attributes.ids;
  bool const is_told = std::any_of(groups.begin(), groups.end(),
    [](axsSchemaSymbol const* inner) { return inner != nullptr && inner->attributes.ids.size() > 1; });
  if (ids.size() > 1 && !is_told)
    context.errors.add(group.element->place, "the attributes " + quoted(ids[0]->name.local) + " and " +
                                               quoted(ids[1]->name.local) +
                                               " are both of the type xs:ID; a group may have one such attribute");
}

// The complete wildcard (3.4.2).
void axsAttributeReader::intersect(axsAttributeSet& set, axsWildcard const& other, axsSchemaElement const& reference)
{
  if (!set.wildcard.has_value())
  {
    set.wildcard = other;
    return;
  }
  std::optional<axsWildcard> both = common(*set.wildcard, other);
  if (both.has_value())
    set.wildcard = std::move(both);
  else
    context.errors.add(reference.place, "what two attribute wildcards both allow cannot be expressed"
                                        " (intensional intersection)");
}

// Many types may refer to the same two groups: they share one list, made once.
std::optional<axsWildcard> axsAttributeReader::common(axsWildcard const& left, axsWildcard const& right)
{
  using Namespaces = axsWildcard::Namespaces;
  void const* const first = left.spaces.identity();
  void const* const second = right.spaces.identity();
  if (left.kind != Namespaces::one_of || right.kind != Namespaces::one_of || first == nullptr || second == nullptr)
    return axsNamespaceConstraint::intersected(left, right);
  auto const [at, is_new] = known_common.try_emplace({first, second});
  if (is_new)
    at->second = {left.spaces, right.spaces, left.spaces.common_with(right.spaces)};
  axsWildcard made = left;
  made.spaces = at->second.both;
  return made;
}

// ct-props-correct.4 and ag-props-correct.2. One use that comes in by several groups is one use. Those of the largest group
// are shared with it: groups that refer to each other in a chain would hold the more of them, the longer it is.
axsAttributeUses axsAttributeReader::unite(Uses const& direct, std::vector<axsAttributeUses const*> const& groups)
{
  auto const largest = std::max_element(groups.begin(), groups.end(),
    [](axsAttributeUses const* left, axsAttributeUses const* right) { return left->size() < right->size(); });
  axsAttributeUses const shared = largest == groups.end() ? axsAttributeUses() : **largest;
  axsSchemaNameTable<axsSchemaPlace> seen;
  Uses own;
  auto const add = [&](axsAttributeUse const& use)
  {
    axsSchemaName const& name = use.decl->name;
    std::size_t const number = shared.find(name.name_space, name.local);
    bool const is_shared = number != axsAttributeUses::none;
    auto const [known, is_new] = seen.emplace(view(name), is_shared ? shared[number].place : use.place);
    if (is_new && !is_shared)
      own.push_back(use);
    else if (!is_same_place(known->second, use.place))
      context.errors.add(use.place,
        "attribute " + quoted(name.local) + " is declared twice; first at line " + std::to_string(known->second.line));
  };
  for (axsAttributeUse const& use : direct)
    add(use);
  for (axsAttributeUses const* const group : groups)
    for (axsAttributeUse const& use : group->not_shared_with(shared))
      add(use);
  return {shared, std::move(own)};
}

axsWildcard axsAttributeReader::wildcard(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  axsWildcard made;
  made.place = element.place;
  std::string_view const process = element.value(Field::process_contents);
  made.process = process == "lax"    ? axsWildcard::Process::lax
                 : process == "skip" ? axsWildcard::Process::skip
                                     : axsWildcard::Process::strict;
  std::string_view names = element.has(Field::name_space) ? element.value(Field::name_space) : "##any";
  if (names == "##any")
    return made;
  if (names == "##other")
  {
    made.kind = axsWildcard::Namespaces::not_one;
    made.spaces = axsNamespaceList({unit.target});
    return made;
  }
  made.kind = axsWildcard::Namespaces::one_of;
  std::vector<std::string> spaces;
  for (std::string_view item = axsSchemaText::next_item(names); !item.empty(); item = axsSchemaText::next_item(names))
    if (item == "##targetNamespace")
      spaces.push_back(unit.target);
    else
      spaces.emplace_back(item == "##local" ? std::string_view() : item);
  made.spaces = axsNamespaceList(std::move(spaces));
  return made;
}
