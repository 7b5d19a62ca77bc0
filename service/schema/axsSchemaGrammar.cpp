#include "axsSchemaGrammar.h"

#include "axsDecimal.h"
#include "axsSchemaDocument.h"
#include "axsSchemaErrors.h"
#include "axsSchemaText.h"
#include "axsTextForm.h"
#include "axsTextHash.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_set>

namespace
{
using namespace axsSchemaText;
using Tag = axsSchemaTag;
using Field = axsSchemaField;
using Role = axsSchemaRole;

std::uint64_t bit(Tag tag)
{
  return std::uint64_t{1} << static_cast<unsigned>(tag);
}

std::uint64_t bit(Field field)
{
  return std::uint64_t{1} << static_cast<unsigned>(field);
}

bool is_one_of(std::string_view text, std::initializer_list<std::string_view> words)
{
  for (std::string_view const word : words)
    if (text == word)
      return true;
  return false;
}

bool is_list_of(std::string_view text, std::initializer_list<std::string_view> words)
{
  for (std::string_view item = next_item(text); !item.empty(); item = next_item(text))
    if (!is_one_of(item, words))
      return false;
  return true;
}

// "#all" or a list of some of the words.
bool is_set_of(std::string_view text, std::initializer_list<std::string_view> words)
{
  return text == "#all" || is_list_of(text, words);
}

bool is_namespace_list(std::string_view text)
{
  if (text == "##any" || text == "##other")
    return true;
  for (std::string_view item = next_item(text); !item.empty(); item = next_item(text))
    if (item.substr(0, 2) == "##" ? !is_one_of(item, {"##targetNamespace", "##local"}) : !axsTextForm::is_uri(item))
      return false;
  return true;
}

bool is_list_of_names(std::string_view text)
{
  for (std::string_view item = next_item(text); !item.empty(); item = next_item(text))
    if (!is_qname(item))
      return false;
  return true;
}

bool is_in_all_group(Role role)
{
  return role == Role::all || role == Role::all_element;
}

// What the type of the attribute asks for; null where the text is right.
char const* fault_of_set(Field field, Role role, std::string_view text)
{
  bool const is_simple_type = role == Role::global_simple_type;
  bool const is_complex_type = role == Role::global_complex_type;
  if (field == Field::block || field == Field::block_default)
  {
    if (is_complex_type)
      return is_set_of(text, {"extension", "restriction"}) ? nullptr : "'#all' or of 'extension' and 'restriction'";
    return is_set_of(text, {"extension", "restriction", "substitution"})
             ? nullptr
             : "'#all' or of 'extension', 'restriction' and 'substitution'";
  }
  if (field == Field::final_default)
    return is_set_of(text, {"extension", "restriction", "list", "union"})
             ? nullptr
             : "'#all' or of 'extension', 'restriction', 'list' and 'union'";
  if (is_simple_type)
    return is_set_of(text, {"list", "union", "restriction"}) ? nullptr : "'#all' or of 'list', 'union', 'restriction'";
  return is_set_of(text, {"extension", "restriction"}) ? nullptr : "'#all' or of 'extension' and 'restriction'";
}

char const* fault_of_count(Field field, Role role, std::string_view text)
{
  bool const is_unbounded = field == Field::max_occurs && text == "unbounded";
  std::optional<std::uint64_t> const number = count(text);
  if (is_in_all_group(role))
  {
    bool const is_max_of_group = field == Field::max_occurs && role == Role::all;
    bool const is_right = number.has_value() && (is_max_of_group ? *number == 1 : *number <= 1);
    return is_right ? nullptr : is_max_of_group ? "1 for an 'all' group" : "0 or 1 in an 'all' group";
  }
  if (is_unbounded || number.has_value())
    return nullptr;
  return field == Field::max_occurs ? "a number that is not negative, or 'unbounded'" : "a number that is not negative";
}

char const* fault_of_uri(std::string_view text)
{
  return axsTextForm::is_uri(text) ? nullptr : "a URI reference (RFC 2396)";
}

char const* fault_of_namespace(Role role, std::string_view text)
{
  if (role == Role::import)
    return fault_of_uri(text);
  return is_namespace_list(text) ? nullptr
                                 : "'##any', '##other' or a list of namespaces, '##targetNamespace' and '##local'";
}

char const* fault_of(Field field, Role role, std::string_view text)
{
  switch (field)
  {
  case Field::xml_lang:
    return text.empty() || axsTextForm::is_language(text) ? nullptr : "a language code (xs:language)";
  case Field::id:
  case Field::name:
    return is_ncname(text) ? nullptr : "a name without a colon";
  case Field::ref:
  case Field::type:
  case Field::base:
  case Field::item_type:
  case Field::substitution_group:
  case Field::refer:
    return is_qname(text) ? nullptr : "a name with or without a prefix";
  case Field::member_types:
    return is_list_of_names(text) ? nullptr : "a list of names";
  case Field::abstract:
  case Field::mixed:
  case Field::nillable:
    return is_boolean(text) ? nullptr : "'true', 'false', '1' or '0'";
  case Field::fixed:
    return role != Role::facet || is_boolean(trimmed(text)) ? nullptr : "'true', 'false', '1' or '0'";
  case Field::min_occurs:
  case Field::max_occurs:
    return fault_of_count(field, role, text);
  case Field::use:
    return is_one_of(text, {"optional", "prohibited", "required"}) ? nullptr : "'optional', 'prohibited' or 'required'";
  case Field::form:
  case Field::element_form_default:
  case Field::attribute_form_default:
    return is_one_of(text, {"qualified", "unqualified"}) ? nullptr : "'qualified' or 'unqualified'";
  case Field::process_contents:
    return is_one_of(text, {"lax", "skip", "strict"}) ? nullptr : "'lax', 'skip' or 'strict'";
  case Field::block:
  case Field::block_default:
  case Field::final_value:
  case Field::final_default:
    return fault_of_set(field, role, text);
  case Field::name_space:
    return fault_of_namespace(role, text);
  case Field::target_namespace:
    return text.empty() ? "the name of a namespace; without one, the attribute is left out" : fault_of_uri(text);
  // Of schemaLocation, the file counts that has that very name, whatever a URI may hold.
  case Field::source:
  case Field::system_id:
    return fault_of_uri(text);
  default:
    return nullptr;
  }
}

// Attributes of other namespaces may stand on any.
std::uint64_t const of_all_elements = bit(Field::xml_lang);

// Checks the elements of one document.
class Check
{
public:
  explicit Check(axsSchemaErrors& told) : errors(told) {}

