// Engines that use a freedom which the headers leave them, and break no promise.

#include "Faults.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace
{
// The attributes in another order.
class MapFromTheEnd : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int index) override { return MapAs::item(map->getLength() - 1 - index); }
};

class MapByName : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int index) override
  {
    std::vector<Node> items;
    for (int at = 0; at < map->getLength(); ++at)
      items.push_back(map->item(at));
    std::sort(items.begin(), items.end(),
      [](Node const& left, Node const& right) { return left->getNodeName() < right->getNodeName(); });
    return index >= 0 && index < static_cast<int>(items.size()) ? items[static_cast<std::size_t>(index)] : nullptr;
  }
};

bool is_declaration(apString const& name)
{
  return name == APSTRING("xmlns") || name.view().substr(0, 6) == L"xmlns:";
}

// Without declarations of namespaces.
class MapOfOthers : public MapAs
{
public:
  using MapAs::MapAs;
  int getLength() override { return static_cast<int>(items().size()); }
  Node item(int index) override
  {
    std::vector<Node> const all = items();
    return index >= 0 && index < static_cast<int>(all.size()) ? all[static_cast<std::size_t>(index)] : nullptr;
  }
  Node getNamedItem(apString const& name) override
  {
    return is_declaration(name) ? nullptr : MapAs::getNamedItem(name);
  }

private:
  std::vector<Node> items() const
  {
    std::vector<Node> found;
    for (int index = 0; index < map->getLength(); ++index)
      if (Node const node = map->item(index); !is_declaration(node->getNodeName()))
        found.push_back(node);
    return found;
  }
};

bool is_of(Node const& node, Document const& document)
{
  return node == nullptr || *node->getOwnerDocument() == *document;
}

template <class Tell>
void tell_errors(Hooks& hooks, Tell tell)
{
  hooks.load_bytes =
    [tell](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  {
    Document const document = factory->loadDocument(data, options, error);
    if (document == nullptr)
      error = tell(error);
    return document;
  };
  hooks.load_file = [tell](
                      Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  {
    Document const document = factory->loadDocument(path, options, error);
    if (document == nullptr)
      error = tell(error);
    return document;
  };
}

axmParseError placed(apString const& message, apString const& url, int line, int column)
{
  axmParseError error(message);
  error.set_url(url);
  error.set_line_number(line);
  error.set_column_number(column);
  return error;
}

void save_as(Hooks& hooks, std::string (*change)(std::string const& text))
{
  hooks.save_bytes = [change](Factory const& factory, Document const& document, apByteArray& output)
  {
    bool const is_saved = factory->saveDocument(document, output);
    if (is_saved)
      output = bytes_of(change(text_of(output)));
    return is_saved;
  };
  hooks.save_file = [change](Factory const& factory, Document const& document, apPath const& path)
  {
    bool const is_saved = factory->saveDocument(document, path);
    if (is_saved)
      write(path, change(contents_of(path)));
    return is_saved;
  };
}

bool holds_markup_of_others(std::string const& text)
{
  return text.find("<!--") != std::string::npos || text.find("<?", 2) != std::string::npos ||
         text.find("<![CDATA[") != std::string::npos;
}

// Each element on a line of its own where its neighbours are elements, too.
std::string on_lines(std::string const& text)
{
  bool const is_kept = holds_markup_of_others(text) || text.find("xml:space") != std::string::npos;
  return is_kept ? text : with(text, "><", ">\n<");
}

std::string with_mark(std::string const& text)
{
  return "\xEF\xBB\xBF" + text;
}

std::string with_numbers(std::string const& text)
{
  return holds_markup_of_others(text) ? text : with(with(text, "&lt;", "&#60;"), "&amp;", "&#x26;");
}

std::string with_blank_before_end(std::string const& text)
{
  return holds_markup_of_others(text) ? text : with(text, "/>", " />");
}

std::string with_line_at_end(std::string const& text)
{
  return text + "\n";
}

std::string with_lines_of_two(std::string const& text)
{
  return with(text, "\n", "\r\n");
}

// What stands in the tags and between them, the tags changed by `change`.
std::string with_tags_as(std::string const& text, std::string (*change)(std::string const& tag))
{
  if (holds_markup_of_others(text) || text.find("<!") != std::string::npos)
    return text;
  std::string result;
  std::size_t done = 0;
  for (std::size_t begin = text.find('<', 2); begin != std::string::npos; begin = text.find('<', done))
  {
    std::size_t end = begin;
    for (char quote = 0; end < text.size() && (text[end] != '>' || quote != 0); ++end)
      if (quote == 0 ? (text[end] == '"' || text[end] == '\'') : text[end] == quote)
        quote = quote == 0 ? text[end] : '\0';
    result += text.substr(done, begin - done) + change(text.substr(begin, end + 1 - begin));
    done = end + 1;
  }
  return result + text.substr(done);
}

std::string with_two_tags(std::string const& tag)
{
  if (tag.size() < 4 || tag.substr(tag.size() - 2) != "/>")
    return tag;
  return tag.substr(0, tag.size() - 2) + "></" + tag.substr(1, tag.find_first_of(" \t\n/") - 1) + ">";
}

std::string with_apostrophes(std::string const& tag)
{
  return tag.find('\'') == std::string::npos ? with(tag, "\"", "'") : tag;
}

std::string with_two_tags_each(std::string const& text)
{
  return with_tags_as(text, with_two_tags);
}

std::string with_other_quotes(std::string const& text)
{
  return with_tags_as(text, with_apostrophes);
}

std::string with_short_declaration(std::string const& text)
{
  std::size_t const end = text.find("?>");
  return text.substr(0, 5) == "<?xml" && end != std::string::npos ? "<?xml version='1.0'?>" + text.substr(end + 2)
                                                                  : text;
}

// A replacement of an attribute by itself replaces nothing.
class MapWithoutRepeats : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    Node const present = node != nullptr ? map->getNamedItem(node->getNodeName()) : nullptr;
    bool const is_there = present != nullptr && *present == *node;
    return is_there ? nullptr : map->setNamedItem(node);
  }
};

