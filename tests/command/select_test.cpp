#include "Program.h"

#include <gtest/gtest.h>

namespace
{
std::string const feed = "<?xml version='1.0'?>\n<feed xmlns='urn:feed'>\n  <entry\n    id='1'>one</entry>\n"
                         "  <entry>a,\"b</entry>\n  <!-- note --><x:mark xmlns:x='urn:x'/>\n</feed>\n";

std::vector<std::string> with(std::vector<std::string> arguments, std::vector<std::string> const& more)
{
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}
}

TEST(axm_select, finds_names_in_a_default_namespace_by_a_prefix_of_ones_own)
{
  TemporaryFile const file("select_ns.xml", feed);
  EXPECT_EQ(run_axm("select_ns", {"select", file.name, "//f:entry[@id]", "--ns", "f=urn:feed"}).out, "one\n");
  EXPECT_EQ(
    run_axm("select_ns", {"select", "--ns", "f=urn:feed", "--ns", "m=urn:x", file.name, "count(//f:entry | //m:mark)"})
      .out,
    "3\n");
  EXPECT_EQ(run_axm("select_ns", {"select", file.name, "//f:entry", "--ns", "f"}).exit_code, 2);
}

TEST(axm_select, says_which_namespace_to_give_when_a_name_is_in_one)
{
  TemporaryFile const file("select_hint.xml", feed);
  ProgramRun const run = run_axm("select_hint", {"select", file.name, "/feed/entry[@id='x']"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: /feed/entry[@id='x']: selects nothing; the element feed is in the namespace urn:feed: give "
                     "--ns p=urn:feed and ask for p:feed\n");
  // No element that is none, and no function, literal or attribute.
  EXPECT_EQ(run_axm("select_hint", {"select", file.name, "//none[entry()]"}).exit_code, 2);
  EXPECT_EQ(run_axm("select_hint", {"select", file.name, "//none[@entry='feed']"}).err,
    "axm: //none[@entry='feed']: selects nothing\n");
}

TEST(axm_select, takes_several_files_and_writes_their_names_and_lines_on_demand)
{
  TemporaryFile const one("select_1.xml", "<a>\n<b>1</b>\n<b>2</b></a>");
  TemporaryFile const two("select_2.xml", "<a/>");
  TemporaryFile const three("select_3.xml", "<a><b\nc=''/></a>");
  std::vector<std::string> const files = {"select", one.name, two.name, three.name, "//b"};
  EXPECT_EQ(run_axm("select_files", files).out, "1\n2\n\n");
  EXPECT_EQ(run_axm("select_files", files).exit_code, 0);
  for (char const* const jobs : {"1", "3", "0"})
    EXPECT_EQ(run_axm("select_files", with(files, {"-H", "-n", "-j", jobs})).out,
      "select_1.xml:2:1\nselect_1.xml:3:2\nselect_3.xml:1:\n");
  EXPECT_EQ(run_axm("select_files", {"select", three.name, "//@c", "--line-number"}).out, "2:\n");
  EXPECT_EQ(run_axm("select_files", {"select", one.name, two.name, "//none"}).err, "axm: //none: selects nothing\n");
  EXPECT_EQ(run_axm("select_files", {"select", "select_no_file.xml", one.name, "//b"}).exit_code, 1);
  EXPECT_EQ(run_axm("select_files", {"select", "select_no_file.xml", one.name, "//b"}).out, "1\n2\n");
}

TEST(axm_select, complains_once_of_an_expression_that_is_none)
{
  TemporaryFile const one("select_wrong_1.xml", "<a/>");
  TemporaryFile const two("select_wrong_2.xml", "<a/>");
  ProgramRun const run = run_axm("select_wrong", {"select", one.name, two.name, "//a["});
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_EQ(run.err, "axm: //a[: a step is missing, at character 5\n");
  EXPECT_EQ(run_axm("select_wrong", {"select", one.name}).exit_code, 2);
}

TEST(axm_select, counts_the_nodes_of_each_file)
{
  TemporaryFile const one("select_count_1.xml", "<a><b/><b/></a>");
  TemporaryFile const two("select_count_2.xml", "<a/>");
  ProgramRun const run = run_axm("select_count", {"select", one.name, two.name, "//b", "--format", "count", "-H"});
  EXPECT_EQ(run.out, "select_count_1.xml:2\nselect_count_2.xml:0\n");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run_axm("select_count", {"select", two.name, "//b", "--format", "count"}).exit_code, 1);
  EXPECT_EQ(run_axm("select_count", {"select", two.name, "count(//b)", "--format", "count"}).exit_code, 2);
}

TEST(axm_select, writes_rows)
{
  TemporaryFile const file("select_rows.xml", feed);
  std::vector<std::string> const entries = {"select", file.name, "//f:entry", "--ns", "f=urn:feed", "--format"};
  EXPECT_EQ(run_axm("select_rows", with(entries, {"csv"})).out, "one\r\n\"a,\"\"b\"\r\n");
  EXPECT_EQ(run_axm("select_rows", with(entries, {"csv", "-n"})).out, "3,one\r\n5,\"a,\"\"b\"\r\n");
  EXPECT_EQ(run_axm("select_rows", with(entries, {"jsonl", "-n", "-H"})).out,
    "{\"file\":\"select_rows.xml\",\"line\":\"3\",\"name\":\"entry\",\"value\":\"one\"}\n"
    "{\"file\":\"select_rows.xml\",\"line\":\"5\",\"name\":\"entry\",\"value\":\"a,\\\"b\"}\n");
  EXPECT_EQ(
    run_axm("select_rows", {"select", file.name, "count(//*)", "--format", "jsonl"}).out, "{\"value\":\"4\"}\n");
  EXPECT_EQ(run_axm("select_rows", with(entries, {"xml"})).out.find("<entry id=\"1\">one</entry>\n"), 0u);
}

TEST(axm_select, writes_colours_only_where_they_are_wanted)
{
  TemporaryFile const file("select_colour.xml", "<a>1</a>");
  std::vector<std::string> const line = {"select", file.name, "/a", "-H"};
  EXPECT_EQ(run_axm("select_colour", line).out, "select_colour.xml:1\n");
  EXPECT_EQ(run_axm("select_colour", with(line, {"--color", "never"})).out, "select_colour.xml:1\n");
  EXPECT_EQ(run_axm("select_colour", with(line, {"--color", "always"})).out,
    "\x1B[35mselect_colour.xml\x1B[0m\x1B[36m:\x1B[0m1\n");
}
