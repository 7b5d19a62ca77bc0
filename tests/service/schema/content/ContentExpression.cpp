#include "ContentExpression.h"

#include <cctype>

ContentExpression::ContentExpression(std::string const& text)
{
  for (char const c : text)
    if (c != ' ')
      source += c;
  root = read();
}

axsElementDecl& ContentExpression::element(std::string const& name)
{
  axsElementDecl& decl = elements[name];
  decl.name.local = name;
  return decl;
}

axsParticle ContentExpression::read()
{
  axsParticle particle;
  if (source[at] == '.')
  {
    ++at;
    particle.wildcard = &wildcards.emplace_back();
  }
  else if (source[at] != '(')
  {
    std::string name;
    while (at < source.size() && (std::isalnum(static_cast<unsigned char>(source[at])) != 0))
      name += source[at++];
    particle.element = &element(name);
  }
  else
  {
    axsModelGroup& group = groups.emplace_back();
    particle.group = &group;
    ++at;
    while (source[at] != ')')
    {
      group.particles.push_back(read());
      if (source[at] == '|')
        group.compositor = axsModelGroup::Compositor::choice;
      if (source[at] == '&')
        group.compositor = axsModelGroup::Compositor::all;
      if (source[at] != ')')
        ++at;
    }
    ++at;
  }
  read_times(particle);
  return particle;
}

void ContentExpression::read_times(axsParticle& particle)
{
  char const sign = at < source.size() ? source[at] : ' ';
  if (sign == '?' || sign == '*')
    particle.min_occurs = 0;
  if (sign == '*' || sign == '+')
    particle.max_occurs = axsParticle::unbounded;
  if (sign == '?' || sign == '*' || sign == '+')
    ++at;
  if (sign != '{')
    return;
  std::size_t const comma = source.find(',', at);
  std::size_t const end = source.find('}', at);
  particle.min_occurs = std::stoull(source.substr(at + 1, comma - at - 1));
  particle.max_occurs =
    comma + 1 == end ? axsParticle::unbounded : std::stoull(source.substr(comma + 1, end - comma - 1));
  at = end + 1;
}
