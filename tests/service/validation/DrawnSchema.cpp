#include "DrawnSchema.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <sstream>

namespace
{
std::size_t const none = std::string::npos;

// The value of the attribute that comes first; empty if there is none.
std::string value_of(std::string const& text, std::string const& attribute)
{
  std::string const start = " " + attribute + "='";
  std::size_t const at = text.find(start);
  if (at == none)
    return {};
  return text.substr(at + start.size(), text.find('\'', at + start.size()) - at - start.size());
}

std::string facet_of(std::string const& body, std::string const& facet)
{
  std::size_t const at = body.find("<xs:" + facet + " ");
  return at == none ? std::string() : value_of(body.substr(at), "value");
}

// What each of the tags that begin so has.
std::vector<std::string> tags(std::string const& text, std::string const& start)
{
  std::vector<std::string> found;
  for (std::size_t at = text.find(start); at != none; at = text.find(start, at + 1))
    found.push_back(text.substr(at, text.find('>', at) - at));
  return found;
}
}

std::vector<std::string> DrawnSchema::simple_types() const
{
  std::vector<std::string> names;
  for (std::string const& tag : tags(text, "<xs:simpleType name='"))
    names.push_back(value_of(tag, "name"));
  return names;
}

std::vector<DrawnSchema::Attribute> DrawnSchema::attributes() const
{
  std::vector<Attribute> found;
  for (std::string const& tag : tags(text, "<xs:attribute name='"))
    found.push_back({value_of(tag, "type"), tag.find(" default='") != none || tag.find(" fixed='") != none});
  return found;
}

std::string DrawnSchema::body(std::string const& kind, std::string const& name) const
{
  std::size_t const at = text.find("<xs:" + kind + " name='" + name + "'");
  return at == none ? std::string() : text.substr(at, text.find("</xs:" + kind + ">", at) - at);
}

// The types from its base on, the nearest first.
std::vector<std::string> DrawnSchema::restricted_from(std::string const& type) const
{
  std::vector<std::string> bases;
  for (std::string base = value_of(simple_body(type), "base"); !base.empty();
       base = value_of(simple_body(base), "base"))
    bases.push_back(base);
  return bases;
}

bool DrawnSchema::has_default_with(std::string const& token) const
{
  for (std::string const start : {" default='", " fixed='"})
    for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
    {
      std::size_t const value = at + start.size();
      std::string const tokens = ' ' + text.substr(value, text.find('\'', value) - value) + ' ';
      if (tokens.find(' ' + token + ' ') != std::string::npos)
        return true;
    }
  return false;
}

bool DrawnSchema::is_made_of(std::string const& type, std::string const& part) const
{
  std::vector<std::string> waiting{type};
  while (!waiting.empty())
  {
    std::string const at = waiting.back();
    waiting.pop_back();
    if (at == part)
      return true;
    std::string const made = simple_body(at);
    std::istringstream parts(
      value_of(made, "base") + ' ' + value_of(made, "itemType") + ' ' + value_of(made, "memberTypes"));
    for (std::string each; parts >> each;)
      waiting.push_back(each);
  }
  return false;
}

bool DrawnSchema::has_attribute_derived_from_id(bool is_constrained) const
{
  std::vector<Attribute> const all = attributes();
  return std::any_of(all.begin(), all.end(),
    [&](Attribute const& attribute)
    {
      std::vector<std::string> const bases = restricted_from(attribute.type);
      return (attribute.is_constrained || !is_constrained) &&
             std::find(bases.begin(), bases.end(), "xs:ID") != bases.end();
    });
}

bool DrawnSchema::has_attribute_made_of_ids(bool is_constrained) const
{
  std::vector<Attribute> const all = attributes();
  return std::any_of(all.begin(), all.end(),
    [&](Attribute const& attribute)
    {
      std::vector<std::string> const bases = restricted_from(attribute.type);
      bool const is_id = attribute.type == "xs:ID" || std::find(bases.begin(), bases.end(), "xs:ID") != bases.end();
      return (attribute.is_constrained || !is_constrained) && !is_id && is_made_of(attribute.type, "xs:ID");
    });
}

bool DrawnSchema::has_nmtokens_with(std::string const& facet) const
{
  std::vector<std::string> const names = simple_types();
  return std::any_of(names.begin(), names.end(),
    [&](std::string const& name)
    {
      std::vector<std::string> const bases = restricted_from(name);
      return std::find(bases.begin(), bases.end(), "xs:NMTOKENS") != bases.end() &&
             !facet_of(simple_body(name), facet).empty();
    });
}

bool DrawnSchema::has_lower_bound_at_upper_one() const
{
  std::vector<std::string> const names = simple_types();
  return std::any_of(names.begin(), names.end(),
    [this](std::string const& name)
    {
      std::string const lower = facet_of(simple_body(name), "minExclusive");
      std::vector<std::string> types = restricted_from(name);
      types.push_back(name);
      return !lower.empty() && std::any_of(types.begin(), types.end(),
                                 [&](std::string const& type)
                                 {
                                   std::string const upper = facet_of(simple_body(type), "maxInclusive");
                                   return !upper.empty() && std::atof(lower.c_str()) >= std::atof(upper.c_str());
                                 });
    });
}

bool DrawnSchema::has_repeated(std::string const& facet) const
{
  std::vector<std::string> const names = simple_types();
  return std::any_of(names.begin(), names.end(),
    [&](std::string const& name)
    {
      std::string const value = facet_of(simple_body(name), facet);
      std::vector<std::string> const bases = restricted_from(name);
      return !value.empty() && std::any_of(bases.begin(), bases.end(),
                                 [&](std::string const& base) { return facet_of(simple_body(base), facet) == value; });
    });
}

bool DrawnSchema::has_all_extended_by_nothing() const
{
  for (unsigned number = 0; body("complexType", "t" + std::to_string(number)) != ""; ++number)
  {
    std::string type = body("complexType", "t" + std::to_string(number));
    bool is_extended = false;
    while (type.find("<xs:extension base='t") != none && type.find("<xs:sequence") == none &&
           type.find("<xs:choice") == none)
    {
      is_extended = true;
      type = body("complexType", value_of(type, "base"));
    }
    if (is_extended && type.find("<xs:all") != none)
      return true;
  }
  return false;
}
