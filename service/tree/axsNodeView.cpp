#include "axsNodeView.h"

#include "axsTree.h"

axsNodeView::axsNodeView(axsNode& node) : viewed(node), shown(node.handle()) {}
axsNodeView::~axsNodeView() = default;

apString axsNodeView::getNodeName() const
{
  return shown->getNodeName();
}

apString axsNodeView::getNodeValue() const
{
  return shown->getNodeValue();
}

std::shared_ptr<axmNode> axsNodeView::getParentNode()
{
  return shown->getParentNode();
}

std::shared_ptr<axmNodeList> axsNodeView::getChildNodes()
{
  return shown->getChildNodes();
}

std::shared_ptr<axmNode> axsNodeView::getFirstChild()
{
  return shown->getFirstChild();
}

std::shared_ptr<axmNode> axsNodeView::getLastChild()
{
  return shown->getLastChild();
}

std::shared_ptr<axmNode> axsNodeView::getPreviousSibling()
{
  return shown->getPreviousSibling();
}

std::shared_ptr<axmNode> axsNodeView::getNextSibling()
{
  return shown->getNextSibling();
}

std::shared_ptr<axmDocument> axsNodeView::getOwnerDocument()
{
  return shown->getOwnerDocument();
}

std::shared_ptr<axmNode> axsNodeView::insertBefore(
  std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child)
{
  return shown->insertBefore(new_child, ref_child);
}

std::shared_ptr<axmNode> axsNodeView::replaceChild(
  std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child)
{
  return shown->replaceChild(new_child, old_child);
}

std::shared_ptr<axmNode> axsNodeView::removeChild(std::shared_ptr<axmNode> old_child)
{
  return shown->removeChild(old_child);
}

std::shared_ptr<axmNode> axsNodeView::appendChild(std::shared_ptr<axmNode> new_child)
{
  return shown->appendChild(new_child);
}

bool axsNodeView::hasChildNodes() const
{
  return shown->hasChildNodes();
}

void axsNodeView::reserved_node_15() {}

bool axsNodeView::hasAttributes() const
{
  return false;
}

std::shared_ptr<axmNamedNodeMap> axsNodeView::getAttributes()
{
  return nullptr;
}

bool axsNodeView::operator==(axmNode const& other) const
{
  return axsNode::of(other) == &viewed;
}

// The interface would find an element here and say that it has set something.
bool axsNodeView::set_attribute(apString const&, apString const&)
{
  return false;
}

apString axsNodeView::get_text() const
{
  return shown->get_text();
}

void axsNodeView::set_text(apString const& text)
{
  shown->set_text(text);
}

apString axsNodeView::get_xml() const
{
  return shown->get_xml();
}

void axsNodeView::reserved_element_0() {}
void axsNodeView::reserved_element_7() {}
void axsNodeView::reserved_element_8() {}
void axsNodeView::reserved_element_9() {}
void axsNodeView::reserved_element_10() {}
void axsNodeView::reserved_element_11() {}

apString axsNodeView::getAttribute(apString const&) const
{
  return apString();
}

void axsNodeView::setAttribute(apString const&, apString const&) {}
void axsNodeView::removeAttribute(apString const&) {}

bool axsNodeView::hasAttribute(apString const&) const
{
  return false;
}

std::shared_ptr<axmNodeList> axsNodeView::selectNodes(apString const& xpath)
{
  return axsTree::select_nodes(viewed, xpath);
}

std::shared_ptr<axmNode> axsNodeView::selectSingleNode(apString const& xpath)
{
  return axsTree::select_single_node(viewed, xpath);
}
