#include "axsDomDocument.h"

#include "axsDomAttribute.h"
#include "axsDomComment.h"
#include "axsDomDoctype.h"
#include "axsDomInstruction.h"
#include "axsHandle.h"
#include "axsStaticNodeList.h"
#include "axsWideText.h"

#include <string>
#include <utility>
#include <vector>

axsDomDocument::axsDomDocument(apString const& uri)
  : address(uri),
    handles(axsHandlePool::make()),
    positions(*handles, axsChildPositionTable::Watch::children)
{
}

std::shared_ptr<axmDocument> axsDomDocument::make(apString const& uri)
{
  return axsHandle::make<axmDocument>(*new axsDomDocument(uri));
}

std::shared_ptr<axmElement> axsDomDocument::createElement(apString const& name)
{
  axsName const* const known = is_shared() ? nullptr : names().intern_checked(name);
  if (known == nullptr)
    return nullptr;
  axsDomElement* const made = make_element(*known);
  std::shared_ptr<axmElement> handle = axsHandle::make<axmElement>(*made);
  if (!declared_attributes().empty())
    add_defaults(*made);
  return handle;
}

// Those that a reader would add, too (DOM Core, createElement).
void axsDomDocument::add_defaults(axsElement& element)
{
  axsDeclaredAttributes::Element const* const found = declared_attributes().of(element.element_name());
  if (found == nullptr || doctype() == nullptr)
    return;
  axsAttribute* last = nullptr;
  for (axsDeclaredAttributes::Default const& added : found->defaults)
  {
    axsAttribute* const made = make_attribute(*added.name, added.value);
    element.append_new_attribute(*made, last);
    last = made;
  }
}

std::shared_ptr<axmTextNode> axsDomDocument::createTextNode(apString const& data)
{
  utString text;
  if (is_shared() || !axsWideText::to_utf8(data, text))
    return nullptr;
  return axsHandle::make<axmTextNode>(*make_text(text.view(), false));
}

std::shared_ptr<axmCommentNode> axsDomDocument::createComment(apString const& data)
{
  utString text;
  if (is_shared() || !axsWideText::to_utf8(data, text))
    return nullptr;
  return axsHandle::make<axmCommentNode>(*make_comment(text.view()));
}

std::shared_ptr<axmElement> axsDomDocument::getDocumentElement()
{
  axsElement* const root = root_element();
  return root == nullptr ? nullptr : axsHandle::make<axmElement>(static_cast<axsDomElement&>(*root));
}

apString axsDomDocument::getDocumentURI() const
{
  return address;
}

void axsDomDocument::reserved_document_5() {}
void axsDomDocument::reserved_document_7() {}

std::shared_ptr<axmNodeList> axsDomDocument::getElementsByTagName(apString const& name)
{
  std::vector<axsXPathNode> found;
  if (axsName const* const wanted = names().find(name.to_utf8().view()))
    for (axsNode* node = first_child(); node != nullptr; node = node->next_in_tree(*this))
      if (node->is_element() && static_cast<axsElement*>(node)->is_named(*wanted))
        found.push_back(node);
  return axsStaticNodeList::make(*this, std::move(found));
}

axsDomElement* axsDomDocument::make_element(axsName const& name)
{
  auto* const made = axsTree::make_element<axsDomElement>(name);
  names().add_user(name);
  return made;
}

axsDomAttribute* axsDomDocument::make_attribute(axsName const& name, std::string_view value)
{
  auto* const made = make_leaf<axsDomAttribute>(value, name);
  names().add_user(name);
  return made;
}

axsDomText* axsDomDocument::make_text(std::string_view data, bool is_cdata)
{
  return make_leaf<axsDomText>(data, is_cdata ? axsKind::cdata_section : axsKind::text);
}

axsDomComment* axsDomDocument::make_comment(std::string_view data)
{
  return make_leaf<axsDomComment>(data);
}

axsDomInstruction* axsDomDocument::make_processing_instruction(std::string_view target, std::string_view data)
{
  std::string text(target);
  if (!data.empty())
    text.append(" ").append(data);
  return make_leaf<axsDomInstruction>(text);
}

axsDomDoctype* axsDomDocument::make_doctype(std::string_view declaration)
{
  return make_leaf<axsDomDoctype>(declaration);
}

std::shared_ptr<axsDomDocument> axsDomDocument::prepare_sharing()
{
  auto made = std::make_unique<axsSharedState>();
  index_all_attributes();
  expressions.share();
  acquire();
  // If that fails, the document is released.
  std::shared_ptr<axsDomDocument> holder(this, axsHandleRelease());
  self = holder;
  state = std::move(made);
  return holder;
}

void axsDomDocument::begin_sharing() noexcept
{
  handles->close();
  set_shared();
}

void axsDomDocument::add(axsStaticNodeList& list) noexcept
{
  list.enter(static_lists);
  watch_leaving(true);
}

void axsDomDocument::remove(axsStaticNodeList& list) noexcept
{
  list.leave(static_lists);
  watch_leaving(static_lists != nullptr);
}

void axsDomDocument::nodes_leaving() noexcept
{
  while (static_lists != nullptr)
    static_lists->hold_each();
}
