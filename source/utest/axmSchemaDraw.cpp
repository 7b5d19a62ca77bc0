#include "axmSchemaDraw.h"

#include "model/axmModelRandom.h"

#include <algorithm>
#include <set>
#include <string>

using namespace axmSchemaTables;

namespace
{
constexpr int unbounded = -1;

// A particle of a content model (XML Schema Part 1, 3.9): an element by its name, or a group of others.
struct Particle
{
  char name = 0;
  bool is_choice = false;
  int min = 1;
  int max = 1;
  std::vector<Particle> parts;
};

using Places = std::set<std::size_t>;

Places after(Particle const& particle, std::string const& row, Places const& from);

// Where a particle that comes once may end.
Places after_once(Particle const& particle, std::string const& row, Places const& from)
{
  Places ends;
  if (particle.name != 0)
  {
    for (std::size_t const place : from)
      if (place < row.size() && row[place] == particle.name)
        ends.insert(place + 1);
    return ends;
  }
  if (!particle.is_choice)
  {
    ends = from;
    for (Particle const& part : particle.parts)
      ends = after(part, row, ends);
    return ends;
  }
  for (Particle const& part : particle.parts)
    ends.merge(after(part, row, from));
  return ends;
}

// Where it may end as often as it may come. More often than there are elements it need not be tried.
Places after(Particle const& particle, std::string const& row, Places const& from)
{
  int const rest = static_cast<int>(row.size()) + particle.min;
  int const max = particle.max == unbounded ? rest : particle.max;
  Places ends;
  Places places = from;
  for (int count = 0; count <= max && !places.empty(); ++count)
  {
    if (count >= particle.min)
      ends.insert(places.begin(), places.end());
    places = after_once(particle, row, places);
  }
  return ends;
}

std::string occurrence(Particle const& particle)
{
  std::string text;
  if (particle.min != 1)
    text += " minOccurs='" + std::to_string(particle.min) + "'";
  if (particle.max != 1)
    text += " maxOccurs='" + (particle.max == unbounded ? "unbounded" : std::to_string(particle.max)) + "'";
  return text;
}

std::string written(Particle const& particle)
{
  if (particle.name != 0)
    return std::string("<xs:element name='") + particle.name + "'" + occurrence(particle) + "/>";
  std::string const kind = particle.is_choice ? "xs:choice" : "xs:sequence";
  std::string text = "<" + kind + occurrence(particle) + ">";
  for (Particle const& part : particle.parts)
    text += written(part);
  return text + "</" + kind + ">";
}

void draw_occurrence(Particle& particle, axmModelRandom& random)
{
  static constexpr int ranges[][2] = {{0, 1}, {0, unbounded}, {1, unbounded}, {2, 2}, {0, 2}, {2, 3}};
  auto const& range = random.one_of(ranges);
  particle.min = range[0];
  particle.max = range[1];
}

// Each of two things there are in a content model of a group in a group.
struct Shape
{
  bool is_choice;
  bool is_inner_choice;
  bool is_inner_first;
  bool is_once;
  bool is_inner_once;
};

std::vector<Shape> shapes()
{
  std::vector<Shape> found;
  for (unsigned bits = 0; bits < 32; ++bits)
    found.push_back({(bits & 1U) != 0, (bits & 2U) != 0, (bits & 4U) != 0, (bits & 8U) != 0, (bits & 16U) != 0});
  return found;
}

// Three elements, two of them in the inner group. Each has a name of its own, so that an element is always of one particle.
Particle drawn(Shape const& shape, axmModelRandom& random)
{
  Particle top;
  top.is_choice = shape.is_choice;
  if (!shape.is_once)
    draw_occurrence(top, random);
  Particle inner;
  inner.is_choice = shape.is_inner_choice;
  if (!shape.is_inner_once)
    draw_occurrence(inner, random);
  Particle lone;
  for (char const name : {'a', 'b', 'c'})
  {
    Particle element;
    element.name = name;
    if (random.once_in(2))
      draw_occurrence(element, random);
    bool const is_lone = name == (shape.is_inner_first ? 'c' : 'a');
    if (is_lone)
      lone = element;
    else
      inner.parts.push_back(element);
  }
  top.parts = shape.is_inner_first ? std::vector<Particle>{inner, lone} : std::vector<Particle>{lone, inner};
  return top;
}

// Every row of up to four of the elements from a to `last`.
std::vector<std::string> rows(char last)
{
  std::vector<std::string> found = {""};
  for (std::size_t at = 0; at < found.size(); ++at)
    for (char name = 'a'; name <= last && found[at].size() < 4; ++name)
      found.push_back(found[at] + name);
  return found;
}

std::string document_of(std::string const& row)
{
  std::string text = "<r>";
  for (char const name : row)
    text += std::string("<") + name + "/>";
  return text + "</r>";
}

std::string root_of(std::string const& inside)
{
  return "<xs:element name='r'><xs:complexType>" + inside + "</xs:complexType></xs:element>";
}
}

