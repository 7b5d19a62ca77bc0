// Measures axs through the public interface beside libxml2, Xerces-C's DOM and pugixml.
//
//   document_benchmark [--megabytes N] [--rounds N] [FILE...]
//
// Without files on three documents that it makes: like records, heavy in attributes, heavy in text, of 50 MB each. Every
// library has a process of its own for every round, so that none meets the memory another has left; shown is the best
// round, in milliseconds of processor time, and the memory that loading took at its peak. XPath "//x" selects by the name
// of the root's first child element, the other expression every seventh of those.

#include "Subject.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace
{
enum Measure : std::size_t
{
  measure_load,
  measure_traverse,
  measure_reads,
  measure_all,
  measure_predicate,
  measure_churn,
  measure_save,
  measure_memory,
  measure_count
};

char const* const measure_names[measure_count] = {"load", "traverse", "1e6 typed reads", "XPath //x", "XPath predicate",
  "1e6 append+remove", "save", "peak memory, MB"};

struct Library
{
  char const* name;
  std::unique_ptr<Subject> (*make)();
};

Library const libraries[] = {
  {"axs", make_axs}, {"libxml2", make_libxml2}, {"Xerces-C DOM", make_xerces}, {"pugixml", make_pugixml}};

using Numbers = std::array<double, measure_count>;

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

Numbers measure(Library const& library, std::string const& file, std::string const& name)
{
  Numbers numbers{};
  auto const subject = library.make();
  double const before = peak_megabytes();
  bool good = false;
  numbers[measure_load] = timed([&] { good = subject->load(file); });
  if (!good)
    return numbers;
  numbers[measure_memory] = peak_megabytes() - before;
  numbers[measure_traverse] = timed([&] { subject->traverse(); });
  numbers[measure_reads] = timed([&] { subject->read_typed(1000000); });
  long found = 0;
  numbers[measure_all] = timed([&] { found = subject->select("//" + name); });
  numbers[measure_predicate] = timed([&] { subject->select("//" + name + "[position() mod 7 = 1]"); });
  if (found < 0)
    numbers[measure_all] = numbers[measure_predicate] = 0;
  numbers[measure_churn] = timed([&] { subject->churn(1000000); });
  std::string const output = file + ".saved";
  numbers[measure_save] = timed([&] { subject->save(output); });
  std::remove(output.c_str());
  return numbers;
}

Numbers measure_apart(Library const& library, std::string const& file, std::string const& name)
{
  Numbers numbers{};
  int ends[2];
  if (pipe(ends) != 0)
    return numbers;
  std::fflush(nullptr);
  pid_t const child = fork();
  if (child == 0)
  {
    numbers = measure(library, file, name);
    bool const written = write(ends[1], numbers.data(), sizeof numbers) == sizeof numbers;
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  if (read(ends[0], numbers.data(), sizeof numbers) != sizeof numbers)
    numbers = Numbers{};
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return numbers;
}

// The name of the first element below the root, by a look at the beginning.
std::string first_name(std::string const& file)
{
  std::ifstream stream(file);
  int elements = 0;
  for (char c; stream.get(c);)
    if (c == '<' && stream.peek() != '?' && stream.peek() != '!' && ++elements == 2)
    {
      std::string name;
      while (stream.get(c) && c != ' ' && c != '>' && c != '/' && c != '\n' && c != '\t' && c != '\r')
        name += c;
      return name;
    }
  return "*";
}

template <class Part>
void make_document(std::string const& file, std::size_t bytes, Part const& part)
{
  std::ofstream out(file, std::ios::binary);
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<root>\n";
  std::size_t size = 0;
  for (int i = 0; size < bytes; ++i)
  {
    std::string const text = part(i);
    out << text;
    size += text.size();
  }
  out << "</root>\n";
}

std::string record(int i)
{
  std::string const n = std::to_string(i);
  return "  <record id=\"" + n + "\">\n    <name>Name of " + n + "</name>\n    <amount>" +
         std::to_string(i * 37 % 9999) +
         ".50</amount>\n    <date>2024-05-17</date>\n    <comment>A short remark &amp; more</comment>\n  </record>\n";
}

std::string attributes(int i)
{
  std::string const n = std::to_string(i);
  return "  <item id=\"" + n + "\" name=\"name" + n + "\" lat=\"42.5" + n + "\" lon=\"1.5" + n +
         "\" visible=\"true\" version=\"3\" user=\"someone\" changed=\"2024-05-17T12:00:00Z\"/>\n";
}

std::string paragraph(int i)
{
  std::string const words = "The quick brown fox jumps over the lazy dog and runs away into the deep dark wood. ";
  return "  <p>" + words + words + "<em>" + std::to_string(i) + "</em> " + words + words + words + "</p>\n";
}

void print(std::string const& title, std::vector<Numbers> const& results)
{
  std::printf("\n%s\n%-20s", title.c_str(), "");
  for (Library const& library : libraries)
    std::printf("%14s", library.name);
  std::printf("%16s\n", "axs : libxml2");
  for (std::size_t i = 0; i < measure_count; ++i)
  {
    std::printf("%-20s", measure_names[i]);
    for (Numbers const& numbers : results)
      if (numbers[i] > 0)
        std::printf("%14.1f", numbers[i]);
      else
        std::printf("%14s", "-");
    std::printf("%16.2f\n", results[1][i] > 0 ? results[0][i] / results[1][i] : 0.0);
  }
}

void compare(std::string const& title, std::string const& file, int rounds)
{
  std::string const name = first_name(file);
  std::vector<Numbers> results;
  for (Library const& library : libraries)
  {
    Numbers best = measure_apart(library, file, name);
    for (int round = 1; round < rounds; ++round)
    {
      Numbers const other = measure_apart(library, file, name);
      std::transform(best.begin(), best.end(), other.begin(), best.begin(),
        [](double one, double two) { return std::min(one, two); });
    }
    results.push_back(best);
  }
  print(title, results);
}
}

int main(int argc, char** argv)
{
  std::size_t megabytes = 50;
  int rounds = 3;
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i)
  {
    std::string const argument = argv[i];
    if (argument == "--megabytes" && i + 1 < argc)
      megabytes = std::strtoul(argv[++i], nullptr, 10);
    else if (argument == "--rounds" && i + 1 < argc)
      rounds = std::max(std::atoi(argv[++i]), 1);
    else
      files.push_back(argument);
  }
  for (std::string const& file : files)
    compare(file, file, rounds);
  if (!files.empty())
    return 0;

  std::string const made = "document_benchmark_" + std::to_string(getpid()) + ".xml";
  std::size_t const bytes = megabytes * 1000000;
  make_document(made, bytes, record);
  compare("records, " + std::to_string(megabytes) + " MB", made, rounds);
  make_document(made, bytes, attributes);
  compare("attributes, " + std::to_string(megabytes) + " MB", made, rounds);
  make_document(made, bytes, paragraph);
  compare("text, " + std::to_string(megabytes) + " MB", made, rounds);
  std::remove(made.c_str());
}