bool is_name_start(wchar_t character)
{
  return (character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z') || character == L'_' ||
         character == L':' || character > 127;
}
}

std::vector<Fault> const& freedoms()
{
  static std::vector<Fault> const engines = {
    {"axmNamedNodeMap::item", "attributes come in the order against the one in which they were set",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapFromTheEnd>(map); }; }},
    {"axmNamedNodeMap::item", "attributes come in the order of their names",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapByName>(map); }; }},
    {"axmNamedNodeMap::item", "declarations of namespaces are not among the attributes",
      [](Hooks& h)
      {
        h.map = [](Map const& map) { return std::make_shared<MapOfOthers>(map); };
        h.has_attributes = [](Node const& n)
        { return n->hasAttributes() && MapOfOthers(n->getAttributes()).getLength() > 0; };
        h.has_attribute = [](Element const& e, apString const& name)
        { return !is_declaration(name) && e->hasAttribute(name); };
        h.get_attribute = [](Element const& e, apString const& name)
        { return is_declaration(name) ? apString() : e->getAttribute(name); };
        h.get_string = [](Node const& n, apString const& name, apString& value)
        { return !is_declaration(name) && n->get_attribute(name, value); };
      }},
    {"replaceChild", "a child of another document is refused, here and where one is added",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return is_of(child, n->getOwnerDocument()) ? n->appendChild(child) : nullptr; };
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return is_of(child, n->getOwnerDocument()) ? n->insertBefore(child, before) : nullptr; };
        h.replace = [](Node const& n, Node const& child, Node const& old)
        { return is_of(child, n->getOwnerDocument()) ? n->replaceChild(child, old) : nullptr; };
      }},
    {"replaceChild", "a node by itself is taken out",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_one = child != nullptr && old != nullptr && *child == *old;
          return is_one ? n->removeChild(child) : n->replaceChild(child, old);
        };
      }},
    {"replaceChild", "a node by itself is refused",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_one = child != nullptr && old != nullptr && *child == *old;
          return is_one ? nullptr : n->replaceChild(child, old);
        };
      }},
    {"createTextNode", "half a surrogate is refused",
      [](Hooks& h)
      {
        h.create_text = [](Document const& d, apString const& data) -> Node
        {
          if (apString::from_utf8(data.to_utf8().c_str()) != data && data.find(apString(L"\0", 1)) < 0)
            return nullptr;
          return d->createTextNode(data);
        };
      }},
    {"getElementsByTagName", "the list follows later changes",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name) -> List
        {
          return std::make_shared<ListAs>([d, name](int index) { return d->getElementsByTagName(name)->at(index); },
            [d, name] { return d->getElementsByTagName(name)->length(); });
        };
      }},
    {"getElementsByTagName", "the list stays as it was",
      [](Hooks& h)
      {
        h.by_name = [](Document const& d, apString const& name)
        { return list_of(items_of(d->getElementsByTagName(name))); };
      }},
    {"getDocumentURI", "it is a name of the engine's",
      [](Hooks& h) { h.uri = [](Document const& d) { return APSTRING("document:") + d->getDocumentURI(); }; }},
    {"loadDocument", "the message of an error is always the same",
      [](Hooks& h)
      {
        tell_errors(h, [](axmParseError const& error)
          { return placed(APSTRING("no"), error.url(), error.line_number(), error.column_number()); });
      }},
    {"loadDocument", "neither line nor column of an error is known",
      [](Hooks& h)
      { tell_errors(h, [](axmParseError const& error) { return placed(error.message(), error.url(), -1, -1); }); }},
    {"loadDocument", "the column of an error is not known",
      [](Hooks& h)
      {
        tell_errors(
          h, [](axmParseError const& error) { return placed(error.message(), error.url(), error.line_number(), -1); });
      }},
    {"loadDocument", "the input of an error is not known",
      [](Hooks& h)
      {
        tell_errors(h, [](axmParseError const& error)
          { return placed(error.message(), apString(), error.line_number(), error.column_number()); });
      }},
    {"loadDocument", "the url of an error in a file is one with a scheme",
      [](Hooks& h)
      {
        tell_errors(h,
          [](axmParseError const& error)
          {
            bool const has_url = !error.url().empty();
            return placed(error.message(), has_url ? APSTRING("file:") + error.url() : error.url(), error.line_number(),
              error.column_number());
          });
      }},
    {"saveDocument", "elements are on lines of their own", [](Hooks& h) { save_as(h, on_lines); }},
    {"saveDocument", "a byte order mark is written", [](Hooks& h) { save_as(h, with_mark); }},
    {"saveDocument", "markup characters are written as numbers", [](Hooks& h) { save_as(h, with_numbers); }},
    {"saveDocument", "empty elements have a blank before their end",
      [](Hooks& h) { save_as(h, with_blank_before_end); }},
    {"saveDocument", "a line end follows the document", [](Hooks& h) { save_as(h, with_line_at_end); }},
    {"saveDocument", "empty elements have two tags", [](Hooks& h) { save_as(h, with_two_tags_each); }},
    {"saveDocument", "values of attributes stand between apostrophes", [](Hooks& h) { save_as(h, with_other_quotes); }},
    {"saveDocument", "the declaration tells no encoding", [](Hooks& h) { save_as(h, with_short_declaration); }},
    {"saveDocument", "line ends have two characters", [](Hooks& h) { save_as(h, with_lines_of_two); }},
    {"insertBefore", "a node before itself is refused",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_one = child != nullptr && before != nullptr && *child == *before;
          return is_one ? nullptr : n->insertBefore(child, before);
        };
      }},
    {"axmNamedNodeMap::setNamedItem", "one that is there already replaces nothing",
      [](Hooks& h) { h.map = [](Map const& map) { return std::make_shared<MapWithoutRepeats>(map); }; }},
    {"createComment", "half a surrogate is refused",
      [](Hooks& h)
      {
        h.create_comment = [](Document const& d, apString const& data) -> Node
        {
          if (apString::from_utf8(data.to_utf8().c_str()) != data && data.find(apString(L"\0", 1)) < 0)
            return nullptr;
          return d->createComment(data);
        };
      }},
    {"set_attribute", "a name that is none is told of",
      [](Hooks& h)
      {
        h.set_int = [](Node const& n, apString const& name, int value)
        {
          bool const is_set = n->set_attribute(name, value);
          return is_set && !name.empty() && is_name_start(name.view().front());
        };
      }},
    {"obstacle", "it is told in other words",
      [](Hooks& h)
      {
        h.obstacle = [](Factory const& factory, Document const& document)
        { return Hooks().obstacle(factory, document).empty() ? apString() : APSTRING("cannot be saved"); };
      }},
  };
  return engines;
}
