#include "Faults.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>
#include <utAssert.h>

#include <algorithm>
#include <climits>
#include <map>
#include <string>
#include <utility>

namespace
{
bool is_comment(Node const& node)
{
  return std::dynamic_pointer_cast<axmCommentNode>(node) != nullptr;
}

bool is_instruction(Node const& node)
{
  return std::dynamic_pointer_cast<axmProcessingInstruction>(node) != nullptr;
}

bool is_document(Node const& node)
{
  return std::dynamic_pointer_cast<axmDocument>(node) != nullptr;
}

// Whether both are there and one node.
bool same(Node const& left, Node const& right)
{
  return left != nullptr && right != nullptr && *left == *right;
}

bool are_siblings(Node const& left, Node const& right)
{
  return left != nullptr && right != nullptr && same(left->getParentNode(), right->getParentNode());
}

// Whether `left` comes before `right` among their siblings.
bool is_before(Node const& left, Node const& right)
{
  for (Node node = left->getNextSibling(); node != nullptr; node = node->getNextSibling())
    if (*node == *right)
      return true;
  return false;
}

int depth(Node const& node)
{
  int count = 0;
  for (Node above = node->getParentNode(); above != nullptr; above = above->getParentNode())
    ++count;
  return count;
}

// The index among the siblings, `max` for all from there on.
int index_up_to(Node const& node, int max)
{
  int index = 0;
  for (Node before = node->getPreviousSibling(); before != nullptr && index < max; ++index)
    before = before->getPreviousSibling();
  return index;
}

// A list over another one, of which some operations are others.
class OddList : public axmNodeList
{
public:
  explicit OddList(List given) : list(std::move(given)) {}

  Element at(int index) override { return odd_at ? odd_at(*list, index) : list->at(index); }
  int length() const override { return odd_length ? odd_length(*list) : list->length(); }
  bool isEmpty() const override { return odd_is_empty ? odd_is_empty(*list) : axmNodeList::isEmpty(); }
  bool operator++() override { return odd_step ? odd_step(*this) : axmNodeList::operator++(); }
  Element operator()() override { return odd_current ? odd_current(*this) : axmNodeList::operator()(); }
  void reset() override { odd_reset ? odd_reset(*this) : axmNodeList::reset(); }
  Element next_node() override { return odd_next ? odd_next(*this) : axmNodeList::next_node(); }
  bool invalid() const override { return odd_invalid ? odd_invalid(*this) : axmNodeList::invalid(); }

  bool plain_step() { return axmNodeList::operator++(); }
  bool plain_invalid() const { return axmNodeList::invalid(); }
  void plain_reset() { axmNodeList::reset(); }
  Element plain_next() { return axmNodeList::next_node(); }

  std::function<Element(axmNodeList&, int)> odd_at;
  std::function<int(axmNodeList const&)> odd_length;
  std::function<bool(axmNodeList const&)> odd_is_empty;
  std::function<bool(OddList&)> odd_step;
  std::function<Element(OddList&)> odd_current;
  std::function<void(OddList&)> odd_reset;
  std::function<Element(OddList&)> odd_next;
  std::function<bool(OddList const&)> odd_invalid;
  int steps = 0;

private:
  List list;
};

template <class Change>
void put_into_lists(Hooks& hooks, Change change)
{
  hooks.list = [change](List const& given)
  {
    auto const list = std::make_shared<OddList>(given);
    change(*list);
    return list;
  };
}

template <class Change>
void put_into_searches(Hooks& hooks, Change change)
{
  hooks.by_name = [change](Document const& document, apString const& name) -> List
  {
    auto const list = std::make_shared<OddList>(document->getElementsByTagName(name));
    change(*list);
    return list;
  };
}
}

