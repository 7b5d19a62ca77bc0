// Schemas and documents that are drawn, judged by another validator.

#include "DrawnSchema.h"
#include "GuardedRun.h"
#include "JudgedSchema.h"
#include "PairMaker.h"
#include "SchemaJudge.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <sstream>

namespace
{
int const documents_of_schema = 20;

// What the two found otherwise, with the words of the one that refuses.
struct Difference
{
  std::string const& words;
  DrawnSchema const& schema;
  std::string const& document; // empty of a schema
  PairMaker const& maker;
  SchemaJudge& judge;

  bool is_of_a_list(std::string const& value) const
  {
    std::string const start = "\"" + value + "\" is not of the type ";
    std::size_t const at = words.find(start);
    if (at == std::string::npos)
      return false;
    std::string type =
      words.substr(at + start.size(), words.find_first_of(", :", at + start.size() + 3) - at - start.size());
    type.erase(std::remove(type.begin(), type.end(), '\''), type.end());
    return schema.is_made_of(type, "xs:NMTOKENS");
  }

  // The value that stands after these words.
  std::string value_after(std::string const& before) const
  {
    std::size_t const at = words.find(before) + before.size();
    return words.substr(at, words.find('\'', at) - at);
  }

  bool comes_in_document(std::string const& value, std::size_t times) const
  {
    std::size_t count = 0;
    for (std::size_t at = document.find(value); at != std::string::npos; at = document.find(value, at + 1))
      ++count;
    return count >= times;
  }

