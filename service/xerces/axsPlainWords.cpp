#include "axsPlainWords.h"

#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace
{
using Codes = xercesc::XMLErrs::Codes;
using Validity = xercesc::XMLValid::Codes;

struct Wording
{
  unsigned int code;
  // "%1" and "%2" stand for what the parser's text has in its first and second quotes, "%since" for where the innermost
  // open element began; "%name" and "%space" for the parts of the first quotes, which are a namespace and a name.
  char const* text;
};

Wording const parser_wordings[] = {
  {Codes::InvalidDocumentStructure,
    "the root element is missing: only comments and processing instructions may stand before it"},
  {Codes::ExpectedCommentOrPI, "only comments and processing instructions may follow the root element"},
  {Codes::EndedWithTagsOnStack, "the document ends, but the element '%1'%since is not closed by </%1>"},
  {Codes::ExpectedEndOfTagX, "the element '%1'%since must be closed first, by </%1>"},
  {Codes::MoreEndThanStartTags, "this end tag closes no element"},
  {Codes::ExpectedElementName, "the name of an element must follow '<'; in a text, '<' is written &lt;"},
  {Codes::UnterminatedStartTag, "the start tag of '%1' is not ended: '>', '/>' or an attribute is expected"},
  {Codes::UnterminatedEndTag, "'>' is expected: an end tag holds the name '%1' only"},
  {Codes::ExpectedEqSign, "the name of an attribute must be followed by '=' and a value in quotes"},
  {Codes::ExpectedAttrValue, "the value of an attribute must stand in quotes, \" or '"},
  {Codes::ExpectedWhitespace, "white space is missing here, as it must stand between attributes"},
  {Codes::ExpectedEntityRefName, "the name of an entity must follow '&'; a plain '&' is written &amp;"},
  {Codes::UnterminatedEntityRef, "the reference '&%1' is not ended by ';'; a plain '&' is written &amp;"},
  {Codes::EntityNotFound, "the entity '%1' is not declared"},
  {Codes::UnterminatedCharRef, "a character reference must be a number and end with ';'"},
  {Codes::ExpectedNumericalCharRef, "a number must follow '&#' (decimal) or '&#x' (hexadecimal)"},
  {Codes::InvalidCharacterRef, "this is not the number of a character that XML allows"},
  {Codes::BadDigitForRadix, "'%1' is no digit of the number of a character"},
  {Codes::BadSequenceInCharData, "']]>' must not stand in a text; '>' is written &gt; there"},
  {Codes::IllegalSequenceInComment, "'--' must not stand in a comment"},
  {Codes::UnterminatedComment, "a comment is not ended by '-->'"},
  {Codes::UnterminatedCDATASection, "a CDATA section is not ended by ']]>'"},
  {Codes::UnterminatedPI, "a processing instruction is not ended by '?>'"},
  {Codes::XMLDeclMustBeFirst, "the XML declaration must stand at the very beginning of the document"},
  {Codes::NoPIStartsWithXML,
    "no processing instruction is named 'xml'; the XML declaration stands at the very beginning of the document only"},
  {Codes::BracketInAttrValue,
    "the value of the attribute '%2' has a '<', which is written &lt; there, or the quote that ends it is missing"},
  {Codes::EntityExpansionLimitExceeded, "entities are expanded more than %1 times, which is the limit"},
  {Codes::BadStandalone, "the standalone declaration must be 'yes' or 'no'"},
  {Codes::XMLVersionRequired, "the XML declaration must begin with the version"},
  {Codes::SchemaElementContentError, "this element may not stand in 'schema'"},
  {Codes::TypeNotFound, "there is no declaration of '%name' %space"},
  {Codes::NoCircularDefinition, "'%name' is defined by itself"},
};

Wording const exception_wordings[] = {
  {xercesc::XMLExcepts::Trans_CantCreateCvtrFor, "the encoding '%1' is not known"},
};

Wording const validity_wordings[] = {
  {Validity::NoCharDataInCM, "text is not allowed here"},
  {Validity::EmptyElemHasContent, "it must be empty"},
  {Validity::ElementNotQualified,
    "element '%1' must be in the namespace of its schema: its prefix or an xmlns is missing"},
  {Validity::ElementNotUnQualified,
    "element '%1' must be in no namespace here: its schema has elementFormDefault unqualified"},
  {Validity::IDNotDeclared, "there is no ID '%1', to which an IDREF refers"},
  {Validity::IC_DuplicateKey, "its key is not unique in the element '%1'"},
  {Validity::IC_DuplicateUnique, "what must be unique in the element '%1' is not"},
  {Validity::IC_AbsentKeyValue, "a key of the element '%1' has no value"},
  {Validity::IC_KeyNotEnoughValues, "a part of the key '%2' of the element '%1' has no value"},
  {Validity::IC_KeyNotFound, "a key reference in the element '%1' has no key that it refers to"},
  {Validity::IC_FieldMultipleMatch, "a field of a key has several values here"},
};

void replace_all(std::string& text, std::string const& wanted, std::string const& replacement)
{
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string::npos; at += replacement.size())
    text.replace(at, wanted.size(), replacement);
}

template <std::size_t count>
std::string reworded(Wording const (&wordings)[count], unsigned int code, std::string const& text)
{
  auto const known = std::find_if(
    std::begin(wordings), std::end(wordings), [code](Wording const& wording) { return wording.code == code; });
  if (known == std::end(wordings))
    return text;
  std::string words = known->text;
  std::string const first = axsPlainWords::quoted_in(text, 1);
  std::size_t const split = first.find_last_of(":,");
  bool const has_space = split != std::string::npos && split > 0;
  replace_all(words, "%name", split == std::string::npos ? first : first.substr(split + 1));
  replace_all(words, "%space", has_space ? "in the namespace '" + first.substr(0, split) + "'" : "in no namespace");
  replace_all(words, "%1", first);
  replace_all(words, "%2", axsPlainWords::quoted_in(text, 2));
  return words;
}
}

std::string axsPlainWords::of(unsigned int code, std::string const& text, int open_since)
{
  std::string words = reworded(parser_wordings, code, text);
  replace_all(
    words, "%since", open_since > 0 ? ", open since line " + std::to_string(open_since) + "," : std::string());
  return words;
}

std::string axsPlainWords::of_validity(unsigned int code, std::string const& text)
{
  return reworded(validity_wordings, code, text);
}

std::string axsPlainWords::of_exception(unsigned int code, std::string const& text)
{
  return reworded(exception_wordings, code, text);
}

std::string axsPlainWords::quoted_in(std::string const& text, int number)
{
  std::size_t open = text.find('\'');
  std::size_t close = text.find('\'', open + 1);
  for (; number > 1 && close != std::string::npos; --number)
  {
    open = text.find('\'', close + 1);
    close = open == std::string::npos ? open : text.find('\'', open + 1);
  }
  return close == std::string::npos ? std::string() : text.substr(open + 1, close - open - 1);
}
