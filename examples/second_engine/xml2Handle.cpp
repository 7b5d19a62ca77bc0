#include "xml2Handle.h"

#include "xml2Node.h"

#include <utAssert.h>

#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <utility>
#include <vector>

namespace
{
// What a search found.
class ResultList : public axmNodeList
{
public:
  explicit ResultList(std::vector<std::shared_ptr<axmElement>> given) : found(std::move(given)) {}

  std::shared_ptr<axmElement> at(int index) override
  {
    return index >= 0 && index < length() ? found[static_cast<std::size_t>(index)] : nullptr;
  }
  int length() const override { return static_cast<int>(found.size()); }

private:
  std::vector<std::shared_ptr<axmElement>> found;
};

bool holds_children(xmlNode const& node)
{
  return node.type == XML_ELEMENT_NODE || node.type == XML_DOCUMENT_NODE;
}

void silent(void*, xmlError*) {}
}

xml2Handle::xml2Handle(std::shared_ptr<xml2Tree> given_tree, xmlNode* given_node)
  : tree(std::move(given_tree)),
    node(given_node)
{
}

xml2Handle::~xml2Handle() = default;

xml2Handle const* xml2Handle::of(axmNode const* node)
{
  return dynamic_cast<xml2Handle const*>(node);
}

std::shared_ptr<axmNode> xml2Handle::wrap(xmlNode* wrapped) const
{
  if (wrapped == nullptr)
    return nullptr;
  switch (wrapped->type)
  {
  case XML_ELEMENT_NODE:
    return std::make_shared<xml2Element>(tree, wrapped);
  case XML_TEXT_NODE:
  case XML_CDATA_SECTION_NODE:
    return std::make_shared<xml2CharacterData<axmTextNode>>(tree, wrapped);
  case XML_COMMENT_NODE:
    return std::make_shared<xml2CharacterData<axmCommentNode>>(tree, wrapped);
  case XML_PI_NODE:
    return std::make_shared<xml2ProcessingInstruction>(tree, wrapped);
  case XML_DOCUMENT_NODE:
    return owner_document();
  default:
    return std::make_shared<xml2Node<axmNode>>(tree, wrapped);
  }
}

std::shared_ptr<axmElement> xml2Handle::as_element(xmlNode* wrapped) const
{
  return wrapped != nullptr ? std::make_shared<xml2Element>(tree, wrapped) : nullptr;
}

std::shared_ptr<axmDocument> xml2Handle::owner_document() const
{
  return std::make_shared<xml2Document>(tree, tree->top());
}

apString xml2Handle::value() const
{
  if (node->type == XML_ATTRIBUTE_NODE)
    return xml2_owned_text(xmlNodeGetContent(node));
  return holds_children(*node) ? apString() : xml2_text(node->content);
}

apString xml2Handle::text() const
{
  return xml2_owned_text(xmlNodeGetContent(node));
}

void xml2Handle::set_text(apString const& text) const
{
  if (!holds_children(*node))
  {
    xml2_with(text, [this](xmlChar const* utf8) { set_content(utf8); });
    return;
  }
  if (node->type != XML_ELEMENT_NODE)
    return;
  while (node->children != nullptr)
    tree->detach(node->children);
  tree->link(
    node, xml2_with(text, [this](xmlChar const* utf8) { return xmlNewDocText(tree->document(), utf8); }), nullptr);
}

void xml2Handle::set_content(xmlChar const* utf8) const
{
  if (node->type != XML_ATTRIBUTE_NODE)
  {
    xmlNodeSetContent(node, utf8);
    return;
  }
  // Of an attribute it is taken for markup.
  xmlChar* const escaped = xmlEncodeSpecialChars(tree->document(), utf8);
  xmlNodeSetContent(node, escaped);
  xmlFree(escaped);
}

