#include "axsAssessment.h"

#include "axsAttributeDecl.h"
#include "axsBuiltInTypes.h"
#include "axsComplexType.h"
#include "axsContentAutomaton.h"
#include "axsContentWords.h"
#include "axsElementDecl.h"
#include "axsName.h"
#include "axsShownText.h"
#include "axsSimpleType.h"
#include "axsTypeDerivation.h"
#include "axsWildcard.h"

#include <utXmlCharacter.h>

#include <algorithm>

namespace
{
using Kind = axsValueConstraint::Kind;

std::string_view const white = " \t\r\n";

std::string shown(axsKnownName const& name)
{
  return "element '" + std::string(name.name->local()) + "'";
}

bool is_white(std::string_view text) noexcept
{
  return std::all_of(text.begin(), text.end(), [](char c) { return utXmlCharacter::is_space(c); });
}

std::string_view without_white(std::string_view text)
{
  std::size_t const begin = text.find_first_not_of(white);
  return begin == std::string_view::npos ? std::string_view()
                                         : text.substr(begin, text.find_last_not_of(white) + 1 - begin);
}
}

axsAssessment::axsAssessment(
  axsSchemaComponents const& schema, axsParseHandler* taker, axsValidityErrors& errors, bool& has_assessed)
  : findings(schema, errors, has_assessed),
    attributes(findings),
    names(schema),
    next(taker)
{
}

axsAssessment::~axsAssessment() = default;

axsName const& axsAssessment::name(std::string_view text)
{
  return next != nullptr ? next->name(text) : own_names.intern(text);
}

void axsAssessment::start_document(axsLocator const& locator)
{
  findings.locator = &locator;
  if (next != nullptr)
    next->start_document(locator);
}

void axsAssessment::declaration(std::string_view version, std::string_view encoding, std::string_view standalone)
{
  if (next != nullptr)
    next->declaration(version, encoding, standalone);
}

void axsAssessment::doctype(std::shared_ptr<axsDtd const> const& type)
{
  findings.context.set_doctype(type);
  if (next != nullptr)
    next->doctype(type);
}

void axsAssessment::comment(std::string_view data)
{
  if (next != nullptr)
    next->comment(data);
}

void axsAssessment::processing_instruction(std::string_view target, std::string_view data)
{
  if (next != nullptr)
    next->processing_instruction(target, data);
}

axsAssessment::Instance axsAssessment::instance_of(axsStartTag const& tag)
{
  Instance instance;
  for (axsTagAttribute const& attribute : *tag.attributes)
  {
    if (attribute.name_space != axsAttributeAssessment::xsi)
      continue;
    std::string_view const local = attribute.name->local();
    if (local == "type")
    {
      instance.type = attribute.value;
      instance.has_type = true;
    }
    if (local == "nil")
    {
      instance.nil = attribute.value;
      instance.has_nil = true;
    }
  }
  return instance;
}

void axsAssessment::start_element(axsStartTag const& tag)
{
  findings.context.look_up_in(*tag.prefixes);
  Instance const instance = instance_of(tag);
  Element element;
  element.name = &names.find(*tag.name, tag.name_space);
  if (elements.empty())
    find_root(element, instance);
  else
    find_child(element, instance);
  if (element.content != Content::skipped)
    find_type(element, instance);
  bool const has_keys = element.decl != nullptr && !element.decl->identity_constraints.empty();
  if (has_keys || findings.identity.is_active())
    findings.identity.begin(*element.name, element.decl, [this] { return findings.locator->end(); });
  assess_attributes(tag, element);
  open(element);
  if (next != nullptr)
    next->start_element(tag);
}

// A root element that is not declared is not assessed if nothing of its namespace is known.
void axsAssessment::find_root(Element& element, Instance const& instance)
{
  element.decl = element.name->global;
  if (element.decl == nullptr && !instance.has_type && findings.schema.knows(element.name->name_space))
    findings.report("no declaration found for " + shown(*element.name));
}

