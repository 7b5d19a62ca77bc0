#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <memory>

class utUnitTest;

/// The checks of what the contract promises beyond what the other check classes look at: the tree under every kind of
/// edit and misuse, identity and lifetimes, live lists and maps, typed attributes under the current locale, searches,
/// loads with their options and errors, saves. See axmNode, axmElement, axmDocument, axmNodeList, axmNamedNodeMap and
/// axmDocumentFactory.
///
/// Every check is reported to utUnitTest::get_tester(). The tester given here, which is not owned and must outlive this
/// object, gets the diagnostic text. What is missing or thrown is a failed check; a group that cannot go on leaves out
/// the rest of its checks.
///
/// The checks write into the working directory, under names that bear the process id; their files are gone when they are
/// done.
class AXM_API axmContractUtest
{
public:
  explicit axmContractUtest(utUnitTest* tester);
  ~axmContractUtest();

  /// Runs all checks on `factory`, which must not be empty, and on what it creates, loads and saves.
  void run_tests(std::shared_ptr<axmDocumentFactory> const& factory) const;

protected:
  void test_parents(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_children(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_siblings(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_owner_document(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_append_child(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_insert_before(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_replace_child(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_remove_child(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_moves(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_refusals(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_identity(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_lifetimes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_text(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_xml(std::shared_ptr<axmDocumentFactory> const& factory) const;

  void test_creation(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_typed_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_locale_attributes(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_attributes_of_others(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_select(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_elements_by_tag_name(std::shared_ptr<axmDocumentFactory> const& factory) const;

  void test_list_cursor(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_live_lists(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_list_items(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_live_maps(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_map_items(std::shared_ptr<axmDocumentFactory> const& factory) const;

  void test_load_success(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_load_failure(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_load_place(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_white_space(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_entities(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_validation(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_bad_schemas(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_file_names(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_save_memory(std::shared_ptr<axmDocumentFactory> const& factory) const;
  void test_save_file(std::shared_ptr<axmDocumentFactory> const& factory) const;

private:
  utUnitTest* tester;
};
