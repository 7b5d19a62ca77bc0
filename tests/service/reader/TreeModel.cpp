#include "TreeModel.h"

#include <axmCharacterData.h>
#include <axmCommentNode.h>
#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axmNamedNodeMap.h>
#include <axsRecordReader.h>
#include <axsRegister.h>

#include <algorithm>
#include <set>

namespace
{
std::string narrow(apString const& text)
{
  return std::string(text.to_utf8().view());
}

utString text_for(std::string const& text)
{
  return utString(text.data(), static_cast<int>(text.size()));
}

bool is_space(char c)
{
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string without_space(std::string text)
{
  text.erase(std::remove_if(text.begin(), text.end(), is_space), text.end());
  return text;
}

bool is_same(TreeModel::Element const& element, std::string const& expected, std::string const& given)
{
  return element.keeps_space ? expected == given : without_space(expected) == without_space(given);
}
}

namespace
{
bool is_text(axmNode const& node)
{
  return dynamic_cast<axmCharacterData const*>(&node) != nullptr &&
         dynamic_cast<axmCommentNode const*>(&node) == nullptr;
}
}

TreeModel::TreeModel(axmDocument& document)
{
  std::vector<std::shared_ptr<axmNode>> open;
  std::shared_ptr<axmNode> node = document.getDocumentElement();
  std::size_t current = 0;
  while (true)
  {
    bool const is_element = dynamic_cast<axmElement*>(node.get()) != nullptr;
    if (is_element)
      current = begin(*node, current);
    else if (is_text(*node))
      elements[current].texts.back() += narrow(node->getNodeValue());
    open.push_back(node);
    node = node->getFirstChild();
    while (node == nullptr)
    {
      if (dynamic_cast<axmElement*>(open.back().get()) != nullptr)
        current = elements[current].parent;
      if (open.size() == 1)
      {
        gather_names();
        return;
      }
      node = open.back()->getNextSibling();
      open.pop_back();
    }
  }
}

void TreeModel::gather_names()
{
  std::set<std::string> all_names = {"absent"};
  std::set<std::string> all_attributes = {"absent"};
  for (Element const& element : elements)
  {
    all_names.insert(element.name);
    for (auto const& [name, value] : element.attributes)
      all_attributes.insert(name);
  }
  names.assign(all_names.begin(), all_names.end());
  attribute_names.assign(all_attributes.begin(), all_attributes.end());
}

std::size_t TreeModel::begin(axmNode& node, std::size_t parent)
{
  std::size_t const number = elements.size();
  Element element;
  element.name = narrow(node.getNodeName());
  element.parent = parent;
  element.keeps_space = number > 0 && elements[parent].keeps_space;
  auto const map = node.getAttributes();
  for (int i = 0; i < map->getLength(); ++i)
  {
    auto const attribute = map->item(i);
    element.attributes.emplace_back(narrow(attribute->getNodeName()), narrow(attribute->getNodeValue()));
    if (element.attributes.back().first == "xml:space")
      element.keeps_space = element.attributes.back().second == "preserve";
  }
  elements.push_back(std::move(element));
  if (number > 0)
  {
    elements[parent].children.push_back(number);
    elements[parent].texts.emplace_back();
  }
  return number;
}

std::optional<std::string> TreeModel::attribute(std::size_t element, std::string const& name) const
{
  for (auto const& [known, value] : elements[element].attributes)
    if (known == name)
      return value;
  return std::nullopt;
}

std::string TreeModel::text(std::size_t element) const
{
  std::string all;
  for (std::string const& part : elements[element].texts)
    all += part;
  return all;
}

namespace
{
/// The walk in the tree, beside that of the reader.
class Walk
{
public:
  Walk(TreeModel const& walked, axmAbstractXmlReader& beside, unsigned seed)
    : tree(walked),
      reader(beside),
      random(seed)
  {
  }

  std::string run(int steps)
  {
    if (!reader.read_file())
      return "is not read: " + errors_of(reader);
    for (int i = 0; i < steps && wrong.empty(); ++i)
      step();
    while (!open.empty() && wrong.empty())
      up();
    if (wrong.empty() && reader.has_error_occurred())
      wrong = errors_of(reader);
    return wrong.empty() ? wrong : log + wrong;
  }

private:
  struct Open
  {
    std::size_t element;
    std::size_t next = 0; // which child comes next
  };

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random); }

  std::string const& one_of(std::vector<std::string> const& all) { return all[below(all.size())]; }

  void step()
  {
    switch (open.empty() ? 0 : below(8))
    {
    case 0:
    case 1:
      return down(open.empty() && below(4) > 0 ? tree.at(0).name : one_of(tree.names));
    case 2:
    case 3:
      return down(name_ahead());
    case 4:
      return up();
    case 5:
      return text();
    default:
      return attribute();
    }
  }