void axsAssessment::find_child(Element& element, Instance const& instance)
{
  Element& parent = elements.back();
  parent.has_children = true;
  element.decl = element.name->global;
  switch (parent.content)
  {
  case Content::skipped:
    element.decl = nullptr;
    element.content = Content::skipped;
    return;
  case Content::unknown:
    return;
  case Content::empty:
    return refuse_child(element, parent, ", which must be empty");
  case Content::simple:
    return refuse_child(element, parent, ", which has a text only");
  case Content::elements:
  case Content::mixed:
    return find_in_content(element, parent, instance);
  }
}

void axsAssessment::refuse_child(Element const& element, Element& parent, std::string const& message)
{
  if (!parent.is_wrong)
    findings.report(
      shown(*element.name) + " may not stand here in '" + std::string(parent.name->name->local()) + "'" + message);
  parent.is_wrong = true;
}

// cvc-complex-type.2.4
void axsAssessment::find_in_content(Element& element, Element& parent, Instance const& instance)
{
  if (parent.is_nil)
    return refuse_child(element, parent, ", which is nil and must be empty");
  if (!parent.has_run)
    return refuse_child(element, parent, ", which has no elements");
  if (parent.is_wrong)
    return;
  axsContentItem const* const item = contents.step(element.name->symbol, element.name->space);
  if (item != nullptr)
    return take(element, *item, instance);
  parent.is_wrong = true;
  findings.report(
    axsContentWords::wrong_child(*element.name, *parent.name, contents.expected(axsContentWords::max_names + 1)));
}

// What the particle makes of the child: one of its declaration, one that stands in the place of that, or, of a wildcard,
// what cvc-wildcard says.
void axsAssessment::take(Element& element, axsContentItem const& item, Instance const& instance)
{
  if (item.names != nullptr)
  {
    if (element.name->symbol == item.names->symbol)
      element.decl = item.names->decl;
    return;
  }
  axsWildcard::Process const process = item.wildcard->wildcard->process;
  if (process == axsWildcard::Process::skip)
  {
    element.decl = nullptr;
    element.content = Content::skipped;
  }
  else if (process == axsWildcard::Process::strict && element.decl == nullptr && !instance.has_type)
    findings.report("no declaration found for " + shown(*element.name));
}

// cvc-elt.2 to .4, cvc-type.2
void axsAssessment::find_type(Element& element, Instance const& instance)
{
  if (element.decl != nullptr)
  {
    element.type = element.decl->type;
    if (element.decl->is_abstract)
      findings.report(shown(*element.name) + " is abstract: an element that can stand in its place is expected");
  }
  if (instance.has_type)
    read_type(element, without_white(instance.type));
  if (instance.has_nil)
    read_nil(element, instance);
  findings.has_assessed = findings.has_assessed || element.type;
  if (element.type.complex == nullptr || !element.type.complex->is_abstract)
    return;
  findings.report(shown(*element.name) + ": its type '" + element.type.complex->name.local +
                  "' is abstract; xsi:type must name one that is derived from it");
}

// cvc-elt.4
void axsAssessment::read_type(Element& element, std::string_view name)
{
  std::string const subject = "attribute 'xsi:type' of " + shown(*element.name) + ": ";
  std::size_t const colon = name.find(':');
  std::string_view const prefix = colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
  std::string_view uri;
  if (!axsBuiltInTypes::get("QName").check(name, findings.context, nullptr) ||
      !findings.context.find_namespace(prefix, uri))
    return findings.report(subject + axsBuiltInTypes::get("QName").fault(name, findings.context));
  std::string_view const local = name.substr(colon == std::string_view::npos ? 0 : colon + 1);
  axsTypeDefinition const type = findings.schema.type(uri, local);
  if (!type)
    return findings.report(subject + "there is no type '" + axsShownText::shortened(name) + "'");
  if (element.type)
  {
    axsDerivationSet blocked = element.decl->block;
    if (element.type.complex != nullptr)
      blocked = static_cast<axsDerivationSet>(blocked | element.type.complex->block);
    if (!axsTypeDerivation::is_derived(type, element.type, blocked))
      findings.report(subject + "the type '" + axsShownText::shortened(name) +
                      "' may not take the place of the declared one: it is not derived from it, or that is blocked");
  }
  element.type = type;
}

