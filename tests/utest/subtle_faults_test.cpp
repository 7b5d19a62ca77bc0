// The drawn and generated checks against engines of which each breaks one promise in a way that few cases show. A minute of
// work that is the same on every system and in which a sanitizer would find what it finds in the other runs of the suite.

#include "ExpectSeen.h"

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
