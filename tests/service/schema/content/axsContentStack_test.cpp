#include "ContentExpression.h"
#include "axsContentAutomaton.h"
#include "axsContentStack.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace
{
// Runs a content over children whose names are letters.
class Content
{
public:
  explicit Content(std::string const& text) : expression(text), models({}), automaton(made()) {}

  axsContentProblem const& problem() const { return found; }
  bool is_ambiguous() const { return found.kind == axsContentProblem::Kind::ambiguous; }

  bool takes(std::string const& children)
  {
    axsContentStack stack;
    stack.open(*automaton);
    for (char const c : children)
      if (step(stack, std::string(1, c)) == nullptr)
        return false;
    return stack.may_end();
  }

  axsContentItem const* step(axsContentStack& stack, std::string const& name) const
  {
    return stack.step(models.symbols().find("", name), models.symbols().find_space(""));
  }

  // What is expected after the children: the names, "." for a wildcard, "$" for the end.
  std::string expected_after(std::string const& children)
  {
    axsContentStack stack;
    stack.open(*automaton);
    for (char const c : children)
      step(stack, std::string(1, c));
    axsContentStack::Expected const expected = stack.expected(12);
    std::string list;
    for (axsContentItem const* const item : expected.items)
      list += item->names == nullptr ? "." : item->names->decl->name.local;
    return list + (expected.may_end ? "$" : "") + (expected.is_whole ? "" : "...");
  }

  axsContentAutomaton const& made_automaton() const { return *automaton; }

private:
  std::shared_ptr<axsContentAutomaton const> made() { return models.compile(expression.particle(), found); }

  ContentExpression expression;
  axsContentProblem found;
  axsContentModels models;
  std::shared_ptr<axsContentAutomaton const> automaton;
};

// The definition of what a particle takes, to the letter: where a part of `word` from `from` on may end.
class Judge
{
public:
  explicit Judge(std::string const& text) : word(text) {}

  bool takes(axsParticle const& particle) { return ends(particle, 0).count(word.size()) != 0; }

private:
  using Ends = std::set<std::size_t>;

  Ends const& ends(axsParticle const& particle, std::size_t from)
  {
    auto const known = all.find({&particle, from});
    return known != all.end() ? known->second : all[{&particle, from}] = found_ends(particle, from);
  }

  Ends found_ends(axsParticle const& particle, std::size_t from)
  {
    Ends reached{from};
    Ends found;
    if (particle.min_occurs == 0)
      found.insert(from);
    for (std::uint64_t times = 1; times <= particle.max_occurs && times <= particle.min_occurs + word.size() + 1;
         ++times)
    {
      Ends next;
      for (std::size_t const start : reached)
        for (std::size_t const end : ends_of_term(particle, start))
          next.insert(end);
      reached = next;
      if (times >= particle.min_occurs)
        found.insert(reached.begin(), reached.end());
    }
    return found;
  }

  Ends ends_of_term(axsParticle const& particle, std::size_t from)
  {
    if (particle.group == nullptr)
    {
      bool const fits = from < word.size() &&
                        (particle.element == nullptr || particle.element->name.local == std::string(1, word[from]));
      return fits ? Ends{from + 1} : Ends();
    }
    if (particle.group->compositor == axsModelGroup::Compositor::choice)
    {
      Ends found;
      for (axsParticle const& part : particle.group->particles)
        for (std::size_t const end : ends(part, from))
          found.insert(end);
      return found;
    }
    Ends reached{from};
    for (axsParticle const& part : particle.group->particles)
    {
      Ends next;
      for (std::size_t const start : reached)
        for (std::size_t const end : ends(part, start))
          next.insert(end);
      reached = next;
    }
    return reached;
  }

  std::string word;
  std::map<std::pair<axsParticle const*, std::size_t>, Ends> all;
};

// Whether a content is ambiguous, by writing out all its occurrences and comparing what may follow each.
class AttributionJudge
{
public:
  explicit AttributionJudge(axsParticle const& particle)
  {
    Part const whole = written_out(particle, "r");
    ambiguous = clash(whole.first);
    for (auto const& next : follow)
      ambiguous = ambiguous || clash(next);
  }

  bool is_ambiguous() const { return ambiguous; }

private:
  struct Part
  {
    std::set<std::size_t> first;
    std::set<std::size_t> last;
    bool nullable;
  };

  Part written_out(axsParticle const& particle, std::string const& path)
  {
    Part all{{}, {}, true};
    for (std::uint64_t i = 0; i < particle.min_occurs; ++i)
      all = joined(all, term(particle, path));
    if (particle.max_occurs == axsParticle::unbounded)
    {
      Part more = term(particle, path);
      connect(more, more);
      more.nullable = true;
      return joined(all, more);
    }
    Part rest{{}, {}, true};
    for (std::uint64_t i = particle.min_occurs; i < particle.max_occurs; ++i)
    {
      rest = joined(term(particle, path), rest);
      rest.nullable = true;
    }
    return joined(all, rest);
  }

  Part term(axsParticle const& particle, std::string const& path)
  {
    if (particle.group == nullptr)
    {
      leaves.push_back({particle.element == nullptr ? "." : particle.element->name.local, path});
      follow.emplace_back();
      return {{leaves.size() - 1}, {leaves.size() - 1}, false};
    }
    bool const is_choice = particle.group->compositor == axsModelGroup::Compositor::choice;
    Part all{{}, {}, !is_choice};
    int number = 0;
    for (axsParticle const& part : particle.group->particles)
    {
      Part const next = written_out(part, path + "/" + std::to_string(number++));
      if (!is_choice)
      {
        all = joined(all, next);
        continue;
      }
      all.first.insert(next.first.begin(), next.first.end());
      all.last.insert(next.last.begin(), next.last.end());
      all.nullable = all.nullable || next.nullable;
    }
    return all;
  }

  void connect(Part const& left, Part const& right)
  {
    for (std::size_t const place : left.last)
      follow[place].insert(right.first.begin(), right.first.end());
  }

  Part joined(Part const& left, Part const& right)
  {
    connect(left, right);
    Part both{left.first, right.last, left.nullable && right.nullable};
    if (left.nullable)
      both.first.insert(right.first.begin(), right.first.end());
    if (right.nullable)
      both.last.insert(left.last.begin(), left.last.end());
    return both;
  }

  bool clash(std::set<std::size_t> const& places) const
  {
    for (std::size_t const one : places)
      for (std::size_t const other : places)
        if (leaves[one].second != leaves[other].second &&
            (leaves[one].first == leaves[other].first || leaves[one].first == "." || leaves[other].first == "."))
          return true;
    return false;
  }

  std::vector<std::pair<std::string, std::string>> leaves; // name and path
  std::vector<std::set<std::size_t>> follow;
  bool ambiguous = false;
};

std::string random_content(std::mt19937& random, int depth, int names)
{
  auto const below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
  std::string text;
  if (depth == 0 || below(4) == 0)
    text = below(20) == 0 ? "." : std::string(1, static_cast<char>('a' + below(names)));
  else
  {
    char const* const sign = below(2) == 0 ? "," : "|";
    int const parts = 1 + below(3);
    for (int i = 0; i < parts; ++i)
      text += (i == 0 ? "(" : sign) + random_content(random, depth - 1, names);
    text += ")";
  }
  int const min = below(4);
  switch (below(8))
  {
  case 0:
    return text + "?";
  case 1:
    return text + "*";
  case 2:
    return text + "+";
  case 3:
    return text + "{" + std::to_string(min) + "," + std::to_string(min + below(3) + (min == 0 ? 1 : 0)) + "}";
  case 4:
    return text + "{" + std::to_string(min) + ",}";
  default:
    return text;
  }
}

// Numbers of occurrences within numbers of occurrences, nearly all of the same element.
std::string random_counts(std::mt19937& random, int depth)
{
  auto const below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
  std::string text = "a";
  if (depth > 0)
  {
    static char const* const forms[][2] = {
      {"(", ")"}, {"(", ", b?)"}, {"(c?, ", ")"}, {"(c | ", ")"}, {"(", ", (b | c)?)"}};
    auto const& form = forms[below(5)];
    text = form[0] + random_counts(random, depth - 1) + form[1];
  }
  int const min = below(4);
  int const max = min + below(4) + (min == 0 ? 1 : 0);
  return text + "{" + std::to_string(min) + "," + (below(6) == 0 ? "" : std::to_string(max)) + "}";
}
}

