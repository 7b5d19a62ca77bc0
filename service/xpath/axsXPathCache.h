#pragma once

#include "axsXPathError.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class axsXPathExpression;

/// The expressions that a document was asked last, compiled: asking the same again and again is what programs do, and
/// compiling costs more than many an answer. Belongs to its document and, as that, to one thread at a time.
class axsXPathCache
{
public:
  /// The compiled form of `text`; null, with the reason in `error`, where it is not an expression.
  /// Throws std::bad_alloc when memory runs out.
  std::shared_ptr<axsXPathExpression const> compile(std::string_view text, axsXPathError& error);

private:
  struct Entry
  {
    std::string text;
    std::shared_ptr<axsXPathExpression const> expression;
  };

  static constexpr std::size_t max_entries = 16;
  /// A longer expression is not kept.
  static constexpr std::size_t max_text = 512;

  // The one asked for last is the last one.
  std::vector<Entry> entries;
};