  // Whether the judge takes the document once the values that it tells of are without white space at their ends.
  bool is_taken_when_trimmed() const
  {
    std::string const before = "': '";
    std::string changed = document;
    for (std::size_t at = words.find(before); at != std::string::npos; at = words.find(before, at + 1))
    {
      std::size_t const start = at + before.size();
      std::string const value = words.substr(start, words.find('\'', start) - start);
      std::size_t const begin = value.find_first_not_of(' ');
      if (begin == std::string::npos)
        return false;
      replace_all(changed, value, value.substr(begin, value.find_last_not_of(' ') + 1 - begin));
    }
    return judge.takes(changed);
  }

private:
  static void replace_all(std::string& text, std::string const& value, std::string const& by)
  {
    for (std::size_t at = text.find(value); at != std::string::npos; at = text.find(value, at + by.size()))
      text.replace(at, value.size(), by);
  }
};

// Why the judge may differ: what each of the two says who refuses, in which rule the judge goes its own way, and whether the
// rule is about this schema or document.
struct Exception
{
  char const* ours;
  char const* judge;
  char const* rule;
  bool (*applies)(Difference const& difference);
};

char const* explained(
  std::vector<Exception> const& exceptions, Verdict const& ours, Verdict const& judge, Difference const& difference)
{
  for (Exception const& exception : exceptions)
    if (says(ours, exception.ours) && says(judge, exception.judge) && exception.applies(difference))
      return exception.rule;
  return nullptr;
}

bool is_about_an_empty_list(Difference const& difference)
{
  return difference.is_of_a_list("") || difference.is_of_a_list(" ") || difference.is_of_a_list("  ");
}

bool has_right_contents(Difference const& difference)
{
  return difference.maker.has_right_contents(difference.document);
}

bool has_wrong_contents(Difference const& difference)
{
  return !has_right_contents(difference);
}

std::vector<Exception> const of_schemas = {
  {"(unique particle attribution)", "", "Part 1, 3.8.6 cos-nonambig: the judge lets particles of one name compete",
    [](Difference const& it) { return it.maker.is_ambiguous(); }},
  {"", "The content model is not determinist",
    "Part 1, 3.8.6 cos-nonambig: no particle competes with itself, nor with the next before it has occurred often "
    "enough",
    [](Difference const& it) { return !it.maker.is_ambiguous(); }},
  {"minLength-valid-restriction", "",
    "Part 2, 3.3.4: a list of NMTOKENs has one at least, which the judge does not know",
    [](Difference const& it) { return it.schema.has_nmtokens_with("minLength"); }},
  {"is not of the type", "", "Part 2, 3.3.4: a list of NMTOKENs has one at least, which the judge does not know",
    is_about_an_empty_list},
  {"(minExclusive-valid-restriction)", "",
    "Part 2, 4.3.9.4: a type inherits a maxInclusive below which its values must lie",
    [](Difference const& it) { return it.schema.has_lower_bound_at_upper_one(); }},
  {"is not allowed for an ID", "", "Part 1, 3.2.6: what is derived from ID is one, which the judge does not see",
    [](Difference const& it) { return it.schema.has_attribute_derived_from_id(true); }},
  {"are both of the type xs:ID", "", "Part 1, 3.4.6: what is derived from ID is one, which the judge does not see",
    [](Difference const& it) { return it.schema.has_attribute_derived_from_id(false); }},
  {"", "Value constraints are not allowed if the type", "Part 1, 3.2.6: a list of IDs is not derived from ID",
    [](Difference const& it) { return it.schema.has_attribute_made_of_ids(true); }},
  {"", "more than one attribute declaration of type 'xs:ID'", "Part 1, 3.4.6: a list of IDs is not derived from ID",
    [](Difference const& it) { return it.schema.has_attribute_made_of_ids(false); }},
  {"", "which has an 'all' model group in its",
    "Part 1, 3.4.2: an extension that adds nothing has the content of its base",
    [](Difference const& it) { return it.schema.has_all_extended_by_nothing(); }},
  {"", "[facet 'minExclusive']", "Part 2, 4.3.9.4: a minExclusive may be that of the base type",
    [](Difference const& it) { return it.schema.has_repeated("minExclusive"); }},
  {"", "[facet 'maxExclusive']", "Part 2, 4.3.8.4: a maxExclusive may be that of the base type",
    [](Difference const& it) { return it.schema.has_repeated("maxExclusive"); }},
  {"", "Internal error", "none: the judge fails by itself", [](Difference const&) { return true; }},
};

std::vector<Exception> const of_documents = {
  {"", " ' is not a valid value of the atomic type",
    "Part 2, 4.3.6: the judge does not take white space off all numbers and dates",
    [](Difference const& it) { return it.is_taken_when_trimmed(); }},
  {"", "Internal error", "none: the judge fails by itself", [](Difference const&) { return true; }},
  {"", "No precomputed value available",
    "Part 1, 3.11.4: an empty list is a value of a field, which the judge has lost",
    [](Difference const& it) { return it.schema.has("<xs:field ") && it.schema.has("<xs:list "); }},
  {"", "Duplicate key-sequence ['",
    "Part 2, 2.5.1: a list of one value is not that value, which the judge takes for the same",
    [](Difference const& it) { return it.schema.has("<xs:list ") || it.schema.has("NMTOKENS"); }},
  {"there is no ID '", "", "Part 1, 3.15.4 cvc-id: the judge does not look for the ID that is referred to",
    [](Difference const& it)
    {
      std::string const value = it.value_after("there is no ID '");
      return it.schema.has("xs:IDREF") && (it.schema.has_default_with(value) || it.comes_in_document(value, 1));
    }},
  {": ID value '", "", "Part 1, 3.15.4 cvc-id: the judge does not compare the IDs that are contents of elements",
    [](Difference const& it)
    {
      return (it.schema.has("xs:ID'") || it.schema.has("xs:ID ")) &&
             it.comes_in_document(it.value_after(": ID value '"), 2);
    }},
  {"is not of the type", "", "Part 2, 3.3.4: a list of NMTOKENs has one at least, which the judge does not know",
    is_about_an_empty_list},
  {"ends too early", "", "Part 1, 3.8.4: the judge counts otherwise in groups that repeat", has_wrong_contents},
  {"may not stand here", "", "Part 1, 3.8.4: the judge counts otherwise in groups that repeat", has_wrong_contents},
  {"", "This element is not expected", "Part 1, 3.8.4: the judge counts otherwise in groups that repeat",
    has_right_contents},
  {"", "Missing child element", "Part 1, 3.8.4: the judge counts otherwise in groups that repeat", has_right_contents},
};

// What came of some comparisons, also as text, in which it comes out of another process.
class Tally
{
public:
  Tally() = default;

  explicit Tally(std::string const& text)
  {
    std::istringstream in(text);
    std::size_t rules = 0;
    in >> schemas >> documents >> valid >> rules;
    in.ignore();
    for (std::size_t i = 0; i < rules; ++i)
    {
      int count = 0;
      in >> count;
      std::string rule;
      std::getline(in.ignore(), rule);
      by_rule[rule] = count;
    }
    std::getline(in, differences, '\0');
  }

