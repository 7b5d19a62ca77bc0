#pragma once

#include "RowTask.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Finds the rows of a task in the events of a parser that tells of elements as they come.
class RowMatch
{
public:
  using Wanted = RowTask::Wanted;

  RowMatch(RowTask const& given, RowDigest& found) : task(given), digest(found), values(given.columns.size()) {}

  // An element begins; null if nothing is wanted of it, or nothing of its attributes.
  Wanted const* start(std::string_view name)
  {
    if (passed > 0)
      return ++passed, nullptr;
    if (!open.empty())
      return start_child(name);
    if (name != task.path[depth])
      return passed = 1, nullptr;
    if (depth + 1 < task.path.size())
      return ++depth, nullptr;
    for (Value& value : values)
      value.state = Value::none;
    return enter(task.record);
  }

  void attribute(Wanted const& element, std::string_view name, std::string_view text)
  {
    for (Wanted::Attribute const& attribute : element.attributes)
      if (attribute.name == name && values[attribute.column].state == Value::none)
      {
        values[attribute.column].text = text;
        values[attribute.column].state = Value::closed;
      }
  }

  void end()
  {
    if (passed > 0)
    {
      --passed;
      return;
    }
    if (open.empty())
    {
      --depth;
      return;
    }
    for (std::size_t const column : open.back()->texts)
      values[column].state = Value::closed;
    open.pop_back();
    if (open.empty())
      end_record();
  }

  void characters(char const* begin, std::size_t length)
  {
    if (passed > 0 || open.empty())
      return;
    for (std::size_t const column : open.back()->texts)
      if (values[column].state == Value::open)
        values[column].text.append(begin, length);
  }

private:
  struct Value
  {
    enum State
    {
      none,
      open,
      closed
    };

    std::string text;
    State state = none;
  };

  Wanted const* start_child(std::string_view name)
  {
    for (Wanted const& child : open.back()->children)
      if (child.name == name)
        return enter(child);
    passed = 1;
    return nullptr;
  }

  Wanted const* enter(Wanted const& element)
  {
    open.push_back(&element);
    for (std::size_t const column : element.texts)
      if (values[column].state == Value::none)
      {
        values[column].text.clear();
        values[column].state = Value::open;
      }
    return element.attributes.empty() ? nullptr : &element;
  }

  void end_record()
  {
    digest.begin_row();
    for (std::size_t i = 0; i < values.size(); ++i)
      if (values[i].state == Value::none)
        digest.add(i, {});
      else
        digest.add(i, values[i].text);
  }

  RowTask const& task;
  RowDigest& digest;
  std::vector<Value> values;
  std::size_t depth = 0;    // of the path
  std::uint64_t passed = 0; // how many elements are open of which nothing is wanted
  std::vector<Wanted const*> open;
};
