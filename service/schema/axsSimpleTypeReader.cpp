#include "axsSimpleTypeReader.h"

#include "axsBuiltInTypes.h"
#include "axsSchemaFlags.h"
#include "axsSchemaText.h"
#include "axsSchemaValueContext.h"
#include "axsSimpleType.h"
#include "axsTypeDiagnostics.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <utility>

namespace
{
using Field = axsSchemaField;
using Tag = axsSchemaTag;
using State = axsSchemaSymbol::State;
using axsSchemaText::quoted;

std::uint64_t mark(axsSchemaElement const* element)
{
  return reinterpret_cast<std::uintptr_t>(element);
}

// Takes what types find wrong, at the elements that they got it from.
class Diagnostics final : public axsTypeDiagnostics
{
public:
  explicit Diagnostics(axsSchemaErrors& told) : errors(told) {}

  void report(std::uint64_t place, char const* rule, std::string text) override
  {
    auto const* const element = reinterpret_cast<axsSchemaElement const*>(static_cast<std::uintptr_t>(place));
    errors.add(element->place, text + " (" + rule + ")");
  }

private:
  axsSchemaErrors& errors;
};

std::optional<axsFacetKind> facet_kind(axsSchemaElement const& element)
{
  axsFacetKind kind{};
  bool const is_facet = element.role == axsSchemaRole::facet || element.role == axsSchemaRole::value_facet;
  return is_facet && axsFacets::find(element.name(), kind) ? std::optional(kind) : std::nullopt;
}

std::size_t count_of_facets(axsSchemaElement const& element)
{
  std::size_t count = 0;
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    ++count;
  return count;
}

axsSchemaElement const* derivation_of(axsSchemaElement const& type)
{
  for (axsSchemaElement const* child = type.first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::restriction || child->tag == Tag::list || child->tag == Tag::union_)
      return child;
  return nullptr;
}
}

// What a type is made of: a type that is there, one with a name or one that stands in it. None of them where what is named
// is not there, which is told of.
struct axsSimpleTypeReader::Part
{
  axsSimpleType const* made = nullptr;
  axsSchemaSymbol* symbol = nullptr;
  axsSchemaElement const* element = nullptr;
  axsSchemaPlace place;
};

// A type that is being made.
struct axsSimpleTypeReader::Frame
{
  axsSchemaUnit const* unit;
  axsSchemaElement const* element;
  axsSchemaElement const* derivation;
  axsSchemaSymbol* symbol;
  std::vector<Part> parts;
  std::vector<axsSimpleType const*> types;

  // What could not be made stands for any type, which nothing can be derived from; that says nothing new.
  bool has_unknown() const
  {
    for (std::size_t i = 0; i < types.size(); ++i)
      if (parts[i].made == nullptr && types[i] == &axsBuiltInTypes::any_simple_type())
        return true;
    return false;
  }
};

axsSimpleType const& axsSimpleTypeReader::named(axsSchemaSymbol& symbol)
{
  if (symbol.simple_type != nullptr)
    return *symbol.simple_type;
  // The schema of schemas defines the built-in types, as far as a schema can; they are what they are (Part 2, appendix A).
  bool const is_of_language = symbol.name().name_space == axsSchemaVocabulary::schema_namespace;
  if (axsSimpleType const* const type = is_of_language ? axsBuiltInTypes::find(symbol.name().local) : nullptr)
  {
    symbol.simple_type = type;
    return *type;
  }
  return run(*symbol.unit, *symbol.element, &symbol);
}

axsSimpleType const& axsSimpleTypeReader::anonymous(axsSchemaUnit const& unit, axsSchemaElement const& element)
{
  return run(unit, element, nullptr);
}

axsSimpleType const& axsSimpleTypeReader::referred(
  axsSchemaUnit const& unit, axsSchemaElement const& element, Field field)
{
  axsSchemaNameView name;
  axsSchemaPlace const place = element.place_of(field);
  if (!context.symbols.expand(unit, element, element.value(field), place, name))
    return axsBuiltInTypes::any_simple_type();
  Part const found = part(unit, element, name, place);
  if (found.symbol != nullptr)
    return named(*found.symbol);
  return found.made == nullptr ? axsBuiltInTypes::any_simple_type() : *found.made;
}

axsSimpleType const& axsSimpleTypeReader::restricted(
  axsSchemaUnit const& unit, axsSchemaElement const& element, axsSimpleType const& base)
{
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
    if (facet_kind(*child).has_value())
      return with_facets(unit, element, base, nullptr);
  return base;
}

axsSimpleType const& axsSimpleTypeReader::run(
  axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaSymbol* symbol)
{
  std::vector<Frame> frames;
  frames.push_back(frame(unit, element, symbol));
  while (true)
  {
    if (enter(frames))
      continue;
    Frame const done = std::move(frames.back());
    frames.pop_back();
    axsSimpleType const& type = made(done);
    if (done.symbol != nullptr)
    {
      done.symbol->simple_type = &type;
      done.symbol->state = State::done;
    }
    if (frames.empty())
      return type;
    frames.back().types.push_back(&type);
  }
}

