#include "axsMoveEdit.h"

#include "axsEditSession.h"
#include "axsHandle.h"
#include "axsInsertion.h"
#include "axsRemoval.h"

#include <map>
#include <set>
#include <string>

namespace
{
using Nodes = axsEditSession::Nodes;

void check_kinds(Nodes const& nodes)
{
  for (axsNode const* const node : nodes)
    if (node->is_text() || node->is_attribute() || node->is_document())
      axsEditSession::refuse("only elements, comments and processing instructions can be moved");
}

// What lies in each other stands in each other.
void check_places(axsEditSession const& session, Nodes const& nodes, axsNode const& target)
{
  axsSpan const aim = session.place_in_document(target).whole();
  std::size_t end = 0;
  for (axsNode const* const node : nodes)
  {
    axsSpan const span = session.place_in_document(*node).whole();
    if (span.begin < end)
      session.refuse_at(*node, "cannot be moved in one step with what it lies in");
    if (span.begin <= aim.begin && aim.end <= span.end)
      session.refuse_at(*node, "cannot be moved beside or into itself");
    end = span.end;
  }
}

// Of all names in an element, the prefixes that are bound outside of it; the empty one is that of the default namespace.
class FreePrefixes
{
public:
  static std::set<std::string> of(axsNode const& top)
  {
    FreePrefixes found;
    axsNode const* node = &top;
    while (true)
    {
      found.open(*node);
      if (node->first_child() != nullptr)
      {
        node = node->first_child();
        continue;
      }
      found.close(*node);
      while (node != &top && node->next_sibling() == nullptr)
      {
        node = node->parent();
        found.close(*node);
      }
      if (node == &top)
        return found.free;
      node = node->next_sibling();
    }
  }

private:
  void open(axsNode const& node)
  {
    if (!node.is_element())
      return;
    count(node, 1);
    use(node.name()->prefix());
    for (axsAttribute const* at = node.first_attribute(); at != nullptr; at = at->next_attribute())
      if (!at->full_name().prefix().empty() && at->full_name().prefix() != "xmlns")
        use(at->full_name().prefix());
  }

  void close(axsNode const& node)
  {
    if (node.is_element())
      count(node, -1);
  }

  void count(axsNode const& element, int by)
  {
    for (axsAttribute const* at = element.first_attribute(); at != nullptr; at = at->next_attribute())
      if (axsXPathScopes::is_declaration(at->full_name()))
        bound[std::string(at->full_name().prefix().empty() ? "" : at->full_name().local())] += by;
  }

  void use(std::string_view prefix)
  {
    std::string const name(prefix);
    auto const found = bound.find(name);
    if (name != "xml" && (found == bound.end() || found->second == 0))
      free.insert(name);
  }

  std::map<std::string, int> bound;
  std::set<std::string> free;
};

std::string_view uri(axsEditSession& session, axsNode const& parent, std::string const& prefix)
{
  return parent.is_element() ? session.scopes().uri(static_cast<axsElement const&>(parent), prefix)
                             : std::string_view();
}

void check_namespaces(axsEditSession& session, axsNode const& node, axsNode const& parent)
{
  if (!node.is_element())
    return;
  for (std::string const& prefix : FreePrefixes::of(node))
    if (uri(session, *node.parent(), prefix) != uri(session, parent, prefix))
      session.refuse_at(node,
        prefix.empty() ? "cannot be moved to where another default namespace is declared"
                       : "cannot be moved to where the prefix '" + prefix + "' is not bound to the same namespace");
}
}

std::size_t axsMoveEdit::run(
  axsEditSession& session, std::string_view xpath, axsEditPlace where, std::string_view target)
{
  Nodes const nodes = session.select(xpath);
  Nodes const targets = session.select(target);
  if (targets.size() != 1)
    axsEditSession::refuse("the target has to be one element, not " + std::to_string(targets.size()));
  check_kinds(nodes);
  axsRemoval removal(session, nodes);
  axsInsertion insertion(session, *targets.front(), where, {nodes.begin(), nodes.end()});
  session.find_places();
  check_places(session, nodes, *targets.front());

  axsInsertion::Pieces pieces;
  std::vector<axsInsertion::Nodes> moved;
  for (axsNode* const node : nodes)
  {
    check_namespaces(session, *node, insertion.parent());
    pieces.push_back({{}, session.place_in_document(*node).whole()});
    moved.push_back({axsHandle::of(node)});
  }
  removal.splice();
  insertion.splice(pieces);
  removal.apply();
  insertion.apply(moved);
  return nodes.size();
}