  void run(axsSchemaElement const& root);

private:
  void element(axsSchemaElement const& checked);
  void attributes(axsSchemaElement const& checked, axsSchemaProduction const& production);
  void children(axsSchemaElement const& checked, axsSchemaProduction const& production);
  void missing_children(
    axsSchemaElement const& checked, axsSchemaProduction const& production, std::size_t slot, std::uint32_t count);
  void representation(axsSchemaElement const& checked);
  void element_declaration(axsSchemaElement const& checked);
  void attribute_declaration(axsSchemaElement const& checked);
  void occurrences(axsSchemaElement const& checked);
  void import(axsSchemaElement const& checked);
  void needs_one_of(axsSchemaElement const& checked, Field field, bool has_child);

  bool conflict(axsSchemaElement const& checked, Field one, Field other);
  void only_with_name(axsSchemaElement const& checked, std::initializer_list<Field> fields);

  axsSchemaErrors& errors;
  std::unordered_set<std::string_view, axsTextHash> ids;
};

// In document order, without recursion.
void Check::run(axsSchemaElement const& root)
{
  axsSchemaElement const* at = &root;
  while (at != nullptr && !errors.full())
  {
    element(*at);
    if (at->role != Role::none && at->first_child != nullptr)
    {
      at = at->first_child;
      continue;
    }
    while (at != nullptr && at->next == nullptr)
      at = at->parent;
    if (at != nullptr)
      at = at->next;
  }
}

void Check::element(axsSchemaElement const& checked)
{
  if (checked.role == Role::none)
    return; // told of where its parent is checked
  axsSchemaProduction const production = axsSchemaProduction::of(checked.role);
  attributes(checked, production);
  bool const is_open = checked.role == Role::appinfo || checked.role == Role::documentation;
  if (is_open)
    return;
  if (checked.has_text)
    errors.add(checked.place, "text may not stand in " + quoted(checked.name()));
  children(checked, production);
  representation(checked);
}

void Check::attributes(axsSchemaElement const& checked, axsSchemaProduction const& production)
{
  std::uint64_t seen = 0;
  for (std::size_t i = 0; i < checked.attribute_count; ++i)
  {
    axsSchemaAttributeText const& attribute = checked.attributes[i];
    bool const is_known = attribute.field != Field::other;
    std::string_view const name = is_known ? axsSchemaVocabulary::name(attribute.field) : attribute.value;
    if (!is_known || ((production.fields | of_all_elements) & bit(attribute.field)) == 0)
    {
      errors.add(
        attribute.place, "attribute " + quoted(name) + " may not stand on " + quoted(checked.name()) + " here");
      continue;
    }
    seen |= bit(attribute.field);
    if (char const* const wanted = fault_of(attribute.field, checked.role, attribute.value))
      errors.add(attribute.place, "attribute " + quoted(name) + " of " + quoted(checked.name()) + ": " +
                                    quoted(attribute.value) + " is not " + wanted);
    else if (attribute.field == Field::id && !ids.insert(attribute.value).second)
      errors.add(attribute.place, "the id " + quoted(attribute.value) + " is given twice in the document");
  }
  for (auto number = 0u; number < static_cast<unsigned>(Field::other); ++number)
  {
    auto const field = static_cast<Field>(number);
    if ((production.required & ~seen & bit(field)) != 0)
      errors.add(
        checked.place, quoted(checked.name()) + " lacks its attribute " + quoted(axsSchemaVocabulary::name(field)));
  }
}

void Check::children(axsSchemaElement const& checked, axsSchemaProduction const& production)
{
  std::uint64_t any_slot = 0;
  for (std::size_t i = 0; i < production.slot_count; ++i)
    any_slot |= production.slots[i].tags;

  std::size_t slot = 0;
  std::uint32_t count = 0;
  bool is_closed = false;
  for (axsSchemaElement const* child = checked.first_child; child != nullptr; child = child->next)
  {
    if (child->tag == Tag::other || (any_slot & bit(child->tag)) == 0)
    {
      errors.add(child->place, "this element may not stand in " + quoted(checked.name()));
      continue;
    }
    std::size_t next = slot;
    while (next < production.slot_count && ((production.slots[next].tags & bit(child->tag)) == 0 ||
                                             (next == slot && count == production.slots[next].max)))
      ++next;
    if (next == production.slot_count || is_closed)
    {
      errors.add(child->place, quoted(child->name()) + " may not stand here in " + quoted(checked.name()));
      return;
    }
    for (; slot < next; ++slot, count = 0)
      missing_children(checked, production, slot, count);
    ++count;
    // Nothing follows the one that holds the whole content of a complex type.
    is_closed = child->tag == Tag::simple_content || child->tag == Tag::complex_content;
  }
  for (; slot < production.slot_count; ++slot, count = 0)
    missing_children(checked, production, slot, count);
}

void Check::missing_children(
  axsSchemaElement const& checked, axsSchemaProduction const& production, std::size_t slot, std::uint32_t count)
{
  if (count >= production.slots[slot].min)
    return;
  std::string wanted;
  for (auto number = 0u; number < static_cast<unsigned>(Tag::other); ++number)
    if ((production.slots[slot].tags & bit(static_cast<Tag>(number))) != 0)
      wanted += (wanted.empty() ? "" : " or ") + quoted(axsSchemaVocabulary::name(static_cast<Tag>(number)));
  errors.add(checked.place, quoted(checked.name()) + " lacks its " + wanted);
}

void Check::representation(axsSchemaElement const& checked)
{
  switch (checked.role)
  {
  case Role::import:
    return import(checked);
  case Role::global_element:
  case Role::local_element:
  case Role::all_element:
    return element_declaration(checked);
  case Role::global_attribute:
  case Role::local_attribute:
    return attribute_declaration(checked);
  case Role::group_reference:
  case Role::all:
  case Role::group:
  case Role::any:
    return occurrences(checked);
  case Role::simple_restriction: // src-simple-type.2
    return needs_one_of(checked, Field::base, checked.child(Tag::simple_type) != nullptr);
  case Role::list: // src-simple-type.3
    return needs_one_of(checked, Field::item_type, checked.child(Tag::simple_type) != nullptr);
  case Role::union_: // src-union-memberTypes-or-simpleTypes
    if (checked.value(Field::member_types).empty() && checked.child(Tag::simple_type) == nullptr)
      errors.add(checked.place, "'union' lacks its member types");
    return;
  case Role::notation: // n-props-correct, and the grammar of second edition's 3.12.2
    if (!checked.has(Field::public_id) && !checked.has(Field::system_id))
      errors.add(checked.place, "'notation' lacks its attribute 'public' or 'system'");
    return;
  default:
    return;
  }
}

// src-element.
void Check::element_declaration(axsSchemaElement const& checked)
{
  occurrences(checked);
  conflict(checked, Field::default_value, Field::fixed); // src-element.1
  bool const has_type_child = checked.child(Tag::simple_type) != nullptr || checked.child(Tag::complex_type) != nullptr;
  if (checked.has(Field::type) && has_type_child) // src-element.3
    errors.add(checked.place, "'element' has both an attribute 'type' and a type in it");
  if (checked.role == Role::global_element)
    return;
  if (!checked.has(Field::ref)) // src-element.2.1
  {
    if (!checked.has(Field::name))
      errors.add(checked.place, "'element' lacks its attribute 'name' or 'ref'");
    return;
  }
  if (!conflict(checked, Field::ref, Field::name))
    only_with_name(checked,
      {Field::nillable, Field::default_value, Field::fixed, Field::form, Field::block, Field::type}); // src-element.2.2
  for (axsSchemaElement const* child = checked.first_child; child != nullptr; child = child->next)
    if (child->tag != Tag::annotation)
      errors.add(child->place, quoted(child->name()) + " may not stand in an 'element' with 'ref'");
}

// src-attribute.
void Check::attribute_declaration(axsSchemaElement const& checked)
{
  conflict(checked, Field::default_value, Field::fixed); // src-attribute.1
  std::string_view const use = checked.value(Field::use);
  if (checked.has(Field::default_value) && !use.empty() && use != "optional") // src-attribute.2
    errors.add(checked.place_of(Field::use), "an attribute with 'default' is optional, not " + quoted(use));
  bool const has_type_child = checked.child(Tag::simple_type) != nullptr;
  if (checked.has(Field::type) && has_type_child) // src-attribute.4
    errors.add(checked.place, "'attribute' has both an attribute 'type' and a type in it");
  if (checked.role == Role::global_attribute)
    return;
  if (!checked.has(Field::ref)) // src-attribute.3.1
  {
    if (!checked.has(Field::name))
      errors.add(checked.place, "'attribute' lacks its attribute 'name' or 'ref'");
    return;
  }
  if (!conflict(checked, Field::ref, Field::name))
    only_with_name(checked, {Field::form, Field::type}); // src-attribute.3.2
  if (has_type_child)
    errors.add(checked.place, "'simpleType' may not stand in an 'attribute' with 'ref'");
}

// p-props-correct.2.1.
void Check::occurrences(axsSchemaElement const& checked)
{
  std::optional<std::uint64_t> const min = checked.has(Field::min_occurs) ? count(checked.value(Field::min_occurs)) : 1;
  bool const is_unbounded = checked.value(Field::max_occurs) == "unbounded";
  std::optional<std::uint64_t> const max = checked.has(Field::max_occurs) ? count(checked.value(Field::max_occurs)) : 1;
  if (is_unbounded || !min.has_value() || !max.has_value())
    return;
  // Numbers that are too large for anything are told apart, too.
  bool const is_less = *max < *min || (*max == *min && *max > 1 &&
                                        axsDecimal::compare_counts(
                                          checked.value(Field::max_occurs), checked.value(Field::min_occurs)) < 0);
  if (is_less)
    errors.add(checked.place_of(Field::max_occurs), "maxOccurs of " + quoted(checked.name()) +
                                                      " is less than its minOccurs" +
                                                      (checked.has(Field::max_occurs) ? "" : "; without one it is 1"));
}

// src-import.1.
void Check::import(axsSchemaElement const& checked)
{
  std::string_view const target = checked.parent->value(Field::target_namespace);
  if (!checked.has(Field::name_space))
  {
    if (target.empty())
      errors.add(checked.place, "'import' lacks its attribute 'namespace', as the schema has no namespace either");
    return;
  }
  if (checked.value(Field::name_space) == target)
    errors.add(checked.place_of(Field::name_space), target.empty() ? "the namespace of an 'import' must have a name"
                                                                   : "a schema cannot import its own namespace; "
                                                                     "'include' is for that");
}

void Check::needs_one_of(axsSchemaElement const& checked, Field field, bool has_child)
{
  if (checked.has(field) && has_child)
    errors.add(checked.place, quoted(checked.name()) + " has both an attribute " +
                                quoted(axsSchemaVocabulary::name(field)) + " and a type in it");
  if (!checked.has(field) && !has_child)
    errors.add(
      checked.place, quoted(checked.name()) + " lacks its attribute " + quoted(axsSchemaVocabulary::name(field)));
}

// Whether both are there, which is told of.
bool Check::conflict(axsSchemaElement const& checked, Field one, Field other)
{
  if (!checked.has(one) || !checked.has(other))
    return false;
  errors.add(checked.place_of(other), quoted(checked.name()) + " has both " + quoted(axsSchemaVocabulary::name(one)) +
                                        " and " + quoted(axsSchemaVocabulary::name(other)));
  return true;
}

void Check::only_with_name(axsSchemaElement const& checked, std::initializer_list<Field> fields)
{
  for (Field const field : fields)
    if (checked.has(field))
      errors.add(checked.place_of(field), "attribute " + quoted(axsSchemaVocabulary::name(field)) +
                                            " may not stand on an " + quoted(checked.name()) + " with 'ref'");
}
}

void axsSchemaGrammar::check(axsSchemaDocument const& document, axsSchemaErrors& errors)
{
  Check(errors).run(document.root());
}
