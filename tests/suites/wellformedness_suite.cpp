// Runs the W3C tests of well-formedness (XML 1.0, fifth edition, and its namespaces) and holds the engine's answers
// against a list of known disagreements.
//
//   wellformedness_suite FOLDER KNOWN [--print]
//
// FOLDER holds the suite as the package has it. Documents that are well-formed, valid or not, must load, those that are not
// must fail; for tests of type "error" either is right. External entities are resolved, the external subset
// is never read. KNOWN has a line "ID: why" for each test where the engine answers otherwise, and is right to, or cannot
// help it; anything else is a failure, as is a line that no longer holds. With --print the disagreements are printed in
// that form.

#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axmNodeList.h>
#include <axsRegister.h>

#include <fstream>
#include <iostream>
#include <map>
#include <string>

namespace
{
struct Count
{
  int agree = 0;
  int total = 0;
};

std::string narrow(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return std::string(utf8.c_str(), static_cast<std::size_t>(utf8.length()));
}

std::string attribute(axmNode const& node, char const* name)
{
  apString value;
  node.get_attribute(apString(name), value);
  return narrow(value);
}

// The folder that a test's file is named in.
std::string base_of(axmNode& test)
{
  std::string base;
  for (auto at = test.getParentNode(); at != nullptr; at = at->getParentNode())
    base = attribute(*at, "xml:base") + base;
  return base;
}

// Tests of XML 1.1, and those that the fifth edition of XML 1.0 no longer holds for.
bool is_for_other_version(axmNode const& test)
{
  std::string const recommendation = attribute(test, "RECOMMENDATION");
  std::string const version = attribute(test, "VERSION");
  std::string const editions = attribute(test, "EDITION");
  return recommendation == "XML1.1" || recommendation == "NS1.1" || version == "1.1" ||
         (!editions.empty() && editions.find('5') == std::string::npos);
}

bool loads(axmDocumentFactory const& factory, std::string const& file)
{
  axmLoadOptions options(axmValidateNone);
  options.set_disable_entity_resolution(false);
  axmParseError error;
  return factory.loadDocument(apPath(file.c_str()), options, error) != nullptr;
}

std::map<std::string, std::string> read_known(std::string const& file)
{
  std::map<std::string, std::string> known;
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);)
    if (!line.empty() && line[0] != '#')
      known[line.substr(0, line.find(':'))] = line;
  return known;
}
}

int main(int argc, char** argv)
{
  if (argc < 3)
  {
    std::cerr << "wellformedness_suite FOLDER KNOWN [--print]\n";
    return 2;
  }
  std::string const folder = std::string(argv[1]) + "/package/build/dist/";
  std::map<std::string, std::string> known = read_known(argv[2]);
  bool const prints = argc > 3 && std::string(argv[3]) == "--print";

  axs_register();
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmParseError error;
  auto const suite = factory->loadDocument(
    apPath((folder + "cleaned/xmlconf-flattened.xml").c_str()), axmLoadOptions(axmValidateNone), error);
  if (suite == nullptr)
  {
    std::cerr << narrow(error.url()) << ": " << narrow(error.message()) << '\n';
    return 2;
  }

  std::map<std::string, Count> counts;
  int surprises = 0;
  auto const tests = suite->getElementsByTagName(APSTRING("TEST"));
  while (auto const test = tests->next_node())
  {
    std::string const type = attribute(*test, "TYPE");
    if (type == "error" || is_for_other_version(*test))
      continue;
    std::string const id = attribute(*test, "ID");
    std::string const file = folder + "xmlconf/" + base_of(*test) + attribute(*test, "URI");
    bool const loaded = loads(*factory, file);
    bool const agrees = loaded == (type != "not-wf");
    Count& count = counts[type];
    ++count.total;
    count.agree += agrees ? 1 : 0;
    bool const is_known = known.erase(id) != 0;
    if (agrees == is_known)
    {
      ++surprises;
      std::cout << id << (agrees ? ": agrees now" : loaded ? ": loads" : ": does not load") << " (" << file << ")\n";
    }
    else if (prints && is_known)
      std::cout << id << '\n';
  }
  for (auto const& [id, line] : known)
    std::cout << id << ": there is no such test\n";
  for (auto const& [type, count] : counts)
    std::cout << type << ": " << count.agree << " of " << count.total << " agree\n";
  return surprises == 0 && known.empty() ? 0 : 1;
}
