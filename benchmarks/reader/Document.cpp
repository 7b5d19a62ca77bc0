#include "Document.h"

#include "Tags.h"

#include <utUtf8.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>

namespace
{
char const spaces[] = " \t\r\n";
int const max_levels = 200; // elements further down are left out

std::string content_of(std::string const& file)
{
  std::ifstream stream(file, std::ios::binary);
  std::string content((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  if (!stream)
    throw std::runtime_error("cannot read " + file);
  return content;
}

bool is_blank(std::string_view text)
{
  return text.find_first_not_of(spaces) == std::string_view::npos;
}

std::string with_replaced(std::string_view text, char from, std::string_view to)
{
  std::string result;
  for (char const c : text)
    if (c == from)
      result += to;
    else
      result += c;
  return result;
}

// A value with its entities replaced.
std::string decoded_value(std::string_view value)
{
  static std::map<std::string, char, std::less<>> const known = {
    {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i)
  {
    if (value[i] != '&')
    {
      text += value[i];
      continue;
    }
    std::size_t const end = value.find(';', i);
    std::string const entity(value.substr(i + 1, end - i - 1));
    auto const found = known.find(entity);
    if (end != std::string_view::npos && entity.size() > 1 && entity[0] == '#')
      utUtf8::append(static_cast<char32_t>(entity[1] == 'x' ? std::strtoul(entity.c_str() + 2, nullptr, 16)
                                                            : std::strtoul(entity.c_str() + 1, nullptr, 10)),
        text);
    else if (end != std::string_view::npos && found != known.end())
      text += found->second;
    else
      throw std::runtime_error("the document has entities of its own");
    i = end;
  }
  return text;
}

// What was changed, with how often.
class Changes
{
public:
  void count(std::string const& what) { ++counts[what]; }

  void note(std::vector<std::string>& notes) const
  {
    for (auto const& [what, times] : counts)
      notes.push_back(what + (times > 1 ? " (" + std::to_string(times) + ")" : ""));
  }

private:
  std::map<std::string, long> counts;
};

// Writes a tag in the way that the reader needs.
void append_tag(Tag const& tag, std::string& text, Changes& changes)
{
  text += '<';
  text += tag.content;
  std::size_t written = 1 + tag.content.size();
  for (Tag::Attribute const& attribute : tag.attributes)
  {
    std::string space(attribute.space);
    if (&attribute == tag.attributes.data() && space.front() != ' ')
    {
      changes.count("white space other than a blank after an element's name");
      space.front() = ' ';
    }
    std::string value = with_replaced(attribute.value, '>', "&gt;");
    for (char const c : {'\t', '\n', '\r'})
      value = with_replaced(value, c, " ");
    if (value != attribute.value)
      changes.count("a > or a line break in an attribute");
    text += space;
    text += attribute.name;
    text += '=';
    text += attribute.quote;
    text += value;
    text += attribute.quote;
    written += attribute.space.size() + attribute.name.size() + attribute.value.size() + 3;
  }
  // What is left is white space and the end, unless there was white space around a `=`.
  std::size_t const end_size = tag.kind == Tag::self_closing ? 2 : 1;
  std::string_view const before_end = tag.whole.substr(0, tag.whole.size() - end_size);
  std::size_t const last = before_end.find_last_not_of(spaces) + 1;
  std::string end(tag.whole.substr(last));
  if (last != written)
    changes.count("white space around a =");
  if (tag.attributes.empty() && is_blank(end.substr(0, 1)) && end.front() != ' ')
  {
    changes.count("white space other than a blank after an element's name");
    end.front() = ' ';
  }
  text += end;
}

// By what the document says, if it does.
bool is_in_utf8(std::string_view document)
{
  std::string_view const declaration = document.substr(0, std::min(document.find("?>"), document.size()));
  std::size_t const begin = declaration.find("encoding=");
  if (declaration.substr(0, 5) != "<?xml" || begin == std::string_view::npos)
    return true;
  std::string name;
  for (char const c : declaration.substr(begin + 10))
    if (c == '"' || c == '\'')
      break;
    else
      name += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  return name == "UTF-8" || name == "US-ASCII" || name == "ASCII";
}

// The document without what the reader cannot pass.
std::string cleaned(std::string const& given, Changes& changes)
{
  std::string_view document = given;
  if (document.substr(0, 3) == "\xEF\xBB\xBF")
  {
    changes.count("the byte-order mark");
    document.remove_prefix(3);
  }
  std::string text;
  text.reserve(document.size() + 64);
  std::string_view const declaration = "<?xml version=";
  if (!is_in_utf8(document))
    throw std::runtime_error("the document is not in UTF-8");
  bool const is_declared = document.substr(0, declaration.size()) == declaration;
  if (!is_declared)
  {
    changes.count("no XML declaration");
    text += "<?xml version=\"1.0\"?>\n";
  }

  Tags tags(document);
  Tag tag;
  while (tags.next(tag))
    switch (tag.kind)
    {
    case Tag::instruction:
      if (text.empty())
        text += tag.whole;
      else if (is_declared || tag.content.substr(0, 4) != "xml ")
        changes.count("an instruction");
      break;
    case Tag::document_type:
      changes.count("the document type");
      break;
    case Tag::section:
      changes.count("a CDATA section");
      text += with_replaced(with_replaced(tag.content, '&', "&amp;"), '<', "&lt;");
      break;
    case Tag::opening:
    case Tag::self_closing:
      append_tag(tag, text, changes);
      break;
    case Tag::closing:
      if (tag.whole.size() != tag.content.size() + 3)
        changes.count("white space in a closing tag");
      text += "</";
      text += tag.content;
      text += '>';
      break;
    default:
      text += tag.whole;
    }
  if (text.find('\r') != std::string::npos)
  {
    changes.count("line breaks of two characters");
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  }
  if (text.back() != '\n')
    text += '\n';
  return text;
}

// What the elements of one path have in common.
struct Path
{
  explicit Path(std::string_view given) : name(given) {}

  Path& child(std::string_view wanted)
  {
    for (auto const& known : children)
      if (known->name == wanted)
        return *known;
    children.push_back(std::make_unique<Path>(wanted));
    children.back()->number = children.size() - 1;
    return *children.back();
  }

  long& attribute(std::string_view wanted)
  {
    for (auto& [known, times] : attributes)
      if (known == wanted)
        return times;
    attributes.emplace_back(wanted, 0);
    return attributes.back().second;
  }

  bool has_few_self_closing() const { return self_closing > 0 && self_closing * 5 <= count; }

  // Whether a closing tag ends each of them.
  bool can_be_entered() const { return self_closing == 0; }

  std::string name;
  std::size_t number = 0; // among the children of its parent
  long count = 0;
  long self_closing = 0;
  long texts = 0;
  bool has_mixed_text = false; // beside elements or comments, or of white space alone
  bool is_single = true;
  std::vector<std::pair<std::string, long>> attributes;
  std::vector<std::unique_ptr<Path>> children;
  std::vector<std::vector<bool>> comes_before; // which child was seen in front of which
};

// An element that is open.
struct Open
{
  Path* path;
  bool has_text = false;
  bool has_blank = false;
  bool has_other = false;
  std::vector<std::size_t> children;

  explicit Open(Path& given) : path(&given) {}
};

void note_child(Open& parent, std::size_t child)
{
  auto& before = parent.path->comes_before;
  if (before.size() <= child)
    before.resize(child + 1);
  for (std::size_t const sibling : parent.children)
  {
    if (sibling == child)
      continue;
    if (before[sibling].size() <= child)
      before[sibling].resize(child + 1);
    before[sibling][child] = true;
  }
  if (std::find(parent.children.begin(), parent.children.end(), child) == parent.children.end())
    parent.children.push_back(child);
  else
    parent.path->children[child]->is_single = false;
}

void note_end(Open const& open)
{
  if (open.has_text)
    ++open.path->texts;
  if (open.has_other ? open.has_text : open.has_blank && !open.has_text)
    open.path->has_mixed_text = true;
}

Path& enter(std::vector<Open>& open, std::string_view name)
{
  Path& path = open.back().path->child(name);
  open.back().has_other = true;
  note_child(open.back(), path.number);
  ++path.count;
  return path;
}

// The paths of a document, from that of the root element on, in an element above all.
std::unique_ptr<Path> paths_of(std::string_view text)
{
  auto all = std::make_unique<Path>("");
  std::vector<Open> open = {Open(*all)};
  Tags tags(text);
  Tag tag;
  while (tags.next(tag))
    switch (tag.kind)
    {
    case Tag::opening:
    case Tag::self_closing:
    {
      Path& path = enter(open, tag.content);
      for (Tag::Attribute const& attribute : tag.attributes)
        ++path.attribute(attribute.name);
      if (tag.kind == Tag::self_closing)
        ++path.self_closing;
      else
        open.emplace_back(path);
      break;
    }
    case Tag::closing:
      if (open.size() == 1 || open.back().path->name != tag.content)
        throw std::runtime_error("the document is not well-formed");
      note_end(open.back());
      open.pop_back();
      break;
    case Tag::text:
      (is_blank(tag.content) ? open.back().has_blank : open.back().has_text) = true;
      break;
    default:
      open.back().has_other = true;
    }
  if (open.size() != 1 || all->children.size() != 1)
    throw std::runtime_error("the document is not well-formed");
  return all;
}

// Writes few self-closing elements among many of the same path with a closing tag.
std::string with_closing_tags(std::string const& text, Path& all, Changes& changes)
{
  std::string result;
  result.reserve(text.size() + 1024);
  std::vector<Path*> open = {&all};
  Tags tags(text);
  Tag tag;
  while (tags.next(tag))
  {
    if (tag.kind == Tag::opening)
      open.push_back(&open.back()->child(tag.content));
    else if (tag.kind == Tag::closing)
      open.pop_back();
    if (tag.kind == Tag::self_closing && open.back()->child(tag.content).has_few_self_closing())
    {
      changes.count("a self-closing element of a kind that most often has content");
      result += std::string(tag.whole.substr(0, tag.whole.size() - 2)) + "></" + std::string(tag.content) + ">";
    }
    else
      result += tag.whole;
  }
  return result;
}

// The children in an order in which all parents have them, each but those of which one parent has several only once;
// false if there is none.
bool sort_children(Path const& path, std::vector<Path const*>& children)
{
  auto const comes_before = [&](Path const* one, Path const* other)
  {
    auto const& before = path.comes_before;
    return one->number < before.size() && other->number < before[one->number].size() &&
           before[one->number][other->number];
  };
  for (std::size_t done = 0; done < children.size(); ++done)
  {
    auto const first = std::find_if(children.begin() + static_cast<std::ptrdiff_t>(done), children.end(),
      [&](Path const* candidate)
      {
        return std::none_of(children.begin() + static_cast<std::ptrdiff_t>(done), children.end(),
          [&](Path const* other) { return other != candidate && comes_before(other, candidate); });
      });
    if (first == children.end())
      return false;
    std::rotate(children.begin() + static_cast<std::ptrdiff_t>(done), first, first + 1);
  }
  return true;
}

// Whether the reader would take an element of another name for one of this one.
bool is_beginning_of_another(Path const& path, Path const& parent)
{
  return std::any_of(parent.children.begin(), parent.children.end(),
    [&](auto const& other)
    { return other->name.size() > path.name.size() && other->name.compare(0, path.name.size(), path.name) == 0; });
}

// Namespaces are no attributes to some of the libraries.
bool is_namespace(std::string const& attribute)
{
  return attribute == "xmlns" || attribute.compare(0, 6, "xmlns:") == 0;
}

// What can be taken from the elements of a path.
Element element_of(Path const& path, int& fields, int levels)
{
  Element element;
  element.name = path.name;
  element.field = fields;
  for (auto const& [name, count] : path.attributes)
    if (!is_namespace(name) && (path.can_be_entered() || count == path.count))
      element.attributes.push_back(name);
  if (path.can_be_entered() && path.texts > 0 && !path.has_mixed_text && path.children.empty())
    element.has_text = true;
  fields += static_cast<int>(element.attributes.size()) + element.has_text;
  if (!path.can_be_entered() || levels == 0)
    return element;

  std::vector<Path const*> children;
  for (auto const& child : path.children)
    if (!is_beginning_of_another(*child, path))
      children.push_back(child.get());
  bool const is_sorted = sort_children(path, children);
  for (Path const* child : children)
  {
    Element of_child = element_of(*child, fields, levels - 1);
    of_child.is_single = is_sorted && child->is_single;
    if (!of_child.attributes.empty() || of_child.has_text || !of_child.children.empty())
      element.children.push_back(std::move(of_child));
  }
  return element;
}
}

Document::Document(std::string const& given, std::string const& copy) : file(copy)
{
  Changes changes;
  std::string text = cleaned(content_of(given), changes);
  text = with_closing_tags(text, *paths_of(text), changes);
  changes.note(notes);
  task.root = element_of(*paths_of(text)->children.front(), task.fields, max_levels);
  find_values(text);
  std::ofstream stream(copy, std::ios::binary);
  stream << text;
  stream.close();
  if (!stream)
    throw std::runtime_error("cannot write " + copy);
}

// Takes the values of the task, and counts all there are.
void Document::find_values(std::string const& text)
{
  written = Digest(task.fields);
  decoded = Digest(task.fields);
  auto const take = [&](int field, std::string_view value)
  {
    written.add_text(field, value);
    decoded.add_text(field, decoded_value(value));
    ++values_taken;
  };

  std::vector<Element const*> open;
  Element const above = {"", 0, {}, false, false, {task.root}};
  std::string last_text;
  Tags tags(text);
  Tag tag;
  while (tags.next(tag))
    switch (tag.kind)
    {
    case Tag::opening:
    case Tag::self_closing:
    {
      Element const* const parent = open.empty() ? &above : open.back();
      Element const* element = nullptr;
      if (parent != nullptr)
        for (Element const& child : parent->children)
          if (child.name == tag.content)
            element = &child;
      for (Tag::Attribute const& attribute : tag.attributes)
      {
        std::size_t const found =
          element == nullptr
            ? 0
            : position_of(element->attributes, 0, [&](std::string const& name) { return name == attribute.name; });
        if (element == nullptr || found == element->attributes.size())
          ++values_left_out;
        else
        {
          written.add(element->field + static_cast<int>(found), attribute.value);
          decoded.add(element->field + static_cast<int>(found), decoded_value(attribute.value));
          ++values_taken;
        }
      }
      if (tag.kind == Tag::opening)
        open.push_back(element);
      last_text.clear();
      break;
    }
    case Tag::text:
      last_text = tag.content;
      if (!open.empty() && (open.back() == nullptr || !open.back()->has_text) && !is_blank(tag.content))
        ++values_left_out;
      break;
    case Tag::closing:
      if (open.back() != nullptr && open.back()->has_text)
        take(open.back()->text_field(), last_text);
      open.pop_back();
      break;
    default:
      break;
    }
}
