#include "axsValueFault.h"

#include "axsUtf16.h"

#include <xercesc/util/RefArrayVectorOf.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/schema/SchemaSymbols.hpp>

#include <cstddef>

namespace
{
using Type = xercesc::DatatypeValidator;

std::size_t const longest_shown = 100;
XMLSize_t const most_listed = 12;

// The value as its type sees it.
std::basic_string<XMLCh> normalised(XMLCh const* value, Type const& type)
{
  std::basic_string<XMLCh> text(value);
  if (type.getWSFacet() == Type::COLLAPSE)
    xercesc::XMLString::collapseWS(text.data());
  else if (type.getWSFacet() == Type::REPLACE)
    xercesc::XMLString::replaceWS(text.data());
  // What was collapsed ends at a NUL.
  return text.c_str(); // NOLINT(readability-redundant-string-cstr)
}

bool is_tail(char c)
{
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The beginning of a long text.
std::string shown(XMLCh const* value)
{
  std::string text = axsUtf16::to_utf8(value);
  if (text.size() <= longest_shown)
    return text;
  std::size_t end = longest_shown;
  while (is_tail(text[end]))
    --end;
  return text.substr(0, end) + "...";
}

bool is_built_in(Type const& type)
{
  return xercesc::XMLString::equals(type.getTypeUri(), xercesc::SchemaSymbols::fgURI_SCHEMAFORSCHEMA);
}

// The type of the schema language from which it is made; null for lists and unions.
Type* built_in_of(Type& type)
{
  Type* at = &type;
  while (at != nullptr && !is_built_in(*at))
    at = at->getType() == Type::List || at->getType() == Type::Union ? nullptr : at->getBaseValidator();
  return at;
}

struct Example
{
  char const* type;
  char const* text;
};

// For the types that are written otherwise elsewhere.
Example const examples[] = {{"decimal", "1.5"}, {"double", "1.5"}, {"float", "1.5"}, {"date", "2024-12-31"},
  {"dateTime", "2024-12-31T23:59:00"}, {"time", "23:59:00"}, {"duration", "P1DT2H30M"}, {"gYear", "2024"},
  {"gYearMonth", "2024-12"}, {"gMonth", "--12"}, {"gMonthDay", "--12-31"}, {"gDay", "---31"}};

std::string example_of(std::string const& built_in)
{
  if (built_in == "boolean")
    return ", which is true, false, 1 or 0";
  for (Example const& example : examples)
    if (built_in == example.type)
      return std::string(", as in ") + example.text;
  return std::string();
}

std::string local_name(Type const& type)
{
  return axsUtf16::to_utf8(type.getTypeLocalName());
}

// The types that schemas do not name are named by the validator.
bool has_name(Type const& type)
{
  return !type.getAnonymous() && type.getTypeLocalName() != nullptr && *type.getTypeLocalName() != 0 &&
         local_name(type).compare(0, 2, "__") != 0;
}

std::string values_of(Type const& type)
{
  auto const* const values = type.getEnumString();
  if (values == nullptr || values->size() == 0 || values->size() > most_listed)
    return "the values listed in the schema";
  std::string list;
  for (XMLSize_t i = 0; i < values->size(); ++i)
    list += (i == 0 ? "'" : ", '") + shown(values->elementAt(i)) + "'";
  return list;
}

// What the type asks for beyond what the one does from which it is made.
std::string facet(Type const& type, std::basic_string<XMLCh> const& value, unsigned int code, std::string const& text)
{
  if (code == xercesc::XMLExcepts::VALUE_NotIn_Enumeration)
    return "it is none of " + values_of(type);
  std::string const start = "value '" + axsUtf16::to_utf8(value.c_str()) + "' ";
  std::string rule = text.compare(0, start.size(), start) == 0 ? "it " + text.substr(start.size()) : text;
  std::string const pattern = "regular expression facet";
  std::size_t const at = rule.rfind("does not match " + pattern + " '");
  if (at != std::string::npos)
    rule.replace(rule.find(pattern, at), pattern.size(), "the pattern");
  return rule;
}

// Whether the validator's text says more than that it is no such value.
bool is_about_range(unsigned int code, std::string const& text)
{
  switch (code)
  {
  case xercesc::XMLExcepts::VALUE_exceed_maxIncl:
  case xercesc::XMLExcepts::VALUE_exceed_maxExcl:
  case xercesc::XMLExcepts::VALUE_exceed_minIncl:
  case xercesc::XMLExcepts::VALUE_exceed_minExcl:
    return true;
  default:
    return text.find("must be between") != std::string::npos; // parts of dates and times
  }
}
}

bool axsValueFault::is_of(Type& type, XMLCh const* value, xercesc::MemoryManager& memory)
try
{
  type.validate(normalised(value, type).c_str(), nullptr, &memory);
  return true;
}
catch (xercesc::XMLException const&)
{
  return false;
}

std::string axsValueFault::words(
  Type& type, XMLCh const* value, unsigned int code, std::string const& text, xercesc::MemoryManager& memory)
{
  std::string const subject = "\"" + shown(value) + "\" is not ";
  Type* const built_in = built_in_of(type);
  if (built_in != nullptr && !is_of(*built_in, value, memory))
  {
    std::string const name = "xs:" + local_name(*built_in);
    std::string const of =
      built_in != &type && has_name(type) ? "'" + local_name(type) + "', which is made from " + name : name;
    return subject + "of the type " + of +
           (is_about_range(code, text) ? ": " + facet(type, normalised(value, type), code, text)
                                       : example_of(local_name(*built_in)));
  }
  return subject + (has_name(type) ? "of the type '" + local_name(type) + "': " : "allowed: ") +
         facet(type, normalised(value, type), code, text);
}

std::string axsValueFault::with_value(std::string const& text, XMLCh const* value)
{
  std::string const wanted = shown(value);
  return text.find(wanted) == std::string::npos ? text + ", in \"" + wanted + "\"" : text;
}

std::string axsValueFault::shortened(std::string const& text)
{
  if (text.size() <= 4 * longest_shown)
    return text;
  std::size_t first = longest_shown;
  std::size_t last = text.size() - longest_shown;
  while (is_tail(text[first]))
    --first;
  while (last < text.size() && is_tail(text[last]))
    ++last;
  return text.substr(0, first) + "..." + text.substr(last);
}
