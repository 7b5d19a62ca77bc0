#include "PairMaker.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace
{
std::size_t const complex_count = 4;
char const* const names[] = {"a", "b", "c", "d", "e", "f", "g"};

std::string text_of(unsigned number)
{
  return std::to_string(number);
}

std::size_t number_of(std::string const& name)
{
  return static_cast<std::size_t>(name.front() - 'a');
}

// As a content oracle has it.
std::string name_of(xmlNode const* element)
{
  bool const is_other =
    element->ns != nullptr && std::string(reinterpret_cast<char const*>(element->ns->href)) != "urn:t";
  return is_other ? ContentOracle::other() : reinterpret_cast<char const*>(element->name);
}
}

unsigned PairMaker::pick(unsigned below) noexcept
{
  state = state * 1664525u + 1013904223u;
  return static_cast<unsigned>((static_cast<std::uint64_t>(state >> 8) * below) >> 24);
}

std::string PairMaker::one_of(std::initializer_list<char const*> choices)
{
  return choices.begin()[pick(static_cast<unsigned>(choices.size()))];
}

std::string PairMaker::schema()
{
  simple_types.clear();
  complex_types.clear();
  has_namespace = chance(50);
  is_qualified = has_namespace && chance(50);
  std::string text = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'";
  if (has_namespace)
    text += " targetNamespace='urn:t' xmlns='urn:t'";
  if (is_qualified)
    text += " elementFormDefault='qualified'";
  text += ">\n";
  for (char const* const built_in : {"string", "token", "NCName", "int", "integer", "decimal", "boolean", "date",
         "dateTime", "double", "NMTOKENS", "hexBinary", "gYear", "time", "positiveInteger", "ID", "IDREF"})
    simple_types.push_back({"xs:" + std::string(built_in), built_in});
  for (std::size_t i = 0; i < 5; ++i)
    text += simple_type(i);
  complex_types.resize(complex_count);
  // From the last to the first, which is the root's: each refers to later ones only.
  std::string types;
  for (std::size_t i = complex_count; i-- > 0;)
    types += complex_type(i);
  text += types + "<xs:element name='h' type='" + simple_types[pick(17)].name + "'/>\n";
  text += "<xs:element name='m' substitutionGroup='h'" + std::string(chance(10) ? " abstract='true'" : "") + "/>\n";
  return text + "<xs:element name='r' type='t0'>" + constraints() + "</xs:element>\n</xs:schema>\n";
}

std::string PairMaker::simple_type(std::size_t number)
{
  std::string const name = "s" + std::to_string(number);
  SimpleType const base = simple_types[pick(static_cast<unsigned>(simple_types.size()))];
  std::string text = "<xs:simpleType name='" + name + "'>";
  if (chance(15) && base.primitive != "list" && base.primitive != "NMTOKENS" && base.primitive != "union")
  {
    text += "<xs:list itemType='" + base.name + "'/>";
    simple_types.push_back({name, "list"});
  }
  else if (chance(15))
  {
    SimpleType const other = simple_types[pick(static_cast<unsigned>(simple_types.size()))];
    text += "<xs:union memberTypes='" + base.name + " " + other.name + "'/>";
    simple_types.push_back({name, "union"});
  }
  else
  {
    text += "<xs:restriction base='" + base.name + "'>" + facets(base.primitive) + "</xs:restriction>";
    simple_types.push_back({name, base.primitive});
  }
  return text + "</xs:simpleType>\n";
}

