#include "ContentOracle.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <stdexcept>

namespace
{
// More of them would take too long; no content that is drawn has so many.
std::size_t const max_states = 5000;

using Kind = DrawnParticle::Kind;

bool takes_name(DrawnParticle const& particle, std::string const& name)
{
  if (particle.kind == Kind::any)
    return name == ContentOracle::other();
  return particle.kind == Kind::head ? name == "h" || name == "m" : name == particle.name;
}
}

// What is left of a content: a particle occurs from `min` to `max` times, of a group its parts do.
struct ContentOracle::Term
{
  enum class Kind
  {
    particle,
    sequence,
    choice,
    all,
    repeat // of the only part
  };

  Kind kind = Kind::sequence;
  DrawnParticle const* particle = nullptr;
  Terms parts;
  unsigned min = 1;
  unsigned max = 1;
};

ContentOracle::ContentOracle(std::vector<DrawnParticle const*> const& content)
{
  Terms parts;
  for (DrawnParticle const* const particle : content)
    parts.push_back(term_of(*particle));
  whole = sequence_of(parts);
}

std::shared_ptr<ContentOracle::Term const> ContentOracle::term_of(DrawnParticle const& particle)
{
  auto once = std::make_shared<Term>();
  once->particle = &particle;
  once->kind = particle.kind == Kind::sequence ? Term::Kind::sequence
               : particle.kind == Kind::choice ? Term::Kind::choice
               : particle.kind == Kind::all    ? Term::Kind::all
                                               : Term::Kind::particle;
  for (DrawnParticle const& part : particle.parts)
    once->parts.push_back(term_of(part));
  auto repeated = std::make_shared<Term>();
  repeated->kind = Term::Kind::repeat;
  repeated->parts.push_back(once);
  repeated->min = particle.min;
  repeated->max = particle.max;
  return repeated;
}

// With the parts of sequences within as its own, so that what is left stays small.
std::shared_ptr<ContentOracle::Term const> ContentOracle::sequence_of(Terms const& parts)
{
  auto made = std::make_shared<Term>();
  for (std::shared_ptr<Term const> const& part : parts)
  {
    if (part->kind == Term::Kind::sequence)
      made->parts.insert(made->parts.end(), part->parts.begin(), part->parts.end());
    else if (part->kind != Term::Kind::repeat || part->max != 0)
      made->parts.push_back(part);
  }
  return made;
}

bool ContentOracle::is_nullable(Term const& term)
{
  auto const nullable = [](std::shared_ptr<Term const> const& part) { return is_nullable(*part); };
  switch (term.kind)
  {
  case Term::Kind::particle:
    return false;
  case Term::Kind::choice:
    return std::any_of(term.parts.begin(), term.parts.end(), nullable);
  case Term::Kind::repeat:
    return term.min == 0 || is_nullable(*term.parts.front());
  default:
    return std::all_of(term.parts.begin(), term.parts.end(), nullable);
  }
}

// What is left of a group "all" without the part, or of a repeat after one more time.
std::shared_ptr<ContentOracle::Term const> ContentOracle::left_of(Term const& term, std::size_t part)
{
  auto left = std::make_shared<Term>(term);
  if (term.kind == Term::Kind::all)
    left->parts.erase(left->parts.begin() + static_cast<std::ptrdiff_t>(part));
  else
  {
    left->min -= left->min > 0 ? 1U : 0U;
    left->max -= left->max != DrawnParticle::many ? 1U : 0U;
  }
  return left;
}

// Each particle that takes the name next, with what is left after that.
void ContentOracle::find_ways(Term const& term, std::string const& name, Ways& ways)
{
  if (term.kind == Term::Kind::particle && takes_name(*term.particle, name))
    ways.emplace_back(term.particle, sequence_of({}));
  if (term.kind == Term::Kind::repeat && term.max == 0)
    return;
  for (std::size_t i = 0; i < term.parts.size(); ++i)
  {
    std::size_t const before = ways.size();
    find_ways(*term.parts[i], name, ways);
    for (std::size_t way = before; way < ways.size(); ++way)
    {
      Terms rest{ways[way].second};
      if (term.kind == Term::Kind::sequence)
        rest.insert(rest.end(), term.parts.begin() + static_cast<std::ptrdiff_t>(i) + 1, term.parts.end());
      else if (term.kind != Term::Kind::choice)
        rest.push_back(left_of(term, i));
      ways[way].second = sequence_of(rest);
    }
    if (term.kind == Term::Kind::sequence && !is_nullable(*term.parts[i]))
      return;
  }
}

std::string ContentOracle::key_of(Term const& term)
{
  std::string key = std::to_string(static_cast<int>(term.kind)) + '@' +
                    std::to_string(reinterpret_cast<std::uintptr_t>(term.particle)) + '{' + std::to_string(term.min) +
                    ',' + std::to_string(term.max) + '}';
  for (std::shared_ptr<Term const> const& part : term.parts)
    key += '(' + key_of(*part) + ')';
  return key;
}

ContentOracle::Terms ContentOracle::step(Terms const& from, std::string const& name, bool& is_ambiguous)
{
  std::map<std::string, std::shared_ptr<Term const>> next;
  DrawnParticle const* taker = nullptr;
  for (std::shared_ptr<Term const> const& term : from)
  {
    Ways ways;
    find_ways(*term, name, ways);
    for (auto const& [particle, rest] : ways)
    {
      is_ambiguous = is_ambiguous || (taker != nullptr && taker != particle);
      taker = particle;
      next.emplace(key_of(*rest), rest);
    }
  }
  Terms terms;
  for (auto const& [key, term] : next)
    terms.push_back(term);
  return terms;
}

bool ContentOracle::takes(std::vector<std::string> const& children) const
{
  Terms terms{whole};
  bool is_ambiguous = false;
  for (std::string const& child : children)
    terms = step(terms, child, is_ambiguous);
  return std::any_of(
    terms.begin(), terms.end(), [](std::shared_ptr<Term const> const& term) { return is_nullable(*term); });
}

bool ContentOracle::is_ambiguous() const
{
  std::deque<Terms> waiting{{whole}};
  std::set<std::string> seen;
  bool found = false;
  while (!waiting.empty() && !found)
  {
    Terms const terms = waiting.front();
    waiting.pop_front();
    std::string key;
    for (std::shared_ptr<Term const> const& term : terms)
      key += key_of(*term) + ';';
    if (terms.empty() || !seen.insert(key).second)
      continue;
    if (seen.size() > max_states)
      throw std::length_error("the content has too many states to be looked at one by one");
    for (std::string const name : {"a", "b", "c", "d", "e", "f", "g", "h", "m", other()})
      waiting.push_back(step(terms, name, found));
  }
  return found;
}
