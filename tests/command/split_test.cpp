// The verb split, and the parts that the verb table reads by its index.

#include "Program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
class Split : public testing::Test
{
protected:
  // The rows of the whole document and, one part after the other, those of its parts. The number of parts is -1 where
  // something went wrong.
  struct Rows
  {
    std::string whole;
    std::string parts;
    int count = 0;
  };

  Rows rows(std::string const& text, std::string const& path, std::vector<std::string> const& columns,
    std::string const& parts, std::vector<std::string> const& options = {})
  {
    TemporaryFile const file(document, text);
    Rows rows;
    std::vector<std::string> arguments = {"split", document, path, "--parts", parts, "--output", index};
    arguments.insert(arguments.end(), options.begin(), options.end());
    ProgramRun const split = run_axm(name, arguments);
    EXPECT_EQ(split.exit_code, 0) << split.err;

    arguments = {"table", document, path};
    arguments.insert(arguments.end(), columns.begin(), columns.end());
    arguments.insert(arguments.end(), options.begin(), options.end());
    rows.whole = run_axm(name, arguments).out;
    arguments.insert(arguments.end(), {"--index", index, "--part"});
    while (true)
    {
      std::vector<std::string> part = arguments;
      part.push_back(std::to_string(rows.count));
      ProgramRun const run = run_axm(name, part);
      if (run.exit_code != 0)
      {
        EXPECT_NE(run.err.find("has no part " + std::to_string(rows.count)), std::string::npos) << run.err;
        break;
      }
      rows.parts += run.out;
      ++rows.count;
    }
    apPath(index.c_str()).delete_file();
    return rows;
  }

  std::string const name = testing::UnitTest::GetInstance()->current_test_info()->name();
  std::string const document = name + ".xml";
  std::string const index = name + ".json";
};
}

TEST_F(Split, the_rows_of_all_parts_are_the_rows_of_the_whole)
{
  std::string text = "<r>";
  for (int i = 0; i < 40; ++i)
    text += "<e k='" + std::to_string(i) + "'/>\n";
  Rows const made = rows(text + "</r>", "r/e", {"@k"}, "4");
  EXPECT_EQ(made.count, 4);
  EXPECT_EQ(made.parts, made.whole);
}

TEST_F(Split, nothing_that_looks_like_a_record_makes_a_difference)
{
  Rows const made =
    rows("<?xml version='1.0'?><!DOCTYPE r [<!ENTITY e 'E'><!ATTLIST e d CDATA 'D'>]><!--<e/>-->"
         "<r a='&lt;e>'><![CDATA[<e k='x'/>]]><g><e k='1'>&e;</e><!--<e k='y'/>--><e k='2'><e k='z'/></e></g>"
         "<e k='w'/><g a='/g>'><e k='3'>&#60;</e></g><?p <e/>?><g/><g><e k='4'/></g></r><!-- end -->",
      "r/g/e", {"@k", ".", "@d"}, "10");
  EXPECT_EQ(made.parts, made.whole);
  EXPECT_EQ(made.whole, "1,E,D\r\n2,,D\r\n3,<,D\r\n4,,D\r\n");
  EXPECT_GT(made.count, 1);
}

TEST_F(Split, records_that_come_out_of_entities_are_rows_of_a_part)
{
  Rows const made = rows("<!DOCTYPE r [<!ENTITY t '<e k=\"t\"/><e k=\"u\"/>'><!ENTITY g '<g>&t;</g>'>]>"
                         "<r><g>&t;<e k='1'/><e k='2'/>&t;</g>&g;<g><e k='3'/><e k='4'/></g>&g;</r>",
    "r/g/e", {"@k"}, "20");
  EXPECT_EQ(made.parts, made.whole);
  EXPECT_EQ(made.whole, "t\r\nu\r\n1\r\n2\r\nt\r\nu\r\nt\r\nu\r\n3\r\n4\r\nt\r\nu\r\n");
  EXPECT_GT(made.count, 3);
}

TEST_F(Split, namespaces_are_in_force_in_every_part)
{
  Rows const made = rows("<r xmlns='urn:x' xmlns:q='urn:a&amp;b'><q:g xmlns:z='urn:z'><e k='1'/><e q:k='2'/></q:g>"
                         "<q:g><e q:k='3'/><e k='4'/></q:g></r>",
    "x:r/y:g/x:e", {"@k", "@y:k"}, "9", {"--ns", "x=urn:x", "--ns", "y=urn:a&b"});
  EXPECT_EQ(made.parts, made.whole);
  EXPECT_EQ(made.whole, "1,\r\n,2\r\n,3\r\n4,\r\n");
  EXPECT_GT(made.count, 1);
}