TEST(axsContentStack, takes_what_the_particle_takes)
{
  Content content("(a, b?, (c | d)*, e{2,3})");
  EXPECT_TRUE(content.takes("aee"));
  EXPECT_TRUE(content.takes("abcdceee"));
  EXPECT_FALSE(content.takes("ae"));
  EXPECT_FALSE(content.takes("aeeee"));
  EXPECT_FALSE(content.takes("bee"));
  EXPECT_FALSE(content.takes(""));
}

TEST(axsContentStack, a_group_all_takes_its_elements_in_any_order_each_once)
{
  Content content("(a & b? & c)");
  EXPECT_TRUE(content.takes("ac"));
  EXPECT_TRUE(content.takes("cba"));
  EXPECT_FALSE(content.takes("aca"));
  EXPECT_FALSE(content.takes("ab"));
  EXPECT_FALSE(content.takes(""));
  EXPECT_TRUE(Content("(a & b)?").takes(""));
  EXPECT_FALSE(Content("(a & b)?").takes("a"));
}

TEST(axsContentStack, counts_that_may_be_reached_in_several_ways_are_all_followed)
{
  Content content("(a{2,3}, b?){2,2}");
  EXPECT_FALSE(content.is_ambiguous());
  EXPECT_TRUE(content.takes("aaaa"));
  EXPECT_TRUE(content.takes("aabaa"));
  EXPECT_TRUE(content.takes("aaaaaa"));
  EXPECT_FALSE(content.takes("aaa"));
  EXPECT_FALSE(content.takes("aaabaaabaa"));
  Content few("(a{2,2}){2,3}");
  EXPECT_TRUE(few.takes("aaaa"));
  EXPECT_FALSE(few.takes("aaaaa"));
  EXPECT_TRUE(few.takes("aaaaaa"));
}

