#include "Engine.h"

#include "../document/TestTree.h"

#include <axsXPath.h>
#include <utAssert.h>

#include <functional>
#include <utility>

namespace
{
// Counts the assertions reported while it lives, and keeps the last one.
class Assertions : public utAssertListener
{
public:
  Assertions() : replaced(ut_set_assert_listener(this)) {}
  ~Assertions() override { ut_set_assert_listener(replaced); }

  void assertion_failed(char const* expression, char const*, int) override
  {
    ++count;
    last = expression;
  }

  int count = 0;
  std::string last;

private:
  utAssertListener* replaced;
};

// Does something to the tree when an assertion is reported, once.
class Interference : public utAssertListener
{
public:
  explicit Interference(std::function<void()> given) : act(std::move(given)), replaced(ut_set_assert_listener(this)) {}
  ~Interference() override { ut_set_assert_listener(replaced); }

  void assertion_failed(char const*, char const*, int) override
  {
    if (auto const now = std::exchange(act, nullptr))
      now();
  }

private:
  std::function<void()> act;
  utAssertListener* replaced;
};

std::string xml(std::shared_ptr<axmNode> const& node)
{
  return narrow(node->get_xml());
}
}

TEST(axsTree, registers_under_both_names)
{
  axs_register();
  for (char const* const name : {"XMLService", "axs::XMLService", "other::XMLService"})
  {
    utServiceName resolved;
    auto const found = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit(name)), resolved);
    EXPECT_NE(found, nullptr) << name;
  }
}

TEST(axsTree, creates_nothing_with_a_name_that_is_none)
{
  auto const document = engine()->createDocument(APSTRING("root"));
  for (char const* const name : {"", "1a", "a b", "<", "a>", "-a", "a&", "\xC3\x97", "a\xC3\x97", "\xEF\xBF\xBE"})
  {
    EXPECT_EQ(document->createElement(wide(name)), nullptr) << name;
    EXPECT_EQ(engine()->createDocument(wide(name)), nullptr) << name;
    auto const root = document->getDocumentElement();
    root->setAttribute(wide(name), APSTRING("x"));
    EXPECT_FALSE(root->hasAttributes()) << name;
  }
  for (char const* const name : {"a", "_", "a-b.c1", "\xC3\xA4", "p:q", "\xF0\x90\x80\x80"})
    EXPECT_NE(document->createElement(wide(name)), nullptr) << name;
}

TEST(axsTree, moves_an_attached_node_and_reports_it)
{
  auto const root = load_root("<r><a><x/></a><b/></r>");
  auto const x = root->getFirstChild()->getFirstChild();
  Assertions heard;
  EXPECT_NE(root->getLastChild()->appendChild(x), nullptr);
  EXPECT_EQ(heard.count, 1);
  EXPECT_EQ(heard.last, "new_child->getParentNode() == nullptr");
  EXPECT_EQ(xml(root), "<r><a/><b><x/></b></r>");
  root->insertBefore(root->getLastChild(), root->getFirstChild());
  EXPECT_EQ(xml(root), "<r><b><x/></b><a/></r>");
  root->replaceChild(x, root->getLastChild());
  EXPECT_EQ(xml(root), "<r><b/><x/></r>");
  EXPECT_EQ(heard.count, 3);
}

TEST(axsTree, reports_nothing_about_detached_nodes_and_refused_calls)
{
  auto const root = load_root("<r><a/></r>");
  Assertions heard;
  root->appendChild(root->removeChild(root->getFirstChild()));
  EXPECT_EQ(root->getFirstChild()->appendChild(root), nullptr);
  EXPECT_EQ(heard.count, 0);
}

TEST(axsTree, a_node_of_another_engine_is_no_context_of_an_expression)
{
  auto const foreign = std::make_shared<TestDocument>();
  axsXPath::Value value;
  axsXPathError error;
  EXPECT_FALSE(axsXPath::evaluate(*foreign, APSTRING("1"), value, error));
  EXPECT_EQ(error.message, "the context is no node of this engine");
  EXPECT_EQ(error.position, 1);
}

