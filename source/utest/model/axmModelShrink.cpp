#include "axmModelShrink.h"

#include "axmModelRun.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{
class Shrinker
{
public:
  Shrinker(axmDocumentFactory& given, axmModelFinding first) : factory(given), best(std::move(first)) {}

  axmModelFinding shrunk()
  {
    bool got_shorter = true;
    while (got_shorter)
    {
      std::size_t const before = best.steps.size();
      for (std::size_t part = std::max<std::size_t>(before / 2, 1); part > 0; part /= 2)
        leave_out(part);
      got_shorter = best.steps.size() < before;
    }
    for (std::size_t index = 0; index < best.steps.size(); ++index)
      simplify(index);
    return best;
  }

private:
  void leave_out(std::size_t part)
  {
    for (std::size_t start = 0; start < best.steps.size();)
    {
      std::vector<axmModelStep> fewer = best.steps;
      auto const first = fewer.begin() + static_cast<std::ptrdiff_t>(start);
      std::size_t const count = std::min(part, fewer.size() - start);
      fewer.erase(first, first + static_cast<std::ptrdiff_t>(count));
      if (!is_better(fewer))
        start += part;
    }
  }

  void simplify(std::size_t index)
  {
    for (wchar_t const* const text : {L"", L"x"})
      if (best.steps[index].text.size() > 1)
      {
        std::vector<axmModelStep> simpler = best.steps;
        simpler[index].text = text;
        is_better(simpler);
      }
  }

  // Takes the steps if they still show a difference.
  bool is_better(std::vector<axmModelStep> const& steps)
  {
    // An engine that is slow has its difference told as it is.
    constexpr int max_runs = 1000;
    if (++runs > max_runs)
      return false;
    axmModelRun run(factory, 1);
    for (std::size_t done = 0; done < steps.size(); ++done)
      if (!run.execute(steps[done]))
      {
        best = {{steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(done) + 1}, run.difference()};
        return true;
      }
    return false;
  }

  axmDocumentFactory& factory;
  axmModelFinding best;
  int runs = 0;
};
}

axmModelFinding axm_model_shrunk(axmDocumentFactory& factory, axmModelFinding finding)
{
  return Shrinker(factory, std::move(finding)).shrunk();
}
