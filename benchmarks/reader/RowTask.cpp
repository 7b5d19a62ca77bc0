#include "RowTask.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace
{
std::vector<std::string> parts_of(std::string const& text, char between)
{
  std::vector<std::string> parts(1);
  for (char const c : text)
    if (c == between)
      parts.emplace_back();
    else
      parts.back() += c;
  return parts;
}

RowTask::Wanted& child(RowTask::Wanted& parent, std::string const& name)
{
  auto const is_it = [&](RowTask::Wanted const& known) { return known.name == name; };
  auto const found = std::find_if(parent.children.begin(), parent.children.end(), is_it);
  if (found != parent.children.end())
    return *found;
  parent.children.emplace_back();
  parent.children.back().name = name;
  return parent.children.back();
}
}

RowTask::RowTask(std::string given_file, std::string const& given_path, std::vector<std::string> given)
  : file(std::move(given_file)),
    path_text(given_path),
    columns(std::move(given)),
    path(parts_of(given_path, '/'))
{
  for (std::size_t i = 0; i < columns.size(); ++i)
  {
    Wanted* element = &record;
    for (std::string const& name : parts_of(columns[i], '/'))
      if (name.front() == '@')
        element->attributes.push_back({name.substr(1), i});
      else if (name != ".")
        element = &child(*element, name);
    if (columns[i].find('@') == std::string::npos)
      element->texts.push_back(i);
  }
}

std::vector<RowTask> read_row_tasks(std::string const& name, std::string const& folder)
{
  std::ifstream stream(name);
  if (!stream)
    throw std::runtime_error("cannot read " + name);
  std::vector<RowTask> tasks;
  for (std::string line; std::getline(stream, line);)
  {
    std::vector<std::string> parts = parts_of(line, '\t');
    if (parts.size() < 3)
      throw std::runtime_error("no task: " + line);
    std::string const file = (std::filesystem::path(folder) / parts[0]).string();
    if (!std::filesystem::exists(file))
      throw std::runtime_error("there is no " + file);
    tasks.emplace_back(file, parts[1], std::vector<std::string>(parts.begin() + 2, parts.end()));
  }
  return tasks;
}
