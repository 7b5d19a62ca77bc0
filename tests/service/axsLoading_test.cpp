#include "Engine.h"

namespace
{
struct Failure
{
  char const* text;
  int line;
  int column;
  char const* message;
};

std::string children(std::string_view text)
{
  auto const root = load_root(text);
  std::string all;
  auto const list = root->getChildNodes();
  while (auto const child = list->next_node())
    all += "[" + narrow(child->get_text()) + "]";
  return all;
}
}

TEST(axsLoading, drops_text_of_white_space_only_except_one_space)
{
  EXPECT_EQ(children("<root> </root>"), "[ ]");
  EXPECT_EQ(children("<root>\n<tag>Hello World</tag>\n</root>"), "[Hello World]");
  EXPECT_EQ(children("<root><b>Hello</b> <i>There</i> World</root>"), "[Hello][ ][There][ World]");
  EXPECT_EQ(children("<root><tag1> </tag1><tag2>Hello World</tag2></root>"), "[ ][Hello World]");
  EXPECT_EQ(children("<root>  <a/>\t<b/>\r\n<c/>\n</root>"), "[][][]");
  EXPECT_EQ(children("<root> x <a/>&#32;</root>"), "[ x ][][ ]");
  EXPECT_EQ(children("<root>&#9;</root>"), "");
  EXPECT_EQ(children("<root>\xC2\xA0</root>"), "[\xC2\xA0]");
  EXPECT_EQ(children("<root><![CDATA[  ]]></root>"), "");
}

TEST(axsLoading, white_space_of_any_length_is_told_from_what_holds_one_other_character)
{
  for (char const space : {' ', '\t', '\n'})
    for (std::size_t length = 2; length < 40; ++length)
    {
      std::string const spaces(length, space);
      EXPECT_EQ(children("<r>\n" + spaces + "</r>"), "") << length;
      for (std::size_t place = 0; place < length; ++place)
      {
        std::string with_tab = spaces;
        with_tab[place] = '\t';
        EXPECT_EQ(children("<r>\n" + with_tab + "</r>"), "") << length << ' ' << place;
        std::string with_letter = spaces;
        with_letter[place] = 'x';
        EXPECT_EQ(children("<r>\n" + with_letter + "</r>"), "[\n" + with_letter + "]") << length << ' ' << place;
      }
    }
}

TEST(axsLoading, keeps_white_space_where_the_author_asks_for_that)
{
  EXPECT_EQ(children("<r xml:space='preserve'>  </r>"), "[  ]");
  EXPECT_EQ(children("<r xml:space='preserve'>\n<a>\t</a>\n</r>"), "[\n][\t][\n]");
  EXPECT_EQ(children("<r xml:space='preserve'><![CDATA[\n]]></r>"), "[\n]");
  EXPECT_EQ(children("<r xml:space='default'>  </r>"), "");
  EXPECT_EQ(children("<r xml:space='other'>  </r>"), "");
  // It holds for what the element contains, as far as nothing inside says otherwise (XML 1.0, 2.10).
  EXPECT_EQ(children("<r><a xml:space='preserve'>  </a>  <b>  </b></r>"), "[  ][]");
  EXPECT_EQ(children("<r xml:space='preserve'>  <a xml:space='default'>  <b xml:space='preserve'>\t</b>  </a>  </r>"),
    "[  ][\t][  ]");
  EXPECT_EQ(children("<!DOCTYPE r [<!ATTLIST a xml:space CDATA 'preserve'>]><r>  <a>  </a>  </r>"), "[  ]");
}

TEST(axsLoading, a_text_is_one_node_from_markup_to_markup)
{
  EXPECT_EQ(children("<!DOCTYPE r [<!ENTITY e 'x'>]><r>a&e;b&amp;c&#100;</r>"), "[axb&cd]");
  EXPECT_EQ(children("<r>a<!--c-->b<?p?>d<![CDATA[e]]><![CDATA[f]]></r>"), "[a][c][b][][d][e][f]");
  EXPECT_EQ(children("<r>" + std::string(100000, 'x') + "</r>"), "[" + std::string(100000, 'x') + "]");
}

TEST(axsLoading, what_is_loaded_is_saved_again)
{
  for (char const* const text :
    {"<!--before-->\n<!DOCTYPE r [<!ENTITY e \"a>b\"> <!-- > ] --> <?x ]>?>]>\n<?pi x  ?>\n"
     "<r b=\"1\" a=\"&lt;&amp;&quot;'&gt;&#9;&#10;&#13; \"><!--c--><?pi?>x&amp;&lt;&gt;]]&gt;"
     "&#13;<![CDATA[<&>]]></r>\n<!--after-->\n",
      "<p:r xmlns:p=\"urn:p\" xmlns=\"urn:d\"><a p:b=\"1\"/></p:r>\n", "<!DOCTYPE r PUBLIC \"p\" \"s.dtd\">\n<r/>\n",
      "<r>\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E</r>\n"})
    EXPECT_EQ(saved(load(text)), declaration + text) << text;
}

