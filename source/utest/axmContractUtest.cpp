#include "axmContractUtest.h"

#include "axmUtestGroup.h"

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
}

axmContractUtest::axmContractUtest(utUnitTest* given) : tester(given) {}

axmContractUtest::~axmContractUtest() = default;

void axmContractUtest::run_tests(Factory const& factory) const
{
  using Utest = axmContractUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_parents, "axmContractUtest::test_parents"},
    {&Utest::test_children, "axmContractUtest::test_children"},
    {&Utest::test_siblings, "axmContractUtest::test_siblings"},
    {&Utest::test_owner_document, "axmContractUtest::test_owner_document"},
    {&Utest::test_append_child, "axmContractUtest::test_append_child"},
    {&Utest::test_insert_before, "axmContractUtest::test_insert_before"},
    {&Utest::test_replace_child, "axmContractUtest::test_replace_child"},
    {&Utest::test_remove_child, "axmContractUtest::test_remove_child"},
    {&Utest::test_moves, "axmContractUtest::test_moves"},
    {&Utest::test_refusals, "axmContractUtest::test_refusals"},
    {&Utest::test_identity, "axmContractUtest::test_identity"},
    {&Utest::test_lifetimes, "axmContractUtest::test_lifetimes"},
    {&Utest::test_text, "axmContractUtest::test_text"},
    {&Utest::test_xml, "axmContractUtest::test_xml"},
    {&Utest::test_creation, "axmContractUtest::test_creation"},
    {&Utest::test_attributes, "axmContractUtest::test_attributes"},
    {&Utest::test_typed_attributes, "axmContractUtest::test_typed_attributes"},
    {&Utest::test_locale_attributes, "axmContractUtest::test_locale_attributes"},
    {&Utest::test_attributes_of_others, "axmContractUtest::test_attributes_of_others"},
    {&Utest::test_select, "axmContractUtest::test_select"},
    {&Utest::test_elements_by_tag_name, "axmContractUtest::test_elements_by_tag_name"},
    {&Utest::test_list_cursor, "axmContractUtest::test_list_cursor"},
    {&Utest::test_live_lists, "axmContractUtest::test_live_lists"},
    {&Utest::test_list_items, "axmContractUtest::test_list_items"},
    {&Utest::test_live_maps, "axmContractUtest::test_live_maps"},
    {&Utest::test_map_items, "axmContractUtest::test_map_items"},
    {&Utest::test_load_success, "axmContractUtest::test_load_success"},
    {&Utest::test_load_failure, "axmContractUtest::test_load_failure"},
    {&Utest::test_load_place, "axmContractUtest::test_load_place"},
    {&Utest::test_white_space, "axmContractUtest::test_white_space"},
    {&Utest::test_entities, "axmContractUtest::test_entities"},
    {&Utest::test_validation, "axmContractUtest::test_validation"},
    {&Utest::test_bad_schemas, "axmContractUtest::test_bad_schemas"},
    {&Utest::test_file_names, "axmContractUtest::test_file_names"},
    {&Utest::test_save_memory, "axmContractUtest::test_save_memory"},
    {&Utest::test_save_file, "axmContractUtest::test_save_file"},
  };
  axm_run_groups(*this, factory, groups, tester, "source/utest/axmContractUtest");
}
