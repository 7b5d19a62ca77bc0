// Every operation of the engine's interfaces when memory runs out: which may throw, and that nothing has changed then.

#include "../FailingMemory.h"
#include "Engine.h"

#include <axmProcessingInstruction.h>
#include <axsSaving.h>
#include <axsSharing.h>

#include <functional>
#include <string>
#include <vector>

namespace
{
// Too long to lie in an apString or in a node.
std::string const long_text = "a text that is " + std::string(2000, 'x') + " long";
apString const wide_long = wide(long_text);
apString const long_name = wide("a-name-that-is-" + std::string(200, 'x') + "-long");
apString const longer_name = wide("another-name-that-is-" + std::string(200, 'x') + "-long");
apString const unknown_name = wide("a-name-that-nobody-has-" + std::string(200, 'x'));
apString const wide_longest = wide(long_text + long_text);
// Longer than what a document keeps compiled.
apString const wide_path = wide("*[string-length('" + std::string(600, 'x') + "') > 0]");

// Whether the document has memory at hand for the next handle and the next node.
enum State
{
  roomy,
  exhausted
};

// A document with a node of every kind, and what the operations need.
struct Subject
{
  Subject()
  {
    std::string const name = narrow(long_name);
    document = load("<!DOCTYPE r [<!ATTLIST e d CDATA 'default'>]><r " + name + "='" + long_text + "' n='1' b='true' " +
                    narrow(longer_name) + "='1.5'><e/>" + long_text + "<![CDATA[" + long_text + "]]><!--" + long_text +
                    "--><?" + name + " " + long_text + "?><e><e/></e></r>");
    root = document->getDocumentElement();
    first = root->getFirstChild();
    made = document->createElement(APSTRING("made"));
    attribute = other_attribute();
    list = root->getChildNodes();
    found = root->selectNodes(APSTRING("node()"));
    map = root->getAttributes();
    before = saved(document);
  }

  std::shared_ptr<axmNode> child(int position) const
  {
    std::shared_ptr<axmNode> at = root->getFirstChild();
    for (int i = 0; i < position; ++i)
      at = at->getNextSibling();
    return at;
  }

  // Takes handles and nodes until the document has to ask for more memory for the next one.
  void exhaust()
  {
    auto const store = document->createElement(APSTRING("store"));
    handles.reserve(1000);
    FailingMemory const memory(0);
    until_memory_fails([&] { handles.push_back(document->getDocumentElement()); });
    for (apString const& text : {APSTRING("twenty characters .."), apString()})
    {
      // For the handle of what is made.
      handles.pop_back();
      until_memory_fails([&] { store->appendChild(document->createTextNode(text)); });
      handles.push_back(document->getDocumentElement());
    }
    handles.push_back(store);
  }

  std::shared_ptr<axmDocument> document;
  std::shared_ptr<axmElement> root;
  std::shared_ptr<axmElement> made;
  std::shared_ptr<axmNode> attribute;
  std::shared_ptr<axmNodeList> list;
  std::shared_ptr<axmNodeList> found;
  std::shared_ptr<axmNamedNodeMap> map;
  std::shared_ptr<axmNode> first;
  // What a test prepares.
  std::shared_ptr<axmNode> node;
  std::shared_ptr<axmElement> shown;
  std::string before;
  std::vector<std::shared_ptr<axmNode>> handles;

private:
  template <class Step>
  static void until_memory_fails(Step step)
  try
  {
    for (;;)
      step();
  }
  catch (std::bad_alloc const&)
  {
  }

