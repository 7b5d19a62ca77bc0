#pragma once

#include "axmExport.h"
#include "axmValidateMode.h"

#include <apPath.h>
#include <apString.h>

#include <vector>

/// What a load is told: whether and with which schemas it validates, and what entities may do.
///
/// A value; nothing is checked when it is set, the factory honours it or fails. One object belongs to one thread at a
/// time.
class AXM_API axmLoadOptions
{
public:
  /// No validation, no schemas, at most 50000 entity expansions, no entity resolution.
  axmLoadOptions();

  /// The same with the given mode.
  axmLoadOptions(axmValidateMode mode);

  /// Copies throw std::bad_alloc when memory runs out; what was to be assigned to is unchanged then.
  axmLoadOptions(axmLoadOptions const& other);
  axmLoadOptions& operator=(axmLoadOptions const& other);
  ~axmLoadOptions();

  /// Default: axmValidateNone. Validating costs a pass over the schemas at every load.
  axmValidateMode validate_mode() const;
  void set_validate_mode(axmValidateMode mode);

  /// Adds the schema file `schema` for the target namespace `name_space` (XML Schema Part 1, 4.3). A namespace that is
  /// there already gets a further schema. Throws std::bad_alloc or std::length_error; nothing is changed then.
  void add_external_schema(apString const& name_space, apPath const& schema);

  int num_external_schemas() const;

  /// Namespace and schema file of the entry `index`, in the order added. Throw std::out_of_range with the message
  /// "invalid vector subscript" unless 0 <= index < num_external_schemas().
  apString external_namespace(int index) const;
  apPath external_schema(int index) const;

  /// The schema for elements in no namespace. Default: the empty path, which means none.
  apPath no_namespace_schema() const;
  void set_no_namespace_schema(apPath const& schema);

  /// How many entity expansions a load may take; one more fails it. Every reference to an entity that the document declares
  /// counts, also in an attribute and in the text of another entity. Default: 50000.
  int entity_expansion_limit() const;
  void set_entity_expansion_limit(int limit);

  /// Whether external entities are left alone, so that a document that needs one fails to load. Default: true. With
  /// false, local files named by the document are read.
  bool disable_entity_resolution() const;
  void set_disable_entity_resolution(bool disable);

private:
  axmValidateMode mode;
  std::vector<apString> external_namespaces;
  std::vector<apPath> external_schemas;
  apPath no_namespace;
  int expansion_limit;
  bool resolution_disabled;
};