TEST(axsLoading, reads_the_encodings_that_documents_declare)
{
  EXPECT_EQ(children("<?xml version='1.0' encoding='ISO-8859-1'?><r>\xE4</r>"), "[\xC3\xA4]");
  EXPECT_EQ(children("\xEF\xBB\xBF<r>\xC3\xA4</r>"), "[\xC3\xA4]");
  std::string utf16 = "\xFF\xFE";
  for (char const c : std::string("<!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;</r>"))
    utf16 += std::string{c, '\0'};
  EXPECT_EQ(saved(load(utf16)), declaration + "<!DOCTYPE r [<!ENTITY e 'x'>]>\n<r>x</r>\n");
}

TEST(axsLoading, keeps_the_defaults_that_the_document_declares_itself)
{
  auto const root = load_root("<!DOCTYPE r [<!ATTLIST r a CDATA 'default' b CDATA #IMPLIED>]><r/>");
  EXPECT_EQ(narrow(root->getAttribute(APSTRING("a"))), "default");
  EXPECT_FALSE(root->hasAttribute(APSTRING("b")));
}

TEST(axsLoading, says_what_is_wrong_and_where)
{
  Failure const failures[] = {
    {"<a>\n<b></a>", 2, 6, "b"},
    {"<a>\n  <b c='1' c='2'/>\n</a>", 2, 14, "'c'"},
    {"<a>\n\n&nothing;</a>", 3, 10, "nothing"},
    {"<a/>\n<b/>", 2, 1, ""},
    {"text", 1, 1, ""},
    {"<a b=c/>", 1, 6, ""},
    {"<a>\x01</a>", 1, 5, ""},
    {"<a>]]></a>", 1, 7, ""},
    {"<a>", 1, 4, "'a'"},
    {"<a>\n<p:b/></a>", 2, 7, "'p'"},
    {"<a xmlns:p='u' p:b='1'\n xmlns:q='u' q:b='2'/>", 2, 23, "given twice"},
    {"<a xmlns:p=''/>", 1, 16, "no namespace"},
    {"<a b='<'/>", 1, 8, ""},
    {"<?xml version='1.0'?>\n<!DOCTYPE a [\n<!ENTITY >]><a/>", 3, 10, ""},
  };
  for (Failure const& failure : failures)
  {
    axmParseError const error = error_of(failure.text);
    EXPECT_EQ(error.line_number(), failure.line) << failure.text << narrow(error.message());
    EXPECT_EQ(error.column_number(), failure.column) << failure.text << narrow(error.message());
    EXPECT_NE(narrow(error.message()).find(failure.message), std::string::npos) << narrow(error.message());
    EXPECT_TRUE(error.url().empty());
  }
}

