#include "axsOutlineHandler.h"

#include "axsName.h"
#include "axsStartTag.h"

void axsOutlineHandler::begin()
{
  open.clear();
  open_without_path = 0;
}

void axsOutlineHandler::start_element(axsStartTag const& tag)
{
  std::size_t const parent = open.empty() ? none : open.back().path;
  std::size_t const path = open_without_path > 0 ? none : find_path(parent, *tag.name);
  if (path == none)
  {
    ++open_without_path;
    ++passed;
    return;
  }
  ++all[path].count;
  for (axsTagAttribute const& attribute : *tag.attributes)
    count_attribute(path, *attribute.name, 1);
  open.push_back({path, false});
}

void axsOutlineHandler::end_element()
{
  if (open_without_path > 0)
  {
    --open_without_path;
    return;
  }
  all[open.back().path].texts += open.back().has_text ? 1 : 0;
  open.pop_back();
}

void axsOutlineHandler::text(std::string_view text, bool)
{
  bool const is_space = text.find_first_not_of(" \t\r\n") == std::string_view::npos;
  if (!is_space && open_without_path == 0 && !open.empty())
    open.back().has_text = true;
}

void axsOutlineHandler::add(axsOutlineHandler const& other)
{
  // Where the paths of the other one are here; a path comes after that which it goes on from.
  std::vector<std::size_t> found;
  found.reserve(other.all.size());
  for (Path const& path : other.all)
  {
    std::size_t const parent = path.parent == none ? none : found[path.parent];
    bool const is_outside = path.parent != none && parent == none;
    std::size_t const place = is_outside ? none : find_path(parent, names.intern(path.name->utf8()));
    found.push_back(place);
    if (place == none)
    {
      passed += path.count;
      continue;
    }
    all[place].count += path.count;
    all[place].texts += path.texts;
    for (Attribute const& attribute : path.attributes)
      count_attribute(place, names.intern(attribute.name->utf8()), attribute.count);
  }
  passed += other.passed;
}

std::size_t axsOutlineHandler::find_path(std::size_t parent, axsName const& name)
{
  auto const found = places.find({parent, &name});
  if (found != places.end())
    return found->second;
  std::size_t const depth = parent == none ? 1 : all[parent].depth + 1;
  if (all.size() == max_paths || depth > max_depth)
    return none;
  std::size_t const place = all.size();
  all.push_back({&name, parent, depth, 0, 0, {}, {}});
  (parent == none ? roots : all[parent].children).push_back(place);
  places.emplace(Key{parent, &name}, place);
  return place;
}

void axsOutlineHandler::count_attribute(std::size_t path, axsName const& name, std::uint64_t count)
{
  std::vector<Attribute>& attributes = all[path].attributes;
  auto const found = attribute_places.find({path, &name});
  if (found != attribute_places.end())
    attributes[found->second].count += count;
  else if (attributes.size() < max_paths)
  {
    attribute_places.emplace(Key{path, &name}, attributes.size());
    attributes.push_back({&name, count});
  }
}

std::vector<axsOutlinePath> axsOutlineHandler::paths() const
{
  std::vector<axsOutlinePath> result;
  std::vector<std::size_t> waiting(roots.rbegin(), roots.rend());
  std::vector<std::string> prefixes(max_depth + 1);
  while (!waiting.empty())
  {
    Path const& path = all[waiting.back()];
    waiting.pop_back();
    waiting.insert(waiting.end(), path.children.rbegin(), path.children.rend());
    axsOutlinePath made;
    made.path = prefixes[path.depth - 1] + (path.depth == 1 ? "" : "/") + std::string(path.name->utf8());
    prefixes[path.depth] = made.path;
    made.depth = path.depth;
    made.count = path.count;
    made.texts = path.texts;
    for (Attribute const& attribute : path.attributes)
      made.attributes.push_back({std::string(attribute.name->utf8()), attribute.count});
    result.push_back(std::move(made));
  }
  return result;
}
