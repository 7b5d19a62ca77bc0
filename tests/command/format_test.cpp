#include "Program.h"

#include <gtest/gtest.h>

namespace
{
std::string const untidy = "<a><b  x = '1'/>\n\n\n<c>t <i>u</i></c></a>";
std::string const tidy = "<a>\n  <b x='1'/>\n\n  <c>t <i>u</i></c>\n</a>\n";
}

TEST(axm_format, writes_a_document_laid_out)
{
  TemporaryFile const file("format.xml", untidy);
  ProgramRun const run = run_axm("format", {"format", file.name});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out, tidy);
  EXPECT_EQ(contents_of(file.name), untidy);
  EXPECT_EQ(
    run_axm("format", {"format", file.name, "--indent", "0"}).out, "<a>\n<b x='1'/>\n\n<c>t <i>u</i></c>\n</a>\n");
  EXPECT_EQ(run_axm("format", {"format", file.name, "--tabs"}).out.substr(0, 6), "<a>\n\t<");
}

TEST(axm_format, writes_to_another_file)
{
  TemporaryFile const file("format_from.xml", untidy);
  TemporaryFile const target("format_to.xml", "old");
  EXPECT_EQ(run_axm("format_to", {"format", file.name, "--output", target.name}).exit_code, 0);
  EXPECT_EQ(contents_of(target.name), tidy);
}

TEST(axm_format, checks_and_names_what_would_change)
{
  TemporaryFile const good("format_good.xml", tidy);
  TemporaryFile const bad("format_bad.xml", untidy);
  ProgramRun const run = run_axm("format_check", {"format", "--check", good.name, bad.name, "-j", "2"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.out, "format_bad.xml\n");
  EXPECT_EQ(contents_of(bad.name), untidy);
  EXPECT_EQ(run_axm("format_check", {"format", "--check", good.name}).exit_code, 0);
}

TEST(axm_format, changes_several_files_in_place)
{
  TemporaryFile const one("format_1.xml", untidy);
  TemporaryFile const two("format_2.xml", "<a>\r\n<b/></a>");
  EXPECT_EQ(run_axm("format_in_place", {"format", "-i", one.name, two.name}).exit_code, 0);
  EXPECT_EQ(contents_of(one.name), tidy);
  EXPECT_EQ(contents_of(two.name), "<a>\r\n  <b/>\r\n</a>\r\n");
}

TEST(axm_format, leaves_what_is_wrong_alone)
{
  TemporaryFile const bad("format_wrong.xml", "<a>\n</b>");
  TemporaryFile const target("format_wrong_to.xml", "old");
  ProgramRun const run = run_axm("format_wrong", {"format", bad.name, "--output", target.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err.find("format_wrong.xml:2:3: "), 0u) << run.err;
  EXPECT_EQ(contents_of(target.name), "old");
  EXPECT_EQ(run_axm("format_wrong", {"format", "-i", bad.name}).exit_code, 1);
  EXPECT_EQ(contents_of(bad.name), "<a>\n</b>");
  EXPECT_EQ(run_axm("format_wrong", {"format", "format_no_file.xml"}).exit_code, 1);
}

TEST(axm_format, refuses_wrong_usage)
{
  TemporaryFile const one("format_usage.xml", "<a/>");
  EXPECT_EQ(run_axm("format_usage", {"format", one.name, one.name}).exit_code, 2);
  EXPECT_EQ(run_axm("format_usage", {"format", one.name, "--check", "--in-place"}).exit_code, 2);
  EXPECT_EQ(run_axm("format_usage", {"format", one.name, "--attributes-per-line", "0"}).exit_code, 2);
}

#if !defined(_WIN32)
TEST(axm_format, takes_standard_input_and_changes_nothing_that_is_compressed)
{
  TemporaryFile const file("format_pipe.xml", untidy);
  std::string const program = std::string("\"") + AXM_PROGRAM + "\" format ";
  EXPECT_EQ(std::system((program + "- < format_pipe.xml > format_pipe.out").c_str()), 0);
  TemporaryFile const out("format_pipe.out", contents_of("format_pipe.out"));
  EXPECT_EQ(contents_of(out.name), tidy);
  EXPECT_EQ(std::system("gzip -k format_pipe.xml"), 0);
  TemporaryFile const packed("format_pipe.xml.gz", contents_of("format_pipe.xml.gz"));
  EXPECT_EQ(run_axm("format_pipe", {"format", packed.name}).out, tidy);
  ProgramRun const run = run_axm("format_pipe", {"format", "-i", packed.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "axm: format_pipe.xml.gz: is no plain file, which --in-place needs\n");
}
#endif
