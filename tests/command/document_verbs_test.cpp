#include "Program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <thread>

#if !defined(_WIN32)
#  include <sys/stat.h>
#endif

namespace
{
std::string const books =
  "<?xml version=\"1.0\"?>\n<list>\n\t<item id=\"1\">\xC3\xA4 one</item>\n  <item>two</item>\n</list>";

std::string const schema = "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" targetNamespace=\"urn:n\">"
                           "<xs:element name=\"n\" type=\"xs:int\"/></xs:schema>";

std::string const plain_schema = "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                                 "<xs:element name=\"n\" type=\"xs:int\"/></xs:schema>";
}

TEST(axm_check, is_silent_about_good_documents)
{
  TemporaryFile const one("check_good_1.xml", books);
  TemporaryFile const two("check_good_2.xml", "<a/>");
  ProgramRun const run = run_axm("check_good", {"check", one.name, two.name});
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(run.out + run.err, "");
}

TEST(axm_check, says_file_line_column_and_text_and_marks_the_column)
{
  TemporaryFile const bad("check_bad.xml", "<a>\n\t<b>\xC3\xA4</c>\n</a>");
  TemporaryFile const good("check_bad_2.xml", "<a/>");
  ProgramRun const run = run_axm("check_bad", {"check", bad.name, good.name, "check_none.xml"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "check_bad.xml:2:8: the element 'b', open since line 2, must be closed first, by "
                     "</b>\n\t<b>\xC3\xA4</c>\n\t      ^\n"
                     "check_none.xml: There is no file check_none.xml\n");
}

TEST(axm_check, shows_the_part_of_a_long_line_around_the_column)
{
  TemporaryFile const bad("check_long.xml", "<a>" + std::string(5000, 'x') + "</b>" + std::string(5000, 'y'));
  ProgramRun const run = run_axm("check_long", {"check", bad.name});
  EXPECT_NE(
    run.err.find("check_long.xml:1:5006: the element 'a', open since line 1, must be closed first, by </a>\nxxxx"),
    std::string::npos)
    << run.err;
  EXPECT_LT(run.err.size(), 350u);
}

TEST(axm_check, finds_a_column_far_along_a_line_of_wide_characters)
{
  std::string text = "<a>";
  for (int i = 0; i < 1000; ++i)
    text += "\xE2\x82\xAC";
  TemporaryFile const bad("check_far.xml", text + "</b>" + std::string(10000, ' '));
  std::string const shown = run_axm("check_far", {"check", bad.name}).err;
  EXPECT_EQ(shown.find("check_far.xml:1:1006: "), 0u) << shown;
  EXPECT_NE(shown.find("\xE2\x82\xAC</b>"), std::string::npos) << shown;
}

TEST(axm_check, finds_the_line_whatever_ends_lines)
{
  for (char const* const end : {"\n", "\r\n", "\r"})
  {
    TemporaryFile const bad("check_lines.xml", std::string("<a>") + end + end + "<b>" + end + "</a>" + end);
    EXPECT_EQ(run_axm("check_lines", {"check", bad.name}).err.substr(0, 21), "check_lines.xml:4:3: ");
    EXPECT_NE(run_axm("check_lines", {"check", bad.name}).err.find("\n</a>\n  ^\n"), std::string::npos);
  }
}

TEST(axm_check, marks_the_column_behind_characters_of_any_size)
{
  TemporaryFile const bad("check_wide.xml", "<a>\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E</b>");
  EXPECT_NE(
    run_axm("check_wide", {"check", bad.name}).err.find("\xF0\x9D\x84\x9E</b>\n        ^\n"), std::string::npos);
  TemporaryFile const marked("check_mark.xml", "\xEF\xBB\xBF<a></b>");
  EXPECT_NE(run_axm("check_mark", {"check", marked.name}).err.find("\n<a></b>\n     ^\n"), std::string::npos);
}

TEST(axm_check, hands_no_control_characters_to_the_terminal)
{
  TemporaryFile const bad("check_controls.xml", "<a>\n<!-- \x1B[31m \xC2\x9B \x7F \xE4 -->\x07</a>");
  std::string const shown = run_axm("check_controls", {"check", bad.name}).err;
  std::string const mark = "\xEF\xBF\xBD";
  EXPECT_NE(shown.find("\n<!-- " + mark + "[31m " + mark + " " + mark + " " + mark + " -->" + mark + "</a>\n"),
    std::string::npos)
    << shown;

  TemporaryFile const value("check_controls_2.xml", "<?xml version='1.1'?>\n<n>&#27;[31m&#10;</n>");
  TemporaryFile const xsd("check_controls.xsd", plain_schema);
  std::string const message = run_axm("check_controls", {"check", value.name, "--no-namespace-schema", xsd.name}).err;
  EXPECT_EQ(message.find('\x1B'), std::string::npos) << message;
  EXPECT_EQ(message.find("check_controls_2.xml:2:"), 0u) << message;
}

TEST(axm_check, shows_no_line_of_an_encoding_that_it_cannot_show)
{
  TemporaryFile const bad("check_utf16.xml", std::string("\xFF\xFE<\0a\0>\0", 8));
  std::string const shown = run_axm("check_utf16", {"check", bad.name}).err;
  EXPECT_EQ(shown.find("check_utf16.xml:1:4: "), 0u) << shown;
  EXPECT_EQ(shown.find('\n'), shown.size() - 1) << shown;
}

TEST(axm_check, validates_against_schemas)
{
  TemporaryFile const xsd("check.xsd", schema);
  TemporaryFile const plain("check_plain.xsd", plain_schema);
  TemporaryFile const valid("check_valid.xml", "<n xmlns=\"urn:n\">5</n>");
  TemporaryFile const invalid("check_invalid.xml", "<n xmlns=\"urn:n\">five</n>");
  TemporaryFile const invalid_plain("check_invalid_plain.xml", "<n>five</n>");
  std::vector<std::string> const options = {"--schema", "urn:n=check.xsd", "--no-namespace-schema", "check_plain.xsd"};
  auto const check = [&](std::string const& name)
  {
    std::vector<std::string> arguments = {"check", name};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_axm("check_schemas", arguments);
  };
  EXPECT_EQ(check(valid.name).exit_code, 0);
  EXPECT_EQ(check(invalid.name).exit_code, 1);
  ProgramRun const run = check(invalid_plain.name);
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err.find("check_invalid_plain.xml:1:12: element 'n': "), 0u) << run.err;
}

