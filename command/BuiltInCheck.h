#pragma once

#include <apPath.h>
#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Checks documents with the engine that the program was built with; the schemas are compiled once.
class BuiltInCheck
{
public:
  struct Result
  {
    std::vector<axmParseError> errors;
    bool is_whole = true;      // false if there may be more errors
    bool has_assessed = false; // whether anything in the document is declared in the schemas
    bool has_lines = true;     // whether the lines of the document are those of its file
  };

  virtual ~BuiltInCheck() = default;

  virtual std::vector<axmParseError> const& schema_errors() const = 0;

  /// Of a file, or of what standard input has where the name is "-", decompressed if it is compressed. `progress` is
  /// told the bytes read, now and then.
  virtual Result run(std::string const& file, std::size_t max_errors,
    std::function<void(std::uint64_t bytes)> const& progress) const = 0;
};

/// What is wrong with the schema document in the file, with the schemas of the options in the place of what is imported of
/// their namespaces; nothing if the program has no engine.
std::vector<axmParseError> built_in_schema_check(
  std::string const& file, axmLoadOptions const& options, std::size_t max_errors);

/// Null if the program has no engine.
std::unique_ptr<BuiltInCheck> built_in_check(axmLoadOptions const& options);
