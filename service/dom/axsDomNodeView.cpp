#include "axsDomNodeView.h"

#include "axsDomOperations.h"
#include "axsHandle.h"

axsDomNodeView::axsDomNodeView(axsNode& node) : viewed(node), shown(axsHandle::of(&node)) {}
axsDomNodeView::~axsDomNodeView() = default;

apString axsDomNodeView::getNodeName() const
{
  return shown->getNodeName();
}

apString axsDomNodeView::getNodeValue() const
{
  return shown->getNodeValue();
}

std::shared_ptr<axmNode> axsDomNodeView::getParentNode()
{
  return shown->getParentNode();
}

std::shared_ptr<axmNodeList> axsDomNodeView::getChildNodes()
{
  return shown->getChildNodes();
}

std::shared_ptr<axmNode> axsDomNodeView::getFirstChild()
{
  return shown->getFirstChild();
}

std::shared_ptr<axmNode> axsDomNodeView::getLastChild()
{
  return shown->getLastChild();
}

std::shared_ptr<axmNode> axsDomNodeView::getPreviousSibling()
{
  return shown->getPreviousSibling();
}

std::shared_ptr<axmNode> axsDomNodeView::getNextSibling()
{
  return shown->getNextSibling();
}

std::shared_ptr<axmDocument> axsDomNodeView::getOwnerDocument()
{
  return shown->getOwnerDocument();
}

std::shared_ptr<axmNode> axsDomNodeView::insertBefore(
  std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> ref_child)
{
  return shown->insertBefore(new_child, ref_child);
}

std::shared_ptr<axmNode> axsDomNodeView::replaceChild(
  std::shared_ptr<axmNode> new_child, std::shared_ptr<axmNode> old_child)
{
  return shown->replaceChild(new_child, old_child);
}

std::shared_ptr<axmNode> axsDomNodeView::removeChild(std::shared_ptr<axmNode> old_child)
{
  return shown->removeChild(old_child);
}

std::shared_ptr<axmNode> axsDomNodeView::appendChild(std::shared_ptr<axmNode> new_child)
{
  return shown->appendChild(new_child);
}

bool axsDomNodeView::hasChildNodes() const
{
  return shown->hasChildNodes();
}

void axsDomNodeView::reserved_node_15() {}

bool axsDomNodeView::hasAttributes() const
{
  return false;
}

std::shared_ptr<axmNamedNodeMap> axsDomNodeView::getAttributes()
{
  return nullptr;
}

bool axsDomNodeView::operator==(axmNode const& other) const
{
  return axsDomOperations::is_node(other, viewed);
}

// The interface would find an element here and say that it has set something.
bool axsDomNodeView::set_attribute(apString const&, apString const&)
{
  return false;
}

apString axsDomNodeView::get_text() const
{
  return shown->get_text();
}

void axsDomNodeView::set_text(apString const& text)
{
  shown->set_text(text);
}

apString axsDomNodeView::get_xml() const
{
  return shown->get_xml();
}

void axsDomNodeView::reserved_element_0() {}
void axsDomNodeView::reserved_element_7() {}
void axsDomNodeView::reserved_element_8() {}
void axsDomNodeView::reserved_element_9() {}
void axsDomNodeView::reserved_element_10() {}
void axsDomNodeView::reserved_element_11() {}

apString axsDomNodeView::getAttribute(apString const&) const
{
  return apString();
}

void axsDomNodeView::setAttribute(apString const&, apString const&) {}
void axsDomNodeView::removeAttribute(apString const&) {}

bool axsDomNodeView::hasAttribute(apString const&) const
{
  return false;
}

std::shared_ptr<axmNodeList> axsDomNodeView::selectNodes(apString const& xpath)
{
  return axsDomOperations::select_nodes(viewed, xpath);
}

std::shared_ptr<axmNode> axsDomNodeView::selectSingleNode(apString const& xpath)
{
  return axsDomOperations::select_single_node(viewed, xpath);
}