std::vector<Rule> axmSchemaDraw::contents()
{
  axmModelRandom random(20260101);
  std::vector<std::string> const every_row = rows('c');
  std::vector<Rule> rules;
  for (Shape const& shape : shapes())
  {
    Particle const top = drawn(shape, random);
    Rule rule{root_of(written(top)), {}, {}};
    for (std::string const& row : every_row)
      (after(top, row, {0}).count(row.size()) != 0 ? rule.valid : rule.invalid).push_back(document_of(row));
    rules.push_back(rule);
  }
  return rules;
}

namespace
{
constexpr unsigned members_of_all = 4;

// A group of all of the elements from a on, in which those may be missing whose bit is set.
std::string written_all(unsigned optional, bool may_be_empty)
{
  std::string text = may_be_empty ? "<xs:all minOccurs='0'>" : "<xs:all>";
  for (unsigned index = 0; index < members_of_all; ++index)
    text += std::string("<xs:element name='") + static_cast<char>('a' + index) +
            ((optional >> index & 1U) != 0 ? "' minOccurs='0'/>" : "'/>");
  return text + "</xs:all>";
}

bool is_row_of_all(std::string const& row, unsigned optional)
{
  for (unsigned index = 0; index < members_of_all; ++index)
  {
    auto const count = std::count(row.begin(), row.end(), static_cast<char>('a' + index));
    if (count > 1 || (count == 0 && (optional >> index & 1U) == 0))
      return false;
  }
  return true;
}
}

std::vector<Rule> axmSchemaDraw::groups_of_all()
{
  std::vector<std::string> const every_row = rows('d');
  std::vector<Rule> rules;
  for (unsigned optional = 0; optional < 16; optional += 5)
    for (bool const may_be_empty : {false, true})
    {
      Rule rule{root_of(written_all(optional, may_be_empty)), {}, {}};
      for (std::string const& row : every_row)
      {
        bool const is_valid = is_row_of_all(row, optional) || (row.empty() && may_be_empty);
        (is_valid ? rule.valid : rule.invalid).push_back(document_of(row));
      }
      rules.push_back(rule);
    }
  return rules;
}

Rule axmSchemaDraw::nils()
{
  Rule rule{"<xs:element name='n' type='xs:int' nillable='true'/><xs:element name='o' type='xs:int'/><xs:element "
            "name='p' type='xs:int' nillable='false'/><xs:element name='f' type='xs:int' nillable='true' "
            "fixed='1'/><xs:element name='c' nillable='true'><xs:complexType><xs:sequence><xs:element "
            "name='x'/></xs:sequence><xs:attribute name='k' use='required'/></xs:complexType></xs:element>",
    {}, {}};
  auto const add = [&rule](
                     std::string const& name, std::string const& attributes, std::string const& content, bool is_valid)
  { (is_valid ? rule.valid : rule.invalid).push_back("<" + name + attributes + ">" + content + "</" + name + ">"); };
  for (std::string const value :
    {"true", "1", " true ", "1 ", "false", "0", " 0", "", "TRUE", "yes", "2", "true false"})
  {
    std::string const nil = " xsi:nil='" + value + "'";
    bool const is_true = value.find("true") <= 1 && value.size() < 7 ? true : value == "1" || value == "1 ";
    bool const is_false = value == "false" || value == "0" || value == " 0";
    for (char const* const content : {"", "<!--1-->", "<?p 1?>"})
    {
      add("n", nil, content, is_true);
      add("c", nil + " k=''", content, is_true);
      add("c", nil, content, false);
      add("f", nil, content, is_false);
    }
    for (char const* const content : {"1", "<!---->1", "1<?p?>"})
    {
      add("n", nil, content, is_false);
      add("f", nil, content, is_false);
    }
    add("c", nil + " k=''", "<x/>", is_false);
    add("c", nil, "<x/>", false);
    for (char const* const name : {"o", "p"})
      for (char const* const content : {"", "1"})
        add(name, nil, content, false);
  }
  return rule;
}

std::vector<axmSchemaDraw::Forms> axmSchemaDraw::forms()
{
  char const* const values[] = {"", "qualified", "unqualified"};
  auto const said = [](char const* name, std::string const& value)
  { return value.empty() ? std::string() : std::string(" ") + name + "='" + value + "'"; };
  auto const is_qualified = [](std::string const& own, std::string const& of_all)
  { return own.empty() ? of_all == "qualified" : own == "qualified"; };
  std::vector<Forms> found;
  for (char const* const elements : values)
    for (char const* const attributes : values)
      for (char const* const element : values)
        for (char const* const attribute : values)
          found.push_back(
            {"<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:o'" +
                said("elementFormDefault", elements) + said("attributeFormDefault", attributes) + ">" +
                root_of("<xs:sequence><xs:element name='e'" + said("form", element) +
                        "/></xs:sequence><xs:attribute name='a' use='required'" + said("form", attribute) + "/>") +
                "</xs:schema>",
              is_qualified(element, elements), is_qualified(attribute, attributes)});
  return found;
}
