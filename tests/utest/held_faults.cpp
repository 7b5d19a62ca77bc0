// Faults read off the headers once more: of what is held while others change, of what is deep or large, of names, places
// and encodings that are rare, of one operation that is told by another.

#include "Faults.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace
{
// Also an item of a list, which is an element whatever it stands for.
bool stands_for_text(Node const& node)
{
  return node->getNodeName() == APSTRING("#text");
}

std::wstring structure_of(Document const& document)
{
  std::wstring names;
  for (Node node = document; node != nullptr; node = after(node, document))
    names += std::wstring(node->getNodeName().view()) + std::to_wstring(depth_of(node));
  return names;
}

bool has_beyond(apString const& text, wchar_t limit)
{
  std::wstring_view const view = text.view();
  return std::any_of(view.begin(), view.end(), [limit](wchar_t character) { return character > limit; });
}

void remove_file(apPath const& path)
{
  std::error_code ignored;
  std::filesystem::remove(std::filesystem::u8path(path.path().c_str()), ignored);
}

class ListOfOneWalk : public ListAs
{
public:
  using ListAs::ListAs;
  bool operator++() override
  {
    was_walked = was_walked || !ListAs::operator++();
    return !was_walked;
  }
  Element next_node() override { return operator++() ? operator()() : nullptr; }
  bool invalid() const override { return was_walked || ListAs::invalid(); }

private:
  bool was_walked = false;
};

class ListWithFirst : public ListAs
{
public:
  using ListAs::ListAs;
  void reset() override
  {
    ListAs::reset();
    ListAs::operator++();
  }
};

// Makes its items anew when their number is another one.
class MapOfNumber : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int index) override
  {
    if (static_cast<int>(items.size()) != map->getLength())
    {
      items.clear();
      for (int at = 0; at < map->getLength(); ++at)
        items.push_back(map->item(at));
    }
    return index >= 0 && index < static_cast<int>(items.size()) ? items[static_cast<std::size_t>(index)] : nullptr;
  }

private:
  std::vector<Node> items;
};

class MapOfFound : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override
  {
    Node const present = map->getNamedItem(name);
    if (present == nullptr)
      return present;
    for (Node const& node : found)
      if (node->getNodeName() == name)
        return node;
    found.push_back(present);
    return present;
  }

private:
  std::vector<Node> found;
};

class MapByLocalName : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override
  {
    for (int index = 0; index < map->getLength() && map->getNamedItem(name) == nullptr; ++index)
    {
      std::wstring const present(map->item(index)->getNodeName().view());
      if (present.find(L':') != std::wstring::npos && present.substr(present.find(L':') + 1) == name.view())
        return map->item(index);
    }
    return map->getNamedItem(name);
  }
};

template <class Kind>
List found_as(List const& list)
{
  if (list == nullptr)
    return list;
  return std::make_shared<Kind>([list](int index) { return list->at(index); }, [list] { return list->length(); });
}

// Keeps what a search found as long as `state` says the same of its document.
template <class State>
class Searches
{
public:
  explicit Searches(State given_state) : state(given_state) {}

  List operator()(Element const& element, apString const& xpath)
  {
    auto const document = element->getOwnerDocument();
    auto const now = state(document);
    for (Search const& search : searches)
      if (search.xpath == xpath && *search.document == *document && *search.element == *element && search.state == now)
        return list_of(search.found);
    List const list = element->selectNodes(xpath);
    searches.push_back({document, element, xpath, now, items_of(list)});
    if (searches.size() > 16)
      searches.erase(searches.begin());
    return list;
  }

private:
  struct Search
  {
    Document document;
    Element element;
    apString xpath;
    decltype(std::declval<State>()(Document())) state;
    std::vector<Element> found;
  };

  State state;
  std::vector<Search> searches;
};