// cvc-elt.3
void axsAssessment::read_nil(Element& element, Instance const& instance)
{
  std::string const subject = "attribute 'xsi:nil' of " + shown(*element.name) + ": ";
  if (!axsBuiltInTypes::get("boolean").check(instance.nil, findings.context, nullptr))
    return findings.report(subject + axsBuiltInTypes::get("boolean").fault(instance.nil, findings.context));
  if (element.decl == nullptr)
    return;
  if (!element.decl->is_nillable)
    return findings.report(subject + "the element is not nillable");
  std::string_view const nil = without_white(instance.nil);
  element.is_nil = nil == "true" || nil == "1";
  if (element.is_nil && element.decl->constraint.kind == Kind::fixed)
    findings.report(subject + "the element has the fixed value \"" +
                    axsShownText::shortened(element.decl->constraint.value) + "\" and may not be nil");
}

void axsAssessment::assess_attributes(axsStartTag const& tag, Element const& element)
{
  if (element.content == Content::skipped)
    attributes.skip(tag);
  else if (element.type.complex != nullptr)
    attributes.assess(tag, *element.type.complex);
  else if (element.type.simple != nullptr)
    attributes.assess_simple(tag);
  else
    attributes.assess_lax(tag);
}

void axsAssessment::open(Element& element)
{
  axsComplexType const* const type = element.type.complex;
  if (element.type.simple != nullptr)
    element.content = Content::simple;
  else if (type != nullptr)
  {
    static constexpr Content contents_of[] = {Content::empty, Content::simple, Content::elements, Content::mixed};
    element.content = contents_of[static_cast<std::size_t>(type->content)];
    element.has_run = type->automaton != nullptr && type->has_element_content() && !element.is_nil;
  }
  if (element.has_run)
    contents.open(*type->automaton);
  element.text = text_of(element);
  value.clear();
  elements.push_back(element);
}

axsAssessment::Text axsAssessment::text_of(Element const& element) const
{
  if (element.is_nil)
    return Text::refused;
  switch (element.content)
  {
  case Content::empty:
    return Text::refused;
  case Content::elements:
    return Text::white;
  case Content::mixed:
    return has_constraint(element) ? Text::collected : Text::ignored;
  case Content::simple:
    return simple_text_of(element);
  default:
    return Text::ignored;
  }
}

// Where any text is right and nobody asks for the value, none of it is looked at.
axsAssessment::Text axsAssessment::simple_text_of(Element const& element) const
{
  axsSimpleType const* const type = simple_type_of(element);
  bool const takes_all = type != nullptr && type->takes_all() && !has_constraint(element) && !is_field();
  return takes_all ? Text::ignored : Text::collected;
}

bool axsAssessment::has_constraint(Element const& element) noexcept
{
  return element.decl != nullptr && element.decl->constraint.kind != Kind::none;
}

bool axsAssessment::is_field() const
{
  return findings.identity.is_active() && findings.identity.wants_value();
}

void axsAssessment::text(std::string_view text, bool is_cdata)
{
  Element& element = elements.back();
  if (element.text == Text::collected)
    value += text;
  else if (element.text == Text::white ? !is_white(text) : element.text == Text::refused && !text.empty())
    refuse_text(element);
  if (next != nullptr)
    next->text(text, is_cdata);
}

void axsAssessment::refuse_text(Element& element)
{
  if (element.is_wrong)
    return;
  element.is_wrong = true;
  bool const is_misplaced = element.content == Content::elements && !element.is_nil;
  findings.report(shown(*element.name) + (is_misplaced ? ": text is not allowed here" : ": it must be empty"));
}

axsSimpleType const* axsAssessment::simple_type_of(Element const& element)
{
  return element.type.simple != nullptr    ? element.type.simple
         : element.type.complex != nullptr ? element.type.complex->simple_content
                                           : nullptr;
}

