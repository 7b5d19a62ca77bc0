#include "Faults.h"

#include <axmTextNode.h>

#include <cstdio>
#include <cwctype>
#include <string>
#include <utility>

namespace
{
class ListOfItems : public axmNodeList
{
public:
  explicit ListOfItems(std::vector<Element> given) : items(std::move(given)) {}

  Element at(int index) override
  {
    return index >= 0 && index < length() ? items[static_cast<std::size_t>(index)] : nullptr;
  }
  int length() const override { return static_cast<int>(items.size()); }

private:
  std::vector<Element> items;
};
}

apString replaced(apString text, apString const& wanted, apString const& replacement)
{
  text.replace_all(wanted, replacement);
  return text;
}

apString trimmed(apString const& text)
{
  std::wstring_view view = text.view();
  while (!view.empty() && std::iswspace(static_cast<std::wint_t>(view.front())) != 0)
    view.remove_prefix(1);
  while (!view.empty() && std::iswspace(static_cast<std::wint_t>(view.back())) != 0)
    view.remove_suffix(1);
  return apString(view);
}

apString lower_case(apString const& text)
{
  std::wstring result(text.view());
  for (wchar_t& character : result)
    character = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
  return apString(std::wstring_view(result));
}

apString written(double value, int digits)
{
  char text[40];
  std::snprintf(text, sizeof text, "%.*g", digits, value);
  return apString(text);
}

bool is_element(Node const& node)
{
  return std::dynamic_pointer_cast<axmElement>(node) != nullptr;
}

int depth_of(Node const& node)
{
  int depth = 0;
  for (Node above = node->getParentNode(); above != nullptr; above = above->getParentNode())
    ++depth;
  return depth;
}

std::string text_of(apByteArray const& data)
{
  return std::string(data.data(), data.size());
}

apByteArray bytes_of(std::string const& text)
{
  return apByteArray(text.data(), text.size());
}

bool holds(apByteArray const& data, std::string_view part)
{
  return std::string_view(data.data(), data.size()).find(part) != std::string_view::npos;
}

std::string with(std::string text, std::string const& wanted, std::string const& replacement)
{
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string::npos; at += replacement.size())
    text.replace(at, wanted.size(), replacement);
  return text;
}

std::string contents_of(apPath const& path)
{
  std::string text;
  std::FILE* const file = path.file_open(apPath::read_mode());
  if (file == nullptr)
    return text;
  char part[4096];
  for (std::size_t size; (size = std::fread(part, 1, sizeof part, file)) > 0;)
    text.append(part, size);
  std::fclose(file);
  return text;
}

void write(apPath const& path, std::string const& text)
{
  if (std::FILE* const file = path.file_open(apPath::write_mode()))
  {
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
  }
}

void read_as(Hooks& hooks, std::function<std::string(std::string const& text)> const& change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  { return factory->loadDocument(bytes_of(change(text_of(data))), options, error); };
}

void read_as(Hooks& hooks, char const* wanted, char const* meant)
{
  read_as(hooks, [wanted, meant](std::string const& text) { return with(text, wanted, meant); });
}

List list_of(std::vector<Element> const& items)
{
  return std::make_shared<ListOfItems>(items);
}

std::vector<Element> items_of(List const& list)
{
  std::vector<Element> items;
  for (int index = 0; index < list->length(); ++index)
    items.push_back(list->at(index));
  return items;
}

bool is_text(Node const& node)
{
  return is<axmTextNode>(node);
}

Node after(Node const& node, Node const& top)
{
  if (Node const child = node->getFirstChild())
    return child;
  for (Node above = node; above != nullptr && !(*above == *top); above = above->getParentNode())
    if (Node const next = above->getNextSibling())
      return next;
  return nullptr;
}

Document refused(axmParseError& error)
{
  error = axmParseError(APSTRING("refused"));
  return nullptr;
}
