#include "axsSchemaScan.h"

#include "axsSource.h"
#include "axsXercesParser.h"

#include <axmLoadOptions.h>

#include <algorithm>
#include <cstdlib>

namespace
{
std::string_view const schema_namespace = "http://www.w3.org/2001/XMLSchema";

bool is_group(std::string_view local)
{
  return local == "sequence" || local == "choice" || local == "all" || local == "group";
}

// A number of occurrences; 1 for none and for "unbounded", which is a loop and no repetition.
long occurrences(std::string_view text)
{
  std::string const digits(text);
  return std::clamp(std::strtol(digits.c_str(), nullptr, 10), 1L, axsSchemaScan::most_repetitions + 1);
}
}

axsSchemaScan::axsSchemaScan(axsSource& source)
{
  axsXercesParser::parse(source, axmLoadOptions(), *this);
}

void axsSchemaScan::start_element(axsName const& name)
{
  enter();
  entered = &name;
  entered_place = current_place();
}

void axsSchemaScan::attribute(axsName const& name, std::string_view value)
{
  entered_attributes.emplace_back(&name, value);
}

void axsSchemaScan::end_element()
{
  enter();
  levels.pop_back();
  bindings.resize(levels.empty() ? 0 : levels.back().bindings);
}

// Takes up the element that began, now that its attributes are known.
void axsSchemaScan::enter()
{
  if (entered == nullptr)
    return;
  for (auto const& [name, value] : entered_attributes)
    if (name->utf8() == "xmlns")
      bindings.emplace_back(std::string(), value);
    else if (name->prefix() == "xmlns")
      bindings.emplace_back(name->local(), value);

  bool const is_own = namespace_of(entered->prefix()) == schema_namespace;
  Level level{is_own ? entered->local() : std::string_view(), bindings.size(), 1};
  if (levels.empty())
  {
    if (level.local != "schema")
      fail(APSTRING("This is not a schema: its root element is not \"schema\" of ") +
           apString::from_utf8(schema_namespace));
    target = own_attribute("targetNamespace");
  }
  else
    level.repetitions = levels.back().repetitions;

  if (is_group(level.local))
    level.repetitions *= std::max(occurrences(own_attribute("minOccurs")), occurrences(own_attribute("maxOccurs")));
  if (level.repetitions > most_repetitions)
    fail(APSTRING("The element \"") + entered->wide() + APSTRING("\" repeats a group more than 2000 times"));
  if (levels.size() == 1 && level.local == "attribute")
  {
    std::string_view const use = own_attribute("use");
    if (use == "optional" || use == "required" || use == "prohibited")
      lenient.emplace(entered_place.line, entered_place.column);
  }
  levels.push_back(level);
  if (levels.size() > most_levels)
    fail(APSTRING("The schema is nested more than 500 levels deep"));
  entered = nullptr;
  entered_attributes.clear();
}

std::string_view axsSchemaScan::namespace_of(std::string_view prefix) const
{
  auto const found =
    std::find_if(bindings.rbegin(), bindings.rend(), [&](auto const& binding) { return binding.first == prefix; });
  return found == bindings.rend() ? std::string_view() : found->second;
}

std::string_view axsSchemaScan::own_attribute(std::string_view local) const
{
  auto const found = std::find_if(entered_attributes.begin(), entered_attributes.end(),
    [&](auto const& attribute) { return attribute.first->utf8() == local; });
  return found == entered_attributes.end() ? std::string_view() : found->second;
}

void axsSchemaScan::fail(apString const& message) const
{
  axsReadError error = entered_place;
  error.message = message;
  throw error;
}
