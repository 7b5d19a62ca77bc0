// Faults of validating and searching that show in combinations only.

#include "Outside.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace
{
Change in_namespaces(Change const& change)
{
  return where_it_says("targetNamespace=", change);
}

Change in_derivations(Change const& change)
{
  return where_it_says("<xs:extension", change);
}

Change together(std::vector<Change> const& changes)
{
  return [changes](std::string text)
  {
    for (Change const& change : changes)
      text = change(text);
    return text;
  };
}

bool begins_with_axis(apString const& xpath)
{
  return has(xpath, L"preceding") || has(xpath, L"ancestor");
}
}

std::vector<Fault> const& outside_third_schema_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "patterns of a schema with a namespace are not asked",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:pattern [^>]*/>", ""))); }},
    {"loadDocument", "least values of a schema with a namespace are not asked",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:min(In|Ex)clusive [^>]*/>", ""))); }},
    {"loadDocument", "digits of a schema with a namespace are not counted",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:(total|fraction)Digits [^>]*/>", ""))); }},
    {"loadDocument", "keys of a schema with a namespace are not asked",
      [](Hooks& h)
      { validate_as(h, in_namespaces(by_rule("<xs:(key|unique|keyref) [^\\0]*?</xs:(key|unique|keyref)>", ""))); }},
    {"loadDocument", "what substitutes an element of a namespace may be abstract",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("abstract=\"true\"", ""))); }},
    {"loadDocument", "fixed attributes of a schema with a namespace are any",
      [](Hooks& h) {
        validate_as(h, in_namespaces([](std::string const& text) { return without_in_attributes(text, " fixed=\""); }));
      }},
    {"loadDocument", "enumerations of a schema with a namespace are not asked",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:enumeration [^>]*/>", ""))); }},
    {"loadDocument", "the lengths of lists in a schema with a namespace are not asked",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:(minL|maxL|l)ength [^>]*/>", ""))); }},
    {"loadDocument", "elements of a group of all in a schema with a namespace may be missing",
      [](Hooks& h) { validate_as(h, in_namespaces(by_rule("<xs:all>", "<xs:all minOccurs=\"0\">"))); }},
    {"loadDocument", "an attribute that is required in a derived type may be missing",
      [](Hooks& h) { validate_as(h, in_derivations(by_rule("use=\"required\"", ""))); }},
    {"loadDocument", "a type in an included schema has no patterns",
      [](Hooks& h) { validate_included_as(h, by_rule("<xs:pattern [^>]*/>", "")); }},
    {"loadDocument", "an element in an included schema may be missing",
      [](Hooks& h) { validate_included_as(h, by_rule("(<xs:element (name|ref)=\"[^\"]*\")", "$1 minOccurs=\"0\"")); }},
    {"loadDocument", "an attribute in an imported schema is never required",
      [](Hooks& h) { validate_included_as(h, by_rule("use=\"required\"", "")); }},
    {"loadDocument", "the facets of a redefined type are those of both at once",
      [](Hooks& h) { validate_included_as(h, by_rule("<xs:(max|min)(Inclusive|Exclusive|Length) [^>]*/>", "")); }},
    {"loadDocument", "numbers in an imported schema are texts",
      [](Hooks& h)
      { validate_included_as(h, by_rule("\"xs:(int|integer|decimal|date|double|boolean)\"", "\"xs:string\"")); }},
    {"loadDocument", "local elements are found in both forms",
      [](Hooks& h) { validate_as(h, by_rule("elementFormDefault=\"qualified\"", "")); }},
    {"loadDocument", "local attributes are found without their namespace",
      [](Hooks& h) { validate_as(h, by_rule("attributeFormDefault=\"qualified\"", "")); }},
    {"loadDocument", "the form of an attribute of its own is that of all",
      [](Hooks& h) { validate_as(h, by_rule("(<xs:attribute [^>]*)form=\"qualified\"", "$1")); }},
    {"loadDocument", "an element that is nil may have content",
      [](Hooks& h) { accept_as(h, by_rule("xsi:nil=\"(true|1)\"", "")); }},
    {"loadDocument", "an element is nil by one",
      [](Hooks& h) { judge_as(h, by_rule("xsi:nil=\"1\"", "xsi:nil=\"false\"")); }},
    {"loadDocument", "xsi:nil=\"false\" needs what can be nil, and yet may stand anywhere",
      [](Hooks& h) { judge_as(h, by_rule("xsi:nil=\"(false|0)\"", "")); }},
    {"loadDocument", "a type that is not derived is the one declared",
      [](Hooks& h) { accept_as(h, by_rule("xsi:type=\"[^\"]*\"", "")); }},
    {"loadDocument", "a type with blanks around it in xsi:type is none",
      [](Hooks& h) { judge_as(h, by_rule("xsi:type=\"\\s+([^\"]*)\"", "xsi:type=\"-$1\"")); }},
    {"loadDocument", "what blocks a derivation is read where it stands alone only",
      [](Hooks& h) { validate_as(h, by_rule("block=\"(extension restriction|restriction extension|#all)\"", "")); }},
    {"loadDocument", "a fixed value is compared as a text",
      [](Hooks& h)
      {
        refuse_as(h, by_rule("type=\"xs:(decimal|int|integer|float|double|boolean)\"([^>]*) fixed=",
                       "type=\"xs:string\"$2 fixed="));
      }},
    {"loadDocument", "an enumeration of numbers is compared as texts",
      [](Hooks& h)
      { refuse_as(h, by_rule("base=\"xs:(decimal|float|double)\">(\\s*<xs:enum)", "base=\"xs:string\">$2")); }},
    {"loadDocument", "the second field of a constraint is not asked",
      [](Hooks& h) { refuse_as(h, by_rule("(<xs:field [^>]*/>)\\s*<xs:field [^>]*/>", "$1")); }},
    {"loadDocument", "a selector of several paths is the first one",
      [](Hooks& h) { validate_as(h, by_rule("(<xs:selector xpath=\"[^\"|]*)\\|[^\"]*\"", "$1\"")); }},
    {"loadDocument", "a selector of all descendants finds the children",
      [](Hooks& h) { validate_as(h, by_rule("(<xs:selector xpath=\")\\.//", "$1")); }},
    {"loadDocument", "a key whose field is missing is unique",
      [](Hooks& h) {
        validate_as(h, together({by_rule("<xs:key ", "<xs:unique "), by_rule("</xs:key>", "</xs:unique>")}));
      }},
    {"loadDocument", "a character beyond U+FFFF counts twice for a length",
      [](Hooks& h) { judge_as(h, by_rule("[\xF0-\xF4][\x80-\xBF][\x80-\xBF][\x80-\xBF]", "??")); }},
    {"loadDocument", "zeros after the point count as digits",
      [](Hooks& h)
      {
        refuse_as(h, by_rule("<xs:fractionDigits value=\"(\\d+)\"/>",
                       "<xs:fractionDigits value=\"$1\"/><xs:pattern value=\"[^.]*|.*[^0]|.*\\\\.0\"/>"));
      }},
    {"loadDocument", "a zone may be beyond fourteen hours",
      [](Hooks& h) { accept_as(h, by_rule("[+-]1[4-9]:[0-5]\\d\"", "Z\"")); }},
    {"loadDocument", "a day that a month does not have is its last one",
      [](Hooks& h) { accept_as(h, by_rule("-(02|04|06|09|11)-(29|30|31)", "-$1-28")); }},
    {"loadDocument", "midnight at the end of a day is refused",
      [](Hooks& h) { judge_as(h, by_rule("T24:00:00", "T24:00:01")); }},
    {"loadDocument", "a year of more than four digits may begin with zeros",
      [](Hooks& h) { accept_as(h, by_rule("([\">-])0+(\\d{4}-\\d\\d-\\d\\d)", "$1$2")); }},
    {"loadDocument", "an infinity may have a plus", [](Hooks& h) { accept_as(h, by_rule("\\+INF", "INF")); }},
    {"loadDocument", "what a lax wildcard finds is never asked",
      [](Hooks& h) { validate_as(h, by_rule("processContents=\"lax\"", "processContents=\"skip\"")); }},
    {"loadDocument", "a wildcard that says nothing is lax",
      [](Hooks& h)
      {
        validate_as(
          h, by_rule("<xs:any(?![^>]*processContents)(Attribute)?([ /])", "<xs:any$1 processContents=\"lax\"$2"));
      }},
    {"loadDocument", "a wildcard of a list of namespaces is one of any",
      [](Hooks& h) {
        validate_as(h, by_rule("namespace=\"[^\"#]* [^\"]*\"( processContents=\"\\w+\")?", "namespace=\"##any\" $1"));
      }},
    {"loadDocument", "what a wildcard skips is asked where it is declared",
      [](Hooks& h) { refuse_as(h, by_rule("processContents=\"skip\"", "processContents=\"lax\"")); }},
    {"loadDocument", "an attribute that is prohibited in a restriction may be there",
      [](Hooks& h) { validate_as(h, by_rule("use=\"prohibited\"", "")); }},
    {"loadDocument", "more than one member of a choice may be there where the choice is in a sequence",
      [](Hooks& h)
      { validate_as(h, by_rule("(<xs:sequence>\\s*)<xs:choice>", "$1<xs:choice maxOccurs=\"unbounded\">")); }},
    {"loadDocument", "blanks around a number in an attribute are refused",
      [](Hooks& h) { judge_as(h, by_rule("=\"\\s+(-?\\d+)\\s*\"", "=\"x$1\"")); }},
    {"loadDocument", "a name with a prefix that is not declared is a good value",
      [](Hooks& h) { validate_as(h, by_rule("\"xs:QName\"", "\"xs:token\"")); }},
    {"loadDocument", "a document that names a schema that is not there fails",
      [](Hooks& h)
      {
        load_by(h,
          [](Loading const& loading)
          {
            bool const has_hint =
              has(loading.text, "noNamespaceSchemaLocation=") || has(loading.text, ":schemaLocation=");
            bool const is_wrong = loading.is_validated() && has_hint && loading.options.num_external_schemas() == 0;
            return is_wrong && loading.options.no_namespace_schema().path().c_str()[0] == 0 ? refused(loading.error)
                                                                                            : loading.as_it_is();
          });
      }},
    {"loadDocument", "the schema of no namespace is not asked where there are two others",
      [](Hooks& h)
      {
        load_by(h,
          [](Loading const& loading)
          {
            axmLoadOptions options = loading.options;
            if (options.num_external_schemas() > 1)
              options.set_no_namespace_schema(apPath());
            return loading.with(options);
          });
      }},
    {"loadDocument", "a document that breaks a schema breaks it in its first line",
      [](Hooks& h)
      {
        load_by(h,
          [](Loading const& loading)
          {
            Document const document = loading.as_it_is();
            if (document == nullptr && loading.is_validated() && loading.error.line_number() > 2)
              loading.error.set_line_number(1);
            return document;
          });
      }},
  };
  return faults;
}