  std::shared_ptr<axmNode> other_attribute() const
  {
    auto const element = document->createElement(APSTRING("other"));
    element->setAttribute(APSTRING("n"), APSTRING("2"));
    return element->getAttributes()->removeNamedItem(APSTRING("n"));
  }
};

using Operation = std::function<void(Subject&)>;

struct Attempt
{
  bool has_failed = false;
  bool threw = false;
  bool threw_another = false;
};

Attempt attempt(Operation const& operation, Subject& subject, int allowed)
{
  Attempt result;
  FailingMemory const memory(allowed);
  try
  {
    operation(subject);
  }
  catch (std::bad_alloc const&)
  {
    result.threw = true;
  }
  catch (...)
  {
    result.threw_another = true;
  }
  result.has_failed = memory.has_failed();
  return result;
}

// Whether the operation ever throws when each of its allocations fails in turn, with and without memory at hand; that
// it has then changed nothing.
bool throws(Operation const& prepare, Operation const& operation)
{
  bool has_thrown = false;
  for (State const state : {roomy, exhausted})
    for (int allowed = 0;; ++allowed)
    {
      Subject subject;
      prepare(subject);
      if (state == exhausted)
        subject.exhaust();
      Attempt const result = attempt(operation, subject, allowed);
      EXPECT_FALSE(result.threw_another);
      EXPECT_TRUE(!result.threw || result.has_failed);
      if (result.threw)
      {
        EXPECT_EQ(saved(subject.document), subject.before);
      }
      has_thrown = has_thrown || result.threw;
      if (!result.has_failed)
        break;
    }
  return has_thrown;
}

bool throws(Operation const& operation)
{
  return throws([](Subject&) {}, operation);
}

struct NodeKind
{
  char const* name;
  std::function<std::shared_ptr<axmNode>(Subject&)> node;
};

std::vector<NodeKind> const kinds = {
  {"document", [](Subject& subject) -> std::shared_ptr<axmNode> { return subject.document; }},
  {"doctype", [](Subject& subject) { return subject.document->getFirstChild(); }},
  {"element", [](Subject& subject) -> std::shared_ptr<axmNode> { return subject.root; }},
  {"text", [](Subject& subject) { return subject.child(1); }},
  {"section", [](Subject& subject) { return subject.child(2); }},
  {"comment", [](Subject& subject) { return subject.child(3); }},
  {"instruction", [](Subject& subject) { return subject.child(4); }},
  {"attribute", [](Subject& subject) { return subject.map->getNamedItem(long_name); }},
  {"view", [](Subject& subject) -> std::shared_ptr<axmNode> { return subject.list->at(1); }},
};

std::string const nothing;
std::string const all = "document doctype element text section comment instruction attribute view";

// The kinds of node of which an operation throws.
std::string throwing(std::function<void(axmNode&, Subject&)> const& operation)
{
  std::string found;
  for (NodeKind const& kind : kinds)
    if (throws([&](Subject& subject) { subject.node = kind.node(subject); },
          [&](Subject& subject) { operation(*subject.node, subject); }))
      found += std::string(found.empty() ? "" : " ") + kind.name;
  return found;
}
}

TEST(axsMemory, what_hands_out_a_node_list_or_text_may_throw)
{
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getNodeName(); }), "instruction");
  EXPECT_EQ(
    throwing([](axmNode& node, Subject&) { node.getNodeValue(); }), "text section comment instruction attribute view");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getParentNode(); }),
    "doctype element text section comment instruction view");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getChildNodes(); }), all);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getFirstChild(); }), "document element");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getLastChild(); }), "document element");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getPreviousSibling(); }),
    "element text section comment instruction view");
  EXPECT_EQ(
    throwing([](axmNode& node, Subject&) { node.getNextSibling(); }), "doctype text section comment instruction view");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getOwnerDocument(); }), all);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.getAttributes(); }), "element");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.get_text(); }),
    "document element text section comment instruction attribute view");
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.get_xml(); }), all);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.set_text(wide_long); }), all);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.set_text(wide_longest); }), all);
}

TEST(axsMemory, what_changes_links_or_tells_a_number_does_not_throw)
{
  EXPECT_EQ(throwing([](axmNode& node, Subject& subject) { node.insertBefore(subject.made, subject.first); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject& subject) { node.appendChild(subject.made); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject& subject) { node.replaceChild(subject.made, subject.first); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject& subject) { node.removeChild(subject.first); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.hasChildNodes(); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.hasAttributes(); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject& subject) { static_cast<void>(node == *subject.root); }), nothing);
  EXPECT_EQ(throwing([](axmNode& node, Subject&) { node.reserved_node_15(); }), nothing);
}