TEST(axsTree, refuses_a_move_that_the_listener_of_its_report_has_made_impossible)
{
  auto const document = load("<r><a/><b><c/></b></r>");
  auto const root = document->getDocumentElement();
  auto const a = root->getFirstChild();
  auto const b = root->getLastChild();
  auto const c = b->getFirstChild();
  {
    Interference const listener([&] { root->removeChild(a); });
    EXPECT_EQ(root->insertBefore(c, a), nullptr);
    EXPECT_EQ(xml(root), "<r><b><c/></b></r>");
  }
  root->insertBefore(a, b);
  Interference const listener([&] { root->removeChild(a); });
  EXPECT_EQ(root->replaceChild(c, a), nullptr);
  EXPECT_EQ(xml(root), "<r><b><c/></b></r>");
}

TEST(axsTree, keeps_a_node_that_is_inserted_before_itself_or_replaces_itself)
{
  auto const root = load_root("<r><a/><b/></r>");
  Assertions heard;
  auto const first = root->getFirstChild();
  EXPECT_EQ(root->insertBefore(first, first), first);
  EXPECT_EQ(root->replaceChild(first, first), first);
  EXPECT_EQ(xml(root), "<r><a/><b/></r>");
}

TEST(axsTree, refuses_what_cannot_be_a_child_and_changes_nothing)
{
  auto const document = load("<r a='1'><b><c/></b>text<!--comment--></r>");
  auto const root = document->getDocumentElement();
  auto const b = root->getFirstChild();
  auto const c = b->getFirstChild();
  auto const text = b->getNextSibling();
  auto const other = engine()->createDocument(APSTRING("other"));
  std::string const before = xml(document);
  auto const attribute = root->getAttributes()->item(0);

  EXPECT_EQ(c->appendChild(b), nullptr);
  EXPECT_EQ(c->appendChild(c), nullptr);
  EXPECT_EQ(b->insertBefore(root, c), nullptr);
  EXPECT_EQ(b->replaceChild(root, c), nullptr);
  EXPECT_EQ(b->replaceChild(b, c), nullptr);
  EXPECT_EQ(root->appendChild(nullptr), nullptr);
  EXPECT_EQ(root->replaceChild(nullptr, b), nullptr);
  EXPECT_EQ(root->replaceChild(document->createElement(APSTRING("n")), nullptr), nullptr);
  EXPECT_EQ(root->removeChild(nullptr), nullptr);
  EXPECT_EQ(root->removeChild(c), nullptr);
  EXPECT_EQ(root->removeChild(attribute), nullptr);
  EXPECT_EQ(root->appendChild(attribute), nullptr);
  EXPECT_EQ(root->appendChild(document), nullptr);
  EXPECT_EQ(root->appendChild(other->createElement(APSTRING("n"))), nullptr);
  EXPECT_EQ(root->appendChild(other->getDocumentElement()), nullptr);
  EXPECT_EQ(text->appendChild(document->createTextNode(APSTRING("x"))), nullptr);
  EXPECT_EQ(document->appendChild(document->createElement(APSTRING("second"))), nullptr);
  EXPECT_EQ(document->appendChild(document->createTextNode(APSTRING("x"))), nullptr);
  EXPECT_EQ(root->insertBefore(document->createElement(APSTRING("n")), c), nullptr);
  EXPECT_EQ(xml(document), before);
}

// XML 1.0, [22]: a document type stands before the root element, with comments and instructions anywhere beside them.
TEST(axsTree, an_element_does_not_get_before_the_document_type)
{
  auto const document = load("<!DOCTYPE r><r/>");
  auto const root = document->removeChild(document->getDocumentElement());
  auto const type = document->getFirstChild();
  EXPECT_EQ(document->insertBefore(root, type), nullptr);
  EXPECT_NE(document->insertBefore(document->createComment(APSTRING("c")), type), nullptr);
  EXPECT_EQ(document->insertBefore(root, document->getFirstChild()), nullptr);
  EXPECT_EQ(document->appendChild(root), root);
  apByteArray output;
  EXPECT_TRUE(engine()->saveDocument(document, output));
}

TEST(axsTree, lets_a_document_have_another_root_in_the_place_of_its_own)
{
  auto const document = load("<!DOCTYPE r><r/>");
  auto const next = document->createElement(APSTRING("n"));
  EXPECT_EQ(document->insertBefore(next, document->getFirstChild()), nullptr);
  EXPECT_NE(document->replaceChild(next, document->getDocumentElement()), nullptr);
  EXPECT_EQ(narrow(document->getDocumentElement()->getNodeName()), "n");
  document->removeChild(next);
  EXPECT_EQ(document->getDocumentElement(), nullptr);
  EXPECT_NE(document->appendChild(next), nullptr);
}

