#pragma once

#include "axsFileStamp.h"
#include "axsSchemaErrors.h"

#include <apPath.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class axsSchemaComponents;

/// Makes schemas out of schema documents: reads them, builds their components and checks all constraints on both (XML
/// Schema Part 1). No recursion, and time linear in the size of the documents but where said otherwise.
/// For one thread; what it makes is for any number of them.
class axsSchemaCompiler
{
public:
  /// At most `limit` errors are kept.
  explicit axsSchemaCompiler(std::size_t limit = axsSchemaErrors::default_limit);
  axsSchemaCompiler(axsSchemaCompiler const&) = delete;
  axsSchemaCompiler& operator=(axsSchemaCompiler const&) = delete;
  ~axsSchemaCompiler();

  /// Adds a schema document for that namespace, empty for none; imports of that namespace take what is added for it, wherever
  /// they say it lies.
  void add(std::string_view name_space, apPath const& path);

  /// Adds a schema document for the namespace that it says itself.
  void add(apPath const& path);

  /// Adds one in memory, with `name` in the place of a path.
  void add_text(std::string_view name, std::string_view text);

  /// The schema; null if anything is wrong. Throws std::bad_alloc when memory runs out.
  std::shared_ptr<axsSchemaComponents const> compile();

  /// What is wrong, in the order in which it was found, up to the limit.
  std::vector<axsSchemaErrors::Error> const& errors() const noexcept { return found.all(); }

  /// The paths of the files, the first of which has the number 1 in places.
  std::vector<std::string> const& files() const noexcept;

  /// The files that the schema depends on (axsSchemaCache).
  std::vector<axsFileStamp> const& stamps() const noexcept;

private:
  axsSchemaErrors found;
  std::unique_ptr<class axsSchemaLoader> loader;
};