template <class Change>
void tell_of_files(Hooks& hooks, Change change)
{
  hooks.load_file = [change](
                      Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  {
    Document const document = factory->loadDocument(path, options, error);
    change(path, document, error);
    return document;
  };
}

// Loads and saves files by another path than the one given.
template <class Change>
void go_elsewhere(Hooks& hooks, Change change)
{
  hooks.load_file = [change](
                      Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  { return factory->loadDocument(apPath(change(std::string(path.path().c_str())).c_str()), options, error); };
}

// A file as it was when one of this name and size was read first.
class Remembered
{
public:
  std::string operator()(apPath const& path)
  {
    std::string const text = contents_of(path);
    for (auto const& [name, known] : files)
      if (name == path.path().c_str() && known.size() == text.size())
        return known;
    files.emplace_back(path.path().c_str(), text);
    return text;
  }

private:
  std::vector<std::pair<std::string, std::string>> files;
};

// Deep documents: whether elements are nested in more levels than `levels`.
bool is_deep(std::string const& text, int levels)
{
  int depth = 0;
  for (std::size_t at = text.find('<'); at != std::string::npos && at + 1 < text.size(); at = text.find('<', at + 1))
  {
    if (text[at + 1] == '!' || text[at + 1] == '?')
      continue;
    std::size_t const end = text.find('>', at);
    bool const is_empty = end != std::string::npos && text[end - 1] == '/';
    depth += text[at + 1] == '/' ? -1 : (is_empty ? 0 : 1);
    if (depth > levels)
      return true;
  }
  return false;
}

// Refuses documents in which something between `begin` and `end` is long.
void refuse_long(Hooks& hooks, char const* begin, char const* end)
{
  hooks.load_bytes =
    [begin, end](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  {
    std::string const text = text_of(data);
    for (std::size_t at = 0; (at = text.find(begin, at)) != std::string::npos; ++at)
      if (std::size_t const last = text.find(end, at); last != std::string::npos && last - at > 65535)
        return refused(error);
    return factory->loadDocument(data, options, error);
  };
}

// Takes the comments and instructions of a document that were written with line ends of two characters as they were.
template <class Kind>
void keep_line_ends(Document const& document, std::string const& text)
{
  for (Node node = document; node != nullptr; node = after(node, document))
  {
    apString value = node->getNodeValue();
    value.replace_all(APSTRING("\n"), APSTRING("\r\n"));
    if (is<Kind>(node) && value != node->getNodeValue() && text.find(value.to_utf8().c_str()) != std::string::npos)
      node->set_text(value);
  }
}

std::string utf16(std::string const& text)
{
  std::string result = "\xFF\xFE";
  for (wchar_t const character : apString(text.c_str()).view())
  {
    auto const code = static_cast<unsigned>(character);
    result += {static_cast<char>(code & 0xFFU), static_cast<char>(code >> 8U & 0xFFU)};
  }
  return result;
}
}

std::vector<Fault> const& held_faults()
{
  static std::vector<Fault> const faults = {
    {"selectNodes", "the cursor of what is found does not begin again",
      [](Hooks& h) {
        h.select = [](Element const& e, apString const& xpath)
        { return found_as<ListOfOneWalk>(e->selectNodes(xpath)); };
      }},
    {"selectNodes", "a reset puts the cursor of what is found on the first item",
      [](Hooks& h) {
        h.select = [](Element const& e, apString const& xpath)
        { return found_as<ListWithFirst>(e->selectNodes(xpath)); };
      }},
    {"selectNodes", "what is found is missing in the list once it is out of its tree",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath) -> List
        {
          List const list = e->selectNodes(xpath);
          for (Element const& found : items_of(list))
            if (found == nullptr || found->getParentNode() == nullptr)
              return list;
          auto const item = [list](int index)
          {
            Element const found = list->at(index);
            return found != nullptr && found->getParentNode() != nullptr ? found : nullptr;
          };
          return std::make_shared<ListAs>(item, [list] { return list->length(); });
        };
      }},
    {"selectNodes", "what is found stays while only attributes change",
      [](Hooks& h)
      {
        auto const state = [](Document const& document)
        { return structure_of(document) + std::wstring(document->get_text().view()); };
        h.select = [searches = Searches<decltype(state)>(state)](Element const& e, apString const& xpath) mutable
        { return searches(e, xpath); };
      }},
    {"selectNodes", "what is found stays while only texts change",
      [](Hooks& h)
      {
        auto const state = [](Document const& document) { return structure_of(document); };
        h.select = [searches = Searches<decltype(state)>(state)](Element const& e, apString const& xpath) mutable
        { return searches(e, xpath); };
      }},
    {"selectNodes", "of a text there is no list",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        { return stands_for_text(e) ? nullptr : e->selectNodes(xpath); };
      }},
    {"selectNodes", "more than 1024 levels down nothing is found",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        {
          std::vector<Element> found = items_of(e->selectNodes(xpath));
          if (found.size() < 4)
            found.erase(std::remove_if(found.begin(), found.end(),
                          [](Element const& node) { return node != nullptr && depth_of(node) > 1024; }),
              found.end());
          return found.empty() ? list_of(found) : e->selectNodes(xpath);
        };
      }},
    {"selectSingleNode", "of alternatives the first one that finds something counts",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath)
        {
          int const bar = xpath.find(APSTRING("|"));
          Node const first =
            bar > 0 ? e->selectSingleNode(apString(xpath.view().substr(0, static_cast<std::size_t>(bar)))) : nullptr;
          return first != nullptr ? first : e->selectSingleNode(xpath);
        };
      }},
    {"selectSingleNode", "of what comes before, it is the nearest",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath) -> Node
        {
          std::wstring const text(xpath.view());
          std::size_t const slash = text.rfind(L'/');
          std::wstring const last = slash == std::wstring::npos ? text : text.substr(slash + 1);
          List const list = e->selectNodes(xpath);
          bool const is_before = last.find(L"preceding") == 0 || last.find(L"ancestor") == 0;
          return is_before && list->length() > 0 ? Node(list->at(list->length() - 1)) : e->selectSingleNode(xpath);
        };
      }},
    {"selectSingleNode", "what is no set of nodes is an exception",
      [](Hooks& h)
      {
        h.select_single = [](Element const& e, apString const& xpath)
        {
          if (xpath.find(APSTRING("count(")) == 0)
            throw std::invalid_argument("no set of nodes");
          return e->selectSingleNode(xpath);
        };
      }},
    {"getElementsByTagName", "more than 1024 levels down nothing is found",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        {
          List const list = d->getElementsByTagName(name);
          bool const is_far = list->length() == 1 && depth_of(list->at(0)) > 1024;
          return is_far ? list_of({}) : list;
        };
      }},
    {"getElementsByTagName", "names beyond U+FFFF are not found",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name) {
          return name.view().size() == 1 && has_beyond(name, L'\uFFFD') ? list_of({}) : d->getElementsByTagName(name);
        };
      }},
    {"getAttributes", "a map makes its items anew only when their number changes",
      [](Hooks& h) { h.map = [](Map const& map) -> Map { return std::make_shared<MapOfNumber>(map); }; }},
    {"getAttributes", "a map finds what it found before",
      [](Hooks& h) { h.map = [](Map const& map) -> Map { return std::make_shared<MapOfFound>(map); }; }},
    {"axmNamedNodeMap::getNamedItem", "an attribute with a prefix is found without it",
      [](Hooks& h) { h.map = [](Map const& map) -> Map { return std::make_shared<MapByLocalName>(map); }; }},
    {"getAttribute", "an attribute with a prefix is found without it",
      [](Hooks& h)
      {
        h.get_attribute = [](Element const& e, apString const& name)
        {
          Map const map = e->hasAttribute(name) ? nullptr : e->getAttributes();
          for (int index = 0; map != nullptr && index < map->getLength(); ++index)
          {
            std::wstring const present(map->item(index)->getNodeName().view());
            if (present.size() > 2 && present.substr(1) == L":" + std::wstring(name.view()))
              return map->item(index)->getNodeValue();
          }
          return e->getAttribute(name);
        };
      }},
    {"removeAttribute", "one with a prefix goes with the one without",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          e->removeAttribute(name);
          e->removeAttribute(APSTRING("p:") + name);
        };
      }},
    {"removeAttribute", "a default of the document type comes back",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          std::wstring const xml(e->getOwnerDocument()->get_xml().view());
          std::wstring const declared = std::wstring(name.view()) + L" CDATA '";
          std::size_t const at = xml.find(declared);
          e->removeAttribute(name);
          if (at != std::wstring::npos)
            e->setAttribute(name, apString(std::wstring_view(xml.substr(at + declared.size(),
                                    xml.find(L'\'', at + declared.size()) - at - declared.size()))));
        };
      }},
    {"removeAttribute", "with more than 64 of them the one after it goes, too",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          Map const map = e->getAttributes();
          int const length = map != nullptr ? map->getLength() : 0;
          Node next;
          for (int index = 0; length > 64 && index + 1 < length; ++index)
            if (map->item(index)->getNodeName() == name)
              next = map->item(index + 1);
          e->removeAttribute(name);
          if (next != nullptr)
            e->removeAttribute(next->getNodeName());
        };
      }},
    {"removeAttribute", "one that is absent is an exception",
      [](Hooks& h)
      {
        h.remove_attribute = [](Element const& e, apString const& name)
        {
          if (!e->hasAttribute(name))
            throw std::out_of_range("no such attribute");
          e->removeAttribute(name);
        };
      }},
    {"setAttribute", "on a text it is set on what holds it",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          auto const holder = stands_for_text(e) ? std::dynamic_pointer_cast<axmElement>(e->getParentNode()) : nullptr;
          (holder != nullptr ? holder : e)->setAttribute(name, value);
        };
      }},
    {"setAttribute", "a name beyond U+FFFF is none",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        {
          if (!has_beyond(name, L'\uFFFD'))
            e->setAttribute(name, value);
        };
      }},
    {"setAttribute", "a name is set up to a blank in it",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        { e->setAttribute(apString(name.view().substr(0, name.view().find(L' '))), value); };
      }},
    {"setAttribute", "a Greek question mark is a letter",
      [](Hooks& h)
      {
        h.set_attribute = [](Element const& e, apString const& name, apString const& value)
        { e->setAttribute(replaced(name, APSTRING("\u037E"), APSTRING("_")), value); };
      }},
    {"createDocument", "a name beyond U+FFFF is none",
      [](Hooks& h)
      {
        h.create = [](Factory const& factory, apString const& name) -> Document
        { return has_beyond(name, L'\uFFFD') ? nullptr : factory->createDocument(name); };
      }},
    {"createDocument", "a Greek question mark is a letter",
      [](Hooks& h)
      {
        h.create = [](Factory const& factory, apString const& name)
        { return factory->createDocument(replaced(name, APSTRING("\u037E"), APSTRING("_"))); };
      }},
    {"createDocument", "a name may have no colon",
      [](Hooks& h)
      {
        h.create = [](Factory const& factory, apString const& name) -> Document
        { return name.find(APSTRING(":")) >= 0 ? nullptr : factory->createDocument(name); };
      }},
    {"createDocument", "there are a hundred at most at one time",
      [](Hooks& h)
      {
        h.create = [living = std::vector<std::weak_ptr<axmDocument>>()](
                     Factory const& factory, apString const& name) mutable -> Document
        {
          living.erase(
            std::remove_if(living.begin(), living.end(), [](auto const& document) { return document.expired(); }),
            living.end());
          Document const document = living.size() < 100 ? factory->createDocument(name) : nullptr;
          living.push_back(document);
          return document;
        };
      }},
    {"get_attribute", "a double under a name with a prefix is none",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        { return name.find(APSTRING(":")) < 0 && n->get_attribute(name, value); };
      }},
    {"get_attribute", "an int under a name beyond ASCII is none",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        { return !has_beyond(name, L'\x7F') && n->get_attribute(name, value); };
      }},
    {"set_attribute", "a double under a name with a prefix is not set",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return name.find(APSTRING(":")) < 0 && n->set_attribute(name, value); };
      }},
    {"set_attribute", "a bool of a long name is not set",
      [](Hooks& h)
      {
        h.set_bool = [](Node const& n, apString const& name, bool value)
        { return name.length() < 64 && n->set_attribute(name, value); };
      }},
    {"insertBefore", "a cycle over more than eight levels is told as done",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          int levels = 0;
          for (Node above = n; child != nullptr && above != nullptr; above = above->getParentNode(), ++levels)
            if (*above == *child && levels > 8)
              return child;
          return n->insertBefore(child, before);
        };
      }},
    {"getDocumentURI", "it counts the children of the document",
      [](Hooks& h)
      {
        h.uri = [](Document const& d)
        { return d->getDocumentURI() + apString(std::to_wstring(d->getChildNodes()->length()).c_str()); };
      }},
    {"operator==", "nodes of one place, name and content in two documents are equal",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& a, Node const& b)
        {
          return *a == *b ||
                 (depth_of(a) > 0 && depth_of(a) == depth_of(b) && !is_text(a) && a->get_xml() == b->get_xml() &&
                   a->getOwnerDocument()->get_xml() == b->getOwnerDocument()->get_xml() &&
                   !(*a->getOwnerDocument() == *b->getOwnerDocument()));
        };
      }},
    {"get_text", "what is more than 1024 levels down is left out",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          Node lowest = n;
          int levels = 0;
          for (; lowest->getFirstChild() != nullptr; lowest = lowest->getFirstChild())
            ++levels;
          return levels > 1024 ? apString() : n->get_text();
        };
      }},
    {"get_xml", "of an element, what is below its children is left out",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          for (Node child = n->getFirstChild(); child != nullptr && is_element(n); child = child->getNextSibling())
            for (Node below = child->getFirstChild(); below != nullptr; below = below->getNextSibling())
              xml.replace_all(below->get_xml(), APSTRING(""));
          return xml;
        };
      }},
    {"get_xml", "an element that is in no tree has none",
      [](Hooks& h) {
        h.xml = [](Node const& n)
        { return is_element(n) && n->getParentNode() == nullptr ? apString() : n->get_xml(); };
      }},
    {"get_xml", "an element has its instructions left out",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          apString xml = n->get_xml();
          for (Node child = n->getFirstChild(); child != nullptr && is_element(n); child = child->getNextSibling())
            if (is<axmProcessingInstruction>(child))
              xml.replace_all(child->get_xml(), APSTRING(""));
          return xml;
        };
      }},
    {"loadDocument", "more than 256 levels are refused",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        { return is_deep(text_of(data), 256) ? refused(error) : factory->loadDocument(data, options, error); };
      }},
    {"loadDocument", "of two invalid documents in a row the second one is taken",
      [](Hooks& h)
      {
        h.load_bytes = [was_invalid = false](Factory const& factory, apByteArray const& data, axmLoadOptions options,
                         axmParseError& error) mutable
        {
          bool const validates = options.validate_mode() == axmValidateWithSchemas;
          if (validates && was_invalid)
            options.set_validate_mode(axmValidateNone);
          Document const document = factory->loadDocument(data, options, error);
          was_invalid = validates && document == nullptr && !was_invalid;
          return document;
        };
      }},
    {"loadDocument", "a file is remembered by its name and size",
      [](Hooks& h)
      {
        h.load_file = [remembered = Remembered()](Factory const& factory, apPath const& path,
                        axmLoadOptions const& options, axmParseError& error) mutable
        {
          std::string const text = remembered(path);
          return text == contents_of(path) ? factory->loadDocument(path, options, error)
                                           : factory->loadDocument(bytes_of(text), options, error);
        };
      }},
    {"loadDocument", "a schema is remembered by its name and size",
      [](Hooks& h)
      {
        h.load_bytes = [remembered = Remembered()](Factory const& factory, apByteArray const& data,
                         axmLoadOptions options, axmParseError& error) mutable
        {
          apPath const schema = options.no_namespace_schema();
          std::string const text = schema.exists() ? remembered(schema) : std::string();
          if (!schema.exists() || text == contents_of(schema))
            return factory->loadDocument(data, options, error);
          apPath const old((std::string(schema.path().c_str()) + ".old").c_str());
          write(old, text);
          options.set_no_namespace_schema(old);
          Document const document = factory->loadDocument(data, options, error);
          remove_file(old);
          return document;
        };
      }},
    {"loadDocument", "the error of what is in memory names a file",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError& error)
          {
            if (document == nullptr && error.url().empty())
              error.set_url(APSTRING("memory.xml"));
          });
      }},
    {"loadDocument", "a line that is not known is 0",
      [](Hooks& h)
      {
        tell_of_files(h,
          [](apPath const&, Document const& document, axmParseError& error)
          {
            if (document == nullptr && error.line_number() == -1)
              error.set_line_number(0);
          });
      }},
    {"loadDocument", "a column that is not known is 0",
      [](Hooks& h)
      {
        tell_of_files(h,
          [](apPath const&, Document const& document, axmParseError& error)
          {
            if (document == nullptr && error.column_number() == -1)
              error.set_column_number(0);
          });
      }},
    {"loadDocument", "success sets the name of the file",
      [](Hooks& h)
      {
        tell_of_files(h,
          [](apPath const& path, Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              error.set_url(apString(path.path().c_str()));
          });
      }},
    {"loadDocument", "success sets the column",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              error.set_column_number(1);
          });
      }},
    {"loadDocument", "columns of UTF-16 are counted in bytes",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError& error)
          {
            bool const is_wide = text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF";
            if (document == nullptr && is_wide && error.column_number() > 0)
              error.set_column_number(error.column_number() * 2);
          });
      }},
    {"loadDocument", "lines of UTF-16 end at one byte",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError& error)
          {
            bool const is_wide = text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF";
            if (document == nullptr && is_wide && error.line_number() > 1)
              error.set_line_number(1);
          });
      }},
    {"loadDocument", "a mark at the beginning is a column",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError& error)
          {
            if (document == nullptr && text.substr(0, 3) == "\xEF\xBB\xBF" && error.line_number() == 1)
              error.set_column_number(error.column_number() + 3);
          });
      }},
    {"loadDocument", "lines are counted up to 65535",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError& error)
          {
            if (document == nullptr && error.line_number() > 65535)
              error.set_line_number(65535);
          });
      }},
    {"loadDocument", "columns are counted up to 65535",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError& error)
          {
            if (document == nullptr && error.column_number() > 65535)
              error.set_column_number(65535);
          });
      }},
    {"loadDocument", "the line of what is wrong in a schema is one short",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const&, Document const& document, axmParseError& error)
          {
            if (document == nullptr && error.url().find(APSTRING(".xsd")) >= 0 && error.line_number() > 1)
              error.set_line_number(error.line_number() - 1);
          });
      }},
    {"loadDocument", "what breaks a schema is told with the name of the schema",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(path, options, error);
          axmParseError other;
          bool const is_well_formed =
            document == nullptr && factory->loadDocument(path, axmLoadOptions(), other) != nullptr;
          if (is_well_formed && options.num_external_schemas() > 0)
            error.set_url(apString(options.external_schema(0).path().c_str()));
          if (is_well_formed && options.no_namespace_schema().exists())
            error.set_url(apString(options.no_namespace_schema().path().c_str()));
          return document;
        };
      }},
    {"loadDocument", "what breaks a schema is told one line early after a comment",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(data, options, error);
          if (document == nullptr && options.validate_mode() == axmValidateWithSchemas &&
              text_of(data).find("<!--") != std::string::npos && error.line_number() > 1)
            error.set_line_number(error.line_number() - 1);
          return document;
        };
      }},
    {"loadDocument", "an entity limit of the largest int is none at all",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          if (options.entity_expansion_limit() == INT_MAX)
            options.set_entity_expansion_limit(0);
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "of two schemas for a namespace the last one counts",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          axmLoadOptions last(options.validate_mode());
          last.set_no_namespace_schema(options.no_namespace_schema());
          last.set_entity_expansion_limit(options.entity_expansion_limit());
          last.set_disable_entity_resolution(options.disable_entity_resolution());
          for (int index = 0; index < options.num_external_schemas(); ++index)
          {
            bool is_last = true;
            for (int other = index + 1; other < options.num_external_schemas(); ++other)
              is_last = is_last && options.external_namespace(other) != options.external_namespace(index);
            if (is_last || !options.external_schema(index).exists())
              last.add_external_schema(options.external_namespace(index), options.external_schema(index));
          }
          return factory->loadDocument(data, last, error);
        };
      }},
    {"loadDocument", "what a schema includes is relative to the working folder",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          apPath const schema = options.no_namespace_schema();
          std::string const text = schema.exists() ? contents_of(schema) : std::string();
          if (text.find("<xs:include") == std::string::npos)
            return factory->loadDocument(data, options, error);
          apPath const here("./axm_fault_schema.xsd");
          write(here, text);
          options.set_no_namespace_schema(here);
          Document const document = factory->loadDocument(data, options, error);
          remove_file(here);
          return document;
        };
      }},
    {"loadDocument", "a document is not validated where no schema is for its root",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          std::string const text = text_of(data);
          std::size_t const begin = text.find("<") == std::string::npos ? 0 : text.find("<");
          std::string const tag = text.substr(begin, text.find('>', begin) - begin);
          bool is_for_root = options.no_namespace_schema().exists();
          for (int index = 0; index < options.num_external_schemas(); ++index)
            is_for_root = is_for_root ||
                          tag.find(options.external_namespace(index).to_utf8().c_str()) != std::string::npos ||
                          !options.external_schema(index).exists();
          if (!is_for_root)
            options.set_validate_mode(axmValidateNone);
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "a name beyond U+FFFF is not found",
      [](Hooks& h)
      {
        go_elsewhere(h, [](std::string const& path)
          { return path.find('\xF0') != std::string::npos ? std::string("./no such file") : path; });
      }},
    {"loadDocument", "a name ends at a semicolon",
      [](Hooks& h) { go_elsewhere(h, [](std::string const& path) { return path.substr(0, path.find(';')); }); }},
    {"loadDocument", "an absolute name is one in the working folder",
      [](Hooks& h)
      {
        go_elsewhere(h, [](std::string const& path)
          { return std::filesystem::u8path(path).is_absolute() ? "./no folder" + path : path; });
      }},
    {"loadDocument", "instructions whose names begin with xml are left out",
      [](Hooks& h)
      {
        read_as(h,
          [](std::string const& text)
          {
            std::size_t const at = text.find("<?xml-");
            std::size_t const end = at == std::string::npos ? at : text.find("?>", at);
            return end == std::string::npos ? text : text.substr(0, at) + text.substr(end + 2);
          });
      }},
    {"loadDocument", "line ends of two characters stay in comments",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError const&)
          {
            if (document != nullptr && text.find("\r\n") != std::string::npos)
              keep_line_ends<axmCommentNode>(document, text);
          });
      }},
    {"loadDocument", "line ends of two characters stay in instructions",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError const&)
          {
            if (document != nullptr && text.find("\r\n") != std::string::npos)
              keep_line_ends<axmProcessingInstruction>(document, text);
          });
      }},
    {"loadDocument", "blanks at the end of an instruction are left out", [](Hooks& h) { read_as(h, " ?>", "?>"); }},
    {"loadDocument", "ISO-8859-15 is ISO-8859-1",
      [](Hooks& h) { read_as(h, "encoding='ISO-8859-15'", "encoding='ISO-8859-1'"); }},
    {"loadDocument", "windows-1252 is ISO-8859-1",
      [](Hooks& h) { read_as(h, "encoding='windows-1252'", "encoding='ISO-8859-1'"); }},
    {"loadDocument", "US-ASCII is ISO-8859-1",
      [](Hooks& h) { read_as(h, "encoding='US-ASCII'", "encoding='ISO-8859-1'"); }},
    {"loadDocument", "UTF-16 that is declared over bytes is left alone",
      [](Hooks& h)
      {
        read_as(h, [](std::string const& text)
          { return text.substr(0, 5) == "<?xml" ? with(text, "encoding='UTF-16'", "encoding='UTF-8'") : text; });
      }},
    {"white space", "a single tab is a text", [](Hooks& h) { read_as(h, ">\t<", ">\xE2\x80\x89<"); }},
    {"white space", "a single return is a text", [](Hooks& h) { read_as(h, ">\r<", ">\xE2\x80\x89<"); }},
    {"white space", "more than 1000 characters of it are refused",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          bool const is_long = text_of(data).find(std::string(1000, ' ')) != std::string::npos;
          return is_long ? refused(error) : factory->loadDocument(data, options, error);
        };
      }},
    {"saveDocument", "what is refused leaves an empty file where there was none",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        {
          bool const saved = factory->saveDocument(document, path);
          if (!saved && !path.exists() && document != nullptr)
            write(path, "");
          return saved;
        };
      }},
    {"saveDocument", "what was loaded from UTF-16 is saved in that",
      [](Hooks& h)
      {
        auto const wide = std::make_shared<std::vector<Document>>();
        h.load_bytes =
          [wide](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(data, options, error);
          if (document != nullptr && text_of(data).substr(0, 2) == "\xFF\xFE")
            wide->push_back(document);
          return document;
        };
        h.save_bytes = [wide](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const saved = factory->saveDocument(document, output);
          bool const was_wide = document != nullptr && std::any_of(wide->begin(), wide->end(),
                                                         [&](Document const& other) { return *other == *document; });
          if (saved && was_wide)
            output = bytes_of(utf16(with(text_of(output), "encoding=\"UTF-8\"", "encoding=\"UTF-16\"")));
          return saved;
        };
      }},
    {"saveDocument", "a return in a comment is saved as a line end",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          std::vector<std::pair<Node, apString>> changed;
          for (Node node = document; node != nullptr; node = after(node, document))
          {
            if (!is<axmCommentNode>(node) || node->getNodeValue().find(APSTRING("\r")) < 0)
              continue;
            changed.emplace_back(node, node->getNodeValue());
            node->set_text(replaced(node->getNodeValue(), APSTRING("\r"), APSTRING("\n")));
          }
          bool const saved = factory->saveDocument(document, output);
          for (auto const& [node, value] : changed)
            node->set_text(value);
          return saved;
        };
      }},
    {"saveDocument", "more than 1024 levels are refused",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          int levels = 0;
          for (Node lowest = document; lowest != nullptr && lowest->getLastChild() != nullptr;
               lowest = lowest->getLastChild())
            ++levels;
          return levels <= 1024 && factory->saveDocument(document, output);
        };
      }},
    {"get_text", "more than 256 texts are left out",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          int texts = 0;
          for (Node child = n->getFirstChild(); child != nullptr; child = child->getNextSibling())
            texts += child->getFirstChild() == nullptr && is_text(child) ? 1 : 0;
          return texts > 256 ? APSTRING("many") : n->get_text();
        };
      }},
    {"set_text", "of more than 64 children the others stay",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          std::vector<Node> others;
          int number = 0;
          for (Node child = n->getFirstChild(); child != nullptr; child = child->getNextSibling())
            if (++number > 64)
              others.push_back(child);
          n->set_text(text);
          for (Node const& other : others)
            n->appendChild(other);
        };
      }},
    {"getElementsByTagName", "more than 1000 are cut off",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name) -> List
        {
          List const list = d->getElementsByTagName(name);
          return std::make_shared<ListAs>([list](int index) { return index < 1000 ? list->at(index) : nullptr; },
            [list] { return std::min(list->length(), 1000); });
        };
      }},
    {"selectNodes", "more than 4096 are cut off",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath) -> List
        {
          List const list = e->selectNodes(xpath);
          return std::make_shared<ListAs>([list](int index) { return index < 4096 ? list->at(index) : nullptr; },
            [list] { return std::min(list->length(), 4096); });
        };
      }},
    {"selectNodes", "an expression of more than 4096 characters is wrong",
      [](Hooks& h)
      {
        h.select = [](Element const& e, apString const& xpath)
        { return e->selectNodes(xpath.length() > 4096 ? APSTRING("//[") : xpath); };
      }},
    {"replaceChild", "of more than 256 children the new one comes last",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          Node const done = n->replaceChild(child, old);
          if (done != nullptr && n->getChildNodes()->length() > 256)
            n->appendChild(child);
          return done;
        };
      }},
    {"get_xml", "more than 65535 characters are cut off",
      [](Hooks& h) { h.xml = [](Node const& n) { return apString(n->get_xml().view().substr(0, 65535)); }; }},
    {"saveDocument", "of more than 16 texts beside each other the others are lost",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          Node const root = document != nullptr ? document->getDocumentElement() : nullptr;
          int texts = 0;
          for (Node child = root != nullptr ? root->getFirstChild() : nullptr; child != nullptr && is_text(child);
               child = child->getNextSibling())
            ++texts;
          return factory->saveDocument(texts > 16 ? factory->createDocument(root->getNodeName()) : document, output);
        };
      }},
    {"loadDocument", "entities in entities over 16 levels are refused",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          std::string const text = text_of(data);
          return text.find("&e17;") != std::string::npos ? refused(error) : factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "an instruction of more than 65535 characters is refused",
      [](Hooks& h) { refuse_long(h, "<?", "?>"); }},
    {"loadDocument", "a CDATA section of more than 65535 characters is refused",
      [](Hooks& h) { refuse_long(h, "<![CDATA[", "]]>"); }},
    {"loadDocument", "a document type of more than 65535 characters is refused",
      [](Hooks& h) { refuse_long(h, "<!DOCTYPE", "]>"); }},
    {"loadDocument", "an entity of more than 65535 characters is refused",
      [](Hooks& h) { refuse_long(h, "<!ENTITY", "'>"); }},
    {"loadDocument", "validation goes down 256 levels only",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          if (is_deep(text_of(data), 256))
            options.set_validate_mode(axmValidateNone);
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "what breaks a schema in memory has no message",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(data, options, error);
          if (document == nullptr && options.validate_mode() == axmValidateWithSchemas)
            error = axmParseError(APSTRING(""));
          return document;
        };
      }},
    {"loadDocument", "an encoding that is not known has no message",
      [](Hooks& h)
      {
        tell_of_bytes(h,
          [](std::string const& text, Document const& document, axmParseError& error)
          {
            if (document == nullptr && text.find("encoding=") != std::string::npos)
              error = axmParseError(APSTRING(""));
          });
      }},
    {"get_attribute", "an int of more than sixteen digits is none",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          return n->get_attribute(name, text) && text.length() <= 16 && n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "a double of more than sixty-four characters is none",
      [](Hooks& h)
      {
        h.get_double = [](Node const& n, apString const& name, double& value)
        {
          apString text;
          return n->get_attribute(name, text) && text.length() <= 64 && n->get_attribute(name, value);
        };
      }},
    {"obstacle", "there is never one",
      [](Hooks& h) { h.obstacle = [](Factory const&, Document const&) { return apString(); }; }},
    {"obstacle", "there is one where a document is saved",
      [](Hooks& h)
      {
        h.obstacle = [](Factory const& factory, Document const& document)
        {
          apByteArray output;
          return factory->saveDocument(document, output) ? APSTRING("the file") : Hooks().obstacle(factory, document);
        };
      }},
    {"obstacle", "it ends with a full stop",
      [](Hooks& h)
      {
        h.obstacle = [](Factory const& factory, Document const& document)
        {
          apString const told = Hooks().obstacle(factory, document);
          return told.empty() ? told : told + APSTRING(".");
        };
      }},
    {"obstacle", "a text that no document holds is none",
      [](Hooks& h)
      {
        h.obstacle = [](Factory const& factory, Document const& document)
        { return document->get_text() == APSTRING("\u0001") ? apString() : Hooks().obstacle(factory, document); };
      }},
  };
  return faults;
}
