#include "axmNode.h"

#include "axmElement.h"
#include "axmNamedNodeMap.h"

#include <apDecimalPoint.h>
#include <apStringFormatter.h>
#include <apStringLocaleDoubleParser.h>
#include <apStringLocaleIntParser.h>

#include <cstdio>
#include <new>

namespace
{
// What `operation` says, false when memory runs out: that is a failure like any other here.
template <class Operation>
bool without_throwing(Operation operation)
{
  try
  {
    return operation();
  }
  catch (std::bad_alloc const&)
  {
    return false;
  }
}
}

axmNode::axmNode() = default;
axmNode::~axmNode() = default;

bool axmNode::get_attribute(apString const& name, bool& value) const
{
  apString text;
  if (!get_attribute(name, text))
    return false;
  std::wstring_view const word = text.view();
  bool const is_true = word == L"true" || word == L"1";
  if (!is_true && word != L"false" && word != L"0")
    return false;
  value = is_true;
  return true;
}

bool axmNode::get_attribute(apString const& name, apString& value) const
{
  return without_throwing(
    [&]
    {
      // Handing out the map changes nothing, but its operations are not const.
      std::shared_ptr<axmNamedNodeMap> const attributes = const_cast<axmNode*>(this)->getAttributes();
      if (attributes == nullptr)
        return false;
      std::shared_ptr<axmNode> const attribute = attributes->getNamedItem(name);
      if (attribute == nullptr)
        return false;
      value = attribute->getNodeValue();
      return true;
    });
}

bool axmNode::get_attribute(apString const& name, double& value) const
{
  apString text;
  if (!get_attribute(name, text))
    return false;
  wchar_t const separator = apDecimalPoint::of_locale();
  if (separator == L'.')
    return parse_value_locale(text, value);

  return without_throwing(
    [&]
    {
      apString const locale_point(&separator, 1);
      if (text.find(locale_point) >= 0)
        return false;
      text.replace_all(APSTRING("."), locale_point);
      return parse_value_locale(text, value);
    });
}

bool axmNode::get_attribute(apString const& name, int& value) const
{
  apString text;
  if (!get_attribute(name, text))
    return false;
  apStringLocaleIntParser::Result const parsed = apStringLocaleIntParser::parse(text);
  if (!parsed.success || parsed.position != text.length())
    return false;
  value = parsed.value;
  return true;
}

bool axmNode::set_attribute(apString const& name, bool value)
{
  return without_throwing([&] { return set_attribute(name, value ? APSTRING("true") : APSTRING("false")); });
}

bool axmNode::set_attribute(apString const& name, apString const& value)
{
  auto* const element = dynamic_cast<axmElement*>(this);
  if (element == nullptr)
    return false;
  return without_throwing(
    [&]
    {
      element->setAttribute(name, value);
      return true;
    });
}

bool axmNode::set_attribute(apString const& name, wchar_t const* value)
{
  return without_throwing([&] { return set_attribute(name, apString(value)); });
}

bool axmNode::set_attribute(apString const& name, char const* value)
{
  return without_throwing([&] { return set_attribute(name, apString(value)); });
}

bool axmNode::set_attribute(apString const& name, double value)
{
  return without_throwing([&] { return set_attribute(name, apStringFormatter::format(L"%.16g", value)); });
}

bool axmNode::set_attribute(apString const& name, int value)
{
  return without_throwing([&] { return set_attribute(name, apStringFormatter::format(L"%d", value)); });
}

bool axmNode::set_attribute(apString const& name, unsigned int value)
{
  return without_throwing([&] { return set_attribute(name, apStringFormatter::format(L"%u", value)); });
}

bool axmNode::get_attribute_locale(apString const& name, double& value) const
{
  apString text;
  return get_attribute(name, text) && parse_value_locale(text, value);
}

bool axmNode::set_attribute_locale(apString const& name, double value)
{
  // Sixteen digits, sign, point, exponent: 24 characters, and a decimal point of a few bytes.
  char text[40];
  std::snprintf(text, sizeof text, "%.16g", value);
  return without_throwing([&] { return set_attribute(name, apString(text)); });
}

bool axmNode::parse_value_locale(apString const& text, double& value) const
{
  apStringLocaleDoubleParser::Result const parsed = apStringLocaleDoubleParser::parse(text);
  if (!parsed.success || parsed.position != text.length())
    return false;
  value = parsed.value;
  return true;
}
