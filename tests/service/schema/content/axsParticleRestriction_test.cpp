#include "ContentExpression.h"

#include "axsParticleRestriction.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// Whether one content restricts another, both of the same declarations.
bool restricts(std::string const& restricted, std::string const& base)
{
  ContentExpression both("(" + restricted + "," + base + ")");
  std::vector<axsParticle> const& particles = both.particle().group->particles;
  axsContentModels models({});
  return axsParticleRestriction(models).check(particles[0], particles[1]);
}
}

// rcase-NameAndTypeOK, and the ranges of numbers of occurrences (range-ok)
TEST(axsParticleRestriction, an_element_restricts_itself_within_its_range)
{
  EXPECT_TRUE(restricts("a{2,3}", "a{1,4}"));
  EXPECT_TRUE(restricts("a{2,}", "a*"));
  EXPECT_FALSE(restricts("a{0,3}", "a{1,4}"));
  EXPECT_FALSE(restricts("a{1,5}", "a{1,4}"));
  EXPECT_FALSE(restricts("a{1,}", "a{1,4}"));
  EXPECT_FALSE(restricts("a", "b"));
}

// rcase-NSCompat, rcase-NSSubset, rcase-NSRecurseCheckCardinality
TEST(axsParticleRestriction, a_wildcard_is_restricted_by_what_it_allows)
{
  EXPECT_TRUE(restricts("a", "."));
  EXPECT_TRUE(restricts(".", ".?"));
  EXPECT_FALSE(restricts(".?", "."));
  EXPECT_TRUE(restricts("(a, b)", ".{2,2}"));
  EXPECT_FALSE(restricts("(a, b?)", ".{2,2}"));
  EXPECT_TRUE(restricts("(a | (b, c){0,2})*", ".*"));
  EXPECT_FALSE(restricts(".", "a"));
  EXPECT_FALSE(restricts(".", "(a, b)"));
}

// rcase-Recurse
TEST(axsParticleRestriction, a_sequence_keeps_the_order_and_what_is_required)
{
  EXPECT_TRUE(restricts("(a, c)", "(a, b?, c)"));
  EXPECT_TRUE(restricts("(a, b, c)", "(a, b?, c)"));
  EXPECT_FALSE(restricts("(a, c)", "(a, b, c)"));
  EXPECT_FALSE(restricts("(c, a)", "(a, b?, c)"));
  EXPECT_FALSE(restricts("(a, b, c, d)", "(a, b?, c)"));
  EXPECT_TRUE(restricts("(b & c)", "(a? & b & c)"));
  EXPECT_FALSE(restricts("(c & b)", "(a? & b & c)"));
}

// rcase-RecurseLax, rcase-RecurseUnordered, rcase-MapAndSum, rcase-RecurseAsIfGroup
TEST(axsParticleRestriction, groups_of_other_kinds_are_restricted_by_their_own_rules)
{
  EXPECT_TRUE(restricts("(a | c)", "(a | b | c)"));
  EXPECT_FALSE(restricts("(c | a)", "(a | b | c)"));
  EXPECT_TRUE(restricts("(c, b)", "(a? & b & c)"));
  EXPECT_FALSE(restricts("(c, a)", "(a? & b & c)"));
  EXPECT_TRUE(restricts("(b, a, b)", "(a | b){3,5}"));
  EXPECT_FALSE(restricts("(b, a)", "(a | b){3,5}"));
  EXPECT_TRUE(restricts("b", "(a | b)"));
  EXPECT_TRUE(restricts("b", "(a?, b)"));
  EXPECT_FALSE(restricts("b", "(a, b)"));
  EXPECT_FALSE(restricts("(a | b)", "(a?, b?)"));
  EXPECT_FALSE(restricts("(a & b)", "(a, b)"));
}

// The recommendation has pointless groups passed over.
TEST(axsParticleRestriction, pointless_groups_make_no_difference)
{
  EXPECT_TRUE(restricts("((a), ((b, c)))", "(a, b, c)"));
  EXPECT_TRUE(restricts("(a, b, c)", "((a, b), (c))"));
  EXPECT_TRUE(restricts("((a | b) | c)", "(a | (b | c))"));
  EXPECT_TRUE(restricts("(a, ())", "(a)"));
  EXPECT_FALSE(restricts("(a, b)", "((a, b){1,2})?{2,3}"));
  EXPECT_TRUE(restricts("()", "(a?, b?)"));
  EXPECT_FALSE(restricts("()", "(a?, b)"));
  // At any depth.
  EXPECT_TRUE(restricts("(b{0,0}, ())", "(a?)"));
  EXPECT_FALSE(restricts("(b{0,0}, ())", "(a)"));
  EXPECT_TRUE(restricts("((), ((), ((), ())))", "(a?, b?)"));
  EXPECT_TRUE(restricts("(a, ((), (b{0,0}, ())))", "a"));
  EXPECT_TRUE(restricts("a", "(a, ((), (b{0,0}, ())))"));
  EXPECT_TRUE(restricts("((), ())", "((), (a{0,0}, (())))"));
  EXPECT_FALSE(restricts("(a?)", "((), (a{0,0}, (())))"));
}

TEST(axsParticleRestriction, empty_groups_nested_deeply_are_passed_over)
{
  std::string empty = "()";
  for (int i = 0; i < 1000; ++i)
    empty = "((), " + empty + ", b{0,0})";
  EXPECT_TRUE(restricts(empty, "(a?)"));
  EXPECT_TRUE(restricts("(a, " + empty + ")", "(a)"));
  EXPECT_FALSE(restricts(empty, "(a)"));
}

TEST(axsParticleRestriction, an_empty_content_is_restricted_by_an_empty_one_only)
{
  EXPECT_TRUE(restricts("()", "()"));
  EXPECT_TRUE(restricts("(a{0,0})", "()"));
  EXPECT_TRUE(restricts("(a{0,0}, b{0,0})", "(b{0,0})"));
  EXPECT_FALSE(restricts("a", "()"));
  EXPECT_FALSE(restricts("(a?)", "(a{0,0})"));
  EXPECT_TRUE(restricts("()", "(a | b)?"));
  EXPECT_TRUE(restricts("()", "(a? | b)"));
  EXPECT_FALSE(restricts("()", "(a | b)"));
}

TEST(axsParticleRestriction, groups_nested_deeply_are_compared)
{
  std::string open;
  std::string close;
  for (int i = 0; i < 1000; ++i)
  {
    open += "(a,(b|";
    close += "))";
  }
  EXPECT_TRUE(restricts(open + "c" + close, open + "c" + close));
  EXPECT_FALSE(restricts(open + "c" + close, open + "d" + close));
}
