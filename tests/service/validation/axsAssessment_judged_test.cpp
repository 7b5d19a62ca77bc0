// Schemas and documents that are drawn, judged by another validator.

#include "../Engine.h"
#include "PairMaker.h"
#include "SchemaJudge.h"

#include <axsValidation.h>

#include <cstdlib>
#include <map>

namespace
{
int const documents_of_schema = 20;

// More of them where AXM_JUDGED_PAIRS asks for so many; others where AXM_JUDGED_SEED names another beginning.
int number_of(char const* variable, int otherwise)
{
  char const* const wanted = std::getenv(variable);
  return wanted == nullptr ? otherwise : std::atoi(wanted);
}

struct Verdict
{
  bool is_good = false;
  std::string words;
};

// A schema in a file, and ours about it.
class Ours
{
public:
  explicit Ours(std::string const& schema)
    : file("judged.xsd", schema),
      validation(options(file.path(), schema.find("targetNamespace") != std::string::npos))
  {
  }

  Verdict schema() const { return verdict(validation.schema_errors()); }
  Verdict document(std::string const& text) const { return verdict(validation.check(bytes(text), 1).errors); }

private:
  static axmLoadOptions options(apPath const& path, bool has_namespace)
  {
    axmLoadOptions made(axmValidateWithSchemas);
    if (has_namespace)
      made.add_external_schema(wide("urn:t"), path);
    else
      made.set_no_namespace_schema(path);
    return made;
  }

  static Verdict verdict(std::vector<axmParseError> const& errors)
  {
    return {errors.empty(), errors.empty() ? std::string() : narrow(errors.front().message())};
  }

  TestFile file;
  axsValidation validation;
};

bool has(std::string const& text, std::string const& part)
{
  return text.find(part) != std::string::npos;
}

// Why the judge may differ: what each of the two says who refuses, and in which rule the judge goes its own way.
struct Exception
{
  char const* ours;
  char const* judge;
  char const* rule;
  bool (*applies)(std::string const& words, std::string const& pair) = nullptr; // to the words of the one that refuses
};

bool says(Verdict const& verdict, std::string const& words)
{
  return verdict.is_good == words.empty() && has(verdict.words, words);
}

char const* explained(
  std::vector<Exception> const& exceptions, Verdict const& ours, Verdict const& judge, std::string const& pair)
{
  for (Exception const& exception : exceptions)
    if (says(ours, exception.ours) && says(judge, exception.judge) &&
        (exception.applies == nullptr || exception.applies(ours.words + judge.words, pair)))
      return exception.rule;
  return nullptr;
}

bool is_about_an_empty_list(std::string const& words, std::string const& pair)
{
  return has(pair, "NMTOKENS") && (has(words, "\"\" is not") || has(words, "\" \" is not"));
}

bool has_wildcard(std::string const&, std::string const& pair)
{
  return has(pair, "<xs:any ");
}

std::vector<Exception> const of_schemas = {
  {"(unique particle attribution)", "", "Part 1, 3.8.6 cos-nonambig: the judge lets particles of one name compete"},
  {"", "The content model is not determinist",
    "Part 1, 3.8.6 cos-nonambig: no particle competes with itself, nor with the next before it has occurred often "
    "enough"},
  {"minLength-valid-restriction", "",
    "Part 2, 3.3.4: a list of NMTOKENs has one at least, which the judge does not know"},
  {"is not of the type", "", "Part 2, 3.3.4: a list of NMTOKENs has one at least, which the judge does not know",
    is_about_an_empty_list},
  {"(minExclusive-valid-restriction)", "",
    "Part 2, 4.3.9.4: a type inherits a maxInclusive below which its values must lie"},
  {"is not allowed for an ID", "", "Part 1, 3.2.6: what is derived from ID is one, which the judge does not see"},
  {"are both of the type xs:ID", "", "Part 1, 3.4.6: what is derived from ID is one, which the judge does not see"},
  {"", "Value constraints are not allowed if the type", "Part 1, 3.2.6: a list of IDs is not derived from ID"},
  {"", "more than one attribute declaration of type 'xs:ID'", "Part 1, 3.4.6: a list of IDs is not derived from ID"},
  {"", "which has an 'all' model group in its",
    "Part 1, 3.4.2: an extension that adds nothing has the content of its base"},
  {"", "[facet 'minExclusive']", "Part 2, 4.3.9.4: a minExclusive may be that of the base type"},
  {"", "[facet 'maxExclusive']", "Part 2, 4.3.8.4: a maxExclusive may be that of the base type"},
  {"", "Internal error", "none: the judge fails by itself"},
};

std::vector<Exception> const of_documents = {
  {"", " ' is not a valid value of the atomic type",
    "Part 2, 4.3.6: the judge does not take white space off all numbers"},
  {"", "No precomputed value available",
    "Part 1, 3.11.4: an empty list is a value of a field, which the judge has lost"},
  {"there is no ID", "", "Part 1, 3.15.4 cvc-id: the judge does not look for the ID that is referred to"},
  {": ID value '", "", "Part 1, 3.15.4 cvc-id: the judge does not compare the IDs that are contents of elements"},
  {"is not of the type", "", "Part 2, 3.3.4: a list of NMTOKENs has one at least, which the judge does not know",
    is_about_an_empty_list},
  {"ends too early", "", "Part 1, 3.8.4: what must follow a wildcard is not missed by the judge", has_wildcard},
  {"may not stand here", "", "Part 1, 3.8.4: what may not follow a wildcard is not refused by the judge", has_wildcard},
  {"", "This element is not expected", "Part 1, 3.8.4: the judge counts wildcards in groups that repeat otherwise",
    has_wildcard},
  {"", "Missing child element", "Part 1, 3.8.4: the judge counts wildcards in groups that repeat otherwise",
    has_wildcard},
};

class Tally
{
public:
  void compare(
    std::vector<Exception> const& exceptions, Verdict const& ours, Verdict const& judge, std::string const& what)
  {
    ++compared;
    if (ours.is_good == judge.is_good)
      return;
    char const* const rule = explained(exceptions, ours, judge, what);
    if (rule != nullptr)
    {
      ++by_rule[rule];
      return;
    }
    ADD_FAILURE() << "ours: " << (ours.is_good ? "good" : ours.words)
                  << "\njudge: " << (judge.is_good ? "good" : judge.words) << '\n'
                  << what;
  }

