#include "axsParser.h"

#include "axsCharacters.h"
#include "axsMessages.h"
#include "axsName.h"
#include "axsParseHandler.h"
#include "axsReference.h"
#include "axsSection.h"
#include "axsSource.h"
#include "axsXmlDeclaration.h"

#include <cstring>

namespace
{
using namespace axsCharacters;

// With less ahead, more is read before something begins: few pieces are longer.
std::ptrdiff_t const few = 4096;

std::string_view between(char const* from, char const* to)
{
  return {from, static_cast<std::size_t>(to - from)};
}
}

axsParser::axsParser(axsSource& source, axmLoadOptions const& options, axsParseHandler& handler)
  : in(source, options),
    events(handler),
    names(handler),
    namespaces(names),
    values(in, entities)
{
}

axsParser::~axsParser() = default;

void axsParser::run()
{
  while (state != State::end)
    advance();
}

bool axsParser::step()
{
  has_told = false;
  while (!has_told && state != State::end)
    advance();
  return has_told;
}

void axsParser::advance()
{
  axsBounds::Count const count = in.bounds().count();
  try
  {
    if (in.has_fewer(few))
      read_on();
    piece();
  }
  catch (axsInputStack::NeedsMore const&)
  {
    in.bounds().reset(count);
    normal.resize(kept);
    read_on();
  }
}

// The lines of elements whose beginning is let go are counted now: each once, and only of those that are still open.
void axsParser::read_on()
{
  count_lines();
  in.read_on();
}

void axsParser::count_lines()
{
  std::size_t first = open.size();
  while (first > 0 && open[first - 1].at != nullptr && open[first - 1].depth == in.depth())
    --first;
  for (; first < open.size(); ++first)
  {
    open[first].line = in.place(open[first].at).line;
    open[first].at = nullptr;
  }
}

axsParser::Next axsParser::next()
{
  if (state != State::content)
    return Next::end;
  if (in.has_fewer(few))
    read_on();
  if (*in.at != '<' || (is_in_text && kept > 0) || in.is_end(in.at))
    return Next::other;
  char const second = in.at[1];
  if (second == '/')
    return Next::end_tag;
  return second == '!' || second == '?' ? Next::other : Next::start_tag;
}

void axsParser::return_to(Mark const& mark)
{
  count_lines();
  in.return_to(mark);
}

void axsParser::piece()
{
  switch (state)
  {
  case State::begin:
    return read_begin();
  case State::document_type:
    return document_type();
  case State::content:
    return content();
  default:
    return outside();
  }
}

void axsParser::read_begin()
{
  in.need(in.at);
  if (in.is_end(in.at))
    throw axsReadError{apString(axsMessages::empty_document), in.url()};
  state = State::prolog;
  if (!axsXmlDeclaration::begins(in.at))
  {
    events.start_document(*this);
    return;
  }
  event_begin = in.at;
  axsXmlDeclaration const declared(in, axsXmlDeclaration::Kind::document);
  events.start_document(*this);
  if (declared.version() == "1.1")
  {
    in.take_xml_1_1();
    namespaces.allow_undeclaring();
  }
  if (declared.standalone() == "yes")
    entities.set_standalone();
  event_end = in.at;
  has_told = true;
  events.declaration(declared.version(), declared.encoding(), declared.standalone());
}

void axsParser::told(char const* to) noexcept
{
  event_begin = in.at;
  event_end = to;
  has_told = true;
}

axsPlace axsParser::begin() const
{
  return early_begin ? *early_begin : in.place(event_begin);
}

std::optional<std::uint64_t> axsParser::begin_position() const
{
  if (early_begin || in.depth() > 0)
    return std::nullopt;
  return in.position(event_begin);
}

std::optional<std::uint64_t> axsParser::end_position() const
{
  if (in.depth() > 0)
    return std::nullopt;
  return in.position(event_end);
}

axsPlace axsParser::attribute(std::size_t index) const
{
  char const* const at = index < attributes.size() ? attributes.source(index).at : nullptr;
  return in.place(at == nullptr ? event_begin : at);
}

// Before and after the root element (2.1, [1] document).
void axsParser::outside()
{
  char const* p = in.at;
  in.skip_spaces(p);
  in.at = p;
  if (*p != '<')
    return end_or_fail();
  if (p[1] == '?')
    return processing_instruction();
  if (begins(p, "<!--"))
    return comment();
  if (begins(p, "<!DOCTYPE"))
  {
    if (state == State::epilog)
      in.fail(p, axsMessages::doctype_place);
    if (dtd != nullptr)
      in.fail(p, axsMessages::doctype_twice);
    dtd = std::make_unique<axsDtdParser>(in, names, entities);
    early_begin = in.place(p);
    state = State::document_type;
    return;
  }
  if (state == State::epilog || p[1] == '!' || p[1] == '/')
    return end_or_fail();
  start_tag();
}

void axsParser::end_or_fail()
{
  in.need(in.at);
  if (state == State::prolog)
    in.unexpected(in.at, begins(in.at, "</") ? axsMessages::end_of_nothing : axsMessages::root_missing);
  if (!in.is_end(in.at))
    in.unexpected(in.at, axsMessages::after_root);
  state = State::end;
}

