#include "axsRenameEdit.h"

#include "axsEditFault.h"
#include "axsEditSession.h"
#include "axsHandle.h"
#include "axsTagText.h"
#include "axsTokens.h"
#include "axsXmlName.h"

#include <string>

namespace
{
// A prefix that the caller has given a meaning must mean the same where the name is used.
void check_prefix(axsEditSession& session, axsNode const& node, std::string_view name)
{
  std::string const prefix(name.substr(0, name.find(':') == std::string_view::npos ? 0 : name.find(':')));
  auto const given = session.prefixes().find(prefix);
  if (prefix.empty() || given == session.prefixes().end())
    return;
  axsNode const& element = node.is_attribute() ? *node.parent() : node;
  if (session.scopes().uri(static_cast<axsElement const&>(element), prefix) != given->second)
    session.refuse_at(element, "has no prefix '" + prefix + "' that is bound to " + given->second);
}

void splice(axsEditSession& session, axsNode const& node, std::string const& name)
{
  std::string_view const text = session.source().text();
  axsNode const& element = node.is_attribute() ? *node.parent() : node;
  axsSourcePlaces::Place const& place = session.place_in_document(element);
  axsTagText const tag(text, place.first);
  if (node.is_attribute())
  {
    axsTagText::Attribute const* const written = tag.find(node.name()->utf8());
    if (written == nullptr)
      session.refuse_at(element, "has '" + std::string(node.name()->utf8()) +
                                   "' from the document type only: it does not stand in the document");
    return session.splice({written->name, {{name, {}}}, true});
  }
  session.splice({tag.name(), {{name, {}}}, true});
  if (!tag.is_empty())
    session.splice({axsTagText(text, place.last).name(), {{name, {}}}, true});
}

// A value that is not one of tokens may be declared to be one under another name.
void check_value(axsEditSession& session, axsName const& element, axsName const& attribute, axsNode const& node)
{
  axsDeclaredAttributes::Element const* const declared = session.tree().declared_attributes().of(element);
  if (declared == nullptr)
    return;
  auto const found = declared->kinds.find(&attribute);
  if (found != declared->kinds.end() && found->second.has_tokens && !axsTokens::is_collapsed(node.value()))
    session.refuse_at(
      *node.parent(), "would have a value of '" + std::string(attribute.utf8()) +
                        "' that consists of tokens by its declaration, and is read without some spaces");
}

// What the attributes of an element, or one attribute, would be read as.
void check_values(axsEditSession& session, axsNode const& node, axsName const& name)
{
  if (node.is_attribute())
    return check_value(session, static_cast<axsElement const&>(*node.parent()).element_name(), name, node);
  auto const& element = static_cast<axsElement const&>(node);
  for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
    if (!session.is_default(*at))
      check_value(session, name, at->full_name(), *at);
}

// The tree has no other way than to put an element of that name in the place of the old one. Defaults are those of a name.
void rename_element(axsEditSession& session, axsElement& element, axsName const& name)
{
  auto& old = static_cast<axsDomElement&>(element);
  auto const keep_old = axsHandle::make<axmElement>(old);
  axsDomElement& renamed = *session.tree().make_element(name);
  auto const keep_new = axsHandle::make<axmElement>(renamed);
  for (axsAttribute* at = old.first_attribute(); at != nullptr;)
  {
    axsAttribute& attribute = *at;
    at = at->next_attribute();
    if (session.is_default(attribute))
      continue;
    auto const keep = axsHandle::of(&attribute);
    old.take_attribute(attribute);
    static_cast<axsElement&>(renamed).put_attribute(attribute, nullptr);
  }
  while (auto const child = old.getFirstChild())
    renamed.appendChild(old.removeChild(child));
  old.getParentNode()->replaceChild(keep_new, keep_old);
}

void rename_attribute(axsNode const& node, std::string_view name)
{
  auto& owner = static_cast<axsDomElement&>(*node.parent());
  apString const value = apString::from_utf8(node.value());
  owner.removeAttribute(apString::from_utf8(node.name()->utf8()));
  owner.setAttribute(apString::from_utf8(name), value);
}
}

std::size_t axsRenameEdit::run(axsEditSession& session, std::string_view xpath, std::string_view name)
{
  apString const wide = apString::from_utf8(name);
  if (!axsXmlName::is_name(wide))
    throw axsEditFault{axsEditFault::Kind::request, axmParseError(APSTRING("is no name")), std::string(name)};
  axsEditSession::Nodes const nodes = session.select(xpath);
  for (axsNode const* const node : nodes)
    if (node->is_element() || node->is_attribute())
      session.places().ask(node->is_attribute() ? *node->parent() : *node);
    else
      axsEditSession::refuse("a selected node has no name that can be changed");
  session.find_places();
  axsName const& known = session.tree().names().intern(name);
  for (axsNode const* const node : nodes)
  {
    check_prefix(session, *node, name);
    check_values(session, *node, known);
    splice(session, *node, std::string(name));
  }

  for (axsNode* const node : nodes)
    if (node->is_attribute())
      rename_attribute(*node, name);
    else
      rename_element(session, static_cast<axsElement&>(*node), known);
  return nodes.size();
}