  /// The name of a child that is there, so that most searches find something.
  std::string name_ahead()
  {
    auto const& children = tree.at(open.back().element).children;
    return children.empty() ? "absent" : tree.at(children[below(children.size())]).name;
  }

  void down(std::string const& name)
  {
    log += "down to " + name + '\n';
    bool const is_there = enter(name);
    expect(is_there, reader.down_to(text_for(name)));
  }

  bool enter(std::string const& name)
  {
    if (open.empty())
    {
      bool const is_root = !is_over && name == tree.at(0).name;
      is_over = false;
      if (is_root)
        open.push_back({0});
      return is_root;
    }
    auto const& children = tree.at(open.back().element).children;
    for (std::size_t& next = open.back().next; next < children.size();)
      if (std::size_t const child = children[next++]; tree.at(child).name == name)
      {
        open.push_back({child});
        return true;
      }
    open.back().next = 0;
    return false;
  }

  void up()
  {
    log += "up\n";
    open.pop_back();
    is_over = open.empty();
    reader.up();
  }

  void text()
  {
    log += "text\n";
    TreeModel::Element const& element = tree.at(open.back().element);
    std::string const given = text_of(reader.text_node());
    std::string const& expected = element.texts[open.back().next];
    if (!is_same(element, expected, given))
      wrong = "gives the text '" + given + "' in place of '" + expected + "' " + errors_of(reader);
  }

  void attribute()
  {
    std::string const& name = one_of(tree.attribute_names);
    log += "attribute " + name + '\n';
    std::string const expected = tree.attribute(open.back().element, name).value_or("none");
    std::string const given = text_of(reader.attribute(text_for(name), ut_lit("none")));
    if (given != expected)
      wrong = "gives the value '" + given + "' in place of '" + expected + "' " + errors_of(reader);
  }

  void expect(bool expected, bool given)
  {
    if (expected != given)
      wrong = (given ? "finds it " : "does not find it ") + errors_of(reader);
  }

  TreeModel const& tree;
  axmAbstractXmlReader& reader;
  std::mt19937 random;
  std::vector<Open> open;
  bool is_over = false;
  std::string log;
  std::string wrong;
};

std::vector<std::string> parts_of(std::string const& text)
{
  std::vector<std::string> parts(1);
  for (char const c : text)
    if (c == '/')
      parts.emplace_back();
    else
      parts.back() += c;
  return parts;
}

/// The elements at a path of names below, in the order of the document.
std::vector<std::size_t> elements_at(TreeModel const& tree, std::size_t from, std::vector<std::string> const& path)
{
  std::vector<std::size_t> found = {from};
  for (std::string const& name : path)
  {
    std::vector<std::size_t> below;
    for (std::size_t const element : found)
      for (std::size_t const child : tree.at(element).children)
        if (tree.at(child).name == name)
          below.push_back(child);
    found = below;
  }
  return found;
}

struct Found
{
  std::optional<std::string> value;
  std::size_t element = 0;
};

Found value_of(TreeModel const& tree, std::size_t record, std::string const& column)
{
  if (column == ".")
    return {tree.text(record), record};
  std::vector<std::string> path = parts_of(column);
  std::string attribute;
  if (path.back().front() == '@')
  {
    attribute = path.back().substr(1);
    path.pop_back();
  }
  // Of the rows, the declarations of namespaces are no attributes.
  if (attribute == "xmlns" || attribute.compare(0, 6, "xmlns:") == 0)
    return {};
  for (std::size_t const element : elements_at(tree, record, path))
    if (attribute.empty())
      return {tree.text(element), element};
    else if (auto const value = tree.attribute(element, attribute))
      return {value, element};
  return {};
}

std::string column_below(TreeModel const& tree, std::mt19937& random, std::size_t record)
{
  auto const below = [&](std::size_t limit)
  { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random); };
  std::string column;
  std::size_t at = record;
  for (std::size_t steps = below(3); steps > 0 && !tree.at(at).children.empty(); --steps)
  {
    at = tree.at(at).children[below(tree.at(at).children.size())];
    column += (column.empty() ? "" : "/") + tree.at(at).name;
  }
  if (below(2) == 0)
    return column + (column.empty() ? "@" : "/@") + tree.attribute_names[below(tree.attribute_names.size())];
  return column.empty() ? "." : column;
}
}

std::string walk_difference(TreeModel const& tree, axmAbstractXmlReader& reader, unsigned seed, int steps)
{
  return Walk(tree, reader, seed).run(steps);
}