void axsParser::document_type()
{
  if (!dtd->read_on())
    return;
  state = State::prolog;
  told(in.at);
  events.doctype(dtd->type());
  early_begin.reset();
}

void axsParser::content()
{
  char const* const p = in.at;
  if (*p != '<')
    return text();
  if (is_in_text)
    return end_text(p, p);
  switch (p[1])
  {
  case '/':
    return end_tag();
  case '?':
    return processing_instruction();
  case '!':
    return exclamation();
  default:
    return start_tag();
  }
}

// 3.1, [40] STag, [44] EmptyElemTag
void axsParser::start_tag()
{
  char const* p = in.at + 1;
  axsQName const* const read = read_name(p);
  if (read == nullptr)
    in.unexpected(p, axsMessages::element_name);
  axsQName const& name = *read;
  ++elements;
  attributes.clear();
  if (*p != '>')
    read_attributes(p, name);
  bool const is_empty = *p == '/';
  if (is_empty && p[1] != '>')
    fail_start_tag(p, name);
  p += is_empty ? 2 : 1;
  if (in.is_internal())
    in.count_growth((1 + attributes.size()) * axsBounds::node_size, p);
  if (name.attributes != nullptr)
    in.count_growth(name.attributes->add_missing(attributes, elements), p);
  if (!namespaces.open(name, attributes))
    in.fail(p, namespaces.wrong());

  told(p);
  events.start_element({name.name, namespaces.of_element(name), &attributes.told(), &namespaces});
  open.emplace_back(name, in.at, in.depth());
  state = State::content;
  if (is_empty)
    end_element();
  in.at = p;
}

axsQName* axsParser::find_name(char const*& p)
{
  char const* const begin = p;
  if (!skip_name(p))
    return nullptr;
  in.need(p);
  return &names.find(between(begin, p));
}

// Up to what ends the tag.
void axsParser::read_attributes(char const*& p, axsQName const& element)
{
  made.clear();
  values.clear();
  while (*p != '>' && *p != '/')
  {
    if (!in.skip_spaces(p))
      fail_start_tag(p, element);
    if (*p != '>' && *p != '/')
      read_attribute(p, element);
  }
  if (!made.empty())
    place_made_values();
}

void axsParser::fail_start_tag(char const* p, axsQName const& name) const
{
  bool const is_attribute = !attributes.empty() && end_of_name(p) != p;
  in.unexpected(p, is_attribute ? std::string(axsMessages::attribute_space)
                                : "the start tag of " + axsMessages::quoted(name.name->utf8()) +
                                    " is not ended: '>', '/>' or an attribute is expected");
}

// [41] Attribute
void axsParser::read_attribute(char const*& p, axsQName const& element)
{
  char const* const begin = p;
  axsQName* const read = read_name(p);
  if (read == nullptr)
    in.unexpected(p, "the start tag of " + axsMessages::quoted(element.name->utf8()) +
                       " is not ended: '>', '/>' or an attribute is expected");
  axsQName& name = *read;
  // Few have spaces around the sign.
  if (*p != '=')
    in.skip_spaces(p);
  if (!skip_character(p, '='))
    in.unexpected(p, axsMessages::attribute_equals);
  // WFC: Unique Att Spec
  if (name.last_element == elements)
    in.fail(p, "attribute " + axsMessages::quoted(name.name->utf8()) + " is already specified for element " +
                 axsMessages::quoted(element.name->utf8()));
  name.last_element = elements;
  if (*p != '"')
    in.skip_spaces(p);
  std::string_view value;
  bool is_made = false;
  if (!values.read_plain(p, value))
  {
    value = values.read(p, name.text);
    is_made = values.is_made(value);
  }
  axsAttributeType type = axsAttributeType::cdata;
  if (element.attributes != nullptr)
  {
    type = element.attributes->type_of(name);
    value = typed(value, type);
    is_made = values.is_made(value);
  }
  if (is_made)
    made.emplace_back(attributes.size(), static_cast<std::size_t>(value.data() - values.made().data()));
  attributes.add(name, value, begin).type = type;
}

// 3.3.3
std::string_view axsParser::typed(std::string_view value, axsAttributeType type)
{
  return type == axsAttributeType::cdata ? value : values.collapsed(value);
}

// What was made has moved while more of it was.
void axsParser::place_made_values()
{
  for (auto const& [index, begin] : made)
  {
    std::string_view& value = attributes[index].value;
    value = std::string_view(values.made()).substr(begin, value.size());
  }
}

// [42] ETag
void axsParser::end_tag()
{
  OpenElement const& element = open.back();
  std::string_view const name = element.name->text;
  char const* p = in.at + 2;
  bool const is_right = element.name->stands_at(p) || (static_cast<std::size_t>(in.end() - p) >= name.size() &&
                                                        std::memcmp(p, name.data(), name.size()) == 0);
  if (!is_right)
    fail_end_tag(p);
  p += name.size();
  if (*p != '>')
  {
    if (end_of_name_characters(p) != p)
      fail_end_tag(in.at + 2);
    in.skip_spaces(p);
    if (*p != '>')
      in.unexpected(p, "'>' is expected: an end tag holds the name " + axsMessages::quoted(name) + " only");
  }
  // WFC: Parsed entities are well-formed (4.3.2)
  if (element.depth != in.depth())
    in.fail(p, "the element " + axsMessages::quoted(name) + " begins outside the entity in which it ends");
  told(p + 1);
  end_element();
  in.at = p + 1;
}

