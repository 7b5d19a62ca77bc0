#include <axsEditor.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
using Kind = axsEditFault::Kind;

// What comes of an edit: the document or, behind "!", why it was not made.
template <class Edit>
std::string edited(std::string const& document, Edit edit, axsXPathPrefixes const& prefixes = {})
{
  axsEditor editor(document, apPath());
  editor.set_prefixes(prefixes);
  if (edit(editor) > 0)
    return editor.bytes();
  EXPECT_EQ(editor.bytes(), document);
  EXPECT_NE(editor.fault().kind, Kind::none);
  return "!" + std::string(editor.fault().error.message().to_utf8().view());
}

std::string set(std::string const& document, char const* xpath, char const* name, char const* value)
{
  return edited(document, [&](axsEditor& editor) { return editor.set_attributes(xpath, {{name, value}}); });
}

std::string set_value(std::string const& document, char const* xpath, char const* value)
{
  return edited(document, [&](axsEditor& editor) { return editor.set_value(xpath, value); });
}

std::string removed(std::string const& document, char const* xpath)
{
  return edited(document, [&](axsEditor& editor) { return editor.remove(xpath); });
}

std::string renamed(
  std::string const& document, char const* xpath, char const* name, axsXPathPrefixes const& prefixes = {})
{
  return edited(
    document, [&](axsEditor& editor) { return editor.rename(xpath, name); }, prefixes);
}

std::string inserted(std::string const& document, char const* xpath, axsEditPlace where, char const* fragment,
  axsXPathPrefixes const& prefixes = {})
{
  return edited(
    document, [&](axsEditor& editor) { return editor.insert(xpath, where, fragment); }, prefixes);
}

std::string moved(std::string const& document, char const* xpath, axsEditPlace where, char const* target)
{
  return edited(document, [&](axsEditor& editor) { return editor.move(xpath, where, target); });
}

auto const before = axsEditPlace::before;
auto const after = axsEditPlace::after;
auto const into = axsEditPlace::into;
auto const into_first = axsEditPlace::into_first;
}

TEST(axsEditor_set, a_value_is_replaced_within_its_quotes_and_nothing_else)
{
  EXPECT_EQ(set("<?xml version='1.0' ?>\r\n<!DOCTYPE a>\r\n<a  b = 'x'\tc=\"y\" ><![CDATA[<]]>&#65;</a >\r\n<!-- z -->",
              "/a", "b", "v'\"<&>"),
    "<?xml version='1.0' ?>\r\n<!DOCTYPE a>\r\n<a  b = 'v&apos;\"&lt;&amp;>'\tc=\"y\" ><![CDATA[<]]>&#65;</a >\r\n<!-- "
    "z -->");
}

TEST(axsEditor_set, a_new_attribute_stands_last_with_the_quotes_and_white_space_of_the_one_before)
{
  EXPECT_EQ(set("<a b='1' />", "/a", "c", "2"), "<a b='1' c='2' />");
  EXPECT_EQ(set("<a b=\"1\"\n   d='2'\n/>", "/a", "c", "3"), "<a b=\"1\"\n   d='2'\n   c='3'\n/>");
  EXPECT_EQ(set("<a></a>", "/a", "c", "2"), "<a c=\"2\"></a>");
  EXPECT_EQ(set("<a><b x='1'/><c/></a>", "//c", "d", "2"), "<a><b x='1'/><c d='2'/></a>");
  EXPECT_EQ(set("<?xml version='1.0'?><a/>", "/a", "c", "2"), "<?xml version='1.0'?><a c='2'/>");
}

TEST(axsEditor_set, a_value_that_is_there_already_stays_as_it_is_written)
{
  std::string const document = "<a b='x&#65;&lt;'/>";
  EXPECT_EQ(set(document, "/a", "b", "xA<"), document);
}

TEST(axsEditor_set, white_space_in_values_is_read_again_as_it_was_given)
{
  EXPECT_EQ(set("<a/>", "/a", "b", "1\t2\n3\r4"), "<a b=\"1&#9;2&#10;3&#13;4\"/>");
}

