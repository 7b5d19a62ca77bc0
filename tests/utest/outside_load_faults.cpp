// Faults of loading, saving, validating and searching, made up by somebody who knows the headers and not the suite.

#include "Outside.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace
{
// Texts split by a text's end: whether one ends with `left` and the one after it begins with `right`.
bool is_split(Document const& document, std::wstring_view left, std::wstring_view right)
{
  bool is_found = false;
  for_each_node(document,
    [&](Node const& node)
    {
      Node const next = node->getNextSibling();
      if (!is_text(node) || next == nullptr || !is_text(next))
        return;
      apString const first = node->getNodeValue();
      apString const second = next->getNodeValue();
      is_found = is_found || (first.view().size() >= left.size() &&
                               first.view().substr(first.view().size() - left.size()) == left &&
                               second.view().substr(0, right.size()) == right);
    });
  return is_found;
}

// The bytes from 0x80 to 0x9F of ISO-8859-1 as those who take it for the code page of a system have them.
std::string as_code_page(std::string const& text)
{
  std::string result;
  for (char const character : text)
    if (static_cast<unsigned char>(character) >= 0x80 && static_cast<unsigned char>(character) < 0xA0)
      result += "&#x20AC;";
    else
      result += character;
  return result;
}

bool is_latin(std::string const& text)
{
  return has(text.substr(0, 100), "ISO-8859-1") || has(text.substr(0, 100), "iso-8859-1");
}

// A document with what its entities hold in the place of the references to them.
std::string with_entities_in_place(std::string const& text)
{
  std::size_t const end = text.find("]>");
  std::string content = end == std::string::npos ? text : text.substr(end + 2);
  for (std::size_t at = 0; (at = text.find("<!ENTITY ", at)) < end; ++at)
  {
    std::size_t const name = at + 9;
    std::size_t const name_end = text.find(' ', name);
    std::size_t const value = text.find('"', name);
    std::size_t const value_end = value == std::string::npos ? value : text.find('"', value + 1);
    if (value_end < end && name_end + 1 == value)
      content =
        with(content, "&" + text.substr(name, name_end - name) + ";", text.substr(value + 1, value_end - value - 1));
  }
  return content;
}

// The texts of CDATA sections without blanks at their ends.
std::string with_trimmed_sections(std::string text)
{
  text = with(std::move(text), "<![CDATA[ ", "<![CDATA[");
  return with(std::move(text), " ]]>", "]]>");
}

apPath cut_at(apPath const& path, char mark)
{
  std::string const text = path.path().c_str();
  return apPath(text.substr(0, text.find(mark)).c_str());
}

// "a-b" as "a - b", but for the names of axes and functions.
std::wstring with_differences(std::wstring text)
{
  std::wstring const known = L" preceding-sibling following-sibling descendant-or-self ancestor-or-self starts-with "
                             L"processing-instruction substring-before substring-after string-length normalize-space "
                             L"local-name namespace-uri ";
  wchar_t const ends[] = L" /[]()@:=<>|,.*'\"";
  for (std::size_t at = text.find(L'-', 1); at != std::wstring::npos; at = text.find(L'-', at + 3))
  {
    std::size_t const begin = text.find_last_of(ends, at) + 1;
    std::size_t const end = std::min(text.find_first_of(ends, at), text.size());
    bool const is_name = begin < at && text[begin] >= L'a' && end > at + 1;
    if (is_name && known.find(L' ' + text.substr(begin, end - begin) + L' ') == std::wstring::npos)
      text.replace(at, 1, L" - ");
  }
  return text;
}

// "a or b and c" as "(a or b) and c".
std::wstring with_or_first(std::wstring const& text)
{
  std::size_t const open = text.find(L'[');
  std::size_t const either = text.find(L" or ");
  std::size_t const both = either == std::wstring::npos ? either : text.find(L" and ", either);
  if (open == std::wstring::npos || both == std::wstring::npos || open > either)
    return text;
  std::wstring const first = text.substr(open + 1, both - open - 1);
  bool const is_balanced =
    std::count(first.begin(), first.end(), L'(') == std::count(first.begin(), first.end(), L')') &&
    first.find_first_of(L"[]") == std::wstring::npos;
  return is_balanced ? text.substr(0, open + 1) + L"(" + first + L")" + text.substr(both) : text;
}

// "//a[1]" as "(//a)[1]".
std::wstring first_of_all(std::wstring text)
{
  std::size_t const at = text.find(L"[1]");
  if (text.substr(0, 2) != L"//" || at == std::wstring::npos || text.find_first_of(L"[(/", 2) != at)
    return text;
  return L"(" + text.substr(0, at) + L")" + text.substr(at);
}
}

