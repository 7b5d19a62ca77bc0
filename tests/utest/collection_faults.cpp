#include "Faults.h"

#include <algorithm>
#include <utility>

namespace
{
// A list that does what another does, but for what is overridden; its cursor is that of the interface.
class ListOver : public axmNodeList
{
public:
  explicit ListOver(List given) : inner(std::move(given)) {}
  Element at(int index) override { return inner->at(index); }
  int length() const override { return inner->length(); }

protected:
  List const inner;
};

class CountsFromOne : public ListOver
{
public:
  using ListOver::ListOver;
  Element at(int index) override { return inner->at(index - 1); }
};

class HoldsNothing : public ListOver
{
public:
  using ListOver::ListOver;
  Element at(int) override { return nullptr; }
};

class OneShort : public ListOver
{
public:
  using ListOver::ListOver;
  int length() const override { return inner->length() - 1; }
};

class OneLong : public ListOver
{
public:
  using ListOver::ListOver;
  int length() const override { return inner->length() + 1; }
};

class NeverEmpty : public ListOver
{
public:
  using ListOver::ListOver;
  bool isEmpty() const override { return false; }
};

class Sticks : public ListOver
{
public:
  using ListOver::ListOver;
  bool operator++() override
  {
    if (invalid() && started)
      return false;
    started = true;
    return ListOver::operator++();
  }
  void reset() override
  {
    started = false;
    ListOver::reset();
  }

private:
  bool started = false;
};

class WrapsAtOnce : public ListOver
{
public:
  using ListOver::ListOver;
  bool operator++() override { return ListOver::operator++() || ListOver::operator++(); }
  Element next_node() override { return ++*this ? (*this)() : nullptr; }
};

class CannotBeReset : public ListOver
{
public:
  using ListOver::ListOver;
  void reset() override {}
};

class NeverInvalid : public ListOver
{
public:
  using ListOver::ListOver;
  bool invalid() const override { return false; }
};

class LookingMoves : public ListOver
{
public:
  using ListOver::ListOver;
  Element operator()() override
  {
    Element const item = ListOver::operator()();
    ListOver::operator++();
    return item;
  }
};

class NextStaysAtTheEnd : public ListOver
{
public:
  using ListOver::ListOver;
  Element next_node() override
  {
    Element const next = ListOver::next_node();
    return next != nullptr ? next : inner->at(inner->length() - 1);
  }
};

class Snapshot : public MapAs
{
public:
  explicit Snapshot(Map const& given) : MapAs(given)
  {
    for (int index = 0; index < given->getLength(); ++index)
      items.push_back(given->item(index));
  }
  int getLength() override { return static_cast<int>(items.size()); }
  Node item(int index) override { return items[static_cast<std::size_t>(index)]; }
  Node getNamedItem(apString const& name) override
  {
    for (Node const& node : items)
      if (node->getNodeName() == name)
        return node;
    return nullptr;
  }

private:
  std::vector<Node> items;
};

class OneAttributeShort : public MapAs
{
public:
  using MapAs::MapAs;
  int getLength() override { return std::max(map->getLength() - 1, 0); }
};

class CountStays : public MapAs
{
public:
  explicit CountStays(Map const& given) : MapAs(given), count(given->getLength()) {}
  int getLength() override { return std::max(count, map->getLength()); }
  Node item(int index) override { return index < map->getLength() ? map->item(index) : nullptr; }

private:
  int count;
};

class AlwaysTheFirst : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int) override { return map->item(0); }
};

class ItemsAreMissing : public MapAs
{
public:
  using MapAs::MapAs;
  Node item(int) override { return nullptr; }
};

class AnyCase : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override
  {
    for (int index = 0; index < map->getLength(); ++index)
      if (lower_case(map->item(index)->getNodeName()) == lower_case(name))
        return map->item(index);
    return nullptr;
  }
};

class AbsentIsTheFirst : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const& name) override
  {
    Node const found = map->getNamedItem(name);
    return found == nullptr && map->getLength() > 0 ? map->item(0) : found;
  }
};

class FindsNothing : public MapAs
{
public:
  using MapAs::MapAs;
  Node getNamedItem(apString const&) override { return nullptr; }
};

class SetReturnsTheNewNode : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    map->setNamedItem(node);
    return node;
  }
};

class SetReturnsNothing : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    map->setNamedItem(node);
    return nullptr;
  }
};

class SetKeepsTheOldNode : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override
  {
    Node const found = map->getNamedItem(node->getNodeName());
    return found != nullptr ? found : map->setNamedItem(node);
  }
};