TEST(axsEditor_set, a_default_of_the_document_type_is_put_into_the_tag)
{
  std::string const type = "<!DOCTYPE a [<!ATTLIST a b CDATA 'x' t NMTOKENS #IMPLIED>]>";
  EXPECT_EQ(set(type + "<a/>", "/a[@b='x']", "b", "y"), type + "<a b=\"y\"/>");
}

TEST(axsEditor_set, a_value_of_tokens_may_have_more_white_space)
{
  std::string const type = "<!DOCTYPE a [<!ATTLIST a t NMTOKENS #IMPLIED>]>";
  EXPECT_EQ(set(type + "<a t=\"1\"/>", "/a", "t", " x  y "), type + "<a t=\" x  y \"/>");
}

TEST(axsEditor_set, of_several_values_for_one_name_the_last_counts)
{
  EXPECT_EQ(edited("<a/>",
              [](axsEditor& editor) {
                return editor.set_attributes("/a", {{"b", "1"}, {"b", "2"}});
              }),
    "<a b=\"2\"/>");
}

TEST(axsEditor_set, what_cannot_be_read_again_is_not_made)
{
  EXPECT_NE(set("<a/>", "/a", "p:b", "1").find("the prefix 'p'"), std::string::npos);
  EXPECT_NE(set("<a/>", "/a", "b", "\x01").find("character"), std::string::npos);
  EXPECT_EQ(set("<a/>", "/a", "1b", "1"), "!'1b' is no name of an attribute");
  EXPECT_EQ(set("<a>t</a>", "//text()", "b", "1"), "!a selected node takes no attribute b");
  EXPECT_EQ(set("<?xml version='1.1'?><a/>", "/a", "b", "\x01"), "<?xml version='1.1'?><a b='&#1;'/>");
}

TEST(axsEditor_set, values_of_attributes_and_elements_are_set)
{
  EXPECT_EQ(set_value("<a b='1'>x<!-- c --></a>", "//@b", "2"), "<a b='2'>x<!-- c --></a>");
  EXPECT_EQ(
    set_value("<a ><b>x&amp;<![CDATA[y]]></b ></a>", "//b", "1 < 2 > ]]>"), "<a ><b>1 &lt; 2 &gt; ]]&gt;</b ></a>");
  EXPECT_EQ(set_value("<a><b /><c/></a>", "//b", "x"), "<a><b>x</b><c/></a>");
  EXPECT_EQ(set_value("<a>x</a>", "/a", ""), "<a></a>");
  EXPECT_EQ(set_value("<a>x&#65;</a>", "/a", "xA"), "<a>x&#65;</a>");
  EXPECT_EQ(set_value("<a>\r\n</a>", "/a", "1\n2"), "<a>1\r\n2</a>");
  EXPECT_EQ(set_value("<a>x<!-- c --></a>", "/a", "y"), "!'a' has more in it than text, which would be lost");
  EXPECT_NE(
    set_value("<a>x<!-- c --></a>", "//comment()", "y").find("has no value that can be set"), std::string::npos);
  EXPECT_NE(set_value("<a>x</a>", "//text()", "y").find("has no value that can be set"), std::string::npos);
}

TEST(axsEditor, what_an_expression_may_be)
{
  axsEditor editor("<a xmlns='urn:a'/>", apPath());
  EXPECT_EQ(editor.remove("//["), 0u);
  EXPECT_EQ(editor.fault().kind, Kind::request);
  EXPECT_EQ(editor.remove("count(//a)"), 0u);
  EXPECT_EQ(editor.fault().kind, Kind::request);
  EXPECT_EQ(editor.rename("/a", "b"), 0u);
  EXPECT_EQ(editor.fault().kind, Kind::nothing);
  EXPECT_EQ(editor.fault().about, "/a");
  editor.set_prefixes({{"p", "urn:a"}});
  EXPECT_EQ(editor.rename("/p:a", "b"), 1u);
  EXPECT_EQ(editor.fault().kind, Kind::none);
  EXPECT_EQ(editor.bytes(), "<b xmlns='urn:a'/>");
}

TEST(axsEditor, a_document_that_cannot_be_read_is_told_with_its_place)
{
  axsEditor editor("<a>\n<b></a>", apPath("x.xml"));
  EXPECT_EQ(editor.remove("//b"), 0u);
  EXPECT_EQ(editor.fault().kind, Kind::document);
  EXPECT_EQ(editor.fault().error.line_number(), 2);
}

