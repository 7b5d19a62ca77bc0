#include "axsSchemaCache.h"

#include "axsSchemaCompiler.h"
#include "axsSchemaComponents.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{
using Clock = std::filesystem::file_time_type::clock;
}

axsSchemaCache& axsSchemaCache::shared()
{
  static axsSchemaCache cache;
  return cache;
}

std::shared_ptr<axsSchemaComponents const> axsSchemaCache::get(
  std::vector<Wanted> const& documents, axsSchemaCompiler& compiler)
{
  if (std::shared_ptr<axsSchemaComponents const> kept = find(documents))
    return kept;
  for (Wanted const& document : documents)
    compiler.add(document.name_space, document.path);
  std::shared_ptr<axsSchemaComponents const> made = compiler.compile();
  if (made != nullptr)
    keep(documents, compiler.stamps(), made);
  return made;
}

std::shared_ptr<axsSchemaComponents const> axsSchemaCache::find(std::vector<Wanted> const& documents)
{
  std::string const key = key_of(documents);
  std::filesystem::file_time_type const now = Clock::now();
  std::shared_ptr<axsSchemaComponents const> schema;
  std::shared_ptr<std::vector<axsFileStamp> const> files;
  std::filesystem::file_time_type checked;
  {
    std::lock_guard<std::mutex> const lock(mutex);
    auto const found = by_key.find(key);
    if (found == by_key.end())
      return nullptr;
    schema = found->second->schema;
    files = found->second->files;
    checked = found->second->checked;
  }
  bool const is_good = is_unchanged(*files, checked);
  std::lock_guard<std::mutex> const lock(mutex);
  auto const found = by_key.find(key);
  bool const is_same = found != by_key.end() && found->second->schema == schema;
  if (is_same && is_good)
  {
    found->second->checked = now;
    sets.splice(sets.begin(), sets, found->second);
  }
  else if (is_same)
    remove(found->second);
  return is_good ? schema : nullptr;
}

void axsSchemaCache::keep(std::vector<Wanted> const& documents, std::vector<axsFileStamp> files,
  std::shared_ptr<axsSchemaComponents const> schema)
{
  std::filesystem::file_time_type const now = Clock::now();
  for (axsFileStamp& file : files)
  {
    file.hash = file.exists ? axsFileStamp::hash_of(file.path) : 0;
    if (!file.looks_like(axsFileStamp::of(file.path)))
      return;
  }
  Set set;
  set.key = key_of(documents);
  set.schema = std::move(schema);
  set.checked = now;
  set.bytes = std::accumulate(files.begin(), files.end(), std::uintmax_t{0},
    [](std::uintmax_t sum, axsFileStamp const& file) { return sum + file.size; });
  set.files = std::make_shared<std::vector<axsFileStamp> const>(std::move(files));
  if (set.bytes > max_bytes)
    return;

  std::lock_guard<std::mutex> const lock(mutex);
  if (auto const found = by_key.find(set.key); found != by_key.end())
    remove(found->second);
  sets.push_front(std::move(set));
  try
  {
    by_key.emplace(sets.front().key, sets.begin());
  }
  catch (...)
  {
    sets.pop_front();
    throw;
  }
  bytes += sets.front().bytes;
  while (sets.size() > max_sets || bytes > max_bytes)
    remove(std::prev(sets.end()));
}

std::string axsSchemaCache::key_of(std::vector<Wanted> const& documents)
{
  std::string key;
  for (Wanted const& document : documents)
  {
    utString const path = document.path.path();
    key += document.name_space;
    key += '\0';
    key.append(path.c_str(), static_cast<std::size_t>(path.length()));
    key += '\0';
  }
  return key;
}

// A file that had been changed shortly before it was looked at last may have been changed again within the resolution of
// its time.
bool axsSchemaCache::is_unchanged(std::vector<axsFileStamp> const& files, std::filesystem::file_time_type checked)
{
  return std::all_of(files.begin(), files.end(),
    [&](axsFileStamp const& file)
    {
      if (!file.looks_like(axsFileStamp::of(file.path)))
        return false;
      return !file.is_fresh(checked) || axsFileStamp::hash_of(file.path) == file.hash;
    });
}

void axsSchemaCache::remove(Sets::iterator set)
{
  bytes -= set->bytes;
  by_key.erase(set->key);
  sets.erase(set);
}
