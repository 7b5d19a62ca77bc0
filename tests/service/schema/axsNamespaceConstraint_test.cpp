#include <axsNamespaceConstraint.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using Namespaces = axsWildcard::Namespaces;

axsWildcard any()
{
  return {};
}

axsWildcard other_than(std::string const& space)
{
  axsWildcard made;
  made.kind = Namespaces::not_one;
  made.spaces = axsNamespaceList({space});
  return made;
}

axsWildcard one_of(std::vector<std::string> const& spaces)
{
  axsWildcard made;
  made.kind = Namespaces::one_of;
  made.spaces = axsNamespaceList(spaces);
  return made;
}

// "any", "not u" or "u, v", where "-" stands for no namespace; "none" for what cannot be expressed.
std::string shown(std::optional<axsWildcard> const& wildcard)
{
  if (!wildcard.has_value())
    return "none";
  if (wildcard->kind == Namespaces::any)
    return "any";
  std::string text = wildcard->kind == Namespaces::not_one ? "not" : "";
  for (std::string_view const space : wildcard->spaces.names())
    text += (text.empty() ? "" : " ") + (space.empty() ? std::string("-") : std::string(space));
  return text;
}

struct Case
{
  axsWildcard left;
  axsWildcard right;
  char const* united;
  char const* intersected;
};

std::vector<Case> const cases = {
  {any(), any(), "any", "any"},
  {any(), other_than("u"), "any", "not u"},
  {any(), one_of({"u"}), "any", "u"},
  {one_of({"", "u"}), one_of({"u", "v"}), "- u v", "u"},
  {one_of({}), one_of({"u"}), "u", ""},
  {other_than("u"), other_than("u"), "not u", "not u"},
  {other_than("u"), other_than("v"), "not -", "none"},
  {other_than("u"), other_than(""), "not -", "not u"},
  {other_than("u"), one_of({"", "u"}), "any", ""},
  {other_than("u"), one_of({"u", "v"}), "not -", "v"},
  {other_than("u"), one_of({"", "v"}), "none", "v"},
  {other_than("u"), one_of({"v"}), "not u", "v"},
  {other_than(""), one_of({"", "v"}), "any", "v"},
  {other_than(""), one_of({"v"}), "not -", "v"},
};
}

TEST(axsNamespaceConstraint, unions_and_intersections_are_those_of_the_recommendation)
{
  for (Case const& c : cases)
    for (bool const turned : {false, true})
    {
      axsWildcard const& left = turned ? c.right : c.left;
      axsWildcard const& right = turned ? c.left : c.right;
      EXPECT_EQ(shown(axsNamespaceConstraint::united(left, right)), c.united) << shown(left) << " | " << shown(right);
      EXPECT_EQ(shown(axsNamespaceConstraint::intersected(left, right)), c.intersected)
        << shown(left) << " & " << shown(right);
    }
}

TEST(axsNamespaceConstraint, results_allow_what_they_say)
{
  for (Case const& c : cases)
    for (char const* const space : {"", "u", "v", "w"})
    {
      bool const left = axsNamespaceConstraint::allows(c.left, space);
      bool const right = axsNamespaceConstraint::allows(c.right, space);
      auto const united = axsNamespaceConstraint::united(c.left, c.right);
      auto const both = axsNamespaceConstraint::intersected(c.left, c.right);
      if (united.has_value())
      {
        EXPECT_EQ(axsNamespaceConstraint::allows(*united, space), left || right) << c.united << " '" << space << "'";
      }
      if (both.has_value())
      {
        EXPECT_EQ(axsNamespaceConstraint::allows(*both, space), left && right) << c.intersected << " '" << space << "'";
      }
    }
}

TEST(axsNamespaceConstraint, a_subset_allows_nothing_more)
{
  EXPECT_TRUE(axsNamespaceConstraint::is_subset(one_of({"v"}), other_than("u")));
  EXPECT_FALSE(axsNamespaceConstraint::is_subset(one_of({"u"}), other_than("u")));
  EXPECT_FALSE(axsNamespaceConstraint::is_subset(one_of({""}), other_than("u")));
  EXPECT_TRUE(axsNamespaceConstraint::is_subset(one_of({"u"}), one_of({"u", "v"})));
  EXPECT_FALSE(axsNamespaceConstraint::is_subset(one_of({"u", "w"}), one_of({"u", "v"})));
  EXPECT_TRUE(axsNamespaceConstraint::is_subset(other_than("u"), any()));
  EXPECT_FALSE(axsNamespaceConstraint::is_subset(any(), other_than("u")));
  EXPECT_FALSE(axsNamespaceConstraint::is_subset(other_than("u"), other_than("v")));
  EXPECT_FALSE(axsNamespaceConstraint::is_subset(other_than("u"), one_of({"u"})));
}
