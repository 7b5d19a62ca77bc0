#include "axmModelUtest.h"

#include "axmCommentNode.h"
#include "axmTextNode.h"
#include "axmUtestAccess.h"
#include "axmUtestGroup.h"
#include "model/axmModelRandom.h"

#include <utUnitTest.h>

#include <string>
#include <vector>

using namespace axmUtestAccess;

namespace
{
using Factory = std::shared_ptr<axmDocumentFactory>;
using Document = std::shared_ptr<axmDocument>;
using Element = std::shared_ptr<axmElement>;

char const file[] = "source/utest/axmModelUtestSizes";

// Around every power of two up to `max`, and `max`.
std::vector<int> sizes_up_to(int max)
{
  std::vector<int> sizes = {1};
  for (int power = 2; power <= max; power *= 2)
    for (int const size : {power - 1, power, power + 1})
      if (size > sizes.back() && size <= max)
        sizes.push_back(size);
  if (sizes.back() < max)
    sizes.push_back(max);
  return sizes;
}

apString numbered(wchar_t const* prefix, int number)
{
  return apString(std::wstring_view(prefix + std::to_wstring(number)));
}

// Whether a list of `size` children named by their indexes says so, at both ends and at some places between.
bool is_numbered(std::shared_ptr<axmNodeList> const& list, int size, axmModelRandom& random)
{
  if (length_of(list) != size || list->at(size) != nullptr || list->at(-1) != nullptr)
    return false;
  for (int const index : {0, size - 1, size / 2, random.below(size), random.below(size)})
    if (name_of(list->at(index)) != numbered(L"c", index))
      return false;
  return true;
}

// Whether the cursor comes to every item, once more after the end, and to the first one after each reset.
bool is_walked(std::shared_ptr<axmNodeList> const& list, int size)
{
  for (int const stop : {size, size / 2, 0})
  {
    list->reset();
    if (!list->invalid())
      return false;
    for (int index = 0; index < stop; ++index)
      if (!++*list || name_of((*list)()) != numbered(L"c", index))
        return false;
    if (stop < size)
      continue;
    if (++*list || !list->invalid() || name_of(list->next_node()) != numbered(L"c", 0))
      return false;
    for (int index = 1; index < size; ++index)
      if (name_of(list->next_node()) != numbered(L"c", index))
        return false;
    if (list->next_node() != nullptr)
      return false;
  }
  list->reset();
  return list->invalid() && name_of(list->next_node()) == numbered(L"c", 0);
}

constexpr int max_walked = 300;

// Whether the children come one after the other, in both directions.
bool is_chained(Node const& parent, int size)
{
  Node forward = first_of(parent);
  Node backward = last_of(parent);
  for (int index = 0; index < size; ++index)
  {
    if (name_of(forward) != numbered(L"c", index) || name_of(backward) != numbered(L"c", size - 1 - index))
      return false;
    forward = next_of(forward);
    backward = previous_of(backward);
  }
  return forward == nullptr && backward == nullptr;
}

bool append_numbered(Document const& document, Element const& parent, int from, int to)
{
  for (int index = from; index < to; ++index)
    if (append(parent, created(document, numbered(L"c", index))) == nullptr)
      return false;
  return true;
}

// A list and the elements that are to be in it, changed at any place.
class HeldList
{
public:
  HeldList(Document const& given_document, Element const& given_parent, int size)
    : document(given_document),
      parent(given_parent),
      list(children_of(given_parent))
  {
    for (int index = 0; index < size; ++index)
      insert_at(index);
  }

  void edit(axmModelRandom& random)
  {
    int const at = random.below(static_cast<int>(promised.size()));
    if (random.once_in(2))
      return insert_at(at);
    remove(parent, promised[static_cast<std::size_t>(at)]);
    promised.erase(promised.begin() + at);
  }

  bool is_right_at(int index) const { return same(item_of(list, index), promised[static_cast<std::size_t>(index)]); }