TEST(axsEditor, what_comes_out_of_an_entity_is_refused_with_its_place)
{
  std::string const document =
    "<!DOCTYPE a [<!ENTITY e '<b c=\"1\"><d/></b>x'><!ENTITY t 'y'>]>\n<a>\n  &e;z&t;<b/></a>";
  axsEditor editor(document, apPath());
  for (char const* const xpath : {"//b[1]", "//b[1]/@c", "//d", "//text()[.='xzy']"})
  {
    EXPECT_EQ(editor.remove(xpath), 0u) << xpath;
    EXPECT_EQ(editor.fault().kind, Kind::edit) << xpath;
    EXPECT_EQ(editor.fault().error.line_number(), 3) << xpath;
    EXPECT_EQ(editor.fault().error.column_number(), 3) << xpath;
  }
  EXPECT_EQ(editor.insert("//b[1]", into, "<x/>"), 0u);
  EXPECT_EQ(editor.fault().error.line_number(), 3);
  // Beside it, everything goes.
  EXPECT_EQ(editor.remove("//b[2]"), 1u);
  EXPECT_EQ(editor.bytes(), document.substr(0, document.size() - 8) + "</a>");
}

TEST(axsEditor_remove, an_element_alone_on_its_lines_takes_them_with_it)
{
  EXPECT_EQ(removed("<a>\n  <b>\n  </b> \n\t<c/>\n</a>", "//b"), "<a>\n\t<c/>\n</a>");
  EXPECT_EQ(removed("<a>\r\n  <b/>\r\n  <b/>\r\n</a>", "//b"), "<a>\r\n</a>");
  EXPECT_EQ(removed("<a>\r  <b/> <b/>\r  <c/>\r</a>", "//b"), "<a>\r  <c/>\r</a>");
  EXPECT_EQ(removed("<a>\n  <b/><c/>\n</a>", "//b"), "<a>\n  <c/>\n</a>");
  EXPECT_EQ(removed("<a>x <b/> y</a>", "//b"), "<a>x  y</a>");
  EXPECT_EQ(removed("<a>\n&#32; <b/>\n</a>", "//b"), "<a>\n&#32; \n</a>");
  EXPECT_EQ(removed("<!-- c -->\n<a/>\n<?p?>\n", "/comment() | /processing-instruction()"), "<a/>\n");
}

TEST(axsEditor_remove, white_space_that_is_to_be_preserved_stays)
{
  EXPECT_EQ(removed("<a xml:space='preserve'>\n  <b/>\n</a>", "//b"), "<a xml:space='preserve'>\n  \n</a>");
}

TEST(axsEditor_remove, attributes_go_with_the_white_space_before_them)
{
  EXPECT_EQ(removed("<a b='1'\n  c='2' d='3' />", "//@c"), "<a b='1' d='3' />");
  EXPECT_EQ(removed("<a b='1' c='2'/>", "//@*"), "<a/>");
}

TEST(axsEditor_remove, texts_go_with_their_sections_and_references)
{
  EXPECT_EQ(removed("<!DOCTYPE a [<!ENTITY t 'y'>]><a>x<![CDATA[<]]>&t;&amp;<b/>z</a>", "//text()[1]"),
    "<!DOCTYPE a [<!ENTITY t 'y'>]><a><b/>z</a>");
  EXPECT_EQ(removed("<a>\n  <b/>\n  x</a>", "/a/node()"), "<a></a>");
}

TEST(axsEditor_remove, what_lies_in_what_goes_goes_with_it)
{
  EXPECT_EQ(removed("<a><b>x<b c='1'/><!-- d --></b><b/></a>", "//b | //@c | //comment()"), "<a></a>");
}

TEST(axsEditor_remove, the_root_element_and_defaults_stay)
{
  EXPECT_EQ(removed("<a/>", "/a"), "!the root element cannot be taken out: a document needs one");
  EXPECT_EQ(removed("<a/>", "/"), "!the document itself cannot be taken out");
  EXPECT_EQ(removed("<!DOCTYPE a [<!ATTLIST a b CDATA 'x'>]><a/>", "//@b"),
    "!'a' has 'b' from the document type only: it does not stand in the document");
}

