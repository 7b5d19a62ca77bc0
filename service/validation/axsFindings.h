#pragma once

#include "axsDocumentContext.h"
#include "axsIdentifiers.h"
#include "axsIdentityChecks.h"
#include "axsLocator.h"
#include "axsSchemaComponents.h"
#include "axsValidityErrors.h"
#include "axsValue.h"

#include <apString.h>

#include <string>

/// What the parts of an assessment have in common: the schema, what surrounds values, what is known of the document so
/// far, and where errors go.
struct axsFindings
{
  axsFindings(axsSchemaComponents const& given, axsValidityErrors& list, bool& assessed)
    : schema(given),
      errors(list),
      context(given),
      identity([this](std::string const& message, axsPlace place) { report(message, place); }),
      has_assessed(assessed)
  {
  }

  void report(std::string const& message) { report(message, locator->end()); }
  void report(std::string const& message, axsPlace place)
  {
    errors.add(locator->error(apString::from_utf8(message), place));
  }

  axsSchemaComponents const& schema;
  axsValidityErrors& errors;
  axsLocator const* locator = nullptr;
  axsDocumentContext context;
  axsIdentityChecks identity;
  axsIdentifiers identifiers;
  axsValue value; // the last one
  /// Set once anything is held against a declaration.
  bool& has_assessed;
};
