#pragma once

#include "axsEntity.h"
#include "axsTextHash.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

class axsInputStack;

/// The entities of one document.
class axsEntities
{
public:
  /// A document that is standalone uses what it declares itself only.
  void set_standalone() noexcept { is_standalone = true; }

  /// Takes an entity into the model `type` where it is declared first; of several with one name the first counts (4.2).
  void declare_general(axsDtd& type, std::string const& name, axsDtd::Entity&& declared, axsInputStack const& input);
  void declare_parameter(std::string const& name, axsDtd::Entity&& declared, axsInputStack const& input);

  /// Moves after the reference to a general entity at `p`. Throws as the input does where there is none, or none to an
  /// entity that is declared and parsed.
  axsEntity& general(axsInputStack const& input, char const*& p);

  /// The same for a parameter entity; the '%' is at `p`.
  axsEntity& parameter(axsInputStack const& input, char const*& p);

private:
  std::unordered_map<std::string_view, axsEntity, axsTextHash> generals;
  std::unordered_map<std::string_view, axsEntity, axsTextHash> parameters;
  // What is declared of parameter entities, of which the model has none.
  std::deque<std::pair<std::string const, axsDtd::Entity>> kept;
  bool is_standalone = false;
};
