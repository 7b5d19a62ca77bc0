// Faults of typed access that show in few texts only.

#include "Outside.h"

#include <climits>
#include <clocale>
#include <cmath>
#include <string_view>

namespace
{
bool is_comma_locale()
{
  return std::localeconv()->decimal_point[0] == ',';
}

apString value_of(Node const& node, apString const& name)
{
  apString value;
  return node->get_attribute(name, value) ? value : apString();
}
}

std::vector<Fault> const& outside_third_typed_faults()
{
  static std::vector<Fault> const faults = {
    {"get_attribute", "a number of more than eleven characters is no int",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        { return value_of(n, name).view().size() <= 11 && n->get_attribute(name, value); };
      }},
    {"get_attribute", "an int that is too large leaves the largest one",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          bool const is_read = n->get_attribute(name, value);
          double number = 0;
          if (!is_read && n->get_attribute(name, number) && number > INT_MAX)
            value = INT_MAX;
          return is_read;
        };
      }},
    {"get_attribute", "an int may have digits of Arabic",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString const text = value_of(n, name);
          bool const is_arabic = text.view().size() == 1 && text.view()[0] >= 0x660 && text.view()[0] <= 0x669;
          if (is_arabic)
            value = static_cast<int>(text.view()[0]) - 0x660;
          return is_arabic || n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "the least int of all is too small",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          int read = 0;
          bool const is_read = n->get_attribute(name, read) && read != INT_MIN;
          value = is_read ? read : value;
          return is_read;
        };
      }},
    {"get_attribute", "a double too small for a normal one is refused",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          double read = 0;
          bool const is_small = n->get_attribute(name, read) && std::fpclassify(read) == FP_SUBNORMAL;
          return !is_small && n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "a hexadecimal double needs its exponent",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          apString const text = lower_case(value_of(n, name));
          return !(has(text, L"0x") && !has(text, L"p")) && n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "under a comma an exponent after a point is not read",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          apString const text = lower_case(value_of(n, name));
          return !(is_comma_locale() && has(text, L".") && has(text, L"e")) && n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "a double of which the beginning is read is kept, and told as none",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          bool const is_read = n->get_attribute(name, value);
          apString const text = value_of(n, name);
          if (!is_read && !text.empty() && text.view().back() == L' ' && text.view()[0] >= L'0' &&
              text.view()[0] <= L'9')
            value = text.view()[0] - L'0';
          return is_read;
        };
      }},
    {"get_attribute", "a bool may have a plus",
      [](Hooks& h)
      {
        h.get_bool = [](Node const& n, apString const& name, bool& value)
        {
          bool const is_plus = value_of(n, name) == APSTRING("+1");
          value = is_plus || value;
          return is_plus || n->get_attribute(name, value);
        };
      }},
    {"set_attribute", "zero below zero is written as zero",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, value == 0 ? 0.0 : value); };
      }},
    {"set_attribute", "an exponent has no plus",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        {
          bool const is_set = n->set_attribute(name, value);
          return is_set ? n->set_attribute(name, replaced(value_of(n, name), APSTRING("e+"), APSTRING("e"))) : is_set;
        };
      }},
    {"set_attribute", "an int of an attribute with a prefix is written with a plus",
      [](Hooks& h)
      {
        h.set_int = [](Node const& n, apString const& name, int value)
        {
          bool const is_set = n->set_attribute(name, value);
          return is_set && value > 0 && has(name, L":") ? n->set_attribute(name, APSTRING("+") + value_of(n, name))
                                                        : is_set;
        };
      }},
    {"set_attribute", "what is told is whether the value is another one",
      [](Hooks& h)
      {
        h.set_unsigned = [](Node const& n, apString const& name, unsigned int value)
        {
          apString const before = value_of(n, name);
          return n->set_attribute(name, value) && value_of(n, name) != before;
        };
      }},
    {"get_attribute_locale", "under a comma a point will do, too",
      [](Hooks& h)
      {
        h.get_locale = [](Node const& n, apString const& name, double& value)
        { return n->get_attribute_locale(name, value) || (is_comma_locale() && n->get_attribute(name, value)); };
      }},
    {"get_attribute_locale", "under a comma an exponent is not read",
      [](Hooks& h)
      {
        h.get_locale = [](Node const& n, apString const& name, double& value)
        {
          apString const text = lower_case(value_of(n, name));
          return !(is_comma_locale() && has(text, L",") && has(text, L"e")) && n->get_attribute_locale(name, value);
        };
      }},
    {"set_attribute_locale", "fifteen digits",
      [](Hooks& h)
      {
        h.set_locale = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, written(value, 15)); };
      }},
    {"set_attribute", "an infinity below zero is written without its sign",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return n->set_attribute(name, std::isinf(value) ? std::fabs(value) : value); };
      }},
  };
  return faults;
}