TEST(axsMemory, typed_access_does_not_throw)
{
  bool truth = false;
  int number = 0;
  double real = 0;
  for (apString const& name : {long_name, longer_name, unknown_name, APSTRING("n"), APSTRING("b")})
  {
    EXPECT_EQ(throwing(
                [&](axmNode& node, Subject&)
                {
                  apString text;
                  node.get_attribute(name, text);
                }),
      nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.get_attribute(name, truth); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.get_attribute(name, number); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.get_attribute(name, real); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.get_attribute_locale(name, real); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, wide_longest); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, long_text.c_str()); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, wide_longest.c_str()); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, true); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, 1); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, 1u); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute(name, 1.5); }), nothing);
    EXPECT_EQ(throwing([&](axmNode& node, Subject&) { node.set_attribute_locale(name, 1.5); }), nothing);
  }
}

TEST(axsMemory, an_output_is_untouched_where_an_attribute_cannot_be_given)
{
  Subject const subject;
  apString text(L"as it was");
  {
    FailingMemory const memory(0);
    EXPECT_FALSE(subject.root->get_attribute(long_name, text));
  }
  EXPECT_EQ(narrow(text), "as it was");
}

TEST(axsMemory, elements)
{
  EXPECT_TRUE(throws([](Subject& subject) { subject.root->getAttribute(long_name); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.root->setAttribute(long_name, wide_longest); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.root->setAttribute(unknown_name, wide_long); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.root->selectNodes(wide_path); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.root->selectNodes(APSTRING("//[")); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.root->selectSingleNode(wide_path); }));
  EXPECT_FALSE(throws([](Subject& subject) { subject.root->removeAttribute(long_name); }));
  EXPECT_FALSE(throws([](Subject& subject) { subject.root->removeAttribute(unknown_name); }));
  EXPECT_FALSE(throws([](Subject& subject) { subject.root->hasAttribute(long_name); }));
  EXPECT_FALSE(throws([](Subject& subject) { subject.root->hasAttribute(unknown_name); }));

  // What is shown as an element has no attributes.
  auto const view = [](Subject& subject) { subject.shown = subject.list->at(1); };
  EXPECT_FALSE(throws(view, [](Subject& subject) { subject.shown->getAttribute(long_name); }));
  EXPECT_FALSE(throws(view, [](Subject& subject) { subject.shown->setAttribute(long_name, wide_long); }));
  EXPECT_FALSE(throws(view, [](Subject& subject) { subject.shown->removeAttribute(long_name); }));
  EXPECT_FALSE(throws(view, [](Subject& subject) { subject.shown->hasAttribute(long_name); }));
  EXPECT_TRUE(throws(view, [](Subject& subject) { subject.shown->selectNodes(wide_path); }));
  EXPECT_TRUE(throws(view, [](Subject& subject) { subject.shown->selectSingleNode(wide_path); }));
}

TEST(axsMemory, documents)
{
  EXPECT_TRUE(throws([](Subject& subject) { subject.document->createElement(unknown_name); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.document->createElement(APSTRING("e")); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.document->createTextNode(wide_long); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.document->createComment(wide_long); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.document->getDocumentElement(); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.document->getElementsByTagName(long_name); }));
  EXPECT_FALSE(throws([](Subject& subject) { subject.document->getDocumentURI(); }));
  EXPECT_TRUE(throws([](Subject& subject) { axsSaving::obstacle(*subject.document); }));

  auto const data = [](axmNode& node) { dynamic_cast<axmCharacterData&>(node).getData(); };
  EXPECT_TRUE(
    throws([](Subject& subject) { subject.node = subject.child(1); }, [&](Subject& subject) { data(*subject.node); }));
  EXPECT_TRUE(
    throws([](Subject& subject) { subject.node = subject.child(3); }, [&](Subject& subject) { data(*subject.node); }));
}

TEST(axsMemory, lists)
{
  for (auto const list : {&Subject::list, &Subject::found})
  {
    EXPECT_TRUE(throws([&](Subject& subject) { (subject.*list)->at(0); }));
    EXPECT_TRUE(throws([&](Subject& subject) { (subject.*list)->at(1); }));
    EXPECT_TRUE(throws([&](Subject& subject) { (subject.*list)->next_node(); }));
    EXPECT_TRUE(throws([&](Subject& subject) { ++*(subject.*list); }, [&](Subject& subject) { (*(subject.*list))(); }));
    EXPECT_FALSE(throws([&](Subject& subject) { (subject.*list)->at(-1); }));
    EXPECT_FALSE(throws([&](Subject& subject) { (subject.*list)->length(); }));
    EXPECT_FALSE(throws([&](Subject& subject) { (subject.*list)->isEmpty(); }));
    EXPECT_FALSE(throws([&](Subject& subject) { ++*(subject.*list); }));
    EXPECT_FALSE(throws([&](Subject& subject) { (subject.*list)->reset(); }));
    EXPECT_FALSE(throws([&](Subject& subject) { (subject.*list)->invalid(); }));
  }
}

