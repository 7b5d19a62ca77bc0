// The drawn and generated checks against engines of which each breaks one promise in a way that few cases show. A minute of
// work that is the same on every system and in which a sanitizer would find what it finds in the other runs of the suite.

#include "ExpectSeen.h"
#include "SuiteFolder.h"

#include <map>
#include <string>
#include <vector>

TEST(faults, subtle_ones_of_trees_are_seen)
{
  expect_seen(subtle_tree_faults(), run_generated_classes);
}

TEST(faults, subtle_ones_of_contents_are_seen)
{
  expect_seen(subtle_content_faults(), run_generated_classes);
}

TEST(faults, those_read_off_the_headers_are_seen)
{
  expect_seen(promise_faults(), run_all_classes);
}

TEST(faults, those_against_rules_that_the_headers_refer_to_are_seen)
{
  expect_seen(rule_faults(), run_all_classes);
}

TEST(faults, those_of_what_is_held_deep_large_or_rare_are_seen)
{
  expect_seen(held_faults(), run_all_classes);
}

TEST(faults, subtle_ones_of_factories_are_seen)
{
  expect_seen(subtle_factory_faults(), run_generated_classes);
}

TEST(faults, those_of_nodes_made_up_from_outside_are_seen)
{
  expect_seen(outside_tree_faults(), run_drawn_first);
}

TEST(faults, those_of_values_made_up_from_outside_are_seen)
{
  expect_seen(outside_value_faults(), run_drawn_first);
}

TEST(faults, those_of_loads_made_up_from_outside_are_seen)
{
  expect_seen(outside_load_faults(), run_all_classes);
}

TEST(faults, more_that_are_made_up_from_outside_are_seen)
{
  expect_seen(outside_second_faults(), run_drawn_first);
}

TEST(faults, those_of_trees_that_show_in_combinations_only_are_seen)
{
  expect_seen(outside_third_tree_faults(), run_until_seen);
  expect_seen(outside_third_typed_faults(), run_until_seen);
}

TEST(faults, those_of_loads_and_saves_that_show_in_combinations_only_are_seen)
{
  expect_seen(outside_third_load_faults(), run_until_seen);
  expect_seen(outside_third_save_faults(), run_until_seen);
}

TEST(faults, those_of_schemas_and_searches_that_show_in_combinations_only_are_seen)
{
  expect_seen(outside_third_schema_faults(), run_rules_until_seen);
  expect_seen(outside_third_search_faults(), run_rules_until_seen);
}

TEST(faults, those_of_what_was_the_weakest_are_seen)
{
  expect_seen(outside_fourth_faults(), run_rules_until_seen);
}

// Each engine uses one freedom of every operation, so that few are enough.
TEST(freedoms, an_engine_that_uses_them_passes)
{
  std::size_t used = 0;
  for (int rank = 0; used < freedoms().size(); ++rank)
  {
    SuiteFolder const folder("axm freedom");
    Hooks hooks;
    std::string names;
    std::map<std::string, int> number;
    for (Fault const& freedom : freedoms())
      if (number[freedom.operation]++ == rank)
      {
        freedom.put_into(hooks);
        names += std::string(freedom.operation) + ": " + freedom.name + "\n";
        ++used;
      }
    EXPECT_EQ(failed_groups(run_suite(hooked_engine(quick_engine(), hooks))), std::vector<std::string>()) << names;
  }
}
