#include "Program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace
{
std::string const library =
  "<?xml version='1.0'?>\r\n<!-- ours -->\r\n<library>\r\n  <book id='b1' >One &amp; all</book>\r\n"
  "  <book id='b2'/>\r\n\r\n  <shelf>\r\n    <box/>\r\n  </shelf>\r\n</library>\r\n";

// The lines that differ, old ones behind '-', new ones behind '+', where no other line has moved.
std::string difference(std::string const& old_text, std::string const& new_text)
{
  auto const lines = [](std::string const& text)
  {
    std::vector<std::string> all;
    for (std::size_t begin = 0; begin < text.size();)
    {
      std::size_t const end = std::min(text.find('\n', begin), text.size() - 1) + 1;
      all.push_back(text.substr(begin, end - begin));
      begin = end;
    }
    return all;
  };
  std::vector<std::string> before = lines(old_text);
  std::vector<std::string> after = lines(new_text);
  while (!before.empty() && !after.empty() && before.back() == after.back())
  {
    before.pop_back();
    after.pop_back();
  }
  std::size_t same = 0;
  while (same < before.size() && same < after.size() && before[same] == after[same])
    ++same;
  std::string made;
  for (std::size_t i = same; i < before.size(); ++i)
    made += "-" + before[i];
  for (std::size_t i = same; i < after.size(); ++i)
    made += "+" + after[i];
  return made;
}

std::string changed_by(std::string const& name, std::vector<std::string> arguments)
{
  TemporaryFile const file(name + ".xml", library);
  arguments.insert(arguments.begin() + 1, file.name);
  ProgramRun const run = run_axm(name, arguments);
  EXPECT_EQ(run.exit_code, 0) << run.err;
  EXPECT_EQ(run.out + run.err, "");
  return difference(library, contents_of(file.name));
}
}

TEST(axm_edit, changes_the_lines_that_it_is_about_and_no_others)
{
  EXPECT_EQ(changed_by("edit_set", {"set", "//book[1]", "id=b9", "new=1"}),
    "-  <book id='b1' >One &amp; all</book>\r\n+  <book id='b9' new='1' >One &amp; all</book>\r\n");
  EXPECT_EQ(changed_by("edit_value", {"set", "//book[1]", "--value", "Two & a half"}),
    "-  <book id='b1' >One &amp; all</book>\r\n+  <book id='b1' >Two &amp; a half</book>\r\n");
  EXPECT_EQ(
    changed_by("edit_value_2", {"set", "//book[2]/@id", "--value", ""}), "-  <book id='b2'/>\r\n+  <book id=''/>\r\n");
  EXPECT_EQ(changed_by("edit_delete", {"delete", "//book[2]"}), "-  <book id='b2'/>\r\n");
  EXPECT_EQ(changed_by("edit_rename", {"rename", "//book[1]", "volume"}),
    "-  <book id='b1' >One &amp; all</book>\r\n+  <volume id='b1' >One &amp; all</volume>\r\n");
  EXPECT_EQ(changed_by("edit_insert", {"insert", "<tag/>", "--into", "//shelf"}), "+    <tag/>\r\n");
  EXPECT_EQ(changed_by("edit_before", {"insert", "<!-- x -->", "--before", "//book[2]"}), "+  <!-- x -->\r\n");
  EXPECT_EQ(changed_by("edit_after", {"insert", "<tag/>", "--after", "//book[2]"}), "+  <tag/>\r\n");
  EXPECT_EQ(changed_by("edit_first", {"insert", "<tag/>", "--into-first", "//shelf"}), "+    <tag/>\r\n");
  EXPECT_EQ(changed_by("edit_move", {"move", "//book[2]", "--before", "//book[1]"}),
    "-  <book id='b1' >One &amp; all</book>\r\n-  <book id='b2'/>\r\n"
    "+  <book id='b2'/>\r\n+  <book id='b1' >One &amp; all</book>\r\n");
}

TEST(axm_edit, works_on_several_files_of_which_one_has_to_have_what_is_selected)
{
  TemporaryFile const one("edit_several_1.xml", "<a><b/></a>\n");
  TemporaryFile const two("edit_several_2.xml", "<a/>\n");
  EXPECT_EQ(run_axm("edit_several", {"set", one.name, two.name, "//b", "c=1", "d=2", "--jobs", "2"}).exit_code, 0);
  EXPECT_EQ(contents_of(one.name), "<a><b c=\"1\" d=\"2\"/></a>\n");
  EXPECT_EQ(contents_of(two.name), "<a/>\n");
  EXPECT_EQ(run_axm("edit_several", {"delete", one.name, two.name, "//x", "--in-place"}).exit_code, 1);
  EXPECT_EQ(run_axm("edit_several", {"delete", one.name, two.name, "//b", "--output", "x.xml"}).exit_code, 2);
}