TEST(axsMemory, maps)
{
  EXPECT_FALSE(throws([](Subject& subject) { subject.map->getLength(); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.map->item(1); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.map->getNamedItem(long_name); }));
  EXPECT_FALSE(throws([](Subject& subject) { subject.map->getNamedItem(unknown_name); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.map->removeNamedItem(long_name); }));
  EXPECT_TRUE(throws([](Subject& subject) { subject.map->setNamedItem(subject.attribute); }));
}

TEST(axsMemory, what_finds_many_by_an_index_does_without_where_there_is_no_memory_for_it)
{
  std::shared_ptr<axmElement> many;
  std::shared_ptr<axmNodeList> children;
  std::shared_ptr<axmNamedNodeMap> attributes;
  auto const make = [&](Subject& subject)
  {
    many = subject.document->createElement(APSTRING("many"));
    for (int i = 0; i < 600; ++i)
    {
      many->setAttribute(wide("a" + std::to_string(i)), APSTRING(""));
      many->appendChild(subject.document->createElement(APSTRING("c")));
    }
    children = many->getChildNodes();
    attributes = many->getAttributes();
    for (int i = 0; i < 20; ++i)
      children->at(i % 2 == 0 ? 150 : 450);
    attributes->item(500);
    many->insertBefore(subject.document->createTextNode(APSTRING("t")), children->at(300));
  };
  // Each looks at what it has done: a place that is wrong shows there.
  auto const is_right = [&](int length)
  {
    int count = 0;
    for (auto child = many->getFirstChild(); child != nullptr; child = child->getNextSibling(), ++count)
      EXPECT_TRUE(*children->at(count) == *child);
    EXPECT_EQ(count, length);
    EXPECT_EQ(children->length(), length);
  };
  for (int allowed = 0; allowed < 8; ++allowed)
  {
    Subject subject;
    make(subject);
    Attempt const result =
      attempt([&](Subject&) { many->insertBefore(subject.made, many->getLastChild()); }, subject, allowed);
    is_right(result.threw ? 601 : 602);
    many->insertBefore(subject.made, many->getLastChild());
    is_right(602);
  }
  EXPECT_FALSE(throws(make, [&](Subject& subject) { many->appendChild(subject.made); }));
  EXPECT_FALSE(throws(make, [&](Subject&) { many->removeAttribute(long_name); }));
  EXPECT_FALSE(throws(make, [&](Subject&) { many->hasAttribute(wide("a50")); }));
  EXPECT_FALSE(throws(make, [&](Subject&) { many->removeAttribute(wide("a50")); }));
  EXPECT_FALSE(throws(make, [&](Subject&) { many->set_attribute(long_name, wide_long); }));
  EXPECT_FALSE(throws(make, [&](Subject&) { attributes->getLength(); }));
  EXPECT_TRUE(throws(make, [&](Subject&) { attributes->item(300); }));
  EXPECT_TRUE(throws(make, [&](Subject&) { children->at(300); }));
  EXPECT_FALSE(throws(make, [&](Subject&) { children->length(); }));
}

TEST(axsMemory, factories)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine();
  apByteArray const good = bytes("<r a='1'>" + long_text + "</r>");
  apByteArray const bad = bytes("<r a='1'>" + long_text + "</s>");
  TestFile const file("memory.xml", "<r a='1'>" + long_text + "</r>");
  apPath const path = file.path();
  apPath const missing(("no_such_folder_" + long_text.substr(0, 200) + "/x.xml").c_str());
  axmLoadOptions const options;
  EXPECT_FALSE(throws([&](Subject&) { factory->createDocument(long_name); }));
  EXPECT_FALSE(throws([&](Subject&) { factory->createDocument(wide_long); }));
  for (apByteArray const* const data : {&good, &bad})
    EXPECT_FALSE(throws(
      [&](Subject&)
      {
        axmParseError error;
        factory->loadDocument(*data, options, error);
      }));
  for (apPath const* const from : {&path, &missing})
    EXPECT_FALSE(throws(
      [&](Subject&)
      {
        axmParseError error;
        factory->loadDocument(*from, options, error);
      }));
  EXPECT_FALSE(throws(
    [&](Subject& subject)
    {
      apByteArray output;
      factory->saveDocument(subject.document, output);
    }));
  EXPECT_FALSE(throws([&](Subject& subject) { factory->saveDocument(subject.document, path); }));
  EXPECT_FALSE(throws([&](Subject& subject) { factory->saveDocument(subject.document, missing); }));
}

