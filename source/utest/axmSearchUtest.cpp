#include "axmSearchUtest.h"

#include "axmModelUtest.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"
#include "model/axmModelSearch.h"
#include "model/axmModelSource.h"
#include "model/axmModelText.h"

#include <utUnitTest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <utility>
#include <vector>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Kind = axmModelKind;

char const file[] = "source/utest/axmSearchUtest";

wchar_t const* const attribute_names[] = {L"k", L"K", L"id", L"a"};
wchar_t const* const values[] = {L"v", L"0", L"x", L" x "};

// A document in the model and in the engine, node by node.
class Pair
{
public:
  Pair(axmDocumentFactory const& factory, int number)
  {
    axmModelSource const source = axm_model_source(model, number);
    document = source.document;
    text = source.text;
    handles.resize(static_cast<std::size_t>(model.size()));
    is_whole = add(load(factory, text.c_str()));
  }

  std::shared_ptr<axmElement> element(int number) const
  {
    return std::dynamic_pointer_cast<axmElement>(handles[static_cast<std::size_t>(number)]);
  }

  std::vector<int> elements() const
  {
    std::vector<int> found;
    for (int const number : model.subtree(document))
      if (model.node(number).kind == Kind::element)
        found.push_back(number);
    return found;
  }

  // Takes an element out, unless texts would stand beside each other then.
  void remove(int number)
  {
    int const parent = model.parent(number);
    int const before = model.previous(number);
    int const after = model.next(number);
    bool const is_between_texts = before != axmModel::none && after != axmModel::none &&
                                  model.node(before).kind == Kind::text && model.node(after).kind == Kind::text;
    if (parent == document || is_between_texts)
      return;
    handles[static_cast<std::size_t>(parent)]->removeChild(handles[static_cast<std::size_t>(number)]);
    model.remove(number);
  }

  // Another value of an attribute of an element, or of a text among its children. The tree stays as it is.
  void change(int number, axmModelRandom& random)
  {
    std::wstring const value = random.one_of(values);
    for (int const child : model.node(number).children)
      if (model.node(child).kind == Kind::text && random.once_in(2))
      {
        handles[static_cast<std::size_t>(child)]->set_text(apString(std::wstring_view(value)));
        model.set_text(child, value);
        return;
      }
    std::wstring const name = random.one_of(attribute_names);
    element(number)->setAttribute(apString(std::wstring_view(name)), apString(std::wstring_view(value)));
    model.set_attribute(number, name, value);
  }

  axmModel model;
  int document;
  std::string text;
  std::vector<Node> handles;
  bool is_whole = false;

private:
  bool add(Node const& top)
  {
    std::vector<std::pair<int, Node>> waiting = {{document, top}};
    while (!waiting.empty())
    {
      auto const [number, handle] = waiting.back();
      waiting.pop_back();
      if (handle == nullptr)
        return false;
      handles[static_cast<std::size_t>(number)] = handle;
      Node child = handle->getFirstChild();
      for (int const below : model.node(number).children)
      {
        waiting.emplace_back(below, child);
        child = child != nullptr ? child->getNextSibling() : nullptr;
      }
    }
    return true;
  }
};

// What stands for a node in a comparison.
std::wstring described(std::wstring const& name, std::wstring const& value)
{
  return name + L"=" + value;
}

// Whether `item` is the node `number`.
bool is_node(Pair const& pair, Node const& item, int number)
{
  if (item == nullptr || item->getNodeName().view() != pair.model.node_name(number) ||
      item->getNodeValue().view() != pair.model.node(number).value)
    return false;
  Node const& handle = pair.handles[static_cast<std::size_t>(number)];
  return handle == nullptr || (*handle == *item && *item == *handle);
}

// Whether the items from `first` on are the attributes `numbers`, in whatever order.
bool are_attributes(Pair const& pair, axmNodeList& list, int first, std::vector<int> const& numbers)
{
  std::vector<std::wstring> promised;
  std::vector<std::wstring> came;
  for (std::size_t index = 0; index < numbers.size(); ++index)
  {
    Node const item = list.at(first + static_cast<int>(index));
    if (item == nullptr)
      return false;
    promised.push_back(described(pair.model.node(numbers[index]).name, pair.model.node(numbers[index]).value));
    came.push_back(described(std::wstring(item->getNodeName().view()), std::wstring(item->getNodeValue().view())));
  }
  std::sort(promised.begin(), promised.end());
  std::sort(came.begin(), came.end());
  return promised == came;
}

// Whether the cursor goes over all items, past the end and to the first one again, and back where a reset puts it.
bool is_walked(axmNodeList& list, int length)
{
  for (int index = 0; index < length; ++index)
    if (!++list || list.invalid() || !same(list(), list.at(index)))
      return false;
  if (++list || !list.invalid() || ++list != (length > 0))
    return false;
  list.reset();
  if (!list.invalid())
    return false;
  for (int index = 0; index < length; ++index)
    if (!same(list.next_node(), list.at(index)))
      return false;
  return list.next_node() == nullptr && list.invalid();
}

bool are_found(Pair const& pair, axmNodeList& list, std::vector<int> const& promised)
{
  int const length = static_cast<int>(promised.size());
  if (list.length() != length || list.isEmpty() != promised.empty() || !list.invalid())
    return false;
  for (std::size_t index = 0; index < promised.size();)
  {
    axmModelNode const& node = pair.model.node(promised[index]);
    if (node.kind != Kind::attribute)
    {
      if (!is_node(pair, list.at(static_cast<int>(index)), promised[index]))
        return false;
      ++index;
      continue;
    }
    std::vector<int> of_one;
    for (std::size_t at = index; at < promised.size() && pair.model.node(promised[at]).kind == Kind::attribute &&
                                 pair.model.node(promised[at]).holder == node.holder;
         ++at)
      of_one.push_back(promised[at]);
    if (!are_attributes(pair, list, static_cast<int>(index), of_one))
      return false;
    index += of_one.size();
  }
  return list.at(length) == nullptr && list.at(-1) == nullptr && list.at(INT_MAX) == nullptr && is_walked(list, length);
}