TEST(axsContentStack, counts_within_counts_are_followed_as_the_definition_has_it)
{
  std::mt19937 random(1506);
  int taken = 0;
  int refused = 0;
  for (int i = 0; i < 800; ++i)
  {
    std::string const text = random_counts(random, 1 + i % 4);
    Content content(text);
    ContentExpression const expression(text);
    for (int word = 0; word < 8 && !content.is_ambiguous(); ++word)
    {
      std::string children;
      for (std::size_t length = random() % 24; length > 0; --length)
        children += "aaaaaaaaaaaabbcc"[random() % (word < 4 ? 12 : 16)];
      bool const is_right = Judge(children).takes(expression.particle());
      ASSERT_EQ(content.takes(children), is_right) << text << " over " << children;
      (is_right ? taken : refused) += 1;
    }
  }
  EXPECT_GT(taken, 500);
  EXPECT_GT(refused, 500);
}

// How often (b, c){3,50000} has occurred says nothing of how often the choice has, which can go up at many places.
TEST(axsContentStack, long_runs_of_counted_groups_are_counted_in_few_ways)
{
  Content content("((b{1,1000}, c{2,}){3,50000} | d{5,9})*");
  std::string run;
  for (int i = 0; i < 20000; ++i)
    run += "bcc";
  EXPECT_TRUE(content.takes(run + "ddddd" + run));
  EXPECT_FALSE(content.takes(run + "dddd" + run));
  EXPECT_FALSE(content.takes(run + "dddddbccbcc"));
}

TEST(axsContentStack, large_numbers_of_occurrences_cost_nothing)
{
  Content content("((a{1,1000000}, b?){0,4294967295}, c{0,99999999999})");
  EXPECT_FALSE(content.problem());
  EXPECT_TRUE(content.takes(std::string(100000, 'a') + std::string(100000, 'c')));
  axsContentStack stack;
  stack.open(content.made_automaton());
  for (int i = 0; i < 1000; ++i)
    ASSERT_NE(content.step(stack, "a"), nullptr);
  EXPECT_FALSE(Content("a{5,4294967295}").takes("aaaa"));
  EXPECT_TRUE(Content("((a{0,1000000}){0,1000000}){0,1000000}").takes(std::string(10000, 'a')));
}

TEST(axsContentStack, says_what_is_expected)
{
  Content content("(a, b?, (c | .)*, e{2,3})");
  EXPECT_EQ(content.expected_after(""), "a");
  EXPECT_EQ(Content("(a, b?, (c | d)*, e{2,3})").expected_after("a"), "bcde");
  EXPECT_EQ(Content("(a, b?, (c | d)*, e{2,3})").expected_after("aee"), "e$");
  EXPECT_EQ(Content("(a & b? & c)").expected_after("c"), "ab");
  EXPECT_EQ(Content("(a & b? & c)").expected_after("ca"), "b$");
  EXPECT_EQ(Content("()").expected_after(""), "$");
  std::string many = "(a";
  for (int i = 0; i < 100; ++i)
    many += "?, a" + std::to_string(i);
  EXPECT_EQ(Content(many + "?)").expected_after(""), "aa0a1a2a3a4a5a6a7a8a9a10$...");
}

