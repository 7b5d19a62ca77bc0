#pragma once

#include "axmDocumentFactory.h"
#include "axmExport.h"

#include <apByteArray.h>
#include <apPath.h>
#include <apString.h>

#include <memory>
#include <vector>

class utUnitTest;

/// The checks of a document factory; see axmDocumentFactory for what they check.
///
/// Every check is reported to utUnitTest::get_tester(). The tester given here, which is not owned and must outlive this
/// object, gets the diagnostic text. What is missing or thrown is a failed check; a group that cannot go on leaves out
/// the rest of its checks.
///
/// The checks read "../data/in_memory_test_schema.xsd" and write into the working directory; their files are gone when
/// they are done. "./save_test.xml" bears that name in every process, so of two runs at once in one directory each may
/// fail in test_save on the other's account; all other names bear the process id.
class AXM_API axmDocumentFactoryUtest
{
public:
  explicit axmDocumentFactoryUtest(utUnitTest* tester);
  ~axmDocumentFactoryUtest();

  /// Runs all checks on `factory`, which must not be empty, registers it under "XMLService", where it stays, locates it
  /// there and runs them again on what was located.
  void run_tests(std::shared_ptr<axmDocumentFactory> factory) const;

protected:
  void do_run_tests(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_service(std::shared_ptr<axmDocumentFactory> factory) const;

  void test_create(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_attributes(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_nodes(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_from_memory(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_remove_white(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_save(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_get_xml(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_create_comments(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_read_bad(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_write_bad(std::shared_ptr<axmDocumentFactory> factory) const;
  void test_exotic_filenames(std::shared_ptr<axmDocumentFactory> factory) const;

private:
  bool do_remove_white_test(
    std::shared_ptr<axmDocumentFactory> factory, apByteArray const& data, std::vector<apString> const& expected) const;
  bool do_exotic_filename_test(
    std::shared_ptr<axmDocumentFactory> factory, apPath const& path, char const* description) const;

  utUnitTest* tester;
};