std::string PairMaker::facets(std::string const& primitive)
{
  auto const facet = [](std::string const& name, std::string const& given)
  { return "<xs:" + name + " value='" + given + "'/>"; };
  bool const is_number = primitive == "int" || primitive == "integer" || primitive == "decimal" ||
                         primitive == "double" || primitive == "positiveInteger";
  std::string text;
  if (is_number && chance(50))
    text += facet(one_of({"minInclusive", "minExclusive"}), text_of(pick(12)));
  if (is_number && chance(50))
    text += facet(one_of({"maxInclusive", "maxExclusive"}), text_of(8 + pick(100)));
  if (is_number && primitive != "double" && chance(20))
    text += facet("totalDigits", text_of(1 + pick(3)));
  if (primitive == "decimal" && chance(20))
    text += facet("fractionDigits", text_of(pick(3)));
  bool const has_length = primitive == "string" || primitive == "token" || primitive == "NCName" ||
                          primitive == "list" || primitive == "hexBinary" || primitive == "NMTOKENS";
  if (has_length && chance(40))
    text += facet("minLength", text_of(pick(3)));
  if (has_length && chance(40))
    text += facet("maxLength", text_of(2 + pick(4)));
  if (primitive == "date" && chance(40))
    text += facet(one_of({"minInclusive", "maxExclusive"}), value(primitive));
  if (chance(20))
    text +=
      facet("pattern", one_of({"[a-z]+", "\\d{1,3}", "(a|b)*c?", "[^x]*", "\\i\\c*", "-?[0-9]*\\.?[0-9]+", ".{2,}"}));
  if (chance(20) && primitive != "boolean")
    for (unsigned count = 1 + pick(4); count > 0; --count)
      text += facet("enumeration", value(primitive));
  return text;
}

std::string PairMaker::complex_type(std::size_t number)
{
  ComplexType& type = complex_types[number];
  std::string const open = "<xs:complexType name='t" + std::to_string(number) + "'";
  bool const is_root = number == 0;
  auto const later = [&] { return number + 1 + pick(static_cast<unsigned>(complex_count - number - 1)); };
  for (std::size_t i = 0; i < std::size(names); ++i)
    type.types_of_names.push_back(number + 1 < complex_count && chance(35)
                                    ? simple_types.size() + later()
                                    : pick(static_cast<unsigned>(simple_types.size())));
  type.is_simple = !is_root && chance(20);
  if (type.is_simple)
  {
    type.text_type = pick(static_cast<unsigned>(simple_types.size()));
    return open + "><xs:simpleContent><xs:extension base='" + simple_types[type.text_type].name + "'>" +
           attributes(type, {"p", "q", "s"}) + "</xs:extension></xs:simpleContent></xs:complexType>\n";
  }
  if (number + 1 < complex_count && chance(25))
  {
    type.base = later();
    return derived_type(number, open);
  }
  type.is_mixed = chance(15);
  type.content = particle(0, type);
  std::string const mixed = type.is_mixed ? " mixed='true'" : "";
  return open + mixed + ">" + written(type.content, type) + attributes(type, {"p", "q", "s"}) + "</xs:complexType>\n";
}

// By extension, of what the base leaves free.
std::string PairMaker::derived_type(std::size_t number, std::string const& open)
{
  ComplexType& type = complex_types[number];
  ComplexType const& base = complex_types[type.base];
  type.types_of_names = base.types_of_names;
  type.names_used = base.names_used;
  type.is_simple = base.is_simple;
  type.text_type = base.text_type;
  type.is_mixed = chance(95) ? base.is_mixed : !base.is_mixed;
  type.content.kind = Particle::Kind::sequence; // of nothing
  std::string content;
  if (!base.is_simple && base.content.kind != Particle::Kind::all && chance(80))
  {
    type.content = particle(0, type);
    content = written(type.content, type);
  }
  std::string const kind = base.is_simple ? "simpleContent" : "complexContent";
  std::string const mixed = type.is_mixed && !base.is_simple ? " mixed='true'" : "";
  return open + "><xs:" + kind + mixed + "><xs:extension base='t" + std::to_string(type.base) + "'>" + content +
         attributes(type, {"u", "v"}) + "</xs:extension></xs:" + kind + "></xs:complexType>\n";
}

// Mostly one that the type has not used yet.
std::string PairMaker::element_name(ComplexType& type)
{
  auto const count = static_cast<unsigned>(std::size(names));
  return names[chance(90) ? type.names_used++ % count : pick(count)];
}