TEST(axsTree, gives_every_kind_of_node_its_name_value_and_xml)
{
  auto const document = load("<!DOCTYPE r [<!ENTITY e '>'>]><?pi some data?><r a='1'>t<![CDATA[<c>]]><!--c--></r>");
  auto const doctype = document->getFirstChild();
  EXPECT_EQ(narrow(document->getNodeName()), "#document");
  EXPECT_EQ(narrow(doctype->getNodeName()), "r");
  EXPECT_EQ(xml(doctype), "<!DOCTYPE r [<!ENTITY e '>'>]>");
  auto const instruction = doctype->getNextSibling();
  EXPECT_EQ(narrow(instruction->getNodeName()), "pi");
  EXPECT_EQ(narrow(instruction->getNodeValue()), "some data");
  EXPECT_EQ(xml(instruction), "<?pi some data?>");
  auto const root = document->getDocumentElement();
  EXPECT_EQ(narrow(root->getNodeValue()), "");
  EXPECT_EQ(xml(root->getAttributes()->item(0)), "a=\"1\"");
  auto const text = root->getFirstChild();
  EXPECT_EQ(narrow(text->getNodeName()), "#text");
  EXPECT_EQ(narrow(text->getNextSibling()->getNodeName()), "#cdata-section");
  EXPECT_EQ(narrow(text->getNextSibling()->getNodeValue()), "<c>");
  EXPECT_EQ(narrow(root->getLastChild()->getNodeName()), "#comment");
  EXPECT_EQ(narrow(root->get_text()), "t<c>");
  EXPECT_TRUE(std::dynamic_pointer_cast<axmElement>(text) == nullptr);
}

TEST(axsTree, replaces_the_content_by_one_text)
{
  auto const root = load_root("<r><a>1<b>2</b></a><!--c--></r>");
  auto const inner = root->getFirstChild()->getLastChild();
  root->getFirstChild()->set_text(APSTRING("<&>"));
  EXPECT_EQ(xml(root), "<r><a>&lt;&amp;&gt;</a><!--c--></r>");
  EXPECT_EQ(inner->getParentNode(), nullptr);
  EXPECT_EQ(narrow(inner->get_text()), "2");
  root->set_text(APSTRING(""));
  EXPECT_EQ(root->getChildNodes()->length(), 1);
  EXPECT_EQ(xml(root), "<r></r>");
  root->getFirstChild()->set_text(wide(std::string(5000, 'x')));
  EXPECT_EQ(root->get_text().length(), 5000);
  root->getFirstChild()->set_text(APSTRING("short"));
  EXPECT_EQ(narrow(root->get_text()), "short");
}

TEST(axsTree, keeps_attributes_in_their_order_and_of_any_length)
{
  auto const root = load_root("<r c='1' a='2' b='3'/>");
  root->setAttribute(APSTRING("a"), wide(std::string(3000, 'y')));
  root->setAttribute(APSTRING("d"), APSTRING(""));
  EXPECT_EQ(root->getAttribute(APSTRING("a")).length(), 3000);
  root->setAttribute(APSTRING("a"), APSTRING("z"));
  root->removeAttribute(APSTRING("c"));
  root->removeAttribute(APSTRING("none"));
  EXPECT_EQ(xml(root), "<r a=\"z\" b=\"3\" d=\"\"/>");
}

TEST(axsTree, keeps_a_text_of_any_length_in_the_place_of_one_of_any_other)
{
  // Short ones stand in their node, longer ones after it, the longest apart.
  std::string const all(1200, 'x');
  for (std::size_t first = 0; first < all.size(); first += first < 30 ? 1 : 97)
  {
    std::string const before = all.substr(0, first);
    auto const root = load_root("<r a='" + before + "'>" + before + "<s/>after</r>");
    for (std::size_t next = 0; next < all.size(); next += next < 30 ? 1 : 93)
    {
      std::string const text = std::string(next, 'y') + std::to_string(next);
      root->setAttribute(APSTRING("a"), wide(text));
      ASSERT_EQ(narrow(root->getAttribute(APSTRING("a"))), text) << first;
      if (first == 0)
        continue;
      root->getFirstChild()->set_text(wide(text));
      ASSERT_EQ(narrow(root->get_text()), text + "after") << first;
    }
    EXPECT_EQ(narrow(root->getLastChild()->get_text()), "after") << first;
  }
}

