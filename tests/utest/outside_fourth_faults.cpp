// Faults of what proved the weakest: schemas with namespaces and of several files, documents written in other ways,
// conditions in conditions.

#include "Outside.h"

#include <axmCommentNode.h>

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

namespace
{
Change in_namespaces(Change const& change)
{
  return where_it_says("targetNamespace=", change);
}

// Only of files, or only of memory.
template <class Put>
void from_files(Hooks& hooks, Put put)
{
  auto const load_bytes = hooks.load_bytes;
  put(hooks);
  hooks.load_bytes = load_bytes;
}

// Documents that begin so, or hold that, are not validated.
void validate_none_of(Hooks& hooks, char const* part)
{
  load_by(hooks,
    [part](Loading const& loading)
    {
      axmLoadOptions options = loading.options;
      if (has(loading.text, part))
        options.set_validate_mode(axmValidateNone);
      return loading.with(options);
    });
}

// Of an element that has a parent now and had none, or the other way round, it is empty.
class MapOfOnePlace : public MapAs
{
public:
  MapOfOnePlace(Map const& given_map, Node const& given)
    : MapAs(given_map),
      element(given),
      parent(given->getParentNode())
  {
  }
  int getLength() override { return element->getParentNode() == parent ? MapAs::getLength() : 0; }

private:
  Node const element;
  Node const parent;
};

}