PairMaker::Particle PairMaker::particle(int depth, ComplexType& type)
{
  using Kind = Particle::Kind;
  Particle made;
  made.min = chance(40) ? 0 : chance(80) ? 1 : pick(4);
  made.max = chance(15) ? many : made.min + (chance(60) ? (made.min == 0 ? 1 : 0) : pick(4));
  made.max = std::max(made.max, 1U);
  if (depth > 0 && (depth > 2 || chance(65)))
  {
    made.kind = chance(5) ? Kind::any : chance(5) ? Kind::head : Kind::element;
    made.name = made.kind == Kind::element ? element_name(type) : std::string();
    return made;
  }
  made.kind = chance(40) ? Kind::choice : Kind::sequence;
  if (depth == 0 && chance(10))
  {
    made.kind = Kind::all;
    made.max = 1;
    made.min = std::min(made.min, 1U);
  }
  for (unsigned count = 1 + pick(4); count > 0; --count)
  {
    Particle part = particle(made.kind == Kind::all ? 3 : depth + 1, type);
    if (made.kind == Kind::all)
    {
      if (part.name.empty())
        part.name = element_name(type);
      part.kind = Kind::element;
      part.max = 1;
      part.min = std::min(part.min, 1U);
    }
    made.parts.push_back(part);
  }
  return made;
}

std::string PairMaker::written(Particle const& particle, ComplexType const& type)
{
  using Kind = Particle::Kind;
  std::string const occurs = " minOccurs='" + text_of(particle.min) + "' maxOccurs='" +
                             (particle.max == many ? "unbounded" : text_of(particle.max)) + "'";
  if (particle.kind == Kind::any)
    return "<xs:any namespace='##other' processContents='lax'" + occurs + "/>";
  if (particle.kind == Kind::head)
    return "<xs:element ref='h'" + occurs + "/>";
  if (particle.kind == Kind::element)
  {
    std::size_t const of = type.types_of_names[number_of(particle.name)];
    std::string const name =
      of < simple_types.size() ? simple_types[of].name : "t" + std::to_string(of - simple_types.size());
    return "<xs:element name='" + particle.name + "' type='" + name + "'" + occurs + "/>";
  }
  char const* const kind = particle.kind == Kind::all ? "all" : particle.kind == Kind::choice ? "choice" : "sequence";
  std::string text = "<xs:" + std::string(kind) + occurs + ">";
  for (Particle const& part : particle.parts)
    text += written(part, type);
  return text + "</xs:" + kind + ">";
}

std::string PairMaker::attributes(ComplexType& type, std::initializer_list<char const*> of_names)
{
  std::string text;
  for (char const* const name : of_names)
  {
    if (!chance(35))
      continue;
    Attribute made{name, pick(static_cast<unsigned>(simple_types.size())), chance(40)};
    text += "<xs:attribute name='" + made.name + "' type='" + simple_types[made.type].name + "'";
    if (made.is_required)
      text += " use='required'";
    else if (chance(15))
      text += one_of({" default='", " fixed='"}) + value(simple_types[made.type].primitive) + "'";
    text += "/>";
    type.attributes.push_back(std::move(made));
  }
  return text;
}

std::string PairMaker::constraints()
{
  if (!chance(25))
    return {};
  std::string const selector =
    is_qualified || has_namespace ? one_of({"*", ".//*"}) : one_of({"a", "*", ".//b", "a|b", "a/b"});
  std::string const kind = one_of({"unique", "key"});
  return "<xs:" + kind + " name='k'><xs:selector xpath='" + selector + "'/><xs:field xpath='" +
         one_of({"@p", "@q", "."}) + "'/></xs:" + kind + ">";
}

