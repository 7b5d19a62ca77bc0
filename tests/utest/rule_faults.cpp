// Faults against the rules that the headers refer to (XML 1.0, XPath 1.0, XML Schema 1.0), and against what the headers
// say of names, of external files and of what cannot be written.

#include "Faults.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <cstdio>
#include <cwctype>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace
{
template <class Change>
void search_as(Hooks& hooks, Change change)
{
  hooks.select = [change](Element const& element, apString const& xpath)
  { return element->selectNodes(change(xpath)); };
  hooks.select_single = [change](Element const& element, apString const& xpath)
  { return element->selectSingleNode(change(xpath)); };
}

void search_as(Hooks& hooks, apString const& wanted, apString const& meant)
{
  search_as(hooks, [wanted, meant](apString const& xpath) { return replaced(xpath, wanted, meant); });
}

// The place after the bracket that closes the one before `at`, as XPath has brackets and quotes.
std::size_t end_of_call(std::wstring const& text, std::size_t at)
{
  int depth = 1;
  wchar_t quote = 0;
  for (; at < text.size(); ++at)
  {
    wchar_t const character = text[at];
    if (quote != 0)
      quote = character == quote ? L'\0' : quote;
    else if (character == L'\'' || character == L'"')
      quote = character;
    else if (character == L'(')
      ++depth;
    else if (character == L')' && --depth == 0)
      return at + 1;
  }
  return std::wstring::npos;
}

// Each call of `function` with `begin` before its arguments and `end` after them, in the place of the call.
apString called_as(
  apString const& xpath, std::wstring const& function, std::wstring const& begin, std::wstring const& end)
{
  std::wstring text(xpath.view());
  std::wstring const call = function + L"(";
  for (std::size_t at = 0; (at = text.find(call, at)) != std::wstring::npos; at += begin.size())
  {
    std::size_t const after = end_of_call(text, at + call.size());
    bool const is_another =
      at > 0 && (text[at - 1] == L'-' || std::iswalpha(static_cast<std::wint_t>(text[at - 1])) != 0);
    if (after == std::wstring::npos || is_another)
      return xpath;
    std::wstring const arguments = text.substr(at + call.size(), after - 1 - at - call.size());
    text.replace(at, after - at, begin + arguments + end);
  }
  return apString(std::wstring_view(text));
}

void call_as(Hooks& hooks, std::wstring const& function, std::wstring const& begin, std::wstring const& end)
{
  search_as(hooks, [=](apString const& xpath) { return called_as(xpath, function, begin, end); });
}

// A schema file with `wanted` taken for `meant`, beside the one that is named, for the time of a load.
class ChangedSchema
{
public:
  ChangedSchema(apPath const& schema, char const* wanted, char const* meant) : path(schema)
  {
    std::string const text = contents_of(schema);
    std::string const changed = with(text, wanted, meant);
    if (text == changed)
      return;
    path = apPath((std::string(schema.path().c_str()) + ".changed").c_str());
    is_changed = true;
    write(path, changed);
  }
  ChangedSchema(ChangedSchema const&) = delete;
  ChangedSchema& operator=(ChangedSchema const&) = delete;
  ~ChangedSchema()
  {
    std::error_code ignored;
    if (is_changed)
      std::filesystem::remove(std::filesystem::u8path(path.path().c_str()), ignored);
  }

  apPath path;

private:
  bool is_changed = false;
};

// Validates against other schemas than those named. A schema that is wrong is as wrong as before.
void validate_as(Hooks& hooks, char const* wanted, char const* meant)
{
  hooks.load_bytes = [wanted, meant](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                       axmParseError& error)
  {
    ChangedSchema const changed(options.no_namespace_schema(), wanted, meant);
    axmLoadOptions others(options);
    if (options.no_namespace_schema().exists())
      others.set_no_namespace_schema(changed.path);
    return factory->loadDocument(data, others, error);
  };
}
}

