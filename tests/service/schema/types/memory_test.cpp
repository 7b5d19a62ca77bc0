// Simple types when memory runs out.

#include "../../../FailingMemory.h"
#include "Making.h"

#include <axsPattern.h>

#include <new>

using Kind = axsFacetKind;

namespace
{
class Silent : public axsTypeDiagnostics
{
public:
  void report(std::uint64_t, char const*, std::string) override {}
};
}

TEST(TypesMemory, making_types_that_fails_leaks_nothing)
{
  built_in("int");
  std::vector<axsFacet> const facets{facet(Kind::pattern, "[a-z]+(x|y){2,30}\\d*"), facet(Kind::pattern, "b"),
    facet(Kind::enumeration, "bb"), facet(Kind::enumeration, "a long value that is allocated"),
    facet(Kind::max_length, "40"), facet(Kind::length, "x")};
  auto const make = [&facets]
  {
    Silent none;
    axsSimpleTypes types;
    axsSimpleType const& restricted = types.restrict({}, built_in("token"), facets, none);
    axsSimpleType const& listed = types.list({}, restricted, none);
    axsSimpleType const& both = types.union_of({}, {&restricted, &listed}, none);
    types.restrict({}, both, {facet(Kind::enumeration, "bb bb")}, none);
  };
  EXPECT_GT(fails_cleanly(make), 50);
}

TEST(TypesMemory, a_check_that_fails_leaves_a_type_that_works)
{
  Making making;
  axsSimpleType const& type =
    making.list(making.restrict("token", {facet(Kind::pattern, "([a-c]+x?)*"), facet(Kind::pattern, "z{0,5000}")}));
  axsSimpleType const& any = making.union_of({&built_in("date"), &type, &built_in("double")});
  std::string const value = "abcx cabx a zzz aaaaaaaaaaaaaaaaaaaaaaaaaaaaax";
  with_every_failure(
    [&]
    {
      try
      {
        ToldContext const context;
        axsValue made;
        static_cast<void>(any.check(value, context, &made));
        static_cast<void>(any.fault("abcx q", context));
      }
      catch (std::bad_alloc const&)
      {
      }
    },
    [&](bool, long)
    {
      EXPECT_TRUE(is_valid(any, value));
      EXPECT_FALSE(is_valid(any, "abcx q"));
    });
}

TEST(TypesMemory, common_values_are_checked_without_allocating)
{
  std::pair<char const*, char const*> const values[] = {{"string", " some text that is longer than a short one "},
    {"token", "some text that is longer than a short one"}, {"int", " -12345 "}, {"long", "9223372036854775807"},
    {"decimal", "123456.789"}, {"boolean", "true"}, {"double", "-1.5e3"}, {"float", "1.5"}, {"date", "2024-12-31Z"},
    {"dateTime", "2024-12-31T23:59:59.123+01:00"}, {"NMTOKEN", "a-name-that-is-longer-than-a-short-one"},
    {"anyURI", "http://example.org/a-path-that-is-longer"}, {"hexBinary", "00112233445566778899aabbccddeeff0011"},
    {"base64Binary", "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA"}, {"NCName", "name"}};
  Making making;
  axsSimpleType const& listed = making.restrict(
    "token", {facet(Kind::enumeration, "a value that is longer than short"), facet(Kind::enumeration, "b")});
  axsSimpleType const& bounded = making.restrict("decimal", {facet(Kind::max_inclusive, "100")});
  ToldContext const context;
  auto const count = [&context](axsSimpleType const& type, std::string_view text)
  {
    type.check(text, context, nullptr);
    bool is_valid = false;
    bool failed = false;
    {
      FailingMemory const memory(0);
      try
      {
        is_valid = type.check(text, context, nullptr);
      }
      catch (std::bad_alloc const&)
      {
      }
      failed = memory.has_failed();
    }
    EXPECT_TRUE(is_valid && !failed) << text;
  };
  for (auto const& [name, text] : values)
    count(built_in(name), text);
  count(listed, "a value that is longer than short");
  count(bounded, "99.5");
}
