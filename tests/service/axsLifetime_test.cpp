#include "Engine.h"

#include <cstdlib>
#include <fstream>

namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
int const many_rounds = 300000;
#else
int const many_rounds = 10000000;
#endif

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// The resident pages of the process, in bytes.
long resident()
{
  long all = 0;
  long pages = 0;
  std::ifstream("/proc/self/statm") >> all >> pages;
  return pages * 4096;
}
#endif
}

TEST(axsLifetime, a_node_outlives_its_removal_its_parent_and_its_document)
{
  auto document = load("<r><a x='1'><b>text</b></a></r>");
  auto root = document->getDocumentElement();
  auto a = root->getFirstChild();
  auto b = a->getFirstChild();
  root->removeChild(a);
  a.reset();
  root.reset();
  document.reset();
  EXPECT_EQ(narrow(b->get_text()), "text");
  EXPECT_EQ(narrow(b->getParentNode()->get_xml()), "<a x=\"1\"><b>text</b></a>");
  EXPECT_EQ(b->getParentNode()->getParentNode(), nullptr);
  auto const owner = b->getOwnerDocument();
  b.reset();
  EXPECT_EQ(narrow(owner->getDocumentElement()->get_xml()), "<r/>");
}

TEST(axsLifetime, lists_maps_and_views_keep_what_they_need)
{
  auto list = load_root("<r>text<a x='1'/></r>")->getChildNodes();
  EXPECT_EQ(list->length(), 2);
  auto view = list->at(0);
  auto map = list->at(1)->getAttributes();
  list.reset();
  EXPECT_EQ(narrow(map->item(0)->getNodeValue()), "1");
  map.reset();
  EXPECT_EQ(narrow(view->get_text()), "text");
  EXPECT_EQ(narrow(view->getParentNode()->getNodeName()), "r");
  auto const found = load("<r><a/><a/></r>")->getElementsByTagName(APSTRING("a"));
  EXPECT_EQ(narrow(found->at(1)->getNodeName()), "a");
}

TEST(axsLifetime, an_attribute_outlives_its_element)
{
  auto attribute = load_root("<r a='value'/>")->getAttributes()->getNamedItem(APSTRING("a"));
  EXPECT_EQ(narrow(attribute->getNodeValue()), "value");
  auto root = load_root("<r a='value'/>");
  attribute = root->getAttributes()->removeNamedItem(APSTRING("a"));
  root.reset();
  EXPECT_EQ(narrow(attribute->getNodeValue()), "value");
  EXPECT_NE(attribute->getOwnerDocument(), nullptr);
}

TEST(axsLifetime, a_result_list_holds_nodes_that_are_removed_meanwhile)
{
  auto const root = load_root("<r><a>1</a><a>2</a></r>");
  auto const found = root->selectNodes(APSTRING("//a"));
  root->removeChild(root->getFirstChild());
  root->removeChild(root->getFirstChild());
  EXPECT_EQ(found->length(), 2);
  EXPECT_EQ(narrow(found->at(0)->get_text()), "1");
}

TEST(axsLifetime, a_result_list_holds_its_nodes_through_every_way_out_of_the_tree)
{
  auto const root = load_root("<r><a n='1'>1</a><a n='2'>2</a><a n='3'>3</a><a n='4'>4<c/></a></r>");
  auto const document = root->getOwnerDocument();
  auto const texts_of = [](axmNodeList& list)
  {
    std::string texts;
    for (int i = 0; i < list.length(); ++i)
      texts += narrow(list.at(i)->get_text()) + narrow(list.at(i)->getNodeValue()) + ' ';
    return texts;
  };

  auto const elements = root->selectNodes(APSTRING("//a"));
  root->replaceChild(document->createElement(APSTRING("new")), root->getFirstChild());
  auto const texts = root->selectNodes(APSTRING("//a/text()"));
  root->getLastChild()->set_text(APSTRING("5"));
  auto const attributes = root->selectNodes(APSTRING("//@n"));
  root->getChildNodes()->at(1)->removeAttribute(APSTRING("n"));
  root->getChildNodes()->at(2)->getAttributes()->removeNamedItem(APSTRING("n"));
  auto const all = document->getElementsByTagName(APSTRING("a"));
  root->set_text(APSTRING("gone"));
  // What was freed by mistake is used again.
  for (int i = 0; i < 20; ++i)
    root->appendChild(document->createElement(APSTRING("a")))->set_text(APSTRING("other"));

  EXPECT_EQ(texts_of(*elements), "1 2 3 5 ");
  EXPECT_EQ(texts_of(*texts), "22 33 44 ");
  EXPECT_EQ(texts_of(*attributes), "22 33 44 ");
  EXPECT_EQ(texts_of(*all), "2 3 5 ");
}