  bool is_right(axmModelRandom& random) const
  {
    int const size = static_cast<int>(promised.size());
    return length_of(list) == size && is_right_at(random.below(size)) && is_right_at(size - 1) &&
           is_right_at(random.below(size)) && list->at(size) == nullptr;
  }

  bool is_whole() const
  {
    Node child = first_of(parent);
    for (int index = 0; index < static_cast<int>(promised.size()); ++index, child = next_of(child))
      if (!is_right_at(index) || !same(child, promised[static_cast<std::size_t>(index)]))
        return false;
    return child == nullptr;
  }

private:
  void insert_at(int index)
  {
    bool const is_end = index == static_cast<int>(promised.size());
    Node const made = created(document, APSTRING("c"));
    insert(parent, made, is_end ? nullptr : promised[static_cast<std::size_t>(index)]);
    promised.insert(promised.begin() + index, made);
  }

  Document const document;
  Element const parent;
  std::shared_ptr<axmNodeList> const list;
  std::vector<Node> promised;
};

bool follows_edits(Document const& document, axmModelRandom random)
{
  Element const parent = created(document, APSTRING("parent"));
  HeldList held(document, parent, 2000);
  for (int count = 0; count < 1000; ++count)
  {
    held.edit(random);
    if (!held.is_right(random))
      return false;
  }
  return held.is_whole();
}

// `levels` elements, each in the one before, below the root of the document; the last one.
Element nested(Document const& document, int levels)
{
  Element lowest = root_of(document);
  for (int level = 0; level < levels; ++level)
  {
    Element const made = created(document, level + 1 < levels ? APSTRING("level") : APSTRING("bottom"));
    append(lowest, made);
    lowest = made;
  }
  return lowest;
}

// Whether a root with `levels` elements in each other says so in every way.
bool is_nested(Document const& document, int levels)
{
  Element const root = root_of(document);
  auto const found = document != nullptr ? document->getElementsByTagName(APSTRING("bottom")) : nullptr;
  auto const selected = root != nullptr ? root->selectNodes(APSTRING("//bottom[text()='deep']")) : nullptr;
  if (text_of(root) != APSTRING("deep") || length_of(found) != 1 || length_of(selected) != 1)
    return false;
  Node up = found->at(0);
  Node down = root;
  for (int level = 0; level < levels; ++level)
  {
    up = parent_of(up);
    down = last_of(down);
  }
  return same(up, root) && same(down, found->at(0)) && same(selected->at(0), found->at(0));
}

bool has_attributes(Element const& element, int count)
{
  auto const map = map_of(element);
  if (map == nullptr || map->getLength() != count || map->item(count) != nullptr || map->item(count - 1) == nullptr)
    return false;
  for (int index = 0; index < count; ++index)
    if (element->getAttribute(numbered(L"a", index)) != numbered(L"v", index))
      return false;
  return !element->hasAttribute(numbered(L"a", count));
}

// `size` characters of which the ones at the end take several bytes and, in some systems, several places.
apString long_text(int size, wchar_t const* end)
{
  std::wstring const last = end;
  std::wstring text(static_cast<std::size_t>(size), L'x');
  for (std::size_t at = 0; at < text.size(); at += 7)
    text[at] = L'y';
  return apString(std::wstring_view(text + last));
}

Document copy_of(Factory const& factory, Document const& document)
{
  apByteArray output;
  axmParseError error;
  bool const saved = factory->saveDocument(document, output);
  return saved ? factory->loadDocument(output, axmLoadOptions(), error) : nullptr;
}

Element saved_and_loaded(Factory const& factory, Document const& document)
{
  return root_of(copy_of(factory, document));
}

// Another of the same length.
apString changed_in_the_middle(apString const& text)
{
  std::wstring changed(text.view());
  changed[changed.find_last_of(L"xy") / 2] = L'z';
  return apString(std::wstring_view(changed));
}

// Whether a text of that length, in the place of another one, comes back as text, attribute, comment and, saved, as all of
// them.
bool comes_back(Factory const& factory, apString const& text)
{
  auto const document = factory->createDocument(APSTRING("r"));
  auto const root = root_of(document);
  if (root == nullptr)
    return false;
  apString const before = changed_in_the_middle(text);
  append(root, document->createTextNode(before));
  append(root, document->createComment(before));
  root->setAttribute(APSTRING("k"), before);
  root->setAttribute(APSTRING("l"), before);
  set_text(child_of(root, 0), text);
  set_text(child_of(root, 1), text);
  root->setAttribute(APSTRING("k"), text);
  set_text(map_of(root)->getNamedItem(APSTRING("l")), text);
  auto const holds = [&text](Element const& element)
  {
    return attribute_of(element, APSTRING("k")) == text && attribute_of(element, APSTRING("l")) == text &&
           value_of(child_of(element, 0)) == text && value_of(child_of(element, 1)) == text &&
           text_of(element) == text && name_of(first_of(element)) == APSTRING("#text") &&
           name_of(next_of(first_of(element))) == APSTRING("#comment");
  };
  return holds(root) && holds(saved_and_loaded(factory, document));
}

bool name_comes_back(Factory const& factory, apString const& name)
{
  auto const document = factory->createDocument(name);
  auto const root = root_of(document);
  if (root == nullptr || root->getNodeName() != name)
    return false;
  root->setAttribute(name, APSTRING("v"));
  // One that begins with it, and what it begins with.
  for (apString const& other : {name + APSTRING("x"), apString(name.view().substr(0, name.view().size() - 1))})
    if (root->hasAttribute(other) || map_of(root)->getNamedItem(other) != nullptr ||
        length_of(document->getElementsByTagName(other)) != 0)
      return false;
  auto const copy = saved_and_loaded(factory, document);
  return name_of(copy) == name && attribute_of(copy, name) == APSTRING("v");
}
}

