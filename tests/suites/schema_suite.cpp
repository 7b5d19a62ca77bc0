// Runs the tests of a folder of XML Schema tests and prints how often the engine agrees.
//
//   schema_suite FOLDER [--list]
//
// FOLDER/tests.tsv has a line for each test, its fields divided by tabs: "schema" or "instance", set, name, "valid" or
// "invalid", the schema file and, of an instance, the document. Each test runs in a process of its own, so that a crash or
// a run of more than twenty seconds is counted and stops nothing. With --list every test without agreement is printed.

#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axsRegister.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace
{
unsigned int const most_seconds = 20;

struct Test
{
  std::string kind;
  std::string set;
  std::string name;
  bool valid;
  std::string schema;
  std::string instance;
};

struct Count
{
  int agree = 0;
  int total = 0;
  int crashes = 0;
  int overlong = 0;
};

enum Outcome : int
{
  outcome_valid = 0,
  outcome_invalid = 1,
  outcome_crash,
  outcome_overlong
};

std::vector<Test> read_tests(std::string const& folder)
{
  std::vector<Test> tests;
  std::ifstream file(folder + "/tests.tsv");
  for (std::string line; std::getline(file, line);)
  {
    if (line.empty() || line[0] == '#')
      continue;
    std::istringstream fields(line);
    Test test;
    std::string expected;
    std::getline(fields, test.kind, '\t');
    std::getline(fields, test.set, '\t');
    std::getline(fields, test.name, '\t');
    std::getline(fields, expected, '\t');
    std::getline(fields, test.schema, '\t');
    std::getline(fields, test.instance, '\t');
    test.valid = expected == "valid";
    tests.push_back(test);
  }
  return tests;
}

std::shared_ptr<axmDocumentFactory> engine()
{
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

// With the schema under the namespace that it says it is for.
axmLoadOptions options_for(axmDocumentFactory const& factory, apPath const& schema)
{
  axmLoadOptions options(axmValidateWithSchemas);
  axmParseError error;
  auto const document = factory.loadDocument(schema, axmLoadOptions(axmValidateNone), error);
  apString const target =
    document == nullptr ? apString() : document->getDocumentElement()->getAttribute(APSTRING("targetNamespace"));
  if (target.empty())
    options.set_no_namespace_schema(schema);
  else
    options.add_external_schema(target, schema);
  return options;
}

bool is_valid(Test const& test, std::string const& folder)
{
  auto const factory = engine();
  axmLoadOptions const options = options_for(*factory, apPath((folder + "/" + test.schema).c_str()));
  axmParseError error;
  std::string const probe = "<probe xmlns='urn:no-schema-knows-it'/>";
  auto const document = test.kind == "schema"
                          ? factory->loadDocument(apByteArray(probe.data(), probe.size()), options, error)
                          : factory->loadDocument(apPath((folder + "/" + test.instance).c_str()), options, error);
  return document != nullptr;
}

Outcome run(Test const& test, std::string const& folder)
{
  std::fflush(nullptr);
  pid_t const child = fork();
  if (child == 0)
  {
    alarm(most_seconds);
    _exit(is_valid(test, folder) ? outcome_valid : outcome_invalid);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status))
    return static_cast<Outcome>(WEXITSTATUS(status));
  return WTERMSIG(status) == SIGALRM ? outcome_overlong : outcome_crash;
}

void print(std::string const& what, Count const& count)
{
  std::printf("%-22s agree %5d of %5d (%.2f %%), crashes %d, over %u s %d\n", what.c_str(), count.agree, count.total,
    count.total == 0 ? 0.0 : 100.0 * count.agree / count.total, count.crashes, most_seconds, count.overlong);
}
}

int main(int argc, char** argv)
{
  if (argc < 2)
  {
    std::cerr << "schema_suite FOLDER [--list]\n";
    return 2;
  }
  std::string const folder = argv[1];
  bool const lists = argc > 2 && std::string(argv[2]) == "--list";
  axs_register();
  std::vector<Test> const tests = read_tests(folder);
  if (tests.empty())
  {
    std::cerr << "There are no tests in " << folder << "/tests.tsv\n";
    return 2;
  }

  std::map<std::string, Count> counts;
  for (Test const& test : tests)
  {
    Outcome const outcome = run(test, folder);
    bool const agrees = outcome == (test.valid ? outcome_valid : outcome_invalid);
    for (std::string const& group : {test.kind + "s", test.kind + "s " + test.set})
    {
      Count& count = counts[group];
      ++count.total;
      count.agree += agrees ? 1 : 0;
      count.crashes += outcome == outcome_crash ? 1 : 0;
      count.overlong += outcome == outcome_overlong ? 1 : 0;
    }
    if (lists && !agrees)
      std::printf("%s\t%s\t%s\t%s\t%s\t%s\n",
        outcome == outcome_crash      ? "crash"
        : outcome == outcome_overlong ? "overlong"
        : test.valid                  ? "rejected"
                                      : "accepted",
        test.kind.c_str(), test.set.c_str(), test.name.c_str(), test.schema.c_str(), test.instance.c_str());
  }
  for (auto const& [group, count] : counts)
    print(group, count);
  return counts["schemas"].crashes + counts["instances"].crashes + counts["schemas"].overlong +
               counts["instances"].overlong ==
             0
           ? 0
           : 1;
}
