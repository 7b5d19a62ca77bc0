#include "../Engine.h"
#include "../TextStream.h"

#include <axsCanonicalForm.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
// The canonical form or, behind "!", why there is none.
std::string canonical(std::string const& document, axsCanonicalOptions const& options = {})
{
  TextStream source(document);
  std::string made;
  axmParseError error;
  auto const write = appending_to(made);
  return axsCanonicalForm::write(source, options, error, write) ? made
                                                                : "!" + std::string(error.message().to_utf8().view());
}

std::string exclusive(std::string const& document, std::set<std::string> const& inclusive = {})
{
  axsCanonicalOptions options;
  options.is_exclusive = true;
  options.inclusive_prefixes = inclusive;
  return canonical(document, options);
}
}

TEST(axsCanonicalForm, declarations_and_the_document_type_go_and_tags_come_in_pairs)
{
  EXPECT_EQ(canonical("<?xml version='1.0'?>\n<!DOCTYPE a [<!ENTITY e 'x'><!ATTLIST a d CDATA 'y'>]>\n<a  b = 'c' >"
                      "<b/>&e;<![CDATA[<&]]></a >\n"),
    "<a b=\"c\" d=\"y\"><b></b>x&lt;&amp;</a>");
}

TEST(axsCanonicalForm, instructions_and_comments_outside_have_a_line_end_towards_the_root)
{
  std::string const document = "<?p  q ?><!-- c --><a><!-- d --></a><!-- e --><?f?>";
  EXPECT_EQ(canonical(document), "<?p q ?>\n<a></a>\n<?f?>");
  axsCanonicalOptions options;
  options.has_comments = true;
  EXPECT_EQ(canonical(document, options), "<?p q ?>\n<!-- c -->\n<a><!-- d --></a>\n<!-- e -->\n<?f?>");
}

TEST(axsCanonicalForm, characters_that_reading_would_change_are_references)
{
  EXPECT_EQ(canonical("<a b='&#9;&#10;&#13;&lt;&gt;&amp;\"'>&#9;&#10;&#13;&lt;&gt;&amp;\"\r\n</a>"),
    "<a b=\"&#x9;&#xA;&#xD;&lt;>&amp;&quot;\">\t\n&#xD;&lt;&gt;&amp;\"\n</a>");
}

TEST(axsCanonicalForm, attributes_are_sorted_by_namespace_and_name_behind_the_declarations)
{
  EXPECT_EQ(canonical("<a z='1' p:y='2' q:x='3' xmlns:q='urn:a' xmlns:p='urn:b' c='4' xmlns='urn:c'/>"),
    "<a xmlns=\"urn:c\" xmlns:p=\"urn:b\" xmlns:q=\"urn:a\" c=\"4\" z=\"1\" q:x=\"3\" p:y=\"2\"></a>");
}

TEST(axsCanonicalForm, superfluous_declarations_go)
{
  EXPECT_EQ(
    canonical("<a xmlns='' xmlns:p='u:1'><b xmlns:p='u:1'><c xmlns:p='u:2'/></b><d xmlns='u:3'><e xmlns=''/></d></a>"),
    "<a xmlns:p=\"u:1\"><b><c xmlns:p=\"u:2\"></c></b><d xmlns=\"u:3\"><e xmlns=\"\"></e></d></a>");
}

TEST(axsCanonicalForm, the_exclusive_form_declares_what_a_tag_uses_where_it_is_used)
{
  std::string const document =
    "<a xmlns='u:0' xmlns:p='u:1' xmlns:q='u:2'><p:b/><c q:d='1'><q:e/></c><f xmlns=''/></a>";
  EXPECT_EQ(exclusive(document),
    "<a xmlns=\"u:0\"><p:b xmlns:p=\"u:1\"></p:b><c xmlns:q=\"u:2\" q:d=\"1\"><q:e></q:e></c>"
    "<f xmlns=\"\"></f></a>");
  EXPECT_EQ(exclusive(document, {"p"}),
    "<a xmlns=\"u:0\" xmlns:p=\"u:1\"><p:b></p:b><c xmlns:q=\"u:2\" q:d=\"1\"><q:e></q:e>"
    "</c><f xmlns=\"\"></f></a>");
  EXPECT_EQ(exclusive("<p:a xmlns='u:0' xmlns:p='u:1'><b/></p:a>", {"#default"}),
    "<p:a xmlns=\"u:0\" xmlns:p=\"u:1\"><b></b></p:a>");
}

