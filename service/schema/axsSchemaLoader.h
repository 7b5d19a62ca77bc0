#pragma once

#include "axsFileStamp.h"
#include "axsSchemaErrors.h"
#include "axsSchemaUnit.h"

#include <apPath.h>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class axsSource;

/// Reads the schema documents of a set with all that they include, import and redefine (Part 1, 4.2), each file once, by
/// whatever path it is named. What documents refer to is looked for in local files only.
class axsSchemaLoader
{
public:
  explicit axsSchemaLoader(axsSchemaErrors& told);
  axsSchemaLoader(axsSchemaLoader const&) = delete;
  axsSchemaLoader& operator=(axsSchemaLoader const&) = delete;
  ~axsSchemaLoader();

  /// Adds a schema document for the namespace, that takes precedence over what imports of that namespace name.
  void add(std::string_view name_space, apPath const& path);

  /// Adds one for the namespace that it says itself.
  void add(apPath const& path);

  /// Adds one in memory, with `name` in the place of a path; what it refers to is looked for beside that.
  void add_text(std::string_view name, std::string_view text);

  /// Reads on until nothing is left to read.
  void read_all();

  /// In the order in which they were found.
  std::deque<axsSchemaUnit> const& units() const noexcept { return all; }

  /// The paths of the files, the first of which has the number 1.
  std::vector<std::string> const& files() const noexcept { return paths; }

  /// All files that the set depends on, as they were before they were read, those that imports name in vain among them.
  std::vector<axsFileStamp> const& stamps() const noexcept { return looked_at; }

private:
  struct File
  {
    apPath path;
    std::uint32_t number = 0;
    std::unique_ptr<axsSchemaDocument> document; // null if it could not be read
  };

  File& file(apPath const& path);
  File& number(std::string const& key, apPath const& path);
  void read(File& made, axsSource& source);
  axsSchemaUnit& unit(File const& of, std::string_view target);
  void read_references(axsSchemaUnit& from);
  void include(axsSchemaUnit& from, axsSchemaElement const& reference);
  void import(axsSchemaUnit& from, axsSchemaElement const& reference);
  File* referred(axsSchemaElement const& reference);
  void import_xml_namespace(axsSchemaElement const& reference);
  void add_built_in(std::string_view name_space, std::string_view text);
  void check_namespace(File const& of, std::string_view expected);

  axsSchemaErrors& errors;
  std::vector<std::string> paths;
  std::vector<apPath> file_paths;
  std::vector<axsFileStamp> looked_at;
  // By identity.
  std::unordered_map<std::string, std::unique_ptr<File>> known;
  std::deque<axsSchemaUnit> all;
  // By file number and namespace.
  std::unordered_map<std::string, axsSchemaUnit*> unit_of;
  std::vector<std::string> given;
  std::vector<std::unique_ptr<axsSchemaDocument>> built_in;
  std::size_t next_to_read = 0;
};
