#include "Engine.h"

#include <axmProcessingInstruction.h>
#include <axsSaving.h>
#include <axsSharing.h>
#include <axsXPath.h>
#include <utAssert.h>

#include <atomic>
#include <thread>
#include <vector>

namespace
{
std::string many_attributes()
{
  std::string text;
  for (int i = 0; i < 600; ++i)
    text += " a" + std::to_string(i) + "='" + std::to_string(i) + "'";
  return text;
}

std::string rows(int count)
{
  std::string text;
  for (int i = 0; i < count; ++i)
    text += "<row n='" + std::to_string(i) + "'>text " + std::to_string(i) + "</row>";
  return text;
}

std::string const source =
  "<!DOCTYPE r [<!ATTLIST id i ID #IMPLIED>]><r xmlns:p='urn:p'><id i='x'/><p:e/><!--c--><?p d?><many" +
  many_attributes() + "/><![CDATA[section]]>" + rows(200) + "</r>";

std::shared_ptr<axmDocument> shared_document()
{
  std::shared_ptr<axmDocument> document = load(source);
  EXPECT_TRUE(axsSharing::share(document));
  return document;
}

class CountingListener final : public utAssertListener
{
public:
  CountingListener() : previous(ut_set_assert_listener(this)) {}
  ~CountingListener() override { ut_set_assert_listener(previous); }

  void assertion_failed(char const*, char const*, int) override { ++reports; }

  int reports = 0;

private:
  utAssertListener* previous;
};

// All nodes of a document, by every way to come from one to the next.
int walk(axmNode& node, std::vector<std::shared_ptr<axmNode>>& seen)
{
  int count = 1;
  auto const children = node.getChildNodes();
  int const length = children->length();
  for (int i = 0; i < length; ++i)
  {
    std::shared_ptr<axmNode> const child = children->at(i);
    count += *child->getParentNode() == node ? walk(*child, seen) : 1000000;
    seen.push_back(child);
  }
  auto const map = node.getAttributes();
  for (int i = 0; map != nullptr && i < map->getLength(); ++i)
    count += *map->getNamedItem(map->item(i)->getNodeName()) == *map->item(i) ? 1 : 1000000;
  for (auto child = node.getLastChild(); child != nullptr; child = child->getPreviousSibling())
    ++count;
  return count;
}

std::string found(axmNode& context, char const* xpath)
{
  axsXPath::Value value;
  axsXPathError error;
  return axsXPath::evaluate(context, wide(xpath), value, error) ? narrow(value.text) : error.message;
}

// What a reader of the document sees, through all operations that read.
std::string seen_of(std::shared_ptr<axmDocument> const& document)
{
  std::vector<std::shared_ptr<axmNode>> nodes;
  std::string seen = std::to_string(walk(*document, nodes));
  for (auto const& node : nodes)
    seen += narrow(node->getNodeName()) + narrow(node->getNodeValue());
  auto const root = document->getDocumentElement();
  seen += narrow(root->get_text()) + narrow(document->get_xml());
  seen += found(*root, "count(//row[@n > 100]) + count(id('x')) + count(//p:e) + count(//node()|//@*)");
  seen += found(*root, "sum(//row/@n)") + found(*root, "string(//row[last()])") + found(*root, "//[");
  auto const list = root->selectNodes(APSTRING("//row"));
  while (auto const row = list->next_node())
  {
    int number = 0;
    seen += row->get_attribute(APSTRING("n"), number) ? std::to_string(number) : "none";
  }
  seen += std::to_string(document->getElementsByTagName(APSTRING("row"))->length());
  seen += narrow(root->selectSingleNode(APSTRING("many/@a599"))->getNodeValue());
  auto const many = document->getElementsByTagName(APSTRING("many"))->at(0);
  for (int i = 0; i < 700; ++i)
    seen += narrow(many->getAttribute(wide("a" + std::to_string(i))));
  seen += narrow(many->getAttributes()->item(300)->getNodeName());
  seen += narrow(document->getDocumentURI()).substr(0, 12) + saved(document) + narrow(axsSaving::obstacle(*document));
  seen += *root->getOwnerDocument() == *document ? "own" : "another";
  return seen;
}
}

TEST(axsSharing, a_shared_document_is_read_as_one_that_is_not)
{
  EXPECT_EQ(seen_of(shared_document()), seen_of(load(source)));
}

TEST(axsSharing, threads_read_search_and_hold_a_shared_document_at_once)
{
  std::string const expected = seen_of(load(source));
  auto document = shared_document();
  std::atomic<int> wrong{0};
  std::vector<std::shared_ptr<axmNode>> kept(4);
  std::vector<std::thread> threads;
  for (std::size_t thread = 0; thread < kept.size(); ++thread)
    threads.emplace_back(
      [&, thread, own = document]() mutable
      {
        for (int i = 0; i < 3; ++i)
          wrong += seen_of(own) == expected ? 0 : 1;
        kept[thread] = own->getDocumentElement()->getLastChild();
        own = nullptr;
      });
  document = nullptr;
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(wrong, 0);

  // The document lives as long as one of them has a node of it.
  for (auto const& node : kept)
    EXPECT_TRUE(*node == *kept[0]);
  EXPECT_EQ(seen_of(kept[3]->getOwnerDocument()), expected);
}

