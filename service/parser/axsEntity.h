#pragma once

#include "axsDtd.h"

#include <apPath.h>

#include <memory>
#include <string>
#include <string_view>

/// A general or parameter entity as the parser uses it.
struct axsEntity
{
  std::string_view name;

  /// Lives in the model of the document type, or, of a parameter entity, beside it.
  axsDtd::Entity const* declared = nullptr;

  /// The file with the declaration, to which the system identifier is relative.
  apPath base;

  bool is_parameter = false;

  /// Declared in the external subset or in a parameter entity (4.1, WFC: Entity Declared).
  bool is_declared_outside = false;

  /// Whether its replacement text is plain text: it can be taken without being parsed.
  bool is_plain = false;

  /// Whether it is being read, so that a reference to it would be recursion (4.1, WFC: No Recursion).
  bool is_open = false;

  /// The replacement text as axsCharacters wants it, made when it is parsed first.
  std::unique_ptr<char[]> parsed;
};