// Goes on to the next part of the innermost type; false when it has them all.
bool axsSimpleTypeReader::enter(std::vector<Frame>& frames)
{
  Frame& frame_now = frames.back();
  if (frame_now.types.size() == frame_now.parts.size())
    return false;
  Part const next = frame_now.parts[frame_now.types.size()];
  if (next.element != nullptr)
    frames.push_back(frame(*frame_now.unit, *next.element, nullptr));
  else if (next.symbol == nullptr)
    frame_now.types.push_back(next.made == nullptr ? &axsBuiltInTypes::any_simple_type() : next.made);
  else if (next.symbol->simple_type != nullptr)
    frame_now.types.push_back(next.symbol->simple_type);
  else if (next.symbol->state == State::active) // st-props-correct.2, src-simple-type.4
  {
    context.errors.add(next.place, quoted(next.symbol->name().local) + " is defined by itself");
    frame_now.types.push_back(&axsBuiltInTypes::any_simple_type());
  }
  else
    frames.push_back(frame(*next.symbol->unit, *next.symbol->element, next.symbol));
  return true;
}

axsSimpleTypeReader::Frame axsSimpleTypeReader::frame(
  axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaSymbol* symbol)
{
  if (symbol != nullptr)
    symbol->state = State::active;
  axsSchemaElement const* const derivation = derivation_of(element);
  Frame made{&unit, &element, derivation, symbol, {}, {}};
  if (derivation == nullptr)
    return made;

  Field const field = derivation->tag == Tag::restriction ? Field::base
                      : derivation->tag == Tag::list      ? Field::item_type
                                                          : Field::member_types;
  axsSchemaPlace const place = derivation->place_of(field);
  std::string_view names = derivation->value(field);
  for (std::string_view item = axsSchemaText::next_item(names); !item.empty(); item = axsSchemaText::next_item(names))
  {
    axsSchemaNameView name;
    if (context.symbols.expand(unit, *derivation, item, place, name))
      made.parts.push_back(part(unit, *derivation, name, place));
  }
  for (axsSchemaElement const* child = derivation->first_child; child != nullptr; child = child->next)
    if (child->tag == Tag::simple_type)
    {
      Part inner;
      inner.element = child;
      made.parts.push_back(inner);
    }
  return made;
}

axsSimpleTypeReader::Part axsSimpleTypeReader::part(
  axsSchemaUnit const& unit, axsSchemaElement const& element, axsSchemaNameView const& name, axsSchemaPlace place)
{
  Part found;
  found.place = place;
  bool const is_of_language = name.name_space == axsSchemaVocabulary::schema_namespace;
  found.made = is_of_language ? axsBuiltInTypes::find(name.local) : nullptr;
  if (found.made != nullptr)
    return found;
  bool const is_any_type = is_of_language && name.local == "anyType";
  if (!is_any_type)
    found.symbol = context.symbols.resolve(axsSchemaSymbol::Space::type, unit, element, name, place);
  bool const is_complex = is_any_type || (found.symbol != nullptr && found.symbol->is_complex_type());
  if (is_complex)
  {
    context.errors.add(place, axsSchemaSymbols::words(name) + " is not a simple type");
    found.symbol = nullptr;
  }
  return found;
}

axsSimpleType const& axsSimpleTypeReader::made(Frame const& frame)
{
  if (frame.derivation == nullptr || frame.types.empty() || frame.has_unknown())
    return axsBuiltInTypes::any_simple_type();
  Diagnostics diagnostics(context.errors);
  axsTypeHead head;
  head.place = mark(frame.element);
  head.final_set = axsSchemaFlags::final_of_simple_type(*frame.element, frame.unit->document->root());
  if (frame.symbol != nullptr)
  {
    head.name_space = frame.symbol->name().name_space;
    head.name = frame.symbol->name().local;
  }
  switch (frame.derivation->tag)
  {
  case Tag::list:
    return context.store.simple_types.list(head, *frame.types.front(), diagnostics);
  case Tag::union_:
    return context.store.simple_types.union_of(head, frame.types, diagnostics);
  default:
    return with_facets(*frame.unit, *frame.derivation, *frame.types.front(), frame.element);
  }
}

// `type` is the element xs:simpleType; null where simple content is restricted.
axsSimpleType const& axsSimpleTypeReader::with_facets(
  axsSchemaUnit const& unit, axsSchemaElement const& element, axsSimpleType const& base, axsSchemaElement const* type)
{
  std::vector<axsFacet> facets;
  facets.reserve(count_of_facets(element));
  std::deque<axsSchemaValueContext> contexts;
  axsSchemaScope const* last_scope = nullptr;
  for (axsSchemaElement const* child = element.first_child; child != nullptr; child = child->next)
  {
    std::optional<axsFacetKind> const kind = facet_kind(*child);
    if (!kind.has_value())
      continue;
    if (child->scope != last_scope)
    {
      contexts.emplace_back(context.symbols, child->scope);
      last_scope = child->scope;
    }
    axsFacet facet;
    facet.kind = *kind;
    facet.fixed = *kind != axsFacetKind::pattern && *kind != axsFacetKind::enumeration &&
                  axsSchemaFlags::is_true(axsSchemaText::trimmed(child->value(Field::fixed)));
    facet.value = child->value(Field::value);
    facet.context = &contexts.back();
    facet.place = mark(child);
    facets.push_back(facet);
  }

  Diagnostics diagnostics(context.errors);
  axsTypeHead head;
  head.place = mark(type == nullptr ? &element : type);
  bool const is_global = type != nullptr && type->role == axsSchemaRole::global_simple_type;
  if (type != nullptr)
    head.final_set = axsSchemaFlags::final_of_simple_type(*type, unit.document->root());
  if (is_global)
  {
    head.name_space = unit.target;
    head.name = type->value(Field::name);
  }
  return context.store.simple_types.restrict(head, base, facets, diagnostics);
}
