#include "axsMarkupSpans.h"

#include "axsLocator.h"
#include "axsStartTag.h"

#include <algorithm>

axsMarkupSpans::axsMarkupSpans(std::vector<std::uint64_t> wanted, std::size_t mark_size) : before_text(mark_size)
{
  std::sort(wanted.begin(), wanted.end());
  wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
  all.reserve(wanted.size());
  for (std::uint64_t const number : wanted)
    all.emplace_back().number = number;
}

axsMarkupSpans::Markup const& axsMarkupSpans::of(std::uint64_t number) const noexcept
{
  return *std::lower_bound(
    all.begin(), all.end(), number, [](Markup const& markup, std::uint64_t wanted) { return markup.number < wanted; });
}

void axsMarkupSpans::start_element(axsStartTag const& tag)
{
  count_markup();
  bool const has_attribute = !tag.attributes->empty() && tag.attributes->front().is_specified;
  if (has_attribute && styled_tag.size() == 0 && locator->begin_position())
    styled_tag = span();
}

void axsMarkupSpans::count_markup()
{
  ++count;
  if (is_complete() || all[next].number != count)
    return;
  Markup& markup = all[next++];
  markup.place = locator->begin();
  markup.end_place = locator->end();
  markup.is_in_document = locator->begin_position() && locator->end_position();
  if (markup.is_in_document)
    markup.span = span();
}

axsSpan axsMarkupSpans::span() const
{
  return {static_cast<std::size_t>(*locator->begin_position()) - before_text,
    static_cast<std::size_t>(*locator->end_position()) - before_text};
}
