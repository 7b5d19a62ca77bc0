// A second round of faults by somebody who knows the headers and not the suite: of files, of what is kept from one call
// for the next, of attributes as nodes, of what schemas allow and an engine refuses.

#include "Outside.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace
{
// Loads other text than what is in the file, unless that names other files.
void read_file_as(Hooks& hooks, Change const& change)
{
  hooks.load_file = [change](
                      Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  {
    std::string const text = contents_of(path);
    std::string const changed = has(text, "SYSTEM") ? text : change(text);
    return text == changed ? factory->loadDocument(path, options, error)
                           : factory->loadDocument(bytes_of(changed), options, error);
  };
}

void refuse_file(Hooks& hooks, std::function<bool(apPath const& path)> const& is_refused)
{
  hooks.load_file = [is_refused](
                      Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  { return is_refused(path) ? refused(error) : factory->loadDocument(path, options, error); };
}

// Changes the options of loads from memory.
void load_with(Hooks& hooks, std::function<void(axmLoadOptions& options)> const& change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& given, axmParseError& error)
  {
    axmLoadOptions options = given;
    change(options);
    return factory->loadDocument(data, options, error);
  };
}

class MapOfPlainNames : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    bool const has_prefix = node != nullptr && has(node->getNodeName(), L":");
    return has_prefix ? nullptr : MapAs::setNamedItem(std::move(node));
  }
};

class MapOfLast : public MapAs
{
public:
  using MapAs::MapAs;
  Node removeNamedItem(apString const& name) override
  {
    bool const is_last = map->getLength() == 1;
    Node const removed = MapAs::removeNamedItem(name);
    return is_last ? nullptr : removed;
  }
};

class MapOfOtherLetters : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override
  {
    Node const found = MapAs::getNamedItem(name);
    return found != nullptr || name.view() != L"\u0424" ? found : MapAs::getNamedItem(APSTRING("\u0444"));
  }
};

class MapOfCopies : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    Node const present = node != nullptr && is_attribute(node) ? map->getNamedItem(node->getNodeName()) : nullptr;
    if (present == nullptr || *present == *node)
      return MapAs::setNamedItem(std::move(node));
    present->set_text(node->getNodeValue());
    return present;
  }
};

class ListOfElements : public ListAs
{
public:
  using ListAs::ListAs;
  bool isEmpty() const override
  {
    auto* const list = const_cast<ListOfElements*>(this);
    return length() == 0 || (length() == 1 && list->at(0)->getNodeName() == APSTRING("#comment"));
  }
};

class ListThatEnds : public ListAs
{
public:
  using ListAs::ListAs;
  bool invalid() const override { return length() == 1 ? false : ListAs::invalid(); }
};

// The part of a schema between quotes after `name`, changed.
std::string with_values(std::string text, std::string const& name, Change const& change)
{
  for (std::size_t at = 0; (at = text.find(" " + name + "=\"", at)) != std::string::npos; ++at)
  {
    std::size_t const begin = at + name.size() + 3;
    std::size_t const end = text.find('"', begin);
    if (end == std::string::npos)
      return text;
    text.replace(begin, end - begin, change(text.substr(begin, end - begin)));
  }
  return text;
}

std::string up_to(std::string const& text, char end)
{
  return text.substr(0, text.find(end));
}

Node last_below(Node const& node)
{
  Node last = node;
  while (last->getLastChild() != nullptr)
    last = last->getLastChild();
  return last;
}
}