TEST(axsLoading, says_in_plain_words_how_it_is_written_right)
{
  std::pair<char const*, char const*> const faults[] = {
    {"<a>\n<b>\n</a>", "the element 'b', open since line 2, must be closed first, by </b>"},
    {"<Item>x</item>", "the element 'Item', open since line 1, must be closed first, by </Item>"},
    {"<a>\n<b>", "the document ends, but the element 'b', open since line 2, is not closed by </b>"},
    {"</a>", "this end tag closes no element"},
    {"<a/></a>", "only comments and processing instructions may follow the root element"},
    {"<a/>text", "only comments and processing instructions may follow the root element"},
    {"{\"a\": 1}", "the root element is missing: only comments and processing instructions may stand before it"},
    {" \n ", "the root element is missing: only comments and processing instructions may stand before it"},
    {"<a>1 < 2</a>", "the name of an element must follow '<'; in a text, '<' is written &lt;"},
    {"<a>Tom & Jerry</a>", "the name of an entity must follow '&'; a plain '&' is written &amp;"},
    {"<a href='x?a=1&b=2'/>", "the reference '&b' is not ended by ';'; a plain '&' is written &amp;"},
    {"<a>&nbsp;</a>", "the entity 'nbsp' is not declared"},
    {"<a>&#1;</a>", "this is not the number of a character that XML allows"},
    {"<a>&#65</a>", "a character reference must be a number and end with ';'"},
    {"<a>&#1a;</a>", "'a' is no digit of the number of a character"},
    {"<a>&#xZ;</a>", "a number must follow '&#' (decimal) or '&#x' (hexadecimal)"},
    {"<a b=1/>", "the value of an attribute must stand in quotes, \" or '"},
    {"<a b/>", "the name of an attribute must be followed by '=' and a value in quotes"},
    {"<a b='1'c='2'/>", "white space is missing here, as it must stand between attributes"},
    {"<a b='1' b='2'/>", "attribute 'b' is already specified for element 'a'"},
    {"<a b='1>\n<c/>'/>",
      "the value of the attribute 'b' has a '<', which is written &lt; there, or the quote that ends it is missing"},
    {"<a\n<b/></a>", "the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
    {"<a></a b='1'>", "'>' is expected: an end tag holds the name 'a' only"},
    {"<a><!-- b -- c --></a>", "'--' must not stand in a comment"},
    {"<a><!-- b </a>", "a comment is not ended by '-->'"},
    {"<a><![CDATA[ b </a>", "a CDATA section is not ended by ']]>'"},
    {"<a>b]]>c</a>", "']]>' must not stand in a text; '>' is written &gt; there"},
    {"<a>\x08</a>", "invalid character 0x8"},
    {" <?xml version='1.0'?><a/>", "the XML declaration must stand at the very beginning of the document"},
    {"<?xml version='1.0' standalone='maybe'?><a/>", "the standalone declaration must be 'yes' or 'no'"},
    {"<?xml version='1.0' encoding='klingon'?><a/>", "the encoding 'klingon' is not known"},
  };
  for (auto const& [text, words] : faults)
    EXPECT_EQ(narrow(error_of(text).message()), words) << text;
}

TEST(axsLoading, says_so_when_there_is_nothing_to_read)
{
  EXPECT_EQ(narrow(error_of("").message()), "The document is empty");
  for (char const* const name : {"no_such_file.xml", "no/such/folder/file.xml", ".", ""})
  {
    axmParseError error;
    EXPECT_EQ(engine()->loadDocument(apPath(name), axmLoadOptions(axmValidateNone), error), nullptr);
    EXPECT_FALSE(error.invalid());
    EXPECT_EQ(narrow(error.url()), name);
    EXPECT_NE(narrow(error.message()).find("file"), std::string::npos) << narrow(error.message());
    EXPECT_EQ(error.line_number(), -1);
  }
#if !defined(_WIN32)
  axmParseError folder;
  EXPECT_EQ(engine()->loadDocument(apPath("."), axmLoadOptions(axmValidateNone), folder), nullptr);
  EXPECT_EQ(narrow(folder.message()), "Cannot read the file .: it is a folder");
#endif
  TestFile const empty("engine_empty.xml", "");
  axmParseError error;
  EXPECT_EQ(engine()->loadDocument(empty.path(), axmLoadOptions(axmValidateNone), error), nullptr);
  EXPECT_EQ(narrow(error.message()), "The document is empty");
  EXPECT_EQ(narrow(error.url()), empty.name);
}

TEST(axsLoading, takes_file_names_as_they_are)
{
  for (char const* const name : {"engine with spaces.xml", "engine\xC2\xA0nb\xC2\xA0spaces.xml", "engine_%.xml",
         "engine%20percent.xml", "engine_\xD1\x84.xml", "engine#hash.xml", "engine?&amp;.xml"})
  {
#if defined(_WIN32)
    if (std::string(name).find('?') != std::string::npos)
      continue;
#endif
    TestFile const good(name, "<r/>");
    axmParseError error;
    auto const document = engine()->loadDocument(good.path(), axmLoadOptions(axmValidateNone), error);
    ASSERT_NE(document, nullptr) << name << narrow(error.message());
    EXPECT_EQ(narrow(document->getDocumentURI()), name);
    TestFile const bad(name, "<r>");
    EXPECT_EQ(engine()->loadDocument(bad.path(), axmLoadOptions(axmValidateNone), error), nullptr);
    EXPECT_EQ(narrow(error.url()), name);
    EXPECT_EQ(error.line_number(), 1);
    EXPECT_EQ(error.column_number(), 4);
  }
}

TEST(axsLoading, reads_files_longer_than_what_it_looks_at_first)
{
  std::string text = "<r>";
  for (int i = 0; i < 20000; ++i)
    text += "<item number='" + std::to_string(i) + "'>text</item>";
  text += "</r>";
  TestFile const file("engine_long.xml", text);
  axmParseError error;
  auto const document = engine()->loadDocument(file.path(), axmLoadOptions(axmValidateNone), error);
  ASSERT_NE(document, nullptr) << narrow(error.message());
  EXPECT_EQ(document->getDocumentElement()->getChildNodes()->length(), 20000);
  TestFile const with_doctype("engine_long_doctype.xml", "<!DOCTYPE r><!--" + std::string(200000, 'x') + "-->" + text);
  auto const other = engine()->loadDocument(with_doctype.path(), axmLoadOptions(axmValidateNone), error);
  ASSERT_NE(other, nullptr) << narrow(error.message());
  EXPECT_EQ(narrow(other->getFirstChild()->get_xml()), "<!DOCTYPE r>");
}

TEST(axsLoading, leaves_the_error_untouched_when_it_succeeds)
{
  axmParseError error(APSTRING("old"));
  error.set_line_number(7);
  EXPECT_NE(engine()->loadDocument(bytes("<r/>"), axmLoadOptions(), error), nullptr);
  EXPECT_EQ(narrow(error.message()), "old");
  EXPECT_EQ(error.line_number(), 7);
}

namespace
{
// Line and column, and what is wrong there.
std::string fault_of(std::string_view text)
{
  axmParseError const error = error_of(text);
  return std::to_string(error.line_number()) + ":" + std::to_string(error.column_number()) + " " +
         narrow(error.message());
}

std::string const undeclared = " is not UTF-8; a document in another encoding has to declare it";
std::string const declared = " is not UTF-8, which the document says that it is";
}

TEST(axsLoading, bytes_that_are_no_utf8_are_named_with_their_place)
{
  EXPECT_EQ(fault_of("<a>\n<b>caf\xE9</b>\n</a>"), "2:7 The byte 0xE9" + undeclared);
  EXPECT_EQ(fault_of("<a>\r\n\r<b>\xE9</b></a>"), "3:4 The byte 0xE9" + undeclared);
  EXPECT_EQ(fault_of("<?xml version='1.0'?><a x='\xFF'/>"), "1:28 The byte 0xFF" + undeclared);
  EXPECT_EQ(fault_of("<?xml version='1.0' encoding='utf-8'?>\n<a>\xC3\xA9\xE9 x</a>"), "2:5 The byte 0xE9" + declared);
  EXPECT_EQ(fault_of("<a>\xF0\x9F\x98\x80\xC3</a>"), "1:6 The byte 0xC3" + undeclared);
  for (char const* const broken : {"\x80", "\xC1\x81", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
         "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82"})
    EXPECT_EQ(
      fault_of("<a>" + std::string(broken) + "</a>").substr(0, 17), "1:4 The byte 0x" +
                                                                      [&]
                                                                      {
                                                                        char hex[3];
                                                                        std::snprintf(hex, sizeof hex, "%02X",
                                                                          static_cast<unsigned char>(broken[0]));
                                                                        return std::string(hex);
                                                                      }());
  EXPECT_EQ(fault_of("<a>\xE2\x82"), "1:4 The byte 0xE2" + undeclared);
  // Far after the beginning, across the blocks that are read, and in a file.
  std::string const before(70000 - 5, 'x');
  EXPECT_EQ(fault_of("<a>" + before + "\xE2\x82\xAC\n\xE9</a>"), "2:1 The byte 0xE9" + undeclared);
  TestFile const file("engine_latin.xml", "<a>\n" + before + "\n\xE9</a>");
  axmParseError error;
  EXPECT_EQ(engine()->loadDocument(file.path(), axmLoadOptions(axmValidateNone), error), nullptr);
  EXPECT_EQ(error.line_number(), 3);
  EXPECT_EQ(narrow(error.url()), "engine_latin.xml");
}

TEST(axsLoading, a_zero_byte_is_named_with_its_place)
{
  EXPECT_EQ(fault_of(std::string_view("<a>\n\0</a>", 9)), "2:1 A zero byte stands in the document");
  EXPECT_EQ(fault_of(std::string_view("<a/>\n\0", 6)), "2:1 A zero byte stands in the document");
  EXPECT_EQ(fault_of(std::string_view("<a/\0>", 5)), "1:4 A zero byte stands in the document");
}

TEST(axsLoading, an_error_before_bytes_that_are_no_utf8_comes_first)
{
  std::string const far(200000, 'x');
  EXPECT_EQ(
    fault_of("<a><b></a>" + far + "\xE9"), "1:9 the element 'b', open since line 1, must be closed first, by </b>");
  EXPECT_EQ(
    fault_of("<a><b></a>" + far + "\xE9\n"), "1:9 the element 'b', open since line 1, must be closed first, by </b>");
  // What is in another encoding, or in an unusual declaration, is left to the parser.
  EXPECT_EQ(fault_of("<?xml version='1.0' encoding='iso-8859-1'?><a>\xE9</b>").find("The byte"), std::string::npos);
}