TEST(axsEditor_rename, both_tags_get_the_name)
{
  EXPECT_EQ(renamed("<a><b\n c='1'>x<b/></b ><b/></a>", "//b", "d"), "<a><d\n c='1'>x<d/></d ><d/></a>");
  EXPECT_EQ(renamed("<a b = '1' c='2'/>", "//@b", "d"), "<a d = '1' c='2'/>");
  EXPECT_EQ(renamed("<a/>", "/a", "b"), "<b/>");
}

TEST(axsEditor_rename, a_name_has_to_be_one_and_its_prefix_has_to_mean_what_was_said)
{
  EXPECT_EQ(renamed("<a/>", "/a", "1"), "!is no name");
  EXPECT_NE(renamed("<a/>", "/a", "p:b").find("the prefix 'p'"), std::string::npos);
  EXPECT_EQ(renamed("<a xmlns:p='u'/>", "/a", "p:b", {{"p", "u"}}), "<p:b xmlns:p='u'/>");
  EXPECT_EQ(renamed("<a xmlns:p='u'/>", "/a", "p:b", {{"p", "v"}}), "!'a' has no prefix 'p' that is bound to v");
  EXPECT_NE(renamed("<a b='1' c='2'/>", "//@b", "c").find("already specified"), std::string::npos);
  EXPECT_EQ(renamed("<a>x</a>", "//text()", "b"), "!a selected node has no name that can be changed");
}

TEST(axsEditor_rename, defaults_are_those_of_the_new_name)
{
  std::string const type = "<!DOCTYPE a [<!ATTLIST b x CDATA '1'><!ATTLIST c y CDATA '2'>]>";
  EXPECT_EQ(renamed(type + "<a><b z='0'/></a>", "//b", "c"), type + "<a><c z='0'/></a>");
}

TEST(axsEditor_rename, what_the_document_type_adds_has_no_name_in_the_document)
{
  std::string const type = "<!DOCTYPE a [<!ATTLIST a given CDATA '1'>]>";
  EXPECT_EQ(renamed(type + "<a own='2'/>", "//@given", "b"),
    "!'a' has 'given' from the document type only: it does not stand in the document");
  EXPECT_EQ(renamed(type + "<a own='2'/>", "//@own", "b"), type + "<a b='2'/>");
}

TEST(axsEditor_rename, a_name_under_which_a_value_would_be_read_as_another_is_refused)
{
  std::string const type =
    "<!DOCTYPE a [<!ATTLIST a tokens NMTOKENS #IMPLIED plain CDATA #IMPLIED><!ATTLIST b plain NMTOKENS #IMPLIED>]>";
  EXPECT_EQ(renamed(type + "<a plain=' x  y '/>", "//@plain", "tokens"),
    "!'a' would have a value of 'tokens' that consists of tokens by its declaration, and is read without some spaces");
  EXPECT_EQ(renamed(type + "<a plain='x '/>", "/a", "b"),
    "!'a' would have a value of 'plain' that consists of tokens by its declaration, and is read without some spaces");
  EXPECT_EQ(renamed(type + "<a plain='x y'/>", "//@plain", "tokens"), type + "<a tokens='x y'/>");
  EXPECT_EQ(renamed(type + "<a plain='x y'/>", "/a", "b"), type + "<b plain='x y'/>");
  EXPECT_EQ(renamed(type + "<a tokens=' x  y '/>", "//@tokens", "plain"),
    "!read again, the edited document would not have the values or texts that the edit is to leave it with");
  EXPECT_EQ(renamed(type + "<a tokens='x y'/>", "//@tokens", "plain"), type + "<a plain='x y'/>");
}

TEST(axsEditor_insert, a_fragment_comes_to_each_place)
{
  EXPECT_EQ(inserted("<a><b/>x<b></b></a>", "//b", before, "<c/>t"), "<a><c/>t<b/>x<c/>t<b></b></a>");
  EXPECT_EQ(inserted("<a><b/>x<b></b></a>", "//b", after, "<c/>"), "<a><b/><c/>x<b></b><c/></a>");
  EXPECT_EQ(inserted("<a><b />x<b>y</b></a>", "//b", into, "<c/>"), "<a><b><c/></b>x<b>y<c/></b></a>");
  EXPECT_EQ(inserted("<a><b/>x<b>y</b></a>", "//b", into_first, "<c/>"), "<a><b><c/></b>x<b><c/>y</b></a>");
  EXPECT_EQ(inserted("<a/>", "/a", before, "<!-- c -->"), "<!-- c -->\n<a/>");
}

