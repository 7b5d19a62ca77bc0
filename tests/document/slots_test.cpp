// The order of the virtual operations, which engines built separately rely on.

#include "../slots.h"

#include <axmCommentNode.h>
#include <axmDocument.h>
#include <axmElement.h>
#include <axmNamedNodeMap.h>
#include <axmNode.h>
#include <axmNodeList.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <gtest/gtest.h>
#include <memory>

namespace
{
using Node = std::shared_ptr<axmNode>;

// The destructor, operation 0 of a node, takes two slots.
int node_operation(int number)
{
  return number + 1;
}

// A virtual base without data is the primary base: the own operations follow the 33 of the node in one table.
int own_operation(int number)
{
  return node_operation(33) + number;
}
}

TEST(slots, axmNode)
{
  using Class = axmNode;
  EXPECT_EQ(slot_of(&Class::getNodeName), node_operation(1));
  EXPECT_EQ(slot_of(&Class::getNodeValue), node_operation(2));
  EXPECT_EQ(slot_of(&Class::getParentNode), node_operation(3));
  EXPECT_EQ(slot_of(&Class::getChildNodes), node_operation(4));
  EXPECT_EQ(slot_of(&Class::getFirstChild), node_operation(5));
  EXPECT_EQ(slot_of(&Class::getLastChild), node_operation(6));
  EXPECT_EQ(slot_of(&Class::getPreviousSibling), node_operation(7));
  EXPECT_EQ(slot_of(&Class::getNextSibling), node_operation(8));
  EXPECT_EQ(slot_of(&Class::getOwnerDocument), node_operation(9));
  EXPECT_EQ(slot_of(&Class::insertBefore), node_operation(10));
  EXPECT_EQ(slot_of(&Class::replaceChild), node_operation(11));
  EXPECT_EQ(slot_of(&Class::removeChild), node_operation(12));
  EXPECT_EQ(slot_of(&Class::appendChild), node_operation(13));
  EXPECT_EQ(slot_of(&Class::hasChildNodes), node_operation(14));
  EXPECT_EQ(slot_of(&Class::reserved_node_15), node_operation(15));
  EXPECT_EQ(slot_of(&Class::hasAttributes), node_operation(16));
  EXPECT_EQ(slot_of(&Class::getAttributes), node_operation(17));
  EXPECT_EQ(slot_of(&Class::operator==), node_operation(18));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, bool&) const>(&Class::get_attribute), node_operation(19));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, apString&) const>(&Class::get_attribute), node_operation(20));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, double&) const>(&Class::get_attribute), node_operation(21));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, int&) const>(&Class::get_attribute), node_operation(22));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, bool)>(&Class::set_attribute), node_operation(23));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, apString const&)>(&Class::set_attribute), node_operation(24));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, double)>(&Class::set_attribute), node_operation(25));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, int)>(&Class::set_attribute), node_operation(26));
  EXPECT_EQ(slot_of<bool (Class::*)(apString const&, unsigned int)>(&Class::set_attribute), node_operation(27));
  EXPECT_EQ(slot_of(&Class::get_attribute_locale), node_operation(28));
  EXPECT_EQ(slot_of(&Class::set_attribute_locale), node_operation(29));
  EXPECT_EQ(slot_of(&Class::get_text), node_operation(30));
  EXPECT_EQ(slot_of(&Class::set_text), node_operation(31));
  EXPECT_EQ(slot_of(&Class::get_xml), node_operation(32));
}

TEST(slots, axmElement)
{
  using Class = axmElement;
  EXPECT_EQ(slot_of(&Class::reserved_element_0), own_operation(0));
  EXPECT_EQ(slot_of(&Class::getAttribute), own_operation(1));
  EXPECT_EQ(slot_of(&Class::setAttribute), own_operation(2));
  EXPECT_EQ(slot_of(&Class::removeAttribute), own_operation(3));
  EXPECT_EQ(slot_of(&Class::hasAttribute), own_operation(4));
  EXPECT_EQ(slot_of(&Class::selectNodes), own_operation(5));
  EXPECT_EQ(slot_of(&Class::selectSingleNode), own_operation(6));
  EXPECT_EQ(slot_of(&Class::reserved_element_7), own_operation(7));
  EXPECT_EQ(slot_of(&Class::reserved_element_8), own_operation(8));
  EXPECT_EQ(slot_of(&Class::reserved_element_9), own_operation(9));
  EXPECT_EQ(slot_of(&Class::reserved_element_10), own_operation(10));
  EXPECT_EQ(slot_of(&Class::reserved_element_11), own_operation(11));
}

