#include "Engine.h"

namespace
{
std::string names(std::shared_ptr<axmNodeList> const& list)
{
  std::string all;
  for (int i = 0; i < list->length(); ++i)
    all += narrow(list->at(i)->getNodeName()) + " ";
  return all;
}
}

TEST(axsLists, a_child_list_follows_every_change)
{
  auto const document = load("<r><a/><b/><c/></r>");
  auto const root = document->getDocumentElement();
  auto const list = root->getChildNodes();
  auto const other = root->getChildNodes();
  EXPECT_EQ(names(list), "a b c ");
  EXPECT_EQ(narrow(list->at(1)->getNodeName()), "b");
  root->insertBefore(document->createElement(APSTRING("x")), root->getFirstChild());
  EXPECT_EQ(names(list), "x a b c ");
  EXPECT_EQ(narrow(list->at(2)->getNodeName()), "b");
  root->removeChild(list->at(2));
  EXPECT_EQ(narrow(list->at(2)->getNodeName()), "c");
  root->replaceChild(document->createElement(APSTRING("y")), list->at(0));
  EXPECT_EQ(names(list), "y a c ");
  root->appendChild(document->createTextNode(APSTRING("t")));
  EXPECT_EQ(list->length(), 4);
  root->set_text(APSTRING("only"));
  EXPECT_EQ(names(list), "#text ");
  EXPECT_EQ(names(other), "#text ");
}

TEST(axsLists, at_is_empty_outside_of_the_list)
{
  auto const root = load_root("<r><a/></r>");
  for (auto const& list : {root->getChildNodes(), root->selectNodes(APSTRING("a"))})
    for (int const index : {-1, 1, 2147483647, -2147483647 - 1})
      EXPECT_EQ(list->at(index), nullptr);
  for (int const index : {-1, 0, 2147483647})
    EXPECT_EQ(root->getAttributes()->item(index), nullptr);
}

TEST(axsLists, taking_out_what_a_list_stands_on_works_from_both_ends)
{
  auto const document = engine()->createDocument(APSTRING("r"));
  auto const root = document->getDocumentElement();
  int const count = 100000;
  auto const fill = [&]
  {
    for (int i = 0; i < count; ++i)
      root->appendChild(document->createElement(APSTRING("c")));
  };
  fill();
  auto const list = root->getChildNodes();
  while (list->length() > 0)
    root->removeChild(list->at(list->length() - 1));
  fill();
  while (list->length() > 0)
    root->removeChild(list->at(0));
  fill();
  int visited = 0;
  while (auto const child = list->next_node())
  {
    child->appendChild(document->createElement(APSTRING("below")));
    ++visited;
  }
  EXPECT_EQ(visited, count);
  for (int i = count; i-- > 0;)
    ASSERT_TRUE(list->at(i)->hasChildNodes());
}

TEST(axsLists, a_child_that_is_no_element_is_a_view_equal_to_it)
{
  auto const document = load("<r>text<!--c--><?pi data?></r>");
  auto const root = document->getDocumentElement();
  auto const list = root->getChildNodes();
  auto const view = list->at(0);
  auto const text = root->getFirstChild();
  EXPECT_TRUE(*view == *text);
  EXPECT_TRUE(*text == *view);
  EXPECT_TRUE(*view == *list->at(0));
  EXPECT_FALSE(*view == *list->at(1));
  EXPECT_FALSE(*view == *root);
  EXPECT_EQ(narrow(view->getNodeName()), "#text");
  EXPECT_EQ(narrow(view->getNodeValue()), "text");
  EXPECT_EQ(narrow(view->get_text()), "text");
  EXPECT_EQ(narrow(list->at(1)->get_xml()), "<!--c-->");
  EXPECT_TRUE(*view->getParentNode() == *root);
  EXPECT_TRUE(*view->getNextSibling() == *list->at(1));
  EXPECT_TRUE(*list->at(1)->getPreviousSibling() == *view);
  EXPECT_EQ(view->getChildNodes()->length(), 0);
  EXPECT_FALSE(view->hasChildNodes());
  EXPECT_EQ(view->getAttributes(), nullptr);
  EXPECT_EQ(narrow(view->getOwnerDocument()->getDocumentURI()), narrow(document->getDocumentURI()));
}

TEST(axsLists, a_view_takes_no_attributes)
{
  auto const root = load_root("<r>text</r>");
  auto const view = root->getChildNodes()->at(0);
  apString const name = APSTRING("a");
  EXPECT_FALSE(view->set_attribute(name, true));
  EXPECT_FALSE(view->set_attribute(name, 1));
  EXPECT_FALSE(view->set_attribute(name, 1u));
  EXPECT_FALSE(view->set_attribute(name, 1.5));
  EXPECT_FALSE(view->set_attribute(name, APSTRING("x")));
  EXPECT_FALSE(view->set_attribute_locale(name, 1.5));
  view->setAttribute(name, APSTRING("x"));
  EXPECT_FALSE(view->hasAttribute(name));
  EXPECT_FALSE(view->hasAttributes());
  apString value = APSTRING("untouched");
  EXPECT_FALSE(view->get_attribute(name, value));
  EXPECT_EQ(narrow(value), "untouched");
  EXPECT_EQ(narrow(root->get_xml()), "<r>text</r>");
}

TEST(axsLists, a_view_is_taken_as_the_node_it_stands_for)
{
  auto const root = load_root("<r>text<a/></r>");
  auto const view = root->getChildNodes()->at(0);
  root->removeChild(view);
  EXPECT_EQ(view->getParentNode(), nullptr);
  EXPECT_NE(root->appendChild(view), nullptr);
  EXPECT_EQ(narrow(root->get_xml()), "<r><a/>text</r>");
  root->replaceChild(root->getOwnerDocument()->createComment(APSTRING("c")), view);
  EXPECT_EQ(narrow(root->get_xml()), "<r><a/><!--c--></r>");
  view->set_text(APSTRING("other"));
  root->insertBefore(view, root->getFirstChild());
  EXPECT_EQ(narrow(root->get_xml()), "<r>other<a/><!--c--></r>");
}

TEST(axsLists, a_map_is_live_in_both_directions)
{
  auto const root = load_root("<r/>");
  auto const map = root->getAttributes();
  root->setAttribute(APSTRING("a"), APSTRING("1"));
  root->setAttribute(APSTRING("b"), APSTRING("2"));
  EXPECT_EQ(narrow(map->item(1)->getNodeValue()), "2");
  root->removeAttribute(APSTRING("a"));
  EXPECT_EQ(map->getLength(), 1);
  EXPECT_EQ(narrow(map->item(0)->getNodeValue()), "2");
  EXPECT_EQ(map->item(1), nullptr);
  map->getNamedItem(APSTRING("b"))->set_text(APSTRING("3"));
  EXPECT_EQ(narrow(root->getAttribute(APSTRING("b"))), "3");
  EXPECT_EQ(map->removeNamedItem(APSTRING("a")), nullptr);
}

TEST(axsLists, finds_elements_by_name_in_document_order)
{
  auto const document = load("<a i='1'><b><a i='2'/></b><a i='3'/><ab/></a>");
  auto const found = document->getElementsByTagName(APSTRING("a"));
  ASSERT_EQ(found->length(), 3);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(narrow(found->at(i)->getAttribute(APSTRING("i"))), std::to_string(i + 1));
  EXPECT_EQ(document->getElementsByTagName(APSTRING("none"))->length(), 0);
  EXPECT_EQ(document->getElementsByTagName(APSTRING(""))->length(), 0);
}