TEST(axsEditor_insert, beside_what_stands_alone_on_its_lines_it_gets_one_of_its_own)
{
  std::string const document = "<a>\r\n  <b/>\r\n</a>";
  EXPECT_EQ(inserted(document, "//b", before, "<c/>"), "<a>\r\n  <c/>\r\n  <b/>\r\n</a>");
  EXPECT_EQ(inserted(document, "//b", after, "<c/>"), "<a>\r\n  <b/>\r\n  <c/>\r\n</a>");
  EXPECT_EQ(inserted(document, "/a", into, "<c>\n</c>"), "<a>\r\n  <b/>\r\n  <c>\r\n</c>\r\n</a>");
  EXPECT_EQ(inserted(document, "/a", into_first, "<c/>"), "<a>\r\n  <c/>\r\n  <b/>\r\n</a>");
  EXPECT_EQ(inserted("<a xml:space='preserve'>\n <b/>\n</a>", "//b", after, "<c/>"),
    "<a xml:space='preserve'>\n <b/><c/>\n</a>");
}

TEST(axsEditor_insert, a_fragment_has_to_be_well_formed_by_itself)
{
  EXPECT_EQ(inserted("<a/>", "/a", into, "<b>"), "!the fragment: the element 'b', open since line 1, must be closed "
                                                 "first, by </b>");
  for (char const* const fragment : {"</fragment><fragment>", "</a><a>", "<b", "&none;", "<!DOCTYPE b>", "]]>"})
    EXPECT_EQ(inserted("<a/>", "/a", into, fragment).substr(0, 15), "!the fragment: ") << fragment;
  axsEditor editor("<a/>", apPath());
  EXPECT_EQ(editor.insert("/a", into, "\n<b>&"), 0u);
  EXPECT_EQ(editor.fault().error.line_number(), 2);
  EXPECT_EQ(editor.insert("/a", into, "<b &"), 0u);
  EXPECT_EQ(editor.fault().error.line_number(), 1);
  EXPECT_EQ(editor.fault().error.column_number(), 4);
}

TEST(axsEditor_insert, prefixes_have_to_be_bound_in_the_fragment_or_where_it_is_put)
{
  EXPECT_EQ(
    inserted("<a xmlns:p='u'><b/></a>", "//b", into, "<p:c p:d='1'/>"), "<a xmlns:p='u'><b><p:c p:d='1'/></b></a>");
  EXPECT_EQ(inserted("<a/>", "/a", into, "<p:c xmlns:p='v'/>", {{"p", "v"}}), "<a><p:c xmlns:p='v'/></a>");
  EXPECT_NE(inserted("<a/>", "/a", into, "<p:c/>").find("the prefix 'p'"), std::string::npos);
  EXPECT_EQ(inserted("<a xmlns:p='u'/>", "/a", into, "<p:c/>", {{"p", "v"}}),
    "!the fragment: the prefix 'p' is bound to u there, and not to v");
}

TEST(axsEditor_insert, only_what_may_stand_there_is_put_beside_the_root_element)
{
  EXPECT_EQ(inserted("<a/>", "/a", after, "<b/>")[0], '!');
  EXPECT_EQ(inserted("<a/>", "/a", after, "x")[0], '!');
  EXPECT_EQ(inserted("<a b='1'/>", "//@b", after, "<b/>"), "!nothing can be put there: select elements");
  EXPECT_EQ(inserted("<a/>", "/", into, "<b/>"), "!nothing can be put there: select elements");
}