std::vector<Fault> const& outside_load_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "ISO-8859-1 is taken for a code page",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return is_latin(text) ? as_code_page(text) : text; }); }},
    {"loadDocument", "a text of one blank that is written as a reference is dropped",
      [](Hooks& h) { read_as(h, ">&#32;<", "><"); }},
    {"loadDocument", "a text of no-break spaces is taken for white space",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError const&)
          {
            if (document == nullptr)
              return;
            for (Element const& element : items_of(document->getDocumentElement()->selectNodes(APSTRING("//*"))))
              if (Node const first = element->getFirstChild();
                  first != nullptr && is_text(first) && first->getNodeValue() == APSTRING("\u00A0"))
                element->removeChild(first);
          });
      }},
    {"loadDocument", "blanks at the ends of a CDATA section are gone",
      [](Hooks& h) { read_as(h, with_trimmed_sections); }},
    {"loadDocument", "a comment without characters is dropped", [](Hooks& h) { read_as(h, "<!---->", ""); }},
    {"loadDocument", "an instruction without content is dropped",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError const&)
          {
            std::vector<Node> empty;
            if (document != nullptr)
              for_each_node(document,
                [&](Node const& node)
                {
                  if (is<axmProcessingInstruction>(node) && node->getNodeValue().empty())
                    empty.push_back(node);
                });
            for (Node const& node : empty)
              node->getParentNode()->removeChild(node);
          });
      }},
    {"loadDocument", "the last declaration of an entity holds",
      [](Hooks& h)
      {
        read_as(h,
          [](std::string const& text)
          {
            std::size_t const first = text.find("<!ENTITY e ");
            std::size_t const end = first == std::string::npos ? first : text.find('>', first);
            bool const is_second = end != std::string::npos && has(std::string_view(text).substr(end), "<!ENTITY e ");
            return is_second ? text.substr(0, first) + text.substr(end + 1) : text;
          });
      }},
    {"loadDocument", "attributes of the type NMTOKENS are as those of the type CDATA",
      [](Hooks& h) { read_as(h, " NMTOKENS ", " CDATA "); }},
    {"loadDocument", "the second list of attributes for an element is passed over",
      [](Hooks& h)
      {
        read_as(h,
          [](std::string const& text)
          {
            std::size_t const first = text.find("<!ATTLIST");
            std::size_t const second = first == std::string::npos ? first : text.find("<!ATTLIST", first + 1);
            std::size_t const end = second == std::string::npos ? second : text.find('>', second);
            return end == std::string::npos ? text : text.substr(0, second) + text.substr(end + 1);
          });
      }},
    {"loadDocument", "of text U+FEFF is no character",
      [](Hooks& h)
      {
        read_as(h, [](std::string const& text)
          { return text.substr(0, 3) == "\xEF\xBB\xBF" ? text : with(text, "\xEF\xBB\xBF", ""); });
      }},
    {"loadDocument", "the last of all characters by its number is refused",
      [](Hooks& h)
      { refuse(h, [](std::string const& text) { return has(text, "&#x10FFFF;") || has(text, "&#1114111;"); }); }},
    {"loadDocument", "a tag that holds a line end before its end is refused",
      [](Hooks& h) { refuse(h, [](std::string const& text) { return has(text, "\n/>") || has(text, "\n>"); }); }},
    {"loadDocument", "blanks on either side of an equals sign are refused",
      [](Hooks& h) { refuse(h, [](std::string const& text) { return has(text, " = \"") || has(text, " = '"); }); }},
    {"loadDocument", "a notation is refused",
      [](Hooks& h) { refuse(h, [](std::string const& text) { return has(text, "<!NOTATION "); }); }},
    {"loadDocument", "the number of a character may have a big x", [](Hooks& h) { accept_as(h, "&#X", "&#x"); }},
    {"loadDocument", "attributes need no white space between them",
      [](Hooks& h)
      {
        accept_as(h,
          [](std::string text)
          {
            for (std::size_t at = 0; (at = text.find('"', at)) != std::string::npos; ++at)
              if (at + 1 < text.size() && text[at + 1] >= 'a' && text[at + 1] <= 'z' && at > 0 && text[at - 1] != '=')
                text.insert(at + 1, " ");
            return text;
          });
      }},
    {"loadDocument", "the end of a CDATA section may stand in text", [](Hooks& h) { accept_as(h, "]]>", "]]&gt;"); }},
    {"loadDocument", "the declaration may come after white space",
      [](Hooks& h)
      {
        accept_as(h, [](std::string const& text)
          { return has(text.substr(1), "<?xml ") ? text.substr(text.find("<?xml ")) : text; });
      }},
    {"loadDocument", "standalone may be anything",
      [](Hooks& h)
      {
        accept_as(h,
          [](std::string const& text)
          {
            std::size_t const at = text.find("standalone=");
            std::size_t const end = at == std::string::npos ? at : text.find("?>", at);
            return end == std::string::npos ? text : text.substr(0, at) + "standalone='yes'" + text.substr(end);
          });
      }},
    {"loadDocument", "an instruction may be called xml in big letters",
      [](Hooks& h)
      { accept_as(h, [](std::string const& text) { return with(with(text, "<?XML", "<?x"), "<?Xml", "<?x"); }); }},
    {"loadDocument", "an element may begin in an entity and end after it",
      [](Hooks& h) { accept_as(h, with_entities_in_place); }},
    {"loadDocument", "a second type of the document is passed over",
      [](Hooks& h)
      {
        accept_as(h,
          [](std::string const& text)
          {
            std::size_t const first = text.find("<!DOCTYPE");
            std::size_t const second = first == std::string::npos ? first : text.find("<!DOCTYPE", first + 1);
            std::size_t const end = second == std::string::npos ? second : text.find('>', second);
            return end == std::string::npos ? text : text.substr(0, second) + text.substr(end + 1);
          });
      }},
    {"loadDocument", "an error that was there already is cleared by a success",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              error = axmParseError();
          });
      }},
    {"loadDocument", "the second error in memory is told at the place of the first",
      [](Hooks& h)
      {
        auto const first = std::make_shared<axmParseError>();
        tell_of_bytes(h,
          [first](std::string const&, Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              return;
            if (first->line_number() < 0)
              *first = error;
            error.set_line_number(first->line_number());
          });
      }},
    {"loadDocument", "an error in memory bears the url that was there before",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          apString const url = error.url();
          Document const document = factory->loadDocument(data, options, error);
          if (document == nullptr && error.url().empty())
            error.set_url(url);
          return document;
        };
      }},
    {"loadDocument", "the url of an error has question marks for what is not ASCII",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(path, options, error);
          std::wstring url(error.url().view());
          std::replace_if(
            url.begin(), url.end(), [](wchar_t character) { return character > 127; }, L'?');
          if (document == nullptr)
            error.set_url(apString(std::wstring_view(url)));
          return document;
        };
      }},
    {"loadDocument", "the name of a file ends at a number sign",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                        axmParseError& error) { return factory->loadDocument(cut_at(path, '#'), options, error); };
      }},
    {"loadDocument", "the limit of expansions holds for all loads together",
      [](Hooks& h)
      {
        auto const used = std::make_shared<int>(0);
        h.load_bytes =
          [used](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          std::string const text = text_of(data);
          if (!has(text, "<!ENTITY") || text.size() > 10000)
            return factory->loadDocument(data, options, error);
          *used += static_cast<int>(std::count(text.begin(), text.end(), '&'));
          return options.entity_expansion_limit() < 50000 && *used > 1000 ? refused(error)
                                                                          : factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "in files a character on the border of 8192 bytes is lost",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          std::string text = contents_of(path);
          std::size_t begin = 8192;
          while (begin < text.size() && begin > 0 && (static_cast<unsigned char>(text[begin]) & 0xC0U) == 0x80)
            --begin;
          if (text.size() <= 8192 || begin == 8192)
            return factory->loadDocument(path, options, error);
          std::size_t end = begin + 1;
          while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
            ++end;
          text.replace(begin, end - begin, "?");
          return factory->loadDocument(bytes_of(text), options, error);
        };
      }},
    {"loadDocument", "an entity of a document that has a type elsewhere is nothing if it is not declared here",
      [](Hooks& h)
      {
        accept_as(h, [](std::string const& text)
          { return has(text, "SYSTEM") ? without(without(text, "<!DOCTYPE", ">"), "&", ";") : text; });
      }},
    {"saveDocument", "the end of a CDATA section in two texts is written as it is",
      [](Hooks& h)
      {
        save_as(h, [](Document const& document, std::string const& text)
          { return is_split(document, L"]]", L">") ? with(text, "]]&gt;", "]]>") : text; });
      }},
    {"saveDocument", "what stands after the root is written before it",
      [](Hooks& h)
      {
        save_as(h,
          [](Document const& document, std::string const& text)
          {
            Node const last = document->getLastChild();
            if (last == nullptr || !is<axmProcessingInstruction>(last))
              return text;
            std::string const instruction = last->get_xml().to_utf8().c_str();
            std::string const root = document->getDocumentElement()->get_xml().to_utf8().c_str();
            std::size_t const at = text.rfind(instruction);
            std::size_t const begin = text.find(root);
            if (at == std::string::npos || begin == std::string::npos)
              return text;
            return text.substr(0, begin) + instruction + text.substr(begin, at - begin);
          });
      }},
    {"saveDocument", "U+FEFF in a text is not written",
      [](Hooks& h)
      { save_as(h, [](Document const&, std::string const& text) { return with(text, "\xEF\xBB\xBF", ""); }); }},
    {"saveDocument", "texts beside each other are one in the tree afterwards",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const is_saved = factory->saveDocument(document, output);
          for (Node node = document; is_saved && node != nullptr; node = after(node, document))
            for (Node next = node->getNextSibling(); is_text(node) && next != nullptr && is_text(next);
                 next = node->getNextSibling())
            {
              node->set_text(node->getNodeValue() + next->getNodeValue());
              node->getParentNode()->removeChild(next);
            }
          return is_saved;
        };
      }},
    {"saveDocument", "no document at all is saved to memory as nothing",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          if (document != nullptr)
            return factory->saveDocument(document, output);
          output = apByteArray();
          return true;
        };
      }},
    {"saveDocument", "a document that cannot be saved leaves an empty file where one was",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        {
          bool const is_saved = factory->saveDocument(document, path);
          if (!is_saved && !contents_of(path).empty())
            write(path, "");
          return is_saved;
        };
      }},
    {"saveDocument", "a comment that ends with a hyphen is saved with a blank after it",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          std::vector<Node> changed;
          if (document != nullptr)
            for_each_node(document,
              [&](Node const& node)
              {
                if (is<axmCommentNode>(node) && !node->getNodeValue().empty() &&
                    node->getNodeValue().view().back() == L'-')
                  changed.push_back(node);
              });
          for (Node const& node : changed)
            node->set_text(node->getNodeValue() + APSTRING(" "));
          bool const is_saved = factory->saveDocument(document, output);
          for (Node const& node : changed)
            node->set_text(apString(node->getNodeValue().view().substr(0, node->getNodeValue().view().size() - 1)));
          return is_saved;
        };
      }},
    {"saveDocument", "to a folder says that it worked",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        {
          std::error_code ignored;
          return factory->saveDocument(document, path) ||
                 std::filesystem::is_directory(std::filesystem::u8path(path.path().c_str()), ignored);
        };
      }},
    {"validation", "maxExclusive lets the border pass",
      [](Hooks& h) { validate_as(h, "maxExclusive", "maxInclusive"); }},
    {"validation", "a keyref is not checked",
      [](Hooks& h)
      {
        validate_as(h, [](std::string const& text)
          { return without(without(text, "<xs:keyref", "</xs:keyref>"), "<xsd:keyref", "</xsd:keyref>"); });
      }},
    {"validation", "a key is no more than unique",
      [](Hooks& h)
      {
        validate_as(h, [](std::string const& text)
          { return with(with(text, "<xs:key ", "<xs:unique "), "</xs:key>", "</xs:unique>"); });
      }},
    {"validation", "the thirtieth of February is a day of every year",
      [](Hooks& h) { accept_as(h, "--02-30", "--02-28"); }},
    {"validation", "a duration may end with its T", [](Hooks& h) { accept_as(h, "DT<", "D<"); }},
    {"validation", "another value than the fixed one of an attribute is valid",
      [](Hooks& h)
      { validate_as(h, [](std::string const& text) { return without_in_attributes(text, " fixed=\""); }); }},
    {"validation", "an abstract element may stand in the document",
      [](Hooks& h) { validate_as(h, " abstract=\"true\"", ""); }},
    {"validation", "what is blocked may take the place all the same",
      [](Hooks& h) { validate_as(h, [](std::string const& text) { return without(text, " block=\"", "\""); }); }},
    {"validation", "what a strict wildcard lets in needs no declaration",
      [](Hooks& h)
      {
        validate_as(h,
          [](std::string const& text) {
            return with(with(text, " processContents=\"strict\"", ""), "<xs:any ", "<xs:any processContents=\"lax\" ");
          });
      }},
    {"validation", "any other namespace is any namespace",
      [](Hooks& h) { validate_as(h, "\"##other\"", "\"##any\""); }},
    {"validation", "what all groups ask for may be missing",
      [](Hooks& h)
      {
        validate_as(h,
          [](std::string text)
          {
            std::size_t const begin = text.find("<xs:all>");
            std::size_t const end = begin == std::string::npos ? begin : text.find("</xs:all>", begin);
            if (end == std::string::npos)
              return text;
            std::string const inside =
              with(text.substr(begin, end - begin), "<xs:element ", "<xs:element minOccurs=\"0\" ");
            return text.substr(0, begin) + inside + text.substr(end);
          });
      }},
    {"validation", "totalDigits is not checked",
      [](Hooks& h) { validate_as(h, [](std::string const& text) { return without(text, "<xs:totalDigits", ">"); }); }},
    {"validation", "two elements may have one ID", [](Hooks& h) { validate_as(h, "\"xs:ID\"", "\"xs:NCName\""); }},
    {"validation", "a part of a language may have nine letters",
      [](Hooks& h) { validate_as(h, "\"xs:language\"", "\"xs:NMTOKEN\""); }},
    {"validation", "infinity may have a plus", [](Hooks& h) { accept_as(h, "+INF", "INF"); }},
    {"validation", "local attributes may always be without their namespace",
      [](Hooks& h)
      {
        validate_as(h, [](std::string const& text)
          { return with(with(text, " form=\"qualified\"", ""), "attributeFormDefault=\"qualified\"", ""); });
      }},
    {"validation", "a group that must come twice may come once",
      [](Hooks& h)
      {
        validate_as(h, [](std::string const& text)
          { return with(text, "<xs:sequence minOccurs=\"2\"", "<xs:sequence minOccurs=\"1\""); });
      }},
    {"validation", "an unsigned byte may be 256", [](Hooks& h) { accept_as(h, ">256<", ">255<"); }},
    {"validation", "a gYear may have three digits", [](Hooks& h) { validate_as(h, "\"xs:gYear\"", "\"xs:integer\""); }},
    {"validation", "an NCName may have a colon", [](Hooks& h) { validate_as(h, "\"xs:NCName\"", "\"xs:Name\""); }},
    {"validation", "text may stand between the elements of every complex type",
      [](Hooks& h) { validate_as(h, "<xs:complexType>", "<xs:complexType mixed=\"true\">"); }},
    {"validation", "prohibited attributes are optional",
      [](Hooks& h) { validate_as(h, "use=\"prohibited\"", "use=\"optional\""); }},
    {"validation", "an element that is nil and of a fixed value may be nil",
      [](Hooks& h) { accept_as(h, "xsi:nil=\"true\"", "xsi:nil=\"false\""); }},
    {"selectNodes", "the first below each is the first of all", [](Hooks& h) { search_as(h, first_of_all); }},
    {"selectNodes", "positions before the context count from the front",
      [](Hooks& h) { search_as(h, L"preceding-sibling::*[1]", L"preceding-sibling::*[last()]"); }},
    {"selectNodes", "round goes down", [](Hooks& h) { search_as(h, L"round(", L"floor("); }},
    {"selectNodes", "a union comes in the order of its parts",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath) -> List
        {
          std::wstring const text(xpath.view());
          std::size_t const bar = text.find(L'|');
          if (bar == std::wstring::npos || text.find_first_of(L"[('\"") != std::wstring::npos)
            return e->selectNodes(xpath);
          std::vector<Element> found = items_of(e->selectNodes(apString(text.substr(0, bar))));
          for (Element const& item : items_of(e->selectNodes(apString(text.substr(bar + 1)))))
            if (std::none_of(found.begin(), found.end(), [&](Element const& one) { return *one == *item; }))
              found.push_back(item);
          return list_of(found);
        };
      }},
    {"selectNodes", "a remainder is never below zero", [](Hooks& h) { search_as(h, L"-5 mod ", L"5 mod "); }},
    {"selectNodes", "a language is not found by its first part",
      [](Hooks& h) { search_as(h, L"lang('en')", L"(ancestor-or-self::*/@xml:lang)[last()]='en'"); }},
    {"selectNodes", "the text that every text starts with is not found",
      [](Hooks& h) { search_as(h, L", '')", L", '\u0416')"); }},
    {"selectNodes", "every instruction is of the target asked for",
      [](Hooks& h)
      {
        search_as(h,
          [](std::wstring text)
          {
            std::size_t const at = text.find(L"processing-instruction('");
            std::size_t const end = at == std::wstring::npos ? at : text.find(L')', at);
            return end == std::wstring::npos ? text : text.replace(at, end - at, L"processing-instruction(");
          });
      }},
    {"selectNodes", "any node is no comment",
      [](Hooks& h) { search_as(h, L"/node()", L"/node()[not(self::comment())]"); }},
    {"selectNodes", "a line end in the expression is a mistake", [](Hooks& h) { search_as(h, L"\n", L"["); }},
    {"selectNodes", "a name with a hyphen is a difference", [](Hooks& h) { search_as(h, with_differences); }},
    {"selectNodes", "of more than 255 characters an expression finds nothing",
      [](Hooks& h)
      { search_as(h, [](std::wstring const& text) { return text.size() > 255 ? std::wstring(L"/..") : text; }); }},
    {"selectNodes", "and binds no closer than or", [](Hooks& h) { search_as(h, with_or_first); }},
    {"selectNodes", "an attribute with a prefix is not among all attributes",
      [](Hooks& h) { search_as(h, L"@*", L"@*[not(contains(name(), ':'))]"); }},
    {"selectSingleNode", "backwards it is the nearest, not the first in the document",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath)
        {
          bool const is_backwards = xpath.view().substr(0, 10) == L"ancestor::" ||
                                    xpath.view().substr(0, 10) == L"preceding:" ||
                                    xpath.view().substr(0, 10) == L"preceding-";
          List const found = is_backwards ? e->selectNodes(xpath) : nullptr;
          return found == nullptr || found->isEmpty() ? e->selectSingleNode(xpath) : found->at(found->length() - 1);
        };
      }},
    {"selectSingleNode", "an attribute is not found",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath)
        { return xpath.view().substr(0, 1) == L"@" ? nullptr : e->selectSingleNode(xpath); };
      }},
    {"selectSingleNode", "from an element in no tree nothing is found",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath)
        { return e->getParentNode() == nullptr ? nullptr : e->selectSingleNode(xpath); };
      }},
  };
  return faults;
}