void axsParser::end_element()
{
  events.end_element();
  namespaces.close();
  open.pop_back();
  if (open.empty())
    state = State::epilog;
}

// WFC: Element Type Match (3)
void axsParser::fail_end_tag(char const* p) const
{
  OpenElement const& element = open.back();
  in.need(end_of_name(p));
  in.unexpected(p, axsMessages::not_closed_first(element.name->name->utf8(), since(element)));
}

std::string axsParser::since(OpenElement const& element) const
{
  return axsMessages::since_line(element.at == nullptr ? element.line : in.place(element.at, element.depth).line);
}

void axsParser::exclamation()
{
  if (begins(in.at, "<!--"))
    return comment();
  if (begins(in.at, "<![CDATA["))
    return cdata();
  in.unexpected(in.at + 2, begins(in.at, "<!DOCTYPE") ? axsMessages::doctype_place : axsMessages::exclamation);
}

void axsParser::comment()
{
  char const* p = in.at + 4;
  std::string_view const data = axsSection::read_comment(in, p, normal);
  told(p);
  events.comment(data);
  normal.clear();
  in.at = p;
}

void axsParser::cdata()
{
  char const* p = in.at + 9;
  std::string_view const data = axsSection::read_cdata(in, p, normal);
  told(p);
  events.text(data, true);
  normal.clear();
  in.at = p;
}

void axsParser::processing_instruction()
{
  char const* p = in.at + 2;
  axsSection::Instruction const read = axsSection::read_instruction(in, p, normal, state == State::prolog);
  told(p);
  events.processing_instruction(read.target, read.data);
  normal.clear();
  in.at = p;
}

// 2.4, [14] CharData. Most texts stand there as they are.
void axsParser::text()
{
  char const* const end = in.end_of_character_data(in.at);
  if (*end != '<' || is_in_text)
    return parted_text();
  in.check_controls(in.at, end);
  told(end);
  events.text(between(in.at, end), false);
  in.at = end;
}

// The same with references between (3.1, [43] content) and line ends that are not told as they are.
void axsParser::parted_text()
{
  char const* from = in.at;
  char const* p = from;
  auto const take = [&] { normal.append(from, static_cast<std::size_t>(p - from)); };
  while (true)
  {
    p = in.end_of_character_data(p);
    if (*p == '<')
      return end_text(from, p);
    if (*p == ']')
    {
      if (begins(p, "]]>"))
        in.fail(p + 3, axsMessages::section_end_in_text);
      ++p;
    }
    else if (*p == '&')
    {
      in.check_controls(from, p);
      take();
      if (reference(p))
        return;
      from = p;
    }
    else if (in.is_end(p))
    {
      in.need(p);
      in.check_controls(from, p);
      take();
      keep_text();
      in.at = p;
      return end_input();
    }
    else
    {
      char const* const special = p;
      if (in.pass_special(p) == axsInputStack::Special::characters)
        continue;
      in.check_controls(from, special);
      normal.append(from, static_cast<std::size_t>(special - from));
      normal += '\n';
      from = p;
    }
  }
}

// Whether reading goes on in an entity (4.4.2, 4.4.3).
bool axsParser::reference(char const*& p)
{
  char const* const begin = p;
  if (axsReference::read(in, p, normal))
    return false;
  axsEntity& entity = entities.general(in, p);
  if (entity.is_plain)
  {
    in.count_expansion(entity, begin);
    normal += entity.declared->replacement;
    return false;
  }
  keep_text();
  in.at = p;
  in.open(entity, begin);
  return true;
}

// What was read of a text stays read while it goes on in another input.
void axsParser::keep_text()
{
  if (!is_in_text)
    early_begin = in.place(in.at);
  is_in_text = true;
  kept = normal.size();
}

void axsParser::end_text(char const* from, char const* to)
{
  in.check_controls(from, to);
  std::string_view data = between(from, to);
  if (is_in_text || !normal.empty())
  {
    normal.append(from, to);
    data = normal;
  }
  if (!data.empty())
  {
    told(to);
    events.text(data, false);
  }
  in.at = to;
  normal.clear();
  kept = 0;
  is_in_text = false;
  early_begin.reset();
}

// The document or an entity in it has been read.
void axsParser::end_input()
{
  OpenElement const& element = open.back();
  std::string_view const name = element.name->name->utf8();
  if (in.depth() == 0)
    in.unexpected(in.at, axsMessages::not_closed_at_end(name, since(element)));
  // WFC: Parsed entities are well-formed (4.3.2)
  if (element.depth == in.depth())
    in.fail(in.at, "the element " + axsMessages::quoted(name) + " is not closed in the entity in which it begins");
  in.close();
}