  int compared = 0;
  std::map<std::string, int> by_rule;
};
}

TEST(axsAssessment_judged, schemas_and_documents_are_taken_that_the_judge_takes)
{
  int const pairs = number_of("AXM_JUDGED_PAIRS", 600);
  auto const seed = static_cast<std::uint32_t>(number_of("AXM_JUDGED_SEED", 1));
  Tally schemas;
  Tally documents;
  int valid = 0;
  for (std::uint32_t i = 0; documents.compared < pairs; ++i)
  {
    PairMaker maker(seed + i);
    std::string const schema = maker.schema();
    Ours const ours(schema);
    SchemaJudge judge(schema);
    Verdict const of_ours = ours.schema();
    schemas.compare(of_schemas, of_ours, {judge.takes_schema(), judge.words()}, schema);
    if (!of_ours.is_good || !judge.takes_schema())
      continue;
    for (int number = 0; number < documents_of_schema; ++number)
    {
      std::string const document = maker.document();
      Verdict const of_document = ours.document(document);
      bool const is_taken = judge.takes(document);
      documents.compare(of_documents, of_document, {is_taken, judge.words()}, schema + document);
      valid += of_document.is_good ? 1 : 0;
    }
  }
  for (Tally const& tally : {schemas, documents})
    for (auto const& [rule, count] : tally.by_rule)
      std::cout << count << " of " << tally.compared << ": " << rule << '\n';
  std::cout << valid << " of " << documents.compared << " documents valid, " << schemas.compared << " schemas\n";
  // There must be enough of both for the comparison to say something.
  EXPECT_GT(valid, documents.compared / 10);
  EXPECT_LT(valid, documents.compared * 9 / 10);
}