TEST(axsTree, tells_names_apart_that_are_alike_and_refuses_what_is_none_every_time)
{
  auto const document = load("<r/>");
  auto const element = document->createElement(APSTRING("aXb"));
  for (int round = 0; round < 3; ++round)
  {
    for (wchar_t const* const name : {L"aXb", L"aYb", L"aZb", L"ab", L"aXXb"})
    {
      EXPECT_TRUE(document->createElement(name)->getNodeName() == apString(name));
      element->removeAttribute(name);
      element->setAttribute(name, name);
      EXPECT_TRUE(element->getAttribute(name) == apString(name));
    }
    for (wchar_t const* const name : {L"a b", L"a<b", L"", L"1",
           L"a\xFFFF"
           L"b"})
    {
      EXPECT_EQ(document->createElement(name), nullptr);
      element->setAttribute(name, name);
      EXPECT_FALSE(element->hasAttribute(name));
    }
  }
  EXPECT_EQ(xml(element), "<aXb aXb=\"aXb\" aYb=\"aYb\" aZb=\"aZb\" ab=\"ab\" aXXb=\"aXXb\"/>");
}

TEST(axsTree, holds_more_names_than_have_a_number)
{
  int const names = 66000;
  auto const document = load("<r/>");
  auto const root = document->getDocumentElement();
  auto const name_of = [](int i) { return wide("n" + std::to_string(i)); };
  for (int i = 0; i < names; ++i)
    root->appendChild(document->createElement(name_of(i)));

  auto const children = root->getChildNodes();
  for (int i = 0; i < names; ++i)
    ASSERT_TRUE(children->at(i)->getNodeName() == name_of(i)) << i;
  for (int const i : {0, 65530, 65533, 65534, 65535, names - 1})
  {
    EXPECT_EQ(document->getElementsByTagName(name_of(i))->length(), 1) << i;
    auto const found = root->selectNodes(apString(L"//") + name_of(i));
    ASSERT_EQ(found->length(), 1) << i;
    EXPECT_TRUE(*found->at(0) == *children->at(i)) << i;
  }
  EXPECT_EQ(xml(root->getLastChild()), "<n65999/>");

  auto const last = root->removeChild(root->getLastChild());
  EXPECT_TRUE(last->getNodeName() == name_of(names - 1));
  root->set_text(APSTRING("gone"));
  for (int i = names; i > 0; i -= 1000)
    root->appendChild(document->createElement(name_of(i - 1)));
  EXPECT_TRUE(root->getLastChild()->getNodeName() == name_of(999));
  EXPECT_TRUE(root->getFirstChild()->getNextSibling()->getNodeName() == name_of(names - 1));
  EXPECT_TRUE(last->getNodeName() == name_of(names - 1));
}

TEST(axsTree, puts_a_removed_attribute_node_in_again)
{
  auto const document = load("<r a='1' b='2' c='3'><s a='0'/></r>");
  auto const root = document->getDocumentElement();
  auto const map = root->getAttributes();
  auto const b = map->removeNamedItem(APSTRING("b"));
  EXPECT_EQ(xml(root), "<r a=\"1\" c=\"3\"><s a=\"0\"/></r>");
  EXPECT_EQ(map->setNamedItem(b), nullptr);
  EXPECT_EQ(map->getLength(), 3);
  // One that an element has belongs to it, and what is no attribute belongs nowhere here.
  auto const of_child = root->getFirstChild()->getAttributes()->item(0);
  EXPECT_EQ(map->setNamedItem(of_child), nullptr);
  EXPECT_EQ(map->setNamedItem(root->getFirstChild()), nullptr);
  EXPECT_EQ(map->setNamedItem(nullptr), nullptr);
  EXPECT_EQ(xml(root), "<r a=\"1\" c=\"3\" b=\"2\"><s a=\"0\"/></r>");
  auto const detached = root->getFirstChild()->getAttributes()->removeNamedItem(APSTRING("a"));
  auto const replaced = map->setNamedItem(detached);
  EXPECT_EQ(narrow(replaced->getNodeValue()), "1");
  EXPECT_EQ(xml(root), "<r a=\"0\" c=\"3\" b=\"2\"><s/></r>");
  EXPECT_TRUE(*map->getNamedItem(APSTRING("a")) == *detached);
}