std::string PairMaker::document()
{
  std::string const name_space = has_namespace ? is_qualified ? " xmlns='urn:t'" : " xmlns:t='urn:t'" : "";
  ComplexType const& root = complex_types.front();
  std::string const name = has_namespace && !is_qualified ? "t:r" : "r";
  std::string text = "<" + name + name_space + attribute_values(root) + ">";
  add_content(root, text, 0);
  text += "</" + name + ">";
  for (unsigned count = chance(40) ? 1 + pick(2) : 0; count > 0; --count)
    damage(text);
  return text;
}

ContentOracle PairMaker::content_of(ComplexType const& type) const
{
  std::vector<DrawnParticle const*> content{&type.content};
  for (ComplexType const* base = &type; base->base != none;)
  {
    base = &complex_types[base->base];
    content.insert(content.begin(), &base->content);
  }
  return ContentOracle(content);
}

bool PairMaker::is_ambiguous() const
{
  return std::any_of(complex_types.begin(), complex_types.end(),
    [this](ComplexType const& type) { return !type.is_simple && content_of(type).is_ambiguous(); });
}

bool PairMaker::has_right_contents(std::string const& document) const
{
  std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> const read(
    xmlReadMemory(document.data(), static_cast<int>(document.size()), nullptr, nullptr,
      XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET),
    xmlFreeDoc);
  if (read == nullptr)
    return false;
  std::vector<std::pair<xmlNode const*, ComplexType const*>> waiting{
    {xmlDocGetRootElement(read.get()), &complex_types.front()}};
  while (!waiting.empty())
  {
    auto const [parent, type] = waiting.back();
    waiting.pop_back();
    std::vector<std::string> children;
    for (xmlNode const* child = parent->children; child != nullptr; child = child->next)
    {
      if (child->type != XML_ELEMENT_NODE)
        continue;
      children.push_back(name_of(child));
      bool const is_local = children.back().front() >= 'a' && children.back().front() <= 'g';
      std::size_t const of = is_local ? type->types_of_names[number_of(children.back())] : 0;
      if (of >= simple_types.size() && !complex_types[of - simple_types.size()].is_simple)
        waiting.emplace_back(child, &complex_types[of - simple_types.size()]);
    }
    if (!content_of(*type).takes(children))
      return false;
  }
  return true;
}

void PairMaker::add_content(ComplexType const& type, std::string& text, int depth)
{
  if (type.is_simple)
  {
    text += value(simple_types[type.text_type].primitive);
    return;
  }
  if (type.base != none)
    add_content(complex_types[type.base], text, depth);
  if (type.is_mixed && chance(50))
    text += "text";
  add(type.content, type, text, depth);
}

void PairMaker::add(Particle const& particle, ComplexType const& type, std::string& text, int depth)
{
  using Kind = Particle::Kind;
  unsigned const last = particle.max == many ? particle.min + 2 : particle.max;
  unsigned const times = particle.min + pick(last - particle.min + 1);
  for (unsigned i = 0; i < times && text.size() < 4000; ++i)
  {
    if (particle.kind == Kind::element)
      text += element(particle.name, type.types_of_names[number_of(particle.name)], depth + 1);
    else if (particle.kind == Kind::head)
    {
      std::string const name = (has_namespace && !is_qualified ? "t:" : "") + one_of({"h", "m"});
      text += "<" + name + ">" + value("string") + "</" + name + ">";
    }
    else if (particle.kind == Kind::any)
      text += "<o:o xmlns:o='urn:o'/>";
    else if (particle.kind == Kind::choice)
      add(particle.parts[pick(static_cast<unsigned>(particle.parts.size()))], type, text, depth);
    else
      for (Particle const& part : particle.parts)
        add(part, type, text, depth);
  }
}

std::string PairMaker::element(std::string const& name, std::size_t type, int depth, std::string const& extra)
{
  std::string text = "<" + name;
  if (type < simple_types.size())
    return text + extra + ">" + value(simple_types[type].primitive) + "</" + name + ">";
  ComplexType const& complex = complex_types[type - simple_types.size()];
  text += extra + attribute_values(complex) + ">";
  add_content(complex, text, depth);
  return text + "</" + name + ">";
}

