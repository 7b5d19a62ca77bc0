// The verb table, run as a user runs it.

#include "Program.h"

#include <Progress.h>
#include <RowFormat.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace
{
// Runs `axm table` on a document.
class Table : public testing::Test
{
protected:
  ProgramRun table(std::string const& text, std::vector<std::string> const& arguments)
  {
    TemporaryFile const file(document, text);
    return table_of(file.name, arguments);
  }

  ProgramRun table_of(std::string const& file, std::vector<std::string> const& arguments)
  {
    std::vector<std::string> all = {"table", file};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return run_axm(name, all);
  }

  std::string const name = testing::UnitTest::GetInstance()->current_test_info()->name();
  std::string const document = name + ".xml";
};

std::string const books =
  "<books>\n"
  "  <book id='1' lang='en'><title>One, \"two\"</title><author><name first='A'>B</name></author></book>\n"
  "  <book id='2'><author><name first='C'>D</name></author><title>Three\nfour &amp; five</title></book>\n"
  "  <books id='8'/><book id='3'/>\n"
  "</books>";
}

TEST_F(Table, writes_one_csv_row_for_each_record)
{
  ProgramRun const run = table(books, {"books/book", "author/name", "@id", "title", "author/name/@first"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "B,1,\"One, \"\"two\"\"\",A\r\nD,2,\"Three\nfour & five\",C\r\n,3,,\r\n");
  EXPECT_EQ(run.err, "");
}

TEST_F(Table, documents_with_a_type_a_mark_and_no_declaration_have_rows)
{
  ProgramRun const run = table("\xEF\xBB\xBF<!DOCTYPE r [<!ENTITY e 'E'>]><r><a k='&e;'/></r>", {"r/a", "@k"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "E\r\n");
}

TEST_F(Table, jsonl_has_null_where_there_is_no_value)
{
  ProgramRun const run = table("<r><a k=''><b/></a></r>", {"r/a", "@k", "b", "c", "--format", "jsonl"});
  EXPECT_EQ(run.out, "{\"@k\":\"\",\"b\":\"\",\"c\":null}\n");
}

TEST_F(Table, header_comes_first)
{
  ProgramRun const run = table(books, {"books/book", "@id", "@lang", "--header", "--format", "tsv"});
  EXPECT_EQ(run.out, "@id\t@lang\n1\ten\n2\t\n3\t\n");
}

TEST_F(Table, a_value_can_stand_for_what_is_missing)
{
  EXPECT_EQ(table(books, {"books/book", "@id", "@lang", "--missing", "?"}).out, "1,en\r\n2,?\r\n3,?\r\n");
}

TEST_F(Table, children_that_repeat_are_the_first_or_joined_or_rows)
{
  std::string const text = "<r><e id='1'><t k='a' v='1'/><t k='b'/></e></r>";
  EXPECT_EQ(table(text, {"r/e", "@id", "t/@k", "t/@v"}).out, "1,a,1\r\n");
  EXPECT_EQ(table(text, {"r/e", "@id", "t/@k", "t/@v", "--repeat", "join=;"}).out, "1,a;b,1\r\n");
  EXPECT_EQ(table(text, {"r/e", "@id", "t/@k", "t/@v", "--repeat", "rows"}).out, "1,a,1\r\n1,b,\r\n");
}

TEST_F(Table, prefixes_stand_for_the_namespaces_that_are_given)
{
  ProgramRun const run = table("<r xmlns='urn:x=y'><e k='1'/></r>", {"p:r/p:e", "@k", "--ns", "p=urn:x=y"});
  EXPECT_EQ(run.exit_code, 0) << run.err;
  EXPECT_EQ(run.out, "1\r\n");
}

TEST_F(Table, no_record_is_told_and_no_error)
{
  ProgramRun const run = table(books, {"books/bok", "@id"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "axm: " + document + ": there is no record 'books/bok'\n");
}

TEST_F(Table, several_documents_make_one_table)
{
  TemporaryFile const other(name + "_2.xml", "<r><e k='2'/></r>");
  ProgramRun const run = table("<r><e k='1'/></r>", {"r/e", "@k", "--header", "--more", other.name});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "@k\r\n1\r\n2\r\n");
}

TEST_F(Table, rows_before_an_error_are_written_and_counted_and_the_error_has_its_place)
{
  ProgramRun const run = table("<r><a k='1'/>\n<a k='2'/>\n<a k='3'></b></r>", {"r/a", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "1\r\n2\r\n");
  EXPECT_EQ(run.err.find(document + ":3:"), 0u) << run.err;
  EXPECT_NE(run.err.find("; rows read before that: 2\n"), std::string::npos) << run.err;
  EXPECT_NE(run.err.find("<a k='3'></b>"), std::string::npos) << run.err;
}

TEST_F(Table, what_is_wrong_after_the_last_record_is_an_error_too)
{
  ProgramRun const run = table("<r><a k='1'/></r><", {"r/a", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "1\r\n");
}

TEST_F(Table, a_file_that_is_not_there_is_an_error)
{
  ProgramRun const run = table_of("no such file.xml", {"r", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find("no such file.xml"), std::string::npos) << run.err;
}

TEST_F(Table, data_that_is_compressed_but_cut_off_is_an_error)
{
  ProgramRun const run = table(std::string("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10), {"r", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.err.find("compressed"), std::string::npos) << run.err;
}

#if defined(__linux__)
TEST_F(Table, rows_before_the_cut_of_compressed_data_are_there)
{
  std::string rows = "<r>";
  for (int i = 0; i < 200; ++i)
    rows += "<i k='" + std::to_string(i * 7919 % 1000003) + "'/>";
  TemporaryFile const file(document, rows + "</r>");
  std::string const packed = name + ".packed";
  ASSERT_EQ(std::system(("gzip -c < " + std::string(document) + " > " + packed).c_str()), 0);
  std::string const whole = contents_of(packed);
  apPath(packed.c_str()).delete_file();
  ProgramRun const run = table(whole.substr(0, whole.size() - 60), {"r/i", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.err.find("ends too early"), std::string::npos) << run.err;
  EXPECT_EQ(run.out.substr(0, 15), "0\r\n7919\r\n15838\r");
  EXPECT_GT(run.out.size(), 500U);
}

// The formats' own commands make what is read here.
TEST_F(Table, compressed_documents_and_standard_input_are_read)
{
  TemporaryFile const file(document, books);
  for (char const* const compress : {"cat", "gzip -c", "xz -c", "zstd -qc"})
  {
    std::string const packed = name + ".packed";
    if (std::system((std::string("command -v ") + compress + " >/dev/null").c_str()) != 0)
      continue;
    ASSERT_EQ(std::system((std::string(compress) + " < " + document + " > " + packed).c_str()), 0);
    EXPECT_EQ(table_of(packed, {"books/book", "@id"}).out, "1\r\n2\r\n3\r\n") << compress;
    std::string const out = name + ".out";
    ASSERT_EQ(std::system(("cat " + packed + " | " AXM_PROGRAM " table - books/book @id > " + out).c_str()), 0)
      << compress;
    EXPECT_EQ(contents_of(out), "1\r\n2\r\n3\r\n") << compress;
    apPath(packed.c_str()).delete_file();
    apPath(out.c_str()).delete_file();
  }
}
#endif

TEST_F(Table, wrong_usage_is_exit_code_2)
{
  std::vector<std::vector<std::string>> const wrong = {{"r"}, {"r", "@k", "--format", "xls"}, {"r//a", "@k"},
    {"r", "@"}, {"r", "@a/b"}, {"r", "a//b"}, {"r", "@k", "@k"}, {"r", "@k", "--unknown"}, {"r", "@k", "--ns", "x"},
    {"r", "@k", "--repeat", "last"}, {"r", "@k", "--reader", "other"}, {"r", "*"},
    {"r", "@k", "--reader", "simple", "--repeat", "rows"}};
  for (auto const& arguments : wrong)
  {
    ProgramRun const run = table("<r k='1'></r>", arguments);
    EXPECT_EQ(run.exit_code, 2) << arguments.back();
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err, "");
  }
  EXPECT_EQ(run_axm(name, {}).exit_code, 2);
  EXPECT_EQ(run_axm(name, {"unknown"}).exit_code, 2);
}

TEST_F(Table, a_path_that_begins_with_a_slash_is_told_what_to_do)
{
  for (char const* const reader : {"exact", "simple"})
  {
    ProgramRun const run = table("<r k='1'/>", {"/r", "@k", "--reader", reader});
    EXPECT_EQ(run.exit_code, 2);
    EXPECT_EQ(
      run.err, "axm: table: the path '/r' begins with '/'; the names from the root to the record stand without one\n");
  }
}

TEST_F(Table, help_has_two_examples)
{
  ProgramRun const run = run_axm(name, {"table", "--help"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_NE(run.out.find("axm table map.osm osm/node @id @lat @lon"), std::string::npos);
  EXPECT_NE(run.out.find("axm table books.xml catalog/book @id title author/name --format jsonl"), std::string::npos);
}
TEST(Progress, line_tells_rows_and_time)
{
  EXPECT_EQ(Progress::line(1234567, std::chrono::milliseconds(12345)), "1234567 rows, 12.3 s");
}

TEST(RowFormat, csv_quotes_what_has_to_be_quoted)
{
  CsvFormat const format;
  std::vector<Value> const values = {"plain", "a,b", "\"", "\r", Value()};
  std::string text;
  format.append_row(text, {"1", "2", "3", "4", "5"}, values);
  EXPECT_EQ(text, "plain,\"a,b\",\"\"\"\",\"\r\",\r\n");
}