TEST(axsEditor_move, nodes_go_as_they_are_written_with_their_lines)
{
  std::string const document = "<a>\n  <b x = '1'>&#65;</b >\n  <c/>\n  <d>\n    <e/>\n  </d>\n</a>";
  EXPECT_EQ(
    moved(document, "//b", after, "//c"), "<a>\n  <c/>\n  <b x = '1'>&#65;</b >\n  <d>\n    <e/>\n  </d>\n</a>");
  EXPECT_EQ(
    moved(document, "//c", before, "//b"), "<a>\n  <c/>\n  <b x = '1'>&#65;</b >\n  <d>\n    <e/>\n  </d>\n</a>");
  EXPECT_EQ(moved(document, "//b | //c", into, "//d"),
    "<a>\n  <d>\n    <e/>\n    <b x = '1'>&#65;</b >\n    <c/>\n  </d>\n</a>");
  EXPECT_EQ(moved(document, "//d", into, "//c"), "<a>\n  <b x = '1'>&#65;</b >\n  <c><d>\n    <e/>\n  </d></c>\n</a>");
  EXPECT_EQ(moved(document, "//b", into, "/a"), "<a>\n  <c/>\n  <d>\n    <e/>\n  </d>\n  <b x = '1'>&#65;</b >\n</a>");
}

TEST(axsEditor_move, what_has_no_place_is_refused)
{
  std::string const document = "<a><b><c/></b><d/></a>";
  EXPECT_EQ(moved(document, "//b", into, "//c"), "!'b' cannot be moved beside or into itself");
  EXPECT_EQ(moved(document, "//b", after, "//b"), "!'b' cannot be moved beside or into itself");
  EXPECT_EQ(moved(document, "//b | //c", into, "//d"), "!'c' cannot be moved in one step with what it lies in");
  EXPECT_EQ(moved(document, "//c", into, "//*"), "!the target has to be one element, not 4");
  EXPECT_EQ(
    moved("<a b='1'/>", "//@b", into, "/a"), "!only elements, comments and processing instructions can be moved");
}

TEST(axsEditor_move, nothing_gets_into_another_namespace)
{
  std::string const document = "<a xmlns:p='u'><b/><p:c p:d='1'/><e xmlns='v' xmlns:p='w'/></a>";
  EXPECT_EQ(moved(document, "//b", into, "//*[local-name()='e']"),
    "!'b' cannot be moved to where another default namespace is declared");
  EXPECT_EQ(moved(document, "//p:c", into, "//*[local-name()='e']"),
    "!'p:c' cannot be moved to where the prefix 'p' is not bound to the same namespace");
  EXPECT_EQ(moved("<a xmlns:p='u'><?q?><b/></a>", "//processing-instruction()", before, "/a"),
    "<?q?>\n<a xmlns:p='u'><b/></a>");
  EXPECT_EQ(moved("<a><b xmlns='v'><c/></b><e xmlns='w'/></a>", "//*[local-name()='b']", into, "//*[local-name()='e']"),
    "<a><e xmlns='w'><b xmlns='v'><c/></b></e></a>");
}

TEST(axsEditor, edits_follow_one_another)
{
  axsEditor editor("<a>\n <b/>\n</a>\n", apPath());
  EXPECT_EQ(editor.insert("//b", after, "<c/>"), 1u);
  EXPECT_EQ(editor.rename("//c", "d"), 1u);
  EXPECT_EQ(editor.set_attributes("//b | //d", {{"x", "1"}}), 2u);
  EXPECT_EQ(editor.remove("//b"), 1u);
  EXPECT_EQ(editor.bytes(), "<a>\n <d x=\"1\"/>\n</a>\n");
}

TEST(axsEditor, nesting_and_numbers_of_nodes_have_no_bound)
{
  int const depth = 20000;
  std::string deep;
  for (int i = 0; i < depth; ++i)
    deep += "<a>";
  deep += "<b/>";
  for (int i = 0; i < depth; ++i)
    deep += "</a>";
  axsEditor editor(deep, apPath());
  EXPECT_EQ(editor.rename("//a", "c"), static_cast<std::size_t>(depth));
  EXPECT_EQ(editor.move("//b", before, "/c/c"), 1u);
  EXPECT_EQ(editor.bytes().substr(0, 14), "<c><b/><c><c><");
  EXPECT_EQ(editor.insert("//c", into_first, "<d/>"), static_cast<std::size_t>(depth));
  EXPECT_EQ(editor.remove("//d"), static_cast<std::size_t>(depth));
}
