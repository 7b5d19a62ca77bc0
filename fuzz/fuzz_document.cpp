// The engine over any bytes: what loads can be saved, what was saved loads again as the same document, and whatever is asked
// of a document has one answer, whichever way it is asked.

#include <axmElement.h>
#include <axmEngineAccess.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <axsLoading.h>
#include <axsNodeLines.h>
#include <axsRegister.h>
#include <axsSharing.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace
{
using Node = std::shared_ptr<axmNode>;

void check(bool is_right)
{
  if (!is_right)
    std::abort();
}

axmDocumentFactory& engine()
{
  static std::shared_ptr<axmDocumentFactory> const found = (axs_register(), axm::engine());
  return *found;
}

axmLoadOptions options()
{
  axmLoadOptions made(axmValidateNone);
  made.set_entity_expansion_limit(1000);
  return made;
}

Node next_in_tree(Node node)
{
  if (Node const child = node->getFirstChild())
    return child;
  while (node != nullptr)
  {
    if (Node const sibling = node->getNextSibling())
      return sibling;
    node = node->getParentNode();
  }
  return nullptr;
}

std::vector<Node> nodes_of(axmDocument& document)
{
  std::size_t const max_nodes = 2000;
  std::vector<Node> nodes;
  for (Node at = document.getFirstChild(); at != nullptr && nodes.size() < max_nodes; at = next_in_tree(at))
    nodes.push_back(at);
  return nodes;
}

// A list has the children that the links between them have, wherever it is asked, and follows what becomes of them.
void check_children(axmNode& parent)
{
  std::vector<Node> linked;
  for (Node child = parent.getFirstChild(); child != nullptr; child = child->getNextSibling())
    linked.push_back(child);
  auto const list = parent.getChildNodes();
  auto const is_at = [&](std::size_t place, Node const& node) { return *list->at(static_cast<int>(place)) == *node; };
  check(list->length() == static_cast<int>(linked.size()));
  // From both ends to the middle, so that one place is far from the next.
  for (std::size_t i = 0; i < linked.size(); ++i)
  {
    std::size_t const place = i % 2 == 0 ? i / 2 : linked.size() - 1 - i / 2;
    check(is_at(place, linked[place]));
  }
  if (linked.empty())
    return;
  std::size_t const middle = linked.size() / 2;
  Node const moved = parent.removeChild(linked[middle]);
  check(list->length() == static_cast<int>(linked.size()) - 1);
  check(middle + 1 == linked.size() || is_at(middle, linked[middle + 1]));
  check(parent.appendChild(moved) != nullptr && is_at(linked.size() - 1, moved));
  parent.removeChild(moved);
  check(parent.insertBefore(moved, middle + 1 < linked.size() ? linked[middle + 1] : Node()) != nullptr);
  check(is_at(middle, moved) && is_at(linked.size() - 1, linked.back()));
}

// What at most fifteen digits say comes back from a number that is written, and a whole number is one that may be none.
void check_value(axmNode& element, apString const& name, axmElement& scratch)
{
  apString const kept = APSTRING("kept");
  apString text;
  check(element.get_attribute(name, text));
  bool truth = false;
  bool truth_again = false;
  if (element.get_attribute(name, truth))
    check(scratch.set_attribute(kept, truth) && scratch.get_attribute(kept, truth_again) && truth == truth_again);
  int whole = 0;
  int whole_again = 0;
  double number = 0;
  double number_again = 0;
  if (element.get_attribute(name, whole))
  {
    check(scratch.set_attribute(kept, whole) && scratch.get_attribute(kept, whole_again) && whole == whole_again);
    check(element.get_attribute(name, number) && number == whole);
  }
  if (!element.get_attribute(name, number))
    return;
  auto const digits =
    std::count_if(text.view().begin(), text.view().end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
  bool const is_exact = digits <= 15 && text.view().find_first_of(L"xX") == std::wstring_view::npos;
  check(scratch.set_attribute(kept, number) && scratch.get_attribute(kept, number_again));
  check(!is_exact || number == number_again || std::isnan(number));
  check(scratch.set_attribute_locale(kept, number) && scratch.get_attribute_locale(kept, number_again));
}

// A map and the names have the same attributes, from the last to the first, and setting one to what it is changes none.
void check_attributes(axmElement& element, axmElement& scratch)
{
  auto const map = element.getAttributes();
  for (int i = map->getLength() - 1; i >= 0; --i)
  {
    Node const attribute = map->item(i);
    apString const name = attribute->getNodeName();
    check(*map->getNamedItem(name) == *attribute && element.hasAttribute(name));
    check(element.getAttribute(name) == attribute->getNodeValue());
    check_value(element, name, scratch);
    element.setAttribute(name, attribute->getNodeValue());
    check(*map->item(i) == *attribute);
  }
}

// In document order, nodes stand one line after the other.
void check_lines(axmDocument const& document, apByteArray const& source, std::vector<Node> const& nodes)
{
  int line = 1;
  for (int const next : axsNodeLines::find(document, source, options(), nodes))
  {
    check(next >= line);
    line = next;
  }
}

// What an element is written as is read as that element, where no document type says more of it.
void check_fragment(axmElement& element)
{
  utString const written = element.get_xml().to_utf8();
  axmParseError error;
  std::vector<Node> const read = axsLoading::fragment(element, written.view(), error);
  check(read.size() == 1 && read.front()->get_xml().to_utf8().view() == written.view());
}

void check_nodes(axmDocument& document, apByteArray const& source, bool has_rules_of_its_own)
{
  auto const scratch = document.createElement(APSTRING("scratch"));
  std::vector<Node> const nodes = nodes_of(document);
  check_lines(document, source, nodes);
  if (!has_rules_of_its_own)
    check_fragment(*document.getDocumentElement());
  for (Node const& node : nodes)
    if (auto const element = std::dynamic_pointer_cast<axmElement>(node))
    {
      check_children(*element);
      check_attributes(*element, *scratch);
    }
}

// Shared, a document is the same one.
void check_sharing(apByteArray const& saved)
{
  axmParseError error;
  std::shared_ptr<axmDocument> document = engine().loadDocument(saved, options(), error);
  apString const before = document->get_xml();
  check(axsSharing::share(document) && axsSharing::is_shared(*document) && document->get_xml() == before);
  for (Node const& node : nodes_of(*document))
    check(node->getParentNode() != nullptr && *node->getOwnerDocument() == *document);
}

void check_spaces(apByteArray const& saved)
{
  axmParseError error;
  apByteArray spaced;
  auto const document = axsLoading::with_spaces(saved, options(), error);
  check(document != nullptr && engine().saveDocument(document, spaced));
  auto const again = axsLoading::with_spaces(spaced, options(), error);
  check(again != nullptr && again->get_xml() == document->get_xml());
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  apByteArray const source(data, size);
  axmParseError error;
  auto const document = engine().loadDocument(source, options(), error);
  check((document == nullptr) == !error.invalid());
  if (document == nullptr)
    return 0;

  apString const text = document->get_xml();
  bool const has_rules_of_its_own = text.find(APSTRING("<!DOCTYPE")) >= 0 || text.find(APSTRING("1.1")) >= 0;
  check_nodes(*document, source, has_rules_of_its_own);

  apByteArray saved;
  if (!engine().saveDocument(document, saved))
    return 0;
  auto const again = engine().loadDocument(saved, options(), error);
  apByteArray saved_again;
  check(again != nullptr && engine().saveDocument(again, saved_again) && saved == saved_again);
  check_sharing(saved);
  check_spaces(saved);
  return 0;
}
