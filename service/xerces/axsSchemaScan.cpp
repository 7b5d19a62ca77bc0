#include "axsSchemaScan.h"

#include "axsLocator.h"
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

void axsSchemaScan::start_element(axsStartTag const& tag)
{
  entered_place = locator->error(apString(), locator->end());
  entered_attributes = tag.attributes;
  bool const is_own = tag.name_space == schema_namespace;
  Level level{is_own ? tag.name->local() : std::string_view(), no_content, 1};
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

std::string_view axsSchemaScan::own_attribute(std::string_view local) const
{
  auto const found = std::find_if(entered_attributes->begin(), entered_attributes->end(),
    [&](axsTagAttribute const& attribute) { return attribute.name->utf8() == local; });
  return found == entered_attributes->end() ? std::string_view() : found->value;
}

void axsSchemaScan::fail(apString const& message) const
{
  axsReadError error = entered_place;
  error.message = message;
  throw error;
}
