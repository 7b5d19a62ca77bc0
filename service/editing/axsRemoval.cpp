#include "axsRemoval.h"

#include "axsEditSession.h"
#include "axsHandle.h"
#include "axsTagText.h"

#include <algorithm>
#include <string>

namespace
{
bool is_markup(axsNode const& node)
{
  return !node.is_text() && !node.is_attribute();
}

void check(axsNode const& node)
{
  if (node.is_document() || node.kind() == axsKind::doctype)
    axsEditSession::refuse("the document itself cannot be taken out");
  if (node.is_element() && node.parent()->is_document())
    axsEditSession::refuse("the root element cannot be taken out: a document needs one");
}

bool is_blank(char c)
{
  return c == ' ' || c == '\t';
}

void trim_end(axsNode* node)
{
  if (node == nullptr || !node->is_text())
    return;
  std::string text(node->value());
  while (!text.empty() && is_blank(text.back()))
    text.pop_back();
  static_cast<axsLeaf*>(node)->set_text(text);
}

void remove_node(axsNode& node)
{
  if (node.is_attribute())
  {
    auto& owner = static_cast<axsDomElement&>(*node.parent());
    return owner.removeAttribute(apString::from_utf8(node.name()->utf8()));
  }
  auto const parent = axsHandle::of(node.parent());
  // What XPath has as one text may be several in the tree.
  while (node.is_text() && node.next_sibling() != nullptr && node.next_sibling()->is_text())
    parent->removeChild(axsHandle::of(node.next_sibling()));
  parent->removeChild(axsHandle::of(&node));
}

// Up to and with the end of the line.
void trim_begin(axsNode* node)
{
  if (node == nullptr || !node->is_text())
    return;
  std::string const text(node->value());
  auto const end = std::find_if_not(text.begin(), text.end(), is_blank);
  auto const rest = static_cast<std::size_t>(end - text.begin()) + (end != text.end() && *end == '\n' ? 1 : 0);
  static_cast<axsLeaf*>(node)->set_text(std::string_view(text).substr(rest));
}
}

axsRemoval::axsRemoval(axsEditSession& used, std::vector<axsNode*> const& nodes) : session(used), all(nodes)
{
  for (axsNode const* const node : all)
  {
    check(*node);
    has_text = has_text || node->is_text();
    session.places().ask(node->is_attribute() ? *node->parent() : *node);
  }
}

void axsRemoval::collect()
{
  for (axsNode* const node : all)
  {
    axsSpan const span = span_of(*node);
    bool const lies_in_last = !pieces.empty() && span.begin < pieces.back().span.end;
    if (!lies_in_last)
      pieces.push_back({node, span});
  }
}

axsSpan axsRemoval::span_of(axsNode const& node) const
{
  if (!node.is_attribute())
    return session.place_in_document(node).whole();
  axsNode const& owner = *node.parent();
  std::string const name(node.name()->utf8());
  axsTagText const tag(session.source().text(), session.place_in_document(owner).first);
  axsTagText::Attribute const* const written = tag.find(name);
  if (written == nullptr)
    session.refuse_at(owner, "has '" + name + "' from the document type only: it does not stand in the document");
  return written->whole;
}

void axsRemoval::splice()
{
  collect();
  for (std::size_t first = 0; first < pieces.size();)
  {
    Run run{first, first + 1};
    while (run.end < pieces.size() && goes_on(run.end))
      ++run.end;
    splice_run(run);
    first = run.end;
  }
}

// Whether only blanks stand between a node and the one before.
bool axsRemoval::goes_on(std::size_t index) const
{
  Piece const& piece = pieces[index];
  Piece const& before = pieces[index - 1];
  return is_markup(*piece.node) && is_markup(*before.node) &&
         session.source().is_blank({before.span.end, piece.span.begin});
}

void axsRemoval::splice_run(Run run)
{
  Piece const& first = pieces[run.first];
  auto const lines = session.source().lines_of({first.span.begin, pieces[run.end - 1].span.end});
  if (lines && !has_text && is_markup(*first.node) && !session.is_preserved(*first.node->parent()))
  {
    whole_lines.push_back(run);
    return session.splice({*lines, {}, false});
  }
  for (std::size_t i = run.first; i < run.end; ++i)
    session.splice({pieces[i].span, {}, false});
}

void axsRemoval::apply()
{
  for (Run const run : whole_lines)
    trim(run);
  for (Piece const& piece : pieces)
    remove_node(*piece.node);
}

void axsRemoval::trim(Run run) const
{
  trim_end(pieces[run.first].node->previous_sibling());
  for (std::size_t i = run.first + 1; i < run.end; ++i)
    if (axsNode* const between = pieces[i].node->previous_sibling(); between != nullptr && between->is_text())
      static_cast<axsLeaf*>(between)->set_text({});
  trim_begin(pieces[run.end - 1].node->next_sibling());
}
