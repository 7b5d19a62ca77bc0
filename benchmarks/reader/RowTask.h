#pragma once

#include "Digest.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Records of a document that are taken out as rows: the path from the root to them, and their columns, as the command's
// verb table has them (`@a`, `b`, `b/c`, `b/@a`, `.`). Of what a record has several times, the first counts.
struct RowTask
{
  // What lies in one element: attributes, the text, child elements with more.
  struct Wanted
  {
    struct Attribute
    {
      std::string name;
      std::size_t column;
    };

    std::string name;
    std::vector<Attribute> attributes;
    std::vector<std::size_t> texts; // one column, or none
    std::vector<Wanted> children;
  };

  RowTask(std::string file, std::string const& path, std::vector<std::string> columns);

  std::string file;
  std::string path_text;
  std::vector<std::string> columns;
  std::vector<std::string> path;
  Wanted record;
};

// The tasks that the file `tasks` has for the documents in `folder`: a line each, of a document's name, a path and columns,
// with tabs between. Throws std::runtime_error when it cannot be read or names a document that is not there.
std::vector<RowTask> read_row_tasks(std::string const& tasks, std::string const& folder);

// What all rows of a document come to.
class RowDigest
{
public:
  explicit RowDigest(std::size_t columns) : digest(static_cast<int>(columns)) {}

  void begin_row() { ++rows; }

  void add(std::size_t column, std::optional<std::string_view> value)
  {
    digest.add(static_cast<int>(column), value ? *value : std::string_view("\xFF", 1));
  }

  bool operator==(RowDigest const& other) const { return rows == other.rows && digest == other.digest; }
  bool operator!=(RowDigest const& other) const { return !(*this == other); }

  std::uint64_t rows = 0;

private:
  Digest digest;
};