namespace
{
constexpr int many_nodes = 3000;

// Whether an element holds that many elements, texts, comments and instructions, however they are asked for.
bool is_mixed(Element const& element, std::string const& text)
{
  auto const document = element != nullptr ? element->getOwnerDocument() : nullptr;
  auto const found = document != nullptr ? document->getElementsByTagName(APSTRING("a")) : nullptr;
  auto const selected = element != nullptr ? element->selectNodes(APSTRING(".//a")) : nullptr;
  auto const texts = element != nullptr ? element->selectNodes(APSTRING(".//text()")) : nullptr;
  if (length_of(found) != many_nodes || length_of(selected) != many_nodes || length_of(texts) != 2 * many_nodes)
    return false;
  Node const last = item_of(children_of(element), 4 * many_nodes - 4);
  return text_of(element) == apString(text.c_str()) && number_of_children(element) == 4 * many_nodes &&
         same(found->at(many_nodes - 1), last) && same(selected->at(many_nodes - 1), last) &&
         same(texts->at(2 * many_nodes - 1), next_of(last));
}

void check_mixed(axmUtestGroup const& group, Factory const& factory)
{
  std::string written = "<r>";
  std::string text;
  for (int number = 0; number < many_nodes; ++number)
  {
    written += "<a>x</a>y<!--c--><?p q?>";
    text += "xy";
  }
  auto const document = load(*factory, (written + "</r>").c_str());
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: load document"))
    return;
  group.check(is_mixed(root, text), "element of that many nodes", __LINE__, "many nodes of all kinds");
  group.check(is_mixed(saved_and_loaded(factory, document), text), "loaded(saved) has them all", __LINE__,
    "many nodes survive a save and a load");
  utString const xml = xml_of(root).to_utf8();
  group.check(is_mixed(load_root(*factory, xml.c_str()), text), "loaded(root->get_xml()) has them all", __LINE__,
    "and as the XML of the element");
  Node const replaced = child_of(root, 2 * many_nodes);
  replace(root, created(document, APSTRING("b")), replaced);
  group.check(name_of(child_of(root, 2 * many_nodes)), APSTRING("b"), "root->getChildNodes()->at()->getNodeName()",
    __LINE__, "one of many is replaced");
  root->set_text(APSTRING("only"));
  group.check(number_of_children(root), 1, "root->getChildNodes()->length() == 1", __LINE__,
    "one text in the place of many nodes");
  for (int number = 1; number < many_nodes; ++number)
    append(root, document->createTextNode(APSTRING("more")));
  group.check(
    number_of_children(root), many_nodes, "root->getChildNodes()->length()", __LINE__, "many texts beside each other");
  auto const copy = saved_and_loaded(factory, document);
  group.check(number_of_children(copy) == 1 && text_of(copy) == text_of(root), "loaded(saved) has one text", __LINE__,
    "many texts are one after a load");
}
}