TEST(axm_edit, what_comes_from_standard_input_goes_to_standard_output)
{
  TemporaryFile const file("edit_input.xml", library);
  std::string const command =
    std::string("\"") + AXM_PROGRAM + "\" delete - \"//book\" < edit_input.xml > edit_input.out 2> edit_input.err";
#if defined(_WIN32)
  ASSERT_EQ(std::system(("\"" + command + "\"").c_str()), 0);
#else
  ASSERT_EQ(std::system(command.c_str()), 0);
#endif
  TemporaryFile const out("edit_input.out", contents_of("edit_input.out"));
  TemporaryFile const err("edit_input.err", contents_of("edit_input.err"));
  EXPECT_EQ(
    difference(library, contents_of(out.name)), "-  <book id='b1' >One &amp; all</book>\r\n-  <book id='b2'/>\r\n");
  EXPECT_EQ(run_axm("edit_input_2", {"delete", "-", "//book", "--in-place"}).exit_code, 2);
}

#if !defined(_WIN32)
TEST(axm_edit, what_is_compressed_stays_so_in_its_place)
{
  for (std::string const tool : {"gzip", "xz", "zstd"})
  {
    if (std::system((tool + " --version > edit_tool.out 2>&1").c_str()) != 0)
      continue;
    std::string const ending = tool == "gzip" ? ".gz" : tool == "xz" ? ".xz" : ".zst";
    TemporaryFile const plain("edit_packed.xml", library);
    TemporaryFile const packed("edit_packed.xml" + ending, "");
    ASSERT_EQ(std::system((tool + " -c edit_packed.xml > " + packed.name).c_str()), 0);
    ProgramRun const run = run_axm("edit_packed", {"delete", packed.name, "//book[2]"});
    EXPECT_EQ(run.exit_code, 0) << run.err;
    ASSERT_EQ(std::system((tool + " -dc " + packed.name + " > edit_packed.out").c_str()), 0) << tool;
    TemporaryFile const unpacked("edit_packed.out", contents_of("edit_packed.out"));
    EXPECT_EQ(difference(library, contents_of(unpacked.name)), "-  <book id='b2'/>\r\n") << tool;

    TemporaryFile const output("edit_packed_2.xml" + ending, "");
    EXPECT_EQ(run_axm("edit_packed", {"delete", plain.name, "//shelf", "--output", output.name}).exit_code, 0);
    EXPECT_EQ(std::system((tool + " -t -q " + output.name).c_str()), 0) << tool;
  }
  std::remove("edit_tool.out");
}

TEST(axm_edit, a_file_in_which_nothing_changes_is_not_written)
{
  TemporaryFile const file("edit_same.xml", library);
  std::string const command = std::string("touch -d 2001-01-01 edit_same.xml && \"") + AXM_PROGRAM +
                              "\" set edit_same.xml \"//book[1]\" id=b1 && test edit_same.xml -ot \"" + AXM_PROGRAM +
                              "\"";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(contents_of(file.name), library);
}
#endif

TEST(axm_edit, says_what_is_wrong_and_leaves_the_file)
{
  TemporaryFile const file("edit_wrong.xml", "<!DOCTYPE a [<!ENTITY e '<b/>'>]>\n<a xmlns='urn:a'>\n  &e;</a>\n");
  std::string const before = contents_of(file.name);
  auto const messages = [&](std::vector<std::string> const& arguments, int exit_code)
  {
    ProgramRun const run = run_axm("edit_wrong", arguments);
    EXPECT_EQ(run.exit_code, exit_code) << run.err;
    EXPECT_EQ(contents_of(file.name), before);
    return run.err;
  };
  EXPECT_EQ(messages({"delete", file.name, "//p:b", "--ns", "p=urn:a"}, 1),
    "edit_wrong.xml:3:3: 'b' stands in the replacement text of an entity and cannot be edited here\n  &e;</a>\n  ^\n");
  EXPECT_NE(messages({"delete", file.name, "//b"}, 1).find("--ns"), std::string::npos);
  EXPECT_EQ(messages({"rename", file.name, "/*", "1"}, 2), "axm: 1: is no name\n");
  EXPECT_EQ(messages({"insert", file.name, "<b>", "--into", "/*"}, 2),
    "axm: /*: the fragment: the element 'b', open since line 1, must be closed first, by </b> (line 1, column 6)\n");
  EXPECT_EQ(messages({"move", file.name, "//*", "--into", "//["}, 2), "axm: //[: a step is missing, at character 3\n");
  EXPECT_EQ(
    messages({"delete", file.name, "/*"}, 1), "axm: /*: the root element cannot be taken out: a document needs one\n");
}

TEST(axm_edit, refuses_wrong_usage)
{
  TemporaryFile const file("edit_usage.xml", library);
  for (std::vector<std::string> const& arguments : std::vector<std::vector<std::string>>{{"set", file.name, "//book"},
         {"set", file.name, "a=b"}, {"set", file.name, "//book", "a=b", "--value", "c"}, {"delete", file.name},
         {"rename", file.name, "//book"}, {"insert", file.name, "<a/>"}, {"insert", file.name, "--into", "//book"},
         {"insert", file.name, "<a/>", "--into", "//book", "--after", "//book"}, {"move", file.name, "//book"},
         {"move", file.name, "--into", "//book"}, {"delete", file.name, "//book", "--ns", "p"}})
    EXPECT_EQ(run_axm("edit_usage", arguments).exit_code, 2) << arguments[0] << arguments.size();
  EXPECT_EQ(contents_of(file.name), library);
}