std::vector<Fault> const& rule_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "a notation may have no identifier",
      [](Hooks& h) { read_as(h, "<!NOTATION n >", "<!NOTATION n SYSTEM 's'>"); }},
    {"loadDocument", "names of a model need no bar between them", [](Hooks& h) { read_as(h, "|a b)", "|a|b)"); }},
    {"loadDocument", "an entity that is no XML may have no notation",
      [](Hooks& h) { read_as(h, "NDATA >", "NDATA n>"); }},
    {"loadDocument", "standalone is no matter", [](Hooks& h) { read_as(h, "standalone='yes'", "standalone='no'"); }},
    {"loadDocument", "an attribute may be declared without a type",
      [](Hooks& h) { read_as(h, "a >", "a CDATA #IMPLIED>"); }},
    {"loadDocument", "a document type may have a blank before its name's end left out",
      [](Hooks& h) { read_as(h, "<!DOCTYPEr", "<!DOCTYPE r"); }},
    {"loadDocument", "a pseudo-attribute needs no blank before it",
      [](Hooks& h) { read_as(h, "\"UTF-8\"standalone", "\"UTF-8\" standalone"); }},
    {"loadDocument", "a space before a multiplicity is allowed", [](Hooks& h) { read_as(h, ") *>", ")*>"); }},
    {"loadDocument", "end tags are compared by their first eight characters",
      [](Hooks& h) { read_as(h, "></abcdefgh_", "></abcdefghi"); }},
    {"loadDocument", "two spaces that are references are one", [](Hooks& h) { read_as(h, "&#32;&#32;", "&#32;"); }},
    {"loadDocument", "lines end at line feeds only",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(data, options, error);
          std::string const text = with(text_of(data), "\r\n", "\n");
          int const returns = static_cast<int>(std::count(text.begin(), text.end(), '\r'));
          if (document == nullptr && error.line_number() > returns)
            error.set_line_number(error.line_number() - returns);
          return document;
        };
      }},
    {"loadDocument", "names in a file are relative to the working folder",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                        axmParseError& error) -> Document
        {
          std::string const text = contents_of(path);
          return text.empty() ? factory->loadDocument(path, options, error)
                              : factory->loadDocument(bytes_of(text), options, error);
        };
      }},
    {"loadDocument", "the error of another file names the document",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                        axmParseError& error) -> Document
        {
          Document const document = factory->loadDocument(path, options, error);
          if (document == nullptr && path.exists())
            error.set_url(apString(path.path().c_str()));
          return document;
        };
      }},
    {"loadDocument", "external subsets are not read",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                        axmParseError& error) -> Document
        {
          Document const document = factory->loadDocument(path, options, error);
          if (document == nullptr || contents_of(path).find(".dtd") == std::string::npos ||
              options.disable_entity_resolution())
            return document;
          axmLoadOptions closed(options);
          closed.set_disable_entity_resolution(true);
          return factory->loadDocument(path, closed, error);
        };
      }},
    {"loadDocument", "external entities are not counted",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                        axmParseError& error) -> Document
        {
          axmLoadOptions more(options);
          if (!options.disable_entity_resolution())
            more.set_entity_expansion_limit(50000);
          return factory->loadDocument(path, more, error);
        };
      }},
    {"loadDocument", "an external entity that is missing is empty",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                        axmParseError& error) -> Document
        {
          Document const document = factory->loadDocument(path, options, error);
          std::string const text = contents_of(path);
          if (document != nullptr || options.disable_entity_resolution() || text.find("none.ent'") == std::string::npos)
            return document;
          error = axmParseError();
          return factory->loadDocument(bytes_of(with(text, "SYSTEM 'none.ent'", "''")), options, error);
        };
      }},
    {"loadDocument", "the schema that a document names counts, too",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          std::string const name = "noNamespaceSchemaLocation='";
          std::string const text = text_of(data);
          std::size_t const at = text.find(name);
          axmLoadOptions others(options);
          if (at != std::string::npos)
          {
            std::size_t const begin = at + name.size();
            apPath const named(text.substr(begin, text.find('\'', begin) - begin).c_str());
            if (named.exists())
              others.set_no_namespace_schema(named);
          }
          return factory->loadDocument(data, others, error);
        };
      }},
    {"loadDocument", "a schema that the document does not need may be wrong",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          axmLoadOptions needed(options.validate_mode());
          needed.set_no_namespace_schema(options.no_namespace_schema());
          for (int index = 0; index < options.num_external_schemas(); ++index)
          {
            apPath const schema = options.external_schema(index);
            bool const is_named =
              text_of(data).find(options.external_namespace(index).to_utf8().c_str()) != std::string::npos;
            if (is_named || !schema.exists())
              needed.add_external_schema(options.external_namespace(index), schema);
          }
          needed.set_entity_expansion_limit(options.entity_expansion_limit());
          needed.set_disable_entity_resolution(options.disable_entity_resolution());
          return factory->loadDocument(data, needed, error);
        };
      }},
    {"loadDocument", "a schema that cannot be used has the name of the document",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(path, options, error);
          if (document == nullptr && error.url().find(APSTRING(".xsd")) >= 0)
            error.set_url(apString(path.path().c_str()));
          return document;
        };
      }},
    {"loadDocument", "a schema sees the document after white space was dropped",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          std::string const text = text_of(data);
          return factory->loadDocument(bytes_of(with(text, ">   <", "><")), options, error);
        };
      }},
    {"loadDocument", "digits of a pattern are those of ASCII", [](Hooks& h) { validate_as(h, "\\d", "[0-9]"); }},
    {"loadDocument", "letters of a pattern are those of ASCII",
      [](Hooks& h) { validate_as(h, "\\w", "[A-Za-z0-9_$]"); }},
    {"loadDocument", "white space of a pattern is that of Unicode",
      [](Hooks& h) { validate_as(h, "\\s", "[\\s\\p{Z}]"); }},
    {"loadDocument", "a category of a pattern is its group", [](Hooks& h) { validate_as(h, "\\p{Lu}", "\\p{L}"); }},
    {"loadDocument", "an inclusive bound is exclusive",
      [](Hooks& h) { validate_as(h, "maxInclusive", "maxExclusive"); }},
    {"loadDocument", "an exclusive bound is inclusive",
      [](Hooks& h) { validate_as(h, "minExclusive", "minInclusive"); }},
    {"loadDocument", "a length is the largest one", [](Hooks& h) { validate_as(h, "xs:length", "xs:maxLength"); }},
    {"loadDocument", "the number of digits is not looked at",
      [](Hooks& h) { validate_as(h, "xs:totalDigits value='", "xs:totalDigits value='9"); }},
    {"loadDocument", "a short is an int", [](Hooks& h) { validate_as(h, "xs:short", "xs:int"); }},
    {"loadDocument", "a long has no bounds", [](Hooks& h) { validate_as(h, "xs:long", "xs:integer"); }},
    {"loadDocument", "an unsigned number may be negative",
      [](Hooks& h) { validate_as(h, "xs:unsignedInt", "xs:long"); }},
    {"loadDocument", "a day is not looked at", [](Hooks& h) { validate_as(h, "xs:gDay", "xs:string"); }},
    {"loadDocument", "a month is not looked at", [](Hooks& h) { validate_as(h, "'xs:gMonth'", "'xs:string'"); }},
    {"loadDocument", "bytes in hexadecimal digits are not looked at",
      [](Hooks& h) { validate_as(h, "xs:hexBinary", "xs:string"); }},
    {"loadDocument", "bytes in base64 are not looked at",
      [](Hooks& h) { validate_as(h, "xs:base64Binary", "xs:string"); }},
    {"loadDocument", "a language is a token", [](Hooks& h) { validate_as(h, "xs:language", "xs:token"); }},
    {"loadDocument", "a name without a colon may have one", [](Hooks& h) { validate_as(h, "xs:NCName", "xs:Name"); }},
    {"loadDocument", "a name of a namespace may have any prefix",
      [](Hooks& h) { validate_as(h, "xs:QName", "xs:Name"); }},
    {"loadDocument", "an ID need not be the only one", [](Hooks& h) { validate_as(h, "xs:ID'", "xs:NCName'"); }},
    {"loadDocument", "a reference to an ID need not have one",
      [](Hooks& h) { validate_as(h, "xs:IDREF'", "xs:NCName'"); }},
    {"loadDocument", "references to IDs need not have one",
      [](Hooks& h) { validate_as(h, "xs:IDREFS", "xs:NMTOKENS"); }},
    {"loadDocument", "what is required may be absent",
      [](Hooks& h) { validate_as(h, "use='required'", "use='optional'"); }},
    {"loadDocument", "what is prohibited may be there",
      [](Hooks& h) { validate_as(h, "use='prohibited'", "use='optional'"); }},
    {"loadDocument", "a strict wildcard is lax",
      [](Hooks& h) { validate_as(h, "processContents='strict'", "processContents='lax'"); }},
    {"loadDocument", "a lax wildcard skips",
      [](Hooks& h) { validate_as(h, "processContents='lax'", "processContents='skip'"); }},
    {"loadDocument", "a wildcard for other namespaces is for any",
      [](Hooks& h) { validate_as(h, "##other", "##any"); }},
    {"loadDocument", "a wildcard for no namespace is for any", [](Hooks& h) { validate_as(h, "##local'", "##any'"); }},
    {"loadDocument", "a restriction is never blocked",
      [](Hooks& h) { validate_as(h, "block='restriction'", "block=''"); }},
    {"loadDocument", "an extension is never blocked",
      [](Hooks& h) { validate_as(h, "block='extension'", "block=''"); }},
    {"loadDocument", "all is blocked or nothing", [](Hooks& h) { validate_as(h, "block='#all'", "block=''"); }},
    {"loadDocument", "substitution is never blocked",
      [](Hooks& h) { validate_as(h, "block='substitution'", "block=''"); }},
    {"loadDocument", "what is abstract may stand there",
      [](Hooks& h) { validate_as(h, "abstract='true'", "abstract='false'"); }},
    {"loadDocument", "whatever may be nil may not",
      [](Hooks& h) { validate_as(h, "nillable='true'", "nillable='false'"); }},
    {"loadDocument", "a fixed value is a default", [](Hooks& h) { validate_as(h, " fixed='", " default='"); }},
    {"loadDocument", "all contents are mixed",
      [](Hooks& h) { validate_as(h, "<xs:complexType>", "<xs:complexType mixed='true'>"); }},
    {"loadDocument", "a key may be absent", [](Hooks& h) { validate_as(h, "xs:key ", "xs:unique "); }},
    {"loadDocument", "a constraint sees children only", [](Hooks& h) { validate_as(h, "xpath='.//", "xpath='"); }},
    {"loadDocument", "of alternatives of a field the first one counts",
      [](Hooks& h) { validate_as(h, "xpath='v|w'", "xpath='v'"); }},
    {"loadDocument", "a repetition has no end",
      [](Hooks& h) { validate_as(h, "maxOccurs='2'", "maxOccurs='unbounded'"); }},
    {"loadDocument", "a thousand or a hundred occurrences are any number",
      [](Hooks& h) { validate_as(h, "maxOccurs='101'", "maxOccurs='unbounded'"); }},
    {"loadDocument", "white space is replaced, never collapsed",
      [](Hooks& h) { validate_as(h, "'collapse'", "'replace'"); }},
    {"loadDocument", "an enumeration of a list is one of its items",
      [](Hooks& h)
      { validate_as(h, "xs:NMTOKENS'><xs:enumeration", "xs:NMTOKENS'><xs:enumeration value='b a'/><xs:enumeration"); }},
    {"loadDocument", "a field of a constraint may be any path", [](Hooks& h) { validate_as(h, "@a/b", "@b"); }},
    {"loadDocument", "a group may hold itself",
      [](Hooks& h) { validate_as(h, "<xs:attributeGroup ref='g'/></xs:attributeGroup>", "</xs:attributeGroup>"); }},
    {"selectNodes", "a number may have an exponent",
      [](Hooks& h) { call_as(h, L"number", L"number(substring-before(concat(", L", 'e'), 'e'))"); }},
    {"selectNodes", "a number may have a plus",
      [](Hooks& h) { call_as(h, L"number", L"number(translate(", L", '+', ''))"); }},
    {"selectNodes", "a number may have a comma",
      [](Hooks& h) { call_as(h, L"number", L"number(translate(", L", ',', '.'))"); }},
    {"selectNodes", "a no-break space is white space",
      [](Hooks& h) { call_as(h, L"normalize-space", L"normalize-space(translate(", L", '\u00A0', ' '))"); }},
    {"selectNodes", "a character beyond U+FFFF has the length of two",
      [](Hooks& h)
      {
        search_as(h,
          [](apString const& xpath)
          {
            return replaced(xpath, APSTRING("string-length(t)"),
              APSTRING("(2 * string-length(t) - string-length(translate(t, '\U0001D11E\U00010437', '')))"));
          });
      }},
    {"selectNodes", "a text that is 0 is false", [](Hooks& h) { call_as(h, L"boolean", L"boolean(number(", L"))"); }},
    {"selectNodes", "floor goes towards zero", [](Hooks& h) { call_as(h, L"floor", L"(", L" - 0)"); }},
    {"selectNodes", "what is contained is at the beginning",
      [](Hooks& h) { search_as(h, APSTRING("contains("), APSTRING("starts-with(")); }},
    {"selectNodes", "a sum leaves out what is no number",
      [](Hooks& h) { call_as(h, L"sum", L"sum((", L")[number() = number()])"); }},
    {"selectNodes", "functions take arguments that are too many",
      [](Hooks& h) { search_as(h, APSTRING("(1))"), APSTRING("())")); }},
    {"selectNodes", "a variable is an empty text", [](Hooks& h) { search_as(h, APSTRING("$x"), APSTRING("''")); }},
    {"selectNodes", "a slash at the end is left out",
      [](Hooks& h) { search_as(h, APSTRING("/) or"), APSTRING(") or")); }},
    {"selectNodes", "two signs of equality are one", [](Hooks& h) { search_as(h, APSTRING("=="), APSTRING("=")); }},
    {"selectNodes", "words of later versions are understood",
      [](Hooks& h) { search_as(h, APSTRING(" eq "), APSTRING(" = ")); }},
    {"selectNodes", "a numeral may have an exponent",
      [](Hooks& h) { search_as(h, APSTRING("(1e3)"), APSTRING("(1000)")); }},
    {"selectNodes", "an axis may begin with a capital",
      [](Hooks& h) { search_as(h, APSTRING("Child::"), APSTRING("child::")); }},
    {"selectNodes", "a path in an inner condition begins at its node",
      [](Hooks& h) { search_as(h, APSTRING("[. = //"), APSTRING("[. = .//")); }},
    {"selectNodes", "an inner condition sees the first node only",
      [](Hooks& h) { search_as(h, APSTRING("= //c]"), APSTRING("= (//c)[1]]")); }},
    {"selectNodes", "what is no set of nodes is counted, too",
      [](Hooks& h) { search_as(h, APSTRING("count('a')"), APSTRING("1")); }},
    {"selectNodes", "a prefix that nothing declares is left out",
      [](Hooks& h) { search_as(h, APSTRING("q:"), APSTRING("")); }},
    {"createElement", "a sign of multiplication is a letter",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return document->createElement(replaced(name, APSTRING("\u00D7"), APSTRING("x"))); };
      }},
    {"createElement", "a Greek question mark is a letter",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return document->createElement(replaced(name, APSTRING("\u037E"), APSTRING("x"))); };
      }},
    {"createElement", "what is no character is a letter",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return document->createElement(replaced(name, APSTRING("\uFFFE"), APSTRING("x"))); };
      }},
    {"createElement", "a character for private use is a letter",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return document->createElement(replaced(name, APSTRING("\U000F0000"), APSTRING("x"))); };
      }},
    {"createElement", "a joiner is no part of a name",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return name.find(APSTRING("\u200C")) >= 0 ? nullptr : Node(document->createElement(name)); };
      }},
    {"createElement", "the first character beyond U+FFFF is no letter",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return name.find(APSTRING("\U00010000")) >= 0 ? nullptr : Node(document->createElement(name)); };
      }},
    {"createElement", "the last letter is none",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return name.find(APSTRING("\U000EFFFF")) >= 0 ? nullptr : Node(document->createElement(name)); };
      }},
    {"createElement", "a tie is no part of a name",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return name.find(APSTRING("\u203F")) >= 0 ? nullptr : Node(document->createElement(name)); };
      }},
    {"createElement", "a middle dot may begin a name",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        {
          bool const begins = !name.empty() && name.view().front() == L'\u00B7';
          return document->createElement(begins ? APSTRING("x") + name : name);
        };
      }},
    {"getElementsByTagName", "a star is every name",
      [](Hooks& h)
      {
        h.by_name = [](Document const& document, apString const& name)
        {
          Element const root = name == APSTRING("*") ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->selectNodes(APSTRING("//*")) : document->getElementsByTagName(name);
        };
      }},
    {"getElementsByTagName", "the prefix does not count",
      [](Hooks& h)
      {
        h.by_name = [](Document const& document, apString const& name)
        {
          Element const root = document->getDocumentElement();
          List const found = document->getElementsByTagName(name);
          bool const is_plain =
            found->length() == 0 && root != nullptr && name.find(APSTRING(":")) < 0 && !name.empty();
          return is_plain ? root->selectNodes(APSTRING("//*[local-name() = '") + name + APSTRING("']")) : found;
        };
      }},
    {"getElementsByTagName", "an empty name is that of the root",
      [](Hooks& h)
      {
        h.by_name = [](Document const& document, apString const& name)
        {
          Element const root = document->getDocumentElement();
          return document->getElementsByTagName(name.empty() && root != nullptr ? root->getNodeName() : name);
        };
      }},
    {"setAttribute", "a name that begins wrong is mended",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& element, apString const& name, apString const& value)
        {
          element->setAttribute(name, value);
          if (!element->hasAttribute(name))
            element->setAttribute(APSTRING("_") + name, value);
        };
      }},
    {"createDocument", "the root holds an empty text",
      [](Hooks& h)
      {
        h.create = [](Factory const& factory, apString const& name)
        {
          Document const document = factory->createDocument(name);
          if (document != nullptr)
            document->getDocumentElement()->set_text(apString());
          return document;
        };
      }},
    {"set_text", "of a document takes out its root",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          if (document != nullptr && document->getDocumentElement() != nullptr)
            document->removeChild(document->getDocumentElement());
          n->set_text(text);
        };
      }},
    {"appendChild", "a root that is there already is refused",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          return is<axmDocument>(n) && is<axmElement>(child) && child->getParentNode() != nullptr &&
                     *child->getParentNode() == *n
                   ? nullptr
                   : n->appendChild(child);
        };
      }},
    {"appendChild", "what is refused is taken out of its place",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Node const parent = child != nullptr ? child->getParentNode() : nullptr;
          Node const appended = n->appendChild(child);
          if (appended == nullptr && parent != nullptr && !is<axmDocument>(child))
            parent->removeChild(child);
          return appended;
        };
      }},
    {"get_xml", "a comment with two hyphens is written as it is",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is<axmCommentNode>(n) ? APSTRING("<!--") + n->getNodeValue() + APSTRING("-->") : n->get_xml(); };
      }},
    {"get_xml", "an instruction that holds its end is written as it is",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          bool const is_one = is<axmProcessingInstruction>(n);
          return is_one ? APSTRING("<?") + n->getNodeName() + APSTRING(" ") + n->getNodeValue() + APSTRING("?>")
                        : n->get_xml();
        };
      }},
    {"get_xml", "a document without a root is a declaration",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString const xml = n->get_xml();
          return is<axmDocument>(n) && xml.empty() ? APSTRING("<?xml version=\"1.0\"?>") : xml;
        };
      }},
    {"get_xml", "an element that cannot be written is written empty",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString const xml = n->get_xml();
          return is<axmElement>(n) && xml.empty() ? APSTRING("<") + n->getNodeName() + APSTRING("/>") : xml;
        };
      }},
    {"saveDocument", "a next line is a line end",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const saved = factory->saveDocument(document, output);
          if (saved)
            output = bytes_of(with(text_of(output), "\xC2\x85", "\n"));
          return saved;
        };
      }},
    {"saveDocument", "a character for deletions is left out",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const saved = factory->saveDocument(document, output);
          if (saved)
            output = bytes_of(with(text_of(output), "\x7F", ""));
          return saved;
        };
      }},
    {"set_attribute", "exponents have three digits",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        {
          bool const is_set = n->set_attribute(name, value);
          apString text;
          if (is_set && n->get_attribute(name, text))
            n->set_attribute(name, replaced(text, APSTRING("e+"), APSTRING("e+0")));
          return is_set;
        };
      }},
    {"get_attribute", "an int may have digits of other scripts",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          bool const is_other = n->get_attribute(name, text) && text.find(APSTRING("\u0661")) >= 0;
          if (is_other)
            value = 1;
          return is_other || n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "a double may have a no-break space before it",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          apString text;
          bool const is_blank = n->get_attribute(name, text) && text.find(APSTRING("\u00A0")) == 0;
          if (is_blank)
            value = 1;
          return is_blank || n->get_attribute(name, value);
        };
      }},
  };
  return faults;
}
