#pragma once

#include "axsSymbols.h"

#include <cstdint>
#include <string>

class axsName;
struct axsElementDecl;

/// The name of an element of a document, with what the schema knows of it.
struct axsKnownName
{
  axsName const* name = nullptr;
  std::string name_space;
  /// Its numbers in contents (axsSymbols).
  std::uint32_t symbol = axsSymbols::none;
  std::uint32_t space = axsSymbols::none;
  /// The global declaration; null without one.
  axsElementDecl const* global = nullptr;
};
