// What is said of documents that are not well-formed or do not keep to their namespaces, and the place where: at least one
// for each constraint. Numbers are those of the sections and productions of XML 1.0.

#include "../Engine.h"

#include <string>
#include <vector>

namespace
{
struct Fault
{
  std::string document;
  // Line, column and message.
  std::string told;
};

void expect_told(std::vector<Fault> const& faults)
{
  for (Fault const& fault : faults)
  {
    axmParseError const error = error_of(fault.document);
    EXPECT_EQ(
      std::to_string(error.line_number()) + ":" + std::to_string(error.column_number()) + " " + narrow(error.message()),
      fault.told)
      << fault.document;
  }
}
}

// 2.1, [1] document
TEST(axsParser_errors, rule_2_1_1_document)
{
  expect_told({
    {"x<a/>", "1:1 the root element is missing: only comments and processing instructions may stand before it"},
    {"<a/>x", "1:5 only comments and processing instructions may follow the root element"},
    {"<a/><b/>", "1:5 only comments and processing instructions may follow the root element"},
    {"<!-- -->", "1:9 the root element is missing: only comments and processing instructions may stand before it"},
    {"</a>", "1:1 this end tag closes no element"},
    {"<a/></a>", "1:5 only comments and processing instructions may follow the root element"},
    {"<a/><!DOCTYPE a>", "1:5 the document type declaration must stand before the root element"},
    {"<!DOCTYPE a><!DOCTYPE a><a/>", "1:13 there can be one document type declaration only"},
    {"<a><!DOCTYPE a></a>", "1:6 the document type declaration must stand before the root element"},
    {"<a/>&b;", "1:5 only comments and processing instructions may follow the root element"},
    {"<a><!b></a>", "1:6 only a comment or a CDATA section may begin with '<!' here"},
    {"<!b><a/>", "1:1 the root element is missing: only comments and processing instructions may stand before it"},
  });
}

// 2.2, [2] Char
TEST(axsParser_errors, rule_2_2_2_char)
{
  expect_told({
    {"<a>\x01</a>", "1:5 invalid character 0x1"},
    {"<a b='\x02'/>", "1:8 invalid character 0x2"},
    {"<!--\x03--><a/>", "1:6 invalid character 0x3"},
    {"<?p \x04?><a/>", "1:6 invalid character 0x4"},
    {"<a><![CDATA[\x05]]></a>", "1:14 invalid character 0x5"},
    {"<a>\xEF\xBF\xBE</a>", "1:5 invalid character 0xFFFE"},
    {"<a>\xEF\xBC\x8C\xEF\xBF\xBF</a>", "1:6 invalid character 0xFFFF"},
    {"<a b='\xEF\xBC\x8C\xEF\xBF\xBE'/>", "1:9 invalid character 0xFFFE"},
    {"<!DOCTYPE a [<!ENTITY e '\x06'>]><a/>", "1:27 invalid character 0x6"},
    {"<a\x07/>", "1:4 invalid character 0x7"},
  });
}

