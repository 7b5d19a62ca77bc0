#pragma once

#include "axsFileStamp.h"

#include <apPath.h>

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

class axsSchemaCompiler;
class axsSchemaComponents;

/// Schemas that were compiled, by the files that they were asked for with, so that they are compiled once. Each is given
/// out only as long as none of the files that it was made of has changed: their sizes, times and, where times cannot tell,
/// contents are looked at, with one look at each file for every schema given out. What was looked for and was not there is
/// one of the files. Those that were not asked for longest go when there are too many.
/// May be used in many threads at once.
class axsSchemaCache
{
public:
  static constexpr std::size_t max_sets = 32;
  /// Of the sizes of all schema documents together; a schema takes a small multiple of that.
  static constexpr std::uintmax_t max_bytes = std::uintmax_t{64} << 20;

  /// A schema document, with the namespace that it is asked for.
  struct Wanted
  {
    std::string name_space;
    apPath path;
  };

  /// The one of the process.
  static axsSchemaCache& shared();

  /// The schema made of these documents: the one that is kept, or a new one, that `compiler`, a fresh one, makes and that is
  /// kept from then on. Null where something is wrong with them, which the compiler tells. Throws std::bad_alloc when
  /// memory runs out.
  std::shared_ptr<axsSchemaComponents const> get(std::vector<Wanted> const& documents, axsSchemaCompiler& compiler);

  /// The schema made of these documents that is kept; null where there is none, or files have changed.
  std::shared_ptr<axsSchemaComponents const> find(std::vector<Wanted> const& documents);

  /// Keeps the schema that was made of these documents. The stamps are those of all files that it depends on, taken before
  /// they were read; where one has changed since, nothing is kept.
  void keep(std::vector<Wanted> const& documents, std::vector<axsFileStamp> files,
    std::shared_ptr<axsSchemaComponents const> schema);

private:
  struct Set
  {
    std::string key;
    std::shared_ptr<axsSchemaComponents const> schema;
    // Replaced when times have been looked at anew.
    std::shared_ptr<std::vector<axsFileStamp> const> files;
    std::filesystem::file_time_type checked;
    std::uintmax_t bytes = 0;
  };
  using Sets = std::list<Set>;

  static std::string key_of(std::vector<Wanted> const& documents);
  static bool is_unchanged(std::vector<axsFileStamp> const& files, std::filesystem::file_time_type checked);
  void remove(Sets::iterator set);

  std::mutex mutex;
  // The one that was asked for last comes first.
  Sets sets;
  std::unordered_map<std::string, Sets::iterator> by_key;
  std::uintmax_t bytes = 0;
};