TEST_F(Split, a_document_without_records_has_no_parts)
{
  Rows const made = rows("<r><a/></r>", "r/e", {"@k"}, "3");
  EXPECT_EQ(made.count, 0);
  EXPECT_EQ(made.whole, "");
}

TEST_F(Split, an_error_in_a_part_has_its_place_in_the_whole)
{
  for (std::string const& line_end : {std::string("\n"), std::string()})
  {
    std::string text = "<r>" + line_end;
    for (int i = 0; i < 10; ++i)
      text += "  <e k='" + std::to_string(i) + "'></e>" + line_end;
    TemporaryFile const file(document, text + "</r>\n");
    ASSERT_EQ(run_axm(name, {"split", document, "r/e", "--parts", "3", "--output", index}).exit_code, 0);
    text[text.rfind("/e") + 1] = 'f';
    TemporaryFile const changed(document, text + "</r>\n");
    ProgramRun const whole = run_axm(name, {"table", document, "r/e", "@k"});
    ProgramRun const part = run_axm(name, {"table", document, "r/e", "@k", "--index", index, "--part", "2"});
    EXPECT_EQ(part.exit_code, 1);
    EXPECT_EQ(part.err.substr(0, part.err.find(';')), whole.err.substr(0, whole.err.find(';')));
    apPath(index.c_str()).delete_file();
  }
}

TEST_F(Split, a_document_that_has_changed_its_size_is_not_read)
{
  TemporaryFile const file(document, "<r><e/><e/></r>");
  ASSERT_EQ(run_axm(name, {"split", document, "r/e", "--output", index}).exit_code, 0);
  TemporaryFile const changed(document, "<r><e/><e/><e/></r>");
  ProgramRun const run = run_axm(name, {"table", document, "r/e", "@k", "--index", index, "--part", "0"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.err.find("has another size than when it was split"), std::string::npos) << run.err;
  apPath(index.c_str()).delete_file();
}

TEST_F(Split, what_cannot_be_split_is_an_error)
{
  for (std::string const& text : {std::string("<r><e></r>"), std::string("\xFF\xFE<\0r\0/\0>\0", 10)})
  {
    TemporaryFile const file(document, text);
    ProgramRun const run = run_axm(name, {"split", document, "r/e"});
    EXPECT_EQ(run.exit_code, 1) << text;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.find(document), 0u) << run.err;
  }
  EXPECT_EQ(run_axm(name, {"split", "no such file.xml", "r/e"}).exit_code, 1);
}

TEST_F(Split, of_a_document_in_another_encoding_the_message_says_what_to_do)
{
  TemporaryFile const file(document, "<?xml version='1.0' encoding='iso-8859-1'?><r><e k='\xE4'/></r>");
  ProgramRun const run = run_axm(name, {"split", document, "r/e"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, document +
                       ": only a document in UTF-8 can be split, and this one is in ISO-8859-1: convert it first, as "
                       "'xmllint --encode UTF-8' does, or take its rows as a whole\n");
}

TEST_F(Split, an_index_that_is_none_is_an_error)
{
  TemporaryFile const file(document, "<r><e/></r>");
  for (char const* const text : {"", "x", "{}", "{\"axm_split\":2}", "{\"axm_split\":1,\"file\":3}"})
  {
    TemporaryFile const wrong(index, text);
    ProgramRun const run = run_axm(name, {"table", document, "r/e", "@k", "--index", index, "--part", "0"});
    EXPECT_EQ(run.exit_code, 1) << text;
    EXPECT_NE(run.err.find("index"), std::string::npos) << run.err;
  }
}

TEST_F(Split, wrong_usage_is_exit_code_2)
{
  TemporaryFile const file(document, "<r><e/></r>");
  for (std::vector<std::string> const& wrong :
    std::vector<std::vector<std::string>>{{"split", document, "r//e"}, {"split", document, "r/e", "--parts", "0"},
      {"table", document, "r/e", "@k", "--part", "0"}, {"table", document, "r/e", "@k", "--index", "x"},
      {"table", document, "r/e", "@k", "--index", "x", "--part", "0", "--reader", "simple"}})
    EXPECT_EQ(run_axm(name, wrong).exit_code, 2) << wrong.back();
}

#if !defined(_WIN32)
// Arguments of other systems are texts, whatever they look like.
TEST_F(Split, names_that_are_no_utf_8_are_in_no_index)
{
  TemporaryFile const file(document, "<r><e/></r>");
  ProgramRun const run = run_axm(name, {"split", document, "r/\x92"});
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "axm: split: the names of the file, the records and the namespaces must be UTF-8\n");
}
#endif
