#include "axsSchemaDocument.h"

#include "axsLocator.h"
#include "axsName.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsParser.h"
#include "axsSource.h"
#include "axsStartTag.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace
{
bool is_white(char c)
{
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool keeps_white_space(axsSchemaField field)
{
  return field == axsSchemaField::value || field == axsSchemaField::default_value || field == axsSchemaField::fixed;
}

bool is_collapsed(std::string_view text)
{
  char before = ' ';
  for (char const c : text)
  {
    if (is_white(c) && (c != ' ' || before == ' '))
      return false;
    before = c;
  }
  return text.empty() || before != ' ';
}

bool is_language(axsTagAttribute const& attribute)
{
  return attribute.name_space == axsSchemaVocabulary::xml_namespace && attribute.name->local() == "lang";
}

// Attributes of other namespaces are no business of ours, but for those that only look like ours, and for the language of a
// documentation, whose type is known (Part 1, 3.13.2).
bool is_of_schemas(axsTagAttribute const& attribute)
{
  return !attribute.is_declaration &&
         (attribute.name_space.empty() || attribute.name_space == axsSchemaVocabulary::schema_namespace ||
           is_language(attribute));
}

// Part 2, 4.3.6 whiteSpace, collapse.
std::string collapsed(std::string_view text)
{
  std::string made;
  for (char const c : text)
    if (!is_white(c))
      made += c;
    else if (!made.empty() && made.back() != ' ')
      made += ' ';
  if (!made.empty() && made.back() == ' ')
    made.pop_back();
  return made;
}
}

// Builds the elements as the parser tells of them.
class axsSchemaDocument::Builder final : public axsParseHandler
{
public:
  explicit Builder(axsSchemaDocument& built) : document(built) {}

  axsSchemaElement const* root() const noexcept { return first; }

private:
  using Attributes = std::vector<axsTagAttribute>;

  void start_document(axsLocator const& given) override { locator = &given; }
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override;
  void end_element() override;
  void text(std::string_view text, bool is_cdata) override;
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

  bool is_in_annotation_content() const;
  axsSchemaElement& make(axsStartTag const& tag);
  axsSchemaScope const* declare(Attributes const& attributes);
  void add_attributes(axsSchemaElement& element, Attributes const& attributes);
  axsSchemaAttributeText made(axsTagAttribute const& attribute);
  axsSchemaPlace place(axsPlace given) const;

  template <class Value>
  Value* array(std::size_t count)
  {
    return static_cast<Value*>(document.memory.allocate(count * sizeof(Value), alignof(Value)));
  }

  std::string_view kept(std::string_view text)
  {
    if (text.empty())
      return {};
    char* const copy = array<char>(text.size());
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
  }

  struct Open
  {
    axsSchemaElement* element;
    axsSchemaElement* last_child;
  };

  axsSchemaDocument& document;
  axsNameTable names;
  axsLocator const* locator = nullptr;

  axsSchemaElement const* first = nullptr;
  std::vector<Open> open;
  // How many elements are open inside the content of an annotation, which is passed over.
  std::size_t passed_over = 0;
};

void axsSchemaDocument::Builder::start_element(axsStartTag const& tag)
{
  if (passed_over > 0 || is_in_annotation_content())
  {
    ++passed_over;
    return;
  }
  axsSchemaElement& element = make(tag);
  if (open.empty())
  {
    if (element.tag != axsSchemaTag::schema)
      throw locator->error(APSTRING("This is not a schema: its root element is not \"schema\" of ") +
                             apString::from_utf8(axsSchemaVocabulary::schema_namespace),
        locator->begin());
    element.role = axsSchemaRole::schema;
    first = &element;
  }
  else
  {
    Open& around = open.back();
    element.parent = around.element;
    element.role = axsSchemaProduction::role_of(around.element->role, element.tag);
    (around.last_child == nullptr ? around.element->first_child : around.last_child->next) = &element;
    around.last_child = &element;
  }
  open.push_back({&element, nullptr});
}

void axsSchemaDocument::Builder::end_element()
{
  if (passed_over > 0)
    --passed_over;
  else
    open.pop_back();
}

void axsSchemaDocument::Builder::text(std::string_view text, bool)
{
  if (passed_over == 0 && !open.empty() && !std::all_of(text.begin(), text.end(), is_white))
    open.back().element->has_text = true;
}

bool axsSchemaDocument::Builder::is_in_annotation_content() const
{
  if (open.empty())
    return false;
  axsSchemaTag const around = open.back().element->tag;
  return around == axsSchemaTag::appinfo || around == axsSchemaTag::documentation;
}

axsSchemaElement& axsSchemaDocument::Builder::make(axsStartTag const& tag)
{
  axsSchemaElement& element = *new (array<axsSchemaElement>(1)) axsSchemaElement();
  if (tag.name_space == axsSchemaVocabulary::schema_namespace)
    element.tag = axsSchemaVocabulary::tag(tag.name->local());
  element.place = place(locator->begin());
  element.scope = declare(*tag.attributes);
  add_attributes(element, *tag.attributes);
  return element;
}

axsSchemaScope const* axsSchemaDocument::Builder::declare(Attributes const& attributes)
{
  axsSchemaScope const* const outer = open.empty() ? nullptr : open.back().element->scope;
  std::vector<axsSchemaScope::Binding> bindings;
  for (axsTagAttribute const& attribute : attributes)
    if (attribute.is_declaration)
    {
      bool const has_prefix = !attribute.name->prefix().empty();
      bindings.push_back({has_prefix ? kept(attribute.name->local()) : std::string_view(), kept(attribute.value)});
    }
  if (bindings.empty() && outer != nullptr)
    return outer;
  std::sort(bindings.begin(), bindings.end(),
    [](axsSchemaScope::Binding const& left, axsSchemaScope::Binding const& right)
    { return left.prefix < right.prefix; });
  auto* const copies = array<axsSchemaScope::Binding>(bindings.size() + 1);
  std::uninitialized_copy(bindings.begin(), bindings.end(), copies);
  return new (array<axsSchemaScope>(1)) axsSchemaScope{outer, copies, bindings.size()};
}

void axsSchemaDocument::Builder::add_attributes(axsSchemaElement& element, Attributes const& attributes)
{
  auto const count = std::count_if(attributes.begin(), attributes.end(), is_of_schemas);
  if (count == 0)
    return;
  auto* const texts = array<axsSchemaAttributeText>(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (is_of_schemas(attributes[i]))
    {
      auto* const text = new (texts + element.attribute_count) axsSchemaAttributeText(made(attributes[i]));
      text->place = place(locator->attribute(i));
      ++element.attribute_count;
    }
  element.attributes = texts;
}

axsSchemaAttributeText axsSchemaDocument::Builder::made(axsTagAttribute const& attribute)
{
  axsSchemaAttributeText made;
  if (is_language(attribute))
    made.field = axsSchemaField::xml_lang;
  else if (attribute.name_space.empty())
    made.field = axsSchemaVocabulary::field(attribute.name->utf8());
  if (made.field == axsSchemaField::other)
    made.value = kept(attribute.name->utf8());
  else if (keeps_white_space(made.field) || is_collapsed(attribute.value))
    made.value = kept(attribute.value);
  else
    made.value = kept(collapsed(attribute.value));
  return made;
}

axsSchemaPlace axsSchemaDocument::Builder::place(axsPlace given) const
{
  constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
  return {document.number, static_cast<std::uint32_t>(std::min(given.line, largest)),
    static_cast<std::uint32_t>(std::min(given.column, largest))};
}

axsSchemaDocument::axsSchemaDocument(axsSource& source, std::uint32_t file) : number(file)
{
  Builder builder(*this);
  axsParser(source, axmLoadOptions(), builder).run();
  root_element = builder.root();
}

axsSchemaDocument::~axsSchemaDocument() = default;
