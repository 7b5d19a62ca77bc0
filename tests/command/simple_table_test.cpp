// The verb table with the simple reader, run as a user runs it.

#include "Program.h"

#include <Progress.h>
#include <RowFormat.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace
{
// Runs `axm table` on a document that is the root element given.
class SimpleTable : public testing::Test
{
protected:
  ProgramRun table(std::string const& root, std::vector<std::string> const& arguments)
  {
    TemporaryFile const file(document, "<?xml version='1.0' encoding='utf-8'?>\n" + root + "\n");
    return table_of(file.name, arguments);
  }

  ProgramRun table_of(std::string const& file, std::vector<std::string> const& arguments)
  {
    std::vector<std::string> all = {"table", "--reader", "simple", file};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return run_axm(name, all);
  }

  std::string const name = testing::UnitTest::GetInstance()->current_test_info()->name();
  std::string const document = name + ".xml";
};

std::string const books =
  "<books>\n"
  "  <book id='1' lang='en'><title>One, \"two\"</title><author><name first='A'>B</name></author></book>\n"
  "  <book id='2'><author><name first='C'>D</name></author><title>Three\nfour</title></book>\n"
  "  <book id='3'></book>\n"
  "</books>";
}

TEST_F(SimpleTable, writes_one_csv_row_for_each_record)
{
  ProgramRun const run = table(books, {"books/book", "@id", "title", "author/name", "author/name/@first"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "1,\"One, \"\"two\"\"\",B,A\r\n2,\"Three\nfour\",D,C\r\n3,,,\r\n");
  EXPECT_EQ(run.err, "");
}

TEST_F(SimpleTable, columns_may_stand_before_the_previous_one)
{
  ProgramRun const run = table(books, {"books/book", "author/name", "title", "author/name/@first", "@lang", "@id"});
  EXPECT_EQ(run.out, "B,\"One, \"\"two\"\"\",A,en,1\r\nD,\"Three\nfour\",C,,2\r\n,,,,3\r\n");
}

TEST_F(SimpleTable, a_column_is_the_first_child_wherever_the_previous_column_was)
{
  ProgramRun const run = table("<r><a>1</a><b>2</b><a>3</a></r>", {"r", "b", "a"});
  EXPECT_EQ(run.out, "2,1\r\n");
}

TEST_F(SimpleTable, a_child_that_is_missing_does_not_hide_the_others)
{
  ProgramRun const run = table("<r><a>1</a><b>2</b></r>", {"r", "b", "x", "y/z", "a"});
  EXPECT_EQ(run.out, "2,,,1\r\n");
}

TEST_F(SimpleTable, records_may_lie_deep_and_under_several_parents)
{
  ProgramRun const run = table(
    "<r><g><s><i k='1'/><i k='2'/></s></g><h/><g></g><g><s><i k='3'/></s><s><i k='4'/></s></g></r>", {"r/g/s/i", "@k"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "1\r\n2\r\n3\r\n4\r\n");
}

TEST_F(SimpleTable, the_record_may_be_the_root)
{
  ProgramRun const run = table("<r k='1'>text</r>", {"r", "@k", "."});
  EXPECT_EQ(run.out, "1,text\r\n");
}

TEST_F(SimpleTable, the_text_of_the_record_goes_with_columns_before_it)
{
  ProgramRun const run = table("<r><a>1</a>text<b>2</b></r>", {"r", ".", "b", "a"});
  EXPECT_EQ(run.out, "text,2,1\r\n");
}

TEST_F(SimpleTable, a_path_that_leads_nowhere_gives_no_rows)
{
  ProgramRun const run = table(books, {"books/film", "@id"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find("there is no record 'books/film'"), std::string::npos) << run.err;
}

TEST_F(SimpleTable, a_row_of_one_empty_field_is_quoted)
{
  ProgramRun const run = table("<r><a k=''></a><a k='x'></a></r>", {"r/a", "@k"});
  EXPECT_EQ(run.out, "\"\"\r\nx\r\n");
}

TEST_F(SimpleTable, header_comes_first)
{
  ProgramRun const run = table(books, {"books/book", "@id", "@lang", "--header"});
  EXPECT_EQ(run.out, "@id,@lang\r\n1,en\r\n2,\r\n3,\r\n");
}

TEST_F(SimpleTable, tsv_escapes_what_would_break_a_line)
{
  ProgramRun const run = table("<r><a k='1\t2\n3\r4\\5'></a></r>", {"r/a", "@k", "@x", "--format", "tsv"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "1\\t2\\n3\\r4\\\\5\t\n");
}

TEST_F(SimpleTable, jsonl_writes_objects_with_null_for_what_is_missing)
{
  ProgramRun const run =
    table("<r><a k='say \"x\\y\"\n'><b></b></a></r>", {"r/a", "@k", "b", "c", "--format", "jsonl"});
  EXPECT_EQ(run.out, "{\"@k\":\"say \\\"x\\\\y\\\"\\n\",\"b\":\"\",\"c\":null}\n");
}

TEST_F(SimpleTable, jsonl_is_utf8)
{
  ProgramRun const run = table("<r><a k='\xC3\xA4\xE4\x01'></a></r>", {"r/a", "@k", "--format", "jsonl"});
  EXPECT_EQ(run.out, "{\"@k\":\"\xC3\xA4\xEF\xBF\xBD\\u0001\"}\n");
}

TEST_F(SimpleTable, values_stay_as_they_are_written)
{
  ProgramRun const run = table("<r><a k='&lt;&#65;'>&amp; </a></r>", {"r/a", "@k", "."});
  EXPECT_EQ(run.out, "&lt;&#65;,&amp; \r\n");
}

TEST_F(SimpleTable, rows_before_an_error_are_written_and_counted)
{
  ProgramRun const run = table("<r><a k='1'></a><a k='2'></a><a k='3'></b></a></r>", {"r/a", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "1\r\n2\r\n3\r\n");
  EXPECT_EQ(run.err, "axm: " + document + ": axmTagException:: Something wrong with tag a; rows read before that: 3\n");
}

TEST_F(SimpleTable, a_record_that_cannot_be_read_is_no_row)
{
  ProgramRun const run = table("<r><a k='1'></a><a k='2'/></r>", {"r/a", "@k", "@x"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "1,\r\n");
  EXPECT_EQ(run.err,
    "axm: " + document + ": axmEndException:: Xml reader moved of the end of the file; rows read before that: 1\n");
}

TEST_F(SimpleTable, an_error_without_a_text_of_its_own_gets_one)
{
  ProgramRun const run = table("<r><a k='1'></a><!--a--b--></r>", {"r/a", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: " + document + ": a character that must be there is missing; rows read before that: 1\n");
}

TEST_F(SimpleTable, a_file_that_is_not_there_is_an_error)
{
  ProgramRun const run = table_of("no such file.xml", {"r", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "axm: no such file.xml: cannot be read\n");
}

TEST_F(SimpleTable, a_file_in_utf16_is_an_error)
{
  TemporaryFile const file(document, "<?xml version='1.0' encoding='UTF-16'?><r></r>\n");
  ProgramRun const run = table_of(file.name, {"r", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: " + document + ": is in UTF-16, which this reader does not read\n");
}

TEST_F(SimpleTable, a_file_without_a_declaration_is_an_error)
{
  TemporaryFile const file(document, "<r></r>\n");
  ProgramRun const run = table_of(file.name, {"r", "@k"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: " + document +
                       ": no XML declaration with a version stands at the very beginning, byte-order mark included "
                       "(a character that must be there is missing)\n");
}

TEST_F(SimpleTable, output_goes_to_a_file)
{
  std::string const output = name + ".csv";
  ProgramRun const run = table(books, {"books/book", "@id", "--output", output});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(contents_of(output), "1\r\n2\r\n3\r\n");
  EXPECT_TRUE(apPath(output.c_str()).delete_file());
}

TEST_F(SimpleTable, output_of_a_document_with_an_error_has_the_rows_before_it)
{
  TemporaryFile const output(name + ".csv", "old");
  ProgramRun const run = table("<r><a k='1'></a></s></r>", {"r/a", "@k", "--output", output.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(contents_of(output.name), "1\r\n");
}

TEST_F(SimpleTable, output_stays_as_it_was_when_nothing_could_be_read)
{
  TemporaryFile const output(name + ".csv", "old");
  ProgramRun const run = table_of("no such file.xml", {"r", "@k", "--output", output.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(contents_of(output.name), "old");
}

TEST_F(SimpleTable, output_that_cannot_be_written_is_an_error)
{
  ProgramRun const run = table(books, {"books/book", "@id", "--output", "no such folder/x.csv"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: no such folder/x.csv: cannot be written: No such file or directory\n");
}

#if defined(__linux__)
TEST_F(SimpleTable, output_to_a_full_device_is_an_error)
{
  ProgramRun const run = table(books, {"books/book", "@id", "--output", "/dev/full"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: /dev/full: cannot be written: No space left on device\n");
}

TEST_F(SimpleTable, output_to_a_device_leaves_the_device_in_place)
{
  ProgramRun const run = table(books, {"books/book", "@id", "--output", "/dev/null"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(contents_of("/dev/null"), "");
}
#endif

TEST_F(SimpleTable, names_of_files_may_go_beyond_ascii)
{
  TemporaryFile const file(name + "_\xC3\xA4\xE2\x82\xAC.xml", "<?xml version='1.0'?><r k='1'></r>\n");
  ProgramRun const run = table_of(file.name, {"r", "@k"});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "1\r\n");
}
