#include "axsContentSize.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{
// Sizes below it are those of any schema, and cost nothing to speak of.
double const worth_counting = 1000;

std::string group_name(std::string_view name)
{
  return "group " + std::string(name);
}

std::string type_name(std::string_view name)
{
  return "type " + std::string(name);
}
}

// Sums up contents by way of their references, without recursion.
class axsContentSize::Measuring
{
public:
  explicit Measuring(axsContentSize const& measured)
    : contents(measured.contents),
      by_name(measured.by_name),
      sizes(contents.size()),
      states(contents.size(), State::unknown)
  {
  }

  Size const& of(Id wanted)
  {
    std::vector<Id> waiting{wanted};
    while (!waiting.empty())
    {
      Id const id = waiting.back();
      if (states[id] == State::done)
        waiting.pop_back();
      else if (states[id] == State::begun || !has_unmeasured(id, waiting))
      {
        waiting.pop_back();
        measure(id);
      }
      else
        states[id] = State::begun;
    }
    return sizes[wanted];
  }

private:
  enum class State
  {
    unknown,
    begun,
    done
  };

  // Puts what must be measured before on top of those that wait; whether there is something.
  bool has_unmeasured(Id id, std::vector<Id>& waiting) const
  {
    std::size_t const before = waiting.size();
    for (Part const& part : contents[id].parts)
    {
      auto const other = by_name.find(part.name);
      if (other != by_name.end() && states[other->second] == State::unknown)
        waiting.push_back(other->second);
    }
    return waiting.size() != before;
  }

  void measure(Id id)
  {
    Size& size = sizes[id];
    size.repeats = contents[id].repeats;
    for (Part const& part : contents[id].parts)
    {
      // What refers to itself, as in a redefinition, counts as one element, and so does what is not known.
      auto const other = by_name.find(part.name);
      bool const known = other != by_name.end() && states[other->second] == State::done;
      Size const one{1, 1, false};
      Size const& referred = known ? sizes[other->second] : one;
      size.written_out += part.times * referred.written_out;
      size.once += referred.once;
      size.repeats = size.repeats || referred.repeats;
    }
    states[id] = State::done;
  }

  std::vector<Content> const& contents;
  std::unordered_map<std::string, Id> const& by_name;
  std::vector<Size> sizes;
  std::vector<State> states;
};

axsContentSize::Id axsContentSize::add_group(std::string_view name, axsReadError const& place)
{
  auto const [known, is_new] = by_name.try_emplace(group_name(name), contents.size());
  return is_new ? add(place, false) : known->second;
}

axsContentSize::Id axsContentSize::add_type(std::string_view name, axsReadError const& place)
{
  if (name.empty())
    return add(place, true);
  auto const [known, is_new] = by_name.try_emplace(type_name(name), contents.size());
  return is_new ? add(place, true) : known->second;
}

axsContentSize::Id axsContentSize::add(axsReadError const& place, bool is_type)
{
  Content content;
  content.place = place;
  content.is_type = is_type;
  contents.push_back(std::move(content));
  return contents.size() - 1;
}

void axsContentSize::add_element(Id content, double times)
{
  contents[content].parts.push_back({std::string(), times});
}

void axsContentSize::add_group_reference(Id content, std::string_view name, double times)
{
  contents[content].parts.push_back({group_name(name), times});
}

void axsContentSize::add_base_type(Id content, std::string_view name)
{
  contents[content].parts.push_back({type_name(name), 1});
}

void axsContentSize::check() const
{
  Measuring measuring(*this);
  double squares = 0;
  double largest = 0;
  Content const* where = nullptr;
  for (Id id = 0; id < contents.size(); ++id)
  {
    double const size = contents[id].is_type ? measuring.of(id).value() : 0;
    if (size < worth_counting)
      continue;
    squares += size * size;
    if (size > largest)
    {
      largest = size;
      where = &contents[id];
    }
  }
  if (std::sqrt(squares) <= most)
    return;
  axsReadError error = where->place;
  error.message =
    APSTRING("Written out, the contents that this schema repeats have more than 10000 elements, which takes "
             "too long to validate");
  throw error;
}
