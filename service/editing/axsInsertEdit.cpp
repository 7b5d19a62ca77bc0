#include "axsInsertEdit.h"

#include "axsEditFault.h"
#include "axsEditSession.h"
#include "axsFragment.h"
#include "axsInsertion.h"
#include "axsReadError.h"

#include <deque>

namespace
{
axsInsertion::Nodes nodes_of(axsEditSession& session, axsNode const& parent, std::string_view fragment)
try
{
  return axsFragment::parse(parent, session.scopes(), session.prefixes(), fragment);
}
catch (axsReadError& wrong)
{
  wrong.message = APSTRING("the fragment: ") + wrong.message;
  throw axsEditFault{axsEditFault::Kind::request, wrong.record(), {}};
}
}

std::size_t axsInsertEdit::run(
  axsEditSession& session, std::string_view xpath, axsEditPlace where, std::string_view fragment)
{
  axsEditSession::Nodes const targets = session.select(xpath);
  std::deque<axsInsertion> insertions;
  for (axsNode* const target : targets)
    insertions.emplace_back(session, *target, where, std::unordered_set<axsNode const*>());
  session.find_places();

  std::vector<axsInsertion::Nodes> nodes;
  for (axsInsertion& insertion : insertions)
  {
    nodes.push_back(nodes_of(session, insertion.parent(), fragment));
    insertion.splice({{session.source().with_line_ends(fragment), {}}});
  }
  for (std::size_t i = 0; i < nodes.size(); ++i)
    insertions[i].apply({nodes[i]});
  return targets.size();
}
