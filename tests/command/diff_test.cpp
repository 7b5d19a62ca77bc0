#include "Program.h"

#include <gtest/gtest.h>

namespace
{
std::string const before = "<list>\n  <item id='1' x='a'>one</item>\n  <item id='2'>two</item>\n</list>";
std::string const after =
  "<list>\n  <item x='b' id='1'>uno</item>\n  <item id='3'/>\n  <item id='2'>two</item>\n</list>";
}

TEST(axm_diff, is_silent_about_documents_that_say_the_same)
{
  TemporaryFile const one("diff_same_1.xml", "<a x='1' y=\"2\"><b/>&lt;</a>");
  TemporaryFile const two("diff_same_2.xml", "<?xml version='1.0'?>\n<a y='2' x='1'><b></b><![CDATA[<]]></a>");
  ProgramRun const run = run_axm("diff_same", {"diff", one.name, two.name});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out + run.err, "");
}

TEST(axm_diff, lists_differences_with_their_paths)
{
  TemporaryFile const one("diff_1.xml", before);
  TemporaryFile const two("diff_2.xml", after);
  ProgramRun const run = run_axm("diff", {"diff", "-w", one.name, two.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(
    run.out, "! /list/item[1]/@x: a -> b\n! /list/item[1]/text(): one -> uno\n+ /list/item[2]: <item id=\"3\"/>\n");
  EXPECT_EQ(run_axm("diff", {"diff", "-w", "-n", two.name, one.name}).out,
    "! 2,2: /list/item[1]/@x: b -> a\n! 2,2: /list/item[1]/text(): uno -> one\n- 3,: /list/item[2]: <item "
    "id=\"3\"/>\n");
  EXPECT_EQ(
    run_axm("diff", {"diff", "-q", two.name, one.name}).out, "the documents diff_2.xml and diff_1.xml differ\n");
}

TEST(axm_diff, counts_white_space_unless_it_is_told_not_to)
{
  TemporaryFile const one("diff_space_1.xml", "<a><b>x  y</b></a>");
  TemporaryFile const two("diff_space_2.xml", "<a>\n<b> x\ny</b>\n</a>");
  EXPECT_EQ(run_axm("diff_space", {"diff", one.name, two.name}).exit_code, 1);
  EXPECT_EQ(run_axm("diff_space", {"diff", "--ignore-space", one.name, two.name}).exit_code, 0);
}

TEST(axm_diff, shows_of_long_values_what_is_around_the_difference)
{
  std::string const same(300, 's');
  TemporaryFile const one("diff_long_1.xml", "<a>" + same + "1" + same + "</a>");
  TemporaryFile const two("diff_long_2.xml", "<a>" + same + "2" + same + "</a>");
  std::string const line = run_axm("diff_long", {"diff", one.name, two.name}).out;
  EXPECT_LT(line.size(), 300u);
  EXPECT_NE(line.find("s1s"), std::string::npos);
  EXPECT_NE(line.find("s2s"), std::string::npos);
  EXPECT_GT(run_axm("diff_long", {"diff", "--full", one.name, two.name}).out.size(), 1200u);
}

TEST(axm_diff, shows_no_control_characters)
{
  TemporaryFile const one("diff_controls_1.xml", "<?xml version='1.1'?><a>&#27;[31m</a>");
  TemporaryFile const two("diff_controls_2.xml", "<a>x</a>");
  EXPECT_EQ(run_axm("diff_controls", {"diff", one.name, two.name}).out.find('\x1B'), std::string::npos);
  EXPECT_NE(run_axm("diff_controls", {"diff", one.name, two.name, "--color", "always"}).out.find("\x1B[32mx\x1B[0m"),
    std::string::npos);
}

TEST(axm_diff, has_exit_code_2_for_what_cannot_be_compared)
{
  TemporaryFile const good("diff_good.xml", "<a/>");
  TemporaryFile const bad("diff_bad.xml", "<a>\n</b>");
  ProgramRun const run = run_axm("diff_bad", {"diff", good.name, bad.name});
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_EQ(run.err.find("diff_bad.xml:2:3: "), 0u) << run.err;
  EXPECT_EQ(run_axm("diff_bad", {"diff", "diff_no_file.xml", good.name}).exit_code, 2);
  EXPECT_EQ(run_axm("diff_bad", {"diff", good.name}).exit_code, 2);
  EXPECT_EQ(run_axm("diff_bad", {"diff", "-", "-"}).exit_code, 2);
}