void axsAssessment::end_element()
{
  Element& element = elements.back();
  end_content(element);
  if (findings.identity.is_active())
    findings.identity.end();
  if (next != nullptr)
    next->end_element();
  if (element.has_run)
    contents.close();
  elements.pop_back();
  value.clear();
  if (elements.empty())
    findings.identifiers.check_references(
      [this](std::string const& message, axsPlace place) { findings.report(message, place); });
}

void axsAssessment::end_content(Element& element)
{
  if (element.content == Content::simple && !element.is_nil)
    return end_simple(element);
  tell_identity(element);
  if (element.has_run && !element.is_wrong && !contents.may_end())
    findings.report(axsContentWords::too_early(*element.name, contents.expected(axsContentWords::max_names + 1)));
  if (element.content == Content::mixed && element.decl != nullptr && !element.is_nil)
    end_mixed(element);
}

void axsAssessment::tell_identity(Element const& element)
{
  using Without = axsIdentityChecks::Without;
  if (!findings.identity.is_active())
    return;
  // What no declaration is found for has no simple type either (cvc-identity-constraint.3).
  findings.identity.no_value(element.content == Content::simple ? Without::is_nil : Without::is_complex);
}

// cvc-elt.5, cvc-type.3.1, cvc-complex-type.2.2
void axsAssessment::end_simple(Element& element)
{
  axsSimpleType const* const type = simple_type_of(element);
  if (type == nullptr || element.is_wrong || element.text != Text::collected)
    return;
  bool const is_constrained = has_constraint(element);
  if (is_constrained && value.empty())
    return end_with_default(element, *type);
  bool const is_fixed = is_constrained && element.decl->constraint.kind == Kind::fixed;
  bool const is_asked_for = is_field();
  bool const wants_value = is_fixed || is_asked_for || type->has_references();
  if (!type->check(value, findings.context, wants_value ? &findings.value : nullptr))
    return findings.report(shown(*element.name) + ": " + type->fault(value, findings.context));
  if (is_fixed && findings.value.bytes() != element.decl->constraint.bytes)
    findings.report(shown(*element.name) + ": \"" + axsShownText::shortened(value) +
                    "\" is not allowed: it must be \"" + axsShownText::shortened(element.decl->constraint.value) +
                    "\"");
  if (wants_value)
    add_identifiers(element);
  if (is_asked_for)
    findings.identity.value({value, findings.value.bytes()}, element.decl != nullptr && element.decl->is_nillable);
}

// Those of the value that has just been checked.
void axsAssessment::add_identifiers(Element const& element)
{
  if (findings.value.identifiers().empty())
    return;
  if (std::string const wrong = findings.identifiers.add(findings.value, findings.locator->end()); !wrong.empty())
    findings.report(shown(*element.name) + ": " + wrong);
}

// cvc-elt.5.1; the value is one of the declared type, but the document may have named another, and it is the document that
// has what a default refers to. The prefixes of names are those of the schema.
void axsAssessment::end_with_default(Element const& element, axsSimpleType const& type)
{
  axsValueConstraint const& constraint = element.decl->constraint;
  if (!type.needs_namespaces())
  {
    if (!type.check(constraint.value, findings.context, type.has_references() ? &findings.value : nullptr))
      return findings.report(shown(*element.name) + ": " + type.fault(constraint.value, findings.context));
    if (type.has_references())
      add_identifiers(element);
  }
  if (is_field())
    findings.identity.value({constraint.value, constraint.bytes}, element.decl->is_nillable);
}

// cvc-elt.5.2.2
void axsAssessment::end_mixed(Element& element)
{
  axsValueConstraint const& constraint = element.decl->constraint;
  bool const is_empty = value.empty() && !element.has_children;
  if (constraint.kind == Kind::fixed && !is_empty && (element.has_children || value != constraint.value))
    findings.report(shown(*element.name) + ": its content is not allowed: it must be \"" +
                    axsShownText::shortened(constraint.value) + "\"");
}