std::vector<Fault> const& subtle_tree_faults()
{
  static std::vector<Fault> const faults = {
    {"getNextSibling", "a comment after a text is passed over",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const next = n->getNextSibling();
          return is_text(n) && next != nullptr && is_comment(next) ? next->getNextSibling() : next;
        };
      }},
    {"getNextSibling", "an instruction has none",
      [](Hooks& h) { h.next = [](Node const& n) { return is_instruction(n) ? nullptr : n->getNextSibling(); }; }},
    {"getNextSibling", "the seventeenth child is passed over",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const next = n->getNextSibling();
          return next != nullptr && index_up_to(n, 16) == 15 ? next->getNextSibling() : next;
        };
      }},
    {"getNextSibling", "a text that is empty is passed over",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node next = n->getNextSibling();
          while (next != nullptr && is_text(next) && next->getNodeValue().empty())
            next = next->getNextSibling();
          return next;
        };
      }},
    {"getNextSibling", "what stands outside the root has none",
      [](Hooks& h)
      {
        h.next = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          return parent != nullptr && is_document(parent) && !is_element(n) ? nullptr : n->getNextSibling();
        };
      }},
    {"getPreviousSibling", "comments are passed over",
      [](Hooks& h)
      {
        h.previous = [](Node const& n)
        {
          Node previous = n->getPreviousSibling();
          while (previous != nullptr && is_comment(previous))
            previous = previous->getPreviousSibling();
          return previous;
        };
      }},
    {"getPreviousSibling", "the root has none, whatever stands before it",
      [](Hooks& h) {
        h.previous = [](Node const& n) { return depth(n) == 1 && is_element(n) ? nullptr : n->getPreviousSibling(); };
      }},
    {"getPreviousSibling", "of the second of two texts it is none",
      [](Hooks& h)
      {
        h.previous = [](Node const& n)
        {
          Node const previous = n->getPreviousSibling();
          return is_text(n) && previous != nullptr && is_text(previous) ? nullptr : previous;
        };
      }},
    {"getFirstChild", "comments at the beginning of a document are passed over",
      [](Hooks& h)
      {
        h.first = [](Node const& n)
        {
          Node first = n->getFirstChild();
          while (is_document(n) && first != nullptr && is_comment(first))
            first = first->getNextSibling();
          return first;
        };
      }},
    {"getFirstChild", "an empty text is no first child",
      [](Hooks& h)
      {
        h.first = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          return first != nullptr && is_text(first) && first->getNodeValue().empty() ? first->getNextSibling() : first;
        };
      }},
    {"getLastChild", "an instruction at the end of a document is passed over",
      [](Hooks& h)
      {
        h.last = [](Node const& n)
        {
          Node const last = n->getLastChild();
          return last != nullptr && is_document(n) && is_instruction(last) ? last->getPreviousSibling() : last;
        };
      }},
    {"getLastChild", "a comment after a text is passed over",
      [](Hooks& h)
      {
        h.last = [](Node const& n)
        {
          Node const last = n->getLastChild();
          Node const before = last != nullptr ? last->getPreviousSibling() : nullptr;
          return before != nullptr && is_comment(last) && is_text(before) ? before : last;
        };
      }},
    {"getParentNode", "a comment outside the root has none",
      [](Hooks& h)
      {
        h.parent = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          return parent != nullptr && is_document(parent) && is_comment(n) ? nullptr : parent;
        };
      }},
    {"getParentNode", "at the fourth level it is the grandparent",
      [](Hooks& h)
      {
        h.parent = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          return parent != nullptr && depth(n) == 4 ? parent->getParentNode() : parent;
        };
      }},
    {"getParentNode", "a child of a removed element has none",
      [](Hooks& h)
      {
        h.parent = [](Node const& n)
        {
          Node const parent = n->getParentNode();
          bool const is_loose = parent != nullptr && parent->getParentNode() == nullptr && !is_document(parent);
          return is_loose ? nullptr : parent;
        };
      }},
    {"getOwnerDocument", "an attribute has none",
      [](Hooks& h)
      {
        h.owner = [](Node const& n) -> Document
        {
          bool const is_known = is_element(n) || is_text(n) || is_comment(n) || is_document(n) || is_instruction(n);
          return is_known ? n->getOwnerDocument() : nullptr;
        };
      }},
    {"getOwnerDocument", "a document has none",
      [](Hooks& h) { h.owner = [](Node const& n) { return is_document(n) ? nullptr : n->getOwnerDocument(); }; }},
    {"hasChildNodes", "an element with an empty text has none",
      [](Hooks& h)
      {
        h.has_children = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          bool const is_nothing =
            first != nullptr && first->getNextSibling() == nullptr && is_text(first) && first->getNodeValue().empty();
          return n->hasChildNodes() && !is_nothing;
        };
      }},
    {"hasChildNodes", "comments do not count",
      [](Hooks& h)
      {
        h.has_children = [](Node const& n)
        {
          for (Node child = n->getFirstChild(); child != nullptr; child = child->getNextSibling())
            if (!is_comment(child))
              return true;
          return false;
        };
      }},
    {"hasChildNodes", "a document without a root has none",
      [](Hooks& h)
      {
        h.has_children = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          return document != nullptr ? document->getDocumentElement() != nullptr : n->hasChildNodes();
        };
      }},

    {"insertBefore", "a sibling that comes before the reference ends up after it",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_earlier = are_siblings(child, before) && is_before(child, before);
          return n->insertBefore(child, is_earlier ? before->getNextSibling() : before);
        };
      }},
    {"insertBefore", "a sibling that comes after the reference stays where it is",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_later =
            are_siblings(child, before) && same(before->getParentNode(), n) && is_before(before, child);
          return is_later ? child : n->insertBefore(child, before);
        };
      }},
    {"insertBefore", "a sibling is refused",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return are_siblings(child, before) ? nullptr : n->insertBefore(child, before); };
      }},
    {"insertBefore", "the last child without a reference is told as done in silence",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_last = before == nullptr && same(n->getLastChild(), child);
          return is_last ? child : n->insertBefore(child, before);
        };
      }},
    {"insertBefore", "before a comment it is appended",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_child = before != nullptr && same(before->getParentNode(), n);
          return n->insertBefore(child, is_child && is_comment(before) ? nullptr : before);
        };
      }},
    {"insertBefore", "before the first of several children it comes second",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          bool const is_first = same(n->getFirstChild(), before) && !same(child, before) &&
                                before->getNextSibling() != nullptr && !same(child, before->getNextSibling());
          return n->insertBefore(child, is_first ? before->getNextSibling() : before);
        };
      }},
    {"insertBefore", "a cycle is told as done",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          Node const result = n->insertBefore(child, before);
          return result == nullptr && child != nullptr && is_element(child) && is_element(n) && before == nullptr
                   ? child
                   : result;
        };
      }},
    {"insertBefore", "nothing is the reference",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return child == nullptr ? before : n->insertBefore(child, before); };
      }},
    {"replaceChild", "by its next sibling it is appended",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_next = old != nullptr && same(old->getParentNode(), n) && same(old->getNextSibling(), child);
          Node const result = n->replaceChild(child, old);
          if (is_next && result != nullptr)
            n->appendChild(child);
          return result;
        };
      }},
    {"replaceChild", "by a sibling it is refused",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        { return are_siblings(child, old) && !same(child, old) ? nullptr : n->replaceChild(child, old); };
      }},
    {"replaceChild", "the root cannot be replaced",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        { return is_document(n) ? nullptr : n->replaceChild(child, old); };
      }},
    {"replaceChild", "a text is written over instead",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const both = child != nullptr && old != nullptr && is_text(child) && is_text(old) &&
                            same(old->getParentNode(), n) && child->getParentNode() == nullptr;
          if (!both)
            return n->replaceChild(child, old);
          old->set_text(child->getNodeValue());
          return old;
        };
      }},
    {"replaceChild", "an element below the old child is refused",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_below = child != nullptr && old != nullptr && same(child->getParentNode(), old);
          return is_below ? nullptr : n->replaceChild(child, old);
        };
      }},
    {"removeChild", "the root cannot be removed",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        { return is_document(n) && child != nullptr && is_element(child) ? nullptr : n->removeChild(child); };
      }},
    {"removeChild", "what stands outside the root cannot be removed",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        { return is_document(n) && child != nullptr && !is_element(child) ? nullptr : n->removeChild(child); };
      }},
    {"removeChild", "of texts beside each other the first one goes",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          bool const has_twin = child != nullptr && is_text(child) && same(child->getParentNode(), n) &&
                                child->getPreviousSibling() != nullptr && is_text(child->getPreviousSibling());
          return n->removeChild(has_twin ? child->getPreviousSibling() : child);
        };
      }},
    {"removeChild", "the text before and the one after become one",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const before = child != nullptr ? child->getPreviousSibling() : nullptr;
          Node const after = child != nullptr ? child->getNextSibling() : nullptr;
          Node const result = n->removeChild(child);
          if (result != nullptr && before != nullptr && after != nullptr && is_text(before) && is_text(after))
          {
            before->set_text(before->getNodeValue() + after->getNodeValue());
            n->removeChild(after);
          }
          return result;
        };
      }},
    {"removeChild", "a removed element loses its attributes",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        {
          Node const result = n->removeChild(child);
          auto const map = result != nullptr ? result->getAttributes() : nullptr;
          while (map != nullptr && map->getLength() > 0)
            map->removeNamedItem(map->item(0)->getNodeName());
          return result;
        };
      }},
    {"appendChild", "the last child is told as moved in silence",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return same(n->getLastChild(), child) ? child : n->appendChild(child); };
      }},
    {"appendChild", "an empty text is left out",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          bool const is_nothing = child != nullptr && is_text(child) && child->getNodeValue().empty();
          return is_nothing && is_element(n) ? child : n->appendChild(child);
        };
      }},
    {"appendChild", "instructions are refused",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return child != nullptr && is_instruction(child) ? nullptr : n->appendChild(child); };
      }},
    {"appendChild", "a text of a document is told as done",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return child != nullptr && is_document(n) && is_text(child) ? child : n->appendChild(child); };
      }},
    {"appendChild", "a comment outside the root is refused",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return child != nullptr && is_document(n) && is_comment(child) ? nullptr : n->appendChild(child); };
      }},
    {"appendChild", "a node of another document is told as done",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Node const result = n->appendChild(child);
          bool const is_foreign = child != nullptr && !(*child->getOwnerDocument() == *n->getOwnerDocument());
          return result == nullptr && is_foreign ? child : result;
        };
      }},
    {"appendChild", "nothing is told as done",
      [](Hooks& h)
      { h.append = [](Node const& n, Node const& child) { return child == nullptr ? n : n->appendChild(child); }; }},
    {"appendChild", "a child goes to the end of a comment's parent",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          Node const parent = n->getParentNode();
          return is_comment(n) && parent != nullptr ? parent->appendChild(child) : n->appendChild(child);
        };
      }},

    {"operator==", "two texts of one content are equal",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right) {
          return *left == *right || (is_text(left) && is_text(right) && left->getNodeValue() == right->getNodeValue());
        };
      }},
    {"operator==", "two documents with roots of one name are equal",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        {
          bool const both = is_document(left) && is_document(right);
          return both ? left->get_xml() == right->get_xml() : *left == *right;
        };
      }},
    {"operator==", "an attribute is equal to none",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        {
          return *left == *right && (left->getParentNode() != nullptr || is_element(left) || is_document(left) ||
                                      is_text(left) || is_comment(left) || is_instruction(left));
        };
      }},
    {"operator==", "after a removal a node is another one",
      [](Hooks& h)
      {
        auto const removed = std::make_shared<std::vector<std::pair<axmNode const*, Node>>>();
        h.remove = [removed](Node const& n, Node const& child)
        {
          Node const result = n->removeChild(child);
          if (result != nullptr)
            removed->emplace_back(result.get(), result);
          return result;
        };
        h.equal = [removed](axmNode const* a, axmNode const* b, Node const& left, Node const& right)
        {
          for (auto const& [handle, node] : *removed)
            if (a != b && *node == *left)
              return false;
          return *left == *right;
        };
      }},
    {"operator==", "attributes of one name and value are equal",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& left, Node const& right)
        {
          auto const is_attribute = [](Node const& n)
          { return !is_element(n) && !is_document(n) && !is_text(n) && !is_comment(n) && !is_instruction(n); };
          bool const both = is_attribute(left) && is_attribute(right);
          return both ? left->getNodeName() == right->getNodeName() && left->getNodeValue() == right->getNodeValue()
                      : *left == *right;
        };
      }},

    {"axmNodeList::at", "before the first item stands the first one",
      [](Hooks& h)
      {
        put_into_lists(h, [](OddList& list)
          { list.odd_at = [](axmNodeList& given, int index) { return given.at(index == -1 ? 0 : index); }; });
      }},
    {"axmNodeList::at", "after the last item stands the last one",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list) {
            list.odd_at = [](axmNodeList& given, int index)
            { return given.at(index == given.length() ? index - 1 : index); };
          });
      }},
    {"axmNodeList::at", "the largest index is the first item",
      [](Hooks& h)
      {
        put_into_lists(h, [](OddList& list)
          { list.odd_at = [](axmNodeList& given, int index) { return given.at(index == INT_MAX ? 0 : index); }; });
      }},
    {"axmNodeList::at", "an index is taken for one of 16 bits",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list)
          {
            list.odd_at = [](axmNodeList& given, int index)
            { return given.at(index >= 0 ? static_cast<int>(index & 0xFFFF) : index); };
          });
      }},
    {"axmNodeList::at", "the item of index 256 is the first one",
      [](Hooks& h)
      {
        put_into_lists(h, [](OddList& list)
          { list.odd_at = [](axmNodeList& given, int index) { return given.at(index == 256 ? 0 : index); }; });
      }},
    {"axmNodeList::length", "a list is never longer than 255",
      [](Hooks& h)
      {
        put_into_lists(h, [](OddList& list)
          { list.odd_length = [](axmNodeList const& given) { return std::min(given.length(), 255); }; });
      }},
    {"axmNodeList::length", "a list is never longer than 65535",
      [](Hooks& h)
      {
        put_into_lists(h, [](OddList& list)
          { list.odd_length = [](axmNodeList const& given) { return std::min(given.length(), 65535); }; });
      }},
    {"axmNodeList::length", "a list has no end",
      [](Hooks& h)
      { put_into_lists(h, [](OddList& list) { list.odd_length = [](axmNodeList const&) { return INT_MAX; }; }); }},
    {"axmNodeList::length", "the length is the one when it was asked for first",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list)
          {
            auto const known = std::make_shared<int>(-1);
            list.odd_length = [known](axmNodeList const& given)
            {
              if (*known < 0)
                *known = given.length();
              return *known;
            };
          });
      }},
    {"axmNodeList::isEmpty", "a list of one item is empty",
      [](Hooks& h)
      {
        put_into_lists(
          h, [](OddList& list) { list.odd_is_empty = [](axmNodeList const& given) { return given.length() < 2; }; });
      }},
    {"axmNodeList::operator++", "at the end the cursor stays there",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list)
          {
            list.odd_step = [](OddList& given)
            { return given.steps++ > 0 && given.plain_invalid() ? false : given.plain_step(); };
            list.odd_reset = [](OddList& given)
            {
              given.steps = 0;
              given.plain_reset();
            };
          });
      }},
    {"axmNodeList::reset", "the cursor goes to the first item",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list)
          {
            list.odd_reset = [](OddList& given)
            {
              given.plain_reset();
              given.plain_step();
            };
          });
      }},
    {"axmNodeList::next_node", "every fifth item is left out",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list)
          {
            list.odd_next = [](OddList& given)
            {
              Element const next = given.plain_next();
              return ++given.steps % 5 == 0 ? given.plain_next() : next;
            };
          });
      }},
    {"axmNodeList::invalid", "a cursor before the first item is valid where there are items",
      [](Hooks& h)
      {
        put_into_lists(h,
          [](OddList& list)
          {
            list.odd_step = [](OddList& given)
            {
              ++given.steps;
              return given.plain_step();
            };
            list.odd_invalid = [](OddList const& given)
            { return given.steps == 0 ? given.length() == 0 : given.plain_invalid(); };
          });
      }},
    {"getChildNodes", "the list of a removed element is empty",
      [](Hooks& h)
      {
        h.children = [](Node const& n)
        {
          bool const is_loose = n->getParentNode() == nullptr && !is_document(n);
          return is_loose ? list_of({}) : n->getChildNodes();
        };
      }},
    {"getChildNodes", "the list of a document holds the root only",
      [](Hooks& h)
      {
        h.children = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          bool const has_root = document != nullptr && document->getDocumentElement() != nullptr;
          return has_root ? list_of({document->getDocumentElement()}) : n->getChildNodes();
        };
      }},
    {"getElementsByTagName", "nothing is found in a document that begins with a comment",
      [](Hooks& h)
      {
        h.by_name = [](Document const& document, apString const& name)
        {
          Node const first = document->getFirstChild();
          return first != nullptr && is_comment(first) ? list_of({}) : document->getElementsByTagName(name);
        };
      }},
    {"getElementsByTagName", "what was found first is found for ever",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::vector<std::pair<std::pair<Document, std::wstring>, List>>>();
        h.by_name = [known](Document const& document, apString const& name) -> List
        {
          for (auto const& [key, list] : *known)
            if (*key.first == *document && key.second == name.view())
              return list_of(items_of(list));
          known->push_back(
            {{document, std::wstring(name.view())}, list_of(items_of(document->getElementsByTagName(name)))});
          return known->back().second;
        };
      }},
    {"getElementsByTagName", "siblings come before what is below them",
      [](Hooks& h)
      {
        h.by_name = [](Document const& document, apString const& name)
        {
          std::vector<Element> items = items_of(document->getElementsByTagName(name));
          std::stable_sort(items.begin(), items.end(),
            [](Element const& left, Element const& right) { return depth(left) < depth(right); });
          return list_of(items);
        };
      }},
    {"getElementsByTagName", "one name with another's beginning is found too",
      [](Hooks& h)
      {
        h.by_name = [](Document const& document, apString const& name)
        {
          std::vector<Element> items = items_of(document->getElementsByTagName(name));
          if (name == APSTRING("a"))
            for (Element const& other : items_of(document->getElementsByTagName(APSTRING("A"))))
              items.push_back(other);
          return list_of(items);
        };
      }},
    {"getElementsByTagName", "before the first item stands the last one",
      [](Hooks& h)
      {
        put_into_searches(h,
          [](OddList& list) {
            list.odd_at = [](axmNodeList& given, int index)
            { return given.at(index == -1 ? given.length() - 1 : index); };
          });
      }},
    {"getDocumentElement", "it is the first child that is there",
      [](Hooks& h)
      {
        h.root = [](Document const& document)
        {
          Element const root = document->getDocumentElement();
          Node const first = document->getFirstChild();
          return root != nullptr && first != nullptr && is_comment(first) ? nullptr : root;
        };
      }},
    {"getDocumentElement", "a root that was removed is still it",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::vector<std::pair<Document, Element>>>();
        h.root = [known](Document const& document)
        {
          Element const root = document->getDocumentElement();
          if (root != nullptr)
            known->emplace_back(document, root);
          for (auto const& [from, was] : *known)
            if (root == nullptr && *from == *document)
              return was;
          return root;
        };
      }},
  };
  return faults;
}