TEST(axm_check, says_all_that_is_wrong_up_to_a_bound)
{
  TemporaryFile const xsd("check_many.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='a'><xs:complexType><xs:sequence>"
    "<xs:element name='n' type='xs:int' "
    "maxOccurs='unbounded'/></xs:sequence></xs:complexType></xs:element></xs:schema>");
  std::string text = "<a>";
  for (int i = 0; i < 30; ++i)
    text += "\n<n>x</n>";
  TemporaryFile const bad("check_many.xml", text + "</a>");
  auto const count = [&](std::vector<std::string> const& more)
  {
    std::vector<std::string> arguments = {"check", bad.name, "--no-namespace-schema", xsd.name};
    arguments.insert(arguments.end(), more.begin(), more.end());
    std::string const err = run_axm("check_many", arguments).err;
    int found = 0;
    for (std::size_t at = err.find("is not of the type"); at != std::string::npos;
         at = err.find("is not of the type", at + 1))
      ++found;
    return std::make_pair(found, err.find("--all-errors") != std::string::npos);
  };
  EXPECT_EQ(count({}), std::make_pair(20, true));
  EXPECT_EQ(count({"--all-errors"}), std::make_pair(30, false));
}

TEST(axm_check, fails_where_nothing_is_declared)
{
  TemporaryFile const xsd("check_nothing.xsd", schema);
  TemporaryFile const other("check_nothing.xml", "<n xmlns='urn:other'/>");
  ProgramRun const run = run_axm("check_nothing", {"check", other.name, "--schema", "urn:n=" + xsd.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err, "check_nothing.xml: nothing in it is declared in the schemas, so nothing was checked\n");
  EXPECT_EQ(run_axm("check_nothing", {"check", other.name}).exit_code, 0);
}

TEST(axm_check, says_whether_schemas_are_right)
{
  TemporaryFile const good("check_schema_1.xsd", schema);
  TemporaryFile const bad("check_schema_2.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n<xs:element name='a' type='none'/></xs:schema>");
  EXPECT_EQ(run_axm("check_schema", {"check", "--schemas-only", good.name}).exit_code, 0);
  ProgramRun const run = run_axm("check_schema", {"check", "--schemas-only", good.name, bad.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err.find("check_schema_2.xsd:2:"), 0u) << run.err;
}

TEST(axm_check, takes_the_schema_that_is_named_for_a_namespace_where_schemas_import_it)
{
  TemporaryFile const imported("check_import_1.xsd", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
                                                     "targetNamespace='urn:i'><xs:element name='a'/></xs:schema>");
  TemporaryFile const xsd("check_import_2.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:i='urn:i'>\n"
    "<xs:import namespace='urn:i' schemaLocation='http://localhost:1/i.xsd'/>\n"
    "<xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='i:a'/></xs:sequence></xs:complexType>"
    "</xs:element></xs:schema>");
  TemporaryFile const document("check_import.xml", "<r><a xmlns='urn:i'/></r>");
  ProgramRun const run = run_axm("check_import", {"check", "--schemas-only", xsd.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.err.find("\"http://localhost:1/i.xsd\", is not a local file"), std::string::npos) << run.err;
  std::string const named = "urn:i=" + imported.name;
  EXPECT_EQ(run_axm("check_import", {"check", "--schemas-only", xsd.name, "--schema", named}).exit_code, 0);
  EXPECT_EQ(
    run_axm("check_import", {"check", document.name, "--schema", named, "--no-namespace-schema", xsd.name}).exit_code,
    0);
}

TEST(axm_check, refuses_wrong_usage)
{
  EXPECT_EQ(run_axm("check_usage", {"check"}).exit_code, 2);
  EXPECT_EQ(run_axm("check_usage", {"check", "a.xml", "--schema", "a.xsd"}).exit_code, 2);
  // An empty name, as from an unset variable, is no reason not to validate.
  EXPECT_EQ(run_axm("check_usage", {"check", "a.xml", "--schema", "urn:a="}).exit_code, 2);
  EXPECT_EQ(run_axm("check_usage", {"check", "a.xml", "--no-namespace-schema", ""}).exit_code, 2);
}

TEST(axm_select, writes_text_xml_or_an_attribute_a_line_each)
{
  TemporaryFile const file("select.xml", books);
  EXPECT_EQ(run_axm("select", {"select", file.name, "//item"}).out, "\xC3\xA4 one\ntwo\n");
  EXPECT_EQ(run_axm("select", {"select", file.name, "//item", "--text"}).out, "\xC3\xA4 one\ntwo\n");
  EXPECT_EQ(run_axm("select", {"select", file.name, "//item[2]", "--xml"}).out, "<item>two</item>\n");
  EXPECT_EQ(run_axm("select", {"select", file.name, "//item", "--attribute", "id"}).out, "1\n");
  EXPECT_EQ(run_axm("select", {"select", file.name, "//@id"}).out, "1\n");
}

TEST(axm_select, fails_when_nothing_is_selected_or_the_file_is_bad)
{
  TemporaryFile const file("select_none.xml", books);
  EXPECT_EQ(run_axm("select_none", {"select", file.name, "//none"}).exit_code, 1);
  EXPECT_EQ(run_axm("select_none", {"select", "select_no_file.xml", "//none"}).exit_code, 1);
  EXPECT_EQ(run_axm("select_none", {"select", file.name, "//item", "--xml", "--text"}).exit_code, 2);
}

TEST(axm_select, says_why_nothing_is_written)
{
  TemporaryFile const file("select_why.xml", books);
  auto const select = [&](std::string const& xpath) { return run_axm("select_why", {"select", file.name, xpath}); };
  EXPECT_EQ(select("//none").err, "axm: //none: selects nothing\n");
  EXPECT_EQ(select("//none").exit_code, 1);
  EXPECT_EQ(select("//item[").err, "axm: //item[: a step is missing, at character 8\n");
  EXPECT_EQ(select("//item[").exit_code, 2);
  EXPECT_NE(select("//p:item").err.find("'p'"), std::string::npos);
  EXPECT_EQ(select("//p:item").exit_code, 2);
  EXPECT_EQ(run_axm("select_why", {"select", file.name, "//item", "--attribute", "no"}).err,
    "axm: //item: no selected node has the attribute no\n");
}

TEST(axm_select, writes_the_value_of_what_is_no_path)
{
  TemporaryFile const file("select_value.xml", books);
  auto const select = [&](std::string const& xpath) { return run_axm("select_value", {"select", file.name, xpath}); };
  EXPECT_EQ(select("count(//item)").out, "2\n");
  EXPECT_EQ(select("count(//item)").exit_code, 0);
  EXPECT_EQ(select("//item = 'two'").out, "true\n");
  EXPECT_EQ(select("string(//@id)").out, "1\n");
  EXPECT_EQ(run_axm("select_value", {"select", file.name, "count(//item)", "--xml"}).exit_code, 2);
}

#if !defined(_WIN32)
TEST(axm_select, says_so_when_its_output_is_lost)
{
  TemporaryFile const file("select_full.xml", books);
  std::string const command =
    std::string("\"") + AXM_PROGRAM + "\" select " + file.name + " //item > /dev/full 2> select_full.err";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  TemporaryFile const errors("select_full.err", contents_of("select_full.err"));
  EXPECT_EQ(contents_of(errors.name), "axm: standard output: cannot be written: No space left on device\n");
}
#endif

TEST(axm_set, sets_attributes_and_saves_elsewhere)
{
  TemporaryFile const file("set.xml", books);
  TemporaryFile const output("set_output.xml", "old");
  ProgramRun const run = run_axm("set", {"set", file.name, "//item[2]", "id=7", "x=a=b&", "--output", output.name});
  EXPECT_EQ(run.exit_code, 0) << run.err;
  EXPECT_EQ(contents_of(output.name), "<?xml version=\"1.0\"?>\n<list>\n\t<item id=\"1\">\xC3\xA4 one</item>\n  "
                                      "<item id=\"7\" x=\"a=b&amp;\">two</item>\n</list>");
  EXPECT_EQ(contents_of(file.name), books);
}

TEST(axm_set, saves_in_place_without_output)
{
  TemporaryFile const file("set_in_place.xml", "<a/>");
  EXPECT_EQ(run_axm("set_in_place", {"set", file.name, "/a", "b=c"}).exit_code, 0);
  EXPECT_EQ(contents_of(file.name), "<a b=\"c\"/>");
}

TEST(axm_set, leaves_the_file_when_something_is_wrong)
{
  TemporaryFile const file("set_wrong.xml", books);
  EXPECT_EQ(run_axm("set_wrong", {"set", file.name, "//none", "a=b"}).exit_code, 1);
  EXPECT_EQ(run_axm("set_wrong", {"set", file.name, "//item/text()", "a=b"}).exit_code, 1);
  EXPECT_EQ(run_axm("set_wrong", {"set", file.name, "//item", "1a=b"}).exit_code, 1);
  EXPECT_EQ(run_axm("set_wrong", {"set", file.name, "//item", "a=b", "--output", "no/such/folder.xml"}).exit_code, 1);
  EXPECT_EQ(run_axm("set_wrong", {"set", file.name, "//item", "ab"}).exit_code, 2);
  EXPECT_EQ(contents_of(file.name), books);
}

TEST(axm_set, says_why_it_does_not_save)
{
  TemporaryFile const file("set_why.xml", books);
  auto const set = [&](std::string const& xpath, std::string const& setting, std::string const& output) {
    return run_axm("set_why", {"set", file.name, xpath, setting, "--output", output});
  };
  EXPECT_EQ(set("//none", "a=b", "set_why_2.xml").err, "axm: //none: selects nothing\n");
  EXPECT_EQ(set("//item[", "a=b", "set_why_2.xml").err, "axm: //item[: a step is missing, at character 8\n");
  EXPECT_EQ(set("//item[", "a=b", "set_why_2.xml").exit_code, 2);
  EXPECT_EQ(set("count(//item)", "a=b", "set_why_2.xml").exit_code, 2);
  EXPECT_NE(set("//item", "p:a=b", "set_why_2.xml").err.find("prefix"), std::string::npos);
  EXPECT_EQ(set("//item", "a=b", "no/such/folder.xml").err,
    "axm: no/such/folder.xml: cannot be written: No such file or directory\n");
#if !defined(_WIN32)
  EXPECT_NE(set("//item", "a=\x01", "set_why_2.xml").err.find("character"), std::string::npos);
  EXPECT_EQ(set("//item", "a=\xFF", "set_why_2.xml").exit_code, 2);
#endif
  EXPECT_EQ(contents_of("set_why_2.xml"), "");
}

TEST(axm, tells_its_version_and_what_is_no_verb)
{
  EXPECT_EQ(run_axm("axm_version", {"--version"}).out.substr(0, 4), "axm ");
  ProgramRun const run = run_axm("axm_no_verb", {"chekc", "a.xml"});
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_EQ(run.err, "axm: chekc: there is no such verb; axm --help lists them\n");
}

#if !defined(_WIN32)
TEST(axm_set, leaves_nothing_behind_when_files_may_not_become_so_large)
{
  TemporaryFile const file("set_large.xml", "<a>" + std::string(100000, 'x') + "</a>");
  std::filesystem::create_directory("set_large");
  std::string const command = std::string("ulimit -f 20; \"") + AXM_PROGRAM +
                              "\" set set_large.xml /a b=c --output set_large/x.xml 2> set_large.err";
  int const status = std::system(command.c_str());
  TemporaryFile const errors("set_large.err", contents_of("set_large.err"));
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << status;
  EXPECT_EQ(contents_of(errors.name), "axm: set_large/x.xml: cannot be written: File too large\n");
  EXPECT_TRUE(std::filesystem::is_empty("set_large"));
  std::filesystem::remove_all("set_large");
}
#endif

TEST(axm_set, an_output_without_a_name_is_wrong_usage)
{
  TemporaryFile const file("set_no_name.xml", books);
  EXPECT_EQ(run_axm("set_no_name", {"set", file.name, "//item", "a=b", "--output", ""}).exit_code, 2);
  EXPECT_EQ(run_axm("set_no_name", {"table", file.name, "list/item", "@id", "--output", ""}).exit_code, 2);
  EXPECT_EQ(contents_of(file.name), books);
}

TEST(axm_set, writes_to_standard_output)
{
  TemporaryFile const file("set_out.xml", "<a/>");
  std::string const saved = "<a b=\"c\"/>";
  EXPECT_EQ(run_axm("set_out", {"set", file.name, "/a", "b=c", "--output", "-"}).out, saved);
#if !defined(_WIN32)
  EXPECT_EQ(run_axm("set_out", {"set", file.name, "/a", "b=c", "--output", "/dev/stdout"}).out, saved);
#endif
  EXPECT_EQ(contents_of(file.name), "<a/>");
}

#if !defined(_WIN32)
TEST(axm_check, validates_standard_input_and_what_is_compressed)
{
  TemporaryFile const schema_file("check_stream.xsd", plain_schema);
  TemporaryFile const good("check_stream_good.xml", "<n>1</n>");
  TemporaryFile const bad("check_stream_bad.xml", "<n>\none</n>");
  for (char const* const compress : {"cat", "gzip -c", "xz -c", "zstd -qc"})
  {
    if (std::system((std::string("command -v ") + compress + " >/dev/null").c_str()) != 0)
      continue;
    for (TemporaryFile const* const file : {&good, &bad})
    {
      std::string const packed = "check_stream.packed";
      ASSERT_EQ(std::system((std::string(compress) + " < " + file->name + " > " + packed).c_str()), 0);
      bool const is_good = file == &good;
      ProgramRun const run = run_axm("check_stream", {"check", packed, "--no-namespace-schema", schema_file.name});
      EXPECT_EQ(run.exit_code, is_good ? 0 : 1) << compress;
      EXPECT_EQ(run.err.substr(0, 22), is_good ? "" : "check_stream.packed:2:") << compress;
      std::string const err = "check_stream.in.err";
      int const status = std::system(
        ("cat " + packed + " | " AXM_PROGRAM " check - --no-namespace-schema " + schema_file.name + " 2> " + err)
          .c_str());
      EXPECT_EQ(WEXITSTATUS(status), is_good ? 0 : 1) << compress;
      EXPECT_EQ(contents_of(err).substr(0, 17), is_good ? "" : "standard input:2:") << compress;
      std::filesystem::remove(packed);
      std::filesystem::remove(err);
    }
  }
}

TEST(axm_check, reports_what_is_wrong_in_a_pipe_and_does_not_open_it_again)
{
  std::string const name = "check_pipe";
  std::filesystem::remove(name);
  ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
  std::thread writer(
    [&]
    {
      std::FILE* const pipe = std::fopen(name.c_str(), "wb");
      std::fputs("<a>\n<b></a>", pipe);
      std::fclose(pipe);
    });
  ProgramRun const run = run_axm("check_pipe_run", {"check", name});
  writer.join();
  std::filesystem::remove(name);
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err.substr(0, 14), "check_pipe:2:6") << run.err;
}

TEST(axm, shows_names_without_control_characters)
{
  std::string const name = "no\x1B[31m\nfile";
  for (std::vector<std::string> const& arguments :
    {std::vector<std::string>{"check", name}, {"select", name, "/a"}, {"table", name, "a/b", "@c"}, {name}})
  {
    ProgramRun const run = run_axm("axm_control", arguments);
    EXPECT_NE(run.exit_code, 0);
    EXPECT_EQ(run.err.find('\x1B'), std::string::npos) << run.err;
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
  }
}

TEST(axm, says_so_when_its_output_is_lost)
{
  for (std::string const arguments : {"--help", "--version", "table --help", "conform --help"})
  {
    std::string const command = std::string("\"") + AXM_PROGRAM + "\" " + arguments + " > /dev/full 2> axm_full.err";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1) << arguments;
    TemporaryFile const errors("axm_full.err", contents_of("axm_full.err"));
    EXPECT_EQ(contents_of(errors.name), "axm: standard output: cannot be written\n") << arguments;
  }
}
#endif
