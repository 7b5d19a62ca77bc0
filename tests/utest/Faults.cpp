#include "Faults.h"

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

bool is_element(Node const& node)
{
  return std::dynamic_pointer_cast<axmElement>(node) != nullptr;
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