namespace
{
class Pieces final : public axsByteStream
{
public:
  Pieces(std::string const& text, std::size_t most) : bytes(text), piece(most) {}

  std::size_t read(char* to, std::size_t size) override
  {
    std::size_t const count = bytes.copy(to, std::min(size, piece), at);
    at += count;
    return count;
  }
  apString fault() const override { return {}; }

private:
  std::string const& bytes;
  std::size_t const piece;
  std::size_t at = 0;
};

/// The records whose path, from the root, has these names.
std::vector<std::size_t> records_of(TreeModel const& tree, std::vector<std::string> path)
{
  if (path.front() != tree.at(0).name)
    return {};
  path.erase(path.begin());
  return elements_at(tree, 0, path);
}
}

std::string rows_difference(TreeModel const& tree, std::string const& document, unsigned seed, std::size_t piece)
{
  std::mt19937 random(seed);
  std::size_t record = std::uniform_int_distribution<std::size_t>(0, tree.size() - 1)(random);
  axsRecordReader::Request request;
  for (int i = 0; i < 3; ++i)
    if (std::string const column = column_below(tree, random, record);
        std::find(request.columns.begin(), request.columns.end(), column) == request.columns.end())
      request.columns.push_back(column);
  request.path = tree.at(record).name;
  for (; record != 0; record = tree.at(record).parent)
    request.path.insert(0, tree.at(tree.at(record).parent).name + '/');

  std::vector<std::size_t> const records = records_of(tree, parts_of(request.path));
  std::size_t row_number = 0;
  std::string wrong;
  Pieces stream(document, piece);
  axmParseError error;
  bool const is_read = axsRecordReader(request).read(stream, apPath(), axmLoadOptions(), error,
    [&](axsRecordReader::Row const& row)
    {
      if (row_number == records.size())
        return wrong = "a row too many of " + request.path, false;
      for (std::size_t i = 0; i < row.size() && wrong.empty(); ++i)
      {
        Found const found = value_of(tree, records[row_number], request.columns[i]);
        bool const is_attribute = request.columns[i].find('@') != std::string::npos;
        bool const is_right =
          row[i].has_value() == found.value.has_value() &&
          (!row[i] || (is_attribute ? *row[i] == *found.value
                                    : is_same(tree.at(found.element), *found.value, std::string(*row[i]))));
        if (!is_right)
          wrong = "row " + std::to_string(row_number) + " of " + request.path + " has '" +
                  std::string(row[i].value_or("(none)")) + "' in " + request.columns[i] + " in place of '" +
                  found.value.value_or("(none)") + '\'';
      }
      ++row_number;
      return wrong.empty();
    });
  if (!is_read)
    return "no rows: " + std::string(error.message().to_utf8().view());
  if (wrong.empty() && row_number != records.size())
    wrong = "rows are missing of " + request.path;
  return wrong;
}

std::vector<std::string> names_in(std::string const& document)
{
  std::string text;
  for (char const c : document)
    if (c != '\0')
      text += c;
  std::set<std::string> names;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1))
    names.insert(text.substr(at + 1, text.find_first_of(" \t\r\n/><=!?&'\"", at + 1) - at - 1));
  names.erase("");
  return {names.begin(), names.end()};
}

namespace
{
/// What is wrong where the document is: empty if the readers say so, too.
std::string failure_difference(std::string const& document, std::size_t piece)
{
  axsRecordReader::Request request;
  request.path = "*";
  Pieces stream(document, piece);
  axmParseError error;
  if (axsRecordReader(request).read(
        stream, apPath(), axmLoadOptions(), error, [](axsRecordReader::Row const&) { return true; }))
    return "the record reader takes what the engine refuses";
  Reader const reader = reader_of(axsXmlFactory(), document, piece);
  if (!reader->read_file())
    return reader->has_error_occurred() ? "" : "is not read without an error";
  for (std::string const& name : names_in(document))
    if (reader->down_to(text_for(name)))
    {
      reader->up();
      return reader->has_error_occurred() ? "" : "the reader takes what the engine refuses";
    }
  return "";
}
}

std::string reader_difference(std::string const& document, unsigned seed, std::size_t piece)
{
  axs_register();
  utServiceName resolved;
  auto const engine = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmParseError error;
  auto const loaded = engine->loadDocument(apByteArray(document.data(), document.size()), axmLoadOptions(), error);
  if (loaded == nullptr)
    return failure_difference(document, piece);
  TreeModel const tree(*loaded);
  Reader const reader = reader_of(axsXmlFactory(), document, piece);
  std::string const wrong = walk_difference(tree, *reader, seed, 40);
  return wrong.empty() ? rows_difference(tree, document, seed, piece) : wrong;
}