void axmModelUtest::test_many_children(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmModelUtest::test_many_children");
  axmModelRandom random(seed);
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  auto const held = children_of(root);
  int size = 0;
  int right = 0;
  std::vector<int> const sizes = sizes_up_to(70000);
  for (int const wanted : sizes)
  {
    bool const is_appended = append_numbered(document, root, size, wanted);
    size = wanted;
    if (!is_appended || !is_numbered(held, size, random) || !is_numbered(children_of(root), size, random))
      break;
    if (size <= max_walked && !(is_walked(held, size) && is_walked(root->selectNodes(APSTRING("*")), size)))
      break;
    ++right;
  }
  group.check(right, static_cast<int>(sizes.size()), "list of that many children, for each size", __LINE__,
    "a list is right around every power of two");
  group.check(is_chained(root, size), "children one after the other", __LINE__, "many children in both directions");
  auto const copy = saved_and_loaded(factory, document);
  group.check(number_of_children(copy), size, "loaded(saved)->getChildNodes()->length()", __LINE__,
    "many children survive a save and a load");
  group.check(is_chained(copy, size), "loaded children one after the other", __LINE__, "in their order");
  auto const found = document != nullptr ? document->getElementsByTagName(numbered(L"c", size - 1)) : nullptr;
  group.check(length_of(found), 1, "document->getElementsByTagName(last)->length()", __LINE__, "the last one is found");
  while (size > 60000 && remove(root, last_of(root)) != nullptr)
  {
    --size;
    if (random.once_in(1000) && !is_numbered(held, size, random))
      break;
  }
  group.check(is_numbered(held, 60000, random), "list after removals", __LINE__, "a list that has become shorter");
  group.check(follows_edits(document, random), "list after edits at any place", __LINE__,
    "a long list that is held while its middle changes");
  check_mixed(group, factory);
}

void axmModelUtest::test_many_attributes(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmModelUtest::test_many_attributes");
  auto const document = factory->createDocument(APSTRING("root"));
  auto const root = root_of(document);
  if (!group.prerequisite(root != nullptr, "root.get()", __LINE__, "Prerequisite: create document"))
    return;
  int count = 0;
  int right = 0;
  std::vector<int> const sizes = sizes_up_to(2000);
  for (int const wanted : sizes)
  {
    for (; count < wanted; ++count)
      root->setAttribute(numbered(L"a", count), numbered(L"v", count));
    if (!has_attributes(root, count))
      break;
    ++right;
  }
  group.check(right, static_cast<int>(sizes.size()), "map of that many attributes, for each size", __LINE__,
    "a map is right around every power of two");
  group.check(has_attributes(saved_and_loaded(factory, document), count), "loaded(saved) has them all", __LINE__,
    "many attributes survive a save and a load");
  for (; count > 1000; --count)
    root->removeAttribute(numbered(L"a", count - 1));
  group.check(has_attributes(root, count), "map after removals", __LINE__, "a map that has become shorter");
}

