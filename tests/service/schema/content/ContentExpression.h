#pragma once

#include "axsContentModels.h"
#include "axsElementDecl.h"
#include "axsModelGroup.h"
#include "axsParticle.h"
#include "axsWildcard.h"

#include <deque>
#include <map>
#include <string>

/// Particles from a short form: names of elements, '.' for a wildcard, (a, b) a sequence, (a | b) a choice, (a & b) a
/// group "all", each followed by ?, *, +, {2,5} or {2,}. Owns them.
class ContentExpression
{
public:
  explicit ContentExpression(std::string const& text);

  axsParticle const& particle() const { return root; }

  /// The declaration of the elements of that name, made at the first use: all are of one declaration.
  axsElementDecl& element(std::string const& name);

private:
  axsParticle read();
  void read_times(axsParticle& particle);

  std::string source;
  std::size_t at = 0;
  std::map<std::string, axsElementDecl> elements;
  std::deque<axsModelGroup> groups;
  std::deque<axsWildcard> wildcards;
  axsParticle root;
};