std::vector<Fault> const& outside_second_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "in files a line end of two characters stays two",
      [](Hooks& h) { read_file_as(h, [](std::string const& text) { return with(text, ">\r\n", ">&#13;\n"); }); }},
    {"loadDocument", "a file with a byte order mark of UTF-8 is refused",
      [](Hooks& h)
      { refuse_file(h, [](apPath const& path) { return contents_of(path).substr(0, 3) == "\xEF\xBB\xBF"; }); }},
    {"loadDocument", "a file in UTF-16 with the high byte first is refused",
      [](Hooks& h)
      { refuse_file(h, [](apPath const& path) { return contents_of(path).substr(0, 2) == "\xFE\xFF"; }); }},
    {"loadDocument", "the limit of expansions does not hold for files",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& given, axmParseError& error)
        {
          axmLoadOptions options = given;
          options.set_entity_expansion_limit(std::max(given.entity_expansion_limit(), 1000));
          return factory->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "in files a text of one blank is dropped",
      [](Hooks& h) { read_file_as(h, [](std::string const& text) { return with(text, "> <", "><"); }); }},
    {"loadDocument", "in files comments before the root are dropped",
      [](Hooks& h)
      {
        read_file_as(h,
          [](std::string const& text)
          {
            std::size_t const at = text.find("<!--");
            std::size_t const end = at == std::string::npos ? at : text.find("-->", at);
            bool const is_first = at != std::string::npos && text.find('<') == at && end != std::string::npos;
            return is_first ? text.substr(0, at) + text.substr(end + 3) : text;
          });
      }},
    {"loadDocument", "the line of an error in a file counts a return and a line feed twice",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(path, options, error);
          std::string const text = contents_of(path);
          if (document == nullptr && error.line_number() > 1 && has(text, "\r\n"))
            error.set_line_number(2 * error.line_number() - 1);
          return document;
        };
      }},
    {"loadDocument", "a load after a document that a schema refused is refused, too",
      [](Hooks& h)
      {
        auto const is_next = std::make_shared<bool>(false);
        h.load_bytes = [is_next](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                         axmParseError& error)
        {
          if (std::exchange(*is_next, false))
            return refused(error);
          Document const document = factory->loadDocument(data, options, error);
          *is_next = document == nullptr && options.validate_mode() == axmValidateWithSchemas;
          return document;
        };
      }},
    {"loadDocument", "a small limit of expansions holds for the loads after it that have the default",
      [](Hooks& h)
      {
        auto const limit = std::make_shared<int>(50000);
        load_with(h,
          [limit](axmLoadOptions& options)
          {
            if (options.entity_expansion_limit() != 50000)
              *limit = options.entity_expansion_limit();
            options.set_entity_expansion_limit(*limit);
          });
      }},
    {"loadDocument", "external entities are read after a load that was allowed to",
      [](Hooks& h)
      {
        auto const is_allowed = std::make_shared<bool>(false);
        h.load_file = [is_allowed](
                        Factory const& factory, apPath const& path, axmLoadOptions const& given, axmParseError& error)
        {
          axmLoadOptions options = given;
          *is_allowed = *is_allowed || !given.disable_entity_resolution();
          options.set_disable_entity_resolution(!*is_allowed);
          return factory->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "an error that is there already is not written over",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          axmParseError fresh;
          Document const document = factory->loadDocument(data, options, fresh);
          if (document == nullptr && error.invalid())
            error = fresh;
          return document;
        };
      }},
    {"loadDocument", "a schema is not looked at where the document is in a file",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions const& given, axmParseError& error)
        {
          axmLoadOptions options = given;
          if (given.no_namespace_schema().path().length() > 0 && given.num_external_schemas() == 0)
            options.set_validate_mode(axmValidateNone);
          return factory->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "the default of an attribute is not there where the element has another attribute",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError const&)
          {
            if (document == nullptr || !has(text, "<!ATTLIST"))
              return;
            for (Element const& element : items_of(document->getDocumentElement()->selectNodes(APSTRING("//*"))))
              for (apString const& name : names_of_attributes(element))
                if (names_of_attributes(element).size() > 1 && !has(text, std::string(name.to_utf8().c_str()) + "=") &&
                    !has(text, std::string(name.to_utf8().c_str()) + " ="))
                  element->removeAttribute(name);
          });
      }},
    {"createDocument", "the root has no prefix",
      [](Hooks& h)
      {
        h.create = [](Factory const& factory, apString const& name) -> Document
        {
          if (has(name, L":"))
            return nullptr;
          return factory->createDocument(name);
        };
      }},
    {"axmNamedNodeMap::setNamedItem", "an attribute with a prefix is refused",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfPlainNames>(map); }; }},
    {"axmNamedNodeMap::setNamedItem", "the value is taken over, the node is not",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfCopies>(map); }; }},
    {"axmNamedNodeMap::removeNamedItem", "the only one is taken out, but not handed out",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfLast>(map); }; }},
    {"axmNamedNodeMap::getNamedItem", "letters beyond ASCII are found in other case",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapOfOtherLetters>(map); }; }},
    {"hasAttribute", "of more than 64 the others are not told of",
      [](Hooks& h)
      {
        h.has_attribute = [](Element const& e, apString const& name)
        {
          std::vector<apString> names = names_of_attributes(e);
          names.resize(std::min<std::size_t>(names.size(), 64));
          return std::find(names.begin(), names.end(), name) != names.end();
        };
      }},
    {"setAttribute", "a value that is there already makes another node",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          if (e->hasAttribute(name) && e->getAttribute(name) == value)
            e->removeAttribute(name);
          e->setAttribute(name, value);
        };
      }},
    {"getAttribute", "line ends at the end of a value are gone",
      [](Hooks& h)
      {
        h.get_attribute = [](Element const& e, apString const& name)
        {
          std::wstring value(e->getAttribute(name).view());
          while (!value.empty() && value.back() == L'\n')
            value.pop_back();
          return apString(std::wstring_view(value));
        };
      }},
    {"insertBefore", "before the first of more than 1000 is after it",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_first = before != nullptr && same(n->getFirstChild(), before);
          bool const is_late = is_first && n->getChildNodes()->length() > 1000;
          return n->insertBefore(child, is_late ? before->getNextSibling() : before);
        };
      }},
    {"replaceChild", "what goes out loses its last child",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const result = n->replaceChild(child, old);
          if (result != nullptr && result->getLastChild() != nullptr && !same(child, old))
            result->removeChild(result->getLastChild());
          return result;
        };
      }},
    {"appendChild", "what is moved loses its empty attributes",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          bool const is_moved = child != nullptr && child->getParentNode() != nullptr;
          Node const result = n->appendChild(child);
          Element const element = is_moved ? std::dynamic_pointer_cast<axmElement>(result) : nullptr;
          if (element != nullptr)
            for (apString const& name : names_of_attributes(element))
              if (element->getAttribute(name).empty())
                element->removeAttribute(name);
          return result;
        };
      }},
    {"removeChild", "an instruction after the root stays",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child) -> Node
        {
          bool const stays = is<axmDocument>(n) && child != nullptr && is<axmProcessingInstruction>(child) &&
                             child->getNextSibling() == nullptr && is_child(n, child);
          return stays ? nullptr : n->removeChild(child);
        };
      }},
    {"getNextSibling", "after a comment that is the last child comes what comes after its parent",
      [](Hooks& h)
      {
        h.next = [](Node const& n) -> Node
        {
          Node const next = n->getNextSibling();
          Node const parent = n->getParentNode();
          return next == nullptr && is<axmCommentNode>(n) && parent != nullptr ? parent->getNextSibling() : next;
        };
      }},
    {"getLastChild", "an instruction is none if there is another child",
      [](Hooks& h)
      {
        h.last = [](Node const& n)
        {
          Node const last = n->getLastChild();
          bool const is_passed_over =
            last != nullptr && is<axmProcessingInstruction>(last) && last->getPreviousSibling() != nullptr;
          return is_passed_over ? last->getPreviousSibling() : last;
        };
      }},
    {"get_text", "of more than 64 levels the texts below are left out",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          Node const last = is_element(n) ? last_below(n) : n;
          return is_element(n) && depth_of(last) - depth_of(n) > 64 ? apString() : n->get_text();
        };
      }},
    {"set_text", "two hyphens in a comment get a blank between them",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        { n->set_text(is<axmCommentNode>(n) ? replaced(text, APSTRING("--"), APSTRING("- -")) : text); };
      }},
    {"set_text", "a text that is put in place of an only text is that node with another value",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          Node const first = is_element(n) ? n->getFirstChild() : nullptr;
          bool const is_kept = first != nullptr && is_text(first) && first->getNextSibling() == nullptr;
          (is_kept ? first : n)->set_text(text);
        };
      }},
    {"get_xml", "an element's comments have references for markup",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          if (is_element(n))
            for (Node node = n; node != nullptr; node = after(node, n))
              if (is<axmCommentNode>(node) && has(node->getNodeValue(), L"<"))
                xml.replace_all(node->get_xml(), replaced(node->get_xml(), APSTRING(" <"), APSTRING(" &lt;")));
          return xml;
        };
      }},
    {"get_xml", "an element in no tree has its first attribute only",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          Element const element = std::dynamic_pointer_cast<axmElement>(n);
          if (element == nullptr || n->getParentNode() != nullptr || names_of_attributes(element).size() < 2)
            return n->get_xml();
          apString const name = names_of_attributes(element).back();
          apString const value = element->getAttribute(name);
          element->removeAttribute(name);
          apString const xml = n->get_xml();
          element->setAttribute(name, value);
          return xml;
        };
      }},
    {"get_attribute", "in a locale with a comma a point is read all the same",
      [](Hooks& h)
      {
        h.get_locale = [](Node const& n, apString const& name, double& value)
        { return n->get_attribute_locale(name, value) || n->get_attribute(name, value); };
      }},
    {"axmNodeList::isEmpty", "one comment is nothing",
      [](Hooks& h)
      {
        h.list = [](List const& list) -> List
        {
          return std::make_shared<ListOfElements>(
            [list](int index) { return list->at(index); }, [list] { return list->length(); });
        };
      }},
    {"axmNodeList::invalid", "the cursor of one item is always on it",
      [](Hooks& h)
      {
        h.list = [](List const& list) -> List
        {
          return std::make_shared<ListThatEnds>(
            [list](int index) { return list->at(index); }, [list] { return list->length(); });
        };
      }},
    {"selectNodes", "what follows holds what is below",
      [](Hooks& h) { search_as(h, L"following::*", L"*[false()]/following::*|descendant::*|following::*"); }},
    {"selectNodes", "the document is no ancestor", [](Hooks& h) { search_as(h, L"ancestor::node()", L"ancestor::*"); }},
    {"selectNodes", "the parent of the root is none", [](Hooks& h) { search_as(h, L"parent::node()", L"parent::*"); }},
    {"selectNodes", "an absolute path begins at the document that was searched first",
      [](Hooks& h)
      {
        auto const first = std::make_shared<Element>();
        h.select = [first](Element const& e, apString const& xpath)
        {
          if (*first == nullptr)
            *first = e->getOwnerDocument()->getDocumentElement();
          bool const is_absolute = *first != nullptr && xpath.view().substr(0, 2) == L"//";
          return (is_absolute ? *first : e)->selectNodes(xpath);
        };
      }},
    {"saveDocument", "to a file a text of one blank is not written",
      [](Hooks& h) { save_file_as(h, [](std::string const& text) { return with(text, "> </", "></"); }); }},
    {"saveDocument", "to a file what stands after the root is not written",
      [](Hooks& h)
      {
        save_file_as(h,
          [](std::string const& text)
          {
            std::size_t const end = text.rfind("-->");
            std::size_t const begin = text.rfind("<!--");
            bool const is_last = end != std::string::npos && text.find('<', end) == std::string::npos;
            return is_last && begin > text.find("/") ? text.substr(0, begin) : text;
          });
      }},
    {"saveDocument", "no document is saved to a file as nothing",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        { return document == nullptr || factory->saveDocument(document, path); };
      }},
    {"saveDocument", "characters beyond U+FFFF are written as two",
      [](Hooks& h)
      {
        save_as(h,
          [](Document const&, std::string const& text) { return with(text, "\xF0\x90\x90\xB7", "&#xD801;&#xDC37;"); });
      }},
    {"saveDocument", "what is there in the bytes stays if they are more",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          std::string const before = text_of(output);
          bool const is_saved = factory->saveDocument(document, output);
          if (is_saved && before.size() > output.size())
            output = bytes_of(text_of(output) + before.substr(output.size()));
          return is_saved;
        };
      }},
    {"validation", "more than twenty elements are too many where any number is allowed",
      [](Hooks& h) {
        refuse_as(h, [](std::string const& text) { return with(text, "maxOccurs=\"unbounded\"", "maxOccurs=\"20\""); });
      }},
    {"validation", "of the members of a union only the first counts",
      [](Hooks& h)
      {
        refuse_as(h, [](std::string const& text)
          { return with_values(text, "memberTypes", [](std::string const& value) { return up_to(value, ' '); }); });
      }},
    {"validation", "of the alternatives of a pattern only the first counts",
      [](Hooks& h)
      {
        refuse_as(h,
          [](std::string const& text)
          {
            std::size_t const at = text.find("<xs:pattern ");
            if (at == std::string::npos)
              return text;
            return text.substr(0, at) + with_values(text.substr(at), "value",
                                          [](std::string const& value)
                                          { return has(value, "(") || has(value, "[") ? value : up_to(value, '|'); });
          });
      }},
    {"validation", "mixed content is none",
      [](Hooks& h) { refuse_as(h, [](std::string const& text) { return with(text, " mixed=\"true\"", ""); }); }},
    {"validation", "the blanks of tokens count",
      [](Hooks& h)
      { refuse_as(h, [](std::string const& text) { return with(text, "\"xs:token\"", "\"xs:string\""); }); }},
    {"validation", "an attribute with a fixed value must be there",
      [](Hooks& h)
      { refuse_as(h, [](std::string const& text) { return with(text, " fixed=\"", " use=\"required\" fixed=\""); }); }},
    {"validation", "the target namespace is not let in by its name",
      [](Hooks& h)
      { refuse_as(h, [](std::string const& text) { return with(text, "##targetNamespace", "##local"); }); }},
    {"validation", "members of a substitution group may not take the place",
      [](Hooks& h)
      { refuse_as(h, [](std::string const& text) { return without(text, " substitutionGroup=\"", "\""); }); }},
    {"validation", "an attribute wildcard lets in what has no namespace",
      [](Hooks& h)
      {
        validate_as(h, [](std::string const& text)
          { return with(text, "<xs:anyAttribute namespace=\"##other\"", "<xs:anyAttribute namespace=\"##any\""); });
      }},
    {"validation", "of the fields of a key the second does not count",
      [](Hooks& h)
      {
        refuse_as(h,
          [](std::string const& text)
          {
            std::size_t const first = text.find("<xs:field ");
            std::size_t const second = first == std::string::npos ? first : text.find("<xs:field ", first + 1);
            std::size_t const end = second == std::string::npos ? second : text.find("/>", second);
            bool const is_of_one = end != std::string::npos && text.find("</xs:", first) > second;
            return is_of_one ? text.substr(0, second) + text.substr(end + 2) : text;
          });
      }},
    {"validation", "a type that is named in the document is not looked at",
      [](Hooks& h) { accept_as(h, [](std::string const& text) { return without(text, " xsi:type=\"", "\""); }); }},
    {"validation", "minLength is not checked",
      [](Hooks& h) { validate_as(h, [](std::string const& text) { return without(text, "<xs:minLength ", ">"); }); }},
    {"validation", "a default of an attribute need not be of its type",
      [](Hooks& h)
      { validate_as(h, [](std::string const& text) { return without_in_attributes(text, " default=\""); }); }},
  };
  return faults;
}