void axmModelUtest::test_long_texts(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmModelUtest::test_long_texts");
  std::vector<int> const sizes = sizes_up_to(100000);
  wchar_t const* const ends[] = {L"", L"\u00E4", L"\u20AC", L"\U00010437", L"&<>"};
  int right = 0;
  for (int const size : sizes)
    for (wchar_t const* const end : ends)
      right += comes_back(factory, long_text(size, end)) ? 1 : 0;
  group.check(right, static_cast<int>(sizes.size() * std::size(ends)), "texts that come back, of all lengths and ends",
    __LINE__, "a text of every length comes back, also saved and loaded");
  right = 0;
  for (int const size : sizes)
    right += name_comes_back(factory, long_text(size, L"")) ? 1 : 0;
  group.check(right, static_cast<int>(sizes.size()), "names that come back, of all lengths", __LINE__,
    "a name of every length comes back, also saved and loaded");
}

void axmModelUtest::test_many_levels(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmModelUtest::test_many_levels");
  for (int const levels : {1, 15, 64, 255, 256, 257, 2000})
  {
    auto const document = factory->createDocument(APSTRING("root"));
    auto const bottom = nested(document, levels);
    if (!group.prerequisite(bottom != nullptr, "bottom.get()", __LINE__, "Prerequisite: elements in each other"))
      return;
    Node const top = first_of(root_of(document));
    group.check(append(bottom, top) == nullptr && insert(bottom, top, nullptr) == nullptr && !bottom->hasChildNodes(),
      "!bottom->appendChild(top).get()", __LINE__, "what is far below a node does not hold it");
    bottom->set_text(APSTRING("deep"));
    group.check(is_nested(document, levels), "document of that many levels", __LINE__, "many levels");
    group.check(is_nested(copy_of(factory, document), levels), "loaded(saved) has them all", __LINE__,
      "many levels survive a save and a load");
    utString const xml = xml_of(document).to_utf8();
    group.check(is_nested(load(*factory, xml.c_str()), levels), "loaded(document->get_xml()) has them all", __LINE__,
      "and as the XML of the document");
  }
}

namespace
{
// Whether documents of any size hold what they did when they were loaded, while others are let go.
bool are_as_loaded(axmDocumentFactory const& factory, axmModelRandom random)
{
  struct Held
  {
    Document document;
    std::string text;
  };
  std::vector<Held> held(16);
  for (int count = 0; count < 200; ++count)
  {
    Held& one = held[static_cast<std::size_t>(random.below(16))];
    one.document = nullptr;
    std::string written;
    one.text.clear();
    int const size = random.below(1 << (1 + random.below(11)));
    for (int number = 0; number < size; ++number)
    {
      std::string const digits = std::to_string(random.below(1000));
      written += "<a k='" + digits + "'>" + digits + "</a>";
      one.text += digits;
    }
    one.document = load(factory, ("<r>" + written + "</r>").c_str());
    Held const& another = random.one_of(held);
    for (Held const* const checked : {static_cast<Held const*>(&one), &another})
      if (checked->document != nullptr && text_of(root_of(checked->document)) != apString(checked->text.c_str()))
        return false;
    if (one.document == nullptr)
      return false;
  }
  return true;
}
}

void axmModelUtest::test_many_documents(Factory const& factory) const
{
  axmUtestGroup const group(tester, file, "axmModelUtest::test_many_documents");
  std::vector<Document> documents;
  for (int number = 0; number < 300; ++number)
  {
    utString const text = (APSTRING("<") + numbered(L"d", number) + APSTRING("/>")).to_utf8();
    documents.push_back(
      number % 2 == 0 ? factory->createDocument(numbered(L"d", number)) : load(*factory, text.c_str()));
  }
  int right = 0;
  for (int number = 0; number < 300; ++number)
    right += name_of(root_of(documents[static_cast<std::size_t>(number)])) == numbered(L"d", number) ? 1 : 0;
  group.check(right, 300, "documents with their roots", __LINE__, "many documents at one time");
  group.check(are_as_loaded(*factory, axmModelRandom(seed)), "documents with their texts", __LINE__,
    "documents of all sizes, made and let go in any order");
  for (int count = 0; count < 300; ++count)
    load(*factory, "<r>");
  group.check(name_of(load_root(*factory, "<r/>")), APSTRING("r"), "root->getNodeName()", __LINE__,
    "a load after many that failed");
}
