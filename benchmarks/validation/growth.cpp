#include "growth.h"

#include "Contender.h"
#include "Timing.h"

#include <cstdio>
#include <fstream>
#include <functional>
#include <vector>

namespace
{
int const steps = 5;

struct Subject
{
  char const* name;
  int first; // the smallest size
  std::function<std::string(int size)> schema;
  std::function<std::string(int size)> document;
};

std::string in_schema(std::string const& content)
{
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + content + "</xs:schema>";
}

std::string with_pattern(std::string const& pattern)
{
  return in_schema("<xs:element name='r'><xs:simpleType><xs:restriction base='xs:string'><xs:pattern value='" +
                   pattern + "'/></xs:restriction></xs:simpleType></xs:element>");
}

std::string in_root(std::string const& content)
{
  return "<r>" + content + "</r>";
}

std::string elements(int count, std::function<std::string(int)> const& element)
{
  std::string text;
  for (int i = 0; i < count; ++i)
    text += element(i);
  return text;
}

std::vector<Subject> const subjects = {
  {"elements of a schema, in a choice", 2000,
    [](int size)
    {
      return in_schema("<xs:element name='r'><xs:complexType><xs:choice maxOccurs='unbounded'>" +
                       elements(size, [](int i) { return "<xs:element name='e" + std::to_string(i) + "'/>"; }) +
                       "</xs:choice></xs:complexType></xs:element>");
    },
    [](int size) { return in_root(elements(size, [](int i) { return "<e" + std::to_string(i) + "/>"; })); }},
  {"maxOccurs, and as many children", 10000,
    [](int size)
    {
      return in_schema("<xs:element name='r'><xs:complexType><xs:sequence maxOccurs='" + std::to_string(size) +
                       "'><xs:element name='a'/><xs:element name='b' minOccurs='0'/></xs:sequence></xs:complexType>"
                       "</xs:element>");
    },
    [](int size) { return in_root(elements(size, [](int i) { return i % 2 == 0 ? "<a/>" : "<a/><b/>"; })); }},
  {"length of a value with a pattern", 100000, [](int) { return with_pattern("(a+)*b"); },
    [](int size) { return in_root(std::string(static_cast<std::size_t>(size), 'a') + "b"); }},
  {"a count in a pattern, a value of 100", 100,
    [](int size) { return with_pattern("(a{0," + std::to_string(size) + "}b?){0," + std::to_string(size) + "}"); },
    [](int) { return in_root(std::string(100, 'a')); }},
  {"listed values", 10000,
    [](int size)
    {
      return in_schema("<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='v' maxOccurs='unbounded'>"
                       "<xs:simpleType><xs:restriction base='xs:string'>" +
                       elements(size, [](int i) { return "<xs:enumeration value='v" + std::to_string(i) + "'/>"; }) +
                       "</xs:restriction></xs:simpleType></xs:element></xs:sequence></xs:complexType></xs:element>");
    },
    [](int size) { return in_root(elements(size, [](int i) { return "<v>v" + std::to_string(i) + "</v>"; })); }},
};

bool measure(Subject const& subject, std::string const& folder, int rounds)
{
  std::printf(
    "%s\n  %12s %12s %14s %12s %14s\n", subject.name, "size", "schema, ms", "a thousand", "check, ms", "a thousand");
  bool is_all_valid = true;
  for (int step = 0, size = subject.first; step < steps; ++step, size *= 2)
  {
    std::string const schema = folder + "/growth.xsd";
    std::string const document = folder + "/growth.xml";
    std::ofstream(schema) << subject.schema(size);
    std::ofstream(document) << subject.document(size);
    std::unique_ptr<Contender> const contender = make_axs_check(schema);
    std::vector<double> compiling;
    std::vector<double> checking;
    for (int round = 0; round < rounds; ++round)
    {
      double const start = Timing::now();
      is_all_valid = compile_with_axs(schema) && is_all_valid;
      double const compiled = Timing::now();
      is_all_valid = contender->run(document) && is_all_valid;
      checking.push_back(Timing::now() - compiled);
      compiling.push_back(compiled - start);
    }
    double const thousands = size / 1000.0;
    std::printf("  %12d %12.3f %14.4f %12.3f %14.4f\n", size, Timing::median(compiling),
      Timing::median(compiling) / thousands, Timing::median(checking), Timing::median(checking) / thousands);
  }
  return is_all_valid;
}
}

bool measure_growth(std::string const& folder, int rounds)
{
  bool is_all_valid = true;
  for (Subject const& subject : subjects)
    is_all_valid = measure(subject, folder, rounds) && is_all_valid;
  if (!is_all_valid)
    std::printf("  not all of it was taken for valid\n");
  return is_all_valid;
}
