#pragma once

#include "Contender.h"

#include <string>
#include <string_view>
#include <vector>

// Finds the fields of a task in the events of a parser that tells of elements as they come.
class Events
{
public:
  Events(Task const& task, Digest& found) : digest(found)
  {
    open.reserve(64);
    root.push_back(task.root);
  }

  // The element that `equals` says has begun; null if nothing is wanted of it.
  template <class Equals>
  Element const* start(Equals const& equals)
  {
    if (unwanted == 0)
    {
      std::vector<Element> const& among = open.empty() ? root : open.back().element->children;
      std::size_t expected = 0;
      std::size_t& next = open.empty() ? expected : open.back().next;
      std::size_t const found = position_of(among, next, [&](Element const& element) { return equals(element.name); });
      if (found < among.size())
      {
        next = found + among[found].is_single;
        open.push_back({&among[found], 0});
        is_text = among[found].has_text;
        return &among[found];
      }
    }
    ++unwanted;
    is_text = false;
    return nullptr;
  }

  void end()
  {
    if (unwanted > 0)
    {
      --unwanted;
      return;
    }
    if (is_text)
    {
      digest.add_text(open.back().element->text_field(), text);
      text.clear();
      is_text = false;
    }
    open.pop_back();
  }

  void characters(char const* begin, std::size_t length)
  {
    if (is_text)
      text.append(begin, length);
  }

  Digest& digest;

private:
  struct Open
  {
    Element const* element;
    std::size_t next; // where among the children the next one is expected
  };

  std::vector<Element> root;
  std::vector<Open> open;
  std::size_t unwanted = 0; // how many elements are open in which nothing is wanted
  bool is_text = false;
  std::string text;
};