  std::string text() const
  {
    std::ostringstream out;
    out << schemas << ' ' << documents << ' ' << valid << ' ' << by_rule.size() << '\n';
    for (auto const& [rule, count] : by_rule)
      out << count << ' ' << rule << '\n';
    return out.str() + differences;
  }

  void add(Tally const& other)
  {
    schemas += other.schemas;
    documents += other.documents;
    valid += other.valid;
    differences += other.differences;
    for (auto const& [rule, count] : other.by_rule)
      by_rule[rule] += count;
  }

  void compare(std::vector<Exception> const& exceptions, Verdict const& ours, Verdict const& judge,
    std::string const& schema, std::string const& document, PairMaker const& maker, SchemaJudge& judging)
  {
    if (ours.is_good == judge.is_good)
      return;
    std::string const words = ours.words + judge.words;
    char const* const rule = explained(exceptions, ours, judge, {words, DrawnSchema(schema), document, maker, judging});
    if (rule != nullptr)
      ++by_rule[rule];
    else
      differences += "\nours: " + (ours.is_good ? "good" : ours.words) +
                     "\njudge: " + (judge.is_good ? "good" : judge.words) + '\n' + schema + document + '\n';
  }

  int schemas = 0;
  int documents = 0;
  int valid = 0;
  std::map<std::string, int> by_rule;
  std::string differences;
};

// One schema that is drawn, and the documents for it.
Tally compare(std::uint32_t seed)
{
  PairMaker maker(seed);
  std::string const schema = maker.schema();
  JudgedSchema const ours(schema);
  SchemaJudge judge(schema);
  Verdict const of_ours = ours.schema();
  Tally tally;
  tally.schemas = 1;
  tally.compare(of_schemas, of_ours, {judge.takes_schema(), judge.words()}, schema, {}, maker, judge);
  if (!of_ours.is_good || !judge.takes_schema())
    return tally;
  for (; tally.documents < documents_of_schema; ++tally.documents)
  {
    std::string const document = maker.document();
    Verdict const of_document = ours.document(document);
    bool const is_taken = judge.takes(document);
    tally.compare(of_documents, of_document, {is_taken, judge.words()}, schema, document, maker, judge);
    tally.valid += of_document.is_good ? 1 : 0;
  }
  return tally;
}

// The same without the judge.
void judge_ours(std::uint32_t seed)
{
  PairMaker maker(seed);
  JudgedSchema const ours(maker.schema());
  for (int number = 0; ours.schema().is_good && number < documents_of_schema; ++number)
    ours.document(maker.document());
}
}

// In other processes, since there are contents of which the judge tries all ways.
TEST(axsAssessment_judged, schemas_and_documents_are_taken_that_the_judge_takes)
{
  // Three of four schemas are wrong, and have no documents.
  auto const schemas = static_cast<std::size_t>(number_of("AXM_JUDGED_PAIRS", 600)) * 4 / documents_of_schema;
  auto const seed = static_cast<std::uint32_t>(number_of("AXM_JUDGED_SEED", 1));
  Tally all;
  std::size_t endless = 0;
  auto const task = [seed](std::size_t number)
  {
    auto const of_pair = seed + static_cast<std::uint32_t>(number / 2);
    if (number % 2 == 1)
      return compare(of_pair).text();
    judge_ours(of_pair);
    return std::string();
  };
  GuardedLimits limits;
  limits.seconds = 10;
  run_guarded(2 * schemas, task, limits,
    [&](std::size_t number, GuardedEnd const& end)
    {
      std::string const which = "seed " + std::to_string(seed + number / 2) + ": " + end.text;
      if (number % 2 == 1 && end.how == GuardedEnd::How::overran)
        ++endless;
      else if (end.how != GuardedEnd::How::answered)
        ADD_FAILURE() << which;
      else if (number % 2 == 1)
        all.add(Tally(end.text));
    });
  for (auto const& [rule, count] : all.by_rule)
    std::cout << count << ": " << rule << '\n';
  std::cout << all.valid << " of " << all.documents << " documents valid, " << all.schemas << " schemas; " << endless
            << " schemas have contents with which the judge does not come to an end\n";
  EXPECT_EQ(all.differences, "");
  EXPECT_LE(endless, schemas / 1000);
  // There must be enough of both for the comparison to say something.
  EXPECT_GT(all.valid, all.documents / 10);
  EXPECT_LT(all.valid, all.documents * 9 / 10);
}
