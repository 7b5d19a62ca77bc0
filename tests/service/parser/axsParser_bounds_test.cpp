// Documents that would become far more than they are: each is refused, or read in a bounded number of steps. What is
// counted are expansions, bytes told and events, never seconds.

#include "axsBounds.h"
#include "axsDtd.h"
#include "axsNameTable.h"
#include "axsParseHandler.h"
#include "axsParser.h"
#include "axsSource.h"
#include "axsStartTag.h"

#include "../Engine.h"

#include <string>

namespace
{
// Counts what it is told.
class Counter final : public axsParseHandler
{
public:
  axsName const& name(std::string_view text) override { return names.intern(text); }
  void doctype(std::shared_ptr<axsDtd const> const&) override {}
  void start_element(axsStartTag const& tag) override
  {
    ++elements;
    for (axsTagAttribute const& attribute : *tag.attributes)
      bytes += attribute.value.size();
  }
  void end_element() override {}
  void text(std::string_view text, bool) override { bytes += text.size(); }
  void comment(std::string_view) override {}
  void processing_instruction(std::string_view, std::string_view) override {}

  std::size_t elements = 0;
  std::size_t bytes = 0;

private:
  axsNameTable names;
};

struct Outcome
{
  std::size_t elements;
  std::size_t bytes;
  // Empty where all of it was read.
  std::string error;
};

Outcome read(std::string const& document, int max_expansions = 50000)
{
  axmLoadOptions options(axmValidateNone);
  options.set_entity_expansion_limit(max_expansions);
  apByteArray const data(document.data(), document.size());
  axsSource source(data);
  Counter counter;
  std::string error;
  try
  {
    axsParser(source, options, counter).run();
  }
  catch (axsReadError const& wrong)
  {
    error = narrow(wrong.message);
  }
  return {counter.elements, counter.bytes, error};
}

std::string repeated(std::string const& text, std::size_t count)
{
  std::string made;
  for (std::size_t i = 0; i < count; ++i)
    made += text;
  return made;
}

// Entities e0 to e<last>, each of which names the one before `factor` times.
std::string entities(int last, int factor, std::string const& first = "x")
{
  std::string made = "<!ENTITY e0 '" + first + "'>";
  for (int i = 1; i <= last; ++i)
    made += "<!ENTITY e" + std::to_string(i) + " '" +
            repeated("&e" + std::to_string(i - 1) + ";", static_cast<std::size_t>(factor)) + "'>";
  return made;
}

std::string with(std::string const& subset, std::string const& root)
{
  return "<!DOCTYPE r [" + subset + "]>" + root;
}

std::string const too_many = "entities are expanded more than 50000 times, which is the limit";
std::string const too_large = "The entities and defaults of the document make it too large";
}

TEST(axsParser_bounds, laughs_by_the_billion_are_refused_wherever_they_are)
{
  for (std::string const& document : {with(entities(40, 3), "<r>&e40;</r>"), with(entities(40, 3), "<r a='&e40;'/>"),
         with(entities(40, 3) + "<!ATTLIST r a CDATA '&e40;'>", "<r/>"), with(entities(40, 3, "<a/>"), "<r>&e40;</r>")})
  {
    Outcome const outcome = read(document);
    EXPECT_EQ(outcome.error, too_many);
    EXPECT_LE(outcome.elements, 50000u);
  }
}

TEST(axsParser_bounds, parameter_entities_count)
{
  std::string subset = "<!ENTITY % p0 '<!--x-->'>";
  for (int i = 1; i <= 60; ++i)
    subset += "<!ENTITY % p" + std::to_string(i) + " '" + repeated("&#37;p" + std::to_string(i - 1) + ";", 2) + "'>";
  EXPECT_EQ(read(with(subset + "%p60;", "<r/>")).error, too_many);
  // Once each, to the one: 7 in all.
  EXPECT_EQ(read(with(subset + "%p2;", "<r/>"), 7).error, "");
  EXPECT_EQ(
    read(with(subset + "%p2;", "<r/>"), 6).error, "entities are expanded more than 6 times, which is the limit");
}

