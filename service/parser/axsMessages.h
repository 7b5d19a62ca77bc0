#pragma once

#include <string>
#include <string_view>

/// What is said of documents that are not well-formed, for those who write them: what is wrong and, where it helps, how it
/// is written right.
namespace axsMessages
{
// The document as a whole
inline constexpr char const* empty_document = "The document is empty";
inline constexpr char const* zero_byte = "A zero byte stands in the document";
inline constexpr char const* root_missing =
  "the root element is missing: only comments and processing instructions may stand before it";
inline constexpr char const* after_root = "only comments and processing instructions may follow the root element";
inline constexpr char const* too_large = "The entities and defaults of the document make it too large";

// The XML declaration
inline constexpr char const* declaration_first = "the XML declaration must stand at the very beginning of the document";
inline constexpr char const* target_xml =
  "no processing instruction is named 'xml'; the XML declaration stands at the very beginning of the document only";
inline constexpr char const* version_first = "the XML declaration must begin with the version";
inline constexpr char const* declaration_value = "'=' and a value in quotes must follow in the XML declaration";
inline constexpr char const* declaration_space = "white space is missing in the XML declaration";
inline constexpr char const* declaration_end =
  "'?>' is expected: the XML declaration holds version, encoding and standalone only, in that order";
inline constexpr char const* encoding_name = "this is not the name of an encoding";
inline constexpr char const* standalone_value = "the standalone declaration must be 'yes' or 'no'";
inline constexpr char const* text_declaration_encoding =
  "the text declaration of an external entity must have an encoding";
inline constexpr char const* text_declaration_end =
  "'?>' is expected: the text declaration of an external entity holds version and encoding only, in that order";
inline constexpr char const* entity_version = "the entity says that it is XML 1.1, and the document that it is XML 1.0";

// Elements
inline constexpr char const* element_name = "the name of an element must follow '<'; in a text, '<' is written &lt;";
inline constexpr char const* end_of_nothing = "this end tag closes no element";
inline constexpr char const* exclamation = "only a comment or a CDATA section may begin with '<!' here";
inline constexpr char const* attribute_space = "white space is missing here, as it must stand between attributes";
inline constexpr char const* attribute_equals =
  "the name of an attribute must be followed by '=' and a value in quotes";
inline constexpr char const* attribute_quotes = "the value of an attribute must stand in quotes, \" or '";

// Texts, comments, instructions, sections
inline constexpr char const* section_end_in_text = "']]>' must not stand in a text; '>' is written &gt; there";
inline constexpr char const* comment_end = "a comment is not ended by '-->'";
inline constexpr char const* comment_hyphens = "'--' must not stand in a comment";
inline constexpr char const* cdata_end = "a CDATA section is not ended by ']]>'";
inline constexpr char const* instruction_end = "a processing instruction is not ended by '?>'";
inline constexpr char const* instruction_target = "the name of a processing instruction must follow '<?'";
inline constexpr char const* instruction_space = "white space or '?>' must follow the name of a processing instruction";
inline constexpr char const* target_colon = "the target of a processing instruction cannot have a colon";

// References
inline constexpr char const* reference_name = "the name of an entity must follow '&'; a plain '&' is written &amp;";
inline constexpr char const* reference_number = "a number must follow '&#' (decimal) or '&#x' (hexadecimal)";
inline constexpr char const* reference_number_end = "a character reference must be a number and end with ';'";
inline constexpr char const* reference_character = "this is not the number of a character that XML allows";

// Document types
inline constexpr char const* doctype_twice = "there can be one document type declaration only";
inline constexpr char const* doctype_place = "the document type declaration must stand before the root element";
inline constexpr char const* doctype_name = "the name of the root element must follow '<!DOCTYPE'";
inline constexpr char const* doctype_end = "the document type declaration is not ended by '>'";
inline constexpr char const* subset_end = "the internal subset of the document type is not ended by ']'";
inline constexpr char const* subset_markup = "only declarations, comments and processing instructions may stand here";
inline constexpr char const* declaration_keyword = "ELEMENT, ATTLIST, ENTITY, NOTATION or '--' must follow '<!' here";
inline constexpr char const* space_expected = "white space is missing here";
inline constexpr char const* parameter_place =
  "in the internal subset a parameter entity may stand between declarations only, not in one";
inline constexpr char const* parameter_name = "the name of a parameter entity must follow '%'";
inline constexpr char const* parameter_value = "a '%' in the value of an entity is written &#37;";
inline constexpr char const* entity_name = "the name of an entity is missing";
inline constexpr char const* entity_definition =
  "the entity needs a value in quotes, or SYSTEM or PUBLIC and the name of a file";
inline constexpr char const* literal_end = "the quote that ends this value is missing";
inline constexpr char const* name_colon = "the name of an entity or a notation cannot have a colon";
inline constexpr char const* notation_name = "the name of a notation is missing";
inline constexpr char const* notation_definition = "SYSTEM or PUBLIC must follow the name of a notation";
inline constexpr char const* system_literal = "the name of a file in quotes, \" or ', is expected";
inline constexpr char const* public_literal = "a public identifier in quotes, \" or ', is expected";
inline constexpr char const* public_character = "this character cannot stand in a public identifier";
inline constexpr char const* element_declared = "the name of an element is missing";
inline constexpr char const* content_expected = "EMPTY, ANY or a content model in parentheses is expected";
inline constexpr char const* content_name = "the name of an element or '(' is expected in a content model";
inline constexpr char const* content_separator = "',', '|' or ')' is expected in a content model";
inline constexpr char const* content_mixture = "',' and '|' cannot both separate what is in one pair of parentheses";
inline constexpr char const* mixed_end = "'|' or ')' is expected, and after names ')*'";
inline constexpr char const* attribute_declared = "the name of an attribute or '>' is expected";
inline constexpr char const* attribute_type = "the type of the attribute is missing: CDATA, ID, IDREF, IDREFS, ENTITY, "
                                              "ENTITIES, NMTOKEN, NMTOKENS, NOTATION or values "
                                              "in parentheses";
inline constexpr char const* attribute_default = "#REQUIRED, #IMPLIED, #FIXED or a default in quotes is expected";
inline constexpr char const* group_token = "a name is expected in the parentheses";
inline constexpr char const* group_end = "'|' or ')' is expected";
inline constexpr char const* condition_place =
  "a conditional section cannot stand in the internal subset of the document type";
inline constexpr char const* condition_keyword = "INCLUDE or IGNORE and '[' must follow '<!['";
inline constexpr char const* condition_end = "a conditional section is not ended by ']]>'";
inline constexpr char const* condition_extra = "this ']]>' ends no conditional section";

/// The text in single quotes.
std::string quoted(std::string_view text);

/// "the element 'a', open since line 3, must be closed first, by </a>"
std::string not_closed_first(std::string_view element, std::string const& since);
std::string not_closed_at_end(std::string_view element, std::string const& since);
std::string since_line(unsigned long long line);
}
