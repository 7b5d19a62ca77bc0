#pragma once

#include "axsExport.h"
#include "axsXPath.h"
#include "axsXPathError.h"
#include "axsXPathLimits.h"
#include "axsXPathPrefixes.h"
#include "axsXPathType.h"
#include "axsXPathVariables.h"

#include <axmNode.h>

#include <memory>
#include <string>
#include <string_view>

struct axsXPathParts;

/// An XPath expression that is compiled once and evaluated often, with prefixes and variables of the caller's; what it means
/// is said in axsXPath.
///
///     axsCompiledXPath const late("//b:book[@year > $year]", {{"b", "urn:books"}}, {{"year", 2000}});
///
/// A variable takes the place of a text that would be put into the expression, and need not be quoted for it.
///
/// Threads: it does not change once it is made. Any number of threads may evaluate one object at once, each over documents
/// that it may read; see axsSharing.
/// Memory: in proportion to the length of the expression, for as long as it lives; it keeps nothing of the documents that it
/// is evaluated over. Copies share what is compiled.
/// Whatever makes one or evaluates throws std::bad_alloc when memory runs out.
class AXS_API axsCompiledXPath
{
public:
  /// Compiles `expression`, in UTF-8. `prefixes` count before those that are in scope. `variables` are all that it may have;
  /// an evaluation gives them other values, of the same types.
  explicit axsCompiledXPath(
    std::string_view expression, axsXPathPrefixes const& prefixes = {}, axsXPathVariables const& variables = {});
  axsCompiledXPath(axsCompiledXPath const&);
  axsCompiledXPath& operator=(axsCompiledXPath const&);
  ~axsCompiledXPath();

  /// Whether it is an expression; error() says why not.
  bool is_good() const noexcept;
  axsXPathError const& error() const noexcept;

  /// The type of its values; of one that is no expression, a node-set.
  axsXPathType type() const noexcept;

  /// The value for `context`, with the variables as they were given at first or, where they are named in `given`, as there.
  /// False, with `value` as it was and the reason in `error`, where it is no expression, the context is no node of this
  /// engine, a prefix is not declared, one that is given is no variable of it or of another type, or the limits end it.
  bool evaluate(axmNode& context, axsXPath::Value& value, axsXPathError& error) const;
  bool evaluate(axmNode& context, axsXPathVariables const& given, axsXPath::Value& value, axsXPathError& error) const;
  bool evaluate(axmNode& context, axsXPathVariables const& given, axsXPathLimits const& limits, axsXPath::Value& value,
    axsXPathError& error) const;

private:
  std::shared_ptr<axsXPathParts const> parts;
};