TEST(axsParser_bounds, expansions_are_counted_together_and_exactly)
{
  std::string const subset = "<!ENTITY % p ''>%p;<!ENTITY e 'x'><!ENTITY f '&e;'><!ATTLIST r a CDATA '&e;'>";
  std::string const document = with(subset, "<r b='&f;'>&f;&e;</r>");
  EXPECT_EQ(read(document, 7).error, "");
  EXPECT_EQ(read(document, 6).error, "entities are expanded more than 6 times, which is the limit");
}

// What is read again, since not all of it was in memory, is not counted again.
TEST(axsParser_bounds, pieces_that_are_read_again_count_once)
{
  std::string const filler(200000, 'y');
  std::string const document =
    with("<!ENTITY e 'x'><!ENTITY f '&e;z'>", "<r a='&f;" + filler + "&f;'>&e;" + filler + "&f;</r>");
  EXPECT_EQ(read(document, 7).error, "");
  EXPECT_NE(read(document, 6).error, "");
}

TEST(axsParser_bounds, quadratic_growth_is_refused)
{
  for (std::string const& text : {std::string(100000, 'x'), std::string(100000, 'x') + "<a/>"})
  {
    Outcome const outcome = read(with("<!ENTITY e '" + text + "'>", "<r>" + repeated("&e;", 2000) + "</r>"));
    EXPECT_EQ(outcome.error, too_large);
    EXPECT_LE(outcome.bytes, 100 * 110000u);
  }
}

// An element takes more memory than its tag takes bytes.
TEST(axsParser_bounds, elements_of_entities_count_as_nodes)
{
  std::size_t const of_one = 1000 * (axsBounds::node_size + 4);
  auto const document = [](std::size_t references)
  { return with("<!ENTITY e '" + repeated("<a/>", 1000) + "'>", "<r>" + repeated("&e;", references) + "</r>"); };
  EXPECT_EQ(read(document(axsBounds::growth_free / of_one - 1)).error, "");
  EXPECT_EQ(read(document(axsBounds::growth_free / of_one + 1)).error, too_large);
}

TEST(axsParser_bounds, entities_in_each_other_may_be_as_many_as_side_by_side)
{
  Outcome const nested = read(with(entities(48999, 1), "<r>&e48999;</r>"));
  EXPECT_EQ(nested.error, "");
  EXPECT_EQ(nested.bytes, 1u);
  EXPECT_EQ(read(with(entities(24000, 1), "<r a='&e24000;'>&e24000;</r>")).bytes, 2u);
  Outcome const beside = read(with("<!ENTITY e '<a/>'>", "<r>" + repeated("&e;", 49000) + "</r>"));
  EXPECT_EQ(beside.error, "");
  EXPECT_EQ(beside.elements, 49001u);
}

TEST(axsParser_bounds, takes_many_declarations_and_deep_models)
{
  std::string elements;
  std::string attributes;
  for (int i = 0; i < 100000; ++i)
  {
    elements += "<!ELEMENT a" + std::to_string(i) + " (b|c)*>";
    attributes += " a" + std::to_string(i) + " CDATA #IMPLIED";
  }
  EXPECT_EQ(read(with(elements, "<r/>")).error, "");
  EXPECT_EQ(read(with("<!ATTLIST r" + attributes + ">", "<r>" + repeated("<r/>", 100000) + "</r>")).elements, 100001u);
  EXPECT_EQ(
    read(with("<!ELEMENT r " + std::string(1000000, '(') + "a" + std::string(1000000, ')') + ">", "<r/>")).error, "");
}

// Of a large file, no more is read than it takes to see that it is wrong.
TEST(axsParser_bounds, an_error_at_the_beginning_is_told_after_one_piece)
{
  std::string const far(10000000, 'x');
  for (std::string const begin : {"<a></b>", "<a b=c>", "text", "<!DOCTYPE a [<!ELEMENT a>", "<a>&b;"})
  {
    TestFile const file("parser_early.xml", begin + far);
    axsSource source(file.path());
    Counter counter;
    EXPECT_THROW(axsParser(source, axmLoadOptions(axmValidateNone), counter).run(), axsReadError);
    // What is left can still be read.
    std::size_t left = 0;
    char block[65536];
    for (std::size_t count; (count = source.read(block, sizeof block)) > 0;)
      left += count;
    EXPECT_GT(left, far.size() - 200000) << begin;
  }
}
