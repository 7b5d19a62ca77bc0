#include "axsEditSession.h"

#include "axsEditFault.h"
#include "axsHandle.h"
#include "axsMemorySource.h"
#include "axsParser.h"
#include "axsSplicer.h"
#include "axsTagText.h"
#include "axsTreeBuilder.h"
#include "axsTreeComparison.h"
#include "axsXPathQuery.h"

#include <utility>

namespace
{
using Kind = axsEditFault::Kind;

[[noreturn]] void fail(Kind kind, std::string const& message, std::string_view about = {})
{
  throw axsEditFault{kind, axmParseError(apString::from_utf8(message)), std::string(about)};
}

// Builds the tree with all its text, and takes down which attributes the document type adds.
class Builder final : public axsTreeBuilder
{
public:
  Builder(axsDomDocument& document, std::unordered_set<axsNode const*>& added)
    : axsTreeBuilder(document),
      defaults(added)
  {
    keep_all_spaces();
  }

  void start_element(axsStartTag const& tag) override
  {
    axsTreeBuilder::start_element(tag);
    // Defaults are the last ones.
    if (tag.attributes->empty() || tag.attributes->back().is_specified)
      return;
    axsAttribute const* made = innermost().first_attribute();
    for (axsTagAttribute const& attribute : *tag.attributes)
    {
      if (!attribute.is_specified)
        defaults.insert(made);
      made = made->next_attribute();
    }
  }

private:
  std::unordered_set<axsNode const*>& defaults;
};

std::shared_ptr<axmDocument> load(std::string_view bytes, apPath const& file, axmLoadOptions const& options,
  std::unordered_set<axsNode const*>& defaults)
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(apString(file.path()));
  axsMemorySource memory(bytes, file);
  Builder builder(static_cast<axsDomDocument&>(*axsHandle::node_of(*document)), defaults);
  axsParser(memory.source(), options, builder).run();
  return document;
}
}

axsEditSession::axsEditSession(std::string_view bytes, apPath const& path, axsXPathPrefixes const& given)
  : file(path),
    known_prefixes(given),
    options(axmValidateNone),
    document(load(bytes, file, options, defaults)),
    text(bytes, file),
    all_scopes(tree())
{
}

axsNode& axsEditSession::root_of(axmDocument& document) noexcept
{
  return *axsHandle::node_of(document);
}

axsEditSession::Nodes axsEditSession::select(std::string_view expression)
{
  axsXPathQuery::Value found;
  axsXPathError error;
  // Seen from the root element, as everywhere.
  if (!axsXPathQuery::evaluate(
        tree().xpath_cache(), *tree().root_element(), expression, known_prefixes, {}, found, error))
    fail(Kind::request, error.message + ", at character " + std::to_string(error.position), expression);
  if (found.type != axsXPathType::node_set)
    fail(Kind::request, "gives a value and no nodes", expression);
  if (found.nodes.empty())
    fail(Kind::nothing, "selects nothing", expression);
  Nodes nodes;
  nodes.reserve(found.nodes.size());
  held.reserve(held.size() + found.nodes.size());
  for (axsXPathNode const each : found.nodes)
  {
    nodes.push_back(each.node());
    held.push_back(axsHandle::of(each.node()));
  }
  return nodes;
}

axsSourcePlaces::Place const& axsEditSession::place_in_document(axsNode const& node) const
{
  axsSourcePlaces::Place const& place = all_places.of(node);
  if (place.is_in_entity)
    refuse_at(node, "stands in the replacement text of an entity and cannot be edited here");
  return place;
}

char axsEditSession::quote() const
{
  axsSpan const styled = all_places.first_tag_with_attribute();
  if (styled.size() > 0)
    return text.text()[axsTagText(text.text(), styled).attributes().front().value.begin];
  // The XML declaration has the one way or the other.
  std::string_view const first_line = text.text().substr(0, 6) == "<?xml " ? text.text().substr(0, 64) : "";
  std::size_t const at = first_line.find_first_of("\"'");
  return at == std::string_view::npos ? '"' : first_line[at];
}

bool axsEditSession::is_preserved(axsNode const& parent)
{
  axsName const* const space = tree().names().find("xml:space");
  if (space == nullptr || !parent.is_element())
    return false;
  return all_scopes.nearest_value(static_cast<axsElement const&>(parent), *space) == "preserve";
}

void axsEditSession::refuse(std::string const& message)
{
  fail(Kind::edit, message);
}

void axsEditSession::refuse_at(axsNode const& node, std::string const& message) const
{
  std::string_view const name = node.name() == nullptr ? std::string_view() : node.name()->utf8();
  std::string const what = name.empty() ? "what is selected" : "'" + std::string(name) + "'";
  apString const told = apString::from_utf8(what + " " + message);
  throw axsEditFault{Kind::edit, axsReadError::at(told, apString(file.path()), all_places.of(node).line).record(), {}};
}

std::string axsEditSession::finish()
{
  std::string bytes = axsSplicer::apply(text, std::move(splices));
  check(bytes);
  return bytes;
}

// Whatever was spliced: what cannot be read again as what was meant is never handed out.
void axsEditSession::check(std::string const& bytes)
try
{
  axsTreeComparison comparison(tree(), defaults);
  axsMemorySource memory(bytes, file);
  axsParser parser(memory.source(), options, comparison);
  while (comparison.is_same() && parser.step())
  {
  }
  if (!comparison.is_whole())
    refuse("read again, the edited document would not have the values or texts that the edit is to leave it with");
}
catch (axsReadError const& wrong)
{
  std::string const place =
    wrong.line < 0 ? "" : " (line " + std::to_string(wrong.line) + ", column " + std::to_string(wrong.column) + ")";
  refuse("the edited document could not be read: " + std::string(wrong.message.to_utf8().view()) + place);
}