TEST(axsContentStack, a_child_that_is_refused_leaves_all_as_it_was)
{
  Content content("(a, b)");
  axsContentStack stack;
  stack.open(content.made_automaton());
  EXPECT_NE(content.step(stack, "a"), nullptr);
  EXPECT_EQ(content.step(stack, "a"), nullptr);
  EXPECT_EQ(content.step(stack, "z"), nullptr);
  EXPECT_NE(content.step(stack, "b"), nullptr);
  EXPECT_TRUE(stack.may_end());
}

TEST(axsContentStack, elements_within_each_other_run_apart)
{
  Content content("(a, b)");
  axsContentStack stack;
  stack.open(content.made_automaton());
  content.step(stack, "a");
  stack.open(content.made_automaton());
  EXPECT_EQ(content.step(stack, "b"), nullptr);
  stack.close();
  EXPECT_NE(content.step(stack, "b"), nullptr);
}

// A content of which the parts that may be missing are reached from each other is as large as its parts are many.
TEST(axsContentStack, long_contents_are_run)
{
  for (char const* const sign : {"|", "?,", "&"})
  {
    std::string text = "(x";
    int const count = sign[0] == '&' ? 5000 : 20000;
    for (int i = 0; i < count; ++i)
      text += sign + ("n" + std::to_string(i));
    Content content(text + (sign[0] == '?' ? "?)" : ")"));
    EXPECT_FALSE(content.problem());
    axsContentStack stack;
    stack.open(content.made_automaton());
    EXPECT_NE(content.step(stack, sign[0] == '&' ? "n4999" : "n17000"), nullptr);
    EXPECT_EQ(content.step(stack, "n16999") != nullptr, sign[0] == '&' && count > 16999);
  }
}

TEST(axsContentStack, groups_nested_deeply_are_run)
{
  std::string open;
  std::string close;
  for (int i = 0; i < 3000; ++i)
  {
    open += "(a" + std::to_string(i) + ",(b|";
    close += "))";
  }
  Content content(open + "z" + close);
  EXPECT_FALSE(content.problem());
  axsContentStack stack;
  stack.open(content.made_automaton());
  for (int i = 0; i < 3000; ++i)
    ASSERT_NE(content.step(stack, "a" + std::to_string(i)), nullptr);
  EXPECT_NE(content.step(stack, "z"), nullptr);
  EXPECT_TRUE(stack.may_end());
}

TEST(axsContentModels, a_content_is_ambiguous_where_a_child_may_be_meant_by_two_particles)
{
  char const* const ambiguous[] = {"(a?, a)", "(a*, a)", "(a{1,2}, a)", "(a | (a, b))", "((a, b?)*, a)",
    "(b?, (a | c)*, a)", "(. | a)", "(., .?, a)", "((a?, b?){2,2}, a)", "(a & b & a)", "(x?, ((y, a?) | (z, a?)), a)"};
  for (char const* const text : ambiguous)
    EXPECT_TRUE(Content(text).is_ambiguous()) << text;
  char const* const plain[] = {"(a{2,2}, a)", "(a, a)", "(a, b?, a)", "((a, b)*, c)", "((a{1,3}){2,4})", "(a, .)",
    "((a{2,2}){2,2}, a)", "(a?, b?, c?)*", "((a?, b)*, c)", "(a{1,3}, b?){2,2}"};
  for (char const* const text : plain)
    EXPECT_FALSE(Content(text).problem()) << text;
}

TEST(axsContentModels, both_particles_of_an_ambiguity_are_told)
{
  Content const content("(a?, b?, a)");
  ASSERT_TRUE(content.is_ambiguous());
  EXPECT_EQ(content.problem().first->min_occurs + content.problem().second->min_occurs, 1U);
}

TEST(axsContentModels, ambiguity_and_what_is_taken_agree_with_the_definitions)
{
  std::mt19937 random(20231);
  int plain = 0;
  int ambiguous = 0;
  for (int i = 0; i < 6000; ++i)
  {
    std::string const text = random_content(random, 3, 3 + i % 4);
    Content content(text);
    ContentExpression const expression(text);
    ASSERT_EQ(content.is_ambiguous(), AttributionJudge(expression.particle()).is_ambiguous()) << text;
    (content.is_ambiguous() ? ambiguous : plain) += 1;
    for (int word = 0; word < 12 && !content.is_ambiguous(); ++word)
    {
      std::string children;
      for (std::size_t length = random() % 9; length > 0; --length)
        children += static_cast<char>('a' + random() % 4);
      ASSERT_EQ(content.takes(children), Judge(children).takes(expression.particle())) << text << " over " << children;
    }
  }
  EXPECT_GT(plain, 1000);
  EXPECT_GT(ambiguous, 1000);
}
