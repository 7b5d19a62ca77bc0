#include "axsSetEdit.h"

#include "axsEditFault.h"
#include "axsEditSession.h"
#include "axsHandle.h"
#include "axsMarkupText.h"
#include "axsTagText.h"
#include "axsXmlName.h"

#include <algorithm>

namespace
{
using Settings = std::vector<axsAttributeSetting>;

void check_names(Settings const& settings)
{
  for (axsAttributeSetting const& setting : settings)
    if (!axsXmlName::is_name(apString::from_utf8(setting.name)))
      throw axsEditFault{axsEditFault::Kind::edit,
        axmParseError(apString::from_utf8("'" + setting.name + "' is no name of an attribute")), {}};
}

// Of several with one name the last counts.
Settings unique(Settings settings)
{
  Settings kept;
  for (axsAttributeSetting& setting : settings)
  {
    auto const same = std::find_if(
      kept.begin(), kept.end(), [&](axsAttributeSetting const& other) { return other.name == setting.name; });
    if (same == kept.end())
      kept.push_back(std::move(setting));
    else
      same->value = std::move(setting.value);
  }
  return kept;
}

class Setter
{
public:
  explicit Setter(axsEditSession& used) : session(used), usual_quote(used.quote()) {}

  // In the text only; those that change nothing are taken out of `settings`.
  void set(axsElement const& element, Settings& settings)
  {
    axsTagText const tag(session.source().text(), session.place_in_document(element).first);
    std::string added;
    auto const apply = [&](axsAttributeSetting const& setting)
    {
      axsAttribute const* const present = element.find_attribute(std::string_view(setting.name));
      axsTagText::Attribute const* const written = tag.find(setting.name);
      if (written != nullptr && present->text() == setting.value)
        return true;
      if (written != nullptr)
        replace(written->value, setting.value);
      else
        added += std::string(tag.separator()) + setting.name + "=" + value(setting.value, quote_in(tag));
      return false;
    };
    settings.erase(std::remove_if(settings.begin(), settings.end(), apply), settings.end());
    if (!added.empty())
      session.splice({{tag.attributes_end(), tag.attributes_end()}, {{added, {}}}, true});
  }

  void replace(axsSpan written, std::string_view text)
  {
    char const quote = session.source().text()[written.begin];
    session.splice({written, {{value(text, quote), {}}}, true});
  }

private:
  char quote_in(axsTagText const& tag) const
  {
    return tag.attributes().empty() ? usual_quote : session.source().text()[tag.attributes().back().value.begin];
  }

  std::string value(std::string_view text, char quote) const
  {
    return axsMarkupText::value(text, quote, session.tree().is_xml_1_1());
  }

  axsEditSession& session;
  char const usual_quote;
};

void set_in_tree(axsEditSession& session, axsElement& element, axsAttributeSetting const& setting)
{
  static_cast<axsDomElement&>(element).setAttribute(
    apString::from_utf8(setting.name), apString::from_utf8(setting.value));
  session.make_specified(*element.find_attribute(std::string_view(setting.name)));
}

void ask_for_owners(axsEditSession& session, axsEditSession::Nodes const& nodes)
{
  for (axsNode const* const node : nodes)
    session.places().ask(node->is_attribute() ? *node->parent() : *node);
  session.find_places();
}

void check_content(axsEditSession const& session, axsNode const& node)
{
  if (!node.is_element())
    return session.refuse_at(node, "has no value that can be set: select elements or attributes");
  for (axsNode const* child = node.first_child(); child != nullptr; child = child->next_sibling())
    if (!child->is_text())
      session.refuse_at(node, "has more in it than text, which would be lost");
}

void set_content(axsEditSession& session, axsElement const& element, std::string_view value)
{
  std::string old;
  element.append_text_to(old);
  if (old == value)
    return;
  axsSourcePlaces::Place const& place = session.place_in_document(element);
  std::string const content =
    session.source().with_line_ends(axsMarkupText::content(value, session.tree().is_xml_1_1()));
  axsTagText const tag(session.source().text(), place.first);
  if (!tag.is_empty())
    return session.splice({place.content(), {{content, {}}}, false});
  std::string const name(element.element_name().utf8());
  session.splice({tag.closing(), {{">", {}}, {content, {}}, {"</" + name + ">", {}}}, false});
}
}

std::size_t axsSetEdit::attributes(axsEditSession& session, std::string_view xpath, Settings settings)
{
  check_names(settings);
  settings = unique(std::move(settings));
  axsEditSession::Nodes const nodes = session.select(xpath);
  for (axsNode const* const node : nodes)
    if (!node->is_element())
      axsEditSession::refuse("a selected node takes no attribute " + settings.front().name);
  ask_for_owners(session, nodes);

  Setter setter(session);
  for (axsNode* const node : nodes)
  {
    Settings changed = settings;
    setter.set(static_cast<axsElement&>(*node), changed);
    for (axsAttributeSetting const& setting : changed)
      set_in_tree(session, static_cast<axsElement&>(*node), setting);
  }
  return nodes.size();
}

std::size_t axsSetEdit::value(axsEditSession& session, std::string_view xpath, std::string_view value)
{
  axsEditSession::Nodes const nodes = session.select(xpath);
  ask_for_owners(session, nodes);

  Setter setter(session);
  for (axsNode* const node : nodes)
  {
    if (node->is_attribute())
    {
      auto& owner = static_cast<axsElement&>(*node->parent());
      Settings setting = {{std::string(node->name()->utf8()), std::string(value)}};
      setter.set(owner, setting);
      if (!setting.empty())
        set_in_tree(session, owner, setting.front());
      continue;
    }
    check_content(session, *node);
    set_content(session, static_cast<axsElement&>(*node), value);
    axsHandle::of(node)->set_text(apString::from_utf8(value));
  }
  return nodes.size();
}
