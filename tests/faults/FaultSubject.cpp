#include "FaultSubject.h"

#include "FaultyRun.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <ostream>

namespace
{
namespace fs = std::filesystem;

// Without an attribute, 25 pages of 4 KiB.
std::string document(std::string const& attribute)
{
  std::string const begin = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a";
  std::string const end = "</a>\n";
  return begin + attribute + ">" + std::string(100 * 1024 - begin.size() - 1 - end.size(), 'x') + end;
}
}

std::vector<std::string> FaultSubject::command(std::string const& file) const
{
  if (std::string(name) == "Command")
    return {AXM_PROGRAM, "set", file, "/a", "b=1.5"};
  return {AXM_LOAD_AND_SAVE, file};
}

void PrintTo(FaultSubject const& subject, std::ostream* out)
{
  *out << subject.name << " in " << subject.locale;
}

FaultTest::FaultTest()
  : folder("faults_" + std::to_string(getpid())),
    old_document(document("")),
    new_document(document(" b=\"1.5\""))
{
  fs::create_directory(folder);
}

FaultTest::~FaultTest()
{
  fs::remove_all(folder);
}

void FaultTest::put(std::string const& name, std::string const& text) const
{
  std::ofstream(folder / name, std::ios::binary) << text;
}

std::string FaultTest::at(std::string const& name) const
{
  return contents_of(path(name));
}

std::vector<std::string> FaultTest::entries() const
{
  std::vector<std::string> names;
  for (auto const& entry : fs::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<FaultSubject> fault_subjects()
{
  return {{"Command", "C"}, {"Command", "de_DE.UTF-8"}, {"Library", "C"}, {"Library", "de_DE.UTF-8"}};
}

std::string name_of_subject(testing::TestParamInfo<FaultSubject> const& subject)
{
  return std::string(subject.param.name) + "_" + std::string(subject.param.locale).substr(0, 1);
}
