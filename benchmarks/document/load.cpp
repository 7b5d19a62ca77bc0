// Loads documents with axs, pugixml (with its default flags) and libxml2, in turn, in two ways: once in a process of its
// own, and over and over in one process, each document let go before the next load. Shown are the medians in milliseconds
// of processor time, and how many times faster axs is than each of the others; at the end the geometric means and the
// worst. Memory is told in two ways: what the process has at most, in which each page of a library counts that ran for the
// first time, and what stands in memory of its own alone when the document is there.
//
//   load_benchmark [--rounds N] [FILE...]     without files, on documents of 10 MB that are made

#include <axmDocumentFactory.h>
#include <axsRegister.h>

#include "conditions.h"
#include "documents.h"

#include <libxml/parser.h>
#include <pugixml.hpp>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace
{
// A document that has been loaded; null if it could not be.
using Document = std::shared_ptr<void>;

Document load_axs(char const* file)
{
  static std::shared_ptr<axmDocumentFactory> const factory = []
  {
    axs_register();
    utServiceName resolved;
    return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  }();
  static axmLoadOptions const options(axmValidateNone);
  axmParseError error;
  return factory->loadDocument(apPath(file), options, error);
}

Document load_pugixml(char const* file)
{
  auto document = std::make_shared<pugi::xml_document>();
  return document->load_file(file) ? document : nullptr;
}

Document load_libxml2(char const* file)
{
  xmlDoc* const document = xmlReadFile(file, nullptr, XML_PARSE_HUGE | XML_PARSE_NOENT);
  return document == nullptr ? nullptr : Document(document, xmlFreeDoc);
}

struct Library
{
  char const* name;
  Document (*load)(char const*);
};

std::array<Library, 3> const libraries = {{{"axs", load_axs}, {"pugixml", load_pugixml}, {"libxml2", load_libxml2}}};

double now()
{
  timespec time;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

struct Load
{
  double milliseconds = -1;
  double peak_megabytes = 0;
  double own_megabytes = 0;
};

double peak_megabytes()
{
  rusage usage;
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

// Without the pages of files, as of libraries. Asked for with system calls alone: what a stream brings in would be there
// before the load.
double own_megabytes()
{
  std::array<char, 4096> status{};
  int const file = open("/proc/self/status", O_RDONLY | O_CLOEXEC);
  if (file < 0 || read(file, status.data(), status.size() - 1) < 0)
    return 0;
  close(file);
  char const* const line = std::strstr(status.data(), "RssAnon:");
  return line == nullptr ? 0 : static_cast<double>(std::atol(line + std::strlen("RssAnon:"))) / 1024;
}

Load load_here(Library const& library, char const* file)
{
  Load load;
  double const peak = peak_megabytes();
  double const own = own_megabytes();
  double const start = now();
  Document document = library.load(file);
  double const loaded = now();
  bool const good = document != nullptr;
  load.own_megabytes = own_megabytes() - own;
  double const asked = now();
  document.reset();
  load.milliseconds = good ? now() - asked + loaded - start : -1;
  load.peak_megabytes = peak_megabytes() - peak;
  return load;
}

double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// The first load of a process takes memory from the system that later ones find there.
Load load_often(Library const& library, char const* file, int rounds)
{
  load_here(library, file);
  std::vector<double> times;
  for (int round = 0; round < rounds; ++round)
    times.push_back(load_here(library, file).milliseconds);
  return {median(times), 0, 0};
}

// What `measure` finds in a process of its own.
template <class Measure>
Load apart(Measure const& measure)
{
  Load load;
  int ends[2];
  if (pipe(ends) != 0)
    return load;
  pid_t const child = fork();
  if (child == 0)
  {
    load = measure();
    bool const written = write(ends[1], &load, sizeof load) == sizeof load;
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  if (read(ends[0], &load, sizeof load) != sizeof load)
    load = Load();
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return load;
}

using Times = std::array<std::vector<double>, libraries.size()>;

// Of axs against each other library, by the files.
class Ratios
{
public:
  void add(Times const& times)
  {
    for (std::size_t i = 1; i < libraries.size(); ++i)
      all[i].push_back(median(times[i]) / median(times[0]));
  }

  void print_last() const
  {
    for (std::size_t i = 1; i < libraries.size(); ++i)
      std::printf(" %8.2f", all[i].back());
  }

  void print_means(char const* title) const
  {
    for (std::size_t i = 1; i < libraries.size(); ++i)
    {
      double logarithms = 0;
      for (double const ratio : all[i])
        logarithms += std::log(ratio);
      std::printf("%s against %s: geometric mean %.2f, worst %.2f\n", title, libraries[i].name,
        std::exp(logarithms / static_cast<double>(all[i].size())), *std::min_element(all[i].begin(), all[i].end()));
    }
  }

private:
  std::array<std::vector<double>, libraries.size()> all;
};

void print(Times const& times, Ratios const& ratios)
{
  for (std::vector<double> const& of_library : times)
    std::printf(" %8.2f", median(of_library));
  ratios.print_last();
}

void print_memory(char const* title, Times const& megabytes)
{
  std::printf("\n%-44s", title);
  for (std::vector<double> const& of_library : megabytes)
    std::printf(" %8.1f", median(of_library));
}

std::string base_name(std::string const& file)
{
  return file.substr(file.find_last_of('/') + 1);
}

struct AllRatios
{
  Ratios alone;
  Ratios repeated;
};

// Whether all of them load it.
bool measure(std::string const& file, int rounds, AllRatios& ratios)
{
  Times once;
  Times often;
  Times peak;
  Times own;
  for (int round = 0; round < rounds; ++round)
    for (std::size_t library = 0; library < libraries.size(); ++library)
    {
      Load const load = apart([&] { return load_here(libraries[library], file.c_str()); });
      if (load.milliseconds < 0)
      {
        std::fprintf(stderr, "%s does not load %s\n", libraries[library].name, file.c_str());
        return false;
      }
      once[library].push_back(load.milliseconds);
      peak[library].push_back(load.peak_megabytes);
      own[library].push_back(load.own_megabytes);
    }
  int const processes = 3;
  for (int process = 0; process < processes; ++process)
    for (std::size_t library = 0; library < libraries.size(); ++library)
      often[library].push_back(
        apart([&] { return load_often(libraries[library], file.c_str(), rounds); }).milliseconds);
  ratios.alone.add(once);
  ratios.repeated.add(often);
  std::printf("%-44.44s", base_name(file).c_str());
  print(once, ratios.alone);
  std::printf("\n%-44s", "");
  print(often, ratios.repeated);
  print_memory("  peak memory, MB", peak);
  print_memory("  memory of its own, MB", own);
  std::printf("\n");
  std::fflush(stdout);
  return true;
}

std::vector<std::string> make_documents(std::filesystem::path const& folder)
{
  using Make = void (*)(std::string const& file, std::size_t bytes);
  std::pair<char const*, Make> const makes[] = {{"records", make_records}, {"attributes", make_attributes},
    {"text", make_text}, {"russian", make_russian}, {"chinese", make_chinese}};
  std::filesystem::create_directories(folder);
  std::vector<std::string> files;
  for (auto const& [name, make] : makes)
  {
    files.push_back((folder / (std::string(name) + ".xml")).string());
    make(files.back(), 10000000);
  }
  return files;
}
}

int main(int argc, char** argv)
{
  int rounds = 15;
  int first = 1;
  if (argc > 2 && std::string(argv[1]) == "--rounds")
  {
    rounds = std::atoi(argv[2]);
    first = 3;
  }
  if (rounds < 1)
  {
    std::fprintf(stderr, "usage: load_benchmark [--rounds N] [FILE...]\n");
    return 2;
  }
  for (std::string const& line : conditions({pugixml_name(PUGIXML_VERSION), "libxml2 " LIBXML_DOTTED_VERSION}))
    std::printf("%s\n", line.c_str());
  std::printf(
    "\n%-44s%26s  %16s\n", "milliseconds: alone; over and over", "axs   pugixml   libxml2", "axs times faster");

  std::filesystem::path const made = std::filesystem::temp_directory_path() / "axm_load_benchmark";
  std::vector<std::string> const files =
    first < argc ? std::vector<std::string>(argv + first, argv + argc) : make_documents(made);
  AllRatios ratios;
  bool const are_loaded =
    std::all_of(files.begin(), files.end(), [&](std::string const& file) { return measure(file, rounds, ratios); });
  std::filesystem::remove_all(made);
  if (!are_loaded)
    return 1;
  ratios.alone.print_means("alone");
  ratios.repeated.print_means("over and over");
  return 0;
}
