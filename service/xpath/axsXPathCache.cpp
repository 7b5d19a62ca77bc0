#include "axsXPathCache.h"

#include "axsXPathParser.h"

#include <algorithm>
#include <optional>
#include <utility>

std::shared_ptr<axsXPathExpression const> axsXPathCache::compile(std::string_view text, axsXPathError& error)
{
  auto const locked = lock == nullptr ? std::unique_lock<std::mutex>() : std::unique_lock(*lock);
  auto const known =
    std::find_if(entries.rbegin(), entries.rend(), [text](Entry const& entry) { return entry.text == text; });
  if (known != entries.rend())
  {
    error = axsXPathError();
    std::rotate(known.base() - 1, known.base(), entries.end());
    return entries.back().expression;
  }

  std::optional<axsXPathExpression> parsed = axsXPathParser::parse(text, {}, error);
  if (!parsed)
    return nullptr;
  auto expression = std::make_shared<axsXPathExpression const>(std::move(*parsed));
  if (text.size() > max_text)
    return expression;
  if (entries.size() == max_entries)
    entries.erase(entries.begin());
  entries.push_back({std::string(text), expression});
  return expression;
}