apString xml2Handle::xml() const
{
  if (node->type == XML_DOCUMENT_NODE)
  {
    xmlChar* text = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(tree->document(), &text, &size, "UTF-8");
    return xml2_owned_text(text);
  }
  xmlBuffer* const buffer = xmlBufferCreate();
  xmlNodeDump(buffer, tree->document(), node, 0, 0);
  apString const text = xml2_text(xmlBufferContent(buffer));
  xmlBufferFree(buffer);
  return text;
}

bool xml2Handle::is_child(axmNode const* child) const
{
  xml2Handle const* const handle = of(child);
  return handle != nullptr && handle->node->parent == node && handle->node->type != XML_ATTRIBUTE_NODE;
}

bool xml2Handle::may_hold(xml2Handle const& child, xmlNode const* replaced) const
{
  if (!holds_children(*node) || child.tree != tree ||
      holds_children(*child.node) != (child.node->type == XML_ELEMENT_NODE) || child.node->type == XML_ATTRIBUTE_NODE)
    return false;
  for (xmlNode const* ancestor = node; ancestor != nullptr; ancestor = ancestor->parent)
    if (ancestor == child.node)
      return false;
  if (node->type != XML_DOCUMENT_NODE)
    return true;
  if (child.node->type != XML_ELEMENT_NODE)
    return child.node->type != XML_TEXT_NODE && child.node->type != XML_CDATA_SECTION_NODE;
  xmlNode const* const root = xmlDocGetRootElement(tree->document());
  return root == nullptr || root == replaced || root == child.node;
}

std::shared_ptr<axmNode> xml2Handle::insert(std::shared_ptr<axmNode> const& new_child, axmNode const* ref_child) const
{
  xml2Handle const* const child = of(new_child.get());
  if (child == nullptr || (ref_child != nullptr && !is_child(ref_child)) || !may_hold(*child, nullptr))
    return nullptr;
  if (child->node->parent != nullptr)
    ut_report_assertion("new_child->getParentNode() == nullptr", "examples/second_engine", __LINE__);
  xmlNode* next = ref_child != nullptr ? of(ref_child)->node : nullptr;
  if (next == child->node)
    next = next->next;
  xmlUnlinkNode(child->node);
  tree->link(node, child->node, next);
  return new_child;
}

std::shared_ptr<axmNode> xml2Handle::replace(
  std::shared_ptr<axmNode> const& new_child, std::shared_ptr<axmNode> const& old_child) const
{
  xml2Handle const* const child = of(new_child.get());
  if (child == nullptr || !is_child(old_child.get()) || !may_hold(*child, of(old_child.get())->node))
    return nullptr;
  if (child->node->parent != nullptr)
    ut_report_assertion("new_child->getParentNode() == nullptr", "examples/second_engine", __LINE__);
  xmlNode* const replaced = of(old_child.get())->node;
  if (replaced == child->node)
    return old_child;
  xmlUnlinkNode(child->node);
  xmlNode* const next = replaced->next;
  tree->detach(replaced);
  tree->link(node, child->node, next);
  return old_child;
}

std::shared_ptr<axmNode> xml2Handle::remove(std::shared_ptr<axmNode> const& old_child) const
{
  if (!is_child(old_child.get()))
    return nullptr;
  tree->detach(of(old_child.get())->node);
  return old_child;
}

xmlNode* xml2Handle::attribute(apString const& name) const
{
  if (node->type != XML_ELEMENT_NODE)
    return nullptr;
  for (xmlAttr* current = node->properties; current != nullptr; current = current->next)
    if (xml2_name(*reinterpret_cast<xmlNode*>(current)) == name)
      return reinterpret_cast<xmlNode*>(current);
  return nullptr;
}

bool xml2Handle::set_attribute(apString const& name, apString const& value) const
{
  if (node->type != XML_ELEMENT_NODE)
    return false;
  xmlNode* const found = attribute(name);
  xml2_with(value,
    [&](xmlChar const* text)
    {
      if (found != nullptr)
        xmlSetNsProp(node, found->ns, found->name, text);
      else if (xml2_is_name(name))
        xml2_with(name, [&](xmlChar const* utf8_name) { xmlNewProp(node, utf8_name, text); });
    });
  return true;
}

