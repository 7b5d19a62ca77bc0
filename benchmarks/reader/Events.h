#pragma once

#include "Task.h"

// Finds the fields of a task in the events of a parser that tells of elements as they come.
class Events
{
public:
  Events(Task const& wanted, Digest& found) : task(wanted), digest(found) {}

  // To be told of every element. Whether its attributes are wanted.
  bool start(std::string_view name)
  {
    bool const is_record_start = on_path == depth && depth + 1 == task.path.size() && name == task.path[depth];
    if (on_path == depth && depth < task.path.size() && name == task.path[depth])
      ++on_path;
    else if (on_path == depth && depth == task.path.size())
      for (std::string const& child : task.children)
        if (name == child)
          collecting = true;
    ++depth;
    return is_record_start;
  }

  void end()
  {
    --depth;
    if (on_path > depth)
      on_path = depth;
    if (!collecting)
      return;
    digest.add(text);
    text.clear();
    collecting = false;
  }

  void characters(std::string_view characters)
  {
    if (collecting)
      text += characters;
  }

  Task const& task;
  Digest& digest;

private:
  std::size_t depth = 0;
  std::size_t on_path = 0; // how many of the elements that are open are those of the path
  bool collecting = false;
  std::string text;
};
