#include "ConformClasses.h"

#include <axmCommentNodeUtest.h>
#include <axmContractUtest.h>
#include <axmDocumentFactoryUtest.h>
#include <axmDocumentUtest.h>
#include <axmElementUtest.h>
#include <axmLoadUtest.h>
#include <axmModelUtest.h>
#include <axmNamedNodeMapUtest.h>
#include <axmNodeListUtest.h>
#include <axmNodeUtest.h>
#include <axmSchemaUtest.h>
#include <axmSearchUtest.h>
#include <axmTextNodeUtest.h>
#include <axmTypedUtest.h>
#include <axmValidationUtest.h>
#include <axmXPathUtest.h>
#include <axmXmlUtest.h>

#include <algorithm>

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;

struct CheckClass
{
  char const* name;
  void (*run)(ConformSelection const& selection, utUnitTest* tester, Factory const& factory);
};

template <class Suite>
void run_with_owner(ConformSelection const&, utUnitTest* tester, Factory const& factory)
{
  Suite(tester).run_tests(factory);
}

template <class Suite>
void run_with_reference(ConformSelection const&, utUnitTest* tester, Factory const& factory)
{
  Suite(tester).run_tests(*factory);
}

template <class Suite>
void run_with_draws(ConformSelection const& selection, utUnitTest* tester, Factory const& factory)
{
  Suite(tester, selection.seed, selection.rounds).run_tests(factory);
}

CheckClass const check_classes[] = {
  {"axmDocumentFactoryUtest", run_with_owner<axmDocumentFactoryUtest>},
  {"axmValidationUtest", run_with_reference<axmValidationUtest>},
  {"axmNodeUtest", run_with_reference<axmNodeUtest>},
  {"axmElementUtest", run_with_reference<axmElementUtest>},
  {"axmDocumentUtest", run_with_reference<axmDocumentUtest>},
  {"axmNodeListUtest", run_with_reference<axmNodeListUtest>},
  {"axmNamedNodeMapUtest", run_with_reference<axmNamedNodeMapUtest>},
  {"axmTextNodeUtest", run_with_reference<axmTextNodeUtest>},
  {"axmCommentNodeUtest", run_with_reference<axmCommentNodeUtest>},
  {"axmContractUtest", run_with_owner<axmContractUtest>},
  {"axmLoadUtest", run_with_owner<axmLoadUtest>},
  {"axmXmlUtest", run_with_owner<axmXmlUtest>},
  {"axmSchemaUtest", run_with_owner<axmSchemaUtest>},
  {"axmXPathUtest", run_with_owner<axmXPathUtest>},
  {"axmTypedUtest", run_with_draws<axmTypedUtest>},
  {"axmSearchUtest", run_with_draws<axmSearchUtest>},
  {"axmModelUtest", run_with_draws<axmModelUtest>},
};
}

std::vector<std::string> conform_class_names()
{
  std::vector<std::string> names;
  for (CheckClass const& check_class : check_classes)
    names.emplace_back(check_class.name);
  return names;
}

void run_conform_classes(ConformSelection const& selection, utUnitTest* tester, Factory const& factory)
{
  std::vector<std::string> const& wanted = selection.classes;
  for (CheckClass const& check_class : check_classes)
    if (wanted.empty() || std::find(wanted.begin(), wanted.end(), check_class.name) != wanted.end())
      check_class.run(selection, tester, factory);
}