class SetAddsNothing : public MapAs
{
public:
  using MapAs::MapAs;
  Node setNamedItem(Node node) override { return map->getNamedItem(node->getNodeName()); }
};

class RemoveRemovesNothing : public MapAs
{
public:
  using MapAs::MapAs;
  Node removeNamedItem(apString const& name) override { return map->getNamedItem(name); }
};

class RemoveReturnsNothing : public MapAs
{
public:
  using MapAs::MapAs;
  Node removeNamedItem(apString const& name) override
  {
    map->removeNamedItem(name);
    return nullptr;
  }
};

class RemoveTakesAll : public MapAs
{
public:
  using MapAs::MapAs;
  Node removeNamedItem(apString const& name) override
  {
    Node const removed = map->removeNamedItem(name);
    while (map->getLength() > 0)
      map->removeNamedItem(map->item(0)->getNodeName());
    return removed;
  }
};

template <class Over>
void put_list(Hooks& hooks)
{
  hooks.list = [](List const& given) -> List { return std::make_shared<Over>(given); };
}

template <class Over>
void put_map(Hooks& hooks)
{
  hooks.map = [](Map const& given) -> Map { return std::make_shared<Over>(given); };
}
}

std::vector<Fault> const& collection_faults()
{
  static std::vector<Fault> const faults = {
    {"axmNodeList::at", "the index counts from one", put_list<CountsFromOne>},
    {"axmNodeList::at", "the items are missing", put_list<HoldsNothing>},
    {"axmNodeList::length", "the length is one short", put_list<OneShort>},
    {"axmNodeList::length", "the length is one too many", put_list<OneLong>},
    {"axmNodeList::isEmpty", "no list is empty", put_list<NeverEmpty>},
    {"axmNodeList::operator++", "the cursor sticks at the end", put_list<Sticks>},
    {"axmNodeList::operator++", "the cursor does not stop at the end", put_list<WrapsAtOnce>},
    {"axmNodeList::reset", "the cursor cannot be reset", put_list<CannotBeReset>},
    {"axmNodeList::invalid", "the cursor always stands on an item", put_list<NeverInvalid>},
    {"axmNodeList::operator()", "looking at the item moves the cursor", put_list<LookingMoves>},
    {"axmNodeList::next_node", "after the last item comes the last item", put_list<NextStaysAtTheEnd>},
    {"axmNodeList", "the list of a node is one object with one cursor",
      [](Hooks& h)
      {
        auto const lists = std::make_shared<std::vector<std::pair<Node, List>>>();
        h.children = [lists](Node const& n)
        {
          for (auto const& [node, list] : *lists)
            if (*node == *n)
              return list;
          lists->emplace_back(n, n->getChildNodes());
          return lists->back().second;
        };
      }},

    {"getAttributes", "the map is a snapshot", put_map<Snapshot>},
    {"axmNamedNodeMap::getLength", "the length is one short", put_map<OneAttributeShort>},
    {"axmNamedNodeMap::getLength", "the length does not follow removals", put_map<CountStays>},
    {"axmNamedNodeMap::item", "every item is the first one", put_map<AlwaysTheFirst>},
    {"axmNamedNodeMap::item", "the items are missing", put_map<ItemsAreMissing>},
    {"axmNamedNodeMap::getNamedItem", "the case of the name does not count", put_map<AnyCase>},
    {"axmNamedNodeMap::getNamedItem", "what is absent is the first attribute", put_map<AbsentIsTheFirst>},
    {"axmNamedNodeMap::getNamedItem", "nothing is found", put_map<FindsNothing>},
    {"axmNamedNodeMap::setNamedItem", "the result is the new node", put_map<SetReturnsTheNewNode>},
    {"axmNamedNodeMap::setNamedItem", "the result is empty", put_map<SetReturnsNothing>},
    {"axmNamedNodeMap::setNamedItem", "the old node stays", put_map<SetKeepsTheOldNode>},
    {"axmNamedNodeMap::setNamedItem", "nothing is put in", put_map<SetAddsNothing>},
    {"axmNamedNodeMap::removeNamedItem", "nothing is removed", put_map<RemoveRemovesNothing>},
    {"axmNamedNodeMap::removeNamedItem", "the result is empty", put_map<RemoveReturnsNothing>},
    {"axmNamedNodeMap::removeNamedItem", "all attributes are removed", put_map<RemoveTakesAll>},
  };
  return faults;
}
