#include "axsSchemaScan.h"

#include "axsPatternCheck.h"
#include "axsSource.h"
#include "axsXercesParser.h"

#include <axmLoadOptions.h>

#include <algorithm>
#include <cstdlib>

namespace
{
std::string_view const schema_namespace = "http://www.w3.org/2001/XMLSchema";

axsContentSize::Id const no_content = static_cast<axsContentSize::Id>(-1);

bool is_group(std::string_view local)
{
  return local == "sequence" || local == "choice" || local == "all";
}

// A number of occurrences; 1 for none and for "unbounded", which is a loop and no repetition.
double occurrences(std::string_view text)
{
  std::string const digits(text);
  return std::max(std::strtod(digits.c_str(), nullptr), 1.0);
}

// Without its prefix.
std::string_view local_part(std::string_view name)
{
  return name.substr(name.find(':') + 1);
}
}

axsSchemaScan::axsSchemaScan(axsSource& source, axsContentSize& sizes) : content_sizes(sizes)
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
  Level level{is_own ? entered->local() : std::string_view(), bindings.size(), no_content, 1};
  if (levels.empty())
  {
    if (level.local != "schema")
      fail(APSTRING("This is not a schema: its root element is not \"schema\" of ") +
           apString::from_utf8(schema_namespace));
    target = own_attribute("targetNamespace");
  }
  else
    enter_content(level);
  if (levels.size() == 1 && level.local == "attribute")
  {
    std::string_view const use = own_attribute("use");
    if (use == "optional" || use == "required" || use == "prohibited")
      lenient.emplace(entered_place.line, entered_place.column);
  }
  if (level.local == "pattern")
    if (char const* const fault = axsPatternCheck::fault(own_attribute("value")))
      fail(apString(fault));
  levels.push_back(level);
  if (levels.size() > most_levels)
    fail(APSTRING("The schema is nested more than 500 levels deep"));
  entered = nullptr;
  entered_attributes.clear();
}

// What the element means for the size of the content that it stands in.
void axsSchemaScan::enter_content(Level& level)
{
  level.content = levels.back().content;
  level.repetitions = levels.back().repetitions;
  double const times =
    std::max(occurrences(own_attribute("minOccurs")), occurrences(own_attribute("maxOccurs"))) * level.repetitions;
  std::string_view const reference = own_attribute("ref");

  if (level.local == "complexType")
    level.content = content_sizes.add_type(own_attribute("name"), entered_place);
  else if (level.local == "group" && reference.empty())
    level.content = content_sizes.add_group(own_attribute("name"), entered_place);
  else if (level.content != no_content)
  {
    if (level.local == "element" || level.local == "any")
      content_sizes.add_element(level.content, times);
    else if (level.local == "extension")
      content_sizes.add_base_type(level.content, local_part(own_attribute("base")));
    else if (level.local == "group")
      content_sizes.add_group_reference(level.content, local_part(reference), times);
    else if (is_group(level.local))
      level.repetitions = times;
    else
      return;
    if ((level.local == "group" || is_group(level.local)) && times > levels.back().repetitions)
      content_sizes.set_repeating(level.content);
    return;
  }
  level.repetitions = 1;
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