// Whether a search from the element `context` finds what it must; if not, what was searched and what came is told.
bool search(utUnitTest& tester, Pair const& pair, int context, axmModelSearch const& wanted)
{
  auto const element = pair.element(context);
  std::wstring const text = wanted.text();
  apString const expression(std::wstring_view{text});
  std::vector<int> const promised = wanted.find(pair.model, context);
  auto const list = element->selectNodes(expression);
  bool const are_right = list != nullptr && are_found(pair, *list, promised);
  Node const single = element->selectSingleNode(expression);
  bool const is_any = promised.empty() || pair.model.node(promised[0]).kind == Kind::attribute;
  bool const is_single =
    is_any ? (single != nullptr) == !promised.empty() : single != nullptr && is_node(pair, single, promised[0]);
  if (are_right && is_single)
    return true;
  tester.printf(
    "auto const document = loaded(%s);\n// %s from the element \"%s\": promised are %d nodes, what came are %d%s",
    axmModelText::quoted(apString(pair.text.c_str()).view()).c_str(), axmModelText::quoted(text).c_str(),
    element->getNodeName().to_utf8().c_str(), static_cast<int>(promised.size()), length_of(list),
    are_right ? "; the single node is another one" : "");
  return false;
}

// Whether searches that were made before find what they must once attributes and texts have other values.
bool search_again(utUnitTest& tester, Pair& pair, std::vector<int> const& elements,
  std::vector<std::pair<int, axmModelSearch>> const& searches, axmModelRandom& random)
{
  for (int count = 0; count < 3; ++count)
    pair.change(random.one_of(elements), random);
  return std::all_of(
    searches.begin(), searches.end(), [&](auto const& made) { return search(tester, pair, made.first, made.second); });
}

bool search_in(utUnitTest& tester, axmDocumentFactory const& factory, std::uint64_t number)
{
  Pair pair(factory, static_cast<int>(number % 1000003U));
  if (!pair.is_whole)
    return false;
  axmModelRandom random(number);
  std::vector<std::pair<int, axmModelSearch>> searches;
  for (int count = 0; count < 24; ++count)
  {
    std::vector<int> const contexts = pair.elements();
    searches.emplace_back(random.one_of(contexts), axmModelSearch(random));
    if (!search(tester, pair, searches.back().first, searches.back().second))
      return false;
    if (random.once_in(8))
    {
      pair.remove(random.one_of(contexts));
      searches.clear();
    }
    else if (random.once_in(4) && !search_again(tester, pair, contexts, searches, random))
      return false;
  }
  return true;
}
}

axmSearchUtest::axmSearchUtest(utUnitTest* given_tester)
  : axmSearchUtest(given_tester, axmModelUtest::default_seed, axmModelUtest::default_rounds)
{
}

axmSearchUtest::axmSearchUtest(utUnitTest* given_tester, std::uint64_t given_seed, int given_rounds)
  : tester(given_tester),
    seed(given_seed),
    rounds(given_rounds)
{
}

axmSearchUtest::~axmSearchUtest() = default;

void axmSearchUtest::run_tests(Factory const& factory) const
{
  using Utest = axmSearchUtest;
  axmUtestEntry<Utest, Factory const&> const groups[] = {
    {&Utest::test_paths, "axmSearchUtest::test_paths"},
    {&Utest::test_lists, "axmSearchUtest::test_lists"},
  };
  axm_run_groups(*this, factory, groups, tester, file);
}

void axmSearchUtest::test_paths(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSearchUtest::test_paths");
  bool is_right = true;
  for (int round = 0; round < rounds && is_right; ++round)
    is_right = search_in(*tester, *factory, seed * 1000003U + static_cast<std::uint64_t>(round));
  group.check(is_right, "every search finds what it must", __LINE__, "searches in documents");
}

void axmSearchUtest::test_lists(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmSearchUtest::test_lists");
  auto const root = load_root(*factory, "<r><a/><a/><a/></r>");
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  auto const first = root->selectNodes(APSTRING("a"));
  auto const second = root->selectNodes(APSTRING("a"));
  if (!group.check(length_of(first) == 3 && length_of(second) == 3, "first->length() == 3 && second->length() == 3",
        __LINE__, "two searches of one expression"))
    return;
  first->next_node();
  first->next_node();
  group.check(second->invalid(), "second->invalid()", __LINE__, "each search gives a list with a cursor of its own");
  group.check(same(second->next_node(), first->at(0)), "*second->next_node() == *first->at(0)", __LINE__,
    "which begins at the first item");
  append(first->at(0), created(root->getOwnerDocument(), APSTRING("below")));
  group.check(length_of(root->selectNodes(APSTRING("a/below"))), 1, "root->selectNodes(\"a/below\")->length()",
    __LINE__, "what a search found can be changed, and is found as it is then");
  remove(root, first->at(2));
  group.check(length_of(root->selectNodes(APSTRING("a"))), 2, "root->selectNodes(\"a\")->length()", __LINE__,
    "a search after a removal is a new one");
  bool are_there = true;
  for (int index = 0; index < loop_length_of(first); ++index)
    are_there = are_there && first->at(index) != nullptr;
  group.check(are_there, "first->at(index) for each index", __LINE__, "an item of a list is never missing");
}
