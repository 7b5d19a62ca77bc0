#pragma once

#include "axmElement.h"
#include "axmUtf8.h"

#include <charconv>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

namespace axm
{
/// The names that the values of an enumeration have in a document.
template <class Enum>
using enum_names = std::initializer_list<std::pair<std::string_view, Enum>>;

/// A value read from text, none if the whole of `text` is no such value. Integers are decimal, of any size, and one that
/// does not fit is none; bool and double are as axmNode::get_attribute has them.
template <class T>
std::optional<T> value_of(std::string_view text)
{
  if constexpr (std::is_same_v<T, std::string>)
    return std::string(text);
  else if constexpr (std::is_same_v<T, apString>)
    return wide(text);
  else if constexpr (std::is_same_v<T, bool>)
  {
    if (text == "true" || text == "1")
      return true;
    return text == "false" || text == "0" ? std::optional<bool>(false) : std::nullopt;
  }
  else
  {
    static_assert(std::is_arithmetic_v<T>, "values are read as bool, numbers, std::string or apString; an "
                                           "enumeration needs the names of its values as a third argument");
    // A plus is read as well, which the standard library does not do, and no minus after it.
    bool const has_plus = !text.empty() && text.front() == '+';
    text.remove_prefix(has_plus ? 1 : 0);
    if (has_plus && !text.empty() && text.front() == '-')
      return std::nullopt;
    T value{};
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional<T>(value) : std::nullopt;
  }
}

/// The attribute `name` of `node` as a T: none where it is absent, is no T, or `node` is no element.
///
///     int const year = axm::attribute<int>(*book, "year").value_or(0);
template <class T>
std::optional<T> attribute(axmNode const& node, std::string_view name)
{
  apString text;
  if (!node.get_attribute(wide(name), text))
    return std::nullopt;
  return value_of<T>(text.to_utf8().view());
}

/// The same of an enumeration, by the names of its values.
template <class Enum>
std::optional<Enum> attribute(axmNode const& node, std::string_view name, enum_names<Enum> names)
{
  apString text;
  if (!node.get_attribute(wide(name), text))
    return std::nullopt;
  utString const narrow_text = text.to_utf8();
  for (auto const& [spelling, value] : names)
    if (narrow_text.view() == spelling)
      return value;
  return std::nullopt;
}

/// The same of a node that is held; none of an empty pointer.
template <class T, class Node>
std::optional<T> attribute(std::shared_ptr<Node> const& node, std::string_view name)
{
  return node == nullptr ? std::nullopt : attribute<T>(*node, name);
}

template <class Enum, class Node>
std::optional<Enum> attribute(std::shared_ptr<Node> const& node, std::string_view name, enum_names<Enum> names)
{
  return node == nullptr ? std::nullopt : attribute<Enum>(*node, name, names);
}

/// Sets the attribute `name` of an element. False, with nothing changed, where `node` is none. A text is UTF-8 or an
/// apString; a double is written so that it comes back as itself.
template <class T>
bool set_attribute(axmNode& node, std::string_view name, T const& value)
{
  if constexpr (std::is_same_v<T, apString>)
    return node.set_attribute(wide(name), value);
  else if constexpr (std::is_convertible_v<T const&, std::string_view>)
    return node.set_attribute(wide(name), wide(value));
  else if constexpr (std::is_same_v<T, bool>)
    return node.set_attribute(wide(name), value);
  else
  {
    static_assert(std::is_arithmetic_v<T>,
      "attributes are set to texts, bool and numbers; an enumeration needs the names "
      "of its values as a fourth argument");
    char text[64];
    auto const [end, error] = std::to_chars(text, text + sizeof text, value);
    return error == std::errc() && node.set_attribute(wide(name), wide({text, static_cast<std::size_t>(end - text)}));
  }
}

/// The same of an enumeration, by the names of its values; false as well for a value that has none.
template <class Enum>
bool set_attribute(axmNode& node, std::string_view name, Enum value, enum_names<Enum> names)
{
  for (auto const& [spelling, named] : names)
    if (named == value)
      return node.set_attribute(wide(name), wide(spelling));
  return false;
}

/// The same of a node that is held; false of an empty pointer.
template <class Node, class T>
bool set_attribute(std::shared_ptr<Node> const& node, std::string_view name, T const& value)
{
  return node != nullptr && set_attribute(*node, name, value);
}

template <class Node, class Enum>
bool set_attribute(std::shared_ptr<Node> const& node, std::string_view name, Enum value, enum_names<Enum> names)
{
  return node != nullptr && set_attribute(*node, name, value, names);
}
}