TEST(slots, axmDocument)
{
  using Class = axmDocument;
  EXPECT_EQ(slot_of(&Class::createElement), own_operation(0));
  EXPECT_EQ(slot_of(&Class::createTextNode), own_operation(1));
  EXPECT_EQ(slot_of(&Class::createComment), own_operation(2));
  EXPECT_EQ(slot_of(&Class::getDocumentElement), own_operation(3));
  EXPECT_EQ(slot_of(&Class::getDocumentURI), own_operation(4));
  EXPECT_EQ(slot_of(&Class::reserved_document_5), own_operation(5));
  EXPECT_EQ(slot_of(&Class::getElementsByTagName), own_operation(6));
  EXPECT_EQ(slot_of(&Class::reserved_document_7), own_operation(7));
}

TEST(slots, axmCharacterData_and_its_kinds)
{
  EXPECT_EQ(slot_of(&axmCharacterData::getData), own_operation(0));
  EXPECT_EQ(slot_of(&axmTextNode::getData), own_operation(0));
  EXPECT_EQ(slot_of(&axmCommentNode::getData), own_operation(0));
}

TEST(slots, axmProcessingInstruction)
{
  EXPECT_EQ(slot_of(&axmProcessingInstruction::reserved_processing_instruction_33), node_operation(33));
  EXPECT_EQ(slot_of(&axmProcessingInstruction::reserved_processing_instruction_34), node_operation(34));
}

TEST(slots, axmNodeList)
{
  using Class = axmNodeList;
  // The destructor, operation 0, takes two slots.
  EXPECT_EQ(slot_of(&Class::at), 1 + 1);
  EXPECT_EQ(slot_of(&Class::length), 2 + 1);
  EXPECT_EQ(slot_of(&Class::operator()), 3 + 1);
  EXPECT_EQ(slot_of(&Class::isEmpty), 4 + 1);
  EXPECT_EQ(slot_of(&Class::operator++), 5 + 1);
  EXPECT_EQ(slot_of(&Class::reset), 6 + 1);
  EXPECT_EQ(slot_of(&Class::next_node), 7 + 1);
  EXPECT_EQ(slot_of(&Class::invalid), 8 + 1);
}

TEST(slots, axmNamedNodeMap)
{
  // Gives the table one more operation, to find where the destructor, the last one, ends.
  struct Longer : axmNamedNodeMap
  {
    virtual void next() = 0;
  };
  using Class = axmNamedNodeMap;
  EXPECT_EQ(slot_of(&Class::getLength), 0);
  EXPECT_EQ(slot_of(&Class::item), 1);
  EXPECT_EQ(slot_of(&Class::getNamedItem), 2);
  EXPECT_EQ(slot_of(&Class::removeNamedItem), 3);
  EXPECT_EQ(slot_of(&Class::setNamedItem), 4);
  EXPECT_EQ(slot_of(&Longer::next), 5 + 2);
}

TEST(slots, no_interface_has_more_operations_than_those)
{
  struct LongerNode : axmNode
  {
    virtual void next() = 0;
  };
  struct LongerElement : axmElement
  {
    virtual void next() = 0;
  };
  struct LongerDocument : axmDocument
  {
    virtual void next() = 0;
  };
  struct LongerText : axmTextNode
  {
    virtual void next() = 0;
  };
  struct LongerComment : axmCommentNode
  {
    virtual void next() = 0;
  };
  struct LongerInstruction : axmProcessingInstruction
  {
    virtual void next() = 0;
  };
  struct LongerList : axmNodeList
  {
    virtual void next() = 0;
  };
  EXPECT_EQ(slot_of(&LongerNode::next), node_operation(33));
  EXPECT_EQ(slot_of(&LongerElement::next), own_operation(12));
  EXPECT_EQ(slot_of(&LongerDocument::next), own_operation(8));
  EXPECT_EQ(slot_of(&LongerText::next), own_operation(1));
  EXPECT_EQ(slot_of(&LongerComment::next), own_operation(1));
  EXPECT_EQ(slot_of(&LongerInstruction::next), node_operation(35));
  EXPECT_EQ(slot_of(&LongerList::next), 9 + 1);
}