// 2.3, [5] Name
TEST(axsParser_errors, rule_2_3_5_name)
{
  expect_told({
    {"<1/>", "1:2 the name of an element must follow '<'; in a text, '<' is written &lt;"},
    {"<a 1='2'/>", "1:4 the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
    {"<a><?1?></a>", "1:6 the name of a processing instruction must follow '<?'"},
    {"<a>&1;</a>", "1:5 the name of an entity must follow '&'; a plain '&' is written &amp;"},
    {"<!DOCTYPE 1><a/>", "1:11 the name of the root element must follow '<!DOCTYPE'"},
  });
}

// 2.4, [14] CharData
TEST(axsParser_errors, rule_2_4_14_chardata)
{
  expect_told({
    {"<a>\n]]></a>", "2:4 ']]>' must not stand in a text; '>' is written &gt; there"},
    {"<a>1 < 2</a>", "1:7 the name of an element must follow '<'; in a text, '<' is written &lt;"},
  });
}

// 2.5, [15] Comment
TEST(axsParser_errors, rule_2_5_15_comment)
{
  expect_told({
    {"<a><!--\n--b --></a>", "2:3 '--' must not stand in a comment"},
    {"<a><!-- --->\n</a>", "1:11 '--' must not stand in a comment"},
    {"<a><!-- </a>", "1:13 a comment is not ended by '-->'"},
  });
}

// 2.6, [16] PI
TEST(axsParser_errors, rule_2_6_16_pi)
{
  expect_told({
    {"<a><?p</a>", "1:7 white space or '?>' must follow the name of a processing instruction"},
    {"<a><?p!?></a>", "1:7 white space or '?>' must follow the name of a processing instruction"},
    {"<a><?XML?></a>", "1:9 no processing instruction is named 'xml'; the XML declaration stands at the very beginning "
                       "of the document only"},
    {"<a/><?xml?>", "1:10 no processing instruction is named 'xml'; the XML declaration stands at the very beginning "
                    "of the document only"},
    {" <?xml version='1.0'?><a/>", "1:7 the XML declaration must stand at the very beginning of the document"},
    {"<a><?p:q?></a>", "1:9 the target of a processing instruction cannot have a colon"},
    {"<a><?\?></a>", "1:6 the name of a processing instruction must follow '<?'"},
  });
}

// 2.7, [18] CDSect
TEST(axsParser_errors, rule_2_7_18_cdsect)
{
  expect_told({
    {"<a><![CDATA[ </a>", "1:18 a CDATA section is not ended by ']]>'"},
    {"<a><![cdata[]]></a>", "1:6 only a comment or a CDATA section may begin with '<!' here"},
    {"<![CDATA[]]><a/>",
      "1:1 the root element is missing: only comments and processing instructions may stand before it"},
  });
}

// 2.8, [23] XMLDecl
TEST(axsParser_errors, rule_2_8_23_xmldecl)
{
  expect_told({
    {"<?xml?><a/>", "1:6 the XML declaration must begin with the version"},
    {"<?xml encoding='UTF-8'?><a/>", "1:7 the XML declaration must begin with the version"},
    {"<?xml version='2.0'?><a/>", "1:20 there is no XML version \"2.0\""},
    {"<?xml version=1.0?><a/>", "1:15 '=' and a value in quotes must follow in the XML declaration"},
    {"<?xml version='1.0'encoding='UTF-8'?><a/>", "1:20 white space is missing in the XML declaration"},
    {"<?xml version='1.0' encoding=''?><a/>", "1:32 this is not the name of an encoding"},
    {"<?xml version='1.0' encoding='_a'?><a/>", "1:34 this is not the name of an encoding"},
    {"<?xml version='1.0' encoding=':a'?><a/>", "1:34 this is not the name of an encoding"},
    {"<?xml version='1.0' encoding='a:b'?><a/>", "1:35 this is not the name of an encoding"},
    {"<?xml version='1.0' encoding='1a'?><a/>", "1:34 this is not the name of an encoding"},
    {"<?xml version='1.0' encoding='a b'?><a/>", "1:35 this is not the name of an encoding"},
    {"<?xml version='1'?><a/>", "1:18 there is no XML version \"1\""},
    {"<?xml version='1.'?><a/>", "1:19 there is no XML version \"1.\""},
    {"<?xml version='1.x'?><a/>", "1:20 there is no XML version \"1.x\""},
    {"<?xml version '1.0'?><a/>", "1:15 '=' and a value in quotes must follow in the XML declaration"},
    {"<?xml version='1.0' standalone='no' encoding='UTF-8'?><a/>",
      "1:37 '?>' is expected: the XML declaration holds version, encoding and standalone only, in that order"},
    {"<?xml version='1.0' standalone='?'?><a/>", "1:35 the standalone declaration must be 'yes' or 'no'"},
    {"<?xml version='1.0'",
      "1:20 '?>' is expected: the XML declaration holds version, encoding and standalone only, in that order"},
  });
}

// 2.8, [28] doctypedecl
TEST(axsParser_errors, rule_2_8_28_doctypedecl)
{
  expect_told({
    {"<!DOCTYPE><a/>", "1:10 white space is missing here"},
    {"<!DOCTYPE a", "1:12 '>' is expected, which ends the declaration of the document type"},
    {"<!DOCTYPE a x><a/>", "1:13 '>' is expected, which ends the declaration of the document type"},
    {"<!DOCTYPE a [", "1:14 the internal subset of the document type is not ended by ']'"},
    {"<!DOCTYPE a [] x><a/>", "1:16 '>' is expected, which ends the declaration of the document type"},
    {"<!DOCTYPE a [x]><a/>", "1:14 only declarations, comments and processing instructions may stand here"},
    {"<!DOCTYPE a [<!X>]><a/>", "1:16 ELEMENT, ATTLIST, ENTITY, NOTATION or '--' must follow '<!' here"},
    {"<!DOCTYPE a SYSTEM><a/>", "1:19 white space is missing here"},
    {"<!DOCTYPE a SYSTEM x><a/>", "1:20 the name of a file in quotes, \" or ', is expected"},
    {"<!DOCTYPE a PUBLIC 'p'><a/>", "1:23 white space is missing here"},
    {"<!DOCTYPE a PUBLIC '{' 's'><a/>", "1:21 this character cannot stand in a public identifier"},
    {"<!DOCTYPE a SYSTEM 's><a/>", "1:27 the quote that ends this value is missing"},
  });
}

// 2.8, WFC: PEs in Internal Subset
TEST(axsParser_errors, rule_2_8_wfc_pes_in_internal_subset)
{
  expect_told({
    {"<!DOCTYPE a [<!ENTITY % p 'ANY'><!ELEMENT a %p;>]><a/>",
      "1:45 in the internal subset a parameter entity may stand between declarations only, not in one"},
    {"<!DOCTYPE a [<!ENTITY % p 'v'><!ENTITY e '%p;'>]><a/>",
      "1:43 in the internal subset a parameter entity may stand between declarations only, not in one"},
  });
}

// 2.8, WFC: PE Between Declarations
TEST(axsParser_errors, rule_2_8_wfc_pe_between_declarations)
{
  expect_told({
    {"<!DOCTYPE a [<!ENTITY % p '<!ELEMENT a '>%p; ANY>]><a/>",
      "1:42 EMPTY, ANY or a content model in parentheses is expected"},
    {"<!DOCTYPE a [<!ENTITY % p '<!ELEMENT a ANY> x'>%p;]><a/>",
      "1:48 only declarations, comments and processing instructions may stand here"},
  });
}

// 3, WFC: Element Type Match
TEST(axsParser_errors, rule_3_wfc_element_type_match)
{
  expect_told({
    {"<a>\n<b>\n</a>", "3:3 the element 'b', open since line 2, must be closed first, by </b>"},
    {"<a></b>", "1:6 the element 'a', open since line 1, must be closed first, by </a>"},
    {"<a></a1>", "1:6 the element 'a', open since line 1, must be closed first, by </a>"},
    {"<a1></a>", "1:7 the element 'a1', open since line 1, must be closed first, by </a1>"},
    {"<a>", "1:4 the document ends, but the element 'a', open since line 1, is not closed by </a>"},
    {"<a>\n<b/>", "2:5 the document ends, but the element 'a', open since line 1, is not closed by </a>"},
    {"<a></a b='1'>", "1:8 '>' is expected: an end tag holds the name 'a' only"},
    {"<a></a", "1:7 '>' is expected: an end tag holds the name 'a' only"},
  });
}

// 3.1, [40] STag
TEST(axsParser_errors, rule_3_1_40_stag)
{
  expect_told({
    {"<a", "1:3 the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
    {"<a b='1'", "1:9 the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
    {"<a b='1'c='2'/>", "1:9 white space is missing here, as it must stand between attributes"},
    {"<a/b>", "1:3 the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
    {"<a <b/></a>", "1:4 the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
    {"<a b/>", "1:5 the name of an attribute must be followed by '=' and a value in quotes"},
    {"<a b=c/>", "1:6 the value of an attribute must stand in quotes, \" or '"},
    {"<a b='c/>", "1:10 the value of the attribute 'b' is not ended by its quote"},
    {"<a 'b'/>", "1:4 the start tag of 'a' is not ended: '>', '/>' or an attribute is expected"},
  });
}

// 3.1, WFC: Unique Att Spec
TEST(axsParser_errors, rule_3_1_wfc_unique_att_spec)
{
  expect_told({
    {"<a b='1'\n b='2'/>", "2:4 attribute 'b' is already specified for element 'a'"},
  });
}

// 3.1, WFC: No External Entity References
TEST(axsParser_errors, rule_3_1_wfc_no_external_entity_references)
{
  expect_told({
    {"<!DOCTYPE a [<!ENTITY e SYSTEM 'x'>]><a b='&e;'/>",
      "1:47 the entity 'e' is in another file, which the value of an attribute cannot be"},
    {"<!DOCTYPE a [<!ENTITY e SYSTEM 'x'><!ENTITY f '&e;'>]><a b='&f;'/>",
      "1:61 the entity 'e' is in another file, which the value of an attribute cannot be"},
  });
}

// 3.1, WFC: No < in Attribute Values
TEST(axsParser_errors, rule_3_1_wfc_no_less_than_in_attribute_values)
{
  expect_told({
    {"<a b='<'/>", "1:8 the value of the attribute 'b' has a '<', which is written &lt; there, or the quote that ends "
                   "it is missing"},
    {"<!DOCTYPE a [<!ENTITY e '<'>]><a b='&e;'/>",
      "1:37 the entity 'e' has a '<', which cannot stand in the value of the attribute 'b'"},
    {"<!DOCTYPE a [<!ENTITY e '&#60;'>]><a b='&e;'/>",
      "1:41 the entity 'e' has a '<', which cannot stand in the value of the attribute 'b'"},
  });
}

// 3.2, [45] elementdecl
TEST(axsParser_errors, rule_3_2_45_elementdecl)
{
  expect_told({
    {"<!DOCTYPE a [<!ELEMENT>]><a/>", "1:23 white space is missing here"},
    {"<!DOCTYPE a [<!ELEMENT a>]><a/>", "1:25 white space is missing here"},
    {"<!DOCTYPE a [<!ELEMENT a b>]><a/>", "1:26 EMPTY, ANY or a content model in parentheses is expected"},
    {"<!DOCTYPE a [<!ELEMENT a (b c)>]><a/>", "1:29 ',', '|' or ')' is expected in a content model"},
    {"<!DOCTYPE a [<!ELEMENT a (b,c|d)>]><a/>",
      "1:30 ',' and '|' cannot both separate what is in one pair of parentheses"},
    {"<!DOCTYPE a [<!ELEMENT a ()>]><a/>", "1:27 the name of an element or '(' is expected in a content model"},
    {"<!DOCTYPE a [<!ELEMENT a (#PCDATA|b)>]><a/>", "1:37 '|' or ')' is expected, and after names ')*'"},
    {"<!DOCTYPE a [<!ELEMENT a (#PCDATA,b)*>]><a/>", "1:34 '|' or ')' is expected, and after names ')*'"},
    {"<!DOCTYPE a [<!ELEMENT a ANY x>]><a/>", "1:30 '>' is expected, which ends the declaration of an element"},
  });
}

// 3.3, [52] AttlistDecl
TEST(axsParser_errors, rule_3_3_52_attlistdecl)
{
  expect_told({
    {"<!DOCTYPE a [<!ATTLIST>]><a/>", "1:23 white space is missing here"},
    {"<!DOCTYPE a [<!ATTLIST a 1>]><a/>", "1:26 the name of an attribute or '>' is expected"},
    {"<!DOCTYPE a [<!ATTLIST a b>]><a/>", "1:27 white space is missing here"},
    {"<!DOCTYPE a [<!ATTLIST a b X 'c'>]><a/>",
      "1:29 the type of the attribute is missing: CDATA, ID, IDREF, IDREFS, ENTITY, ENTITIES, NMTOKEN, NMTOKENS, "
      "NOTATION or values in parentheses"},
    {"<!DOCTYPE a [<!ATTLIST a b CDATA c>]><a/>",
      "1:34 #REQUIRED, #IMPLIED, #FIXED or a default in quotes is expected"},
    {"<!DOCTYPE a [<!ATTLIST a b CDATA 'c'd CDATA 'e'>]><a/>", "1:37 white space is missing here"},
    {"<!DOCTYPE a [<!ATTLIST a b (c,d) 'c'>]><a/>", "1:30 '|' or ')' is expected"},
    {"<!DOCTYPE a [<!ATTLIST a b (?) 'c'>]><a/>", "1:29 a name is expected in the parentheses"},
    {"<!DOCTYPE a [<!ATTLIST a b CDATA '<'>]><a/>", "1:36 the value of the attribute 'b' has a '<', which is written "
                                                    "&lt; there, or the quote that ends it is missing"},
    {"<!DOCTYPE a [<!ATTLIST a b CDATA '&e;'><!ENTITY e 'x'>]><a/>", "1:38 the entity 'e' is not declared"},
  });
}

// 3.4, [61] conditionalSect
TEST(axsParser_errors, rule_3_4_61_conditionalsect)
{
  expect_told({
    {"<!DOCTYPE a [<![INCLUDE[]]>]><a/>",
      "1:17 a conditional section cannot stand in the internal subset of the document type"},
    {"<!DOCTYPE a [<!ENTITY % p '<![INCLUDE['>%p;]><a/>", "1:41 a conditional section is not ended by ']]>'"},
    {"<!DOCTYPE a [<!ENTITY % p '<![OTHER[]]>'>%p;]><a/>", "1:42 INCLUDE or IGNORE and '[' must follow '<!['"},
    {"<!DOCTYPE a [<!ENTITY % p ']]>'>%p;]><a/>", "1:33 this ']]>' ends no conditional section"},
    {"<!DOCTYPE a [<!ENTITY % p '<![IGNORE[<![]]>'>%p;]><a/>", "1:46 a conditional section is not ended by ']]>'"},
    {"<!DOCTYPE a [<!ENTITY % p '<![INCLUDE]]>'>%p;]><a/>", "1:43 INCLUDE or IGNORE and '[' must follow '<!['"},
    {"<!DOCTYPE a [<!ENTITY % p '<![INCLUDE[]>'>%p;]><a/>",
      "1:43 only declarations, comments and processing instructions may stand here"},
    {"<!DOCTYPE a [<!ENTITY % e ']]>'><!ENTITY % p '<![INCLUDE[&#37;e;'>%p;]><a/>",
      "1:67 this ']]>' ends no conditional section"},
  });
}

// 4.1, [69] PEReference
TEST(axsParser_errors, rule_4_1_69_pereference)
{
  expect_told({
    {"<!DOCTYPE a [%p;]><a/>", "1:17 the parameter entity 'p' is not declared"},
    {"<!DOCTYPE a [<!ENTITY % p ''>%p ]><a/>", "1:32 the reference '%p' is not ended by ';'"},
    {"<!DOCTYPE a [<!ENTITY % p '<!ATTLIST a b &#37;q; #IMPLIED>'>%p;]><a/>",
      "1:61 in the internal subset a parameter entity may stand between declarations only, not in one"},
    {"<!DOCTYPE a [<!ENTITY % p '<!ATTLIST a b &#37; CDATA #IMPLIED>'>%p;]><a/>",
      "1:65 the type of the attribute is missing: CDATA, ID, IDREF, IDREFS, ENTITY, ENTITIES, NMTOKEN, NMTOKENS, "
      "NOTATION or values in parentheses"},
  });
}

// 4.1, [66] CharRef
TEST(axsParser_errors, rule_4_1_66_charref)
{
  expect_told({
    {"<a>&#x;</a>", "1:7 a number must follow '&#' (decimal) or '&#x' (hexadecimal)"},
    {"<a>&#;</a>", "1:6 a number must follow '&#' (decimal) or '&#x' (hexadecimal)"},
    {"<a>&#1a;</a>", "1:7 'a' is no digit of the number of a character"},
    {"<a>&#xag;</a>", "1:8 'g' is no digit of the number of a character"},
    {"<a>&#xAG;</a>", "1:8 'G' is no digit of the number of a character"},
    {"<a>&#x`;</a>", "1:7 a number must follow '&#' (decimal) or '&#x' (hexadecimal)"},
    {"<a>&#65</a>", "1:8 a character reference must be a number and end with ';'"},
    {"<a>& b</a>", "1:5 the name of an entity must follow '&'; a plain '&' is written &amp;"},
    {"<a>&b</a>", "1:6 the reference '&b' is not ended by ';'; a plain '&' is written &amp;"},
    {"<a b='x&c=d'/>", "1:10 the reference '&c' is not ended by ';'; a plain '&' is written &amp;"},
  });
}

// 4.1, WFC: Legal Character
TEST(axsParser_errors, rule_4_1_wfc_legal_character)
{
  expect_told({
    {"<a>&#0;</a>", "1:8 this is not the number of a character that XML allows"},
    {"<a b='&#xD800;'/>", "1:15 this is not the number of a character that XML allows"},
    {"<a>&#99999999999;</a>", "1:18 this is not the number of a character that XML allows"},
    {"<!DOCTYPE a [<!ENTITY e '&#1;'>]><a/>", "1:30 this is not the number of a character that XML allows"},
  });
}

// 4.1, WFC: Entity Declared
TEST(axsParser_errors, rule_4_1_wfc_entity_declared)
{
  expect_told({
    {"<a>\n&b;</a>", "2:4 the entity 'b' is not declared"},
    {"<a c='&b;'/>", "1:10 the entity 'b' is not declared"},
    {"<!DOCTYPE a [%p;]><a/>", "1:17 the parameter entity 'p' is not declared"},
    {"<?xml version='1.0' standalone='yes'?><!DOCTYPE a [<!ENTITY % p '<!ENTITY e \"x\">'>%p;]><a>&e;</a>",
      "1:94 the entity 'e' is not declared in the document itself, which says that it is standalone"},
  });
}

// 4.1, WFC: Parsed Entity
TEST(axsParser_errors, rule_4_1_wfc_parsed_entity)
{
  expect_told({
    {"<!DOCTYPE a [<!NOTATION n SYSTEM 'n'><!ENTITY e SYSTEM 'x' NDATA n>]><a>&e;</a>",
      "1:76 the entity 'e' is not XML, and cannot be referred to here"},
    {"<!DOCTYPE a [<!NOTATION n SYSTEM 'n'><!ENTITY e SYSTEM 'x' NDATA n>]><a b='&e;'/>",
      "1:79 the entity 'e' is not XML, and cannot be referred to here"},
  });
}

// 4.1, WFC: No Recursion
TEST(axsParser_errors, rule_4_1_wfc_no_recursion)
{
  expect_told({
    {"<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a>&e;</a>", "1:53 the entity 'e' contains itself"},
    {"<!DOCTYPE a [<!ENTITY e '&e;'>]><a b='&e;'/>", "1:39 the entity 'e' contains itself"},
    {"<!DOCTYPE a [<!ENTITY % p '&#37;p;'>%p;]><a/>", "1:37 the entity 'p' contains itself"},
  });
}

// 4.2, [70] EntityDecl
TEST(axsParser_errors, rule_4_2_70_entitydecl)
{
  expect_told({
    {"<!DOCTYPE a [<!ENTITY>]><a/>", "1:22 white space is missing here"},
    {"<!DOCTYPE a [<!ENTITY e>]><a/>", "1:24 white space is missing here"},
    {"<!DOCTYPE a [<!ENTITY e x>]><a/>",
      "1:25 the entity needs a value in quotes, or SYSTEM or PUBLIC and the name of a file"},
    {"<!DOCTYPE a [<!ENTITY e 'x>]><a/>", "1:34 the quote that ends this value is missing"},
    {"<!DOCTYPE a [<!ENTITY e '%'>]><a/>", "1:26 a '%' in the value of an entity is written &#37;"},
    {"<!DOCTYPE a [<!ENTITY e '&'>]><a/>", "1:27 the name of an entity must follow '&'; a plain '&' is written &amp;"},
    {"<!DOCTYPE a [<!ENTITY e '&f'>]><a/>",
      "1:28 the reference '&f' is not ended by ';'; a plain '&' is written &amp;"},
    {"<!DOCTYPE a [<!ENTITY e 'x' NDATA n>]><a/>", "1:29 '>' is expected, which ends the declaration of an entity"},
    {"<!DOCTYPE a [<!ENTITY % e SYSTEM 'x' NDATA n>]><a/>",
      "1:38 '>' is expected, which ends the declaration of an entity"},
    {"<!DOCTYPE a [<!ENTITY e SYSTEM 'x' NDATA>]><a/>", "1:41 white space is missing here"},
    {"<!DOCTYPE a [<!ENTITY e:f 'x'>]><a/>", "1:26 the name of an entity or a notation cannot have a colon"},
  });
}

// 4.3.2, parsed entities are well-formed
TEST(axsParser_errors, rule_4_3_2_parsed_entities_are_well_formed)
{
  expect_told({
    {"<!DOCTYPE a [<!ENTITY e '<b>'>]><a>&e;</b></a>",
      "1:36 the element 'b' is not closed in the entity in which it begins"},
    {"<!DOCTYPE a [<!ENTITY e '</b>'>]><a><b>&e;</a>",
      "1:40 the element 'b' begins outside the entity in which it ends"},
    {"<!DOCTYPE a [<!ENTITY e '<!--'>]><a>&e;--></a>", "1:37 a comment is not ended by '-->'"},
    {"<!DOCTYPE a [<!ENTITY e '<b'>]><a>&e;/></a>",
      "1:35 the start tag of 'b' is not ended: '>', '/>' or an attribute is expected"},
    {"<!DOCTYPE a [<!ENTITY e '&#38;'>]><a>&e;</a>",
      "1:38 the name of an entity must follow '&'; a plain '&' is written &amp;"},
    {"<!DOCTYPE a [<!ENTITY e ']]>'>]><a>&e;</a>", "1:36 ']]>' must not stand in a text; '>' is written &gt; there"},
  });
}

// 4.7, [82] NotationDecl
TEST(axsParser_errors, rule_4_7_82_notationdecl)
{
  expect_told({
    {"<!DOCTYPE a [<!NOTATION>]><a/>", "1:24 white space is missing here"},
    {"<!DOCTYPE a [<!NOTATION n>]><a/>", "1:26 white space is missing here"},
    {"<!DOCTYPE a [<!NOTATION n PUBLIC>]><a/>", "1:33 white space is missing here"},
    {"<!DOCTYPE a [<!NOTATION n:m SYSTEM 's'>]><a/>", "1:28 the name of an entity or a notation cannot have a colon"},
  });
}

// Namespaces in XML 1.0, 5, [16] doctypedecl to [21] AttDef, and 7
TEST(axsParser_errors, names_in_declarations_are_qualified)
{
  expect_told({
    {"<!DOCTYPE :a><a/>", "1:13 ':a' is not a name with a prefix"},
    {"<!DOCTYPE a: SYSTEM 's'><a/>", "1:13 'a:' is not a name with a prefix"},
    {"<!DOCTYPE a [<!ELEMENT a:b:c ANY>]><a/>", "1:29 'a:b:c' is not a name with a prefix"},
    {"<!DOCTYPE a [<!ELEMENT a (b:)>]><a/>", "1:29 'b:' is not a name with a prefix"},
    {"<!DOCTYPE a [<!ELEMENT a (#PCDATA|b:1)*>]><a/>", "1:38 'b:1' is not a name with a prefix"},
    {"<!DOCTYPE a [<!ATTLIST a: b CDATA ''>]><a/>", "1:26 'a:' is not a name with a prefix"},
    {"<!DOCTYPE a [<!ATTLIST a :b CDATA ''>]><a/>", "1:28 ':b' is not a name with a prefix"},
    {"<!DOCTYPE a [<!ENTITY e '&f:g;'>]><a/>", "1:26 the name of an entity or a notation cannot have a colon"},
    {"<!DOCTYPE a [<!ATTLIST a b NOTATION (n:m) ''>]><a/>",
      "1:41 the name of an entity or a notation cannot have a colon"},
    {"<!DOCTYPE a [<!ENTITY e SYSTEM 'x' NDATA n:m>]><a/>",
      "1:45 the name of an entity or a notation cannot have a colon"},
  });
}

// XML 1.1, 2.2
TEST(axsParser_errors, xml_1_1_2_2)
{
  expect_told({
    {"<?xml version='1.1'?><a>\x7F</a>", "1:26 invalid character 0x7F"},
    {"<?xml version='1.1'?><a>\xC2\x80</a>", "1:26 invalid character 0x80"},
    {"<?xml version='1.1'?><a b='\x7F'/>", "1:29 invalid character 0x7F"},
    {"<?xml version='1.1'?><a b='\xC2\x80'/>", "1:29 invalid character 0x80"},
    {"<?xml version='1.1'?><a><?p \x7F\r?></a>", "1:30 invalid character 0x7F"},
    {"<?xml version='1.1'?><a><?p b\r\x7F?></a>", "2:2 invalid character 0x7F"},
    {"<?xml version='1.1'?><a><!--\x7F\r\n--></a>", "1:30 invalid character 0x7F"},
    {"<?xml version='1.1'?><a><![CDATA[\x7F\r]]></a>", "1:35 invalid character 0x7F"},
    {"<?xml version='1.1'?><!DOCTYPE a SYSTEM '\x7F'><a/>", "1:43 invalid character 0x7F"},
    {"<?xml version='1.1'?><!DOCTYPE a SYSTEM 'b\r\x7F'><a/>", "2:2 invalid character 0x7F"},
    {"<?xml version='1.1'?><!DOCTYPE a [<!ENTITY b 'c\r\x7F'>]><a/>", "2:2 invalid character 0x7F"},
    {"<?xml version='1.1'?><a>&#0;</a>", "1:29 this is not the number of a character that XML allows"},
    {"<?xml version='1.1'?><a>&#xFFFE;</a>", "1:33 this is not the number of a character that XML allows"},
    {"<?xml version='1.1'?><a>\x01</a>", "1:26 invalid character 0x1"},
    {"<?xml version='1.1'?>\xE2\x80\xA8<a></b>",
      "2:6 the element 'a', open since line 2, must be closed first, by </a>"},
  });
}

// Namespaces, NSC: Prefix Declared
TEST(axsParser_errors, namespaces_nsc_prefix_declared)
{
  expect_told({
    {"<p:a/>", "1:7 the prefix 'p' of 'p:a' is not bound to a namespace"},
    {"<a p:b='1'/>", "1:13 the prefix 'p' of 'p:b' is not bound to a namespace"},
    {"<a><b xmlns:p='u'/><p:c/></a>", "1:26 the prefix 'p' of 'p:c' is not bound to a namespace"},
  });
}

// Namespaces, NSC: No Prefix Undeclaring
TEST(axsParser_errors, namespaces_nsc_no_prefix_undeclaring)
{
  expect_told({
    {"<a xmlns:p=''/>", "1:16 the prefix 'p' cannot be bound to no namespace"},
    {"<?xml version='1.1'?><a xmlns:p='u'><b xmlns:p=''><p:c/></b></a>",
      "1:57 the prefix 'p' of 'p:c' is not bound to a namespace"},
  });
}

// Namespaces, NSC: Reserved Prefixes and Namespace Names
TEST(axsParser_errors, namespaces_nsc_reserved_prefixes_and_namespace_names)
{
  expect_told({
    {"<a xmlns:xml='u'/>", "1:19 the prefix 'xml' cannot be bound to the namespace 'u'"},
    {"<a xmlns:xmlns='u'/>", "1:21 the prefix 'xmlns' cannot be bound to the namespace 'u'"},
    {"<a xmlns:p='http://www.w3.org/XML/1998/namespace'/>",
      "1:52 the prefix 'p' cannot be bound to the namespace 'http://www.w3.org/XML/1998/namespace'"},
    {"<a xmlns='http://www.w3.org/2000/xmlns/'/>",
      "1:43 the prefix '' cannot be bound to the namespace 'http://www.w3.org/2000/xmlns/'"},
    {"<xmlns:a/>", "1:11 the prefix 'xmlns' of 'xmlns:a' is not bound to a namespace"},
  });
}

// Namespaces, NSC: Attributes Unique
TEST(axsParser_errors, namespaces_nsc_attributes_unique)
{
  expect_told({
    {"<a xmlns:p='u' xmlns:q='u'\n p:b='1' q:b='2'/>", "2:19 the attribute 'b' of the namespace 'u' is given twice"},
  });
}

// Namespaces, [7] QName
TEST(axsParser_errors, namespaces_7_qname)
{
  expect_told({
    {"<a:/>", "1:6 'a:' is not a name with a prefix"},
    {"<:a/>", "1:6 ':a' is not a name with a prefix"},
    {"<a:b:c/>", "1:9 'a:b:c' is not a name with a prefix"},
    {"<a xmlns:p='u'><p:1/></a>", "1:22 'p:1' is not a name with a prefix"},
  });
}
