#include "Measuring.h"

#include "Subject.h"
#include "documents.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <ctime>

std::array<char const*, measure_count> const measure_names = {"load", "traverse", "1e6 typed reads", "XPath //x",
  "XPath predicate", "1e6 append+remove", "save", "peak memory, MB"};

std::array<char const*, library_count> const library_names = {"axs", "libxml2", "Xerces-C DOM", "pugixml"};

namespace
{
std::unique_ptr<Subject> make(std::size_t library)
{
  switch (library)
  {
  case library_axs:
    return make_axs();
  case library_libxml2:
    return make_libxml2();
  case library_xerces:
    return make_xerces();
  default:
    return make_pugixml();
  }
}

double now()
{
  timespec time;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double peak_megabytes()
{
  rusage usage;
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

template <class Work>
double timed(Work const& work)
{
  double const start = now();
  work();
  return now() - start;
}

Numbers measure_here(std::size_t library, std::string const& file, bool checking)
{
  Numbers numbers;
  auto& times = numbers.best;
  auto const subject = make(library);
  double const before = peak_megabytes();
  times[measure_load] = timed([&] { numbers.loaded = subject->load(file); });
  if (!numbers.loaded)
    return numbers;
  times[measure_memory] = peak_megabytes() - before;
  std::size_t volatile length = 0;
  times[measure_traverse] = timed([&] { length = subject->traverse(); });
  std::string const every = "//" + first_name(file);
  std::string const some = every + "[position() mod 7 = 1]";
  times[measure_all] = timed([&] { numbers.found = subject->select(every); });
  times[measure_predicate] = timed([&] { numbers.found_some = subject->select(some); });
  if (checking)
  {
    numbers.strings = subject->digest();
    if (numbers.found >= 0)
      numbers.selection = subject->digest_selection(some);
  }
  times[measure_reads] = timed([&] { numbers.typed = subject->read_typed(1000000); });
  times[measure_churn] = timed([&] { subject->churn(1000000); });
  std::string const output = "document_benchmark_saved_" + std::to_string(getpid()) + ".xml";
  times[measure_save] = timed([&] { numbers.saved = subject->save(output); });
  if (checking)
  {
    auto const again = make(library);
    if (numbers.saved && again->load(output))
      numbers.saved_strings = again->digest();
    numbers.saved = numbers.saved && numbers.saved_strings == subject->digest();
  }
  std::remove(output.c_str());
  return numbers;
}

Numbers measure_apart(std::size_t library, std::string const& file, bool checking)
{
  Numbers numbers;
  int ends[2];
  if (pipe(ends) != 0)
    return numbers;
  std::fflush(nullptr);
  pid_t const child = fork();
  if (child == 0)
  {
    numbers = measure_here(library, file, checking);
    bool const written = write(ends[1], &numbers, sizeof numbers) == sizeof numbers;
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  if (read(ends[0], &numbers, sizeof numbers) != sizeof numbers)
    numbers = Numbers();
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return numbers;
}
}

Results measure(std::string const& file, int rounds)
{
  Results results;
  for (std::size_t library = 0; library < library_count; ++library)
    results[library] = measure_apart(library, file, true);
  for (int round = 1; round < rounds; ++round)
    for (std::size_t library = 0; library < library_count; ++library)
    {
      auto const other = measure_apart(library, file, false).best;
      auto& best = results[library].best;
      std::transform(best.begin(), best.end(), other.begin(), best.begin(),
        [](double one, double two) { return std::min(one, two); });
    }
  for (Numbers& numbers : results)
    if (numbers.found < 0)
      numbers.best[measure_all] = numbers.best[measure_predicate] = 0;
  return results;
}

std::vector<std::string> disagreements(std::string const& file, Results const& results)
{
  std::vector<std::string> all;
  Traits const traits = traits_of(file);
  Numbers const& axs = results[library_axs];
  for (std::size_t library = 0; library < library_count; ++library)
  {
    Numbers const& other = results[library];
    std::string const name = library_names[library];
    bool const compares_strings = library != library_pugixml || !traits.declares_entities_or_attributes;
    bool const compares_nodes = other.found >= 0 && (library != library_pugixml || !traits.has_default_namespace);
    if (!other.loaded)
    {
      all.push_back(name + " does not load it");
      continue;
    }
    if (compares_strings && other.strings != axs.strings)
      all.push_back(name + " finds other strings: " + std::to_string(other.strings.strings) + " against " +
                    std::to_string(axs.strings.strings));
    if (compares_nodes && (other.found != axs.found || other.found_some != axs.found_some))
      all.push_back(name + " selects other nodes: " + std::to_string(other.found) + " and " +
                    std::to_string(other.found_some) + " against " + std::to_string(axs.found) + " and " +
                    std::to_string(axs.found_some));
    if (compares_nodes && compares_strings && other.selection != axs.selection)
      all.push_back(name + " selects nodes with other names or texts");
    if (other.typed != axs.typed)
      all.push_back(name + " reads other values");
    if (!other.saved)
      all.push_back(name + " does not save what loads again as the same");
  }
  return all;
}
