#include "axsInsertion.h"

#include "axsEditSession.h"
#include "axsHandle.h"
#include "axsTagText.h"

#include <utXmlCharacter.h>

#include <algorithm>
#include <utility>

namespace
{
bool is_white(axsNode const& node)
{
  std::string_view const text = node.value();
  return node.is_text() && std::all_of(text.begin(), text.end(), [](char c) { return utXmlCharacter::is_space(c); });
}

bool stands_beside(axsEditPlace where)
{
  return where == axsEditPlace::before || where == axsEditPlace::after;
}

bool can_stand_there(axsNode const& target, axsEditPlace where)
{
  if (target.is_element())
    return true;
  bool const is_beside = target.kind() == axsKind::comment || target.kind() == axsKind::processing_instruction;
  return is_beside && stands_beside(where);
}
}

axsInsertion::axsInsertion(
  axsEditSession& used, axsNode& target, axsEditPlace where, std::unordered_set<axsNode const*> absent)
  : session(used),
    gone(std::move(absent)),
    owner(stands_beside(where) ? target.parent() : &target),
    is_after(where == axsEditPlace::after || where == axsEditPlace::into),
    is_into(!stands_beside(where))
{
  if (!can_stand_there(target, where))
    axsEditSession::refuse("nothing can be put there: select elements");
  if (is_into)
    find_neighbour(target);
  else
    neighbour = &target;
  session.places().ask(target);
  if (neighbour != nullptr)
    session.places().ask(*neighbour);
}

// The last or first child, from which only white space parts the tag.
void axsInsertion::find_neighbour(axsNode& target)
{
  axsNode* at = is_after ? target.last_child() : target.first_child();
  while (at != nullptr && (is_white(*at) || gone.count(at) > 0))
    at = is_after ? at->previous_sibling() : at->next_sibling();
  if (at != nullptr && !at->is_text())
    neighbour = at;
}

void axsInsertion::place_beside()
{
  if (neighbour == nullptr)
    return;
  axsSourceText const& source = session.source();
  auto const& place = is_into ? session.places().of(*neighbour) : session.place_in_document(*neighbour);
  auto const lines = place.is_in_entity ? std::nullopt : source.lines_of(place.whole());
  bool const has_line = lines && !session.is_preserved(*owner);
  if (has_line)
    line = std::string(source.line_end()) + std::string(source.text({lines->begin, place.whole().begin}));
  else if (is_into)
    neighbour = nullptr;
}

void axsInsertion::splice(Pieces const& pieces)
{
  place_beside();
  axsSplice made;
  std::string closing;
  place_in(made, closing);
  for (axsSplice::Piece const& piece : pieces)
  {
    if (is_after && !line.empty())
      made.pieces.push_back({line, {}});
    made.pieces.push_back(piece);
    if (!is_after && !line.empty())
      made.pieces.push_back({line, {}});
  }
  made.pieces.push_back({closing, {}});
  session.splice(std::move(made));
}

void axsInsertion::place_in(axsSplice& splice, std::string& closing) const
{
  if (is_beside())
  {
    axsSpan const whole = session.place_in_document(*neighbour).whole();
    std::size_t const at = is_after ? whole.end : whole.begin;
    splice.replaced = {at, at};
    return;
  }
  auto const& place = session.place_in_document(*owner);
  axsTagText const tag(session.source().text(), place.first);
  if (!tag.is_empty())
  {
    std::size_t const at = is_after ? place.last.begin : place.first.end;
    splice.replaced = {at, at};
    return;
  }
  splice.replaced = tag.closing();
  splice.pieces.push_back({">", {}});
  closing = "</" + std::string(owner->name()->utf8()) + ">";
}

// The child that is to follow.
std::shared_ptr<axmNode> axsInsertion::reference() const
{
  if (is_beside())
    return axsHandle::of(is_after ? neighbour->next_sibling() : neighbour);
  return is_after ? nullptr : axsHandle::of(owner->first_child());
}

void axsInsertion::apply(std::vector<Nodes> const& pieces) const
{
  auto const parent = axsHandle::of(owner);
  auto const next = reference();
  auto const put_line = [&]
  {
    // Text outside of the root element is no part of the tree.
    if (line.empty() || owner->is_document())
      return;
    std::string const text = "\n" + line.substr(session.source().line_end().size());
    parent->insertBefore(session.tree().createTextNode(apString::from_utf8(text)), next);
  };
  for (Nodes const& nodes : pieces)
  {
    if (is_after)
      put_line();
    for (std::shared_ptr<axmNode> const& node : nodes)
      parent->insertBefore(node, next);
    if (!is_after)
      put_line();
  }
}