std::shared_ptr<axmNode> xml2Handle::take_attribute(apString const& name) const
{
  xmlNode* const found = attribute(name);
  if (found == nullptr)
    return nullptr;
  tree->detach(found);
  return wrap(found);
}

std::shared_ptr<axmNode> xml2Handle::put_attribute(std::shared_ptr<axmNode> const& given) const
{
  xml2Handle const* const handle = of(given.get());
  bool const fits = handle != nullptr && handle->tree == tree && handle->node->type == XML_ATTRIBUTE_NODE &&
                    handle->node->parent == nullptr;
  if (!fits)
    return nullptr;
  std::shared_ptr<axmNode> const replaced = take_attribute(xml2_name(*handle->node));
  tree->link_attribute(node, handle->node);
  return replaced;
}

std::shared_ptr<axmNodeList> xml2Handle::select(apString const& xpath) const
{
  std::vector<std::shared_ptr<axmElement>> found;
  xmlXPathContext* const context = xmlXPathNewContext(tree->document());
  context->node = node;
  context->error = [](void* data, xmlError* error) { silent(data, error); };
  xmlNs** const in_scope = xmlGetNsList(tree->document(), node);
  for (xmlNs** current = in_scope; current != nullptr && *current != nullptr; ++current)
    if ((*current)->prefix != nullptr)
      xmlXPathRegisterNs(context, (*current)->prefix, (*current)->href);
  xmlFree(in_scope);
  xmlXPathObject* const result =
    xml2_with(xpath, [context](xmlChar const* text) { return xmlXPathEvalExpression(text, context); });
  if (result != nullptr && result->type == XPATH_NODESET && result->nodesetval != nullptr)
  {
    xmlXPathNodeSetSort(result->nodesetval);
    for (int index = 0; index < result->nodesetval->nodeNr; ++index)
      if (result->nodesetval->nodeTab[index]->type != XML_NAMESPACE_DECL)
        found.push_back(as_element(result->nodesetval->nodeTab[index]));
  }
  xmlXPathFreeObject(result);
  xmlXPathFreeContext(context);
  return std::make_shared<ResultList>(std::move(found));
}

std::shared_ptr<axmNodeList> xml2Handle::elements_named(apString const& name) const
{
  std::vector<std::shared_ptr<axmElement>> found;
  for (xmlNode* current = node; current != nullptr; current = xml2Tree::next_in_document(current, node))
    if (current->type == XML_ELEMENT_NODE && xml2_name(*current) == name)
      found.push_back(as_element(current));
  return std::make_shared<ResultList>(std::move(found));
}

xml2ChildList::xml2ChildList(xml2Handle const& given) : parent(given) {}

std::shared_ptr<axmElement> xml2ChildList::at(int index)
{
  xmlNode* child = index >= 0 ? parent.node->children : nullptr;
  while (child != nullptr && index-- > 0)
    child = child->next;
  return parent.as_element(child);
}

int xml2ChildList::length() const
{
  int count = 0;
  for (xmlNode const* child = parent.node->children; child != nullptr; child = child->next)
    ++count;
  return count;
}

xml2Map::xml2Map(xml2Handle const& given) : element(given) {}

int xml2Map::getLength()
{
  int count = 0;
  for (xmlAttr const* current = element.node->properties; current != nullptr; current = current->next)
    ++count;
  return count;
}

std::shared_ptr<axmNode> xml2Map::item(int index)
{
  xmlAttr* current = index >= 0 ? element.node->properties : nullptr;
  while (current != nullptr && index-- > 0)
    current = current->next;
  return element.wrap(reinterpret_cast<xmlNode*>(current));
}

std::shared_ptr<axmNode> xml2Map::getNamedItem(apString const& name)
{
  return element.wrap(element.attribute(name));
}

std::shared_ptr<axmNode> xml2Map::removeNamedItem(apString const& name)
{
  return element.take_attribute(name);
}

std::shared_ptr<axmNode> xml2Map::setNamedItem(std::shared_ptr<axmNode> node)
{
  return element.put_attribute(node);
}
