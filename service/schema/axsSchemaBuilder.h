#pragma once

#include "axsSchemaContext.h"
#include "axsSchemaLoader.h"
#include "axsSchemaModel.h"

#include <memory>

/// Makes the components of schema documents that were read, and checks the constraints on them (Part 1, chapter 3).
class axsSchemaBuilder
{
public:
  axsSchemaBuilder(axsSchemaLoader const& documents, axsSchemaErrors& told);

  /// Null if anything is wrong. Once.
  std::shared_ptr<axsSchemaComponents const> build();

private:
  void declare();
  void make_components();
  void allocate(axsSchemaSymbol& symbol);
  void make_any_type();
  void check();
  void check_redefinition(axsSchemaSymbol const& symbol);
  void compile_contents();
  void check_group(axsSchemaSymbol const& symbol);
  void publish();

  axsSchemaLoader const& loader;
  axsSchemaErrors& errors;
  std::shared_ptr<axsSchemaModel> model;
  axsSchemaSymbols symbols;
  axsSchemaContext context;
};
