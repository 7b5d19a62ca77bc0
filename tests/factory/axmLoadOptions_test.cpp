#include <axmLoadOptions.h>

#include <climits>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace
{
// Options with a value of its own in each member.
axmLoadOptions all_set()
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(L"A", apPath(L"P1"));
  options.add_external_schema(L"B", apPath(L"P2"));
  options.set_no_namespace_schema(apPath(L"P3"));
  options.set_entity_expansion_limit(7);
  options.set_disable_entity_resolution(false);
  return options;
}

void expect_all_set(axmLoadOptions const& options)
{
  EXPECT_EQ(options.validate_mode(), axmValidateWithSchemas);
  ASSERT_EQ(options.num_external_schemas(), 2);
  EXPECT_EQ(options.external_namespace(0).view(), L"A");
  EXPECT_TRUE(options.external_schema(0) == apPath(L"P1"));
  EXPECT_EQ(options.external_namespace(1).view(), L"B");
  EXPECT_TRUE(options.external_schema(1) == apPath(L"P2"));
  EXPECT_TRUE(options.no_namespace_schema() == apPath(L"P3"));
  EXPECT_EQ(options.entity_expansion_limit(), 7);
  EXPECT_FALSE(options.disable_entity_resolution());
}

template <class Operation>
std::string thrown_out_of_range(Operation operation)
{
  try
  {
    operation();
  }
  catch (std::out_of_range const& error)
  {
    return error.what();
  }
  return "nothing";
}
}

TEST(axmValidateMode, values_are_fixed)
{
  EXPECT_EQ(static_cast<int>(axmValidateWithSchemas), 0);
  EXPECT_EQ(static_cast<int>(axmValidateNone), 1);
  EXPECT_EQ(sizeof(axmValidateMode), 4u);
}

TEST(axmLoadOptions, default_constructed_has_the_defaults)
{
  axmLoadOptions const options;
  EXPECT_EQ(options.validate_mode(), axmValidateNone);
  EXPECT_EQ(options.num_external_schemas(), 0);
  EXPECT_TRUE(options.no_namespace_schema().empty());
  EXPECT_EQ(options.entity_expansion_limit(), 50000);
  EXPECT_TRUE(options.disable_entity_resolution());
}

TEST(axmLoadOptions, constructed_with_a_mode_has_it_and_the_other_defaults)
{
  for (axmValidateMode const mode : {axmValidateWithSchemas, axmValidateNone})
  {
    axmLoadOptions const options(mode);
    EXPECT_EQ(options.validate_mode(), mode);
    EXPECT_EQ(options.num_external_schemas(), 0);
    EXPECT_TRUE(options.no_namespace_schema().empty());
    EXPECT_EQ(options.entity_expansion_limit(), 50000);
    EXPECT_TRUE(options.disable_entity_resolution());
  }
}

TEST(axmLoadOptions, schemas_are_kept_in_the_order_added)
{
  axmLoadOptions options;
  options.add_external_schema(L"A", apPath(L"P1"));
  options.add_external_schema(L"B", apPath(L"P2"));
  EXPECT_EQ(options.num_external_schemas(), 2);
  EXPECT_EQ(options.external_namespace(1).view(), L"B");
  EXPECT_TRUE(options.external_schema(0) == apPath(L"P1"));
}

TEST(axmLoadOptions, namespace_added_twice_has_two_entries)
{
  axmLoadOptions options;
  options.add_external_schema(L"A", apPath(L"P1"));
  options.add_external_schema(L"A", apPath(L"P2"));
  EXPECT_EQ(options.num_external_schemas(), 2);
  EXPECT_EQ(options.external_namespace(0), options.external_namespace(1));
  EXPECT_TRUE(options.external_schema(1) == apPath(L"P2"));
}

TEST(axmLoadOptions, own_entry_can_be_added_again)
{
  axmLoadOptions options;
  options.add_external_schema(L"A", apPath(L"P1"));
  for (int i = 0; i < 20; ++i)
    options.add_external_schema(options.external_namespace(0), options.external_schema(0));
  EXPECT_EQ(options.external_namespace(20).view(), L"A");
  EXPECT_TRUE(options.external_schema(20) == apPath(L"P1"));
}

TEST(axmLoadOptions, setters_store_what_they_are_given)
{
  axmLoadOptions options;
  options.set_validate_mode(axmValidateWithSchemas);
  options.set_entity_expansion_limit(-1);
  options.set_disable_entity_resolution(false);
  options.set_no_namespace_schema(apPath(L"\u0444 100%.xsd"));
  options.add_external_schema(apString(), apPath());
  EXPECT_EQ(options.validate_mode(), axmValidateWithSchemas);
  EXPECT_EQ(options.entity_expansion_limit(), -1);
  EXPECT_FALSE(options.disable_entity_resolution());
  EXPECT_TRUE(options.no_namespace_schema() == apPath(L"\u0444 100%.xsd"));
  EXPECT_TRUE(options.external_namespace(0).empty());
  EXPECT_TRUE(options.external_schema(0).empty());
  options.set_entity_expansion_limit(INT_MIN);
  EXPECT_EQ(options.entity_expansion_limit(), INT_MIN);
  options.set_no_namespace_schema(apPath());
  EXPECT_TRUE(options.no_namespace_schema().empty());
}

TEST(axmLoadOptions, index_outside_of_the_entries_throws_invalid_vector_subscript)
{
  axmLoadOptions const options = all_set();
  for (int const index : {2, 3, INT_MAX, -1, -2, INT_MIN})
  {
    EXPECT_EQ(thrown_out_of_range([&] { options.external_namespace(index); }), "invalid vector subscript") << index;
    EXPECT_EQ(thrown_out_of_range([&] { options.external_schema(index); }), "invalid vector subscript") << index;
  }
  expect_all_set(options);
  axmLoadOptions const none;
  EXPECT_EQ(thrown_out_of_range([&] { none.external_namespace(0); }), "invalid vector subscript");
  EXPECT_EQ(thrown_out_of_range([&] { none.external_schema(-1); }), "invalid vector subscript");
}

TEST(axmLoadOptions, copy_keeps_all_members_and_is_independent)
{
  axmLoadOptions const source = all_set();
  axmLoadOptions copy(source);
  expect_all_set(copy);
  copy.set_validate_mode(axmValidateNone);
  copy.add_external_schema(L"C", apPath(L"P4"));
  copy.set_no_namespace_schema(apPath());
  copy.set_entity_expansion_limit(8);
  copy.set_disable_entity_resolution(true);
  expect_all_set(source);
}

TEST(axmLoadOptions, assignment_keeps_all_members_and_is_independent)
{
  axmLoadOptions const source = all_set();
  axmLoadOptions assigned;
  assigned.add_external_schema(L"old", apPath(L"old"));
  assigned.add_external_schema(L"old", apPath(L"old"));
  assigned.add_external_schema(L"old", apPath(L"old"));
  assigned = source;
  expect_all_set(assigned);
  assigned.add_external_schema(L"C", apPath(L"P4"));
  expect_all_set(source);
}

TEST(axmLoadOptions, assignment_of_itself_keeps_all_members)
{
  axmLoadOptions options = all_set();
  axmLoadOptions const& same = options;
  EXPECT_EQ(&(options = same), &options);
  expect_all_set(options);
}

TEST(axmLoadOptions, has_no_virtual_operations)
{
  EXPECT_FALSE(std::is_polymorphic_v<axmLoadOptions>);
}