TEST(axsSharing, threads_let_nodes_lists_and_maps_of_a_shared_document_go_last)
{
  auto document = shared_document();
  auto root = document->getDocumentElement();
  std::vector<std::thread> threads;
  threads.emplace_back([list = root->getChildNodes()]() mutable { list = nullptr; });
  threads.emplace_back([list = root->selectNodes(APSTRING("//row"))]() mutable { list = nullptr; });
  threads.emplace_back([map = root->getAttributes()]() mutable { map = nullptr; });
  threads.emplace_back([node = root->getLastChild()]() mutable { node = nullptr; });
  threads.emplace_back([view = root->getChildNodes()->at(2)]() mutable { view = nullptr; });
  threads.emplace_back([weak = std::weak_ptr<axmNode>(root->getFirstChild())]() mutable { weak.reset(); });
  root = nullptr;
  document = nullptr;
  for (std::thread& thread : threads)
    thread.join();
}

TEST(axsSharing, a_list_alone_holds_its_document)
{
  auto document = shared_document();
  auto const list = document->getDocumentElement()->getChildNodes();
  auto const map = document->getDocumentElement()->getAttributes();
  auto const result = document->getDocumentElement()->selectNodes(APSTRING("//row"));
  std::weak_ptr<axmDocument> const weak = document;
  document = nullptr;
  EXPECT_FALSE(weak.expired());
  EXPECT_EQ(narrow(list->at(list->length() - 1)->get_text()), "text 199");
  EXPECT_EQ(narrow(map->item(0)->getNodeValue()), "urn:p");
  EXPECT_EQ(narrow(result->at(5)->get_text()), "text 5");
}

TEST(axsSharing, nothing_changes_a_shared_document)
{
  auto const document = shared_document();
  std::string const before = saved(document);
  auto const other = load("<r><a b='1'/></r>");
  auto const made = other->getDocumentElement()->getFirstChild();
  auto const root = document->getDocumentElement();
  auto const first = root->getFirstChild();
  auto const many = document->getElementsByTagName(APSTRING("many"))->at(0);
  auto const map = many->getAttributes();
  CountingListener const listener;
  EXPECT_EQ(document->createElement(APSTRING("row")), nullptr);
  EXPECT_EQ(document->createTextNode(APSTRING("t")), nullptr);
  EXPECT_EQ(document->createComment(APSTRING("c")), nullptr);
  EXPECT_EQ(root->insertBefore(root->getLastChild(), first), nullptr);
  EXPECT_EQ(root->insertBefore(made, first), nullptr);
  EXPECT_EQ(root->appendChild(first), nullptr);
  EXPECT_EQ(root->replaceChild(root->getLastChild(), first), nullptr);
  EXPECT_EQ(root->replaceChild(first, first), nullptr);
  EXPECT_EQ(root->removeChild(first), nullptr);
  EXPECT_EQ(document->removeChild(root), nullptr);
  EXPECT_EQ(map->removeNamedItem(APSTRING("a1")), nullptr);
  EXPECT_EQ(map->setNamedItem(made->getAttributes()->item(0)), nullptr);
  EXPECT_EQ(map->setNamedItem(map->item(0)), nullptr);
  EXPECT_FALSE(many->set_attribute(APSTRING("a1"), APSTRING("new")));
  EXPECT_FALSE(many->set_attribute(APSTRING("new"), 5));
  EXPECT_EQ(listener.reports, 0);
  many->setAttribute(APSTRING("a1"), APSTRING("new"));
  many->removeAttribute(APSTRING("a1"));
  map->item(1)->set_text(APSTRING("new"));
  root->set_text(APSTRING("new"));
  EXPECT_EQ(listener.reports, 4);
  int position = 0;
  for (auto child = root->getFirstChild(); child != nullptr; child = child->getNextSibling(), ++position)
  {
    child->set_text(APSTRING("new"));
    root->getChildNodes()->at(position)->set_text(APSTRING("new"));
  }
  EXPECT_EQ(listener.reports, 4 + 2 * position);
  EXPECT_EQ(saved(document), before);
}

TEST(axsSharing, what_is_held_keeps_a_document_from_being_shared)
{
  auto document = load(source);
  auto const cannot = [&]
  {
    EXPECT_FALSE(axsSharing::share(document));
    EXPECT_FALSE(axsSharing::is_shared(*document));
    document->getDocumentElement()->setAttribute(APSTRING("still"), APSTRING("mine"));
  };
  {
    auto const copy = document;
    cannot();
  }
  {
    auto const node = document->getDocumentElement();
    cannot();
  }
  {
    auto const list = document->getChildNodes();
    cannot();
  }
  {
    auto const list = document->getElementsByTagName(APSTRING("row"));
    cannot();
  }
  {
    auto const map = document->getDocumentElement()->getAttributes();
    cannot();
  }
  {
    auto const detached = document->createElement(APSTRING("e"));
    cannot();
  }
  {
    std::weak_ptr<axmNode> const weak = document->getDocumentElement();
    cannot();
  }
  std::string const before = saved(document);
  EXPECT_TRUE(axsSharing::share(document));
  EXPECT_TRUE(axsSharing::is_shared(*document));
  EXPECT_TRUE(axsSharing::is_shared(*document->getDocumentElement()));
  auto const copy = document;
  EXPECT_TRUE(axsSharing::share(document));
  EXPECT_EQ(saved(document), before);

  std::shared_ptr<axmDocument> none;
  EXPECT_FALSE(axsSharing::share(none));
}

TEST(axsSharing, lists_that_were_asked_for_before_find_places_after_it)
{
  auto document = load("<r>" + rows(500) + "</r>");
  {
    auto const list = document->getDocumentElement()->getChildNodes();
    for (int i = 0; i < 60; ++i)
      list->at(i % 2 == 0 ? 100 : 400);
  }
  ASSERT_TRUE(axsSharing::share(document));
  for (int i = 0; i < 500; ++i)
    EXPECT_EQ(narrow(document->getDocumentElement()->getChildNodes()->at(i * 7 % 500)->get_text()),
      "text " + std::to_string(i * 7 % 500));
}