TEST(axsMemory, a_load_that_fails_for_want_of_memory_says_so)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine();
  apByteArray const data = bytes("<r a='1'>" + long_text + "</r>");
  axmLoadOptions const options;
  for (int allowed = 0;; ++allowed)
  {
    axmParseError error;
    std::shared_ptr<axmDocument> document;
    bool has_failed = false;
    {
      FailingMemory const memory(allowed);
      document = factory->loadDocument(data, options, error);
      has_failed = memory.has_failed();
    }
    EXPECT_EQ(document == nullptr, !error.invalid());
    if (document != nullptr)
      break;
    EXPECT_TRUE(has_failed);
    EXPECT_EQ(narrow(error.message()), "Memory ran out");
  }
}

TEST(axsMemory, a_document_that_cannot_be_shared_for_want_of_memory_is_as_it_was)
{
  std::string text = "<r";
  for (int i = 0; i < 600; ++i)
    text += " a" + std::to_string(i) + "=''";
  for (int allowed = 0;; ++allowed)
  {
    auto document = load(text + "/>");
    bool threw = false;
    try
    {
      FailingMemory const memory(allowed);
      EXPECT_TRUE(axsSharing::share(document));
    }
    catch (std::bad_alloc const&)
    {
      threw = true;
    }
    ASSERT_EQ(axsSharing::is_shared(*document), !threw);
    EXPECT_EQ(document->getDocumentElement()->set_attribute(APSTRING("a599"), 1), threw);
    EXPECT_EQ(document->getDocumentElement()->hasAttribute(APSTRING("a600")), false);
    if (!threw)
      break;
  }
}

TEST(axsMemory, a_document_whose_attributes_were_moved_goes_with_all_its_memory)
{
  auto const factory = engine();
  apString const name = APSTRING("a");
  FailingMemory const memory(1000000);
  {
    auto const document = factory->createDocument(APSTRING("r"));
    auto const root = document->getDocumentElement();
    auto const other = document->createElement(APSTRING("e"));
    for (int i = 0; i < 3; ++i)
    {
      // Into a place that is free, and into one that is taken.
      other->setAttribute(name, APSTRING("1"));
      auto const taken = other->getAttributes()->removeNamedItem(name);
      auto const replaced = root->getAttributes()->setNamedItem(taken);
      root->getAttributes()->removeNamedItem(name);
    }
    root->setAttribute(name, APSTRING("2"));
    other->setAttribute(name, APSTRING("3"));
    root->getAttributes()->setNamedItem(other->getAttributes()->removeNamedItem(name));
    root->getAttributes()->setNamedItem(root->getAttributes()->getNamedItem(name));
  }
  EXPECT_EQ(memory.blocks_held(), 0);
}

// Ever new names, for nodes that go: attributes, elements, and elements with attributes below them.
TEST(axsMemory, names_of_nodes_that_have_gone_do_not_fill_the_memory)
{
  auto const document = load("<r/>");
  auto const root = document->getDocumentElement();
  root->appendChild(document->createElement(APSTRING("first")));
  FailingMemory const memory(100000000);
  for (int i = 0; i < 20000; ++i)
  {
    apString const name = wide("name-" + std::to_string(i));
    root->setAttribute(name, name);
    root->removeAttribute(name);
    auto const element = document->createElement(wide("element-" + std::to_string(i)));
    element->setAttribute(wide("inside-" + std::to_string(i)), name);
    element->appendChild(document->createElement(wide("below-" + std::to_string(i))));
    root->replaceChild(element, root->getFirstChild());
  }
  EXPECT_LT(memory.blocks_held(), 4000);
}