std::vector<Fault> const& outside_fourth_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "keys of an included schema are not asked",
      [](Hooks& h)
      { validate_included_as(h, by_rule("<xs:(key|unique|keyref) [^\\0]*?</xs:(key|unique|keyref)>", "")); }},
    {"loadDocument", "fixed attributes of an included schema are any",
      [](Hooks& h)
      { validate_included_as(h, [](std::string const& text) { return without_in_attributes(text, " fixed=\""); }); }},
    {"loadDocument", "what is abstract in an included schema is not",
      [](Hooks& h) { validate_included_as(h, by_rule("abstract=\"true\"", "")); }},
    {"loadDocument", "enumerations of an included schema are not asked",
      [](Hooks& h) { validate_included_as(h, by_rule("<xs:enumeration [^>]*/>", "")); }},
    {"loadDocument", "digits in an imported schema are not counted",
      [](Hooks& h) { validate_included_as(h, by_rule("<xs:(total|fraction)Digits [^>]*/>", "")); }},
    {"loadDocument", "a list in a schema with a namespace is one of texts",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("itemType=\"xs:\\w+\"", "itemType=\"xs:string\""))); }},
    {"loadDocument", "a union in a schema with a namespace is its first type",
      [](Hooks& h) { refuse_as(h, in_namespaces(by_rule("memberTypes=\"(\\S+) [^\"]*\"", "memberTypes=\"$1\""))); }},
    {"loadDocument", "an empty element of a namespace has no default",
      [](Hooks& h) { refuse_as(h, in_namespaces(by_rule("(<xs:element [^>]*) default=\"[^\"]*\"", "$1"))); }},
    {"loadDocument", "text stands anywhere in an element of a namespace",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:complexType>", "<xs:complexType mixed=\"true\">"))); }},
    {"loadDocument", "mixed content of a namespace is not mixed",
      [](Hooks& h) { refuse_as(h, in_namespaces(by_rule(" mixed=\"true\"", ""))); }},
    {"loadDocument", "a choice that may come twice may come more often",
      [](Hooks& h) { validate_as(h, by_rule("(<xs:choice[^>]*) maxOccurs=\"2\"", "$1 maxOccurs=\"unbounded\"")); }},
    {"loadDocument", "a sequence that must come twice may come once",
      [](Hooks& h) { validate_as(h, by_rule("(<xs:sequence[^>]*) minOccurs=\"2\"", "$1")); }},
    {"loadDocument", "identifiers of a namespace may be there twice",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("\"xs:ID\"", "\"xs:NCName\""))); }},
    {"loadDocument", "lists of references lead anywhere",
      [](Hooks& h) { validate_as(h, by_rule("\"xs:IDREFS\"", "\"xs:NMTOKENS\"")); }},
    {"loadDocument", "the text of a type that adds attributes is any",
      [](Hooks& h)
      {
        validate_as(h,
          by_rule("<xs:extension base=\"xs:(int|integer|decimal|date|double)\"", "<xs:extension base=\"xs:string\""));
      }},
    {"loadDocument", "zeros before a number count as its digits",
      [](Hooks& h)
      {
        refuse_as(h, by_rule("<xs:totalDigits value=\"(\\d+)\"/>",
                       "<xs:totalDigits value=\"$1\"/><xs:pattern value=\"-?(0|[1-9.][0-9.]*)\"/>"));
      }},
    {"loadDocument", "what blocks a substitution is read over",
      [](Hooks& h) { validate_as(h, by_rule("block=\"(substitution|#all)\"", "")); }},
    {"loadDocument", "an attribute of a group may be missing",
      [](Hooks& h) { validate_as(h, by_rule("(<xs:attributeGroup name=[^\\0]*?)use=\"required\"", "$1")); }},
    {"loadDocument", "from a file, patterns are not asked",
      [](Hooks& h) { from_files(h, [](Hooks& hooks) { validate_as(hooks, by_rule("<xs:pattern [^>]*/>", "")); }); }},
    {"loadDocument", "from a file, attributes are never required",
      [](Hooks& h) { from_files(h, [](Hooks& hooks) { validate_as(hooks, by_rule("use=\"required\"", "")); }); }},
    {"loadDocument", "from a file, numbers are texts",
      [](Hooks& h)
      {
        from_files(
          h, [](Hooks& hooks) { validate_as(hooks, by_rule("\"xs:(int|integer|decimal|byte)\"", "\"xs:string\"")); });
      }},
    {"loadDocument", "what has a document type is not validated", [](Hooks& h) { validate_none_of(h, "<!DOCTYPE"); }},
    {"loadDocument", "what is in UTF-16 is not validated", [](Hooks& h) { validate_none_of(h, "\xFF\xFE"); }},
    {"loadDocument", "what tells ISO-8859-1 is not validated", [](Hooks& h) { validate_none_of(h, "ISO-8859-1"); }},
    {"loadDocument", "a value from an entity is empty for a schema",
      [](Hooks& h) { judge_as(h, by_rule(">&[a-z]\\w*;<", "><")); }},
    {"loadDocument", "sections of characters are no part of a value for a schema",
      [](Hooks& h) { judge_as(h, by_rule("<!\\[CDATA\\[[^\\]]*\\]\\]>", "")); }},
    {"loadDocument", "a value ends at a comment for a schema",
      [](Hooks& h) { judge_as(h, by_rule(">([^<]+)<!--[^>]*-->[^<]+<", ">$1<")); }},
    {"loadDocument", "a value begins after an instruction for a schema",
      [](Hooks& h) { judge_as(h, by_rule(">[^<]+<\\?[^>]*\\?>([^<]+)<", ">$1<")); }},
    {"loadDocument", "a reference to a character is one question mark for a schema",
      [](Hooks& h) { judge_as(h, by_rule("&#x?[0-9A-Fa-f]+;", "?")); }},
    {"loadDocument", "an external entity can be used once",
      [](Hooks& h)
      {
        load_by(h,
          [rule = by_rule("<!ENTITY (\\w+) SYSTEM [^>]*>[^\\0]*&\\1;[^\\0]*&\\1;", "")](Loading const& loading)
          {
            bool const is_wrong = !loading.options.disable_entity_resolution() && rule(loading.text) != loading.text;
            return is_wrong ? refused(loading.error) : loading.as_it_is();
          });
      }},
    {"loadDocument", "lines of the text of an entity count where it is used",
      [](Hooks& h)
      {
        load_by(h,
          [rule = by_rule("<!ENTITY \\w+ ['\"][^'\"\n]*\n[^'\"]*['\"]", "")](Loading const& loading)
          {
            Document const document = loading.as_it_is();
            bool const is_wrong = document == nullptr && loading.error.line_number() > 0 &&
                                  rule(loading.text) != loading.text && has(loading.text, "&e;");
            if (is_wrong)
              loading.error.set_line_number(loading.error.line_number() + 1);
            return document;
          });
      }},
    {"saveDocument", "to a folder it is a success",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        {
          std::error_code ignored;
          return std::filesystem::is_directory(std::filesystem::u8path(path.path().c_str()), ignored) ||
                 factory->saveDocument(document, path);
        };
      }},
    {"saveDocument", "a comment that cannot be saved empties the file",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        {
          bool const is_saved = factory->saveDocument(document, path);
          if (!is_saved && document != nullptr && document->getDocumentElement() != nullptr &&
              !contents_of(path).empty())
            write(path, "");
          return is_saved;
        };
      }},
    {"selectNodes", "the last one in a condition of a condition is the first one",
      [](Hooks& h) { search_as(h, by_rule(L"(\\[[^\\]\\[]*)\\[last\\(\\)\\]", L"$1[1]")); }},
    {"selectNodes", "a place in a union is one in each part",
      [](Hooks& h) { search_as(h, by_rule(L"\\((/*\\w+) ?\\| ?(/*\\w+)\\)\\[(\\d)\\]", L"$1[$3]|$2[$3]")); }},
    {"selectNodes", "of several identifiers the first one is looked for",
      [](Hooks& h) { search_as(h, by_rule(L"id\\((['\"])(\\w+)\\s[^'\"]*['\"]\\)", L"id($1$2$1)")); }},
    {"selectNodes", "languages differ by case",
      [](Hooks& h) { search_as(h, by_rule(L"lang\\((['\"])[A-Z]+(-\\w+)?['\"]\\)", L"lang('none')")); }},
    {"selectNodes", "a division by zero is no expression",
      [](Hooks& h) { search_as(h, by_rule(L"\\d+ div 0\\b", L"$none")); }},
    {"selectNodes", "a large number is written with its exponent",
      [](Hooks& h) { search_as(h, by_rule(L"string\\(10{21,}\\)", L"'1e+21'")); }},
    {"hasChildNodes", "an empty text before a comment does not count",
      [](Hooks& h)
      {
        h.has_children = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          bool const is_wrong = is_empty_text(first) && is<axmCommentNode>(first->getNextSibling()) &&
                                first->getNextSibling()->getNextSibling() == nullptr;
          return !is_wrong && n->hasChildNodes();
        };
      }},
    {"removeChild", "what is taken out of the document is not its own any more",
      [](Hooks& h)
      {
        auto const taken = std::make_shared<std::pair<Node, Document>>();
        h.remove = [taken](Node const& n, Node const& child)
        {
          Node const result = n->removeChild(child);
          if (result != nullptr && is<axmDocument>(n))
            *taken = {result, nullptr};
          return result;
        };
        h.owner = [taken](Node const& n) { return same(taken->first, n) ? nullptr : n->getOwnerDocument(); };
      }},
    {"selectNodes", "the first ancestor of an attribute is the outermost",
      [](Hooks& h) { search_as(h, by_rule(L"(@\\w+/ancestor::\\*)\\[1\\]", L"$1[last()]")); }},
    {"selectNodes", "a number with a blank after it is none",
      [](Hooks& h) { search_as(h, by_rule(L"number\\('(-?[\\d.]+)\\s+'\\)", L"number('')")); }},
    {"getAttributes", "a map that is held while its element moves is empty",
      [](Hooks& h)
      {
        h.attributes = [](Node const& node)
        {
          Map const map = node->getAttributes();
          return map == nullptr ? map : std::make_shared<MapOfOnePlace>(map, node);
        };
      }},
  };
  return faults;
}
