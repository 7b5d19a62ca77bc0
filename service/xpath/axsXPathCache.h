#pragma once

#include "axsXPathError.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

class axsXPathExpression;

/// The compiled forms of the last few expressions: programs evaluate the same ones again and again, and compiling often
/// takes longer than evaluating. Belongs to one document and, like that, to one thread at a time until it is shared.
class axsXPathCache
{
public:
  /// The compiled form of `text`; null, with the reason in `error`, where it is not an expression.
  /// Throws std::bad_alloc when memory runs out.
  std::shared_ptr<axsXPathExpression const> compile(std::string_view text, axsXPathError& error);

  /// From now on many threads may use it at once. Throws std::bad_alloc when memory runs out.
  void share() { lock = std::make_unique<std::mutex>(); }

private:
  struct Entry
  {
    std::string text;
    std::shared_ptr<axsXPathExpression const> expression;
  };

  static constexpr std::size_t max_entries = 16;
  /// Longer expressions are not cached.
  static constexpr std::size_t max_text = 512;

  // Null while one thread uses it.
  std::unique_ptr<std::mutex> lock;
  // The most recent one is the last.
  std::vector<Entry> entries;
};
