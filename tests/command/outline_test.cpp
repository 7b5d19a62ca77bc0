#include "Program.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
std::string const books =
  "<catalog>\n  <book id='1' lang='de'><title>a</title></book>\n  <book id='2'><title/><title>b</title>"
  "</book>\n  <note>x</note>\n</catalog>";
}

TEST(axm_outline, shows_paths_with_depth_count_attributes_and_text)
{
  TemporaryFile const file("outline.xml", books);
  ProgramRun const run = run_axm("outline", {"outline", file.name});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, "depth  count  path                has\n"
                     "    1      1  catalog\n"
                     "    2      2  catalog/book        @id @lang(1)\n"
                     "    3      3  catalog/book/title  text\n"
                     "    2      1  catalog/note        text\n");
}

TEST(axm_outline, makes_one_outline_of_several_documents)
{
  TemporaryFile const one("outline_1.xml", "<a><b/></a>");
  TemporaryFile const two("outline_2.xml", "<a><c/><b x='1'/></a>");
  EXPECT_EQ(run_axm("outline_more", {"outline", one.name, two.name, "--format", "csv"}).out,
    "depth,count,path,attributes,texts\r\n1,2,a,,0\r\n2,2,a/b,@x(1),0\r\n2,1,a/c,,0\r\n");
}

TEST(axm_outline, is_the_same_however_many_documents_are_read_at_a_time)
{
  std::vector<std::unique_ptr<TemporaryFile>> files;
  std::vector<std::string> arguments = {"outline", "--format", "jsonl", "--paths", "12"};
  for (int i = 0; i < 20; ++i)
  {
    std::string const name = std::string(1, static_cast<char>('a' + i % 15));
    std::string const end = i == 7 ? "" : "</r>";
    files.push_back(std::make_unique<TemporaryFile>("outline_job_" + std::to_string(i) + ".xml",
      "<r><" + name + " x" + std::to_string(i % 4) + "='1'>text<in/></" + name + "><r/>" + end));
    arguments.push_back(files.back()->name);
  }
  ProgramRun const alone = run_axm("outline_jobs", arguments);
  EXPECT_EQ(alone.exit_code, 1);
  EXPECT_EQ(alone.out.find("{\"depth\":\"1\",\"count\":\"20\",\"path\":\"r\""), 0u) << alone.out;
  EXPECT_NE(alone.err.find("outline_job_7.xml:"), std::string::npos);
  EXPECT_NE(alone.err.find("elements left out"), std::string::npos);
  arguments.insert(arguments.end(), {"--jobs", "4"});
  ProgramRun const together = run_axm("outline_jobs", arguments);
  EXPECT_EQ(together.exit_code, 1);
  EXPECT_EQ(together.out, alone.out);
  EXPECT_EQ(together.err, alone.err);
}

TEST(axm_outline, says_how_many_elements_its_bounds_leave_out)
{
  TemporaryFile const file("outline_bounds.xml", "<a><b><c/><c/></b><d/></a>");
  ProgramRun const deep = run_axm("outline_bounds", {"outline", file.name, "--depth", "2", "--format", "csv"});
  EXPECT_EQ(deep.out, "depth,count,path,attributes,texts\r\n1,1,a,,0\r\n2,1,a/b,,0\r\n2,1,a/d,,0\r\n");
  EXPECT_EQ(deep.err, "axm: elements left out, for which --depth or --paths is too small: 2\n");
  ProgramRun const many = run_axm("outline_bounds", {"outline", file.name, "--paths", "3", "--format", "csv"});
  EXPECT_EQ(many.out, "depth,count,path,attributes,texts\r\n1,1,a,,0\r\n2,1,a/b,,0\r\n3,2,a/b/c,,0\r\n");
  EXPECT_EQ(many.err, "axm: elements left out, for which --depth or --paths is too small: 1\n");
}

TEST(axm_outline, gives_paths_that_table_takes)
{
  TemporaryFile const file("outline_table.xml", books);
  EXPECT_EQ(run_axm("outline_table", {"table", file.name, "catalog/book", "@id", "title"}).out, "1,a\r\n2,\r\n");
}

TEST(axm_outline, shows_what_it_read_before_an_error)
{
  TemporaryFile const file("outline_bad.xml", "<a><b/>\n</c>");
  ProgramRun const run = run_axm("outline_bad", {"outline", file.name, "--format", "jsonl"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "{\"depth\":\"1\",\"count\":\"1\",\"path\":\"a\",\"attributes\":\"\",\"texts\":\"0\"}\n"
                     "{\"depth\":\"2\",\"count\":\"1\",\"path\":\"a/b\",\"attributes\":\"\",\"texts\":\"0\"}\n");
  EXPECT_EQ(run.err.find("outline_bad.xml:2:"), 0u);
  EXPECT_EQ(run_axm("outline_bad", {"outline", "outline_none.xml"}).exit_code, 1);
  EXPECT_EQ(run_axm("outline_bad", {"outline"}).exit_code, 2);
}

TEST(axm_outline, takes_a_deep_document)
{
  std::string text;
  for (int i = 0; i < 100000; ++i)
    text += "<a>";
  for (int i = 0; i < 100000; ++i)
    text += "</a>";
  TemporaryFile const file("outline_deep.xml", text);
  ProgramRun const run = run_axm("outline_deep", {"outline", file.name});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.err, "axm: elements left out, for which --depth or --paths is too small: 99900\n");
}