std::string PairMaker::attribute_values(ComplexType const& type)
{
  std::string text = type.base == none ? std::string() : attribute_values(complex_types[type.base]);
  for (Attribute const& attribute : type.attributes)
    if ((attribute.is_required || chance(60)) && text.find(" " + attribute.name + "='") == std::string::npos)
      text += " " + attribute.name + "='" + value(simple_types[attribute.type].primitive) + "'";
  return text;
}

std::string PairMaker::value(std::string const& primitive)
{
  if (chance(4))
    return one_of({"", " ", "x", "1", "-1", "abc def", "12", "true"});
  if (primitive == "int" || primitive == "integer" || primitive == "positiveInteger")
    return one_of({"1", "2", "5", "07", "+8", "9", "10", "11", "12", "42", "99", "100", " 7 ", "0", "-3", "12345"});
  if (primitive == "decimal" || primitive == "double")
    return one_of({"1", "1.0", "2.5", "-1", "10", "10.25", "99", ".5", "0", "100", "12.125", "7."});
  if (primitive == "boolean")
    return one_of({"true", "false", "1", "0", " true"});
  if (primitive == "date")
    return one_of({"2024-02-29", "2024-01-01", "2023-12-31", "2000-06-15", "2023-02-29", "2024-01-01Z", "1999-09-09"});
  if (primitive == "dateTime")
    return one_of({"2024-02-29T12:00:00", "2024-01-01T00:00:00Z", "2024-01-01T23:59:59.5", "2024-01-01T00:00:00",
      "2024-01-01T25:00:00"});
  if (primitive == "time")
    return one_of({"12:00:00", "00:00:00Z", "23:59:59.25", "12:60:00"});
  if (primitive == "gYear")
    return one_of({"2024", "1999", "0001", "99"});
  if (primitive == "hexBinary")
    return one_of({"", "00", "ab", "ABCD", "abc", "0123456789"});
  if (primitive == "NCName" || primitive == "ID" || primitive == "IDREF")
    return one_of({"a", "b", "abc", "x1", "y.z", "a-b", "_u", "zz", "n5", "k9"});
  if (primitive == "list" || primitive == "NMTOKENS")
    return one_of({"1", "1 2", "1 2 3", "a b", "a", " 1  2 ", "true false", "2024-01-01", "a b c d e f"});
  if (primitive == "union")
    return one_of({"1", "a", "true", "2024-01-01", "1.5", "abc", "12"});
  return one_of({"a", "b", "abc", "ab", "c", "aabbc", "text", " a b ", "12", "123", "x", ""});
}

// Mostly such that it stays well-formed.
void PairMaker::damage(std::string& document)
{
  std::size_t const end = document.rfind("</");
  std::size_t const from = pick(static_cast<unsigned>(end));
  std::size_t const tag = document.find("<", from + 1);
  switch (pick(5))
  {
  case 0: // an element more
    document.insert(tag, "<" + std::string(names[pick(static_cast<unsigned>(std::size(names)))]) + "/>");
    return;
  case 1: // a text
    document.insert(tag, one_of({"1", "a", " "}));
    return;
  case 2: // another value
    if (std::size_t const at = document.find("='", from); at != std::string::npos && at > document.find('>'))
      document.replace(at + 2, document.find('\'', at + 2) - at - 2, one_of({"", "a", "1"}));
    return;
  case 3: // an attribute more
    if (std::size_t const at = document.find('>', from); at != std::string::npos && at < end)
      if (document.rfind('<', at) + 1 < document.size() && document[document.rfind('<', at) + 1] != '/')
        document.insert(document[at - 1] == '/' ? at - 1 : at, " w='1'");
    return;
  default: // an element less
    if (std::size_t const close = document.find("</", from); close < end)
    {
      std::size_t const open = document.rfind('<', close - 1);
      std::size_t const after = document.find('>', close);
      if (document[open + 1] != '/' && document.find("/>", open) > close)
        document.erase(open, after + 1 - open);
    }
    return;
  }
}
