#include "Program.h"

#include <gtest/gtest.h>

namespace
{
std::string json_of(std::string const& xml)
{
  TemporaryFile const file("convert.xml", xml);
  ProgramRun const run = run_axm("convert", {"convert", file.name, "--indent", "0"});
  EXPECT_EQ(run.exit_code, 0) << run.err;
  return run.out;
}

ProgramRun xml_of(std::string const& json)
{
  TemporaryFile const file("convert.json", json);
  return run_axm("convert", {"convert", file.name});
}

// There and back: nothing is lost.
void expect_both_ways(std::string const& xml, std::string const& json)
{
  EXPECT_EQ(json_of(xml), json + "\n");
  ProgramRun const run = xml_of(json);
  EXPECT_EQ(run.exit_code, 0) << run.err;
  EXPECT_EQ(run.out, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + xml + "\n");
}
}

TEST(axm_convert, elements_are_null_texts_and_objects)
{
  expect_both_ways("<a/>", R"({"a":null})");
  expect_both_ways("<a>t</a>", R"({"a":"t"})");
  expect_both_ways("<a> </a>", R"({"a":" "})");
  expect_both_ways("<a x=\"1\"/>", R"({"a":{"@x":"1"}})");
  expect_both_ways("<a x=\"1\" xmlns:p=\"u\">t</a>", R"({"a":{"@x":"1","@xmlns:p":"u","#text":"t"}})");
  expect_both_ways("<a><b>1</b><c/></a>", R"({"a":{"b":"1","c":null}})");
}

TEST(axm_convert, elements_with_one_name_are_an_array)
{
  expect_both_ways("<a><b>1</b><b/><b x=\"2\"/><c/></a>", R"({"a":{"b":["1",null,{"@x":"2"}],"c":null}})");
}

TEST(axm_convert, what_has_to_stay_in_its_order_is_content)
{
  expect_both_ways("<a><b/><c/><b/></a>", R"({"a":{"#content":[{"b":null},{"c":null},{"b":null}]}})");
  expect_both_ways(
    "<p x=\"1\">one <b>two</b>\n<i/></p>", R"({"p":{"@x":"1","#content":["one ",{"b":"two"},"\n",{"i":null}]}})");
  expect_both_ways("<a><!--c--><?p d?><?q?></a>",
    R"({"a":{"#content":[{"#comment":"c"},{"#instruction":"p d"},{"#instruction":"q"}]}})");
  expect_both_ways(
    "<!DOCTYPE a><!--c--><a/>", R"({"#content":[{"#doctype":"<!DOCTYPE a>"},{"#comment":"c"},{"a":null}]})");
}

TEST(axm_convert, characters_are_what_they_were)
{
  expect_both_ways("<a x=\"&#9;&#10;&#34;&lt;\">\xC3\xA4&#13;\n\"&amp;]]&gt;\\</a>",
    "{\"a\":{\"@x\":\"\\t\\n\\\"<\",\"#text\":\"\xC3\xA4\\r\\n\\\"&]]>\\\\\"}}");
}

TEST(axm_convert, white_space_between_elements_is_left_out_unless_it_is_preserved)
{
  EXPECT_EQ(json_of("<a>\n  <b/>\n</a>"), "{\"a\":{\"b\":null}}\n");
  expect_both_ways(
    "<a xml:space=\"preserve\"> <b/></a>", R"({"a":{"@xml:space":"preserve","#content":[" ",{"b":null}]}})");
}

TEST(axm_convert, json_is_indented)
{
  TemporaryFile const file("convert_indent.xml", "<a><b/><b/></a>");
  EXPECT_EQ(run_axm("convert_indent", {"convert", file.name}).out,
    "{\n  \"a\": {\n    \"b\": [\n      null,\n      null\n    ]\n  }\n}\n");
}

TEST(axm_convert, json_of_which_something_would_be_lost_is_refused)
{
  struct Case
  {
    char const* json;
    char const* why;
  };
  for (Case const& each : {Case{R"({"a":{"b":1}})", "/a/b: is a number, and not a text"},
         Case{R"({"a":true})", "/a: is a boolean, and not a text"},
         Case{R"({"a":""})", "/a: is an empty text; null stands for an element with nothing in it"},
         Case{R"({"a":null,"b":null})", "/b: is the second member of an object that has one"},
         Case{R"({"a":{"b":null,"@x":"1"}})", "/a/@x: has to come before what is in the element"},
         Case{R"({"a":{"#text":{}}})", "/a/#text: is an object, and not a text"},
         Case{R"({"a":{"#what":"x"}})", "/a/#what: cannot be there"},
         Case{R"({"a":[["x"]]})", "/a: is an array, which cannot be there"},
         Case{R"({"a":{"b":[["x"]]}})", "/a/b: is an array in an array"},
         Case{R"({"a":{"b":["x"]}})", "would not be the same JSON when it is read back from XML"},
         Case{R"({"a":{}})", "would not be the same JSON when it is read back from XML"},
         Case{R"({"a":{"b":null,"#content":[]}})", "would not be the same JSON when it is read back from XML"},
         Case{R"({"a":{"#content":["x"]}})", "would not be the same JSON when it is read back from XML"},
         Case{R"({"a":"\u0001"})", "would not be well-formed XML: "},
         Case{R"({"a b":"x"})", "would not be well-formed XML: "}, Case{R"({"a":{"b":"><c"}})", ""},
         Case{R"({"a":{"#content":[{"#comment":"--><b/><!--"}]}})",
           "would not be the same JSON when it is read back from XML"},
         Case{R"({"a":"x")", "is no JSON, at byte 9"}, Case{R"({})", "would not be well-formed XML: "}})
  {
    ProgramRun const run = xml_of(each.json);
    bool const is_refused = *each.why != '\0';
    EXPECT_EQ(run.exit_code, is_refused ? 1 : 0) << each.json;
    EXPECT_EQ(run.err.find(is_refused ? std::string("axm: convert.json: ") + each.why : ""), 0u)
      << each.json << run.err;
    EXPECT_EQ(run.out.empty(), is_refused);
  }
}

TEST(axm_convert, takes_deep_documents_both_ways)
{
  std::string xml;
  for (int i = 0; i < 20000; ++i)
    xml += "<a x=\"1\">";
  xml += "t";
  for (int i = 0; i < 20000; ++i)
    xml += "</a>";
  std::string const json = json_of(xml);
  EXPECT_EQ(xml_of(json).out, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + xml + "\n");
}

TEST(axm_convert, says_what_is_wrong_with_a_document)
{
  TemporaryFile const bad("convert_bad.xml", "<a>\n</b>");
  TemporaryFile const target("convert_bad.json", "old");
  ProgramRun const run = run_axm("convert_bad", {"convert", bad.name, "--output", target.name});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(run.err.find("convert_bad.xml:2:3: "), 0u) << run.err;
  EXPECT_EQ(contents_of(target.name), "old");
  EXPECT_EQ(
    run_axm("convert_bad", {"convert", bad.name, "--to", "xml"}).err, "axm: convert_bad.xml: is no JSON, at byte 1\n");
  EXPECT_EQ(run_axm("convert_bad", {"convert", "convert_none.xml"}).exit_code, 1);
  EXPECT_EQ(run_axm("convert_bad", {"convert", bad.name, "--to", "yaml"}).exit_code, 2);
}