TEST(axsCanonicalForm, what_has_none_is_refused)
{
  EXPECT_EQ(canonical("<?xml version='1.1'?><a/>"), "!A document of XML 1.1 has no canonical form");
  EXPECT_EQ(
    canonical("<a xmlns:p='x/y:z'/>"), "!A relative URI names a namespace, so that the document has no canonical form");
  EXPECT_EQ(canonical("<a>")[0], '!');
}

TEST(axsCanonicalForm, other_encodings_become_utf_8)
{
  EXPECT_EQ(canonical("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>"), "<a>\xC3\xA4</a>");
}

TEST(axsCanonicalForm, line_ends_in_comments_and_instructions_survive)
{
  axsCanonicalOptions options;
  options.has_comments = true;
  EXPECT_EQ(canonical("<!DOCTYPE a [<!ENTITY e '<!--x&#13;y--><?p x&#13;y?>'>]><a>&e;</a>", options),
    "<a><!--x&#xD;y--><?p x&#xD;y?></a>");
}

TEST(axsCanonicalForm, a_namespace_has_the_name_of_a_scheme)
{
  for (std::string const uri : {"u:", "Ab9+-.:x", "z:/", "A:0"})
    EXPECT_EQ(canonical("<a xmlns='" + uri + "'/>"), "<a xmlns=\"" + uri + "\"></a>");
  for (std::string const uri : {":x", "9:x", "a_b:x", "a{:x", "[:x", "x"})
    EXPECT_EQ(canonical("<a xmlns='" + uri + "'/>")[0], '!') << uri;
}

TEST(axsCanonicalForm, the_prefix_xml_is_declared_nowhere)
{
  std::string const document = "<a xmlns:xml='http://www.w3.org/XML/1998/namespace' xml:lang='en'/>";
  EXPECT_EQ(canonical(document), "<a xml:lang=\"en\"></a>");
  EXPECT_EQ(exclusive(document), "<a xml:lang=\"en\"></a>");
}

TEST(axsCanonicalForm, a_form_that_cannot_be_written_is_an_error)
{
  TextStream source("<a/>");
  axmParseError error;
  EXPECT_FALSE(axsCanonicalForm::write(source, {}, error, [](std::string_view) { return false; }));
  EXPECT_EQ(narrow(error.message()), "The canonical form cannot be written");
}

TEST(axsCanonicalForm, a_file_is_read_with_what_it_refers_to)
{
  TestFile const part("axsCanonicalForm.txt", "part");
  TestFile const file("axsCanonicalForm.xml", "<!DOCTYPE a [<!ENTITY e SYSTEM 'axsCanonicalForm.txt'>]><a>&e;</a>");
  axmLoadOptions reading(axmValidateNone);
  reading.set_disable_entity_resolution(false);
  std::string made;
  axmParseError error;
  auto const write = appending_to(made);
  EXPECT_TRUE(axsCanonicalForm::write(file.path(), reading, {}, error, write)) << narrow(error.message());
  EXPECT_EQ(made, "<a>part</a>");
  EXPECT_FALSE(axsCanonicalForm::write(apPath("no/such/file.xml"), reading, {}, error, write));
  EXPECT_EQ(narrow(error.url()), "no/such/file.xml");
}

TEST(axsCanonicalForm, an_attribute_without_a_prefix_needs_no_declaration)
{
  EXPECT_EQ(exclusive("<p:a xmlns:p='u:1' xmlns='u:2' b='1'/>"), "<p:a xmlns:p=\"u:1\" b=\"1\"></p:a>");
}