std::vector<Fault> const& outside_third_search_faults()
{
  static std::vector<Fault> const faults = {
    {"selectNodes", "the first ancestor is the one at the top",
      [](Hooks& h) { search_as(h, by_rule(L"(ancestor(-or-self)?::[\\w*]+(\\(\\))?)\\[1\\]", L"$1[last()]")); }},
    {"selectNodes", "the second one before is the second one from the first",
      [](Hooks& h) {
        search_as(h, by_rule(L"preceding-sibling::([\\w*]+(\\(\\))?)\\[2\\]", L"preceding-sibling::$1[last() - 1]"));
      }},
    {"selectNodes", "what follows are siblings",
      [](Hooks& h) { search_as(h, by_rule(L"following::", L"following-sibling::")); }},
    {"selectNodes", "what precedes holds the ancestors, too",
      [](Hooks& h) { search_as(h, by_rule(L"^preceding::(\\w+|\\*)$", L"preceding::$1|ancestor::$1")); }},
    {"selectNodes", "the first one of all is the first one of each parent",
      [](Hooks& h) { search_as(h, by_rule(L"\\((//[^()]*)\\)\\[1\\]", L"$1[1]")); }},
    {"selectNodes", "a number in a condition of a condition is true",
      [](Hooks& h) { search_as(h, by_rule(L"(\\[[^\\]\\[]*)\\[\\d+\\]", L"$1")); }},
    {"selectNodes", "a set is equal to a text if its first node is",
      [](Hooks& h) { search_as(h, by_rule(L"\\[(\\w+) *= *(['\"])", L"[string($1)=$2")); }},
    {"selectNodes", "a set differs from a text if no node is equal",
      [](Hooks& h) { search_as(h, by_rule(L"\\[(@?\\w+|\\.) *!= *('[^']*'|\"[^\"]*\")\\]", L"[not($1=$2)]")); }},
    {"selectNodes", "an attribute that is not there differs from any text",
      [](Hooks& h) { search_as(h, by_rule(L"\\[@(\\w+) *!= *('[^']*')\\]", L"[string(@$1)!=$2]")); }},
    {"selectNodes", "numbers may have exponents",
      [](Hooks& h) { search_as(h, by_rule(L"number\\('(\\d+)[eE](\\d)'\\)", L"number('$1')")); }},
    {"selectNodes", "a half is rounded to the even one",
      [](Hooks& h) { search_as(h, by_rule(L"round\\((2|4|0)\\.5\\)", L"$1")); }},
    {"selectNodes", "the half below zero is rounded away from it",
      [](Hooks& h) { search_as(h, by_rule(L"round\\(-(\\d)\\.5\\)", L"(-$1 - 1)")); }},
    {"selectNodes", "a remainder has the sign of the divisor",
      [](Hooks& h) { search_as(h, by_rule(L"-(\\d+) mod (\\d+)", L"((($2 - ($1 mod $2)) mod $2))")); }},
    {"selectNodes", "the places of a part of a text are cut, not rounded",
      [](Hooks& h) { search_as(h, by_rule(L"substring\\(([^,()]*), *(\\d+)\\.\\d+", L"substring($1, $2")); }},
    {"selectNodes", "a character beyond U+FFFF has the length two",
      [](Hooks& h)
      {
        search_as(h, by_rule(L"string-length\\(\\) *= *1\\b",
                       L"string-length() = 1 and not(contains(., '\U00010437') or contains(., '\U0001F600'))"));
      }},
    {"selectNodes", "a variable of any name is an empty text",
      [](Hooks& h) { search_as(h, by_rule(L"\\$\\w+", L"''")); }},
    {"selectNodes", "a condition that has no end ends with the expression",
      [](Hooks& h) { search_as(h, by_rule(L"^([^\\]]*\\[[^\\]\\[]+)$", L"$1]")); }},
    {"selectNodes", "a function with one argument too many takes the first ones",
      [](Hooks& h) { search_as(h, by_rule(L"(position|last|true|false)\\([^()]+\\)", L"$1()")); }},
    {"selectNodes", "a function that is not known is true",
      [](Hooks& h)
      {
        search_as(
          h, by_rule(L"\\b(foo|bar|matches|ends-with|lower-case|upper-case|exists|empty)\\(([^()]*)\\)", L"true()"));
      }},
    {"selectNodes", "a slash at the end changes nothing",
      [](Hooks& h) { search_as(h, by_rule(L"([\\w*\\]])/$", L"$1")); }},
    {"selectNodes", "a place between two numbers is rounded",
      [](Hooks& h) { search_as(h, by_rule(L"\\[(\\d)\\.\\d+\\]", L"[$1]")); }},
    {"selectNodes", "a text as a condition is a place",
      [](Hooks& h) { search_as(h, by_rule(L"\\[['\"](\\d)['\"]\\]", L"[$1]")); }},
    {"selectNodes", "elements with the names of operators are not found",
      [](Hooks& h) { search_as(h, by_rule(L"(^|/)(div|mod|and|or)\\b", L"$1none")); }},
    {"selectNodes", "tabs and line ends are no white space",
      [](Hooks& h) { search_as(h, by_rule(L"[\t\n\r]", L"?")); }},
    {"selectNodes", "a hyphen in a name is a minus",
      [](Hooks& h) { search_as(h, by_rule(L"(//|^)([a-z])-([a-z])\\b(?!:)", L"$1$2 - $3")); }},
    {"selectNodes", "a comment beside the root is not found",
      [](Hooks& h) { search_as(h, by_rule(L"//comment\\(\\)", L"/*//comment()")); }},
    {"selectNodes", "an instruction is found by any name",
      [](Hooks& h)
      { search_as(h, by_rule(L"processing-instruction\\(['\"]\\w+['\"]\\)", L"processing-instruction()")); }},
    {"selectNodes", "a prefix is compared as it is written",
      [](Hooks& h) { search_as(h, by_rule(L"(//|^)(\\w+):([\\w]+)(?![\\w:(-])", L"$1*[name()='$2:$3']")); }},
    {"selectNodes", "the name of an element of a prefix is that without it",
      [](Hooks& h) { search_as(h, by_rule(L"\\bname\\(\\)", L"local-name()")); }},
    {"selectNodes", "the same search once more is the same list while only attributes have changed",
      [](Hooks& h)
      {
        auto const last = std::make_shared<std::pair<apString, List>>();
        auto const asked = std::make_shared<Element>();
        auto const forget = [asked] { asked->reset(); };
        h.append = [forget](Node const& n, Node const& child)
        {
          forget();
          return n->appendChild(child);
        };
        h.insert = [forget](Node const& n, Node const& child, Node const& before)
        {
          forget();
          return n->insertBefore(child, before);
        };
        h.replace = [forget](Node const& n, Node const& child, Node const& old)
        {
          forget();
          return n->replaceChild(child, old);
        };
        h.remove = [forget](Node const& n, Node const& child)
        {
          forget();
          return n->removeChild(child);
        };
        h.set_text = [forget](Node const& n, apString const& text)
        {
          forget();
          n->set_text(text);
        };
        h.select = [last, asked](Element const& e, apString const& xpath)
        {
          if (!same(*asked, e) || last->first != xpath)
            *last = {xpath, e->selectNodes(xpath)};
          *asked = e;
          return list_of(items_of(last->second));
        };
      }},
    {"selectSingleNode", "of what stands before it is the nearest one",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath)
        {
          if (!begins_with_axis(xpath))
            return e->selectSingleNode(xpath);
          List const list = e->selectNodes(xpath);
          return list->length() > 0 ? Node(list->at(list->length() - 1)) : Node();
        };
      }},
    {"selectSingleNode", "after a wrong expression the next one finds nothing",
      [](Hooks& h)
      {
        auto const is_broken = std::make_shared<bool>(false);
        h.select_single = [is_broken](Element const& e, apString const& xpath)
        {
          if (std::exchange(*is_broken, false))
            return Node();
          *is_broken = has(xpath, L"[") && !has(xpath, L"]");
          return e->selectSingleNode(xpath);
        };
      }},
    {"selectNodes", "a union is in the order in which it is written",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        {
          std::wstring const text(xpath.view());
          std::size_t const bar = text.find(L'|');
          if (bar == std::wstring::npos || bar != text.rfind(L'|') || text.find_first_of(L"[(") != std::wstring::npos)
            return e->selectNodes(xpath);
          std::vector<Element> items = items_of(e->selectNodes(apString(text.substr(0, bar))));
          for (Element const& item : items_of(e->selectNodes(apString(text.substr(bar + 1)))))
            if (std::none_of(items.begin(), items.end(), [&](Element const& other) { return same(other, item); }))
              items.push_back(item);
          return list_of(items);
        };
      }},
    {"getElementsByTagName", "a prefix of the same namespace will do",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          std::wstring const text(name.view());
          std::size_t const colon = text.find(L':');
          Element const root = d->getDocumentElement();
          if (colon == std::wstring::npos || root == nullptr ||
              !root->hasAttribute(apString(L"xmlns:" + text.substr(0, colon))))
            return d->getElementsByTagName(name);
          List const list = root->selectNodes(apString(L"//" + text));
          return list->length() > 0 ? list : d->getElementsByTagName(name);
        };
      }},
  };
  return faults;
}