TEST(axsLifetime, a_result_list_holds_what_was_moved_into_a_detached_tree)
{
  auto const root = load_root("<r><a>1</a></r>");
  auto const found = root->selectNodes(APSTRING("//a"));
  auto detached = root->getOwnerDocument()->createElement(APSTRING("d"));
  detached->appendChild(root->getFirstChild());
  detached.reset();
  for (int i = 0; i < 5; ++i)
    root->appendChild(root->getOwnerDocument()->createElement(APSTRING("new")));
  EXPECT_EQ(narrow(found->at(0)->getParentNode()->get_xml()), "<d><a>1</a></d>");
}

TEST(axsLifetime, a_result_list_holds_a_detached_tree_and_the_document)
{
  auto root = load_root("<r><a><b>1</b></a></r>");
  auto detached = root->removeChild(root->getFirstChild());
  auto const inside = dynamic_cast<axmElement&>(*detached->getFirstChild()).selectNodes(APSTRING("//b"));
  detached.reset();
  root->appendChild(root->getOwnerDocument()->createElement(APSTRING("new")));
  auto others = root->selectNodes(APSTRING("//new"));
  auto const last = root->selectNodes(APSTRING("//*"));
  root.reset();
  EXPECT_EQ(narrow(inside->at(0)->getParentNode()->get_xml()), "<a><b>1</b></a>");
  others.reset();
  EXPECT_EQ(narrow(last->at(0)->get_xml()), "<r><new/></r>");
}

TEST(axsLifetime, a_weak_pointer_holds_no_node)
{
  auto root = load_root("<r><a/></r>");
  std::weak_ptr<axmNode> const weak = root->getFirstChild();
  EXPECT_TRUE(weak.expired());
  auto held = root->getFirstChild();
  std::weak_ptr<axmNode> const later = held;
  root.reset();
  EXPECT_FALSE(later.expired());
  held.reset();
  EXPECT_TRUE(later.expired());
}

TEST(axsLifetime, a_detached_tree_stays_whole_while_one_of_its_nodes_is_held)
{
  auto const root = load_root("<r><a><b/><c><d/></c></a></r>");
  auto const d = root->getFirstChild()->getLastChild()->getFirstChild();
  root->removeChild(root->getFirstChild());
  root->appendChild(root->getOwnerDocument()->createElement(APSTRING("new")));
  EXPECT_EQ(narrow(d->getParentNode()->getParentNode()->get_xml()), "<a><b/><c><d/></c></a>");
  root->appendChild(d->getParentNode()->getParentNode());
  EXPECT_EQ(narrow(root->get_xml()), "<r><new/><a><b/><c><d/></c></a></r>");
}

TEST(axsLifetime, rounds_of_append_and_remove_take_no_memory)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  auto const root = document->getDocumentElement();
  apString const name = APSTRING("e");
  apString const text = APSTRING("some text that is longer than what fits beside a node of its own");
  auto const rounds = [&](int count)
  {
    for (int i = 0; i < count; ++i)
    {
      auto const element = document->createElement(name);
      element->setAttribute(name, text);
      element->appendChild(document->createTextNode(text));
      root->appendChild(element);
      root->removeChild(element);
    }
  };
  rounds(1000);
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  long const before = resident();
#endif
  rounds(many_rounds / 4);
  for (int i = 0; i < many_rounds; ++i)
  {
    auto const element = document->createElement(name);
    root->appendChild(element);
    root->removeChild(element);
  }
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  EXPECT_LT(resident() - before, 1024 * 1024);
#endif
  EXPECT_FALSE(root->hasChildNodes());
}

TEST(axsLifetime, a_document_a_million_levels_deep_is_built_walked_saved_loaded_and_freed)
{
  int const levels = 1000000;
  auto const factory = engine();
  apByteArray output;
  {
    auto const document = factory->createDocument(APSTRING("e"));
    std::shared_ptr<axmNode> at = document->getDocumentElement();
    for (int i = 1; i < levels; ++i)
      at = at->appendChild(document->createElement(APSTRING("e")));
    at->appendChild(document->createTextNode(APSTRING("end")));
    ASSERT_TRUE(factory->saveDocument(document, output));
  }
  axmParseError error;
  auto const loaded = factory->loadDocument(output, axmLoadOptions(axmValidateNone), error);
  ASSERT_NE(loaded, nullptr) << narrow(error.message());
  EXPECT_EQ(narrow(loaded->get_text()), "end");
  EXPECT_EQ(loaded->getElementsByTagName(APSTRING("e"))->length(), levels);
  int depth = 0;
  std::shared_ptr<axmNode> deepest = loaded;
  while (auto const child = deepest->getFirstChild())
  {
    deepest = child;
    ++depth;
  }
  EXPECT_EQ(depth, levels + 1);
  loaded->removeChild(loaded->getDocumentElement());
  EXPECT_EQ(narrow(deepest->getNodeValue()), "end");
}
